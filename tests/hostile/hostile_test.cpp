// What nobody means well with: each input, and the exact words that a user of `ocbgp` sees.
#include <ostream>

#include "router.h"

namespace {

// ---- Inputs ---------------------------------------------------------------------------------

const std::string bgp_tag =
    "<bgp xmlns='http://openconfig.net/yang/bgp' xmlns:t='http://openconfig.net/yang/bgp-types' "
    "xmlns:nc='urn:ietf:params:xml:ns:netconf:base:1.0'>";

// What is inside begins on the second line.
std::string bgp(const std::string &inside) { return bgp_tag + "\n" + inside + "</bgp>"; }
std::string global(const std::string &inside) { return bgp("<global>\n" + inside + "</global>"); }
std::string leaf(const std::string &inside) { return bgp("<global><config>\n" + inside + "</config></global>"); }

// A neighbor of this key; what comes behind begins on the third line.
std::string neighbor(const std::string &key, const std::string &inside = "<config><peer-as>1</peer-as></config>")
{
    return bgp("<neighbors><neighbor><neighbor-address>" + key + "</neighbor-address>\n" + inside +
               "</neighbor></neighbors>");
}

std::string family(const std::string &name)
{
    return global("<afi-safis><afi-safi><afi-safi-name>" + name + "</afi-safi-name></afi-safi></afi-safis>");
}

std::string json(const std::string &bgp) { return "{\"openconfig-bgp:bgp\": " + bgp + "}"; }
std::string json_leaf(const std::string &members) { return json("{\"global\": {\"config\": {" + members + "}}}"); }

std::string times(int count, const std::string &text)
{
    std::string all;
    for (int i = 0; i < count; i++) all += text;
    return all;
}

std::string netconf(const std::string &tag, const std::string &inside)
{
    return "<" + tag + " xmlns='urn:ietf:params:xml:ns:netconf:base:1.0'>\n" + inside + "</" + tag + ">";
}

// Text with NUL characters, as a literal.
template<size_t size>
std::string bytes(const char (&literal)[size])
{
    return {literal, size - 1};
}

// ---- Words ----------------------------------------------------------------------------------

constexpr int mapping = 1, input = 2, router = 3;  // who refuses

const std::string as_levels = "/bgp/instance[instance-name='default']/instance-as[as='0']/four-byte-as[as='65001']";

std::string by_mapping(const std::string &outcome, const std::string &reason, const std::string &where)
{
    return "refused: " + outcome + "\n  reason: " + reason + "\n" + where;
}

std::string unsupported_tag(const std::string &tag, const std::string &path)
{
    return by_mapping("VMF_RC_UNSUPPORTED (0xaaf2e600)", "Unsupported tag is specified in the request.",
                      "  tag:    " + tag + "\n  path:   " + path);
}

std::string by_router(const std::string &rule, const std::string &native, const std::string &path)
{
    return "refused by the router: " + rule + "\n  native: " + native + "\n  path:   " + path;
}

std::string no_as(const std::string &value, const std::string &why)
{
    return by_router(why == "range" ? "Value \"" + value + "\" is out of type uint32 min/max bounds."
                                    : "Invalid type uint32 value \"" + value + "\".",
                     "/bgp/instance[instance-name='default']/instance-as[as='0']/four-byte-as/as",
                     "/bgp/global/config/as");
}

std::string no_address(const std::string &value)
{
    return by_router("Invalid union value \"" + value + "\" - no matching subtype found.",
                     as_levels + "/default-vrf/bgp-entity/neighbors/neighbor/neighbor-address", "/bgp/neighbors");
}

const std::string twice_bom = "\xEF\xBB\xBF\xEF\xBB\xBF";
const std::string openconfig = "http://openconfig.net/yang/bgp";
const std::string netconf_ns = "urn:ietf:params:xml:ns:netconf:base:1.0";
const std::string expected_root =
    "; expected bgp of " + openconfig + ", or what holds it of urn:ietf:params:xml:ns:netconf:base:1.0";

struct Input {
    const char *name;
    std::string text;
    int code;
    std::string error;  // behind "ocbgp: "
    std::string command = "edit -";

    friend void PrintTo(const Input &row, std::ostream *out) { *out << row.name; }
};

class Hostile : public HostileTest, public testing::WithParamInterface<Input> {};

std::string name_of(const testing::TestParamInfo<Input> &row) { return row.param.name; }

}  // namespace

TEST_P(Hostile, IsRefusedAndLeavesNothing)
{
    const Input &row = GetParam();
    expect_refusal("$ocbgp " + row.command, row.text, row.code, "ocbgp: " + row.error + "\n");
}

INSTANTIATE_TEST_SUITE_P(
    Bytes, Hostile,
    testing::Values(Input{"Nothing", "", input, "-: the input is empty"},
                    Input{"Blanks", " \t\r\n\n", input, "-: the input is empty"},
                    Input{"OnlyAByteOrderMark", "\xEF\xBB\xBF", input, "-: the input is empty"},
                    Input{"TwoByteOrderMarksBeforeXml", twice_bom + bgp(""), input,
                          "-:1:2: syntax error while parsing value - invalid literal"},
                    Input{"OneNul", bytes("\0"), input, "-:1:1: a NUL character"},
                    Input{"NulInAValue", leaf(bytes("<as>1\0</as>")), input, "-:3:6: a NUL character"},
                    Input{"NulBehindTheEnd", bgp("") + bytes("\n\0"), input, "-:3:1: a NUL character"},
                    Input{"NulInJson", json_leaf(bytes("\"as\":\0")), input, "-:1:52: a NUL character"},
                    Input{"Utf16", bytes("\xFF\xFE<\0b\0"), input, "-:1:1: the text is not UTF-8"},
                    Input{"Utf16WithoutMark", bytes("<\0b\0"), input, "-:1:2: a NUL character"},
                    Input{"Utf32", bytes("\0\0\xFE\xFF\0\0\0<"), input, "-:1:1: a NUL character"},
                    Input{"Latin1", leaf("<as>\xE4</as>"), input, "-:3:5: the text is not UTF-8"},
                    Input{"OverlongSlash", leaf("<as>\xC0\xAF</as>"), input, "-:3:5: the text is not UTF-8"},
                    Input{"SurrogateInUtf8", leaf("<as>\xED\xA0\x80</as>"), input, "-:3:5: the text is not UTF-8"},
                    Input{"BeyondUnicode", leaf("<as>\xF4\x90\x80\x80</as>"), input, "-:3:5: the text is not UTF-8"},
                    Input{"CutCharacter", bgp("") + "\xE2\x82", input, "-:2:7: the text is not UTF-8"},
                    Input{"Compressed", bytes("\x1F\x8B\x08\0\0"), input, "-:1:2: the text is not UTF-8"},
                    Input{"AProgram",
                          bytes("\x7F"
                                "ELF\2\1\1\0"),
                          input, "-:1:8: a NUL character"},
                    Input{"NoMarkup", "bgp {\n  as 65001;\n}\n", input,
                          "-:1:1: syntax error while parsing value - invalid literal"},
                    Input{"NetconfChunks", "\n#10\n<bgp/>\n##\n", input,
                          "-:2:1: syntax error while parsing value - invalid literal"}),
    name_of);

INSTANTIATE_TEST_SUITE_P(
    Entities, Hostile,
    testing::Values(
        Input{"BillionLaughs",
              "<!DOCTYPE bgp [<!ENTITY a 'aaaaaaaa'><!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;'>"
              "<!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;'>]>" +
                  leaf("<as>&c;</as>"),
              input, "-:1:1: a DOCTYPE is not read"},
        Input{"QuadraticBlowup",
              "<!DOCTYPE bgp [<!ENTITY a '" + std::string(50000, 'a') + "'>]>" +
                  leaf("<as>" + times(5000, "&a;") + "</as>"),
              input, "-:1:1: a DOCTYPE is not read"},
        Input{"ExternalEntity", "<!DOCTYPE bgp [<!ENTITY a SYSTEM 'file:///etc/passwd'>]>" + leaf("<as>&a;</as>"),
              input, "-:1:1: a DOCTYPE is not read"},
        Input{"ParameterEntity", "<!DOCTYPE bgp [<!ENTITY % a SYSTEM 'http://192.0.2.1/'> %a;]>" + bgp(""), input,
              "-:1:1: a DOCTYPE is not read"},
        Input{"ExternalSubset", "\n<!DOCTYPE bgp SYSTEM 'file:///dev/zero'>" + bgp(""), input,
              "-:2:1: a DOCTYPE is not read"},
        Input{"DoctypeInside", global("<!DOCTYPE a>"), input,
              "-:3:2: not well-formed XML: StartTag: invalid element name"},
        Input{"EntityOfNobody", leaf("<as>&nobody;</as>"), input, "-:3:5: the entity &nobody; is not one of XML's own"},
        Input{"EntityInAPassword", neighbor("192.0.2.2", "<config><auth-password>a&b;</auth-password></config>"), input,
              "-:3:25: an entity is not one of XML's own"},
        Input{"Inclusion", bgp("<include xmlns='http://www.w3.org/2001/XInclude' href='/etc/passwd'/>"), input,
              "-:2:1: the attribute href on <include> has no namespace"}),
    name_of);

INSTANTIATE_TEST_SUITE_P(
    Xml, Hostile,
    testing::Values(
        Input{"CutInATag", bgp_tag + "<glob", input,
              "-:1:148: not well-formed XML: Couldn't find end of Start Tag glob line 1"},
        Input{"CutInAnElement", bgp_tag + "\n<global>", input,
              "-:2:9: not well-formed XML: Premature end of data in tag global line 2"},
        Input{"CutInAComment", bgp_tag + "\n<!-- ", input, "-:2:6: not well-formed XML: Comment not terminated"},
        Input{"WrongEnd", bgp("<global></bgp>"), input,
              "-:2:9: not well-formed XML: Opening and ending tag mismatch: global line 2 and bgp"},
        Input{"TwoDocuments", bgp("") + "\n" + bgp(""), input,
              "-:3:1: not well-formed XML: Extra content at the end of the document"},
        Input{"NetconfEndOfMessage", bgp("") + "\n]]>]]>", input,
              "-:3:1: not well-formed XML: Extra content at the end of the document"},
        Input{"NulAsAReference", leaf("<as>&#0;</as>"), input,
              "-:3:9: not well-formed XML: xmlParseCharRef: invalid xmlChar value 0"},
        Input{"SurrogateAsAReference", leaf("<as>&#xD800;</as>"), input,
              "-:3:13: not well-formed XML: xmlParseCharRef: invalid xmlChar value 55296"},
        Input{"EscapeCharacter", leaf("<as>\x1B[31m</as>"), input,
              "-:3:5: not well-formed XML: PCDATA invalid Char value 27"},
        Input{"DeepNesting", bgp(times(100000, "<a>\n")), input, "-:65:1: elements nested deeper than 64"},
        Input{"NestedBgp", times(50, "<bgp xmlns='http://openconfig.net/yang/bgp'>\n"), input,
              "-:51:1: not well-formed XML: Premature end of data in tag bgp line 50"},
        Input{"LongName", global("<" + std::string(300, 'a') + "/>"), input, "-:3:1: a name of more than 256 bytes"},
        Input{"LongTag", global("<x a='" + std::string(70000, 'a') + "'/>"), input,
              "-:3:1: a tag of more than 65536 bytes"},
        Input{"TagOfManyNamespaces", "<bgp " + times(20000, "xmlns:a='' "), input,
              "-:1:1: a tag of more than 65536 bytes"},
        Input{"NamespaceTwice", "<bgp xmlns:a='urn:a' xmlns:a='urn:b'/>", input,
              "-:1:37: not well-formed XML: Attribute xmlns:a redefined"},
        Input{"OtherRoot", "<html><body/></html>", input, "-:1:1: <html> without a namespace" + expected_root},
        Input{"OtherNamespace", "<bgp xmlns='urn:x'/>", input, "-:1:1: <bgp> of urn:x" + expected_root},
        Input{"NoNamespace", "<bgp/>", input, "-:1:1: <bgp> without a namespace" + expected_root},
        Input{"OtherNamespaceInside", global("<config xmlns='urn:x'><as>1</as></config>"), input,
              "-:3:1: <config> of urn:x; expected config of " + openconfig},
        Input{"NoNamespaceInside", global("<config xmlns=''><as>1</as></config>"), input,
              "-:3:1: <config> without a namespace; expected config of " + openconfig},
        Input{"NetconfNamespaceInside", global("<nc:config/>"), input,
              "-:3:1: <config> of " + netconf_ns + "; expected config of " + openconfig},
        Input{"TextAmongElements", global("<config/>65001"), input, "-:2:1: text beside elements in <global>"},
        Input{"TextBeforeElements", global("65001<config/>"), input, "-:2:1: text beside elements in <global>"},
        Input{"TextInAContainer", global("65001"), input, "-:2:1: text in <global>, which is no leaf"},
        Input{"ElementsInALeaf", leaf("<as><x/></as>"), input, "-:3:5: an element in <as>, which is a leaf"},
        Input{"ElementInAKey", neighbor("<x/>"), input, "-:2:40: an element in <neighbor-address>, which is a leaf"},
        Input{"LeafTwice", leaf("<as>65001</as><as>65002</as>"), input, "-:3:15: <as> stands twice in <config>"},
        Input{"ContainerTwice", global("<config/>\n<config nc:operation='delete'/>"), input,
              "-:4:1: <config> stands twice in <global>"},
        Input{"KeyTwice", neighbor("192.0.2.2", "<neighbor-address>192.0.2.3</neighbor-address>"), input,
              "-:3:1: <neighbor-address> stands twice in <neighbor>"},
        Input{"UnknownOperation", bgp("<global nc:operation='purge'/>"), input,
              "-:2:1: no edit operation is called \"purge\""},
        Input{"OperationInCapitals", bgp("<global nc:operation='DELETE'/>"), input,
              "-:2:1: no edit operation is called \"DELETE\""},
        Input{"OperationOfNoNamespace", bgp("<global operation='delete'/>"), input,
              "-:2:1: the attribute operation on <global> must be in the namespace " + netconf_ns},
        Input{"OperationTwice", bgp("<global nc:operation='delete' nc:operation='merge'/>"), input,
              "-:2:51: not well-formed XML: Attribute nc:operation redefined"},
        Input{"OtherAttribute", bgp("<global insert='first'/>"), input,
              "-:2:1: the attribute insert on <global> has no namespace"},
        Input{"LongOperation", bgp("<global nc:operation='" + std::string(5000, 'e') + "'/>"), input,
              "-:2:1: no edit operation is called \"" + std::string(964, 'e') + "..."},
        Input{"OtherRequest", netconf("rpc", "<copy-config/>"), input, "-:2:1: <copy-config> has no place in <rpc>"},
        Input{"ReadRequest", netconf("get", "<filter>" + bgp("") + "</filter>"), input,
              "-: a request to read, not an edit"},
        Input{"OtherDefaultOperation", netconf("edit-config", "<default-operation>none</default-operation><config/>"),
              input, "-:2:1: the default operation \"none\"; only merge and replace are read"},
        Input{"TwoConfigurations",
              netconf("rpc", "<edit-config><config>" + bgp("") + "</config>\n<config/></edit-config>"), input,
              "-:4:1: <config> is one too many in <edit-config>"},
        Input{"LongValue",
              neighbor("192.0.2.2", "<config><description>" + std::string(70000, 'x') + "</description></config>"),
              input, "-:3:9: a value of more than 65536 bytes in <description>"},
        Input{"LongPassword",
              neighbor("192.0.2.2", "<config><auth-password>" + std::string(70000, 'x') + "</auth-password></config>"),
              input, "-:3:9: a value of more than 65536 bytes in <auth-password>"}),
    name_of);

INSTANTIATE_TEST_SUITE_P(
    Json, Hostile,
    testing::Values(
        Input{"MemberTwice", json_leaf("\"as\": 65001, \"as\": 65002"), input,
              "-: /bgp/global/config: the member \"as\" stands twice"},
        Input{"MemberTwiceWithAndWithoutModule", json_leaf("\"as\": 65001, \"openconfig-bgp:as\": 65002"), input,
              "-: /bgp/global/config: the member \"as\" stands twice"},
        Input{"BgpTwice", R"({"openconfig-bgp:bgp": {}, "openconfig-bgp:bgp": {}})", input,
              "-: /: the member \"bgp\" stands twice"},
        Input{"OperationTwice",
              json(R"({"global": {"@": {"ietf-netconf:operation": "delete", "ietf-netconf:operation": "merge"}}})"),
              input, "-: /bgp/global/@: the member \"ietf-netconf:operation\" stands twice"},
        Input{"UnknownOperation", json(R"({"global": {"@": {"ietf-netconf:operation": "purge"}}})"), input,
              "-: /bgp/global/@/ietf-netconf:operation: no edit operation is called \"purge\""},
        Input{"NumberBeyondDouble", json_leaf("\"as\": 1e400"), input, "-:1:57: a number that is too large"},
        Input{"NumberBeyond32Bits", json_leaf("\"as\": 4294967296"), router, no_as("4294967296", "range")},
        Input{"NumberBeyond64Bits", json_leaf("\"as\": 18446744073709551616"), router,
              no_as("18446744073709551616", "")},
        Input{"NegativeNumber", json_leaf("\"as\": -1"), router, no_as("-1", "range")},
        Input{"Fraction", json_leaf("\"as\": 65001.5"), router, no_as("65001.5", "")},
        Input{"NotANumber", json_leaf("\"as\": NaN"), input,
              "-:1:53: syntax error while parsing value - invalid literal"},
        Input{"Hexadecimal", json_leaf("\"as\": 0x10"), input,
              "-:1:54: syntax error while parsing object - invalid literal"},
        Input{"DeepObjects", times(100000, "{\"a\":"), input, "-: " + times(64, "/a") + ": nested deeper than 64"},
        Input{"DeepArrays", std::string(100000, '['), input, "-: [1]: an array in an array"},
        Input{"ArrayInAnArray", json_leaf("\"as\": [[1]]"), input, "-: /bgp/global/config/as[1]: an array in an array"},
        Input{"Cut", "{\"openconfig-bgp:bgp\": {\"global\":", input,
              "-:1:34: syntax error while parsing value - unexpected end of input; expected '[', '{', or a literal"},
        Input{"CutInAString", "{\"openconfig-bgp:b", input,
              "-:1:19: syntax error while parsing object key - invalid string: missing closing quote"},
        Input{"TwoDocuments", json("{}") + "\n" + json("{}"), input,
              "-:2:1: syntax error while parsing value - unexpected '{'; expected end of input"},
        Input{"Comment", "// as\n" + json("{}"), input, "-:1:1: syntax error while parsing value - invalid literal"},
        Input{"Array", "[]", input, "-: /: an object is expected"},
        Input{"Null", "null", input, "-: /: an object is expected"},
        Input{"NoBgp", "{}", input, "-: /: no bgp element: there is no member openconfig-bgp:bgp"},
        Input{"OtherModuleAtTheTop", R"({"bgp": {}})", input, "-: /bgp: a name at the top needs its module"},
        Input{"SlashInAName", json_leaf("\"a/b\": 1"), input, "-: /bgp/global/config: \"a/b\" is no name of a member"},
        Input{"QuotesInAName", json_leaf("\"a'\\\"b\": 1"), input,
              "-: /bgp/global/config: \"a'\\\"b\" is no name of a member"},
        Input{"EmptyName", json_leaf("\"\": 1"), input, "-: /bgp/global/config: \"\" is no name of a member"},
        Input{"LongName", json_leaf("\"" + std::string(300, 'a') + "\": 1"), input,
              "-: /bgp/global/config: a name of more than 256 bytes"},
        Input{"LongValue", json_leaf("\"router-id\": \"" + std::string(70000, '1') + "\""), input,
              "-: /bgp/global/config/router-id: a value of more than 65536 bytes"},
        Input{"LongNumber", json_leaf("\"as\": " + std::string(70000, '1')), input,
              "-:1:70052: a number that is too large"},
        Input{"NulEscaped", json_leaf(R"("router-id": "1\u0000")"), input,
              "-: /bgp/global/config/router-id: a character that XML cannot carry"},
        Input{"HalfSurrogate", json_leaf(R"("router-id": "\ud800")"), input,
              "-:1:67: syntax error while parsing value - invalid string: surrogate U+D800..U+DBFF must be followed by "
              "U+DC00..U+DFFF"},
        Input{"ObjectForALeaf", json_leaf("\"as\": {}"), input,
              "-: /bgp/global/config/as: an object where the model has a leaf"},
        Input{"TextForAContainer", json("{\"global\": \"x\"}"), input, "-: /bgp/global: a container is an object"},
        Input{"ObjectForAList", json(R"({"neighbors": {"neighbor": {"neighbor-address": "192.0.2.2"}}})"), input,
              "-: /bgp/neighbors/neighbor: a list is an array"}),
    name_of);

INSTANTIATE_TEST_SUITE_P(
    Meaning, Hostile,
    testing::Values(
        Input{"UnknownElement", global("<shell/>"), mapping, unsupported_tag("shell", "/bgp/global/shell")},
        Input{"UnknownModule", json("{\"evil:global\": {}}"), mapping,
              unsupported_tag("evil:global", "/bgp/evil:global")},
        Input{"StateThatIsWritten", global("<state/>"), mapping, unsupported_tag("state", "/bgp/global/state")},
        Input{"LargeNumber", leaf("<as>4294967296</as>"), router, no_as("4294967296", "range")},
        Input{"Words", leaf("<as>$(reboot)</as>"), router, no_as("$(reboot)", "")},
        Input{"Markup", leaf("<as><![CDATA[<as/>]]></as>"), router, no_as("<as/>", "")},
        Input{"AnotherAs", leaf("<as>65002</as>"), router,
              by_router("the AS number cannot change while BGP runs; delete BGP first",
                        "/bgp/instance[instance-name='default']/instance-as[as='0']/four-byte-as[as='65002']",
                        "/bgp/global/config/as")},
        Input{"ControlOfATerminal",
              leaf("<as>\xC2\x9B"
                   "31m</as>"),
              router, no_as(" 31m", "")},
        Input{"CreationOfWhatIs", leaf("<router-id nc:operation='create'>192.0.2.1</router-id>"), router,
              by_router("data exists", as_levels + "/default-vrf/global/router-id", "/bgp/global/config/router-id")},
        Input{"DeletionOfWhatIsNot",
              global("<graceful-restart><config><restart-time nc:operation='delete'/></config></graceful-restart>"),
              router,
              by_router("data is missing", as_levels + "/default-vrf/global/graceful-restart-time",
                        "/bgp/global/graceful-restart/config/restart-time")},
        Input{"KeyWithAQuote", neighbor("192.0.2.2']/config['"), router, no_address("192.0.2.2']/config['")},
        Input{"KeyWithSlashes", neighbor("../../../etc/passwd"), router, no_address("../../../etc/passwd")},
        Input{"LongKey", neighbor(std::string(5000, '1')), router,
              by_router("Invalid union value \"" + std::string(979, '1') + "...",
                        as_levels + "/default-vrf/bgp-entity/neighbors/neighbor/neighbor-address", "/bgp/neighbors")},
        Input{"EmptyKey", neighbor(""), mapping,
              by_mapping("VMF_RC_BAD_KEY (0xaaf2e800)", "Empty list key specified.",
                         "  path:   /bgp/neighbors/neighbor[1]")},
        Input{"DeletedKey",
              bgp("<neighbors><neighbor><neighbor-address nc:operation='delete'>192.0.2.2</neighbor-address>"
                  "</neighbor></neighbors>"),
              mapping,
              by_mapping("VMF_RC_KEY_OPERATION (0xaaf2ea00)", "The key node should not have delete operation.",
                         "  path:   /bgp/neighbors/neighbor[neighbor-address='192.0.2.2']")},
        Input{"IdentityOfAnotherModule", family("nc:IPV4_UNICAST"), mapping,
              by_mapping("VMF_RC_UNSUPPORTED (0xaaf2e600)", "Identityref node validation failed!",
                         "  tag:    afi-safi-name\n"
                         "  path:   /bgp/global/afi-safis/afi-safi[afi-safi-name='IPV4_UNICAST']/afi-safi-name")},
        Input{"IdentityOfNobody", family("t:IPX"), mapping,
              by_mapping("VMF_RC_UNSUPPORTED (0xaaf2e600)", "Failed to convert afi-safi-name 'IPX'!",
                         "  tag:    afi-safi-name\n  path:   "
                         "/bgp/global/afi-safis/afi-safi[afi-safi-name='IPX']/afi-safi-name")},
        Input{"UndeclaredPrefix", family("x:IPV4_UNICAST"), input,
              "-:3:22: an undeclared prefix in <afi-safi-name>: \"x:IPV4_UNICAST\""}),
    name_of);

INSTANTIATE_TEST_SUITE_P(
    Paths, Hostile,
    testing::Values(
        Input{"OpenQuote", "", input, "--path: at character 42: a quote is not closed",
              "get --path \"/bgp/neighbors/neighbor[neighbor-address='a]\""},
        Input{"NoQuote", "", input, "--path: at character 42: a key stands in quotes",
              "get --path \"/bgp/neighbors/neighbor[neighbor-address=192.0.2.2]\""},
        Input{"MoreBehindAQuote", "", input, "--path: at character 45: expected ]",
              "get --path \"/bgp/neighbors/neighbor[neighbor-address='a'b']\""},
        Input{"DoubleSlash", "", input, "--path: at character 6: a name is missing", "get --path /bgp//global"},
        Input{"OtherRoot", "", input, "--path: at character 5: a path begins with /bgp", "get --path /etc/passwd"},
        Input{"UnknownNode", "", mapping, unsupported_tag("shadow", "/bgp/global/shadow"),
              "get --path /bgp/global/shadow"}),
    name_of);

INSTANTIATE_TEST_SUITE_P(
    Operational, Hostile,
    testing::Values(
        Input{"Doctype", "<!DOCTYPE bgp [<!ENTITY a 'a'>]><bgp/>", input, "-:1:1: a DOCTYPE is not read",
              "load-operational -"},
        Input{"Json", "{}", input, "-:1:1: not well-formed XML: Start tag expected, '<' not found",
              "load-operational -"},
        Input{"Nul", bytes("<bgp\0/>"), input, "-:1:5: a NUL character", "load-operational -"},
        Input{"OtherNamespace", "<bgp xmlns='urn:x'/>", router,
              "refused by the router: <bgp> of urn:x; expected bgp of "
              "http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-oper, or data of NETCONF that holds it",
              "load-operational -"},
        Input{"Deep", "<bgp xmlns='http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-oper'>" + times(100000, "\n<a>"),
              input, "-:65:1: elements nested deeper than 64", "load-operational -"},
        Input{"Entity", "<data>&a;</data>", input, "-:1:7: the entity &a; is not one of XML's own",
              "load-operational -"},
        Input{"Encoding", "<?xml version='1.0' encoding='ISO-8859-1'?><data/>", input,
              "-:1:31: the encoding ISO-8859-1; only UTF-8 is read", "load-operational -"},
        Input{"LongName", "<data><" + std::string(300, 'a') + "/></data>", input,
              "-:1:7: a name of more than 256 bytes", "load-operational -"},
        Input{"LongTag", "<data><x a='" + std::string(70000, 'a') + "'/></data>", input,
              "-:1:7: a tag of more than 65536 bytes", "load-operational -"},
        Input{"WrongEnd", "<data>\n</date>", input,
              "-:2:1: not well-formed XML: Opening and ending tag mismatch: data line 1 and date",
              "load-operational -"}),
    name_of);
