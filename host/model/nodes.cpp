#include "nodes.h"

#include <unordered_map>

namespace model {

template<class Node>
static const Node *find_by_path(std::span<const Node> nodes, std::string_view path)
{
    static const auto *const by_path = [nodes] {
        auto *map = new std::unordered_map<std::string_view, const Node *>;
        for (const Node &node : nodes) map->emplace(node.path, &node);
        return map;
    }();
    auto found = by_path->find(path);
    return found != by_path->end() ? found->second : nullptr;
}

const OcNode *find_oc_node(std::string_view path) { return find_by_path(openconfig_bgp(), path); }

const NativeNode *find_native_node(std::string_view path) { return find_by_path(native(), path); }

}  // namespace model
