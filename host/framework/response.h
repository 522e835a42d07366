// The way back: the two response entries, and who owns which tree behind them. The entries leave some of that to their
// caller, on purpose: the array of a response that was made anew, children that found no parent, an array that two
// nodes share.
#pragma once

#include <cstdint>

#include "contexts.h"
#include "tree.h"

namespace framework {

class Response {
public:
    // `trees` is the whole response, a child for each native tree; the contexts are those of the request.
    Response(Contexts &contexts, platform::Tree trees) : contexts_(contexts), trees_(std::move(trees)) {}
    ~Response();
    Response(const Response &) = delete;
    Response &operator=(const Response &) = delete;

    // Call the entry of a native model, if the response has a tree of it: configuration first. Give its outcome.
    uint32_t map_configuration();
    uint32_t map_operational();

    // The OpenConfig tree that came of it, as the child of a holder; without a child if nothing came.
    platform::Tree take_answer();

private:
    using Entry = uint32_t(MapContext *ctx, Datatree *response, Datatree *native_tree, Datatree *mapped,
                           int32_t *skip_subtree);

    Datatree *find_tree(const char *ns);
    uint32_t call(Entry *entry, const char *ns);
    uint32_t call_in_place(Entry *entry, Datatree *native_tree);
    uint32_t call_beside(Entry *entry, Datatree *native_tree);

    Contexts &contexts_;
    platform::Tree trees_;
    platform::Tree mapped_;
};

}  // namespace framework
