// `global/default-route-distance`. The native distances belong to each address family, and the two OpenConfig leaves
// have to be written together: the containers do all the work, and the leaves none.
#include <iterator>

#include "../vmf_map_oc_bgp_common/family_expansion.h"
#include "../vmf_map_oc_bgp_common/oc_handlers.h"

// Kind 15 is an edit too, for this node alone.
static bool counts_as_edit(const MapContext *ctx) { return is_edit(ctx) || kind_of(ctx) == 15; }

// ---- The families ---------------------------------------------------------------------------

static uint32_t add_families(MapContext *ctx, Datatree *out, Datatree **families)
{
    return add(ctx, out, cfg(ZR_BGP_GLOBAL_AFS), selection_only, families);
}

static uint32_t add_family(MapContext *ctx, Datatree *families, const char *family, Datatree **entry)
{
    if (uint32_t bad = vmf_map_datatree_add_path(ctx, families, "global-af", ZR_BGP_CFG_NS, nullptr, nullptr, entry, 1))
        return bad;
    return add_to(ctx, *entry, "af-name", {family, nullptr});
}

// ---- The leaves that a container has --------------------------------------------------------

// What an OpenConfig leaf is called natively; null for a tag that is none of the two.
static const char *native_distance(const char *tag)
{
    if (vmf_map_do_these_match(tag, "external-route-distance") != 0) return "external-routes";
    if (vmf_map_do_these_match(tag, "internal-route-distance") != 0) return "internal-routes";
    return nullptr;
}

static uint32_t check_children(MapContext *ctx, Children children, const At &at)
{
    for (int32_t i = 0; i < children.count; i++) {
        const char *tag = tag_of(&children.first[i]);
        if (tag == nullptr) {
            VMF_ERR(ctx, at, "Tag name is not available!");
            return VMF_RC_BAD_TREE;
        }
        VMF_TRC(ctx, at, "Processing tag '%s'", tag);
        if (native_distance(tag) != nullptr) continue;
        VMF_ERR(ctx, at, "Unknown tag '%s' found!", tag);
        return refuse_tag(ctx, tag);
    }
    return VMF_RC_OK;
}

// The distances that a request gives: a place for each leaf, in the order in which they came first.
struct Distances {
    const Datatree *leaves[2];
    int count;
};

static Distances distances_of(Children children)
{
    Distances given = {};
    for (int32_t i = 0; i < children.count; i++) {
        const Datatree *leaf = &children.first[i];
        int place = 0;
        while (place < given.count && vmf_map_do_these_match(tag_of(given.leaves[place]), tag_of(leaf)) == 0) place++;
        given.leaves[place] = leaf;
        if (place == given.count) given.count++;
    }
    return given;
}

// ---- default-route-distance -----------------------------------------------------------------

static uint32_t name_distances(MapContext *ctx, Datatree *node, Datatree *out)
{
    Datatree *families = nullptr;
    if (uint32_t bad = add_families(ctx, out, &families)) return bad;
    for (const char *family : global_families) {
        Datatree *entry = nullptr;
        if (uint32_t bad = add_family(ctx, families, family, &entry)) return bad;
        if (uint32_t bad = add_to(ctx, entry, "distance", from_node(node))) return bad;  // in a read too
    }
    return VMF_RC_OK;
}

OC_MAN_CONT(_global_defaultroutedistance)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    if (subtree_count != 0) return log_end(ctx, VMF_RC_OK);
    VMF_TRC(ctx, here(), "No subtrees");
    if (branch_of(ctx, node) == Branch::write) return log_end(ctx, VMF_RC_OK);
    return log_end(ctx, name_distances(ctx, node, out));
}

// ---- config ---------------------------------------------------------------------------------

// A set of a distance switches the family on, and fixes the distance of local routes.
static uint32_t set_family(MapContext *ctx, Datatree *node, Datatree *entry, Datatree **distance)
{
    if (uint32_t bad = add_to(ctx, entry, "enable", from_node(node))) return bad;
    if (uint32_t bad = add_to(ctx, entry, "distance", from_node(node), distance)) return bad;
    return add_to(ctx, *distance, "local-routes", constant("200", node));
}

static uint32_t write_family(MapContext *ctx, Datatree *node, Datatree *entry, bool sets, const Distances &given)
{
    Datatree *distance = nullptr;
    if (uint32_t bad =
            sets ? set_family(ctx, node, entry, &distance) : add_to(ctx, entry, "distance", from_node(node), &distance))
        return bad;
    for (int i = 0; i < given.count; i++) {
        const Datatree *leaf = given.leaves[i];
        if (uint32_t bad = add_to(ctx, distance, native_distance(tag_of(leaf)), with_value(leaf))) return bad;
    }
    return VMF_RC_OK;
}

static uint32_t write_distances(MapContext *ctx, Datatree *node, Datatree *out, Children children)
{
    const bool sets = children.count > 0 && counts_as_edit(ctx) && vmf_map_is_request_delete(children.first) == 0;
    const Distances given = distances_of(children);
    Datatree *families = nullptr;
    if (uint32_t bad = add_families(ctx, out, &families)) return bad;
    for (const char *family : global_families) {
        Datatree *entry = nullptr;
        if (uint32_t bad = add_family(ctx, families, family, &entry)) return bad;
        if (uint32_t bad = write_family(ctx, node, entry, sets, given)) return bad;
    }
    return VMF_RC_OK;
}

OC_MAN_CONT(_global_defaultroutedistance_config)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    Children children = {};
    if (uint32_t bad = vmf_map_get_subtrees(ctx, node, &children.first, &children.count)) return log_end(ctx, bad);
    if (children.count == 0 && counts_as_edit(ctx) && vmf_map_is_request_delete(node) == 0) {
        VMF_TRC(ctx, here(), "No subtrees");
        return log_end(ctx, VMF_RC_OK);
    }
    if (uint32_t bad = check_children(ctx, children, here())) return log_end(ctx, bad);
    return log_end(ctx, write_distances(ctx, node, out, children));
}

// ---- state ----------------------------------------------------------------------------------

static uint32_t select_family(MapContext *ctx, Datatree *node, Datatree *entry, Children children)
{
    Datatree *distance = nullptr;
    if (uint32_t bad = add_to(ctx, entry, "distance", from_node(node), &distance)) return bad;
    for (int32_t i = 0; i < children.count; i++)
        if (uint32_t bad = add_to(ctx, distance, native_distance(tag_of(&children.first[i])), from_node(node)))
            return bad;
    return VMF_RC_OK;
}

static uint32_t select_distances(MapContext *ctx, Datatree *node, Datatree *out, Children children)
{
    Datatree *families = nullptr;
    if (uint32_t bad = add_families(ctx, out, &families)) return bad;
    for (const char *family : global_families) {
        Datatree *entry = nullptr;
        if (uint32_t bad = add_family(ctx, families, family, &entry)) return bad;
        if (uint32_t bad = select_family(ctx, node, entry, children)) return bad;
    }
    return VMF_RC_OK;
}

OC_MAN_CONT(_global_defaultroutedistance_state)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    Children children = {};
    if (uint32_t bad = vmf_map_get_subtrees(ctx, node, &children.first, &children.count)) return log_end(ctx, bad);
    if (uint32_t bad = check_children(ctx, children, here())) return log_end(ctx, bad);
    return log_end(ctx, select_distances(ctx, node, out, children));
}

// ---- The leaves, and the overrides ----------------------------------------------------------

// clang-format off
#define DISTANCE(path) OC_MAN_LEAF(_global_defaultroutedistance_##path)

DISTANCE(config_externalroutedistance) { return silent(ctx, node, out); }
DISTANCE(config_internalroutedistance) { return silent(ctx, node, out); }
DISTANCE(state_externalroutedistance)  { return silent(ctx, node, out); }
DISTANCE(state_internalroutedistance)  { return silent(ctx, node, out); }

// The request goes to families that the client did not name: the answer leaves them out.
OC_CONT(_global_defaultroutedistance) { return flagging_container(ctx, node, subtree_count, out, vmf_map_man_cont_oc_bgp_global_defaultroutedistance,        {&Req::glb_af_filter}); }
OC_CONT(_global_defaultroutedistance_config) { return flagging_container(ctx, node, subtree_count, out, vmf_map_man_cont_oc_bgp_global_defaultroutedistance_config, {&Req::glb_af_filter}); }
OC_CONT(_global_defaultroutedistance_state) { return flagging_container(ctx, node, subtree_count, out, vmf_map_man_cont_oc_bgp_global_defaultroutedistance_state,  {&Req::glb_af_filter}); }
// clang-format on
