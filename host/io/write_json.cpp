#include <algorithm>
#include <charconv>
#include <limits>
#include <nlohmann/json.hpp>
#include <unordered_map>

#include "modules.h"
#include "nodes.h"
#include "operation_names.h"
#include "secrets.h"
#include "tree.h"
#include "write.h"

namespace io {

namespace {

using Json = nlohmann::ordered_json;

// A node as its model has it.
struct Shape {
    std::string path = {};  // as the tables of models have it; empty: of no model
    model::Kind kind = model::Kind::container;
    model::Type type = model::Type::none;

    bool is_leaf() const { return kind == model::Kind::leaf || kind == model::Kind::leaf_list; }
    bool is_repeated() const { return kind == model::Kind::list || kind == model::Kind::leaf_list; }
};

std::string_view text_or_empty(const char *text) { return text != nullptr ? text : ""; }

// ---- Values ---------------------------------------------------------------------------------

// A text that is not a number just as JSON writes it stays a string: nothing of it may get lost.
Json number_or_string(std::string_view text, uint64_t largest)
{
    uint64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool is_number = error == std::errc() && end == text.data() + text.size() && number <= largest;
    if (!is_number || std::to_string(number) != text) return std::string(text);
    return number;
}

Json typed_value(model::Type type, std::string_view text)
{
    switch (type) {
    case model::Type::boolean_:
        if (text == "true" || text == "false") return text == "true";
        return std::string(text);
    case model::Type::uint8_: return number_or_string(text, std::numeric_limits<uint8_t>::max());
    case model::Type::uint16_: return number_or_string(text, std::numeric_limits<uint16_t>::max());
    case model::Type::uint32_: return number_or_string(text, std::numeric_limits<uint32_t>::max());
    default: return std::string(text);
    }
}

// Where no module is known by the namespace, that stands itself: bare, the identity would be one of the leaf's module.
std::string qualified_identity(std::string_view ns, std::string_view name)
{
    const std::string_view module = module_of_namespace(ns);
    return std::string(module.empty() ? ns : module).append(":").append(name);
}

Json written_value(const Datatree &node, const Datatree &parent, const Shape &shape, Secrets secrets)
{
    const char *value = platform::value_of(node);
    if (value == nullptr) return nullptr;
    if (secrets == Secrets::hidden && is_secret(platform::tag_of(node), platform::tag_of(parent))) return hidden_value;
    if (const char *ns = platform::data_namespace_of(node)) return qualified_identity(ns, value);
    return typed_value(shape.type, value);
}

// ---- Members --------------------------------------------------------------------------------

// What the paths of a model begin with; null for a namespace that is of none.
const char *root_of_namespace(std::string_view ns)
{
    if (ns == OC_BGP_NS) return "";
    if (ns == ZR_BGP_CFG_NS) return "configuration";
    return ns == ZR_BGP_OPER_NS ? "operational" : nullptr;
}

Shape shape_of(const Datatree &node, const Shape &parent)
{
    const char *root = root_of_namespace(text_or_empty(platform::namespace_of(node)));
    if (root == nullptr) return {};
    const bool is_root = std::string_view(platform::tag_of(node)) == "bgp";
    std::string path = std::string(is_root ? root : parent.path).append("/").append(platform::tag_of(node));
    if (const model::OcNode *found = model::find_oc_node(path)) return {std::move(path), found->kind, found->type};
    if (const model::NativeNode *found = model::find_native_node(path))
        return {std::move(path), found->kind, found->type};
    return {};
}

std::string member_name(const Datatree &node, const Datatree &parent)
{
    const std::string_view ns = text_or_empty(platform::namespace_of(node));
    const std::string_view module = module_of_namespace(ns);
    const bool is_qualified = !module.empty() && ns != text_or_empty(platform::namespace_of(parent));
    return is_qualified ? std::string(module) + ":" + platform::tag_of(node) : platform::tag_of(node);
}

// Siblings of one name become one member.
struct Member {
    std::string name;
    Shape shape;
    std::vector<const Datatree *> nodes;

    bool is_array() const { return nodes.size() > 1 || shape.is_repeated(); }
};

std::vector<Member> members_of(const Datatree &holder, const Shape &shape)
{
    std::vector<Member> members;
    std::unordered_map<std::string, size_t> by_name;
    for (const Datatree &node : platform::children_of(holder)) {
        const auto [at, is_new] = by_name.emplace(member_name(node, holder), members.size());
        if (is_new) members.push_back({at->first, shape_of(node, shape), {}});
        members[at->second].nodes.push_back(&node);
    }
    return members;
}

// ---- Objects --------------------------------------------------------------------------------

// Without a search for the name: the caller knows that it is new.
void add_member(Json &object, std::string name, Json value)
{
    object.get_ref<Json::object_t &>().emplace_back(std::move(name), std::move(value));
}

bool is_object(const Datatree &node, const Shape &shape)
{
    if (!platform::children_of(node).empty()) return true;
    return platform::value_of(node) == nullptr && !shape.path.empty() && !shape.is_leaf();
}

Json operation_of(const Datatree &node)
{
    if (!platform::has_operation(node)) return nullptr;
    return Json::object({{json_operation, name_of_operation(node.operation)}});
}

void add_members(Json &object, const Datatree &holder, const Shape &shape, Secrets secrets);

Json written_node(const Datatree &node, const Datatree &parent, const Shape &shape, Secrets secrets)
{
    if (!is_object(node, shape)) return written_value(node, parent, shape, secrets);
    Json object = Json::object();
    if (platform::has_operation(node)) add_member(object, "@", operation_of(node));
    add_members(object, node, shape, secrets);
    return object;
}

// An object tells its operation itself; that of any other value stands beside it.
bool is_annotated_beside(const Datatree &node, const Shape &shape)
{
    return platform::has_operation(node) && !is_object(node, shape);
}

Json annotations_of(const Member &member)
{
    if (!member.is_array()) return operation_of(*member.nodes.front());
    Json annotations = Json::array();
    for (const Datatree *node : member.nodes)
        annotations.push_back(is_annotated_beside(*node, member.shape) ? operation_of(*node) : nullptr);
    return annotations;
}

Json value_of_member(const Member &member, const Datatree &holder, Secrets secrets)
{
    Json values = Json::array();
    for (const Datatree *node : member.nodes) values.push_back(written_node(*node, holder, member.shape, secrets));
    if (member.is_array() || values.front().is_null()) return values;  // a leaf without a value is [null]
    return std::move(values.front());
}

void add_members(Json &object, const Datatree &holder, const Shape &shape, Secrets secrets)
{
    for (const Member &member : members_of(holder, shape)) {
        add_member(object, member.name, value_of_member(member, holder, secrets));
        const auto is_annotated = [&](const Datatree *node) { return is_annotated_beside(*node, member.shape); };
        if (std::any_of(member.nodes.begin(), member.nodes.end(), is_annotated))
            add_member(object, "@" + member.name, annotations_of(member));
    }
}

}  // namespace

std::string write_json(const Datatree &holder, Secrets secrets)
{
    Json top = Json::object();
    add_members(top, holder, {}, secrets);
    return top.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace io
