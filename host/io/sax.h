// What the readers of XML share: the SAX2 interface of libxml2, over a text that stays whole in memory, so that a byte
// offset is enough to say where something stands.
#pragma once

#include <libxml/SAX2.h>
#include <libxml/parserInternals.h>

#include <cstddef>
#include <exception>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <vector>

namespace io {

// The texts of a tag are the parser's, which holds names and namespaces as long as it stands, and values during the
// event.
struct Attribute {
    std::string_view name;
    const char *ns;  // null: none
    std::string_view value;
};

struct Declaration {
    const char *prefix;  // null: the default namespace
    const char *ns;      // null: none
};

struct Tag {
    const char *name;
    const char *prefix;  // null: none
    const char *ns;      // null: none
    std::vector<Declaration> declarations;
    std::vector<Attribute> attributes;
};

// A text on its way through the parser.
struct XmlText {
    XmlText(std::string_view checked, const std::string &name) : text(checked), file(name) {}

    std::string_view text;    // as checked_text gives it (reading.h)
    const std::string &file;  // the name for messages
    xmlParserCtxtPtr parser = nullptr;
    size_t depth = 0;          // of the element at hand; the root has 1
    size_t element_count = 0;  // so far
    std::exception_ptr error = nullptr;
};

// The number of bytes that the parser has passed.
size_t read_so_far(const XmlText &xml);

// Where the tag begins that the parser is about to leave, or has just left.
size_t offset_of_tag(const XmlText &xml);

// Throws InputError with the place of the byte.
[[noreturn]] void refuse(const XmlText &xml, size_t offset, const std::string &reason);

// The steps of parse_xml, below.
void check_before_parsing(const XmlText &xml);
void open_tag(XmlText &xml, const char *name);
[[noreturn]] void refuse_doctype(const XmlText &xml);
[[noreturn]] void refuse_entity(const XmlText &xml, const xmlChar *name, bool is_secret);
[[noreturn]] void refuse_malformed(const XmlText &xml, const xmlError &error, bool is_secret);
Tag tag_of_event(const xmlChar *name, const xmlChar *prefix, const xmlChar *ns, int namespace_count,
                 const xmlChar **namespaces, int attribute_count, const xmlChar **attributes);

template<class Reading>
struct SaxEvents {
    // Does the work of an event. No exception goes through the parser: it is kept, and ends the reading.
    template<class Work>
    static void guarded(void *data, Work work)
    {
        auto &reading = *static_cast<Reading *>(data);
        if (reading.xml.error != nullptr) return;
        try {
            work(reading);
        } catch (...) {
            reading.xml.error = std::current_exception();
            xmlStopParser(reading.xml.parser);
        }
    }

    static void on_start(void *data, const xmlChar *name, const xmlChar *prefix, const xmlChar *ns, int namespace_count,
                         const xmlChar **namespaces, int attribute_count, int /*defaulted*/, const xmlChar **attributes)
    {
        guarded(data, [&](Reading &reading) {
            const Tag tag = tag_of_event(name, prefix, ns, namespace_count, namespaces, attribute_count, attributes);
            open_tag(reading.xml, tag.name);
            open_element(reading, tag);
        });
    }

    static void on_end(void *data, const xmlChar * /*name*/, const xmlChar * /*prefix*/, const xmlChar * /*ns*/)
    {
        guarded(data, [](Reading &reading) {
            close_element(reading);
            reading.xml.depth--;
        });
    }

    static void on_text(void *data, const xmlChar *text, int length)
    {
        guarded(data, [&](Reading &reading) {
            read_text(reading, {reinterpret_cast<const char *>(text), static_cast<size_t>(length)});
        });
    }

    static void on_doctype(void *data, const xmlChar * /*name*/, const xmlChar * /*external_id*/,
                           const xmlChar * /*system_id*/)
    {
        guarded(data, [](Reading &reading) { refuse_doctype(reading.xml); });
    }

    static xmlEntityPtr on_entity(void *data, const xmlChar *name)
    {
        guarded(data, [name](Reading &reading) { refuse_entity(reading.xml, name, is_in_secret(reading)); });
        return nullptr;
    }

    static void on_error(void *data, xmlErrorPtr error)
    {
        if (error->level < XML_ERR_ERROR) return;
        guarded(data, [error](Reading &reading) { refuse_malformed(reading.xml, *error, is_in_secret(reading)); });
    }

    static xmlSAXHandler handler()
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
};

// Reads `reading.xml`, an XmlText, from its start to its end, and calls for what comes
//
//   void open_element(Reading &, const Tag &)             with `depth` of the new element
//   void close_element(Reading &)                         with the same
//   void read_text(Reading &, std::string_view)           of the element at hand, perhaps in several pieces
//   bool is_in_secret(const Reading &)                    what stands here is not for messages
//
// Whatever they throw ends the reading and is thrown on. Throws InputError if the text is not well-formed, says that it
// is not UTF-8, has a DOCTYPE, an entity that is not one of XML's own, or more than the bounds of document.h allow.
template<class Reading>
void parse_xml(Reading &reading)
{
    XmlText &xml = reading.xml;
    check_before_parsing(xml);
    const std::unique_ptr<xmlParserCtxt, void (*)(xmlParserCtxtPtr)> parser(
        xmlCreateMemoryParserCtxt(xml.text.data(), static_cast<int>(xml.text.size())), xmlFreeParserCtxt);
    if (parser == nullptr) throw std::bad_alloc();
    *parser->sax = SaxEvents<Reading>::handler();
    parser->userData = &reading;
    xml.parser = parser.get();
    // HUGE lifts the parser's limits on texts and depth: size and depth are bounded here. Without NOENT, attributes
    // would come with "&#38;" for "&amp;".
    xmlCtxtUseOptions(parser.get(), XML_PARSE_HUGE | XML_PARSE_NONET | XML_PARSE_IGNORE_ENC | XML_PARSE_NOENT);
    xmlParseDocument(parser.get());
    if (xml.error != nullptr) std::rethrow_exception(xml.error);
}

}  // namespace io
