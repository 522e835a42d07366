// Records what a handler adds: the calls of the builders and of the tree operations, in their order, with every
// argument; and lets any of them fail. A test program that links it takes the place of the library's builders at load
// time and hands each call on.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "observer.h"
#include "vmf_map_types.h"

namespace support {

class Recorder {
public:
    // Records for this thread until it goes. `node` is the request's node, `out` the output root.
    Recorder(const MapContext *ctx, const Datatree *node, const Datatree *out);
    ~Recorder();
    Recorder(const Recorder &) = delete;
    Recorder &operator=(const Recorder &) = delete;

    // The add of this number, from 1 on, fails with this outcome.
    void fail(size_t number, uint32_t outcome);

    // One line an add:
    //   global/router-id = 1.1.1.1 src        through the dispatch, below the output root, from the request's node
    //   list:timers/hold-time                 below list_node (af:, oper-list:, oper-af: the other entries)
    //   #1:as-xx = 0 src                      below what the first add of this run gave
    //   null:enable                           below no node at all
    //   repeat                                with the repeat flag
    //   oper                                  in the operational namespace
    //   direct                                straight to the platform
    //   builder                               straight to the operational builder
    const std::vector<std::string> &adds() const { return adds_; }

    // If set, hears of every operation of the platform, those within an add too, as
    // "global/router-id > vmf_map_datatree_add_subtree bgp:instance": the add at hand, the operation, its parent and
    // its path. What it gives is what the operation fails with.
    std::function<uint32_t(const std::string &operation)> on_operation;

    struct Call {
        const char *way;  // "", "direct", "builder", "list-node"
        const Datatree *parent;
        const char *path;
        const char *ns;
        const char *value;
        const Datatree *source;
        uint32_t repeat;
    };
    // Notes a call; what it must fail with, or 0.
    uint32_t note(const Call &call);
    void note_result(const Datatree *result) { results_.back() = result; }

    // Calls that a recorded call makes itself are not recorded.
    void enter(const char *path);
    void leave() { inside_.clear(); }
    bool is_inside() const { return !inside_.empty(); }
    uint32_t hear(const platform::Operation &operation) const;

    static Recorder *current();

private:
    std::string place_of(const Datatree *parent) const;

    const MapContext *ctx_;
    const Datatree *node_;
    const Datatree *out_;
    size_t failing_ = 0;
    uint32_t outcome_ = 0;
    std::string inside_;  // the path of the add at hand
    std::vector<std::string> adds_;
    std::vector<const Datatree *> results_;
};

}  // namespace support
