// Reads JSON of YANG data (RFC 7951) with edit operations as annotations (RFC 7952).
#include <unordered_map>

#include "document.h"
#include "json_value.h"
#include "modules.h"
#include "operation_names.h"
#include "reading.h"
#include "schema.h"

namespace io {

namespace {

using Shape = JsonValue::Shape;

struct Reading {
    const std::string &file;
    Document &document;
    Notes notes{document.notes};
};

[[noreturn]] void refuse(const Reading &reading, const JsonPath &path, const std::string &reason)
{
    refuse_at(path, reading.file, reason);
}

bool is_of_module(std::string_view name) { return name.find(':') != std::string_view::npos; }

bool is_annotation(std::string_view name) { return name.starts_with('@'); }

// ---- Values ---------------------------------------------------------------------------------

// Without a module, an identity is of the leaf's own.
void read_identity(Reading &reading, Datatree &node, std::string_view text, const JsonPath &path)
{
    const size_t colon = text.find(':');
    std::string_view ns = OC_BGP_NS;
    if (colon != std::string_view::npos) {
        ns = namespace_of_module(text.substr(0, colon));
        if (ns.empty()) refuse(reading, path, "an undeclared prefix: \"" + std::string(text) + "\"");
        text.remove_prefix(colon + 1);
    }
    give_value(node, text);
    platform::set_data_namespace(node, reading.document.names.hold(ns));
}

void read_scalar(Reading &reading, Datatree &node, const model::OcNode *model, std::string_view text,
                 const JsonPath &path)
{
    const model::Type type = model != nullptr ? model->type : model::Type::none;
    if (type == model::Type::identityref_) return read_identity(reading, node, text, path);
    give_value(node, type == model::Type::decimal64_ ? without_zero_fraction(text) : text);
}

// ---- Annotations ----------------------------------------------------------------------------

uint32_t read_operation(Reading &reading, const JsonValue &member, const JsonPath &path)
{
    if (member.shape != Shape::scalar) refuse(reading, path, "an edit operation is a string");
    const auto operation = operation_of_name(member.text);
    if (!operation) refuse(reading, path, "no edit operation is called \"" + member.text + "\"");
    return *operation;
}

// What an annotation without a module was meant to say is not guessed: read over, a delete would be a merge.
void check_other_annotation(Reading &reading, const JsonValue &member, const JsonPath &path)
{
    const std::string name = member.name;
    if (!is_of_module(name) && !member.qualified)
        refuse(reading, path,
               name == "operation" ? "the annotation must be " + std::string(json_operation)
                                   : "an annotation needs the name of its module");
    reading.notes.add("the annotation " + name + " is read over");
}

std::optional<uint32_t> operation_in(Reading &reading, const JsonValue &annotations, const JsonPath &path)
{
    if (annotations.shape != Shape::object) refuse(reading, path, "annotations are an object");
    std::optional<uint32_t> operation;
    for (const JsonValue &member : annotations.items) {
        const JsonPath member_path = {&path, member.name};
        if (member.name == json_operation)
            operation = read_operation(reading, member, member_path);
        else
            check_other_annotation(reading, member, member_path);
    }
    return operation;
}

void annotate(Reading &reading, Datatree &node, const JsonValue &annotations, const JsonPath &path)
{
    const auto operation = operation_in(reading, annotations, path);
    if (!operation) return;
    if (platform::has_operation(node)) refuse(reading, path, "a second edit operation for one node");
    platform::set_operation(node, *operation);
}

// The annotations that stand beside members, by the names of these.
struct Beside {
    const JsonValue *annotations;
    bool has_member = false;
};
using BesideMembers = std::unordered_map<std::string_view, Beside>;

BesideMembers annotations_beside_members(const JsonValue &object)
{
    BesideMembers all;
    for (const JsonValue &member : object.items) {
        const std::string_view name = member.name;
        if (is_annotation(name) && name.size() > 1) all[name.substr(1)] = {&member};
    }
    if (all.empty()) return all;
    for (const JsonValue &member : object.items)
        if (const auto found = all.find(member.name); found != all.end()) found->second.has_member = true;
    return all;
}

// ---- Nodes ----------------------------------------------------------------------------------

void read_object(Reading &reading, Datatree &node, const model::OcNode *model, const JsonValue &object,
                 const JsonPath &path);

void check_shape(const Reading &reading, const JsonValue &value, const model::OcNode *model, const JsonPath &path)
{
    if (model == nullptr) return;
    if (is_leaf(*model) && value.shape == Shape::object) refuse(reading, path, "an object where the model has a leaf");
    if (is_leaf(*model) || value.shape == Shape::object) return;
    refuse(reading, path,
           model->kind == model::Kind::list ? "an entry of a list is an object" : "a container is an object");
}

// What is of a module that is not known has no namespace, nor has what stands in it.
const char *namespace_of_member(const Datatree &parent, std::string_view name)
{
    return is_of_module(name) ? nullptr : platform::namespace_of(parent);
}

struct Member {
    const char *name;
    const model::OcNode *model;
    const JsonValue *annotations;  // those beside it, or null
    JsonPath annotations_path;
};

bool stands_as_array(const JsonValue &value, const model::OcNode *model)
{
    return model != nullptr ? is_repeated(*model) : value.shape == Shape::array && value.items.size() != 1;
}

// Annotations of an array are an array, too: those of an entry have its position, or null for none.
void check_annotations(const Reading &reading, const JsonValue &value, const Member &member)
{
    const bool is_array = member.annotations->shape == Shape::array;
    const size_t entries = value.shape == Shape::array ? value.items.size() : 1;
    if (is_array && member.annotations->items.size() > entries)
        refuse(reading, member.annotations_path, "more annotations than entries");
    if (!is_array && stands_as_array(value, member.model))
        refuse(reading, member.annotations_path, "the annotations of a list are an array");
}

void annotate_entry(Reading &reading, Datatree &node, const Member &member, size_t position)
{
    if (member.annotations == nullptr) return;
    if (member.annotations->shape != Shape::array)
        return annotate(reading, node, *member.annotations, member.annotations_path);
    if (position >= member.annotations->items.size()) return;
    const JsonValue &entry = member.annotations->items[position];
    if (entry.shape != Shape::null) annotate(reading, node, entry, {&member.annotations_path, {}, position + 1});
}

void read_node(Reading &reading, Datatree &parent, const Member &member, size_t position, const JsonValue &value,
               const JsonPath &path)
{
    check_shape(reading, value, member.model, path);
    Datatree &node = add_child(parent, member.name, namespace_of_member(parent, member.name));
    annotate_entry(reading, node, member, position);
    if (value.shape == Shape::object) read_object(reading, node, member.model, value, path);
    if (value.shape == Shape::scalar) read_scalar(reading, node, member.model, value.text, path);
}

bool is_no_value(const JsonValue &value)
{
    return value.shape == Shape::null ||
           (value.shape == Shape::array && value.items.size() == 1 && value.items.front().shape == Shape::null);
}

void check_array(const Reading &reading, const JsonValue &value, const model::OcNode *model, const JsonPath &path)
{
    if (model == nullptr || (is_leaf(*model) && is_no_value(value))) return;
    const bool is_array = value.shape == Shape::array;
    if (is_array == is_repeated(*model)) return;
    switch (model->kind) {
    case model::Kind::list: refuse(reading, path, "a list is an array");
    case model::Kind::leaf_list: refuse(reading, path, "a leaf-list is an array");
    case model::Kind::container: refuse(reading, path, "an array where the model has a container");
    case model::Kind::leaf: refuse(reading, path, "an array where the model has a leaf");
    }
}

void read_member(Reading &reading, Datatree &parent, const Member &member, const JsonValue &value, const JsonPath &path)
{
    check_array(reading, value, member.model, path);
    if (member.annotations != nullptr) check_annotations(reading, value, member);
    if (value.shape != Shape::array) return read_node(reading, parent, member, 0, value, path);
    for (size_t position = 0; position < value.items.size(); position++)
        read_node(reading, parent, member, position, value.items[position], {&path, {}, position + 1});
}

// To delete a leaf one need not know its value, and then there is no member to annotate.
void read_lone_annotations(Reading &reading, Datatree &parent, const char *name, const model::OcNode *model,
                           const JsonValue &annotations, const JsonPath &path)
{
    if (model != nullptr && is_repeated(*model)) refuse(reading, path, "annotations of entries that are not there");
    const auto operation = operation_in(reading, annotations, path);
    if (!operation) return;
    if (*operation != VMF_OP_DELETE && *operation != VMF_OP_REMOVE)
        refuse(reading, path, "the edit operation of a member that is not there");
    platform::set_operation(add_child(parent, name, namespace_of_member(parent, name)), *operation);
}

void read_members(Reading &reading, Datatree &node, const model::OcNode *model, const JsonValue &object,
                  const JsonPath &path)
{
    const BesideMembers beside = annotations_beside_members(object);
    for (const JsonValue &member : object.items) {
        const bool annotates = is_annotation(member.name);
        const char *name = annotates ? reading.document.names.hold(member.name + 1) : member.name;
        if (*name == '\0' || (is_taken_away(node) && !stays_below_removal(model, name))) continue;

        const auto found = beside.find(name);
        const model::OcNode *child = child_in_schema(model, name);
        const JsonPath member_path = {&path, member.name};
        if (!annotates) {
            const JsonValue *annotations = found != beside.end() ? found->second.annotations : nullptr;
            const JsonPath annotations_path = {&path, annotations != nullptr ? annotations->name : ""};
            read_member(reading, node, {name, child, annotations, annotations_path}, member, member_path);
        } else if (!found->second.has_member) {
            read_lone_annotations(reading, node, name, child, member, member_path);
        }
    }
}

// Its own annotations go first, wherever they stand: they decide whether what stands in it counts.
void read_object(Reading &reading, Datatree &node, const model::OcNode *model, const JsonValue &object,
                 const JsonPath &path)
{
    for (const JsonValue &member : object.items)
        if (member.name == std::string_view("@")) annotate(reading, node, member, {&path, member.name});
    read_members(reading, node, model, object, path);
}

// ---- The top --------------------------------------------------------------------------------

// What NETCONF puts around the data, and the kind of request that it tells of.
constexpr std::pair<std::string_view, uint32_t> holders[] = {
    {"ietf-netconf:config", VMF_REQ_EDIT},
    {"ietf-netconf:data", VMF_REQ_EDIT},
    {"ietf-netconf:filter", VMF_REQ_GET},
};

std::optional<uint32_t> kind_of_holder(std::string_view name)
{
    for (const auto &[holder, kind] : holders)
        if (holder == name) return kind;
    return std::nullopt;
}

void read_bgp(Reading &reading, const JsonValue &bgp, const JsonPath &path)
{
    const model::OcNode *model = child_in_schema(&schema_root, bgp.name);
    check_array(reading, bgp, model, path);
    check_shape(reading, bgp, model, path);
    Datatree &root = reading.document.bgp.root();
    name_root(root, platform::intern(bgp.name), platform::intern(OC_BGP_NS));
    read_object(reading, root, model, bgp, path);
}

bool is_bgp(const JsonValue &member) { return member.qualified && member.name == std::string_view("bgp"); }

bool is_holder(const Reading &reading, const JsonValue &member)
{
    return !reading.document.kind && kind_of_holder(member.name);
}

void check_top_member(Reading &reading, const JsonValue &member, const JsonPath &path)
{
    const std::string name = member.name;
    if (member.qualified) refuse(reading, path, "bgp is the only top element of openconfig-bgp");
    if (!is_of_module(name)) refuse(reading, path, "a name at the top needs its module");
    reading.notes.add(name + " is skipped");
}

const JsonValue *find_content(Reading &reading, const JsonValue &object, const JsonPath &path)
{
    const JsonValue *content = nullptr;
    for (const JsonValue &member : object.items) {
        const JsonPath member_path = {&path, member.name};
        if (!is_bgp(member) && !is_holder(reading, member)) {
            check_top_member(reading, member, member_path);
            continue;
        }
        if (content != nullptr) refuse(reading, member_path, "one too many beside " + std::string(content->name));
        content = &member;
    }
    return content;
}

void read_top(Reading &reading, const JsonValue &object, const JsonPath &path)
{
    if (object.shape != Shape::object) refuse(reading, path, "an object is expected");
    const JsonValue *content = find_content(reading, object, path);
    if (content == nullptr) refuse(reading, path, "no bgp element: there is no member openconfig-bgp:bgp");
    const JsonPath content_path = {&path, content->name};
    if (is_bgp(*content)) return read_bgp(reading, *content, content_path);
    reading.document.kind = kind_of_holder(content->name);
    read_top(reading, *content, content_path);
}

}  // namespace

Document read_json(std::string_view text, const std::string &file)
{
    Document document;
    const JsonValue value = parse_json(checked_text(text, file), file, document.names);
    Reading reading = {.file = file, .document = document};
    read_top(reading, value, {nullptr, {}});
    return document;
}

}  // namespace io
