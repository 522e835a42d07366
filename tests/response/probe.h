// Stands before the mapping library and the platform: hears the handlers of the two native trees, the two walks and the
// calls that the way back makes of the platform, and can answer in their place. Without a Probe every call is handed
// on.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "native_model.h"

namespace response {

// A call of a handler.
struct Visit {
    std::string handler;
    const Datatree *node;
    int32_t children;  // -1: a leaf
    const Datatree *mapped;
    const Datatree *af_node;  // as the handler found it
    uint32_t af_mapped;       // the same
};

struct Probe {
    Probe();
    ~Probe();
    Probe(const Probe &) = delete;
    Probe &operator=(const Probe &) = delete;

    // ---- Handlers. They do nothing but this, unless they are handed on.
    bool hands_on = false;
    std::vector<Visit> visits;
    std::map<std::string, uint32_t> outcomes;  // by handler; 0 for all others
    std::function<void(const Visit &, MapContext &)> on_visit;

    // ---- Walks. If set, called in the place of the library's.
    std::function<uint32_t(MapContext &ctx, Datatree &native_tree, Datatree &mapped)> walk;

    // ---- What was asked of the platform.
    struct Entered {
        std::string list;
        int32_t children;
        bool operator==(const Entered &) const = default;
    };
    struct Printed {
        const Datatree *tree;
        std::string label;
        bool operator==(const Printed &) const = default;
    };
    struct Allocated {
        size_t count, size;
        std::string label;
        uint32_t zero;
        bool operator==(const Allocated &) const = default;
    };
    struct Emptied {
        const Datatree *node;
        Datatree record;  // as it was before
        bool by_framework_callback;
    };
    struct Added {
        const Datatree *parent;
        std::string tag, ns;
        const char *value;
        const Datatree *source;
        uint32_t flag;
    };
    std::vector<Entered> entered;        // vmf_map_update_current_list_node
    std::vector<Printed> printed;        // vmf_map_print_datatree_internal
    std::vector<Allocated> allocated;    // kos_named_calloc_
    std::vector<Emptied> emptied;        // kidl_vmf_datatree_free_ext, but not within another
    std::vector<const void *> released;  // kos_named_free, the same
    std::vector<Added> added;            // vmf_map_datatree_add_subtree
    std::vector<std::string> copied;     // vmf_strdup, "label: text"
    std::vector<size_t> bounds;          // strcpy_s: the size; __strcat_s_to_buf: that of the buffer, and the size

    // If set, answer in the place of the platform.
    std::function<uint32_t(const char *a, const char *b)> match;
    bool adds_give_no_node = false;
    bool leaves_records = false;  // an emptied record keeps its fields
};

}  // namespace response
