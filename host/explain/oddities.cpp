#include <algorithm>

#include "effects.h"
#include "samples.h"

namespace explain {

namespace {

using Lines = std::vector<std::string>;

bool is_accepted(const Request &request) { return request.outcome == VMF_RC_OK; }

// What was found about requests of one kind.
struct Finding {
    Kind kind;
    bool on_configured_router;
    std::string text;
    std::vector<std::string> values = {};  // with which it was found
};

void add(Lines &lines, std::string line)
{
    if (std::find(lines.begin(), lines.end(), line) == lines.end()) lines.push_back(std::move(line));
}

std::string joined(const std::set<std::string> &texts)
{
    std::string all;
    for (const std::string &text : texts) all += (all.empty() ? "" : ", ") + text;
    return all;
}

class Oddities {
public:
    Oddities(const Target &target, const std::vector<Request> &requests, const std::vector<Answer> &answers)
        : target_(target), node_(*target.node), requests_(requests), answers_(answers)
    {
    }

    Lines lines()
    {
        of_reads();
        for (const Request &request : requests_)
            if (is_accepted(request))
                of_edit(request);
            else
                of_refusal(request);
        of_values();
        of_replace();
        behind_replace();
        for (const Request &request : requests_)
            for (const std::string &message : request.messages)
                if (is_accepted(request)) note(request, ": " + message);
        for (const Finding &finding : findings_)
            if (!is_said_of_merge(finding)) lines_.push_back(line_of(finding));
        return lines_;
    }

private:
    void note(const Request &request, const std::string &text)
    {
        auto found = std::find_if(findings_.begin(), findings_.end(), [&](const Finding &finding) {
            return finding.kind == request.kind && finding.text == text &&
                   finding.on_configured_router == request.on_configured_router;
        });
        if (found == findings_.end())
            found = findings_.insert(found, {request.kind, request.on_configured_router, text});
        const std::string value = request.value.value_or("");
        if (std::find(found->values.begin(), found->values.end(), value) == found->values.end())
            found->values.push_back(value);
    }

    // What a merge does, a replace is not said to do as well.
    bool is_said_of_merge(const Finding &finding) const
    {
        return finding.kind == Kind::replace &&
               std::any_of(findings_.begin(), findings_.end(), [&finding](const Finding &other) {
                   return other.kind == Kind::merge && other.text == finding.text && other.values == finding.values &&
                          other.on_configured_router == finding.on_configured_router;
               });
    }

    // The values are named where it is not so with all of them.
    std::string line_of(const Finding &finding) const
    {
        const auto count = std::count_if(requests_.begin(), requests_.end(), [&finding](const Request &request) {
            return request.kind == finding.kind && request.on_configured_router == finding.on_configured_router;
        });
        std::string line = "a " + std::string(name_of(finding.kind));
        const bool is_of_all = count > 1 && finding.values.size() == static_cast<size_t>(count);
        if (!is_of_all && !finding.values.front().empty())
            for (const std::string &value : finding.values)
                line += (&value == &finding.values.front() ? " of \"" : ", \"") + value + "\"";
        if (finding.on_configured_router) line += " on a configured router";
        return line + finding.text;
    }

    const Request *find(Kind kind, const std::optional<std::string> &value) const
    {
        for (const Request &request : requests_)
            if (request.kind == kind && request.value == value && !request.on_configured_router) return &request;
        return nullptr;
    }

    const Request *find_accepted(Kind kind, const std::optional<std::string> &value) const
    {
        const Request *found = find(kind, value);
        return found != nullptr && is_accepted(*found) ? found : nullptr;
    }

    bool is_leaf() const { return explain::is_leaf(node_); }

    void of_reads()
    {
        const Request &read = requests_.front();
        if (!is_accepted(read)) return;
        if (read.native.empty()) add(lines_, "a read is accepted and asks the router for nothing");
        if (!is_leaf()) return;
        for (const NativeNode &native : read.native)
            if (!native.schema->is_terminal() && !is_candidate_list(*native.schema))
                add(lines_, "a read selects the whole of " + path_of(*native.schema));
        if (answers_.empty()) add(lines_, "nothing that the router answers feeds it");
    }

    static bool is_candidate_list(const router::Schema &schema)
    {
        return schema.kind == router::Schema::Kind::list && schema.key_count == schema.children.size();
    }

    void of_edit(const Request &request)
    {
        if (request.kind == Kind::read || request.kind == Kind::read_config) return;
        const bool is_written_alone = !is_leaf() && request.kind != Kind::remove;
        if (request.native.empty() && !is_written_alone) note(request, " is accepted and changes nothing");
        if (request.kind == Kind::remove) of_removal(request);
        of_companions(request);
        if (!request.on_configured_router || find_accepted(request.kind, request.value) == nullptr) of_effects(request);
        of_reading_back(request);
    }

    void of_removal(const Request &request)
    {
        std::set<std::string> written;
        bool removes = false;
        for (const NativeNode &native : request.native) {
            removes |= is_removal(native);
            if (!is_removal(native)) written.insert(path_of(*native.schema));
        }
        if (!request.native.empty() && !removes) note(request, " takes nothing away natively");
        if (!written.empty()) note(request, " writes " + joined(written));
    }

    void of_companions(const Request &request)
    {
        for (const NativeNode &native : request.native) {
            if (!native.is_companion || (request.kind == Kind::remove && !is_removal(native))) continue;
            std::string line = (is_removal(native) ? " takes " : " writes ") + path_of(*native.schema) +
                               (is_removal(native) ? " away too" : " too");
            if (native.value) line += " (\"" + *native.value + "\")";
            note(request, line);
        }
    }

    void of_effects(const Request &request)
    {
        const Effects effects = effects_of(target_, request);
        if (!effects.gone.empty()) note(request, " takes away too: " + joined(effects.gone));
        if (!effects.written.empty()) note(request, " makes these read otherwise: " + joined(effects.written));
    }

    void of_reading_back(const Request &request)
    {
        if (!request.reads_back || request.native.empty() || !request.value) return;
        if (request.reads_back->empty()) {
            note(request, " does not read back");
            return;
        }
        const auto canonical = router::canonical_value(schema_of(node_), *request.value);
        const std::string &value = request.reads_back->front();
        if (value != *request.value && value != canonical &&
            router::canonical_value(schema_of(node_), value) != canonical)
            note(request, " reads back as \"" + value + "\"");
    }

    void of_refusal(const Request &request)
    {
        if (request.kind != Kind::merge || !request.value || request.on_configured_router) return;
        const bool is_any_taken = std::any_of(requests_.begin(), requests_.end(), [](const Request &other) {
            return other.kind == Kind::merge && is_accepted(other) && !other.on_configured_router;
        });
        if (is_any_taken) note(request, " is refused: " + request.messages.back());
    }

    void of_values()
    {
        std::vector<const Request *> merges;
        for (const Request &request : requests_)
            if (request.kind == Kind::merge && is_accepted(request) && request.value && !request.on_configured_router)
                merges.push_back(&request);
        if (merges.size() < 2 || merges.front()->native.empty()) return;
        const bool are_alike = std::all_of(merges.begin(), merges.end(), [&](const Request *merge) {
            return merge->native == merges.front()->native;
        });
        if (!are_alike) return;
        std::string values;
        for (const Request *merge : merges) values += (values.empty() ? "\"" : ", \"") + *merge->value + "\"";
        add(lines_, "all values are written alike: " + values);
    }

    void of_replace()
    {
        for (const Request &replace : requests_) {
            if (replace.kind != Kind::replace || !is_accepted(replace) || replace.on_configured_router) continue;
            const Request *merge = find(Kind::merge, replace.value);
            if (merge == nullptr || !is_accepted(*merge)) continue;
            if (!replace.native.empty() && replace.native == merge->native)
                add(lines_, "a replace becomes what a merge becomes");
            if (replace.native.empty() && !merge->native.empty()) note(replace, " changes nothing, where a merge does");
        }
    }

    // A replace of something above the target.
    void behind_replace()
    {
        if (!is_leaf()) return;
        const MadeRouter router(entry_keys(target_));
        for (const Request &merge : requests_) {
            if (merge.kind != Kind::merge || !is_accepted(merge) || merge.native.empty()) continue;
            if (merge.on_configured_router || list_of_key(node_) != nullptr) continue;
            std::set<std::string> above;
            for (std::string_view path = node_.path.substr(0, node_.path.rfind('/')); !path.empty();
                 path = path.substr(0, path.rfind('/'))) {
                const Saying saying = {VMF_REQ_EDIT, VMF_OP_REPLACE, merge.value, path};
                const Run run = run_request(target_, saying, router);
                if (run.outcome != VMF_RC_OK || !holds_any(run.native, merge.native)) above.insert(std::string(path));
            }
            if (!above.empty()) note(merge, " changes nothing where one of these is replaced: " + joined(above));
        }
    }

    static bool holds_any(const std::vector<NativeNode> &natives, const std::vector<NativeNode> &wanted)
    {
        return std::any_of(wanted.begin(), wanted.end(), [&](const NativeNode &one) {
            return std::any_of(natives.begin(), natives.end(), [&](const NativeNode &native) {
                return native.path == one.path && native.value == one.value;
            });
        });
    }

    const Target &target_;
    const model::OcNode &node_;
    const std::vector<Request> &requests_;
    const std::vector<Answer> &answers_;
    Lines lines_;
    std::vector<Finding> findings_;
};

}  // namespace

Lines oddities_of(const Target &target, const std::vector<Request> &requests, const std::vector<Answer> &answers)
{
    return Oddities(target, requests, answers).lines();
}

}  // namespace explain
