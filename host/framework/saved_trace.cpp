#include "saved_trace.h"

#include <charconv>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "line_difference.h"
#include "reading.h"
#include "tree_text.h"

namespace framework {

namespace {

using Json = nlohmann::ordered_json;
using Lines = SavedTrace::Lines;

constexpr char format_name[] = "ocbgp-trace";

// ---- Words ----------------------------------------------------------------------------------

struct KindName {
    const char *name;
    uint32_t kind;
};
constexpr KindName kind_names[] = {{"get-config", VMF_REQ_GET_CONFIG}, {"edit", VMF_REQ_EDIT}, {"get", VMF_REQ_GET}};

Json kind_word(uint32_t kind)
{
    for (const KindName &known : kind_names)
        if (known.kind == kind) return known.name;
    return kind;
}

std::string outcome_word(uint32_t outcome)
{
    char text[sizeof "0x00000000"];
    std::snprintf(text, sizeof text, "0x%08x", outcome);
    return text;
}

Lines lines_of(std::string_view text)
{
    Lines lines;
    while (!text.empty()) {
        const size_t end = text.find('\n');
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

Lines lines_of(const Datatree &holder, io::Secrets secrets) { return lines_of(io::write_tree(holder, secrets)); }

// ---- Reading --------------------------------------------------------------------------------

class Reader {
public:
    explicit Reader(const std::string &file) : file_(file) {}

    [[noreturn]] void refuse(const std::string &reason) const
    {
        throw io::InputError(file_ + ": " + io::on_one_line(reason));
    }

    const Json &member(const Json &object, const char *name) const
    {
        if (!object.is_object() || !object.contains(name)) refuse(damage("there is no member \"", name));
        return object[name];
    }

    std::string text(const Json &object, const char *name) const
    {
        const Json &value = member(object, name);
        if (!value.is_string()) refuse(damage("no text is the member \"", name));
        return value.get<std::string>();
    }

    uint32_t number(const Json &object, const char *name) const { return number_of(member(object, name), name); }

    uint32_t number_of(const Json &value, const char *name) const
    {
        if (!value.is_number_unsigned() || value.get<uint64_t>() > UINT32_MAX)
            refuse(damage("no number of 32 bits is the member \"", name));
        return value.get<uint32_t>();
    }

    const Json &array(const Json &object, const char *name) const
    {
        const Json &value = member(object, name);
        if (!value.is_array()) refuse(damage("no array is the member \"", name));
        return value;
    }

    Lines lines(const Json &object, const char *name) const
    {
        Lines all;
        for (const Json &line : array(object, name)) {
            if (!line.is_string()) refuse(damage("not all are lines of text in the member \"", name));
            all.push_back(line.get<std::string>());
        }
        return all;
    }

    uint32_t outcome(const Json &object) const
    {
        const std::string word = text(object, "outcome");
        uint32_t outcome = 0;
        const char *end = word.data() + word.size();
        const bool is_hex = word.starts_with("0x") && word.size() > 2;
        const auto read = std::from_chars(word.data() + (is_hex ? 2 : 0), end, outcome, 16);
        if (!is_hex || read.ec != std::errc() || read.ptr != end)
            refuse(damage("no outcome is the member \"", "outcome"));
        return outcome;
    }

    uint32_t kind(const Json &trace) const
    {
        const Json &value = member(trace, "kind");
        for (const KindName &known : kind_names)
            if (value == known.name) return known.kind;
        return number_of(value, "kind");
    }

    Query query(const Json &value) const
    {
        const std::string view = text(value, "view");
        if (view != "candidate" && view != "running") refuse("damaged: no view is called \"" + view + "\"");
        Query query = {text(value, "pattern"), view == "candidate"};
        for (const Json &record : array(value, "records")) {
            platform::DatabaseRecord one;
            one.location = text(record, "location");
            for (const Json &word : array(record, "words")) one.words.push_back(number_of(word, "words"));
            one.part = number(record, "part");
            query.records.push_back(std::move(one));
        }
        return query;
    }

private:
    static std::string damage(const char *what, const char *name)
    {
        return std::string("damaged: ") + what + name + "\"";
    }

    const std::string &file_;
};

Json json_of(const Query &query)
{
    Json records = Json::array();
    for (const platform::DatabaseRecord &record : query.records)
        records.push_back({{"location", record.location}, {"words", record.words}, {"part", record.part}});
    return {{"pattern", query.pattern}, {"view", query.merged ? "candidate" : "running"}, {"records", records}};
}

// ---- Running again --------------------------------------------------------------------------

// Answers as it was answered, in the same order where the questions are the same.
class SavedDatabase final : public platform::Database {
public:
    explicit SavedDatabase(const std::vector<Query> &queries) : queries_(queries), is_used_(queries.size()) {}

    std::vector<platform::DatabaseRecord> find(std::string_view pattern, bool merged) const override
    {
        const Query *last = nullptr;
        for (size_t at = 0; at < queries_.size(); at++) {
            const Query &query = queries_[at];
            if (query.pattern != pattern || query.merged != merged) continue;
            last = &query;
            if (is_used_[at]) continue;
            is_used_[at] = true;
            break;
        }
        return last != nullptr ? last->records : std::vector<platform::DatabaseRecord>();
    }

private:
    const std::vector<Query> &queries_;
    mutable std::vector<bool> is_used_;
};

platform::Tree tree_of(const Lines &lines, const char *part, const std::string &file)
{
    std::string text;
    for (const std::string &line : lines) {
        const size_t indent = std::min(line.find_first_not_of(' '), line.size());
        if (indent / 2 > static_cast<size_t>(io::deepest_nesting))
            throw io::InputError(file + ": damaged: " + part + ": nested deeper than " +
                                 std::to_string(io::deepest_nesting));
        text += line + "\n";
    }
    try {
        return io::read_tree(text);
    } catch (const std::bad_alloc &) {
        throw;
    } catch (const std::exception &error) {
        throw io::InputError(file + ": damaged: " + part + ": " + io::on_one_line(error.what()));
    }
}

io::Document request_of(const SavedTrace &trace, const std::string &file)
{
    platform::Tree holder = tree_of(trace.request, "request", file);
    const auto trees = platform::children_of(holder.root());
    if (trees.size() != 1) throw io::InputError(file + ": damaged: request: not one tree");
    io::Document document;
    std::swap(document.bgp.root(), trees.front());
    return document;
}

// ---- Differences ----------------------------------------------------------------------------

void compare(std::vector<Difference> &all, const char *part, const Lines &before, const Lines &now)
{
    Lines lines = line_difference(before, now);
    if (!lines.empty()) all.push_back({part, std::move(lines)});
}

Lines lines_of_queries(const std::vector<Query> &queries)
{
    Lines lines;
    for (const Query &query : queries) {
        lines.push_back(query.pattern + (query.merged ? " of the candidate" : " of what runs"));
        for (const platform::DatabaseRecord &record : query.records) {
            std::string line = "  " + record.location;
            for (const uint32_t word : record.words) line += " " + std::to_string(word);
            lines.push_back(line + " part " + std::to_string(record.part));
        }
    }
    return lines;
}

Lines lines_of_result(const SavedTrace &trace)
{
    Lines lines = {"outcome " + outcome_word(trace.outcome)};
    if (!trace.reason.empty()) lines.push_back("reason " + trace.reason);
    if (!trace.tag.empty()) lines.push_back("tag " + trace.tag);
    if (!trace.path.empty()) lines.push_back("path " + trace.path);
    return lines;
}

}  // namespace

SavedTrace saved(const Recording &recording, io::Secrets secrets)
{
    const Refusal &refusal = recording.refusal;
    SavedTrace trace = {.kind = recording.kind, .request = lines_of(holder_of(recording.request.bgp.root()), secrets)};
    trace.queries = recording.queries;
    trace.native_request = lines_of(recording.native.root(), secrets);
    trace.outcome = recording.outcome;
    if (recording.outcome != VMF_RC_OK) {
        trace.reason = refusal.reason;
        trace.tag = refusal.tag;
        trace.path = refusal.path;
    }
    trace.notes = recording.notes;
    trace.was_answered = recording.was_answered;
    trace.native_response = lines_of(recording.response.root(), secrets);
    trace.answer_outcome = recording.answer_outcome;
    trace.answer = lines_of(recording.answer.root(), secrets);
    return trace;
}

std::string write_saved_trace(const SavedTrace &trace)
{
    Json json = {{"format", format_name}, {"version", saved_trace_version}};
    json["kind"] = kind_word(trace.kind);
    json["request"] = trace.request;
    json["system-database"] = Json::array();
    for (const Query &query : trace.queries) json["system-database"].push_back(json_of(query));
    json["native-request"] = trace.native_request;
    Json result = {{"outcome", outcome_word(trace.outcome)}};
    if (trace.outcome != VMF_RC_OK) {
        result["reason"] = trace.reason;
        result["tag"] = trace.tag;
        result["path"] = trace.path;
    }
    result["notes"] = trace.notes;
    json["result"] = result;
    if (trace.was_answered) {
        json["native-response"] = trace.native_response;
        json["answer"] = {{"outcome", outcome_word(trace.answer_outcome)}, {"tree", trace.answer}};
    }
    return json.dump(1, ' ', false, Json::error_handler_t::replace) + "\n";
}

SavedTrace read_saved_trace(std::string_view text, const std::string &file)
{
    const Reader reader(file);
    const Json json = Json::parse(text, nullptr, false);
    if (!json.is_object() || !json.contains("format") || json["format"] != format_name)
        reader.refuse("not a saved trace");
    if (const uint32_t version = reader.number(json, "version"); version != saved_trace_version)
        reader.refuse("a saved trace of version " + std::to_string(version) + "; only version " +
                      std::to_string(saved_trace_version) + " is read");

    SavedTrace trace;
    trace.kind = reader.kind(json);
    trace.request = reader.lines(json, "request");
    for (const Json &query : reader.array(json, "system-database")) trace.queries.push_back(reader.query(query));
    trace.native_request = reader.lines(json, "native-request");
    const Json &result = reader.member(json, "result");
    trace.outcome = reader.outcome(result);
    if (trace.outcome != VMF_RC_OK) {
        trace.reason = reader.text(result, "reason");
        trace.tag = reader.text(result, "tag");
        trace.path = reader.text(result, "path");
    }
    trace.notes = reader.lines(result, "notes");
    trace.was_answered = json.contains("native-response");
    if (!trace.was_answered) return trace;
    trace.native_response = reader.lines(json, "native-response");
    const Json &answer = reader.member(json, "answer");
    trace.answer_outcome = reader.outcome(answer);
    trace.answer = reader.lines(answer, "tree");
    return trace;
}

SavedTrace run_again(const SavedTrace &trace, const std::string &file)
{
    const SavedDatabase database(trace.queries);
    RecordedRequest request([&] { return request_of(trace, file); }, trace.kind, database);
    if (trace.was_answered && request.recording().outcome == VMF_RC_OK)
        request.answer(tree_of(trace.native_response, "native-response", file));
    return saved(request.recording(), io::Secrets::shown);
}

std::vector<Difference> differences(const SavedTrace &before, const SavedTrace &now)
{
    std::vector<Difference> all;
    compare(all, "system database", lines_of_queries(before.queries), lines_of_queries(now.queries));
    compare(all, "native request", before.native_request, now.native_request);
    compare(all, "result", lines_of_result(before), lines_of_result(now));
    compare(all, "notes", before.notes, now.notes);
    const auto answer_outcome = [](const SavedTrace &trace) {
        return trace.was_answered ? Lines{"outcome " + outcome_word(trace.answer_outcome)} : Lines();
    };
    compare(all, "outcome of the answer", answer_outcome(before), answer_outcome(now));
    compare(all, "answer", before.answer, now.answer);
    return all;
}

}  // namespace framework
