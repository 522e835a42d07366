// The names of outcomes, as the platform's header has them.
#pragma once

#include <cstdint>

namespace framework {

// "VMF_RC_BAD_TREE"; null for an outcome without a name, and for success.
const char *constant_of_outcome(uint32_t outcome);

}  // namespace framework
