#include "explain.h"

#include <iostream>

#include "exit_codes.h"
#include "explanation_json.h"
#include "explanation_text.h"
#include "paths.h"
#include "reading.h"

namespace cli {

const char explain_json_help[] =
    R"(What is shown is what the mapping does with made requests, on a made router. Keys that PATH leaves
out are made. A companion is a native node that goes along although the client did not name it.

JSON: an object, with --all an array of one for each node, in the order of the model:
  path, node (leaf, container, list, leaf-list), type, keys   of the model
  writable      whether the model says that it is configuration
  accepted      writable, read-only or refused: by the mapping
  handler       {symbol, source, override}: what answers in this process; of a list that of its key
  request-path  the path with the keys of the made requests
  families      below a family: those with which a read is accepted
  requests      [{kind, value, outcome, native, messages}]: kind is read, merge, replace, delete, or
                read-config where <get-config> becomes something else than <get>; outcome is
                "accepted" or a name; native is [{path, value, operation, companion}]; reads-back is
                what a read gives afterwards; router is "configured" where it is something else on
                a router on which everything is configured
  answers       [{native, native-value, value, model}]: which native leaf it is read from; with
                names other native leaves that have to be there
  oddities      [text]
With --native: an array of {native, native-value, path, value, model, with}.
)";

namespace {

constexpr size_t shown_neighbours = 5;

int refuse(const std::string &path, const std::string &reason, const std::vector<std::string> &nearest)
{
    std::cerr << "ocbgp: refused: " << io::on_one_line(path) << "\n  reason:  " << io::on_one_line(reason) << "\n";
    for (const std::string &other : nearest)
        std::cerr << (&other == &nearest.front() ? "  nearest: " : "           ") << other << "\n";
    return exit_refused;
}

int explain_native(const ExplainOptions &options)
{
    const std::string path = explain::native_path_of(options.native_path);
    if (explain::find_native(path) == nullptr)
        return refuse(options.native_path, "not in the native models",
                      explain::nearest_paths(path, explain::native_leaf_paths(), shown_neighbours));
    const std::vector<explain::Feed> feeds = explain::feeds_of(path);
    if (options.json)
        std::cout << explain::write_json(feeds);
    else if (feeds.empty())
        std::cout << path << "\n    feeds no leaf of OpenConfig\n";
    else
        std::cout << explain::write_text(feeds);
    return exit_ok;
}

int explain_all()
{
    std::vector<explain::Explanation> explanations;
    for (const model::OcNode &node : model::openconfig_bgp())
        explanations.push_back(explain::explain_node(explain::make_target(node.path)));
    std::cout << explain::write_json(explanations);
    return exit_ok;
}

// All that is told of the other kinds goes.
void keep_kind(explain::Explanation &explanation, explain::Kind kind)
{
    using explain::Kind;
    for (const Kind other : {Kind::read, Kind::read_config, Kind::merge, Kind::replace, Kind::remove}) {
        if (other == kind || (other == Kind::read_config && kind == Kind::read)) continue;
        const std::string start = "a " + std::string(explain::name_of(other));
        std::erase_if(explanation.requests, [other](const auto &request) { return request.kind == other; });
        std::erase_if(explanation.oddities, [&](const std::string &line) {
            return line.starts_with(start + " ") || line.starts_with(start + ":");
        });
    }
}

int explain_path(const ExplainOptions &options)
{
    const explain::Asked asked = explain::read_asked(options.path);
    if (asked.target.node == nullptr)
        return refuse(options.path, asked.reason,
                      explain::nearest_paths(asked.schema_path, explain::openconfig_paths(), shown_neighbours));
    std::optional<explain::Kind> kind;
    if (options.kind) kind = explain::kind_of_name(*options.kind);
    const bool edits = kind && *kind != explain::Kind::read;
    explain::Explanation explanation = explain::explain_node(asked.target);
    if (edits && explanation.acceptance == explain::Acceptance::read_only)
        return refuse(options.path, "read-only: " + explanation.requests.back().messages.front(),
                      explain::nearest_paths(asked.schema_path, explain::writable_paths(), shown_neighbours));
    if (kind) keep_kind(explanation, *kind);
    std::cout << (options.json ? explain::write_json(explanation) : explain::write_text(explanation, kind));
    return exit_ok;
}

}  // namespace

int explain(const ExplainOptions &options)
{
    if (options.all && !options.json) throw UsageError("--all goes with --json");
    if (options.all) return explain_all();
    if (!options.native_path.empty()) return explain_native(options);
    if (options.path.empty()) throw UsageError("explain takes a PATH, --native PATH or --all");
    return explain_path(options);
}

}  // namespace cli
