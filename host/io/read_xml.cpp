// Reads XML through the SAX2 interface of libxml2: the text stays whole in memory, so that a byte offset is enough to
// say where something stands, and the tree is built as the elements come.
#include <libxml/SAX2.h>
#include <libxml/parserInternals.h>
#include <strings.h>

#include <algorithm>
#include <exception>
#include <memory>

#include "document.h"
#include "modules.h"
#include "operation_names.h"
#include "reading.h"
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

struct Attribute {
    std::string_view name;
    const char *ns;  // null: none
    std::string_view value;
};

struct Tag {
    const char *name;
    const char *ns;  // null: none
    std::vector<Attribute> attributes;
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

struct Declaration {
    const char *prefix;  // null: the default namespace
    const char *ns;      // null: none
};

struct Reading {
    std::string_view text;
    const std::string &file;
    Document &document;
    Notes notes{document.notes};
    xmlParserCtxtPtr parser = nullptr;
    std::vector<Element> open = {};
    std::vector<Declaration> declarations = {};
    std::exception_ptr error = nullptr;  // what ended the reading
    size_t element_count = 0;
    size_t innermost_holder = 0;             // where a tree should have stood, if none comes
    std::optional<size_t> foreign_bgp = {};  // where a `bgp` of another namespace stood,
    std::string foreign_namespace = {};      // and of which
    bool has_bgp = false;
    bool replaces_by_default = false;
};

[[noreturn]] void refuse(const Reading &reading, size_t offset, const std::string &reason)
{
    refuse_at(reading.text, offset, reading.file, reason);
}

std::string shown(std::string_view tag) { return "<" + std::string(tag) + ">"; }

std::string shown(const Tag &tag)
{
    return shown(std::string_view(tag.name)) +
           (tag.ns != nullptr ? " of " + std::string(tag.ns) : " without a namespace");
}

bool is_in(const char *ns, std::string_view wanted) { return ns != nullptr && ns == wanted; }

// The number of bytes that the parser has passed.
size_t read_so_far(const Reading &reading)
{
    const long consumed = xmlByteConsumed(reading.parser);
    return std::min(static_cast<size_t>(std::max(consumed, 0L)), reading.text.size());
}

// Where the last `begin` stands of what the parser has passed.
size_t last_passed(const Reading &reading, std::string_view begin)
{
    const size_t at = reading.text.substr(0, read_so_far(reading)).rfind(begin);
    return at != std::string_view::npos ? at : 0;
}

// Where the tag begins that the parser is about to leave, or has just left: no other '<' can stand in it.
size_t offset_of_tag(const Reading &reading) { return last_passed(reading, "<"); }

bool in_secret(const Reading &reading) { return !reading.open.empty() && reading.open.back().is_secret; }

// ---- Limits ---------------------------------------------------------------------------------

std::string more_than(size_t limit) { return " of more than " + std::to_string(limit) + " bytes"; }

void check_limits(const Reading &reading, const Tag &tag, size_t offset)
{
    if (reading.open.size() >= deepest_nesting)
        refuse(reading, offset, "elements nested deeper than " + std::to_string(deepest_nesting));
    if (reading.element_count > most_nodes)
        refuse(reading, offset, "more than " + std::to_string(most_nodes) + " elements");
    if (std::string_view(tag.name).size() > longest_name) refuse(reading, offset, "a name" + more_than(longest_name));
}

size_t end_of_tag(std::string_view text, size_t at)
{
    while ((at = text.find_first_of("\"'>", at)) != std::string_view::npos && text[at] != '>') {
        at = text.find(text[at], at + 1);
        if (at == std::string_view::npos) break;
        at++;
    }
    return std::min(at, text.size());
}

// The parser's time for a tag grows with the square of its attributes. No '<' can stand in a tag, so that most need no
// look of their own.
void check_tag_lengths(const Reading &reading)
{
    const std::string_view text = reading.text;
    for (size_t begin = text.find('<'); begin != std::string_view::npos;) {
        const size_t next = text.find('<', begin + 1);
        const bool is_long = std::min(next, text.size()) - begin > longest_tag;
        const bool is_tag = text.substr(begin + 1, 1).find_first_of("!?") == std::string_view::npos;
        if (is_long && is_tag && end_of_tag(text, begin) - begin > longest_tag)
            refuse(reading, begin, "a tag" + more_than(longest_tag));
        begin = next;
    }
}

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

void open_element(Reading &reading, const Tag &tag, size_t outer_scope)
{
    const size_t offset = offset_of_tag(reading);
    reading.element_count++;
    check_limits(reading, tag, offset);
    const char *parent = reading.open.empty() ? nullptr : reading.open.back().tag;
    Element element = {Role::skipped, tag.name, offset, outer_scope, in_secret(reading) || is_secret(tag.name, parent)};
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

// The parser has passed the whole reference when it asks for the entity.
[[noreturn]] void refuse_entity(const Reading &reading, std::string_view name)
{
    const std::string what = in_secret(reading) ? "an entity" : "the entity &" + std::string(name) + ";";
    refuse(reading, last_passed(reading, "&"), what + " is not one of XML's own");
}

// Where an error of the parser stands. Of a tag it tells when it has passed the tag's end.
size_t offset_of_error(const Reading &reading, const xmlError &error)
{
    const bool is_of_tag = error.code == XML_ERR_TAG_NAME_MISMATCH || error.domain == XML_FROM_NAMESPACE;
    return is_of_tag ? offset_of_tag(reading) : read_so_far(reading);
}

[[noreturn]] void refuse_malformed(const Reading &reading, const xmlError &error)
{
    const std::string reason = in_secret(reading) || error.message == nullptr ? "" : ": " + std::string(error.message);
    refuse(reading, offset_of_error(reading, error), "not well-formed XML" + reason);
}

// ---- The parser -----------------------------------------------------------------------------

// Does the work of one callback. No exception goes through the parser: it is kept, and ends the reading.
template<class Work>
void guarded(void *data, Work work)
{
    auto &reading = *static_cast<Reading *>(data);
    if (reading.error != nullptr) return;
    try {
        work(reading);
    } catch (...) {
        reading.error = std::current_exception();
        xmlStopParser(reading.parser);
    }
}

const char *as_text(const xmlChar *text) { return reinterpret_cast<const char *>(text); }

const char *as_namespace(const xmlChar *ns) { return ns != nullptr && *ns != '\0' ? as_text(ns) : nullptr; }

// Namespaces come in pairs of prefix and name.
void declare(Reading &reading, const xmlChar **namespaces, int count)
{
    for (const xmlChar **pair = namespaces; count > 0; pair += 2, count--)
        reading.declarations.push_back({as_text(pair[0]), as_namespace(pair[1])});
}

// Attributes come in fives: name, prefix, namespace, begin and end of the value.
std::vector<Attribute> attributes_of(const xmlChar **attributes, int count)
{
    std::vector<Attribute> all;
    for (const xmlChar **five = attributes; count > 0; five += 5, count--)
        all.push_back(
            {as_text(five[0]), as_namespace(five[2]), {as_text(five[3]), static_cast<size_t>(five[4] - five[3])}});
    return all;
}

void on_start(void *data, const xmlChar *name, const xmlChar * /*prefix*/, const xmlChar *ns, int namespace_count,
              const xmlChar **namespaces, int attribute_count, int /*defaulted*/, const xmlChar **attributes)
{
    guarded(data, [&](Reading &reading) {
        const size_t outer_scope = reading.declarations.size();
        declare(reading, namespaces, namespace_count);
        open_element(reading, {as_text(name), as_namespace(ns), attributes_of(attributes, attribute_count)},
                     outer_scope);
    });
}

void on_end(void *data, const xmlChar * /*name*/, const xmlChar * /*prefix*/, const xmlChar * /*ns*/)
{
    guarded(data, close_element);
}

void on_text(void *data, const xmlChar *text, int length)
{
    guarded(data, [&](Reading &reading) { read_text(reading, {as_text(text), static_cast<size_t>(length)}); });
}

void on_doctype(void *data, const xmlChar * /*name*/, const xmlChar * /*external_id*/, const xmlChar * /*system_id*/)
{
    guarded(data,
            [](Reading &reading) { refuse(reading, last_passed(reading, "<!DOCTYPE"), "a DOCTYPE is not read"); });
}

xmlEntityPtr on_entity(void *data, const xmlChar *name)
{
    guarded(data, [name](Reading &reading) { refuse_entity(reading, as_text(name)); });
    return nullptr;
}

void on_error(void *data, xmlErrorPtr error)
{
    if (error->level < XML_ERR_ERROR) return;
    guarded(data, [error](Reading &reading) { refuse_malformed(reading, *error); });
}

xmlSAXHandler handler()
{
    xmlSAXHandler handler = {};
    handler.initialized = XML_SAX2_MAGIC;
    handler.startElementNs = on_start;
    handler.endElementNs = on_end;
    handler.characters = on_text;
    handler.ignorableWhitespace = on_text;
    handler.cdataBlock = on_text;
    handler.internalSubset = on_doctype;
    handler.getEntity = on_entity;
    handler.serror = on_error;
    return handler;
}

// The name of the encoding in the XML declaration; empty if there is none, or if the parser will find it wrong.
std::string_view declared_encoding(std::string_view text)
{
    if (trimmed(text.substr(0, 6)) != "<?xml") return {};
    const std::string_view declaration = text.substr(0, text.find("?>"));
    const size_t begin = declaration.find_first_of("\"'", declaration.find("encoding"));
    if (begin == std::string_view::npos) return {};
    const std::string_view rest = declaration.substr(begin + 1);
    const size_t end = rest.find(declaration[begin]);
    return end != std::string_view::npos ? rest.substr(0, end) : std::string_view();
}

// The parser would recode the text, and no offset would fit any more.
void check_encoding(const Reading &reading)
{
    const std::string_view encoding = declared_encoding(reading.text);
    const std::string name(encoding);
    const auto is_called = [&name](const char *known) { return strcasecmp(name.c_str(), known) == 0; };
    if (name.empty() || is_called("UTF-8") || is_called("US-ASCII")) return;
    const auto offset = static_cast<size_t>(encoding.data() - reading.text.data());
    refuse(reading, offset, "the encoding " + name + "; only UTF-8 is read");
}

struct FreeParser {
    void operator()(xmlParserCtxtPtr parser) const { xmlFreeParserCtxt(parser); }
};

void parse(Reading &reading)
{
    const std::unique_ptr<xmlParserCtxt, FreeParser> parser(
        xmlCreateMemoryParserCtxt(reading.text.data(), static_cast<int>(reading.text.size())));
    if (parser == nullptr) throw std::bad_alloc();
    *parser->sax = handler();
    parser->userData = &reading;
    reading.parser = parser.get();
    // HUGE lifts the parser's limits on texts and depth: size and depth are bounded here. Without NOENT, attributes
    // would come with "&#38;" for "&amp;".
    xmlCtxtUseOptions(parser.get(), XML_PARSE_HUGE | XML_PARSE_NONET | XML_PARSE_IGNORE_ENC | XML_PARSE_NOENT);
    xmlParseDocument(parser.get());
    if (reading.error != nullptr) std::rethrow_exception(reading.error);
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
    Reading reading = {.text = checked_text(text, file), .file = file, .document = document};
    check_encoding(reading);
    check_tag_lengths(reading);
    parse(reading);
    check_bgp(reading);
    Datatree &bgp = document.bgp.root();
    if (reading.replaces_by_default && !platform::has_operation(bgp)) platform::set_operation(bgp, VMF_OP_REPLACE);
    return document;
}

}  // namespace io
