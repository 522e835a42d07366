#include "trip.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>

#include "tree_lines.h"

namespace trips {

namespace {

[[noreturn]] void fail(const std::string &file, int line, const std::string &what)
{
    throw std::runtime_error(file + ":" + std::to_string(line) + ": " + what);
}

const std::set<std::string> verbs = {"each",    "under",      "empty", "plain",  "edit",
                                     "refused", "get-config", "get",   "native", "operational"};

const std::map<std::string, std::string> bases = {{"global", "/bgp/global"},
                                                  {"neighbor", "/bgp/neighbors/neighbor[192.0.2.2]"},
                                                  {"group", "/bgp/peer-groups/peer-group[edge]"}};

std::string trimmed(const std::string &text)
{
    const size_t begin = text.find_first_not_of(' ');
    return begin == std::string::npos ? "" : text.substr(begin, text.find_last_not_of(' ') - begin + 1);
}

// The line's first word goes to `word`, the rest is given.
std::string take_word(const std::string &line, std::string &word)
{
    const size_t end = std::min(line.find(' '), line.size());
    word = line.substr(0, end);
    return trimmed(line.substr(end));
}

std::vector<std::string> split(const std::string &text, char at)
{
    std::vector<std::string> parts;
    std::istringstream in(text);
    for (std::string part; std::getline(in, part, at);)
        if (!part.empty()) parts.push_back(part);
    return parts;
}

// Takes away what all lines are indented by.
void outdent(std::vector<std::string> &lines)
{
    size_t indent = std::string::npos;
    for (const std::string &line : lines) indent = std::min(indent, line.find_first_not_of(' '));
    for (std::string &line : lines) line.erase(0, indent);
}

std::string whole_path(const Step &step, const std::string &path)
{
    if (path.starts_with("/bgp")) return path;
    const std::string &base = step.base.empty() ? bases.at("global") : step.base;
    if (path == ".") return base;
    return base + (path.starts_with('[') ? "/afi-safis/afi-safi" : "/") + path;
}

std::string twin_of(const Trip &trip, const Step &step, const std::string &path)
{
    const size_t at = path.rfind("config/");
    if (at == std::string::npos) fail(trip.file, step.line, "no leaf of a config container: " + path);
    return path.substr(0, at) + "state/" + path.substr(at + sizeof "config/" - 1);
}

// A leaf-list loses the value that is named; a leaf is named without.
std::string deletion_of(const Named &node)
{
    return node.path + " [delete]" + (is_leaf_list(node.path) ? " = " + node.value : "");
}

// The list entries that a path goes through: each comes back for itself.
std::vector<std::string> entries_of(const std::string &path)
{
    std::vector<std::string> entries;
    for (size_t at = path.find(']'); at != std::string::npos; at = path.find(']', at + 1))
        entries.push_back(path.substr(0, at + 1));
    return entries;
}

void append_plain(Trip &trip, const Step &step)
{
    std::vector<Named> nodes = nodes_of_edit(step);
    const Named node = nodes.front();
    nodes.erase(nodes.begin());
    const auto add = [&](const std::string &verb, const std::string &text, std::vector<std::string> lines) {
        if (verb != "edit" && lines.empty()) lines = {"-"};
        trip.steps.push_back({verb, step.line, text, std::move(lines), step.base});
    };
    const auto with = [](std::vector<std::string> lines, const Named &leaf) {
        lines.push_back(leaf.path + " = " + leaf.value);
        return lines;
    };
    const Named twin = {twin_of(trip, step, node.path), "", node.value, true};
    std::vector<std::string> config = entries_of(node.path);
    std::vector<std::string> state = config;
    for (const Named &companion : nodes) {
        config = with(config, companion);
        state = with(state, {twin_of(trip, step, companion.path), "", companion.value, true});
    }
    add("edit", step.text, {});
    for (const std::string verb : {"get-config", "get"}) add(verb, node.path, with(config, node));
    add("get", twin.path, with(state, twin));
    add("edit", deletion_of(node), {});
    for (const std::string verb : {"get-config", "get"}) add(verb, node.path, config);
    add("get", twin.path, state);
}

struct Line {
    int number = 0;
    std::string text;
};
using Lines = std::vector<Line>;

// From "trip" to the next.
struct Block {
    Lines lines;
    std::vector<std::map<std::string, std::string>> each = {{}};  // names, with their dollar, and what they stand for
};

bool is_step(const Line &line) { return !line.text.starts_with(' '); }

using Lists = std::map<std::string, std::vector<std::string>>;

// "each NAMES VALUES", "list NAME VALUES", with the lines below it. A value that is the name of a list stands for it.
std::vector<std::string> values_of(const Lines &lines, size_t &next, const Lists &lists, std::string &name)
{
    std::string text = take_word(lines[next++].text, name);
    text = take_word(text, name);
    while (next < lines.size() && !is_step(lines[next])) text += lines[next++].text;
    std::vector<std::string> values;
    for (const std::string &value : split(text, ' ')) {
        const auto list = lists.find(value);
        if (list == lists.end())
            values.push_back(value);
        else
            values.insert(values.end(), list->second.begin(), list->second.end());
    }
    return values;
}

// Takes the "each" steps out of the block.
void take_repetitions(const std::string &file, const Lists &lists, Block &block)
{
    Lines others;
    for (size_t i = 0; i < block.lines.size();) {
        const Line first = block.lines[i];
        if (!first.text.starts_with("each ")) {
            others.push_back(first);
            i++;
            continue;
        }
        std::string word;
        const std::vector<std::string> values = values_of(block.lines, i, lists, word);
        const std::vector<std::string> names = split(word, '|');
        std::vector<std::map<std::string, std::string>> multiplied;
        for (const std::string &value : values) {
            const std::vector<std::string> parts = split(value, '|');
            if (parts.size() != names.size()) fail(file, first.number, "not so many names: " + value);
            for (std::map<std::string, std::string> one : block.each) {
                for (size_t name = 0; name < names.size(); name++) one[names[name]] = parts[name];
                multiplied.push_back(std::move(one));
            }
        }
        block.each = std::move(multiplied);
    }
    block.lines = std::move(others);
}

std::string replaced(std::string text, const std::map<std::string, std::string> &values)
{
    for (const auto &[name, value] : values)
        for (size_t at = 0; (at = text.find(name, at)) != std::string::npos; at += value.size())
            text.replace(at, name.size(), value);
    return text;
}

Trip read_trip(const std::string &file, const Lines &lines, const std::map<std::string, std::string> &values)
{
    Trip trip = {file, 0, "", {}};
    std::vector<Step> steps;
    std::string base;
    for (const Line &line : lines) {
        std::string verb;
        const std::string text = take_word(replaced(line.text, values), verb);
        if (!is_step(line)) {
            if (steps.empty()) fail(file, line.number, "belongs to no step");
            steps.back().lines.push_back(replaced(line.text, values));
        } else if (verb == "trip") {
            trip.line = line.number;
            trip.name = text;
        } else if (!verbs.contains(verb)) {
            fail(file, line.number, "no step is called " + verb);
        } else if (verb == "under") {
            base = bases.contains(text) ? bases.at(text) : text;
        } else {
            steps.push_back({verb, line.number, text, {}, base});
        }
    }
    for (Step &step : steps) {
        outdent(step.lines);
        if (step.verb == "plain")
            append_plain(trip, step);
        else
            trip.steps.push_back(step);
    }
    return trip;
}

}  // namespace

std::vector<Trip> read_trips(const std::string &file)
{
    std::ifstream in(file);
    if (!in) fail(file, 0, "cannot be read");
    std::vector<Block> blocks;
    Lines head;  // before the first trip
    std::string line;
    for (int number = 1; std::getline(in, line); number++) {
        if (trimmed(line).empty() || line.starts_with('#')) continue;
        if (line.starts_with("trip ")) blocks.emplace_back();
        (blocks.empty() ? head : blocks.back().lines).push_back({number, line});
    }
    Lists lists;
    for (size_t i = 0; i < head.size();) {
        if (!head[i].text.starts_with("list ")) fail(file, head[i].number, "belongs to no trip");
        std::string name;
        std::vector<std::string> values = values_of(head, i, lists, name);
        lists[name] = std::move(values);
    }
    std::vector<Trip> trips;
    for (Block &block : blocks) {
        take_repetitions(file, lists, block);
        for (const auto &values : block.each) trips.push_back(read_trip(file, block.lines, values));
    }
    return trips;
}

std::vector<Trip> all_trips()
{
    std::vector<std::string> files;
    for (const auto &entry : std::filesystem::directory_iterator(SOURCE_DIR "/tests/trips"))
        if (entry.path().extension() == ".trips") files.push_back(entry.path().string());
    std::sort(files.begin(), files.end());
    std::vector<Trip> all;
    for (const std::string &file : files)
        for (Trip &trip : read_trips(file)) all.push_back(std::move(trip));
    return all;
}

std::vector<Named> nodes_of_edit(const Step &step)
{
    std::vector<std::string> lines = step.lines;
    lines.insert(lines.begin(), step.text);
    std::vector<Named> nodes;
    for (const std::string &line : lines) {
        Named node;
        std::string rest = take_word(line, node.path);
        node.path = whole_path(step, node.path);
        if (rest.starts_with('[')) {
            rest = take_word(rest, node.operation);
            node.operation = node.operation.substr(1, node.operation.size() - 2);
        }
        node.has_value = rest.starts_with('=');
        if (node.has_value) node.value = trimmed(rest.substr(1));
        nodes.push_back(node);
    }
    return nodes;
}

std::vector<Named> nodes_of_read(const Step &step)
{
    std::istringstream words(step.text);
    std::vector<Named> nodes;
    for (std::string word; words >> word;) {
        const size_t end = std::min(word.find('='), word.size());
        Named node = {whole_path(step, word.substr(0, end)), "", "", end < word.size()};
        if (node.has_value) node.value = word.substr(end + 1);
        nodes.push_back(std::move(node));
    }
    return nodes;
}

std::vector<std::string> answer_of_read(const Step &step)
{
    std::vector<std::string> lines = step.lines;
    for (std::string &line : lines) {
        if (line == "-" || line == "nothing") continue;
        const size_t end = std::min(line.find(' '), line.size());
        line = whole_path(step, line.substr(0, end)) + line.substr(end);
    }
    return lines;
}

}  // namespace trips
