// Whether a family is activated for the neighbor or the group at hand. The framework and other mapping libraries ask;
// no handler does.
#include <cstdio>

#include "database_query.h"

static constexpr size_t path_size = 512;

struct Activation {
    const char *before_key;
    const char *behind_key;
};

static constexpr Activation of_neighbor = {"/ord_a/default/nbr/________/edm/ord_u/0x3/", "/________/ord_s/"};
static constexpr Activation of_group = {"/ord_a/default/nbr/________/edm/ord_q/0x2/________/", "/ord_s/"};

static void append_half(char *path, uint32_t half)
{
    char digits[12] = {};
    std::snprintf(digits, sizeof digits, "%u", half);
    strcat_s(path, path_size, digits);
}

// What does not fit is cut, and then finds nothing.
static void write_path(char *path, const Activation &activation, uint32_t as_x, uint32_t as_y, const char *key,
                       const char *code)
{
    strcpy_s(path, path_size, "/cfg/gl/ip-bgp/default/");
    append_half(path, as_x);
    strcat_s(path, path_size, "/");
    append_half(path, as_y);
    strcat_s(path, path_size, activation.before_key);
    strcat_s(path, path_size, key != nullptr ? key : "");
    strcat_s(path, path_size, activation.behind_key);
    strcat_s(path, path_size, code);
    strcat_s(path, path_size, "/ord_c/activate");
}

// On purpose: not the merged view, and a session that could not be had is passed on as it is.
static uint32_t is_found(MapContext *ctx, const char *path, const char *af_name, const At &at)
{
    SysdbBackendSession *session = nullptr;
    if (get_backend_session(ctx->req_ctx, &session, ctx) != VMF_RC_OK)
        VMF_ERR(ctx, at, "Failed to get ME backend session context");
    SysdbResultSet *result_set = nullptr;
    const uint32_t outcome = sysdb_backend_find_data(session, path, SYSDB_FIND_FLAGS, &result_set, 0);
    const bool found = outcome == VMF_RC_OK && result_set != nullptr;
    if (found)
        VMF_TRC(ctx, at, "af-name: %s is configured in datastore", af_name);
    else if (result_set != nullptr)
        VMF_TRC(ctx, at, "sysdb_backend_find_data failed");
    else
        VMF_TRC(ctx, at, "af-name:%s is NOT configured in datastore", af_name);
    sysdb_backend_result_set_iterate_finish(result_set);
    return found ? 1 : 0;
}

static uint32_t check_path(MapContext *ctx, char *path, const Activation &activation, const char *af_name,
                           uint32_t as_x, uint32_t as_y, const At &at)
{
    const char *code = vmf_map_get_af_value(af_name);
    if (code == nullptr) {
        VMF_ERR(ctx, at, "af_value is NULL");
        return 0;
    }
    write_path(path, activation, as_x, as_y, ctx->af_key, code);
    VMF_TRC(ctx, at, "af_value is : %s", code);
    VMF_TRC(ctx, at, "sysdb path to be verified is: %s", path);
    return is_found(ctx, path, af_name, at);
}

static uint32_t check(MapContext *ctx, const Activation &activation, const char *af_name, const At &at)
{
    if (af_name == nullptr) {
        VMF_ERR(ctx, at, "NULL argument(s) passed!");
        return 0;
    }
    uint32_t as_x = 0;
    uint32_t as_y = 0;
    if (get_zr_cfg_bgp_as_num_from_sysdb(ctx, &as_x, &as_y) != VMF_RC_OK) {
        VMF_ERR(ctx, at, "Error retreiving AS numbers");
        return 0;
    }
    auto *path = static_cast<char *>(kos_named_calloc_(1, path_size, "sysdb path", 0));
    if (path == nullptr) {
        VMF_ERR(ctx, at, "VMF map sysdb_path allocation failed");
        return 0;
    }
    const uint32_t found = check_path(ctx, path, activation, af_name, as_x, as_y, at);
    kos_named_free(path);
    return found;
}

extern "C" uint32_t check_zr_cfg_bgp_nbr_af(MapContext *ctx, const char *af_name)
{
    log_start(ctx);
    VMF_TRC(ctx, here(), "Entering check_zr_cfg_bgp_nbr_af");
    return log_end(ctx, check(ctx, of_neighbor, af_name, here()));
}

extern "C" uint32_t check_zr_cfg_bgp_nbr_grp_af(MapContext *ctx, const char *af_name)
{
    log_start(ctx);
    return log_end(ctx, check(ctx, of_group, af_name, here()));
}
