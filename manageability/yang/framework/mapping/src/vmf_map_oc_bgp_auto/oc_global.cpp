// Made by generator/ from models/openconfig-bgp.yang and models/openconfig-bgp.mapping.
// Renew it with `cmake --build build/release --target generate`.
#include "oc_defaults.h"

// clang-format off

OC_CONT_DEFAULT(_global)                                                 { return selection(ctx, node, subtree_count, out, {cfg(ZR_BGP_GLOBAL)}); }

OC_CONT_DEFAULT(_global_config)                                          { return selection(ctx, node, subtree_count, out, {cfg(ZR_BGP_AS), cfg(ZR_BGP_FOUR_BYTE_AS "/as"), cfg(ZR_BGP_GLOBAL "/router-id")}); }
OC_LEAF_DEFAULT(_global_config_as)                                       { return fan_out_leaf(ctx, node, out, {cfg(ZR_BGP_AS), cfg(ZR_BGP_FOUR_BYTE_AS "/as"), cfg(ZR_BGP_FOUR_BYTE_AS "/bgp-running")}); }
OC_LEAF_DEFAULT(_global_config_routerid)                                 { return plain_leaf(ctx, node, out, cfg(ZR_BGP_GLOBAL "/router-id")); }

OC_CONT_DEFAULT(_global_state)                                           { return state_selection(ctx, node, subtree_count, out, {cfg(ZR_BGP_AS), cfg(ZR_BGP_FOUR_BYTE_AS "/as"), cfg(ZR_BGP_GLOBAL "/router-id")}); }
OC_LEAF_DEFAULT(_global_state_as)                                        { return state_leaf(ctx, node, out, {cfg(ZR_BGP_AS), cfg(ZR_BGP_FOUR_BYTE_AS "/as"), cfg(ZR_BGP_FOUR_BYTE_AS "/bgp-running")}); }
OC_LEAF_DEFAULT(_global_state_routerid)                                  { return state_leaf(ctx, node, out, {cfg(ZR_BGP_GLOBAL "/router-id")}); }
OC_LEAF_DEFAULT(_global_state_totalpaths)                                { return forward(ctx, node, out, vmf_map_man_leaf_oc_bgp_global_state_totalpaths); }
OC_LEAF_DEFAULT(_global_state_totalprefixes)                             { return forward(ctx, node, out, vmf_map_man_leaf_oc_bgp_global_state_totalprefixes); }

OC_CONT_DEFAULT(_global_routeselectionoptions)                           { return selection(ctx, node, subtree_count, out, {cfg(ZR_BGP_GLOBAL "/best-path-med-always"), cfg(ZR_BGP_GLOBAL "/best-path-as-path-length"), cfg(ZR_BGP_GLOBAL "/best-path-router-id"), cfg(ZR_BGP_GLOBAL "/best-path-aigp-ignore")}); }

OC_CONT_DEFAULT(_global_routeselectionoptions_config)                    { return selection(ctx, node, subtree_count, out, {cfg(ZR_BGP_GLOBAL "/best-path-med-always"), cfg(ZR_BGP_GLOBAL "/best-path-as-path-length"), cfg(ZR_BGP_GLOBAL "/best-path-router-id"), cfg(ZR_BGP_GLOBAL "/best-path-aigp-ignore")}); }
OC_LEAF_DEFAULT(_global_routeselectionoptions_config_alwayscomparemed)   { return plain_leaf(ctx, node, out, cfg(ZR_BGP_GLOBAL "/best-path-med-always")); }
OC_LEAF_DEFAULT(_global_routeselectionoptions_config_ignoreaspathlength) { return plain_leaf(ctx, node, out, cfg(ZR_BGP_GLOBAL "/best-path-as-path-length")); }
OC_LEAF_DEFAULT(_global_routeselectionoptions_config_externalcomparerouterid) { return plain_leaf(ctx, node, out, cfg(ZR_BGP_GLOBAL "/best-path-router-id")); }
OC_LEAF_DEFAULT(_global_routeselectionoptions_config_enableaigp)         { return plain_leaf(ctx, node, out, cfg(ZR_BGP_GLOBAL "/best-path-aigp-ignore")); }

OC_CONT_DEFAULT(_global_routeselectionoptions_state)                     { return state_selection(ctx, node, subtree_count, out, {cfg(ZR_BGP_GLOBAL "/best-path-med-always"), cfg(ZR_BGP_GLOBAL "/best-path-as-path-length"), cfg(ZR_BGP_GLOBAL "/best-path-router-id"), cfg(ZR_BGP_GLOBAL "/best-path-aigp-ignore")}); }
OC_LEAF_DEFAULT(_global_routeselectionoptions_state_alwayscomparemed)    { return state_leaf(ctx, node, out, {cfg(ZR_BGP_GLOBAL "/best-path-med-always")}); }
OC_LEAF_DEFAULT(_global_routeselectionoptions_state_ignoreaspathlength)  { return state_leaf(ctx, node, out, {cfg(ZR_BGP_GLOBAL "/best-path-as-path-length")}); }
OC_LEAF_DEFAULT(_global_routeselectionoptions_state_externalcomparerouterid) { return state_leaf(ctx, node, out, {cfg(ZR_BGP_GLOBAL "/best-path-router-id")}); }
OC_LEAF_DEFAULT(_global_routeselectionoptions_state_enableaigp)          { return state_leaf(ctx, node, out, {cfg(ZR_BGP_GLOBAL "/best-path-aigp-ignore")}); }

OC_CONT_DEFAULT(_global_defaultroutedistance)                            { return forward(ctx, node, subtree_count, out, vmf_map_man_cont_oc_bgp_global_defaultroutedistance); }

OC_CONT_DEFAULT(_global_defaultroutedistance_config)                     { return forward(ctx, node, subtree_count, out, vmf_map_man_cont_oc_bgp_global_defaultroutedistance_config); }
OC_LEAF_DEFAULT(_global_defaultroutedistance_config_externalroutedistance) { return forward(ctx, node, out, vmf_map_man_leaf_oc_bgp_global_defaultroutedistance_config_externalroutedistance); }
OC_LEAF_DEFAULT(_global_defaultroutedistance_config_internalroutedistance) { return forward(ctx, node, out, vmf_map_man_leaf_oc_bgp_global_defaultroutedistance_config_internalroutedistance); }

OC_CONT_DEFAULT(_global_defaultroutedistance_state)                      { return forward(ctx, node, subtree_count, out, vmf_map_man_cont_oc_bgp_global_defaultroutedistance_state); }
OC_LEAF_DEFAULT(_global_defaultroutedistance_state_externalroutedistance) { return forward(ctx, node, out, vmf_map_man_leaf_oc_bgp_global_defaultroutedistance_state_externalroutedistance); }
OC_LEAF_DEFAULT(_global_defaultroutedistance_state_internalroutedistance) { return forward(ctx, node, out, vmf_map_man_leaf_oc_bgp_global_defaultroutedistance_state_internalroutedistance); }

OC_CONT_DEFAULT(_global_confederation)                                   { return selection(ctx, node, subtree_count, out, {cfg(ZR_BGP_GLOBAL "/confederation-domain"), cfg(ZR_BGP_GLOBAL "/confederation-peer-ases")}); }

OC_CONT_DEFAULT(_global_confederation_config)                            { return selection(ctx, node, subtree_count, out, {cfg(ZR_BGP_GLOBAL "/confederation-domain"), cfg(ZR_BGP_GLOBAL "/confederation-peer-ases")}); }
OC_LEAF_DEFAULT(_global_confederation_config_identifier)                 { return plain_leaf(ctx, node, out, cfg(ZR_BGP_GLOBAL "/confederation-domain")); }
OC_LEAF_DEFAULT(_global_confederation_config_memberas)                   { return plain_leaf(ctx, node, out, repeated(cfg(ZR_BGP_GLOBAL "/confederation-peer-ases/confederation-peer-as"))); }

OC_CONT_DEFAULT(_global_confederation_state)                             { return state_selection(ctx, node, subtree_count, out, {cfg(ZR_BGP_GLOBAL "/confederation-domain"), cfg(ZR_BGP_GLOBAL "/confederation-peer-ases")}); }
OC_LEAF_DEFAULT(_global_confederation_state_enabled)                     { return state_leaf(ctx, node, out, {cfg(ZR_BGP_GLOBAL "/confederation-domain")}); }
OC_LEAF_DEFAULT(_global_confederation_state_identifier)                  { return state_leaf(ctx, node, out, {cfg(ZR_BGP_GLOBAL "/confederation-domain")}); }
OC_LEAF_DEFAULT(_global_confederation_state_memberas)                    { return state_leaf(ctx, node, out, {repeated(cfg(ZR_BGP_GLOBAL "/confederation-peer-ases/confederation-peer-as"))}); }

OC_CONT_DEFAULT(_global_usemultiplepaths)                                { return forward(ctx, node, subtree_count, out, vmf_map_man_cont_oc_bgp_global_usemultiplepaths); }

OC_CONT_DEFAULT(_global_usemultiplepaths_state)                          { return forward(ctx, node, subtree_count, out, vmf_map_man_cont_oc_bgp_global_usemultiplepaths_state); }
OC_LEAF_DEFAULT(_global_usemultiplepaths_state_enabled)                  { return forward(ctx, node, out, vmf_map_man_leaf_oc_bgp_global_usemultiplepaths_state_enabled); }

OC_CONT_DEFAULT(_global_usemultiplepaths_ebgp)                           { return forward(ctx, node, subtree_count, out, vmf_map_man_cont_oc_bgp_global_usemultiplepaths_ebgp); }

OC_CONT_DEFAULT(_global_usemultiplepaths_ebgp_config)                    { return forward(ctx, node, subtree_count, out, vmf_map_man_cont_oc_bgp_global_usemultiplepaths_ebgp_config); }
OC_LEAF_DEFAULT(_global_usemultiplepaths_ebgp_config_maximumpaths)       { return forward(ctx, node, out, vmf_map_man_leaf_oc_bgp_global_usemultiplepaths_ebgp_config_maximumpaths); }

OC_CONT_DEFAULT(_global_usemultiplepaths_ebgp_state)                     { return forward(ctx, node, subtree_count, out, vmf_map_man_cont_oc_bgp_global_usemultiplepaths_ebgp_state); }
OC_LEAF_DEFAULT(_global_usemultiplepaths_ebgp_state_maximumpaths)        { return forward(ctx, node, out, vmf_map_man_leaf_oc_bgp_global_usemultiplepaths_ebgp_state_maximumpaths); }

OC_CONT_DEFAULT(_global_usemultiplepaths_ibgp)                           { return forward(ctx, node, subtree_count, out, vmf_map_man_cont_oc_bgp_global_usemultiplepaths_ibgp); }

OC_CONT_DEFAULT(_global_usemultiplepaths_ibgp_config)                    { return forward(ctx, node, subtree_count, out, vmf_map_man_cont_oc_bgp_global_usemultiplepaths_ibgp_config); }
OC_LEAF_DEFAULT(_global_usemultiplepaths_ibgp_config_maximumpaths)       { return forward(ctx, node, out, vmf_map_man_leaf_oc_bgp_global_usemultiplepaths_ibgp_config_maximumpaths); }

OC_CONT_DEFAULT(_global_usemultiplepaths_ibgp_state)                     { return forward(ctx, node, subtree_count, out, vmf_map_man_cont_oc_bgp_global_usemultiplepaths_ibgp_state); }
OC_LEAF_DEFAULT(_global_usemultiplepaths_ibgp_state_maximumpaths)        { return forward(ctx, node, out, vmf_map_man_leaf_oc_bgp_global_usemultiplepaths_ibgp_state_maximumpaths); }

OC_CONT_DEFAULT(_global_gracefulrestart)                                 { return selection(ctx, node, subtree_count, out, {cfg(ZR_BGP_GLOBAL "/graceful-restart"), cfg(ZR_BGP_GLOBAL "/graceful-restart-time"), cfg(ZR_BGP_GLOBAL "/graceful-restart-stalepath-time")}); }

OC_CONT_DEFAULT(_global_gracefulrestart_config)                          { return selection(ctx, node, subtree_count, out, {cfg(ZR_BGP_GLOBAL "/graceful-restart"), cfg(ZR_BGP_GLOBAL "/graceful-restart-time"), cfg(ZR_BGP_GLOBAL "/graceful-restart-stalepath-time")}); }
OC_LEAF_DEFAULT(_global_gracefulrestart_config_enabled)                  { return plain_leaf(ctx, node, out, cfg(ZR_BGP_GLOBAL "/graceful-restart")); }
OC_LEAF_DEFAULT(_global_gracefulrestart_config_restarttime)              { return plain_leaf(ctx, node, out, cfg(ZR_BGP_GLOBAL "/graceful-restart-time")); }
OC_LEAF_DEFAULT(_global_gracefulrestart_config_staleroutestime)          { return plain_leaf(ctx, node, out, cfg(ZR_BGP_GLOBAL "/graceful-restart-stalepath-time")); }

OC_CONT_DEFAULT(_global_gracefulrestart_state)                           { return state_selection(ctx, node, subtree_count, out, {cfg(ZR_BGP_GLOBAL "/graceful-restart"), cfg(ZR_BGP_GLOBAL "/graceful-restart-time"), cfg(ZR_BGP_GLOBAL "/graceful-restart-stalepath-time")}); }
OC_LEAF_DEFAULT(_global_gracefulrestart_state_enabled)                   { return state_leaf(ctx, node, out, {cfg(ZR_BGP_GLOBAL "/graceful-restart")}); }
OC_LEAF_DEFAULT(_global_gracefulrestart_state_restarttime)               { return state_leaf(ctx, node, out, {cfg(ZR_BGP_GLOBAL "/graceful-restart-time")}); }
OC_LEAF_DEFAULT(_global_gracefulrestart_state_staleroutestime)           { return state_leaf(ctx, node, out, {cfg(ZR_BGP_GLOBAL "/graceful-restart-stalepath-time")}); }

OC_CONT_DEFAULT(_global_afisafis)                                        { return selection(ctx, node, subtree_count, out, {cfg(ZR_BGP_GLOBAL_AFS)}); }
OC_LEAF_DEFAULT(_global_afisafis_afisafi_afisafiname)                    { return key_leaf(ctx, node, out, repeated(cfg(ZR_BGP_GLOBAL_AFS "/global-af")), list("af-name")); }

OC_CONT_DEFAULT(_global_afisafis_afisafi_config)                         { return silent(ctx, node, out); }
OC_LEAF_DEFAULT(_global_afisafis_afisafi_config_afisafiname)             { return fan_out_leaf(ctx, node, out, {list("af-name"), list("enable")}); }
OC_LEAF_DEFAULT(_global_afisafis_afisafi_config_enabled)                 { return fan_out_leaf(ctx, node, out, {list("enable")}); }

OC_CONT_DEFAULT(_global_afisafis_afisafi_state)                          { return silent(ctx, node, out); }
OC_LEAF_DEFAULT(_global_afisafis_afisafi_state_afisafiname)              { return state_leaf(ctx, node, out, {list("af-name")}); }
OC_LEAF_DEFAULT(_global_afisafis_afisafi_state_enabled)                  { return state_leaf(ctx, node, out, {list("enable")}); }
OC_LEAF_DEFAULT(_global_afisafis_afisafi_state_totalpaths)               { return state_leaf(ctx, node, out, {oper_list("af-process-info/global/paths-num")}); }
OC_LEAF_DEFAULT(_global_afisafis_afisafi_state_totalprefixes)            { return state_leaf(ctx, node, out, {oper_list("global-af-process-info/global/scan-prefixes")}); }

OC_CONT_DEFAULT(_global_afisafis_afisafi_usemultiplepaths)               { return selection(ctx, node, subtree_count, out, {list("ebgp"), list("ibgp")}); }

OC_CONT_DEFAULT(_global_afisafis_afisafi_usemultiplepaths_state)         { return state_selection(ctx, node, subtree_count, out, {direct(list("ebgp")), direct(list("ibgp"))}); }
OC_LEAF_DEFAULT(_global_afisafis_afisafi_usemultiplepaths_state_enabled) { return state_leaf(ctx, node, out, {direct(list("ebgp")), direct(list("ibgp"))}); }

OC_CONT_DEFAULT(_global_afisafis_afisafi_usemultiplepaths_ebgp)          { return selection(ctx, node, subtree_count, out, {list("ebgp")}); }

OC_CONT_DEFAULT(_global_afisafis_afisafi_usemultiplepaths_ebgp_config)   { return selection(ctx, node, subtree_count, out, {list("ebgp")}); }
OC_LEAF_DEFAULT(_global_afisafis_afisafi_usemultiplepaths_ebgp_config_maximumpaths) { return plain_leaf(ctx, node, out, list("ebgp/paths-value")); }

OC_CONT_DEFAULT(_global_afisafis_afisafi_usemultiplepaths_ebgp_state)    { return state_selection(ctx, node, subtree_count, out, {list("ebgp")}); }
OC_LEAF_DEFAULT(_global_afisafis_afisafi_usemultiplepaths_ebgp_state_maximumpaths) { return state_leaf(ctx, node, out, {list("ebgp/paths-value")}); }

OC_CONT_DEFAULT(_global_afisafis_afisafi_usemultiplepaths_ibgp)          { return selection(ctx, node, subtree_count, out, {list("ibgp")}); }

OC_CONT_DEFAULT(_global_afisafis_afisafi_usemultiplepaths_ibgp_config)   { return selection(ctx, node, subtree_count, out, {list("ibgp")}); }
OC_LEAF_DEFAULT(_global_afisafis_afisafi_usemultiplepaths_ibgp_config_maximumpaths) { return plain_leaf(ctx, node, out, list("ibgp/paths-value")); }

OC_CONT_DEFAULT(_global_afisafis_afisafi_usemultiplepaths_ibgp_state)    { return state_selection(ctx, node, subtree_count, out, {list("ibgp")}); }
OC_LEAF_DEFAULT(_global_afisafis_afisafi_usemultiplepaths_ibgp_state_maximumpaths) { return state_leaf(ctx, node, out, {list("ibgp/paths-value")}); }
