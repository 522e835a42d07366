#include "bgp_element.h"

#include <algorithm>
#include <memory>
#include <new>
#include <utility>
#include <vector>

#include "modules.h"
#include "reading.h"
#include "router.h"
#include "sax.h"

namespace router {

namespace {

struct Namespace {
    std::string prefix;  // empty: the default namespace
    std::string ns;
};

struct Scan {
    io::XmlText xml;
    std::string ns;
    size_t depth_of_bgp = 0;     // the root has 1; 0: it has not come yet
    size_t begin = 0;            // of the element in the text
    size_t name_end = 0;         // of the name in its tag
    size_t end = 0;              // one past it
    std::string inherited = {};  // namespaces that its own tag does not declare, as attributes
    std::vector<Namespace> outer = {};
};

std::string attributes_of(const std::vector<Namespace> &outer, const std::vector<Namespace> &own)
{
    std::string attributes;
    for (const auto &[prefix, ns] : outer) {
        const bool is_own = std::any_of(own.begin(), own.end(), [&name = prefix](const Namespace &declaration) {
            return declaration.prefix == name;
        });
        if (is_own) continue;
        const std::unique_ptr<xmlChar, void (*)(void *)> escaped(xmlEncodeSpecialChars(nullptr, BAD_CAST ns.c_str()),
                                                                 xmlFree);
        if (escaped == nullptr) throw std::bad_alloc();
        attributes += std::string(" xmlns") + (prefix.empty() ? "" : ":") + prefix + "=\"" +
                      reinterpret_cast<const char *>(escaped.get()) + "\"";
    }
    return attributes;
}

[[noreturn]] void refuse(const std::string &rule) { throw Refused({{{}, rule}}); }

std::string_view text_of(const char *text) { return text != nullptr ? text : ""; }

void open_element(Scan &scan, const io::Tag &tag)
{
    const size_t depth = scan.xml.depth;
    if (scan.depth_of_bgp != 0 && depth > scan.depth_of_bgp) return;
    const std::string_view name = tag.name, ns = text_of(tag.ns), prefix = text_of(tag.prefix);
    std::vector<Namespace> declared;
    for (const io::Declaration &declaration : tag.declarations)
        declared.push_back({std::string(text_of(declaration.prefix)), std::string(text_of(declaration.ns))});
    const bool is_bgp = name == "bgp" && ns == scan.ns;
    if (is_bgp && scan.depth_of_bgp != 0) refuse("a second bgp element");
    if (is_bgp) {
        scan.depth_of_bgp = depth;
        scan.begin = io::offset_of_tag(scan.xml);
        scan.name_end = scan.begin + 1 + (prefix.empty() ? 0 : prefix.size() + 1) + name.size();
        scan.inherited = attributes_of(scan.outer, declared);
        return;
    }
    const bool is_data = name == "data" && (ns.empty() || ns == io::NETCONF_BASE_NS);
    if (depth != 1 || !is_data)
        refuse("<" + std::string(name) + ">" + (ns.empty() ? "" : " of " + std::string(ns)) + "; expected bgp of " +
               scan.ns + (depth == 1 ? ", or data of NETCONF that holds it" : ""));
    scan.outer = std::move(declared);
}

void close_element(Scan &scan)
{
    if (scan.xml.depth == scan.depth_of_bgp) scan.end = io::read_so_far(scan.xml);
}

void read_text(const Scan &scan, std::string_view text)
{
    const bool is_in_bgp = scan.depth_of_bgp != 0 && scan.xml.depth >= scan.depth_of_bgp;
    if (!is_in_bgp && !io::is_blank(text)) refuse("text in <data>");
}

// Operational data holds no passwords.
bool is_in_secret(const Scan & /*scan*/) { return false; }

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
    Scan scan = {.xml = io::XmlText(io::checked_text(text, file), file), .ns = ns};
    io::parse_xml(scan);
    if (scan.depth_of_bgp == 0) return "<bgp xmlns=\"" + scan.ns + "\"/>";
    std::string element(scan.xml.text);
    blank_out(element, scan.end, element.size());
    element.insert(scan.name_end, scan.inherited);
    blank_out(element, 0, scan.begin);
    return element;
}

}  // namespace router
