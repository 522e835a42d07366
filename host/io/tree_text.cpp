#include "tree_text.h"

#include <nlohmann/json.hpp>
#include <stdexcept>

#include "names.h"
#include "operation_names.h"
#include "secrets.h"

namespace io {

namespace {

constexpr std::pair<std::string_view, std::string_view> short_names[] = {
    {"zr-cfg", ZR_BGP_CFG_NS},
    {"zr-oper", ZR_BGP_OPER_NS},
    {"oc-bgp", OC_BGP_NS},
    {"bgp-types", OC_BGP_TYPES_NS},
};

std::string shown_namespace(std::string_view ns)
{
    const std::string_view name = short_name(ns);
    return name.empty() ? "<" + std::string(ns) + ">" : std::string(name);
}

// What begins as the short name of a namespace would be read as one.
bool begins_as_namespace(std::string_view value)
{
    const size_t colon = value.find(':');
    return colon != std::string_view::npos && !namespace_of_short_name(value.substr(0, colon)).empty();
}

bool needs_quotes(std::string_view value)
{
    return begins_as_namespace(value) || value.empty() || value.front() == ' ' || value.back() == ' ' ||
           value.front() == '"' || value.find_first_of("\n\r\t\\") != std::string_view::npos;
}

std::string shown_value(std::string_view value)
{
    return needs_quotes(value) ? nlohmann::json(value).dump() : std::string(value);
}

void write_node(std::string &out, const Datatree &node, const Datatree &parent, size_t depth, Secrets secrets)
{
    const char *tag = platform::tag_of(node);
    out.append(depth * 2, ' ').append(tag != nullptr ? tag : "(no tag)");
    const char *ns = platform::namespace_of(node);
    const char *outer = platform::namespace_of(parent);
    if (ns != nullptr && (outer == nullptr || std::string_view(ns) != outer)) out += " " + shown_namespace(ns);
    if (platform::has_operation(node)) {
        const std::string_view operation = name_of_operation(node.operation);
        out += " [" + std::string(operation.empty() ? "unknown operation" : operation) + "]";
    }
    if (const char *value = platform::value_of(node)) {
        out += " = ";
        if (const char *data_ns = platform::data_namespace_of(node)) out += shown_namespace(data_ns) + ":";
        const bool hides = secrets == Secrets::hidden && is_secret(tag, platform::tag_of(parent));
        out += hides ? std::string(hidden_value) : shown_value(value);
    }
    out += "\n";
    for (const Datatree &child : platform::children_of(node)) write_node(out, child, node, depth + 1, secrets);
}

// ---- Reading --------------------------------------------------------------------------------

struct Line {
    size_t number;
    std::string_view rest;

    [[noreturn]] void fail(const std::string &what) const
    {
        throw std::runtime_error("line " + std::to_string(number) + ": " + what);
    }

    // Takes the next word; empty at the end or before the value.
    std::string_view word()
    {
        while (rest.starts_with(' ')) rest.remove_prefix(1);
        if (rest.starts_with("= ") || rest == "=") return {};
        const std::string_view taken = rest.substr(0, rest.find(' '));
        rest.remove_prefix(taken.size());
        return taken;
    }
};

std::string_view read_namespace(const Line &line, std::string_view word)
{
    if (word.starts_with('<') && word.ends_with('>')) return word.substr(1, word.size() - 2);
    const std::string_view ns = namespace_of_short_name(word);
    if (ns.empty()) line.fail("no namespace is called " + std::string(word));
    return ns;
}

void read_operation(const Line &line, std::string_view word, Datatree &node)
{
    const auto operation = word.ends_with(']') ? operation_of_name(word.substr(1, word.size() - 2)) : std::nullopt;
    if (!operation) line.fail("no operation is called " + std::string(word));
    platform::set_operation(node, *operation);
}

void read_value(const Line &line, std::string_view text, Datatree &node)
{
    for (const auto &[name, ns] : short_names) {
        if (!text.starts_with(std::string(name) + ":")) continue;
        platform::set_data_namespace(node, platform::intern(ns));
        text.remove_prefix(name.size() + 1);
        break;
    }
    if (!text.starts_with('"')) {
        platform::set_value(node, text);
        return;
    }
    const auto unquoted = nlohmann::json::parse(text, nullptr, false);
    if (!unquoted.is_string()) line.fail("a value that is badly quoted");
    platform::set_value(node, unquoted.get<std::string>());
}

void read_node(Line line, Datatree &parent)
{
    const std::string_view tag = line.word();
    const char *inherited = platform::namespace_of(parent);
    Datatree *node = platform::append_child(parent, platform::intern(tag), inherited);
    for (std::string_view word = line.word(); !word.empty(); word = line.word()) {
        if (word.starts_with('[')) {
            read_operation(line, word, *node);
        } else {
            node->namespace_ = const_cast<char *>(platform::intern(read_namespace(line, word)));
            node->present[0] |= VMF_DT_NAMESPACE;
        }
    }
    if (line.rest.starts_with("= ")) read_value(line, line.rest.substr(2), *node);
}

}  // namespace

std::string_view short_name(std::string_view ns)
{
    for (const auto &[name, known] : short_names)
        if (known == ns) return name;
    return {};
}

std::string_view namespace_of_short_name(std::string_view name)
{
    for (const auto &[known, ns] : short_names)
        if (known == name) return ns;
    return {};
}

std::string write_tree(const Datatree &holder, Secrets secrets)
{
    std::string out;
    for (const Datatree &child : platform::children_of(holder)) write_node(out, child, holder, 0, secrets);
    return out;
}

platform::Tree read_tree(std::string_view text)
{
    platform::Tree tree;
    std::vector<Datatree *> open = {&tree.root()};  // the last node of each level: nothing is added beside it later
    for (size_t number = 1; !text.empty(); number++) {
        const size_t end = text.find('\n');
        Line line{number, text.substr(0, end)};
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        const size_t indent = line.rest.find_first_not_of(' ');
        if (indent == std::string_view::npos) continue;
        if (indent % 2 != 0 || indent / 2 + 1 > open.size()) line.fail("indented too far, or by an odd number");
        open.resize(indent / 2 + 1);
        line.rest.remove_prefix(indent);
        Datatree &parent = *open.back();
        read_node(line, parent);
        open.push_back(&platform::children_of(parent).back());
    }
    return tree;
}

}  // namespace io
