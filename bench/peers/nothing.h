// Tree operations that do nothing. A program that has them gets the mapping alone: they stand before those of the
// platform, which is a shared library there. What the mapping reads with, it still reads with.
#pragma once

#include <cstddef>

namespace bench {

size_t tree_operations();  // so many were asked for

}  // namespace bench
