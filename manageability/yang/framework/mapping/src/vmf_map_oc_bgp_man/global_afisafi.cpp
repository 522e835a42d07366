// `global/afi-safis`. The key is converted where it stands: from its handler on, the request itself holds the native
// word.
#include <algorithm>
#include <cstring>
#include <iterator>

#include "../vmf_map_oc_bgp_common/forms.h"
#include "../vmf_map_oc_bgp_common/oc_handlers.h"

static constexpr Native families = cfg(ZR_BGP_GLOBAL_AFS);
static constexpr Native family = repeated(cfg(ZR_BGP_GLOBAL_AFS "/global-af"));
static constexpr Native oper_families = oper(ZR_BGP_OPER_DEFAULT_VRF "/afs/af");

static uint32_t select_totals(MapContext *ctx, Datatree *node, Datatree *out)
{
    if (uint32_t bad = vmf_map_leaf_oc_bgp_global_afisafis_afisafi_state_totalpaths(ctx, node, out)) return bad;
    return vmf_map_leaf_oc_bgp_global_afisafis_afisafi_state_totalprefixes(ctx, node, out);
}

// ---- afi-safis ------------------------------------------------------------------------------

static uint32_t read_families(MapContext *ctx, Datatree *node, Datatree *out)
{
    if (uint32_t bad = add(ctx, out, families, selection_only)) return bad;
    if (!is_get(ctx)) return VMF_RC_OK;
    ctx->oper_wanted_in_state = 1;
    Datatree *entry = nullptr;  // without a key: all families
    if (uint32_t bad = add(ctx, out, oper_families, selection_only, &entry)) return bad;
    ctx->oper_list_node = entry;
    return select_totals(ctx, node, out);
}

static uint32_t map_families(MapContext *ctx, Datatree *node, Datatree *out)
{
    if (!is_read(ctx)) return add(ctx, out, families, container_gives(ctx, node));
    const uint32_t outcome = read_families(ctx, node, out);
    ctx->request->glb_af_filter = 0;
    return outcome;
}

OC_CONT(_global_afisafis)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    uint32_t outcome = VMF_RC_OK;
    if (maps_itself(ctx, subtree_count, here())) outcome = map_families(ctx, node, out);
    ctx->request->global_afisafis_named = 1;
    return log_end(ctx, outcome);
}

// ---- The key --------------------------------------------------------------------------------

// The native families that keep global settings, by their rows in the name tables.
static bool has_global_settings(uint32_t row) { return row == 0 || row == 1 || row == 10 || row == 11; }

// Makes the native entry. A failing add is not reported: the steps behind it go on with the entry before.
static uint32_t enter_family(MapContext *ctx, Datatree *node, Datatree *out, const At &at)
{
    Datatree *entry = nullptr;
    if (add(ctx, out, family, selection_only, &entry) != VMF_RC_OK) return VMF_RC_OK;
    take_list_operation(ctx, entry);
    ctx->list_node = entry;
    ctx->af_key = value_of(node);
    return check_identity(ctx, node, at);
}

// Puts the native word in the place of the identity, in the request itself. A word that is native already comes back as
// the identity, which may be too long for its place.
static uint32_t convert_name(MapContext *ctx, Datatree *node, const At &at)
{
    char *name = has_value(node) ? node->value : nullptr;
    uint32_t row = UINT32_MAX;
    const char *converted = vmf_map_af_name(name, 1, &row);
    if (name != nullptr && converted != nullptr) {
        if (has_global_settings(row))
            ctx->request->glb_af_bitmap = vmf_map_set_bitmap(ctx->request->glb_af_bitmap, row);
        return vmf_safe_strncpy(name, std::strlen(name) + 1, converted, std::strlen(converted));
    }
    if (is_read(ctx)) {
        VMF_TRC(ctx, at, "An empty tag passed.");
        return VMF_RC_OK;
    }
    VMF_ERR(ctx, at, "Unknown tag '%s' found!", shown(name));
    return VMF_RC_UNSUPPORTED;
}

static uint32_t select_operational_family(MapContext *ctx, Datatree *node, Datatree *out)
{
    Datatree *entry = nullptr;
    if (uint32_t bad = add(ctx, out, repeated(oper_families), selection_only, &entry)) return bad;
    ctx->oper_list_node = entry;
    ctx->oper_key = value_of(node);
    if (uint32_t bad = add(ctx, out, oper_list("af-name"), {value_of(node), nullptr})) return bad;
    if (ctx->list_child_count != 1) return VMF_RC_OK;
    raise_flags(ctx, {&Ctx::oper_wanted_in_state, &Req::oper_wanted});  // the key alone asks for everything
    return select_totals(ctx, node, out);
}

static uint32_t name_family(MapContext *ctx, Datatree *node, Datatree *out)
{
    if (!is_read(ctx)) return add(ctx, out, list("af-name"), with_value(node));
    if (uint32_t bad = add(ctx, out, list("af-name"), {value_of(node), nullptr})) return bad;
    return is_get(ctx) ? select_operational_family(ctx, node, out) : uint32_t{VMF_RC_OK};
}

OC_LEAF(_global_afisafis_afisafi_afisafiname)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    if (uint32_t bad = enter_family(ctx, node, out, here())) return log_end(ctx, bad);
    if (convert_name(ctx, node, here()) != VMF_RC_OK) {
        VMF_ERR(ctx, here(), "Failed to convert afi-safi-name '%s'!", shown(value_of(node)));
        return log_end(ctx, refuse_tag(ctx, "afi-safi-name"));
    }
    return log_end(ctx, name_family(ctx, node, out));
}

// ---- config ---------------------------------------------------------------------------------

static uint32_t map_config(MapContext *ctx, Datatree *node, Datatree *out)
{
    switch (branch_of(ctx, node)) {
    case Branch::read: return add(ctx, out, list("enable"), selection_only);
    case Branch::remove:  // the native entry goes as a whole
        if (ctx->list_node != nullptr) set_operation(ctx->list_node, VMF_OP_DELETE);
        break;
    case Branch::write: break;
    }
    return VMF_RC_OK;
}

OC_CONT(_global_afisafis_afisafi_config)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    uint32_t outcome = VMF_RC_OK;
    if (maps_itself(ctx, subtree_count, here())) outcome = map_config(ctx, node, out);
    ctx->request->glb_af_no_state = 1;
    return log_end(ctx, outcome);
}

static uint32_t repeat_name(MapContext *ctx, Datatree *node, Datatree *out, const At &at)
{
    if (uint32_t bad = check_identity(ctx, node, at)) return bad;
    return repeat_key(ctx, node, out, &Ctx::list_node, {list("af-name"), list("enable")},
                      {&Req::key_leaf_named, &Req::af_name_leaf_named}, at);
}

OC_LEAF(_global_afisafis_afisafi_config_afisafiname)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    return log_end(ctx, repeat_name(ctx, node, out, here()));
}

// On purpose: "false" is dropped, and the family stays as it is; only a delete switches it off.
static uint32_t write_enabled(MapContext *ctx, Datatree *node, Datatree *out)
{
    const char *value = value_of(node);
    const bool is_true =
        value != nullptr && (vmf_map_do_these_match(value, "TRUE") != 0 || vmf_map_do_these_match(value, "true") != 0);
    return is_true ? add(ctx, out, list("enable"), from_node(node)) : uint32_t{VMF_RC_OK};
}

static uint32_t map_enabled(MapContext *ctx, Datatree *node, Datatree *out)
{
    switch (branch_of(ctx, node)) {
    case Branch::read: ctx->request->glb_af_no_config = 1; return add(ctx, out, list("enable"), selection_only);
    case Branch::remove: return add(ctx, out, list("enable"), from_node(node));
    case Branch::write: break;
    }
    return write_enabled(ctx, node, out);
}

OC_LEAF(_global_afisafis_afisafi_config_enabled)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    return log_end(ctx, map_enabled(ctx, node, out));
}

// ---- state ----------------------------------------------------------------------------------

static uint32_t select_state(MapContext *ctx, Datatree *node, Datatree *out)
{
    if (uint32_t bad = vmf_map_leaf_oc_bgp_global_afisafis_afisafi_state_afisafiname(ctx, node, out)) return bad;
    if (uint32_t bad = vmf_map_leaf_oc_bgp_global_afisafis_afisafi_state_enabled(ctx, node, out)) return bad;
    return select_totals(ctx, node, out);
}

OC_CONT(_global_afisafis_afisafi_state)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    uint32_t outcome = VMF_RC_OK;
    if (maps_itself(ctx, subtree_count, here())) {
        outcome = select_state(ctx, node, out);
        raise_flags(ctx, {&Ctx::oper_wanted_in_state, &Req::oper_wanted});
    }
    ctx->request->glb_af_no_config = 1;
    return log_end(ctx, outcome);
}

OC_LEAF(_global_afisafis_afisafi_state_afisafiname)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    if (uint32_t bad = check_identity(ctx, node, here())) return log_end(ctx, bad);
    const uint32_t outcome = add(ctx, out, list("af-name"), selection_only);
    raise_flags(ctx, {&Req::key_leaf_named, &Req::af_name_leaf_named, &Ctx::oper_wanted_in_state});
    return log_end(ctx, outcome);
}

// ---- use-multiple-paths ---------------------------------------------------------------------

static uint32_t select_multipath_state(MapContext *ctx, Datatree *out)
{
    const uint32_t outcome = add_all(ctx, out, {list("ebgp"), list("ibgp")}, selection_only);
    if (outcome == VMF_RC_OK) ctx->request->af_multipath_state_named = 1;
    return outcome;
}

OC_CONT(_global_afisafis_afisafi_usemultiplepaths)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    uint32_t outcome = VMF_RC_OK;
    if (maps_itself(ctx, subtree_count, here())) {
        dropped(add(ctx, out, list("ebgp"), container_gives(ctx, node)));
        outcome = add(ctx, out, list("ibgp"), container_gives(ctx, node));
    }
    raise_flags(ctx, {&Req::glb_af_no_config, &Req::glb_af_no_state});
    return log_end(ctx, outcome);
}

OC_CONT(_global_afisafis_afisafi_usemultiplepaths_state)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    if (!maps_itself(ctx, subtree_count, here())) return log_end(ctx, VMF_RC_OK);
    return log_end(ctx, select_multipath_state(ctx, out));
}

OC_LEAF(_global_afisafis_afisafi_usemultiplepaths_state_enabled)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    return log_end(ctx, select_multipath_state(ctx, out));
}

// ---- maximum-paths --------------------------------------------------------------------------

struct MaximumPaths {
    Native block, value;
    Native companions[3];
};

static constexpr MaximumPaths external = {
    list("ebgp"),
    list("ebgp/paths-value"),
    {list("ebgp/unequal-cost"), list("ebgp/selective"), list("ebgp/order-by-igp-metric")}};
static constexpr MaximumPaths internal = {
    list("ibgp"),
    list("ibgp/paths-value"),
    {list("ibgp/unequal-cost"), list("ibgp/selective"), list("ibgp/order-by-igp-metric")}};

// Holds for every kind of request, reads too. The key's handler has left the native word; a key that was not converted
// is none of these.
static bool may_have_multipath(const MapContext *ctx)
{
    constexpr const char *allowed[] = {"ipv4-unicast", "ipv6-unicast", "ipv4-multicast", "ipv6-multicast"};
    return ctx->af_key != nullptr && std::any_of(std::begin(allowed), std::end(allowed), [ctx](const char *each) {
               return vmf_map_do_these_match(ctx->af_key, each) != 0;
           });
}

static uint32_t refuse_family(MapContext *ctx, const At &at)
{
    VMF_ERR(ctx, at, "Operation not allowed for AF '%s'", shown(ctx->af_key));
    return VMF_RC_UNSUPPORTED;
}

static uint32_t map_maximum(MapContext *ctx, Datatree *node, Datatree *out, const MaximumPaths &paths)
{
    switch (branch_of(ctx, node)) {
    case Branch::read: return add(ctx, out, paths.value, selection_only);
    case Branch::remove: return add(ctx, out, paths.block, from_node(node));
    case Branch::write: break;
    }
    if (uint32_t bad = add(ctx, out, paths.value, with_value(node))) return bad;
    for (const Native &companion : paths.companions)
        if (uint32_t bad = add(ctx, out, companion, constant("false", node))) return bad;
    return VMF_RC_OK;
}

OC_LEAF(_global_afisafis_afisafi_usemultiplepaths_ebgp_config_maximumpaths)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    VMF_TRC(ctx, here(), "key is: %s", shown(ctx->af_key));
    if (!may_have_multipath(ctx)) return log_end(ctx, refuse_family(ctx, here()));
    VMF_TRC(ctx, here(), "key1 is: %s", shown(ctx->af_key));
    return log_end(ctx, map_maximum(ctx, node, out, external));
}

OC_LEAF(_global_afisafis_afisafi_usemultiplepaths_ibgp_config_maximumpaths)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    if (!may_have_multipath(ctx)) return log_end(ctx, refuse_family(ctx, here()));
    return log_end(ctx, map_maximum(ctx, node, out, internal));
}

// ---- The nodes that are a row ---------------------------------------------------------------

// clang-format off
#define FAMILY_CONT(path) OC_CONT(_global_afisafis_afisafi_##path)
#define FAMILY_LEAF(path) OC_LEAF(_global_afisafis_afisafi_##path)

FAMILY_CONT(usemultiplepaths_ebgp)        { return selection(ctx, node, subtree_count, out, {list("ebgp")}); }
FAMILY_CONT(usemultiplepaths_ebgp_config) { return selection(ctx, node, subtree_count, out, {list("ebgp")}); }
FAMILY_CONT(usemultiplepaths_ibgp_config) { return selection(ctx, node, subtree_count, out, {list("ibgp")}); }

//                                                                native path                                         raises
FAMILY_LEAF(state_enabled)       { return state_flag_leaf(ctx, node, out, list("enable"),                                      {&Req::glb_af_no_state, &Ctx::oper_wanted_in_state}); }
FAMILY_LEAF(state_totalpaths)    { return state_flag_leaf(ctx, node, out, oper_list("af-process-info/global/paths-num"),             {&Req::oper_wanted, &Req::af_paths_wanted}); }
FAMILY_LEAF(state_totalprefixes) { return state_flag_leaf(ctx, node, out, oper_list("global-af-process-info/global/scan-prefixes"), {&Req::oper_wanted, &Req::af_prefixes_wanted}); }
// clang-format on
