// `ocbgp get`: what the embedded router holds, in OpenConfig.
#pragma once

#include <string>

#include "router_options.h"

namespace cli {

struct GetOptions {
    RouterOptions router;
    std::string filter;  // a file; empty: the path, or else the whole tree
    std::string path;
    bool only_config = false;
    bool trace = false;
    bool rpc_error = false;         // a refusal as an error of NETCONF too
    bool explains_missing = false;  // says what was asked and is not there
    Format format = Format::xml;
};

// Gives an exit code. Throws what the router and the reader throw.
int get(const GetOptions &options);

}  // namespace cli
