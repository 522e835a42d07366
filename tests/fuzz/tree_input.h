// Trees as the fuzzers are given them: a text, so that a corpus can be read, and a mutator that knows the models.
//
//   # kind=10 config_named=1                    words of the request, and of the run
//   bgp {c}                                     a namespace: o, t, c or p; without one that of the parent
//    instance
//     instance-name = default                   a value, up to the line's end
//     instance-as [3] !null                     an operation; a malformed node
//    afi-safi-name <t> = IPV4_UNICAST           a data namespace
//
// Any bytes are such a text: what makes no sense is read over.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model_nodes.h"
#include "tree.h"

namespace fuzz {

struct Line {
    size_t depth = 0;
    std::string tag;
    std::optional<uint32_t> operation;
    char ns = 0;       // 0: the parent's
    char data_ns = 0;  // 0: none
    std::string shape;
    std::optional<std::string> value;
};

struct TreeInput {
    std::map<std::string, uint32_t> words;
    std::vector<Line> lines;

    uint32_t word(const std::string &name, uint32_t otherwise = 0) const;
};

TreeInput read_input(std::string_view text);
std::string write_input(const TreeInput &input);

// The lines as children of a holder.
platform::Tree build(const std::vector<Line> &lines);

// The lines of a tree, whose root stands at depth 0.
std::vector<Line> lines_of(const Datatree &tree);

// Puts a node of the model, with what leads to it, into the tree or beside what is there.
void add_node(std::vector<Line> &lines, Model model, Random &random);

// Changes a few things. `models` are those of the trees; `words` may be set.
struct Choice {
    std::vector<Model> models;
    std::vector<const char *> words;
    bool well_formed = false;  // no malformed nodes, only names that XML and JSON have
};
void mutate(TreeInput &input, const Choice &choice, Random &random);

// What a fuzzer's own mutator does with such a text.
size_t mutate_text(uint8_t *data, size_t size, size_t most, unsigned seed, const Choice &choice);

// One tree of `a` with a part of `b` in it.
size_t cross_texts(std::string_view a, std::string_view b, uint8_t *out, size_t most, unsigned seed);

}  // namespace fuzz
