// The lists of the native models. A tree alone does not tell a list of one entry from a container, and JSON writes the
// two apart.
#pragma once

#include <algorithm>
#include <iterator>
#include <string_view>

namespace io {

constexpr std::string_view native_lists[] = {
    "af",
    "af-data",
    "af-process-info",
    "confederation-peer-as",
    "four-byte-as",
    "global-af",
    "instance",
    "instance-as",
    "neighbor",
    "neighbor-af",
    "neighbor-group",
    "neighbor-group-af",
    // leaf-lists
    "route-policy-in",
    "route-policy-out",
};

inline bool is_native_list(std::string_view tag)
{
    return std::find(std::begin(native_lists), std::end(native_lists), tag) != std::end(native_lists);
}

}  // namespace io
