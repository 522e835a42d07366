// What neighbors and peer groups share: bodies whose native paths agree, with what differs as data. Handlers that part
// from each other stand in neighbor*.cpp and peer_group*.cpp.
#pragma once

#include "../vmf_map_oc_bgp_common/forms.h"
#include "../vmf_map_oc_bgp_common/oc_handlers.h"

struct Peer {
    const char *families;  // below the entry
    const char *family;
    uint32_t Req::*family_filter;
    const char *says_when_written;  // a container of `transport`, which only its leaves can write
    bool is_direct;                 // its `local-address` is read straight from the platform
};

inline constexpr Peer neighbor = {"neighbor-afs", "neighbor-afs/neighbor-af", &Req::nbr_af_filter,
                                  "No mapping done for this node when it is a merge/create request", false};
inline constexpr Peer peer_group = {"neighbor-group-afs", "neighbor-group-afs/neighbor-group-af", &Req::grp_af_filter,
                                    "No mapping done for this node for a merge/create request", true};

#define NEIGHBOR_CONT(path) OC_CONT(_neighbors_neighbor_##path)
#define NEIGHBOR_LEAF(path) OC_LEAF(_neighbors_neighbor_##path)
#define NEIGHBOR_FAMILY_CONT(path) OC_CONT(_neighbors_neighbor_afisafis_afisafi_##path)
#define NEIGHBOR_FAMILY_LEAF(path) OC_LEAF(_neighbors_neighbor_afisafis_afisafi_##path)
#define GROUP_CONT(path) OC_CONT(_peergroups_peergroup_##path)
#define GROUP_LEAF(path) OC_LEAF(_peergroups_peergroup_##path)
#define GROUP_FAMILY_CONT(path) OC_CONT(_peergroups_peergroup_afisafis_afisafi_##path)
#define GROUP_FAMILY_LEAF(path) OC_LEAF(_peergroups_peergroup_afisafis_afisafi_##path)

// Bodies stand behind the guard and give an outcome; forms are whole handlers.

// ---- Entry ----------------------------------------------------------------------------------

// Makes the native entry that a key names. A failing add is not reported: what follows goes to the entry before.
void enter_entry(MapContext *ctx, const Datatree *node, Datatree *out, const Native &entry);

// ---- Timers ---------------------------------------------------------------------------------

// Hold time and keepalive interval have a native container, the advertisement interval has another.
[[nodiscard]] uint32_t map_timers(MapContext *ctx, Datatree *node, Datatree *out);
uint32_t timers_config(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out, const At &at = here());
uint32_t minimum_advertisement_interval(MapContext *ctx, Datatree *node, Datatree *out, const At &at = here());

// ---- Transport ------------------------------------------------------------------------------

[[nodiscard]] uint32_t map_transport(MapContext *ctx, Datatree *node, Datatree *out, const Peer &peer, const At &at);
uint32_t transport_config(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out, const Peer &peer,
                          const At &at = here());
uint32_t passive_mode(MapContext *ctx, Datatree *node, Datatree *out, const At &at = here());
uint32_t local_address(MapContext *ctx, Datatree *node, Datatree *out, const Peer &peer, const At &at = here());

// ---- Multihop -------------------------------------------------------------------------------

uint32_t multihop_ttl(MapContext *ctx, Datatree *node, Datatree *out, const At &at = here());

// ---- Route reflector ------------------------------------------------------------------------

// The cluster id is the entry's, the client flag each of its families'; OpenConfig has no leaf for the flag here.
[[nodiscard]] uint32_t map_route_reflector(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out,
                                           const Peer &peer, const Datatree *source_of_reads, const At &at);
[[nodiscard]] uint32_t select_route_reflector(MapContext *ctx, int32_t subtree_count, Datatree *out, const Peer &peer,
                                              const At &at);
uint32_t cluster_id(MapContext *ctx, Datatree *node, Datatree *out, const At &at = here());

// ---- Graceful restart -----------------------------------------------------------------------

// What a container of graceful restart does about the flag. The two times are the same everywhere.
struct RestartFlag {
    bool removal_is_forced;
    bool is_written;               // a container that is written switches graceful restart on
    VmfLeafHandler *read_by_gets;  // null: nothing
};
[[nodiscard]] uint32_t map_graceful_restart(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out,
                                            const RestartFlag &flag, const At &at);
uint32_t graceful_restart_enabled(MapContext *ctx, Datatree *node, Datatree *out, const At &at = here());

// ---- Families -------------------------------------------------------------------------------

// Without children, the whole list of families; the answer is then not narrowed to those that the request names.
[[nodiscard]] uint32_t map_families(MapContext *ctx, const Datatree *node, Datatree *out, const Peer &peer);

// Makes the native entry of a family and leaves it, and the one OpenConfig container that may stand in it, to the nodes
// below. `native` is its native name, or stays null where the entry could not be made.
using AreSame = bool (*)(const char *a, const char *b);
[[nodiscard]] uint32_t enter_family(MapContext *ctx, const Datatree *node, Datatree *out, const Peer &peer,
                                    AreSame are_same, uint32_t Req::*bitmap, const char **native, const At &at);

// The name again, below `config` and `state`.
uint32_t repeated_family_name(MapContext *ctx, Datatree *node, Datatree *out, const At &at = here());
uint32_t selected_family_name(MapContext *ctx, Datatree *node, Datatree *out, const At &at = here());

// A policy. A read asks for the one that it names, and a removal takes only that one away.
uint32_t policy(MapContext *ctx, Datatree *node, Datatree *out, const char *path, const At &at = here());

// ---- The containers of a family -------------------------------------------------------------

struct FamilyContainer {
    const char *name;
    bool has_default_route;
};

// Refuses a container that stands in an entry of another family.
[[nodiscard]] uint32_t check_family(MapContext *ctx, const FamilyContainer &container, const At &at);
[[nodiscard]] uint32_t map_family(MapContext *ctx, Datatree *node, Datatree *out, const FamilyContainer &container);
