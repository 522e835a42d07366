// The least that the work can cost: the same trees from plain records, by a walk that was written for these nodes
// alone, without a platform, logs, tests or outcomes.
#pragma once

#include <cstddef>
#include <string>

#include "vmf_map_types.h"

namespace bench {

struct Record {
    const char *tag;
    const char *value;
    Record *children;
    size_t count;
    size_t capacity;
};

// Where records and texts come from: malloc, with arrays that double; or a bump allocator that never gives back.
enum class Memory { malloc, bump };

Record floor_forward(const Datatree &openconfig, Memory memory);
Record floor_back(const Datatree &native, Memory memory);

size_t count_nodes(const Record &record);

// A line a node, for comparing it with what the library made.
std::string text_of(const Record &record);
std::string text_of(const Datatree &node);

}  // namespace bench
