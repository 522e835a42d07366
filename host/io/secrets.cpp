#include "secrets.h"

namespace io {

bool is_secret(const char *tag, const char *parent)
{
    const std::string_view leaf = tag != nullptr ? tag : "";
    if (leaf == "auth-password") return true;
    return leaf == "password" && parent != nullptr && std::string_view(parent) == "password";
}

}  // namespace io
