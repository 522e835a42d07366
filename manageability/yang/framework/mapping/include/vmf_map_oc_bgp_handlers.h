// Made by generator/ from models/openconfig-bgp.yang and models/openconfig-bgp.mapping.
// Renew it with `cmake --build build/release --target generate`.
//
// The handlers of a tree: for each node its path with the form of its default, the public name, the default,
// and the body written by hand where there is one. An override includes this header and defines the public
// name; a name that is not here does not compile.
#pragma once

#include "vmf_map_oc_bgp.h"

// clang-format off
extern "C" {

// /bgp: selection instance-as/four-byte-as; overridden
VmfContainerHandler vmf_map_cont_oc_bgp;
VmfContainerHandler __vmf_map_cont_oc_bgp;

// /bgp/global: selection global; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_global;
VmfContainerHandler __vmf_map_cont_oc_bgp_global;

// /bgp/global/config: selection instance-as/as instance-as/four-byte-as/as global/router-id; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_global_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_config;

// /bgp/global/config/as: fan-out instance-as/as instance-as/four-byte-as/as instance-as/four-byte-as/bgp-running; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_config_as;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_config_as;

// /bgp/global/config/router-id: plain global/router-id
VmfLeafHandler vmf_map_leaf_oc_bgp_global_config_routerid;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_config_routerid;

// /bgp/global/state: state-selection instance-as/as instance-as/four-byte-as/as global/router-id; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_global_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_state;

// /bgp/global/state/as: state instance-as/as instance-as/four-byte-as/as instance-as/four-byte-as/bgp-running; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_state_as;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_state_as;
VmfLeafHandler vmf_map_man_leaf_oc_bgp_global_state_as;

// /bgp/global/state/router-id: state global/router-id; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_state_routerid;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_state_routerid;
VmfLeafHandler vmf_map_man_leaf_oc_bgp_global_state_routerid;

// /bgp/global/state/total-paths: forward; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_state_totalpaths;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_state_totalpaths;
VmfLeafHandler vmf_map_man_leaf_oc_bgp_global_state_totalpaths;

// /bgp/global/state/total-prefixes: forward; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_state_totalprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_state_totalprefixes;
VmfLeafHandler vmf_map_man_leaf_oc_bgp_global_state_totalprefixes;

// /bgp/global/route-selection-options: selection global/best-path-med-always global/best-path-as-path-length global/best-path-router-id global/best-path-aigp-ignore
VmfContainerHandler vmf_map_cont_oc_bgp_global_routeselectionoptions;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_routeselectionoptions;

// /bgp/global/route-selection-options/config: selection global/best-path-med-always global/best-path-as-path-length global/best-path-router-id global/best-path-aigp-ignore
VmfContainerHandler vmf_map_cont_oc_bgp_global_routeselectionoptions_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_routeselectionoptions_config;

// /bgp/global/route-selection-options/config/always-compare-med: plain global/best-path-med-always; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_routeselectionoptions_config_alwayscomparemed;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_routeselectionoptions_config_alwayscomparemed;

// /bgp/global/route-selection-options/config/ignore-as-path-length: plain global/best-path-as-path-length; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_routeselectionoptions_config_ignoreaspathlength;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_routeselectionoptions_config_ignoreaspathlength;

// /bgp/global/route-selection-options/config/external-compare-router-id: plain global/best-path-router-id; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_routeselectionoptions_config_externalcomparerouterid;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_routeselectionoptions_config_externalcomparerouterid;

// /bgp/global/route-selection-options/config/enable-aigp: plain global/best-path-aigp-ignore; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_routeselectionoptions_config_enableaigp;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_routeselectionoptions_config_enableaigp;

// /bgp/global/route-selection-options/state: state-selection global/best-path-med-always global/best-path-as-path-length global/best-path-router-id global/best-path-aigp-ignore
VmfContainerHandler vmf_map_cont_oc_bgp_global_routeselectionoptions_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_routeselectionoptions_state;

// /bgp/global/route-selection-options/state/always-compare-med: state global/best-path-med-always
VmfLeafHandler vmf_map_leaf_oc_bgp_global_routeselectionoptions_state_alwayscomparemed;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_routeselectionoptions_state_alwayscomparemed;

// /bgp/global/route-selection-options/state/ignore-as-path-length: state global/best-path-as-path-length
VmfLeafHandler vmf_map_leaf_oc_bgp_global_routeselectionoptions_state_ignoreaspathlength;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_routeselectionoptions_state_ignoreaspathlength;

// /bgp/global/route-selection-options/state/external-compare-router-id: state global/best-path-router-id
VmfLeafHandler vmf_map_leaf_oc_bgp_global_routeselectionoptions_state_externalcomparerouterid;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_routeselectionoptions_state_externalcomparerouterid;

// /bgp/global/route-selection-options/state/enable-aigp: state global/best-path-aigp-ignore
VmfLeafHandler vmf_map_leaf_oc_bgp_global_routeselectionoptions_state_enableaigp;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_routeselectionoptions_state_enableaigp;

// /bgp/global/default-route-distance: forward; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_global_defaultroutedistance;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_defaultroutedistance;
VmfContainerHandler vmf_map_man_cont_oc_bgp_global_defaultroutedistance;

// /bgp/global/default-route-distance/config: forward; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_global_defaultroutedistance_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_defaultroutedistance_config;
VmfContainerHandler vmf_map_man_cont_oc_bgp_global_defaultroutedistance_config;

// /bgp/global/default-route-distance/config/external-route-distance: forward
VmfLeafHandler vmf_map_leaf_oc_bgp_global_defaultroutedistance_config_externalroutedistance;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_defaultroutedistance_config_externalroutedistance;
VmfLeafHandler vmf_map_man_leaf_oc_bgp_global_defaultroutedistance_config_externalroutedistance;

// /bgp/global/default-route-distance/config/internal-route-distance: forward
VmfLeafHandler vmf_map_leaf_oc_bgp_global_defaultroutedistance_config_internalroutedistance;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_defaultroutedistance_config_internalroutedistance;
VmfLeafHandler vmf_map_man_leaf_oc_bgp_global_defaultroutedistance_config_internalroutedistance;

// /bgp/global/default-route-distance/state: forward; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_global_defaultroutedistance_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_defaultroutedistance_state;
VmfContainerHandler vmf_map_man_cont_oc_bgp_global_defaultroutedistance_state;

// /bgp/global/default-route-distance/state/external-route-distance: forward
VmfLeafHandler vmf_map_leaf_oc_bgp_global_defaultroutedistance_state_externalroutedistance;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_defaultroutedistance_state_externalroutedistance;
VmfLeafHandler vmf_map_man_leaf_oc_bgp_global_defaultroutedistance_state_externalroutedistance;

// /bgp/global/default-route-distance/state/internal-route-distance: forward
VmfLeafHandler vmf_map_leaf_oc_bgp_global_defaultroutedistance_state_internalroutedistance;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_defaultroutedistance_state_internalroutedistance;
VmfLeafHandler vmf_map_man_leaf_oc_bgp_global_defaultroutedistance_state_internalroutedistance;

// /bgp/global/confederation: selection global/confederation-domain global/confederation-peer-ases; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_global_confederation;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_confederation;

// /bgp/global/confederation/config: selection global/confederation-domain global/confederation-peer-ases; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_global_confederation_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_confederation_config;

// /bgp/global/confederation/config/identifier: plain global/confederation-domain; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_confederation_config_identifier;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_confederation_config_identifier;

// /bgp/global/confederation/config/member-as: plain global/confederation-peer-ases/confederation-peer-as+; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_confederation_config_memberas;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_confederation_config_memberas;

// /bgp/global/confederation/state: state-selection global/confederation-domain global/confederation-peer-ases; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_global_confederation_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_confederation_state;

// /bgp/global/confederation/state/enabled: state global/confederation-domain; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_confederation_state_enabled;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_confederation_state_enabled;

// /bgp/global/confederation/state/identifier: state global/confederation-domain; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_confederation_state_identifier;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_confederation_state_identifier;

// /bgp/global/confederation/state/member-as: state global/confederation-peer-ases/confederation-peer-as+; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_confederation_state_memberas;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_confederation_state_memberas;

// /bgp/global/use-multiple-paths: forward
VmfContainerHandler vmf_map_cont_oc_bgp_global_usemultiplepaths;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_usemultiplepaths;
VmfContainerHandler vmf_map_man_cont_oc_bgp_global_usemultiplepaths;

// /bgp/global/use-multiple-paths/state: forward
VmfContainerHandler vmf_map_cont_oc_bgp_global_usemultiplepaths_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_usemultiplepaths_state;
VmfContainerHandler vmf_map_man_cont_oc_bgp_global_usemultiplepaths_state;

// /bgp/global/use-multiple-paths/state/enabled: forward
VmfLeafHandler vmf_map_leaf_oc_bgp_global_usemultiplepaths_state_enabled;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_usemultiplepaths_state_enabled;
VmfLeafHandler vmf_map_man_leaf_oc_bgp_global_usemultiplepaths_state_enabled;

// /bgp/global/use-multiple-paths/ebgp: forward
VmfContainerHandler vmf_map_cont_oc_bgp_global_usemultiplepaths_ebgp;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_usemultiplepaths_ebgp;
VmfContainerHandler vmf_map_man_cont_oc_bgp_global_usemultiplepaths_ebgp;

// /bgp/global/use-multiple-paths/ebgp/config: forward
VmfContainerHandler vmf_map_cont_oc_bgp_global_usemultiplepaths_ebgp_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_usemultiplepaths_ebgp_config;
VmfContainerHandler vmf_map_man_cont_oc_bgp_global_usemultiplepaths_ebgp_config;

// /bgp/global/use-multiple-paths/ebgp/config/maximum-paths: forward
VmfLeafHandler vmf_map_leaf_oc_bgp_global_usemultiplepaths_ebgp_config_maximumpaths;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_usemultiplepaths_ebgp_config_maximumpaths;
VmfLeafHandler vmf_map_man_leaf_oc_bgp_global_usemultiplepaths_ebgp_config_maximumpaths;

// /bgp/global/use-multiple-paths/ebgp/state: forward
VmfContainerHandler vmf_map_cont_oc_bgp_global_usemultiplepaths_ebgp_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_usemultiplepaths_ebgp_state;
VmfContainerHandler vmf_map_man_cont_oc_bgp_global_usemultiplepaths_ebgp_state;

// /bgp/global/use-multiple-paths/ebgp/state/maximum-paths: forward
VmfLeafHandler vmf_map_leaf_oc_bgp_global_usemultiplepaths_ebgp_state_maximumpaths;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_usemultiplepaths_ebgp_state_maximumpaths;
VmfLeafHandler vmf_map_man_leaf_oc_bgp_global_usemultiplepaths_ebgp_state_maximumpaths;

// /bgp/global/use-multiple-paths/ibgp: forward
VmfContainerHandler vmf_map_cont_oc_bgp_global_usemultiplepaths_ibgp;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_usemultiplepaths_ibgp;
VmfContainerHandler vmf_map_man_cont_oc_bgp_global_usemultiplepaths_ibgp;

// /bgp/global/use-multiple-paths/ibgp/config: forward
VmfContainerHandler vmf_map_cont_oc_bgp_global_usemultiplepaths_ibgp_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_usemultiplepaths_ibgp_config;
VmfContainerHandler vmf_map_man_cont_oc_bgp_global_usemultiplepaths_ibgp_config;

// /bgp/global/use-multiple-paths/ibgp/config/maximum-paths: forward
VmfLeafHandler vmf_map_leaf_oc_bgp_global_usemultiplepaths_ibgp_config_maximumpaths;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_usemultiplepaths_ibgp_config_maximumpaths;
VmfLeafHandler vmf_map_man_leaf_oc_bgp_global_usemultiplepaths_ibgp_config_maximumpaths;

// /bgp/global/use-multiple-paths/ibgp/state: forward
VmfContainerHandler vmf_map_cont_oc_bgp_global_usemultiplepaths_ibgp_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_usemultiplepaths_ibgp_state;
VmfContainerHandler vmf_map_man_cont_oc_bgp_global_usemultiplepaths_ibgp_state;

// /bgp/global/use-multiple-paths/ibgp/state/maximum-paths: forward
VmfLeafHandler vmf_map_leaf_oc_bgp_global_usemultiplepaths_ibgp_state_maximumpaths;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_usemultiplepaths_ibgp_state_maximumpaths;
VmfLeafHandler vmf_map_man_leaf_oc_bgp_global_usemultiplepaths_ibgp_state_maximumpaths;

// /bgp/global/graceful-restart: selection global/graceful-restart global/graceful-restart-time global/graceful-restart-stalepath-time; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_global_gracefulrestart;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_gracefulrestart;

// /bgp/global/graceful-restart/config: selection global/graceful-restart global/graceful-restart-time global/graceful-restart-stalepath-time; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_global_gracefulrestart_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_gracefulrestart_config;

// /bgp/global/graceful-restart/config/enabled: plain global/graceful-restart; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_gracefulrestart_config_enabled;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_gracefulrestart_config_enabled;

// /bgp/global/graceful-restart/config/restart-time: plain global/graceful-restart-time
VmfLeafHandler vmf_map_leaf_oc_bgp_global_gracefulrestart_config_restarttime;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_gracefulrestart_config_restarttime;

// /bgp/global/graceful-restart/config/stale-routes-time: plain global/graceful-restart-stalepath-time
VmfLeafHandler vmf_map_leaf_oc_bgp_global_gracefulrestart_config_staleroutestime;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_gracefulrestart_config_staleroutestime;

// /bgp/global/graceful-restart/state: state-selection global/graceful-restart global/graceful-restart-time global/graceful-restart-stalepath-time; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_global_gracefulrestart_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_gracefulrestart_state;

// /bgp/global/graceful-restart/state/enabled: state global/graceful-restart
VmfLeafHandler vmf_map_leaf_oc_bgp_global_gracefulrestart_state_enabled;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_gracefulrestart_state_enabled;

// /bgp/global/graceful-restart/state/restart-time: state global/graceful-restart-time
VmfLeafHandler vmf_map_leaf_oc_bgp_global_gracefulrestart_state_restarttime;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_gracefulrestart_state_restarttime;

// /bgp/global/graceful-restart/state/stale-routes-time: state global/graceful-restart-stalepath-time
VmfLeafHandler vmf_map_leaf_oc_bgp_global_gracefulrestart_state_staleroutestime;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_gracefulrestart_state_staleroutestime;

// /bgp/global/afi-safis: selection global/global-afs; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_global_afisafis;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_afisafis;

// /bgp/global/afi-safis/afi-safi/afi-safi-name: key global/global-afs/global-af+ list:af-name; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_afisafis_afisafi_afisafiname;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_afisafis_afisafi_afisafiname;

// /bgp/global/afi-safis/afi-safi/config: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_global_afisafis_afisafi_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_afisafis_afisafi_config;

// /bgp/global/afi-safis/afi-safi/config/afi-safi-name: fan-out list:af-name list:enable; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_afisafis_afisafi_config_afisafiname;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_afisafis_afisafi_config_afisafiname;

// /bgp/global/afi-safis/afi-safi/config/enabled: fan-out list:enable; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_afisafis_afisafi_config_enabled;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_afisafis_afisafi_config_enabled;

// /bgp/global/afi-safis/afi-safi/state: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_global_afisafis_afisafi_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_afisafis_afisafi_state;

// /bgp/global/afi-safis/afi-safi/state/afi-safi-name: state list:af-name; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_afisafis_afisafi_state_afisafiname;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_afisafis_afisafi_state_afisafiname;

// /bgp/global/afi-safis/afi-safi/state/enabled: state list:enable; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_afisafis_afisafi_state_enabled;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_afisafis_afisafi_state_enabled;

// /bgp/global/afi-safis/afi-safi/state/total-paths: state oper-list:af-process-info/global/paths-num; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_afisafis_afisafi_state_totalpaths;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_afisafis_afisafi_state_totalpaths;

// /bgp/global/afi-safis/afi-safi/state/total-prefixes: state oper-list:global-af-process-info/global/scan-prefixes; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_afisafis_afisafi_state_totalprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_afisafis_afisafi_state_totalprefixes;

// /bgp/global/afi-safis/afi-safi/use-multiple-paths: selection list:ebgp list:ibgp; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths;

// /bgp/global/afi-safis/afi-safi/use-multiple-paths/state: state-selection direct:list:ebgp direct:list:ibgp; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths_state;

// /bgp/global/afi-safis/afi-safi/use-multiple-paths/state/enabled: state direct:list:ebgp direct:list:ibgp; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_afisafis_afisafi_usemultiplepaths_state_enabled;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_afisafis_afisafi_usemultiplepaths_state_enabled;

// /bgp/global/afi-safis/afi-safi/use-multiple-paths/ebgp: selection list:ebgp; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ebgp;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ebgp;

// /bgp/global/afi-safis/afi-safi/use-multiple-paths/ebgp/config: selection list:ebgp; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ebgp_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ebgp_config;

// /bgp/global/afi-safis/afi-safi/use-multiple-paths/ebgp/config/maximum-paths: plain list:ebgp/paths-value; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ebgp_config_maximumpaths;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ebgp_config_maximumpaths;

// /bgp/global/afi-safis/afi-safi/use-multiple-paths/ebgp/state: state-selection list:ebgp
VmfContainerHandler vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ebgp_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ebgp_state;

// /bgp/global/afi-safis/afi-safi/use-multiple-paths/ebgp/state/maximum-paths: state list:ebgp/paths-value
VmfLeafHandler vmf_map_leaf_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ebgp_state_maximumpaths;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ebgp_state_maximumpaths;

// /bgp/global/afi-safis/afi-safi/use-multiple-paths/ibgp: selection list:ibgp
VmfContainerHandler vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ibgp;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ibgp;

// /bgp/global/afi-safis/afi-safi/use-multiple-paths/ibgp/config: selection list:ibgp; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ibgp_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ibgp_config;

// /bgp/global/afi-safis/afi-safi/use-multiple-paths/ibgp/config/maximum-paths: plain list:ibgp/paths-value; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ibgp_config_maximumpaths;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ibgp_config_maximumpaths;

// /bgp/global/afi-safis/afi-safi/use-multiple-paths/ibgp/state: state-selection list:ibgp
VmfContainerHandler vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ibgp_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ibgp_state;

// /bgp/global/afi-safis/afi-safi/use-multiple-paths/ibgp/state/maximum-paths: state list:ibgp/paths-value
VmfLeafHandler vmf_map_leaf_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ibgp_state_maximumpaths;
VmfLeafHandler __vmf_map_leaf_oc_bgp_global_afisafis_afisafi_usemultiplepaths_ibgp_state_maximumpaths;

// /bgp/neighbors: selection bgp-entity/neighbors; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors;

// /bgp/neighbors/neighbor/neighbor-address: key bgp-entity/neighbors/neighbor+ list:neighbor-address; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_neighboraddress;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_neighboraddress;

// /bgp/neighbors/neighbor/config: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_config;

// /bgp/neighbors/neighbor/config/peer-as: plain list:remote-as; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_config_peeras;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_config_peeras;

// /bgp/neighbors/neighbor/config/local-as: plain list:local-as; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_config_localas;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_config_localas;

// /bgp/neighbors/neighbor/config/auth-password: plain list:password; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_config_authpassword;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_config_authpassword;

// /bgp/neighbors/neighbor/config/description: plain list:description; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_config_description;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_config_description;

// /bgp/neighbors/neighbor/config/peer-group: plain list:neighbor-group-add-member; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_config_peergroup;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_config_peergroup;

// /bgp/neighbors/neighbor/config/neighbor-address: plain list:neighbor-address; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_config_neighboraddress;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_config_neighboraddress;

// /bgp/neighbors/neighbor/state: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_state;

// /bgp/neighbors/neighbor/state/peer-as: state list:remote-as; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_state_peeras;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_state_peeras;

// /bgp/neighbors/neighbor/state/local-as: state list:local-as; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_state_localas;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_state_localas;

// /bgp/neighbors/neighbor/state/auth-password: state list:password; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_state_authpassword;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_state_authpassword;

// /bgp/neighbors/neighbor/state/description: state list:description; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_state_description;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_state_description;

// /bgp/neighbors/neighbor/state/peer-group: state list:neighbor-group-add-member; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_state_peergroup;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_state_peergroup;

// /bgp/neighbors/neighbor/state/neighbor-address: state list:neighbor-address; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_state_neighboraddress;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_state_neighboraddress;

// /bgp/neighbors/neighbor/state/session-state: state oper-list:connection-state; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_state_sessionstate;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_state_sessionstate;

// /bgp/neighbors/neighbor/state/supported-capabilities: state oper-list:is-route-refresh-capability-received+ oper-list:is-gr-aware+ oper-list:is4-byte-as-capability-received+ oper-list:is4-byte-as-capability-sent+ oper-list:multi-protocol-capability-received+; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_state_supportedcapabilities;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_state_supportedcapabilities;

// /bgp/neighbors/neighbor/state/messages: state-selection oper-list:message-statistics; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_state_messages;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_state_messages;

// /bgp/neighbors/neighbor/state/messages/sent: state-selection oper-list:message-statistics/update/tx/count oper-list:message-statistics/notification/tx/count; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_state_messages_sent;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_state_messages_sent;

// /bgp/neighbors/neighbor/state/messages/sent/UPDATE: state oper-list:message-statistics/update/tx/count; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_state_messages_sent_UPDATE;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_state_messages_sent_UPDATE;

// /bgp/neighbors/neighbor/state/messages/sent/NOTIFICATION: state oper-list:message-statistics/notification/tx/count; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_state_messages_sent_NOTIFICATION;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_state_messages_sent_NOTIFICATION;

// /bgp/neighbors/neighbor/state/messages/received: state-selection oper-list:message-statistics/update/rx/count oper-list:message-statistics/notification/rx/count; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_state_messages_received;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_state_messages_received;

// /bgp/neighbors/neighbor/state/messages/received/UPDATE: state oper-list:message-statistics/update/rx/count; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_state_messages_received_UPDATE;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_state_messages_received_UPDATE;

// /bgp/neighbors/neighbor/state/messages/received/NOTIFICATION: state oper-list:message-statistics/notification/rx/count; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_state_messages_received_NOTIFICATION;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_state_messages_received_NOTIFICATION;

// /bgp/neighbors/neighbor/state/queues: state-selection oper-list:messages-queued-in oper-list:messages-queued-out; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_state_queues;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_state_queues;

// /bgp/neighbors/neighbor/state/queues/input: state oper-list:messages-queued-in; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_state_queues_input;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_state_queues_input;

// /bgp/neighbors/neighbor/state/queues/output: state oper-list:messages-queued-out; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_state_queues_output;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_state_queues_output;

// /bgp/neighbors/neighbor/timers: selection list:timers list:advertisement-interval/minimum-interval; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_timers;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_timers;

// /bgp/neighbors/neighbor/timers/config: selection list:timers list:advertisement-interval/minimum-interval; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_timers_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_timers_config;

// /bgp/neighbors/neighbor/timers/config/hold-time: plain list:timers/hold-time
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_timers_config_holdtime;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_timers_config_holdtime;

// /bgp/neighbors/neighbor/timers/config/keepalive-interval: plain list:timers/keepalive-interval
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_timers_config_keepaliveinterval;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_timers_config_keepaliveinterval;

// /bgp/neighbors/neighbor/timers/config/minimum-advertisement-interval: plain list:advertisement-interval/minimum-interval; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_timers_config_minimumadvertisementinterval;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_timers_config_minimumadvertisementinterval;

// /bgp/neighbors/neighbor/timers/state: state-selection list:timers list:advertisement-interval/minimum-interval; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_timers_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_timers_state;

// /bgp/neighbors/neighbor/timers/state/hold-time: state list:timers/hold-time; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_timers_state_holdtime;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_timers_state_holdtime;

// /bgp/neighbors/neighbor/timers/state/keepalive-interval: state list:timers/keepalive-interval; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_timers_state_keepaliveinterval;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_timers_state_keepaliveinterval;

// /bgp/neighbors/neighbor/timers/state/minimum-advertisement-interval: state list:advertisement-interval/minimum-interval; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_timers_state_minimumadvertisementinterval;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_timers_state_minimumadvertisementinterval;

// /bgp/neighbors/neighbor/timers/state/negotiated-hold-time: state oper-list:hold-time; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_timers_state_negotiatedholdtime;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_timers_state_negotiatedholdtime;

// /bgp/neighbors/neighbor/transport: selection list:session-open-mode list:tcpmss/mss list:local-address list:update-source-interface; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_transport;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_transport;

// /bgp/neighbors/neighbor/transport/config: selection list:session-open-mode list:tcpmss/mss list:local-address list:update-source-interface; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_transport_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_transport_config;

// /bgp/neighbors/neighbor/transport/config/tcp-mss: plain list:tcpmss/mss; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_config_tcpmss;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_config_tcpmss;

// /bgp/neighbors/neighbor/transport/config/passive-mode: plain list:session-open-mode; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_config_passivemode;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_config_passivemode;

// /bgp/neighbors/neighbor/transport/config/local-address: fan-out list:local-address list:update-source-interface; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_config_localaddress;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_config_localaddress;

// /bgp/neighbors/neighbor/transport/state: state-selection list:session-open-mode list:tcpmss/mss list:local-address/local-address-disable list:local-address/local-ip-address; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_transport_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_transport_state;

// /bgp/neighbors/neighbor/transport/state/tcp-mss: state list:tcpmss/mss; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_state_tcpmss;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_state_tcpmss;

// /bgp/neighbors/neighbor/transport/state/passive-mode: state list:session-open-mode; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_state_passivemode;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_state_passivemode;

// /bgp/neighbors/neighbor/transport/state/local-address: state list:local-address list:update-source-interface; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_state_localaddress;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_state_localaddress;

// /bgp/neighbors/neighbor/transport/state/local-port: state oper-list:connection-local-port; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_state_localport;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_state_localport;

// /bgp/neighbors/neighbor/transport/state/remote-address: state oper-list:connection-remote-address/ipv4-address oper-list:connection-remote-address/ipv6-address; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_state_remoteaddress;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_state_remoteaddress;

// /bgp/neighbors/neighbor/transport/state/remote-port: state oper-list:connection-remote-port; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_state_remoteport;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_transport_state_remoteport;

// /bgp/neighbors/neighbor/ebgp-multihop: selection list:ebgp-multihop; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_ebgpmultihop;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_ebgpmultihop;

// /bgp/neighbors/neighbor/ebgp-multihop/config: selection list:ebgp-multihop; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_ebgpmultihop_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_ebgpmultihop_config;

// /bgp/neighbors/neighbor/ebgp-multihop/config/enabled: fan-out list:ebgp-multihop/max-hop-count=255 edit:list:ebgp-multihop/mpls-deactivation=false
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_ebgpmultihop_config_enabled;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_ebgpmultihop_config_enabled;

// /bgp/neighbors/neighbor/ebgp-multihop/config/multihop-ttl: fan-out list:ebgp-multihop/max-hop-count list:ebgp-multihop/mpls-deactivation=false; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_ebgpmultihop_config_multihopttl;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_ebgpmultihop_config_multihopttl;

// /bgp/neighbors/neighbor/ebgp-multihop/state: state-selection list:ebgp-multihop
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_ebgpmultihop_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_ebgpmultihop_state;

// /bgp/neighbors/neighbor/ebgp-multihop/state/enabled: state list:ebgp-multihop/max-hop-count; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_ebgpmultihop_state_enabled;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_ebgpmultihop_state_enabled;

// /bgp/neighbors/neighbor/ebgp-multihop/state/multihop-ttl: state list:ebgp-multihop/max-hop-count list:ebgp-multihop/mpls-deactivation
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_ebgpmultihop_state_multihopttl;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_ebgpmultihop_state_multihopttl;

// /bgp/neighbors/neighbor/route-reflector: selection list:neighbor-cluster-id; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_routereflector;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_routereflector;

// /bgp/neighbors/neighbor/route-reflector/config: selection list:neighbor-cluster-id; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_routereflector_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_routereflector_config;

// /bgp/neighbors/neighbor/route-reflector/config/route-reflector-cluster-id: plain list:neighbor-cluster-id; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_routereflector_config_routereflectorclusterid;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_routereflector_config_routereflectorclusterid;

// /bgp/neighbors/neighbor/route-reflector/state: state-selection list:neighbor-cluster-id; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_routereflector_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_routereflector_state;

// /bgp/neighbors/neighbor/route-reflector/state/route-reflector-cluster-id: state list:neighbor-cluster-id; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_routereflector_state_routereflectorclusterid;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_routereflector_state_routereflectorclusterid;

// /bgp/neighbors/neighbor/afi-safis: selection list:neighbor-afs; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/afi-safi-name: plain af:af-name; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_afisafiname;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_afisafiname;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/config: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_config;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/config/afi-safi-name: plain af:af-name; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_config_afisafiname;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_config_afisafiname;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/config/enabled: plain af:activate; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_config_enabled;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_config_enabled;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/state: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_state;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/state/afi-safi-name: state af:af-name; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_afisafiname;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_afisafiname;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/state/enabled: state af:activate; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_enabled;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_enabled;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/state/active: state oper-af:is-neighbor-af-capable; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_active;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_active;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/state/prefixes: state-selection oper-af:prefixes-accepted oper-af:prefixes-advertised; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_prefixes;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_prefixes;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/state/prefixes/received: state oper-af:prefixes-accepted; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_prefixes_received;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_prefixes_received;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/state/prefixes/sent: state oper-af:prefixes-advertised; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_prefixes_sent;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_state_prefixes_sent;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/apply-policy: selection af:route-policy-in af:route-policy-out; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/apply-policy/config: selection af:route-policy-in af:route-policy-out; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_config;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/apply-policy/config/import-policy: plain af:route-policy-in+; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_config_importpolicy;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_config_importpolicy;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/apply-policy/config/export-policy: plain af:route-policy-out+; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_config_exportpolicy;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_config_exportpolicy;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/apply-policy/state: state-selection af:route-policy-in af:route-policy-out; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_state;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/apply-policy/state/import-policy: state af:route-policy-in+; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_state_importpolicy;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_state_importpolicy;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/apply-policy/state/export-policy: state af:route-policy-out+; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_state_exportpolicy;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_applypolicy_state_exportpolicy;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-unicast: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-unicast/prefix-limit: selection af:maximum-prefixes; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-unicast/prefix-limit/config: selection af:maximum-prefixes; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_config;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-unicast/prefix-limit/config/max-prefixes: plain af:maximum-prefixes/prefix-limit; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_config_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_config_maxprefixes;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-unicast/prefix-limit/config/shutdown-threshold-pct: plain af:maximum-prefixes/warning-percentage; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_config_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_config_shutdownthresholdpct;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-unicast/prefix-limit/state: state-selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_state;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-unicast/prefix-limit/state/max-prefixes: state af:maximum-prefixes/prefix-limit af:maximum-prefixes/warning-only af:maximum-prefixes/discard-extra-paths
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_state_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_state_maxprefixes;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-unicast/prefix-limit/state/shutdown-threshold-pct: state af:maximum-prefixes/warning-percentage
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_state_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_prefixlimit_state_shutdownthresholdpct;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-unicast/config: selection af:default-originate/enable; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_config;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-unicast/config/send-default-route: plain af:default-originate/enable
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_config_senddefaultroute;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_config_senddefaultroute;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-unicast/state: state-selection af:default-originate/enable
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_state;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-unicast/state/send-default-route: state af:default-originate/enable
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_state_senddefaultroute;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4unicast_state_senddefaultroute;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-unicast: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-unicast/prefix-limit: selection af:maximum-prefixes; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-unicast/prefix-limit/config: selection af:maximum-prefixes; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_config;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-unicast/prefix-limit/config/max-prefixes: plain af:maximum-prefixes/prefix-limit; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_config_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_config_maxprefixes;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-unicast/prefix-limit/config/shutdown-threshold-pct: plain af:maximum-prefixes/warning-percentage; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_config_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_config_shutdownthresholdpct;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-unicast/prefix-limit/state: state-selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_state;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-unicast/prefix-limit/state/max-prefixes: state af:maximum-prefixes/prefix-limit af:maximum-prefixes/warning-only af:maximum-prefixes/discard-extra-paths
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_state_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_state_maxprefixes;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-unicast/prefix-limit/state/shutdown-threshold-pct: state af:maximum-prefixes/warning-percentage
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_state_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_prefixlimit_state_shutdownthresholdpct;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-unicast/config: selection af:default-originate/enable; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_config;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-unicast/config/send-default-route: plain af:default-originate/enable
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_config_senddefaultroute;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_config_senddefaultroute;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-unicast/state: state-selection af:default-originate/enable
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_state;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-unicast/state/send-default-route: state af:default-originate/enable
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_state_senddefaultroute;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6unicast_state_senddefaultroute;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-labeled-unicast: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-labeled-unicast/prefix-limit: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-labeled-unicast/prefix-limit/config: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-labeled-unicast/prefix-limit/config/max-prefixes: plain af:maximum-prefixes/prefix-limit; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_maxprefixes;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-labeled-unicast/prefix-limit/config/shutdown-threshold-pct: plain af:maximum-prefixes/warning-percentage; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_shutdownthresholdpct;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-labeled-unicast/prefix-limit/state: state-selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-labeled-unicast/prefix-limit/state/max-prefixes: state af:maximum-prefixes/prefix-limit af:maximum-prefixes/warning-only af:maximum-prefixes/discard-extra-paths
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_maxprefixes;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-labeled-unicast/prefix-limit/state/shutdown-threshold-pct: state af:maximum-prefixes/warning-percentage
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_shutdownthresholdpct;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-labeled-unicast: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-labeled-unicast/prefix-limit: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-labeled-unicast/prefix-limit/config: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-labeled-unicast/prefix-limit/config/max-prefixes: plain af:maximum-prefixes/prefix-limit; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_maxprefixes;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-labeled-unicast/prefix-limit/config/shutdown-threshold-pct: plain af:maximum-prefixes/warning-percentage; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_shutdownthresholdpct;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-labeled-unicast/prefix-limit/state: state-selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-labeled-unicast/prefix-limit/state/max-prefixes: state af:maximum-prefixes/prefix-limit af:maximum-prefixes/warning-only af:maximum-prefixes/discard-extra-paths
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_maxprefixes;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/ipv6-labeled-unicast/prefix-limit/state/shutdown-threshold-pct: state af:maximum-prefixes/warning-percentage
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_shutdownthresholdpct;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-unicast: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-unicast/prefix-limit: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-unicast/prefix-limit/config: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-unicast/prefix-limit/config/max-prefixes: plain af:maximum-prefixes/prefix-limit; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_maxprefixes;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-unicast/prefix-limit/config/shutdown-threshold-pct: plain af:maximum-prefixes/warning-percentage; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_shutdownthresholdpct;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-unicast/prefix-limit/state: state-selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-unicast/prefix-limit/state/max-prefixes: state af:maximum-prefixes/prefix-limit af:maximum-prefixes/warning-only af:maximum-prefixes/discard-extra-paths
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_maxprefixes;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-unicast/prefix-limit/state/shutdown-threshold-pct: state af:maximum-prefixes/warning-percentage
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_shutdownthresholdpct;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-unicast: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-unicast/prefix-limit: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-unicast/prefix-limit/config: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-unicast/prefix-limit/config/max-prefixes: plain af:maximum-prefixes/prefix-limit; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_maxprefixes;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-unicast/prefix-limit/config/shutdown-threshold-pct: plain af:maximum-prefixes/warning-percentage; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_shutdownthresholdpct;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-unicast/prefix-limit/state: state-selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-unicast/prefix-limit/state/max-prefixes: state af:maximum-prefixes/prefix-limit af:maximum-prefixes/warning-only af:maximum-prefixes/discard-extra-paths
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_maxprefixes;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-unicast/prefix-limit/state/shutdown-threshold-pct: state af:maximum-prefixes/warning-percentage
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_shutdownthresholdpct;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-multicast: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-multicast/prefix-limit: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-multicast/prefix-limit/config: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-multicast/prefix-limit/config/max-prefixes: plain af:maximum-prefixes/prefix-limit; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_maxprefixes;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-multicast/prefix-limit/config/shutdown-threshold-pct: plain af:maximum-prefixes/warning-percentage; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_shutdownthresholdpct;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-multicast/prefix-limit/state: state-selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-multicast/prefix-limit/state/max-prefixes: state af:maximum-prefixes/prefix-limit af:maximum-prefixes/warning-only af:maximum-prefixes/discard-extra-paths
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_maxprefixes;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv4-multicast/prefix-limit/state/shutdown-threshold-pct: state af:maximum-prefixes/warning-percentage
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_shutdownthresholdpct;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-multicast: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-multicast/prefix-limit: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-multicast/prefix-limit/config: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-multicast/prefix-limit/config/max-prefixes: plain af:maximum-prefixes/prefix-limit; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_maxprefixes;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-multicast/prefix-limit/config/shutdown-threshold-pct: plain af:maximum-prefixes/warning-percentage; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_shutdownthresholdpct;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-multicast/prefix-limit/state: state-selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-multicast/prefix-limit/state/max-prefixes: state af:maximum-prefixes/prefix-limit af:maximum-prefixes/warning-only af:maximum-prefixes/discard-extra-paths
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_maxprefixes;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l3vpn-ipv6-multicast/prefix-limit/state/shutdown-threshold-pct: state af:maximum-prefixes/warning-percentage
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_shutdownthresholdpct;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-vpls: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-vpls/prefix-limit: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-vpls/prefix-limit/config: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_config;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-vpls/prefix-limit/config/max-prefixes: plain af:maximum-prefixes/prefix-limit; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_config_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_config_maxprefixes;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-vpls/prefix-limit/config/shutdown-threshold-pct: plain af:maximum-prefixes/warning-percentage; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_config_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_config_shutdownthresholdpct;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-vpls/prefix-limit/state: state-selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_state;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-vpls/prefix-limit/state/max-prefixes: state af:maximum-prefixes/prefix-limit af:maximum-prefixes/warning-only af:maximum-prefixes/discard-extra-paths
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_state_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_state_maxprefixes;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-vpls/prefix-limit/state/shutdown-threshold-pct: state af:maximum-prefixes/warning-percentage
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_state_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnvpls_prefixlimit_state_shutdownthresholdpct;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-evpn: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-evpn/prefix-limit: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-evpn/prefix-limit/config: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_config;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-evpn/prefix-limit/config/max-prefixes: plain af:maximum-prefixes/prefix-limit; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_config_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_config_maxprefixes;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-evpn/prefix-limit/config/shutdown-threshold-pct: plain af:maximum-prefixes/warning-percentage; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_config_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_config_shutdownthresholdpct;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-evpn/prefix-limit/state: state-selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_state;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-evpn/prefix-limit/state/max-prefixes: state af:maximum-prefixes/prefix-limit af:maximum-prefixes/warning-only af:maximum-prefixes/discard-extra-paths
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_state_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_state_maxprefixes;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/l2vpn-evpn/prefix-limit/state/shutdown-threshold-pct: state af:maximum-prefixes/warning-percentage
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_state_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_l2vpnevpn_prefixlimit_state_shutdownthresholdpct;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/use-multiple-paths: selection af:multipath; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_usemultiplepaths;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_usemultiplepaths;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/use-multiple-paths/config: selection af:multipath
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_config;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/use-multiple-paths/config/enabled: plain af:multipath; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_config_enabled;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_config_enabled;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/use-multiple-paths/state: selection af:multipath
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_state;

// /bgp/neighbors/neighbor/afi-safis/afi-safi/use-multiple-paths/state/enabled: plain af:multipath
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_state_enabled;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_afisafis_afisafi_usemultiplepaths_state_enabled;

// /bgp/neighbors/neighbor/graceful-restart: selection list:neighbor-graceful-restart list:neighbor-graceful-restart-time list:neighbor-graceful-restart-stalepath-time; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_gracefulrestart;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_gracefulrestart;

// /bgp/neighbors/neighbor/graceful-restart/config: selection list:neighbor-graceful-restart list:neighbor-graceful-restart-time list:neighbor-graceful-restart-stalepath-time; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_gracefulrestart_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_gracefulrestart_config;

// /bgp/neighbors/neighbor/graceful-restart/config/enabled: plain list:neighbor-graceful-restart; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_gracefulrestart_config_enabled;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_gracefulrestart_config_enabled;

// /bgp/neighbors/neighbor/graceful-restart/config/restart-time: plain list:neighbor-graceful-restart-time; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_gracefulrestart_config_restarttime;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_gracefulrestart_config_restarttime;

// /bgp/neighbors/neighbor/graceful-restart/config/stale-routes-time: plain list:neighbor-graceful-restart-stalepath-time; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_gracefulrestart_config_staleroutestime;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_gracefulrestart_config_staleroutestime;

// /bgp/neighbors/neighbor/graceful-restart/state: state-selection list:neighbor-graceful-restart list:neighbor-graceful-restart-time list:neighbor-graceful-restart-stalepath-time; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_neighbors_neighbor_gracefulrestart_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_neighbors_neighbor_gracefulrestart_state;

// /bgp/neighbors/neighbor/graceful-restart/state/enabled: state list:neighbor-graceful-restart
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_gracefulrestart_state_enabled;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_gracefulrestart_state_enabled;

// /bgp/neighbors/neighbor/graceful-restart/state/restart-time: state list:neighbor-graceful-restart-time; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_gracefulrestart_state_restarttime;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_gracefulrestart_state_restarttime;

// /bgp/neighbors/neighbor/graceful-restart/state/stale-routes-time: state list:neighbor-graceful-restart-stalepath-time; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_gracefulrestart_state_staleroutestime;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_gracefulrestart_state_staleroutestime;

// /bgp/neighbors/neighbor/graceful-restart/state/peer-restart-time: state oper-list:gr-restart-time; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_neighbors_neighbor_gracefulrestart_state_peerrestarttime;
VmfLeafHandler __vmf_map_leaf_oc_bgp_neighbors_neighbor_gracefulrestart_state_peerrestarttime;

// /bgp/peer-groups: selection bgp-entity/neighbor-groups; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups;

// /bgp/peer-groups/peer-group/peer-group-name: key bgp-entity/neighbor-groups/neighbor-group+ list:neighbor-group-name; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_peergroupname;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_peergroupname;

// /bgp/peer-groups/peer-group/config: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_config;

// /bgp/peer-groups/peer-group/config/peer-as: plain list:remote-as; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_config_peeras;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_config_peeras;

// /bgp/peer-groups/peer-group/config/local-as: fan-out read:list:local-as delete:list:local-as write:list:local-as/as-xx=0 write:list:local-as/as-yy
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_config_localas;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_config_localas;

// /bgp/peer-groups/peer-group/config/auth-password: plain list:password; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_config_authpassword;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_config_authpassword;

// /bgp/peer-groups/peer-group/config/description: plain list:description; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_config_description;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_config_description;

// /bgp/peer-groups/peer-group/config/peer-group-name: plain list:neighbor-group-name; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_config_peergroupname;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_config_peergroupname;

// /bgp/peer-groups/peer-group/state: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_state;

// /bgp/peer-groups/peer-group/state/peer-as: state list:remote-as; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_state_peeras;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_state_peeras;

// /bgp/peer-groups/peer-group/state/local-as: state list:local-as list:local-as list:local-as/as-xx list:local-as/as-yy
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_state_localas;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_state_localas;

// /bgp/peer-groups/peer-group/state/auth-password: state list:password/password-disable list:password/password
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_state_authpassword;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_state_authpassword;

// /bgp/peer-groups/peer-group/state/description: state list:description; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_state_description;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_state_description;

// /bgp/peer-groups/peer-group/state/peer-group-name: state list:neighbor-group-name; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_state_peergroupname;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_state_peergroupname;

// /bgp/peer-groups/peer-group/timers: selection list:timers list:advertisement-interval/minimum-interval; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_timers;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_timers;

// /bgp/peer-groups/peer-group/timers/config: selection list:timers list:advertisement-interval/minimum-interval; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_timers_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_timers_config;

// /bgp/peer-groups/peer-group/timers/config/hold-time: plain list:timers/hold-time
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_timers_config_holdtime;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_timers_config_holdtime;

// /bgp/peer-groups/peer-group/timers/config/keepalive-interval: plain list:timers/keepalive-interval
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_timers_config_keepaliveinterval;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_timers_config_keepaliveinterval;

// /bgp/peer-groups/peer-group/timers/config/minimum-advertisement-interval: plain list:advertisement-interval/minimum-interval; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_timers_config_minimumadvertisementinterval;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_timers_config_minimumadvertisementinterval;

// /bgp/peer-groups/peer-group/timers/state: state-selection list:timers list:advertisement-interval/minimum-interval; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_timers_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_timers_state;

// /bgp/peer-groups/peer-group/timers/state/hold-time: state list:timers/hold-time
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_timers_state_holdtime;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_timers_state_holdtime;

// /bgp/peer-groups/peer-group/timers/state/keepalive-interval: state list:timers/keepalive-interval
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_timers_state_keepaliveinterval;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_timers_state_keepaliveinterval;

// /bgp/peer-groups/peer-group/timers/state/minimum-advertisement-interval: state list:advertisement-interval/minimum-interval; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_timers_state_minimumadvertisementinterval;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_timers_state_minimumadvertisementinterval;

// /bgp/peer-groups/peer-group/transport: selection list:session-open-mode list:tcpmss/mss list:local-address list:update-source-interface; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_transport;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_transport;

// /bgp/peer-groups/peer-group/transport/config: selection list:session-open-mode list:tcpmss/mss list:local-address list:update-source-interface; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_transport_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_transport_config;

// /bgp/peer-groups/peer-group/transport/config/tcp-mss: plain list:tcpmss/mss; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_transport_config_tcpmss;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_transport_config_tcpmss;

// /bgp/peer-groups/peer-group/transport/config/passive-mode: plain list:session-open-mode; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_transport_config_passivemode;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_transport_config_passivemode;

// /bgp/peer-groups/peer-group/transport/config/local-address: fan-out list:local-address list:update-source-interface; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_transport_config_localaddress;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_transport_config_localaddress;

// /bgp/peer-groups/peer-group/transport/state: state-selection list:session-open-mode list:tcpmss/mss list:local-address list:update-source-interface; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_transport_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_transport_state;

// /bgp/peer-groups/peer-group/transport/state/tcp-mss: state list:tcpmss/mss; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_transport_state_tcpmss;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_transport_state_tcpmss;

// /bgp/peer-groups/peer-group/transport/state/passive-mode: state list:session-open-mode
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_transport_state_passivemode;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_transport_state_passivemode;

// /bgp/peer-groups/peer-group/transport/state/local-address: state list:local-address list:update-source-interface; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_transport_state_localaddress;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_transport_state_localaddress;

// /bgp/peer-groups/peer-group/ebgp-multihop: selection list:ebgp-multihop; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_ebgpmultihop;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_ebgpmultihop;

// /bgp/peer-groups/peer-group/ebgp-multihop/config: selection list:ebgp-multihop
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_ebgpmultihop_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_ebgpmultihop_config;

// /bgp/peer-groups/peer-group/ebgp-multihop/config/enabled: fan-out list:ebgp-multihop/max-hop-count=255 edit:list:ebgp-multihop/mpls-deactivation=false
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_ebgpmultihop_config_enabled;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_ebgpmultihop_config_enabled;

// /bgp/peer-groups/peer-group/ebgp-multihop/config/multihop-ttl: fan-out list:ebgp-multihop/max-hop-count list:ebgp-multihop/mpls-deactivation=false; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_ebgpmultihop_config_multihopttl;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_ebgpmultihop_config_multihopttl;

// /bgp/peer-groups/peer-group/ebgp-multihop/state: state-selection list:ebgp-multihop
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_ebgpmultihop_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_ebgpmultihop_state;

// /bgp/peer-groups/peer-group/ebgp-multihop/state/enabled: state list:ebgp-multihop/max-hop-count; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_ebgpmultihop_state_enabled;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_ebgpmultihop_state_enabled;

// /bgp/peer-groups/peer-group/ebgp-multihop/state/multihop-ttl: state list:ebgp-multihop/max-hop-count list:ebgp-multihop/mpls-deactivation
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_ebgpmultihop_state_multihopttl;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_ebgpmultihop_state_multihopttl;

// /bgp/peer-groups/peer-group/route-reflector: selection list:neighbor-cluster-id; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_routereflector;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_routereflector;

// /bgp/peer-groups/peer-group/route-reflector/config: selection list:neighbor-cluster-id; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_routereflector_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_routereflector_config;

// /bgp/peer-groups/peer-group/route-reflector/config/route-reflector-cluster-id: plain list:neighbor-cluster-id; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_routereflector_config_routereflectorclusterid;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_routereflector_config_routereflectorclusterid;

// /bgp/peer-groups/peer-group/route-reflector/state: state-selection list:neighbor-cluster-id; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_routereflector_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_routereflector_state;

// /bgp/peer-groups/peer-group/route-reflector/state/route-reflector-cluster-id: state list:neighbor-cluster-id; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_routereflector_state_routereflectorclusterid;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_routereflector_state_routereflectorclusterid;

// /bgp/peer-groups/peer-group/afi-safis: selection list:neighbor-group-afs; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/afi-safi-name: plain af:af-name; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_afisafiname;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_afisafiname;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/config: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_config;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/config/afi-safi-name: plain af:af-name; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_config_afisafiname;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_config_afisafiname;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/config/enabled: plain af:activate; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_config_enabled;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_config_enabled;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/state: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_state;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/state/afi-safi-name: state af:af-name; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_state_afisafiname;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_state_afisafiname;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/state/enabled: state af:activate; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_state_enabled;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_state_enabled;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/apply-policy: selection af:route-policy-in af:route-policy-out; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/apply-policy/config: selection af:route-policy-in af:route-policy-out; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_config;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/apply-policy/config/import-policy: plain af:route-policy-in+; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_config_importpolicy;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_config_importpolicy;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/apply-policy/config/export-policy: plain af:route-policy-out+; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_config_exportpolicy;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_config_exportpolicy;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/apply-policy/state: state-selection af:route-policy-in af:route-policy-out; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_state;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/apply-policy/state/import-policy: state af:route-policy-in+; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_state_importpolicy;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_state_importpolicy;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/apply-policy/state/export-policy: state af:route-policy-out+; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_state_exportpolicy;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_applypolicy_state_exportpolicy;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-unicast: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-unicast/prefix-limit: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-unicast/prefix-limit/config: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_config;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-unicast/prefix-limit/config/max-prefixes: plain af:maximum-prefixes/prefix-limit; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_config_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_config_maxprefixes;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-unicast/prefix-limit/config/shutdown-threshold-pct: plain af:maximum-prefixes/warning-percentage; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_config_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_config_shutdownthresholdpct;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-unicast/prefix-limit/state: state-selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_state;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-unicast/prefix-limit/state/max-prefixes: state af:maximum-prefixes/prefix-limit af:maximum-prefixes/warning-only af:maximum-prefixes/discard-extra-paths
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_state_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_state_maxprefixes;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-unicast/prefix-limit/state/shutdown-threshold-pct: state af:maximum-prefixes/warning-percentage
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_state_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_prefixlimit_state_shutdownthresholdpct;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-unicast/config: selection af:default-originate/enable
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_config;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-unicast/config/send-default-route: plain af:default-originate/enable
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_config_senddefaultroute;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_config_senddefaultroute;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-unicast/state: state-selection af:default-originate/enable
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_state;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-unicast/state/send-default-route: state af:default-originate/enable
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_state_senddefaultroute;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4unicast_state_senddefaultroute;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-unicast: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-unicast/prefix-limit: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-unicast/prefix-limit/config: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_config;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-unicast/prefix-limit/config/max-prefixes: plain af:maximum-prefixes/prefix-limit; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_config_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_config_maxprefixes;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-unicast/prefix-limit/config/shutdown-threshold-pct: plain af:maximum-prefixes/warning-percentage; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_config_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_config_shutdownthresholdpct;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-unicast/prefix-limit/state: state-selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_state;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-unicast/prefix-limit/state/max-prefixes: state af:maximum-prefixes/prefix-limit af:maximum-prefixes/warning-only af:maximum-prefixes/discard-extra-paths
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_state_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_state_maxprefixes;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-unicast/prefix-limit/state/shutdown-threshold-pct: state af:maximum-prefixes/warning-percentage
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_state_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_prefixlimit_state_shutdownthresholdpct;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-unicast/config: selection af:default-originate/enable
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_config;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-unicast/config/send-default-route: plain af:default-originate/enable
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_config_senddefaultroute;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_config_senddefaultroute;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-unicast/state: state-selection af:default-originate/enable
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_state;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-unicast/state/send-default-route: state af:default-originate/enable
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_state_senddefaultroute;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6unicast_state_senddefaultroute;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-labeled-unicast: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-labeled-unicast/prefix-limit: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-labeled-unicast/prefix-limit/config: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-labeled-unicast/prefix-limit/config/max-prefixes: plain af:maximum-prefixes/prefix-limit; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_maxprefixes;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-labeled-unicast/prefix-limit/config/shutdown-threshold-pct: plain af:maximum-prefixes/warning-percentage; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_config_shutdownthresholdpct;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-labeled-unicast/prefix-limit/state: state-selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-labeled-unicast/prefix-limit/state/max-prefixes: state af:maximum-prefixes/prefix-limit af:maximum-prefixes/warning-only af:maximum-prefixes/discard-extra-paths
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_maxprefixes;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv4-labeled-unicast/prefix-limit/state/shutdown-threshold-pct: state af:maximum-prefixes/warning-percentage
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv4labeledunicast_prefixlimit_state_shutdownthresholdpct;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-labeled-unicast: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-labeled-unicast/prefix-limit: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-labeled-unicast/prefix-limit/config: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-labeled-unicast/prefix-limit/config/max-prefixes: plain af:maximum-prefixes/prefix-limit; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_maxprefixes;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-labeled-unicast/prefix-limit/config/shutdown-threshold-pct: plain af:maximum-prefixes/warning-percentage; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_config_shutdownthresholdpct;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-labeled-unicast/prefix-limit/state: state-selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-labeled-unicast/prefix-limit/state/max-prefixes: state af:maximum-prefixes/prefix-limit af:maximum-prefixes/warning-only af:maximum-prefixes/discard-extra-paths
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_maxprefixes;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-labeled-unicast/prefix-limit/state/shutdown-threshold-pct: state af:maximum-prefixes/warning-percentage
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_ipv6labeledunicast_prefixlimit_state_shutdownthresholdpct;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-unicast: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-unicast/prefix-limit: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-unicast/prefix-limit/config: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-unicast/prefix-limit/config/max-prefixes: plain af:maximum-prefixes/prefix-limit; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_maxprefixes;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-unicast/prefix-limit/config/shutdown-threshold-pct: plain af:maximum-prefixes/warning-percentage; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_config_shutdownthresholdpct;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-unicast/prefix-limit/state: state-selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-unicast/prefix-limit/state/max-prefixes: state af:maximum-prefixes/prefix-limit af:maximum-prefixes/warning-only af:maximum-prefixes/discard-extra-paths
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_maxprefixes;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-unicast/prefix-limit/state/shutdown-threshold-pct: state af:maximum-prefixes/warning-percentage
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4unicast_prefixlimit_state_shutdownthresholdpct;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-unicast: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-unicast/prefix-limit: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-unicast/prefix-limit/config: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-unicast/prefix-limit/config/max-prefixes: plain af:maximum-prefixes/prefix-limit; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_maxprefixes;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-unicast/prefix-limit/config/shutdown-threshold-pct: plain af:maximum-prefixes/warning-percentage; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_config_shutdownthresholdpct;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-unicast/prefix-limit/state: state-selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-unicast/prefix-limit/state/max-prefixes: state af:maximum-prefixes/prefix-limit af:maximum-prefixes/warning-only af:maximum-prefixes/discard-extra-paths
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_maxprefixes;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-unicast/prefix-limit/state/shutdown-threshold-pct: state af:maximum-prefixes/warning-percentage
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6unicast_prefixlimit_state_shutdownthresholdpct;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-multicast: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-multicast/prefix-limit: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-multicast/prefix-limit/config: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-multicast/prefix-limit/config/max-prefixes: plain af:maximum-prefixes/prefix-limit; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_maxprefixes;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-multicast/prefix-limit/config/shutdown-threshold-pct: plain af:maximum-prefixes/warning-percentage; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_config_shutdownthresholdpct;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-multicast/prefix-limit/state: state-selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-multicast/prefix-limit/state/max-prefixes: state af:maximum-prefixes/prefix-limit af:maximum-prefixes/warning-only af:maximum-prefixes/discard-extra-paths
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_maxprefixes;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv4-multicast/prefix-limit/state/shutdown-threshold-pct: state af:maximum-prefixes/warning-percentage
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv4multicast_prefixlimit_state_shutdownthresholdpct;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-multicast: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-multicast/prefix-limit: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-multicast/prefix-limit/config: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-multicast/prefix-limit/config/max-prefixes: plain af:maximum-prefixes/prefix-limit; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_maxprefixes;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-multicast/prefix-limit/config/shutdown-threshold-pct: plain af:maximum-prefixes/warning-percentage; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_config_shutdownthresholdpct;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-multicast/prefix-limit/state: state-selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-multicast/prefix-limit/state/max-prefixes: state af:maximum-prefixes/prefix-limit af:maximum-prefixes/warning-only af:maximum-prefixes/discard-extra-paths
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_maxprefixes;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l3vpn-ipv6-multicast/prefix-limit/state/shutdown-threshold-pct: state af:maximum-prefixes/warning-percentage
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l3vpnipv6multicast_prefixlimit_state_shutdownthresholdpct;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-vpls: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-vpls/prefix-limit: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-vpls/prefix-limit/config: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_config;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-vpls/prefix-limit/config/max-prefixes: plain af:maximum-prefixes/prefix-limit; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_config_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_config_maxprefixes;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-vpls/prefix-limit/config/shutdown-threshold-pct: plain af:maximum-prefixes/warning-percentage; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_config_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_config_shutdownthresholdpct;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-vpls/prefix-limit/state: state-selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_state;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-vpls/prefix-limit/state/max-prefixes: state af:maximum-prefixes/prefix-limit af:maximum-prefixes/warning-only af:maximum-prefixes/discard-extra-paths
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_state_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_state_maxprefixes;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-vpls/prefix-limit/state/shutdown-threshold-pct: state af:maximum-prefixes/warning-percentage
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_state_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnvpls_prefixlimit_state_shutdownthresholdpct;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-evpn: silent; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-evpn/prefix-limit: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-evpn/prefix-limit/config: selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_config;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-evpn/prefix-limit/config/max-prefixes: plain af:maximum-prefixes/prefix-limit; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_config_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_config_maxprefixes;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-evpn/prefix-limit/config/shutdown-threshold-pct: plain af:maximum-prefixes/warning-percentage; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_config_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_config_shutdownthresholdpct;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-evpn/prefix-limit/state: state-selection af:maximum-prefixes
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_state;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-evpn/prefix-limit/state/max-prefixes: state af:maximum-prefixes/prefix-limit af:maximum-prefixes/warning-only af:maximum-prefixes/discard-extra-paths
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_state_maxprefixes;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_state_maxprefixes;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/l2vpn-evpn/prefix-limit/state/shutdown-threshold-pct: state af:maximum-prefixes/warning-percentage
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_state_shutdownthresholdpct;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_l2vpnevpn_prefixlimit_state_shutdownthresholdpct;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/use-multiple-paths: selection af:multipath
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_usemultiplepaths;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_usemultiplepaths;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/use-multiple-paths/config: selection af:multipath
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_config;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/use-multiple-paths/config/enabled: plain af:multipath; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_config_enabled;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_config_enabled;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/use-multiple-paths/state: selection af:multipath
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_state;

// /bgp/peer-groups/peer-group/afi-safis/afi-safi/use-multiple-paths/state/enabled: plain af:multipath
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_state_enabled;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_afisafis_afisafi_usemultiplepaths_state_enabled;

// /bgp/peer-groups/peer-group/graceful-restart: selection list:neighbor-graceful-restart list:neighbor-graceful-restart-time list:neighbor-graceful-restart-stalepath-time; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_gracefulrestart;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_gracefulrestart;

// /bgp/peer-groups/peer-group/graceful-restart/config: selection list:neighbor-graceful-restart list:neighbor-graceful-restart-time list:neighbor-graceful-restart-stalepath-time; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_gracefulrestart_config;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_gracefulrestart_config;

// /bgp/peer-groups/peer-group/graceful-restart/config/enabled: plain list:neighbor-graceful-restart; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_gracefulrestart_config_enabled;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_gracefulrestart_config_enabled;

// /bgp/peer-groups/peer-group/graceful-restart/config/restart-time: plain list:neighbor-graceful-restart-time; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_gracefulrestart_config_restarttime;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_gracefulrestart_config_restarttime;

// /bgp/peer-groups/peer-group/graceful-restart/config/stale-routes-time: plain list:neighbor-graceful-restart-stalepath-time; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_gracefulrestart_config_staleroutestime;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_gracefulrestart_config_staleroutestime;

// /bgp/peer-groups/peer-group/graceful-restart/state: state-selection list:neighbor-graceful-restart list:neighbor-graceful-restart-time list:neighbor-graceful-restart-stalepath-time; overridden
VmfContainerHandler vmf_map_cont_oc_bgp_peergroups_peergroup_gracefulrestart_state;
VmfContainerHandler __vmf_map_cont_oc_bgp_peergroups_peergroup_gracefulrestart_state;

// /bgp/peer-groups/peer-group/graceful-restart/state/enabled: state list:neighbor-graceful-restart
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_gracefulrestart_state_enabled;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_gracefulrestart_state_enabled;

// /bgp/peer-groups/peer-group/graceful-restart/state/restart-time: state list:neighbor-graceful-restart-time; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_gracefulrestart_state_restarttime;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_gracefulrestart_state_restarttime;

// /bgp/peer-groups/peer-group/graceful-restart/state/stale-routes-time: state list:neighbor-graceful-restart-stalepath-time; overridden
VmfLeafHandler vmf_map_leaf_oc_bgp_peergroups_peergroup_gracefulrestart_state_staleroutestime;
VmfLeafHandler __vmf_map_leaf_oc_bgp_peergroups_peergroup_gracefulrestart_state_staleroutestime;

}  // extern "C"
