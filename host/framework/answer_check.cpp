#include "answer_check.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "names.h"
#include "nodes.h"
#include "tree.h"

namespace framework {

namespace {

bool is_number_up_to(std::string_view text, uint64_t largest)
{
    uint64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() && number <= largest;
}

bool is_decimal(std::string_view text)
{
    if (text.starts_with('-')) text.remove_prefix(1);
    const auto is_digit = [](char c) { return c >= '0' && c <= '9'; };
    return !text.empty() && is_digit(text.front()) &&
           std::all_of(text.begin(), text.end(), [&](char c) { return is_digit(c) || c == '.'; });
}

bool fits(const Datatree &node, model::Type type)
{
    const char *value = platform::value_of(node);
    if (value == nullptr) return type == model::Type::empty_;
    switch (type) {
    case model::Type::boolean_: return value == std::string_view("true") || value == std::string_view("false");
    case model::Type::uint8_: return is_number_up_to(value, std::numeric_limits<uint8_t>::max());
    case model::Type::uint16_: return is_number_up_to(value, std::numeric_limits<uint16_t>::max());
    case model::Type::uint32_: return is_number_up_to(value, std::numeric_limits<uint32_t>::max());
    case model::Type::uint64_: return is_number_up_to(value, std::numeric_limits<uint64_t>::max());
    case model::Type::decimal64_: return is_decimal(value);
    default: return true;
    }
}

void check_node(const Datatree &node, const std::string &parent, std::vector<std::string> &lines)
{
    const std::string path = parent + "/" + platform::tag_of(node);
    const model::OcNode *model = model::find_oc_node(path);
    if (model == nullptr) {
        lines.push_back(path + " is not in the OpenConfig model");
        return;
    }
    const bool is_leaf = model->kind == model::Kind::leaf || model->kind == model::Kind::leaf_list;
    if (is_leaf && !fits(node, model->type))
        lines.push_back(path + (platform::value_of(node) == nullptr
                                    ? " has no value"
                                    : std::string(" has the value \"") + platform::value_of(node) +
                                          "\", which does not fit its type"));
    if (is_leaf && model->type == model::Type::identityref_ && platform::value_of(node) != nullptr &&
        platform::data_namespace_of(node) == nullptr)
        lines.push_back(path + " holds the native word \"" + platform::value_of(node) + "\"");
    for (const Datatree &child : platform::children_of(node)) check_node(child, path, lines);
}

bool is_identity(std::string_view word)
{
    const auto known = model::openconfig_bgp_identities();
    return std::find(known.begin(), known.end(), word) != known.end();
}

void qualify_below(Datatree &node, const std::string &parent)
{
    const std::string path = parent + "/" + platform::tag_of(node);
    const model::OcNode *model = model::find_oc_node(path);
    if (model == nullptr) return;
    const char *value = platform::value_of(node);
    if (model->type == model::Type::identityref_ && value != nullptr && platform::data_namespace_of(node) == nullptr &&
        is_identity(value))
        platform::set_data_namespace(node, platform::intern(OC_BGP_TYPES_NS));
    for (Datatree &child : platform::children_of(node)) qualify_below(child, path);
}

bool is_state(const std::string &path)
{
    const model::OcNode *model = model::find_oc_node(path);
    return model != nullptr && !model->config;
}

// A container that held nothing else goes with its state.
void drop_state_below(Datatree &node, const std::string &path)
{
    int32_t kept = 0;
    for (Datatree &child : platform::children_of(node)) {
        const std::string child_path = path + "/" + platform::tag_of(child);
        const bool was_empty = platform::children_of(child).empty();
        drop_state_below(child, child_path);
        if (is_state(child_path) || (!was_empty && platform::children_of(child).empty()))
            platform::release(child);
        else
            std::swap(node.subtrees[kept++], child);
    }
    if (kept < node.subtree_count) node.subtree_count = kept;
}

}  // namespace

void drop_state(Datatree &answer) { drop_state_below(answer, ""); }

void qualify_identities(Datatree &answer)
{
    for (Datatree &tree : platform::children_of(answer)) qualify_below(tree, "");
}

std::vector<std::string> check_answer(const Datatree &answer)
{
    std::vector<std::string> lines;
    for (const Datatree &tree : platform::children_of(answer)) check_node(tree, "", lines);
    return lines;
}

}  // namespace framework
