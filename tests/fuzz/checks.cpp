#include "checks.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "tree.h"
#include "write.h"

namespace fuzz {

void fail(const std::string &what, const std::string &shown, const std::string &beside)
{
    std::fprintf(stderr, "does not hold: %s\n%s%s%s\n", what.c_str(), shown.c_str(), beside.empty() ? "" : "\n---\n",
                 beside.c_str());
    std::abort();
}

void check_well_formed(const Datatree &holder)
{
    for (const Datatree &node : platform::children_of(holder)) {
        constexpr uint8_t known = VMF_DT_TAG | VMF_DT_VALUE | VMF_DT_NAMESPACE | VMF_DT_OPERATION | VMF_DT_SUBTREES;
        require((node.present[0] & ~known) == 0, "only bits of known fields");
        require(platform::tag_of(node) != nullptr && *platform::tag_of(node) != '\0', "a node has a tag");
        require((node.value != nullptr) == (platform::value_of(node) != nullptr), "a value and its bit");
        require((node.namespace_ != nullptr) == (platform::namespace_of(node) != nullptr), "a namespace and its bit");
        require(platform::has_operation(node) ? node.operation <= VMF_OP_REMOVE : node.operation == 0,
                "an operation is one of five, and has its bit");
        const bool has_array = (node.present[0] & VMF_DT_SUBTREES) != 0;
        require(has_array ? node.subtree_count >= 0 : node.subtrees == nullptr && node.subtree_count == 0,
                "children and their bit");
        require(node.subtree_count == 0 || node.subtrees != nullptr, "children that are counted are there");
        check_well_formed(node);
    }
}

static bool are_equal(const char *a, const char *b)
{
    return a == nullptr || b == nullptr ? a == b : std::strcmp(a, b) == 0;
}

bool are_same(const Datatree &a, const Datatree &b)
{
    if (!are_equal(platform::tag_of(a), platform::tag_of(b)) ||
        !are_equal(platform::value_of(a), platform::value_of(b)) ||
        !are_equal(platform::namespace_of(a), platform::namespace_of(b)) ||
        !are_equal(platform::data_namespace_of(a), platform::data_namespace_of(b)) ||
        platform::has_operation(a) != platform::has_operation(b) ||
        (platform::has_operation(a) && a.operation != b.operation))
        return false;
    const auto of_a = platform::children_of(a);
    const auto of_b = platform::children_of(b);
    if (of_a.size() != of_b.size()) return false;
    for (size_t i = 0; i < of_a.size(); i++)
        if (!are_same(of_a[i], of_b[i])) return false;
    return true;
}

std::string text_of(const Datatree &holder) { return io::write_tree(holder, io::Secrets::shown); }

}  // namespace fuzz
