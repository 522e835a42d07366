// Made by generator/ from models/Zorvex-ZR-ipv4-bgp-oper.yang and models/Zorvex-ZR-ipv4-bgp-oper.mapping.
// Renew it with `cmake --build build/release --target generate`.
#include "zr_oper_defaults.h"

// clang-format off

ZR_OPER_CONT_DEFAULT()                                                                           { return silent(ctx, node, mapped); }

ZR_OPER_CONT_DEFAULT(_instances)                                                                 { return silent(ctx, node, mapped); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instancename)                                           { return silent(ctx, node, mapped); }

ZR_OPER_CONT_DEFAULT(_instances_instance_instanceactive)                                         { return silent(ctx, node, mapped); }

ZR_OPER_CONT_DEFAULT(_instances_instance_instanceactive_defaultvrf)                              { return silent(ctx, node, mapped); }

ZR_OPER_CONT_DEFAULT(_instances_instance_instanceactive_defaultvrf_afs)                          { return empty_container(ctx, node, subtree_count, mapped, oc("/bgp/global/afi-safis")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_afs_af_afname)                { return entry_key(ctx, node, mapped, &Ctx::list_node, repeated(oc("/bgp/global/afi-safis/afi-safi")), oc_list("afi-safi-name")); }

ZR_OPER_CONT_DEFAULT(_instances_instance_instanceactive_defaultvrf_afs_af_globalafprocessinfo)   { return silent(ctx, node, mapped); }

ZR_OPER_CONT_DEFAULT(_instances_instance_instanceactive_defaultvrf_afs_af_globalafprocessinfo_global) { return silent(ctx, node, mapped); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_afs_af_globalafprocessinfo_global_scanprefixes) { return forward(ctx, node, mapped, vmf_map_man_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_afs_af_globalafprocessinfo_global_scanprefixes); }

ZR_OPER_CONT_DEFAULT(_instances_instance_instanceactive_defaultvrf_afs_af_afprocessinfo)         { return silent(ctx, node, mapped); }

ZR_OPER_CONT_DEFAULT(_instances_instance_instanceactive_defaultvrf_afs_af_afprocessinfo_global)  { return silent(ctx, node, mapped); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_afs_af_afprocessinfo_global_pathsnum) { return forward(ctx, node, mapped, vmf_map_man_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_afs_af_afprocessinfo_global_pathsnum); }

ZR_OPER_CONT_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors)                    { return empty_container(ctx, node, subtree_count, mapped, oc("/bgp/neighbors")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_neighboraddress) { return entry_key(ctx, node, mapped, &Ctx::list_node, repeated(oc("/bgp/neighbors/neighbor")), oc_list("neighbor-address")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_afdata_afname) { return entry_key(ctx, node, mapped, &Ctx::af_node, repeated(oc_list("afi-safis/afi-safi")), oc_af("afi-safi-name")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_afdata_isneighborafcapable) { return whole_path(ctx, node, mapped, oc_af("state/active")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_afdata_prefixesaccepted) { return whole_path(ctx, node, mapped, oc_af("state/prefixes/received")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_afdata_prefixesadvertised) { return whole_path(ctx, node, mapped, oc_af("state/prefixes/sent")); }

ZR_OPER_CONT_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress) { return silent(ctx, node, mapped); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress_ipv4address) { return whole_path(ctx, node, mapped, oc_list("transport/state/remote-address")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress_ipv4mcastaddress) { return whole_path(ctx, node, mapped, oc_list("transport/state/remote-address")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress_ipv4labeladdress) { return whole_path(ctx, node, mapped, oc_list("transport/state/remote-address")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress_ipv4vpnaddress) { return whole_path(ctx, node, mapped, oc_list("transport/state/remote-address")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress_ipv4vpnamcastddress) { return whole_path(ctx, node, mapped, oc_list("transport/state/remote-address")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress_ipv6address) { return whole_path(ctx, node, mapped, oc_list("transport/state/remote-address")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress_ipv6mcastaddress) { return whole_path(ctx, node, mapped, oc_list("transport/state/remote-address")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress_ipv6labeladdress) { return whole_path(ctx, node, mapped, oc_list("transport/state/remote-address")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress_ipv6vpnaddress) { return whole_path(ctx, node, mapped, oc_list("transport/state/remote-address")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteaddress_ipv6vpnmcastaddress) { return whole_path(ctx, node, mapped, oc_list("transport/state/remote-address")); }

ZR_OPER_CONT_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics) { return silent(ctx, node, mapped); }

ZR_OPER_CONT_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification) { return silent(ctx, node, mapped); }

ZR_OPER_CONT_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification_tx) { return silent(ctx, node, mapped); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification_tx_count) { return whole_path(ctx, node, mapped, oc_list("state/messages/sent/NOTIFICATION")); }

ZR_OPER_CONT_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification_rx) { return silent(ctx, node, mapped); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_notification_rx_count) { return whole_path(ctx, node, mapped, oc_list("state/messages/received/NOTIFICATION")); }

ZR_OPER_CONT_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update) { return silent(ctx, node, mapped); }

ZR_OPER_CONT_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update_tx) { return silent(ctx, node, mapped); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update_tx_count) { return whole_path(ctx, node, mapped, oc_list("state/messages/sent/UPDATE")); }

ZR_OPER_CONT_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update_rx) { return silent(ctx, node, mapped); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagestatistics_update_rx_count) { return whole_path(ctx, node, mapped, oc_list("state/messages/received/UPDATE")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagesqueuedin) { return whole_path(ctx, node, mapped, oc_list("state/queues/input")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_messagesqueuedout) { return whole_path(ctx, node, mapped, oc_list("state/queues/output")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionstate) { return whole_path(ctx, node, mapped, oc_list("state/session-state")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionlocalport) { return whole_path(ctx, node, mapped, oc_list("transport/state/local-port")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_connectionremoteport) { return whole_path(ctx, node, mapped, oc_list("transport/state/remote-port")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_isrouterefreshcapabilityreceived) { return whole_path(ctx, node, mapped, oc_list("state/supported-capabilities")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_isgraware) { return whole_path(ctx, node, mapped, oc_list("state/supported-capabilities")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_is4byteascapabilityreceived) { return whole_path(ctx, node, mapped, oc_list("state/supported-capabilities")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_is4byteascapabilitysent) { return whole_path(ctx, node, mapped, oc_list("state/supported-capabilities")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_multiprotocolcapabilityreceived) { return whole_path(ctx, node, mapped, oc_list("state/supported-capabilities")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_holdtime)  { return whole_path(ctx, node, mapped, oc_list("timers/state/negotiated-hold-time")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_gracefulrestartenablednbr) { return whole_path(ctx, node, mapped, oc_list("graceful-restart/state/acitve")); }
ZR_OPER_LEAF_DEFAULT(_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_grrestarttime) { return whole_path(ctx, node, mapped, oc_list("graceful-restart/state/peer-restart-time")); }
