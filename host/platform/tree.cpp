#include "tree.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <bit>
#include <cstring>
#include <new>
#include <string>
#include <utility>

#include "array_index.h"
#include "names.h"
#include "observer.h"
#include "parsed_path.h"
#include "pool.h"
#include "vmf_map_platform.h"

namespace platform {

// ---- Records --------------------------------------------------------------------------------

static bool has(const Datatree &node, uint8_t bit) { return (node.present[0] & bit) != 0; }

const char *tag_of(const Datatree &node) { return has(node, VMF_DT_TAG) ? node.tag : nullptr; }
const char *value_of(const Datatree &node) { return has(node, VMF_DT_VALUE) ? node.value : nullptr; }
const char *namespace_of(const Datatree &node) { return has(node, VMF_DT_NAMESPACE) ? node.namespace_ : nullptr; }
const char *data_namespace_of(const Datatree &node) { return node.data_namespace; }
bool has_operation(const Datatree &node) { return has(node, VMF_DT_OPERATION); }

// The second byte of presence is the framework's own.
static constexpr uint8_t selected = 1;
static constexpr uint8_t named_by_table = 2;  // tag and namespace are those of the process's table of names
bool is_selected(const Datatree &node) { return (node.present[1] & selected) != 0; }

static inline std::span<Datatree> children(const Datatree &node)
{
    if (!has(node, VMF_DT_SUBTREES) || node.subtrees == nullptr || node.subtree_count < 1) return {};
    return {node.subtrees, static_cast<size_t>(node.subtree_count)};
}
std::span<Datatree> children_of(const Datatree &node) { return children(node); }

static std::atomic<bool> moves_arrays = false;

void move_arrays_at_every_add(bool moves) { moves_arrays = moves; }

// What a walk stands at moves along with its array. A handler whose add of a list entry failed goes on with the entry
// before, and whatever was added beside that entry meanwhile may have moved it.
static void take_entries_along(MapContext &walk, uintptr_t old_array, const Datatree &parent)
{
    const size_t size = static_cast<size_t>(parent.subtree_count) * sizeof(Datatree);
    const auto take_along = [&](Datatree *&entry) {
        const size_t offset = reinterpret_cast<uintptr_t>(entry) - old_array;
        if (offset < size) entry = parent.subtrees + offset / sizeof(Datatree);
    };
    for (Datatree **entry : {&walk.list_node, &walk.af_node, &walk.oper_list_node, &walk.oper_af_node})
        take_along(*entry);
    if (walk.request != nullptr) take_along(walk.request->oper_af_matched);
}

// Gives the array a new block, with room for one child more.
static bool move_array(Datatree &parent)
{
    const size_t size = static_cast<size_t>(parent.subtree_count) * sizeof(Datatree);
    void *block = allocate_block(size + sizeof(Datatree));
    if (block == nullptr) return false;
    std::memcpy(block, parent.subtrees, size);
    std::swap(head_of(block)->index, head_of(parent.subtrees)->index);
    constexpr int spoilt = 0xA5;
    std::memset(static_cast<void *>(parent.subtrees), spoilt, head_of(parent.subtrees)->size);
    release_block(parent.subtrees);
    parent.subtrees = static_cast<Datatree *>(block);
    parent.subtree_capacity = static_cast<uint32_t>(parent.subtree_count) + 1;
    return true;
}

// How many children the last node of a tag had that began with the same child: the next one will have as many. Entries
// of a list are alike, and an array that is right from the start neither moves nor leaves room unused.
struct alignas(32) Room {
    const char *tag;
    const char *first_child;
    uint32_t count;
};
// Looked for by the addresses of names, and those are others in each process. A set has eight places, and who comes
// anew takes that of the oldest: those in use do not drive each other out, or what a list costs would go by luck.
static Room &room_of(const Datatree &parent, ChildName added)
{
    constexpr size_t ways = 8;
    constexpr unsigned set_bits = 6;
    thread_local constinit std::array<std::array<Room, ways>, size_t{1} << set_bits> sets = {};
    const char *first_child = parent.subtree_count > 0 ? parent.subtrees->tag : added.tag;
    constexpr uint64_t spread = 0x9E3779B97F4A7C15;
    const uint64_t hash =
        (reinterpret_cast<uintptr_t>(parent.tag) + std::rotl(uint64_t{reinterpret_cast<uintptr_t>(first_child)}, 32)) *
        spread;
    std::array<Room, ways> &set = sets[hash >> (64 - set_bits)];
    for (Room &room : set)
        if (room.tag == parent.tag && room.first_child == first_child) return room;
    std::shift_right(set.begin(), set.end(), 1);
    return set.front() = {parent.tag, first_child, 0};
}

// Doubles an array that is full, so that adding a child costs the same however many there are. What room there is, the
// block tells and not the record: an array comes to a record without its capacity.
static bool grow_array(Datatree &parent, const Room &room)
{
    if (moves_arrays.load(std::memory_order_relaxed) && parent.subtrees != nullptr) return move_array(parent);
    constexpr size_t unless_known = 2;
    constexpr size_t most_at_first = 32;
    const auto count = static_cast<size_t>(parent.subtree_count);
    size_t capacity = parent.subtrees != nullptr ? head_of(parent.subtrees)->size / sizeof(Datatree) : 0;
    if (capacity > count) {
        parent.subtree_capacity = static_cast<uint32_t>(capacity);
        return true;
    }
    const size_t known = std::min<size_t>(room.count, most_at_first);
    capacity = count != 0 ? count * 2 : (known != 0 ? known : unless_known);
    void *block = grow_block(parent.subtrees, capacity * sizeof(Datatree));
    if (block == nullptr) return false;
    parent.subtrees = static_cast<Datatree *>(block);
    parent.subtree_capacity = static_cast<uint32_t>(capacity);
    return true;
}

static bool has_room(const Datatree &parent)
{
    if (parent.subtrees == nullptr || moves_arrays.load(std::memory_order_relaxed)) return false;
    const size_t size = (static_cast<size_t>(parent.subtree_count) + 1) * sizeof(Datatree);
    return size <= head_of(parent.subtrees)->size && std::cmp_greater(parent.subtree_capacity, parent.subtree_count);
}

[[gnu::noinline]] static bool make_room(MapContext *walk, Datatree &parent, const Room &room)
{
    const auto old_array = reinterpret_cast<uintptr_t>(parent.subtrees);
    if (!grow_array(parent, room)) return false;
    const bool has_moved = old_array != 0 && reinterpret_cast<uintptr_t>(parent.subtrees) != old_array;
    if (has_moved && walk != nullptr) take_entries_along(*walk, old_array, parent);
    return true;
}

// `walk` is the run of the mapping that adds, if one does.
static Datatree *append(MapContext *walk, Datatree &parent, ChildName name, uint8_t marks)
{
    if (!has(parent, VMF_DT_SUBTREES)) parent.subtrees = nullptr;
    if (parent.subtrees == nullptr || parent.subtree_count < 0) parent.subtree_count = 0;
    Room &room = room_of(parent, name);
    if (!has_room(parent) && !make_room(walk, parent, room)) return nullptr;
    if (ArrayIndex *index = head_of(parent.subtrees)->index) [[unlikely]]
        index->follow(parent.subtree_count, 1);
    parent.present[0] |= VMF_DT_SUBTREES;
    Datatree &child = parent.subtrees[parent.subtree_count++];
    room.count = static_cast<uint32_t>(parent.subtree_count);
    child = {};
    child.tag = const_cast<char *>(name.tag);
    child.present[0] = VMF_DT_TAG;
    child.present[1] = marks;
    if (name.ns != nullptr) {
        child.namespace_ = const_cast<char *>(name.ns);
        child.present[0] |= VMF_DT_NAMESPACE;
    }
    return &child;
}

Datatree *append_child(Datatree &parent, const char *tag, const char *ns)
{
    return append(nullptr, parent, {tag, ns}, 0);
}

bool set_value(Datatree &node, std::string_view value)
{
    char *copy = copy_text(value);
    if (copy == nullptr) return false;
    if (has(node, VMF_DT_VALUE)) release_text(node.value);
    node.value = copy;
    node.present[0] |= VMF_DT_VALUE;
    return true;
}

void set_operation(Datatree &node, uint32_t operation)
{
    node.operation = operation;
    node.present[0] |= VMF_DT_OPERATION;
}

void set_data_namespace(Datatree &node, const char *borrowed_ns)
{
    node.data_namespace = const_cast<char *>(borrowed_ns);
}

void release(Datatree &node) { kidl_vmf_datatree_free_ext(&node, vmf_gpb_free, 0, 0); }

Tree &Tree::operator=(Tree &&other) noexcept
{
    if (this != &other) {
        release(root_);
        root_ = other.root_;
        other.root_ = {};
    }
    return *this;
}

void move_trees(Tree &to, Tree from)
{
    for (Datatree &tree : children(from.root())) {
        Datatree *taken = append_child(to.root(), tree.tag, tree.namespace_);
        if (taken == nullptr) throw std::bad_alloc();
        std::swap(taken->subtrees, tree.subtrees);
        std::swap(taken->subtree_count, tree.subtree_count);
        std::swap(taken->present[0], tree.present[0]);
    }
}

// ---- Finding --------------------------------------------------------------------------------

static ArrayIndex &index_of(Datatree &parent)
{
    ArrayIndex *&index = head_of(parent.subtrees)->index;
    if (index == nullptr) index = new ArrayIndex;
    return *index;
}

// Names that both come from the table are the same only where their addresses are.
static bool is_named(const Datatree &node, ChildName name)
{
    if ((node.present[1] & named_by_table) == 0) return has_name(node, name);
    return node.tag == name.tag && (name.ns == nullptr || node.namespace_ == name.ns);
}

// Arrays that are large, or hold names of a document's own.
[[gnu::noinline]] static Datatree *find_child_anywhere(Datatree &parent, ChildName name)
{
    const std::span<Datatree> all = children(parent);
    if (all.size() >= indexed_from) {
        const int32_t at = index_of(parent).find_by_name(all.data(), parent.subtree_count, name);
        return at >= 0 ? &all[static_cast<size_t>(at)] : nullptr;
    }
    for (Datatree &child : all)
        if (is_named(child, name)) return &child;
    return nullptr;
}

// `name` is of the table of names, here and below.
static inline Datatree *find_child(Datatree &parent, ChildName name)
{
    const std::span<Datatree> all = children(parent);
    if (all.size() >= indexed_from) return find_child_anywhere(parent, name);
    for (Datatree &child : all) {
        if ((child.present[1] & named_by_table) == 0) return find_child_anywhere(parent, name);
        if (child.tag == name.tag && (name.ns == nullptr || child.namespace_ == name.ns)) return &child;
    }
    return nullptr;
}

static bool same_key(const char *a, const char *b)
{
    return a == nullptr || b == nullptr ? a == b : std::strcmp(a, b) == 0;
}

static Datatree *find_entry(Datatree &parent, ChildName list, const char *key_tag, const char *key_value)
{
    const std::span<Datatree> all = children(parent);
    if (all.size() >= indexed_from) {
        const int32_t at = index_of(parent).find_by_key(all.data(), parent.subtree_count, list, key_tag, key_value);
        return at >= 0 ? &all[static_cast<size_t>(at)] : nullptr;
    }
    for (Datatree &child : all)
        if (is_named(child, list) && same_key(key_value_of(child, key_tag), key_value)) return &child;
    return nullptr;
}

// ---- Adding ---------------------------------------------------------------------------------

// What an operation source says. It is taken before anything is added, since the source may lie in an array that grows.
struct Source {
    explicit Source(const Datatree *node)
        : writes(node != nullptr && !has(*node, VMF_DT_OPERATION)),
          has_operation(node != nullptr && has(*node, VMF_DT_OPERATION)), operation(has_operation ? node->operation : 0)
    {
    }

    bool writes;
    bool has_operation;
    uint32_t operation;
};

// A write below a node that is marked for removal ends as its replacement. Only a source counts as a write: what is
// added without one, a companion or a selection, leaves the mark.
static void note_write(Datatree &node, const Source &source)
{
    if (!source.writes || !has(node, VMF_DT_OPERATION)) return;
    if (node.operation == VMF_OP_DELETE || node.operation == VMF_OP_REMOVE) node.operation = VMF_OP_REPLACE;
}

// A new value is of no module until that is told anew.
static inline uint32_t give(Datatree &node, const char *value, const Source &source)
{
    if (value != nullptr) {
        if (!set_value(node, value)) return VMF_RC_NO_MEMORY;
        node.data_namespace = nullptr;
    }
    if (source.has_operation) set_operation(node, source.operation);
    return VMF_RC_OK;
}

struct Added {
    uint32_t outcome;
    Datatree *node;
};

// The end of every add.
template<class MakeOperation>
static uint32_t done(const MakeOperation &asked, const Added &added, Datatree **result)
{
    if (added.outcome != VMF_RC_OK) return added.outcome;
    if (result != nullptr) *result = added.node;
    observed_result(asked, *added.node);
    return VMF_RC_OK;
}

static Datatree *append_named(MapContext *walk, Datatree &parent, ChildName name)
{
    return append(walk, parent, name, named_by_table);
}

static Datatree *find_or_append(MapContext *walk, Datatree &parent, ChildName name)
{
    Datatree *found = find_child(parent, name);
    return found != nullptr ? found : append_named(walk, parent, name);
}

static Datatree *find_or_append_entry(MapContext *walk, Datatree &parent, ChildName list, const char *key_tag,
                                      const char *key_value)
{
    if (Datatree *found = find_entry(parent, list, key_tag, key_value)) return found;
    Datatree *entry = append_named(walk, parent, list);
    if (entry == nullptr) return nullptr;
    Datatree *key = append_named(walk, *entry, {key_tag, list.ns});
    if (key == nullptr || (key_value != nullptr && !set_value(*key, key_value))) {
        release(*entry);  // the last record of the array
        parent.subtree_count--;
        return nullptr;
    }
    return entry;
}

// ---- Paths ----------------------------------------------------------------------------------

struct Request {
    MapContext *walk;
    const char *ns;
    const char *value;
    Source source;
    bool repeat;
};

static Added add_path(Datatree &root, const char *text, const Request &request)
{
    const ParsedPath &path = parse_path(text);
    if (!path.is_path) return {VMF_RC_BAD_ARGS, nullptr};
    const PathElement *repeated = request.repeat && !path.has_key ? &path.elements.back() : nullptr;
    Datatree *node = &root;
    for (const PathElement &element : path.elements) {
        const ChildName name = {element.name, request.ns};
        if (element.key != nullptr)
            node = find_or_append_entry(request.walk, *node, name, element.key, request.value);
        else if (&element == repeated)
            node = append_named(request.walk, *node, name);
        else
            node = find_or_append(request.walk, *node, name);
        if (node == nullptr) return {VMF_RC_NO_MEMORY, nullptr};
        note_write(*node, request.source);
    }
    return {give(*node, path.has_key ? nullptr : request.value, request.source), node};
}

static uint32_t add_path_operation(const char *operation, MapContext *walk, Datatree *parent, const char *path,
                                   const char *ns, const char *value, const Datatree *source, Datatree **result,
                                   uint32_t repeat)
{
    const auto asked = [&] { return Operation{operation, parent, path, ns, value, source, repeat}; };
    if (uint32_t failed = observed(asked)) return failed;
    if (parent == nullptr || path == nullptr) return VMF_RC_BAD_ARGS;
    const Added added = add_path(*parent, path, {walk, intern(ns), value, Source(source), repeat != 0});
    const bool selects = value == nullptr && source == nullptr && result == nullptr && repeat == 0;
    if (selects && added.node != nullptr) added.node->present[1] |= selected;
    return done(asked, added, result);
}

}  // namespace platform

// ---- The mapping's operations ---------------------------------------------------------------

using namespace platform;

extern "C" {

uint32_t vmf_map_datatree_add_subtree(MapContext *ctx, Datatree *parent, const char *tag, const char *ns,
                                      const char *value, const Datatree *operation_source, Datatree **result,
                                      uint32_t flag)
{
    const auto asked = [&] {
        return Operation{"vmf_map_datatree_add_subtree", parent, tag, ns, value, operation_source, flag};
    };
    if (uint32_t failed = observed(asked)) return failed;
    if (parent == nullptr || tag == nullptr) return VMF_RC_BAD_ARGS;
    const Source source(operation_source);
    Datatree *node = find_or_append(ctx, *parent, {intern(tag), intern(ns)});
    if (node == nullptr) return VMF_RC_NO_MEMORY;
    note_write(*node, source);
    return done(asked, {give(*node, value, source), node}, result);
}

uint32_t vmf_map_datatree_add_path(MapContext *ctx, Datatree *parent, const char *path, const char *ns,
                                   const char *value, const Datatree *operation_source, Datatree **result,
                                   uint32_t repeat)
{
    return add_path_operation("vmf_map_datatree_add_path", ctx, parent, path, ns, value, operation_source, result,
                              repeat);
}

uint32_t vmf_map_datatree_add_path_common(MapContext *ctx, Datatree *parent, const char *path, const char *ns,
                                          const char *value, const Datatree *operation_source, Datatree **result,
                                          uint32_t repeat)
{
    return add_path_operation("vmf_map_datatree_add_path_common", ctx, parent, path, ns, value, operation_source,
                              result, repeat);
}

uint32_t vmf_map_datatree_add_list_node(MapContext *ctx, Datatree *parent, const char *list_tag, const char *ns,
                                        const char *key_tag, const char *key_value, Datatree **result)
{
    const auto asked = [&] {
        return Operation{"vmf_map_datatree_add_list_node", parent, list_tag, ns, key_value, nullptr, 0};
    };
    if (uint32_t failed = observed(asked)) return failed;
    if (parent == nullptr || list_tag == nullptr || key_tag == nullptr) return VMF_RC_BAD_ARGS;
    Datatree *entry = find_or_append_entry(ctx, *parent, {intern(list_tag), intern(ns)}, intern(key_tag), key_value);
    if (entry == nullptr) return VMF_RC_NO_MEMORY;
    return done(asked, {VMF_RC_OK, entry}, result);
}

uint32_t vmf_map_datatree_add_data_ns(MapContext * /*ctx*/, Datatree *parent, const char *path, const char *ns)
{
    if (uint32_t failed = observed({"vmf_map_datatree_add_data_ns", parent, path, ns})) return failed;
    if (parent == nullptr || path == nullptr) return VMF_RC_BAD_ARGS;
    const ParsedPath &parsed = parse_path(path);  // begins with the parent's own tag
    const char *tag = tag_of(*parent);
    if (path[0] == '/' || !parsed.is_path || tag == nullptr || !same_text(parsed.elements.front().name, tag))
        return VMF_RC_BAD_ARGS;
    const std::vector<PathElement> &elements = parsed.elements;
    Datatree *node = parent;
    for (size_t i = 1; i < elements.size() && node != nullptr; i++)
        node = find_child(*node, {elements[i].name, nullptr});
    if (node == nullptr) return VMF_RC_BAD_TREE;
    set_data_namespace(*node, intern(ns));
    return VMF_RC_OK;
}

uint32_t vmf_map_get_subtrees(MapContext * /*ctx*/, Datatree *node, Datatree **subtrees, int32_t *count)
{
    if (uint32_t failed = observed({"vmf_map_get_subtrees", node})) return failed;
    if (node == nullptr || subtrees == nullptr || count == nullptr) return VMF_RC_BAD_ARGS;
    const bool has_array = (node->present[0] & VMF_DT_SUBTREES) != 0;
    if (has_array && node->subtree_count != 0 && node->subtrees == nullptr) return VMF_RC_BAD_TREE;
    const std::span<Datatree> children = children_of(*node);
    *subtrees = children.empty() ? nullptr : children.data();
    *count = static_cast<int32_t>(children.size());
    return VMF_RC_OK;
}

void kidl_vmf_datatree_free_ext(Datatree *node, void (*free_callback)(void *), uint32_t zero1, uint32_t zero2)
{
    if (node == nullptr) return;
    for (Datatree &child : children_of(*node)) kidl_vmf_datatree_free_ext(&child, free_callback, zero1, zero2);
    if ((node->present[0] & VMF_DT_SUBTREES) != 0) kos_named_free(node->subtrees);
    if ((node->present[0] & VMF_DT_VALUE) != 0) free_callback(node->value);
    *node = {};
}

static void print_node(const VmfDebugContext &debug, const Datatree &node, const char *label, std::string &indent)
{
    std::string line = std::string(label) + ":" + indent;
    line += tag_of(node) != nullptr ? tag_of(node) : "-";
    if (const char *value = value_of(node)) line += std::string(" = '") + value + "'";
    _lstrace(debug.trace_buffer, VMF_LSTRACE_FLAGS, line.c_str());
    indent += "  ";
    for (const Datatree &child : children_of(node)) print_node(debug, child, label, indent);
    indent.resize(indent.size() - 2);
}

void vmf_map_print_datatree_internal(MapContext *ctx, const Datatree *tree, const char *label)
{
    if (tree == nullptr || ctx->_debug_ctx.trace_enabled == 0) return;
    std::string indent = " ";
    print_node(ctx->_debug_ctx, *tree, label, indent);
}

}  // extern "C"
