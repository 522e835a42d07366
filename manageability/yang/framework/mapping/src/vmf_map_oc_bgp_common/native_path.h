// What the builders of native paths share.
#pragma once

#include <cstdint>

#include "vmf_map_types.h"

// What a path is added with, as the callers of a builder gave it.
struct PathAdd {
    const char *path;
    const char *ns;
    const char *value;
    const Datatree *operation_source;
    Datatree **result;
    uint32_t repeat;
};

// Hands the add on to the platform, with `path` in the place of its own.
[[nodiscard]] uint32_t add_below(MapContext *ctx, Datatree *parent, const char *path, const PathAdd &given);
