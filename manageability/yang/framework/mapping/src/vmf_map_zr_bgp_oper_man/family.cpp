// The router's address families: the sums of paths and prefixes.
#include <cstdlib>

#include "../vmf_map_oc_bgp_common/response_forms.h"
#include "../vmf_map_oc_bgp_common/zr_handlers.h"

ZR_OPER_LEAF(_instances_instance_instancename) { return silent(ctx, node, mapped); }

// ---- af-name --------------------------------------------------------------------------------

static uint32_t make_entry(MapContext *ctx, Datatree *mapped, const char *name, Datatree **entry, const At &at)
{
    Datatree *families = nullptr;
    if (uint32_t bad = write_text(ctx, mapped, oc("/bgp/global/afi-safis"), nullptr, &families)) {
        VMF_ERR(ctx, at, "Failed create global afi-safis container for afi - %s", name);
        return bad;
    }
    if (uint32_t bad =
            vmf_map_datatree_add_list_node(ctx, families, "afi-safi", OC_BGP_NS, "afi-safi-name", name, entry)) {
        VMF_ERR(ctx, at, "Failed create global afi-safi-name - %s", name);
        return bad;
    }
    if (uint32_t bad = vmf_map_datatree_add_path(ctx, *entry, "afi-safi-name", OC_BGP_NS, name, nullptr, nullptr, 0))
        return bad;
    return vmf_map_datatree_add_data_ns(ctx, *entry, "afi-safi/afi-safi-name", OC_BGP_TYPES_NS);
}

static uint32_t enter_family(MapContext *ctx, const Datatree *node, Datatree *mapped, const At &at)
{
    RequestContext *request = ctx->request;
    if (request->af_prefixes_wanted == 0 && request->af_paths_wanted == 0) {
        VMF_TRC(ctx, at, "Mapping is not needed.");
        return VMF_RC_OK;
    }
    const char *name = vmf_map_af_name(value_of(node), 0, nullptr);
    if (name == nullptr) {
        VMF_ERR(ctx, at, "Unable to map afi-safi name '%s' - SKIP1 this AFI", shown(value_of(node)));
        ctx->list_node = nullptr;
        ctx->af_key = nullptr;
        request->oper_af_matched = nullptr;
        return VMF_RC_OK;
    }
    Datatree *entry = nullptr;
    if (uint32_t bad = make_entry(ctx, mapped, name, &entry, at)) return bad;
    ctx->list_node = entry;
    request->oper_af_matched = entry;
    ctx->af_key = name;
    return VMF_RC_OK;
}

ZR_OPER_LEAF(_instances_instance_instanceactive_defaultvrf_afs_af_afname)
{
    if (uint32_t bad = enter(ctx, node, mapped)) return bad;
    return log_end(ctx, enter_family(ctx, node, mapped, here()));
}

// ---- Totals ---------------------------------------------------------------------------------

struct Total {
    uint32_t Ctx::*sum;
    uint32_t Req::*globally, Req::*of_family;  // where it is wanted
    const char *leaf;
};

static constexpr Total prefixes = {&Ctx::total_prefixes, &Req::global_prefixes_wanted, &Req::af_prefixes_wanted,
                                   "total-prefixes"};
static constexpr Total paths = {&Ctx::total_paths, &Req::global_paths_wanted, &Req::af_paths_wanted, "total-paths"};

static uint32_t write_below(MapContext *ctx, Datatree *state, const char *leaf, const char *text)
{
    return vmf_map_datatree_add_path(ctx, state, leaf, OC_BGP_NS, text, nullptr, nullptr, 0);
}

// The router's leaf is written anew with each family, and ends as the sum over all of them.
static uint32_t write_total(MapContext *ctx, Datatree *mapped, const Total &total, const char *sum, const char *own)
{
    const RequestContext *request = ctx->request;
    if (!wants_state(ctx)) return VMF_RC_OK;
    Datatree *state = nullptr;
    if (request->*total.globally != 0) {
        if (uint32_t bad = write_text(ctx, mapped, oc("/bgp/global/state"), nullptr, &state)) return bad;
        if (uint32_t bad = write_below(ctx, state, total.leaf, sum)) return bad;
    }
    if (request->*total.of_family == 0) return VMF_RC_OK;
    if (uint32_t bad = write_text(ctx, mapped, oc_list("state"), nullptr, &state)) return bad;
    return write_below(ctx, state, total.leaf, own);
}

static uint32_t add_to_total(MapContext *ctx, Datatree *node, Datatree *mapped, const Total &total,
                             const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    ctx->*total.sum += static_cast<uint32_t>(number_of(value_of(node)));
    char sum[11];
    itoa(ctx->*total.sum, sum, 10);
    return log_end(ctx, write_total(ctx, mapped, total, sum, value_of(node)), at);
}

// A family that has no entry of its own yet takes the one that its name matched.
static uint32_t total_leaf(MapContext *ctx, Datatree *node, Datatree *mapped, const Total &total, VmfLeafHandler *body,
                           const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    if (ctx->request->*total.of_family != 0 && ctx->list_node == nullptr) {
        ctx->list_node = ctx->request->oper_af_matched;
        if (ctx->list_node == nullptr) {
            VMF_ERR(ctx, at, "List node is not available!");
            return log_end(ctx, VMF_RC_OK, at);
        }
    }
    return log_end(ctx, body(ctx, node, mapped), at);
}

// clang-format off
ZR_OPER_MAN_LEAF(_instances_instance_instanceactive_defaultvrf_afs_af_globalafprocessinfo_global_scanprefixes) { return add_to_total(ctx, node, mapped, prefixes); }
ZR_OPER_MAN_LEAF(_instances_instance_instanceactive_defaultvrf_afs_af_afprocessinfo_global_pathsnum)           { return add_to_total(ctx, node, mapped, paths); }

ZR_OPER_LEAF(_instances_instance_instanceactive_defaultvrf_afs_af_globalafprocessinfo_global_scanprefixes)
{
    return total_leaf(ctx, node, mapped, prefixes, vmf_map_man_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_afs_af_globalafprocessinfo_global_scanprefixes);
}
ZR_OPER_LEAF(_instances_instance_instanceactive_defaultvrf_afs_af_afprocessinfo_global_pathsnum)
{
    return total_leaf(ctx, node, mapped, paths, vmf_map_man_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_afs_af_afprocessinfo_global_pathsnum);
}
// clang-format on
