#include "explanation_json.h"

#include <cstdio>
#include <nlohmann/json.hpp>

#include "operation_names.h"
#include "outcome_names.h"

namespace explain {

using Json = nlohmann::ordered_json;

std::string name_of_outcome(uint32_t outcome)
{
    if (outcome == VMF_RC_OK) return "accepted";
    if (const char *constant = framework::constant_of_outcome(outcome)) return constant;
    char number[sizeof "0x00000000"];
    std::snprintf(number, sizeof number, "0x%08x", outcome);
    return number;
}

std::string_view name_of(model::Kind kind)
{
    switch (kind) {
    case model::Kind::container: return "container";
    case model::Kind::list: return "list";
    case model::Kind::leaf: return "leaf";
    case model::Kind::leaf_list: break;
    }
    return "leaf-list";
}

std::string_view name_of(model::Type type)
{
    switch (type) {
    case model::Type::none: break;
    case model::Type::boolean_: return "boolean";
    case model::Type::decimal64_: return "decimal64";
    case model::Type::empty_: return "empty";
    case model::Type::enumeration_: return "enumeration";
    case model::Type::identityref_: return "identityref";
    case model::Type::string_: return "string";
    case model::Type::union_: return "union";
    case model::Type::uint8_: return "uint8";
    case model::Type::uint16_: return "uint16";
    case model::Type::uint32_: return "uint32";
    case model::Type::uint64_: return "uint64";
    }
    return "";
}

static Json text_or_null(const std::optional<std::string> &text) { return text ? Json(*text) : Json(nullptr); }

static Json to_json(const NativeNode &native)
{
    Json json;
    json["path"] = native.path;
    json["value"] = text_or_null(native.value);
    json["operation"] = native.operation ? Json(io::name_of_operation(*native.operation)) : Json(nullptr);
    json["companion"] = native.is_companion;
    return json;
}

static Json to_json(const Request &request)
{
    Json json;
    json["kind"] = name_of(request.kind);
    json["value"] = text_or_null(request.value);
    json["outcome"] = name_of_outcome(request.outcome);
    json["native"] = Json::array();
    for (const NativeNode &native : request.native) json["native"].push_back(to_json(native));
    json["messages"] = request.messages;
    if (request.reads_back) json["reads-back"] = *request.reads_back;
    if (request.on_configured_router) json["router"] = "configured";
    return json;
}

static Json to_json(const Answer &answer)
{
    Json json;
    json["native"] = answer.path;
    json["native-value"] = text_or_null(answer.native_value);
    json["value"] = answer.value;
    json["model"] = answer.native->compiled->module->name;
    if (!answer.with.empty()) json["with"] = answer.with;
    return json;
}

static Json to_json(const Handler &handler)
{
    Json json;
    json["symbol"] = handler.symbol;
    json["source"] = handler.source;
    json["override"] = handler.is_override;
    return json;
}

static Json to_json(const Explanation &explanation)
{
    const model::OcNode &node = *explanation.target.node;
    Json json;
    json["path"] = node.path;
    json["node"] = name_of(node.kind);
    json["type"] = node.type == model::Type::none ? Json(nullptr) : Json(name_of(node.type));
    json["keys"] = Json::array();
    if (!node.key.empty()) json["keys"].push_back(node.key);
    json["writable"] = node.config;
    json["accepted"] = name_of(explanation.acceptance);
    json["handler"] = to_json(explanation.handler);
    json["request-path"] = explanation.target.path();
    if (has_family(explanation.target)) json["families"] = explanation.families;
    json["requests"] = Json::array();
    for (const Request &request : explanation.requests) json["requests"].push_back(to_json(request));
    json["answers"] = Json::array();
    for (const Answer &answer : explanation.answers) json["answers"].push_back(to_json(answer));
    json["oddities"] = explanation.oddities;
    return json;
}

std::string write_json(const Explanation &explanation) { return to_json(explanation).dump(2) + "\n"; }

std::string write_json(const std::vector<Explanation> &explanations)
{
    std::string text = "[\n";
    for (const Explanation &explanation : explanations)
        text += to_json(explanation).dump() + (&explanation != &explanations.back() ? ",\n" : "\n");
    return text + "]\n";
}

std::string write_json(const std::vector<Feed> &feeds)
{
    Json json = Json::array();
    for (const Feed &feed : feeds) {
        json.push_back(to_json(feed.answer));
        json.back()["path"] = feed.node->path;
    }
    return json.dump(2) + "\n";
}

}  // namespace explain
