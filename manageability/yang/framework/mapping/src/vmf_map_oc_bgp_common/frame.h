// How every handler and walker opens.
#pragma once

#include "vmf_map_trace.h"

// Say why, and give VMF_RC_BAD_ARGS.
[[nodiscard]] uint32_t refuse_arguments(MapContext *ctx, const char *function, int line);
[[nodiscard]] uint32_t refuse_null_arguments(MapContext *ctx, const char *function, int line);

// The assertions, "Start", and the guard that every handler and walker has: a null node or output tree is refused, and
// that way out writes no "End". 0 or VMF_RC_BAD_ARGS.
[[nodiscard]] inline uint32_t enter(MapContext *ctx, const Datatree *node, const Datatree *out, const At &at = here())
{
    log_start(ctx, at);
    return node != nullptr && out != nullptr ? VMF_RC_OK : refuse_arguments(ctx, at.function, at.line);
}

// The same for a service: a null among `required` is refused as "NULL argument(s) passed!".
template<class... Pointer>
[[nodiscard]] inline uint32_t enter_service(MapContext *ctx, const At &at, const Pointer *...required)
{
    log_start(ctx, at);
    return ((required != nullptr) && ...) ? VMF_RC_OK : refuse_null_arguments(ctx, at.function, at.line);
}
