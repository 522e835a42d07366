// `global/use-multiple-paths`. The native settings belong to each address family. A read names an entry without a key,
// which means all of them; an edit goes to the four families that have the setting.
#include "../vmf_map_oc_bgp_common/family_expansion.h"
#include "../vmf_map_oc_bgp_common/oc_handlers.h"

static constexpr Native any_family = repeated(cfg(ZR_BGP_GLOBAL_AFS "/global-af"));

// On purpose: for a written or deleted number of internal paths the families come in an order of their own.
static constexpr const char *internal_path_families[] = {"ipv4-unicast", "ipv6-unicast", "ipv6-multicast",
                                                         "ipv4-multicast"};

// ---- Reading --------------------------------------------------------------------------------

static uint32_t select_in_any_family(MapContext *ctx, Datatree *out, std::initializer_list<const char *> paths)
{
    Datatree *entry = nullptr;
    if (uint32_t bad = add(ctx, out, any_family, selection_only, &entry)) return bad;
    for (const char *path : paths)
        if (uint32_t bad = add_to(ctx, entry, path, selection_only)) return bad;
    return VMF_RC_OK;
}

// The answer shall hold no entries of families, whether or not they could be named.
static uint32_t read_paths(MapContext *ctx, Datatree *out, std::initializer_list<const char *> paths)
{
    const uint32_t outcome = select_in_any_family(ctx, out, paths);
    ctx->request->multipath_named = 1;
    return outcome;
}

// ---- Containers -----------------------------------------------------------------------------

// The outcome of a pass's last add is only looked at after the last pass.
static uint32_t remove_paths(MapContext *ctx, Datatree *node, Datatree *out, std::initializer_list<const char *> paths)
{
    force_removal(node);
    uint32_t last = VMF_RC_OK;
    for (const char *family : global_families) {
        Datatree *entry = nullptr;
        if (uint32_t bad = add_global_family(ctx, out, family, &entry)) return bad;
        for (const char *path : paths) {
            last = add_to(ctx, entry, path, from_node(node));
            if (last != VMF_RC_OK && path != *(paths.end() - 1)) return last;
        }
    }
    return last;
}

static uint32_t paths_container(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out,
                                std::initializer_list<const char *> paths, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    if (!maps_itself(ctx, subtree_count, at)) return log_end(ctx, VMF_RC_OK, at);
    switch (branch_of(ctx, node)) {
    case Branch::read: return log_end(ctx, read_paths(ctx, out, paths), at);
    case Branch::remove: return log_end(ctx, remove_paths(ctx, node, out, paths), at);
    case Branch::write: break;
    }
    return log_end(ctx, VMF_RC_OK, at);
}

static uint32_t paths_state_container(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out,
                                      const char *path, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    if (!maps_itself(ctx, subtree_count, at) || !is_read(ctx)) return log_end(ctx, VMF_RC_OK, at);
    return log_end(ctx, read_paths(ctx, out, {path}), at);
}

// ---- Leaves ---------------------------------------------------------------------------------

struct Paths {
    const char *kind;  // "ebgp" or "ibgp"
    const char *value, *unequal_cost, *selective, *order_by_igp_metric;
    Families families;
};

static constexpr Paths external = {
    .kind = "ebgp",
    .value = "ebgp/paths-value",
    .unequal_cost = "ebgp/unequal-cost",
    .selective = "ebgp/selective",
    .order_by_igp_metric = "ebgp/order-by-igp-metric",
    .families = global_families,
};
static constexpr Paths internal = {
    .kind = "ibgp",
    .value = "ibgp/paths-value",
    .unequal_cost = "ibgp/unequal-cost",
    .selective = "ibgp/selective",
    .order_by_igp_metric = "ibgp/order-by-igp-metric",
    .families = internal_path_families,
};

static uint32_t switch_family_on(MapContext *ctx, Datatree *out, const char *family, Datatree **entry)
{
    if (uint32_t bad = add_global_family(ctx, out, family, entry)) return bad;
    return add_to(ctx, *entry, "enable", selection_only);
}

static uint32_t remove_maximum(MapContext *ctx, Datatree *node, Datatree *out, const Paths &paths)
{
    uint32_t last = VMF_RC_OK;
    for (const char *family : paths.families) {
        Datatree *entry = nullptr;
        if (uint32_t bad = switch_family_on(ctx, out, family, &entry)) return bad;
        force_removal(node);
        last = add_to(ctx, entry, paths.kind, from_node(node));
    }
    return last;
}

static uint32_t write_maximum(MapContext *ctx, Datatree *node, Datatree *out, const Paths &paths)
{
    uint32_t last = VMF_RC_OK;
    for (const char *family : paths.families) {
        Datatree *entry = nullptr;
        if (uint32_t bad = switch_family_on(ctx, out, family, &entry)) return bad;
        if (uint32_t bad = add_to(ctx, entry, paths.value, with_value(node))) return bad;
        if (uint32_t bad = add_to(ctx, entry, paths.unequal_cost, constant("false", node))) return bad;
        if (uint32_t bad = add_to(ctx, entry, paths.selective, constant("false", node))) return bad;
        last = add_to(ctx, entry, paths.order_by_igp_metric, constant("false", node));
    }
    return last;
}

static uint32_t maximum_leaf(MapContext *ctx, Datatree *node, Datatree *out, const Paths &paths, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    switch (branch_of(ctx, node)) {
    case Branch::read: return log_end(ctx, read_paths(ctx, out, {paths.value}), at);
    case Branch::remove: return log_end(ctx, remove_maximum(ctx, node, out, paths), at);
    case Branch::write: return log_end(ctx, write_maximum(ctx, node, out, paths), at);
    }
    return log_end(ctx, VMF_RC_OK, at);
}

static uint32_t maximum_state_leaf(MapContext *ctx, Datatree *node, Datatree *out, const Paths &paths,
                                   const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    return log_end(ctx, is_read(ctx) ? read_paths(ctx, out, {paths.value}) : uint32_t{VMF_RC_OK}, at);
}

// ---- state ----------------------------------------------------------------------------------

// On purpose: straight to the platform, so that no AS is supplied above it.
static uint32_t add_direct(MapContext *ctx, Datatree *parent, const char *path, Datatree **result, uint32_t repeat)
{
    return vmf_map_datatree_add_path(ctx, parent, path, ZR_BGP_CFG_NS, nullptr, nullptr, result, repeat);
}

static uint32_t select_directly(MapContext *ctx, Datatree *out)
{
    Datatree *entry = nullptr;
    if (uint32_t bad = add_direct(ctx, out, ZR_BGP_GLOBAL_AFS "/global-af", &entry, 1)) return bad;
    if (uint32_t bad = add_direct(ctx, entry, "ebgp", nullptr, 0)) return bad;
    if (uint32_t bad = add_direct(ctx, entry, "ibgp", nullptr, 0)) return bad;
    raise_flags(ctx, {&Req::multipath_named, &Req::multipath_state_named});
    return VMF_RC_OK;
}

OC_MAN_CONT(_global_usemultiplepaths_state)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    if (!maps_itself(ctx, subtree_count, here())) return log_end(ctx, VMF_RC_OK);
    return log_end(ctx, select_directly(ctx, out));
}

OC_MAN_LEAF(_global_usemultiplepaths_state_enabled)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    return log_end(ctx, select_directly(ctx, out));
}

// ---- The nodes ------------------------------------------------------------------------------

// clang-format off
#define PATHS_CONT(path) OC_MAN_CONT(_global_usemultiplepaths##path)
#define PATHS_LEAF(path) OC_MAN_LEAF(_global_usemultiplepaths##path)

OC_MAN_CONT(_global_usemultiplepaths) { return paths_container(ctx, node, subtree_count, out, {"ebgp", "ibgp"}); }
PATHS_CONT(_ebgp)        { return paths_container(ctx, node, subtree_count, out, {"ebgp"}); }
PATHS_CONT(_ebgp_config) { return paths_container(ctx, node, subtree_count, out, {"ebgp"}); }
PATHS_CONT(_ibgp)        { return paths_container(ctx, node, subtree_count, out, {"ibgp"}); }
PATHS_CONT(_ibgp_config) { return paths_container(ctx, node, subtree_count, out, {"ibgp"}); }
PATHS_CONT(_ebgp_state)  { return paths_state_container(ctx, node, subtree_count, out, "ebgp"); }
PATHS_CONT(_ibgp_state)  { return paths_state_container(ctx, node, subtree_count, out, "ibgp"); }

PATHS_LEAF(_ebgp_config_maximumpaths) { return maximum_leaf(ctx, node, out, external); }
PATHS_LEAF(_ibgp_config_maximumpaths) { return maximum_leaf(ctx, node, out, internal); }
PATHS_LEAF(_ebgp_state_maximumpaths)  { return maximum_state_leaf(ctx, node, out, external); }
PATHS_LEAF(_ibgp_state_maximumpaths)  { return maximum_state_leaf(ctx, node, out, internal); }
// clang-format on
