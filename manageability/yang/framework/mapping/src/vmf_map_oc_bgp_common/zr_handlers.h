// Writes the signature of a handler of the native trees, and nothing else: what follows is its body. The generated
// declarations name every handler in full, so that a misspelt path does not compile.
#pragma once

#include "vmf_map_zr_bgp_cfg_handlers.h"
#include "vmf_map_zr_bgp_oper_handlers.h"

#define ZR_CONT_(name)                                                                                                 \
    extern "C" uint32_t name(MapContext *ctx, Datatree *node, [[maybe_unused]] int32_t subtree_count, Datatree *mapped)
#define ZR_LEAF_(name) extern "C" uint32_t name(MapContext *ctx, Datatree *node, Datatree *mapped)

#define ZR_CFG_CONT(path) ZR_CONT_(vmf_map_cont_zr_bgp_cfg_bgp##path)
#define ZR_CFG_LEAF(path) ZR_LEAF_(vmf_map_leaf_zr_bgp_cfg_bgp##path)
#define ZR_CFG_MAN_LEAF(path) ZR_LEAF_(vmf_map_man_leaf_zr_bgp_cfg_bgp##path)

#define ZR_OPER_CONT(path) ZR_CONT_(vmf_map_cont_zr_bgp_oper_bgp##path)
#define ZR_OPER_LEAF(path) ZR_LEAF_(vmf_map_leaf_zr_bgp_oper_bgp##path)
#define ZR_OPER_MAN_LEAF(path) ZR_LEAF_(vmf_map_man_leaf_zr_bgp_oper_bgp##path)
