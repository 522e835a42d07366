// Sees what the framework hands to the entries of the mapping. The calls go on to the mapping.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "vmf_map_types.h"

struct EntryCall {
    std::string entry;                     // "request", "configuration", "operational"
    uint32_t kind;                         // of the request
    RequestContext request;                // as it stood before the call
    std::vector<unsigned char> run_bytes;  // of the records as they were handed over
    std::vector<unsigned char> request_bytes;
    const void *request_at;
    const Datatree *holder;  // of the mapped tree; null for a request
    int32_t skips = -1;      // `skip_subtree` as it was handed over
    int32_t skipped = -1;    // the same behind the call
    uint32_t outcome = 0;
};

// The calls since the last time; forgets them.
std::vector<EntryCall> take_entry_calls();

std::vector<std::string> names_of(const std::vector<EntryCall> &calls);
