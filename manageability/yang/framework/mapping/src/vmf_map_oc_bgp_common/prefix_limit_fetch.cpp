// The prefix limit of a family, from the candidate configuration. The native limit and its threshold stand together, so
// that a removal of the threshold alone writes the limit once more.
#include <cstdio>
#include <cstring>

#include "database_query.h"
#include "forms.h"

static constexpr size_t decoding_context_size = 288;
static constexpr size_t value_size = sizeof "4294967295" + 1;

// What a record is unpacked with, and into. The first is not otherwise used.
struct Unpacking {
    void *result_set;
    void *context;
};

static uint32_t unpack(MapContext *ctx, const Query *query, Unpacking *unpacking, char **value, const At &at)
{
    unpacking->result_set = kos_named_calloc_(1, 32, "Sysdb backend result set", 0);
    if (unpacking->result_set == nullptr) {
        VMF_ERR(ctx, at, "Cannot allocate sysdb backend result set.");
        return VMF_RC_NO_MEMORY;
    }
    unpacking->context = kos_named_calloc_(1, decoding_context_size, "SysDB backend pack decoding context", 0);
    if (unpacking->context == nullptr) return VMF_RC_NO_MEMORY;

    void *tuple = nullptr;
    uint32_t count = 0;
    if (uint32_t bad = me_bk_sysdb_packed_data_unpack(query->result->packed_data, &tuple, &count, unpacking->context)) {
        VMF_ERR(ctx, at, "Cannot unpack SysDB packed tuple.");
        return bad;
    }
    *value = static_cast<char *>(kos_named_calloc_(1, value_size, "max-prefix", 0));
    if (*value == nullptr) {
        VMF_ERR(ctx, at, "Failed to allocate memory for max-prefix.");
        return VMF_RC_NO_MEMORY;
    }
    uint32_t limit = 0;
    std::memcpy(&limit, unpacking->context, sizeof limit);
    std::snprintf(*value, value_size, "%zu", static_cast<size_t>(limit));
    return VMF_RC_OK;
}

static uint32_t read_limit(MapContext *ctx, const Query *query, char **value, const At &at)
{
    Unpacking unpacking = {};
    const uint32_t outcome = unpack(ctx, query, &unpacking, value, at);
    kos_named_free(unpacking.result_set);
    kos_named_free(unpacking.context);
    return outcome;
}

// The first item that is a limit wins.
static uint32_t first_limit(MapContext *ctx, Query *query, char **value, const At &at)
{
    for (;;) {
        if (uint32_t bad = next_result(ctx, query, at)) return bad;
        uint32_t outcome = locate_result(ctx, query, at);
        const bool is_limit = outcome == VMF_RC_OK && std::strstr(query->location, "/max-prefix") != nullptr;
        if (is_limit) outcome = read_limit(ctx, query, value, at);
        free_result(query);
        if (outcome != VMF_RC_OK || is_limit) return outcome;
    }
}

static uint32_t find_limit(MapContext *ctx, Query *query, const char *path, char **value, const At &at)
{
    if (uint32_t bad = get_backend_session(ctx->req_ctx, &query->session, ctx)) {
        VMF_ERR(ctx, at, "Failed to get backend session context: %s!", cerr_strerror(bad));
        return bad;
    }
    uint32_t outcome = sysdb_backend_find_data(query->session, path, SYSDB_FIND_FLAGS, &query->result_set, 1);
    if (query->result_set == nullptr) outcome = SYSDB_NOTHING_FOUND;
    if (outcome != VMF_RC_OK) {
        VMF_TRC(ctx, at, "sysdb_backend_find_data failed: %s!", cerr_strerror(outcome));
        return outcome;
    }
    return first_limit(ctx, query, value, at);  // on purpose: without a start of the iteration
}

extern "C" uint32_t get_zr_cfg_bgp_prefix_limit_from_sysdb(MapContext *ctx, const char *path, char **value)
{
    log_start(ctx);
    Query query = {};
    const uint32_t outcome = find_limit(ctx, &query, path, value, here());
    sysdb_backend_result_set_iterate_finish(query.result_set);
    return log_end(ctx, outcome);
}

static uint32_t add_limit(MapContext *ctx, const char *value, const char *ns, const At &at)
{
    if (value == nullptr) return VMF_RC_OK;
    VMF_TRC(ctx, at, "Setting the max-prefix value to %s", value);
    Native limit = af("maximum-prefixes/prefix-limit");
    limit.ns = ns;
    return add(ctx, nullptr, limit, {value, nullptr});
}

extern "C" uint32_t vmf_map_oc_bgp_populate_prefixlimit_config_maxprefixes_from_candidate(MapContext *ctx,
                                                                                          const char *path_format,
                                                                                          const char *family_code,
                                                                                          const char *ns)
{
    log_start(ctx);
    char path[512] = {};
    // The neighbor's own path has left the AS here; the halves are written signed, as the database has them.
    std::snprintf(path, sizeof path, path_format, static_cast<int>(ctx->as_high), static_cast<int>(ctx->as_low),
                  ctx->af_key != nullptr ? ctx->af_key : "", family_code);
    char *value = nullptr;
    if (uint32_t bad = get_zr_cfg_bgp_prefix_limit_from_sysdb(ctx, path, &value)) {
        VMF_ERR(ctx, here(), "Failed to get the value for max-prefix from the candidate config.");
        return log_end(ctx, bad);
    }
    const uint32_t outcome = add_limit(ctx, value, ns, here());
    kos_named_free(value);
    return log_end(ctx, outcome);
}
