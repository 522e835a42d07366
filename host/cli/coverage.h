// `ocbgp coverage`: how much of an OpenConfig module the mapping accepts.
#pragma once

#include <string>
#include <vector>

namespace cli {

struct CoverageOptions {
    std::vector<std::string> modules;  // files; none: the model that the mapping was written for
    std::vector<std::string> folders;  // where to look for what they import
    bool json = false;
    bool deviations = false;  // a YANG module instead
};

// Gives an exit code. Throws io::InputError for modules that cannot be loaded.
int coverage(const CoverageOptions &options);

}  // namespace cli
