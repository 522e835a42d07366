// `ocbgp trace`: the walk of a request as a tree of handlers, with what each of them did.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "recording.h"
#include "write.h"

namespace cli {

enum class Colour { never, always, automatic };  // automatic: on a terminal, unless NO_COLOR is set

struct TraceOptions {
    std::string file;                   // empty: the path, or else the whole tree
    std::string path;                   // a read
    std::optional<uint32_t> kind;       // told by the input where it is not given, else an edit; a path is a get
    std::optional<uint32_t> global_as;  // that the router has already; of no use with a folder
    std::string folder;                 // of an embedded router, which is asked and never changed; empty: none
    double patience = 5;                // seconds to wait for another process to leave it
    bool only_config = false;           // a read as <get-config>
    std::string save;                   // a file for all of it; empty: none
    bool as_json = false;
    Colour colour = Colour::automatic;
    io::Secrets secrets = io::Secrets::hidden;
};

// Prints the walk to standard output. Gives an exit code: that of the request.
int trace(const TraceOptions &options);

}  // namespace cli
