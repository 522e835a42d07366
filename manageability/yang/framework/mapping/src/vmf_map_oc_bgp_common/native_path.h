// What the builders of native paths share.
#pragma once

#include <cstdint>

#include "frame.h"

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

// A relative path hangs from an entry that stands already: no level above it is supplied.
[[nodiscard]] uint32_t add_relative(MapContext *ctx, Datatree *parent, const PathAdd &given, const At &at);
