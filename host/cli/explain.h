// `ocbgp explain`: what a node of the OpenConfig tree becomes natively, who answers for it, what comes back.
#pragma once

#include <optional>
#include <string>

namespace cli {

struct ExplainOptions {
    std::string path;                 // of OpenConfig, with or without keys
    std::string native_path;          // or of a native model
    bool all = false;                 // or all nodes of the OpenConfig tree
    std::optional<std::string> kind;  // only what this kind of request becomes: read, merge, replace, delete
    bool json = false;
};

// The form of the JSON, for the command's help.
extern const char explain_json_help[];

// Gives an exit code. Throws UsageError and what the reader of paths throws.
int explain(const ExplainOptions &options);

}  // namespace cli
