// Writes the head of a default: its weak public name, which a definition written by hand replaces at link time, and its
// signature. What follows is the default's body.
#pragma once

#include "../vmf_map_oc_bgp_common/response_forms.h"
#include "vmf_map_zr_bgp_cfg_handlers.h"

#define ZR_CFG_CONT_DEFAULT(path)                                                                                      \
    extern "C" uint32_t vmf_map_cont_zr_bgp_cfg_bgp##path(MapContext *, Datatree *, int32_t, Datatree *)               \
        __attribute__((weak, alias("__vmf_map_cont_zr_bgp_cfg_bgp" #path)));                                           \
    extern "C" uint32_t __vmf_map_cont_zr_bgp_cfg_bgp##path(MapContext *ctx, Datatree *node,                           \
                                                            [[maybe_unused]] int32_t subtree_count, Datatree *mapped)

#define ZR_CFG_LEAF_DEFAULT(path)                                                                                      \
    extern "C" uint32_t vmf_map_leaf_zr_bgp_cfg_bgp##path(MapContext *, Datatree *, Datatree *)                        \
        __attribute__((weak, alias("__vmf_map_leaf_zr_bgp_cfg_bgp" #path)));                                           \
    extern "C" uint32_t __vmf_map_leaf_zr_bgp_cfg_bgp##path(MapContext *ctx, Datatree *node, Datatree *mapped)
