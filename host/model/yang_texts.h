// The YANG modules of models/, held in the program: it needs no file of them when it runs.
#pragma once

#include <string_view>

namespace model {

// The text of the module of that name, ending in a NUL; null if there is none.
const char *find_yang_text(std::string_view module);

}  // namespace model
