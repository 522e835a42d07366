#include "step_tree.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>
#include <string_view>
#include <unordered_set>

#include "output.h"
#include "reading.h"
#include "secrets.h"

namespace cli {

using framework::Step;

namespace {

// ---- What a step is for a reader ------------------------------------------------------------

bool is_handler(const Step &step)
{
    constexpr std::array<std::string_view, 3> begins = {"vmf_map_cont_", "vmf_map_leaf_", "vmf_map_man_"};
    std::string_view name = step.name;
    if (name.starts_with("__")) name.remove_prefix(2);
    return step.kind == Step::Kind::function &&
           std::any_of(begins.begin(), begins.end(), [&](std::string_view begin) { return name.starts_with(begin); });
}

std::string shown_value(const Step &step, io::Secrets secrets)
{
    const bool hides = step.is_secret && secrets == io::Secrets::hidden;
    return hides ? std::string(io::hidden_value) : step.value;
}

class Writer {
public:
    explicit Writer(const StepStyle &style) : style_(style), paint_(paint_of(style.is_coloured)) {}

    // `outer` is the handler that did this; null if none did.
    void write_all(const std::vector<Step> &steps, size_t depth, const Step *outer = nullptr)
    {
        for (const Step &step : steps) write(step, depth, outer);
    }

    std::string take() { return std::move(out_); }

private:
    void write(const Step &step, size_t depth, const Step *outer = nullptr)
    {
        switch (step.kind) {
        case Step::Kind::function: return write_function(step, depth, outer);
        case Step::Kind::add: return write_add(step, depth);
        case Step::Kind::query: return write_query(step, depth);
        case Step::Kind::flag: return write_line(depth, paint_.flagged, "~ ", step.name + " = " + step.value);
        case Step::Kind::error: return write_line(depth, paint_.refused, "! ", step.name);
        case Step::Kind::remark: return write_line(depth, paint_.aside, "- ", step.name);
        }
    }

    // A node stands once, with its handler: not once more for the function that walks it.
    void write_function(const Step &step, size_t depth, const Step *outer)
    {
        if (!step.walks && !is_handler(step)) return write_service(step, depth);
        if (!step.walks && outer != nullptr && outer->at == step.at) {
            write_line(depth, paint_.symbol, "call ", step.name);
            return write_all(step.steps, depth + 1, &step);
        }
        const Step *handler = &step;
        if (step.walks && !step.steps.empty() && is_handler(step.steps.front()) && step.steps.front().at == step.at)
            handler = &step.steps.front();
        write_node(step, *handler, depth);
        if (handler == &step) return write_all(step.steps, depth + 1, step.walks ? nullptr : &step);
        write_all(handler->steps, depth + 1, handler);
        for (size_t at = 1; at < step.steps.size(); at++) write(step.steps[at], depth + 1);
    }

    // A service adds the nodes above a path anew for each path: they are told when they come first. What it says of its
    // work is of no interest, what it finds wrong is.
    void write_service(const Step &service, size_t depth)
    {
        for (const Step &step : service.steps) {
            const bool is_known = step.kind == Step::Kind::add && !step.failed && step.operation.empty() &&
                                  !added_.insert(step.name + "=" + step.value).second;
            if (step.kind != Step::Kind::remark && !is_known) write(step, depth);
        }
    }

    void write_node(const Step &step, const Step &handler, size_t depth)
    {
        out_.append(depth * 2, ' ');
        paint(paint_.node, step.node + value_of(step) + operation_of(step));
        if (!handler.walks) {
            if (!step.node.empty()) out_ += "  ";
            paint(paint_.symbol, handler.name);
        }
        out_ += "\n";
    }

    void write_query(const Step &step, size_t depth)
    {
        write_line(depth, paint_.aside, "? ", step.name);
        const size_t at = query_++;
        if (style_.queries == nullptr || at >= style_.queries->size()) return;
        const framework::Query &query = (*style_.queries)[at];
        if (query.records.empty()) write_line(depth + 1, paint_.aside, "", "nothing found");
        for (const platform::DatabaseRecord &record : query.records) {
            std::string line = record.location;
            for (const uint32_t word : record.words) line += " " + std::to_string(word);
            write_line(depth + 1, paint_.aside, "", line);
        }
    }

    void write_add(const Step &step, size_t depth)
    {
        const std::string what = step.name + value_of(step) + operation_of(step);
        write_line(depth, step.failed ? paint_.refused : paint_.added, step.failed ? "! failed: + " : "+ ", what);
    }

    void write_line(size_t depth, const char *colour, const char *mark, const std::string &text)
    {
        out_.append(depth * 2, ' ');
        paint(colour, mark + hide_passwords(io::on_one_line(text), style_.passwords));
        out_ += "\n";
    }

    void paint(const char *colour, const std::string &text)
    {
        if (!text.empty()) out_ += colour + text + paint_.end;
    }

    std::string value_of(const Step &step) const
    {
        return step.has_value ? " = " + io::on_one_line(shown_value(step, style_.secrets)) : "";
    }

    static std::string operation_of(const Step &step)
    {
        return step.operation.empty() ? "" : " [" + step.operation + "]";
    }

    const StepStyle style_;
    const Paint &paint_;
    std::string out_;
    std::unordered_set<std::string> added_;
    size_t query_ = 0;
};

const char *word_of(Step::Kind kind)
{
    switch (kind) {
    case Step::Kind::function: return "function";
    case Step::Kind::add: return "add";
    case Step::Kind::query: return "query";
    case Step::Kind::flag: return "flag";
    case Step::Kind::error: return "error";
    case Step::Kind::remark: break;
    }
    return "remark";
}

nlohmann::ordered_json json_of(const std::vector<Step> &steps, const StepStyle &style)
{
    auto all = nlohmann::ordered_json::array();
    for (const Step &step : steps) {
        nlohmann::ordered_json json = {{word_of(step.kind), hide_passwords(step.name, style.passwords)}};
        if (!step.node.empty()) json["node"] = step.node;
        if (step.has_value) json["value"] = shown_value(step, style.secrets);
        if (!step.operation.empty()) json["operation"] = step.operation;
        if (step.failed) json["failed"] = true;
        if (!step.steps.empty()) json["steps"] = json_of(step.steps, style);
        all.push_back(std::move(json));
    }
    return all;
}

}  // namespace

const Paint &paint_of(bool is_coloured)
{
    static constexpr Paint none = {};
    static constexpr Paint colours = {.node = "\033[1m",
                                      .symbol = "\033[36m",
                                      .added = "\033[32m",
                                      .flagged = "\033[33m",
                                      .refused = "\033[1;31m",
                                      .aside = "\033[2m",
                                      .end = "\033[0m"};
    return is_coloured ? colours : none;
}

std::string write_steps(const Step &walk, const StepStyle &style)
{
    Writer writer(style);
    writer.write_all(walk.steps, 0);
    return writer.take();
}

std::string write_steps_json(const Step &request, const Step *answer, const StepStyle &style)
{
    nlohmann::ordered_json json = {{"request", json_of(request.steps, style)}};
    if (answer != nullptr) json["answer"] = json_of(answer->steps, style);
    return json.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
}

}  // namespace cli
