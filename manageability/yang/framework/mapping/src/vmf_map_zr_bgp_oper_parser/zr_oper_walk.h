// The rules of this walk, and the signature of its walkers. They are internal, but for the root's.
#pragma once

#include "../vmf_map_oc_bgp_common/response_walk.h"
#include "vmf_map_zr_bgp_oper_handlers.h"

static constexpr ResponseRules rules = {.only_for_gets = true, .refuses_childless_entries = true};

#define ZR_OPER_WALK(path)                                                                                             \
    static uint32_t vmf_map_zr_bgp_oper_bgp##path(MapContext *ctx, Datatree *tree, Datatree *mapped)
#define ZR_OPER_ROOT extern "C" uint32_t vmf_map_zr_bgp_oper_bgp(MapContext *ctx, Datatree *tree, Datatree *mapped)
