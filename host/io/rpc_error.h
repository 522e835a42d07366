// The errors of NETCONF (RFC 6241, section 4.3 and appendix A) as a framework reports them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "vmf_map_types.h"

namespace io {

struct RpcError {
    std::string_view type;     // "rpc", "protocol" or "application"
    std::string_view tag;      // "unknown-element"
    std::string path = {};     // of the client: "/bgp/neighbors/neighbor[neighbor-address='10.0.0.1']"; empty: none
    std::string message = {};  // for people
    std::string bad_attribute = {};  // what the tag wants to be told; empty: it does not
    std::string bad_element = {};
};

// A client's path without its keys and positions.
std::string schema_of_path(std::string_view path);

// An <rpc-reply> with an <rpc-error> for each, all of severity "error". A path becomes XPath: its names get prefixes,
// which are declared, and so do identities among its keys. `bgp`, if not null, is the request, which tells the
// namespace of a node that the model does not have.
std::string write_rpc_errors(const std::vector<RpcError> &errors, const Datatree *bgp);

}  // namespace io
