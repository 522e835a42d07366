// What the OpenConfig model says of leaves without a value.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace router {

// The default of the leaf at a schema path, "/bgp/global/graceful-restart/config/enabled"; none if it has none, or if
// there is no such leaf.
std::optional<std::string> default_of_openconfig(std::string_view path);

}  // namespace router
