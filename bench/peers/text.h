// A target tree as text, a line a node, whatever it is made of: peers are compared by it.
#pragma once

#include <string>

#include "vmf_map_types.h"

namespace bench {

// A null or empty value: none.
void append_line(std::string &text, size_t depth, const char *tag, const char *value);

// The value as a document has it: an identity comes with the module that it lies in. Empty if there is none.
std::string value_of(const Datatree &node);

std::string text_of(const Datatree &node);

}  // namespace bench
