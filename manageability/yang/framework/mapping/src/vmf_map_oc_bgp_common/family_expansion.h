// One OpenConfig node that stands for a native entry in each of several address families.
#pragma once

#include <span>

#include "forms.h"

using Families = std::span<const char *const>;

// The families that the native model keeps global settings for. The order in which a handler goes through them is part
// of what a request becomes, and handlers differ in it.
constexpr const char *global_families[] = {"ipv4-unicast", "ipv6-unicast", "ipv4-multicast", "ipv6-multicast"};

// Adds `global-af` with its family, through the dispatch, and gives the entry.
[[nodiscard]] uint32_t add_global_family(MapContext *ctx, Datatree *out, const char *family, Datatree **entry);
