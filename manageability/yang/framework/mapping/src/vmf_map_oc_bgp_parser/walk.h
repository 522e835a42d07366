// The engine that walks a request: the rules of a container, of a list entry and of a leaf, each written once. The
// exported walker of a node is one line that names its row of the tag tree.
#pragma once

#include <cstdint>
#include <span>

#include "vmf_map_oc_bgp.h"
#include "vmf_map_trace.h"

typedef uint32_t Walker(MapContext *ctx, Datatree *node, Datatree *out);

// What stands between a tag and its walker.
enum class Gate : uint8_t {
    none,
    config,       // the request named a `config`: the answer leaves out `state/` copies
    state,        // only a get reaches state; the answer leaves out `config/` copies
    below_state,  // the test of the kind again
};

struct WalkChild {
    const char *tag;
    Gate gate;
    Walker *walk;
};

// Whether a replace at this node is remembered for the handlers below it, which then need not remove what the replace
// has removed already.
enum class Scope : uint8_t { none, keeps };

struct WalkContainer {
    VmfContainerHandler *handler;
    std::span<const WalkChild> children;
    Scope scope;
};

// Lists speak of their key in three different ways, and test its tag at different times.
enum class KeyHabit : uint8_t {
    says_then_tests,  // "List key ... expected." for a good key too
    tests_then_says,  // the line only when the tag is not the key's
    says_on_failure,  // no test of a key whose leaf did well
};

struct WalkList {
    const char *tag;
    const char *key;
    const char *schema_path;
    Walker *walk_key;
    KeyHabit habit;
    std::span<const WalkChild> children;  // the key is not among them
    Scope scope;
};

uint32_t walk_container(MapContext *ctx, Datatree *node, Datatree *out, const WalkContainer &rule,
                        const At &at = here());
uint32_t walk_list_entry(MapContext *ctx, Datatree *node, Datatree *out, const WalkList &rule, const At &at = here());
uint32_t walk_leaf(MapContext *ctx, Datatree *node, Datatree *out, VmfLeafHandler *handler, const At &at = here());
