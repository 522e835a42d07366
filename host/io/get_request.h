// Requests that select: from a path on a command line, or from a filter that leaves keys open.
#pragma once

#include <string>

#include "document.h"

namespace io {

// A request for the node at a path of the OpenConfig tree, list keys in brackets:
//   /bgp/neighbors/neighbor[neighbor-address='10.0.0.1']/afi-safis/afi-safi[afi-safi-name='IPV4_UNICAST']/state
// A list without its key means all entries; an identity without a module is one of the module of BGP types. Names need
// not be ones that the model has. Throws InputError, which says where the path is wrong.
Document read_path(const std::string &path);

// Gives every list entry below `bgp` that has no key the empty key that the mapping expects for "all of them".
void complete_keys(Document &document);

}  // namespace io
