// The session of a request in the system database, and the global AS number that stands in the candidate
// configuration. Native paths are keyed by that number, and a request for a neighbor never names it.
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "database_query.h"

// ---- The backend session --------------------------------------------------------------------

// No MapContext here: these lines speak through the framework's own debug context.
#define SESSION_ERR(vmf_ctx, ...)                                                                                      \
    VMF_STATEMENT_(vmf_ctx, &(vmf_ctx)->_debug_ctx, here(), 0, "ERR", err_filter, __VA_ARGS__)
#define SESSION_TRC(vmf_ctx, ...)                                                                                      \
    VMF_STATEMENT_(vmf_ctx, &(vmf_ctx)->_debug_ctx, here(), 3, "TRC", trc_filter, __VA_ARGS__)

static uint32_t exiting(const VmfContext *vmf_ctx, uint32_t outcome, const At &at)
{
    VMF_STATEMENT_(vmf_ctx, &vmf_ctx->_debug_ctx, at, 3, "TRC", trc_filter, "Exiting %s", at.function);
    return outcome;
}

extern "C" uint32_t get_backend_session(VmfReqContext *req_ctx, SysdbBackendSession **session, void * /*ignored*/)
{
    if (req_ctx == nullptr) return VMF_RC_BAD_ARGS;  // nothing to log through
    VmfContext *vmf_ctx = req_ctx->vmf_ctx;
    if (vmf_ctx == nullptr) assertion_failed(__FILE__, __LINE__, "NULL != req_ctx->vmf_ctx");
    if (lies_at_null(&vmf_ctx->_debug_ctx))
        assertion_failed(__FILE__, __LINE__, "NULL != (&((req_ctx->vmf_ctx)->_debug_ctx))");
    SESSION_TRC(vmf_ctx, "Entering %s", "get_backend_session");

    const VmfRequestMessage *message = req_ctx->request_message;
    if (message == nullptr || session == nullptr) {
        SESSION_ERR(vmf_ctx, "NULL argument(s) passed!");
        return VMF_RC_BAD_ARGS;
    }
    if ((message->present & VMF_REQUEST_HAS_SESSION_ID) == 0) {
        SESSION_ERR(vmf_ctx, "Missing session id in request!");
        return exiting(vmf_ctx, VMF_RC_BAD_ARGS, here());
    }
    const VmfSession *found = vmf_session_find(vmf_ctx, message->session_id);
    if (found == nullptr) {
        SESSION_ERR(vmf_ctx, "Session with id=%d not found!", static_cast<int>(message->session_id));
        return exiting(vmf_ctx, VMF_RC_BAD_ARGS, here());
    }
    SESSION_TRC(vmf_ctx, "This request belongs to session '%d'", static_cast<int>(message->session_id));
    if (found->me_session == nullptr || found->me_session->backend_sessions == nullptr) {
        SESSION_ERR(vmf_ctx, "NULL me_session or backend_sessions!");
        return exiting(vmf_ctx, VMF_RC_BAD_TREE, here());
    }
    *session = found->me_session->backend_sessions[0];
    return exiting(vmf_ctx, VMF_RC_OK, here());
}

// ---- The global AS number -------------------------------------------------------------------

// Reads a number that ends at a "/", and gives the text behind it; null if it is none.
static const char *read_half(const char *text, uint32_t *half)
{
    char *end = nullptr;
    errno = 0;
    *half = static_cast<uint32_t>(std::strtoul(text, &end, 10));
    if (errno != 0 || *end != '/') return nullptr;
    return end + 1;
}

static bool read_as(const Query *query, uint32_t *as_x, uint32_t *as_y)
{
    constexpr char instance[] = "default/";
    const char *text = std::strstr(query->location, instance);
    if (text == nullptr) return false;
    text = read_half(text + sizeof instance - 1, as_x);
    return text != nullptr && read_half(text, as_y) != nullptr;
}

// The first location that parses wins; one that does not is passed over.
static uint32_t first_as(MapContext *ctx, Query *query, uint32_t *as_x, uint32_t *as_y, const At &at)
{
    for (;;) {
        if (uint32_t bad = next_result(ctx, query, at)) return bad;
        const uint32_t outcome = locate_result(ctx, query, at);
        const bool parsed = outcome == VMF_RC_OK && read_as(query, as_x, as_y);
        free_result(query);
        if (outcome != VMF_RC_OK || parsed) return outcome;
    }
}

static uint32_t find_as(MapContext *ctx, Query *query, uint32_t *as_x, uint32_t *as_y, const At &at)
{
    if (query->session == nullptr || as_x == nullptr || as_y == nullptr) {
        VMF_ERR(ctx, at, "NULL argument(s) passed!");
        return VMF_RC_BAD_ARGS;
    }
    uint32_t outcome = sysdb_backend_find_data(query->session, "/cfg/gl/ip-bgp/default/.*/.*/gbl/edm/ord_a/running",
                                               SYSDB_FIND_FLAGS, &query->result_set, 1);
    if (query->result_set == nullptr) outcome = SYSDB_NOTHING_FOUND;
    if (outcome != VMF_RC_OK) {  // no failure of the mapping: a router without BGP has no AS
        VMF_TRC(ctx, at, "sysdb_backend_find_data failed: %s!", cerr_strerror(outcome));
        return outcome;
    }
    outcome = sysdb_backend_result_set_iterate_start(query->session, query->result_set);
    if (outcome != VMF_RC_OK) {
        VMF_ERR(ctx, at, "sysdb_backend_result_set_iterate_start failed: %s!", cerr_strerror(outcome));
        return outcome;
    }
    return first_as(ctx, query, as_x, as_y, at);
}

static uint32_t get_as_num_from_backend(MapContext *ctx, SysdbBackendSession *session, uint32_t *as_x, uint32_t *as_y)
{
    log_start(ctx);
    Query query = {session, nullptr, nullptr, nullptr};
    const uint32_t outcome = find_as(ctx, &query, as_x, as_y, here());
    sysdb_backend_result_set_iterate_finish(query.result_set);
    return log_end(ctx, outcome);
}

extern "C" uint32_t get_zr_cfg_bgp_as_num_from_sysdb(MapContext *ctx, uint32_t *as_x, uint32_t *as_y)
{
    log_start(ctx);
    if (ctx->req_ctx == nullptr || as_x == nullptr || as_y == nullptr) {
        VMF_ERR(ctx, here(), "NULL argument(s) passed!");
        return log_end(ctx, VMF_RC_BAD_ARGS);
    }
    if (ctx->as_low != 0) {
        *as_x = ctx->as_high;
        *as_y = ctx->as_low;
        return log_end(ctx, VMF_RC_OK);
    }
    SysdbBackendSession *session = nullptr;
    uint32_t outcome = get_backend_session(ctx->req_ctx, &session, ctx);
    if (outcome != VMF_RC_OK) {
        VMF_ERR(ctx, here(), "Failed to get ME backend session context: %s!", cerr_strerror(outcome));
    } else {
        VMF_TRC(ctx, here(), "Query global AS numbers from candidate config (merged view)...");
        outcome = get_as_num_from_backend(ctx, session, as_x, as_y);
    }
    if (outcome != VMF_RC_OK) {
        VMF_TRC(ctx, here(), "Global AS numbers not found!");
        return log_end(ctx, outcome);
    }
    VMF_TRC(ctx, here(), "Found Global AS numbers: as_x=%u, as_y=%u", *as_x, *as_y);
    ctx->as_high = *as_x;
    ctx->as_low = *as_y;
    return log_end(ctx, VMF_RC_OK);
}
