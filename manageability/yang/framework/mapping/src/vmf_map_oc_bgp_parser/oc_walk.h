// Writes the signature of a walker, and nothing else.
#pragma once

#include "vmf_map_oc_bgp_handlers.h"
#include "vmf_map_oc_bgp_walkers.h"
#include "walk.h"

#define OC_WALK(path) extern "C" uint32_t vmf_map_oc_bgp##path(MapContext *ctx, Datatree *node, Datatree *out)
