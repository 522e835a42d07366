// Items of the system database that the mapping asks for.
#pragma once

#include "system_database.h"

namespace framework {

// The item that tells that BGP runs, and under which AS number: two halves, the low one holds the whole number.
platform::DatabaseRecord global_as_item(uint32_t as_high, uint32_t as_low);

}  // namespace framework
