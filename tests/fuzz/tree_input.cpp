#include "tree_input.h"

#include <algorithm>
#include <charconv>
#include <cstring>

#include "fuzzer.h"
#include "names.h"
#include "text_mutation.h"
#include "vmf_map_platform.h"

namespace fuzz {

namespace {

constexpr size_t most_lines = 600;
constexpr size_t deepest = 30;

// ---- Text -----------------------------------------------------------------------------------

std::string_view take_until(std::string_view &text, char end)
{
    const size_t at = text.find(end);
    const std::string_view taken = text.substr(0, at);
    text.remove_prefix(at == std::string_view::npos ? text.size() : at + 1);
    return taken;
}

std::optional<uint32_t> number(std::string_view text)
{
    uint32_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

void read_words(std::string_view text, TreeInput &input)
{
    while (!text.empty()) {
        std::string_view word = take_until(text, ' ');
        const std::string name(take_until(word, '='));
        if (const auto value = number(word); value && !name.empty()) input.words[name] = *value;
    }
}

Line read_line(std::string_view text)
{
    Line line;
    line.depth = std::min(text.find_first_not_of(' '), deepest);
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    line.tag = take_until(text, ' ');
    while (!text.empty()) {
        if (text.starts_with("= ")) {
            line.value = text.substr(2);
            break;
        }
        const std::string_view word = take_until(text, ' ');
        if (word.size() < 2) continue;
        switch (word[0]) {
        case '[':
            line.operation = number(word.substr(1, word.size() - 2));
            if (line.operation > VMF_OP_REMOVE) line.operation.reset();
            break;
        case '{': line.ns = word[1]; break;
        case '<': line.data_ns = word[1]; break;
        case '!': line.shape = word.substr(1); break;
        default: break;
        }
    }
    return line;
}

void write_line(std::string &out, const Line &line)
{
    out.append(line.depth, ' ').append(line.tag);
    if (line.ns != 0) out.append(" {").append(1, line.ns).append("}");
    if (line.operation) out.append(" [").append(std::to_string(*line.operation)).append("]");
    if (line.data_ns != 0) out.append(" <").append(1, line.data_ns).append(">");
    if (!line.shape.empty()) out.append(" !").append(line.shape);
    if (line.value) out.append(" = ").append(*line.value);
    out += '\n';
}

// ---- Trees ----------------------------------------------------------------------------------

constexpr std::pair<char, const char *> namespaces[] = {
    {'o', OC_BGP_NS}, {'t', OC_BGP_TYPES_NS}, {'c', ZR_BGP_CFG_NS}, {'p', ZR_BGP_OPER_NS}, {'x', "urn:x"}};

const char *namespace_of_letter(char letter)
{
    for (const auto &[known, ns] : namespaces)
        if (known == letter) return platform::intern(ns);
    return nullptr;
}

char letter_of(const char *ns)
{
    for (const auto &[letter, known] : namespaces)
        if (ns != nullptr && std::strcmp(ns, known) == 0) return letter;
    return ns != nullptr ? 'x' : '-';
}

// A node without children can say that it has some.
void shape(Datatree &node, const std::string &name)
{
    if (name == "untagged") node.present[0] &= static_cast<uint8_t>(~VMF_DT_TAG);
    if (name == "untagged" || node.subtrees != nullptr) return;
    if (name.empty()) return;
    node.present[0] |= VMF_DT_SUBTREES;
    if (name == "null") node.subtree_count = 3;
    if (name == "negative") node.subtree_count = -1;
    if (name == "empty") node.subtrees = static_cast<Datatree *>(kos_named_calloc_(1, sizeof(Datatree), "VMF MAP", 0));
}

size_t end_of(const std::vector<Line> &lines, size_t at)
{
    size_t end = at + 1;
    while (end < lines.size() && lines[end].depth > lines[at].depth) end++;
    return end;
}

void build_node(Datatree &parent, const std::vector<Line> &lines, size_t at, const char *outer_ns)
{
    const Line &line = lines[at];
    const char *ns = line.ns != 0 ? namespace_of_letter(line.ns) : outer_ns;
    Datatree &node = *platform::append_child(parent, platform::intern(line.tag), ns);
    if (line.value) platform::set_value(node, *line.value);
    if (line.operation) platform::set_operation(node, *line.operation);
    if (line.data_ns != 0) platform::set_data_namespace(node, namespace_of_letter(line.data_ns));
    for (size_t child = at + 1; child < end_of(lines, at); child = end_of(lines, child))
        build_node(node, lines, child, ns);
    shape(node, line.shape);
}

void add_lines(std::vector<Line> &lines, const Datatree &node, size_t depth, const char *outer_ns)
{
    Line line;
    line.depth = depth;
    line.tag = platform::tag_of(node) != nullptr ? platform::tag_of(node) : "";
    const char *ns = platform::namespace_of(node);
    if (letter_of(ns) != letter_of(outer_ns)) line.ns = letter_of(ns);
    if (platform::data_namespace_of(node) != nullptr) line.data_ns = letter_of(platform::data_namespace_of(node));
    if (platform::has_operation(node)) line.operation = node.operation;
    if (platform::value_of(node) != nullptr) line.value = platform::value_of(node);
    lines.push_back(std::move(line));
    for (const Datatree &child : platform::children_of(node)) add_lines(lines, child, depth + 1, ns);
}

// ---- Mutation -------------------------------------------------------------------------------

using Lines = std::vector<Line>;
using Place = std::ptrdiff_t;

char letter_of_root(Model model)
{
    constexpr char letters[] = {'o', 'c', 'p'};
    return letters[static_cast<size_t>(model)];
}

size_t find_child(const Lines &lines, size_t begin, size_t end, const std::string &tag, char ns, Random &random)
{
    std::vector<size_t> found;
    for (size_t at = begin; at < end; at = end_of(lines, at))
        if (lines[at].tag == tag && (ns == 0 || lines[at].ns == ns)) found.push_back(at);
    return found.empty() ? end : any_of(random, found);
}

Lines cut(Lines &lines, size_t at)
{
    const auto begin = lines.begin() + static_cast<Place>(at);
    const auto end = lines.begin() + static_cast<Place>(end_of(lines, at));
    Lines part(begin, end);
    lines.erase(begin, end);
    return part;
}

void insert(Lines &lines, size_t at, Lines part, size_t depth)
{
    const size_t before = part.front().depth;
    for (Line &line : part) line.depth = std::min(line.depth - before + depth, deepest);
    lines.insert(lines.begin() + static_cast<Place>(at), part.begin(), part.end());
}

// What stands at a line may also stand before, behind or in any other.
void move_part(Lines &lines, Lines part, Random &random)
{
    if (lines.empty()) return insert(lines, 0, std::move(part), 0);
    const size_t at = below(random, lines.size());
    const bool inside = below(random, 3) == 0;
    const size_t depth = lines[at].depth + (inside ? 1 : 0);
    insert(lines, inside ? at + 1 : at, std::move(part), depth);
}

constexpr const char *shapes[] = {"null", "negative", "empty", "hollow", "untagged"};
constexpr char letters[] = {'o', 't', 'c', 'p', 'x', '-'};

std::string model_type(const Lines &lines, size_t at, const Choice &choice)
{
    std::string path = "/" + lines[at].tag;
    size_t depth = lines[at].depth;
    for (size_t up = at; up-- > 0 && depth > 0;) {
        if (lines[up].depth >= depth) continue;
        depth = lines[up].depth;
        path.insert(0, "/" + lines[up].tag);
    }
    for (const Model model : choice.models)
        if (const ModelNode *node = find_node(model, path)) return node->type;
    return "";
}

void change_line(Lines &lines, size_t at, const Choice &choice, Random &random)
{
    Line &line = lines[at];
    switch (below(random, choice.well_formed ? 7 : 9)) {
    case 0:
    case 1:
    case 2: line.value = any_value(random, model_type(lines, at, choice)); break;
    case 3: line.value.reset(); break;
    case 4: line.operation = static_cast<uint32_t>(below(random, 5)); break;
    case 5: line.operation.reset(); break;
    case 6: line.data_ns = any_of(random, letters); break;
    case 7: line.shape = below(random, 2) == 0 ? "" : any_of(random, shapes); break;
    default: {
        if (below(random, 2) == 0)
            line.tag = any_tag(random);
        else
            line.ns = any_of(random, letters);
    }
    }
}

void change_words(TreeInput &input, const Choice &choice, Random &random)
{
    const std::string name = any_of(random, choice.words);
    constexpr uint32_t values[] = {0, 1, 1, 1, 2, 3, 4, 7, 10, 10, 15, 0xFFF, 65001};
    input.words[name] = below(random, 6) == 0 ? static_cast<uint32_t>(random()) & 0xFFF : any_of(random, values);
}

void change_tree(Lines &lines, const Choice &choice, Random &random)
{
    const size_t kind = below(random, 10);
    if (lines.empty() || kind < 4) return add_node(lines, any_of(random, choice.models), random);
    const size_t at = below(random, lines.size());
    switch (kind) {
    case 4: cut(lines, at); break;
    case 5: move_part(lines, cut(lines, at), random); break;
    case 6: {
        Lines part(lines.begin() + static_cast<Place>(at), lines.begin() + static_cast<Place>(end_of(lines, at)));
        if (lines.size() + part.size() < most_lines) move_part(lines, std::move(part), random);
        break;
    }
    default: change_line(lines, at, choice, random);
    }
}

}  // namespace

uint32_t TreeInput::word(const std::string &name, uint32_t otherwise) const
{
    const auto found = words.find(name);
    return found != words.end() ? found->second : otherwise;
}

TreeInput read_input(std::string_view text)
{
    TreeInput input;
    while (!text.empty() && input.lines.size() < most_lines) {
        std::string_view line = take_until(text, '\n');
        if (const size_t nul = line.find('\0'); nul != std::string_view::npos) line = line.substr(0, nul);
        if (line.starts_with("# "))
            read_words(line.substr(2), input);
        else if (line.find_first_not_of(' ') != std::string_view::npos)
            input.lines.push_back(read_line(line));
    }
    return input;
}

std::string write_input(const TreeInput &input)
{
    std::string text;
    for (const auto &[name, value] : input.words)
        text += (text.empty() ? "# " : " ") + name + "=" + std::to_string(value);
    if (!text.empty()) text += '\n';
    for (const Line &line : input.lines) write_line(text, line);
    return text;
}

platform::Tree build(const std::vector<Line> &lines)
{
    platform::Tree tree;
    for (size_t at = 0; at < lines.size(); at = end_of(lines, at)) build_node(tree.root(), lines, at, nullptr);
    return tree;
}

std::vector<Line> lines_of(const Datatree &tree)
{
    Lines lines;
    add_lines(lines, tree, 0, nullptr);
    return lines;
}

void add_node(std::vector<Line> &lines, Model model, Random &random)
{
    if (lines.size() >= most_lines) return;
    const ModelNode &wanted = any_of(random, nodes_of(model));
    size_t begin = 0;
    size_t end = lines.size();
    std::string path;
    for (size_t depth = 0; depth < wanted.tags.size(); depth++) {
        const std::string &tag = wanted.tags[depth];
        path += "/" + tag;
        const ModelNode &node = *find_node(model, path);
        const char ns = depth == 0 ? letter_of_root(model) : '\0';
        size_t at = find_child(lines, begin, end, tag, ns, random);
        const bool adds_entry = node.kind == "list" || node.kind == "leaf-list";
        if (at == end || (adds_entry && below(random, 4) == 0)) {
            at = end;
            Line line;
            line.depth = depth;
            line.tag = tag;
            line.ns = ns;
            if (node.is_leaf()) line.value = any_value(random, node.type);
            if (below(random, 24) == 0) line.operation = static_cast<uint32_t>(below(random, 5));
            if (node.type == "identityref") line.data_ns = 't';
            lines.insert(lines.begin() + static_cast<Place>(at), line);
            if (node.kind == "list" && !node.key.empty() && wanted.tags.back() != node.key) {
                const ModelNode *key = find_node(model, path + "/" + node.key);
                Line key_line;
                key_line.depth = depth + 1;
                key_line.tag = node.key;
                key_line.value = any_value(random, key != nullptr ? key->type : "");
                if (key != nullptr && key->type == "identityref") key_line.data_ns = 't';
                lines.insert(lines.begin() + static_cast<Place>(at + 1), key_line);
            }
        }
        begin = at + 1;
        end = end_of(lines, at);
    }
}

void mutate(TreeInput &input, const Choice &choice, Random &random)
{
    for (size_t count = size_t{1} << below(random, 5); count > 0; count--) {
        if (!choice.words.empty() && below(random, 5) == 0)
            change_words(input, choice, random);
        else
            change_tree(input.lines, choice, random);
    }
}

size_t mutate_text(uint8_t *data, size_t size, size_t most, unsigned seed, const Choice &choice)
{
    Random random(seed);
    if (below(random, 20) == 0) return LLVMFuzzerMutate(data, size, most);
    TreeInput input = read_input(text_of(data, size));
    mutate(input, choice, random);
    return put(write_input(input), data, most);
}

size_t cross_texts(std::string_view a, std::string_view b, uint8_t *out, size_t most, unsigned seed)
{
    Random random(seed);
    TreeInput input = read_input(a);
    TreeInput other = read_input(b);
    for (const auto &[name, value] : other.words)
        if (below(random, 2) == 0) input.words[name] = value;
    if (!other.lines.empty() && !input.lines.empty()) {
        Lines part = cut(other.lines, below(random, other.lines.size()));
        // Below a parent of the name that it had, if there is one.
        std::vector<size_t> same;
        for (size_t at = 0; at < input.lines.size(); at++)
            if (input.lines[at].tag == part.front().tag) same.push_back(at);
        if (same.empty())
            move_part(input.lines, std::move(part), random);
        else {
            const size_t at = any_of(random, same);
            insert(input.lines, at, std::move(part), input.lines[at].depth);
        }
    }
    return put(write_input(input), out, most);
}

}  // namespace fuzz
