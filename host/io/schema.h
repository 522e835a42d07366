// How the readers and writers find their way through the model while they go down a tree.
#pragma once

#include <string>
#include <string_view>

#include "nodes.h"

namespace io {

// The parent of `bgp` in the model.
inline constexpr model::OcNode schema_root = {"", model::Kind::container, model::Type::none, "", true, "", ""};

// The child of a node of the model; null if it has none of that tag, or if there is no node.
inline const model::OcNode *child_in_schema(const model::OcNode *parent, std::string_view tag)
{
    if (parent == nullptr) return nullptr;
    return model::find_oc_node(std::string(parent->path).append("/").append(tag));
}

inline bool is_leaf(const model::OcNode &node)
{
    return node.kind == model::Kind::leaf || node.kind == model::Kind::leaf_list;
}

inline bool is_repeated(const model::OcNode &node)
{
    return node.kind == model::Kind::list || node.kind == model::Kind::leaf_list;
}

}  // namespace io
