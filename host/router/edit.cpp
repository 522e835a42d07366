#include "edit.h"

#include <algorithm>
#include <cstring>

#include "native_path.h"
#include "router.h"
#include "tree.h"

namespace router {

namespace {

constexpr char data_exists[] = "data exists";
constexpr char data_is_missing[] = "data is missing";
constexpr char no_as_is_known[] = "no AS number is known; set /bgp/global/config/as first";
constexpr char as_cannot_change[] = "the AS number cannot change while BGP runs; delete BGP first";

using Keys = std::vector<std::string>;

[[noreturn]] void refuse(const Place &place, std::string rule) { throw Refused({{path_of(place), std::move(rule)}}); }

// ---- What a request node says ---------------------------------------------------------------

uint32_t operation_of(const Datatree &request)
{
    return platform::has_operation(request) ? request.operation : static_cast<uint32_t>(VMF_OP_MERGE);
}

bool is_removal(uint32_t operation) { return operation == VMF_OP_DELETE || operation == VMF_OP_REMOVE; }

const Schema *find_schema(const Datatree &request, const Schema &parent)
{
    return parent.find_child(platform::tag_of(request), platform::namespace_of(request));
}

const Schema &schema_of(const Datatree &request, const Place &outer)
{
    const Schema *schema = find_schema(request, *outer.schema);
    if (schema != nullptr) return *schema;
    const char *tag = platform::tag_of(request);
    throw Refused({{path_of(outer) + "/" + (tag != nullptr ? tag : "(no tag)"), "the model has no such node"}});
}

// The operation, once it is clear that it is one, and that the node can be what the model says it is.
uint32_t checked_operation(const Datatree &request, const Place &place)
{
    const uint32_t operation = operation_of(request);
    if (operation > VMF_OP_REMOVE) refuse(place, "no edit operation has the number " + std::to_string(operation));
    if (is_removal(operation)) return operation;
    if (place.schema->is_terminal() && !platform::children_of(request).empty())
        refuse(place, "a leaf has nothing below it");
    if (!place.schema->is_terminal() && platform::value_of(request) != nullptr)
        refuse(place, "only a leaf has a value");
    return operation;
}

std::string canonical(const char *value, const Place &place)
{
    std::string why;
    auto text = canonical_value(*place.schema, value, &why);
    if (!text) refuse(place, why);
    return *std::move(text);
}

// ---- Keys -----------------------------------------------------------------------------------

// The value of a key among the children of an entry; null if it has none.
std::optional<std::string> read_key(const Datatree &request, const Place &entry, const Schema &key)
{
    std::optional<std::string> value;
    const Place place = {&entry, &key};
    for (const Datatree &child : platform::children_of(request)) {
        const char *text = platform::value_of(child);
        if (text == nullptr || find_schema(child, *entry.schema) != &key) continue;
        std::string found = canonical(text, place);
        if (value && *value != found) refuse(place, "a key has one value");
        value = std::move(found);
    }
    return value;
}

// The high and the low half of the AS number: lists of one entry, which is what all else stands in.
bool is_as(const Schema &list)
{
    return std::strcmp(list.tag, "instance-as") == 0 || std::strcmp(list.tag, "four-byte-as") == 0;
}

// Every request names the AS, to say where it is; without a value if nobody knows one.
Keys read_keys(const Datatree &request, const Place &place)
{
    Keys keys;
    for (size_t i = 0; i < place.schema->key_count; i++) {
        const Schema &key = place.schema->children[i];
        auto value = read_key(request, place, key);
        if (!value && is_as(*place.schema)) refuse(place, no_as_is_known);
        if (!value) refuse(place, "an entry without a value of its key " + std::string(key.tag));
        keys.push_back(*std::move(value));
    }
    return keys;
}

// ---- Execution ------------------------------------------------------------------------------

void execute(const Datatree &request, Branch &parent, const Place &outer);

void execute_children(const Datatree &request, Branch &branch, const Place &place)
{
    for (const Datatree &child : platform::children_of(request)) execute(child, branch, place);
}

void take_out(uint32_t operation, Branch &parent, const Place &place)
{
    if (!remove_member(parent, *place.schema) && operation == VMF_OP_DELETE) refuse(place, data_is_missing);
}

// One entry of a list, or one value of a leaf-list.
void take_out_entry(uint32_t operation, Branch &parent, const Place &place)
{
    const bool stands = find_member(parent, *place.schema) != nullptr;
    Entries *entries = stands ? &own_entries(member_of(parent, *place.schema)) : nullptr;
    const bool is_gone = entries != nullptr && entries->remove(place.keys);
    if (!is_gone && operation == VMF_OP_DELETE) refuse(place, data_is_missing);
    if (entries != nullptr && entries->size() == 0) remove_member(parent, *place.schema);
}

void execute_leaf(const Datatree &request, uint32_t operation, Branch &parent, const Place &place)
{
    if (is_removal(operation)) return take_out(operation, parent, place);
    const bool stands = find_member(parent, *place.schema) != nullptr;
    if (operation == VMF_OP_CREATE && stands) refuse(place, data_exists);
    if (operation == VMF_OP_REPLACE) remove_member(parent, *place.schema);
    const char *value = platform::value_of(request);
    if (value == nullptr && place.schema->is_empty) value = "";
    if (value != nullptr) member_of(parent, *place.schema).content = canonical(value, place);
}

void execute_leaf_list(const Datatree &request, uint32_t operation, Branch &parent, const Place &place)
{
    const char *text = platform::value_of(request);
    if (text == nullptr) {
        if (operation == VMF_OP_REPLACE) remove_member(parent, *place.schema);
        if (is_removal(operation)) take_out(operation, parent, place);
        return;
    }
    const Keys value = {canonical(text, place)};
    const Place of_value = {place.outer, place.schema, value};
    if (is_removal(operation)) return take_out_entry(operation, parent, of_value);
    Entries &values = own_entries(member_of(parent, *place.schema));
    const bool stands = values.find(value) != nullptr;
    if (operation == VMF_OP_CREATE && stands) refuse(of_value, data_exists);
    if (!stands) values.add(make_entry(*place.schema, value));
}

void execute_container(const Datatree &request, uint32_t operation, Branch &parent, const Place &place)
{
    if (is_removal(operation)) return take_out(operation, parent, place);
    const bool stands = find_member(parent, *place.schema) != nullptr;
    if (operation == VMF_OP_CREATE && stands) refuse(place, data_exists);
    if (operation == VMF_OP_REPLACE) remove_member(parent, *place.schema);
    Branch &branch = own_branch(member_of(parent, *place.schema));
    execute_children(request, branch, place);
    if (branch.members.empty()) remove_member(parent, *place.schema);
}

void refuse_another_as(const Branch &parent, const Place &entry)
{
    const Member *standing = find_member(parent, *entry.schema);
    if (standing != nullptr && entries_of(*standing).find(entry.keys) == nullptr) refuse(entry, as_cannot_change);
}

void execute_list(const Datatree &request, uint32_t operation, Branch &parent, const Place &place)
{
    const Keys keys = read_keys(request, place);
    const Place entry = {place.outer, place.schema, keys};
    if (is_removal(operation)) return take_out_entry(operation, parent, entry);
    if (is_as(*place.schema)) refuse_another_as(parent, entry);
    const Member *member = find_member(parent, *place.schema);
    const bool stands = member != nullptr && entries_of(*member).find(keys) != nullptr;
    if (operation == VMF_OP_CREATE && stands) refuse(entry, data_exists);
    Entries &entries = own_entries(member_of(parent, *place.schema));
    Branch &branch = stands ? *entries.find_to_write(keys) : entries.add(make_entry(*place.schema, keys));
    if (operation == VMF_OP_REPLACE)
        branch.members.erase(branch.members.begin() + static_cast<ptrdiff_t>(keys.size()), branch.members.end());
    execute_children(request, branch, entry);
}

void execute(const Datatree &request, Branch &parent, const Place &outer)
{
    const Schema &schema = schema_of(request, outer);
    if (schema.is_key) return;  // read with its entry, whose operation counts
    const Place place = {&outer, &schema};
    const uint32_t operation = checked_operation(request, place);
    switch (schema.kind) {
    case Schema::Kind::leaf: return execute_leaf(request, operation, parent, place);
    case Schema::Kind::leaf_list: return execute_leaf_list(request, operation, parent, place);
    case Schema::Kind::container: return execute_container(request, operation, parent, place);
    case Schema::Kind::list: return execute_list(request, operation, parent, place);
    }
}

}  // namespace

std::shared_ptr<Branch> edited(const std::shared_ptr<Branch> &config, const Datatree &request)
{
    auto edited = std::make_shared<Branch>(*config);
    const Schema &root = models().config;
    for (const Datatree &tree : platform::children_of(request)) {
        const char *ns = platform::namespace_of(tree);
        if (ns != nullptr && std::strcmp(ns, root.ns) == 0) execute(tree, *edited, {nullptr, &root});
    }
    return edited;
}

}  // namespace router
