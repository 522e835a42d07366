// Made by generator/ from models/openconfig-bgp.yang and models/openconfig-bgp.mapping.
// Renew it with `cmake --build build/release --target generate`.
#include "oc_defaults.h"

// clang-format off

OC_CONT_DEFAULT(_neighbors)                                              { return selection(ctx, node, subtree_count, out, {cfg(ZR_BGP_ENTITY "/neighbors")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_neighboraddress)                     { return key_leaf(ctx, node, out, repeated(cfg(ZR_BGP_ENTITY "/neighbors/neighbor")), list("neighbor-address")); }

OC_CONT_DEFAULT(_neighbors_neighbor_config)                              { return silent(ctx, node, out); }
OC_LEAF_DEFAULT(_neighbors_neighbor_config_peeras)                       { return plain_leaf(ctx, node, out, list("remote-as")); }
OC_LEAF_DEFAULT(_neighbors_neighbor_config_localas)                      { return plain_leaf(ctx, node, out, list("local-as")); }
OC_LEAF_DEFAULT(_neighbors_neighbor_config_authpassword)                 { return plain_leaf(ctx, node, out, list("password")); }
OC_LEAF_DEFAULT(_neighbors_neighbor_config_description)                  { return plain_leaf(ctx, node, out, list("description")); }
OC_LEAF_DEFAULT(_neighbors_neighbor_config_peergroup)                    { return plain_leaf(ctx, node, out, list("neighbor-group-add-member")); }
OC_LEAF_DEFAULT(_neighbors_neighbor_config_neighboraddress)              { return plain_leaf(ctx, node, out, list("neighbor-address")); }

OC_CONT_DEFAULT(_neighbors_neighbor_state)                               { return silent(ctx, node, out); }
OC_LEAF_DEFAULT(_neighbors_neighbor_state_peeras)                        { return state_leaf(ctx, node, out, {list("remote-as")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_state_localas)                       { return state_leaf(ctx, node, out, {list("local-as")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_state_authpassword)                  { return state_leaf(ctx, node, out, {list("password")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_state_description)                   { return state_leaf(ctx, node, out, {list("description")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_state_peergroup)                     { return state_leaf(ctx, node, out, {list("neighbor-group-add-member")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_state_neighboraddress)               { return state_leaf(ctx, node, out, {list("neighbor-address")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_state_sessionstate)                  { return state_leaf(ctx, node, out, {oper_list("connection-state")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_state_supportedcapabilities)         { return state_leaf(ctx, node, out, {repeated(oper_list("is-route-refresh-capability-received")), repeated(oper_list("is-gr-aware")), repeated(oper_list("is4-byte-as-capability-received")), repeated(oper_list("is4-byte-as-capability-sent")), repeated(oper_list("multi-protocol-capability-received"))}); }

OC_CONT_DEFAULT(_neighbors_neighbor_state_messages)                      { return state_selection(ctx, node, subtree_count, out, {oper_list("message-statistics")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_state_messages_sent)                 { return state_selection(ctx, node, subtree_count, out, {oper_list("message-statistics/update/tx/count"), oper_list("message-statistics/notification/tx/count")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_state_messages_sent_UPDATE)          { return state_leaf(ctx, node, out, {oper_list("message-statistics/update/tx/count")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_state_messages_sent_NOTIFICATION)    { return state_leaf(ctx, node, out, {oper_list("message-statistics/notification/tx/count")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_state_messages_received)             { return state_selection(ctx, node, subtree_count, out, {oper_list("message-statistics/update/rx/count"), oper_list("message-statistics/notification/rx/count")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_state_messages_received_UPDATE)      { return state_leaf(ctx, node, out, {oper_list("message-statistics/update/rx/count")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_state_messages_received_NOTIFICATION) { return state_leaf(ctx, node, out, {oper_list("message-statistics/notification/rx/count")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_state_queues)                        { return state_selection(ctx, node, subtree_count, out, {oper_list("messages-queued-in"), oper_list("messages-queued-out")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_state_queues_input)                  { return state_leaf(ctx, node, out, {oper_list("messages-queued-in")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_state_queues_output)                 { return state_leaf(ctx, node, out, {oper_list("messages-queued-out")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_timers)                              { return selection(ctx, node, subtree_count, out, {list("timers"), list("advertisement-interval/minimum-interval")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_timers_config)                       { return selection(ctx, node, subtree_count, out, {list("timers"), list("advertisement-interval/minimum-interval")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_timers_config_holdtime)              { return plain_leaf(ctx, node, out, list("timers/hold-time")); }
OC_LEAF_DEFAULT(_neighbors_neighbor_timers_config_keepaliveinterval)     { return plain_leaf(ctx, node, out, list("timers/keepalive-interval")); }
OC_LEAF_DEFAULT(_neighbors_neighbor_timers_config_minimumadvertisementinterval) { return plain_leaf(ctx, node, out, list("advertisement-interval/minimum-interval")); }

OC_CONT_DEFAULT(_neighbors_neighbor_timers_state)                        { return state_selection(ctx, node, subtree_count, out, {list("timers"), list("advertisement-interval/minimum-interval")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_timers_state_holdtime)               { return state_leaf(ctx, node, out, {list("timers/hold-time")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_timers_state_keepaliveinterval)      { return state_leaf(ctx, node, out, {list("timers/keepalive-interval")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_timers_state_minimumadvertisementinterval) { return state_leaf(ctx, node, out, {list("advertisement-interval/minimum-interval")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_timers_state_negotiatedholdtime)     { return state_leaf(ctx, node, out, {oper_list("hold-time")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_transport)                           { return selection(ctx, node, subtree_count, out, {list("session-open-mode"), list("tcpmss/mss"), list("local-address"), list("update-source-interface")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_transport_config)                    { return selection(ctx, node, subtree_count, out, {list("session-open-mode"), list("tcpmss/mss"), list("local-address"), list("update-source-interface")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_transport_config_tcpmss)             { return plain_leaf(ctx, node, out, list("tcpmss/mss")); }
OC_LEAF_DEFAULT(_neighbors_neighbor_transport_config_passivemode)        { return plain_leaf(ctx, node, out, list("session-open-mode")); }
OC_LEAF_DEFAULT(_neighbors_neighbor_transport_config_localaddress)       { return fan_out_leaf(ctx, node, out, {list("local-address"), list("update-source-interface")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_transport_state)                     { return state_selection(ctx, node, subtree_count, out, {list("session-open-mode"), list("tcpmss/mss"), list("local-address/local-address-disable"), list("local-address/local-ip-address")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_transport_state_tcpmss)              { return state_leaf(ctx, node, out, {list("tcpmss/mss")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_transport_state_passivemode)         { return state_leaf(ctx, node, out, {list("session-open-mode")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_transport_state_localaddress)        { return state_leaf(ctx, node, out, {list("local-address"), list("update-source-interface")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_transport_state_localport)           { return state_leaf(ctx, node, out, {oper_list("connection-local-port")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_transport_state_remoteaddress)       { return state_leaf(ctx, node, out, {oper_list("connection-remote-address/ipv4-address"), oper_list("connection-remote-address/ipv6-address")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_transport_state_remoteport)          { return state_leaf(ctx, node, out, {oper_list("connection-remote-port")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_ebgpmultihop)                        { return selection(ctx, node, subtree_count, out, {list("ebgp-multihop")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_ebgpmultihop_config)                 { return selection(ctx, node, subtree_count, out, {list("ebgp-multihop")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_ebgpmultihop_config_enabled)         { return branching_leaf(ctx, node, out, {.read = {list("ebgp-multihop/max-hop-count")}, .remove = {lost(list("ebgp-multihop/max-hop-count")), list("ebgp-multihop/mpls-deactivation")}, .write = {lost(fixed(list("ebgp-multihop/max-hop-count"), "255")), fixed(list("ebgp-multihop/mpls-deactivation"), "false")}}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_ebgpmultihop_config_multihopttl)     { return branching_leaf(ctx, node, out, {.read = {lost(list("ebgp-multihop/max-hop-count")), list("ebgp-multihop/mpls-deactivation")}, .remove = {lost(list("ebgp-multihop/max-hop-count")), list("ebgp-multihop/mpls-deactivation")}, .write = {lost(list("ebgp-multihop/max-hop-count")), fixed(list("ebgp-multihop/mpls-deactivation"), "false")}}); }

OC_CONT_DEFAULT(_neighbors_neighbor_ebgpmultihop_state)                  { return state_selection(ctx, node, subtree_count, out, {list("ebgp-multihop")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_ebgpmultihop_state_enabled)          { return state_leaf(ctx, node, out, {list("ebgp-multihop/max-hop-count")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_ebgpmultihop_state_multihopttl)      { return state_leaf(ctx, node, out, {list("ebgp-multihop/max-hop-count"), list("ebgp-multihop/mpls-deactivation")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_routereflector)                      { return selection(ctx, node, subtree_count, out, {list("neighbor-cluster-id")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_routereflector_config)               { return selection(ctx, node, subtree_count, out, {list("neighbor-cluster-id")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_routereflector_config_routereflectorclusterid) { return plain_leaf(ctx, node, out, list("neighbor-cluster-id")); }

OC_CONT_DEFAULT(_neighbors_neighbor_routereflector_state)                { return state_selection(ctx, node, subtree_count, out, {list("neighbor-cluster-id")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_routereflector_state_routereflectorclusterid) { return state_leaf(ctx, node, out, {list("neighbor-cluster-id")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis)                            { return selection(ctx, node, subtree_count, out, {list("neighbor-afs")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_afisafiname)        { return plain_leaf(ctx, node, out, af("af-name")); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_config)             { return silent(ctx, node, out); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_config_afisafiname) { return plain_leaf(ctx, node, out, af("af-name")); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_config_enabled)     { return plain_leaf(ctx, node, out, af("activate")); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_state)              { return silent(ctx, node, out); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_state_afisafiname)  { return state_leaf(ctx, node, out, {af("af-name")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_state_enabled)      { return state_leaf(ctx, node, out, {af("activate")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_state_active)       { return state_leaf(ctx, node, out, {oper_af("is-neighbor-af-capable")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_state_prefixes)     { return state_selection(ctx, node, subtree_count, out, {oper_af("prefixes-accepted"), oper_af("prefixes-advertised")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_state_prefixes_received) { return state_leaf(ctx, node, out, {oper_af("prefixes-accepted")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_state_prefixes_sent) { return state_leaf(ctx, node, out, {oper_af("prefixes-advertised")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_applypolicy)        { return selection(ctx, node, subtree_count, out, {af("route-policy-in"), af("route-policy-out")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_applypolicy_config) { return selection(ctx, node, subtree_count, out, {af("route-policy-in"), af("route-policy-out")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_applypolicy_config_importpolicy) { return plain_leaf(ctx, node, out, repeated(af("route-policy-in"))); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_applypolicy_config_exportpolicy) { return plain_leaf(ctx, node, out, repeated(af("route-policy-out"))); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_applypolicy_state)  { return state_selection(ctx, node, subtree_count, out, {af("route-policy-in"), af("route-policy-out")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_applypolicy_state_importpolicy) { return state_leaf(ctx, node, out, {repeated(af("route-policy-in"))}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_applypolicy_state_exportpolicy) { return state_leaf(ctx, node, out, {repeated(af("route-policy-out"))}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv4unicast)        { return silent(ctx, node, out); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_config) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_config_maxprefixes) { return plain_leaf(ctx, node, out, af("maximum-prefixes/prefix-limit")); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_config_shutdownthresholdpct) { return plain_leaf(ctx, node, out, af("maximum-prefixes/warning-percentage")); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_state) { return state_selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_state_maxprefixes) { return state_leaf(ctx, node, out, {af("maximum-prefixes/prefix-limit"), af("maximum-prefixes/warning-only"), af("maximum-prefixes/discard-extra-paths")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_state_shutdownthresholdpct) { return state_leaf(ctx, node, out, {af("maximum-prefixes/warning-percentage")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv4unicast_config) { return selection(ctx, node, subtree_count, out, {af("default-originate/enable")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv4unicast_config_senddefaultroute) { return plain_leaf(ctx, node, out, af("default-originate/enable")); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv4unicast_state)  { return state_selection(ctx, node, subtree_count, out, {af("default-originate/enable")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv4unicast_state_senddefaultroute) { return state_leaf(ctx, node, out, {af("default-originate/enable")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv6unicast)        { return silent(ctx, node, out); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_config) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_config_maxprefixes) { return plain_leaf(ctx, node, out, af("maximum-prefixes/prefix-limit")); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_config_shutdownthresholdpct) { return plain_leaf(ctx, node, out, af("maximum-prefixes/warning-percentage")); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_state) { return state_selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_state_maxprefixes) { return state_leaf(ctx, node, out, {af("maximum-prefixes/prefix-limit"), af("maximum-prefixes/warning-only"), af("maximum-prefixes/discard-extra-paths")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_state_shutdownthresholdpct) { return state_leaf(ctx, node, out, {af("maximum-prefixes/warning-percentage")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv6unicast_config) { return selection(ctx, node, subtree_count, out, {af("default-originate/enable")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv6unicast_config_senddefaultroute) { return plain_leaf(ctx, node, out, af("default-originate/enable")); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv6unicast_state)  { return state_selection(ctx, node, subtree_count, out, {af("default-originate/enable")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv6unicast_state_senddefaultroute) { return state_leaf(ctx, node, out, {af("default-originate/enable")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast) { return silent(ctx, node, out); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_maxprefixes) { return plain_leaf(ctx, node, out, af("maximum-prefixes/prefix-limit")); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_shutdownthresholdpct) { return plain_leaf(ctx, node, out, af("maximum-prefixes/warning-percentage")); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state) { return state_selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_maxprefixes) { return state_leaf(ctx, node, out, {af("maximum-prefixes/prefix-limit"), af("maximum-prefixes/warning-only"), af("maximum-prefixes/discard-extra-paths")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_shutdownthresholdpct) { return state_leaf(ctx, node, out, {af("maximum-prefixes/warning-percentage")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast) { return silent(ctx, node, out); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_maxprefixes) { return plain_leaf(ctx, node, out, af("maximum-prefixes/prefix-limit")); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_shutdownthresholdpct) { return plain_leaf(ctx, node, out, af("maximum-prefixes/warning-percentage")); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state) { return state_selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_maxprefixes) { return state_leaf(ctx, node, out, {af("maximum-prefixes/prefix-limit"), af("maximum-prefixes/warning-only"), af("maximum-prefixes/discard-extra-paths")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_shutdownthresholdpct) { return state_leaf(ctx, node, out, {af("maximum-prefixes/warning-percentage")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast)   { return silent(ctx, node, out); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_maxprefixes) { return plain_leaf(ctx, node, out, af("maximum-prefixes/prefix-limit")); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_shutdownthresholdpct) { return plain_leaf(ctx, node, out, af("maximum-prefixes/warning-percentage")); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state) { return state_selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_maxprefixes) { return state_leaf(ctx, node, out, {af("maximum-prefixes/prefix-limit"), af("maximum-prefixes/warning-only"), af("maximum-prefixes/discard-extra-paths")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_shutdownthresholdpct) { return state_leaf(ctx, node, out, {af("maximum-prefixes/warning-percentage")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast)   { return silent(ctx, node, out); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_maxprefixes) { return plain_leaf(ctx, node, out, af("maximum-prefixes/prefix-limit")); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_shutdownthresholdpct) { return plain_leaf(ctx, node, out, af("maximum-prefixes/warning-percentage")); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state) { return state_selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_maxprefixes) { return state_leaf(ctx, node, out, {af("maximum-prefixes/prefix-limit"), af("maximum-prefixes/warning-only"), af("maximum-prefixes/discard-extra-paths")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_shutdownthresholdpct) { return state_leaf(ctx, node, out, {af("maximum-prefixes/warning-percentage")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast) { return silent(ctx, node, out); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_maxprefixes) { return plain_leaf(ctx, node, out, af("maximum-prefixes/prefix-limit")); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_shutdownthresholdpct) { return plain_leaf(ctx, node, out, af("maximum-prefixes/warning-percentage")); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state) { return state_selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_maxprefixes) { return state_leaf(ctx, node, out, {af("maximum-prefixes/prefix-limit"), af("maximum-prefixes/warning-only"), af("maximum-prefixes/discard-extra-paths")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_shutdownthresholdpct) { return state_leaf(ctx, node, out, {af("maximum-prefixes/warning-percentage")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast) { return silent(ctx, node, out); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_maxprefixes) { return plain_leaf(ctx, node, out, af("maximum-prefixes/prefix-limit")); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_shutdownthresholdpct) { return plain_leaf(ctx, node, out, af("maximum-prefixes/warning-percentage")); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state) { return state_selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_maxprefixes) { return state_leaf(ctx, node, out, {af("maximum-prefixes/prefix-limit"), af("maximum-prefixes/warning-only"), af("maximum-prefixes/discard-extra-paths")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_shutdownthresholdpct) { return state_leaf(ctx, node, out, {af("maximum-prefixes/warning-percentage")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l2vpnvpls)          { return silent(ctx, node, out); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_config) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_config_maxprefixes) { return plain_leaf(ctx, node, out, af("maximum-prefixes/prefix-limit")); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_config_shutdownthresholdpct) { return plain_leaf(ctx, node, out, af("maximum-prefixes/warning-percentage")); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_state) { return state_selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_state_maxprefixes) { return state_leaf(ctx, node, out, {af("maximum-prefixes/prefix-limit"), af("maximum-prefixes/warning-only"), af("maximum-prefixes/discard-extra-paths")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_state_shutdownthresholdpct) { return state_leaf(ctx, node, out, {af("maximum-prefixes/warning-percentage")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l2vpnevpn)          { return silent(ctx, node, out); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_config) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_config_maxprefixes) { return plain_leaf(ctx, node, out, af("maximum-prefixes/prefix-limit")); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_config_shutdownthresholdpct) { return plain_leaf(ctx, node, out, af("maximum-prefixes/warning-percentage")); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_state) { return state_selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_state_maxprefixes) { return state_leaf(ctx, node, out, {af("maximum-prefixes/prefix-limit"), af("maximum-prefixes/warning-only"), af("maximum-prefixes/discard-extra-paths")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_state_shutdownthresholdpct) { return state_leaf(ctx, node, out, {af("maximum-prefixes/warning-percentage")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_usemultiplepaths)   { return selection(ctx, node, subtree_count, out, {af("multipath")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_config) { return selection(ctx, node, subtree_count, out, {af("multipath")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_config_enabled) { return plain_leaf(ctx, node, out, af("multipath")); }

OC_CONT_DEFAULT(_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_state) { return selection(ctx, node, subtree_count, out, {af("multipath")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_state_enabled) { return plain_leaf(ctx, node, out, af("multipath")); }

OC_CONT_DEFAULT(_neighbors_neighbor_gracefulrestart)                     { return selection(ctx, node, subtree_count, out, {list("neighbor-graceful-restart"), list("neighbor-graceful-restart-time"), list("neighbor-graceful-restart-stalepath-time")}); }

OC_CONT_DEFAULT(_neighbors_neighbor_gracefulrestart_config)              { return selection(ctx, node, subtree_count, out, {list("neighbor-graceful-restart"), list("neighbor-graceful-restart-time"), list("neighbor-graceful-restart-stalepath-time")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_gracefulrestart_config_enabled)      { return plain_leaf(ctx, node, out, list("neighbor-graceful-restart")); }
OC_LEAF_DEFAULT(_neighbors_neighbor_gracefulrestart_config_restarttime)  { return plain_leaf(ctx, node, out, list("neighbor-graceful-restart-time")); }
OC_LEAF_DEFAULT(_neighbors_neighbor_gracefulrestart_config_staleroutestime) { return plain_leaf(ctx, node, out, list("neighbor-graceful-restart-stalepath-time")); }

OC_CONT_DEFAULT(_neighbors_neighbor_gracefulrestart_state)               { return state_selection(ctx, node, subtree_count, out, {list("neighbor-graceful-restart"), list("neighbor-graceful-restart-time"), list("neighbor-graceful-restart-stalepath-time")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_gracefulrestart_state_enabled)       { return state_leaf(ctx, node, out, {list("neighbor-graceful-restart")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_gracefulrestart_state_restarttime)   { return state_leaf(ctx, node, out, {list("neighbor-graceful-restart-time")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_gracefulrestart_state_staleroutestime) { return state_leaf(ctx, node, out, {list("neighbor-graceful-restart-stalepath-time")}); }
OC_LEAF_DEFAULT(_neighbors_neighbor_gracefulrestart_state_peerrestarttime) { return state_leaf(ctx, node, out, {oper_list("gr-restart-time")}); }
