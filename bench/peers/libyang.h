// Data trees of libyang, each node made as a child of the one that it stands below.
#pragma once

#include <memory>

#include "peer.h"

namespace bench {

std::unique_ptr<Peer> make_libyang(Way way, size_t neighbors);

}  // namespace bench
