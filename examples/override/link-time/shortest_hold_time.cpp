// A hold time is zero, which switches keepalives off, or at least three seconds (RFC 4271, 4.2). The generated default
// hands any number on to the router. These handlers take its place, for neighbors and for peer groups: they refuse what
// lies between, and leave all else to the default, which stays there under the name with two underscores.
#include <cstdlib>

#include "vmf_map_oc_bgp_handlers.h"
#include "vmf_map_trace.h"

static bool is_refused(const MapContext *ctx, const Datatree *node)
{
    const uint32_t kind = ctx->request->request_info->kind;
    if (kind == VMF_REQ_GET || kind == VMF_REQ_GET_CONFIG) return false;  // a read has no value to judge
    if (vmf_map_is_request_delete(node) != 0 || (node->present[0] & VMF_DT_VALUE) == 0) return false;
    const double seconds = std::strtod(node->value, nullptr);
    return seconds != 0 && seconds < 3;
}

// `at` is the place of the handler, so that the log names it and not this function.
static uint32_t refuse_or_map(MapContext *ctx, Datatree *node, Datatree *out, VmfLeafHandler *map, At at = here())
{
    log_start(ctx, at);
    if (node != nullptr && is_refused(ctx, node)) {
        VMF_ERR(ctx, at, "A hold time of %s seconds is neither 0 nor at least 3", node->value);
        return log_end(ctx, VMF_RC_BAD_ARGS, at);
    }
    return log_end(ctx, map(ctx, node, out), at);
}

extern "C" uint32_t vmf_map_leaf_oc_bgp_neighbors_neighbor_timers_config_holdtime(MapContext *ctx, Datatree *node,
                                                                                  Datatree *out)
{
    return refuse_or_map(ctx, node, out, __vmf_map_leaf_oc_bgp_neighbors_neighbor_timers_config_holdtime);
}

extern "C" uint32_t vmf_map_leaf_oc_bgp_peergroups_peergroup_timers_config_holdtime(MapContext *ctx, Datatree *node,
                                                                                    Datatree *out)
{
    return refuse_or_map(ctx, node, out, __vmf_map_leaf_oc_bgp_peergroups_peergroup_timers_config_holdtime);
}
