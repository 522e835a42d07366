// Paths of the tree operations, parsed. The mapping names the same few hundred paths again and again, so each thread
// keeps what it has parsed.
#pragma once

#include <string>
#include <vector>

namespace platform {

struct PathElement {
    const char *name;  // as the table of names holds it
    const char *key;   // the same, of a key leaf in brackets; null: no brackets
};

struct ParsedPath {
    std::string text;
    bool is_path = false;  // its elements have names, and brackets come in pairs at their end
    bool has_key = false;  // of one of its elements
    std::vector<PathElement> elements = {};
};

// "/a/b[k]" or "a/b[k]". Valid until this thread parses the next path.
const ParsedPath &parse_path(const char *path);

}  // namespace platform
