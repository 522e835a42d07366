#include "rpc_error.h"

#include <libxml/xmlwriter.h>

#include <algorithm>
#include <map>
#include <memory>
#include <new>
#include <optional>

#include "modules.h"
#include "nodes.h"
#include "schema.h"
#include "tree.h"
#include "tree_text.h"

namespace io {

namespace {

// ---- A client's path ------------------------------------------------------------------------

struct Key {
    std::string_view name;
    std::string_view value;
};

struct Element {
    std::string_view name;
    std::optional<Key> key = {};
    std::string_view position = {};  // "2"; empty: none
};

// Takes "name[key='value']" or "name[2]" off the front of a path that begins with a slash.
Element take_element(std::string_view &path)
{
    path.remove_prefix(1);
    Element element = {path.substr(0, path.find_first_of("/["))};
    path.remove_prefix(element.name.size());
    if (!path.starts_with('[')) return element;
    const size_t equals = path.find_first_of("=]");
    if (equals == std::string_view::npos || path[equals] == ']' || equals + 1 == path.size()) {
        element.position = path.substr(1, equals - 1);
        path.remove_prefix(std::min(path.size(), element.position.size() + 2));
        return element;
    }
    // A value may hold its own quote: it ends where a bracket, and then an element or nothing, comes behind one.
    const char quote = path[equals + 1];
    size_t end = path.find(quote, equals + 2);
    const auto is_end = [&](size_t at) {
        return path.substr(at + 1, 1) == "]" && (at + 2 == path.size() || path[at + 2] == '/');
    };
    while (end != std::string_view::npos && !is_end(end)) end = path.find(quote, end + 1);
    end = std::min(end, path.size());
    element.key = {path.substr(1, equals - 1), path.substr(equals + 2, end - equals - 2)};
    path.remove_prefix(std::min(path.size(), end + 2));
    return element;
}

// ---- XPath ----------------------------------------------------------------------------------

// XPath 1.0 has no escape: a text with both quotes is put together of texts with one.
std::string literal(std::string_view text)
{
    if (text.find('\'') == std::string_view::npos) return "'" + std::string(text) + "'";
    if (text.find('"') == std::string_view::npos) return "\"" + std::string(text) + "\"";
    std::string parts;
    for (size_t at = 0; at < text.size();) {
        const size_t end = std::min(text.find('\'', at), text.size());
        if (end > at) parts += "'" + std::string(text.substr(at, end - at)) + "', ";
        if (end < text.size()) parts += "\"'\", ";
        at = end + 1;
    }
    return "concat(" + parts.substr(0, parts.size() - 2) + ")";
}

class XPath {
public:
    XPath(std::string_view path, const Datatree *bgp)
    {
        const model::OcNode *model = &schema_root;
        const Datatree *node = bgp;
        for (bool is_first = true; path.starts_with('/'); is_first = false) {
            const Element element = take_element(path);
            model = child_in_schema(model, element.name);
            if (!is_first) node = find(node, element);
            append(element, model, node);
        }
    }

    const std::string &text() const { return text_; }
    const std::map<std::string, std::string> &prefixes() const { return prefixes_; }  // to their namespaces

private:
    static bool has_key(const Datatree &node, const Key &key)
    {
        const auto children = platform::children_of(node);
        return std::any_of(children.begin(), children.end(), [&key](const Datatree &child) {
            const char *tag = platform::tag_of(child);
            const char *value = platform::value_of(child);
            return tag != nullptr && key.name == tag && value != nullptr && key.value == value;
        });
    }

    static const Datatree *find(const Datatree *parent, const Element &element)
    {
        if (parent == nullptr) return nullptr;
        for (const Datatree &child : platform::children_of(*parent)) {
            const char *tag = platform::tag_of(child);
            if (tag != nullptr && element.name == tag && (!element.key || has_key(child, *element.key))) return &child;
        }
        return nullptr;
    }

    std::string prefix_of(std::string_view ns)
    {
        const std::string_view known = short_name(ns);
        const std::string prefix = known.empty() ? "other" : std::string(known);
        prefixes_[prefix] = ns;
        return prefix + ":";
    }

    // JSON names the module of a node that no model has, and no namespace is known by that.
    std::string name_test(std::string_view name, const model::OcNode *model, const Datatree *node)
    {
        const char *ns = node != nullptr ? platform::namespace_of(*node) : nullptr;
        const size_t colon = name.find(':');
        const bool is_in_no_namespace = ns != nullptr && *ns == '\0';
        if (colon != std::string_view::npos || (model == nullptr && is_in_no_namespace))
            return "*[local-name()=" + literal(name.substr(colon != std::string_view::npos ? colon + 1 : 0)) + "]";
        return prefix_of(model == nullptr && ns != nullptr ? ns : OC_BGP_NS) + std::string(name);
    }

    static bool is_identity(std::string_view value)
    {
        const auto known = model::openconfig_bgp_identities();
        return std::find(known.begin(), known.end(), value) != known.end();
    }

    void append(const Element &element, const model::OcNode *model, const Datatree *node)
    {
        text_ += "/" + name_test(element.name, model, node);
        if (!element.position.empty()) text_ += "[" + std::string(element.position) + "]";
        if (!element.key) return;
        const model::OcNode *key = child_in_schema(model, element.key->name);
        const bool is_qualified = key != nullptr && key->type == model::Type::identityref_;
        std::string value(element.key->value);
        if (is_qualified && is_identity(value)) value = prefix_of(OC_BGP_TYPES_NS) + value;
        text_ += "[" + name_test(element.key->name, key, nullptr) + "=" + literal(value) + "]";
    }

    std::string text_;
    std::map<std::string, std::string> prefixes_;
};

// ---- The reply ------------------------------------------------------------------------------

struct FreeBuffer {
    void operator()(xmlBufferPtr buffer) const { xmlBufferFree(buffer); }
};

struct FreeWriter {
    void operator()(xmlTextWriterPtr writer) const { xmlFreeTextWriter(writer); }
};

// Memory is all that writing into it can lack.
void check(int written)
{
    if (written < 0) throw std::bad_alloc();
}

const xmlChar *as_xml(const std::string &text) { return BAD_CAST text.c_str(); }

void write_element(xmlTextWriterPtr writer, const char *name, std::string_view text)
{
    check(xmlTextWriterWriteElement(writer, BAD_CAST name, as_xml(std::string(text))));
}

void write_path(xmlTextWriterPtr writer, const std::string &path, const Datatree *bgp)
{
    const XPath xpath(path, bgp);
    check(xmlTextWriterStartElement(writer, BAD_CAST "error-path"));
    for (const auto &[prefix, ns] : xpath.prefixes())
        check(xmlTextWriterWriteAttribute(writer, as_xml("xmlns:" + prefix), as_xml(ns)));
    check(xmlTextWriterWriteString(writer, as_xml(xpath.text())));
    check(xmlTextWriterEndElement(writer));
}

void write_info(xmlTextWriterPtr writer, const RpcError &error)
{
    if (error.bad_attribute.empty() && error.bad_element.empty()) return;
    check(xmlTextWriterStartElement(writer, BAD_CAST "error-info"));
    if (!error.bad_attribute.empty()) write_element(writer, "bad-attribute", error.bad_attribute);
    if (!error.bad_element.empty()) write_element(writer, "bad-element", error.bad_element);
    check(xmlTextWriterEndElement(writer));
}

void write_error(xmlTextWriterPtr writer, const RpcError &error, const Datatree *bgp)
{
    check(xmlTextWriterStartElement(writer, BAD_CAST "rpc-error"));
    write_element(writer, "error-type", error.type);
    write_element(writer, "error-tag", error.tag);
    write_element(writer, "error-severity", "error");
    if (!error.path.empty()) write_path(writer, error.path, bgp);
    check(xmlTextWriterStartElement(writer, BAD_CAST "error-message"));
    check(xmlTextWriterWriteAttribute(writer, BAD_CAST "xml:lang", BAD_CAST "en"));
    check(xmlTextWriterWriteString(writer, as_xml(error.message)));
    check(xmlTextWriterEndElement(writer));
    write_info(writer, error);
    check(xmlTextWriterEndElement(writer));
}

}  // namespace

std::string schema_of_path(std::string_view path)
{
    std::string schema;
    while (path.starts_with('/')) schema.append("/").append(take_element(path).name);
    return schema;
}

std::string write_rpc_errors(const std::vector<RpcError> &errors, const Datatree *bgp)
{
    const std::unique_ptr<xmlBuffer, FreeBuffer> buffer(xmlBufferCreate());
    if (buffer == nullptr) throw std::bad_alloc();
    const std::unique_ptr<xmlTextWriter, FreeWriter> writer(xmlNewTextWriterMemory(buffer.get(), 0));
    if (writer == nullptr) throw std::bad_alloc();
    check(xmlTextWriterSetIndent(writer.get(), 1));
    check(xmlTextWriterSetIndentString(writer.get(), BAD_CAST "  "));
    check(xmlTextWriterStartElement(writer.get(), BAD_CAST "rpc-reply"));
    check(xmlTextWriterWriteAttribute(writer.get(), BAD_CAST "xmlns", BAD_CAST NETCONF_BASE_NS));
    for (const RpcError &error : errors) write_error(writer.get(), error, bgp);
    check(xmlTextWriterEndElement(writer.get()));
    check(xmlTextWriterFlush(writer.get()));
    return {reinterpret_cast<const char *>(xmlBufferContent(buffer.get())),
            static_cast<size_t>(xmlBufferLength(buffer.get()))};
}

}  // namespace io
