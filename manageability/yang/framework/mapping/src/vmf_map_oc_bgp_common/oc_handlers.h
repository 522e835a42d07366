// Writes the signature of a handler of the OpenConfig tree, and nothing else: what follows is its body. The generated
// declarations name every handler in full, so that a misspelt path does not compile.
#pragma once

#include "vmf_map_oc_bgp_handlers.h"

#define OC_CONT(path)                                                                                                  \
    extern "C" uint32_t vmf_map_cont_oc_bgp##path(MapContext *ctx, Datatree *node,                                     \
                                                  [[maybe_unused]] int32_t subtree_count, Datatree *out)
#define OC_LEAF(path) extern "C" uint32_t vmf_map_leaf_oc_bgp##path(MapContext *ctx, Datatree *node, Datatree *out)

// Bodies written by hand that a default or an override calls.
#define OC_MAN_CONT(path)                                                                                              \
    extern "C" uint32_t vmf_map_man_cont_oc_bgp##path(MapContext *ctx, Datatree *node,                                 \
                                                      [[maybe_unused]] int32_t subtree_count, Datatree *out)
#define OC_MAN_LEAF(path)                                                                                              \
    extern "C" uint32_t vmf_map_man_leaf_oc_bgp##path(MapContext *ctx, Datatree *node, Datatree *out)
