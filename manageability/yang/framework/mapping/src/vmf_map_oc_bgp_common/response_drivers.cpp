// The two entries of the way back. Each walks its native tree into the OpenConfig tree, then decides what becomes of
// both.
#include "node.h"
#include "vmf_map_oc_bgp.h"
#include "vmf_map_trace.h"

// Neither "Start" nor "End" here.
static void assert_context(MapContext *ctx, const At &at = here())
{
    if (ctx == nullptr) assertion_failed(at.file, at.line, "NULL != ctx");
    if (lies_at_null(&ctx->_debug_ctx)) assertion_failed(at.file, at.line, "NULL != (&((ctx)->_debug_ctx))");
}

// What the walk made: the OpenConfig root is the first child of the holder. Null if it made nothing.
static Datatree *root_of(MapContext *ctx, const Datatree *mapped, const At &at)
{
    if (!has_subtrees(mapped)) {
        VMF_TRC(ctx, at, "No mapped output");
        return nullptr;
    }
    Datatree *root = children_of(mapped).first;
    if (root != nullptr) vmf_map_print_datatree_internal(ctx, mapped, "Mapped tree");
    return root;
}

static uint32_t report_walk(MapContext *ctx, uint32_t outcome, const At &at)
{
    VMF_ERR(ctx, at, "Failed to map ZR model to open config model! (rc = %s)", cerr_strerror(outcome));
    return outcome;
}

static void move_children(Datatree *to, const Datatree *from)
{
    to->subtrees = from->subtrees;
    to->subtree_count = from->subtree_count;
    to->present[0] |= VMF_DT_SUBTREES;
}

// ---- Taking a native tree out of the response -----------------------------------------------

static bool is_native_tree(const Datatree *tree, const char *ns)
{
    const char *tag = tag_of(tree);
    const char *own = (tree->present[0] & VMF_DT_NAMESPACE) != 0 ? tree->namespace_ : nullptr;
    return own != nullptr && vmf_map_do_these_match(own, ns) != 0 && tag != nullptr &&
           vmf_map_do_these_match(tag, "bgp") != 0;
}

// On purpose: nothing but tag, namespace and children survives.
static void copy_tree(Datatree *to, const Datatree *from)
{
    constexpr uint8_t kept = VMF_DT_TAG | VMF_DT_NAMESPACE;
    if (tag_of(from) != nullptr) to->tag = from->tag;
    if ((from->present[0] & VMF_DT_NAMESPACE) != 0) to->namespace_ = from->namespace_;
    to->present[0] |= from->present[0] & kept;
    if (has_subtrees(from)) move_children(to, from);
}

enum class Model : uint8_t { configuration, operational };

static uint32_t refuse_response(MapContext *ctx, const At &at)
{
    VMF_ERR(ctx, at, "Invalid response data. Corrupted?");
    return VMF_RC_BAD_TREE;
}

// One tree is left in the response: the framework passes it over.
static uint32_t skip_only_tree(MapContext *ctx, Model model, int32_t *skip_subtree, const At &at)
{
    if (model == Model::configuration)
        VMF_TRC(ctx, at, "One subtree. Only BGP config tree.");
    else
        VMF_TRC(ctx, at,
                "Only one datatree in the mapped data. Skipping this as we expect 2nd datatree which is oper "
                "data");
    *skip_subtree = 1;
    return VMF_RC_OK;
}

static uint32_t report_no_memory(MapContext *ctx, Model model, uint32_t count, const At &at)
{
    if (model == Model::configuration)
        VMF_ERR(ctx, at, "Failed to allocate memory!");
    else
        VMF_ERR(ctx, at, "Failed to allocate memory of %u bytes!", static_cast<uint32_t>(count * sizeof(Datatree)));
    return VMF_RC_NO_MEMORY;
}

// The children are shared with the old array until the framework lets it go.
static void keep_other_trees(MapContext *ctx, Model model, const char *ns, Datatree *old_trees, int32_t old_count,
                             Datatree *trees, const At &at)
{
    int32_t kept = 0;
    for (int32_t i = 0; i < old_count; i++) {
        Datatree *tree = &old_trees[i];
        if (is_native_tree(tree, ns)) {
            if (model == Model::configuration) VMF_TRC(ctx, at, "Freeing ZR BGP tree.");
            kidl_vmf_datatree_free_ext(tree, vmf_gpb_free, 0, 0);
            *tree = {};
        } else if (kept < old_count - 1) {
            copy_tree(&trees[kept++], tree);
        }
    }
}

static uint32_t remove_native_tree(MapContext *ctx, Datatree *response, Model model, const char *ns,
                                   int32_t *skip_subtree, const At &at)
{
    if (response == nullptr || children_of(response).count == 0 || response->subtrees == nullptr)
        return refuse_response(ctx, at);
    const Children old_trees = children_of(response);
    if (old_trees.count == 1) return skip_only_tree(ctx, model, skip_subtree, at);

    const auto count = static_cast<uint32_t>(old_trees.count - 1);
    auto *trees = static_cast<Datatree *>(kos_named_calloc_(count, sizeof(Datatree), "VMF MAP", 0));
    if (trees == nullptr) return report_no_memory(ctx, model, count, at);
    keep_other_trees(ctx, model, ns, old_trees.first, old_trees.count, trees, at);
    if (model == Model::configuration) vmf_map_print_datatree_internal(ctx, trees, "New response tree");
    response->subtrees = trees;
    response->subtree_count = old_trees.count - 1;
    response->present[0] |= VMF_DT_SUBTREES;
    return VMF_RC_OK;
}

// ---- The configuration entry ----------------------------------------------------------------

static void keep_mapped(MapContext *ctx, Datatree *mapped, const At &at)
{
    VMF_TRC(ctx, at, "This is get request. Keep the mapped tree.");
    ctx->request->kept_mapped_tree = mapped;
}

static uint32_t add_to_response(MapContext *ctx, Datatree *response, const Datatree *root, Datatree **added)
{
    const char *ns = (root->present[0] & VMF_DT_NAMESPACE) != 0 ? root->namespace_ : nullptr;
    return vmf_map_datatree_add_subtree(ctx, response, tag_of(root), ns, nullptr, nullptr, added, 0);
}

// The tree comes beside the native one. Its root is emptied first: the children are the response's, or, if that did not
// take them, nobody's.
static uint32_t hand_over(MapContext *ctx, Datatree *response, Datatree *root)
{
    Datatree *added = nullptr;
    const uint32_t outcome = add_to_response(ctx, response, root, &added);
    if (outcome == VMF_RC_OK && added != nullptr && has_subtrees(root)) move_children(added, root);
    root->subtrees = nullptr;
    root->subtree_count = 0;
    root->present[0] |= VMF_DT_SUBTREES;
    kidl_vmf_datatree_free_ext(root, vmf_gpb_free, 0, 0);
    kos_named_free(root);
    return outcome;
}

// The tree takes the place of the native one, in its record.
static void overwrite(Datatree *native_tree, Datatree *root)
{
    kidl_vmf_datatree_free_ext(native_tree, vmf_gpb_free, 0, 0);
    *native_tree = {};
    native_tree->tag = root->tag;
    native_tree->namespace_ = root->namespace_;
    native_tree->subtrees = root->subtrees;
    native_tree->subtree_count = root->subtree_count;
    native_tree->present[0] = VMF_DT_TAG | VMF_DT_NAMESPACE | VMF_DT_SUBTREES;
    kos_named_free(root);
}

extern "C" uint32_t vmf_map_zr_cfg_bgp_to_oc(MapContext *ctx, Datatree *response, Datatree *native_tree,
                                             Datatree *mapped, int32_t *skip_subtree)
{
    assert_context(ctx);
    if (uint32_t bad = vmf_map_zr_bgp_cfg_bgp(ctx, native_tree, mapped)) return report_walk(ctx, bad, here());
    Datatree *root = root_of(ctx, mapped, here());
    const RequestContext *request = ctx->request;
    const bool is_get = request->request_info->kind == VMF_REQ_GET;

    if (request->response_pending == 0) {
        if (root == nullptr) return VMF_RC_OK;
        if (!is_get) return hand_over(ctx, response, root);
        keep_mapped(ctx, mapped, here());
        return VMF_RC_OK;
    }
    VMF_TRC(ctx, here(), "Overwriting ZR BGP config model.");
    if (root == nullptr) return VMF_RC_OK;
    if (!is_get || request->oper_wanted == 0) {
        overwrite(native_tree, root);
        return VMF_RC_OK;
    }
    keep_mapped(ctx, mapped, here());
    VMF_TRC(ctx, here(), "Removing ZR BGP config datatree from response");
    return remove_native_tree(ctx, response, Model::configuration, ZR_BGP_CFG_NS, skip_subtree, here());
}

// ---- The operational entry ------------------------------------------------------------------

// On purpose: the root stays as it is, so that it and the response share one array of children.
static uint32_t share(MapContext *ctx, Datatree *response, const Datatree *root)
{
    Datatree *added = nullptr;
    if (uint32_t bad = add_to_response(ctx, response, root, &added)) return bad;
    if (added != nullptr && has_subtrees(root)) move_children(added, root);
    return VMF_RC_OK;
}

extern "C" uint32_t vmf_map_zr_opr_bgp_to_oc(MapContext *ctx, Datatree *response, Datatree *native_tree,
                                             Datatree *mapped, int32_t *skip_subtree)
{
    assert_context(ctx);
    if (uint32_t bad = vmf_map_zr_bgp_oper_bgp(ctx, native_tree, mapped)) return report_walk(ctx, bad, here());
    const Datatree *root = root_of(ctx, mapped, here());
    RequestContext *request = ctx->request;

    if (request->response_pending == 0) {
        if (root == nullptr || request->kept_mapped_tree != nullptr) return VMF_RC_OK;
        return share(ctx, response, root);
    }
    if (request->kept_mapped_tree == nullptr && root != nullptr) {
        VMF_TRC(ctx, here(), "Keeping the mapped tree.");
        request->kept_mapped_tree = mapped;
    }
    VMF_TRC(ctx, here(), "Removing ZR BGP oper datatree from response");
    return remove_native_tree(ctx, response, Model::operational, ZR_BGP_OPER_NS, skip_subtree, here());
}
