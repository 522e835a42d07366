#include "native_xml.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace router {

// ---- Writing --------------------------------------------------------------------------------

// What XML cannot have in a text as it stands. A carriage return would be read as a line end.
static const char *escape_of(char character)
{
    switch (character) {
    case '<': return "&lt;";
    case '>': return "&gt;";
    case '&': return "&amp;";
    case '\r': return "&#13;";
    default: return nullptr;
    }
}

static void write_text(std::string &out, std::string_view text)
{
    size_t written = 0;
    for (size_t at = 0; at < text.size(); at++) {
        const char *escape = escape_of(text[at]);
        if (escape == nullptr) continue;
        out.append(text.substr(written, at - written)).append(escape);
        written = at + 1;
    }
    out.append(text.substr(written));
}

static void write_leaf(std::string &out, const char *tag, std::string_view value)
{
    if (value.empty()) {
        out.append("<").append(tag).append("/>\n");
        return;
    }
    out.append("<").append(tag).append(">");
    write_text(out, value);
    out.append("</").append(tag).append(">\n");
}

static void write_members(std::string &out, const Branch &data);

static void write_node(std::string &out, const char *tag, const Branch &data)
{
    out.append("<").append(tag).append(">\n");
    write_members(out, data);
    out.append("</").append(tag).append(">\n");
}

static void write_entries(std::string &out, const Member &list)
{
    const Schema &schema = *list.schema;
    entries_of(list).for_each([&](const Branch &entry) {
        if (schema.kind == Schema::Kind::list)
            write_node(out, schema.tag, entry);
        else
            write_leaf(out, schema.tag, value_of(entry.members.front()));
    });
}

static void write_members(std::string &out, const Branch &data)
{
    for (const Member &member : data.members) {
        switch (member.schema->kind) {
        case Schema::Kind::leaf: write_leaf(out, member.schema->tag, value_of(member)); break;
        case Schema::Kind::container: write_node(out, member.schema->tag, branch_of(member)); break;
        case Schema::Kind::list:
        case Schema::Kind::leaf_list: write_entries(out, member); break;
        }
    }
}

std::string write_xml(const Branch &data, const Schema &root)
{
    const Schema &bgp = root.children.front();
    std::string out = std::string("<") + bgp.tag + " xmlns=\"" + bgp.ns + "\">\n";
    if (const Member *member = find_member(data, bgp)) write_members(out, branch_of(*member));
    return out.append("</").append(bgp.tag).append(">\n");
}

// ---- What libyang says ----------------------------------------------------------------------

BadXml::BadXml(Violation what, std::string line_, bool is_malformed_)
    : std::runtime_error(what.path + ": " + what.rule), violation(std::move(what)), line(std::move(line_)),
      is_malformed(is_malformed_)
{
}

// "... data location "/MODULE:bgp/instance/...", line number 3."
static std::string data_location(std::string_view where)
{
    constexpr std::string_view label = "ata location \"";
    const size_t begin = where.find(label);
    if (begin == std::string_view::npos) return {};
    where.remove_prefix(begin + label.size());
    std::string path(where.substr(0, where.find("\", line number")));
    if (path.ends_with("\".")) path.resize(path.size() - 2);
    const size_t colon = path.find(':');
    const size_t element_end = path.find_first_of("/[", 1);
    return colon < element_end ? "/" + path.substr(colon + 1) : path;
}

static std::string line_number(std::string_view where)
{
    constexpr std::string_view label = "ine number ";
    const size_t begin = where.rfind(label);
    if (begin == std::string_view::npos) return {};
    where.remove_prefix(begin + label.size());
    return std::string(where.substr(0, where.find_first_not_of("0123456789")));
}

[[noreturn]] static void fail()
{
    const ly_err_item *error = ly_err_first(models().context);
    const std::string message = error != nullptr && error->msg != nullptr ? error->msg : "libyang gives no reason";
    const std::string where = error != nullptr && error->path != nullptr ? error->path : "";
    const bool is_malformed = error != nullptr && error->vecode == LYVE_SYNTAX;
    throw BadXml({data_location(where), message}, line_number(where), is_malformed);
}

// ---- Reading --------------------------------------------------------------------------------

namespace {

struct FreeData {
    void operator()(lyd_node *data) const { lyd_free_all(data); }
};

using Data = std::unique_ptr<lyd_node, FreeData>;

}  // namespace

// `order` may be LYD_PARSE_ORDERED for a text of write_xml(), which has everything in the order of the model.
static Data parse(const std::string &text, Check check, uint32_t order = 0)
{
    const uint32_t parse_options =
        LYD_PARSE_STRICT | order | (check == Check::structure ? uint32_t{LYD_PARSE_ONLY} : 0);
    const uint32_t check_options = check == Check::model ? uint32_t{LYD_VALIDATE_PRESENT} : 0;
    lyd_node *data = nullptr;
    ly_err_clean(models().context, nullptr);
    if (text.find('\0') != std::string::npos) throw BadXml({{}, "a NUL"}, {}, true);  // libyang stops there
    if (lyd_parse_data_mem(models().context, text.c_str(), LYD_XML, parse_options, check_options, &data) != LY_SUCCESS)
        fail();
    return Data(data);
}

static void copy_children(const lyd_node *first, Branch &branch);

[[noreturn]] static void fail_as_duplicate(const lyd_node &node)
{
    char *path = lyd_path(&node, LYD_PATH_STD, nullptr, 0);
    const std::string where = std::string("Data location \"") + (path != nullptr ? path : "") + "\".";
    std::free(path);
    throw BadXml({data_location(where), "data that stands twice"}, {}, false);
}

static void copy_entry(const lyd_node &node, Branch &parent, const Schema &schema)
{
    auto entry = std::make_shared<Branch>();
    if (schema.kind == Schema::Kind::list)
        copy_children(lyd_child(&node), *entry);
    else
        entry->members.push_back({&schema, std::string(lyd_get_value(&node))});
    Entries &entries = own_entries(member_of(parent, schema));
    if (schema.key_count != 0 && entries.find(keys_of(*entry, schema)) != nullptr) fail_as_duplicate(node);
    entries.add(std::move(entry));
}

// A container without anything in it is none: false then.
static bool copy_container(const lyd_node &node, Branch &parent, const Schema &schema)
{
    Branch &branch = own_branch(member_of(parent, schema));
    copy_children(lyd_child(&node), branch);
    const bool has_content = !branch.members.empty();
    if (!has_content) remove_member(parent, schema);
    return has_content;
}

static void copy_children(const lyd_node *first, Branch &branch)
{
    std::vector<const Schema *> empty;
    for (const lyd_node *node = first; node != nullptr; node = node->next) {
        const Schema &schema = *static_cast<const Schema *>(node->schema->priv);
        if (schema.kind == Schema::Kind::list || schema.kind == Schema::Kind::leaf_list) {
            copy_entry(*node, branch, schema);
            continue;
        }
        const bool was_empty = std::find(empty.begin(), empty.end(), &schema) != empty.end();
        if (was_empty || find_member(branch, schema) != nullptr) fail_as_duplicate(*node);
        if (schema.kind == Schema::Kind::leaf)
            member_of(branch, schema).content = std::string(lyd_get_value(node));
        else if (!copy_container(*node, branch, schema))
            empty.push_back(&schema);
    }
}

static void check_top(const lyd_node *top, const Schema &root)
{
    const Schema &bgp = root.children.front();
    const std::string wanted = std::string(bgp.tag) + " of " + bgp.ns;
    if (top == nullptr) throw BadXml({{}, "no " + wanted}, {}, true);
    if (top->schema->priv != &bgp || top->next != nullptr) throw BadXml({{}, "data beside " + wanted}, {}, false);
}

static std::shared_ptr<Branch> read(const std::string &text, const Schema &root, Check check)
{
    const Data data = parse(text, check);
    check_top(data.get(), root);
    auto branch = std::make_shared<Branch>();
    copy_children(data.get(), *branch);
    return branch;
}

// libyang looks for what stands twice below a node before it puts the node in its place, and then gives the line, but
// no more of the path than from that node on.
[[noreturn]] static void fail_with_whole_path(const BadXml &bad, const std::string &text, const Schema &root)
{
    const bool is_whole = bad.violation.path.empty() || bad.violation.path.starts_with("/bgp");
    if (is_whole) throw bad;
    try {
        read(text, root, Check::structure);
    } catch (const BadXml &with_path) {
        throw BadXml({with_path.violation.path, bad.violation.rule}, bad.line, bad.is_malformed);
    }
    throw bad;
}

std::shared_ptr<Branch> read_xml(const std::string &text, const Schema &root, Check check)
{
    try {
        return read(text, root, check);
    } catch (const BadXml &bad) {
        fail_with_whole_path(bad, text, root);
    }
}

void check_xml(const std::string &text) { parse(text, Check::model, LYD_PARSE_ORDERED); }

}  // namespace router
