// A definition of the loading program: it takes the place of the library's own.
#include "vmf_map_oc_bgp_handlers.h"

extern "C" uint32_t vmf_map_leaf_oc_bgp_global_confederation_state_enabled(MapContext *ctx, Datatree *node,
                                                                           Datatree *out)
{
    return __vmf_map_leaf_oc_bgp_global_confederation_state_enabled(ctx, node, out);
}
