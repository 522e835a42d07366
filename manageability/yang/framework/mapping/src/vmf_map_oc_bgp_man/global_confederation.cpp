// `global/confederation`. An AS number of the confederation goes to two native leaves: "0" to the high half, the whole
// number to the low one.
#include "../vmf_map_oc_bgp_common/forms.h"
#include "../vmf_map_oc_bgp_common/oc_handlers.h"

static constexpr Native domain = cfg(ZR_BGP_GLOBAL "/confederation-domain");
static constexpr Native peers = cfg(ZR_BGP_GLOBAL "/confederation-peer-ases");
static constexpr Native peer = repeated(cfg(ZR_BGP_GLOBAL "/confederation-peer-ases/confederation-peer-as"));

// clang-format off
OC_CONT(_global_confederation)        { return removing_selection_by_turns(ctx, node, subtree_count, out, {domain, peers}); }
OC_CONT(_global_confederation_config) { return removing_selection_by_turns(ctx, node, subtree_count, out, {domain, peers}); }
// clang-format on

// ---- config ---------------------------------------------------------------------------------

static uint32_t map_identifier(MapContext *ctx, Datatree *node, Datatree *out)
{
    switch (branch_of(ctx, node)) {
    case Branch::read: return add(ctx, out, domain, selection_only);
    case Branch::remove: return add(ctx, out, domain, from_node(node));
    case Branch::write: break;
    }
    if (uint32_t bad = add(ctx, out, cfg(ZR_BGP_GLOBAL "/confederation-domain/as-xx"), constant("0", node))) return bad;
    return add(ctx, out, cfg(ZR_BGP_GLOBAL "/confederation-domain/as-yy"), with_value(node));
}

OC_LEAF(_global_confederation_config_identifier)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    return log_end(ctx, map_identifier(ctx, node, out));
}

// On purpose: a removal takes this way too. The member to remove is named by its number.
static uint32_t name_member(MapContext *ctx, Datatree *node, Datatree *out)
{
    Datatree *member = nullptr;
    if (uint32_t bad = add(ctx, out, peer, from_node(node), &member)) return bad;
    if (uint32_t bad = add_to(ctx, member, "as-xx", constant("0", node))) return bad;
    return add_to(ctx, member, "as-yy", with_value(node));
}

OC_LEAF(_global_confederation_config_memberas)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    return log_end(ctx, is_read(ctx) ? add(ctx, out, peer, selection_only) : name_member(ctx, node, out));
}

// ---- state ----------------------------------------------------------------------------------

// What the answer holds: a bit for each leaf that was named; none for the container, which means all of them.
enum : uint32_t { identifier_named = 1, member_as_named = 2, enabled_named = 4 };

static uint32_t select_both(MapContext *ctx, Datatree *out)
{
    if (uint32_t bad = add(ctx, out, domain, selection_only)) return bad;
    return add(ctx, out, peers, selection_only);
}

OC_CONT(_global_confederation_state)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    if (!maps_itself(ctx, subtree_count, here())) return log_end(ctx, VMF_RC_OK);
    const uint32_t outcome = select_both(ctx, out);
    if (outcome == VMF_RC_OK) ctx->request->confederation_state_named = 0;
    return log_end(ctx, outcome);
}

static uint32_t name_leaf(MapContext *ctx, Datatree *out, const Native &native, Given given, uint32_t named)
{
    const uint32_t outcome = add(ctx, out, native, given);
    if (outcome == VMF_RC_OK) ctx->request->confederation_state_named |= named;
    return outcome;
}

OC_LEAF(_global_confederation_state_identifier)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    return log_end(ctx, name_leaf(ctx, out, domain, selection_only, identifier_named));
}

OC_LEAF(_global_confederation_state_memberas)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    return log_end(ctx, name_leaf(ctx, out, peer, {value_of(node), nullptr}, member_as_named));
}

OC_LEAF(_global_confederation_state_enabled)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    return log_end(ctx, name_leaf(ctx, out, domain, selection_only, enabled_named));
}
