// A handler as a person writes it, in the place of a generated default. A build that misspells its name gives the name.
#include "vmf_map_oc_bgp_handlers.h"

#ifndef HANDLER_NAME
#define HANDLER_NAME vmf_map_leaf_oc_bgp_global_config_routerid
#endif

extern "C" uint32_t HANDLER_NAME(MapContext *ctx, Datatree *node, Datatree *out)
{
    return vmf_map_datatree_add_bgp_path(ctx, out, "/bgp/instance/instance-as/four-byte-as/by-hand", ZR_BGP_CFG_NS,
                                         node->value, node, nullptr, 0);
}
