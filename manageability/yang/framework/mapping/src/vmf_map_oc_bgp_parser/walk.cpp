#include "walk.h"

#include "../vmf_map_oc_bgp_common/frame.h"
#include "../vmf_map_oc_bgp_common/kind.h"
#include "../vmf_map_oc_bgp_common/node.h"

static void reject(MapContext *ctx, const char *tag) { ctx->request->rejected_tag = vmf_strdup(tag, "VMF MAP"); }

// ---- Replace scope --------------------------------------------------------------------------

// Each scoped walker writes the owner word on its way in, so the word tells only whether the last one that started is
// the one that opened. On purpose: a scope with a scoped walker below it stays open for the rest of the request.
static void open_scope(MapContext *ctx, const Datatree *node, Scope scope)
{
    if (scope == Scope::none) return;
    RequestContext *request = ctx->request;
    const bool opens = request->replace_scope == 0 && has_operation(node) && node->operation == VMF_OP_REPLACE;
    if (opens) request->replace_scope = 1;
    request->replace_scope_owner = opens ? 1 : 0;
}

static void close_scope(MapContext *ctx, Scope scope, uint32_t outcome)
{
    if (scope == Scope::none || outcome != VMF_RC_OK || ctx->request->replace_scope_owner == 0) return;
    ctx->request->replace_scope = 0;
    ctx->request->replace_scope_owner = 0;
}

// ---- Children -------------------------------------------------------------------------------

static bool passes(MapContext *ctx, Gate gate)
{
    switch (gate) {
    case Gate::none: return true;
    case Gate::config: ctx->request->config_named = 1; return true;
    case Gate::state:
        if (!is_get(ctx)) return false;
        ctx->request->state_named = 1;
        return true;
    case Gate::below_state: return is_get(ctx);
    }
    return false;
}

static uint32_t dispatch(MapContext *ctx, Datatree *child, const char *tag, Datatree *out,
                         std::span<const WalkChild> allowed, const At &at)
{
    for (const WalkChild &candidate : allowed) {
        if (vmf_map_do_these_match(tag, candidate.tag) != 0 && passes(ctx, candidate.gate))
            return candidate.walk(ctx, child, out);
    }
    VMF_ERR(ctx, at, "Unsupported tag is specified in the request.");
    reject(ctx, tag);
    return VMF_RC_UNSUPPORTED;
}

// All children in order, save the list key (null for a container); the first failure ends it.
static uint32_t walk_children(MapContext *ctx, Children children, Datatree *out, std::span<const WalkChild> allowed,
                              const char *key, const At &at)
{
    for (int32_t i = 0; i < children.count; i++) {
        Datatree *child = &children.first[i];
        const char *tag = tag_of(child);
        if (tag == nullptr) {
            VMF_ERR(ctx, at, "Tag name is not available!");
            return VMF_RC_BAD_TREE;
        }
        VMF_TRC(ctx, at, "Processing tag '%s'", tag);
        if (key != nullptr && vmf_map_do_these_match(tag, key) != 0) continue;
        if (uint32_t bad = dispatch(ctx, child, tag, out, allowed, at)) return bad;
    }
    return VMF_RC_OK;
}

static uint32_t refuse_corrupt(MapContext *ctx, const At &at)
{
    VMF_ERR(ctx, at, "Failed to get subtrees!");
    return log_end(ctx, VMF_RC_BAD_TREE, at);
}

// ---- Container and leaf ---------------------------------------------------------------------

uint32_t walk_container(MapContext *ctx, Datatree *node, Datatree *out, const WalkContainer &rule, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    if (is_corrupt(node)) return refuse_corrupt(ctx, at);

    const Children children = children_of(node);
    if (uint32_t bad = rule.handler(ctx, node, children.count, out)) return log_end(ctx, bad, at);
    open_scope(ctx, node, rule.scope);
    const uint32_t outcome = walk_children(ctx, children, out, rule.children, nullptr, at);
    close_scope(ctx, rule.scope, outcome);
    return log_end(ctx, outcome, at);
}

uint32_t walk_leaf(MapContext *ctx, Datatree *node, Datatree *out, VmfLeafHandler *handler, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    return log_end(ctx, handler(ctx, node, out), at);
}

// ---- List entry -----------------------------------------------------------------------------

static void say_key_expected(MapContext *ctx, const char *key, const At &at)
{
    VMF_ERR(ctx, at, "List key '%s' expected.", key);
}

static void note_operation(MapContext *ctx, const Datatree *entry)
{
    ctx->list_op_present = has_operation(entry) ? 1 : 0;
    if (has_operation(entry)) ctx->list_op = entry->operation;
}

// A child without a tag ends the search as the key would.
static Datatree *find_key(Children children, const char *key)
{
    for (int32_t i = 0; i < children.count; i++) {
        const char *tag = tag_of(&children.first[i]);
        if (tag == nullptr || vmf_map_do_these_match(tag, key) != 0) return &children.first[i];
    }
    return nullptr;
}

static bool is_key(const char *tag, const char *key) { return tag != nullptr && vmf_map_do_these_match(tag, key) != 0; }

// Runs the key's leaf. The lists differ in what they make of its outcome, and the differences stay.
static uint32_t walk_key(MapContext *ctx, Datatree *key, Datatree *out, const WalkList &rule, const At &at)
{
    const uint32_t outcome = rule.walk_key(ctx, key, out);
    const char *tag = tag_of(key);
    const bool failed = outcome != VMF_RC_OK;
    if (failed != (rule.habit == KeyHabit::says_on_failure)) return outcome;  // this list does not test the tag now

    if (rule.habit != KeyHabit::tests_then_says) say_key_expected(ctx, rule.key, at);
    if (is_key(tag, rule.key)) return outcome;
    if (rule.habit == KeyHabit::tests_then_says) say_key_expected(ctx, rule.key, at);
    reject(ctx, tag);
    return VMF_RC_BAD_KEY;
}

static uint32_t enter_list(MapContext *ctx, Datatree *node, Children children, Datatree *out, const WalkList &rule,
                           const At &at)
{
    ctx->list_child_count = static_cast<uint32_t>(children.count);
    if (children.count == 0) {
        VMF_ERR(ctx, at, "No keys specified with a list node.");
        reject(ctx, rule.tag);
        return VMF_RC_BAD_KEY;
    }
    // On purpose: a list that the framework does not take leaves the operation of the entry before.
    if (vmf_map_update_current_list_node(ctx, rule.schema_path, children.count) == VMF_RC_OK) note_operation(ctx, node);

    Datatree *key = find_key(children, rule.key);
    if (key == nullptr) return VMF_RC_BAD_KEY;
    if (is_edit(ctx) && !has_value(key)) {
        VMF_ERR(ctx, at, "Empty list key specified.");
        reject(ctx, nullptr);
        return VMF_RC_BAD_KEY;
    }
    if (vmf_map_is_request_delete(key) != 0) {
        VMF_ERR(ctx, at, "The key node should not have delete operation.");
        return VMF_RC_KEY_OPERATION;
    }
    return walk_key(ctx, key, out, rule, at);
}

uint32_t walk_list_entry(MapContext *ctx, Datatree *node, Datatree *out, const WalkList &rule, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    if (is_corrupt(node)) return refuse_corrupt(ctx, at);

    const Children children = children_of(node);
    if (uint32_t bad = enter_list(ctx, node, children, out, rule, at)) return log_end(ctx, bad, at);
    open_scope(ctx, node, rule.scope);
    const uint32_t outcome = walk_children(ctx, children, out, rule.children, rule.key, at);
    close_scope(ctx, rule.scope, outcome);
    return log_end(ctx, outcome, at);
}
