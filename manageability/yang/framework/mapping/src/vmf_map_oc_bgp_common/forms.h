// The forms of a handler: what recurs from node to node, each written once, for defaults and overrides alike. A form
// takes the handler's own arguments first, then its native paths, and logs as the handler that calls it.
#pragma once

#include <cstdint>
#include <initializer_list>

#include "frame.h"
#include "kind.h"
#include "native_paths.h"
#include "node.h"
#include "outcome.h"
#include "vmf_map_oc_bgp.h"

using Req = RequestContext;
using Ctx = MapContext;

// ---- Flags ----------------------------------------------------------------------------------

// A word that a handler sets to 1: of the request, where the response direction reads it, or of the mapping run.
struct Flag {
    uint32_t Req::*of_request;
    uint32_t Ctx::*of_run;

    constexpr Flag(uint32_t Req::*word) : of_request(word), of_run(nullptr) {}
    constexpr Flag(uint32_t Ctx::*word) : of_request(nullptr), of_run(word) {}
};
using Flags = std::initializer_list<Flag>;
void raise_flags(MapContext *ctx, Flags flags);

// ---- Where a native path hangs --------------------------------------------------------------

struct Native {
    Datatree *Ctx::*under;  // null: absolute, below the output root
    const char *ns;
    const char *path;
    uint32_t repeat;        // 1: another instance of the last element, each time
    bool is_direct;         // straight to the platform, without the levels that the builders supply
    bool may_hang_nowhere;  // where no entry stands, nothing is added, and that is no failure
};

constexpr Native cfg(const char *path) { return {nullptr, ZR_BGP_CFG_NS, path, 0, false, false}; }
constexpr Native list(const char *path) { return {&Ctx::list_node, ZR_BGP_CFG_NS, path, 0, false, false}; }
constexpr Native oper(const char *path) { return {nullptr, ZR_BGP_OPER_NS, path, 0, false, false}; }
constexpr Native af(const char *path) { return {&Ctx::af_node, ZR_BGP_CFG_NS, path, 0, false, false}; }
constexpr Native oper_af(const char *path) { return {&Ctx::oper_af_node, ZR_BGP_OPER_NS, path, 0, false, false}; }
constexpr Native oper_list(const char *path) { return {&Ctx::oper_list_node, ZR_BGP_OPER_NS, path, 0, false, false}; }
constexpr Native repeated(Native native)
{
    native.repeat = 1;
    return native;
}
constexpr Native direct(Native native)
{
    native.is_direct = true;
    return native;
}

// ---- What an add is given -------------------------------------------------------------------

struct Given {
    const char *value;
    const Datatree *operation_source;
};

constexpr Given selection_only = {nullptr, nullptr};
inline Given from_node(const Datatree *node) { return {nullptr, node}; }
inline Given with_value(const Datatree *node) { return {value_of(node), node}; }
inline Given constant(const char *value, const Datatree *node) { return {value, node}; }

// A read selects, a removal names what goes, everything else writes. Every handler's first test.
enum class Branch : uint8_t { read, remove, write };
inline Branch branch_of(const MapContext *ctx, const Datatree *node)
{
    if (is_read(ctx)) return Branch::read;
    return vmf_map_is_request_delete(node) != 0 ? Branch::remove : Branch::write;
}

// The pair of the branch: a leaf writes its value with itself as source, a container writes neither.
Given leaf_gives(const MapContext *ctx, const Datatree *node);
Given container_gives(const MapContext *ctx, const Datatree *node);

// Adds one native path through the dispatch by namespace. `result`, if not null, is set only by an add that succeeds.
[[nodiscard]] uint32_t add(MapContext *ctx, Datatree *out, const Native &native, Given given,
                           Datatree **result = nullptr);

// The same below an entry that the caller holds; the native path is relative.
[[nodiscard]] uint32_t add_to(MapContext *ctx, Datatree *entry, const char *path, Given given,
                              Datatree **result = nullptr, const char *ns = ZR_BGP_CFG_NS);

// Adds these in turn. The first failure ends it; or only the last outcome counts.
[[nodiscard]] uint32_t add_until_failure(MapContext *ctx, Datatree *out, std::initializer_list<Native> natives,
                                         Given given);
[[nodiscard]] uint32_t add_all(MapContext *ctx, Datatree *out, std::initializer_list<Native> natives, Given given);

// One native path of a branch: what a write gives it in the place of the leaf's value, and whether its outcome is
// looked at.
struct Row {
    Native native;
    const char *constant = nullptr;  // null: the leaf's value
    bool is_lost = false;

    constexpr Row(const Native &native_) : native(native_) {}
};
constexpr Row fixed(const Native &native, const char *text)
{
    Row row(native);
    row.constant = text;
    return row;
}
constexpr Row lost(Row row)
{
    row.is_lost = true;
    return row;
}
using RowList = std::initializer_list<Row>;

// Adds these in turn, as a leaf's branch does, until one fails whose outcome is looked at.
[[nodiscard]] uint32_t add_rows(MapContext *ctx, const Datatree *node, Datatree *out, RowList rows, Branch branch);

// Selections, whatever the kind.
[[nodiscard]] inline uint32_t select_rows(MapContext *ctx, Datatree *out, RowList rows)
{
    return add_rows(ctx, nullptr, out, rows, Branch::read);
}

// Forces a removal of these, until one fails.
[[nodiscard]] uint32_t remove_all(MapContext *ctx, Datatree *node, Datatree *out,
                                  std::initializer_list<Native> natives);

// Refuses a request, and names the tag.
[[nodiscard]] uint32_t refuse_tag(MapContext *ctx, const char *tag);

// A family's name is an identity of the module of BGP types, whatever it is called.
[[nodiscard]] uint32_t check_identity(MapContext *ctx, const Datatree *node, const At &at);

// A list entry's operation goes to the native entry that its key made.
void take_list_operation(const MapContext *ctx, Datatree *entry);

// Makes the request's node carry a removal: the native counterpart may not exist, so a remove and not a delete.
void force_removal(Datatree *node);

// ---- Leaves ---------------------------------------------------------------------------------

// One native path with the pair of the branch.
uint32_t plain_leaf(MapContext *ctx, Datatree *node, Datatree *out, const Native &native, const At &at = here());

// Several native paths with that pair; only the last outcome counts.
uint32_t fan_out_leaf(MapContext *ctx, Datatree *node, Datatree *out, std::initializer_list<Native> natives,
                      const At &at = here());

// The same with flags that a read raises, whatever the outcome.
uint32_t plain_flag_leaf(MapContext *ctx, Datatree *node, Datatree *out, const Native &native, Flags on_read,
                         const At &at = here());

// A leaf whose branches name native paths of their own, until one fails; a read raises flags, whatever the outcome.
struct Branches {
    RowList read, remove, write;
};
[[nodiscard]] uint32_t add_branch(MapContext *ctx, const Datatree *node, Datatree *out, const Branches &branches);
uint32_t branching_leaf(MapContext *ctx, Datatree *node, Datatree *out, const Branches &branches, Flags on_read = {},
                        const At &at = here());

// A key that is repeated as a leaf below `config` and `state`. A read selects what the entry is known by; a removal
// takes the native entry away, where one stands; a write has nothing to say. The body, without the guard.
[[nodiscard]] uint32_t repeat_key(MapContext *ctx, const Datatree *node, Datatree *out, Datatree *Ctx::*entry,
                                  std::initializer_list<Native> natives, Flags on_read, const At &at);
uint32_t twin_leaf(MapContext *ctx, Datatree *node, Datatree *out, Datatree *Ctx::*entry,
                   std::initializer_list<Native> natives, Flags on_read, const At &at = here());

// Selections whatever the kind, since only a get reaches them; only the last outcome counts.
uint32_t state_leaf(MapContext *ctx, Datatree *node, Datatree *out, std::initializer_list<Native> natives,
                    const At &at = here());

// Selections that raise flags, whatever the outcome: one, or several until one fails.
uint32_t state_flag_leaf(MapContext *ctx, Datatree *node, Datatree *out, const Native &native, Flags raises,
                         const At &at = here());
uint32_t state_flag_leaf(MapContext *ctx, Datatree *node, Datatree *out, RowList rows, Flags raises,
                         const At &at = here());

// A boolean whose native leaf is empty: present for `set_word` ("true", or "false" where the native leaf says the
// opposite). The other word removes it, but adds nothing where a replace has removed it already; any other value is
// refused.
uint32_t presence_boolean_leaf(MapContext *ctx, Datatree *node, Datatree *out, const Native &native,
                               const char *set_word, const At &at = here());

// The default of a list's key: makes the native entry, which takes the operation of the list entry, and its key leaf;
// leaves both for the handlers below the entry.
uint32_t key_leaf(MapContext *ctx, Datatree *node, Datatree *out, const Native &entry, const Native &key,
                  const At &at = here());

// ---- Containers -----------------------------------------------------------------------------

// With children nothing: they do the mapping. Without, all that the container stands for, with the pair of the branch;
// only the last outcome counts.
uint32_t selection(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out,
                   std::initializer_list<Native> natives, const At &at = here());

// The same with flags, whether or not there are children and whatever the outcome.
uint32_t flagging_selection(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out,
                            std::initializer_list<Native> natives, Flags raises, const At &at = here());

// The same below `state`: selections whatever the kind.
uint32_t state_selection(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out,
                         std::initializer_list<Native> natives, const At &at = here());

// A selection whose removal is forced, since the native nodes may not exist.
uint32_t removing_selection(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out,
                            std::initializer_list<Native> natives, const At &at = here());

// The same, but each native path is a turn of its own: with its own line in the log, its own test of the kind and its
// own rewrite.
uint32_t removing_selection_by_turns(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out,
                                     std::initializer_list<Native> natives, const At &at = here());

// Nothing but the guard.
uint32_t silent(MapContext *ctx, Datatree *node, Datatree *out, const At &at = here());

// For a container with a shape of its own: says "No subtrees" and gives true, or says that its children do the mapping.
[[nodiscard]] bool maps_itself(MapContext *ctx, int32_t subtree_count, const At &at);

// ---- Bodies written by hand -----------------------------------------------------------------

// A default that leaves its node to a body written by hand. The body has the guard again.
uint32_t forward(MapContext *ctx, Datatree *node, Datatree *out, VmfLeafHandler *body, const At &at = here());

uint32_t forward(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out, VmfContainerHandler *body,
                 const At &at = here());

// Overrides that call such a body: the leaf's raises the flags afterwards, whatever the outcome, the container's
// before.
uint32_t flagging_container(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out,
                            VmfContainerHandler *body, Flags raises, const At &at = here());
uint32_t flagging_leaf(MapContext *ctx, Datatree *node, Datatree *out, VmfLeafHandler *body, Flags raises,
                       const At &at = here());
