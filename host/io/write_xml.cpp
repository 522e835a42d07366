#include <libxml/xmlwriter.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>

#include "modules.h"
#include "operation_names.h"
#include "secrets.h"
#include "tree.h"
#include "tree_text.h"
#include "write.h"

namespace io {

namespace {

struct FreeBuffer {
    void operator()(xmlBufferPtr buffer) const { xmlBufferFree(buffer); }
};

struct FreeWriter {
    void operator()(xmlTextWriterPtr writer) const { xmlFreeTextWriter(writer); }
};

const xmlChar *as_xml(const std::string &text) { return BAD_CAST text.c_str(); }

// Memory is all that writing into it can lack.
void check(int written)
{
    if (written < 0) throw std::bad_alloc();
}

void write_attribute(xmlTextWriterPtr writer, const std::string &name, const std::string &value)
{
    check(xmlTextWriterWriteAttribute(writer, as_xml(name), as_xml(value)));
}

bool has_operations(const Datatree &holder)
{
    const auto children = platform::children_of(holder);
    return std::any_of(children.begin(), children.end(),
                       [](const Datatree &node) { return platform::has_operation(node) || has_operations(node); });
}

// The value with the prefix of its own namespace, if that is not the element's; the prefix is declared here. A name
// with a colon has it always: what stands before the colon would be read as a prefix.
std::string prefixed_value(xmlTextWriterPtr writer, const Datatree &node, const std::string &value)
{
    const char *ns = platform::namespace_of(node);
    const char *data_ns = platform::data_namespace_of(node);
    if (data_ns == nullptr) return value;
    if (ns != nullptr && std::string_view(ns) == data_ns && value.find(':') == std::string::npos) return value;
    const std::string known(short_name(data_ns));
    const std::string prefix = known.empty() ? "ns1" : known;
    write_attribute(writer, "xmlns:" + prefix, data_ns);
    return prefix + ":" + value;
}

std::string shown_value(const Datatree &node, const Datatree &parent, Secrets secrets)
{
    const bool hides = secrets == Secrets::hidden && is_secret(platform::tag_of(node), platform::tag_of(parent));
    return hides ? std::string(hidden_value) : platform::value_of(node);
}

// JSON names the module of a node that no model has, and no namespace is known by that: in XML it stands without one.
const char *name_of_element(const Datatree &node)
{
    const char *tag = platform::tag_of(node);
    const char *colon = std::strchr(tag, ':');
    return colon != nullptr ? colon + 1 : tag;
}

// `default_ns` is the default namespace in force; empty for none.
void write_node(xmlTextWriterPtr writer, const Datatree &node, const Datatree &parent, const std::string &default_ns,
                Secrets secrets)
{
    const std::string ns = platform::namespace_of(node) != nullptr ? platform::namespace_of(node) : "";
    check(xmlTextWriterStartElement(writer, BAD_CAST name_of_element(node)));
    if (ns != default_ns) write_attribute(writer, "xmlns", ns);
    if (platform::has_operation(node))
        write_attribute(writer, "nc:operation", std::string(name_of_operation(node.operation)));
    if (platform::value_of(node) != nullptr) {
        const std::string value = prefixed_value(writer, node, shown_value(node, parent, secrets));
        check(xmlTextWriterWriteString(writer, as_xml(value)));
    }
    for (const Datatree &child : platform::children_of(node)) write_node(writer, child, node, ns, secrets);
    check(xmlTextWriterEndElement(writer));
}

std::string name_of(Envelope envelope)
{
    switch (envelope) {
    case Envelope::config: return "config";
    case Envelope::filter: return "filter";
    case Envelope::data: break;
    }
    return "data";
}

void write_envelope(xmlTextWriterPtr writer, const Datatree &holder, Envelope envelope, Secrets secrets)
{
    check(xmlTextWriterSetIndent(writer, 1));
    check(xmlTextWriterSetIndentString(writer, BAD_CAST "  "));
    check(xmlTextWriterStartElement(writer, as_xml(name_of(envelope))));
    write_attribute(writer, "xmlns", NETCONF_BASE_NS);
    if (has_operations(holder)) write_attribute(writer, "xmlns:nc", NETCONF_BASE_NS);
    if (envelope == Envelope::filter) write_attribute(writer, "type", "subtree");
    for (const Datatree &tree : platform::children_of(holder))
        write_node(writer, tree, holder, NETCONF_BASE_NS, secrets);
    check(xmlTextWriterEndElement(writer));
    check(xmlTextWriterFlush(writer));
}

}  // namespace

std::string write_xml(const Datatree &holder, Envelope envelope, Secrets secrets)
{
    const std::unique_ptr<xmlBuffer, FreeBuffer> buffer(xmlBufferCreate());
    if (buffer == nullptr) throw std::bad_alloc();
    const std::unique_ptr<xmlTextWriter, FreeWriter> writer(xmlNewTextWriterMemory(buffer.get(), 0));
    if (writer == nullptr) throw std::bad_alloc();
    write_envelope(writer.get(), holder, envelope, secrets);
    return {reinterpret_cast<const char *>(xmlBufferContent(buffer.get())),
            static_cast<size_t>(xmlBufferLength(buffer.get()))};
}

}  // namespace io
