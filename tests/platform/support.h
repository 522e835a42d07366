// What the tests of the platform share: an add in one line, and the tree as text.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "tree_text.h"
#include "vmf_map_platform.h"

namespace test {

inline std::string text_of(const platform::Tree &tree) { return io::write_tree(tree.root(), io::Secrets::shown); }

// The operation sources of an edit: a node that carries an operation, and one that is simply written.
inline Datatree source_with(uint32_t operation)
{
    Datatree source = {};
    platform::set_operation(source, operation);
    return source;
}
inline const Datatree removal = source_with(VMF_OP_REMOVE);
inline const Datatree plain_write = {};

// The arguments that most adds leave alone.
struct With {
    const char *value = nullptr;
    const Datatree *source = nullptr;
    uint32_t repeat = 0;
    const char *ns = ZR_BGP_CFG_NS;
};

// Adds a path, which must succeed; gives the node of its last element.
inline Datatree *add(Datatree &parent, const char *path, const With &with = {})
{
    Datatree *node = nullptr;
    EXPECT_EQ(vmf_map_datatree_add_path(nullptr, &parent, path, with.ns, with.value, with.source, &node, with.repeat),
              VMF_RC_OK)
        << path;
    return node;
}

// Finds or adds the entry of that key in the list "neighbor".
inline Datatree *add_neighbor(Datatree &parent, const char *address)
{
    Datatree *entry = nullptr;
    EXPECT_EQ(vmf_map_datatree_add_list_node(nullptr, &parent, "neighbor", ZR_BGP_CFG_NS, "neighbor-address", address,
                                             &entry),
              VMF_RC_OK);
    return entry;
}
inline Datatree *add_neighbor(Datatree &parent, const std::string &address)
{
    return add_neighbor(parent, address.c_str());
}

// What the mapping keeps of a child when it moves it: the array, its count and its presence bit.
inline void move_children(Datatree &from, Datatree &to)
{
    to.subtrees = from.subtrees;
    to.subtree_count = from.subtree_count;
    to.present[0] |= VMF_DT_SUBTREES;
    from = {};
}

}  // namespace test
