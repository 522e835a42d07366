#include "forms.h"

void raise_flags(MapContext *ctx, Flags flags)
{
    for (const Flag &flag : flags) {
        if (flag.of_request != nullptr) ctx->request->*flag.of_request = 1;
        if (flag.of_run != nullptr) ctx->*flag.of_run = 1;
    }
}

// ---- What an add is given -------------------------------------------------------------------

Given leaf_gives(const MapContext *ctx, const Datatree *node)
{
    switch (branch_of(ctx, node)) {
    case Branch::read: return selection_only;
    case Branch::remove: return from_node(node);
    case Branch::write: return with_value(node);
    }
    return selection_only;
}

Given container_gives(const MapContext *ctx, const Datatree *node)
{
    return branch_of(ctx, node) == Branch::remove ? from_node(node) : selection_only;
}

uint32_t add(MapContext *ctx, Datatree *out, const Native &native, Given given, Datatree **result)
{
    Datatree *parent = native.under != nullptr ? ctx->*native.under : out;
    if (native.may_hang_nowhere && parent == nullptr) return VMF_RC_OK;
    const auto builder = native.is_direct ? vmf_map_datatree_add_path : vmf_map_datatree_add_bgp_path;
    return builder(ctx, parent, native.path, native.ns, given.value, given.operation_source, result, native.repeat);
}

uint32_t add_to(MapContext *ctx, Datatree *entry, const char *path, Given given, Datatree **result, const char *ns)
{
    return vmf_map_datatree_add_bgp_path(ctx, entry, path, ns, given.value, given.operation_source, result, 0);
}

uint32_t add_until_failure(MapContext *ctx, Datatree *out, std::initializer_list<Native> natives, Given given)
{
    for (const Native &native : natives)
        if (uint32_t bad = add(ctx, out, native, given)) return bad;
    return VMF_RC_OK;
}

uint32_t add_all(MapContext *ctx, Datatree *out, std::initializer_list<Native> natives, Given given)
{
    uint32_t last = VMF_RC_OK;
    for (const Native &native : natives) last = add(ctx, out, native, given);
    return last;
}

static Given row_gives(const Datatree *node, const Row &row, Branch branch)
{
    switch (branch) {
    case Branch::read: break;
    case Branch::remove: return from_node(node);
    case Branch::write: return row.constant != nullptr ? constant(row.constant, node) : with_value(node);
    }
    return selection_only;
}

uint32_t add_rows(MapContext *ctx, const Datatree *node, Datatree *out, RowList rows, Branch branch)
{
    for (const Row &row : rows) {
        const uint32_t outcome = add(ctx, out, row.native, row_gives(node, row, branch));
        if (outcome != VMF_RC_OK && !row.is_lost) return outcome;
    }
    return VMF_RC_OK;
}

uint32_t remove_all(MapContext *ctx, Datatree *node, Datatree *out, std::initializer_list<Native> natives)
{
    force_removal(node);
    return add_until_failure(ctx, out, natives, from_node(node));
}

uint32_t refuse_tag(MapContext *ctx, const char *tag)
{
    ctx->request->rejected_tag = vmf_strdup(tag, "VMF MAP");
    return VMF_RC_UNSUPPORTED;
}

uint32_t check_identity(MapContext *ctx, const Datatree *node, const At &at)
{
    if (vmf_map_validate_data_ns(ctx, node, OC_BGP_TYPES_NS, 0) == 0) return VMF_RC_OK;
    VMF_ERR(ctx, at, "Identityref node validation failed!");
    return refuse_tag(ctx, "afi-safi-name");
}

void take_list_operation(const MapContext *ctx, Datatree *entry)
{
    if (entry != nullptr && ctx->list_op_present != 0) set_operation(entry, ctx->list_op);
}

void force_removal(Datatree *node) { set_operation(node, VMF_OP_REMOVE); }

// ---- Leaves ---------------------------------------------------------------------------------

uint32_t plain_leaf(MapContext *ctx, Datatree *node, Datatree *out, const Native &native, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    return log_end(ctx, add(ctx, out, native, leaf_gives(ctx, node)), at);
}

uint32_t fan_out_leaf(MapContext *ctx, Datatree *node, Datatree *out, std::initializer_list<Native> natives,
                      const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    return log_end(ctx, add_all(ctx, out, natives, leaf_gives(ctx, node)), at);
}

uint32_t plain_flag_leaf(MapContext *ctx, Datatree *node, Datatree *out, const Native &native, Flags on_read,
                         const At &at)
{
    return branching_leaf(ctx, node, out, {.read = {native}, .remove = {native}, .write = {native}}, on_read, at);
}

uint32_t add_branch(MapContext *ctx, const Datatree *node, Datatree *out, const Branches &branches)
{
    const Branch branch = branch_of(ctx, node);
    switch (branch) {
    case Branch::read: return add_rows(ctx, node, out, branches.read, branch);
    case Branch::remove: return add_rows(ctx, node, out, branches.remove, branch);
    case Branch::write: break;
    }
    return add_rows(ctx, node, out, branches.write, branch);
}

uint32_t branching_leaf(MapContext *ctx, Datatree *node, Datatree *out, const Branches &branches, Flags on_read,
                        const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    const uint32_t outcome = add_branch(ctx, node, out, branches);
    if (is_read(ctx)) raise_flags(ctx, on_read);
    return log_end(ctx, outcome, at);
}

uint32_t repeat_key(MapContext *ctx, const Datatree *node, Datatree *out, Datatree *Ctx::*entry,
                    std::initializer_list<Native> natives, Flags on_read, const At &at)
{
    switch (branch_of(ctx, node)) {
    case Branch::read: raise_flags(ctx, on_read); return add_until_failure(ctx, out, natives, selection_only);
    case Branch::remove:
        if (ctx->*entry != nullptr) copy_operation(ctx->*entry, node);
        break;
    case Branch::write: VMF_TRC(ctx, at, "No mapping done for this node."); break;
    }
    return VMF_RC_OK;
}

uint32_t twin_leaf(MapContext *ctx, Datatree *node, Datatree *out, Datatree *Ctx::*entry,
                   std::initializer_list<Native> natives, Flags on_read, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    return log_end(ctx, repeat_key(ctx, node, out, entry, natives, on_read, at), at);
}

uint32_t state_leaf(MapContext *ctx, Datatree *node, Datatree *out, std::initializer_list<Native> natives, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    return log_end(ctx, add_all(ctx, out, natives, selection_only), at);
}

uint32_t state_flag_leaf(MapContext *ctx, Datatree *node, Datatree *out, const Native &native, Flags raises,
                         const At &at)
{
    return state_flag_leaf(ctx, node, out, RowList{native}, raises, at);
}

uint32_t state_flag_leaf(MapContext *ctx, Datatree *node, Datatree *out, RowList rows, Flags raises, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    const uint32_t outcome = select_rows(ctx, out, rows);
    raise_flags(ctx, raises);
    return log_end(ctx, outcome, at);
}

static uint32_t write_presence(MapContext *ctx, Datatree *node, Datatree *out, const Native &native,
                               const char *set_word, const At &at)
{
    const char *value = value_of(node);
    const bool is_true = value != nullptr && vmf_map_do_these_match(value, "true") != 0;
    if (!is_true && (value == nullptr || vmf_map_do_these_match(value, "false") == 0)) {
        VMF_ERR(ctx, at, " Invalid boolean value was passed.");
        return VMF_RC_BAD_ARGS;
    }
    const bool is_set = vmf_map_do_these_match(value, set_word) != 0;
    if (!is_set) {
        if (ctx->request->replace_scope != 0) return VMF_RC_OK;  // the replace has removed it
        force_removal(node);
    }
    return add(ctx, out, native, from_node(node));
}

uint32_t presence_boolean_leaf(MapContext *ctx, Datatree *node, Datatree *out, const Native &native,
                               const char *set_word, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    switch (branch_of(ctx, node)) {
    case Branch::read: return log_end(ctx, add(ctx, out, native, selection_only), at);
    case Branch::remove: return log_end(ctx, add(ctx, out, native, from_node(node)), at);
    case Branch::write: break;
    }
    return log_end(ctx, write_presence(ctx, node, out, native, set_word, at), at);
}

uint32_t key_leaf(MapContext *ctx, Datatree *node, Datatree *out, const Native &entry, const Native &key, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    Datatree *added = nullptr;
    if (uint32_t bad = add(ctx, out, entry, selection_only, &added)) return log_end(ctx, bad, at);
    take_list_operation(ctx, added);
    ctx->list_node = added;
    ctx->af_key = value_of(node);
    return log_end(ctx, add(ctx, out, key, leaf_gives(ctx, node)), at);
}

// ---- Containers -----------------------------------------------------------------------------

bool maps_itself(MapContext *ctx, int32_t subtree_count, const At &at)
{
    if (subtree_count != 0)
        VMF_TRC(ctx, at, "No mapping done for this node");
    else
        VMF_TRC(ctx, at, "No subtrees");
    return subtree_count == 0;
}

uint32_t selection(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out,
                   std::initializer_list<Native> natives, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    if (!maps_itself(ctx, subtree_count, at)) return log_end(ctx, VMF_RC_OK, at);
    return log_end(ctx, add_all(ctx, out, natives, container_gives(ctx, node)), at);
}

uint32_t flagging_selection(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out,
                            std::initializer_list<Native> natives, Flags raises, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    raise_flags(ctx, raises);
    if (!maps_itself(ctx, subtree_count, at)) return log_end(ctx, VMF_RC_OK, at);
    return log_end(ctx, add_all(ctx, out, natives, container_gives(ctx, node)), at);
}

uint32_t state_selection(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out,
                         std::initializer_list<Native> natives, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    if (!maps_itself(ctx, subtree_count, at)) return log_end(ctx, VMF_RC_OK, at);
    return log_end(ctx, add_all(ctx, out, natives, selection_only), at);
}

static Given removing_container_gives(const MapContext *ctx, Datatree *node)
{
    if (branch_of(ctx, node) != Branch::remove) return selection_only;
    force_removal(node);
    return from_node(node);
}

uint32_t removing_selection(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out,
                            std::initializer_list<Native> natives, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    if (!maps_itself(ctx, subtree_count, at)) return log_end(ctx, VMF_RC_OK, at);
    return log_end(ctx, add_all(ctx, out, natives, removing_container_gives(ctx, node)), at);
}

uint32_t removing_selection_by_turns(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out,
                                     std::initializer_list<Native> natives, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    uint32_t last = VMF_RC_OK;
    for (const Native &native : natives) {
        if (maps_itself(ctx, subtree_count, at)) last = add(ctx, out, native, removing_container_gives(ctx, node));
    }
    return log_end(ctx, last, at);
}

uint32_t silent(MapContext *ctx, Datatree *node, Datatree *out, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    return log_end(ctx, VMF_RC_OK, at);
}

// ---- Bodies written by hand -----------------------------------------------------------------

uint32_t forward(MapContext *ctx, Datatree *node, Datatree *out, VmfLeafHandler *body, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    return log_end(ctx, body(ctx, node, out), at);
}

uint32_t forward(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out, VmfContainerHandler *body,
                 const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    return log_end(ctx, body(ctx, node, subtree_count, out), at);
}

uint32_t flagging_container(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out,
                            VmfContainerHandler *body, Flags raises, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    raise_flags(ctx, raises);
    return log_end(ctx, body(ctx, node, subtree_count, out), at);
}

uint32_t flagging_leaf(MapContext *ctx, Datatree *node, Datatree *out, VmfLeafHandler *body, Flags raises, const At &at)
{
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    const uint32_t outcome = body(ctx, node, out);
    raise_flags(ctx, raises);
    return log_end(ctx, outcome, at);
}
