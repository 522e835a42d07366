#include "explanation.h"

#include <algorithm>
#include <iterator>

#include "request.h"
#include "router.h"
#include "samples.h"

namespace explain {

// ---- Names ----------------------------------------------------------------------------------

static constexpr std::string_view kind_names[] = {"read", "read-config", "merge", "replace", "delete"};

std::string_view name_of(Kind kind) { return kind_names[static_cast<size_t>(kind)]; }

std::optional<Kind> kind_of_name(std::string_view name)
{
    const auto *found = std::find(std::begin(kind_names), std::end(kind_names), name);
    if (found == std::end(kind_names)) return std::nullopt;
    return static_cast<Kind>(found - std::begin(kind_names));
}

std::string_view name_of(Acceptance acceptance)
{
    switch (acceptance) {
    case Acceptance::writable: return "writable";
    case Acceptance::read_only: return "read-only";
    case Acceptance::refused: break;
    }
    return "refused";
}

// ---- Requests -------------------------------------------------------------------------------

Saying saying_of(Kind kind, const std::optional<std::string> &value)
{
    switch (kind) {
    case Kind::read: return {VMF_REQ_GET};
    case Kind::read_config: return {VMF_REQ_GET_CONFIG};
    case Kind::merge: return {VMF_REQ_EDIT, std::nullopt, value};
    case Kind::replace: return {VMF_REQ_EDIT, VMF_OP_REPLACE, value};
    case Kind::remove: break;
    }
    return {VMF_REQ_EDIT, VMF_OP_DELETE};
}

bool writes(Kind kind) { return kind == Kind::merge || kind == Kind::replace; }

// A key has the value that the target's path says.
static std::vector<std::optional<std::string>> values_to_write(const Target &target)
{
    if (!is_leaf(*target.node)) return {std::nullopt};
    const model::OcNode *list = list_of_key(*target.node);
    for (const Key &key : target.keys)
        if (key.list == list) return {key.value};
    std::vector<std::optional<std::string>> values;
    for (std::string &sample : samples_of(schema_of(*target.node))) values.emplace_back(std::move(sample));
    return values;
}

static Request request_of(Kind kind, std::optional<std::string> value, const Run &run)
{
    Request request = {kind, std::move(value), run.outcome, run.native, run.notes};
    if (run.outcome == VMF_RC_OK) return request;
    request.native.clear();  // nobody carries a part of a request out
    request.messages.push_back(run.refused_tag.empty() ? run.reason : run.reason + " (" + run.refused_tag + ")");
    return request;
}

static bool are_alike(const Run &a, const Run &b) { return a.outcome == b.outcome && a.native == b.native; }

static void configure_all(MadeRouter &router, const router::Schema &node, Filled filled)
{
    const bool has_only_keys = node.kind == router::Schema::Kind::list && node.key_count == node.children.size();
    if ((node.is_terminal() && !node.is_key) || has_only_keys) {
        const std::vector<std::string> samples = samples_of(has_only_keys ? node.children.back() : node);
        router.set(node, filled == Filled::with_first_values ? samples.front() : samples.back());
    }
    for (const router::Schema &child : node.children) configure_all(router, child, filled);
}

std::unique_ptr<MadeRouter> configured_router(const Target &target, Filled filled)
{
    auto router = std::make_unique<MadeRouter>(entry_keys(target));
    configure_all(*router, router::models().config.children.front(), filled);
    return router;
}

// What the target reads as once the router has carried the edit out; none if it refuses that, and says why.
static std::optional<std::vector<std::string>> read_back(const Target &target, const Saying &saying, MadeRouter &router,
                                                         std::string &refusal)
{
    const Run run = run_request(target, saying, router);
    if (run.outcome != VMF_RC_OK) return std::nullopt;
    try {
        router.edit(run.tree.root());
    } catch (const router::Refused &refused) {
        refusal = "the router refuses it: " + refused.violations.front().rule;
        return std::nullopt;
    }
    return values_of(target, router);
}

// On a router that has the target's entries; or else, as the AS number needs it, on one without BGP.
static void read_back(const Target &target, const Saying &saying, Request &request)
{
    std::string refusal;
    MadeRouter with_bgp(entry_keys(target));
    auto values = read_back(target, saying, with_bgp, refusal);
    if (!values) {
        std::string other_refusal;
        MadeRouter without_bgp{WithoutBgp()};
        values = read_back(target, saying, without_bgp, other_refusal);
    }
    if (values && is_leaf(*target.node)) request.reads_back = values;
    if (!values && !refusal.empty()) request.messages.push_back(refusal);
}

static void add_requests(const Target &target, Kind kind, const std::optional<std::string> &value,
                         const MadeRouter &configured, std::vector<Request> &requests)
{
    const Saying saying = saying_of(kind, value);
    const Run run = run_request(target, saying, MadeRouter(entry_keys(target)));
    requests.push_back(request_of(kind, value, run));
    if (run.outcome == VMF_RC_OK && writes(kind)) read_back(target, saying, requests.back());
    if (saying.kind != VMF_REQ_EDIT) return;
    const Run other = run_request(target, saying, configured);
    if (are_alike(run, other)) return;
    requests.push_back(request_of(kind, value, other));
    requests.back().on_configured_router = true;
}

std::vector<Request> made_requests(const Target &target)
{
    const std::unique_ptr<MadeRouter> filled = configured_router(target, Filled::with_first_values);
    const MadeRouter &configured = *filled;
    std::vector<Request> requests;
    add_requests(target, Kind::read, std::nullopt, configured, requests);
    std::vector<Request> of_config;
    add_requests(target, Kind::read_config, std::nullopt, configured, of_config);
    const Request &read = requests.front();
    if (of_config.front().outcome != read.outcome || of_config.front().native != read.native)
        requests.push_back(of_config.front());
    for (const Kind kind : {Kind::merge, Kind::replace})
        for (const std::optional<std::string> &value : values_to_write(target))
            add_requests(target, kind, value, configured, requests);
    add_requests(target, Kind::remove, std::nullopt, configured, requests);
    return requests;
}

// ---- Companions -----------------------------------------------------------------------------

static bool is_same_or_around(const std::string &path, const std::string &other)
{
    return other == path || other.starts_with(path + "/") || path.starts_with(other + "/");
}

static bool feeds_target(const NativeNode &native, const std::set<std::string> &feeders)
{
    const std::string path = path_of(*native.schema);
    return std::any_of(feeders.begin(), feeders.end(),
                       [&path](const std::string &feeder) { return is_same_or_around(path, feeder); });
}

// Whether another value makes another thing of it.
static bool depends_on_value(const NativeNode &native, const Request &request, const std::vector<Request> &requests)
{
    return std::any_of(requests.begin(), requests.end(), [&](const Request &other) {
        if (other.kind != request.kind || other.outcome != VMF_RC_OK || other.value == request.value) return false;
        return std::find(other.native.begin(), other.native.end(), native) == other.native.end();
    });
}

// How much of a native node is the target in another form.
enum class Kinship { none, feeds_it, is_its_value };

static Kinship kinship_of(const NativeNode &native, const Request &request, const std::vector<Request> &requests,
                          const std::set<std::string> &feeders)
{
    const bool is_given = native.value && native.value == request.value;
    const bool has_value = is_given || depends_on_value(native, request, requests);
    if (!feeders.empty() && !feeds_target(native, feeders)) return Kinship::none;
    if (writes(request.kind) && is_removal(native) && request.native.size() > 1) return Kinship::feeds_it;
    return has_value ? Kinship::is_its_value : Kinship::feeds_it;
}

// The nearest kin are the target, all others go along.
void mark_companions(const Target &target, std::vector<Request> &requests)
{
    const std::set<std::string> feeders = feeds().feeders(*target.node);
    for (Request &request : requests) {
        Kinship nearest = Kinship::none;
        for (const NativeNode &native : request.native)
            nearest = std::max(nearest, kinship_of(native, request, requests, feeders));
        std::vector<bool> goes_along;
        for (const NativeNode &native : request.native)
            goes_along.push_back(kinship_of(native, request, requests, feeders) < nearest);
        for (size_t i = 0; i < goes_along.size(); i++) request.native[i].is_companion = goes_along[i];
    }
}

// ---- All of it ------------------------------------------------------------------------------

static Handler handler_of(const model::OcNode &node)
{
    if (node.kind != model::Kind::list) return find_handler(node.handler);
    const model::OcNode *key = model::find_oc_node(std::string(node.path).append("/").append(node.key));
    return find_handler(key->handler);
}

static bool is_accepted(const Request &request) { return request.outcome == VMF_RC_OK; }

static Acceptance acceptance_of(const std::vector<Request> &requests)
{
    const auto is_written = [](const Request &request) { return is_accepted(request) && writes(request.kind); };
    if (std::any_of(requests.begin(), requests.end(), is_written)) return Acceptance::writable;
    return is_accepted(requests.front()) ? Acceptance::read_only : Acceptance::refused;
}

Acceptance acceptance_of(const Target &target)
{
    const MadeRouter router(entry_keys(target));
    for (const std::optional<std::string> &value : values_to_write(target))
        if (run_request(target, saying_of(Kind::merge, value), router).outcome == VMF_RC_OK)
            return Acceptance::writable;
    const bool is_read = run_request(target, saying_of(Kind::read, std::nullopt), router).outcome == VMF_RC_OK;
    return is_read ? Acceptance::read_only : Acceptance::refused;
}

static std::vector<std::string> families_of(const Target &target)
{
    std::vector<std::string> taken;
    if (!has_family(target)) return taken;
    const MadeRouter router(entry_keys(target));
    for (const std::string &family : families())
        if (run_request(with_family(target, family), {VMF_REQ_GET}, router).outcome == VMF_RC_OK)
            taken.push_back(family);
    return taken;
}

Explanation explain_node(const Target &target)
{
    Explanation explanation = {target, Acceptance::refused, handler_of(*target.node), made_requests(target), {}, {},
                               {}};
    explanation.acceptance = acceptance_of(explanation.requests);
    mark_companions(target, explanation.requests);
    explanation.answers = answers_of(target);
    explanation.oddities = oddities_of(target, explanation.requests, explanation.answers);
    explanation.families = families_of(target);
    return explanation;
}

}  // namespace explain
