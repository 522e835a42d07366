// The root, `global`, its `config` and `state`, the confederation and graceful restart.
#include <cstddef>
#include <cstdlib>
#include <span>

#include "../vmf_map_oc_bgp_common/forms.h"
#include "../vmf_map_oc_bgp_common/oc_handlers.h"

// ---- bgp ------------------------------------------------------------------------------------

// Each walk starts with a clean block of selection flags. The words around the block live as long as the request.
static void clear_selection(RequestContext *request)
{
    static_assert(offsetof(RequestContext, key_leaf_named) - offsetof(RequestContext, glb_af_no_config) ==
                  10 * sizeof(uint32_t));
    request->glb_af_no_config = 0;
    request->glb_af_no_state = 0;
    request->nbr_no_config = 0;
    request->nbr_no_state = 0;
    request->nbr_af_no_config = 0;
    request->nbr_af_no_state = 0;
    request->grp_no_config = 0;
    request->grp_no_state = 0;
    request->grp_af_no_config = 0;
    request->grp_af_no_state = 0;
    request->key_leaf_named = 0;
}

static uint32_t select_all(MapContext *ctx, Datatree *node, Datatree *out)
{
    if (uint32_t bad = vmf_map_cont_oc_bgp_global(ctx, node, 0, out)) return bad;
    if (uint32_t bad = vmf_map_cont_oc_bgp_neighbors(ctx, node, 0, out)) return bad;
    return vmf_map_cont_oc_bgp_peergroups(ctx, node, 0, out);
}

static uint32_t map_bgp(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out)
{
    const Branch branch = branch_of(ctx, node);
    if (branch == Branch::read) {
        if (uint32_t bad = add(ctx, out, cfg(ZR_BGP_FOUR_BYTE_AS), selection_only)) return bad;
        return subtree_count == 0 && is_get(ctx) ? select_all(ctx, node, out) : uint32_t{VMF_RC_OK};
    }
    // A replace of the root has the whole instance as its target.
    if (branch == Branch::remove || vmf_map_is_request_replace(node) != 0)
        return add(ctx, out, cfg(ZR_BGP_INSTANCE), from_node(node));
    return add(ctx, out, cfg(ZR_BGP_FOUR_BYTE_AS), from_node(node));
}

OC_CONT()
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    clear_selection(ctx->request);
    const uint32_t outcome = map_bgp(ctx, node, subtree_count, out);
    if (outcome == VMF_RC_OK && subtree_count == 0) {
        VMF_TRC(ctx, here(), "No subtrees");
        raise_flags(ctx, {&Req::global_as_named, &Ctx::as_written});
    }
    return log_end(ctx, outcome);
}

// ---- global ---------------------------------------------------------------------------------

static uint32_t map_global(MapContext *ctx, Datatree *node, Datatree *out)
{
    switch (branch_of(ctx, node)) {
    case Branch::read: break;
    case Branch::remove: return add(ctx, out, cfg(ZR_BGP_INSTANCE), from_node(node));
    case Branch::write: return add(ctx, out, cfg(ZR_BGP_GLOBAL), selection_only);
    }
    if (uint32_t bad = add(ctx, out, cfg(ZR_BGP_GLOBAL), selection_only)) return bad;
    if (!is_get(ctx)) return VMF_RC_OK;
    if (uint32_t bad = vmf_map_cont_oc_bgp_global_state(ctx, node, 0, out)) return bad;
    return vmf_map_cont_oc_bgp_global_afisafis(ctx, node, 0, out);
}

OC_CONT(_global)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    if (!maps_itself(ctx, subtree_count, here())) {  // the children name the sums that they want
        RequestContext *request = ctx->request;
        request->global_prefixes_wanted = 0;
        request->af_prefixes_wanted = 0;
        request->global_paths_wanted = 0;
        request->af_paths_wanted = 0;
        return log_end(ctx, VMF_RC_OK);
    }
    const uint32_t outcome = map_global(ctx, node, out);
    if (outcome == VMF_RC_OK) raise_flags(ctx, {&Req::global_as_named, &Ctx::as_written});
    return log_end(ctx, outcome);
}

// ---- global/config --------------------------------------------------------------------------

static uint32_t map_global_config(MapContext *ctx, Datatree *node, Datatree *out)
{
    switch (branch_of(ctx, node)) {
    case Branch::read: break;
    // The AS number goes with its container, and with the AS the whole of BGP.
    case Branch::remove: return add(ctx, out, cfg(ZR_BGP_INSTANCE), from_node(node));
    case Branch::write: return VMF_RC_OK;
    }
    dropped(add(ctx, out, cfg(ZR_BGP_AS), selection_only));
    dropped(add(ctx, out, cfg(ZR_BGP_FOUR_BYTE_AS "/as"), selection_only));
    const uint32_t outcome = add(ctx, out, cfg(ZR_BGP_GLOBAL "/router-id"), selection_only);
    if (outcome == VMF_RC_OK) ctx->request->global_as_named = 1;
    return outcome;
}

OC_CONT(_global_config)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    if (!maps_itself(ctx, subtree_count, here())) return log_end(ctx, VMF_RC_OK);
    const uint32_t outcome = map_global_config(ctx, node, out);
    ctx->as_written = 1;
    return log_end(ctx, outcome);
}

// A set of the AS is a four-byte AS in the low half; the rest of the request has its AS without asking the database.
static void keep_as(MapContext *ctx, const Datatree *node)
{
    if (!has_value(node)) return;
    ctx->as_written = 1;
    if (node->value == nullptr) return;
    ctx->as_high = 0;
    ctx->as_low = static_cast<uint32_t>(std::strtol(node->value, nullptr, 10));
}

static uint32_t select_as(MapContext *ctx, Datatree *out)
{
    dropped(add(ctx, out, cfg(ZR_BGP_AS), selection_only));
    dropped(add(ctx, out, cfg(ZR_BGP_FOUR_BYTE_AS "/as"), selection_only));
    return add(ctx, out, cfg(ZR_BGP_FOUR_BYTE_AS "/bgp-running"), selection_only);
}

static void say_all_goes(MapContext *ctx, const At &at)
{
    VMF_TRC(ctx, at, "Deleting AS. This will be deleting entire BGP config.");
}

static uint32_t remove_as(MapContext *ctx, Datatree *node, Datatree *out, const At &at)
{
    const uint32_t outcome = add(ctx, out, cfg(ZR_BGP_INSTANCE), from_node(node));
    ctx->as_written = 1;
    say_all_goes(ctx, at);  // in the place of the low half
    say_all_goes(ctx, at);  // in the place of `bgp-running`
    return outcome;
}

static uint32_t write_as(MapContext *ctx, Datatree *node, Datatree *out)
{
    dropped(add(ctx, out, cfg(ZR_BGP_AS), constant("0", node)));
    keep_as(ctx, node);
    dropped(add(ctx, out, cfg(ZR_BGP_FOUR_BYTE_AS "/as"), with_value(node)));
    return add(ctx, out, cfg(ZR_BGP_FOUR_BYTE_AS "/bgp-running"), from_node(node));
}

static uint32_t map_as(MapContext *ctx, Datatree *node, Datatree *out, const At &at)
{
    switch (branch_of(ctx, node)) {
    case Branch::read: return select_as(ctx, out);
    case Branch::remove: return remove_as(ctx, node, out, at);
    case Branch::write: return write_as(ctx, node, out);
    }
    return VMF_RC_OK;
}

OC_LEAF(_global_config_as)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    const uint32_t outcome = map_as(ctx, node, out, here());
    if (outcome == VMF_RC_OK) ctx->request->global_as_named = 1;
    return log_end(ctx, outcome);
}

// ---- global/state ---------------------------------------------------------------------------

static uint32_t select_state(MapContext *ctx, Datatree *node, Datatree *out)
{
    if (uint32_t bad = vmf_map_leaf_oc_bgp_global_state_as(ctx, node, out)) return bad;
    if (uint32_t bad = vmf_map_leaf_oc_bgp_global_state_routerid(ctx, node, out)) return bad;
    if (uint32_t bad = vmf_map_leaf_oc_bgp_global_state_totalpaths(ctx, node, out)) return bad;
    return vmf_map_leaf_oc_bgp_global_state_totalprefixes(ctx, node, out);
}

OC_CONT(_global_state)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    if (!maps_itself(ctx, subtree_count, here())) return log_end(ctx, VMF_RC_OK);
    raise_flags(ctx, {&Ctx::oper_wanted_in_state, &Req::oper_wanted});
    return log_end(ctx, select_state(ctx, node, out));
}

OC_MAN_LEAF(_global_state_as)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    const uint32_t outcome = select_as(ctx, out);
    if (outcome == VMF_RC_OK) ctx->request->global_as_named = 1;
    return log_end(ctx, outcome);
}

OC_MAN_LEAF(_global_state_routerid) { return state_leaf(ctx, node, out, {cfg(ZR_BGP_GLOBAL "/router-id")}); }

// The sums lie in the operational model, one for each family, and are added up on the way back. The list is keyed with
// the family's word of the configuration.
static uint32_t select_sums(MapContext *ctx, Datatree *out, const char *leaf)
{
    Datatree *families = nullptr;
    if (uint32_t bad = vmf_map_zr_bgp_opr_add_path(ctx, out, ZR_BGP_OPER_DEFAULT_VRF "/afs", ZR_BGP_OPER_NS, nullptr,
                                                   nullptr, &families, 0))
        return bad;
    for (const auto &names : oc_zr_af_names) {
        Datatree *family = nullptr;
        if (uint32_t bad =
                vmf_map_zr_bgp_opr_add_path(ctx, families, "af", ZR_BGP_OPER_NS, nullptr, nullptr, &family, 1))
            return bad;
        if (uint32_t bad =
                vmf_map_zr_bgp_opr_add_path(ctx, family, "af-name", ZR_BGP_OPER_NS, names[1], nullptr, nullptr, 0))
            return bad;
        if (uint32_t bad = vmf_map_zr_bgp_opr_add_path(ctx, family, leaf, ZR_BGP_OPER_NS, nullptr, nullptr, nullptr, 0))
            return bad;
    }
    return VMF_RC_OK;
}

static uint32_t sum_leaf(MapContext *ctx, Datatree *node, Datatree *out, uint32_t Req::*wanted, const char *leaf,
                         const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    if (!is_read(ctx)) return log_end(ctx, VMF_RC_OK, at);
    ctx->request->*wanted = 1;
    return log_end(ctx, select_sums(ctx, out, leaf), at);
}

// clang-format off
OC_MAN_LEAF(_global_state_totalpaths)    { return sum_leaf(ctx, node, out, &Req::global_paths_wanted, "af-process-info/global/paths-num"); }
OC_MAN_LEAF(_global_state_totalprefixes) { return sum_leaf(ctx, node, out, &Req::global_prefixes_wanted, "global-af-process-info/global/scan-prefixes"); }

//                                                                        body                                               raises
OC_LEAF(_global_state_as)            { return flagging_leaf(ctx, node, out, vmf_map_man_leaf_oc_bgp_global_state_as,            {&Ctx::oper_wanted_in_state}); }
OC_LEAF(_global_state_routerid)      { return flagging_leaf(ctx, node, out, vmf_map_man_leaf_oc_bgp_global_state_routerid,      {&Ctx::oper_wanted_in_state}); }
OC_LEAF(_global_state_totalpaths)    { return flagging_leaf(ctx, node, out, vmf_map_man_leaf_oc_bgp_global_state_totalpaths,    {&Req::oper_wanted}); }
OC_LEAF(_global_state_totalprefixes) { return flagging_leaf(ctx, node, out, vmf_map_man_leaf_oc_bgp_global_state_totalprefixes, {&Req::oper_wanted}); }
// clang-format on
