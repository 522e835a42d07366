#include "peer.h"

#include <strings.h>

#include <cstring>

// ---- Entry ----------------------------------------------------------------------------------

void enter_entry(MapContext *ctx, const Datatree *node, Datatree *out, const Native &entry)
{
    Datatree *added = nullptr;
    if (add(ctx, out, repeated(entry), selection_only, &added) != VMF_RC_OK) return;
    take_list_operation(ctx, added);
    ctx->list_node = added;
    ctx->af_key = value_of(node);
}

// ---- Timers ---------------------------------------------------------------------------------

uint32_t map_timers(MapContext *ctx, Datatree *node, Datatree *out)
{
    switch (branch_of(ctx, node)) {
    case Branch::read: return select_rows(ctx, out, {list("timers"), list("advertisement-interval/minimum-interval")});
    case Branch::remove: return remove_all(ctx, node, out, {list("timers"), list("advertisement-interval")});
    case Branch::write: break;
    }
    return add(ctx, out, list("timers"), selection_only);
}

uint32_t timers_config(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    if (!maps_itself(ctx, subtree_count, at)) return log_end(ctx, VMF_RC_OK, at);
    return log_end(ctx, map_timers(ctx, node, out), at);
}

uint32_t minimum_advertisement_interval(MapContext *ctx, Datatree *node, Datatree *out, const At &at)
{
    constexpr Native interval = list("advertisement-interval/minimum-interval");
    return branching_leaf(
        ctx, node, out, {.read = {interval}, .remove = {list("advertisement-interval")}, .write = {interval}}, {}, at);
}

// ---- Transport ------------------------------------------------------------------------------

static constexpr Native update_source = direct(list("update-source-interface"));

uint32_t map_transport(MapContext *ctx, Datatree *node, Datatree *out, const Peer &peer, const At &at)
{
    switch (branch_of(ctx, node)) {
    case Branch::read:
        return select_rows(ctx, out,
                           {list("session-open-mode"), list("tcpmss/mss"), list("local-address"), update_source});
    case Branch::remove:
        return remove_all(ctx, node, out,
                          {list("session-open-mode"), list("tcpmss/mss"), list("local-address"), update_source});
    case Branch::write: VMF_TRC(ctx, at, "%s", peer.says_when_written); break;
    }
    return VMF_RC_OK;
}

uint32_t transport_config(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out, const Peer &peer,
                          const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    if (!maps_itself(ctx, subtree_count, at)) return log_end(ctx, VMF_RC_OK, at);
    return log_end(ctx, map_transport(ctx, node, out, peer, at), at);
}

static uint32_t write_passive_mode(MapContext *ctx, Datatree *node, Datatree *out, const At &at)
{
    const char *value = value_of(node);
    const char *mode = nullptr;
    if (value != nullptr && strcasecmp(value, "true") == 0) mode = "passive-only";
    if (value != nullptr && strcasecmp(value, "false") == 0) mode = "active-only";
    if (mode == nullptr) {
        VMF_ERR(ctx, at, "The value of passive-mode is invalid.");
        return VMF_RC_BAD_ARGS;
    }
    return add(ctx, out, list("session-open-mode"), constant(mode, node));
}

uint32_t passive_mode(MapContext *ctx, Datatree *node, Datatree *out, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    uint32_t outcome = VMF_RC_OK;
    switch (branch_of(ctx, node)) {
    case Branch::read: outcome = add(ctx, out, list("session-open-mode"), selection_only); break;
    case Branch::remove: outcome = add(ctx, out, list("session-open-mode"), from_node(node)); break;
    case Branch::write: outcome = write_passive_mode(ctx, node, out, at); break;
    }
    return log_end(ctx, outcome, at);
}

static constexpr Native whole_local_address = direct(list("local-address"));

static uint32_t write_address(MapContext *ctx, Datatree *node, Datatree *out)
{
    if (uint32_t bad = add(ctx, out, direct(list("local-address/local-address-disable")), constant("false", node)))
        return bad;
    if (uint32_t bad = add(ctx, out, direct(list("local-address/local-ip-address")), with_value(node))) return bad;
    if (ctx->request->replace_scope != 0) return VMF_RC_OK;  // the replace has removed the other form
    return remove_all(ctx, node, out, {update_source});
}

static uint32_t write_interface(MapContext *ctx, Datatree *node, Datatree *out)
{
    if (uint32_t bad = add(ctx, out, update_source, with_value(node))) return bad;
    if (ctx->request->replace_scope != 0) return VMF_RC_OK;
    return remove_all(ctx, node, out, {whole_local_address});
}

// The form of the value tells an address from an interface; the form that was there before goes. On purpose: an IPv6
// address is not told apart, and becomes an interface.
static uint32_t write_local_address(MapContext *ctx, Datatree *node, Datatree *out)
{
    const uint32_t operation = node->operation;
    const char *value = value_of(node);
    const bool is_address = value != nullptr && vmf_map_is_valid_ipv4_addr(value) != 0;
    const uint32_t outcome = is_address ? write_address(ctx, node, out) : write_interface(ctx, node, out);
    set_operation(node, operation);
    return outcome;
}

uint32_t local_address(MapContext *ctx, Datatree *node, Datatree *out, const Peer &peer, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    uint32_t outcome = VMF_RC_OK;
    switch (branch_of(ctx, node)) {
    case Branch::read:
        outcome = select_rows(ctx, out, {peer.is_direct ? whole_local_address : list("local-address"), update_source});
        break;
    case Branch::remove: outcome = remove_all(ctx, node, out, {whole_local_address, update_source}); break;
    case Branch::write: outcome = write_local_address(ctx, node, out); break;
    }
    return log_end(ctx, outcome, at);
}

// ---- Multihop -------------------------------------------------------------------------------

uint32_t multihop_ttl(MapContext *ctx, Datatree *node, Datatree *out, const At &at)
{
    constexpr Native count = list("ebgp-multihop/max-hop-count");
    constexpr Native mpls = list("ebgp-multihop/mpls-deactivation");
    return branching_leaf(
        ctx, node, out,
        {.read = {lost(count), mpls}, .remove = {lost(count), mpls}, .write = {lost(count), fixed(mpls, "false")}}, {},
        at);
}

// ---- Route reflector ------------------------------------------------------------------------

static constexpr Native cluster = list("neighbor-cluster-id");

// Names the client flag in the entries of all families. On purpose: each add carries the operation, so a removal takes
// the entries too.
static uint32_t sweep_clients(MapContext *ctx, Datatree *out, const Peer &peer, const Datatree *source)
{
    for (const auto &names : oc_zr_af_names) {
        Datatree *family = nullptr;
        if (uint32_t bad = add(ctx, out, direct(repeated(list(peer.family))), from_node(source), &family)) return bad;
        if (uint32_t bad = add_to(ctx, family, "af-name", {names[1], source})) return bad;
        if (uint32_t bad = add_to(ctx, family, "route-reflector-client", from_node(source))) return bad;
    }
    return VMF_RC_OK;
}

static uint32_t name_cluster(MapContext *ctx, Datatree *out, const Peer &peer, Given given, const Datatree *source)
{
    if (uint32_t bad = add(ctx, out, cluster, given)) return bad;
    return sweep_clients(ctx, out, peer, source);
}

uint32_t map_route_reflector(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out, const Peer &peer,
                             const Datatree *source_of_reads, const At &at)
{
    if (branch_of(ctx, node) == Branch::remove) {  // with children too
        force_removal(node);
        if (uint32_t bad = name_cluster(ctx, out, peer, from_node(node), node)) return bad;
    }
    if (!maps_itself(ctx, subtree_count, at) || !is_read(ctx)) return VMF_RC_OK;
    return name_cluster(ctx, out, peer, selection_only, source_of_reads);
}

uint32_t select_route_reflector(MapContext *ctx, int32_t subtree_count, Datatree *out, const Peer &peer, const At &at)
{
    if (!maps_itself(ctx, subtree_count, at)) return VMF_RC_OK;
    return name_cluster(ctx, out, peer, selection_only, nullptr);
}

// A dotted id is an address; whatever else it is, the router takes it for a number.
static uint32_t write_cluster_id(MapContext *ctx, Datatree *node, Datatree *out, const At &at)
{
    const char *value = value_of(node);
    if (value != nullptr && vmf_map_is_valid_ipv4_addr(value) != 0) {
        VMF_TRC(ctx, at, "Adding the cluster-id-address");
        return add(ctx, out, list("neighbor-cluster-id/cluster-id-address"), with_value(node));
    }
    VMF_TRC(ctx, at, "Adding the cluster-id-number");
    return add(ctx, out, list("neighbor-cluster-id/cluster-id-number"), with_value(node));
}

uint32_t cluster_id(MapContext *ctx, Datatree *node, Datatree *out, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    uint32_t outcome = VMF_RC_OK;
    switch (branch_of(ctx, node)) {
    case Branch::read: outcome = add(ctx, out, cluster, selection_only); break;
    case Branch::remove: outcome = add(ctx, out, cluster, from_node(node)); break;
    case Branch::write: outcome = write_cluster_id(ctx, node, out, at); break;
    }
    return log_end(ctx, outcome, at);
}

// ---- Graceful restart -----------------------------------------------------------------------

static constexpr Native restart = list("neighbor-graceful-restart");
static constexpr Native restart_times[] = {list("neighbor-graceful-restart-time"),
                                           list("neighbor-graceful-restart-stalepath-time")};

static uint32_t read_restart_flag(MapContext *ctx, Datatree *node, Datatree *out, const RestartFlag &flag)
{
    if (uint32_t bad = add(ctx, out, restart, selection_only)) return bad;
    if (!is_get(ctx) || flag.read_by_gets == nullptr) return VMF_RC_OK;
    raise_flags(ctx, {&Ctx::oper_wanted_in_state, &Req::oper_wanted});
    return flag.read_by_gets(ctx, node, out);
}

static uint32_t map_restart_flag(MapContext *ctx, Datatree *node, Datatree *out, const RestartFlag &flag)
{
    switch (branch_of(ctx, node)) {
    case Branch::read: return read_restart_flag(ctx, node, out, flag);
    case Branch::remove:
        if (flag.removal_is_forced) force_removal(node);
        return add(ctx, out, restart, from_node(node));
    case Branch::write: break;
    }
    // The native flag says the opposite.
    return flag.is_written ? add(ctx, out, restart, {"false", nullptr}) : uint32_t{VMF_RC_OK};
}

// Each native leaf is a turn of its own, and the last one that adds something gives the outcome.
uint32_t map_graceful_restart(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out,
                              const RestartFlag &flag, const At &at)
{
    uint32_t last = VMF_RC_OK;
    if (maps_itself(ctx, subtree_count, at)) last = map_restart_flag(ctx, node, out, flag);
    for (const Native &time : restart_times) {
        if (!maps_itself(ctx, subtree_count, at)) continue;
        switch (branch_of(ctx, node)) {
        case Branch::read: last = add(ctx, out, time, selection_only); break;
        case Branch::remove: last = remove_all(ctx, node, out, {time}); break;
        case Branch::write: break;
        }
    }
    return last;
}

static uint32_t write_restart_enabled(MapContext *ctx, Datatree *node, Datatree *out, const At &at)
{
    const char *value = value_of(node);
    const char *inverted = nullptr;
    if (value != nullptr && vmf_map_do_these_match(value, "true") != 0) inverted = "false";
    if (value != nullptr && vmf_map_do_these_match(value, "false") != 0) inverted = "true";
    if (inverted == nullptr) {
        VMF_ERR(ctx, at, "Invalid boolean value was specified.");
        return VMF_RC_BAD_ARGS;
    }
    return add(ctx, out, restart, constant(inverted, node));
}

uint32_t graceful_restart_enabled(MapContext *ctx, Datatree *node, Datatree *out, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    uint32_t outcome = VMF_RC_OK;
    switch (branch_of(ctx, node)) {
    case Branch::read: outcome = add(ctx, out, restart, selection_only); break;
    case Branch::remove: outcome = add(ctx, out, restart, from_node(node)); break;
    case Branch::write: outcome = write_restart_enabled(ctx, node, out, at); break;
    }
    return log_end(ctx, outcome, at);
}

// ---- Families -------------------------------------------------------------------------------

uint32_t map_families(MapContext *ctx, const Datatree *node, Datatree *out, const Peer &peer)
{
    const uint32_t outcome = add(ctx, out, list(peer.families), container_gives(ctx, node));
    if (is_read(ctx)) ctx->request->*peer.family_filter = 0;
    return outcome;
}

// The rows behind the one that matched are compared with the container's name, which is no identity.
static const char *convert_name(MapContext *ctx, AreSame are_same, uint32_t Req::*bitmap, const At &at)
{
    const char *native = nullptr;
    uint32_t row = 0;
    for (const auto &names : oc_zr_af_names) {
        const uint32_t this_row = row++;
        if (ctx->af_name == nullptr || !are_same(names[0], ctx->af_name)) continue;
        native = names[1];
        ctx->af_name = vmf_map_oc_bgp_af_container(native);
        ctx->request->*bitmap = vmf_map_set_bitmap(ctx->request->*bitmap, this_row);
    }
    if (native != nullptr) return native;
    VMF_TRC(ctx, at, "Using OC afi-safi name for ZR %s", shown(ctx->af_name));
    return ctx->af_name;
}

uint32_t enter_family(MapContext *ctx, const Datatree *node, Datatree *out, const Peer &peer, AreSame are_same,
                      uint32_t Req::*bitmap, const char **native, const At &at)
{
    ctx->prefix_limit_added = 0;
    if (ctx->list_node == nullptr) {
        VMF_ERR(ctx, at, "The parent list node does not exist!");
        return VMF_RC_BAD_TREE;
    }
    Datatree *entry = nullptr;
    if (add(ctx, out, repeated(list(peer.family)), selection_only, &entry) != VMF_RC_OK) return VMF_RC_OK;
    take_list_operation(ctx, entry);
    ctx->af_node = entry;
    ctx->af_name = value_of(node);
    *native = convert_name(ctx, are_same, bitmap, at);
    return check_identity(ctx, node, at);
}

static uint32_t map_family_name(MapContext *ctx, const Datatree *node, Datatree *out, const At &at)
{
    if (uint32_t bad = check_identity(ctx, node, at)) return bad;
    return repeat_key(ctx, node, out, &Ctx::af_node, {af("af-name"), af("activate")},
                      {&Req::key_leaf_named, &Req::af_name_leaf_named}, at);
}

uint32_t repeated_family_name(MapContext *ctx, Datatree *node, Datatree *out, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    return log_end(ctx, map_family_name(ctx, node, out, at), at);
}

static uint32_t select_family_name(MapContext *ctx, const Datatree *node, Datatree *out, const At &at)
{
    if (uint32_t bad = check_identity(ctx, node, at)) return bad;
    const uint32_t outcome = select_rows(ctx, out, {af("af-name"), af("activate")});
    raise_flags(ctx, {&Req::key_leaf_named, &Req::af_name_leaf_named});
    return outcome;
}

uint32_t selected_family_name(MapContext *ctx, Datatree *node, Datatree *out, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    return log_end(ctx, select_family_name(ctx, node, out, at), at);
}

uint32_t policy(MapContext *ctx, Datatree *node, Datatree *out, const char *path, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    const Given given = {value_of(node), is_read(ctx) ? nullptr : node};
    return log_end(ctx, add(ctx, out, repeated(af(path)), given), at);
}

// ---- The containers of a family -------------------------------------------------------------

uint32_t check_family(MapContext *ctx, const FamilyContainer &container, const At &at)
{
    if (ctx->af_name != nullptr && vmf_map_do_these_match(ctx->af_name, container.name) != 0) return VMF_RC_OK;
    VMF_ERR(ctx, at, "afi-safi/af-name has to be %s for afi-safi/%s node to be in the request.", container.name,
            container.name);
    return refuse_tag(ctx, container.name);
}

uint32_t map_family(MapContext *ctx, Datatree *node, Datatree *out, const FamilyContainer &container)
{
    const Branch branch = branch_of(ctx, node);
    if (branch == Branch::write) return VMF_RC_OK;
    if (!container.has_default_route) return add(ctx, out, af("maximum-prefixes"), from_node(node));
    if (branch == Branch::remove) force_removal(node);
    return add_until_failure(ctx, out, {af("maximum-prefixes"), af("default-originate/enable")}, from_node(node));
}
