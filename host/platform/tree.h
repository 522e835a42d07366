// Trees of the platform, as the host builds and reads them. The mapping's own operations on trees stand in
// vmf_map_platform.h; both work on the same records.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "vmf_map_types.h"

namespace platform {

// Null where the field is absent.
const char *tag_of(const Datatree &node);
const char *value_of(const Datatree &node);
const char *namespace_of(const Datatree &node);
const char *data_namespace_of(const Datatree &node);
bool has_operation(const Datatree &node);

// Whether the mapping added the node for its own sake, as a selection, and did not ask for it back to build below it.
// It stays one when other handlers add below it later.
bool is_selected(const Datatree &node);

// The index of a large array (array_index.h) sees that children were added or taken out, but not that they have changed
// places, or that the key of a list entry has changed.
std::span<Datatree> children_of(const Datatree &node);

// Adds a child, whatever stands there already. `tag` and `ns` are borrowed (names.h), `ns` may be null. Null if there
// is no memory. The child is valid until the next child is added to the same parent.
Datatree *append_child(Datatree &parent, const char *tag, const char *ns);

// The adds of vmf_map_platform.h move an array too, and with it the entries of lists that the walk at hand stands at:
// `list_node`, `af_node` and their operational twins in the MapContext, and `oper_af_matched` in its RequestContext. A
// handler whose add of an entry failed goes on with the entry of before, and that may have moved since, when another
// handler added beside it; so what follows still goes into that entry, wherever it lies now. Whatever else holds a node
// across an add under its parent, holds it no longer.

// Lets every add move its parent's array of children, and spoils and releases the old one, for all threads: a test
// finds whoever holds a child across an add that may move it.
void move_arrays_at_every_add(bool moves);

// Sets the value to a copy of `value`. False if there is no memory.
bool set_value(Datatree &node, std::string_view value);
void set_operation(Datatree &node, uint32_t operation);
void set_data_namespace(Datatree &node, const char *borrowed_ns);

// Releases all that the node owns and clears the record.
void release(Datatree &node);

// A record without a parent, which releases its tree when it goes.
class Tree {
public:
    Tree() = default;
    ~Tree() { release(root_); }
    Tree(Tree &&other) noexcept : root_(other.root_) { other.root_ = {}; }
    Tree &operator=(Tree &&other) noexcept;
    Tree(const Tree &) = delete;
    Tree &operator=(const Tree &) = delete;

    Datatree &root() { return root_; }
    const Datatree &root() const { return root_; }

private:
    Datatree root_ = {};
};

// Moves the trees below the root of `from` behind those below that of `to`. Throws std::bad_alloc.
void move_trees(Tree &to, Tree from);

}  // namespace platform
