#include "database_query.h"

uint32_t next_result(MapContext *ctx, Query *query, const At &at)
{
    uint32_t outcome = sysdb_backend_result_set_iterate_next(query->session, query->result_set, &query->result);
    if (outcome == SYSDB_END_OF_PART) {
        outcome = sysdb_backend_result_set_iterate_next_part(query->session, query->result_set);
        if (outcome != VMF_RC_OK) {
            VMF_ERR(ctx, at, "sysdb_backend_result_set_iterate_next_part failed: %s!", cerr_strerror(outcome));
            return outcome;
        }
        outcome = sysdb_backend_result_set_iterate_next(query->session, query->result_set, &query->result);
    }
    if (outcome != VMF_RC_OK) {
        VMF_ERR(ctx, at, "sysdb_backend_result_set_iterate_next failed: %s!", cerr_strerror(outcome));
        return outcome;
    }
    return query->result != nullptr ? VMF_RC_OK : static_cast<uint32_t>(SYSDB_NOTHING_FOUND);
}

uint32_t locate_result(MapContext *ctx, Query *query, const At &at)
{
    query->location = nullptr;
    uint32_t outcome = sysdb_backend_result_get_location(query->session, query->result, &query->location);
    if (query->location == nullptr) outcome = VMF_RC_BAD_TREE;
    if (outcome != VMF_RC_OK) VMF_ERR(ctx, at, "backend_result_get_location failed: %s!", cerr_strerror(outcome));
    return outcome;
}

void free_result(Query *query)
{
    sysdb_backend_result_free(query->result);
    query->result = nullptr;
}
