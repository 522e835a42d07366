// The program of the mapping alone: the library over tree operations that do nothing.
#include "mapped.h"

namespace bench {

static std::unique_ptr<Peer> make_mapping(Way way, size_t neighbors)
{
    return std::make_unique<Mapped>(way, neighbors);
}

static constexpr PeerKind kinds[] = {{"mapping", make_mapping}};

std::span<const PeerKind> peers() { return kinds; }

}  // namespace bench
