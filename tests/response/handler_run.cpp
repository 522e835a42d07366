#include "handler_run.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <iterator>
#include <set>
#include <sstream>

#include "cases.h"
#include "mapping_run.h"
#include "names.h"
#include "native_model.h"
#include "observer.h"
#include "tree_text.h"
#include "words.h"

namespace response {

namespace {

using support::Case;
using Words = std::map<std::string, uint32_t>;

constexpr uint32_t injected = 0x77;  // the outcome of what is made to fail

// ---- Fields ---------------------------------------------------------------------------------

std::string trimmed(const std::string &text)
{
    const size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string> lines_of(const Case &it, const std::string &field)
{
    std::vector<std::string> lines;
    if (it.has(field))
        for (const std::string &line : it.fields.at(field))
            if (!trimmed(line).empty()) lines.push_back(trimmed(line));
    return lines;
}

std::vector<std::string> split(const std::string &text)
{
    std::istringstream in(text);
    return {std::istream_iterator<std::string>(in), {}};
}

std::vector<std::string> split(const std::string &text, char at)
{
    std::istringstream in(text);
    std::vector<std::string> parts;
    for (std::string part; std::getline(in, part, at);) parts.push_back(part);
    return parts;
}

std::string joined(const std::vector<std::string> &lines)
{
    std::string text;
    for (const std::string &line : lines) text += line + "\n";
    return text;
}

// "NAME=VALUE", "NAME = VALUE" or "NAME: VALUE", taken apart.
std::pair<std::string, std::string> pair_of(const std::string &text, char at = '=')
{
    const size_t middle = text.find(at);
    if (middle == std::string::npos) throw std::runtime_error("no " + std::string(1, at) + " in " + text);
    return {trimmed(text.substr(0, middle)), trimmed(text.substr(middle + 1))};
}

uint32_t number_of(const std::string &text) { return static_cast<uint32_t>(std::stoul(text, nullptr, 0)); }

// "word" or "word=1,2" of a condition.
std::pair<std::string, std::set<uint32_t>> values_of(const std::string &text)
{
    const size_t equals = text.find('=');
    std::set<uint32_t> values;
    if (equals != std::string::npos)
        for (const std::string &value : split(text.substr(equals + 1), ',')) values.insert(number_of(value));
    return {text.substr(0, equals), values};
}

// ---- Conditions -----------------------------------------------------------------------------

// A line of a field and the condition that it holds under.
struct Line {
    std::string text;
    std::string condition;
};

std::vector<Line> conditional_lines(const Case &it, const std::string &field)
{
    std::vector<Line> lines;
    for (const std::string &line : lines_of(it, field)) {
        const size_t bar = line.find(" | ");
        lines.push_back({trimmed(line.substr(0, bar)), bar == std::string::npos ? "" : line.substr(bar + 3)});
    }
    return lines;
}

// What a case expects.
struct Expected {
    explicit Expected(const Case &it)
        : adds(conditional_lines(it, "adds")), logs(conditional_lines(it, "logs")),
          words(conditional_lines(it, "words")), holds(conditional_lines(it, "holds")),
          returns(conditional_lines(it, "returns"))
    {
        for (const std::string &line : lines_of(it, "where")) named.insert(pair_of(line, ':'));
    }

    std::vector<Line> adds, logs, words, holds, returns;
    std::map<std::string, std::string> named;  // conditions with a name
};

// What conditions are about: the words when the handler was called, and how far it came.
struct State {
    const Words &words;
    const std::map<std::string, std::string> &named;  // conditions with a name
    std::map<size_t, size_t> made = {};               // by line of "adds": the number of the add
    uint32_t outcome = 0;
};

bool holds(const std::string &condition, const State &state);

bool is_set(const std::string &text, const State &state)
{
    const auto [name, values] = values_of(text);
    if (auto found = state.named.find(name); found != state.named.end()) return holds(found->second, state);
    const uint32_t word = state.words.at(name);
    return values.empty() ? word != 0 : values.contains(word);
}

bool holds(const std::string &condition, const State &state)
{
    std::string mode;
    bool all = true;
    for (const std::string &word : split(condition)) {
        if (word == "or") {
            if (all) return true;
            all = true;
        } else if (word == "if" || word == "unless" || word == "made" || word == "lost") {
            mode = word;
        } else if (word == "ok") {
            all = all && state.outcome == 0;
        } else if (word != "dropped") {
            if (mode.empty()) throw std::runtime_error("no condition: " + condition);
            const bool is =
                mode == "made" || mode == "lost" ? state.made.contains(number_of(word)) : is_set(word, state);
            all = all && is == (mode == "if" || mode == "made");
        }
    }
    return all;
}

// The words that stand in a case's conditions, each with the values that it takes.
std::map<std::string, std::set<uint32_t>> words_of_conditions(const Case &it, const Expected &expected)
{
    std::map<std::string, std::set<uint32_t>> words;
    const auto note = [&](const std::string &condition) {
        bool are_words = false;
        for (const std::string &word : split(condition)) {
            if (word == "if" || word == "unless")
                are_words = true;
            else if (word == "made" || word == "lost" || word == "or" || word == "ok" || word == "dropped")
                are_words = false;
            else if (are_words && !expected.named.contains(values_of(word).first))
                words.insert({values_of(word).first, {0, 1}});
        }
    };
    for (const auto &[name, condition] : expected.named) note(condition);
    for (const auto *lines : {&expected.adds, &expected.logs, &expected.words, &expected.holds, &expected.returns})
        for (const Line &line : *lines) note(line.condition);
    for (const std::string &line : lines_of(it, "over"))
        for (const std::string &word : split(line)) words[values_of(word).first] = values_of(word).second;
    return words;
}

std::vector<Words> combinations(const std::map<std::string, std::set<uint32_t>> &words)
{
    std::vector<Words> all = {{}};
    for (const auto &[name, values] : words) {
        std::vector<Words> longer;
        for (const uint32_t value : values)
            for (Words combination : all) {
                combination[name] = value;
                longer.push_back(combination);
            }
        all = std::move(longer);
    }
    return all;
}

// ---- What a run holds -----------------------------------------------------------------------

// The entries and texts that a handler may find and leave.
struct Held {
    explicit Held(support::MappingRun &of) : run(of) {}

    support::MappingRun &run;
    std::map<std::string, platform::Tree> trees;     // what entries were there before
    std::map<std::string, const Datatree *> before;  // by name of the entry

    std::map<std::string, Datatree **> entries()
    {
        return {
            {"list", &run.ctx.list_node}, {"af", &run.ctx.af_node}, {"matched", &run.contexts.request.oper_af_matched}};
    }

    std::map<std::string, std::vector<const char **>> texts()
    {
        std::map<std::string, std::vector<const char **>> texts = {{"af_key", {&run.ctx.af_key}},
                                                                   {"af_name", {&run.ctx.af_name}},
                                                                   {"oc_af_name", {&run.ctx.oc_af_name}},
                                                                   {"multihop_ttl", {&run.ctx.multihop_ttl}},
                                                                   {"remote_as_high", {&run.ctx.remote_as_high}}};
        for (const char *&text : run.ctx.distance_texts) texts["distance_texts"].push_back(&text);
        for (const char *&text : run.ctx.ebgp_path_texts) texts["ebgp_path_texts"].push_back(&text);
        for (const char *&text : run.ctx.ibgp_path_texts) texts["ibgp_path_texts"].push_back(&text);
        return texts;
    }

    // False if this is no entry and no text.
    bool set(const std::string &name, const std::string &value)
    {
        const auto places = entries();
        if (const auto entry = places.find(name); entry != places.end()) {
            Datatree *node = platform::append_child(trees[name].root(), platform::intern(value), nullptr);
            *entry->second = node;
            before[name] = node;
            return true;
        }
        auto all = texts();
        const auto text = all.find(name);
        if (text == all.end()) return false;
        const std::vector<std::string> parts = split(value, ',');
        for (size_t i = 0; i < parts.size(); i++)
            *text->second.at(i) = parts[i] == "-" ? nullptr : platform::intern(parts[i]);
        return true;
    }

    std::string name_of_entry(const Datatree *entry, const std::vector<const Datatree *> &added) const
    {
        if (entry == nullptr) return "-";
        for (const auto &[name, node] : before)
            if (node == entry) return name;
        for (size_t i = added.size(); i-- > 0;)
            if (added[i] == entry) return "#" + std::to_string(i + 1);
        return "unknown";
    }

    std::map<std::string, std::string> all(const std::vector<const Datatree *> &added)
    {
        std::map<std::string, std::string> held;
        for (const auto &[name, entry] : entries()) held[name] = name_of_entry(*entry, added);
        for (const auto &[name, texts] : texts())
            for (const char **text : texts)
                held[name] += (held[name].empty() ? "" : ",") + std::string(*text ? *text : "-");
        return held;
    }
};

// ---- What a handler adds --------------------------------------------------------------------

// Writes down every add of this thread until it goes.
class Adds {
public:
    Adds(const Held &held, const Datatree *node, size_t failing) : held_(held), node_(node), failing_(failing)
    {
        observer_ = {before, this, after};
        platform::observe(&observer_);
    }
    ~Adds() { platform::observe(nullptr); }
    Adds(const Adds &) = delete;
    Adds &operator=(const Adds &) = delete;

    const std::vector<std::string> &lines() const { return lines_; }
    const std::vector<const Datatree *> &results() const { return results_; }

private:
    std::string place_of(const platform::Operation &operation) const
    {
        const Datatree *parent = operation.parent;
        if (parent == nullptr) return "null:";
        if (parent == &held_.run.out.root()) return operation.path != nullptr && operation.path[0] == '/' ? "" : "out:";
        for (size_t i = results_.size(); i-- > 0;)
            if (results_[i] == parent) return "#" + std::to_string(i + 1) + ":";
        return held_.name_of_entry(parent, {}) + ":";
    }

    static uint32_t before(void *self, const platform::Operation &operation)
    {
        Adds &adds = *static_cast<Adds *>(self);
        const std::string name = operation.name;
        if (!name.starts_with("vmf_map_datatree_add_")) return 0;
        const bool is_data_ns = name.ends_with("_data_ns");
        std::string line = is_data_ns                     ? "data-ns "
                           : name.ends_with("_list_node") ? "entry "
                           : name.ends_with("_subtree")   ? "subtree "
                                                          : "";
        line += adds.place_of(operation) + (operation.path != nullptr ? operation.path : "(null)");
        if (operation.value != nullptr) line += " = " + std::string(operation.value);
        if (operation.repeat != 0) line += " repeat";
        if (operation.operation_source != nullptr)
            line += operation.operation_source == adds.node_ ? " src" : " src=other";
        const std::string ns = operation.ns != nullptr ? operation.ns : "(null)";
        if (ns != (is_data_ns ? OC_BGP_TYPES_NS : OC_BGP_NS)) line += " in " + ns;
        adds.lines_.push_back(line);
        adds.results_.push_back(nullptr);
        return adds.lines_.size() == adds.failing_ ? injected : 0;
    }

    static void after(void *self, const platform::Operation & /*operation*/, const Datatree &result)
    {
        static_cast<Adds *>(self)->results_.back() = &result;
    }

    const Held &held_;
    const Datatree *node_;
    size_t failing_;
    platform::Observer observer_;
    std::vector<std::string> lines_;
    std::vector<const Datatree *> results_;
};

// ---- A handler ------------------------------------------------------------------------------

struct Subject {
    const Node *node;
    std::string symbol;
    void *function;
    std::string value;
    bool has_value;
};

Subject subject_of(const Case &it)
{
    const std::string text = it.text("node");
    const Model model = text.starts_with("cfg ") ? Model::cfg : Model::oper;
    const size_t blank = text.find(' ');
    const std::string path = text.substr(blank + 1, text.find(" = ") - blank - 1);
    Subject subject = {&find_node(model, path), "", nullptr, "", text.find(" = ") != std::string::npos};
    if (subject.has_value) subject.value = text.substr(text.find(" = ") + 3);
    const std::string calls = it.text("calls");
    const std::string kind = subject.node->is_leaf() ? "leaf_" : "cont_";
    subject.symbol = symbol((calls == "default" ? "__vmf_map_"
                             : calls == "man"   ? "vmf_map_man_"
                                                : "vmf_map_") +
                                kind,
                            model, subject.node->path);
    subject.function = dlsym(RTLD_NEXT, subject.symbol.c_str());  // the library's own, whatever this program defines
    if (subject.function == nullptr) throw std::runtime_error("the library does not export " + subject.symbol);
    return subject;
}

// What the handler says, and what it hands on to: its default and its body. Without "Start" and "End" where both stand.
std::vector<std::string> own_lines(const std::vector<support::Said> &said, const std::string &function)
{
    const std::string bare = function.substr(function.find("vmf_map_") + sizeof "vmf_map_" - 1);
    std::vector<std::string> lines;
    for (const support::Said &line : said) {
        const bool is_own = line.function == function;
        if (is_own && (line.text == "Start" || line.text == "End")) lines.push_back(line.text);
        if (!is_own && line.function != "__vmf_map_" + bare && line.function != "vmf_map_man_" + bare) continue;
        if (line.text != "Start" && line.text != "End") lines.push_back(line.level + " " + line.text);
    }
    if (lines.size() < 2 || lines.front() != "Start" || lines.back() != "End") return lines;
    return {lines.begin() + 1, lines.end() - 1};
}

struct Outcome {
    std::vector<std::string> adds;
    std::vector<std::string> logs;
    Words words;
    std::map<std::string, std::string> held;
    uint32_t returns = 0;
};

std::string shown(const Outcome &outcome)
{
    std::ostringstream text;
    text << joined(outcome.adds) << "logs\n" << joined(outcome.logs) << "words\n";
    for (const auto &[name, value] : outcome.words)
        if (value != 0) text << name << "=" << value << "\n";
    text << "holds\n";
    for (const auto &[name, value] : outcome.held) text << name << " = " << value << "\n";
    text << "returns 0x" << std::hex << outcome.returns << "\n";
    return text.str();
}

// Takes over what was said where a "*" of what was expected stands for it.
void fill_in(std::vector<std::string> &expected, const std::vector<std::string> &said)
{
    for (size_t i = 0; i < std::min(expected.size(), said.size()); i++) {
        const size_t star = expected[i].find('*');
        if (star == std::string::npos || said[i].size() < expected[i].size()) continue;
        if (said[i].starts_with(expected[i].substr(0, star)) && said[i].ends_with(expected[i].substr(star + 1)))
            expected[i] = said[i];
    }
}

// Sets what a case and its words say.
void set_up(const Case &it, const Words &words, Held &held)
{
    const auto set_word = [&](const std::string &name, uint32_t value) {
        if (!support::set_word(name, value, held.run.contexts.request, held.run.ctx))
            throw std::runtime_error("no word is called " + name);
    };
    for (const auto &[name, value] : words) set_word(name, value);
    for (const std::string &line : lines_of(it, "before"))
        for (const std::string &text : split(line)) {
            const auto [name, value] =
                text.find('=') == std::string::npos ? std::pair(text, std::string("1")) : pair_of(text);
            if (!held.set(name, value)) set_word(name, number_of(value));
        }
}

enum class Others { clear, set };

std::set<std::string> names_of_request_words()
{
    const Words zero = support::words_of({}, {});
    std::set<std::string> names;
    for (const auto &[name, value] : zero) {
        RequestContext request = {};
        MapContext run = {};
        support::set_word(name, 1, request, run);
        if (support::words_of(request, {}) != zero) names.insert(name);
    }
    return names;
}

// All words of the request that the case does not mention.
Words other_words(const Case &it, const Words &mentioned)
{
    static const std::set<std::string> names = names_of_request_words();
    std::set<std::string> before;
    for (const std::string &line : lines_of(it, "before"))
        for (const std::string &text : split(line)) before.insert(text.substr(0, text.find('=')));
    Words others;
    for (const std::string &name : names)
        if (!mentioned.contains(name) && !before.contains(name)) others[name] = 1;
    return others;
}

struct Trial {
    const Case &it;
    const Subject &subject;
    const Expected &expected;
    Words words;  // of the conditions
    Others others;
    size_t failing;  // the number of an add; 0: none
};

uint32_t call(const Trial &trial, support::MappingRun &run, Datatree *node)
{
    if (trial.subject.node->is_leaf())
        return reinterpret_cast<VmfLeafHandler *>(trial.subject.function)(&run.ctx, node, &run.out.root());
    const int32_t count = std::stoi(trial.it.text("children", "0"));
    return reinterpret_cast<VmfContainerHandler *>(trial.subject.function)(&run.ctx, node, count, &run.out.root());
}

Outcome actual(const Trial &trial, const Words &words, Outcome &before, std::string &tree)
{
    support::MappingRun run(trial.others == Others::clear ? VMF_REQ_GET : VMF_REQ_EDIT);
    Held held(run);
    set_up(trial.it, words, held);
    platform::Tree native;
    const std::string tag = trial.it.text("tag", trial.subject.node->tag());
    Datatree *node = platform::append_child(native.root(), platform::intern(tag), ZR_BGP_CFG_NS);
    if (trial.subject.has_value) platform::set_value(*node, trial.subject.value);
    std::string stale = trial.it.text("stale");
    if (!stale.empty()) node->value = stale.data();
    if (trial.others == Others::set) platform::set_operation(*node, VMF_OP_DELETE);

    before.words = support::words_of(run.contexts.request, run.ctx);
    before.held = held.all({});
    Outcome outcome;
    {
        Adds adds(held, node, trial.failing);
        outcome.returns = call(trial, run, node);
        outcome.adds = adds.lines();
        outcome.held = held.all(adds.results());
    }
    outcome.logs = own_lines(run.said(), trial.subject.symbol);
    outcome.words = support::words_of(run.contexts.request, run.ctx);
    tree = text_of(run.out);
    if (!stale.empty()) node->value = nullptr;
    return outcome;
}

uint32_t number_of_outcome(const std::string &text)
{
    static const std::map<std::string, uint32_t> names = {
        {"VMF_RC_BAD_TREE", VMF_RC_BAD_TREE}, {"VMF_RC_BAD_ARGS", VMF_RC_BAD_ARGS}, {"VMF_RC_BAD_KEY", VMF_RC_BAD_KEY}};
    const auto found = names.find(text);
    return found != names.end() ? found->second : number_of(text);
}

// "2?list:afi-safi" with the number of the add that the second line is, or with "list" if there is none.
std::string placed(const std::string &text, const State &state)
{
    const size_t at = text.starts_with("entry ") || text.starts_with("data-ns ") ? text.find(' ') + 1 : 0;
    if (at >= text.size() || std::isdigit(static_cast<unsigned char>(text[at])) == 0) return text;
    const size_t colon = text.find(':', at);
    const std::string place = text.substr(at, colon - at);
    const size_t mark = place.find('?');
    const auto found = state.made.find(number_of(place.substr(0, mark)));
    const std::string other = mark == std::string::npos ? "?" : place.substr(mark + 1);
    return text.substr(0, at) + (found != state.made.end() ? "#" + std::to_string(found->second) : other) +
           text.substr(colon);
}

Outcome should_be(const Trial &trial, const Outcome &before)
{
    State state = {before.words, trial.expected.named};
    Outcome outcome;
    const std::vector<Line> &adds = trial.expected.adds;
    for (size_t i = 0; i < adds.size(); i++) {
        if (!holds(adds[i].condition, state)) continue;
        outcome.adds.push_back(placed(adds[i].text, state));
        const bool is_below_none = outcome.adds.back().find("null:") != std::string::npos;
        uint32_t failed = is_below_none ? uint32_t{VMF_RC_BAD_ARGS} : 0;
        if (outcome.adds.size() == trial.failing) failed = injected;
        if (failed == 0) state.made[i + 1] = outcome.adds.size();
        const std::vector<std::string> marks = split(adds[i].condition);
        if (failed == 0 || std::find(marks.begin(), marks.end(), "dropped") == marks.end()) state.outcome = failed;
    }
    outcome.returns = state.outcome;
    for (const Line &line : trial.expected.returns)
        if (holds(line.condition, state)) outcome.returns = number_of_outcome(line.text);
    for (const Line &line : trial.expected.logs)
        if (holds(line.condition, state)) outcome.logs.push_back(line.text);
    outcome.words = before.words;
    for (const Line &line : trial.expected.words)
        if (holds(line.condition, state))
            for (const std::string &word : split(line.text))
                outcome.words.at(pair_of(word).first) = number_of(pair_of(word).second);
    outcome.held = before.held;
    for (const Line &line : trial.expected.holds) {
        if (!holds(line.condition, state)) continue;
        const auto [name, value] = pair_of(line.text);
        const bool is_entry = name == "list" || name == "af" || name == "matched";
        const bool is_line = is_entry && std::isdigit(static_cast<unsigned char>(value[0])) != 0;
        outcome.held.at(name) = is_line ? "#" + std::to_string(state.made.at(number_of(value))) : value;
    }
    return outcome;
}

std::string shown(const Trial &trial)
{
    std::string text = trial.others == Others::set ? "with all other words set" : "";
    for (const auto &[name, value] : trial.words) text += " " + name + "=" + std::to_string(value);
    return text + (trial.failing != 0 ? ", failing add " + std::to_string(trial.failing) : "");
}

void run_handler(const Case &it)
{
    const Subject subject = subject_of(it);
    const Expected expected(it);
    const std::vector<Words> all = combinations(words_of_conditions(it, expected));
    ASSERT_LE(all.size(), 4096u);

    for (const Others others : {Others::clear, Others::set}) {
        for (const Words &words : all) {
            Words set = others == Others::set ? other_words(it, words) : Words();
            set.insert(words.begin(), words.end());
            size_t adds = 0;
            for (size_t failing = 0; failing <= adds; failing++) {
                const Trial trial = {it, subject, expected, words, others, failing};
                Outcome before;
                std::string tree;
                const Outcome is = actual(trial, set, before, tree);
                Outcome right = should_be(trial, before);
                fill_in(right.logs, is.logs);
                ASSERT_EQ(shown(is), shown(right)) << shown(trial);
                if (it.has("gives") && failing == 0 && others == Others::clear && words == all.front()) {
                    ASSERT_EQ(tree, tree_of(it, "gives")) << shown(trial);
                }
                if (failing == 0 && others == Others::clear) adds = is.adds.size();
            }
        }
    }
}

// ---- A walk ---------------------------------------------------------------------------------

void run_walk(const Case &it)
{
    const std::string walk = it.text("walk");
    const Model model = walk.starts_with("cfg") ? Model::cfg : Model::oper;
    platform::Tree native = io::read_tree(native_text(model, walk.substr(walk.find(' ') + 1), tree_of(it, "native")));
    support::MappingRun run(VMF_REQ_GET);
    run.out = io::read_tree(tree_of(it, "mapped"));
    Held held(run);
    set_up(it, {}, held);
    const uint32_t outcome = walk_of(model)(&run.ctx, &node_at(native, "bgp"), &run.out.root());

    EXPECT_EQ(text_of(run.out), tree_of(it, "gives"));
    EXPECT_EQ(outcome, number_of_outcome(it.text("returns", "0")));
    std::vector<std::string> logs;
    for (const support::Said &line : run.said())
        if (line.level != "TRC") logs.push_back(line.level + " " + line.text);
    EXPECT_EQ(joined(logs), joined(lines_of(it, "logs")));
    const Words words = support::words_of(run.contexts.request, run.ctx);
    for (const std::string &line : lines_of(it, "words"))
        for (const std::string &word : split(line))
            EXPECT_EQ(words.at(pair_of(word).first), number_of(pair_of(word).second)) << word;
}

// ---- Tests ----------------------------------------------------------------------------------

class HandlerCase : public testing::Test {
public:
    explicit HandlerCase(Case it) : it_(std::move(it)) {}
    void TestBody() override
    {
        const testing::ScopedTrace place(it_.file.c_str(), it_.line, it_.name);
        if (it_.has("walk"))
            run_walk(it_);
        else
            run_handler(it_);
    }

private:
    Case it_;
};

void replace_all(std::string &text, const std::string &from, const std::string &to)
{
    for (size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

// The case once for each line of a field.
std::vector<Case> each_of(const Case &it, const std::string &of)
{
    std::vector<Case> cases;
    for (const std::string &line : lines_of(it, of)) {
        Case one = it;
        for (const std::string &word : split(line)) {
            const auto [name, value] = pair_of(word);
            replace_all(one.name, name, value);
            for (auto &[field, lines] : one.fields)
                for (std::string &text : lines) replace_all(text, name, value);
        }
        cases.push_back(one);
    }
    return cases.empty() ? std::vector<Case>{it} : cases;
}

std::string test_name(const std::string &words)
{
    std::string name;
    for (char c : words) name += std::isalnum(static_cast<unsigned char>(c)) != 0 ? c : '_';
    return name;
}

}  // namespace

bool register_cases(const std::string &prefix)
{
    const std::vector<std::string> field_names = {"case",  "each",    "with",  "node",  "stale",  "tag",   "children",
                                                  "calls", "before",  "over",  "where", "adds",   "logs",  "words",
                                                  "holds", "returns", "gives", "walk",  "native", "mapped"};
    std::vector<std::filesystem::path> files;
    for (const auto &entry : std::filesystem::directory_iterator(SOURCE_DIR "/tests/response"))
        if (entry.path().extension() == ".cases" && entry.path().filename().string().starts_with(prefix))
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    for (const auto &file : files)
        for (const Case &read : support::read_cases(file.string(), field_names))
            for (const Case &one : each_of(read, "each"))
                for (const Case &it : each_of(one, "with"))
                    testing::RegisterTest(test_name(file.stem().string()).c_str(), test_name(it.name).c_str(), nullptr,
                                          nullptr, it.file.c_str(), it.line,
                                          [it]() -> testing::Test * { return new HandlerCase(it); });
    return true;
}

}  // namespace response
