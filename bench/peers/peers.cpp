#include "floor.h"
#include "libxml2.h"
#include "mapped.h"
#ifdef BENCH_LIBYANG
#include "libyang.h"
#endif
#ifdef BENCH_LIBXSLT
#include "libxslt.h"
#endif

namespace bench {

static std::unique_ptr<Peer> make_ours(Way way, size_t neighbors) { return std::make_unique<Mapped>(way, neighbors); }

static constexpr PeerKind kinds[] = {
    {"ours", make_ours},       {"malloc-floor", make_malloc_floor}, {"bump-floor", make_bump_floor},
    {"libxml2", make_libxml2},
#ifdef BENCH_LIBYANG
    {"libyang", make_libyang},
#endif
#ifdef BENCH_LIBXSLT
    {"libxslt", make_libxslt},
#endif
};

std::span<const PeerKind> peers() { return kinds; }

}  // namespace bench
