// Writes the head of a default: its weak public name, which a definition written by hand replaces at link time, and
// its signature. What follows is the default's body.
#pragma once

#include "../vmf_map_oc_bgp_common/forms.h"
#include "vmf_map_oc_bgp_handlers.h"

#define OC_CONT_DEFAULT(path)                                                                                          \
    extern "C" uint32_t vmf_map_cont_oc_bgp##path(MapContext *, Datatree *, int32_t, Datatree *)                       \
        __attribute__((weak, alias("__vmf_map_cont_oc_bgp" #path)));                                                   \
    extern "C" uint32_t __vmf_map_cont_oc_bgp##path(MapContext *ctx, Datatree *node,                                   \
                                                    [[maybe_unused]] int32_t subtree_count, Datatree *out)

#define OC_LEAF_DEFAULT(path)                                                                                          \
    extern "C" uint32_t vmf_map_leaf_oc_bgp##path(MapContext *, Datatree *, Datatree *)                                \
        __attribute__((weak, alias("__vmf_map_leaf_oc_bgp" #path)));                                                   \
    extern "C" uint32_t __vmf_map_leaf_oc_bgp##path(MapContext *ctx, Datatree *node, Datatree *out)
