// An outcome that is lost says so.
#pragma once

#include <cstdint>

// The outcome of an add that the mapping does not look at.
inline void dropped(uint32_t /*outcome*/) {}
