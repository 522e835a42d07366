// What a framework would report to a NETCONF client.
#include "rpc_error.h"

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>

#include <memory>

#include "refusal_errors.h"
#include "router_folder.h"
#include "tree_text.h"
#include "vmf_map_platform.h"

namespace {

constexpr char base_ns[] = "urn:ietf:params:xml:ns:netconf:base:1.0";

// A reply, and what stands at paths of it.
class Reply {
public:
    explicit Reply(const std::string &text)
        : document_(xmlReadMemory(text.data(), static_cast<int>(text.size()), "reply", nullptr,
                                  XML_PARSE_NOERROR | XML_PARSE_NONET))
    {
    }
    ~Reply() { xmlFreeDoc(document_); }
    Reply(const Reply &) = delete;
    Reply &operator=(const Reply &) = delete;

    bool is_well_formed() const { return document_ != nullptr; }

    // Of an XPath with the prefix nc.
    std::string at(const std::string &path) const
    {
        if (document_ == nullptr) return "(not well-formed)";
        xmlXPathContextPtr context = xmlXPathNewContext(document_);
        xmlXPathRegisterNs(context, BAD_CAST "nc", BAD_CAST base_ns);
        xmlXPathObjectPtr result = xmlXPathEvalExpression(BAD_CAST("string(" + path + ")").c_str(), context);
        const std::string text = result != nullptr ? reinterpret_cast<const char *>(result->stringval) : "(no path)";
        xmlXPathFreeObject(result);
        xmlXPathFreeContext(context);
        return text;
    }

    std::string field(const std::string &name) const { return at("/nc:rpc-reply/nc:rpc-error[1]/nc:" + name); }

    // How many nodes of a document the error-path selects, with the prefixes that are declared on it; -1 if it is no
    // XPath.
    int selected_in(const std::string &document) const
    {
        xmlNodePtr path = xmlDocGetRootElement(document_)->children;
        const auto find = [](xmlNodePtr from, const char *name) {
            while (from != nullptr && (from->name == nullptr || xmlStrcmp(from->name, BAD_CAST name) != 0))
                from = from->next;
            return from;
        };
        path = find(path, "rpc-error");
        path = path != nullptr ? find(path->children, "error-path") : nullptr;
        if (path == nullptr) return -1;
        xmlDocPtr data = xmlReadMemory(document.data(), static_cast<int>(document.size()), "data", nullptr, 0);
        xmlXPathContextPtr context = xmlXPathNewContext(data);
        for (xmlNsPtr ns = path->nsDef; ns != nullptr; ns = ns->next) xmlXPathRegisterNs(context, ns->prefix, ns->href);
        xmlChar *text = xmlNodeGetContent(path);
        xmlXPathObjectPtr result = xmlXPathEvalExpression(text, context);
        int count = -1;
        if (result != nullptr) count = result->nodesetval != nullptr ? result->nodesetval->nodeNr : 0;
        xmlXPathFreeObject(result);
        xmlFree(text);
        xmlXPathFreeContext(context);
        xmlFreeDoc(data);
        return count;
    }

private:
    xmlDocPtr document_;
};

std::string request(const std::string &inside)
{
    return "<bgp xmlns=\"http://openconfig.net/yang/bgp\" xmlns:t=\"http://openconfig.net/yang/bgp-types\" "
           "xmlns:nc=\"urn:ietf:params:xml:ns:netconf:base:1.0\">" +
           inside + "</bgp>";
}

std::string neighbor(const std::string &inside)
{
    return request("<neighbors><neighbor>" + inside + "</neighbor></neighbors>");
}

const std::string address = "<neighbor-address>10.0.0.1</neighbor-address>";

class RpcErrorOfRouter : public RouterFolder {};

}  // namespace

// ---- The table of outcomes ------------------------------------------------------------------

TEST(RpcError, OfEachOutcomeHasItsTag)
{
    using framework::Refusal;
    const std::string entry = "/bgp/neighbors/neighbor[neighbor-address='10.0.0.1']";
    const struct {
        const char *what;
        Refusal refusal;
        const char *tag;
        const char *bad_attribute;
        const char *bad_element;
    } rows[] = {
        {"a node that the model does not have",
         {VMF_RC_UNSUPPORTED, "Unsupported tag is specified in the request.", "colour", entry + "/config/colour"},
         "unknown-element",
         "",
         "colour"},
        {"the same with a module of JSON",
         {VMF_RC_UNSUPPORTED, "Unsupported tag is specified in the request.", "other:colour", entry + "/other:colour"},
         "unknown-element",
         "",
         "colour"},
        {"a node that the model has and the mapping refuses",
         {VMF_RC_UNSUPPORTED, "Unsupported tag is specified in the request.", "state", entry + "/state"},
         "operation-not-supported",
         "",
         ""},
        {"an operation that a family does not have",
         {VMF_RC_UNSUPPORTED, "Operation not allowed for AF 'vpn'", "", entry + "/afi-safis/afi-safi[1]"},
         "operation-not-supported",
         "",
         ""},
        {"an identity of another module",
         {VMF_RC_UNSUPPORTED, "Identityref node validation failed!", "afi-safi-name",
          entry + "/afi-safis/afi-safi[afi-safi-name='X']/afi-safi-name"},
         "invalid-value",
         "",
         ""},
        {"an entry without its key",
         {VMF_RC_BAD_KEY, "No keys specified with a list node.", "neighbor", "/bgp/neighbors/neighbor[1]"},
         "missing-element",
         "",
         "neighbor-address"},
        {"another first leaf than the key",
         {VMF_RC_BAD_KEY, "List key 'peer-group-name' expected.", "", "/bgp/peer-groups/peer-group[2]"},
         "missing-element",
         "",
         "peer-group-name"},
        {"a key without a value",
         {VMF_RC_BAD_KEY, "Empty list key specified.", "", "/bgp/neighbors/neighbor[1]"},
         "invalid-value",
         "",
         ""},
        {"a key that is deleted",
         {VMF_RC_KEY_OPERATION, "The key node should not have delete operation.", "", entry},
         "bad-attribute",
         "operation",
         "neighbor-address"},
        {"a value that cannot be read",
         {VMF_RC_BAD_ARGS, "Invalid boolean value was passed.", "", entry + "/ebgp-multihop/config/enabled"},
         "invalid-value",
         "",
         ""},
        {"the same of another leaf",
         {VMF_RC_BAD_ARGS, "The value of passive-mode is invalid.", "", entry + "/transport/config/passive-mode"},
         "invalid-value",
         "",
         ""},
        {"an argument of the framework's own",
         {VMF_RC_BAD_ARGS, "Session with id=1 not found!", "", "/bgp"},
         "operation-failed",
         "",
         ""},
        {"a tree that is broken",
         {VMF_RC_BAD_TREE, "Tag name is not available!", "", "/bgp"},
         "operation-failed",
         "",
         ""},
        {"no memory", {VMF_RC_NO_MEMORY, "no memory", "", "/bgp"}, "resource-denied", "", ""},
        {"nothing in the system database", {SYSDB_NOTHING_FOUND, "nothing found", "", entry}, "data-missing", "", ""},
        {"what the platform gave", {77, "outcome 0x0000004d", "", entry}, "operation-failed", "", ""},
    };
    for (const auto &row : rows) {
        const io::RpcError error = framework::error_of(row.refusal);
        EXPECT_EQ(error.tag, row.tag) << row.what;
        EXPECT_EQ(error.type, "application") << row.what;
        EXPECT_EQ(error.path, row.refusal.path) << row.what;
        EXPECT_TRUE(error.message.starts_with(row.refusal.reason)) << row.what;
        EXPECT_EQ(error.bad_attribute, row.bad_attribute) << row.what;
        EXPECT_EQ(error.bad_element, row.bad_element) << row.what;
    }
    EXPECT_EQ(framework::error_of_answer(VMF_RC_NO_MEMORY, nullptr).tag, "resource-denied");
    EXPECT_EQ(framework::error_of_answer(VMF_RC_BAD_TREE, "bgp").tag, "operation-failed");
    EXPECT_EQ(framework::error_of_answer(VMF_RC_BAD_TREE, "bgp").message,
              "the router's answer was refused: malformed tree (bgp)");
}

// ---- Commands -------------------------------------------------------------------------------

TEST(RpcError, OfARefusedRequestNamesTheNodeAndTheExitCodeStays)
{
    const struct {
        std::string kind;
        std::string request;
        const char *tag;
        const char *path;
        int selected;  // of the request by the error-path
    } cases[] = {
        {"edit", neighbor(address + "<config><colour/></config>"), "unknown-element",
         "/oc-bgp:bgp/oc-bgp:neighbors/oc-bgp:neighbor[oc-bgp:neighbor-address='10.0.0.1']/oc-bgp:config/oc-bgp:colour",
         1},
        {"edit", neighbor(address + "<x xmlns=\"urn:other\"/>"), "unknown-element",
         "/oc-bgp:bgp/oc-bgp:neighbors/oc-bgp:neighbor[oc-bgp:neighbor-address='10.0.0.1']/other:x", 1},
        {"edit", neighbor("<config/>"), "missing-element", "/oc-bgp:bgp/oc-bgp:neighbors/oc-bgp:neighbor[1]", 1},
        {"edit", neighbor("<neighbor-address nc:operation=\"delete\">10.0.0.1</neighbor-address>"), "bad-attribute",
         "/oc-bgp:bgp/oc-bgp:neighbors/oc-bgp:neighbor[oc-bgp:neighbor-address='10.0.0.1']", 1},
        {"get-config", neighbor(address + "<state/>"), "operation-not-supported",
         "/oc-bgp:bgp/oc-bgp:neighbors/oc-bgp:neighbor[oc-bgp:neighbor-address='10.0.0.1']/oc-bgp:state", 1},
        {"edit",
         neighbor(address + "<afi-safis><afi-safi><afi-safi-name>t:IPV4_UNICAST</afi-safi-name><no/></afi-safi>"
                            "</afi-safis>"),
         "unknown-element",
         "/oc-bgp:bgp/oc-bgp:neighbors/oc-bgp:neighbor[oc-bgp:neighbor-address='10.0.0.1']/oc-bgp:afi-safis/"
         "oc-bgp:afi-safi[oc-bgp:afi-safi-name='bgp-types:IPV4_UNICAST']/oc-bgp:no",
         -2},  // a prefix in a value is the text's own
        {"edit", neighbor("<neighbor-address>1'\"&lt;&amp;</neighbor-address><no/>"), "unknown-element",
         "/oc-bgp:bgp/oc-bgp:neighbors/oc-bgp:neighbor[oc-bgp:neighbor-address=concat('1', \"'\", '\"<&')]/oc-bgp:no",
         1},
    };
    for (const auto &one : cases) {
        const std::string arguments = "translate --as 1 --kind " + one.kind;
        const Ran ran = run_ocbgp(arguments + " --rpc-error -", one.request);
        const Ran plain = run_ocbgp(arguments + " -", one.request);
        EXPECT_EQ(ran.code, 1) << one.request;
        EXPECT_EQ(ran.code, plain.code);
        EXPECT_EQ(ran.err, plain.err);
        EXPECT_EQ(plain.out, "");
        const Reply reply(ran.out);
        ASSERT_TRUE(reply.is_well_formed()) << ran.out;
        EXPECT_EQ(reply.field("error-tag"), one.tag) << one.request;
        EXPECT_EQ(reply.field("error-type"), "application");
        EXPECT_EQ(reply.field("error-severity"), "error");
        EXPECT_EQ(reply.field("error-path"), one.path) << one.request;
        EXPECT_NE(reply.field("error-message"), "");
        EXPECT_EQ(reply.at("count(//nc:rpc-error)"), "1");
        if (one.selected != -2) {
            EXPECT_EQ(reply.selected_in(one.request), one.selected) << ran.out;
        }
    }
}

TEST(RpcError, OfAnInputThatCannotBeRead)
{
    const struct {
        std::string input;
        const char *type;
        const char *tag;
    } cases[] = {
        {"<bgp xmlns=\"http://openconfig.net/yang/bgp\"", "rpc", "malformed-message"},
        {"{\"openconfig-bgp:bgp\":", "rpc", "malformed-message"},
        {" ", "rpc", "malformed-message"},
        {"<bgp xmlns=\"http://openconfig.net/yang/bgp\">\xff</bgp>", "rpc", "malformed-message"},
        {std::string("<bgp xmlns=\"http://openconfig.net/yang/bgp\">\0</bgp>", 49), "rpc", "malformed-message"},
        {"<?xml version=\"1.0\" encoding=\"latin1\"?><bgp xmlns=\"http://openconfig.net/yang/bgp\"/>", "rpc",
         "malformed-message"},
        {request("<global><config><router-id>" + std::string(70000, '1') + "</router-id></config></global>"),
         "protocol", "too-big"},
        {request(std::string(70 * 3, 'x')
                     .replace(0, 210,
                              [] {
                                  std::string nested;
                                  for (int i = 0; i < 70; i++) nested += "<a>";
                                  for (int i = 0; i < 70; i++) nested += "</a>";
                                  return nested;
                              }())),
         "protocol", "too-big"},
        {request("<global nc:operation=\"paint\"/>"), "protocol", "invalid-value"},
        {"<bgp xmlns=\"urn:other\"/>", "protocol", "invalid-value"},
    };
    for (const auto &one : cases) {
        const Ran ran = run_ocbgp("translate --rpc-error -", one.input);
        EXPECT_EQ(ran.code, 2) << one.input.substr(0, 80);
        const Reply reply(ran.out);
        ASSERT_TRUE(reply.is_well_formed()) << ran.out;
        EXPECT_EQ(reply.field("error-type"), one.type) << one.input.substr(0, 80);
        EXPECT_EQ(reply.field("error-tag"), one.tag) << one.input.substr(0, 80);
        EXPECT_EQ("ocbgp: " + reply.field("error-message") + "\n", ran.err);
        EXPECT_EQ(reply.at("count(//nc:error-path)"), "0");
    }
    const Ran missing = run_ocbgp("translate --rpc-error /no/such/file");
    EXPECT_EQ(missing.code, 2);
    EXPECT_EQ(Reply(missing.out).field("error-tag"), "operation-failed");
}

TEST(RpcError, IsNotWrittenOfWhatSucceeds)
{
    const std::string arguments = "translate examples/global-edit.xml";
    EXPECT_EQ(run_ocbgp(arguments + " --rpc-error").out, run_ocbgp(arguments).out);
}

TEST_F(RpcErrorOfRouter, OfAnEditThatTheRouterRefusesHasTheClientsPath)
{
    // No AS number is known: the native configuration would lack what it must have.
    const std::string edit = neighbor(address + "<config><description>a &amp; b</description></config>");
    for (const std::string mode : {"", "--dry-run "}) {
        const Ran ran = run_ocbgp("edit --rpc-error " + mode + "-", edit);
        EXPECT_EQ(ran.code, 3) << ran.err;
        const Reply reply(ran.out);
        ASSERT_TRUE(reply.is_well_formed()) << ran.out;
        EXPECT_EQ(reply.field("error-tag"), "operation-failed");
        EXPECT_EQ(reply.field("error-path").substr(0, 11), "/oc-bgp:bgp");
        EXPECT_EQ(reply.selected_in(edit), 1) << ran.out;
    }
    EXPECT_EQ(running(), "");
}

TEST_F(RpcErrorOfRouter, OfAReadAndOfALockedOrMissingRouter)
{
    succeed("edit examples/global-edit.xml");
    const Ran refused = run_ocbgp("get --rpc-error --path /bgp/colour");
    EXPECT_EQ(refused.code, 1);
    EXPECT_EQ(Reply(refused.out).field("error-tag"), "unknown-element");
    EXPECT_EQ(Reply(refused.out).field("error-info/nc:bad-element"), "colour");
    const Ran missing = run_ocbgp("get --rpc-error --router /no/such/router");
    EXPECT_EQ(missing.code, 5);
    EXPECT_EQ(Reply(missing.out).field("error-tag"), "operation-failed");
    const Ran locked = run_shell("flock " + router() + "/lock " OCBGP " get --wait 0 --rpc-error");
    EXPECT_EQ(locked.code, 4) << locked.err;
    EXPECT_EQ(Reply(locked.out).field("error-tag"), "in-use");
}
