// One run of the mapping with everything around it in reach: its contexts, its log, its database.
#pragma once

#include <string>
#include <vector>

#include "contexts.h"
#include "tree.h"

namespace support {

// A line that the mapping logged.
struct Said {
    std::string level;
    std::string function;
    std::string text;
};

struct MappingRun {
    explicit MappingRun(uint32_t kind);

    // A router that runs BGP under this AS.
    void know_as(uint32_t as);

    // What was logged since the last call, in its order.
    std::vector<Said> said();

    platform::SystemDatabase database;
    platform::TraceBuffer trace{size_t{1} << 20};
    platform::Log log;
    framework::Contexts contexts;
    MapContext ctx;
    platform::Tree out;
};

}  // namespace support
