// Paths that a person writes, and what lies nearest where one leads nowhere.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "target.h"

namespace explain {

struct Asked {
    Target target = {nullptr, {}};  // a null node: the path leads nowhere
    std::string schema_path = {};   // as it was written, without keys and prefixes
    std::string reason = {};        // why it leads nowhere: not in the model, or a wrong key
};

// A path of the OpenConfig tree, with or without keys, with or without quotes around their values, with or without
// prefixes: "/bgp/neighbors/neighbor[neighbor-address=192.0.2.1]/config/peer-as". Keys that are left out are made.
// Throws io::InputError for a text that is no path.
Asked read_asked(const std::string &text);

// The same of a native model: without keys and prefixes.
std::string native_path_of(const std::string &text);

// Up to `count` of `paths`, those that take the fewest changes first: an element that has to be added, taken out, or
// written otherwise.
std::vector<std::string> nearest_paths(std::string_view path, const std::vector<std::string> &paths, size_t count);

// All schema paths of the OpenConfig tree that the mapping takes; all leaves of the native models.
std::vector<std::string> openconfig_paths();
std::vector<std::string> writable_paths();
std::vector<std::string> native_leaf_paths();

}  // namespace explain
