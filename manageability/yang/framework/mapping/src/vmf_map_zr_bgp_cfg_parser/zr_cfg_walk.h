// The rules of this walk, and the signature of its walkers. They are internal, but for the root's.
#pragma once

#include "../vmf_map_oc_bgp_common/response_walk.h"
#include "vmf_map_zr_bgp_cfg_handlers.h"

static constexpr ResponseRules rules = {.only_for_gets = false, .refuses_childless_entries = false};

#define ZR_CFG_WALK(path)                                                                                              \
    static uint32_t vmf_map_zr_bgp_cfg_bgp##path(MapContext *ctx, Datatree *tree, Datatree *mapped)
#define ZR_CFG_ROOT extern "C" uint32_t vmf_map_zr_bgp_cfg_bgp(MapContext *ctx, Datatree *tree, Datatree *mapped)
