// Which source file of the library defines which handler, as the build read it from the objects that the library is
// linked from.
#pragma once

#include <span>
#include <string_view>

namespace explain {

struct HandlerSource {
    std::string_view symbol;
    std::string_view source;  // from the repository's root
};

// A symbol of the one takes the place of the same symbol of the other when the library is linked.
std::span<const HandlerSource> strong_handlers();
std::span<const HandlerSource> weak_handlers();

}  // namespace explain
