// `peer-groups`. A group has no session, so nothing here looks at operational data. Where a group parts from a neighbor
// it does so on purpose.
#include <cstring>

#include "peer.h"

static constexpr Native groups = cfg(ZR_BGP_ENTITY "/neighbor-groups");
static constexpr Native entry = cfg(ZR_BGP_ENTITY "/neighbor-groups/neighbor-group");
static constexpr Flags group_flags = {&Req::grp_no_config, &Req::grp_no_state};

// With children too.
OC_CONT(_peergroups)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    return log_end(ctx, add(ctx, out, groups, is_read(ctx) ? selection_only : from_node(node)));
}

// ---- The key --------------------------------------------------------------------------------

static uint32_t name_group(MapContext *ctx, const Datatree *node, Datatree *out)
{
    constexpr Native name = list("neighbor-group-name");
    switch (branch_of(ctx, node)) {
    case Branch::read: return add(ctx, out, name, {value_of(node), nullptr});
    case Branch::remove: return add(ctx, out, name, with_value(node));
    case Branch::write: break;
    }
    dropped(add(ctx, out, name, with_value(node)));
    return add(ctx, out, list("create"), selection_only);  // what makes the native group exist
}

GROUP_LEAF(peergroupname)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    enter_entry(ctx, node, out, entry);
    return log_end(ctx, name_group(ctx, node, out));
}

// ---- config ---------------------------------------------------------------------------------

static constexpr Native remote_as = direct(list("remote-as"));
static constexpr Native local_as = direct(list("local-as"));
static constexpr Native password = direct(list("password"));
static constexpr Native description = direct(list("description"));

static uint32_t read_config(MapContext *ctx, const Datatree *node, Datatree *out)
{
    const uint32_t outcome = add_until_failure(ctx, out, {remote_as, local_as, password, description}, from_node(node));
    ctx->request->grp_no_config = 0;
    return outcome;
}

static uint32_t map_config(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out)
{
    if (is_read(ctx) && subtree_count == 0)
        if (uint32_t bad = read_config(ctx, node, out)) return bad;
    if (vmf_map_is_request_delete(node) != 0) {
        if (ctx->list_node != nullptr) set_operation(ctx->list_node, node->operation);  // the group goes as a whole
        return VMF_RC_OK;
    }
    if (node->operation != VMF_OP_REPLACE) return VMF_RC_OK;
    return remove_all(ctx, node, out, {remote_as, local_as, password, description});
}

GROUP_CONT(config)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    const uint32_t outcome = map_config(ctx, node, subtree_count, out);
    ctx->request->grp_af_filter = 1;
    return log_end(ctx, outcome);
}

GROUP_LEAF(config_peeras)
{
    constexpr Native high = list("remote-as/as-xx");
    constexpr Native low = list("remote-as/as-yy");
    return branching_leaf(
        ctx, node, out,
        {.read = {lost(high), low}, .remove = {lost(high), low}, .write = {lost(fixed(high, "0")), low}},
        {&Req::grp_no_config});
}

GROUP_LEAF(config_authpassword)
{
    constexpr Native disable = list("password/password-disable");
    constexpr Native text = list("password/password");
    return branching_leaf(ctx, node, out,
                          {.read = {lost(disable), text},
                           .remove = {lost(disable), text},
                           .write = {lost(fixed(disable, "false")), text}});
}

// ---- state ----------------------------------------------------------------------------------

GROUP_CONT(state)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    uint32_t outcome = VMF_RC_OK;
    if (maps_itself(ctx, subtree_count, here()))
        outcome = add_until_failure(ctx, out, {remote_as, local_as, password, description}, from_node(node));
    if (outcome == VMF_RC_OK && ctx->list_child_count < 3) {
        ctx->request->grp_af_filter = 1;
        ctx->request->grp_no_state = 0;
    }
    return log_end(ctx, outcome);
}

// ---- timers ---------------------------------------------------------------------------------

GROUP_CONT(timers)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    uint32_t outcome = VMF_RC_OK;
    if (maps_itself(ctx, subtree_count, here())) outcome = map_timers(ctx, node, out);
    raise_flags(ctx, group_flags);
    return log_end(ctx, outcome);
}

GROUP_CONT(timers_state)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    if (!maps_itself(ctx, subtree_count, here())) return log_end(ctx, VMF_RC_OK);
    return log_end(ctx, select_rows(ctx, out, {list("timers"), list("advertisement-interval/minimum-interval")}));
}

// ---- transport ------------------------------------------------------------------------------

GROUP_CONT(transport)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    uint32_t outcome = VMF_RC_OK;
    if (maps_itself(ctx, subtree_count, here())) outcome = map_transport(ctx, node, out, peer_group, here());
    raise_flags(ctx, group_flags);
    return log_end(ctx, outcome);
}

// The whole address and the interface, as the leaf below names them.
GROUP_CONT(transport_state)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    if (!maps_itself(ctx, subtree_count, here())) return log_end(ctx, VMF_RC_OK);
    return log_end(ctx, select_rows(ctx, out,
                                    {list("session-open-mode"), list("tcpmss/mss"), list("local-address"),
                                     direct(list("update-source-interface"))}));
}

GROUP_LEAF(transport_state_localaddress)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    return log_end(ctx,
                   select_rows(ctx, out, {direct(list("local-address")), direct(list("update-source-interface"))}));
}

// ---- route-reflector ------------------------------------------------------------------------

GROUP_CONT(routereflector)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    raise_flags(ctx, {&Req::grp_no_config, &Req::grp_no_state, &Req::grp_af_filter});
    return log_end(ctx, map_route_reflector(ctx, node, subtree_count, out, peer_group, node, here()));
}

GROUP_CONT(routereflector_config)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    ctx->request->grp_af_filter = 1;
    return log_end(ctx, map_route_reflector(ctx, node, subtree_count, out, peer_group, nullptr, here()));
}

GROUP_CONT(routereflector_state)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    ctx->request->grp_af_filter = 1;
    return log_end(ctx, select_route_reflector(ctx, subtree_count, out, peer_group, here()));
}

// ---- graceful-restart -----------------------------------------------------------------------

GROUP_CONT(gracefulrestart)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    raise_flags(ctx, group_flags);
    return log_end(ctx, map_graceful_restart(ctx, node, subtree_count, out, {false, true, nullptr}, here()));
}

GROUP_CONT(gracefulrestart_config)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    return log_end(ctx, map_graceful_restart(ctx, node, subtree_count, out, {false, false, nullptr}, here()));
}

// A time that is named switches graceful restart on; its removal leaves that as it is.
static uint32_t restart_time(MapContext *ctx, Datatree *node, Datatree *out, const char *path, const At &at = here())
{
    constexpr Native flag = list("neighbor-graceful-restart");
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    const Branch branch = branch_of(ctx, node);
    if (branch != Branch::remove) {
        const Given given = {branch == Branch::write ? "false" : nullptr, nullptr};
        if (uint32_t bad = add(ctx, out, flag, given)) return log_end(ctx, bad, at);
    }
    return log_end(ctx, add(ctx, out, list(path), leaf_gives(ctx, node)), at);
}

static uint32_t selected_restart_time(MapContext *ctx, Datatree *node, Datatree *out, const char *path,
                                      const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    return log_end(ctx, select_rows(ctx, out, {list("neighbor-graceful-restart"), list(path)}), at);
}

// ---- The nodes that are a row ---------------------------------------------------------------

// clang-format off
GROUP_LEAF(config_peergroupname) { return twin_leaf(ctx, node, out, &Ctx::list_node, {list("neighbor-group-name"), list("create")}, {&Req::key_leaf_named}); }
GROUP_LEAF(state_peergroupname)  { return state_flag_leaf(ctx, node, out, {list("neighbor-group-name"), list("create")},            {&Req::key_leaf_named}); }
GROUP_LEAF(config_description)   { return plain_flag_leaf(ctx, node, out, list("description"), {&Req::grp_no_config}); }
GROUP_LEAF(state_description)    { return state_flag_leaf(ctx, node, out, list("description"), {&Req::grp_no_state}); }
GROUP_LEAF(state_peeras)         { return state_flag_leaf(ctx, node, out, list("remote-as"),   {&Req::grp_no_state}); }

GROUP_CONT(timers_config)                              { return timers_config(ctx, node, subtree_count, out); }
GROUP_LEAF(timers_config_minimumadvertisementinterval) { return minimum_advertisement_interval(ctx, node, out); }
GROUP_LEAF(timers_state_minimumadvertisementinterval)  { return state_leaf(ctx, node, out, {list("advertisement-interval/minimum-interval")}); }

GROUP_CONT(transport_config)              { return transport_config(ctx, node, subtree_count, out, peer_group); }
GROUP_LEAF(transport_config_tcpmss)       { return plain_leaf(ctx, node, out, list("tcpmss/mss")); }
GROUP_LEAF(transport_config_passivemode)  { return passive_mode(ctx, node, out); }
GROUP_LEAF(transport_config_localaddress) { return local_address(ctx, node, out, peer_group); }
GROUP_LEAF(transport_state_tcpmss)        { return state_leaf(ctx, node, out, {list("tcpmss/mss")}); }

GROUP_CONT(ebgpmultihop)                    { return flagging_selection(ctx, node, subtree_count, out, {list("ebgp-multihop")}, group_flags); }
GROUP_LEAF(ebgpmultihop_config_multihopttl) { return multihop_ttl(ctx, node, out); }
GROUP_LEAF(ebgpmultihop_state_enabled)      { return state_leaf(ctx, node, out, {list("ebgp-multihop/max-hop-count")}); }

GROUP_LEAF(routereflector_config_routereflectorclusterid) { return cluster_id(ctx, node, out); }
GROUP_LEAF(routereflector_state_routereflectorclusterid)  { return state_leaf(ctx, node, out, {list("neighbor-cluster-id")}); }

GROUP_CONT(gracefulrestart_state)                  { return state_selection(ctx, node, subtree_count, out, {list("neighbor-graceful-restart"), list("neighbor-graceful-restart-time"), list("neighbor-graceful-restart-stalepath-time")}); }
GROUP_LEAF(gracefulrestart_config_enabled)         { return graceful_restart_enabled(ctx, node, out); }
GROUP_LEAF(gracefulrestart_config_restarttime)     { return restart_time(ctx, node, out, "neighbor-graceful-restart-time"); }
GROUP_LEAF(gracefulrestart_config_staleroutestime) { return restart_time(ctx, node, out, "neighbor-graceful-restart-stalepath-time"); }
GROUP_LEAF(gracefulrestart_state_restarttime)      { return selected_restart_time(ctx, node, out, "neighbor-graceful-restart-time"); }
GROUP_LEAF(gracefulrestart_state_staleroutestime)  { return selected_restart_time(ctx, node, out, "neighbor-graceful-restart-stalepath-time"); }
// clang-format on
