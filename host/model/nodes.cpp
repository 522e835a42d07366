#include "nodes.h"

#include <unordered_map>

namespace model {

const OcNode *find_oc_node(std::string_view path)
{
    static const auto *const by_path = [] {
        auto *nodes = new std::unordered_map<std::string_view, const OcNode *>;
        for (const OcNode &node : openconfig_bgp()) nodes->emplace(node.path, &node);
        return nodes;
    }();
    auto found = by_path->find(path);
    return found != by_path->end() ? found->second : nullptr;
}

}  // namespace model
