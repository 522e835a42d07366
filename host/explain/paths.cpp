#include "paths.h"

#include <algorithm>

#include "explanation.h"
#include "get_request.h"

namespace explain {

namespace {

// ---- Reading --------------------------------------------------------------------------------

// "[key=value]" as "[key='value']", which the reader of paths takes.
std::string with_quotes(const std::string &text)
{
    std::string path;
    for (size_t at = 0; at < text.size(); at++) {
        path += text[at];
        const bool is_value = text[at] == '=' && at + 1 < text.size() && text[at + 1] != '\'' && text[at + 1] != '"';
        if (!is_value) {
            // A quoted value may hold anything.
            if (text[at] != '=' || at + 1 >= text.size()) continue;
            const size_t end = text.find(text[at + 1], at + 2);
            if (end == std::string::npos) continue;
            path += text.substr(at + 1, end - at);
            at = end;
            continue;
        }
        const size_t end = std::min(text.find(']', at), text.size());
        path += "'" + text.substr(at + 1, end - at - 1) + "'";
        at = end - 1;
    }
    return path;
}

io::Document read_document(const std::string &text)
{
    constexpr std::string_view option = "--path: ";  // what the reader calls it
    try {
        return io::read_path(with_quotes(text));
    } catch (const io::InputError &error) {
        const std::string said = error.what();
        throw io::InputError(text + ": " + (said.starts_with(option) ? said.substr(option.size()) : said));
    }
}

bool is_key_value(const Datatree &node) { return platform::value_of(node) != nullptr; }

bool can_be_key(const model::OcNode &list, const std::string &value)
{
    if (list.key != "afi-safi-name") return canonical_key(list, value).has_value();
    const std::vector<std::string> identities = families();
    return std::find(identities.begin(), identities.end(), value) != identities.end();
}

std::string key_value_of(const model::OcNode &list, const Datatree &key)
{
    const std::string value = platform::value_of(key);
    return list.key == "afi-safi-name" ? value : canonical_key(list, value).value_or(value);
}

// Empty if the key is one of the list, with a value that it can have.
std::string fault_of_key(const model::OcNode *list, const Datatree &key)
{
    const std::string name = platform::tag_of(key);
    if (list == nullptr) return "";
    if (list->kind != model::Kind::list) return "wrong key: " + std::string(list->path) + " is no list";
    if (list->key != name)
        return "wrong key: " + std::string(list->path) + " has the key " + std::string(list->key) + ", not " + name;
    const std::string value = platform::value_of(key);
    return can_be_key(*list, value) ? "" : "wrong key: " + name + " cannot be \"" + value + "\"";
}

// ---- Distances ------------------------------------------------------------------------------

// How many changes make one sequence the other; `price` is what it costs to write one item as another.
template<class Sequence, class Price>
double distance(const Sequence &from, const Sequence &to, Price price)
{
    std::vector<double> row(to.size() + 1);
    for (size_t j = 0; j <= to.size(); j++) row[j] = static_cast<double>(j);
    for (size_t i = 1; i <= from.size(); i++) {
        double diagonal = row[0];
        row[0] = static_cast<double>(i);
        for (size_t j = 1; j <= to.size(); j++) {
            const double written = diagonal + price(from[i - 1], to[j - 1]);
            diagonal = row[j];
            row[j] = std::min({written, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row[to.size()];
}

std::vector<std::string> elements_of(std::string_view path)
{
    std::vector<std::string> elements;
    while (!path.empty()) {
        path.remove_prefix(1);
        elements.emplace_back(path.substr(0, path.find('/')));
        path.remove_prefix(elements.back().size());
    }
    return elements;
}

// From 0, the same word, to 1, nothing in common.
double price_of_element(const std::string &from, const std::string &to)
{
    const double changes = distance(from, to, [](char a, char b) { return a == b ? 0.0 : 1.0; });
    return changes / static_cast<double>(std::max({from.size(), to.size(), size_t{1}}));
}

void collect_leaves(const router::Schema &node, std::vector<std::string> &paths)
{
    if (node.is_terminal()) paths.push_back(path_of(node));
    for (const router::Schema &child : node.children) collect_leaves(child, paths);
}

}  // namespace

Asked read_asked(const std::string &text)
{
    const io::Document document = read_document(text);
    Asked asked;
    std::vector<Key> keys;
    std::string fault;
    for (const Datatree *node = &document.bgp.root(); node != nullptr;) {
        asked.schema_path += std::string("/") + platform::tag_of(*node);
        const model::OcNode *model = model::find_oc_node(asked.schema_path);
        const Datatree *next = nullptr;
        for (const Datatree &child : platform::children_of(*node)) {
            if (!is_key_value(child)) {
                next = &child;
                continue;
            }
            if (fault.empty()) fault = fault_of_key(model, child);
            if (model != nullptr && fault.empty()) keys.push_back({model, key_value_of(*model, child)});
        }
        if (model == nullptr && asked.reason.empty()) {
            const size_t end = asked.schema_path.rfind('/');
            asked.reason = "not mapped: " + asked.schema_path.substr(0, end) + " has no " +
                           asked.schema_path.substr(end + 1) + " in the mapping's edition of the OpenConfig model";
        }
        node = next;
    }
    if (asked.reason.empty()) asked.reason = fault;
    if (asked.reason.empty()) asked.target = make_target(asked.schema_path, keys);
    return asked;
}

std::string native_path_of(const std::string &text)
{
    std::string path;
    for (size_t at = 0; at < text.size(); at++) {
        if (text[at] == '[') {
            const size_t quote = text.find_first_of("'\"]", at);
            size_t end = quote;
            if (quote != std::string::npos && text[quote] != ']') end = text.find(text[quote], quote + 1);
            at = std::min(text.find(']', std::min(end, text.size())), text.size());
        } else if (text[at] == ':') {
            path.resize(path.rfind('/') + 1);
        } else {
            path += text[at];
        }
    }
    return path;
}

std::vector<std::string> nearest_paths(std::string_view path, const std::vector<std::string> &paths, size_t count)
{
    const std::vector<std::string> wanted = elements_of(path);
    std::vector<std::pair<double, std::string>> all;
    for (const std::string &other : paths) {
        const std::vector<std::string> elements = elements_of(other);
        // What lies at the end says more about what was meant.
        double away = distance(wanted, elements, price_of_element);
        if (!wanted.empty() && !elements.empty()) away += price_of_element(wanted.back(), elements.back());
        all.emplace_back(away, other);
    }
    std::stable_sort(all.begin(), all.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
    std::vector<std::string> nearest;
    for (const auto &[away, other] : all)
        if (nearest.size() < count) nearest.push_back(other);
    return nearest;
}

std::vector<std::string> openconfig_paths()
{
    std::vector<std::string> paths;
    for (const model::OcNode &node : model::openconfig_bgp()) paths.emplace_back(node.path);
    return paths;
}

std::vector<std::string> writable_paths()
{
    std::vector<std::string> paths;
    for (const model::OcNode &node : model::openconfig_bgp())
        if (acceptance_of(make_target(node.path)) == Acceptance::writable) paths.emplace_back(node.path);
    return paths;
}

std::vector<std::string> native_leaf_paths()
{
    std::vector<std::string> paths;
    collect_leaves(router::models().config.children.front(), paths);
    collect_leaves(router::models().operational.children.front(), paths);
    return paths;
}

}  // namespace explain
