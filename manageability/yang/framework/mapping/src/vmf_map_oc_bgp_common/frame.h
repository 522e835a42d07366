// How every handler and walker opens.
#pragma once

#include <initializer_list>

#include "vmf_map_trace.h"

// The assertions, "Start", and the guard that every handler and walker has: a null node or output tree is refused, and
// that way out writes no "End". 0 or VMF_RC_BAD_ARGS.
[[nodiscard]] uint32_t enter(MapContext *ctx, const Datatree *node, const Datatree *out, At at = here());

// The same for a service: a null among `required` is refused as "NULL argument(s) passed!".
[[nodiscard]] uint32_t enter_service(MapContext *ctx, std::initializer_list<const void *> required, At at = here());
