// What a node of a tree holds. A field counts only while its presence bit is set.
#pragma once

#include "vmf_map_types.h"

inline const char *tag_of(const Datatree *node) { return (node->present[0] & VMF_DT_TAG) != 0 ? node->tag : nullptr; }

inline const char *value_of(const Datatree *node)
{
    return (node->present[0] & VMF_DT_VALUE) != 0 ? node->value : nullptr;
}

inline bool has_value(const Datatree *node) { return (node->present[0] & VMF_DT_VALUE) != 0; }

inline bool has_operation(const Datatree *node) { return (node->present[0] & VMF_DT_OPERATION) != 0; }

inline bool has_subtrees(const Datatree *node) { return (node->present[0] & VMF_DT_SUBTREES) != 0; }

inline void set_operation(Datatree *node, uint32_t operation)
{
    node->operation = operation;
    node->present[0] |= VMF_DT_OPERATION;
}

// A node takes the edit operation of its source, if the source carries one.
inline void copy_operation(Datatree *node, const Datatree *source)
{
    if (source != nullptr && has_operation(source)) set_operation(node, source->operation);
}

struct Children {
    Datatree *first;
    int32_t count;  // never below 0
};

// A container without children is none the less a node; a count without an array is a corrupt tree.
inline bool is_corrupt(const Datatree *node)
{
    return has_subtrees(node) && node->subtree_count != 0 && node->subtrees == nullptr;
}

inline Children children_of(const Datatree *node)
{
    if (!has_subtrees(node) || node->subtree_count < 1) return {nullptr, 0};
    return {node->subtrees, node->subtree_count};
}
