// What the handlers of a neighbor and of its families have of each other.
#pragma once

#include "peer.h"

// What all families of the neighbor at hand do.
[[nodiscard]] uint32_t select_live_families(MapContext *ctx, Datatree *node, Datatree *out);
