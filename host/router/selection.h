// Reads: what native request trees select of the router's data, as NETCONF's subtree filters do (RFC 6241, section 6).
#pragma once

#include "records.h"
#include "tree.h"

namespace router {

// What the trees of the module's namespace among the children of `request` select. `root` is the root of the module,
// `data` what stands below it. A holder of one `bgp`, or of none.
platform::Tree selected(const Branch &data, const Schema &root, const Datatree &request);

// All of it.
platform::Tree whole(const Branch &data);

}  // namespace router
