// Made by generator/ from models/Zorvex-ZR-ipv4-bgp-cfg.yang and models/Zorvex-ZR-ipv4-bgp-cfg.mapping.
// Renew it with `cmake --build build/release --target generate`.
#include "zr_cfg_walk.h"

// clang-format off

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbors/neighbor/remote-as
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_remoteas_children[] = {
    {"as-xx", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_remoteas_asxx},
    {"as-yy", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_remoteas_asyy},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_remoteas = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_remoteas, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_remoteas_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_remoteas) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_remoteas, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbors/neighbor/local-as
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localas_children[] = {
    {"as-xx", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localas_asxx},
    {"as-yy", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localas_asyy},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localas = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localas, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localas_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localas) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localas, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbors/neighbor/password
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_password_children[] = {
    {"password-disable", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_password_passworddisable},
    {"password",         Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_password_password},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_password = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_password, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_password_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_password) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_password, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbors/neighbor/tcpmss
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_tcpmss_children[] = {
    {"mss", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_tcpmss_mss},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_tcpmss = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_tcpmss, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_tcpmss_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_tcpmss) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_tcpmss, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbors/neighbor/local-address
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localaddress_children[] = {
    {"local-address-disable", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localaddress_localaddressdisable},
    {"local-ip-address",      Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localaddress_localipaddress},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localaddress = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localaddress, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localaddress_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localaddress) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localaddress, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbors/neighbor/ebgp-multihop
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_ebgpmultihop_children[] = {
    {"max-hop-count",     Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_ebgpmultihop_maxhopcount},
    {"mpls-deactivation", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_ebgpmultihop_mplsdeactivation},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_ebgpmultihop = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_ebgpmultihop, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_ebgpmultihop_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_ebgpmultihop) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_ebgpmultihop, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbors/neighbor/timers
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_timers_children[] = {
    {"keepalive-interval", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_timers_keepaliveinterval},
    {"hold-time",          Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_timers_holdtime},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_timers = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_timers, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_timers_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_timers) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_timers, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbors/neighbor/advertisement-interval
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_advertisementinterval_children[] = {
    {"minimum-interval", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_advertisementinterval_minimuminterval},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_advertisementinterval = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_advertisementinterval, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_advertisementinterval_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_advertisementinterval) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_advertisementinterval, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbors/neighbor/neighbor-cluster-id
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborclusterid_children[] = {
    {"cluster-id-number",  Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborclusterid_clusteridnumber},
    {"cluster-id-address", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborclusterid_clusteridaddress},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborclusterid = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborclusterid, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborclusterid_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborclusterid) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborclusterid, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbors/neighbor/neighbor-afs/neighbor-af/maximum-prefixes
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_maximumprefixes_children[] = {
    {"prefix-limit",       Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_maximumprefixes_prefixlimit},
    {"warning-percentage", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_maximumprefixes_warningpercentage},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_maximumprefixes = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_maximumprefixes, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_maximumprefixes_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_maximumprefixes) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_maximumprefixes, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbors/neighbor/neighbor-afs/neighbor-af/default-originate
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_defaultoriginate_children[] = {
    {"enable", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_defaultoriginate_enable},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_defaultoriginate = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_defaultoriginate, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_defaultoriginate_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_defaultoriginate) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_defaultoriginate, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbors/neighbor/neighbor-afs/neighbor-af
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_children[] = {
    {"af-name",           Role::family_name, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_afname},
    {"activate",          Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_activate},
    {"maximum-prefixes",  Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_maximumprefixes},
    {"multipath",         Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_multipath},
    {"route-policy-in",   Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_routepolicyin},
    {"route-policy-out",  Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_routepolicyout},
    {"default-originate", Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_defaultoriginate},
};
static constexpr ResponseList instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf = {"neighbor-af", "/bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbors/neighbor/neighbor-afs/neighbor-af", instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_children, FamilyLine::names_it, Childless::by_rules};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf) { return walk_response_list(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbors/neighbor/neighbor-afs
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_children[] = {
    {"neighbor-af", Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbors/neighbor
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_children[] = {
    {"neighbor-address",                         Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighboraddress},
    {"remote-as",                                Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_remoteas},
    {"local-as",                                 Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localas},
    {"password",                                 Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_password},
    {"description",                              Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_description},
    {"session-open-mode",                        Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_sessionopenmode},
    {"tcpmss",                                   Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_tcpmss},
    {"local-address",                            Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localaddress},
    {"update-source-interface",                  Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_updatesourceinterface},
    {"ebgp-multihop",                            Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_ebgpmultihop},
    {"timers",                                   Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_timers},
    {"advertisement-interval",                   Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_advertisementinterval},
    {"neighbor-cluster-id",                      Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborclusterid},
    {"neighbor-graceful-restart",                Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborgracefulrestart},
    {"neighbor-graceful-restart-time",           Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborgracefulrestarttime},
    {"neighbor-graceful-restart-stalepath-time", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborgracefulrestartstalepathtime},
    {"neighbor-group-add-member",                Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborgroupaddmember},
    {"neighbor-afs",                             Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs},
};
static constexpr ResponseList instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor = {"neighbor", "/bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbors/neighbor", instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_children, FamilyLine::plain, Childless::by_rules};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor) { return walk_response_list(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbors
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_children[] = {
    {"neighbor", Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbor-groups/neighbor-group/remote-as
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_remoteas_children[] = {
    {"as-xx", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_remoteas_asxx},
    {"as-yy", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_remoteas_asyy},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_remoteas = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_remoteas, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_remoteas_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_remoteas) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_remoteas, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbor-groups/neighbor-group/local-as
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localas_children[] = {
    {"as-xx", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localas_asxx},
    {"as-yy", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localas_asyy},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localas = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localas, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localas_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localas) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localas, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbor-groups/neighbor-group/password
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_password_children[] = {
    {"password-disable", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_password_passworddisable},
    {"password",         Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_password_password},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_password = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_password, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_password_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_password) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_password, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbor-groups/neighbor-group/tcpmss
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_tcpmss_children[] = {
    {"mss", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_tcpmss_mss},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_tcpmss = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_tcpmss, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_tcpmss_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_tcpmss) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_tcpmss, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbor-groups/neighbor-group/local-address
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localaddress_children[] = {
    {"local-address-disable", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localaddress_localaddressdisable},
    {"local-ip-address",      Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localaddress_localipaddress},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localaddress = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localaddress, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localaddress_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localaddress) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localaddress, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbor-groups/neighbor-group/ebgp-multihop
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_ebgpmultihop_children[] = {
    {"max-hop-count",     Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_ebgpmultihop_maxhopcount},
    {"mpls-deactivation", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_ebgpmultihop_mplsdeactivation},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_ebgpmultihop = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_ebgpmultihop, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_ebgpmultihop_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_ebgpmultihop) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_ebgpmultihop, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbor-groups/neighbor-group/timers
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_timers_children[] = {
    {"keepalive-interval", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_timers_keepaliveinterval},
    {"hold-time",          Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_timers_holdtime},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_timers = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_timers, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_timers_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_timers) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_timers, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbor-groups/neighbor-group/advertisement-interval
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_advertisementinterval_children[] = {
    {"minimum-interval", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_advertisementinterval_minimuminterval},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_advertisementinterval = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_advertisementinterval, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_advertisementinterval_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_advertisementinterval) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_advertisementinterval, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbor-groups/neighbor-group/neighbor-cluster-id
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborclusterid_children[] = {
    {"cluster-id-number",  Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborclusterid_clusteridnumber},
    {"cluster-id-address", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborclusterid_clusteridaddress},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborclusterid = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborclusterid, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborclusterid_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborclusterid) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborclusterid, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbor-groups/neighbor-group/neighbor-group-afs/neighbor-group-af/maximum-prefixes
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_maximumprefixes_children[] = {
    {"prefix-limit",       Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_maximumprefixes_prefixlimit},
    {"warning-percentage", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_maximumprefixes_warningpercentage},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_maximumprefixes = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_maximumprefixes, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_maximumprefixes_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_maximumprefixes) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_maximumprefixes, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbor-groups/neighbor-group/neighbor-group-afs/neighbor-group-af/default-originate
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_defaultoriginate_children[] = {
    {"enable", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_defaultoriginate_enable},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_defaultoriginate = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_defaultoriginate, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_defaultoriginate_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_defaultoriginate) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_defaultoriginate, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbor-groups/neighbor-group/neighbor-group-afs/neighbor-group-af
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_children[] = {
    {"af-name",           Role::family_name, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_afname},
    {"activate",          Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_activate},
    {"maximum-prefixes",  Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_maximumprefixes},
    {"multipath",         Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_multipath},
    {"route-policy-in",   Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_routepolicyin},
    {"route-policy-out",  Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_routepolicyout},
    {"default-originate", Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_defaultoriginate},
};
static constexpr ResponseList instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf = {"neighbor-group-af", "/bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbor-groups/neighbor-group/neighbor-group-afs/neighbor-group-af", instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_children, FamilyLine::names_it, Childless::by_rules};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf) { return walk_response_list(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbor-groups/neighbor-group/neighbor-group-afs
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_children[] = {
    {"neighbor-group-af", Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbor-groups/neighbor-group
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_children[] = {
    {"neighbor-group-name",                      Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupname},
    {"remote-as",                                Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_remoteas},
    {"local-as",                                 Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localas},
    {"password",                                 Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_password},
    {"description",                              Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_description},
    {"session-open-mode",                        Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_sessionopenmode},
    {"tcpmss",                                   Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_tcpmss},
    {"local-address",                            Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localaddress},
    {"update-source-interface",                  Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_updatesourceinterface},
    {"ebgp-multihop",                            Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_ebgpmultihop},
    {"timers",                                   Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_timers},
    {"advertisement-interval",                   Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_advertisementinterval},
    {"neighbor-cluster-id",                      Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborclusterid},
    {"neighbor-graceful-restart",                Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgracefulrestart},
    {"neighbor-graceful-restart-time",           Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgracefulrestarttime},
    {"neighbor-graceful-restart-stalepath-time", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgracefulrestartstalepathtime},
    {"neighbor-group-afs",                       Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs},
};
static constexpr ResponseList instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup = {"neighbor-group", "/bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbor-groups/neighbor-group", instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_children, FamilyLine::plain, Childless::by_rules};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup) { return walk_response_list(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbor-groups
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_children[] = {
    {"neighbor-group", Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_bgpentity_children[] = {
    {"neighbors",       Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors},
    {"neighbor-groups", Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_bgpentity = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity, instance_instanceas_fourbyteas_defaultvrf_bgpentity_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_bgpentity) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_bgpentity, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/global/confederation-domain
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_global_confederationdomain_children[] = {
    {"as-xx", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_confederationdomain_asxx},
    {"as-yy", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_confederationdomain_asyy},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_global_confederationdomain = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_confederationdomain, instance_instanceas_fourbyteas_defaultvrf_global_confederationdomain_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_global_confederationdomain) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_global_confederationdomain, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/global/confederation-peer-ases/confederation-peer-as
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_global_confederationpeerases_confederationpeeras_children[] = {
    {"as-xx", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_confederationpeerases_confederationpeeras_asxx},
    {"as-yy", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_confederationpeerases_confederationpeeras_asyy},
};
static constexpr ResponseList instance_instanceas_fourbyteas_defaultvrf_global_confederationpeerases_confederationpeeras = {"confederation-peer-as", "/bgp/instance/instance-as/four-byte-as/default-vrf/global/confederation-peer-ases/confederation-peer-as", instance_instanceas_fourbyteas_defaultvrf_global_confederationpeerases_confederationpeeras_children, FamilyLine::plain, Childless::by_rules};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_global_confederationpeerases_confederationpeeras) { return walk_response_list(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_global_confederationpeerases_confederationpeeras, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/global/confederation-peer-ases
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_global_confederationpeerases_children[] = {
    {"confederation-peer-as", Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_confederationpeerases_confederationpeeras},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_global_confederationpeerases = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_confederationpeerases, instance_instanceas_fourbyteas_defaultvrf_global_confederationpeerases_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_global_confederationpeerases) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_global_confederationpeerases, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/global/global-afs/global-af/distance
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_distance_children[] = {
    {"external-routes", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_distance_externalroutes},
    {"internal-routes", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_distance_internalroutes},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_distance = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_distance, instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_distance_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_distance) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_distance, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/global/global-afs/global-af/ebgp
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_ebgp_children[] = {
    {"paths-value", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_ebgp_pathsvalue},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_ebgp = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_ebgp, instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_ebgp_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_ebgp) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_ebgp, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/global/global-afs/global-af/ibgp
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_ibgp_children[] = {
    {"paths-value", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_ibgp_pathsvalue},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_ibgp = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_ibgp, instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_ibgp_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_ibgp) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_ibgp, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/global/global-afs/global-af
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_children[] = {
    {"af-name",  Role::family_name, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_afname},
    {"enable",   Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_enable},
    {"distance", Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_distance},
    {"ebgp",     Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_ebgp},
    {"ibgp",     Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_ibgp},
};
static constexpr ResponseList instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf = {"global-af", "/bgp/instance/instance-as/four-byte-as/default-vrf/global/global-afs/global-af", instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_children, FamilyLine::plain, Childless::by_rules};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf) { return walk_response_list(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/global/global-afs
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_global_globalafs_children[] = {
    {"global-af", Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_global_globalafs = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_globalafs, instance_instanceas_fourbyteas_defaultvrf_global_globalafs_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_global_globalafs) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_global_globalafs, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf/global
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_global_children[] = {
    {"router-id",                       Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_routerid},
    {"graceful-restart",                Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_gracefulrestart},
    {"graceful-restart-time",           Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_gracefulrestarttime},
    {"graceful-restart-stalepath-time", Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_gracefulrestartstalepathtime},
    {"best-path-aigp-ignore",           Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_bestpathaigpignore},
    {"best-path-as-path-length",        Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_bestpathaspathlength},
    {"best-path-med-always",            Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_bestpathmedalways},
    {"best-path-router-id",             Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_bestpathrouterid},
    {"confederation-domain",            Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_confederationdomain},
    {"confederation-peer-ases",         Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_confederationpeerases},
    {"global-afs",                      Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_globalafs},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf_global = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global, instance_instanceas_fourbyteas_defaultvrf_global_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf_global) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf_global, rules); }

// ---- /bgp/instance/instance-as/four-byte-as/default-vrf
static constexpr ResponseChild instance_instanceas_fourbyteas_defaultvrf_children[] = {
    {"bgp-entity", Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity},
    {"global",     Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global},
};
static constexpr ResponseContainer instance_instanceas_fourbyteas_defaultvrf = {vmf_map_cont_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf, instance_instanceas_fourbyteas_defaultvrf_children};
ZR_CFG_WALK(_instance_instanceas_fourbyteas_defaultvrf) { return walk_response_container(ctx, tree, mapped, instance_instanceas_fourbyteas_defaultvrf, rules); }

// ---- /bgp/instance/instance-as/four-byte-as
static constexpr ResponseChild instance_instanceas_fourbyteas_children[] = {
    {"as",          Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_as},
    {"default-vrf", Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf},
};
static constexpr ResponseList instance_instanceas_fourbyteas = {"four-byte-as", "/bgp/instance/instance-as/four-byte-as", instance_instanceas_fourbyteas_children, FamilyLine::plain, Childless::by_rules};
ZR_CFG_WALK(_instance_instanceas_fourbyteas) { return walk_response_list(ctx, tree, mapped, instance_instanceas_fourbyteas, rules); }

// ---- /bgp/instance/instance-as
static constexpr ResponseChild instance_instanceas_children[] = {
    {"as",           Role::none, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_as},
    {"four-byte-as", Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas},
};
static constexpr ResponseList instance_instanceas = {"instance-as", "/bgp/instance/instance-as", instance_instanceas_children, FamilyLine::plain, Childless::by_rules};
ZR_CFG_WALK(_instance_instanceas) { return walk_response_list(ctx, tree, mapped, instance_instanceas, rules); }

// ---- /bgp/instance
static constexpr ResponseChild instance_children[] = {
    {"instance-name", Role::instance_name, vmf_map_leaf_zr_bgp_cfg_bgp_instance_instancename},
    {"instance-as",   Role::none, vmf_map_zr_bgp_cfg_bgp_instance_instanceas},
};
static constexpr ResponseList instance = {"instance", "/bgp/instance", instance_children, FamilyLine::plain, Childless::by_rules};
ZR_CFG_WALK(_instance) { return walk_response_list(ctx, tree, mapped, instance, rules); }

// ---- /bgp
static constexpr ResponseChild bgp_children[] = {
    {"instance", Role::none, vmf_map_zr_bgp_cfg_bgp_instance},
};
static constexpr ResponseContainer bgp = {vmf_map_cont_zr_bgp_cfg_bgp, bgp_children};
ZR_CFG_ROOT { return walk_response_container(ctx, tree, mapped, bgp, rules); }
