#include "refusal_errors.h"

#include <algorithm>
#include <string_view>

#include "nodes.h"
#include "reading.h"
#include "tree.h"
#include "vmf_map_platform.h"

namespace framework {

namespace {

constexpr std::string_view protocol = "protocol";
constexpr std::string_view application = "application";

const model::OcNode *parent_of(const std::string &schema)
{
    return model::find_oc_node(schema.substr(0, schema.rfind('/')));
}

// Where a walk ended, in the terms of the model.
struct Place {
    explicit Place(const std::string &path) : schema(io::schema_of_path(path)), node(model::find_oc_node(schema)) {}

    // The list whose entry, or whose entry's key, this is; null if it is neither.
    const model::OcNode *list() const
    {
        if (node != nullptr && node->kind == model::Kind::list) return node;
        const model::OcNode *parent = parent_of(schema);
        const bool is_key =
            parent != nullptr && parent->kind == model::Kind::list && schema.ends_with("/" + std::string(parent->key));
        return is_key ? parent : nullptr;
    }

    std::string schema;
    const model::OcNode *node;
};

bool says_bad_value(std::string_view reason)
{
    constexpr std::string_view words[] = {"Invalid boolean value", "The value of "};
    return std::any_of(std::begin(words), std::end(words),
                       [&](std::string_view begin) { return reason.starts_with(begin); });
}

// The local name: JSON names the module of a node that no model has.
std::string element_name(std::string_view tag) { return std::string(tag.substr(tag.find(':') + 1)); }

io::RpcError unsupported(const Refusal &refusal, const Place &place)
{
    const std::string &tag = refusal.tag;
    const bool names_place = place.schema.ends_with("/" + tag);
    const model::OcNode *node = names_place ? place.node : model::find_oc_node(place.schema + "/" + tag);
    if (!tag.empty() && node == nullptr && place.list() == nullptr)
        return {.type = application, .tag = "unknown-element", .bad_element = element_name(tag)};
    if (place.node != nullptr && place.node->type == model::Type::identityref_)
        return {.type = application, .tag = "invalid-value"};
    return {.type = application, .tag = "operation-not-supported"};
}

io::RpcError bad_key(const Refusal &refusal, const Place &place)
{
    const model::OcNode *list = place.list();
    const bool is_empty = refusal.reason.starts_with("Empty list key");
    if (list == nullptr || is_empty) return {.type = application, .tag = "invalid-value"};
    return {.type = application, .tag = "missing-element", .bad_element = std::string(list->key)};
}

io::RpcError form_of(const Refusal &refusal)
{
    const Place place(refusal.path);
    switch (refusal.outcome) {
    case VMF_RC_UNSUPPORTED: return unsupported(refusal, place);
    case VMF_RC_BAD_KEY: return bad_key(refusal, place);
    case VMF_RC_KEY_OPERATION: {
        const model::OcNode *list = place.list();
        return {.type = application,
                .tag = "bad-attribute",
                .bad_attribute = "operation",
                .bad_element = list != nullptr ? std::string(list->key) : element_name(refusal.tag)};
    }
    case VMF_RC_BAD_ARGS:
        return {.type = application, .tag = says_bad_value(refusal.reason) ? "invalid-value" : "operation-failed"};
    case VMF_RC_NO_MEMORY: return {.type = application, .tag = "resource-denied"};
    case SYSDB_NOTHING_FOUND: return {.type = application, .tag = "data-missing"};
    default: return {.type = application, .tag = "operation-failed"};
    }
}

struct InputRow {
    std::string_view words;
    std::string_view type;
    std::string_view tag;
};
constexpr InputRow input_rows[] = {
    {"cannot be read", application, "operation-failed"},
    {"not well-formed XML", "rpc", "malformed-message"},
    {"syntax error", "rpc", "malformed-message"},
    {"not JSON", "rpc", "malformed-message"},
    {"the input is empty", "rpc", "malformed-message"},
    {"the text is not UTF-8", "rpc", "malformed-message"},
    {"a NUL character", "rpc", "malformed-message"},
    {"only UTF-8 is read", "rpc", "malformed-message"},
    {"larger than ", protocol, "too-big"},
    {"more than ", protocol, "too-big"},
    {"deeper than ", protocol, "too-big"},
};

}  // namespace

io::RpcError error_of(const Refusal &refusal)
{
    io::RpcError error = form_of(refusal);
    error.path = refusal.path;
    error.message = io::on_one_line(refusal.reason);
    if (!refusal.tag.empty()) error.message += " (" + io::on_one_line(refusal.tag) + ")";
    return error;
}

io::RpcError error_of_answer(uint32_t outcome, const char *tag)
{
    const bool lacks_memory = outcome == VMF_RC_NO_MEMORY;
    std::string message = "the router's answer was refused: " + std::string(cerr_strerror(outcome));
    if (tag != nullptr) message += " (" + io::on_one_line(tag) + ")";
    return {.type = application, .tag = lacks_memory ? "resource-denied" : "operation-failed", .message = message};
}

io::RpcError error_of_input(const std::string &reason)
{
    for (const InputRow &row : input_rows)
        if (reason.find(row.words) != std::string::npos)
            return {.type = row.type, .tag = row.tag, .message = io::on_one_line(reason)};
    return {.type = protocol, .tag = "invalid-value", .message = io::on_one_line(reason)};
}

}  // namespace framework
