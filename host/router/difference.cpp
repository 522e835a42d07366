#include "difference.h"

#include <algorithm>
#include <cstring>
#include <set>
#include <unordered_map>
#include <vector>

#include "native_path.h"
#include "tree.h"
#include "tree_text.h"

namespace router {

namespace {

// ---- Nodes ----------------------------------------------------------------------------------

// A node, and what it is known by among its siblings.
struct Known {
    const Datatree *node;
    const Schema *schema;  // null: no model has it
    std::string element;   // of a path
    bool is_paired = false;
    size_t partner = 0;  // the place of the same node in the other tree

    bool is_same(const Known &other) const
    {
        if (schema != other.schema || element != other.element) return false;
        return !is_value() || value() == other.value();
    }
    bool is_value() const { return schema != nullptr && schema->kind == Schema::Kind::leaf_list; }
    std::string_view value() const
    {
        const char *text = platform::value_of(*node);
        return text != nullptr ? text : "";
    }
    std::string id() const
    {
        const std::string whole = schema != nullptr ? schema->ns + element : element;
        return is_value() ? whole + "=" + std::string(value()) : whole;
    }
};

const char *tag_of(const Datatree &node)
{
    const char *tag = platform::tag_of(node);
    return tag != nullptr ? tag : "";
}

const char *find_value(const Datatree &entry, const Schema &key)
{
    const auto children = platform::children_of(entry);
    const auto found = std::find_if(children.begin(), children.end(),
                                    [&key](const Datatree &child) { return std::strcmp(tag_of(child), key.tag) == 0; });
    return found != children.end() ? platform::value_of(*found) : nullptr;
}

std::vector<std::string> keys_of_entry(const Datatree &entry, const Schema &schema)
{
    std::vector<std::string> keys;
    for (size_t i = 0; i < schema.key_count; i++) {
        const char *value = find_value(entry, schema.children[i]);
        keys.emplace_back(value != nullptr ? value : "");
    }
    return keys;
}

Known know(const Datatree &node, const Schema *parent)
{
    Known known = {&node, nullptr, {}};
    if (parent != nullptr) known.schema = parent->find_child(platform::tag_of(node), platform::namespace_of(node));
    const bool is_entry = known.schema != nullptr && known.schema->kind == Schema::Kind::list;
    if (is_entry)
        append_element(known.element, *known.schema, keys_of_entry(node, *known.schema));
    else
        known.element.append("/").append(tag_of(node));
    return known;
}

// The children of a node; the keys of an entry stand in its element.
std::vector<Known> know_children(const Datatree &node, const Schema *schema)
{
    const bool is_holder = schema == nullptr && platform::tag_of(node) == nullptr;
    std::vector<Known> all;
    for (const Datatree &child : platform::children_of(node)) {
        Known known = know(child, is_holder ? models().find_root(platform::namespace_of(child)) : schema);
        if (known.schema == nullptr || !known.schema->is_key) all.push_back(std::move(known));
    }
    return all;
}

// ---- Pairs ----------------------------------------------------------------------------------

void pair_up(std::vector<Known> &before, size_t place_before, std::vector<Known> &after, size_t place_after)
{
    before[place_before].is_paired = after[place_after].is_paired = true;
    before[place_before].partner = place_after;
    after[place_after].partner = place_before;
}

// Most stand where they stood. The others are found by a hash.
void pair_same(std::vector<Known> &before, std::vector<Known> &after)
{
    for (size_t i = 0; i < std::min(before.size(), after.size()); i++)
        if (before[i].is_same(after[i])) pair_up(before, i, after, i);

    std::unordered_multimap<std::string, size_t> places;
    for (size_t i = 0; i < before.size(); i++)
        if (!before[i].is_paired) places.emplace(before[i].id(), i);
    for (size_t i = 0; i < after.size() && !places.empty(); i++) {
        if (after[i].is_paired) continue;
        const auto found = places.find(after[i].id());
        if (found == places.end()) continue;
        pair_up(before, found->second, after, i);
        places.erase(found);
    }
}

// Values in another order than before are no pairs, where the order is the user's.
void part_reordered(std::vector<Known> &before, std::vector<Known> &after)
{
    std::unordered_map<const Schema *, size_t> last;
    std::set<const Schema *> reordered;
    for (const Known &known : before) {
        if (!known.is_value() || !known.schema->in_user_order || !known.is_paired) continue;
        const auto [found, is_first] = last.emplace(known.schema, known.partner);
        if (!is_first && known.partner < found->second) reordered.insert(known.schema);
        found->second = known.partner;
    }
    for (auto *all : {&before, &after})
        for (Known &known : *all)
            if (reordered.contains(known.schema)) known.is_paired = false;
}

// ---- Lines ----------------------------------------------------------------------------------

// " = VALUE" as a tree in text has it: on one line, and hidden if it is a secret.
std::string shown_value(const Datatree &leaf, const Datatree &parent, io::Secrets secrets)
{
    if (platform::value_of(leaf) == nullptr) return {};
    Datatree holder = parent;
    holder.subtrees = const_cast<Datatree *>(&leaf);
    holder.subtree_count = 1;
    const std::string line = io::write_tree(holder, secrets);
    const size_t begin = line.find(" = ");
    return line.substr(begin, line.find('\n') - begin);
}

struct Report {
    io::Secrets secrets;
    std::string lines = {};

    void add(char sign, const std::string &path, const Datatree &node, const Datatree &parent)
    {
        lines.append({sign, ' '}).append(path).append(shown_value(node, parent, secrets)).append("\n");
    }
};

void report_one(char sign, const Known &known, const Datatree &parent, const std::string &outer, Report &report)
{
    const std::string path = outer + known.element;
    const bool is_entry = known.schema != nullptr && known.schema->kind == Schema::Kind::list;
    if (is_entry || platform::children_of(*known.node).empty()) report.add(sign, path, *known.node, parent);
    for (const Known &child : know_children(*known.node, known.schema))
        report_one(sign, child, *known.node, path, report);
}

void compare_children(const Datatree &before, const Datatree &after, const Schema *schema, const std::string &path,
                      Report &report);

void compare_pair(const Known &before, const Known &after, const Datatree &parent_before, const Datatree &parent_after,
                  const std::string &outer, Report &report)
{
    const std::string path = outer + before.element;
    if (before.value() != after.value()) {
        report.add('-', path, *before.node, parent_before);
        report.add('+', path, *after.node, parent_after);
    }
    compare_children(*before.node, *after.node, before.schema, path, report);
}

void compare_children(const Datatree &before, const Datatree &after, const Schema *schema, const std::string &path,
                      Report &report)
{
    std::vector<Known> old_nodes = know_children(before, schema);
    std::vector<Known> new_nodes = know_children(after, schema);
    pair_same(old_nodes, new_nodes);
    part_reordered(old_nodes, new_nodes);

    size_t next = 0;  // of the new nodes: those before it are reported
    const auto report_new_up_to = [&](size_t end) {
        for (; next < end; next++)
            if (!new_nodes[next].is_paired) report_one('+', new_nodes[next], after, path, report);
    };
    for (const Known &known : old_nodes) {
        if (!known.is_paired) {
            report_one('-', known, before, path, report);
            continue;
        }
        report_new_up_to(known.partner);
        compare_pair(known, new_nodes[known.partner], before, after, path, report);
    }
    report_new_up_to(new_nodes.size());
}

}  // namespace

std::string difference(const Datatree &before, const Datatree &after, io::Secrets secrets)
{
    Report report = {secrets};
    compare_children(before, after, nullptr, {}, report);
    return report.lines;
}

}  // namespace router
