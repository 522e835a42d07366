// The work that every peer of the benchmark does: neighbors as an operator has them, into the native model and back.
#pragma once

#include <cstddef>
#include <string>

#include "tree.h"

namespace bench {

// An edit's `bgp` with so many neighbors of 54 nodes.
platform::Tree openconfig_neighbors(size_t count);

// What the router then says of them: 51 nodes each, without the removals that an edit holds.
platform::Tree native_neighbors(size_t count);

// The nodes of a tree.
size_t count_nodes(const Datatree &node);

std::string address_of(size_t neighbor);

}  // namespace bench
