// Which function answers for a node of the OpenConfig tree, in this process.
#pragma once

#include <string>
#include <string_view>

namespace explain {

struct Handler {
    std::string symbol;        // the public name, which the walk calls
    std::string source;        // the source file that defines it; outside the library the file that it was loaded from
    bool is_override = false;  // something else than the generated default
    bool is_from_library = true;
};

// `symbol` is the public name. Follows the dynamic linker: the library's own definition, weak or strong, or one of the
// program that loaded it. Throws std::runtime_error if there is none.
Handler find_handler(std::string_view symbol);

}  // namespace explain
