// The live data of a neighbor.
#include "../vmf_map_oc_bgp_common/response_forms.h"
#include "../vmf_map_oc_bgp_common/zr_handlers.h"

// ---- The state add --------------------------------------------------------------------------

// A leaf below a `state` container: the container first, then the leaf under it. There is no copy below `config`, and a
// request that named a `config` gets none of it.
static uint32_t add_state(MapContext *ctx, Datatree *entry, const char *container, const char *leaf, const char *text)
{
    if (!wants_state(ctx)) return VMF_RC_OK;
    Datatree *state = nullptr;
    if (uint32_t bad = vmf_map_datatree_add_path(ctx, entry, container, OC_BGP_NS, nullptr, nullptr, &state, 0))
        return bad;
    return vmf_map_datatree_add_path(ctx, state, leaf, OC_BGP_NS, text, nullptr, nullptr, 0);
}

static uint32_t state_value(MapContext *ctx, Datatree *node, Datatree *mapped, const char *container, const char *leaf,
                            const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    return log_end(ctx, add_state(ctx, ctx->list_node, container, leaf, value_of(node)), at);
}

// The same below the neighbor's address family; one that was passed over has no entry.
static uint32_t family_state_value(MapContext *ctx, Datatree *node, Datatree *mapped, const char *leaf,
                                   const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    if (ctx->af_node == nullptr) return log_end(ctx, VMF_RC_OK, at);
    return log_end(ctx, add_state(ctx, ctx->af_node, "state", leaf, value_of(node)), at);
}

// ---- Session state --------------------------------------------------------------------------

static constexpr const char *session_states[][2] = {
    {"bgp-st-idle", "IDLE"},          {"bgp-st-connect", "CONNECT"},           {"bgp-st-active", "ACTIVE"},
    {"bgp-st-open-sent", "OPENSENT"}, {"bgp-st-open-conf-irm", "OPENCONFIRM"}, {"bgp-st-estab", "ESTABLISHED"},
};

// Null for a state that OpenConfig does not have: the leaf then stands without a value.
static const char *session_state(MapContext *ctx, const char *native, const At &at)
{
    for (const auto &state : session_states)
        if (native != nullptr && vmf_map_do_these_match(native, state[0]) != 0) return state[1];
    VMF_DBG(ctx, at, "session-state: %s is not a valid oc session-state", shown(native));
    return nullptr;
}

static uint32_t write_session_state(MapContext *ctx, const Datatree *node, const At &at)
{
    if (!wants_state(ctx)) return VMF_RC_OK;
    return add_state(ctx, ctx->list_node, "state", "session-state", session_state(ctx, value_of(node), at));
}

// ---- Capabilities ---------------------------------------------------------------------------

static bool is_true(const Datatree *node)
{
    const char *value = value_of(node);
    return value != nullptr && vmf_map_do_these_match(value, "true") != 0;
}

// On purpose: without the repeat flag, so that each capability meets the leaf of the one before, and the last one
// stands.
static uint32_t add_capability(MapContext *ctx, const char *capability)
{
    return add_state(ctx, ctx->list_node, "state", "supported-capabilities", capability);
}

static uint32_t capability(MapContext *ctx, Datatree *node, Datatree *mapped, const char *name, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    return log_end(ctx, is_true(node) ? add_capability(ctx, name) : uint32_t{VMF_RC_OK}, at);
}

// Four-byte ASes need both directions. On purpose: the flags are never cleared, and carry over to the neighbors after.
static uint32_t four_byte_as(MapContext *ctx, Datatree *node, Datatree *mapped, uint32_t Ctx::*direction,
                             const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    if (is_true(node)) ctx->*direction = 1;
    const bool both = ctx->four_byte_sent != 0 && ctx->four_byte_received != 0;
    return log_end(ctx, both ? add_capability(ctx, "ASN32") : uint32_t{VMF_RC_OK}, at);
}

// ---- Entries --------------------------------------------------------------------------------

// Meets the entry that the configuration may have made.
static uint32_t enter_neighbor(MapContext *ctx, const Datatree *node, Datatree *mapped)
{
    Datatree *neighbors = nullptr;
    Datatree *entry = nullptr;
    const char *address = value_of(node);
    if (uint32_t bad = write_text(ctx, mapped, oc("/bgp/neighbors"), nullptr, &neighbors)) return bad;
    if (uint32_t bad =
            vmf_map_datatree_add_list_node(ctx, neighbors, "neighbor", OC_BGP_NS, tag_of(node), address, &entry))
        return bad;
    if (uint32_t bad =
            vmf_map_datatree_add_path(ctx, entry, "neighbor-address", OC_BGP_NS, address, nullptr, nullptr, 0))
        return bad;
    ctx->list_node = entry;
    ctx->af_key = address;
    return VMF_RC_OK;
}

// The row of a family by its operational word.
static const char *openconfig_name(const char *operational)
{
    for (const auto &names : oc_zr_nbr_oper_af_names)
        if (operational != nullptr && vmf_map_do_these_match(operational, names[1]) != 0) return names[0];
    return nullptr;
}

static uint32_t name_family(MapContext *ctx, Datatree *mapped, const char *name)
{
    return write_family_name(ctx, mapped, held(oc_af("afi-safi-name")), name, "afi-safi/afi-safi-name");
}

static uint32_t enter_family(MapContext *ctx, const Datatree *node, Datatree *mapped, const At &at)
{
    if (ctx->list_node == nullptr) {
        VMF_ERR(ctx, at, "The parent list node does not exist!");
        return VMF_RC_BAD_TREE;
    }
    const char *native = value_of(node);
    Datatree *families = nullptr;
    const uint32_t outcome = write_text(ctx, mapped, oc_list("afi-safis"), nullptr, &families);
    if (outcome != VMF_RC_OK) return name_family(ctx, mapped, nullptr);  // on purpose: its outcome counts

    const char *name = openconfig_name(native);
    Datatree *entry = nullptr;
    if (name == nullptr || vmf_map_datatree_add_list_node(ctx, families, "afi-safi", OC_BGP_NS, "afi-safi-name", name,
                                                          &entry) != VMF_RC_OK) {
        VMF_ERR(ctx, at, "No OC AF mapping for zr AF '%s' - SKIP2 this AFI", shown(native));
        ctx->af_node = nullptr;
        ctx->af_name = nullptr;
        return outcome;
    }
    ctx->af_node = entry;
    ctx->af_name = native;
    return name_family(ctx, mapped, name);
}

// ---- The nodes ------------------------------------------------------------------------------

#define NBR_LEAF(path) ZR_OPER_LEAF(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_##path)

ZR_OPER_CONT(_instances_instance_instanceactive_defaultvrf_neighbors) { return silent(ctx, node, mapped); }

NBR_LEAF(neighboraddress)
{
    if (uint32_t bad = enter(ctx, node, mapped)) return bad;
    return log_end(ctx, enter_neighbor(ctx, node, mapped));
}

NBR_LEAF(afdata_afname)
{
    if (uint32_t bad = enter(ctx, node, mapped)) return bad;
    return log_end(ctx, enter_family(ctx, node, mapped, here()));
}

NBR_LEAF(connectionstate)
{
    if (uint32_t bad = enter(ctx, node, mapped)) return bad;
    return log_end(ctx, write_session_state(ctx, node, here()));
}

// clang-format off
NBR_LEAF(afdata_isneighborafcapable) { return family_state_value(ctx, node, mapped, "active"); }
NBR_LEAF(afdata_prefixesaccepted)    { return family_state_value(ctx, node, mapped, "prefixes/received"); }
NBR_LEAF(afdata_prefixesadvertised)  { return family_state_value(ctx, node, mapped, "prefixes/sent"); }

// The leaf of each family goes to the same place: the last one stands.
#define ADDRESS_LEAF(leaf) NBR_LEAF(connectionremoteaddress_##leaf) { return state_value(ctx, node, mapped, "transport/state", "remote-address"); }
ADDRESS_LEAF(ipv4address)
ADDRESS_LEAF(ipv4mcastaddress)
ADDRESS_LEAF(ipv4labeladdress)
ADDRESS_LEAF(ipv4vpnaddress)
ADDRESS_LEAF(ipv4vpnamcastddress)
ADDRESS_LEAF(ipv6address)
ADDRESS_LEAF(ipv6mcastaddress)
ADDRESS_LEAF(ipv6labeladdress)
ADDRESS_LEAF(ipv6vpnaddress)
ADDRESS_LEAF(ipv6vpnmcastaddress)

//                                                                                 container                leaf
NBR_LEAF(messagestatistics_notification_tx_count) { return state_value(ctx, node, mapped, "state",                  "messages/sent/NOTIFICATION"); }
NBR_LEAF(messagestatistics_notification_rx_count) { return state_value(ctx, node, mapped, "state",                  "messages/received/NOTIFICATION"); }
NBR_LEAF(messagestatistics_update_tx_count)       { return state_value(ctx, node, mapped, "state",                  "messages/sent/UPDATE"); }
NBR_LEAF(messagestatistics_update_rx_count)       { return state_value(ctx, node, mapped, "state",                  "messages/received/UPDATE"); }
NBR_LEAF(messagesqueuedin)                        { return state_value(ctx, node, mapped, "state",                  "queues/input"); }
NBR_LEAF(messagesqueuedout)                       { return state_value(ctx, node, mapped, "state",                  "queues/output"); }
NBR_LEAF(connectionlocalport)                     { return state_value(ctx, node, mapped, "transport/state",        "local-port"); }
NBR_LEAF(connectionremoteport)                    { return state_value(ctx, node, mapped, "transport/state",        "remote-port"); }
NBR_LEAF(holdtime)                                { return state_value(ctx, node, mapped, "timers/state",           "negotiated-hold-time"); }
NBR_LEAF(gracefulrestartenablednbr)               { return state_value(ctx, node, mapped, "graceful-restart/state", "enabled"); }
NBR_LEAF(grrestarttime)                           { return state_value(ctx, node, mapped, "graceful-restart/state", "peer-restart-time"); }

NBR_LEAF(isrouterefreshcapabilityreceived) { return capability(ctx, node, mapped, "ROUTE_REFRESH"); }
NBR_LEAF(isgraware)                        { return capability(ctx, node, mapped, "GRACEFUL_RESTART"); }
NBR_LEAF(multiprotocolcapabilityreceived)  { return capability(ctx, node, mapped, "MPBGP"); }
NBR_LEAF(is4byteascapabilityreceived)      { return four_byte_as(ctx, node, mapped, &Ctx::four_byte_received); }
NBR_LEAF(is4byteascapabilitysent)          { return four_byte_as(ctx, node, mapped, &Ctx::four_byte_sent); }
// clang-format on
