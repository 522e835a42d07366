#include "response.h"

#include <algorithm>
#include <cstring>

#include "observer.h"
#include "vmf_map_oc_bgp.h"

namespace framework {

namespace {

void clear_children(Datatree &node)
{
    node.subtrees = nullptr;
    node.subtree_count = 0;
    node.subtree_capacity = 0;
}

// A node that owns the children of another.
Datatree children_alone(const Datatree &node)
{
    Datatree owner = {};
    owner.subtrees = node.subtrees;
    owner.subtree_count = node.subtree_count;
    owner.present[0] = node.present[0] & VMF_DT_SUBTREES;
    return owner;
}

// Notices that an entry hands the mapped tree over to the response: whoever has the children afterwards, it is not the
// mapped tree alone any more. A response that had an OpenConfig tree before gives up that one's children for them.
class HandOver {
public:
    HandOver(const Datatree &response, const Datatree &mapped) : response_(response), mapped_(mapped)
    {
        observer_ = {before, this, after};
        outer_ = platform::observe(&observer_);
    }
    ~HandOver() { platform::observe(outer_); }
    HandOver(const HandOver &) = delete;
    HandOver &operator=(const HandOver &) = delete;

    bool was_tried() const { return was_tried_; }

    // Releases the children that the response did not take.
    void release_children() { platform::release(children_); }

    // Releases those that it had before, if it has others now.
    void release_former_children()
    {
        const auto trees = platform::children_of(response_);
        const bool are_kept = std::any_of(trees.begin(), trees.end(),
                                          [this](const Datatree &tree) { return tree.subtrees == former_.subtrees; });
        if (!are_kept) platform::release(former_);
    }

private:
    static uint32_t before(void *self, const platform::Operation &operation)
    {
        auto &watch = *static_cast<HandOver *>(self);
        if (watch.is_hand_over(operation)) {
            watch.was_tried_ = true;
            watch.children_ = children_alone(platform::children_of(watch.mapped_).front());
        }
        return watch.outer_ != nullptr ? watch.outer_->before(watch.outer_->self, operation) : 0;
    }

    static void after(void *self, const platform::Operation &operation, const Datatree &result)
    {
        auto &watch = *static_cast<HandOver *>(self);
        if (watch.is_hand_over(operation)) watch.former_ = children_alone(result);
        const platform::Observer *outer = watch.outer_;
        if (outer != nullptr && outer->after != nullptr) outer->after(outer->self, operation, result);
    }

    bool is_hand_over(const platform::Operation &operation) const
    {
        return operation.parent == &response_ && std::strcmp(operation.name, "vmf_map_datatree_add_subtree") == 0;
    }

    const Datatree &response_;
    const Datatree &mapped_;
    platform::Observer observer_ = {};
    const platform::Observer *outer_ = nullptr;
    bool was_tried_ = false;
    Datatree children_ = {};
    Datatree former_ = {};
};

bool is_of(const Datatree &tree, const char *ns)
{
    const char *own = platform::namespace_of(tree);
    const char *tag = platform::tag_of(tree);
    return own != nullptr && std::strcmp(own, ns) == 0 && tag != nullptr && std::strcmp(tag, "bgp") == 0;
}

// A response made anew has the children of these; what else they own, nobody else does.
void release_old_trees(Datatree *trees, int32_t count)
{
    for (int32_t i = 0; i < count; i++) {
        clear_children(trees[i]);
        platform::release(trees[i]);
    }
    kos_named_free(trees);
}

}  // namespace

Response::~Response() { contexts_.request.kept_mapped_tree = nullptr; }

Datatree *Response::find_tree(const char *ns)
{
    for (Datatree &tree : platform::children_of(trees_.root()))
        if (is_of(tree, ns)) return &tree;
    return nullptr;
}

// The mapped tree comes beside the native one: somebody else may have its children afterwards.
uint32_t Response::call_beside(Entry *entry, Datatree *native_tree)
{
    MapContext run = contexts_.fresh_run();
    Datatree &mapped = mapped_.root();
    int32_t skip_subtree = 0;
    HandOver hand_over(trees_.root(), mapped);
    const uint32_t outcome = entry(&run, &trees_.root(), native_tree, &mapped, &skip_subtree);
    if (!hand_over.was_tried()) return outcome;
    hand_over.release_former_children();
    if (entry == vmf_map_zr_cfg_bgp_to_oc) {
        if (outcome != VMF_RC_OK) hand_over.release_children();
        mapped = {};  // its root is gone
    } else if (outcome == VMF_RC_OK) {
        clear_children(platform::children_of(mapped).front());  // one array, two nodes: the response keeps it
    }
    return outcome;
}

// The mapped tree takes the place of the native one.
uint32_t Response::call_in_place(Entry *entry, Datatree *native_tree)
{
    MapContext run = contexts_.fresh_run();
    Datatree &response = trees_.root();
    Datatree *const old_trees = response.subtrees;
    const int32_t old_count = response.subtree_count;
    int32_t skip_subtree = 0;  // what is left in the response is no answer, and goes with it
    const uint32_t outcome = entry(&run, &response, native_tree, &mapped_.root(), &skip_subtree);
    if (response.subtrees != old_trees)
        release_old_trees(old_trees, old_count);
    else if (is_of(*native_tree, OC_BGP_NS))
        mapped_.root() = {};  // its root has become the native tree
    return outcome;
}

uint32_t Response::call(Entry *entry, const char *ns)
{
    Datatree *tree = find_tree(ns);
    if (tree == nullptr) return VMF_RC_OK;
    return contexts_.request.response_pending != 0 ? call_in_place(entry, tree) : call_beside(entry, tree);
}

uint32_t Response::map_configuration() { return call(vmf_map_zr_cfg_bgp_to_oc, ZR_BGP_CFG_NS); }

uint32_t Response::map_operational() { return call(vmf_map_zr_opr_bgp_to_oc, ZR_BGP_OPER_NS); }

platform::Tree Response::take_answer()
{
    if (contexts_.request.kept_mapped_tree == &mapped_.root()) return std::move(mapped_);
    platform::Tree answer;
    if (Datatree *tree = find_tree(OC_BGP_NS)) {
        Datatree *taken = platform::append_child(answer.root(), tree->tag, tree->namespace_);
        if (taken == nullptr) return answer;
        taken->subtrees = tree->subtrees;
        taken->subtree_count = tree->subtree_count;
        taken->present[0] |= tree->present[0] & VMF_DT_SUBTREES;
        clear_children(*tree);
    }
    return answer;
}

}  // namespace framework
