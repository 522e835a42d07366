// Made by generator/ from models/openconfig-bgp.yang and models/openconfig-bgp.mapping.
// Renew it with `cmake --build build/release --target generate`.
#include "oc_walk.h"

// clang-format off

// ---- /bgp/global
static constexpr WalkChild global_children[] = {
    {"config",                  Gate::config, vmf_map_oc_bgp_global_config},
    {"state",                   Gate::state,  vmf_map_oc_bgp_global_state},
    {"route-selection-options", Gate::none,   vmf_map_oc_bgp_global_routeselectionoptions},
    {"default-route-distance",  Gate::none,   vmf_map_oc_bgp_global_defaultroutedistance},
    {"confederation",           Gate::none,   vmf_map_oc_bgp_global_confederation},
    {"use-multiple-paths",      Gate::none,   vmf_map_oc_bgp_global_usemultiplepaths},
    {"graceful-restart",        Gate::none,   vmf_map_oc_bgp_global_gracefulrestart},
    {"afi-safis",               Gate::none,   vmf_map_oc_bgp_global_afisafis},
};
static constexpr WalkContainer global = {vmf_map_cont_oc_bgp_global, global_children, Scope::keeps};
OC_WALK(_global) { return walk_container(ctx, node, out, global); }

// ---- /bgp/global/config
static constexpr WalkChild global_config_children[] = {
    {"as",        Gate::none, vmf_map_oc_bgp_global_config_as},
    {"router-id", Gate::none, vmf_map_oc_bgp_global_config_routerid},
};
static constexpr WalkContainer global_config = {vmf_map_cont_oc_bgp_global_config, global_config_children, Scope::none};
OC_WALK(_global_config) { return walk_container(ctx, node, out, global_config); }
OC_WALK(_global_config_as) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_config_as); }
OC_WALK(_global_config_routerid) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_config_routerid); }

// ---- /bgp/global/state
static constexpr WalkChild global_state_children[] = {
    {"as",             Gate::below_state, vmf_map_oc_bgp_global_state_as},
    {"router-id",      Gate::below_state, vmf_map_oc_bgp_global_state_routerid},
    {"total-paths",    Gate::below_state, vmf_map_oc_bgp_global_state_totalpaths},
    {"total-prefixes", Gate::below_state, vmf_map_oc_bgp_global_state_totalprefixes},
};
static constexpr WalkContainer global_state = {vmf_map_cont_oc_bgp_global_state, global_state_children, Scope::none};
OC_WALK(_global_state) { return walk_container(ctx, node, out, global_state); }
OC_WALK(_global_state_as) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_state_as); }
OC_WALK(_global_state_routerid) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_state_routerid); }
OC_WALK(_global_state_totalpaths) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_state_totalpaths); }
OC_WALK(_global_state_totalprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_state_totalprefixes); }

// ---- /bgp/global/route-selection-options
static constexpr WalkChild global_routeselectionoptions_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_global_routeselectionoptions_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_global_routeselectionoptions_state},
};
static constexpr WalkContainer global_routeselectionoptions = {vmf_map_cont_oc_bgp_global_routeselectionoptions, global_routeselectionoptions_children, Scope::keeps};
OC_WALK(_global_routeselectionoptions) { return walk_container(ctx, node, out, global_routeselectionoptions); }

// ---- /bgp/global/route-selection-options/config
static constexpr WalkChild global_routeselectionoptions_config_children[] = {
    {"always-compare-med",         Gate::none, vmf_map_oc_bgp_global_routeselectionoptions_config_alwayscomparemed},
    {"ignore-as-path-length",      Gate::none, vmf_map_oc_bgp_global_routeselectionoptions_config_ignoreaspathlength},
    {"external-compare-router-id", Gate::none, vmf_map_oc_bgp_global_routeselectionoptions_config_externalcomparerouterid},
    {"enable-aigp",                Gate::none, vmf_map_oc_bgp_global_routeselectionoptions_config_enableaigp},
};
static constexpr WalkContainer global_routeselectionoptions_config = {vmf_map_cont_oc_bgp_global_routeselectionoptions_config, global_routeselectionoptions_config_children, Scope::keeps};
OC_WALK(_global_routeselectionoptions_config) { return walk_container(ctx, node, out, global_routeselectionoptions_config); }
OC_WALK(_global_routeselectionoptions_config_alwayscomparemed) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_routeselectionoptions_config_alwayscomparemed); }
OC_WALK(_global_routeselectionoptions_config_ignoreaspathlength) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_routeselectionoptions_config_ignoreaspathlength); }
OC_WALK(_global_routeselectionoptions_config_externalcomparerouterid) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_routeselectionoptions_config_externalcomparerouterid); }
OC_WALK(_global_routeselectionoptions_config_enableaigp) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_routeselectionoptions_config_enableaigp); }

// ---- /bgp/global/route-selection-options/state
static constexpr WalkChild global_routeselectionoptions_state_children[] = {
    {"always-compare-med",         Gate::below_state, vmf_map_oc_bgp_global_routeselectionoptions_state_alwayscomparemed},
    {"ignore-as-path-length",      Gate::below_state, vmf_map_oc_bgp_global_routeselectionoptions_state_ignoreaspathlength},
    {"external-compare-router-id", Gate::below_state, vmf_map_oc_bgp_global_routeselectionoptions_state_externalcomparerouterid},
    {"enable-aigp",                Gate::below_state, vmf_map_oc_bgp_global_routeselectionoptions_state_enableaigp},
};
static constexpr WalkContainer global_routeselectionoptions_state = {vmf_map_cont_oc_bgp_global_routeselectionoptions_state, global_routeselectionoptions_state_children, Scope::none};
OC_WALK(_global_routeselectionoptions_state) { return walk_container(ctx, node, out, global_routeselectionoptions_state); }
OC_WALK(_global_routeselectionoptions_state_alwayscomparemed) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_routeselectionoptions_state_alwayscomparemed); }
OC_WALK(_global_routeselectionoptions_state_ignoreaspathlength) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_routeselectionoptions_state_ignoreaspathlength); }
OC_WALK(_global_routeselectionoptions_state_externalcomparerouterid) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_routeselectionoptions_state_externalcomparerouterid); }
OC_WALK(_global_routeselectionoptions_state_enableaigp) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_routeselectionoptions_state_enableaigp); }

// ---- /bgp/global/default-route-distance
static constexpr WalkChild global_defaultroutedistance_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_global_defaultroutedistance_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_global_defaultroutedistance_state},
};
static constexpr WalkContainer global_defaultroutedistance = {vmf_map_cont_oc_bgp_global_defaultroutedistance, global_defaultroutedistance_children, Scope::none};
OC_WALK(_global_defaultroutedistance) { return walk_container(ctx, node, out, global_defaultroutedistance); }

// ---- /bgp/global/default-route-distance/config
static constexpr WalkChild global_defaultroutedistance_config_children[] = {
    {"external-route-distance", Gate::none, vmf_map_oc_bgp_global_defaultroutedistance_config_externalroutedistance},
    {"internal-route-distance", Gate::none, vmf_map_oc_bgp_global_defaultroutedistance_config_internalroutedistance},
};
static constexpr WalkContainer global_defaultroutedistance_config = {vmf_map_cont_oc_bgp_global_defaultroutedistance_config, global_defaultroutedistance_config_children, Scope::none};
OC_WALK(_global_defaultroutedistance_config) { return walk_container(ctx, node, out, global_defaultroutedistance_config); }
OC_WALK(_global_defaultroutedistance_config_externalroutedistance) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_defaultroutedistance_config_externalroutedistance); }
OC_WALK(_global_defaultroutedistance_config_internalroutedistance) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_defaultroutedistance_config_internalroutedistance); }

// ---- /bgp/global/default-route-distance/state
static constexpr WalkChild global_defaultroutedistance_state_children[] = {
    {"external-route-distance", Gate::below_state, vmf_map_oc_bgp_global_defaultroutedistance_state_externalroutedistance},
    {"internal-route-distance", Gate::below_state, vmf_map_oc_bgp_global_defaultroutedistance_state_internalroutedistance},
};
static constexpr WalkContainer global_defaultroutedistance_state = {vmf_map_cont_oc_bgp_global_defaultroutedistance_state, global_defaultroutedistance_state_children, Scope::none};
OC_WALK(_global_defaultroutedistance_state) { return walk_container(ctx, node, out, global_defaultroutedistance_state); }
OC_WALK(_global_defaultroutedistance_state_externalroutedistance) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_defaultroutedistance_state_externalroutedistance); }
OC_WALK(_global_defaultroutedistance_state_internalroutedistance) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_defaultroutedistance_state_internalroutedistance); }

// ---- /bgp/global/confederation
static constexpr WalkChild global_confederation_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_global_confederation_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_global_confederation_state},
};
static constexpr WalkContainer global_confederation = {vmf_map_cont_oc_bgp_global_confederation, global_confederation_children, Scope::none};
OC_WALK(_global_confederation) { return walk_container(ctx, node, out, global_confederation); }

// ---- /bgp/global/confederation/config
static constexpr WalkChild global_confederation_config_children[] = {
    {"identifier", Gate::none, vmf_map_oc_bgp_global_confederation_config_identifier},
    {"member-as",  Gate::none, vmf_map_oc_bgp_global_confederation_config_memberas},
};
static constexpr WalkContainer global_confederation_config = {vmf_map_cont_oc_bgp_global_confederation_config, global_confederation_config_children, Scope::none};
OC_WALK(_global_confederation_config) { return walk_container(ctx, node, out, global_confederation_config); }
OC_WALK(_global_confederation_config_identifier) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_confederation_config_identifier); }
OC_WALK(_global_confederation_config_memberas) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_confederation_config_memberas); }

// ---- /bgp/global/confederation/state
static constexpr WalkChild global_confederation_state_children[] = {
    {"enabled",    Gate::below_state, vmf_map_oc_bgp_global_confederation_state_enabled},
    {"identifier", Gate::below_state, vmf_map_oc_bgp_global_confederation_state_identifier},
    {"member-as",  Gate::below_state, vmf_map_oc_bgp_global_confederation_state_memberas},
};
static constexpr WalkContainer global_confederation_state = {vmf_map_cont_oc_bgp_global_confederation_state, global_confederation_state_children, Scope::none};
OC_WALK(_global_confederation_state) { return walk_container(ctx, node, out, global_confederation_state); }
OC_WALK(_global_confederation_state_enabled) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_confederation_state_enabled); }
OC_WALK(_global_confederation_state_identifier) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_confederation_state_identifier); }
OC_WALK(_global_confederation_state_memberas) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_confederation_state_memberas); }

// ---- /bgp/global/use-multiple-paths
static constexpr WalkChild global_usemultiplepaths_children[] = {
    {"state", Gate::state, vmf_map_oc_bgp_global_usemultiplepaths_state},
    {"ebgp",  Gate::none,  vmf_map_oc_bgp_global_usemultiplepaths_ebgp},
    {"ibgp",  Gate::none,  vmf_map_oc_bgp_global_usemultiplepaths_ibgp},
};
static constexpr WalkContainer global_usemultiplepaths = {vmf_map_cont_oc_bgp_global_usemultiplepaths, global_usemultiplepaths_children, Scope::none};
OC_WALK(_global_usemultiplepaths) { return walk_container(ctx, node, out, global_usemultiplepaths); }

// ---- /bgp/global/use-multiple-paths/state
static constexpr WalkChild global_usemultiplepaths_state_children[] = {
    {"enabled", Gate::below_state, vmf_map_oc_bgp_global_usemultiplepaths_state_enabled},
};
static constexpr WalkContainer global_usemultiplepaths_state = {vmf_map_cont_oc_bgp_global_usemultiplepaths_state, global_usemultiplepaths_state_children, Scope::none};
OC_WALK(_global_usemultiplepaths_state) { return walk_container(ctx, node, out, global_usemultiplepaths_state); }
OC_WALK(_global_usemultiplepaths_state_enabled) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_usemultiplepaths_state_enabled); }

// ---- /bgp/global/use-multiple-paths/ebgp
static constexpr WalkChild global_usemultiplepaths_ebgp_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_global_usemultiplepaths_ebgp_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_global_usemultiplepaths_ebgp_state},
};
static constexpr WalkContainer global_usemultiplepaths_ebgp = {vmf_map_cont_oc_bgp_global_usemultiplepaths_ebgp, global_usemultiplepaths_ebgp_children, Scope::none};
OC_WALK(_global_usemultiplepaths_ebgp) { return walk_container(ctx, node, out, global_usemultiplepaths_ebgp); }

// ---- /bgp/global/use-multiple-paths/ebgp/config
static constexpr WalkChild global_usemultiplepaths_ebgp_config_children[] = {
    {"maximum-paths", Gate::none, vmf_map_oc_bgp_global_usemultiplepaths_ebgp_config_maximumpaths},
};
static constexpr WalkContainer global_usemultiplepaths_ebgp_config = {vmf_map_cont_oc_bgp_global_usemultiplepaths_ebgp_config, global_usemultiplepaths_ebgp_config_children, Scope::none};
OC_WALK(_global_usemultiplepaths_ebgp_config) { return walk_container(ctx, node, out, global_usemultiplepaths_ebgp_config); }
OC_WALK(_global_usemultiplepaths_ebgp_config_maximumpaths) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_usemultiplepaths_ebgp_config_maximumpaths); }

// ---- /bgp/global/use-multiple-paths/ebgp/state
static constexpr WalkChild global_usemultiplepaths_ebgp_state_children[] = {
    {"maximum-paths", Gate::below_state, vmf_map_oc_bgp_global_usemultiplepaths_ebgp_state_maximumpaths},
};
static constexpr WalkContainer global_usemultiplepaths_ebgp_state = {vmf_map_cont_oc_bgp_global_usemultiplepaths_ebgp_state, global_usemultiplepaths_ebgp_state_children, Scope::none};
OC_WALK(_global_usemultiplepaths_ebgp_state) { return walk_container(ctx, node, out, global_usemultiplepaths_ebgp_state); }
OC_WALK(_global_usemultiplepaths_ebgp_state_maximumpaths) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_usemultiplepaths_ebgp_state_maximumpaths); }

// ---- /bgp/global/use-multiple-paths/ibgp
static constexpr WalkChild global_usemultiplepaths_ibgp_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_global_usemultiplepaths_ibgp_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_global_usemultiplepaths_ibgp_state},
};
static constexpr WalkContainer global_usemultiplepaths_ibgp = {vmf_map_cont_oc_bgp_global_usemultiplepaths_ibgp, global_usemultiplepaths_ibgp_children, Scope::none};
OC_WALK(_global_usemultiplepaths_ibgp) { return walk_container(ctx, node, out, global_usemultiplepaths_ibgp); }

// ---- /bgp/global/use-multiple-paths/ibgp/config
static constexpr WalkChild global_usemultiplepaths_ibgp_config_children[] = {
    {"maximum-paths", Gate::none, vmf_map_oc_bgp_global_usemultiplepaths_ibgp_config_maximumpaths},
};
static constexpr WalkContainer global_usemultiplepaths_ibgp_config = {vmf_map_cont_oc_bgp_global_usemultiplepaths_ibgp_config, global_usemultiplepaths_ibgp_config_children, Scope::none};
OC_WALK(_global_usemultiplepaths_ibgp_config) { return walk_container(ctx, node, out, global_usemultiplepaths_ibgp_config); }
OC_WALK(_global_usemultiplepaths_ibgp_config_maximumpaths) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_usemultiplepaths_ibgp_config_maximumpaths); }

// ---- /bgp/global/use-multiple-paths/ibgp/state
static constexpr WalkChild global_usemultiplepaths_ibgp_state_children[] = {
    {"maximum-paths", Gate::below_state, vmf_map_oc_bgp_global_usemultiplepaths_ibgp_state_maximumpaths},
};
static constexpr WalkContainer global_usemultiplepaths_ibgp_state = {vmf_map_cont_oc_bgp_global_usemultiplepaths_ibgp_state, global_usemultiplepaths_ibgp_state_children, Scope::none};
OC_WALK(_global_usemultiplepaths_ibgp_state) { return walk_container(ctx, node, out, global_usemultiplepaths_ibgp_state); }
OC_WALK(_global_usemultiplepaths_ibgp_state_maximumpaths) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_usemultiplepaths_ibgp_state_maximumpaths); }

// ---- /bgp/global/graceful-restart
static constexpr WalkChild global_gracefulrestart_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_global_gracefulrestart_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_global_gracefulrestart_state},
};
static constexpr WalkContainer global_gracefulrestart = {vmf_map_cont_oc_bgp_global_gracefulrestart, global_gracefulrestart_children, Scope::none};
OC_WALK(_global_gracefulrestart) { return walk_container(ctx, node, out, global_gracefulrestart); }

// ---- /bgp/global/graceful-restart/config
static constexpr WalkChild global_gracefulrestart_config_children[] = {
    {"enabled",           Gate::none, vmf_map_oc_bgp_global_gracefulrestart_config_enabled},
    {"restart-time",      Gate::none, vmf_map_oc_bgp_global_gracefulrestart_config_restarttime},
    {"stale-routes-time", Gate::none, vmf_map_oc_bgp_global_gracefulrestart_config_staleroutestime},
};
static constexpr WalkContainer global_gracefulrestart_config = {vmf_map_cont_oc_bgp_global_gracefulrestart_config, global_gracefulrestart_config_children, Scope::none};
OC_WALK(_global_gracefulrestart_config) { return walk_container(ctx, node, out, global_gracefulrestart_config); }
OC_WALK(_global_gracefulrestart_config_enabled) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_gracefulrestart_config_enabled); }
OC_WALK(_global_gracefulrestart_config_restarttime) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_gracefulrestart_config_restarttime); }
OC_WALK(_global_gracefulrestart_config_staleroutestime) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_gracefulrestart_config_staleroutestime); }

// ---- /bgp/global/graceful-restart/state
static constexpr WalkChild global_gracefulrestart_state_children[] = {
    {"enabled",           Gate::below_state, vmf_map_oc_bgp_global_gracefulrestart_state_enabled},
    {"restart-time",      Gate::below_state, vmf_map_oc_bgp_global_gracefulrestart_state_restarttime},
    {"stale-routes-time", Gate::below_state, vmf_map_oc_bgp_global_gracefulrestart_state_staleroutestime},
};
static constexpr WalkContainer global_gracefulrestart_state = {vmf_map_cont_oc_bgp_global_gracefulrestart_state, global_gracefulrestart_state_children, Scope::none};
OC_WALK(_global_gracefulrestart_state) { return walk_container(ctx, node, out, global_gracefulrestart_state); }
OC_WALK(_global_gracefulrestart_state_enabled) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_gracefulrestart_state_enabled); }
OC_WALK(_global_gracefulrestart_state_restarttime) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_gracefulrestart_state_restarttime); }
OC_WALK(_global_gracefulrestart_state_staleroutestime) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_gracefulrestart_state_staleroutestime); }

// ---- /bgp/global/afi-safis
static constexpr WalkChild global_afisafis_children[] = {
    {"afi-safi", Gate::none, vmf_map_oc_bgp_global_afisafis_afisafi},
};
static constexpr WalkContainer global_afisafis = {vmf_map_cont_oc_bgp_global_afisafis, global_afisafis_children, Scope::none};
OC_WALK(_global_afisafis) { return walk_container(ctx, node, out, global_afisafis); }

// ---- /bgp/global/afi-safis/afi-safi
static constexpr WalkChild global_afisafis_afisafi_children[] = {
    {"config",             Gate::config, vmf_map_oc_bgp_global_afisafis_afisafi_config},
    {"state",              Gate::state,  vmf_map_oc_bgp_global_afisafis_afisafi_state},
    {"use-multiple-paths", Gate::none,   vmf_map_oc_bgp_global_afisafis_afisafi_usemultiplepaths},
};
static constexpr WalkList global_afisafis_afisafi = {
    "afi-safi", "afi-safi-name", "/bgp/global/afi-safis/afi-safi", vmf_map_oc_bgp_global_afisafis_afisafi_afisafiname,
    KeyHabit::says_then_tests, global_afisafis_afisafi_children, Scope::none};
OC_WALK(_global_afisafis_afisafi) { return walk_list_entry(ctx, node, out, global_afisafis_afisafi); }
OC_WALK(_global_afisafis_afisafi_afisafiname) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_afisafis_afisafi_afisafiname); }

// ---- /bgp/global/afi-safis/afi-safi/config
static constexpr WalkChild global_afisafis_afisafi_config_children[] = {
    {"afi-safi-name", Gate::none, vmf_map_oc_bgp_global_afisafis_afisafi_config_afisafiname},
    {"enabled",       Gate::none, vmf_map_oc_bgp_global_afisafis_afisafi_config_enabled},
};
static constexpr WalkContainer global_afisafis_afisafi_config = {vmf_map_cont_oc_bgp_global_afisafis_afisafi_config, global_afisafis_afisafi_config_children, Scope::none};
OC_WALK(_global_afisafis_afisafi_config) { return walk_container(ctx, node, out, global_afisafis_afisafi_config); }
OC_WALK(_global_afisafis_afisafi_config_afisafiname) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_afisafis_afisafi_config_afisafiname); }
OC_WALK(_global_afisafis_afisafi_config_enabled) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_afisafis_afisafi_config_enabled); }

// ---- /bgp/global/afi-safis/afi-safi/state
static constexpr WalkChild global_afisafis_afisafi_state_children[] = {
    {"afi-safi-name",  Gate::below_state, vmf_map_oc_bgp_global_afisafis_afisafi_state_afisafiname},
    {"enabled",        Gate::below_state, vmf_map_oc_bgp_global_afisafis_afisafi_state_enabled},
    {"total-paths",    Gate::below_state, vmf_map_oc_bgp_global_afisafis_afisafi_state_totalpaths},
    {"total-prefixes", Gate::below_state, vmf_map_oc_bgp_global_afisafis_afisafi_state_totalprefixes},
};
static constexpr WalkContainer global_afisafis_afisafi_state = {vmf_map_cont_oc_bgp_global_afisafis_afisafi_state, global_afisafis_afisafi_state_children, Scope::none};
OC_WALK(_global_afisafis_afisafi_state) { return walk_container(ctx, node, out, global_afisafis_afisafi_state); }
OC_WALK(_global_afisafis_afisafi_state_afisafiname) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_afisafis_afisafi_state_afisafiname); }
OC_WALK(_global_afisafis_afisafi_state_enabled) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_afisafis_afisafi_state_enabled); }
OC_WALK(_global_afisafis_afisafi_state_totalpaths) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_afisafis_afisafi_state_totalpaths); }
OC_WALK(_global_afisafis_afisafi_state_totalprefixes) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_afisafis_afisafi_state_totalprefixes); }

// ---- /bgp/global/afi-safis/afi-safi/use-multiple-paths
static constexpr WalkChild global_afisafis_afisafi_usemultiplepaths_children[] = {
    {"state", Gate::state, vmf_map_oc_bgp_global_afisafis_afisafi_usemultiplepaths_state},
    {"ebgp",  Gate::none,  vmf_map_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ebgp},
    {"ibgp",  Gate::none,  vmf_map_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ibgp},
};
static constexpr WalkContainer global_afisafis_afisafi_usemultiplepaths = {vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths, global_afisafis_afisafi_usemultiplepaths_children, Scope::none};
OC_WALK(_global_afisafis_afisafi_usemultiplepaths) { return walk_container(ctx, node, out, global_afisafis_afisafi_usemultiplepaths); }

// ---- /bgp/global/afi-safis/afi-safi/use-multiple-paths/state
static constexpr WalkChild global_afisafis_afisafi_usemultiplepaths_state_children[] = {
    {"enabled", Gate::below_state, vmf_map_oc_bgp_global_afisafis_afisafi_usemultiplepaths_state_enabled},
};
static constexpr WalkContainer global_afisafis_afisafi_usemultiplepaths_state = {vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths_state, global_afisafis_afisafi_usemultiplepaths_state_children, Scope::none};
OC_WALK(_global_afisafis_afisafi_usemultiplepaths_state) { return walk_container(ctx, node, out, global_afisafis_afisafi_usemultiplepaths_state); }
OC_WALK(_global_afisafis_afisafi_usemultiplepaths_state_enabled) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_afisafis_afisafi_usemultiplepaths_state_enabled); }

// ---- /bgp/global/afi-safis/afi-safi/use-multiple-paths/ebgp
static constexpr WalkChild global_afisafis_afisafi_usemultiplepaths_ebgp_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ebgp_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ebgp_state},
};
static constexpr WalkContainer global_afisafis_afisafi_usemultiplepaths_ebgp = {vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ebgp, global_afisafis_afisafi_usemultiplepaths_ebgp_children, Scope::none};
OC_WALK(_global_afisafis_afisafi_usemultiplepaths_ebgp) { return walk_container(ctx, node, out, global_afisafis_afisafi_usemultiplepaths_ebgp); }

// ---- /bgp/global/afi-safis/afi-safi/use-multiple-paths/ebgp/config
static constexpr WalkChild global_afisafis_afisafi_usemultiplepaths_ebgp_config_children[] = {
    {"maximum-paths", Gate::none, vmf_map_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ebgp_config_maximumpaths},
};
static constexpr WalkContainer global_afisafis_afisafi_usemultiplepaths_ebgp_config = {vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ebgp_config, global_afisafis_afisafi_usemultiplepaths_ebgp_config_children, Scope::none};
OC_WALK(_global_afisafis_afisafi_usemultiplepaths_ebgp_config) { return walk_container(ctx, node, out, global_afisafis_afisafi_usemultiplepaths_ebgp_config); }
OC_WALK(_global_afisafis_afisafi_usemultiplepaths_ebgp_config_maximumpaths) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ebgp_config_maximumpaths); }

// ---- /bgp/global/afi-safis/afi-safi/use-multiple-paths/ebgp/state
static constexpr WalkChild global_afisafis_afisafi_usemultiplepaths_ebgp_state_children[] = {
    {"maximum-paths", Gate::below_state, vmf_map_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ebgp_state_maximumpaths},
};
static constexpr WalkContainer global_afisafis_afisafi_usemultiplepaths_ebgp_state = {vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ebgp_state, global_afisafis_afisafi_usemultiplepaths_ebgp_state_children, Scope::none};
OC_WALK(_global_afisafis_afisafi_usemultiplepaths_ebgp_state) { return walk_container(ctx, node, out, global_afisafis_afisafi_usemultiplepaths_ebgp_state); }
OC_WALK(_global_afisafis_afisafi_usemultiplepaths_ebgp_state_maximumpaths) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ebgp_state_maximumpaths); }

// ---- /bgp/global/afi-safis/afi-safi/use-multiple-paths/ibgp
static constexpr WalkChild global_afisafis_afisafi_usemultiplepaths_ibgp_children[] = {
    {"config", Gate::config, vmf_map_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ibgp_config},
    {"state",  Gate::state,  vmf_map_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ibgp_state},
};
static constexpr WalkContainer global_afisafis_afisafi_usemultiplepaths_ibgp = {vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ibgp, global_afisafis_afisafi_usemultiplepaths_ibgp_children, Scope::none};
OC_WALK(_global_afisafis_afisafi_usemultiplepaths_ibgp) { return walk_container(ctx, node, out, global_afisafis_afisafi_usemultiplepaths_ibgp); }

// ---- /bgp/global/afi-safis/afi-safi/use-multiple-paths/ibgp/config
static constexpr WalkChild global_afisafis_afisafi_usemultiplepaths_ibgp_config_children[] = {
    {"maximum-paths", Gate::none, vmf_map_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ibgp_config_maximumpaths},
};
static constexpr WalkContainer global_afisafis_afisafi_usemultiplepaths_ibgp_config = {vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ibgp_config, global_afisafis_afisafi_usemultiplepaths_ibgp_config_children, Scope::none};
OC_WALK(_global_afisafis_afisafi_usemultiplepaths_ibgp_config) { return walk_container(ctx, node, out, global_afisafis_afisafi_usemultiplepaths_ibgp_config); }
OC_WALK(_global_afisafis_afisafi_usemultiplepaths_ibgp_config_maximumpaths) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ibgp_config_maximumpaths); }

// ---- /bgp/global/afi-safis/afi-safi/use-multiple-paths/ibgp/state
static constexpr WalkChild global_afisafis_afisafi_usemultiplepaths_ibgp_state_children[] = {
    {"maximum-paths", Gate::below_state, vmf_map_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ibgp_state_maximumpaths},
};
static constexpr WalkContainer global_afisafis_afisafi_usemultiplepaths_ibgp_state = {vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ibgp_state, global_afisafis_afisafi_usemultiplepaths_ibgp_state_children, Scope::none};
OC_WALK(_global_afisafis_afisafi_usemultiplepaths_ibgp_state) { return walk_container(ctx, node, out, global_afisafis_afisafi_usemultiplepaths_ibgp_state); }
OC_WALK(_global_afisafis_afisafi_usemultiplepaths_ibgp_state_maximumpaths) { return walk_leaf(ctx, node, out, vmf_map_leaf_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ibgp_state_maximumpaths); }
