// Which values are not for everybody's eyes.
#pragma once

#include <string_view>

namespace io {

// The leaf that holds a password, in the OpenConfig and in the native model. `parent` is the tag above, or null.
bool is_secret(const char *tag, const char *parent);

constexpr std::string_view hidden_value = "***";

}  // namespace io
