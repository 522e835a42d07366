// The difference of two trees in plain text, for people.
#pragma once

#include <string>
#include <vector>

namespace framework {

// "- " before each line that is only in `before`, "+ " before one only in `now`, and "  " before the lines that these
// stand below. Empty: no difference. Of two texts with tens of thousands of lines between their first and their last
// difference, all lines there count as changed.
std::vector<std::string> line_difference(const std::vector<std::string> &before, const std::vector<std::string> &now);

}  // namespace framework
