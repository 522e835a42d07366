// The families of a neighbor. An identity has two native names: one in the configuration, one in the operational data.
#include <strings.h>

#include "neighbor.h"

#define FAMILY_COUNTERS vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_prefixes
#define FAMILY_ACTIVE vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_active

static uint32_t select_live_family(MapContext *ctx, Datatree *node, Datatree *out)
{
    if (uint32_t bad = FAMILY_COUNTERS(ctx, node, 0, out)) return bad;
    return FAMILY_ACTIVE(ctx, node, out);
}

uint32_t select_live_families(MapContext *ctx, Datatree *node, Datatree *out)
{
    Datatree *all = nullptr;  // a name without a value: all families
    if (uint32_t bad = add(ctx, out, oper_list("af-data"), selection_only, &all)) return bad;
    if (uint32_t bad = add_to(ctx, all, "af-name", selection_only, nullptr, ZR_BGP_OPER_NS)) return bad;
    ctx->oper_af_node = all;
    return select_live_family(ctx, node, out);
}

// ---- afi-safis ------------------------------------------------------------------------------

static uint32_t select_whole_list(MapContext *ctx, Datatree *node, Datatree *out)
{
    ctx->oper_wanted_in_state = 1;
    const uint32_t outcome = select_live_families(ctx, node, out);
    ctx->request->nbr_af_no_state = 0;
    return outcome;
}

static uint32_t map_list(MapContext *ctx, Datatree *node, Datatree *out)
{
    if (uint32_t bad = map_families(ctx, node, out, neighbor)) return bad;
    return is_get(ctx) ? select_whole_list(ctx, node, out) : uint32_t{VMF_RC_OK};
}

NEIGHBOR_CONT(afisafis)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    uint32_t outcome = VMF_RC_OK;
    if (maps_itself(ctx, subtree_count, here())) outcome = map_list(ctx, node, out);
    raise_flags(ctx, {&Req::nbr_no_config, &Req::nbr_no_state});
    return log_end(ctx, outcome);
}

// ---- The key --------------------------------------------------------------------------------

static bool match(const char *a, const char *b) { return vmf_map_do_these_match(a, b) != 0; }

// The operational word of an identity; null for one that has none.
static const char *operational_word(const char *identity)
{
    for (const auto &names : oc_zr_nbr_oper_af_names)
        if (identity != nullptr && match(identity, names[0])) return names[1];
    return nullptr;
}

static uint32_t select_operational_family(MapContext *ctx, Datatree *node, Datatree *out, const At &at)
{
    const char *word = operational_word(value_of(node));
    if (word == nullptr) {
        VMF_ERR(ctx, at, "Unknown af name '%s' passed!", shown(value_of(node)));
        return refuse_tag(ctx, "afi-safi-name");
    }
    Datatree *entry = nullptr;
    if (uint32_t bad = add(ctx, out, repeated(oper_list("af-data")), selection_only, &entry)) return bad;
    ctx->oper_af_node = entry;
    ctx->oper_af_name = word;
    if (uint32_t bad = add(ctx, out, oper_af("af-name"), {word, nullptr})) return bad;
    if (ctx->list_child_count != 1) return VMF_RC_OK;
    VMF_TRC(ctx, at, "Only list key was specified. Need to map all supported oper nodes.");
    raise_flags(ctx, {&Ctx::oper_wanted_in_state, &Req::oper_wanted});
    const uint32_t outcome = select_live_family(ctx, node, out);
    ctx->request->nbr_af_no_state = 0;
    return outcome;
}

static uint32_t map_key(MapContext *ctx, Datatree *node, Datatree *out, const At &at)
{
    const char *native = nullptr;
    if (uint32_t bad = enter_family(ctx, node, out, neighbor, match, &Req::nbr_af_bitmap, &native, at)) return bad;
    if (!is_read(ctx)) return add(ctx, out, af("af-name"), {native, node});
    if (uint32_t bad = add(ctx, out, af("af-name"), {native, nullptr})) return bad;
    return is_get(ctx) ? select_operational_family(ctx, node, out, at) : uint32_t{VMF_RC_OK};
}

NEIGHBOR_FAMILY_LEAF(afisafiname)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    return log_end(ctx, map_key(ctx, node, out, here()));
}

// ---- config ---------------------------------------------------------------------------------

static uint32_t map_config(MapContext *ctx, const Datatree *node, Datatree *out)
{
    switch (branch_of(ctx, node)) {
    case Branch::read: return add(ctx, out, af("activate"), selection_only);
    case Branch::remove:  // the native entry goes as a whole, as a delete whatever the request says
        if (ctx->af_node != nullptr) set_operation(ctx->af_node, VMF_OP_DELETE);
        return VMF_RC_OK;
    case Branch::write: break;
    }
    return add(ctx, out, af("activate"), selection_only);
}

NEIGHBOR_FAMILY_CONT(config)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    uint32_t outcome = VMF_RC_OK;
    if (maps_itself(ctx, subtree_count, here())) outcome = map_config(ctx, node, out);
    ctx->request->nbr_af_no_state = 1;
    return log_end(ctx, outcome);
}

// On purpose: "false" writes nothing, and leaves the family as it is.
static uint32_t map_enabled(MapContext *ctx, const Datatree *node, Datatree *out)
{
    const char *value = value_of(node);
    switch (branch_of(ctx, node)) {
    case Branch::read: return add(ctx, out, af("activate"), selection_only);
    case Branch::remove: return add(ctx, out, af("activate"), from_node(node));
    case Branch::write: break;
    }
    const bool is_true = value != nullptr && strcasecmp(value, "true") == 0;
    return is_true ? add(ctx, out, af("activate"), from_node(node)) : uint32_t{VMF_RC_OK};
}

NEIGHBOR_FAMILY_LEAF(config_enabled)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    const uint32_t outcome = map_enabled(ctx, node, out);
    ctx->request->nbr_af_no_config = 1;
    return log_end(ctx, outcome);
}

// ---- state ----------------------------------------------------------------------------------

static uint32_t select_state(MapContext *ctx, Datatree *node, Datatree *out)
{
    if (uint32_t bad = add(ctx, out, af("activate"), selection_only)) return bad;
    raise_flags(ctx, {&Ctx::oper_wanted_in_state, &Req::oper_wanted});
    const uint32_t outcome = select_live_family(ctx, node, out);
    ctx->request->nbr_af_no_state = 0;
    return outcome;
}

NEIGHBOR_FAMILY_CONT(state)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    uint32_t outcome = VMF_RC_OK;
    if (maps_itself(ctx, subtree_count, here())) outcome = select_state(ctx, node, out);
    ctx->request->nbr_af_no_config = 1;
    return log_end(ctx, outcome);
}

NEIGHBOR_FAMILY_CONT(state_prefixes)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    uint32_t outcome = VMF_RC_OK;
    if (maps_itself(ctx, subtree_count, here())) {
        outcome = select_rows(ctx, out, {oper_af("prefixes-accepted"), oper_af("prefixes-advertised")});
        ctx->request->oper_wanted = 1;
    }
    ctx->request->nbr_af_no_state = 1;
    return log_end(ctx, outcome);
}

// ---- apply-policy ---------------------------------------------------------------------------

static uint32_t map_policies(MapContext *ctx, const Datatree *node, Datatree *out)
{
    if (branch_of(ctx, node) == Branch::write) return VMF_RC_OK;
    return add_until_failure(ctx, out, {af("route-policy-in"), af("route-policy-out")}, container_gives(ctx, node));
}

NEIGHBOR_FAMILY_CONT(applypolicy)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    uint32_t outcome = VMF_RC_OK;
    if (maps_itself(ctx, subtree_count, here())) outcome = map_policies(ctx, node, out);
    raise_flags(ctx, {&Req::nbr_af_no_config, &Req::nbr_af_no_state});
    return log_end(ctx, outcome);
}

static constexpr Native policy_in = direct(af("route-policy-in"));
static constexpr Native policy_out = direct(af("route-policy-out"));

NEIGHBOR_FAMILY_CONT(applypolicy_config)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    if (!maps_itself(ctx, subtree_count, here()) || branch_of(ctx, node) == Branch::write)
        return log_end(ctx, VMF_RC_OK);
    return log_end(ctx, add_until_failure(ctx, out, {policy_in, policy_out}, container_gives(ctx, node)));
}

NEIGHBOR_FAMILY_CONT(applypolicy_state)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    if (!maps_itself(ctx, subtree_count, here())) return log_end(ctx, VMF_RC_OK);
    return log_end(ctx, add_until_failure(ctx, out, {policy_in, policy_out}, from_node(node)));
}

// On purpose: one of the two state leaves has a source, the other has none.
NEIGHBOR_FAMILY_LEAF(applypolicy_state_importpolicy)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    return log_end(ctx, add(ctx, out, repeated(policy_in), with_value(node)));
}

NEIGHBOR_FAMILY_LEAF(applypolicy_state_exportpolicy)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    return log_end(ctx, add(ctx, out, repeated(policy_out), {value_of(node), nullptr}));
}

// ---- The containers of a family -------------------------------------------------------------

static constexpr Flags family_flags = {&Req::nbr_af_no_config, &Req::nbr_af_no_state};

// On purpose: this one looks at its children, and raises its flags only where it may stand.
NEIGHBOR_FAMILY_CONT(ipv4unicast)
{
    static constexpr FamilyContainer container = {"ipv4-unicast", true};
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    if (uint32_t bad = check_family(ctx, container, here())) return log_end(ctx, bad);
    uint32_t outcome = VMF_RC_OK;
    if (maps_itself(ctx, subtree_count, here())) outcome = map_family(ctx, node, out, container);
    raise_flags(ctx, family_flags);
    return log_end(ctx, outcome);
}

static uint32_t family_container(MapContext *ctx, Datatree *node, Datatree *out, const FamilyContainer &container,
                                 const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    uint32_t outcome = check_family(ctx, container, at);
    if (outcome == VMF_RC_OK) outcome = map_family(ctx, node, out, container);
    raise_flags(ctx, family_flags);
    return log_end(ctx, outcome, at);
}

// ---- The nodes that are a row ---------------------------------------------------------------

// clang-format off
NEIGHBOR_FAMILY_LEAF(config_afisafiname) { return repeated_family_name(ctx, node, out); }
NEIGHBOR_FAMILY_LEAF(state_afisafiname)  { return selected_family_name(ctx, node, out); }

//                                                                              native path                       raises
NEIGHBOR_FAMILY_LEAF(state_enabled)           { return state_flag_leaf(ctx, node, out, af("activate"),                   {&Req::nbr_af_no_state}); }
NEIGHBOR_FAMILY_LEAF(state_active)            { return state_flag_leaf(ctx, node, out, oper_af("is-neighbor-af-capable"), {&Req::oper_wanted, &Req::nbr_af_no_state}); }
NEIGHBOR_FAMILY_LEAF(state_prefixes_received) { return state_flag_leaf(ctx, node, out, oper_af("prefixes-accepted"),      {&Req::oper_wanted}); }
NEIGHBOR_FAMILY_LEAF(state_prefixes_sent)     { return state_flag_leaf(ctx, node, out, oper_af("prefixes-advertised"),    {&Req::oper_wanted}); }

NEIGHBOR_FAMILY_LEAF(applypolicy_config_importpolicy) { return policy(ctx, node, out, "route-policy-in"); }
NEIGHBOR_FAMILY_LEAF(applypolicy_config_exportpolicy) { return policy(ctx, node, out, "route-policy-out"); }

NEIGHBOR_FAMILY_CONT(usemultiplepaths)                { return flagging_selection(ctx, node, subtree_count, out, {af("multipath")}, family_flags); }
NEIGHBOR_FAMILY_LEAF(usemultiplepaths_config_enabled) { return presence_boolean_leaf(ctx, node, out, af("multipath"), "true"); }

NEIGHBOR_FAMILY_CONT(ipv6unicast)         { return family_container(ctx, node, out, {"ipv6-unicast", true}); }
NEIGHBOR_FAMILY_CONT(ipv4labeledunicast)  { return family_container(ctx, node, out, {"ipv4-labeled-unicast", false}); }
NEIGHBOR_FAMILY_CONT(ipv6labeledunicast)  { return family_container(ctx, node, out, {"ipv6-labeled-unicast", false}); }
NEIGHBOR_FAMILY_CONT(l3vpnipv4unicast)    { return family_container(ctx, node, out, {"l3vpn-ipv4-unicast", false}); }
NEIGHBOR_FAMILY_CONT(l3vpnipv6unicast)    { return family_container(ctx, node, out, {"l3vpn-ipv6-unicast", false}); }
NEIGHBOR_FAMILY_CONT(l3vpnipv4multicast)  { return family_container(ctx, node, out, {"l3vpn-ipv4-multicast", false}); }
NEIGHBOR_FAMILY_CONT(l3vpnipv6multicast)  { return family_container(ctx, node, out, {"l3vpn-ipv6-multicast", false}); }
NEIGHBOR_FAMILY_CONT(l2vpnvpls)           { return family_container(ctx, node, out, {"l2vpn-vpls", false}); }
NEIGHBOR_FAMILY_CONT(l2vpnevpn)           { return family_container(ctx, node, out, {"l2vpn-evpn", false}); }

NEIGHBOR_FAMILY_CONT(ipv4unicast_config)             { return selection(ctx, node, subtree_count, out, {af("default-originate/enable")}); }
NEIGHBOR_FAMILY_CONT(ipv6unicast_config)             { return selection(ctx, node, subtree_count, out, {af("default-originate/enable")}); }
NEIGHBOR_FAMILY_CONT(ipv4unicast_prefixlimit)        { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
NEIGHBOR_FAMILY_CONT(ipv6unicast_prefixlimit)        { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
NEIGHBOR_FAMILY_CONT(ipv4unicast_prefixlimit_config) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
NEIGHBOR_FAMILY_CONT(ipv6unicast_prefixlimit_config) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
// clang-format on
