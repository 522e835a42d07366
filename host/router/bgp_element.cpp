#include "bgp_element.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <new>
#include <unordered_map>
#include <utility>
#include <vector>

#include "document.h"
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

// An element of `bgp` that the parser stands in.
struct Open {
    const Schema *schema;  // null: the model does not have it
    size_t offset;         // of its tag
    std::string text = {};
    std::string keys = {};                                 // of a list entry, in canonical form
    std::unordered_map<size_t, size_t> alike_counts = {};  // of the children, by what makes two of them one
};

struct Scan {
    io::XmlText xml;
    const Schema &root;
    size_t depth_of_bgp = 0;     // the root has 1; 0: it has not come yet
    size_t begin = 0;            // of the element in the text
    size_t name_end = 0;         // of the name in its tag
    size_t end = 0;              // one past it
    std::string inherited = {};  // namespaces that its own tag does not declare, as attributes
    std::vector<Namespace> outer = {};
    std::vector<Open> open = {};
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

// libyang's time for nodes that it takes for one grows with the square of their number: for what stands twice, before
// it says so, and for entries of a list without keys.
void count_alike(const Scan &scan, Open &parent, const Open &element)
{
    constexpr size_t most_alike = 1000;
    const Schema &schema = *element.schema;
    std::string what = schema.tag;
    if (schema.kind == Schema::Kind::list) what.append(1, '\0').append(element.keys);
    if (schema.kind == Schema::Kind::leaf_list) what.append(1, '\0').append(element.text);
    if (++parent.alike_counts[std::hash<std::string>()(what)] > most_alike)
        io::refuse(scan.xml, element.offset,
                   "more than " + std::to_string(most_alike) + " times the same <" + schema.tag + ">");
}

void open_in_bgp(Scan &scan, const char *tag, const char *ns)
{
    const Schema *parent = scan.open.empty() ? &scan.root : scan.open.back().schema;
    scan.open.push_back({parent != nullptr ? parent->find_child(tag, ns) : nullptr, io::offset_of_tag(scan.xml)});
}

void close_in_bgp(Scan &scan)
{
    Open element = std::move(scan.open.back());
    scan.open.pop_back();
    if (scan.open.empty() || element.schema == nullptr) return;
    Open &parent = scan.open.back();
    if (element.schema->is_terminal())
        element.text = canonical_value(*element.schema, element.text).value_or(element.text);
    if (element.schema->is_key) parent.keys.append(element.schema->tag).append(1, '\0').append(element.text);
    count_alike(scan, parent, element);
}

void open_element(Scan &scan, const io::Tag &tag)
{
    const size_t depth = scan.xml.depth;
    if (scan.depth_of_bgp != 0 && depth > scan.depth_of_bgp) return open_in_bgp(scan, tag.name, tag.ns);
    const std::string_view name = tag.name, ns = text_of(tag.ns), prefix = text_of(tag.prefix);
    std::vector<Namespace> declared;
    for (const io::Declaration &declaration : tag.declarations)
        declared.push_back({std::string(text_of(declaration.prefix)), std::string(text_of(declaration.ns))});
    const bool is_bgp = name == "bgp" && ns == scan.root.ns;
    if (is_bgp && scan.depth_of_bgp != 0) refuse("a second bgp element");
    if (is_bgp) {
        scan.depth_of_bgp = depth;
        scan.begin = io::offset_of_tag(scan.xml);
        scan.name_end = scan.begin + 1 + (prefix.empty() ? 0 : prefix.size() + 1) + name.size();
        scan.inherited = attributes_of(scan.outer, declared);
        return open_in_bgp(scan, tag.name, tag.ns);
    }
    const bool is_data = name == "data" && (ns.empty() || ns == io::NETCONF_BASE_NS);
    if (depth != 1 || !is_data)
        refuse("<" + std::string(name) + ">" + (ns.empty() ? "" : " of " + std::string(ns)) + "; expected bgp of " +
               scan.root.ns + (depth == 1 ? ", or data of NETCONF that holds it" : ""));
    scan.outer = std::move(declared);
}

void close_element(Scan &scan)
{
    if (!scan.open.empty()) close_in_bgp(scan);
    if (scan.xml.depth == scan.depth_of_bgp) scan.end = io::read_so_far(scan.xml);
}

void read_text(Scan &scan, std::string_view text)
{
    if (scan.open.empty()) {
        if (!io::is_blank(text)) refuse("text in <data>");
        return;
    }
    Open &element = scan.open.back();
    if (element.schema == nullptr || !element.schema->is_terminal()) return;
    if (text.size() > io::longest_value - element.text.size())
        io::refuse(scan.xml, element.offset,
                   "a value" + io::more_than(io::longest_value) + " in <" + element.schema->tag + ">");
    element.text += text;
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

std::string bgp_element(std::string_view text, const std::string &file, const Schema &root)
{
    Scan scan = {.xml = io::XmlText(io::checked_text(text, file), file), .root = root};
    io::parse_xml(scan);
    if (scan.depth_of_bgp == 0) return std::string("<bgp xmlns=\"") + root.ns + "\"/>";
    std::string element(scan.xml.text);
    blank_out(element, scan.end, element.size());
    element.insert(scan.name_end, scan.inherited);
    blank_out(element, 0, scan.begin);
    return element;
}

}  // namespace router
