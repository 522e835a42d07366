// A query of the system database, and the steps that all queries share.
#pragma once

#include "vmf_map_oc_bgp.h"
#include "vmf_map_trace.h"

struct Query {
    SysdbBackendSession *session;
    SysdbResultSet *result_set;
    SysdbResult *result;
    const char *location;
};

// The next record. The end of a part is passed over once; a second one in a row is a failure. Outcome 2: there is none.
[[nodiscard]] uint32_t next_result(MapContext *ctx, Query *query, const At &at);

// Where the record lies.
[[nodiscard]] uint32_t locate_result(MapContext *ctx, Query *query, const At &at);

void free_result(Query *query);
