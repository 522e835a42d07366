// The plain tree: a node a line, two blanks a level. What one reads in a terminal, and what the tests are written in.
//
//   bgp zr-cfg                          a namespace stands where it differs from the parent's
//     instance
//       instance-name = default
//       instance-as
//         as = 0
//         four-byte-as [remove]         an edit operation
//           as = 65001
//     afi-safi-name = bgp-types:IPV4_UNICAST    a data namespace
//
// A value that is empty, begins or ends with a blank, begins with a quote or as a data namespace would, or holds a line
// end or a backslash, is quoted as a JSON string. Namespaces that have no short name stand whole, in angle brackets.
#pragma once

#include <string>
#include <string_view>

#include "tree.h"
#include "write.h"

namespace io {

// The short name of a namespace: zr-cfg, zr-oper, oc-bgp, bgp-types. Empty if it has none.
std::string_view short_name(std::string_view ns);
std::string_view namespace_of_short_name(std::string_view name);

// Reads such a text into children of a holder; names are interned. Throws std::runtime_error with the line's number.
platform::Tree read_tree(std::string_view text);

}  // namespace io
