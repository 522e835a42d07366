// Reads XML: the tree is built as the elements come.
#include <algorithm>
#include <utility>

#include "document.h"
#include "modules.h"
#include "operation_names.h"
#include "reading.h"
#include "sax.h"
#include "schema.h"
#include "secrets.h"

namespace io {

namespace {

// ---- Elements -------------------------------------------------------------------------------

enum class Role {
    protocol,           // of NETCONF, around the element that holds the data
    holder,             // its children are trees of data
    default_operation,  // of edit-config
    data,               // becomes a node
    skipped,            // read over, with all that stands below
};

struct Element {
    Role role;
    const char *tag;     // held by the parser
    size_t offset;       // of its '<' in the text
    size_t outer_scope;  // number of namespace declarations in force around it
    bool is_secret;      // what stands in it is not for messages
    bool has_children = false;
    bool has_content = false;              // of protocol: the element that it is about has come
    Datatree *node = nullptr;              // of data: it stays where it is while the element is open
    const model::OcNode *model = nullptr;  // of data: null if the model does not have it
    std::string text = {};
};

struct Reading {
    XmlText xml;
    Document &document;
    Notes notes{document.notes};
    std::vector<Element> open = {};
    std::vector<Declaration> declarations = {};
    size_t innermost_holder = 0;             // where a tree should have stood, if none comes
    std::optional<size_t> foreign_bgp = {};  // where a `bgp` of another namespace stood,
    std::string foreign_namespace = {};      // and of which
    bool has_bgp = false;
    bool replaces_by_default = false;
};

[[noreturn]] void refuse(const Reading &reading, size_t offset, const std::string &reason)
{
    refuse(reading.xml, offset, reason);
}

std::string shown(std::string_view tag) { return "<" + std::string(tag) + ">"; }

std::string shown(const Tag &tag)
{
    return shown(std::string_view(tag.name)) +
           (tag.ns != nullptr ? " of " + std::string(tag.ns) : " without a namespace");
}

bool is_in(const char *ns, std::string_view wanted) { return ns != nullptr && ns == wanted; }

bool is_in_secret(const Reading &reading) { return !reading.open.empty() && reading.open.back().is_secret; }

// ---- Values ---------------------------------------------------------------------------------

const Declaration *declaration_of(const Reading &reading, std::string_view prefix)
{
    const auto &all = reading.declarations;
    const auto found = std::find_if(all.rbegin(), all.rend(), [prefix](const Declaration &declaration) {
        return std::string_view(declaration.prefix != nullptr ? declaration.prefix : "") == prefix;
    });
    return found != all.rend() ? &*found : nullptr;
}

void read_identity(Reading &reading, const Element &element, std::string_view text)
{
    const size_t colon = text.find(':');
    const std::string_view prefix = colon != std::string_view::npos ? text.substr(0, colon) : std::string_view();
    const Declaration *declaration = declaration_of(reading, prefix);
    if (colon != std::string_view::npos) {
        if (declaration == nullptr || prefix.empty())
            refuse(reading, element.offset,
                   "an undeclared prefix in " + shown(element.tag) + ": \"" + std::string(text) + "\"");
        text.remove_prefix(colon + 1);
    }
    give_value(*element.node, text);
    if (declaration != nullptr && declaration->ns != nullptr)
        platform::set_data_namespace(*element.node, reading.document.names.hold(declaration->ns));
}

void read_value(Reading &reading, const Element &element)
{
    if (is_blank(element.text)) return;
    if (element.model == nullptr) return give_value(*element.node, element.text);
    if (!is_leaf(*element.model))
        refuse(reading, element.offset, "text in " + shown(element.tag) + ", which is no leaf");
    switch (element.model->type) {
    case model::Type::string_:
    case model::Type::union_: return give_value(*element.node, element.text);
    case model::Type::identityref_: return read_identity(reading, element, trimmed(element.text));
    case model::Type::decimal64_: return give_value(*element.node, without_zero_fraction(trimmed(element.text)));
    default: return give_value(*element.node, trimmed(element.text));
    }
}

// ---- Attributes -----------------------------------------------------------------------------

void read_operation(const Reading &reading, size_t offset, std::string_view name, Datatree &node)
{
    const auto operation = operation_of_name(name);
    if (!operation) refuse(reading, offset, "no edit operation is called \"" + std::string(name) + "\"");
    platform::set_operation(node, *operation);
}

// What an attribute without a namespace was meant to say is not guessed: read over, a delete would be a merge.
[[noreturn]] void refuse_unqualified(const Reading &reading, const Element &element, const Attribute &attribute)
{
    const std::string where = " on " + shown(element.tag);
    if (attribute.name == "operation")
        refuse(reading, element.offset,
               "the attribute operation" + where + " must be in the namespace " + NETCONF_BASE_NS);
    refuse(reading, element.offset, "the attribute " + std::string(attribute.name) + where + " has no namespace");
}

void read_data_attributes(Reading &reading, const Element &element, const Tag &tag)
{
    for (const Attribute &attribute : tag.attributes) {
        if (attribute.ns == nullptr) refuse_unqualified(reading, element, attribute);
        if (attribute.name == "operation" && is_in(attribute.ns, NETCONF_BASE_NS))
            read_operation(reading, element.offset, attribute.value, *element.node);
        else
            reading.notes.add("the attribute " + std::string(attribute.name) + " of " + attribute.ns + " is read over");
    }
}

void check_filter_attribute(const Reading &reading, size_t offset, const Attribute &attribute)
{
    if (attribute.name == "select" || (attribute.name == "type" && attribute.value == "xpath"))
        refuse(reading, offset, "an XPath filter; only subtree filters are read");
    if (attribute.name == "type" && attribute.value != "subtree")
        refuse(reading, offset, "no type of filter is called \"" + std::string(attribute.value) + "\"");
}

void check_protocol_attributes(const Reading &reading, const Element &element, const Tag &tag)
{
    for (const Attribute &attribute : tag.attributes) {
        if (attribute.ns != nullptr && !is_in(attribute.ns, NETCONF_BASE_NS)) continue;
        if (attribute.name == "operation")
            refuse(reading, element.offset, "an edit operation on " + shown(element.tag) + ", which is no data");
        if (element.tag == std::string_view("filter")) check_filter_attribute(reading, element.offset, attribute);
    }
}

// ---- What NETCONF puts around the data ------------------------------------------------------

struct ProtocolElement {
    std::string_view parent;  // empty: the root of the input
    std::string_view tag;
    Role role;
};

constexpr ProtocolElement protocol_elements[] = {
    {"", "rpc", Role::protocol},
    {"", "rpc-reply", Role::protocol},
    {"", "edit-config", Role::protocol},
    {"", "get", Role::protocol},
    {"", "get-config", Role::protocol},
    {"", "config", Role::holder},
    {"", "filter", Role::holder},
    {"", "data", Role::holder},
    {"rpc", "edit-config", Role::protocol},
    {"rpc", "get", Role::protocol},
    {"rpc", "get-config", Role::protocol},
    {"rpc-reply", "data", Role::holder},
    {"edit-config", "target", Role::skipped},
    {"edit-config", "default-operation", Role::default_operation},
    {"edit-config", "test-option", Role::skipped},
    {"edit-config", "error-option", Role::skipped},
    {"edit-config", "config", Role::holder},
    {"get", "filter", Role::holder},
    {"get-config", "source", Role::skipped},
    {"get-config", "filter", Role::holder},
};

// The kind of request that an element stands for, unless one around it has told already.
constexpr std::pair<std::string_view, uint32_t> kinds[] = {
    {"edit-config", VMF_REQ_EDIT}, {"get", VMF_REQ_GET},   {"get-config", VMF_REQ_GET_CONFIG},
    {"config", VMF_REQ_EDIT},      {"data", VMF_REQ_EDIT}, {"filter", VMF_REQ_GET},
};

const ProtocolElement *find_protocol_element(std::string_view parent, std::string_view tag)
{
    const auto *found = std::find_if(std::begin(protocol_elements), std::end(protocol_elements),
                                     [&](const auto &row) { return row.parent == parent && row.tag == tag; });
    return found != std::end(protocol_elements) ? found : nullptr;
}

void note_kind(Document &document, std::string_view tag)
{
    if (document.kind) return;
    for (const auto &[element, kind] : kinds)
        if (element == tag) document.kind = kind;
}

void open_protocol_element(Reading &reading, Element &element, const Tag &tag, Role role)
{
    element.role = role;
    if (role != Role::protocol && role != Role::holder) return;
    check_protocol_attributes(reading, element, tag);
    note_kind(reading.document, tag.name);
    reading.innermost_holder = element.offset;
    if (reading.open.empty()) return;
    Element &parent = reading.open.back();
    if (parent.has_content)
        refuse(reading, element.offset, shown(tag.name) + std::string(" is one too many in ") + shown(parent.tag));
    parent.has_content = true;
}

void skip(Reading &reading, Element &element, const Tag &tag)
{
    element.role = Role::skipped;
    reading.notes.add(shown(tag) + " is skipped");
}

void open_in_protocol_element(Reading &reading, Element &element, const Tag &tag, const Element &parent)
{
    if (!is_in(tag.ns, NETCONF_BASE_NS)) return skip(reading, element, tag);
    const ProtocolElement *known = find_protocol_element(parent.tag, tag.name);
    if (known == nullptr) refuse(reading, element.offset, shown(tag.name) + " has no place in " + shown(parent.tag));
    open_protocol_element(reading, element, tag, known->role);
}

void read_default_operation(Reading &reading, const Element &element)
{
    const std::string_view name = trimmed(element.text);
    if (name == "replace")
        reading.replaces_by_default = true;
    else if (name != "merge")
        refuse(reading, element.offset,
               "the default operation \"" + std::string(name) + "\"; only merge and replace are read");
}

// ---- Data -----------------------------------------------------------------------------------

void open_bgp(Reading &reading, Element &element, const Tag &tag)
{
    if (reading.has_bgp) refuse(reading, element.offset, "a second bgp element");
    reading.has_bgp = true;
    element.role = Role::data;
    element.node = &reading.document.bgp.root();
    element.model = child_in_schema(&schema_root, tag.name);
    name_root(*element.node, platform::intern(tag.name), platform::intern(OC_BGP_NS));
    read_data_attributes(reading, element, tag);
}

void open_in_holder(Reading &reading, Element &element, const Tag &tag)
{
    const bool is_bgp = tag.name == std::string_view("bgp");
    if (is_in(tag.ns, OC_BGP_NS)) {
        if (!is_bgp) refuse(reading, element.offset, shown(tag) + "; bgp is its only top element");
        return open_bgp(reading, element, tag);
    }
    if (is_bgp && !reading.foreign_bgp) {
        reading.foreign_bgp = element.offset;
        reading.foreign_namespace = shown(tag);
    }
    skip(reading, element, tag);
}

void open_root(Reading &reading, Element &element, const Tag &tag)
{
    if (is_in(tag.ns, OC_BGP_NS) && tag.name == std::string_view("bgp")) return open_bgp(reading, element, tag);
    const ProtocolElement *known = find_protocol_element("", tag.name);
    const bool is_protocol =
        is_in(tag.ns, NETCONF_BASE_NS) || (tag.ns == nullptr && known != nullptr && known->role == Role::holder);
    if (!is_protocol || known == nullptr)
        refuse(reading, element.offset,
               shown(tag) + "; expected bgp of " + OC_BGP_NS + ", or what holds it of " + NETCONF_BASE_NS);
    open_protocol_element(reading, element, tag, known->role);
}

// A node of another module that is called like one of the parent's would be taken for it.
void refuse_lookalike(const Reading &reading, const Element &element, const Tag &tag, const Element &parent)
{
    if (is_in(tag.ns, OC_BGP_NS) || child_in_schema(parent.model, tag.name) == nullptr) return;
    refuse(reading, element.offset, shown(tag) + "; expected " + tag.name + " of " + OC_BGP_NS);
}

void refuse_second(const Reading &reading, const Element &element, const Element &parent)
{
    if (element.model == nullptr || is_repeated(*element.model)) return;
    for (const Datatree &child : platform::children_of(*parent.node))
        if (platform::tag_of(child) == std::string_view(element.tag))
            refuse(reading, element.offset, shown(element.tag) + " stands twice in " + shown(parent.tag));
}

void open_in_data(Reading &reading, Element &element, const Tag &tag, Element &parent)
{
    if (!is_blank(parent.text)) refuse(reading, parent.offset, "text beside elements in " + shown(parent.tag));
    parent.text.clear();
    parent.has_children = true;
    if (parent.model != nullptr && is_leaf(*parent.model))
        refuse(reading, element.offset, "an element in " + shown(parent.tag) + ", which is a leaf");

    refuse_lookalike(reading, element, tag, parent);
    const bool is_openconfig = is_in(tag.ns, OC_BGP_NS);
    element.model = is_openconfig ? child_in_schema(parent.model, tag.name) : nullptr;
    refuse_second(reading, element, parent);
    if (is_taken_away(*parent.node) && !(is_openconfig && stays_below_removal(parent.model, tag.name))) {
        element.role = Role::skipped;
        return;
    }
    platform::NameTable &names = reading.document.names;
    element.role = Role::data;
    element.node = &add_child(*parent.node, names.hold(tag.name), tag.ns != nullptr ? names.hold(tag.ns) : nullptr);
    read_data_attributes(reading, element, tag);
}

void give_role(Reading &reading, Element &element, const Tag &tag)
{
    if (reading.open.empty()) return open_root(reading, element, tag);
    Element &parent = reading.open.back();
    switch (parent.role) {
    case Role::protocol: return open_in_protocol_element(reading, element, tag, parent);
    case Role::holder: return open_in_holder(reading, element, tag);
    case Role::data: return open_in_data(reading, element, tag, parent);
    case Role::default_operation:
    case Role::skipped: element.role = Role::skipped;
    }
}

// ---- Events ---------------------------------------------------------------------------------

void open_element(Reading &reading, const Tag &tag)
{
    const size_t offset = offset_of_tag(reading.xml);
    const size_t outer_scope = reading.declarations.size();
    reading.declarations.insert(reading.declarations.end(), tag.declarations.begin(), tag.declarations.end());
    const char *parent = reading.open.empty() ? nullptr : reading.open.back().tag;
    Element element = {Role::skipped, tag.name, offset, outer_scope,
                       is_in_secret(reading) || is_secret(tag.name, parent)};
    give_role(reading, element, tag);
    reading.open.push_back(std::move(element));
}

void close_element(Reading &reading)
{
    const Element &element = reading.open.back();
    if (element.role == Role::data) read_value(reading, element);
    if (element.role == Role::default_operation) read_default_operation(reading, element);
    reading.declarations.resize(element.outer_scope);
    reading.open.pop_back();
}

void read_text(Reading &reading, std::string_view text)
{
    Element &element = reading.open.back();
    if (element.role == Role::skipped) return;
    if (element.role == Role::data || element.role == Role::default_operation) {
        if (!element.has_children) {
            if (text.size() > longest_value - element.text.size())
                refuse(reading, element.offset, "a value" + more_than(longest_value) + " in " + shown(element.tag));
            element.text += text;
            return;
        }
        if (!is_blank(text)) refuse(reading, element.offset, "text beside elements in " + shown(element.tag));
    }
    if (!is_blank(text)) refuse(reading, element.offset, "text in " + shown(element.tag));
}

void check_bgp(const Reading &reading)
{
    if (reading.has_bgp) return;
    if (reading.foreign_bgp)
        refuse(reading, *reading.foreign_bgp, reading.foreign_namespace + "; expected bgp of " + OC_BGP_NS);
    refuse(reading, reading.innermost_holder, std::string("no bgp element of ") + OC_BGP_NS);
}

}  // namespace

Document read_xml(std::string_view text, const std::string &file)
{
    Document document;
    Reading reading = {.xml = XmlText(checked_text(text, file), file), .document = document};
    parse_xml(reading);
    check_bgp(reading);
    Datatree &bgp = document.bgp.root();
    if (reading.replaces_by_default && !platform::has_operation(bgp)) platform::set_operation(bgp, VMF_OP_REPLACE);
    return document;
}

}  // namespace io
