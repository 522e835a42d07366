#include "native_path.h"

#include "vmf_map_platform.h"

uint32_t add_below(MapContext *ctx, Datatree *parent, const char *path, const PathAdd &given)
{
    return vmf_map_datatree_add_path_common(ctx, parent, path, given.ns, given.value, given.operation_source,
                                            given.result, given.repeat);
}
