// The native `neighbor` and `neighbor-group`: one family of handlers, with what differs as data.
#include <strings.h>

#include <algorithm>
#include <cstring>

#include "../vmf_map_oc_bgp_common/response_forms.h"
#include "../vmf_map_oc_bgp_common/zr_handlers.h"

#define NEIGHBOR_LEAF(path) ZR_CFG_LEAF(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_##path)
#define NEIGHBOR_CONT(path) ZR_CFG_CONT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_##path)
#define GROUP_LEAF(path)                                                                                               \
    ZR_CFG_LEAF(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_##path)
#define GROUP_CONT(path)                                                                                               \
    ZR_CFG_CONT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_##path)

struct Peer {
    const char *entry;
    Native key;
    Copies key_copies;
    uint32_t Req::*no_config;
    uint32_t Req::*no_state;
    uint32_t Req::*family_filter;
    uint32_t Req::*family_bitmap;
    uint32_t Req::*family_no_config;
    uint32_t Req::*family_no_state;
    bool yields_to_key;  // leaves that were read only to find the entries are left out
};

static constexpr Peer neighbor = {"/bgp/neighbors/neighbor",
                                  oc_list("neighbor-address"),
                                  oc_list_copies(COPIES("", "/neighbor-address")),
                                  &Req::nbr_no_config,
                                  &Req::nbr_no_state,
                                  &Req::nbr_af_filter,
                                  &Req::nbr_af_bitmap,
                                  &Req::nbr_af_no_config,
                                  &Req::nbr_af_no_state,
                                  true};
static constexpr Peer peer_group = {"/bgp/peer-groups/peer-group",
                                    oc_list("peer-group-name"),
                                    oc_list_copies(COPIES("", "/peer-group-name")),
                                    &Req::grp_no_config,
                                    &Req::grp_no_state,
                                    &Req::grp_af_filter,
                                    &Req::grp_af_bitmap,
                                    &Req::grp_af_no_config,
                                    &Req::grp_af_no_state,
                                    false};

static bool matches(const char *value, const char *text)
{
    return value != nullptr && vmf_map_do_these_match(value, text) != 0;
}

// ---- The entry ------------------------------------------------------------------------------

// A failure is not reported here: what follows goes to the entry before.
static uint32_t make_entry(MapContext *ctx, const Datatree *node, Datatree *mapped, const Peer &peer)
{
    const RequestContext *request = ctx->request;
    Datatree *entry = nullptr;
    if (write_text(ctx, mapped, repeated(oc(peer.entry)), nullptr, &entry) == VMF_RC_OK) {
        ctx->list_node = entry;
        ctx->af_key = value_of(node);
    }
    uint32_t outcome = write_text(ctx, mapped, peer.key, value_of(node));
    if (wants_config(ctx) && request->*peer.no_config == 0)
        outcome = write_text(ctx, mapped, peer.key_copies.config, value_of(node));
    if (wants_state(ctx) && request->*peer.no_state == 0)
        outcome = write_text(ctx, mapped, peer.key_copies.state, value_of(node));
    return outcome;
}

static uint32_t entry_name(MapContext *ctx, Datatree *node, Datatree *mapped, const Peer &peer, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    return log_end(ctx, make_entry(ctx, node, mapped, peer), at);
}

static bool gives_way_to_key(const MapContext *ctx, const Peer &peer)
{
    return peer.yields_to_key && ctx->request->key_leaf_named != 0;
}

static uint32_t yielding_value(MapContext *ctx, Datatree *node, Datatree *mapped, const Copies &copies,
                               const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    if (gives_way_to_key(ctx, neighbor)) return log_end(ctx, VMF_RC_OK, at);
    return log_end(ctx, write_copies(ctx, mapped, copies, value_of(node)), at);
}

// ---- AS numbers -----------------------------------------------------------------------------

static uint32_t remote_as(MapContext *ctx, Datatree *node, Datatree *mapped, const Peer &peer, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    const AsText as = composed_as(ctx, node);
    if (gives_way_to_key(ctx, peer)) return log_end(ctx, VMF_RC_OK, at);
    return log_end(ctx, write_copies(ctx, mapped, oc_list_copies(COPIES("", "/peer-as")), as.text), at);
}

static uint32_t local_as(MapContext *ctx, Datatree *node, Datatree *mapped, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    const AsText as = composed_as(ctx, node);
    return log_end(ctx, write_copies(ctx, mapped, oc_list_copies(COPIES("", "/local-as")), as.text), at);
}

// ---- Transport ------------------------------------------------------------------------------

static uint32_t local_address(MapContext *ctx, Datatree *node, Datatree *mapped, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    ctx->local_address_seen = 1;
    return log_end(ctx, VMF_RC_OK, at);
}

static uint32_t local_address_disable(MapContext *ctx, Datatree *node, Datatree *mapped, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    if (matches(value_of(node), "false")) ctx->local_address_seen = 0;
    return log_end(ctx, VMF_RC_OK, at);
}

// An address holds only if the native model has said before that it is not disabled.
static uint32_t local_ip_address(MapContext *ctx, Datatree *node, Datatree *mapped, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    if (ctx->local_address_seen != 0) return log_end(ctx, VMF_RC_OK, at);
    const Copies copies = oc_list_copies(COPIES("transport/", "/local-address"));
    return log_end(ctx, write_copies(ctx, mapped, copies, value_of(node)), at);
}

static uint32_t open_mode(MapContext *ctx, Datatree *node, Datatree *mapped, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    const char *passive = nullptr;
    if (matches(value_of(node), "passive-only")) passive = "true";
    if (matches(value_of(node), "active-only")) passive = "false";
    if (passive == nullptr) return log_end(ctx, VMF_RC_OK, at);  // OpenConfig has no word for the other modes
    return log_end(ctx, write_copies(ctx, mapped, oc_list_copies(COPIES("transport/", "/passive-mode")), passive), at);
}

// ---- Multihop -------------------------------------------------------------------------------

static uint32_t hop_count(MapContext *ctx, Datatree *node, Datatree *mapped, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    ctx->multihop_ttl = value_of(node);
    return log_end(ctx, write_copies(ctx, mapped, oc_list_copies(COPIES("ebgp-multihop/", "/enabled")), "true"), at);
}

// The hop count waits for this leaf. On purpose: it is never cleared, so a leaf that comes without one has the count of
// the entry before.
static uint32_t mpls_deactivation(MapContext *ctx, Datatree *node, Datatree *mapped, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    if (!matches(value_of(node), "FALSE") && !matches(value_of(node), "false")) return log_end(ctx, VMF_RC_OK, at);
    const Copies copies = oc_list_copies(COPIES("ebgp-multihop/", "/multihop-ttl"));
    return log_end(ctx, write_copies(ctx, mapped, copies, ctx->multihop_ttl), at);
}

// ---- Password and graceful restart ----------------------------------------------------------

static uint32_t password_disable(MapContext *ctx, Datatree *node, Datatree *mapped, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    if (has_value(node)) ctx->password_disabled = strcasecmp(node->value, "false") != 0 ? 1 : 0;
    return log_end(ctx, VMF_RC_OK, at);
}

// The native flag says the opposite.
static uint32_t graceful_restart(MapContext *ctx, Datatree *node, Datatree *mapped, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    const char *enabled = matches(value_of(node), "false") ? "true" : "false";
    return log_end(ctx, write_copies(ctx, mapped, oc_list_copies(COPIES("graceful-restart/", "/enabled")), enabled),
                   at);
}

// ---- Families -------------------------------------------------------------------------------

static uint32_t families(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *mapped, bool counts_paths,
                         const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    if (maps_itself(ctx, subtree_count, at))
        return log_end(ctx, write_text(ctx, mapped, oc_list("afi-safis"), nullptr), at);
    ctx->private_as_state = 0;
    ctx->af_seen_bitmap = 0;
    ctx->af_option_bitmap = 0;
    ctx->remote_as_high = nullptr;
    if (counts_paths) {
        ctx->ebgp_paths_count = 0;
        ctx->ibgp_paths_count = 0;
    }
    return log_end(ctx, VMF_RC_OK, at);
}

// A failure is not reported here: what follows goes to the family before.
static void make_family(MapContext *ctx, Datatree *mapped)
{
    Datatree *list_of_families = nullptr;
    Datatree *family = nullptr;
    if (write_text(ctx, mapped, oc_list("afi-safis"), nullptr, &list_of_families) != VMF_RC_OK) return;
    if (vmf_map_datatree_add_path(ctx, list_of_families, "afi-safi", OC_BGP_NS, nullptr, nullptr, &family, 1) !=
        VMF_RC_OK)
        return;
    ctx->af_node = family;
}

static uint32_t name_family(MapContext *ctx, Datatree *mapped, const Peer &peer)
{
    const RequestContext *request = ctx->request;
    const char *name = ctx->oc_af_name;
    uint32_t outcome = write_family_name(ctx, mapped, held(oc_af("afi-safi-name")), name, "afi-safi/afi-safi-name");
    if (wants_config(ctx) && request->*peer.family_no_config == 0)
        outcome =
            write_family_name(ctx, mapped, held(oc_af("config/afi-safi-name")), name, "afi-safi/config/afi-safi-name");
    if (wants_state(ctx) && request->*peer.family_no_state == 0)
        outcome =
            write_family_name(ctx, mapped, held(oc_af("state/afi-safi-name")), name, "afi-safi/state/afi-safi-name");
    return outcome;
}

static bool is_wanted(const MapContext *ctx, const Peer &peer, uint32_t row)
{
    const RequestContext *request = ctx->request;
    return request->*peer.family_filter == 0 || (request->*peer.family_bitmap & uint32_t{1} << row) != 0;
}

static uint32_t map_family(MapContext *ctx, const Datatree *node, Datatree *mapped, const Peer &peer, const At &at)
{
    if (ctx->list_node == nullptr) {
        VMF_ERR(ctx, at, "The parent list node does not exist!");
        return VMF_RC_BAD_TREE;
    }
    ctx->af_name = value_of(node);
    ctx->oc_af_name = ctx->af_name;
    uint32_t outcome = VMF_RC_OK;
    uint32_t row = 0;
    for (const auto &names : oc_zr_af_names) {
        const uint32_t this_row = row++;
        if (!matches(ctx->af_name, names[1])) continue;
        ctx->af_mapped = 1;
        ctx->oc_af_name = names[0];
        ctx->af_seen_bitmap = vmf_map_set_bitmap(ctx->af_seen_bitmap, this_row);
        if (!is_wanted(ctx, peer, this_row)) continue;
        make_family(ctx, mapped);
        outcome = name_family(ctx, mapped, peer);
    }
    return outcome;
}

static uint32_t family_name(MapContext *ctx, Datatree *node, Datatree *mapped, const Peer &peer, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    return log_end(ctx, map_family(ctx, node, mapped, peer, at), at);
}

// Writes both copies of a leaf below a container that is named after the family. Texts behind the name begin at "/".
template<size_t config_size, size_t state_size>
static uint32_t write_below_family(MapContext *ctx, Datatree *mapped, const char *container, const char *config,
                                   const char *state, const char *text)
{
    if (container == nullptr) return VMF_RC_OK;
    char config_path[config_size] = {};
    char state_path[state_size] = {};
    strcpy_s(config_path, config_size, container);
    __strcat_s_to_buf(config_size, config_path, config_size, config);
    strcpy_s(state_path, state_size, container);
    __strcat_s_to_buf(state_size, state_path, state_size, state);
    return write_copies(ctx, mapped, oc_af_copies(config_path, state_path), text);
}

static uint32_t prefix_limit(MapContext *ctx, Datatree *node, Datatree *mapped, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    return log_end(ctx,
                   write_below_family<56, 55>(ctx, mapped, vmf_map_oc_bgp_af_container(ctx->af_name),
                                              COPIES("/prefix-limit/", "/max-prefixes"), value_of(node)),
                   at);
}

static uint32_t warning_percentage(MapContext *ctx, Datatree *node, Datatree *mapped, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    return log_end(ctx,
                   write_below_family<66, 65>(ctx, mapped, vmf_map_oc_bgp_af_container(ctx->af_name),
                                              COPIES("/prefix-limit/", "/shutdown-threshold-pct"), value_of(node)),
                   at);
}

// On purpose: below the native name of the family, which OpenConfig has for two families of those that it is read for.
static uint32_t default_originate(MapContext *ctx, Datatree *node, Datatree *mapped, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    return log_end(
        ctx, write_below_family<50, 50>(ctx, mapped, ctx->af_name, COPIES("/", "/send-default-route"), value_of(node)),
        at);
}

static uint32_t activate(MapContext *ctx, Datatree *node, Datatree *mapped, const At &at = here())
{
    return family_switch(ctx, node, mapped, oc_af_copies(COPIES("", "/enabled")),
                         oc_af_copies(COPIES("", "/afi-safi-name")), &Ctx::af_name, at);
}

// ---- Private AS numbers ---------------------------------------------------------------------

// No walk comes here. The families of an entry that have the option must be all that the router writes it for.

enum PrivateAs { not_seen = 0, removed = 1, kept = 2 };

static uint32_t private_as(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *mapped,
                           const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    if (subtree_count == 0) return log_end(ctx, VMF_RC_OK, at);
    uint32_t row = 0;
    for (const auto &names : oc_zr_af_names) {
        if (matches(ctx->af_name, names[1])) {
            ctx->af_option_bitmap = vmf_map_set_bitmap(ctx->af_option_bitmap, row);
            return log_end(ctx, VMF_RC_OK, at);
        }
        row++;
    }
    VMF_TRC(ctx, at, "No mapping done for %s", shown(ctx->af_name));
    return log_end(ctx, VMF_RC_OK, at);
}

static void fold_private_as(MapContext *ctx, const Datatree *node)
{
    if (ctx->private_as_state >= kept) return;
    const char *value = value_of(node);
    ctx->private_as_state = value != nullptr && strcasecmp(value, "true") == 0 ? removed : kept;
}

static uint32_t private_as_enable(MapContext *ctx, Datatree *node, Datatree *mapped, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    fold_private_as(ctx, node);
    return log_end(ctx, VMF_RC_OK, at);
}

static bool is_one_of(uint32_t bitmap, std::initializer_list<uint32_t> bitmaps)
{
    return std::find(bitmaps.begin(), bitmaps.end(), bitmap) != bitmaps.end();
}

static uint32_t write_private_as(MapContext *ctx, Datatree *mapped, const Copies &copies,
                                 std::initializer_list<uint32_t> bitmaps)
{
    if (ctx->private_as_state != removed || !is_one_of(ctx->af_option_bitmap, bitmaps)) return VMF_RC_OK;
    return write_copies(ctx, mapped, copies, "PRIVATE_AS_REMOVE_ALL");
}

#define REMOVE_PRIVATE_AS COPIES("", "/remove-private-as")

// The address tells an IPv6 neighbor, whose leaf stands in the family, from an IPv4 one, whose leaf is its own.
NEIGHBOR_LEAF(neighborafs_neighboraf_removeprivateasentireaspath_entire)
{
    if (uint32_t bad = enter(ctx, node, mapped)) return bad;
    fold_private_as(ctx, node);
    const bool is_ipv6 = ctx->af_key != nullptr && std::strchr(ctx->af_key, ':') != nullptr;
    if (is_ipv6) return log_end(ctx, write_private_as(ctx, mapped, oc_af_copies(REMOVE_PRIVATE_AS), {2056, 2050}));
    return log_end(ctx, write_private_as(ctx, mapped, oc_list_copies(REMOVE_PRIVATE_AS), {2041, 2038, 2044, 2035}));
}

GROUP_LEAF(neighborgroupafs_neighborgroupaf_removeprivateasentireaspath_entire)
{
    if (uint32_t bad = enter(ctx, node, mapped)) return bad;
    fold_private_as(ctx, node);
    return log_end(ctx, write_private_as(ctx, mapped, oc_list_copies(REMOVE_PRIVATE_AS), {4089, 4086, 4092, 4083}));
}

// ---- The nodes that are a row ---------------------------------------------------------------

// clang-format off
NEIGHBOR_LEAF(neighboraddress)          { return entry_name(ctx, node, mapped, neighbor); }
NEIGHBOR_LEAF(remoteas_asyy)            { return remote_as(ctx, node, mapped, neighbor); }
NEIGHBOR_LEAF(description)              { return yielding_value(ctx, node, mapped, oc_list_copies(COPIES("", "/description"))); }
NEIGHBOR_LEAF(neighborgroupaddmember)   { return yielding_value(ctx, node, mapped, oc_list_copies(COPIES("", "/peer-group"))); }
NEIGHBOR_CONT(neighborafs)              { return families(ctx, node, subtree_count, mapped, true); }
NEIGHBOR_LEAF(neighborafs_neighboraf_afname) { return family_name(ctx, node, mapped, neighbor); }

GROUP_LEAF(neighborgroupname)           { return entry_name(ctx, node, mapped, peer_group); }
GROUP_LEAF(remoteas_asyy)               { return remote_as(ctx, node, mapped, peer_group); }
GROUP_CONT(neighborgroupafs)            { return families(ctx, node, subtree_count, mapped, false); }
GROUP_LEAF(neighborgroupafs_neighborgroupaf_afname) { return family_name(ctx, node, mapped, peer_group); }

#define PEER_LEAF(path, body) \
    NEIGHBOR_LEAF(path) { return body; } \
    GROUP_LEAF(path)    { return body; }

PEER_LEAF(remoteas_asxx,                    keep_as_high(ctx, node, mapped))
PEER_LEAF(localas_asxx,                     keep_as_high(ctx, node, mapped))
PEER_LEAF(localas_asyy,                     local_as(ctx, node, mapped))
PEER_LEAF(password_passworddisable,         password_disable(ctx, node, mapped))
PEER_LEAF(localaddress_localaddressdisable, local_address_disable(ctx, node, mapped))
PEER_LEAF(localaddress_localipaddress,      local_ip_address(ctx, node, mapped))
PEER_LEAF(sessionopenmode,                  open_mode(ctx, node, mapped))
PEER_LEAF(ebgpmultihop_maxhopcount,         hop_count(ctx, node, mapped))
PEER_LEAF(ebgpmultihop_mplsdeactivation,    mpls_deactivation(ctx, node, mapped))
PEER_LEAF(neighborgracefulrestart,          graceful_restart(ctx, node, mapped))

NEIGHBOR_CONT(localaddress) { return local_address(ctx, node, mapped); }
GROUP_CONT(localaddress)    { return local_address(ctx, node, mapped); }

#define FAMILY_LEAF(path, body) \
    NEIGHBOR_LEAF(neighborafs_neighboraf_##path)        { return body; } \
    GROUP_LEAF(neighborgroupafs_neighborgroupaf_##path) { return body; }

FAMILY_LEAF(activate,                          activate(ctx, node, mapped))
FAMILY_LEAF(multipath,                         copy_constant(ctx, node, mapped, oc_af_copies(COPIES("use-multiple-paths/", "/enabled")), "true"))
FAMILY_LEAF(maximumprefixes_prefixlimit,       prefix_limit(ctx, node, mapped))
FAMILY_LEAF(maximumprefixes_warningpercentage, warning_percentage(ctx, node, mapped))
FAMILY_LEAF(defaultoriginate_enable,           default_originate(ctx, node, mapped))

NEIGHBOR_CONT(neighborafs_neighboraf_removeprivateasentireaspath)        { return private_as(ctx, node, subtree_count, mapped); }
GROUP_CONT(neighborgroupafs_neighborgroupaf_removeprivateasentireaspath) { return private_as(ctx, node, subtree_count, mapped); }
FAMILY_LEAF(removeprivateasentireaspath_enable, private_as_enable(ctx, node, mapped))
// clang-format on
