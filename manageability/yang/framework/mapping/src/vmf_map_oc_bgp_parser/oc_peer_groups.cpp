// Made by generator/ from models/openconfig-bgp.yang and models/openconfig-bgp.mapping.
// Renew it with `cmake --build build/release --target generate`.
#include "oc_walk.h"

// clang-format off

// ---- /bgp/peer-groups
static constexpr WalkChild peergroups_children[] = {
    {"peer-group", Gate::none, vmf_map_oc_bgp_peergroups_peergroup},
};
static constexpr WalkContainer peergroups = {vmf_map_cont_oc_bgp_peergroups, peergroups_children, Scope::keeps};
OC_WALK(_peergroups) { return walk_container(ctx, node, out, peergroups); }

// ---- /bgp/peer-groups/peer-group
static constexpr WalkChild peergroups_peergroup_children[] = {
    {"config",           Gate::config, vmf_map_oc_bgp_peergroups_peergroup_config},
    {"state",            Gate::state,  vmf_map_oc_bgp_peergroups_peergroup_state},
    {"timers",           Gate::none,   vmf_map_oc_bgp_peergroups_peergroup_timers},
    {"transport",        Gate::none,   vmf_map_oc_bgp_peergroups_peergroup_transport},
    {"ebgp-multihop",    Gate::none,   vmf_map_oc_bgp_peergroups_peergroup_ebgpmultihop},
    {"route-reflector",  Gate::none,   vmf_map_oc_bgp_peergroups_peergroup_routereflector},
    {"afi-safis",        Gate::none,   vmf_map_oc_bgp_peergroups_peergroup_afisafis},
    {"graceful-restart", Gate::none,   vmf_map_oc_bgp_peergroups_peergroup_gracefulrestart},
};
static constexpr WalkList peergroups_peergroup = {
    "peer-group", "peer-group-name", "/bgp/peer-groups/peer-group", vmf_map_oc_bgp_peergroups_peergroup_peergroupname,
    KeyHabit::says_then_tests, peergroups_peergroup_children, Scope::keeps};
OC_WALK(_peergroups_peergroup) { return walk_list_entry(ctx, node, out, peergroups_peergroup); }
OC_WALK(_peergroups_peergroup_peergroupname) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_peergroupname); }

// ---- /bgp/peer-groups/peer-group/config
static constexpr WalkChild peergroups_peergroup_config_children[] = {
    {"peer-as",         Gate::none, vmf_map_oc_bgp_peergroups_peergroup_config_peeras},
    {"local-as",        Gate::none, vmf_map_oc_bgp_peergroups_peergroup_config_localas},
    {"auth-password",   Gate::none, vmf_map_oc_bgp_peergroups_peergroup_config_authpassword},
    {"description",     Gate::none, vmf_map_oc_bgp_peergroups_peergroup_config_description},
    {"peer-group-name", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_config_peergroupname},
};
static constexpr WalkContainer peergroups_peergroup_config = {vmf_map_cont_oc_bgp_peergroups_peergroup_config, peergroups_peergroup_config_children, Scope::none};
OC_WALK(_peergroups_peergroup_config) { return walk_container(ctx, node, out, peergroups_peergroup_config); }
OC_WALK(_peergroups_peergroup_config_peeras) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_config_peeras); }
OC_WALK(_peergroups_peergroup_config_localas) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_config_localas); }
OC_WALK(_peergroups_peergroup_config_authpassword) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_config_authpassword); }
OC_WALK(_peergroups_peergroup_config_description) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_config_description); }
OC_WALK(_peergroups_peergroup_config_peergroupname) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_config_peergroupname); }

// ---- /bgp/peer-groups/peer-group/state
static constexpr WalkChild peergroups_peergroup_state_children[] = {
    {"peer-as",         Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_state_peeras},
    {"local-as",        Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_state_localas},
    {"auth-password",   Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_state_authpassword},
    {"description",     Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_state_description},
    {"peer-group-name", Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_state_peergroupname},
};
static constexpr WalkContainer peergroups_peergroup_state = {vmf_map_cont_oc_bgp_peergroups_peergroup_state, peergroups_peergroup_state_children, Scope::none};
OC_WALK(_peergroups_peergroup_state) { return walk_container(ctx, node, out, peergroups_peergroup_state); }
OC_WALK(_peergroups_peergroup_state_peeras) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_state_peeras); }
OC_WALK(_peergroups_peergroup_state_localas) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_state_localas); }
OC_WALK(_peergroups_peergroup_state_authpassword) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_state_authpassword); }
OC_WALK(_peergroups_peergroup_state_description) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_state_description); }
OC_WALK(_peergroups_peergroup_state_peergroupname) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_state_peergroupname); }

// ---- /bgp/peer-groups/peer-group/timers
static constexpr WalkChild peergroups_peergroup_timers_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_peergroups_peergroup_timers_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_peergroups_peergroup_timers_state},
};
static constexpr WalkContainer peergroups_peergroup_timers = {vmf_map_cont_oc_bgp_peergroups_peergroup_timers, peergroups_peergroup_timers_children, Scope::none};
OC_WALK(_peergroups_peergroup_timers) { return walk_container(ctx, node, out, peergroups_peergroup_timers); }

// ---- /bgp/peer-groups/peer-group/timers/config
static constexpr WalkChild peergroups_peergroup_timers_config_children[] = {
    {"hold-time",                      Gate::none, vmf_map_oc_bgp_peergroups_peergroup_timers_config_holdtime},
    {"keepalive-interval",             Gate::none, vmf_map_oc_bgp_peergroups_peergroup_timers_config_keepaliveinterval},
    {"minimum-advertisement-interval", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_timers_config_minimumadvertisementinterval},
};
static constexpr WalkContainer peergroups_peergroup_timers_config = {vmf_map_cont_oc_bgp_peergroups_peergroup_timers_config, peergroups_peergroup_timers_config_children, Scope::none};
OC_WALK(_peergroups_peergroup_timers_config) { return walk_container(ctx, node, out, peergroups_peergroup_timers_config); }
OC_WALK(_peergroups_peergroup_timers_config_holdtime) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_timers_config_holdtime); }
OC_WALK(_peergroups_peergroup_timers_config_keepaliveinterval) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_timers_config_keepaliveinterval); }
OC_WALK(_peergroups_peergroup_timers_config_minimumadvertisementinterval) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_timers_config_minimumadvertisementinterval); }

// ---- /bgp/peer-groups/peer-group/timers/state
static constexpr WalkChild peergroups_peergroup_timers_state_children[] = {
    {"hold-time",                      Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_timers_state_holdtime},
    {"keepalive-interval",             Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_timers_state_keepaliveinterval},
    {"minimum-advertisement-interval", Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_timers_state_minimumadvertisementinterval},
};
static constexpr WalkContainer peergroups_peergroup_timers_state = {vmf_map_cont_oc_bgp_peergroups_peergroup_timers_state, peergroups_peergroup_timers_state_children, Scope::none};
OC_WALK(_peergroups_peergroup_timers_state) { return walk_container(ctx, node, out, peergroups_peergroup_timers_state); }
OC_WALK(_peergroups_peergroup_timers_state_holdtime) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_timers_state_holdtime); }
OC_WALK(_peergroups_peergroup_timers_state_keepaliveinterval) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_timers_state_keepaliveinterval); }
OC_WALK(_peergroups_peergroup_timers_state_minimumadvertisementinterval) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_timers_state_minimumadvertisementinterval); }

// ---- /bgp/peer-groups/peer-group/transport
static constexpr WalkChild peergroups_peergroup_transport_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_peergroups_peergroup_transport_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_peergroups_peergroup_transport_state},
};
static constexpr WalkContainer peergroups_peergroup_transport = {vmf_map_cont_oc_bgp_peergroups_peergroup_transport, peergroups_peergroup_transport_children, Scope::keeps};
OC_WALK(_peergroups_peergroup_transport) { return walk_container(ctx, node, out, peergroups_peergroup_transport); }

// ---- /bgp/peer-groups/peer-group/transport/config
static constexpr WalkChild peergroups_peergroup_transport_config_children[] = {
    {"tcp-mss",       Gate::none, vmf_map_oc_bgp_peergroups_peergroup_transport_config_tcpmss},
    {"passive-mode",  Gate::none, vmf_map_oc_bgp_peergroups_peergroup_transport_config_passivemode},
    {"local-address", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_transport_config_localaddress},
};
static constexpr WalkContainer peergroups_peergroup_transport_config = {vmf_map_cont_oc_bgp_peergroups_peergroup_transport_config, peergroups_peergroup_transport_config_children, Scope::keeps};
OC_WALK(_peergroups_peergroup_transport_config) { return walk_container(ctx, node, out, peergroups_peergroup_transport_config); }
OC_WALK(_peergroups_peergroup_transport_config_tcpmss) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_transport_config_tcpmss); }
OC_WALK(_peergroups_peergroup_transport_config_passivemode) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_transport_config_passivemode); }
OC_WALK(_peergroups_peergroup_transport_config_localaddress) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_transport_config_localaddress); }

// ---- /bgp/peer-groups/peer-group/transport/state
static constexpr WalkChild peergroups_peergroup_transport_state_children[] = {
    {"tcp-mss",       Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_transport_state_tcpmss},
    {"passive-mode",  Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_transport_state_passivemode},
    {"local-address", Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_transport_state_localaddress},
};
static constexpr WalkContainer peergroups_peergroup_transport_state = {vmf_map_cont_oc_bgp_peergroups_peergroup_transport_state, peergroups_peergroup_transport_state_children, Scope::none};
OC_WALK(_peergroups_peergroup_transport_state) { return walk_container(ctx, node, out, peergroups_peergroup_transport_state); }
OC_WALK(_peergroups_peergroup_transport_state_tcpmss) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_transport_state_tcpmss); }
OC_WALK(_peergroups_peergroup_transport_state_passivemode) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_transport_state_passivemode); }
OC_WALK(_peergroups_peergroup_transport_state_localaddress) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_transport_state_localaddress); }

// ---- /bgp/peer-groups/peer-group/ebgp-multihop
static constexpr WalkChild peergroups_peergroup_ebgpmultihop_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_peergroups_peergroup_ebgpmultihop_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_peergroups_peergroup_ebgpmultihop_state},
};
static constexpr WalkContainer peergroups_peergroup_ebgpmultihop = {vmf_map_cont_oc_bgp_peergroups_peergroup_ebgpmultihop, peergroups_peergroup_ebgpmultihop_children, Scope::none};
OC_WALK(_peergroups_peergroup_ebgpmultihop) { return walk_container(ctx, node, out, peergroups_peergroup_ebgpmultihop); }

// ---- /bgp/peer-groups/peer-group/ebgp-multihop/config
static constexpr WalkChild peergroups_peergroup_ebgpmultihop_config_children[] = {
    {"enabled",      Gate::none, vmf_map_oc_bgp_peergroups_peergroup_ebgpmultihop_config_enabled},
    {"multihop-ttl", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_ebgpmultihop_config_multihopttl},
};
static constexpr WalkContainer peergroups_peergroup_ebgpmultihop_config = {vmf_map_cont_oc_bgp_peergroups_peergroup_ebgpmultihop_config, peergroups_peergroup_ebgpmultihop_config_children, Scope::none};
OC_WALK(_peergroups_peergroup_ebgpmultihop_config) { return walk_container(ctx, node, out, peergroups_peergroup_ebgpmultihop_config); }
OC_WALK(_peergroups_peergroup_ebgpmultihop_config_enabled) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_ebgpmultihop_config_enabled); }
OC_WALK(_peergroups_peergroup_ebgpmultihop_config_multihopttl) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_ebgpmultihop_config_multihopttl); }

// ---- /bgp/peer-groups/peer-group/ebgp-multihop/state
static constexpr WalkChild peergroups_peergroup_ebgpmultihop_state_children[] = {
    {"enabled",      Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_ebgpmultihop_state_enabled},
    {"multihop-ttl", Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_ebgpmultihop_state_multihopttl},
};
static constexpr WalkContainer peergroups_peergroup_ebgpmultihop_state = {vmf_map_cont_oc_bgp_peergroups_peergroup_ebgpmultihop_state, peergroups_peergroup_ebgpmultihop_state_children, Scope::none};
OC_WALK(_peergroups_peergroup_ebgpmultihop_state) { return walk_container(ctx, node, out, peergroups_peergroup_ebgpmultihop_state); }
OC_WALK(_peergroups_peergroup_ebgpmultihop_state_enabled) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_ebgpmultihop_state_enabled); }
OC_WALK(_peergroups_peergroup_ebgpmultihop_state_multihopttl) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_ebgpmultihop_state_multihopttl); }

// ---- /bgp/peer-groups/peer-group/route-reflector
static constexpr WalkChild peergroups_peergroup_routereflector_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_peergroups_peergroup_routereflector_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_peergroups_peergroup_routereflector_state},
};
static constexpr WalkContainer peergroups_peergroup_routereflector = {vmf_map_cont_oc_bgp_peergroups_peergroup_routereflector, peergroups_peergroup_routereflector_children, Scope::none};
OC_WALK(_peergroups_peergroup_routereflector) { return walk_container(ctx, node, out, peergroups_peergroup_routereflector); }

// ---- /bgp/peer-groups/peer-group/route-reflector/config
static constexpr WalkChild peergroups_peergroup_routereflector_config_children[] = {
    {"route-reflector-cluster-id", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_routereflector_config_routereflectorclusterid},
};
static constexpr WalkContainer peergroups_peergroup_routereflector_config = {vmf_map_cont_oc_bgp_peergroups_peergroup_routereflector_config, peergroups_peergroup_routereflector_config_children, Scope::none};
OC_WALK(_peergroups_peergroup_routereflector_config) { return walk_container(ctx, node, out, peergroups_peergroup_routereflector_config); }
OC_WALK(_peergroups_peergroup_routereflector_config_routereflectorclusterid) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_routereflector_config_routereflectorclusterid); }

// ---- /bgp/peer-groups/peer-group/route-reflector/state
static constexpr WalkChild peergroups_peergroup_routereflector_state_children[] = {
    {"route-reflector-cluster-id", Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_routereflector_state_routereflectorclusterid},
};
static constexpr WalkContainer peergroups_peergroup_routereflector_state = {vmf_map_cont_oc_bgp_peergroups_peergroup_routereflector_state, peergroups_peergroup_routereflector_state_children, Scope::none};
OC_WALK(_peergroups_peergroup_routereflector_state) { return walk_container(ctx, node, out, peergroups_peergroup_routereflector_state); }
OC_WALK(_peergroups_peergroup_routereflector_state_routereflectorclusterid) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_routereflector_state_routereflectorclusterid); }

// ---- /bgp/peer-groups/peer-group/afi-safis
static constexpr WalkChild peergroups_peergroup_afisafis_children[] = {
    {"afi-safi", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi},
};
static constexpr WalkContainer peergroups_peergroup_afisafis = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis, peergroups_peergroup_afisafis_children, Scope::keeps};
OC_WALK(_peergroups_peergroup_afisafis) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_children[] = {
    {"config",               Gate::config, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_config},
    {"state",                Gate::state,  vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_state},
    {"apply-policy",         Gate::none,   vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy},
    {"ipv4-unicast",         Gate::none,   vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast},
    {"ipv6-unicast",         Gate::none,   vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast},
    {"ipv4-labeled-unicast", Gate::none,   vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast},
    {"ipv6-labeled-unicast", Gate::none,   vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast},
    {"l3vpn-ipv4-unicast",   Gate::none,   vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast},
    {"l3vpn-ipv6-unicast",   Gate::none,   vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast},
    {"l3vpn-ipv4-multicast", Gate::none,   vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast},
    {"l3vpn-ipv6-multicast", Gate::none,   vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast},
    {"l2vpn-vpls",           Gate::none,   vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls},
    {"l2vpn-evpn",           Gate::none,   vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn},
    {"use-multiple-paths",   Gate::none,   vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_usemultiplepaths},
};
static constexpr WalkList peergroups_peergroup_afisafis_afisafi = {
    "afi-safi", "afi-safi-name", "/bgp/peer-groups/peer-group/afi-safis/afi-safi", vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_afisafiname,
    KeyHabit::tests_then_says, peergroups_peergroup_afisafis_afisafi_children, Scope::keeps};
OC_WALK(_peergroups_peergroup_afisafis_afisafi) { return walk_list_entry(ctx, node, out, peergroups_peergroup_afisafis_afisafi); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_afisafiname) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_afisafiname); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/config
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_config_children[] = {
    {"afi-safi-name", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_config_afisafiname},
    {"enabled",       Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_config_enabled},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_config = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_config, peergroups_peergroup_afisafis_afisafi_config_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_config) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_config); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_config_afisafiname) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_config_afisafiname); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_config_enabled) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_config_enabled); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/state
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_state_children[] = {
    {"afi-safi-name", Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_state_afisafiname},
    {"enabled",       Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_state_enabled},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_state = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_state, peergroups_peergroup_afisafis_afisafi_state_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_state) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_state); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_state_afisafiname) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_state_afisafiname); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_state_enabled) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_state_enabled); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/apply-policy
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_applypolicy_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_state},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_applypolicy = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy, peergroups_peergroup_afisafis_afisafi_applypolicy_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_applypolicy) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_applypolicy); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/apply-policy/config
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_applypolicy_config_children[] = {
    {"import-policy", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_config_importpolicy},
    {"export-policy", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_config_exportpolicy},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_applypolicy_config = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_config, peergroups_peergroup_afisafis_afisafi_applypolicy_config_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_applypolicy_config) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_applypolicy_config); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_applypolicy_config_importpolicy) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_config_importpolicy); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_applypolicy_config_exportpolicy) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_config_exportpolicy); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/apply-policy/state
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_applypolicy_state_children[] = {
    {"import-policy", Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_state_importpolicy},
    {"export-policy", Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_state_exportpolicy},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_applypolicy_state = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_state, peergroups_peergroup_afisafis_afisafi_applypolicy_state_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_applypolicy_state) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_applypolicy_state); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_applypolicy_state_importpolicy) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_state_importpolicy); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_applypolicy_state_exportpolicy) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_state_exportpolicy); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-unicast
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_ipv4unicast_children[] = {
    {"prefix-limit", Gate::none,   vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit},
    {"config",       Gate::config, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_config},
    {"state",        Gate::state,  vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_state},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_ipv4unicast = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast, peergroups_peergroup_afisafis_afisafi_ipv4unicast_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv4unicast) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_ipv4unicast); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-unicast/prefix-limit
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_state},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit, peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-unicast/prefix-limit/config
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_config_children[] = {
    {"max-prefixes",           Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_config_maxprefixes},
    {"shutdown-threshold-pct", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_config_shutdownthresholdpct},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_config = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_config, peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_config_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_config) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_config); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_config_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_config_maxprefixes); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_config_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_config_shutdownthresholdpct); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-unicast/prefix-limit/state
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_state_children[] = {
    {"max-prefixes",           Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_state_maxprefixes},
    {"shutdown-threshold-pct", Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_state_shutdownthresholdpct},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_state = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_state, peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_state_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_state) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_state); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_state_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_state_maxprefixes); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_state_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_state_shutdownthresholdpct); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-unicast/config
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_ipv4unicast_config_children[] = {
    {"send-default-route", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_config_senddefaultroute},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_ipv4unicast_config = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_config, peergroups_peergroup_afisafis_afisafi_ipv4unicast_config_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv4unicast_config) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_ipv4unicast_config); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv4unicast_config_senddefaultroute) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_config_senddefaultroute); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-unicast/state
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_ipv4unicast_state_children[] = {
    {"send-default-route", Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_state_senddefaultroute},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_ipv4unicast_state = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_state, peergroups_peergroup_afisafis_afisafi_ipv4unicast_state_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv4unicast_state) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_ipv4unicast_state); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv4unicast_state_senddefaultroute) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_state_senddefaultroute); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-unicast
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_ipv6unicast_children[] = {
    {"prefix-limit", Gate::none,   vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit},
    {"config",       Gate::config, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_config},
    {"state",        Gate::state,  vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_state},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_ipv6unicast = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast, peergroups_peergroup_afisafis_afisafi_ipv6unicast_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv6unicast) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_ipv6unicast); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-unicast/prefix-limit
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_state},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit, peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-unicast/prefix-limit/config
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_config_children[] = {
    {"max-prefixes",           Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_config_maxprefixes},
    {"shutdown-threshold-pct", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_config_shutdownthresholdpct},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_config = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_config, peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_config_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_config) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_config); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_config_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_config_maxprefixes); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_config_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_config_shutdownthresholdpct); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-unicast/prefix-limit/state
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_state_children[] = {
    {"max-prefixes",           Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_state_maxprefixes},
    {"shutdown-threshold-pct", Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_state_shutdownthresholdpct},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_state = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_state, peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_state_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_state) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_state); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_state_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_state_maxprefixes); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_state_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_state_shutdownthresholdpct); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-unicast/config
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_ipv6unicast_config_children[] = {
    {"send-default-route", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_config_senddefaultroute},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_ipv6unicast_config = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_config, peergroups_peergroup_afisafis_afisafi_ipv6unicast_config_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv6unicast_config) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_ipv6unicast_config); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv6unicast_config_senddefaultroute) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_config_senddefaultroute); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-unicast/state
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_ipv6unicast_state_children[] = {
    {"send-default-route", Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_state_senddefaultroute},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_ipv6unicast_state = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_state, peergroups_peergroup_afisafis_afisafi_ipv6unicast_state_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv6unicast_state) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_ipv6unicast_state); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv6unicast_state_senddefaultroute) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_state_senddefaultroute); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-labeled-unicast
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_children[] = {
    {"prefix-limit", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast, peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-labeled-unicast/prefix-limit
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit, peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-labeled-unicast/prefix-limit/config
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_children[] = {
    {"max-prefixes",           Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_maxprefixes},
    {"shutdown-threshold-pct", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_shutdownthresholdpct},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config, peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_maxprefixes); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_shutdownthresholdpct); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-labeled-unicast/prefix-limit/state
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_children[] = {
    {"max-prefixes",           Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_maxprefixes},
    {"shutdown-threshold-pct", Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_shutdownthresholdpct},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state, peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_maxprefixes); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_shutdownthresholdpct); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-labeled-unicast
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_children[] = {
    {"prefix-limit", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast, peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-labeled-unicast/prefix-limit
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit, peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-labeled-unicast/prefix-limit/config
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_children[] = {
    {"max-prefixes",           Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_maxprefixes},
    {"shutdown-threshold-pct", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_shutdownthresholdpct},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config, peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_maxprefixes); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_shutdownthresholdpct); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-labeled-unicast/prefix-limit/state
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_children[] = {
    {"max-prefixes",           Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_maxprefixes},
    {"shutdown-threshold-pct", Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_shutdownthresholdpct},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state, peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_maxprefixes); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_shutdownthresholdpct); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-unicast
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_children[] = {
    {"prefix-limit", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast, peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-unicast/prefix-limit
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit, peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-unicast/prefix-limit/config
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_children[] = {
    {"max-prefixes",           Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_maxprefixes},
    {"shutdown-threshold-pct", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_shutdownthresholdpct},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config, peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_maxprefixes); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_shutdownthresholdpct); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-unicast/prefix-limit/state
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_children[] = {
    {"max-prefixes",           Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_maxprefixes},
    {"shutdown-threshold-pct", Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_shutdownthresholdpct},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state, peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_maxprefixes); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_shutdownthresholdpct); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-unicast
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_children[] = {
    {"prefix-limit", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast, peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-unicast/prefix-limit
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit, peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-unicast/prefix-limit/config
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_children[] = {
    {"max-prefixes",           Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_maxprefixes},
    {"shutdown-threshold-pct", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_shutdownthresholdpct},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config, peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_maxprefixes); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_shutdownthresholdpct); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-unicast/prefix-limit/state
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_children[] = {
    {"max-prefixes",           Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_maxprefixes},
    {"shutdown-threshold-pct", Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_shutdownthresholdpct},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state, peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_maxprefixes); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_shutdownthresholdpct); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-multicast
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_children[] = {
    {"prefix-limit", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast, peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-multicast/prefix-limit
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit, peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-multicast/prefix-limit/config
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_children[] = {
    {"max-prefixes",           Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_maxprefixes},
    {"shutdown-threshold-pct", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_shutdownthresholdpct},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config, peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_maxprefixes); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_shutdownthresholdpct); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-multicast/prefix-limit/state
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_children[] = {
    {"max-prefixes",           Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_maxprefixes},
    {"shutdown-threshold-pct", Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_shutdownthresholdpct},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state, peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_maxprefixes); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_shutdownthresholdpct); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-multicast
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_children[] = {
    {"prefix-limit", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast, peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-multicast/prefix-limit
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit, peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-multicast/prefix-limit/config
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_children[] = {
    {"max-prefixes",           Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_maxprefixes},
    {"shutdown-threshold-pct", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_shutdownthresholdpct},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config, peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_maxprefixes); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_shutdownthresholdpct); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-multicast/prefix-limit/state
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_children[] = {
    {"max-prefixes",           Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_maxprefixes},
    {"shutdown-threshold-pct", Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_shutdownthresholdpct},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state, peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_maxprefixes); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_shutdownthresholdpct); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-vpls
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l2vpnvpls_children[] = {
    {"prefix-limit", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l2vpnvpls = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls, peergroups_peergroup_afisafis_afisafi_l2vpnvpls_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l2vpnvpls) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l2vpnvpls); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-vpls/prefix-limit
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_state},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit, peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-vpls/prefix-limit/config
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_config_children[] = {
    {"max-prefixes",           Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_config_maxprefixes},
    {"shutdown-threshold-pct", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_config_shutdownthresholdpct},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_config = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_config, peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_config_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_config) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_config); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_config_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_config_maxprefixes); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_config_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_config_shutdownthresholdpct); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-vpls/prefix-limit/state
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_state_children[] = {
    {"max-prefixes",           Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_state_maxprefixes},
    {"shutdown-threshold-pct", Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_state_shutdownthresholdpct},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_state = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_state, peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_state_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_state) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_state); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_state_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_state_maxprefixes); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_state_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_state_shutdownthresholdpct); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-evpn
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l2vpnevpn_children[] = {
    {"prefix-limit", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l2vpnevpn = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn, peergroups_peergroup_afisafis_afisafi_l2vpnevpn_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l2vpnevpn) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l2vpnevpn); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-evpn/prefix-limit
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_state},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit, peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-evpn/prefix-limit/config
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_config_children[] = {
    {"max-prefixes",           Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_config_maxprefixes},
    {"shutdown-threshold-pct", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_config_shutdownthresholdpct},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_config = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_config, peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_config_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_config) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_config); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_config_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_config_maxprefixes); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_config_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_config_shutdownthresholdpct); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-evpn/prefix-limit/state
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_state_children[] = {
    {"max-prefixes",           Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_state_maxprefixes},
    {"shutdown-threshold-pct", Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_state_shutdownthresholdpct},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_state = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_state, peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_state_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_state) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_state); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_state_maxprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_state_maxprefixes); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_state_shutdownthresholdpct) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_state_shutdownthresholdpct); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/use-multiple-paths
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_usemultiplepaths_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_state},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_usemultiplepaths = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_usemultiplepaths, peergroups_peergroup_afisafis_afisafi_usemultiplepaths_children, Scope::keeps};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_usemultiplepaths) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_usemultiplepaths); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/use-multiple-paths/config
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_usemultiplepaths_config_children[] = {
    {"enabled", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_config_enabled},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_usemultiplepaths_config = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_config, peergroups_peergroup_afisafis_afisafi_usemultiplepaths_config_children, Scope::keeps};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_config) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_usemultiplepaths_config); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_config_enabled) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_config_enabled); }

// ---- /bgp/peer-groups/peer-group/afi-safis/afi-safi/use-multiple-paths/state
static constexpr WalkChild peergroups_peergroup_afisafis_afisafi_usemultiplepaths_state_children[] = {
    {"enabled", Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_state_enabled},
};
static constexpr WalkContainer peergroups_peergroup_afisafis_afisafi_usemultiplepaths_state = {vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_state, peergroups_peergroup_afisafis_afisafi_usemultiplepaths_state_children, Scope::none};
OC_WALK(_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_state) { return walk_container(ctx, node, out, peergroups_peergroup_afisafis_afisafi_usemultiplepaths_state); }
OC_WALK(_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_state_enabled) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_state_enabled); }

// ---- /bgp/peer-groups/peer-group/graceful-restart
static constexpr WalkChild peergroups_peergroup_gracefulrestart_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_peergroups_peergroup_gracefulrestart_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_peergroups_peergroup_gracefulrestart_state},
};
static constexpr WalkContainer peergroups_peergroup_gracefulrestart = {vmf_map_cont_oc_bgp_peergroups_peergroup_gracefulrestart, peergroups_peergroup_gracefulrestart_children, Scope::none};
OC_WALK(_peergroups_peergroup_gracefulrestart) { return walk_container(ctx, node, out, peergroups_peergroup_gracefulrestart); }

// ---- /bgp/peer-groups/peer-group/graceful-restart/config
static constexpr WalkChild peergroups_peergroup_gracefulrestart_config_children[] = {
    {"enabled",           Gate::none, vmf_map_oc_bgp_peergroups_peergroup_gracefulrestart_config_enabled},
    {"restart-time",      Gate::none, vmf_map_oc_bgp_peergroups_peergroup_gracefulrestart_config_restarttime},
    {"stale-routes-time", Gate::none, vmf_map_oc_bgp_peergroups_peergroup_gracefulrestart_config_staleroutestime},
};
static constexpr WalkContainer peergroups_peergroup_gracefulrestart_config = {vmf_map_cont_oc_bgp_peergroups_peergroup_gracefulrestart_config, peergroups_peergroup_gracefulrestart_config_children, Scope::none};
OC_WALK(_peergroups_peergroup_gracefulrestart_config) { return walk_container(ctx, node, out, peergroups_peergroup_gracefulrestart_config); }
OC_WALK(_peergroups_peergroup_gracefulrestart_config_enabled) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_gracefulrestart_config_enabled); }
OC_WALK(_peergroups_peergroup_gracefulrestart_config_restarttime) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_gracefulrestart_config_restarttime); }
OC_WALK(_peergroups_peergroup_gracefulrestart_config_staleroutestime) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_gracefulrestart_config_staleroutestime); }

// ---- /bgp/peer-groups/peer-group/graceful-restart/state
static constexpr WalkChild peergroups_peergroup_gracefulrestart_state_children[] = {
    {"enabled",           Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_gracefulrestart_state_enabled},
    {"restart-time",      Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_gracefulrestart_state_restarttime},
    {"stale-routes-time", Gate::below_state, vmf_map_oc_bgp_peergroups_peergroup_gracefulrestart_state_staleroutestime},
};
static constexpr WalkContainer peergroups_peergroup_gracefulrestart_state = {vmf_map_cont_oc_bgp_peergroups_peergroup_gracefulrestart_state, peergroups_peergroup_gracefulrestart_state_children, Scope::none};
OC_WALK(_peergroups_peergroup_gracefulrestart_state) { return walk_container(ctx, node, out, peergroups_peergroup_gracefulrestart_state); }
OC_WALK(_peergroups_peergroup_gracefulrestart_state_enabled) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_gracefulrestart_state_enabled); }
OC_WALK(_peergroups_peergroup_gracefulrestart_state_restarttime) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_gracefulrestart_state_restarttime); }
OC_WALK(_peergroups_peergroup_gracefulrestart_state_staleroutestime) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_peergroups_peergroup_gracefulrestart_state_staleroutestime); }
