// The records of one request, zeroed and linked as the mapping wants them handed over.
#pragma once

#include <cstdint>

#include "system_database.h"
#include "trace.h"
#include "vmf_map_types.h"

namespace framework {

struct Contexts {
    // `database` answers the request's queries, `log` hears what the mapping says; both outlive the contexts. `kind` is
    // one of VMF_REQ_..., or any other number, which the mapping takes as an edit.
    Contexts(uint32_t kind, const platform::Database &database, platform::Log &log);
    ~Contexts();
    Contexts(const Contexts &) = delete;
    Contexts &operator=(const Contexts &) = delete;

    // The record of a mapping run: every entry of the mapping gets a fresh one.
    MapContext fresh_run();

    platform::Sessions sessions;
    VmfContext vmf = {};
    VmfRequestMessage message = {};
    VmfReqContext req = {};
    VmfRequestInfo info = {};
    RequestContext request = {};
};

}  // namespace framework
