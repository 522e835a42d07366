// Values to try a leaf with, by its type.
#pragma once

#include <string>
#include <vector>

#include "native_schema.h"

namespace explain {

// Values that the type of a leaf or leaf-list takes, none twice: both booleans, all enumeration values, all identities
// without their module, bounds of a range, an address of each version, a text. At least one; "" alone for a leaf of
// type empty.
std::vector<std::string> samples_of(const router::Schema &leaf);

}  // namespace explain
