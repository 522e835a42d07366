#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "node.h"

namespace {

constexpr char default_vrf[] = "/bgp/instance/instance-as/four-byte-as/default-vrf/";

struct Row {
    int line = 0;
    std::string path;
    std::vector<std::string> words;             // the form, other paths and marks
    std::map<std::string, std::string> places;  // what the places hang from, where this row stands
};

// Which forms there are, for which nodes, and with how many other paths.
struct Form {
    const char *name;
    bool for_leaf;
    bool for_container;
    size_t least;
    size_t most;
};

constexpr Form request_forms[] = {
    {"plain", true, false, 1, 1},  {"fan-out", true, false, 1, 99},   {"state", true, false, 1, 99},
    {"key", true, false, 2, 2},    {"selection", false, true, 1, 99}, {"state-selection", false, true, 1, 99},
    {"silent", false, true, 0, 0}, {"forward", true, true, 0, 0},
};

constexpr Form response_forms[] = {
    {"copies", true, false, 1, 1}, {"whole", true, false, 1, 1}, {"opens", true, false, 1, 1},
    {"entry", true, false, 2, 2},  {"empty", false, true, 1, 1}, {"silent", true, true, 0, 0},
    {"forward", true, true, 0, 0}, {"hand", true, true, 0, 0},
};

class TableReader {
public:
    TableReader(const std::string &file, const Tree &tree, const Model &model, const OtherModels &others)
        : file_(file), tree_(tree), model_(model), others_(others)
    {
    }

    Model read()
    {
        Model nodes;
        std::map<size_t, size_t> places;  // from the model's order to that of the nodes with a row
        size_t at = 0;
        for (const Row &row : read_rows()) {
            const size_t expected = at;
            while (at < model_.size() && model_[at].path != row.path && tree_.direction == Direction::response) at++;
            if (at >= model_.size() || model_[at].path != row.path) fail_place(row, expected);
            places[at] = nodes.size();
            nodes.push_back(read_row(row, model_[at]));
            at++;
        }
        if (tree_.direction == Direction::request && at < model_.size())
            throw InputError(file_ + ": no row for " + model_[at].path);
        for (Node &node : nodes) keep_children(node, places);
        return nodes;
    }

private:
    [[noreturn]] void fail(int line, const std::string &what) const
    {
        throw InputError(file_ + ":" + std::to_string(line) + ": " + what);
    }

    [[noreturn]] void fail_place(const Row &row, size_t expected) const
    {
        if (find_node(model_, row.path) == nullptr || expected >= model_.size())
            fail(row.line, expected < model_.size() && tree_.direction == Direction::request
                               ? "the model has " + model_[expected].path + " here, not " + row.path
                               : "the model has no such node: " + row.path);
        fail(row.line, "the model has " + model_[expected].path + " here, not " + row.path);
    }

    static void keep_children(Node &node, const std::map<size_t, size_t> &places)
    {
        std::vector<size_t> kept;
        for (size_t child : node.children)
            if (const auto found = places.find(child); found != places.end()) kept.push_back(found->second);
        node.children = kept;
    }

    std::vector<Row> read_rows() const
    {
        std::ifstream in(file_);
        if (!in) throw InputError("cannot read " + file_);
        std::vector<Row> rows;
        std::string below;
        std::map<std::string, std::string> places;
        std::string text;
        for (int line = 1; std::getline(in, text); line++) {
            std::istringstream words(text);
            std::string first;
            if (!(words >> first) || first[0] == '#') continue;
            if (first == "below") {
                if (!(words >> below)) fail(line, "below what?");
                continue;
            }
            if (first.ends_with(':')) {
                first.pop_back();
                if (!(words >> places[first])) fail(line, first + ": hangs from what?");
                continue;
            }
            if (below.empty()) fail(line, "a row before the first \"below\"");
            Row row{line, first == "." ? below : below + "/" + first, {}, places};
            for (std::string word; words >> word;) row.words.push_back(word);
            if (row.words.empty()) fail(line, "a node without a form");
            rows.push_back(row);
        }
        return rows;
    }

    Node read_row(const Row &row, Node node) const
    {
        node.tree = tree_.word;
        node.form = row.words[0];
        node.has_handler = node.kind != NodeKind::list;
        node.overridden = node.form == "hand";
        for (size_t w = 1; w < row.words.size(); w++) {
            if (row.words[w][0] == '@')
                read_mark(row.line, row.words[w], node);
            else
                node.others.push_back(read_other(row, node, row.words[w]));
        }
        check_form(row.line, node);
        return node;
    }

    // ---- Other paths

    OtherPath read_other(const Row &row, const Node &node, const std::string &word) const
    {
        OtherPath other;
        other.text = word;
        std::string rest = word;
        if (const size_t equals = rest.find('='); equals != std::string::npos) {
            other.constant = rest.substr(equals + 1);
            rest.erase(equals);
        }
        const bool unknown_on_purpose = rest.ends_with('~');
        if (unknown_on_purpose) rest.pop_back();
        if (rest.ends_with('+')) {
            other.repeated = true;
            rest.pop_back();
        }
        for (size_t colon = rest.find(':'); colon != std::string::npos; colon = rest.find(':')) {
            const std::string prefix = rest.substr(0, colon);
            rest = rest.substr(colon + 1);
            if (prefix == "direct")
                other.direct = true;
            else if (prefix == "read" || prefix == "edit" || prefix == "delete" || prefix == "write")
                keep_branches(prefix, other);
            else if (row.places.contains(prefix))
                other.place = prefix;
            else
                fail(row.line, "a path that hangs nowhere: " + word);
        }
        other.path = whole_path(row, other, rest, word);
        other.is_operational = tree_.direction == Direction::request && other.place.starts_with("oper");
        if (!unknown_on_purpose) check_exists(row, node, other);
        return other;
    }

    static void keep_branches(const std::string &prefix, OtherPath &other)
    {
        other.in_reads = prefix == "read";
        other.in_removals = prefix == "delete" || prefix == "edit";
        other.in_writes = prefix == "write" || prefix == "edit";
    }

    std::string whole_path(const Row &row, const OtherPath &other, const std::string &rest,
                           const std::string &word) const
    {
        if (!other.place.empty() || rest.starts_with('/')) return rest;
        const std::string first = rest.substr(0, rest.find('/'));
        if (first == "instance-as") return "/bgp/instance/" + rest;
        if (first == "global" || first == "bgp-entity") return default_vrf + rest;
        fail(row.line, "a path that hangs nowhere: " + word);
    }

    // A response writes under `config` and `state` alike: "*" stands for both.
    void check_exists(const Row &row, const Node & /*node*/, const OtherPath &other) const
    {
        std::string path = other.path;
        if (!other.place.empty()) path = expanded(row.places.at(other.place)) + "/" + path;
        const Model &model = other.is_operational ? *others_.operational : *others_.configuration;
        std::vector<std::string> both = {path};
        if (const size_t star = path.find('*'); star != std::string::npos) {
            both = {path, path};
            both[0].replace(star, 1, "config");
            both[1].replace(star, 1, "state");
        }
        for (const std::string &each : both)
            if (find_node(model, each) == nullptr) fail(row.line, "the other model has no such node: " + each);
    }

    static std::string expanded(const std::string &place)
    {
        return place.starts_with('/') ? place : default_vrf + place;
    }

    // ---- Marks and forms

    void read_mark(int line, const std::string &mark, Node &node) const
    {
        static const std::set<std::string> habits = {"says-then-tests", "tests-then-says", "says-on-failure",
                                                     "default-only",    "named-families",  "families",
                                                     "childless"};
        if (mark == "@override")
            node.overridden = true;
        else if (mark == "@man")
            node.has_man_body = true;
        else if (mark == "@scope")
            node.keeps_scope = true;
        else if (mark == "@looks-at-kind" && node.lies_below_state())
            node.looks_at_kind = true;
        else if (mark == "@no-path" && node.kind == NodeKind::list)
            node.reports_path = false;
        else if (mark == "@handler" && node.kind == NodeKind::list)
            node.has_handler = true;
        else if (node.kind == NodeKind::list && habits.contains(mark.substr(1)))
            node.habit = mark.substr(1);
        else
            fail(line, "a mark that " + node.path + " cannot have: " + mark);
    }

    void check_form(int line, const Node &node) const
    {
        if (node.kind == NodeKind::list) {
            if (node.form != "list") fail(line, "a list has the form \"list\": " + node.path);
            if (node.habit.empty() && tree_.direction == Direction::request)
                fail(line, "a list says how it speaks of its key: " + node.path);
            return;
        }
        if (tree_.direction == Direction::request)
            check_form(line, node, request_forms, std::size(request_forms));
        else
            check_form(line, node, response_forms, std::size(response_forms));
    }

    void check_form(int line, const Node &node, const Form *forms, size_t count) const
    {
        for (const Form *form = forms; form != forms + count; form++) {
            if (node.form != form->name) continue;
            if (!(node.is_leaf() ? form->for_leaf : form->for_container)) fail(line, "not a form of this kind of node");
            if (node.others.size() < form->least || node.others.size() > form->most)
                fail(line, "this form takes another number of paths");
            const bool branches = node.form == "plain" || node.form == "fan-out" || node.form == "selection";
            if (branches && tree_.direction == Direction::request && node.lies_below_state() && !node.looks_at_kind)
                fail(line, "below `state` nothing looks at the kind of a request");
            if (node.form == "forward" && !node.has_man_body) fail(line, "forward to what?");
            for (const OtherPath &other : node.others)
                if (!other.is_plain() && (node.form != "fan-out" || tree_.direction == Direction::response))
                    fail(line, "only a fan-out leaf gives a path of its own to a branch: " + other.text);
            return;
        }
        fail(line, "no such form: " + node.form);
    }

    const std::string &file_;
    const Tree &tree_;
    const Model &model_;
    const OtherModels &others_;
};

}  // namespace

Model read_mapping(const std::string &file, const Tree &tree, const Model &model, const OtherModels &others)
{
    return TableReader(file, tree, model, others).read();
}
