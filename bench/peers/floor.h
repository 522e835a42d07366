// The least that the work can cost: the same trees of the same records, by walks that were written for these nodes
// alone, without a platform, log tests or outcomes.
#pragma once

#include <memory>

#include "peer.h"

namespace bench {

// Blocks from malloc: arrays that double, and a copy of each text.
std::unique_ptr<Peer> make_malloc_floor(Way way, size_t neighbors);

// The same from an allocator that only counts up and never gives back.
std::unique_ptr<Peer> make_bump_floor(Way way, size_t neighbors);

}  // namespace bench
