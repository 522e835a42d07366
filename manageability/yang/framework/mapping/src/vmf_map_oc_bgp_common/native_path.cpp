#include "native_path.h"

uint32_t add_below(MapContext *ctx, Datatree *parent, const char *path, const PathAdd &given)
{
    return vmf_map_datatree_add_path_common(ctx, parent, path, given.ns, given.value, given.operation_source,
                                            given.result, given.repeat);
}

uint32_t add_relative(MapContext *ctx, Datatree *parent, const PathAdd &given, const At &at)
{
    VMF_TRC(ctx, at, "Setting a relative path '%s' with '%s'", given.path, shown(given.value));
    return add_below(ctx, parent, given.path, given);
}
