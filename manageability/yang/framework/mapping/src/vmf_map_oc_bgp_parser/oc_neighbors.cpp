// Made by generator/ from models/openconfig-bgp.yang and models/openconfig-bgp.mapping.
// Renew it with `cmake --build build/release --target generate`.
#include "oc_walk.h"

// clang-format off

// ---- /bgp/neighbors
static constexpr WalkChild neighbors_children[] = {
    {"neighbor", Gate::none, vmf_map_oc_bgp_neighbors_neighbor},
};
static constexpr WalkContainer neighbors = {vmf_map_cont_oc_bgp_neighbors, neighbors_children, Scope::keeps};
OC_WALK(_neighbors) { return walk_container(ctx, node, out, neighbors); }

// ---- /bgp/neighbors/neighbor
static constexpr WalkChild neighbors_neighbor_children[] = {
    {"config",           Gate::config, vmf_map_oc_bgp_neighbors_neighbor_config},
    {"state",            Gate::state,  vmf_map_oc_bgp_neighbors_neighbor_state},
    {"timers",           Gate::none,   vmf_map_oc_bgp_neighbors_neighbor_timers},
    {"transport",        Gate::none,   vmf_map_oc_bgp_neighbors_neighbor_transport},
    {"ebgp-multihop",    Gate::none,   vmf_map_oc_bgp_neighbors_neighbor_ebgpmultihop},
    {"route-reflector",  Gate::none,   vmf_map_oc_bgp_neighbors_neighbor_routereflector},
    {"afi-safis",        Gate::none,   vmf_map_oc_bgp_neighbors_neighbor_afisafis},
    {"graceful-restart", Gate::none,   vmf_map_oc_bgp_neighbors_neighbor_gracefulrestart},
};
static constexpr WalkList neighbors_neighbor = {
    "neighbor", "neighbor-address", "/bgp/neighbors/neighbor", vmf_map_oc_bgp_neighbors_neighbor_neighboraddress,
    KeyHabit::says_on_failure, neighbors_neighbor_children, Scope::keeps};
OC_WALK(_neighbors_neighbor) { return walk_list_entry(ctx, node, out, neighbors_neighbor); }
OC_WALK(_neighbors_neighbor_neighboraddress) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_neighboraddress); }

// ---- /bgp/neighbors/neighbor/config
static constexpr WalkChild neighbors_neighbor_config_children[] = {
    {"peer-as",          Gate::none, vmf_map_oc_bgp_neighbors_neighbor_config_peeras},
    {"local-as",         Gate::none, vmf_map_oc_bgp_neighbors_neighbor_config_localas},
    {"auth-password",    Gate::none, vmf_map_oc_bgp_neighbors_neighbor_config_authpassword},
    {"description",      Gate::none, vmf_map_oc_bgp_neighbors_neighbor_config_description},
    {"peer-group",       Gate::none, vmf_map_oc_bgp_neighbors_neighbor_config_peergroup},
    {"neighbor-address", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_config_neighboraddress},
};
static constexpr WalkContainer neighbors_neighbor_config = {vmf_map_cont_oc_bgp_neighbors_neighbor_config, neighbors_neighbor_config_children, Scope::none};
OC_WALK(_neighbors_neighbor_config) { return walk_container(ctx, node, out, neighbors_neighbor_config); }
OC_WALK(_neighbors_neighbor_config_peeras) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_config_peeras); }
OC_WALK(_neighbors_neighbor_config_localas) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_config_localas); }
OC_WALK(_neighbors_neighbor_config_authpassword) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_config_authpassword); }
OC_WALK(_neighbors_neighbor_config_description) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_config_description); }
OC_WALK(_neighbors_neighbor_config_peergroup) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_config_peergroup); }
OC_WALK(_neighbors_neighbor_config_neighboraddress) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_config_neighboraddress); }

// ---- /bgp/neighbors/neighbor/state
static constexpr WalkChild neighbors_neighbor_state_children[] = {
    {"peer-as",                Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_state_peeras},
    {"local-as",               Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_state_localas},
    {"auth-password",          Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_state_authpassword},
    {"description",            Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_state_description},
    {"peer-group",             Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_state_peergroup},
    {"neighbor-address",       Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_state_neighboraddress},
    {"session-state",          Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_state_sessionstate},
    {"supported-capabilities", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_state_supportedcapabilities},
    {"messages",               Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_state_messages},
    {"queues",                 Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_state_queues},
};
static constexpr WalkContainer neighbors_neighbor_state = {vmf_map_cont_oc_bgp_neighbors_neighbor_state, neighbors_neighbor_state_children, Scope::none};
OC_WALK(_neighbors_neighbor_state) { return walk_container(ctx, node, out, neighbors_neighbor_state); }
OC_WALK(_neighbors_neighbor_state_peeras) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_state_peeras); }
OC_WALK(_neighbors_neighbor_state_localas) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_state_localas); }
OC_WALK(_neighbors_neighbor_state_authpassword) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_state_authpassword); }
OC_WALK(_neighbors_neighbor_state_description) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_state_description); }
OC_WALK(_neighbors_neighbor_state_peergroup) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_state_peergroup); }
OC_WALK(_neighbors_neighbor_state_neighboraddress) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_state_neighboraddress); }
OC_WALK(_neighbors_neighbor_state_sessionstate) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_state_sessionstate); }
OC_WALK(_neighbors_neighbor_state_supportedcapabilities) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_state_supportedcapabilities); }

// ---- /bgp/neighbors/neighbor/state/messages
static constexpr WalkChild neighbors_neighbor_state_messages_children[] = {
    {"sent",     Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_state_messages_sent},
    {"received", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_state_messages_received},
};
static constexpr WalkContainer neighbors_neighbor_state_messages = {vmf_map_cont_oc_bgp_neighbors_neighbor_state_messages, neighbors_neighbor_state_messages_children, Scope::none};
OC_WALK(_neighbors_neighbor_state_messages) { return walk_container(ctx, node, out, neighbors_neighbor_state_messages); }

// ---- /bgp/neighbors/neighbor/state/messages/sent
static constexpr WalkChild neighbors_neighbor_state_messages_sent_children[] = {
    {"UPDATE",       Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_state_messages_sent_UPDATE},
    {"NOTIFICATION", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_state_messages_sent_NOTIFICATION},
};
static constexpr WalkContainer neighbors_neighbor_state_messages_sent = {vmf_map_cont_oc_bgp_neighbors_neighbor_state_messages_sent, neighbors_neighbor_state_messages_sent_children, Scope::none};
OC_WALK(_neighbors_neighbor_state_messages_sent) { return walk_container(ctx, node, out, neighbors_neighbor_state_messages_sent); }
OC_WALK(_neighbors_neighbor_state_messages_sent_UPDATE) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_state_messages_sent_UPDATE); }
OC_WALK(_neighbors_neighbor_state_messages_sent_NOTIFICATION) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_state_messages_sent_NOTIFICATION); }

// ---- /bgp/neighbors/neighbor/state/messages/received
static constexpr WalkChild neighbors_neighbor_state_messages_received_children[] = {
    {"UPDATE",       Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_state_messages_received_UPDATE},
    {"NOTIFICATION", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_state_messages_received_NOTIFICATION},
};
static constexpr WalkContainer neighbors_neighbor_state_messages_received = {vmf_map_cont_oc_bgp_neighbors_neighbor_state_messages_received, neighbors_neighbor_state_messages_received_children, Scope::none};
OC_WALK(_neighbors_neighbor_state_messages_received) { return walk_container(ctx, node, out, neighbors_neighbor_state_messages_received); }
OC_WALK(_neighbors_neighbor_state_messages_received_UPDATE) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_state_messages_received_UPDATE); }
OC_WALK(_neighbors_neighbor_state_messages_received_NOTIFICATION) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_state_messages_received_NOTIFICATION); }

// ---- /bgp/neighbors/neighbor/state/queues
static constexpr WalkChild neighbors_neighbor_state_queues_children[] = {
    {"input",  Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_state_queues_input},
    {"output", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_state_queues_output},
};
static constexpr WalkContainer neighbors_neighbor_state_queues = {vmf_map_cont_oc_bgp_neighbors_neighbor_state_queues, neighbors_neighbor_state_queues_children, Scope::none};
OC_WALK(_neighbors_neighbor_state_queues) { return walk_container(ctx, node, out, neighbors_neighbor_state_queues); }
OC_WALK(_neighbors_neighbor_state_queues_input) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_state_queues_input); }
OC_WALK(_neighbors_neighbor_state_queues_output) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_state_queues_output); }

// ---- /bgp/neighbors/neighbor/timers
static constexpr WalkChild neighbors_neighbor_timers_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_neighbors_neighbor_timers_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_neighbors_neighbor_timers_state},
};
static constexpr WalkContainer neighbors_neighbor_timers = {vmf_map_cont_oc_bgp_neighbors_neighbor_timers, neighbors_neighbor_timers_children, Scope::none};
OC_WALK(_neighbors_neighbor_timers) { return walk_container(ctx, node, out, neighbors_neighbor_timers); }

// ---- /bgp/neighbors/neighbor/timers/config
static constexpr WalkChild neighbors_neighbor_timers_config_children[] = {
    {"hold-time",                      Gate::none, vmf_map_oc_bgp_neighbors_neighbor_timers_config_holdtime},
    {"keepalive-interval",             Gate::none, vmf_map_oc_bgp_neighbors_neighbor_timers_config_keepaliveinterval},
    {"minimum-advertisement-interval", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_timers_config_minimumadvertisementinterval},
};
static constexpr WalkContainer neighbors_neighbor_timers_config = {vmf_map_cont_oc_bgp_neighbors_neighbor_timers_config, neighbors_neighbor_timers_config_children, Scope::none};
OC_WALK(_neighbors_neighbor_timers_config) { return walk_container(ctx, node, out, neighbors_neighbor_timers_config); }
OC_WALK(_neighbors_neighbor_timers_config_holdtime) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_timers_config_holdtime); }
OC_WALK(_neighbors_neighbor_timers_config_keepaliveinterval) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_timers_config_keepaliveinterval); }
OC_WALK(_neighbors_neighbor_timers_config_minimumadvertisementinterval) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_timers_config_minimumadvertisementinterval); }

// ---- /bgp/neighbors/neighbor/timers/state
static constexpr WalkChild neighbors_neighbor_timers_state_children[] = {
    {"hold-time",                      Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_timers_state_holdtime},
    {"keepalive-interval",             Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_timers_state_keepaliveinterval},
    {"minimum-advertisement-interval", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_timers_state_minimumadvertisementinterval},
    {"negotiated-hold-time",           Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_timers_state_negotiatedholdtime},
};
static constexpr WalkContainer neighbors_neighbor_timers_state = {vmf_map_cont_oc_bgp_neighbors_neighbor_timers_state, neighbors_neighbor_timers_state_children, Scope::none};
OC_WALK(_neighbors_neighbor_timers_state) { return walk_container(ctx, node, out, neighbors_neighbor_timers_state); }
OC_WALK(_neighbors_neighbor_timers_state_holdtime) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_timers_state_holdtime); }
OC_WALK(_neighbors_neighbor_timers_state_keepaliveinterval) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_timers_state_keepaliveinterval); }
OC_WALK(_neighbors_neighbor_timers_state_minimumadvertisementinterval) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_timers_state_minimumadvertisementinterval); }
OC_WALK(_neighbors_neighbor_timers_state_negotiatedholdtime) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_timers_state_negotiatedholdtime); }

// ---- /bgp/neighbors/neighbor/transport
static constexpr WalkChild neighbors_neighbor_transport_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_neighbors_neighbor_transport_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_neighbors_neighbor_transport_state},
};
static constexpr WalkContainer neighbors_neighbor_transport = {vmf_map_cont_oc_bgp_neighbors_neighbor_transport, neighbors_neighbor_transport_children, Scope::keeps};
OC_WALK(_neighbors_neighbor_transport) { return walk_container(ctx, node, out, neighbors_neighbor_transport); }

// ---- /bgp/neighbors/neighbor/transport/config
static constexpr WalkChild neighbors_neighbor_transport_config_children[] = {
    {"tcp-mss",       Gate::none, vmf_map_oc_bgp_neighbors_neighbor_transport_config_tcpmss},
    {"passive-mode",  Gate::none, vmf_map_oc_bgp_neighbors_neighbor_transport_config_passivemode},
    {"local-address", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_transport_config_localaddress},
};
static constexpr WalkContainer neighbors_neighbor_transport_config = {vmf_map_cont_oc_bgp_neighbors_neighbor_transport_config, neighbors_neighbor_transport_config_children, Scope::keeps};
OC_WALK(_neighbors_neighbor_transport_config) { return walk_container(ctx, node, out, neighbors_neighbor_transport_config); }
OC_WALK(_neighbors_neighbor_transport_config_tcpmss) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_config_tcpmss); }
OC_WALK(_neighbors_neighbor_transport_config_passivemode) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_config_passivemode); }
OC_WALK(_neighbors_neighbor_transport_config_localaddress) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_config_localaddress); }

// ---- /bgp/neighbors/neighbor/transport/state
static constexpr WalkChild neighbors_neighbor_transport_state_children[] = {
    {"tcp-mss",        Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_transport_state_tcpmss},
    {"passive-mode",   Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_transport_state_passivemode},
    {"local-address",  Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_transport_state_localaddress},
    {"local-port",     Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_transport_state_localport},
    {"remote-address", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_transport_state_remoteaddress},
    {"remote-port",    Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_transport_state_remoteport},
};
static constexpr WalkContainer neighbors_neighbor_transport_state = {vmf_map_cont_oc_bgp_neighbors_neighbor_transport_state, neighbors_neighbor_transport_state_children, Scope::none};
OC_WALK(_neighbors_neighbor_transport_state) { return walk_container(ctx, node, out, neighbors_neighbor_transport_state); }
OC_WALK(_neighbors_neighbor_transport_state_tcpmss) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_state_tcpmss); }
OC_WALK(_neighbors_neighbor_transport_state_passivemode) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_state_passivemode); }
OC_WALK(_neighbors_neighbor_transport_state_localaddress) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_state_localaddress); }
OC_WALK(_neighbors_neighbor_transport_state_localport) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_state_localport); }
OC_WALK(_neighbors_neighbor_transport_state_remoteaddress) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_state_remoteaddress); }
OC_WALK(_neighbors_neighbor_transport_state_remoteport) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_state_remoteport); }

// ---- /bgp/neighbors/neighbor/ebgp-multihop
static constexpr WalkChild neighbors_neighbor_ebgpmultihop_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_neighbors_neighbor_ebgpmultihop_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_neighbors_neighbor_ebgpmultihop_state},
};
static constexpr WalkContainer neighbors_neighbor_ebgpmultihop = {vmf_map_cont_oc_bgp_neighbors_neighbor_ebgpmultihop, neighbors_neighbor_ebgpmultihop_children, Scope::none};
OC_WALK(_neighbors_neighbor_ebgpmultihop) { return walk_container(ctx, node, out, neighbors_neighbor_ebgpmultihop); }

// ---- /bgp/neighbors/neighbor/ebgp-multihop/config
static constexpr WalkChild neighbors_neighbor_ebgpmultihop_config_children[] = {
    {"enabled",      Gate::none, vmf_map_oc_bgp_neighbors_neighbor_ebgpmultihop_config_enabled},
    {"multihop-ttl", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_ebgpmultihop_config_multihopttl},
};
static constexpr WalkContainer neighbors_neighbor_ebgpmultihop_config = {vmf_map_cont_oc_bgp_neighbors_neighbor_ebgpmultihop_config, neighbors_neighbor_ebgpmultihop_config_children, Scope::none};
OC_WALK(_neighbors_neighbor_ebgpmultihop_config) { return walk_container(ctx, node, out, neighbors_neighbor_ebgpmultihop_config); }
OC_WALK(_neighbors_neighbor_ebgpmultihop_config_enabled) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_ebgpmultihop_config_enabled); }
OC_WALK(_neighbors_neighbor_ebgpmultihop_config_multihopttl) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_ebgpmultihop_config_multihopttl); }

// ---- /bgp/neighbors/neighbor/ebgp-multihop/state
static constexpr WalkChild neighbors_neighbor_ebgpmultihop_state_children[] = {
    {"enabled",      Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_ebgpmultihop_state_enabled},
    {"multihop-ttl", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_ebgpmultihop_state_multihopttl},
};
static constexpr WalkContainer neighbors_neighbor_ebgpmultihop_state = {vmf_map_cont_oc_bgp_neighbors_neighbor_ebgpmultihop_state, neighbors_neighbor_ebgpmultihop_state_children, Scope::none};
OC_WALK(_neighbors_neighbor_ebgpmultihop_state) { return walk_container(ctx, node, out, neighbors_neighbor_ebgpmultihop_state); }
OC_WALK(_neighbors_neighbor_ebgpmultihop_state_enabled) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_ebgpmultihop_state_enabled); }
OC_WALK(_neighbors_neighbor_ebgpmultihop_state_multihopttl) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_ebgpmultihop_state_multihopttl); }

// ---- /bgp/neighbors/neighbor/route-reflector
static constexpr WalkChild neighbors_neighbor_routereflector_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_neighbors_neighbor_routereflector_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_neighbors_neighbor_routereflector_state},
};
static constexpr WalkContainer neighbors_neighbor_routereflector = {vmf_map_cont_oc_bgp_neighbors_neighbor_routereflector, neighbors_neighbor_routereflector_children, Scope::none};
OC_WALK(_neighbors_neighbor_routereflector) { return walk_container(ctx, node, out, neighbors_neighbor_routereflector); }

// ---- /bgp/neighbors/neighbor/route-reflector/config
static constexpr WalkChild neighbors_neighbor_routereflector_config_children[] = {
    {"route-reflector-cluster-id", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_routereflector_config_routereflectorclusterid},
};
static constexpr WalkContainer neighbors_neighbor_routereflector_config = {vmf_map_cont_oc_bgp_neighbors_neighbor_routereflector_config, neighbors_neighbor_routereflector_config_children, Scope::none};
OC_WALK(_neighbors_neighbor_routereflector_config) { return walk_container(ctx, node, out, neighbors_neighbor_routereflector_config); }
OC_WALK(_neighbors_neighbor_routereflector_config_routereflectorclusterid) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_routereflector_config_routereflectorclusterid); }

// ---- /bgp/neighbors/neighbor/route-reflector/state
static constexpr WalkChild neighbors_neighbor_routereflector_state_children[] = {
    {"route-reflector-cluster-id", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_routereflector_state_routereflectorclusterid},
};
static constexpr WalkContainer neighbors_neighbor_routereflector_state = {vmf_map_cont_oc_bgp_neighbors_neighbor_routereflector_state, neighbors_neighbor_routereflector_state_children, Scope::none};
OC_WALK(_neighbors_neighbor_routereflector_state) { return walk_container(ctx, node, out, neighbors_neighbor_routereflector_state); }
OC_WALK(_neighbors_neighbor_routereflector_state_routereflectorclusterid) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_routereflector_state_routereflectorclusterid); }

// ---- /bgp/neighbors/neighbor/afi-safis
static constexpr WalkChild neighbors_neighbor_afisafis_children[] = {
    {"afi-safi", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi},
};
static constexpr WalkContainer neighbors_neighbor_afisafis = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis, neighbors_neighbor_afisafis_children, Scope::keeps};
OC_WALK(_neighbors_neighbor_afisafis) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_children[] = {
    {"config",               Gate::config, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_config},
    {"state",                Gate::state,  vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_state},
    {"apply-policy",         Gate::none,   vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy},
    {"ipv4-unicast",         Gate::none,   vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast},
    {"ipv6-unicast",         Gate::none,   vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast},
    {"ipv4-labeled-unicast", Gate::none,   vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast},
    {"ipv6-labeled-unicast", Gate::none,   vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast},
    {"l3vpn-ipv4-unicast",   Gate::none,   vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast},
    {"l3vpn-ipv6-unicast",   Gate::none,   vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast},
    {"l3vpn-ipv4-multicast", Gate::none,   vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast},
    {"l3vpn-ipv6-multicast", Gate::none,   vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast},
    {"l2vpn-vpls",           Gate::none,   vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls},
    {"l2vpn-evpn",           Gate::none,   vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn},
    {"use-multiple-paths",   Gate::none,   vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_usemultiplepaths},
};
static constexpr WalkList neighbors_neighbor_afisafis_afisafi = {
    "afi-safi", "afi-safi-name", "/bgp/neighbors/neighbor/afi-safis/afi-safi", vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_afisafiname,
    KeyHabit::says_then_tests, neighbors_neighbor_afisafis_afisafi_children, Scope::keeps};
OC_WALK(_neighbors_neighbor_afisafis_afisafi) { return walk_list_entry(ctx, node, out, neighbors_neighbor_afisafis_afisafi); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_afisafiname) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_afisafiname); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/config
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_config_children[] = {
    {"afi-safi-name", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_config_afisafiname},
    {"enabled",       Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_config_enabled},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_config = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_config, neighbors_neighbor_afisafis_afisafi_config_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_config) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_config); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_config_afisafiname) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_config_afisafiname); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_config_enabled) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_config_enabled); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/state
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_state_children[] = {
    {"afi-safi-name", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_afisafiname},
    {"enabled",       Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_enabled},
    {"active",        Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_active},
    {"prefixes",      Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_prefixes},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_state = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_state, neighbors_neighbor_afisafis_afisafi_state_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_state) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_state); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_state_afisafiname) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_afisafiname); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_state_enabled) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_enabled); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_state_active) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_active); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/state/prefixes
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_state_prefixes_children[] = {
    {"received", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_prefixes_received},
    {"sent",     Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_prefixes_sent},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_state_prefixes = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_prefixes, neighbors_neighbor_afisafis_afisafi_state_prefixes_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_state_prefixes) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_state_prefixes); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_state_prefixes_received) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_prefixes_received); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_state_prefixes_sent) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_prefixes_sent); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/apply-policy
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_applypolicy_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_state},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_applypolicy = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy, neighbors_neighbor_afisafis_afisafi_applypolicy_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_applypolicy) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_applypolicy); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/apply-policy/config
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_applypolicy_config_children[] = {
    {"import-policy", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_config_importpolicy},
    {"export-policy", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_config_exportpolicy},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_applypolicy_config = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_config, neighbors_neighbor_afisafis_afisafi_applypolicy_config_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_applypolicy_config) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_applypolicy_config); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_applypolicy_config_importpolicy) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_config_importpolicy); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_applypolicy_config_exportpolicy) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_config_exportpolicy); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/apply-policy/state
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_applypolicy_state_children[] = {
    {"import-policy", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_state_importpolicy},
    {"export-policy", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_state_exportpolicy},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_applypolicy_state = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_state, neighbors_neighbor_afisafis_afisafi_applypolicy_state_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_applypolicy_state) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_applypolicy_state); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_applypolicy_state_importpolicy) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_state_importpolicy); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_applypolicy_state_exportpolicy) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_state_exportpolicy); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-unicast
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_ipv4unicast_children[] = {
    {"prefix-limit", Gate::none,   vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit},
    {"config",       Gate::config, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_config},
    {"state",        Gate::state,  vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_state},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_ipv4unicast = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast, neighbors_neighbor_afisafis_afisafi_ipv4unicast_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv4unicast) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_ipv4unicast); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-unicast/prefix-limit
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_state},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit, neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-unicast/prefix-limit/config
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_config_children[] = {
    {"max-prefixes",           Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_config_maxprefixes},
    {"shutdown-threshold-pct", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_config_shutdownthresholdpct},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_config = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_config, neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_config_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_config) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_config); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_config_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_config_maxprefixes); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_config_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_config_shutdownthresholdpct); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-unicast/prefix-limit/state
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_state_children[] = {
    {"max-prefixes",           Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_state_maxprefixes},
    {"shutdown-threshold-pct", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_state_shutdownthresholdpct},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_state = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_state, neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_state_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_state) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_state); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_state_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_state_maxprefixes); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_state_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_state_shutdownthresholdpct); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-unicast/config
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_ipv4unicast_config_children[] = {
    {"send-default-route", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_config_senddefaultroute},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_ipv4unicast_config = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_config, neighbors_neighbor_afisafis_afisafi_ipv4unicast_config_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv4unicast_config) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_ipv4unicast_config); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv4unicast_config_senddefaultroute) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_config_senddefaultroute); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-unicast/state
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_ipv4unicast_state_children[] = {
    {"send-default-route", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_state_senddefaultroute},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_ipv4unicast_state = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_state, neighbors_neighbor_afisafis_afisafi_ipv4unicast_state_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv4unicast_state) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_ipv4unicast_state); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv4unicast_state_senddefaultroute) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_state_senddefaultroute); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-unicast
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_ipv6unicast_children[] = {
    {"prefix-limit", Gate::none,   vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit},
    {"config",       Gate::config, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_config},
    {"state",        Gate::state,  vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_state},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_ipv6unicast = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast, neighbors_neighbor_afisafis_afisafi_ipv6unicast_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv6unicast) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_ipv6unicast); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-unicast/prefix-limit
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_state},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit, neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-unicast/prefix-limit/config
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_config_children[] = {
    {"max-prefixes",           Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_config_maxprefixes},
    {"shutdown-threshold-pct", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_config_shutdownthresholdpct},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_config = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_config, neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_config_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_config) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_config); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_config_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_config_maxprefixes); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_config_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_config_shutdownthresholdpct); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-unicast/prefix-limit/state
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_state_children[] = {
    {"max-prefixes",           Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_state_maxprefixes},
    {"shutdown-threshold-pct", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_state_shutdownthresholdpct},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_state = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_state, neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_state_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_state) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_state); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_state_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_state_maxprefixes); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_state_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_state_shutdownthresholdpct); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-unicast/config
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_ipv6unicast_config_children[] = {
    {"send-default-route", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_config_senddefaultroute},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_ipv6unicast_config = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_config, neighbors_neighbor_afisafis_afisafi_ipv6unicast_config_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv6unicast_config) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_ipv6unicast_config); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv6unicast_config_senddefaultroute) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_config_senddefaultroute); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-unicast/state
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_ipv6unicast_state_children[] = {
    {"send-default-route", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_state_senddefaultroute},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_ipv6unicast_state = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_state, neighbors_neighbor_afisafis_afisafi_ipv6unicast_state_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv6unicast_state) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_ipv6unicast_state); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv6unicast_state_senddefaultroute) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_state_senddefaultroute); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-labeled-unicast
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_children[] = {
    {"prefix-limit", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast, neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-labeled-unicast/prefix-limit
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit, neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-labeled-unicast/prefix-limit/config
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_children[] = {
    {"max-prefixes",           Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_maxprefixes},
    {"shutdown-threshold-pct", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_shutdownthresholdpct},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config, neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_maxprefixes); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_shutdownthresholdpct); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-labeled-unicast/prefix-limit/state
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_children[] = {
    {"max-prefixes",           Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_maxprefixes},
    {"shutdown-threshold-pct", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_shutdownthresholdpct},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state, neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_maxprefixes); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_shutdownthresholdpct); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-labeled-unicast
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_children[] = {
    {"prefix-limit", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast, neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-labeled-unicast/prefix-limit
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit, neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-labeled-unicast/prefix-limit/config
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_children[] = {
    {"max-prefixes",           Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_maxprefixes},
    {"shutdown-threshold-pct", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_shutdownthresholdpct},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config, neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_maxprefixes); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_shutdownthresholdpct); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-labeled-unicast/prefix-limit/state
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_children[] = {
    {"max-prefixes",           Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_maxprefixes},
    {"shutdown-threshold-pct", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_shutdownthresholdpct},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state, neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_maxprefixes); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_shutdownthresholdpct); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-unicast
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_children[] = {
    {"prefix-limit", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast, neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-unicast/prefix-limit
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit, neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-unicast/prefix-limit/config
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_children[] = {
    {"max-prefixes",           Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_maxprefixes},
    {"shutdown-threshold-pct", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_shutdownthresholdpct},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config, neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_maxprefixes); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_shutdownthresholdpct); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-unicast/prefix-limit/state
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_children[] = {
    {"max-prefixes",           Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_maxprefixes},
    {"shutdown-threshold-pct", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_shutdownthresholdpct},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state, neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_maxprefixes); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_shutdownthresholdpct); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-unicast
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_children[] = {
    {"prefix-limit", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast, neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-unicast/prefix-limit
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit, neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-unicast/prefix-limit/config
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_children[] = {
    {"max-prefixes",           Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_maxprefixes},
    {"shutdown-threshold-pct", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_shutdownthresholdpct},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config, neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_maxprefixes); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_shutdownthresholdpct); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-unicast/prefix-limit/state
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_children[] = {
    {"max-prefixes",           Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_maxprefixes},
    {"shutdown-threshold-pct", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_shutdownthresholdpct},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state, neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_maxprefixes); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_shutdownthresholdpct); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-multicast
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_children[] = {
    {"prefix-limit", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast, neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-multicast/prefix-limit
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit, neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-multicast/prefix-limit/config
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_children[] = {
    {"max-prefixes",           Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_maxprefixes},
    {"shutdown-threshold-pct", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_shutdownthresholdpct},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config, neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_maxprefixes); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_shutdownthresholdpct); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-multicast/prefix-limit/state
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_children[] = {
    {"max-prefixes",           Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_maxprefixes},
    {"shutdown-threshold-pct", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_shutdownthresholdpct},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state, neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_maxprefixes); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_shutdownthresholdpct); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-multicast
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_children[] = {
    {"prefix-limit", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast, neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-multicast/prefix-limit
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit, neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-multicast/prefix-limit/config
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_children[] = {
    {"max-prefixes",           Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_maxprefixes},
    {"shutdown-threshold-pct", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_shutdownthresholdpct},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config, neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_maxprefixes); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_shutdownthresholdpct); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-multicast/prefix-limit/state
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_children[] = {
    {"max-prefixes",           Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_maxprefixes},
    {"shutdown-threshold-pct", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_shutdownthresholdpct},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state, neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_maxprefixes); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_shutdownthresholdpct); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-vpls
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l2vpnvpls_children[] = {
    {"prefix-limit", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l2vpnvpls = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls, neighbors_neighbor_afisafis_afisafi_l2vpnvpls_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l2vpnvpls) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l2vpnvpls); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-vpls/prefix-limit
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_state},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit, neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-vpls/prefix-limit/config
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_config_children[] = {
    {"max-prefixes",           Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_config_maxprefixes},
    {"shutdown-threshold-pct", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_config_shutdownthresholdpct},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_config = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_config, neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_config_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_config) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_config); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_config_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_config_maxprefixes); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_config_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_config_shutdownthresholdpct); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-vpls/prefix-limit/state
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_state_children[] = {
    {"max-prefixes",           Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_state_maxprefixes},
    {"shutdown-threshold-pct", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_state_shutdownthresholdpct},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_state = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_state, neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_state_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_state) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_state); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_state_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_state_maxprefixes); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_state_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_state_shutdownthresholdpct); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-evpn
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l2vpnevpn_children[] = {
    {"prefix-limit", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l2vpnevpn = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn, neighbors_neighbor_afisafis_afisafi_l2vpnevpn_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l2vpnevpn) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l2vpnevpn); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-evpn/prefix-limit
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_state},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit, neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-evpn/prefix-limit/config
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_config_children[] = {
    {"max-prefixes",           Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_config_maxprefixes},
    {"shutdown-threshold-pct", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_config_shutdownthresholdpct},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_config = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_config, neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_config_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_config) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_config); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_config_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_config_maxprefixes); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_config_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_config_shutdownthresholdpct); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-evpn/prefix-limit/state
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_state_children[] = {
    {"max-prefixes",           Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_state_maxprefixes},
    {"shutdown-threshold-pct", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_state_shutdownthresholdpct},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_state = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_state, neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_state_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_state) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_state); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_state_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_state_maxprefixes); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_state_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_state_shutdownthresholdpct); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/use-multiple-paths
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_usemultiplepaths_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_state},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_usemultiplepaths = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_usemultiplepaths, neighbors_neighbor_afisafis_afisafi_usemultiplepaths_children, Scope::keeps};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_usemultiplepaths) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_usemultiplepaths); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/use-multiple-paths/config
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_usemultiplepaths_config_children[] = {
    {"enabled", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_config_enabled},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_usemultiplepaths_config = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_config, neighbors_neighbor_afisafis_afisafi_usemultiplepaths_config_children, Scope::keeps};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_config) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_usemultiplepaths_config); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_config_enabled) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_config_enabled); }

// ---- /bgp/neighbors/neighbor/afi-safis/afi-safi/use-multiple-paths/state
static constexpr WalkChild neighbors_neighbor_afisafis_afisafi_usemultiplepaths_state_children[] = {
    {"enabled", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_state_enabled},
};
static constexpr WalkContainer neighbors_neighbor_afisafis_afisafi_usemultiplepaths_state = {vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_state, neighbors_neighbor_afisafis_afisafi_usemultiplepaths_state_children, Scope::none};
OC_WALK(_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_state) { return walk_container(ctx, node, out, neighbors_neighbor_afisafis_afisafi_usemultiplepaths_state); }
OC_WALK(_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_state_enabled) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_state_enabled); }

// ---- /bgp/neighbors/neighbor/graceful-restart
static constexpr WalkChild neighbors_neighbor_gracefulrestart_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_neighbors_neighbor_gracefulrestart_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_neighbors_neighbor_gracefulrestart_state},
};
static constexpr WalkContainer neighbors_neighbor_gracefulrestart = {vmf_map_cont_oc_bgp_neighbors_neighbor_gracefulrestart, neighbors_neighbor_gracefulrestart_children, Scope::none};
OC_WALK(_neighbors_neighbor_gracefulrestart) { return walk_container(ctx, node, out, neighbors_neighbor_gracefulrestart); }

// ---- /bgp/neighbors/neighbor/graceful-restart/config
static constexpr WalkChild neighbors_neighbor_gracefulrestart_config_children[] = {
    {"enabled",           Gate::none, vmf_map_oc_bgp_neighbors_neighbor_gracefulrestart_config_enabled},
    {"restart-time",      Gate::none, vmf_map_oc_bgp_neighbors_neighbor_gracefulrestart_config_restarttime},
    {"stale-routes-time", Gate::none, vmf_map_oc_bgp_neighbors_neighbor_gracefulrestart_config_staleroutestime},
};
static constexpr WalkContainer neighbors_neighbor_gracefulrestart_config = {vmf_map_cont_oc_bgp_neighbors_neighbor_gracefulrestart_config, neighbors_neighbor_gracefulrestart_config_children, Scope::none};
OC_WALK(_neighbors_neighbor_gracefulrestart_config) { return walk_container(ctx, node, out, neighbors_neighbor_gracefulrestart_config); }
OC_WALK(_neighbors_neighbor_gracefulrestart_config_enabled) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_gracefulrestart_config_enabled); }
OC_WALK(_neighbors_neighbor_gracefulrestart_config_restarttime) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_gracefulrestart_config_restarttime); }
OC_WALK(_neighbors_neighbor_gracefulrestart_config_staleroutestime) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_gracefulrestart_config_staleroutestime); }

// ---- /bgp/neighbors/neighbor/graceful-restart/state
static constexpr WalkChild neighbors_neighbor_gracefulrestart_state_children[] = {
    {"enabled",           Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_gracefulrestart_state_enabled},
    {"restart-time",      Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_gracefulrestart_state_restarttime},
    {"stale-routes-time", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_gracefulrestart_state_staleroutestime},
    {"peer-restart-time", Gate::below_state, vmf_map_oc_bgp_neighbors_neighbor_gracefulrestart_state_peerrestarttime},
};
static constexpr WalkContainer neighbors_neighbor_gracefulrestart_state = {vmf_map_cont_oc_bgp_neighbors_neighbor_gracefulrestart_state, neighbors_neighbor_gracefulrestart_state_children, Scope::none};
OC_WALK(_neighbors_neighbor_gracefulrestart_state) { return walk_container(ctx, node, out, neighbors_neighbor_gracefulrestart_state); }
OC_WALK(_neighbors_neighbor_gracefulrestart_state_enabled) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_gracefulrestart_state_enabled); }
OC_WALK(_neighbors_neighbor_gracefulrestart_state_restarttime) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_gracefulrestart_state_restarttime); }
OC_WALK(_neighbors_neighbor_gracefulrestart_state_staleroutestime) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_gracefulrestart_state_staleroutestime); }
OC_WALK(_neighbors_neighbor_gracefulrestart_state_peerrestarttime) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_neighbors_neighbor_gracefulrestart_state_peerrestarttime); }
