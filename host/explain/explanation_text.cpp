#include "explanation_text.h"

#include "explanation_json.h"
#include "operation_names.h"

namespace explain {

static std::string quoted(const std::string &value) { return "\"" + value + "\""; }

static std::string describe(const Explanation &explanation)
{
    const model::OcNode &node = *explanation.target.node;
    std::string text(name_of(node.kind));
    if (node.type != model::Type::none) text += " of type " + std::string(name_of(node.type));
    if (!node.key.empty()) text += " with the key " + std::string(node.key);
    return text + ", " + std::string(name_of(explanation.acceptance));
}

static std::string describe(const Handler &handler)
{
    std::string what = handler.is_override ? "an override" : "the generated default";
    if (!handler.is_from_library) what += ", from outside the library";
    return "  handler: " + handler.symbol + ", " + what + "\n           " + handler.source + "\n";
}

static std::string line_of(const NativeNode &native, Kind kind)
{
    const bool is_read = kind == Kind::read || kind == Kind::read_config;
    std::string verb = "writes";
    if (is_read) verb = "reads";
    if (native.operation == uint32_t{VMF_OP_REPLACE}) verb = "replaces";
    if (native.operation == uint32_t{VMF_OP_DELETE}) verb = "deletes";
    if (native.operation == uint32_t{VMF_OP_REMOVE}) verb = "removes";
    std::string line = "    " + verb + " " + native.path;
    if (native.value && !is_read) line += " = " + *native.value;
    return line + (native.is_companion ? "  (companion)" : "") + "\n";
}

static std::string write_text(const Request &request)
{
    std::string text = "  " + std::string(name_of(request.kind));
    if (request.value) text += " of " + quoted(*request.value);
    if (request.on_configured_router) text += ", on a configured router";
    if (request.outcome != VMF_RC_OK) text += ": refused, " + name_of_outcome(request.outcome);
    text += "\n";
    for (const NativeNode &native : request.native) text += line_of(native, request.kind);
    if (request.native.empty() && request.outcome == VMF_RC_OK) text += "    nothing\n";
    for (const std::string &message : request.messages) text += "    note: " + message + "\n";
    return text;
}

static std::string native_of(const Answer &answer)
{
    return answer.native_value ? answer.path + " = " + *answer.native_value : answer.path;
}

static std::string conditions_of(const Answer &answer)
{
    std::string text;
    for (const std::string &other : answer.with) text += "      with " + other + "\n";
    return text;
}

std::string write_text(const Explanation &explanation, std::optional<Kind> kind)
{
    std::string text =
        explanation.target.path() + "\n  " + describe(explanation) + "\n" + describe(explanation.handler);
    if (has_family(explanation.target)) {
        text += "  families:";
        for (const std::string &family : explanation.families) text += " " + family;
        text += "\n";
    }
    for (const Request &request : explanation.requests) {
        const bool is_of_kind = request.kind == kind || (kind == Kind::read && request.kind == Kind::read_config);
        if (!kind || is_of_kind) text += write_text(request);
    }
    const bool shows_answers = !kind || kind == Kind::read;
    if (shows_answers && is_leaf(*explanation.target.node)) {
        text += "  comes back\n";
        for (const Answer &answer : explanation.answers)
            text += "    " + quoted(answer.value) + " from " + native_of(answer) + "\n" + conditions_of(answer);
        if (explanation.answers.empty()) text += "    never\n";
    }
    if (!explanation.oddities.empty()) text += "  oddities\n";
    for (const std::string &oddity : explanation.oddities) text += "    " + oddity + "\n";
    return text;
}

std::vector<Feed> feeds_of(const std::string &native_path)
{
    std::vector<Feed> found;
    for (const model::OcNode &node : model::openconfig_bgp())
        for (const Answer &answer : feeds().answers(node)) {
            const std::string path = path_of(*answer.native);
            if (path == native_path || path.starts_with(native_path + "/")) found.push_back({&node, answer});
        }
    return found;
}

std::string write_text(const std::vector<Feed> &feeds)
{
    std::string text;
    for (const Feed &feed : feeds)
        text += native_of(feed.answer) + "\n    " + std::string(feed.node->path) + " = " + feed.answer.value + "\n" +
                conditions_of(feed.answer);
    return text;
}

}  // namespace explain
