// `ocbgp translate`: what a request becomes, without a router.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "output.h"
#include "write.h"

namespace cli {

struct TranslateOptions {
    std::string file;
    std::optional<uint32_t> kind;       // told by the input where it is not given, else an edit
    std::optional<uint32_t> global_as;  // that the router has already
    Format format = Format::xml;
    bool trace = false;
    bool rpc_error = false;  // a refusal as an error of NETCONF too
    io::Secrets secrets = io::Secrets::hidden;
};

// Prints the native request trees to standard output, everything else to standard error. Gives an exit code.
int translate(const TranslateOptions &options);

}  // namespace cli
