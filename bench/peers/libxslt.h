// A stylesheet of XSLT 1.0, compiled before the work.
#pragma once

#include <memory>

#include "peer.h"

namespace bench {

std::unique_ptr<Peer> make_libxslt(Way way, size_t neighbors);

}  // namespace bench
