// A walk by hand over documents of libxml2, each element made as a child of the one that it stands below.
#pragma once

#include <memory>

#include "peer.h"

namespace bench {

std::unique_ptr<Peer> make_libxml2(Way way, size_t neighbors);

}  // namespace bench
