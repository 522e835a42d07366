// OpenConfig trees as lines of whole paths, from "/bgp" on, with list keys in brackets.
#pragma once

#include <string>
#include <vector>

#include "tree.h"
#include "trip.h"

namespace trips {

// A holder of one `bgp` with these nodes.
platform::Tree tree_of(const std::vector<Named> &nodes);

// A line for each leaf, list entry and empty container below the holder, sorted; "-" for a `bgp` without anything;
// "nothing" without a tree. Throws std::runtime_error for more than one tree.
std::vector<std::string> lines_of(const Datatree &holder);

// The path in the model: "/bgp/global/afi-safis/afi-safi/config".
std::string schema_path(const std::string &path);

// Those of the list keys that stand in a path.
std::vector<std::string> schema_paths_of_keys(const std::string &path);

bool is_leaf_list(const std::string &path);

}  // namespace trips
