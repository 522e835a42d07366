// Made by generator/ from models/openconfig-bgp.yang and models/openconfig-bgp.mapping.
// Renew it with `cmake --build build/release --target generate`.
#include "oc_defaults.h"

// clang-format off

OC_CONT_DEFAULT() { return selection(ctx, node, subtree_count, out, {cfg(ZR_BGP_FOUR_BYTE_AS)}); }
