#include "tree_lines.h"

#include <algorithm>
#include <stdexcept>

#include "names.h"
#include "nodes.h"
#include "operation_names.h"
#include "vmf_map_types.h"

namespace trips {

namespace {

constexpr char family_key[] = "afi-safi-name";

struct Element {
    std::string tag;
    std::string key;  // empty: none
};

std::vector<Element> elements_of(const std::string &path)
{
    std::vector<Element> elements;
    for (size_t at = 1; at <= path.size();) {
        const size_t end = std::min(path.find('/', at), path.size());
        const std::string text = path.substr(at, end - at);
        const size_t bracket = std::min(text.find('['), text.size());
        elements.push_back({text.substr(0, bracket),
                            bracket < text.size() ? text.substr(bracket + 1, text.size() - bracket - 2) : ""});
        at = end + 1;
    }
    return elements;
}

void give_identity(Datatree &leaf, const std::string &name)
{
    platform::set_value(leaf, name);
    platform::set_data_namespace(leaf, platform::intern(OC_BGP_TYPES_NS));
}

// Of the list at this path of the schema; empty: no list.
std::string key_tag(const std::string &schema)
{
    const model::OcNode *node = model::find_oc_node(schema);
    return node != nullptr ? std::string(node->key) : "";
}

const Datatree *key_of(const Datatree &entry, const std::string &tag)
{
    for (const Datatree &child : platform::children_of(entry))
        if (!tag.empty() && platform::tag_of(child) == tag) return &child;
    return nullptr;
}

void give_value(Datatree &leaf, const std::string &value)
{
    if (platform::tag_of(leaf) == std::string_view(family_key))
        give_identity(leaf, value);
    else
        platform::set_value(leaf, value);
}

Datatree &append(Datatree &parent, const std::string &tag)
{
    return *platform::append_child(parent, platform::intern(tag), platform::intern(OC_BGP_NS));
}

Datatree &find_or_append(Datatree &parent, const Element &element, const std::string &schema)
{
    const std::string tag = key_tag(schema);
    for (Datatree &child : platform::children_of(parent)) {
        if (platform::tag_of(child) != element.tag) continue;
        const Datatree *key = key_of(child, tag);
        if (element.key.empty() || (key != nullptr && platform::value_of(*key) == element.key)) return child;
    }
    Datatree &child = append(parent, element.tag);
    if (!element.key.empty()) give_value(append(child, tag), element.key);
    return child;
}

void add(Datatree &holder, const Named &named)
{
    const std::vector<Element> elements = elements_of(named.path);
    Datatree *node = &holder;
    std::string schema;
    for (const Element &element : elements) {
        schema.append("/").append(element.tag);
        const bool is_another_value = &element == &elements.back() && is_leaf_list(named.path);
        node = is_another_value ? &append(*node, element.tag) : &find_or_append(*node, element, schema);
    }
    if (const auto operation = io::operation_of_name(named.operation)) platform::set_operation(*node, *operation);
    if (named.has_value) give_value(*node, named.value);
}

std::string shown_value(const Datatree &leaf)
{
    const char *value = platform::value_of(leaf);
    if (value == nullptr) return "";
    const char *ns = platform::data_namespace_of(leaf);
    const bool is_identity = ns != nullptr && ns == std::string_view(OC_BGP_TYPES_NS);
    return std::string(" = ") + (is_identity ? "bgp-types:" : "") + value;
}

// In brackets, behind the tag of a list.
std::string shown_key(const Datatree &entry, const std::string &tag)
{
    const Datatree *key = key_of(entry, tag);
    const std::string shown = key != nullptr ? shown_value(*key) : "";
    const std::string before = tag == family_key ? " = bgp-types:" : " = ";
    return shown.starts_with(before) ? "[" + shown.substr(before.size()) + "]" : "[no key:" + shown + "]";
}

void append_lines(const Datatree &node, std::string path, std::vector<std::string> &lines)
{
    path.append("/").append(platform::tag_of(node));
    const std::string key = key_tag(schema_path(path));
    if (!key.empty()) path += shown_key(node, key);
    if (!key.empty() || platform::children_of(node).empty()) lines.push_back(path + shown_value(node));
    for (const Datatree &child : platform::children_of(node))
        if (key.empty() || platform::tag_of(child) != key) append_lines(child, path, lines);
}

}  // namespace

platform::Tree tree_of(const std::vector<Named> &nodes)
{
    platform::Tree tree;
    for (const Named &node : nodes) add(tree.root(), node);
    return tree;
}

std::vector<std::string> lines_of(const Datatree &holder)
{
    const auto trees = platform::children_of(holder);
    if (trees.empty()) return {"nothing"};
    if (trees.size() > 1) throw std::runtime_error("an answer of more than one tree");
    if (platform::children_of(trees.front()).empty()) return {"-"};
    std::vector<std::string> lines;
    for (const Datatree &child : platform::children_of(trees.front())) append_lines(child, "/bgp", lines);
    std::sort(lines.begin(), lines.end());
    return lines;
}

std::string schema_path(const std::string &path)
{
    std::string schema;
    for (const Element &element : elements_of(path)) schema.append("/").append(element.tag);
    return schema;
}

std::vector<std::string> schema_paths_of_keys(const std::string &path)
{
    std::vector<std::string> keys;
    std::string schema;
    for (const Element &element : elements_of(path)) {
        schema.append("/").append(element.tag);
        if (!element.key.empty()) keys.push_back(schema + "/" + key_tag(schema));
    }
    return keys;
}

bool is_leaf_list(const std::string &path)
{
    const model::OcNode *node = model::find_oc_node(schema_path(path));
    return node != nullptr && node->kind == model::Kind::leaf_list;
}

}  // namespace trips
