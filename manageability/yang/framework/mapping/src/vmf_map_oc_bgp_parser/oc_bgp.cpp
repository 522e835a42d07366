// Made by generator/ from models/openconfig-bgp.yang and models/openconfig-bgp.mapping.
// Renew it with `cmake --build build/release --target generate`.
#include "oc_walk.h"

// clang-format off

// ---- /bgp
static constexpr WalkChild bgp_children[] = {
    {"global",      Gate::none, vmf_map_oc_bgp_global},
    {"neighbors",   Gate::none, vmf_map_oc_bgp_neighbors},
    {"peer-groups", Gate::none, vmf_map_oc_bgp_peergroups},
};
static constexpr WalkContainer bgp = {vmf_map_cont_oc_bgp, bgp_children, Scope::keeps};
OC_WALK() { return walk_container(ctx, node, out, bgp); }
