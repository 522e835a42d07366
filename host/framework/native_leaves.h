// The leaves of a native response, for people: by their paths, and by what a native request selects.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "tree.h"
#include "write.h"

namespace framework {

// Empty for a node without a tag.
std::string_view tag_text(const Datatree &node);

// The first child of that tag; null if there is none, or no node.
const Datatree *find_child(const Datatree *node, std::string_view tag);

bool has_same_value(const Datatree &a, const Datatree &b);

// In the quotes that the value does not hold.
std::string in_quotes(std::string_view value);

struct NativeLeaf {
    const Datatree *leaf;
    std::string path;         // with the keys of the entries above
    std::string schema;       // without, behind the short name of the model: "zr-cfg/bgp/instance/instance-name"
    std::string_view parent;  // the tag above
};

// Below a holder of native trees, which outlives what comes back.
std::vector<NativeLeaf> native_leaves(const Datatree &holder);

// The path and the value, which is hidden if it is a password.
std::string shown(const NativeLeaf &leaf, io::Secrets secrets);

// The schema path of the root of a native tree: "zr-cfg/bgp".
std::string schema_of_root(const Datatree &tree);

// What native requests select of one response.
class Selector {
public:
    // `response` is a holder of native trees, and outlives this.
    explicit Selector(const Datatree &response) : response_(response) {}

    // The leaves that the native trees below `request` select: as a subtree filter does (RFC 6241, section 6), but for
    // entries and containers that the mapping added on the way to something, which would select all that they hold.
    std::unordered_set<const Datatree *> leaves(const Datatree &request);

private:
    using Entries = std::unordered_multimap<std::string_view, const Datatree *>;  // by the value of a key

    void select(const Datatree &request, const Datatree &response, std::unordered_set<const Datatree *> &selected);
    const Entries &entries_of(const Datatree &parent, std::string_view list, std::string_view key);

    const Datatree &response_;
    std::unordered_map<std::string, Entries> entries_;
};

}  // namespace framework
