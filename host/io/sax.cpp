#include "sax.h"

#include <strings.h>

#include <algorithm>

#include "document.h"
#include "reading.h"

namespace io {

// ---- Places ---------------------------------------------------------------------------------

size_t read_so_far(const XmlText &xml)
{
    const long consumed = xmlByteConsumed(xml.parser);
    return std::min(static_cast<size_t>(std::max(consumed, 0L)), xml.text.size());
}

// Where the last `begin` stands of what the parser has passed.
static size_t last_passed(const XmlText &xml, std::string_view begin)
{
    const size_t at = xml.text.substr(0, read_so_far(xml)).rfind(begin);
    return at != std::string_view::npos ? at : 0;
}

// No other '<' can stand in a tag.
size_t offset_of_tag(const XmlText &xml) { return last_passed(xml, "<"); }

void refuse(const XmlText &xml, size_t offset, const std::string &reason)
{
    refuse_at(xml.text, offset, xml.file, reason);
}

// ---- Limits ---------------------------------------------------------------------------------

void open_tag(XmlText &xml, const char *name)
{
    xml.depth++;
    xml.element_count++;
    if (xml.depth > deepest_nesting)
        refuse(xml, offset_of_tag(xml), "elements nested deeper than " + std::to_string(deepest_nesting));
    if (xml.element_count > most_nodes)
        refuse(xml, offset_of_tag(xml), "more than " + std::to_string(most_nodes) + " elements");
    if (std::string_view(name).size() > longest_name)
        refuse(xml, offset_of_tag(xml), "a name" + more_than(longest_name));
}

static size_t end_of_tag(std::string_view text, size_t at)
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
static void check_tag_lengths(const XmlText &xml)
{
    const std::string_view text = xml.text;
    for (size_t begin = text.find('<'); begin != std::string_view::npos;) {
        const size_t next = text.find('<', begin + 1);
        const bool is_long = std::min(next, text.size()) - begin > longest_tag;
        const bool is_tag = text.substr(begin + 1, 1).find_first_of("!?") == std::string_view::npos;
        if (is_long && is_tag && end_of_tag(text, begin) - begin > longest_tag)
            refuse(xml, begin, "a tag" + more_than(longest_tag));
        begin = next;
    }
}

// ---- Encoding -------------------------------------------------------------------------------

// The name of the encoding in the XML declaration; empty if there is none, or if the parser will find it wrong.
static std::string_view declared_encoding(std::string_view text)
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
static void check_encoding(const XmlText &xml)
{
    const std::string_view encoding = declared_encoding(xml.text);
    const std::string name(encoding);
    const auto is_called = [&name](const char *known) { return strcasecmp(name.c_str(), known) == 0; };
    if (name.empty() || is_called("UTF-8") || is_called("US-ASCII")) return;
    const auto offset = static_cast<size_t>(encoding.data() - xml.text.data());
    refuse(xml, offset, "the encoding " + name + "; only UTF-8 is read");
}

void check_before_parsing(const XmlText &xml)
{
    check_encoding(xml);
    check_tag_lengths(xml);
}

// ---- Refusals -------------------------------------------------------------------------------

void refuse_doctype(const XmlText &xml) { refuse(xml, last_passed(xml, "<!DOCTYPE"), "a DOCTYPE is not read"); }

static const char *as_text(const xmlChar *text) { return reinterpret_cast<const char *>(text); }

// The parser has passed the whole reference when it asks for the entity.
void refuse_entity(const XmlText &xml, const xmlChar *name, bool is_secret)
{
    const std::string what = is_secret ? "an entity" : "the entity &" + std::string(as_text(name)) + ";";
    refuse(xml, last_passed(xml, "&"), what + " is not one of XML's own");
}

// Where an error of the parser stands. Of a tag it tells when it has passed the tag's end.
static size_t offset_of_error(const XmlText &xml, const xmlError &error)
{
    const bool is_of_tag = error.code == XML_ERR_TAG_NAME_MISMATCH || error.domain == XML_FROM_NAMESPACE;
    return is_of_tag ? offset_of_tag(xml) : read_so_far(xml);
}

void refuse_malformed(const XmlText &xml, const xmlError &error, bool is_secret)
{
    const std::string reason = is_secret || error.message == nullptr ? "" : ": " + std::string(error.message);
    refuse(xml, offset_of_error(xml, error), "not well-formed XML" + reason);
}

// ---- Events ---------------------------------------------------------------------------------

static const char *as_namespace(const xmlChar *ns) { return ns != nullptr && *ns != '\0' ? as_text(ns) : nullptr; }

// Namespaces come in pairs of prefix and name; attributes in fives of name, prefix, namespace, begin and end of the
// value.
Tag tag_of_event(const xmlChar *name, const xmlChar *prefix, const xmlChar *ns, int namespace_count,
                 const xmlChar **namespaces, int attribute_count, const xmlChar **attributes)
{
    Tag tag = {as_text(name), as_text(prefix), as_namespace(ns), {}, {}};
    for (const xmlChar **pair = namespaces; namespace_count > 0; pair += 2, namespace_count--)
        tag.declarations.push_back({as_text(pair[0]), as_namespace(pair[1])});
    for (const xmlChar **five = attributes; attribute_count > 0; five += 5, attribute_count--)
        tag.attributes.push_back(
            {as_text(five[0]), as_namespace(five[2]), {as_text(five[3]), static_cast<size_t>(five[4] - five[3])}});
    return tag;
}

}  // namespace io
