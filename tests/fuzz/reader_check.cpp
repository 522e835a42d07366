#include "reader_check.h"

#include <cstring>
#include <optional>
#include <set>

#include "checks.h"
#include "fuzzer.h"
#include "text_mutation.h"
#include "tree_input.h"
#include "write.h"

namespace fuzz {

namespace {

constexpr const char *xml_tokens[] = {
    "<bgp xmlns=\"http://openconfig.net/yang/bgp\">",
    "<oc:bgp xmlns:oc=\"http://openconfig.net/yang/bgp\">",
    "</bgp>",
    "<rpc xmlns=\"urn:ietf:params:xml:ns:netconf:base:1.0\">",
    "<edit-config>",
    "<config xmlns=\"urn:ietf:params:xml:ns:netconf:base:1.0\">",
    "<filter type=\"subtree\">",
    "<default-operation>replace</default-operation>",
    " nc:operation=\"delete\" xmlns:nc=\"urn:ietf:params:xml:ns:netconf:base:1.0\"",
    " operation=\"delete\"",
    " xmlns=\"\"",
    " xmlns:t=\"http://openconfig.net/yang/bgp-types\"",
    "t:IPV4_UNICAST",
    "<x xmlns=\"urn:x\">",
    "</x>",
    "<![CDATA[x]]>",
    "<!-- x -->",
    "<?x y?>",
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>",
    "<!DOCTYPE x [<!ENTITY e \"e\">]>",
    "&e;",
    "&amp;",
    "&lt;",
    "&#13;",
    "&#x10FFFF;",
    "&#0;",
    "\r",
    "\n",
    " ",
    "\xEF\xBB\xBF",
    "\xC3\xA9",
    "\xED\xA0\x80",
    "\x01",
};

constexpr const char *json_tokens[] = {
    "{",
    "}",
    "[",
    "]",
    ":",
    ",",
    "\"@\"",
    "\"@as\"",
    "\"openconfig-bgp:bgp\":{",
    "\"@\":{\"ietf-netconf:operation\":\"delete\"},",
    "\"ietf-netconf:operation\"",
    "\"ietf-netconf:config\":{",
    "\"ietf-netconf:filter\":{",
    "\"openconfig-bgp-types:IPV4_UNICAST\"",
    "\"x:y\":[{}],",
    "null",
    "[null]",
    "true",
    "-0",
    "1e400",
    "1.50",
    "18446744073709551616",
    "\"\\u0000\"",
    "\"\\ud800\"",
    "\"\\r\\n\"",
    "\"\"",
    "\" \"",
    "\xEF\xBB\xBF",
    "\xFF",
};

std::string write_as_xml(const Datatree &holder)
{
    return io::write_xml(holder, io::Envelope::config, io::Secrets::shown);
}

std::string write_as_json(const Datatree &holder) { return io::write_json(holder, io::Secrets::shown); }

// A record that has the tree as its child; it owns nothing.
Datatree holder_of(Datatree &tree)
{
    Datatree holder = {};
    holder.subtrees = &tree;
    holder.subtree_count = 1;
    holder.present[0] = VMF_DT_SUBTREES;
    return holder;
}

const std::string file = "input";

struct Read {
    std::optional<io::Document> document;
    std::string refusal;
};

Read read(std::string_view text, const Format &format)
{
    try {
        return {format.read(text, file), ""};
    } catch (const io::InputError &error) {
        const std::string_view reason = error.what();
        if (!reason.starts_with(file + ":")) fail("a refusal begins with the file", std::string(reason));
        if (reason.find_first_of("\r\n") != std::string_view::npos) fail("a refusal is a line", std::string(reason));
        return {std::nullopt, std::string(reason)};
    }
}

bool is_repeated(const ModelNode &node) { return node.kind == "list" || node.kind == "leaf-list"; }

bool is_of_known_module(const char *data_ns)
{
    return data_ns == nullptr || std::strcmp(data_ns, OC_BGP_NS) == 0 || std::strcmp(data_ns, OC_BGP_TYPES_NS) == 0;
}

// What both formats can say: nodes of the model, none of them more often than the model has it, and identities of its
// modules.
bool is_in_both(const Datatree &node, const std::string &path)
{
    const char *ns = platform::namespace_of(node);
    if (ns == nullptr || std::strcmp(ns, OC_BGP_NS) != 0 || find_node(Model::openconfig, path) == nullptr) return false;
    if (!is_of_known_module(platform::data_namespace_of(node))) return false;
    std::set<std::string> seen;
    for (const Datatree &child : platform::children_of(node)) {
        const std::string below = path + "/" + child.tag;
        if (!is_in_both(child, below)) return false;
        if (!seen.insert(child.tag).second && !is_repeated(*find_node(Model::openconfig, below))) return false;
    }
    return true;
}

void check_document(io::Document &document, const Format &format, const Format &other)
{
    Datatree &bgp = document.bgp.root();
    const Datatree holder = holder_of(bgp);
    check_well_formed(holder);
    require(std::strcmp(bgp.tag, "bgp") == 0 && std::strcmp(bgp.namespace_, OC_BGP_NS) == 0, "the root is bgp");
    for (const std::string &note : document.notes)
        if (note.find_first_of("\r\n") != std::string::npos) fail("a note is a line", note);

    const std::string text = format.write(holder);
    Read read_again = read(text, format);
    std::optional<io::Document> &again = read_again.document;
    if (!again) fail("what was written is accepted", text, read_again.refusal);
    if (!are_same(bgp, again->bgp.root()))
        fail("what was written is read as it was", text, format.write(holder_of(again->bgp.root())));
    if (const std::string once_more = format.write(holder_of(again->bgp.root())); once_more != text)
        fail("what was read is written as it was", text, once_more);

    if (!is_in_both(bgp, "/bgp")) return;
    const std::string other_text = other.write(holder);
    const Read carried = read(other_text, other);
    if (!carried.document) fail("the other format carries it", other_text, carried.refusal);
}

}  // namespace

const Format xml = {io::read_xml, write_as_xml, xml_tokens};
const Format json = {io::read_json, write_as_json, json_tokens};

void check_reader(std::string_view text, const Format &format, const Format &other)
{
    Read given = read(text, format);
    if (given.document) check_document(*given.document, format, other);
}

size_t mutate_document(uint8_t *data, size_t size, size_t most, unsigned seed, const Format &format)
{
    Random random(seed);
    const size_t kind = below(random, 10);
    if (kind == 0) return LLVMFuzzerMutate(data, size, most);
    const std::string_view text = text_of(data, size);
    if (kind < 6) return put(mutate_tokens(text, format.tokens, random), data, most);
    TreeInput input;
    try {
        io::Document document = format.read(text, file);
        input.lines = lines_of(document.bgp.root());
    } catch (const io::InputError &) {
        if (kind != 6) return put(mutate_tokens(text, format.tokens, random), data, most);
    }
    mutate(input, {{Model::openconfig}, {}, true}, random);
    const platform::Tree tree = build(input.lines);
    return put(format.write(tree.root()), data, most);
}

}  // namespace fuzz
