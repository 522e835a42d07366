// The nodes of the three trees, from the lists that the generator writes, and texts to put into them.
#pragma once

#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace fuzz {

enum class Model { openconfig, cfg, oper };

struct ModelNode {
    std::vector<std::string> tags;  // the path: "bgp", "global", "config"
    std::string kind, type, key;

    bool is_leaf() const { return kind == "leaf" || kind == "leaf-list"; }
};

const std::vector<ModelNode> &nodes_of(Model model);

// The node at a path "/bgp/global"; null if the model has none.
const ModelNode *find_node(Model model, const std::string &path);

using Random = std::minstd_rand;

inline size_t below(Random &random, size_t bound)
{
    return std::uniform_int_distribution<size_t>(0, bound - 1)(random);
}

template<class Range>
const auto &any_of(Random &random, const Range &range)
{
    return *(std::begin(range) + static_cast<std::ptrdiff_t>(below(random, std::size(range))));
}

// A value that may be of that type ("" for any), or may be not.
std::string any_value(Random &random, std::string_view type);

// A tag of one of the models, or another word.
std::string any_tag(Random &random);

}  // namespace fuzz
