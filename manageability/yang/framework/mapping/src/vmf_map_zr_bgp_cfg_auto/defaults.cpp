// Made by generator/ from models/Zorvex-ZR-ipv4-bgp-cfg.yang and models/Zorvex-ZR-ipv4-bgp-cfg.mapping.
// Renew it with `cmake --build build/release --target generate`.
#include "zr_cfg_defaults.h"

// clang-format off

ZR_CFG_CONT_DEFAULT()                                                                            { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instancename)                                                      { return open_path(ctx, node, mapped, oc("/bgp")); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_as)                                                     { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_as)                                          { return copy_value(ctx, node, mapped, oc_copies(COPIES("/bgp/global/", "/as"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf)                                  { return silent(ctx, node, mapped); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity)                        { return silent(ctx, node, mapped); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors)              { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighboraddress) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("", "/neighbor-address"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_remoteas) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_remoteas_asxx) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_remoteas_asyy) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("", "/peer-as"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localas) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localas_asxx) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localas_asyy) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("", "/local-as"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_password) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_password_passworddisable) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_password_password) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("", "/auth-password"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_description) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("", "/description"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_sessionopenmode) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("transport/", "/passive-mode"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_tcpmss) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_tcpmss_mss) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("transport/", "/tcp-mss"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localaddress) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localaddress_localaddressdisable) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_localaddress_localipaddress) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("transport/", "/local-address"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_updatesourceinterface) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("transport/", "/local-address"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_ebgpmultihop) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_ebgpmultihop_maxhopcount) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("ebgp-multihop/", "/enabled"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_ebgpmultihop_mplsdeactivation) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("ebgp-multihop/", "/multihop-ttl"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_timers) { return empty_container(ctx, node, subtree_count, mapped, oc_list("timers")); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_timers_keepaliveinterval) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("timers/", "/keepalive-interval"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_timers_holdtime) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("timers/", "/hold-time"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_advertisementinterval) { return empty_container(ctx, node, subtree_count, mapped, oc_list("timers")); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_advertisementinterval_minimuminterval) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("timers/", "/minimum-advertisement-interval"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborclusterid) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborclusterid_clusteridnumber) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("route-reflector/", "/route-reflector-cluster-id"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborclusterid_clusteridaddress) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("route-reflector/", "/route-reflector-cluster-id"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborgracefulrestart) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("graceful-restart/", "/enabled"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborgracefulrestarttime) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("graceful-restart/", "/restart-time"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborgracefulrestartstalepathtime) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("graceful-restart/", "/stale-routes-time"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborgroupaddmember) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("", "/peer-group"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs) { return empty_container(ctx, node, subtree_count, mapped, oc_list("afi-safis")); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_afname) { return copy_value(ctx, node, mapped, oc_af_copies(COPIES("", "/afi-safi-name"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_activate) { return copy_value(ctx, node, mapped, oc_af_copies(COPIES("", "/enabled"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_maximumprefixes) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_maximumprefixes_prefixlimit) { return copy_value(ctx, node, mapped, oc_af_copies(COPIES("ipv4-unicast/prefix-limit/", "/max-prefixes"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_maximumprefixes_warningpercentage) { return copy_value(ctx, node, mapped, oc_af_copies(COPIES("ipv4-unicast/prefix-limit/", "/shutdown-threshold-pct"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_multipath) { return copy_value(ctx, node, mapped, oc_af_copies(COPIES("use-multiple-paths/", "/enabled"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_routepolicyin) { return copy_value(ctx, node, mapped, oc_af_copies(COPIES("apply-policy/", "/import-policy"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_routepolicyout) { return copy_value(ctx, node, mapped, oc_af_copies(COPIES("apply-policy/", "/export-policy"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_defaultoriginate) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_neighborafs_neighboraf_defaultoriginate_enable) { return copy_value(ctx, node, mapped, oc_af_copies(COPIES("ipv4-unicast/", "/send-default-route"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups)         { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupname) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("", "/peer-group-name"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_remoteas) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_remoteas_asxx) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_remoteas_asyy) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("", "/peer-as"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localas) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localas_asxx) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localas_asyy) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("", "/local-as"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_password) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_password_passworddisable) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_password_password) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("", "/auth-password"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_description) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("", "/description"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_sessionopenmode) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("transport/", "/passive-mode"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_tcpmss) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_tcpmss_mss) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("transport/", "/tcp-mss"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localaddress) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localaddress_localaddressdisable) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_localaddress_localipaddress) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("transport/", "/local-address"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_updatesourceinterface) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("transport/", "/local-address"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_ebgpmultihop) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_ebgpmultihop_maxhopcount) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("ebgp-multihop/", "/enabled"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_ebgpmultihop_mplsdeactivation) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("ebgp-multihop/", "/multihop-ttl"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_timers) { return empty_container(ctx, node, subtree_count, mapped, oc_list("timers")); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_timers_keepaliveinterval) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("timers/", "/keepalive-interval"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_timers_holdtime) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("timers/", "/hold-time"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_advertisementinterval) { return empty_container(ctx, node, subtree_count, mapped, oc_list("timers")); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_advertisementinterval_minimuminterval) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("timers/", "/minimum-advertisement-interval"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborclusterid) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborclusterid_clusteridnumber) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("route-reflector/", "/route-reflector-cluster-id"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborclusterid_clusteridaddress) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("route-reflector/", "/route-reflector-cluster-id"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgracefulrestart) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("graceful-restart/", "/enabled"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgracefulrestarttime) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("graceful-restart/", "/restart-time"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgracefulrestartstalepathtime) { return copy_value(ctx, node, mapped, oc_list_copies(COPIES("graceful-restart/", "/stale-routes-time"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs) { return empty_container(ctx, node, subtree_count, mapped, oc_list("afi-safis")); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_afname) { return copy_value(ctx, node, mapped, oc_af_copies(COPIES("", "/afi-safi-name"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_activate) { return copy_value(ctx, node, mapped, oc_af_copies(COPIES("", "/enabled"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_maximumprefixes) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_maximumprefixes_prefixlimit) { return copy_value(ctx, node, mapped, oc_af_copies(COPIES("ipv4-unicast/prefix-limit/", "/max-prefixes"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_maximumprefixes_warningpercentage) { return copy_value(ctx, node, mapped, oc_af_copies(COPIES("ipv4-unicast/prefix-limit/", "/shutdown-threshold-pct"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_multipath) { return copy_value(ctx, node, mapped, oc_af_copies(COPIES("use-multiple-paths/", "/enabled"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_routepolicyin) { return copy_value(ctx, node, mapped, oc_af_copies(COPIES("apply-policy/", "/import-policy"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_routepolicyout) { return copy_value(ctx, node, mapped, oc_af_copies(COPIES("apply-policy/", "/export-policy"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_defaultoriginate) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighborgroups_neighborgroup_neighborgroupafs_neighborgroupaf_defaultoriginate_enable) { return copy_value(ctx, node, mapped, oc_af_copies(COPIES("ipv4-unicast/", "/send-default-route"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global)                           { return empty_container(ctx, node, subtree_count, mapped, oc("/bgp/global")); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_routerid)                  { return copy_value(ctx, node, mapped, oc_copies(COPIES("/bgp/global/", "/router-id"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_gracefulrestart)           { return copy_value(ctx, node, mapped, oc_copies(COPIES("/bgp/global/graceful-restart/", "/enabled"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_gracefulrestarttime)       { return copy_value(ctx, node, mapped, oc_copies(COPIES("/bgp/global/graceful-restart/", "/restart-time"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_gracefulrestartstalepathtime) { return copy_value(ctx, node, mapped, oc_copies(COPIES("/bgp/global/graceful-restart/", "/stale-routes-time"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_bestpathaigpignore)        { return copy_value(ctx, node, mapped, oc_copies(COPIES("/bgp/global/route-selection-options/", "/enable-aigp"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_bestpathaspathlength)      { return copy_value(ctx, node, mapped, oc_copies(COPIES("/bgp/global/route-selection-options/", "/ignore-as-path-length"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_bestpathmedalways)         { return copy_value(ctx, node, mapped, oc_copies(COPIES("/bgp/global/route-selection-options/", "/always-compare-med"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_bestpathrouterid)          { return copy_value(ctx, node, mapped, oc_copies(COPIES("/bgp/global/route-selection-options/", "/external-compare-router-id"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_confederationdomain)       { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_confederationdomain_asxx)  { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_confederationdomain_asyy)  { return copy_value(ctx, node, mapped, oc_copies(COPIES("/bgp/global/confederation/", "/identifier"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_confederationpeerases)     { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_confederationpeerases_confederationpeeras_asxx) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_confederationpeerases_confederationpeeras_asyy) { return copy_value(ctx, node, mapped, repeated(oc_copies(COPIES("/bgp/global/confederation/", "/member-as")))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_globalafs)                 { return empty_container(ctx, node, subtree_count, mapped, oc("/bgp/global/afi-safis")); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_afname) { return copy_value(ctx, node, mapped, oc_family_copies(COPIES("", "/afi-safi-name"))); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_enable) { return copy_value(ctx, node, mapped, oc_family_copies(COPIES("", "/enabled"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_distance) { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_distance_externalroutes) { return forward(ctx, node, mapped, vmf_map_man_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_distance_externalroutes); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_distance_internalroutes) { return forward(ctx, node, mapped, vmf_map_man_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_distance_internalroutes); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_ebgp)   { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_ebgp_pathsvalue) { return copy_value(ctx, node, mapped, oc_family_copies(COPIES("use-multiple-paths/ebgp/", "/maximum-paths"))); }

ZR_CFG_CONT_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_ibgp)   { return silent(ctx, node, mapped); }
ZR_CFG_LEAF_DEFAULT(_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_ibgp_pathsvalue) { return copy_value(ctx, node, mapped, oc_family_copies(COPIES("use-multiple-paths/ibgp/", "/maximum-paths"))); }
