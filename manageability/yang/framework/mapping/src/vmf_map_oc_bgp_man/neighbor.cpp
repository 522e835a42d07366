// `neighbors`, the neighbor's entry and all below it but its families. What a neighbor has been told lies in the native
// configuration, what it does in the operational data.
#include "neighbor.h"

static constexpr Native neighbors = cfg(ZR_BGP_ENTITY "/neighbors");
static constexpr Native entry = cfg(ZR_BGP_ENTITY "/neighbors/neighbor");
static constexpr Native oper_entry = oper(ZR_BGP_OPER_DEFAULT_VRF "/neighbors/neighbor");

#define COUNTERS(handler) vmf_map_cont_oc_bgp_neighbors_neighbor_##handler
#define LEAF(handler) vmf_map_leaf_oc_bgp_neighbors_neighbor_##handler

// ---- What a neighbor does -------------------------------------------------------------------

static uint32_t select_endpoints(MapContext *ctx, Datatree *node, Datatree *out)
{
    if (uint32_t bad = LEAF(transport_state_localport)(ctx, node, out)) return bad;
    if (uint32_t bad = LEAF(transport_state_remoteaddress)(ctx, node, out)) return bad;
    return LEAF(transport_state_remoteport)(ctx, node, out);
}

static uint32_t select_session(MapContext *ctx, Datatree *node, Datatree *out)
{
    if (uint32_t bad = LEAF(state_sessionstate)(ctx, node, out)) return bad;
    if (uint32_t bad = LEAF(state_supportedcapabilities)(ctx, node, out)) return bad;
    if (uint32_t bad = COUNTERS(state_messages)(ctx, node, 0, out)) return bad;
    return COUNTERS(state_queues)(ctx, node, 0, out);
}

static uint32_t select_operational(MapContext *ctx, Datatree *node, Datatree *out)
{
    if (uint32_t bad = select_session(ctx, node, out)) return bad;
    if (uint32_t bad = LEAF(timers_state_negotiatedholdtime)(ctx, node, out)) return bad;
    if (uint32_t bad = select_endpoints(ctx, node, out)) return bad;
    if (uint32_t bad = LEAF(gracefulrestart_state_peerrestarttime)(ctx, node, out)) return bad;
    return select_live_families(ctx, node, out);
}

// Everything that a neighbor does. The handlers that it calls have narrowed the answer to what they name; the request
// has named all.
static uint32_t select_all_operational(MapContext *ctx, Datatree *node, Datatree *out)
{
    const uint32_t outcome = select_operational(ctx, node, out);
    ctx->request->nbr_no_state = 0;
    ctx->request->nbr_af_no_state = 0;
    return outcome;
}

// ---- neighbors ------------------------------------------------------------------------------

static uint32_t select_neighbors(MapContext *ctx, Datatree *node, Datatree *out)
{
    if (uint32_t bad = add(ctx, out, neighbors, selection_only)) return bad;
    if (!is_get(ctx)) return VMF_RC_OK;
    ctx->oper_wanted_in_state = 1;
    Datatree *all = nullptr;  // without a key: all neighbors
    if (uint32_t bad = add(ctx, out, oper_entry, selection_only, &all)) return bad;
    ctx->oper_list_node = all;
    return select_all_operational(ctx, node, out);
}

OC_CONT(_neighbors)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    if (!is_read(ctx)) return log_end(ctx, add(ctx, out, neighbors, from_node(node)));
    return log_end(ctx, subtree_count == 0 ? select_neighbors(ctx, node, out) : uint32_t{VMF_RC_OK});
}

// ---- The key --------------------------------------------------------------------------------

static uint32_t select_operational_entry(MapContext *ctx, Datatree *node, Datatree *out, const At &at)
{
    Datatree *added = nullptr;
    if (uint32_t bad = add(ctx, out, repeated(oper_entry), selection_only, &added)) return bad;
    ctx->oper_list_node = added;
    ctx->oper_key = value_of(node);
    if (uint32_t bad = add(ctx, out, oper_list("neighbor-address"), {value_of(node), nullptr})) return bad;
    if (ctx->list_child_count != 1) return VMF_RC_OK;
    VMF_TRC(ctx, at, "Only list key was specified. Need to map all supported oper nodes.");
    raise_flags(ctx, {&Ctx::oper_wanted_in_state, &Req::oper_wanted});
    return select_all_operational(ctx, node, out);
}

static uint32_t name_neighbor(MapContext *ctx, Datatree *node, Datatree *out, const At &at)
{
    if (!is_read(ctx)) return add(ctx, out, list("neighbor-address"), with_value(node));
    if (uint32_t bad = add(ctx, out, list("neighbor-address"), {value_of(node), nullptr})) return bad;
    return is_get(ctx) ? select_operational_entry(ctx, node, out, at) : uint32_t{VMF_RC_OK};
}

NEIGHBOR_LEAF(neighboraddress)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    enter_entry(ctx, node, out, entry);
    return log_end(ctx, name_neighbor(ctx, node, out, here()));
}

// ---- config ---------------------------------------------------------------------------------

static uint32_t map_config(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out)
{
    if (is_read(ctx) && subtree_count == 0) {
        const uint32_t outcome = add_until_failure(ctx, out,
                                                   {list("remote-as"), list("local-as"), list("password"),
                                                    list("description"), list("neighbor-group-add-member")},
                                                   selection_only);
        if (outcome != VMF_RC_OK) return outcome;
    }
    // The operation counts here whatever its bit says.
    if (node->operation == VMF_OP_DELETE || node->operation == VMF_OP_REMOVE) {
        if (ctx->list_node != nullptr) set_operation(ctx->list_node, node->operation);  // the neighbor goes as a whole
        return VMF_RC_OK;
    }
    if (node->operation != VMF_OP_REPLACE) return VMF_RC_OK;
    return remove_all(ctx, node, out,
                      {direct(list("remote-as")), direct(list("local-as")), direct(list("password")),
                       direct(list("description")), direct(list("neighbor-group-add-member"))});
}

NEIGHBOR_CONT(config)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    const uint32_t outcome = map_config(ctx, node, subtree_count, out);
    raise_flags(ctx, {&Req::nbr_af_filter, &Req::nbr_no_state});
    return log_end(ctx, outcome);
}

// An AS number is never split: the low half holds the whole of it.
NEIGHBOR_LEAF(config_peeras)
{
    return branching_leaf(ctx, node, out,
                          {.read = {list("remote-as")},
                           .remove = {list("remote-as")},
                           .write = {fixed(list("remote-as/as-xx"), "0"), list("remote-as/as-yy")}},
                          {&Req::nbr_no_config});
}

NEIGHBOR_LEAF(config_localas)
{
    return branching_leaf(ctx, node, out,
                          {.read = {list("local-as")},
                           .remove = {list("local-as")},
                           .write = {lost(fixed(list("local-as/as-xx"), "0")), list("local-as/as-yy")}},
                          {&Req::nbr_no_config});
}

NEIGHBOR_LEAF(config_authpassword)
{
    return branching_leaf(
        ctx, node, out,
        {.read = {list("password")},
         .remove = {list("password")},
         .write = {lost(fixed(list("password/password-disable"), "false")), list("password/password")}},
        {&Req::nbr_no_config});
}

NEIGHBOR_LEAF(config_neighboraddress)
{
    return twin_leaf(
        ctx, node, out, &Ctx::list_node,
        {list("neighbor-address"), list("remote-as"), list("description"), list("neighbor-group-add-member")},
        {&Req::key_leaf_named});
}

// ---- state ----------------------------------------------------------------------------------

static uint32_t select_state(MapContext *ctx, Datatree *node, Datatree *out)
{
    raise_flags(ctx, {&Ctx::oper_wanted_in_state, &Req::oper_wanted});
    const uint32_t outcome = add_all(
        ctx, out,
        {list("remote-as"), list("local-as"), list("password"), list("description"), list("neighbor-group-add-member")},
        selection_only);
    return outcome != VMF_RC_OK ? outcome : select_session(ctx, node, out);
}

NEIGHBOR_CONT(state)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    uint32_t outcome = VMF_RC_OK;
    if (maps_itself(ctx, subtree_count, here())) {
        outcome = select_state(ctx, node, out);
        ctx->request->nbr_no_state = 0;
    }
    // A request for little more than this gets no families that it does not name.
    if (outcome == VMF_RC_OK && ctx->list_child_count < 3) ctx->request->nbr_af_filter = 1;
    ctx->request->nbr_no_config = 1;
    return log_end(ctx, outcome);
}

NEIGHBOR_LEAF(state_neighboraddress)
{
    return state_flag_leaf(
        ctx, node, out,
        {list("neighbor-address"), list("remote-as"), list("description"), list("neighbor-group-add-member")},
        {&Req::key_leaf_named});
}

NEIGHBOR_LEAF(state_supportedcapabilities)
{
    return state_flag_leaf(ctx, node, out,
                           {lost(repeated(oper_list("is-route-refresh-capability-received"))),
                            lost(repeated(oper_list("is-gr-aware"))),
                            lost(repeated(oper_list("is4-byte-as-capability-received"))),
                            lost(repeated(oper_list("is4-byte-as-capability-sent"))),
                            repeated(oper_list("multi-protocol-capability-received"))},
                           {&Req::oper_wanted, &Req::nbr_no_state});
}

// Counters of messages in one direction, below the node that holds both.
static uint32_t select_messages(MapContext *ctx, Datatree *out, const char *updates, const char *notifications)
{
    Datatree *statistics = nullptr;
    if (uint32_t bad = add(ctx, out, oper_list("message-statistics"), selection_only, &statistics)) return bad;
    if (uint32_t bad = add_to(ctx, statistics, updates, selection_only, nullptr, ZR_BGP_OPER_NS)) return bad;
    return add_to(ctx, statistics, notifications, selection_only, nullptr, ZR_BGP_OPER_NS);
}

static uint32_t messages(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out, const char *updates,
                         const char *notifications, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    if (!maps_itself(ctx, subtree_count, at)) return log_end(ctx, VMF_RC_OK, at);
    const uint32_t outcome = select_messages(ctx, out, updates, notifications);
    ctx->request->oper_wanted = 1;
    return log_end(ctx, outcome, at);
}

NEIGHBOR_CONT(state_messages_sent)
{
    return messages(ctx, node, subtree_count, out, "update/tx/count", "notification/tx/count");
}

NEIGHBOR_CONT(state_messages_received)
{
    return messages(ctx, node, subtree_count, out, "update/rx/count", "notification/rx/count");
}

// Both kinds of counters of a neighbor.
static uint32_t counters(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out, RowList rows,
                         const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    uint32_t outcome = VMF_RC_OK;
    if (maps_itself(ctx, subtree_count, at)) {
        outcome = select_rows(ctx, out, rows);
        ctx->request->oper_wanted = 1;
    }
    ctx->request->nbr_no_state = 1;
    return log_end(ctx, outcome, at);
}

NEIGHBOR_CONT(state_messages) { return counters(ctx, node, subtree_count, out, {oper_list("message-statistics")}); }

NEIGHBOR_CONT(state_queues)
{
    return counters(ctx, node, subtree_count, out,
                    {lost(oper_list("messages-queued-in")), oper_list("messages-queued-out")});
}

// ---- timers ---------------------------------------------------------------------------------

static uint32_t select_negotiated(MapContext *ctx, Datatree *node, Datatree *out)
{
    raise_flags(ctx, {&Ctx::oper_wanted_in_state, &Req::oper_wanted});
    return LEAF(timers_state_negotiatedholdtime)(ctx, node, out);
}

static uint32_t map_all_timers(MapContext *ctx, Datatree *node, Datatree *out)
{
    if (uint32_t bad = map_timers(ctx, node, out)) return bad;
    return is_get(ctx) ? select_negotiated(ctx, node, out) : uint32_t{VMF_RC_OK};
}

NEIGHBOR_CONT(timers)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    uint32_t outcome = VMF_RC_OK;
    if (maps_itself(ctx, subtree_count, here())) outcome = map_all_timers(ctx, node, out);
    raise_flags(ctx, {&Req::nbr_no_config, &Req::nbr_no_state});
    return log_end(ctx, outcome);
}

static uint32_t select_timers_state(MapContext *ctx, Datatree *node, Datatree *out)
{
    if (uint32_t bad = select_rows(ctx, out, {list("timers"), list("advertisement-interval/minimum-interval")}))
        return bad;
    return select_negotiated(ctx, node, out);
}

NEIGHBOR_CONT(timers_state)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    if (!maps_itself(ctx, subtree_count, here())) return log_end(ctx, VMF_RC_OK);
    return log_end(ctx, select_timers_state(ctx, node, out));
}

// ---- transport ------------------------------------------------------------------------------

static uint32_t select_all_endpoints(MapContext *ctx, Datatree *node, Datatree *out)
{
    raise_flags(ctx, {&Ctx::oper_wanted_in_state, &Req::oper_wanted});
    return select_endpoints(ctx, node, out);
}

static uint32_t map_all_transport(MapContext *ctx, Datatree *node, Datatree *out, const At &at)
{
    if (uint32_t bad = map_transport(ctx, node, out, neighbor, at)) return bad;
    return is_get(ctx) ? select_all_endpoints(ctx, node, out) : uint32_t{VMF_RC_OK};
}

NEIGHBOR_CONT(transport)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    uint32_t outcome = VMF_RC_OK;
    if (maps_itself(ctx, subtree_count, here())) outcome = map_all_transport(ctx, node, out, here());
    raise_flags(ctx, {&Req::nbr_no_config, &Req::nbr_no_state});
    return log_end(ctx, outcome);
}

// On purpose: the two levels of the address, and no interface. The leaf below names the whole of both.
static uint32_t select_transport_state(MapContext *ctx, Datatree *node, Datatree *out)
{
    if (uint32_t bad = select_rows(ctx, out,
                                   {list("session-open-mode"), direct(list("tcpmss/mss")),
                                    direct(list("local-address/local-address-disable")),
                                    direct(list("local-address/local-ip-address"))}))
        return bad;
    return select_all_endpoints(ctx, node, out);
}

NEIGHBOR_CONT(transport_state)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    if (!maps_itself(ctx, subtree_count, here())) return log_end(ctx, VMF_RC_OK);
    return log_end(ctx, select_transport_state(ctx, node, out));
}

// A selection that tells the framework of operational data, if it could be made.
static uint32_t live_leaf(MapContext *ctx, Datatree *node, Datatree *out, RowList rows, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    const uint32_t outcome = select_rows(ctx, out, rows);
    if (outcome == VMF_RC_OK) ctx->oper_wanted_in_state = 1;
    return log_end(ctx, outcome, at);
}

NEIGHBOR_LEAF(transport_state_tcpmss) { return live_leaf(ctx, node, out, {list("tcpmss/mss")}); }
NEIGHBOR_LEAF(transport_state_passivemode) { return live_leaf(ctx, node, out, {direct(list("session-open-mode"))}); }
NEIGHBOR_LEAF(transport_state_localaddress)
{
    return live_leaf(ctx, node, out, {direct(list("local-address")), direct(list("update-source-interface"))});
}

// The native model keeps an address in the leaf of its family; without a key to tell the family by, both are asked for.
static uint32_t select_remote_address(MapContext *ctx, Datatree *out)
{
    constexpr Native ipv4 = oper_list("connection-remote-address/ipv4-address");
    constexpr Native ipv6 = oper_list("connection-remote-address/ipv6-address");
    if (ctx->oper_key == nullptr) return select_rows(ctx, out, {lost(ipv4), ipv6});
    return add(ctx, out, vmf_map_is_valid_ipv4_addr(ctx->oper_key) != 0 ? ipv4 : ipv6, selection_only);
}

NEIGHBOR_LEAF(transport_state_remoteaddress)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    const uint32_t outcome = select_remote_address(ctx, out);
    ctx->request->oper_wanted = 1;
    return log_end(ctx, outcome);
}

// ---- route-reflector ------------------------------------------------------------------------

NEIGHBOR_CONT(routereflector)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    raise_flags(ctx, {&Req::nbr_no_config, &Req::nbr_no_state, &Req::nbr_af_filter});
    return log_end(ctx, map_route_reflector(ctx, node, subtree_count, out, neighbor, node, here()));
}

NEIGHBOR_CONT(routereflector_config)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    return log_end(ctx, map_route_reflector(ctx, node, subtree_count, out, neighbor, nullptr, here()));
}

NEIGHBOR_CONT(routereflector_state)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    return log_end(ctx, select_route_reflector(ctx, subtree_count, out, neighbor, here()));
}

// ---- graceful-restart -----------------------------------------------------------------------

NEIGHBOR_CONT(gracefulrestart)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    raise_flags(ctx, {&Req::nbr_no_config, &Req::nbr_no_state});
    const RestartFlag flag = {true, true, LEAF(gracefulrestart_state_peerrestarttime)};
    return log_end(ctx, map_graceful_restart(ctx, node, subtree_count, out, flag, here()));
}

NEIGHBOR_CONT(gracefulrestart_config)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    return log_end(ctx, map_graceful_restart(ctx, node, subtree_count, out, {true, true, nullptr}, here()));
}

NEIGHBOR_CONT(gracefulrestart_state)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    if (!maps_itself(ctx, subtree_count, here())) return log_end(ctx, VMF_RC_OK);
    const uint32_t outcome = select_rows(ctx, out,
                                         {list("neighbor-graceful-restart"), list("neighbor-graceful-restart-time"),
                                          list("neighbor-graceful-restart-stalepath-time"),
                                          oper_list("graceful-restart-enabled-nbr"), oper_list("gr-restart-time")});
    raise_flags(ctx, {&Ctx::oper_wanted_in_state, &Req::oper_wanted});
    return log_end(ctx, outcome);
}

// A request that names a `config` gets no state that mirrors it, so nothing is asked for.
static uint32_t mirrored_leaf(MapContext *ctx, Datatree *node, Datatree *out, const Native &native,
                              const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    uint32_t outcome = VMF_RC_OK;
    if (ctx->request->config_named == 0) outcome = add(ctx, out, native, selection_only);
    ctx->oper_wanted_in_state = 1;
    return log_end(ctx, outcome, at);
}

// ---- The nodes that are a row ---------------------------------------------------------------

// clang-format off
NEIGHBOR_LEAF(config_description) { return plain_flag_leaf(ctx, node, out, list("description"),               {&Req::nbr_no_config}); }
NEIGHBOR_LEAF(config_peergroup)   { return plain_flag_leaf(ctx, node, out, list("neighbor-group-add-member"), {&Req::nbr_no_config}); }

//                                                                          native path                        raises
NEIGHBOR_LEAF(state_peeras)       { return state_flag_leaf(ctx, node, out, list("remote-as"),                 {&Req::nbr_no_state}); }
NEIGHBOR_LEAF(state_localas)      { return state_flag_leaf(ctx, node, out, list("local-as"),                  {&Req::nbr_no_state}); }
NEIGHBOR_LEAF(state_authpassword) { return state_flag_leaf(ctx, node, out, list("password"),                  {&Req::nbr_no_state}); }
NEIGHBOR_LEAF(state_description)  { return state_flag_leaf(ctx, node, out, list("description"),               {&Req::nbr_no_state}); }
NEIGHBOR_LEAF(state_peergroup)    { return state_flag_leaf(ctx, node, out, list("neighbor-group-add-member"), {&Req::nbr_no_state}); }
NEIGHBOR_LEAF(state_sessionstate) { return state_flag_leaf(ctx, node, out, oper_list("connection-state"),     {&Req::oper_wanted, &Req::nbr_no_state}); }

NEIGHBOR_LEAF(state_queues_input)                   { return state_flag_leaf(ctx, node, out, oper_list("messages-queued-in"),                       {&Req::oper_wanted}); }
NEIGHBOR_LEAF(state_queues_output)                  { return state_flag_leaf(ctx, node, out, oper_list("messages-queued-out"),                      {&Req::oper_wanted}); }
NEIGHBOR_LEAF(state_messages_sent_UPDATE)           { return state_flag_leaf(ctx, node, out, oper_list("message-statistics/update/tx/count"),       {&Req::oper_wanted}); }
NEIGHBOR_LEAF(state_messages_sent_NOTIFICATION)     { return state_flag_leaf(ctx, node, out, oper_list("message-statistics/notification/tx/count"), {&Req::oper_wanted}); }
NEIGHBOR_LEAF(state_messages_received_UPDATE)       { return state_flag_leaf(ctx, node, out, oper_list("message-statistics/update/rx/count"),       {&Req::oper_wanted}); }
NEIGHBOR_LEAF(state_messages_received_NOTIFICATION) { return state_flag_leaf(ctx, node, out, oper_list("message-statistics/notification/rx/count"), {&Req::oper_wanted}); }

NEIGHBOR_CONT(timers_config)                           { return timers_config(ctx, node, subtree_count, out); }
NEIGHBOR_LEAF(timers_config_minimumadvertisementinterval) { return minimum_advertisement_interval(ctx, node, out); }
NEIGHBOR_LEAF(timers_state_holdtime)                   { return state_flag_leaf(ctx, node, out, list("timers/hold-time"),                        {&Ctx::oper_wanted_in_state}); }
NEIGHBOR_LEAF(timers_state_keepaliveinterval)          { return state_flag_leaf(ctx, node, out, list("timers/keepalive-interval"),               {&Ctx::oper_wanted_in_state}); }
NEIGHBOR_LEAF(timers_state_minimumadvertisementinterval) { return state_flag_leaf(ctx, node, out, list("advertisement-interval/minimum-interval"), {&Ctx::oper_wanted_in_state}); }
NEIGHBOR_LEAF(timers_state_negotiatedholdtime)         { return state_flag_leaf(ctx, node, out, oper_list("hold-time"),                          {&Req::oper_wanted}); }

NEIGHBOR_CONT(transport_config)              { return transport_config(ctx, node, subtree_count, out, neighbor); }
NEIGHBOR_LEAF(transport_config_tcpmss)       { return plain_leaf(ctx, node, out, list("tcpmss/mss")); }
NEIGHBOR_LEAF(transport_config_passivemode)  { return passive_mode(ctx, node, out); }
NEIGHBOR_LEAF(transport_config_localaddress) { return local_address(ctx, node, out, neighbor); }
NEIGHBOR_LEAF(transport_state_localport)     { return state_flag_leaf(ctx, node, out, oper_list("connection-local-port"),  {&Req::oper_wanted}); }
NEIGHBOR_LEAF(transport_state_remoteport)    { return state_flag_leaf(ctx, node, out, oper_list("connection-remote-port"), {&Req::oper_wanted}); }

NEIGHBOR_CONT(ebgpmultihop)                    { return flagging_selection(ctx, node, subtree_count, out, {list("ebgp-multihop")}, {&Req::nbr_no_config, &Req::nbr_no_state}); }
NEIGHBOR_CONT(ebgpmultihop_config)             { return selection(ctx, node, subtree_count, out, {list("ebgp-multihop")}); }
NEIGHBOR_LEAF(ebgpmultihop_config_multihopttl) { return multihop_ttl(ctx, node, out); }
NEIGHBOR_LEAF(ebgpmultihop_state_enabled)      { return state_leaf(ctx, node, out, {list("ebgp-multihop/max-hop-count")}); }

NEIGHBOR_LEAF(routereflector_config_routereflectorclusterid) { return cluster_id(ctx, node, out); }
NEIGHBOR_LEAF(routereflector_state_routereflectorclusterid)  { return state_leaf(ctx, node, out, {list("neighbor-cluster-id")}); }

NEIGHBOR_LEAF(gracefulrestart_config_enabled)         { return graceful_restart_enabled(ctx, node, out); }
NEIGHBOR_LEAF(gracefulrestart_config_restarttime)     { return plain_leaf(ctx, node, out, list("neighbor-graceful-restart-time")); }
NEIGHBOR_LEAF(gracefulrestart_config_staleroutestime) { return plain_leaf(ctx, node, out, list("neighbor-graceful-restart-stalepath-time")); }
NEIGHBOR_LEAF(gracefulrestart_state_restarttime)      { return mirrored_leaf(ctx, node, out, list("neighbor-graceful-restart-time")); }
NEIGHBOR_LEAF(gracefulrestart_state_staleroutestime)  { return mirrored_leaf(ctx, node, out, list("neighbor-graceful-restart-stalepath-time")); }
NEIGHBOR_LEAF(gracefulrestart_state_peerrestarttime)  { return state_flag_leaf(ctx, node, out, oper_list("gr-restart-time"), {&Req::oper_wanted}); }
// clang-format on
