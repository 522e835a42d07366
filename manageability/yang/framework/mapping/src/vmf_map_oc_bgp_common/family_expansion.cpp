#include "family_expansion.h"

uint32_t add_global_family(MapContext *ctx, Datatree *out, const char *family, Datatree **entry)
{
    if (uint32_t bad = add(ctx, out, repeated(cfg(ZR_BGP_GLOBAL_AFS "/global-af")), selection_only, entry)) return bad;
    return add_to(ctx, *entry, "af-name", {family, nullptr});
}
