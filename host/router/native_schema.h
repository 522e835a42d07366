// The models as libyang compiled them from the texts in the program, with what the router asks of each node at hand.
#pragma once

#include <libyang/libyang.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace router {

struct Schema {
    enum class Kind { container, list, leaf, leaf_list };

    Kind kind = Kind::container;
    const char *tag = nullptr;  // interned; null: the root of a module
    const char *ns = nullptr;   // interned
    bool is_key = false;
    bool is_empty = false;       // a leaf of type empty
    bool in_user_order = false;  // a list or leaf-list whose order says something
    size_t place = 0;            // among its siblings
    size_t key_count = 0;        // a list begins with its keys; a leaf-list is its own one
    const lysc_node *compiled = nullptr;
    std::vector<Schema> children = {};  // in the order of the model
    std::unordered_map<std::string_view, size_t> places = {};

    bool is_terminal() const { return kind == Kind::leaf || kind == Kind::leaf_list; }

    // The child of that tag, and of the module's own namespace or of none; or null.
    const Schema *find_child(const char *child_tag, const char *child_ns) const;
};

// All of the process share one set. The roots are above `bgp`, which is the only child of each.
struct Models {
    ly_ctx *context;
    Schema config;
    Schema operational;
    Schema openconfig;

    // The root whose children are of that namespace; null if no module is.
    const Schema *find_root(const char *ns) const;
};

const Models &models();

// A value of a leaf or leaf-list as the model writes it ("01" is "1" as a number, "2001:DB8::1" "2001:db8::1" as an
// address); none, and the reason in `why`, if its type refuses it or no XML can hold it.
std::optional<std::string> canonical_value(const Schema &terminal, std::string_view value, std::string *why = nullptr);

}  // namespace router
