// Made by generator/ from models/Zorvex-ZR-ipv4-bgp-oper.yang and models/Zorvex-ZR-ipv4-bgp-oper.mapping.
// Renew it with `cmake --build build/release --target generate`.
#include "zr_oper_walk.h"

// clang-format off

// ---- /bgp/instances/instance/instance-active/default-vrf/afs/af/global-af-process-info/global
static constexpr ResponseChild instances_instance_instanceactive_defaultvrf_afs_af_globalafprocessinfo_global_children[] = {
    {"scan-prefixes", Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_afs_af_globalafprocessinfo_global_scanprefixes},
};
static constexpr ResponseContainer instances_instance_instanceactive_defaultvrf_afs_af_globalafprocessinfo_global = {vmf_map_cont_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_afs_af_globalafprocessinfo_global, instances_instance_instanceactive_defaultvrf_afs_af_globalafprocessinfo_global_children};
ZR_OPER_WALK(_instances_instance_instanceactive_defaultvrf_afs_af_globalafprocessinfo_global) { return walk_response_container(ctx, tree, mapped, instances_instance_instanceactive_defaultvrf_afs_af_globalafprocessinfo_global, rules); }

// ---- /bgp/instances/instance/instance-active/default-vrf/afs/af/global-af-process-info
static constexpr ResponseChild instances_instance_instanceactive_defaultvrf_afs_af_globalafprocessinfo_children[] = {
    {"global", Role::none, vmf_map_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_afs_af_globalafprocessinfo_global},
};
static constexpr ResponseContainer instances_instance_instanceactive_defaultvrf_afs_af_globalafprocessinfo = {vmf_map_cont_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_afs_af_globalafprocessinfo, instances_instance_instanceactive_defaultvrf_afs_af_globalafprocessinfo_children};
ZR_OPER_WALK(_instances_instance_instanceactive_defaultvrf_afs_af_globalafprocessinfo) { return walk_response_container(ctx, tree, mapped, instances_instance_instanceactive_defaultvrf_afs_af_globalafprocessinfo, rules); }

// ---- /bgp/instances/instance/instance-active/default-vrf/afs/af/af-process-info/global
static constexpr ResponseChild instances_instance_instanceactive_defaultvrf_afs_af_afprocessinfo_global_children[] = {
    {"paths-num", Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_afs_af_afprocessinfo_global_pathsnum},
};
static constexpr ResponseContainer instances_instance_instanceactive_defaultvrf_afs_af_afprocessinfo_global = {vmf_map_cont_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_afs_af_afprocessinfo_global, instances_instance_instanceactive_defaultvrf_afs_af_afprocessinfo_global_children};
ZR_OPER_WALK(_instances_instance_instanceactive_defaultvrf_afs_af_afprocessinfo_global) { return walk_response_container(ctx, tree, mapped, instances_instance_instanceactive_defaultvrf_afs_af_afprocessinfo_global, rules); }

// ---- /bgp/instances/instance/instance-active/default-vrf/afs/af/af-process-info
static constexpr ResponseChild instances_instance_instanceactive_defaultvrf_afs_af_afprocessinfo_children[] = {
    {"global", Role::none, vmf_map_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_afs_af_afprocessinfo_global},
};
static constexpr ResponseList instances_instance_instanceactive_defaultvrf_afs_af_afprocessinfo = {"af-process-info", nullptr, instances_instance_instanceactive_defaultvrf_afs_af_afprocessinfo_children, FamilyLine::plain, Childless::by_rules};
ZR_OPER_WALK(_instances_instance_instanceactive_defaultvrf_afs_af_afprocessinfo) { return walk_response_list(ctx, tree, mapped, instances_instance_instanceactive_defaultvrf_afs_af_afprocessinfo, rules); }

// ---- /bgp/instances/instance/instance-active/default-vrf/afs/af
static constexpr ResponseChild instances_instance_instanceactive_defaultvrf_afs_af_children[] = {
    {"af-name",                Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_afs_af_afname},
    {"global-af-process-info", Role::none, vmf_map_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_afs_af_globalafprocessinfo},
    {"af-process-info",        Role::none, vmf_map_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_afs_af_afprocessinfo},
};
static constexpr ResponseList instances_instance_instanceactive_defaultvrf_afs_af = {"af", "/bgp/instances/instance/instance-active/default-vrf/afs/af", instances_instance_instanceactive_defaultvrf_afs_af_children, FamilyLine::plain, Childless::passes};
ZR_OPER_WALK(_instances_instance_instanceactive_defaultvrf_afs_af) { return walk_response_list(ctx, tree, mapped, instances_instance_instanceactive_defaultvrf_afs_af, rules); }

// ---- /bgp/instances/instance/instance-active/default-vrf/afs
static constexpr ResponseChild instances_instance_instanceactive_defaultvrf_afs_children[] = {
    {"af", Role::none, vmf_map_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_afs_af},
};
static constexpr ResponseContainer instances_instance_instanceactive_defaultvrf_afs = {vmf_map_cont_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_afs, instances_instance_instanceactive_defaultvrf_afs_children};
ZR_OPER_WALK(_instances_instance_instanceactive_defaultvrf_afs) { return walk_response_container(ctx, tree, mapped, instances_instance_instanceactive_defaultvrf_afs, rules); }

// ---- /bgp/instances/instance/instance-active/default-vrf/neighbors/neighbor/af-data
static constexpr ResponseChild instances_instance_instanceactive_defaultvrf_neighbors_neighbor_afdata_children[] = {
    {"af-name",                Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_afdata_afname},
    {"is-neighbor-af-capable", Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_afdata_isneighborafcapable},
    {"prefixes-accepted",      Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_afdata_prefixesaccepted},
    {"prefixes-advertised",    Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_afdata_prefixesadvertised},
};
static constexpr ResponseList instances_instance_instanceactive_defaultvrf_neighbors_neighbor_afdata = {"af-data", "/bgp/instances/instance/instance-active/default-vrf/neighbors/neighbor/af-data", instances_instance_instanceactive_defaultvrf_neighbors_neighbor_afdata_children, FamilyLine::plain, Childless::by_rules};
ZR_OPER_WALK(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_afdata) { return walk_response_list(ctx, tree, mapped, instances_instance_instanceactive_defaultvrf_neighbors_neighbor_afdata, rules); }

// ---- /bgp/instances/instance/instance-active/default-vrf/neighbors/neighbor/connection-remote-address
static constexpr ResponseChild instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress_children[] = {
    {"ipv4-address",          Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress_ipv4address},
    {"ipv4-mcast-address",    Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress_ipv4mcastaddress},
    {"ipv4-label-address",    Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress_ipv4labeladdress},
    {"ipv4vpn-address",       Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress_ipv4vpnaddress},
    {"ipv4vpna-mcastddress",  Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress_ipv4vpnamcastddress},
    {"ipv6-address",          Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress_ipv6address},
    {"ipv6-mcast-address",    Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress_ipv6mcastaddress},
    {"ipv6-label-address",    Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress_ipv6labeladdress},
    {"ipv6vpn-address",       Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress_ipv6vpnaddress},
    {"ipv6vpn-mcast-address", Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress_ipv6vpnmcastaddress},
};
static constexpr ResponseContainer instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress = {vmf_map_cont_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress, instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress_children};
ZR_OPER_WALK(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress) { return walk_response_container(ctx, tree, mapped, instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress, rules); }

// ---- /bgp/instances/instance/instance-active/default-vrf/neighbors/neighbor/message-statistics/notification/tx
static constexpr ResponseChild instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification_tx_children[] = {
    {"count", Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification_tx_count},
};
static constexpr ResponseContainer instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification_tx = {vmf_map_cont_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification_tx, instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification_tx_children};
ZR_OPER_WALK(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification_tx) { return walk_response_container(ctx, tree, mapped, instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification_tx, rules); }

// ---- /bgp/instances/instance/instance-active/default-vrf/neighbors/neighbor/message-statistics/notification/rx
static constexpr ResponseChild instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification_rx_children[] = {
    {"count", Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification_rx_count},
};
static constexpr ResponseContainer instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification_rx = {vmf_map_cont_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification_rx, instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification_rx_children};
ZR_OPER_WALK(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification_rx) { return walk_response_container(ctx, tree, mapped, instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification_rx, rules); }

// ---- /bgp/instances/instance/instance-active/default-vrf/neighbors/neighbor/message-statistics/notification
static constexpr ResponseChild instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification_children[] = {
    {"tx", Role::none, vmf_map_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification_tx},
    {"rx", Role::none, vmf_map_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification_rx},
};
static constexpr ResponseContainer instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification = {vmf_map_cont_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification, instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification_children};
ZR_OPER_WALK(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification) { return walk_response_container(ctx, tree, mapped, instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification, rules); }

// ---- /bgp/instances/instance/instance-active/default-vrf/neighbors/neighbor/message-statistics/update/tx
static constexpr ResponseChild instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update_tx_children[] = {
    {"count", Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update_tx_count},
};
static constexpr ResponseContainer instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update_tx = {vmf_map_cont_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update_tx, instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update_tx_children};
ZR_OPER_WALK(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update_tx) { return walk_response_container(ctx, tree, mapped, instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update_tx, rules); }

// ---- /bgp/instances/instance/instance-active/default-vrf/neighbors/neighbor/message-statistics/update/rx
static constexpr ResponseChild instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update_rx_children[] = {
    {"count", Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update_rx_count},
};
static constexpr ResponseContainer instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update_rx = {vmf_map_cont_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update_rx, instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update_rx_children};
ZR_OPER_WALK(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update_rx) { return walk_response_container(ctx, tree, mapped, instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update_rx, rules); }

// ---- /bgp/instances/instance/instance-active/default-vrf/neighbors/neighbor/message-statistics/update
static constexpr ResponseChild instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update_children[] = {
    {"tx", Role::none, vmf_map_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update_tx},
    {"rx", Role::none, vmf_map_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update_rx},
};
static constexpr ResponseContainer instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update = {vmf_map_cont_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update, instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update_children};
ZR_OPER_WALK(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update) { return walk_response_container(ctx, tree, mapped, instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update, rules); }

// ---- /bgp/instances/instance/instance-active/default-vrf/neighbors/neighbor/message-statistics
static constexpr ResponseChild instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_children[] = {
    {"notification", Role::none, vmf_map_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification},
    {"update",       Role::none, vmf_map_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update},
};
static constexpr ResponseContainer instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics = {vmf_map_cont_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics, instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_children};
ZR_OPER_WALK(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics) { return walk_response_container(ctx, tree, mapped, instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics, rules); }

// ---- /bgp/instances/instance/instance-active/default-vrf/neighbors/neighbor
static constexpr ResponseChild instances_instance_instanceactive_defaultvrf_neighbors_neighbor_children[] = {
    {"neighbor-address",                     Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_neighboraddress},
    {"af-data",                              Role::none, vmf_map_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_afdata},
    {"connection-remote-address",            Role::none, vmf_map_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress},
    {"message-statistics",                   Role::none, vmf_map_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics},
    {"messages-queued-in",                   Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagesqueuedin},
    {"messages-queued-out",                  Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagesqueuedout},
    {"connection-state",                     Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionstate},
    {"connection-local-port",                Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionlocalport},
    {"connection-remote-port",               Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteport},
    {"is-route-refresh-capability-received", Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_isrouterefreshcapabilityreceived},
    {"is-gr-aware",                          Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_isgraware},
    {"is4-byte-as-capability-received",      Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_is4byteascapabilityreceived},
    {"is4-byte-as-capability-sent",          Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_is4byteascapabilitysent},
    {"multi-protocol-capability-received",   Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_multiprotocolcapabilityreceived},
    {"hold-time",                            Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_holdtime},
    {"graceful-restart-enabled-nbr",         Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_gracefulrestartenablednbr},
    {"gr-restart-time",                      Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_grrestarttime},
};
static constexpr ResponseList instances_instance_instanceactive_defaultvrf_neighbors_neighbor = {"neighbor", "/bgp/instances/instance/instance-active/default-vrf/neighbors/neighbor", instances_instance_instanceactive_defaultvrf_neighbors_neighbor_children, FamilyLine::plain, Childless::by_rules};
ZR_OPER_WALK(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor) { return walk_response_list(ctx, tree, mapped, instances_instance_instanceactive_defaultvrf_neighbors_neighbor, rules); }

// ---- /bgp/instances/instance/instance-active/default-vrf/neighbors
static constexpr ResponseChild instances_instance_instanceactive_defaultvrf_neighbors_children[] = {
    {"neighbor", Role::none, vmf_map_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor},
};
static constexpr ResponseContainer instances_instance_instanceactive_defaultvrf_neighbors = {vmf_map_cont_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors, instances_instance_instanceactive_defaultvrf_neighbors_children};
ZR_OPER_WALK(_instances_instance_instanceactive_defaultvrf_neighbors) { return walk_response_container(ctx, tree, mapped, instances_instance_instanceactive_defaultvrf_neighbors, rules); }

// ---- /bgp/instances/instance/instance-active/default-vrf
static constexpr ResponseChild instances_instance_instanceactive_defaultvrf_children[] = {
    {"afs",       Role::none, vmf_map_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_afs},
    {"neighbors", Role::none, vmf_map_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors},
};
static constexpr ResponseContainer instances_instance_instanceactive_defaultvrf = {vmf_map_cont_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf, instances_instance_instanceactive_defaultvrf_children};
ZR_OPER_WALK(_instances_instance_instanceactive_defaultvrf) { return walk_response_container(ctx, tree, mapped, instances_instance_instanceactive_defaultvrf, rules); }

// ---- /bgp/instances/instance/instance-active
static constexpr ResponseChild instances_instance_instanceactive_children[] = {
    {"default-vrf", Role::none, vmf_map_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf},
};
static constexpr ResponseContainer instances_instance_instanceactive = {vmf_map_cont_zr_bgp_oper_bgp_instances_instance_instanceactive, instances_instance_instanceactive_children};
ZR_OPER_WALK(_instances_instance_instanceactive) { return walk_response_container(ctx, tree, mapped, instances_instance_instanceactive, rules); }

// ---- /bgp/instances/instance
static constexpr ResponseChild instances_instance_children[] = {
    {"instance-name",   Role::none, vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instancename},
    {"instance-active", Role::none, vmf_map_zr_bgp_oper_bgp_instances_instance_instanceactive},
};
static constexpr ResponseList instances_instance = {"instance", "/bgp/instances/instance", instances_instance_children, FamilyLine::plain, Childless::by_rules};
ZR_OPER_WALK(_instances_instance) { return walk_response_list(ctx, tree, mapped, instances_instance, rules); }

// ---- /bgp/instances
static constexpr ResponseChild instances_children[] = {
    {"instance", Role::none, vmf_map_zr_bgp_oper_bgp_instances_instance},
};
static constexpr ResponseContainer instances = {vmf_map_cont_zr_bgp_oper_bgp_instances, instances_children};
ZR_OPER_WALK(_instances) { return walk_response_container(ctx, tree, mapped, instances, rules); }

// ---- /bgp
static constexpr ResponseChild bgp_children[] = {
    {"instances", Role::none, vmf_map_zr_bgp_oper_bgp_instances},
};
static constexpr ResponseContainer bgp = {vmf_map_cont_zr_bgp_oper_bgp, bgp_children};
ZR_OPER_ROOT { return walk_response_container(ctx, tree, mapped, bgp, rules); }
