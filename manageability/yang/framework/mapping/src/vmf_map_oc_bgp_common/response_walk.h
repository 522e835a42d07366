// The engine that walks a native response. What it does not know it passes over: the native models are wider than the
// mapping. It serves both native trees; how their walks differ is a record of rules.
#pragma once

#include <cstdint>
#include <span>

#include "vmf_map_oc_bgp.h"
#include "vmf_map_trace.h"

// What the entry of a list makes of a child beyond walking it.
enum class Role : uint8_t {
    none,
    instance_name,  // of another instance than "default": the entry is left
    family_name,    // of a family without an OpenConfig name: the entry is left
};

struct ResponseChild {
    const char *tag;
    Role role;
    VmfLeafHandler *step;  // the handler of a leaf, the walker of anything else
};

struct ResponseContainer {
    VmfContainerHandler *handler;
    std::span<const ResponseChild> children;
};

enum class FamilyLine : uint8_t { plain, names_it };  // the line about a family that is left
enum class Childless : uint8_t { by_rules, passes };  // an entry without children

struct ResponseList {
    const char *tag;
    const char *schema_path;  // null: the framework is not told of the list
    std::span<const ResponseChild> children;
    FamilyLine family_line;
    Childless childless;
};

struct ResponseRules {
    bool only_for_gets;              // any other kind of request knows no tag at all
    bool refuses_childless_entries;  // else they are passed over
};

uint32_t walk_response_container(MapContext *ctx, Datatree *tree, Datatree *mapped, const ResponseContainer &rule,
                                 const ResponseRules &rules, const At &at = here());
uint32_t walk_response_list(MapContext *ctx, Datatree *tree, Datatree *mapped, const ResponseList &rule,
                            const ResponseRules &rules, const At &at = here());
