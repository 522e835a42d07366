#include "cases.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "database_items.h"
#include "mapping_run.h"
#include "names.h"
#include "nodes.h"
#include "recorder.h"
#include "tree_text.h"
#include "vmf_map_oc_bgp.h"
#include "words.h"

namespace support {

namespace {

const std::vector<std::string> field_names = {"case",    "edit",   "get",     "get-config", "kind",    "children",
                                              "calls",   "before", "as",      "fails",      "adds",    "raises",
                                              "leaves",  "holds",  "logs",    "returns",    "request", "gives",
                                              "rejects", "lost",   "becomes", "words",      "for",     "limit"};

std::string trimmed(const std::string &text)
{
    const size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) return "";
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string joined(const std::vector<std::string> &lines)
{
    std::string text;
    for (const std::string &line : lines) text += line + "\n";
    return text;
}

// The lines of a tree without the indent that all of them share.
std::vector<std::string> lines_of(const Case &it, const std::string &field)
{
    std::vector<std::string> lines;
    const auto found = it.fields.find(field);
    if (found == it.fields.end()) return lines;
    for (const std::string &line : found->second)
        if (!trimmed(line).empty() && trimmed(line) != "-") lines.push_back(trimmed(line));
    return lines;
}

// All words of a field, on however many lines.
std::string words_of_field(const Case &it, const std::string &field)
{
    std::string words;
    for (const std::string &line : lines_of(it, field)) words += line + " ";
    return words;
}

// "each family: A; B" in full.
void expand_each(const std::string &line, std::vector<std::string> &adds)
{
    const size_t colon = line.find(": ");
    std::vector<std::string> families;
    const std::string of_all = line.substr(sizeof "each " - 1, colon - (sizeof "each " - 1));
    std::istringstream of(of_all);
    for (std::string name; of >> name;) families.push_back(name);
    if (of_all == "family") {
        families.clear();
        for (const auto &row : oc_zr_af_names) families.emplace_back(row[1]);
    }
    for (const std::string &family : families) {
        const size_t before = adds.size();
        std::map<std::string, std::string> words = {{"$family", family}, {"$entry", "#" + std::to_string(before + 1)}};
        for (size_t i = 1; i < 10; i++) words["$" + std::to_string(i)] = "#" + std::to_string(before + i);
        std::istringstream steps(line.substr(colon + 2));
        for (std::string step; std::getline(steps, step, ';');) {
            step = trimmed(step);
            for (const auto &[word, text] : words)
                for (size_t at = step.find(word); at != std::string::npos; at = step.find(word))
                    step.replace(at, word.size(), text);
            adds.push_back(step);
        }
    }
}

std::vector<std::string> adds_of(const Case &it)
{
    std::vector<std::string> adds;
    std::string whole;
    for (const std::string &line : lines_of(it, "adds")) {
        whole += whole.empty() ? line : " " + line;
        if (whole.ends_with(';')) continue;  // goes on in the next line
        if (whole.starts_with("each "))
            expand_each(whole, adds);
        else
            adds.push_back(whole);
        whole.clear();
    }
    return adds;
}

std::vector<std::string> split(const std::string &text)
{
    std::istringstream in(text);
    std::vector<std::string> words;
    for (std::string word; in >> word;) words.push_back(word);
    return words;
}

uint32_t number_of_outcome(const std::string &text)
{
    static const std::map<std::string, uint32_t> names = {
        {"VMF_RC_BAD_TREE", VMF_RC_BAD_TREE},   {"VMF_RC_BAD_ARGS", VMF_RC_BAD_ARGS},
        {"VMF_RC_NO_MEMORY", VMF_RC_NO_MEMORY}, {"VMF_RC_UNSUPPORTED", VMF_RC_UNSUPPORTED},
        {"VMF_RC_BAD_KEY", VMF_RC_BAD_KEY},     {"VMF_RC_KEY_OPERATION", VMF_RC_KEY_OPERATION}};
    if (auto found = names.find(text); found != names.end()) return found->second;
    return static_cast<uint32_t>(std::stoul(text, nullptr, 0));
}

// ---- What a case sets up --------------------------------------------------------------------

// Entries of the native trees that a key handler would have left.
struct Entries {
    platform::Tree tree;

    Datatree *make(const char *tag) { return platform::append_child(tree.root(), platform::intern(tag), nullptr); }
};

const std::map<std::string, Datatree *MapContext::*> places = {{"list", &MapContext::list_node},
                                                               {"af", &MapContext::af_node},
                                                               {"oper-list", &MapContext::oper_list_node},
                                                               {"oper-af", &MapContext::oper_af_node}};
const std::map<std::string, const char *MapContext::*> keys = {{"af_key", &MapContext::af_key},
                                                               {"oper_key", &MapContext::oper_key},
                                                               {"af_name", &MapContext::af_name},
                                                               {"oper_af_name", &MapContext::oper_af_name}};

void set_up(const Case &it, MappingRun &run, Entries &entries)
{
    for (const platform::DatabaseRecord &record : records_of(it)) run.database.put(record);
    entries.tree.root() = {};
    for (const auto &[tag, place] : places) entries.make(tag.c_str());
    for (const std::string &word : split(words_of_field(it, "before"))) {
        const size_t equals = word.find('=');
        const std::string name = word.substr(0, equals);
        if (auto place = places.find(name); place != places.end()) {
            for (Datatree &entry : platform::children_of(entries.tree.root()))
                if (name == platform::tag_of(entry)) run.ctx.*place->second = &entry;
            continue;
        }
        if (auto key = keys.find(name); key != keys.end()) {
            run.ctx.*key->second = platform::intern(word.substr(equals + 1));
            continue;
        }
        const auto value = equals == std::string::npos ? 1 : std::stoul(word.substr(equals + 1), nullptr, 0);
        ASSERT_TRUE(set_word(name, static_cast<uint32_t>(value), run.contexts.request, run.ctx))
            << "no word is called " << name;
    }
}

// The words that changed, as "raises" has them.
std::string changes(const std::map<std::string, uint32_t> &before, const std::map<std::string, uint32_t> &after)
{
    std::string text;
    for (const auto &[name, value] : after) {
        if (before.at(name) == value) continue;
        text += (text.empty() ? "" : " ") + name;
        if (value != 1) text += "=" + std::to_string(value);
    }
    return text.empty() ? "-" : text;
}

std::string sorted_words(const std::string &text)
{
    std::vector<std::string> words = split(text);
    std::sort(words.begin(), words.end());
    std::string sorted;
    for (const std::string &word : words) sorted += (sorted.empty() ? "" : " ") + word;
    return sorted.empty() ? "-" : sorted;
}

constexpr uint32_t injected = 0x77;  // the outcome of what is made to fail

// "*" stands for any text.
bool fits(std::string_view pattern, std::string_view text)
{
    const size_t star = pattern.find('*');
    if (star == std::string_view::npos) return pattern == text;
    if (!text.starts_with(pattern.substr(0, star))) return false;
    pattern.remove_prefix(star + 1);
    for (size_t from = star; from <= text.size(); from++)
        if (fits(pattern, text.substr(from))) return true;
    return false;
}

// ---- A handler ------------------------------------------------------------------------------

struct HandlerCall {
    uint32_t kind;
    std::string node_text;              // "global/config/as [delete] = 1"
    std::vector<std::string> children;  // lines of a tree text
};

HandlerCall handler_call(const Case &it)
{
    std::string field = "kind";
    for (const char *kind : {"edit", "get", "get-config"})
        if (it.has(kind)) field = kind;
    const std::vector<std::string> &lines = it.fields.at(field);
    HandlerCall call = {0, it.text(field), {lines.begin() + 1, lines.end()}};
    if (field != "kind") {
        call.kind = number_of_kind(field);
        return call;
    }
    const size_t blank = call.node_text.find(' ');  // "7 global/config/as"
    call.kind = number_of_kind(call.node_text.substr(0, blank));
    call.node_text.erase(0, blank + 1);
    return call;
}

// The node with its children, as a child of a holder.
platform::Tree request_of(const HandlerCall &called, const std::string &path, const std::string &tag)
{
    std::string text = tag + " oc-bgp" + called.node_text.substr(path.size()) + "\n";
    size_t indent = std::string::npos;
    for (const std::string &line : called.children) indent = std::min(indent, line.find_first_not_of(' '));
    for (const std::string &line : called.children) text += "  " + line.substr(indent) + "\n";
    platform::Tree request = io::read_tree(text);
    for (Datatree &child : platform::children_of(platform::children_of(request.root())[0])) {
        if (std::string(platform::tag_of(child)) != "-") continue;
        child.tag = nullptr;
        child.present[0] &= static_cast<uint8_t>(~VMF_DT_TAG);
    }
    return request;
}

std::string symbol_of(const Case &it, const model::OcNode &node)
{
    const std::string calls = it.text("calls");
    std::string symbol(node.handler);
    if (calls == "default") return "__" + symbol;
    if (calls == "man") return symbol.insert(sizeof "vmf_map_" - 1, "man_");
    return symbol;
}

uint32_t call(const std::string &symbol, const model::OcNode &node, const Case &it, MappingRun &run, Datatree *request)
{
    void *function = dlsym(RTLD_DEFAULT, symbol.c_str());
    if (function == nullptr) {
        ADD_FAILURE() << "the library does not export " << symbol;
        return 0;
    }
    Datatree *out = &run.out.root();
    if (node.kind == model::Kind::leaf || node.kind == model::Kind::leaf_list)
        return reinterpret_cast<VmfLeafHandler *>(function)(&run.ctx, request, out);
    const int32_t count = it.has("children") ? std::stoi(it.text("children"))
                                             : static_cast<int32_t>(platform::children_of(*request).size());
    return reinterpret_cast<VmfContainerHandler *>(function)(&run.ctx, request, count, out);
}

// What the handler said between "Start" and "End", and what it hands on to: "vmf_map_leaf_x" to its default
// "__vmf_map_leaf_x" and its body "vmf_map_man_leaf_x".
std::vector<std::string> own_lines(const std::vector<Said> &said, const std::string &function)
{
    std::set<std::string> names = {function};
    if (!function.starts_with("__") && !function.starts_with("vmf_map_man_")) names.insert("__" + function);
    if (!function.starts_with("vmf_map_man_"))
        names.insert("vmf_map_man_" + function.substr(function.find("vmf_map_") + sizeof "vmf_map_" - 1));
    std::vector<std::string> lines;
    for (const Said &line : said)
        if (names.contains(line.function) && line.text != "Start" && line.text != "End")
            lines.push_back(line.level + " " + line.text);
    return lines;
}

// "[remove]", as a tree text has it; "-": none.
std::string operation_of(const Datatree &node)
{
    static const char *const names[] = {"[merge]", "[replace]", "[create]", "[delete]", "[remove]"};
    return platform::has_operation(node) && node.operation < std::size(names) ? names[node.operation] : "-";
}

std::string text_or_dash(const char *text) { return text != nullptr ? text : "-"; }

// What the run holds of entries and keys, as "holds" has it.
std::map<std::string, std::string> held(const MapContext &ctx)
{
    std::map<std::string, std::string> texts;
    for (const auto &[name, place] : places) {
        const Datatree *entry = ctx.*place;
        texts[name] = entry == nullptr ? "-" : text_or_dash(platform::tag_of(*entry)) + " " + operation_of(*entry);
    }
    for (const auto &[name, key] : keys) texts[name] = text_or_dash(ctx.*key);
    return texts;
}

std::string changes_held(const std::map<std::string, std::string> &before,
                         const std::map<std::string, std::string> &after)
{
    std::vector<std::string> lines;
    for (const auto &[name, text] : after) {
        if (before.at(name) == text) continue;
        const std::string shown = text.ends_with(" -") ? text.substr(0, text.size() - 2) : text;
        lines.push_back(name + " = " + shown);
    }
    return joined(lines);
}

std::string sorted_lines(std::vector<std::string> lines)
{
    std::sort(lines.begin(), lines.end());
    return joined(lines);
}

void run_handler(const Case &it)
{
    const HandlerCall called = handler_call(it);
    const std::string path = called.node_text.substr(0, called.node_text.find_first_of(" ["));
    const model::OcNode *node = model::find_oc_node(path == "bgp" ? "/bgp" : "/bgp/" + path);
    ASSERT_NE(node, nullptr) << "no node is called " << path;

    platform::Tree request = request_of(called, path, std::string(node->path.substr(node->path.rfind('/') + 1)));
    Datatree *request_node = &platform::children_of(request.root())[0];
    const std::string operation_before = operation_of(*request_node);
    const std::string value_before = text_or_dash(platform::value_of(*request_node));

    MappingRun run(called.kind);
    Entries entries;
    ASSERT_NO_FATAL_FAILURE(set_up(it, run, entries));
    const auto words_before = words_of(run.contexts.request, run.ctx);
    const auto held_before = held(run.ctx);

    const std::string symbol = symbol_of(it, *node);
    const std::string failing = it.text("fails");
    uint32_t outcome = 0;
    std::vector<std::string> adds;
    {
        Recorder recorder(&run.ctx, request_node, &run.out.root());
        if (!failing.empty() && std::isdigit(static_cast<unsigned char>(failing[0])) != 0)
            recorder.fail(std::stoul(failing), injected);
        else if (!failing.empty())
            recorder.on_operation = [&](const std::string &operation) {
                return fits(failing, operation) ? injected : 0;
            };
        outcome = call(symbol, *node, it, run, request_node);
        adds = recorder.adds();
    }

    EXPECT_EQ(joined(adds), joined(adds_of(it)));
    EXPECT_EQ(sorted_words(changes(words_before, words_of(run.contexts.request, run.ctx))),
              sorted_words(words_of_field(it, "raises")));
    EXPECT_EQ(outcome, number_of_outcome(it.text("returns", "0")));
    EXPECT_EQ(text_or_dash(run.contexts.request.rejected_tag), it.text("rejects", "-"));

    const std::string leaves = it.text("leaves");  // "[remove] = value"
    const size_t equals = leaves.find("= ");
    const std::string operation = trimmed(leaves.substr(0, equals));
    EXPECT_EQ(operation_of(*request_node), operation.empty() ? operation_before : operation);
    EXPECT_EQ(text_or_dash(platform::value_of(*request_node)),
              equals == std::string::npos ? value_before : leaves.substr(equals + 2));
    if (it.has("holds")) {
        EXPECT_EQ(changes_held(held_before, held(run.ctx)), sorted_lines(lines_of(it, "holds")));
    }
    if (it.has("logs")) {
        EXPECT_EQ(joined(own_lines(run.said(), symbol)), joined(lines_of(it, "logs")));
    }
}

// ---- A whole request ------------------------------------------------------------------------

void run_request(const Case &it)
{
    platform::Tree request = io::read_tree(tree_of(it, "request"));
    ASSERT_EQ(platform::children_of(request.root()).size(), 1u);

    MappingRun run(number_of_kind(it.text("kind")));
    Entries entries;
    ASSERT_NO_FATAL_FAILURE(set_up(it, run, entries));
    const auto words_before = words_of(run.contexts.request, run.ctx);
    const uint32_t outcome = vmf_map_oc_bgp(&run.ctx, &platform::children_of(request.root())[0], &run.out.root());

    if (it.has("gives")) {
        EXPECT_EQ(io::write_tree(run.out.root(), io::Secrets::shown), tree_of(it, "gives"));
    }
    EXPECT_EQ(outcome, number_of_outcome(it.text("returns", "0")));
    const char *rejected = run.contexts.request.rejected_tag;
    EXPECT_EQ(std::string(rejected != nullptr ? rejected : ""), it.text("rejects"));
    for (const std::string &word : split(words_of_field(it, "words"))) {
        const size_t equals = word.find('=');
        const uint32_t value = static_cast<uint32_t>(std::stoul(word.substr(equals + 1)));
        EXPECT_EQ(words_of(run.contexts.request, run.ctx).at(word.substr(0, equals)), value) << word;
    }
    if (it.has("raises")) {
        EXPECT_EQ(sorted_words(changes(words_before, words_of(run.contexts.request, run.ctx))),
                  sorted_words(words_of_field(it, "raises")));
    }
    if (it.has("logs")) {
        std::vector<std::string> errors;
        for (const Said &line : run.said())
            if (line.level == "ERR") errors.push_back(line.level + " " + line.text);
        EXPECT_EQ(joined(errors), joined(lines_of(it, "logs")));
    }
}

// ---- A whole request, each operation failing once -------------------------------------------

struct FailingRun {
    uint32_t outcome = 0;
    std::string failed;  // the operation that was made to fail; empty: there are not so many
    std::string tree_at_failure;
    std::string tree;
};

FailingRun run_with_failure(const Case &it, size_t number)
{
    platform::Tree request = io::read_tree(tree_of(it, "request"));
    Datatree *bgp = &platform::children_of(request.root())[0];
    MappingRun run(number_of_kind(it.text("kind")));
    Entries entries;
    set_up(it, run, entries);
    FailingRun result;
    size_t count = 0;
    Recorder recorder(&run.ctx, bgp, &run.out.root());
    recorder.on_operation = [&](const std::string &operation) -> uint32_t {
        if (++count != number) return 0;
        result.failed = operation;
        result.tree_at_failure = io::write_tree(run.out.root(), io::Secrets::shown);
        return injected;
    };
    result.outcome = vmf_map_oc_bgp(&run.ctx, bgp, &run.out.root());
    result.tree = io::write_tree(run.out.root(), io::Secrets::shown);
    return result;
}

// What a request answers when this operation fails; `otherwise` is what it answers when nothing does.
uint32_t expected_outcome(const Case &it, const std::string &failed, uint32_t otherwise)
{
    for (const std::string &pattern : lines_of(it, "lost"))
        if (fits(pattern, failed)) return otherwise;
    for (const std::string &line : lines_of(it, "becomes")) {
        const size_t arrow = line.find(" -> ");
        if (fits(line.substr(0, arrow), failed)) return number_of_outcome(line.substr(arrow + 4));
    }
    return injected;
}

void run_failures(const Case &it)
{
    const FailingRun baseline = run_with_failure(it, 0);
    EXPECT_EQ(baseline.outcome, number_of_outcome(it.text("returns", "0")));
    size_t number = 1;
    for (;; number++) {
        const FailingRun run = run_with_failure(it, number);
        if (run.failed.empty()) break;
        EXPECT_EQ(run.outcome, expected_outcome(it, run.failed, baseline.outcome)) << "failing: " << run.failed;
        if (run.outcome == injected) {
            EXPECT_EQ(run.tree, run.tree_at_failure) << "failing: " << run.failed;
        }
    }
    EXPECT_GT(number, 1u);
    testing::Test::RecordProperty("operations", static_cast<int>(number - 1));
}

class CaseTest : public testing::Test {
public:
    explicit CaseTest(Case it) : it_(std::move(it)) {}
    void TestBody() override
    {
        const testing::ScopedTrace place(it_.file.c_str(), it_.line, it_.name);
        if (it_.has("lost"))
            run_failures(it_);
        else if (it_.has("request"))
            run_request(it_);
        else
            run_handler(it_);
    }

private:
    Case it_;
};

std::string test_name(const std::string &words)
{
    std::string name;
    for (char c : words) name += std::isalnum(static_cast<unsigned char>(c)) != 0 ? c : '_';
    return name;
}

}  // namespace

std::string Case::text(const std::string &field, const std::string &otherwise) const
{
    const auto found = fields.find(field);
    return found != fields.end() && !found->second.empty() ? trimmed(found->second[0]) : otherwise;
}

static std::vector<Case> repeated_for(const Case &it)
{
    if (!it.has("for")) return {it};
    const std::vector<std::string> lines = lines_of(it, "for");
    const std::vector<std::string> words = split(lines[0]);
    std::vector<size_t> longest_first;  // "$operation" before "$oper"
    for (size_t i = 0; i < words.size(); i++) longest_first.push_back(i);
    std::stable_sort(longest_first.begin(), longest_first.end(),
                     [&](size_t a, size_t b) { return words[a].size() > words[b].size(); });
    std::vector<Case> cases;
    for (size_t row = 1; row < lines.size(); row++) {
        const std::vector<std::string> texts = split(lines[row]);
        if (texts.size() != words.size())
            throw std::runtime_error(it.file + ":" + std::to_string(it.line) +
                                     ": not a text for each word: " + lines[row]);
        const auto put = [&](std::string &text) {
            for (const size_t i : longest_first)
                for (size_t at = text.find(words[i]); at != std::string::npos;
                     at = text.find(words[i], at + texts[i].size()))
                    text.replace(at, words[i].size(), texts[i]);
        };
        Case &made = cases.emplace_back(it);
        put(made.name);
        for (auto &[name, of_field] : made.fields)
            for (std::string &line : of_field) put(line);
    }
    return cases;
}

std::vector<Case> read_cases(const std::string &file, const std::vector<std::string> &fields)
{
    std::ifstream in(file);
    if (!in) throw std::runtime_error("cannot read " + file);
    std::vector<Case> cases;
    Case shared{file, 0, "", {}};  // what stands before the first case belongs to each of them
    std::vector<std::string> *field = nullptr;
    std::string line;
    for (int number = 1; std::getline(in, line); number++) {
        const auto fail = [&](const std::string &what) {
            throw std::runtime_error(file + ":" + std::to_string(number) + ": " + what);
        };
        if (line.starts_with('#')) continue;
        if (line.empty() || line.starts_with(' ')) {
            if (field != nullptr && !line.empty()) field->push_back(line);
            continue;
        }
        const size_t blank = line.find(' ');
        const std::string name = line.substr(0, blank);
        const std::string rest = blank == std::string::npos ? "" : trimmed(line.substr(blank));
        if (std::find(fields.begin(), fields.end(), name) == fields.end()) fail("no field is called " + name);
        if (name == "case") {
            cases.push_back({file, number, rest, {}});
            field = nullptr;
            continue;
        }
        Case &owner = cases.empty() ? shared : cases.back();
        if (owner.has(name)) fail("the field " + name + " stands twice");
        field = &owner.fields[name];
        if (!rest.empty()) field->push_back(rest);
    }
    const auto shared_for = shared.fields.extract("for");
    for (const auto &[name, lines] : shared.fields) {
        for (Case &it : cases) it.fields[name].insert(it.fields[name].end(), lines.begin(), lines.end());
    }
    std::vector<Case> in_full;
    for (const Case &it : cases) {
        for (Case &made : repeated_for(it)) {
            made.fields.erase("for");
            if (shared_for) made.fields["for"] = shared_for.mapped();
            for (Case &made_again : repeated_for(made)) in_full.push_back(std::move(made_again));
        }
    }
    return in_full;
}

std::string tree_of(const Case &it, const std::string &field)
{
    const auto found = it.fields.find(field);
    if (found == it.fields.end()) return "";
    size_t indent = std::string::npos;
    for (const std::string &line : found->second)
        if (!trimmed(line).empty()) indent = std::min(indent, line.find_first_not_of(' '));
    std::string text;
    for (const std::string &line : found->second)
        if (!trimmed(line).empty() && trimmed(line) != "-") text += line.substr(indent) + "\n";
    return text;
}

uint32_t number_of_kind(const std::string &text)
{
    if (text == "get-config") return VMF_REQ_GET_CONFIG;
    if (text == "edit") return VMF_REQ_EDIT;
    if (text == "get") return VMF_REQ_GET;
    return static_cast<uint32_t>(std::stoul(text));
}

std::vector<platform::DatabaseRecord> records_of(const Case &it)
{
    std::vector<platform::DatabaseRecord> records;
    if (it.has("as")) records.push_back(framework::global_as_item(0, static_cast<uint32_t>(std::stoul(it.text("as")))));
    for (const std::string &line : lines_of(it, "limit")) {
        const size_t equals = line.find(" = ");
        if (equals == std::string::npos) throw std::runtime_error("no value: " + line);
        const auto limit = static_cast<uint32_t>(std::stoul(line.substr(equals + 3)));
        records.push_back({.location = line.substr(0, equals), .words = {limit}, .only_in_candidate = true});
    }
    return records;
}

std::vector<Case> read_cases(const std::string &file) { return read_cases(file, field_names); }

void register_cases(const std::vector<std::string> &files)
{
    for (const std::string &file : files) {
        const std::string suite = test_name(std::filesystem::path(file).stem().string());
        for (const Case &it : read_cases(file, field_names)) {
            testing::RegisterTest(suite.c_str(), test_name(it.name).c_str(), nullptr, nullptr, it.file.c_str(), it.line,
                                  [it]() -> testing::Test * { return new CaseTest(it); });
        }
    }
}

}  // namespace support
