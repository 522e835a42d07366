// Made by generator/ from models/openconfig-bgp.yang and models/openconfig-bgp.mapping.
// Renew it with `cmake --build build/release --target generate`.
#include "oc_defaults.h"

// clang-format off

OC_CONT_DEFAULT(_peergroups)                                             { return selection(ctx, node, subtree_count, out, {cfg(ZR_BGP_ENTITY "/neighbor-groups")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_peergroupname)                     { return key_leaf(ctx, node, out, repeated(cfg(ZR_BGP_ENTITY "/neighbor-groups/neighbor-group")), list("neighbor-group-name")); }

OC_CONT_DEFAULT(_peergroups_peergroup_config)                            { return silent(ctx, node, out); }
OC_LEAF_DEFAULT(_peergroups_peergroup_config_peeras)                     { return plain_leaf(ctx, node, out, list("remote-as")); }
OC_LEAF_DEFAULT(_peergroups_peergroup_config_localas)                    { return branching_leaf(ctx, node, out, {.read = {list("local-as")}, .remove = {list("local-as")}, .write = {lost(fixed(list("local-as/as-xx"), "0")), list("local-as/as-yy")}}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_config_authpassword)               { return plain_leaf(ctx, node, out, list("password")); }
OC_LEAF_DEFAULT(_peergroups_peergroup_config_description)                { return plain_leaf(ctx, node, out, list("description")); }
OC_LEAF_DEFAULT(_peergroups_peergroup_config_peergroupname)              { return plain_leaf(ctx, node, out, list("neighbor-group-name")); }

OC_CONT_DEFAULT(_peergroups_peergroup_state)                             { return silent(ctx, node, out); }
OC_LEAF_DEFAULT(_peergroups_peergroup_state_peeras)                      { return state_leaf(ctx, node, out, {list("remote-as")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_state_localas)                     { return state_leaf(ctx, node, out, {list("local-as"), list("local-as"), list("local-as/as-xx"), list("local-as/as-yy")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_state_authpassword)                { return state_leaf(ctx, node, out, {list("password/password-disable"), list("password/password")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_state_description)                 { return state_leaf(ctx, node, out, {list("description")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_state_peergroupname)               { return state_leaf(ctx, node, out, {list("neighbor-group-name")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_timers)                            { return selection(ctx, node, subtree_count, out, {list("timers"), list("advertisement-interval/minimum-interval")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_timers_config)                     { return selection(ctx, node, subtree_count, out, {list("timers"), list("advertisement-interval/minimum-interval")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_timers_config_holdtime)            { return plain_leaf(ctx, node, out, list("timers/hold-time")); }
OC_LEAF_DEFAULT(_peergroups_peergroup_timers_config_keepaliveinterval)   { return plain_leaf(ctx, node, out, list("timers/keepalive-interval")); }
OC_LEAF_DEFAULT(_peergroups_peergroup_timers_config_minimumadvertisementinterval) { return plain_leaf(ctx, node, out, list("advertisement-interval/minimum-interval")); }

OC_CONT_DEFAULT(_peergroups_peergroup_timers_state)                      { return state_selection(ctx, node, subtree_count, out, {list("timers"), list("advertisement-interval/minimum-interval")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_timers_state_holdtime)             { return state_leaf(ctx, node, out, {list("timers/hold-time")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_timers_state_keepaliveinterval)    { return state_leaf(ctx, node, out, {list("timers/keepalive-interval")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_timers_state_minimumadvertisementinterval) { return state_leaf(ctx, node, out, {list("advertisement-interval/minimum-interval")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_transport)                         { return selection(ctx, node, subtree_count, out, {list("session-open-mode"), list("tcpmss/mss"), list("local-address"), list("update-source-interface")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_transport_config)                  { return selection(ctx, node, subtree_count, out, {list("session-open-mode"), list("tcpmss/mss"), list("local-address"), list("update-source-interface")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_transport_config_tcpmss)           { return plain_leaf(ctx, node, out, list("tcpmss/mss")); }
OC_LEAF_DEFAULT(_peergroups_peergroup_transport_config_passivemode)      { return plain_leaf(ctx, node, out, list("session-open-mode")); }
OC_LEAF_DEFAULT(_peergroups_peergroup_transport_config_localaddress)     { return fan_out_leaf(ctx, node, out, {list("local-address"), list("update-source-interface")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_transport_state)                   { return state_selection(ctx, node, subtree_count, out, {list("session-open-mode"), list("tcpmss/mss"), list("local-address"), list("update-source-interface")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_transport_state_tcpmss)            { return state_leaf(ctx, node, out, {list("tcpmss/mss")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_transport_state_passivemode)       { return state_leaf(ctx, node, out, {list("session-open-mode")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_transport_state_localaddress)      { return state_leaf(ctx, node, out, {list("local-address"), list("update-source-interface")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_ebgpmultihop)                      { return selection(ctx, node, subtree_count, out, {list("ebgp-multihop")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_ebgpmultihop_config)               { return selection(ctx, node, subtree_count, out, {list("ebgp-multihop")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_ebgpmultihop_config_enabled)       { return branching_leaf(ctx, node, out, {.read = {list("ebgp-multihop/max-hop-count")}, .remove = {lost(list("ebgp-multihop/max-hop-count")), list("ebgp-multihop/mpls-deactivation")}, .write = {lost(fixed(list("ebgp-multihop/max-hop-count"), "255")), fixed(list("ebgp-multihop/mpls-deactivation"), "false")}}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_ebgpmultihop_config_multihopttl)   { return branching_leaf(ctx, node, out, {.read = {lost(list("ebgp-multihop/max-hop-count")), list("ebgp-multihop/mpls-deactivation")}, .remove = {lost(list("ebgp-multihop/max-hop-count")), list("ebgp-multihop/mpls-deactivation")}, .write = {lost(list("ebgp-multihop/max-hop-count")), fixed(list("ebgp-multihop/mpls-deactivation"), "false")}}); }

OC_CONT_DEFAULT(_peergroups_peergroup_ebgpmultihop_state)                { return state_selection(ctx, node, subtree_count, out, {list("ebgp-multihop")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_ebgpmultihop_state_enabled)        { return state_leaf(ctx, node, out, {list("ebgp-multihop/max-hop-count")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_ebgpmultihop_state_multihopttl)    { return state_leaf(ctx, node, out, {list("ebgp-multihop/max-hop-count"), list("ebgp-multihop/mpls-deactivation")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_routereflector)                    { return selection(ctx, node, subtree_count, out, {list("neighbor-cluster-id")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_routereflector_config)             { return selection(ctx, node, subtree_count, out, {list("neighbor-cluster-id")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_routereflector_config_routereflectorclusterid) { return plain_leaf(ctx, node, out, list("neighbor-cluster-id")); }

OC_CONT_DEFAULT(_peergroups_peergroup_routereflector_state)              { return state_selection(ctx, node, subtree_count, out, {list("neighbor-cluster-id")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_routereflector_state_routereflectorclusterid) { return state_leaf(ctx, node, out, {list("neighbor-cluster-id")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis)                          { return selection(ctx, node, subtree_count, out, {list("neighbor-group-afs")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_afisafiname)      { return plain_leaf(ctx, node, out, af("af-name")); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_config)           { return silent(ctx, node, out); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_config_afisafiname) { return plain_leaf(ctx, node, out, af("af-name")); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_config_enabled)   { return plain_leaf(ctx, node, out, af("activate")); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_state)            { return silent(ctx, node, out); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_state_afisafiname) { return state_leaf(ctx, node, out, {af("af-name")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_state_enabled)    { return state_leaf(ctx, node, out, {af("activate")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_applypolicy)      { return selection(ctx, node, subtree_count, out, {af("route-policy-in"), af("route-policy-out")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_applypolicy_config) { return selection(ctx, node, subtree_count, out, {af("route-policy-in"), af("route-policy-out")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_applypolicy_config_importpolicy) { return plain_leaf(ctx, node, out, repeated(af("route-policy-in"))); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_applypolicy_config_exportpolicy) { return plain_leaf(ctx, node, out, repeated(af("route-policy-out"))); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_applypolicy_state) { return state_selection(ctx, node, subtree_count, out, {af("route-policy-in"), af("route-policy-out")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_applypolicy_state_importpolicy) { return state_leaf(ctx, node, out, {repeated(af("route-policy-in"))}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_applypolicy_state_exportpolicy) { return state_leaf(ctx, node, out, {repeated(af("route-policy-out"))}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv4unicast)      { return silent(ctx, node, out); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_config) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_config_maxprefixes) { return plain_leaf(ctx, node, out, af("maximum-prefixes/prefix-limit")); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_config_shutdownthresholdpct) { return plain_leaf(ctx, node, out, af("maximum-prefixes/warning-percentage")); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_state) { return state_selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_state_maxprefixes) { return state_leaf(ctx, node, out, {af("maximum-prefixes/prefix-limit"), af("maximum-prefixes/warning-only"), af("maximum-prefixes/discard-extra-paths")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_state_shutdownthresholdpct) { return state_leaf(ctx, node, out, {af("maximum-prefixes/warning-percentage")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv4unicast_config) { return selection(ctx, node, subtree_count, out, {af("default-originate/enable")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv4unicast_config_senddefaultroute) { return plain_leaf(ctx, node, out, af("default-originate/enable")); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv4unicast_state) { return state_selection(ctx, node, subtree_count, out, {af("default-originate/enable")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv4unicast_state_senddefaultroute) { return state_leaf(ctx, node, out, {af("default-originate/enable")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv6unicast)      { return silent(ctx, node, out); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_config) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_config_maxprefixes) { return plain_leaf(ctx, node, out, af("maximum-prefixes/prefix-limit")); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_config_shutdownthresholdpct) { return plain_leaf(ctx, node, out, af("maximum-prefixes/warning-percentage")); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_state) { return state_selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_state_maxprefixes) { return state_leaf(ctx, node, out, {af("maximum-prefixes/prefix-limit"), af("maximum-prefixes/warning-only"), af("maximum-prefixes/discard-extra-paths")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_state_shutdownthresholdpct) { return state_leaf(ctx, node, out, {af("maximum-prefixes/warning-percentage")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv6unicast_config) { return selection(ctx, node, subtree_count, out, {af("default-originate/enable")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv6unicast_config_senddefaultroute) { return plain_leaf(ctx, node, out, af("default-originate/enable")); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv6unicast_state) { return state_selection(ctx, node, subtree_count, out, {af("default-originate/enable")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv6unicast_state_senddefaultroute) { return state_leaf(ctx, node, out, {af("default-originate/enable")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast) { return silent(ctx, node, out); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_maxprefixes) { return plain_leaf(ctx, node, out, af("maximum-prefixes/prefix-limit")); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_shutdownthresholdpct) { return plain_leaf(ctx, node, out, af("maximum-prefixes/warning-percentage")); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state) { return state_selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_maxprefixes) { return state_leaf(ctx, node, out, {af("maximum-prefixes/prefix-limit"), af("maximum-prefixes/warning-only"), af("maximum-prefixes/discard-extra-paths")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_shutdownthresholdpct) { return state_leaf(ctx, node, out, {af("maximum-prefixes/warning-percentage")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast) { return silent(ctx, node, out); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_maxprefixes) { return plain_leaf(ctx, node, out, af("maximum-prefixes/prefix-limit")); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_shutdownthresholdpct) { return plain_leaf(ctx, node, out, af("maximum-prefixes/warning-percentage")); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state) { return state_selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_maxprefixes) { return state_leaf(ctx, node, out, {af("maximum-prefixes/prefix-limit"), af("maximum-prefixes/warning-only"), af("maximum-prefixes/discard-extra-paths")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_shutdownthresholdpct) { return state_leaf(ctx, node, out, {af("maximum-prefixes/warning-percentage")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast) { return silent(ctx, node, out); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_maxprefixes) { return plain_leaf(ctx, node, out, af("maximum-prefixes/prefix-limit")); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_shutdownthresholdpct) { return plain_leaf(ctx, node, out, af("maximum-prefixes/warning-percentage")); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state) { return state_selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_maxprefixes) { return state_leaf(ctx, node, out, {af("maximum-prefixes/prefix-limit"), af("maximum-prefixes/warning-only"), af("maximum-prefixes/discard-extra-paths")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_shutdownthresholdpct) { return state_leaf(ctx, node, out, {af("maximum-prefixes/warning-percentage")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast) { return silent(ctx, node, out); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_maxprefixes) { return plain_leaf(ctx, node, out, af("maximum-prefixes/prefix-limit")); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_shutdownthresholdpct) { return plain_leaf(ctx, node, out, af("maximum-prefixes/warning-percentage")); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state) { return state_selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_maxprefixes) { return state_leaf(ctx, node, out, {af("maximum-prefixes/prefix-limit"), af("maximum-prefixes/warning-only"), af("maximum-prefixes/discard-extra-paths")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_shutdownthresholdpct) { return state_leaf(ctx, node, out, {af("maximum-prefixes/warning-percentage")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast) { return silent(ctx, node, out); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_maxprefixes) { return plain_leaf(ctx, node, out, af("maximum-prefixes/prefix-limit")); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_shutdownthresholdpct) { return plain_leaf(ctx, node, out, af("maximum-prefixes/warning-percentage")); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state) { return state_selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_maxprefixes) { return state_leaf(ctx, node, out, {af("maximum-prefixes/prefix-limit"), af("maximum-prefixes/warning-only"), af("maximum-prefixes/discard-extra-paths")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_shutdownthresholdpct) { return state_leaf(ctx, node, out, {af("maximum-prefixes/warning-percentage")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast) { return silent(ctx, node, out); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_maxprefixes) { return plain_leaf(ctx, node, out, af("maximum-prefixes/prefix-limit")); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_shutdownthresholdpct) { return plain_leaf(ctx, node, out, af("maximum-prefixes/warning-percentage")); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state) { return state_selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_maxprefixes) { return state_leaf(ctx, node, out, {af("maximum-prefixes/prefix-limit"), af("maximum-prefixes/warning-only"), af("maximum-prefixes/discard-extra-paths")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_shutdownthresholdpct) { return state_leaf(ctx, node, out, {af("maximum-prefixes/warning-percentage")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l2vpnvpls)        { return silent(ctx, node, out); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_config) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_config_maxprefixes) { return plain_leaf(ctx, node, out, af("maximum-prefixes/prefix-limit")); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_config_shutdownthresholdpct) { return plain_leaf(ctx, node, out, af("maximum-prefixes/warning-percentage")); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_state) { return state_selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_state_maxprefixes) { return state_leaf(ctx, node, out, {af("maximum-prefixes/prefix-limit"), af("maximum-prefixes/warning-only"), af("maximum-prefixes/discard-extra-paths")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_state_shutdownthresholdpct) { return state_leaf(ctx, node, out, {af("maximum-prefixes/warning-percentage")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l2vpnevpn)        { return silent(ctx, node, out); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_config) { return selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_config_maxprefixes) { return plain_leaf(ctx, node, out, af("maximum-prefixes/prefix-limit")); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_config_shutdownthresholdpct) { return plain_leaf(ctx, node, out, af("maximum-prefixes/warning-percentage")); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_state) { return state_selection(ctx, node, subtree_count, out, {af("maximum-prefixes")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_state_maxprefixes) { return state_leaf(ctx, node, out, {af("maximum-prefixes/prefix-limit"), af("maximum-prefixes/warning-only"), af("maximum-prefixes/discard-extra-paths")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_state_shutdownthresholdpct) { return state_leaf(ctx, node, out, {af("maximum-prefixes/warning-percentage")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_usemultiplepaths) { return selection(ctx, node, subtree_count, out, {af("multipath")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_config) { return selection(ctx, node, subtree_count, out, {af("multipath")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_config_enabled) { return plain_leaf(ctx, node, out, af("multipath")); }

OC_CONT_DEFAULT(_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_state) { return selection(ctx, node, subtree_count, out, {af("multipath")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_state_enabled) { return plain_leaf(ctx, node, out, af("multipath")); }

OC_CONT_DEFAULT(_peergroups_peergroup_gracefulrestart)                   { return selection(ctx, node, subtree_count, out, {list("neighbor-graceful-restart"), list("neighbor-graceful-restart-time"), list("neighbor-graceful-restart-stalepath-time")}); }

OC_CONT_DEFAULT(_peergroups_peergroup_gracefulrestart_config)            { return selection(ctx, node, subtree_count, out, {list("neighbor-graceful-restart"), list("neighbor-graceful-restart-time"), list("neighbor-graceful-restart-stalepath-time")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_gracefulrestart_config_enabled)    { return plain_leaf(ctx, node, out, list("neighbor-graceful-restart")); }
OC_LEAF_DEFAULT(_peergroups_peergroup_gracefulrestart_config_restarttime) { return plain_leaf(ctx, node, out, list("neighbor-graceful-restart-time")); }
OC_LEAF_DEFAULT(_peergroups_peergroup_gracefulrestart_config_staleroutestime) { return plain_leaf(ctx, node, out, list("neighbor-graceful-restart-stalepath-time")); }

OC_CONT_DEFAULT(_peergroups_peergroup_gracefulrestart_state)             { return state_selection(ctx, node, subtree_count, out, {list("neighbor-graceful-restart"), list("neighbor-graceful-restart-time"), list("neighbor-graceful-restart-stalepath-time")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_gracefulrestart_state_enabled)     { return state_leaf(ctx, node, out, {list("neighbor-graceful-restart")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_gracefulrestart_state_restarttime) { return state_leaf(ctx, node, out, {list("neighbor-graceful-restart-time")}); }
OC_LEAF_DEFAULT(_peergroups_peergroup_gracefulrestart_state_staleroutestime) { return state_leaf(ctx, node, out, {list("neighbor-graceful-restart-stalepath-time")}); }
