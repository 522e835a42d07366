#include <algorithm>

#include "node.h"

std::string symbol_part(const Node &node)
{
    constexpr size_t root = sizeof "/bgp" - 1;
    std::string part = node.path.substr(root);
    part.erase(std::remove(part.begin(), part.end(), '-'), part.end());
    std::replace(part.begin(), part.end(), '/', '_');
    return part;
}

static std::string symbol(const Node &node, const std::string &kind)
{
    return "vmf_map_" + kind + node.tree + "_bgp" + symbol_part(node);
}

static std::string kind_word(const Node &node) { return node.is_leaf() ? "leaf_" : "cont_"; }

std::string walker_symbol(const Node &node) { return symbol(node, ""); }

std::string handler_symbol(const Node &node) { return symbol(node, kind_word(node)); }

std::string default_symbol(const Node &node) { return "__" + handler_symbol(node); }

std::string man_symbol(const Node &node) { return symbol(node, "man_" + kind_word(node)); }

bool Node::lies_below_state() const { return (path + "/").find("/state/") != std::string::npos; }
