#include "xml.h"

#include "text.h"
#include "tree.h"
#include "workload.h"

namespace bench {

static const xmlChar *xml_text(const char *text) { return reinterpret_cast<const xmlChar *>(text); }

static void append(xmlNode *element, const Datatree &node)
{
    for (const Datatree &child : platform::children_of(node)) {
        const std::string value = value_of(child);
        const xmlChar *content = value.empty() ? nullptr : xml_text(value.c_str());
        append(xmlNewTextChild(element, nullptr, xml_text(platform::tag_of(child)), content), child);
    }
}

XmlDocument xml_of(const Datatree &node, const char *ns)
{
    XmlDocument document(xmlNewDoc(xml_text("1.0")), xmlFreeDoc);
    xmlNode *root = xmlNewDocNode(document.get(), nullptr, xml_text(platform::tag_of(node)), nullptr);
    xmlDocSetRootElement(document.get(), root);
    xmlSetNs(root, xmlNewNs(root, xml_text(ns), nullptr));
    xmlNewNs(root, xml_text(OC_BGP_TYPES_NS), xml_text("openconfig-bgp-types"));
    append(root, node);
    return document;
}

XmlDocument xml_input(Way way, size_t neighbors)
{
    if (way == Way::forward) return xml_of(openconfig_neighbors(neighbors).root(), OC_BGP_NS);
    const platform::Tree native = native_neighbors(neighbors);
    return xml_of(platform::children_of(native.root()).front(), ZR_BGP_CFG_NS);
}

size_t count_elements(const xmlNode *element)
{
    size_t count = 1;
    for (const xmlNode *child = element->children; child != nullptr; child = child->next)
        if (child->type == XML_ELEMENT_NODE) count += count_elements(child);
    return count;
}

static void append(std::string &text, const xmlNode *element, size_t depth)
{
    const xmlNode *first = element->children;
    const bool is_leaf = first != nullptr && first->type == XML_TEXT_NODE;
    append_line(text, depth, reinterpret_cast<const char *>(element->name),
                is_leaf ? reinterpret_cast<const char *>(first->content) : nullptr);
    for (const xmlNode *child = is_leaf ? nullptr : first; child != nullptr; child = child->next)
        append(text, child, depth + 1);
}

std::string text_of(xmlNode *element)
{
    std::string text;
    append(text, element, 0);
    return text;
}

}  // namespace bench
