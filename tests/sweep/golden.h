// The requests, and the router's responses to those that read, which whatever holds of any exchange is tried on.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "system_database.h"

namespace sweep {

struct Exchange {
    std::string name;
    uint32_t kind;
    std::string request;        // a tree text of one OpenConfig `bgp`
    std::string response = {};  // of native trees; empty: there is no way back
    uint32_t response_pending = 1;
    std::vector<platform::DatabaseRecord> records = {};
};

// The requests of the cases and of the trips, every node of the model written, deleted and read, and generated
// configurations. The same each time.
const std::vector<Exchange> &golden_set();

}  // namespace sweep
