#include "floor.h"
#include "mapped.h"

namespace bench {

template<class Kind>
static std::unique_ptr<Peer> make(Way way, size_t neighbors)
{
    return std::make_unique<Kind>(way, neighbors);
}

static constexpr PeerKind kinds[] = {
    {"ours", make<Mapped>},
    {"malloc-floor", make_malloc_floor},
    {"bump-floor", make_bump_floor},
};

std::span<const PeerKind> peers() { return kinds; }

}  // namespace bench
