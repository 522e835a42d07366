#include "bgp_element.h"

#include <libxml/SAX2.h>
#include <libxml/parserInternals.h>

#include <algorithm>
#include <cstring>
#include <exception>
#include <memory>
#include <new>
#include <utility>
#include <vector>

#include "modules.h"
#include "reading.h"
#include "router.h"

namespace router {

namespace {

struct Declaration {
    std::string prefix;  // empty: the default namespace
    std::string ns;
};

struct Scan {
    std::string_view text;
    const std::string &file;
    std::string ns;
    xmlParserCtxtPtr parser = nullptr;
    int depth = 0;               // of the element at hand; the root has 1
    int depth_of_bgp = 0;        // 0: it has not come yet
    size_t begin = 0;            // of the element in the text
    size_t name_end = 0;         // of the name in its tag
    size_t end = 0;              // one past it
    std::string inherited = {};  // namespaces that its own tag does not declare, as attributes
    std::vector<Declaration> outer = {};
    std::exception_ptr error = nullptr;
};

// The number of bytes that the parser has passed.
size_t read_so_far(const Scan &scan)
{
    const long consumed = xmlByteConsumed(scan.parser);
    return std::min(static_cast<size_t>(std::max(consumed, 0L)), scan.text.size());
}

size_t last_passed(const Scan &scan, std::string_view begin)
{
    const size_t at = scan.text.substr(0, read_so_far(scan)).rfind(begin);
    return at != std::string_view::npos ? at : 0;
}

const char *as_text(const xmlChar *text) { return text != nullptr ? reinterpret_cast<const char *>(text) : ""; }

std::string attributes_of(const std::vector<Declaration> &outer, const std::vector<Declaration> &own)
{
    std::string attributes;
    for (const auto &[prefix, ns] : outer) {
        const bool is_own = std::any_of(own.begin(), own.end(), [&name = prefix](const Declaration &declaration) {
            return declaration.prefix == name;
        });
        if (is_own) continue;
        const std::unique_ptr<xmlChar, void (*)(void *)> escaped(xmlEncodeSpecialChars(nullptr, BAD_CAST ns.c_str()),
                                                                 xmlFree);
        if (escaped == nullptr) throw std::bad_alloc();
        attributes +=
            std::string(" xmlns") + (prefix.empty() ? "" : ":") + prefix + "=\"" + as_text(escaped.get()) + "\"";
    }
    return attributes;
}

[[noreturn]] void refuse(const std::string &rule) { throw Refused({{{}, rule}}); }

struct Tag {
    std::string_view name;
    std::string_view prefix;
    std::string_view ns;
};

void open_element(Scan &scan, const Tag &tag, std::vector<Declaration> declared)
{
    scan.depth++;
    if (scan.depth_of_bgp != 0 && scan.depth > scan.depth_of_bgp) return;
    const bool is_bgp = tag.name == "bgp" && tag.ns == scan.ns;
    if (is_bgp && scan.depth_of_bgp != 0) refuse("a second bgp element");
    if (is_bgp) {
        scan.depth_of_bgp = scan.depth;
        scan.begin = last_passed(scan, "<");
        scan.name_end = scan.begin + 1 + (tag.prefix.empty() ? 0 : tag.prefix.size() + 1) + tag.name.size();
        scan.inherited = attributes_of(scan.outer, declared);
        return;
    }
    const bool is_data = tag.name == "data" && (tag.ns.empty() || tag.ns == io::NETCONF_BASE_NS);
    if (scan.depth != 1 || !is_data)
        refuse("<" + std::string(tag.name) + ">" + (tag.ns.empty() ? "" : " of " + std::string(tag.ns)) +
               "; expected bgp of " + scan.ns + (scan.depth == 1 ? ", or data of NETCONF that holds it" : ""));
    scan.outer = std::move(declared);
}

void close_element(Scan &scan)
{
    if (scan.depth == scan.depth_of_bgp) scan.end = read_so_far(scan);
    scan.depth--;
}

void read_text(const Scan &scan, std::string_view text)
{
    const bool is_in_bgp = scan.depth_of_bgp != 0 && scan.depth >= scan.depth_of_bgp;
    if (!is_in_bgp && !io::is_blank(text)) refuse("text in <data>");
}

// Does the work of one callback. No exception goes through the parser: it is kept, and ends the scan.
template<class Work>
void guarded(void *data, Work work)
{
    auto &scan = *static_cast<Scan *>(data);
    if (scan.error != nullptr) return;
    try {
        work(scan);
    } catch (...) {
        scan.error = std::current_exception();
        xmlStopParser(scan.parser);
    }
}

// Namespaces come in pairs of prefix and name.
void on_start(void *data, const xmlChar *name, const xmlChar *prefix, const xmlChar *ns, int namespace_count,
              const xmlChar **namespaces, int /*attribute_count*/, int /*defaulted*/, const xmlChar ** /*attributes*/)
{
    guarded(data, [&](Scan &scan) {
        std::vector<Declaration> declared;
        declared.reserve(static_cast<size_t>(namespace_count));
        for (; namespace_count > 0; namespace_count--, namespaces += 2)
            declared.push_back({as_text(namespaces[0]), as_text(namespaces[1])});
        open_element(scan, {as_text(name), as_text(prefix), as_text(ns)}, std::move(declared));
    });
}

void on_end(void *data, const xmlChar * /*name*/, const xmlChar * /*prefix*/, const xmlChar * /*ns*/)
{
    guarded(data, close_element);
}

void on_text(void *data, const xmlChar *text, int length)
{
    guarded(data, [&](const Scan &scan) { read_text(scan, {as_text(text), static_cast<size_t>(length)}); });
}

void on_doctype(void *data, const xmlChar * /*name*/, const xmlChar * /*external_id*/, const xmlChar * /*system_id*/)
{
    guarded(data, [](const Scan &scan) {
        io::refuse_at(scan.text, last_passed(scan, "<!DOCTYPE"), scan.file, "a DOCTYPE is not read");
    });
}

xmlEntityPtr on_entity(void *data, const xmlChar *name)
{
    guarded(data, [name](const Scan &scan) {
        io::refuse_at(scan.text, last_passed(scan, "&"), scan.file,
                      std::string("the entity &") + as_text(name) + "; is not one of XML's own");
    });
    return nullptr;
}

void on_error(void *data, xmlErrorPtr error)
{
    if (error->level < XML_ERR_ERROR) return;
    guarded(data, [error](const Scan &scan) {
        const std::string reason = error->message != nullptr ? error->message : "";
        io::refuse_at(scan.text, read_so_far(scan), scan.file, "not well-formed XML: " + reason);
    });
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

struct FreeParser {
    void operator()(xmlParserCtxtPtr parser) const { xmlFreeParserCtxt(parser); }
};

void run(Scan &scan)
{
    const std::unique_ptr<xmlParserCtxt, FreeParser> parser(
        xmlCreateMemoryParserCtxt(scan.text.data(), static_cast<int>(scan.text.size())));
    if (parser == nullptr) throw std::bad_alloc();
    *parser->sax = handler();
    parser->userData = &scan;
    scan.parser = parser.get();
    xmlCtxtUseOptions(parser.get(), XML_PARSE_HUGE | XML_PARSE_NONET | XML_PARSE_IGNORE_ENC);
    xmlParseDocument(parser.get());
    if (scan.error != nullptr) std::rethrow_exception(scan.error);
}

void blank_out(std::string &text, size_t begin, size_t end)
{
    const auto first = text.begin() + static_cast<std::ptrdiff_t>(begin);
    const auto last = text.begin() + static_cast<std::ptrdiff_t>(end);
    std::replace_if(
        first, last, [](char c) { return c != '\n'; }, ' ');
}

}  // namespace

std::string bgp_element(std::string_view text, const std::string &file, const char *ns)
{
    Scan scan = {.text = io::checked_text(text, file), .file = file, .ns = ns};
    run(scan);
    if (scan.depth_of_bgp == 0) return "<bgp xmlns=\"" + scan.ns + "\"/>";
    std::string element(scan.text);
    blank_out(element, scan.end, element.size());
    element.insert(scan.name_end, scan.inherited);
    blank_out(element, 0, scan.begin);
    return element;
}

}  // namespace router
