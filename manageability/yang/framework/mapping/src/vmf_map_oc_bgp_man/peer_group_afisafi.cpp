// The families of a peer group.
#include <cstring>

#include "peer.h"

static bool are_equal(const char *a, const char *b) { return std::strcmp(a, b) == 0; }

GROUP_CONT(afisafis)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    uint32_t outcome = VMF_RC_OK;
    if (maps_itself(ctx, subtree_count, here())) outcome = map_families(ctx, node, out, peer_group);
    raise_flags(ctx, {&Req::grp_no_config, &Req::grp_no_state});
    return log_end(ctx, outcome);
}

static uint32_t map_key(MapContext *ctx, const Datatree *node, Datatree *out, const At &at)
{
    const char *native = nullptr;
    if (uint32_t bad = enter_family(ctx, node, out, peer_group, are_equal, &Req::grp_af_bitmap, &native, at))
        return bad;
    return add(ctx, out, af("af-name"), {native, is_read(ctx) ? nullptr : node});
}

GROUP_FAMILY_LEAF(afisafiname)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    return log_end(ctx, map_key(ctx, node, out, here()));
}

// ---- config and state -----------------------------------------------------------------------

static uint32_t map_config(MapContext *ctx, const Datatree *node, Datatree *out)
{
    if (branch_of(ctx, node) != Branch::remove) return add(ctx, out, af("activate"), selection_only);
    if (ctx->af_node != nullptr) copy_operation(ctx->af_node, node);  // the native entry goes as a whole
    return VMF_RC_OK;
}

GROUP_FAMILY_CONT(config)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    if (!maps_itself(ctx, subtree_count, here())) return log_end(ctx, VMF_RC_OK);
    return log_end(ctx, map_config(ctx, node, out));
}

// On purpose: whatever the value, the family goes on.
GROUP_FAMILY_LEAF(config_enabled)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    const bool reads = is_read(ctx);
    const uint32_t outcome = add(ctx, out, af("activate"), reads ? selection_only : from_node(node));
    if (reads) ctx->request->grp_af_no_config = 1;
    return log_end(ctx, outcome);
}

GROUP_FAMILY_CONT(state)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    uint32_t outcome = VMF_RC_OK;
    if (maps_itself(ctx, subtree_count, here())) outcome = add(ctx, out, af("activate"), selection_only);
    ctx->request->grp_af_no_config = 1;
    return log_end(ctx, outcome);
}

// ---- apply-policy ---------------------------------------------------------------------------

// Two turns, and the second gives the outcome.
static uint32_t map_policies(MapContext *ctx, const Datatree *node, Datatree *out)
{
    if (branch_of(ctx, node) == Branch::write) return VMF_RC_OK;
    return add_all(ctx, out, {af("route-policy-in"), af("route-policy-out")}, container_gives(ctx, node));
}

GROUP_FAMILY_CONT(applypolicy)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    uint32_t outcome = VMF_RC_OK;
    if (maps_itself(ctx, subtree_count, here())) outcome = map_policies(ctx, node, out);
    raise_flags(ctx, {&Req::grp_af_no_config, &Req::grp_af_no_state});
    return log_end(ctx, outcome);
}

static constexpr Native policy_in = direct(repeated(af("route-policy-in")));
static constexpr Native policy_out = direct(repeated(af("route-policy-out")));

// On purpose: every kind adds both, with what value the container has.
GROUP_FAMILY_CONT(applypolicy_config)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    if (subtree_count != 0) return log_end(ctx, VMF_RC_OK);
    VMF_TRC(ctx, here(), "No subtrees");
    const Given given = {value_of(node), is_read(ctx) ? nullptr : node};
    return log_end(ctx, add_until_failure(ctx, out, {policy_in, policy_out}, given));
}

GROUP_FAMILY_CONT(applypolicy_state)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    if (!maps_itself(ctx, subtree_count, here())) return log_end(ctx, VMF_RC_OK);
    return log_end(ctx, add_until_failure(ctx, out, {policy_in, policy_out}, {value_of(node), nullptr}));
}

static uint32_t selected_policy(MapContext *ctx, Datatree *node, Datatree *out, const Native &native,
                                const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    return log_end(ctx, add(ctx, out, native, {value_of(node), nullptr}), at);
}

// ---- The containers of a family -------------------------------------------------------------

// On purpose: this one looks at its children.
GROUP_FAMILY_CONT(ipv4unicast)
{
    static constexpr FamilyContainer container = {"ipv4-unicast", true};
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    if (uint32_t bad = check_family(ctx, container, here())) return log_end(ctx, bad);
    if (!maps_itself(ctx, subtree_count, here())) return log_end(ctx, VMF_RC_OK);
    return log_end(ctx, map_family(ctx, node, out, container));
}

static uint32_t family_container(MapContext *ctx, Datatree *node, Datatree *out, const FamilyContainer &container,
                                 const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    if (uint32_t bad = check_family(ctx, container, at)) return log_end(ctx, bad, at);
    return log_end(ctx, map_family(ctx, node, out, container), at);
}

// ---- The nodes that are a row ---------------------------------------------------------------

// clang-format off
GROUP_FAMILY_LEAF(config_afisafiname) { return repeated_family_name(ctx, node, out); }
GROUP_FAMILY_LEAF(state_afisafiname)  { return selected_family_name(ctx, node, out); }
GROUP_FAMILY_LEAF(state_enabled)      { return state_flag_leaf(ctx, node, out, af("activate"), {&Req::grp_af_no_state}); }

GROUP_FAMILY_LEAF(applypolicy_config_importpolicy) { return policy(ctx, node, out, "route-policy-in"); }
GROUP_FAMILY_LEAF(applypolicy_config_exportpolicy) { return policy(ctx, node, out, "route-policy-out"); }
GROUP_FAMILY_LEAF(applypolicy_state_importpolicy)  { return selected_policy(ctx, node, out, policy_in); }
GROUP_FAMILY_LEAF(applypolicy_state_exportpolicy)  { return selected_policy(ctx, node, out, policy_out); }

GROUP_FAMILY_LEAF(usemultiplepaths_config_enabled) { return presence_boolean_leaf(ctx, node, out, af("multipath"), "true"); }

GROUP_FAMILY_CONT(ipv6unicast)         { return family_container(ctx, node, out, {"ipv6-unicast", true}); }
GROUP_FAMILY_CONT(ipv4labeledunicast)  { return family_container(ctx, node, out, {"ipv4-labeled-unicast", false}); }
GROUP_FAMILY_CONT(ipv6labeledunicast)  { return family_container(ctx, node, out, {"ipv6-labeled-unicast", false}); }
GROUP_FAMILY_CONT(l3vpnipv4unicast)    { return family_container(ctx, node, out, {"l3vpn-ipv4-unicast", false}); }
GROUP_FAMILY_CONT(l3vpnipv6unicast)    { return family_container(ctx, node, out, {"l3vpn-ipv6-unicast", false}); }
GROUP_FAMILY_CONT(l3vpnipv4multicast)  { return family_container(ctx, node, out, {"l3vpn-ipv4-multicast", false}); }
GROUP_FAMILY_CONT(l3vpnipv6multicast)  { return family_container(ctx, node, out, {"l3vpn-ipv6-multicast", false}); }
GROUP_FAMILY_CONT(l2vpnvpls)           { return family_container(ctx, node, out, {"l2vpn-vpls", false}); }
GROUP_FAMILY_CONT(l2vpnevpn)           { return family_container(ctx, node, out, {"l2vpn-evpn", false}); }
// clang-format on
