#include "native_leaves.h"

#include <algorithm>

#include "reading.h"
#include "secrets.h"
#include "tree_text.h"

namespace framework {

std::string_view tag_text(const Datatree &node)
{
    const char *tag = platform::tag_of(node);
    return tag != nullptr ? tag : "";
}

const Datatree *find_child(const Datatree *node, std::string_view tag)
{
    if (node == nullptr) return nullptr;
    for (const Datatree &child : platform::children_of(*node))
        if (tag_text(child) == tag) return &child;
    return nullptr;
}

bool has_same_value(const Datatree &a, const Datatree &b)
{
    const char *one = platform::value_of(a);
    const char *other = platform::value_of(b);
    return one != nullptr && other != nullptr && std::string_view(one) == other;
}

std::string in_quotes(std::string_view value)
{
    const char quote = value.find('\'') == std::string_view::npos ? '\'' : '"';
    return quote + std::string(value) + quote;
}

// ---- The leaves of a tree -------------------------------------------------------------------

namespace {

bool repeats_in(const Datatree &node, const Datatree &parent)
{
    const auto siblings = platform::children_of(parent);
    return std::count_if(siblings.begin(), siblings.end(),
                         [&](const Datatree &sibling) { return tag_text(sibling) == tag_text(node); }) > 1;
}

// The first leaf of an entry is its key in the native trees; what repeats is an entry.
std::string name_in(const Datatree &node, const Datatree &parent)
{
    std::string name(tag_text(node));
    const auto children = platform::children_of(node);
    if (children.empty()) return name;
    const Datatree &first = children.front();
    const std::string_view tag = tag_text(first);
    const char *value = platform::value_of(first);
    if (value != nullptr && (tag.ends_with("-name") || tag.ends_with("-address") || repeats_in(node, parent)))
        name.append("[").append(tag).append("=").append(in_quotes(value)).append("]");
    return name;
}

void collect(const Datatree &node, const Datatree &parent, const std::string &above, const std::string &schema_above,
             std::vector<NativeLeaf> &leaves)
{
    const std::string path = above + "/" + name_in(node, parent);
    const std::string schema = schema_above + "/" + std::string(tag_text(node));
    if (platform::children_of(node).empty()) leaves.push_back({&node, path, schema, tag_text(parent)});
    for (const Datatree &child : platform::children_of(node)) collect(child, node, path, schema, leaves);
}

// The two native trees have roots of one name.
std::string model_of(const Datatree &tree)
{
    const char *ns = platform::namespace_of(tree);
    return ns != nullptr ? std::string(io::short_name(ns)) : "";
}

void take_leaves(const Datatree &node, std::unordered_set<const Datatree *> &leaves)
{
    if (platform::children_of(node).empty()) leaves.insert(&node);
    for (const Datatree &child : platform::children_of(node)) take_leaves(child, leaves);
}

// The leaf that tells an entry of a request from others; null if it has none.
const Datatree *first_match(const Datatree &request)
{
    for (const Datatree &child : platform::children_of(request))
        if (platform::value_of(child) != nullptr) return &child;
    return nullptr;
}

}  // namespace

std::vector<NativeLeaf> native_leaves(const Datatree &holder)
{
    std::vector<NativeLeaf> leaves;
    for (const Datatree &tree : platform::children_of(holder)) collect(tree, holder, "", model_of(tree), leaves);
    return leaves;
}

std::string shown(const NativeLeaf &leaf, io::Secrets secrets)
{
    const char *value = platform::value_of(*leaf.leaf);
    if (value == nullptr) return leaf.path;
    const std::string parent(leaf.parent);
    const bool hides = secrets == io::Secrets::hidden && io::is_secret(platform::tag_of(*leaf.leaf), parent.c_str());
    return leaf.path + " = " + (hides ? std::string(io::hidden_value) : io::on_one_line(value));
}

std::string schema_of_root(const Datatree &tree) { return model_of(tree) + "/" + std::string(tag_text(tree)); }

// ---- What a request selects -----------------------------------------------------------------

const Selector::Entries &Selector::entries_of(const Datatree &parent, std::string_view list, std::string_view key)
{
    std::string name = std::to_string(reinterpret_cast<uintptr_t>(&parent));
    name.append("/").append(list).append("/").append(key);
    const auto [place, is_new] = entries_.try_emplace(name);
    if (!is_new) return place->second;
    for (const Datatree &child : platform::children_of(parent)) {
        const Datatree *own = tag_text(child) == list ? find_child(&child, key) : nullptr;
        if (own != nullptr && platform::value_of(*own) != nullptr)
            place->second.emplace(platform::value_of(*own), &child);
    }
    return place->second;
}

// A leaf with a value has to match, and is not what was asked for.
void Selector::select(const Datatree &request, const Datatree &response, std::unordered_set<const Datatree *> &selected)
{
    const auto wanted = platform::children_of(request);
    for (const Datatree &match : wanted) {
        if (platform::value_of(match) == nullptr) continue;
        const Datatree *own = find_child(&response, tag_text(match));
        if (own == nullptr || !has_same_value(match, *own)) return;
    }
    if (wanted.empty() && platform::is_selected(request)) take_leaves(response, selected);
    for (const Datatree &one : wanted) {
        if (platform::value_of(one) != nullptr) continue;
        if (const Datatree *key = first_match(one)) {
            const auto [first, last] =
                entries_of(response, tag_text(one), tag_text(*key)).equal_range(platform::value_of(*key));
            for (auto entry = first; entry != last; ++entry) select(one, *entry->second, selected);
        } else {
            for (const Datatree &child : platform::children_of(response))
                if (tag_text(one) == tag_text(child)) select(one, child, selected);
        }
    }
}

std::unordered_set<const Datatree *> Selector::leaves(const Datatree &request)
{
    std::unordered_set<const Datatree *> selected;
    for (const Datatree &asked : platform::children_of(request))
        for (const Datatree &given : platform::children_of(response_))
            if (model_of(given) == model_of(asked)) select(asked, given, selected);
    return selected;
}

}  // namespace framework
