// `ocbgp edit`: an OpenConfig edit lands in the embedded router.
#pragma once

#include <string>

#include "router_options.h"

namespace cli {

struct EditOptions {
    RouterOptions router;
    std::string file;
    bool only_shows = false;       // what the edit is natively, and the difference that it would make
    bool stays_candidate = false;  // not committed
    bool trace = false;
    bool rpc_error = false;        // a refusal as an error of NETCONF too
    bool is_quiet = false;         // no progress on a terminal
    Format format = Format::tree;  // of what is shown
};

// Gives an exit code. Throws what the router and the reader throw.
int edit(const EditOptions &options);

}  // namespace cli
