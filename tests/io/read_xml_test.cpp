#include <gtest/gtest.h>

#include "requests.h"

namespace {

io::Document read(const std::string &text) { return io::read_xml(text, "in.xml"); }

std::string tree(const std::string &text) { return tree_of(read(text)); }

std::string refusal(const std::string &text)
{
    return refusal_of([&] { read(text); });
}

// A bgp element with that inside.
std::string bgp(const std::string &content)
{
    return "<bgp xmlns=\"http://openconfig.net/yang/bgp\" xmlns:nc=\"urn:ietf:params:xml:ns:netconf:base:1.0\">" +
           content + "</bgp>";
}

// An element of NETCONF as the root.
std::string netconf(const std::string &tag, const std::string &content)
{
    return "<" + tag + " xmlns=\"urn:ietf:params:xml:ns:netconf:base:1.0\">" + content + "</" + tag + ">";
}

std::string group_config(const std::string &leaf)
{
    return bgp("<peer-groups><peer-group><config>" + leaf + "</config></peer-group></peer-groups>");
}

const std::string group_config_tree = "bgp oc-bgp\n  peer-groups\n    peer-group\n      config\n";

std::string nested(int depth)
{
    std::string text;
    for (int i = 1; i < depth; i++) text += "\n<x>";
    for (int i = 1; i < depth; i++) text += "</x>";
    return bgp(text);
}

}  // namespace

// ---- Where the data stands ------------------------------------------------------------------

TEST(ReadXml, TakesABgpElementAsTheRoot)
{
    const auto document = read(bgp("<global/>"));
    EXPECT_EQ(document.kind, std::nullopt);
    EXPECT_EQ(tree(bgp("<global/>")), "bgp oc-bgp\n  global\n");
}

struct EnvelopeCase {
    const char *name;
    std::string text;
    uint32_t kind;

    friend void PrintTo(const EnvelopeCase &row, std::ostream *out) { *out << row.name; }
};

class ReadXmlEnvelope : public testing::TestWithParam<EnvelopeCase> {};

TEST_P(ReadXmlEnvelope, HoldsTheTreeAndTellsTheKind)
{
    io::Document document = read(GetParam().text);
    EXPECT_EQ(document.kind, GetParam().kind);
    EXPECT_EQ(tree_of(std::move(document)), "bgp oc-bgp\n  global\n");
}

INSTANTIATE_TEST_SUITE_P(
    All, ReadXmlEnvelope,
    testing::Values(
        EnvelopeCase{"Config", netconf("config", bgp("<global/>")), VMF_REQ_EDIT},
        EnvelopeCase{"Data", netconf("data", bgp("<global/>")), VMF_REQ_EDIT},
        EnvelopeCase{"Filter", netconf("filter", bgp("<global/>")), VMF_REQ_GET},
        EnvelopeCase{"BareConfig", "<config>" + bgp("<global/>") + "</config>", VMF_REQ_EDIT},
        EnvelopeCase{"BareData", "<data>" + bgp("<global/>") + "</data>", VMF_REQ_EDIT},
        EnvelopeCase{"BareFilter", "<filter type='subtree'>" + bgp("<global/>") + "</filter>", VMF_REQ_GET},
        EnvelopeCase{"EditConfig", netconf("edit-config", "<config>" + bgp("<global/>") + "</config>"), VMF_REQ_EDIT},
        EnvelopeCase{"Get", netconf("get", "<filter>" + bgp("<global/>") + "</filter>"), VMF_REQ_GET},
        EnvelopeCase{"GetConfig", netconf("get-config", "<filter>" + bgp("<global/>") + "</filter>"),
                     VMF_REQ_GET_CONFIG},
        EnvelopeCase{"RpcReply", netconf("rpc-reply", "<data>" + bgp("<global/>") + "</data>"), VMF_REQ_EDIT},
        EnvelopeCase{"RpcEdit",
                     netconf("rpc", "<edit-config><target><candidate/></target><default-operation>merge"
                                    "</default-operation><test-option>set</test-option><error-option>stop-on-error"
                                    "</error-option><config>" +
                                        bgp("<global/>") + "</config></edit-config>"),
                     VMF_REQ_EDIT},
        EnvelopeCase{"RpcGet", netconf("rpc", "<get><filter type='subtree'>" + bgp("<global/>") + "</filter></get>"),
                     VMF_REQ_GET},
        EnvelopeCase{"RpcGetConfig",
                     netconf("rpc", "<get-config><source><running/></source><filter>" + bgp("<global/>") +
                                        "</filter></get-config>"),
                     VMF_REQ_GET_CONFIG}),
    name_of_case<EnvelopeCase>);

TEST(ReadXml, SkipsOtherTreesBesideBgpWithANote)
{
    const auto document =
        read(netconf("config", "<bgp xmlns='urn:native'><instance>7</instance></bgp>" + bgp("<global/>") +
                                   "<interfaces xmlns='urn:if'><bgp/></interfaces><odd xmlns=''/>"));
    EXPECT_EQ(document.notes,
              (std::vector<std::string>{"<bgp> of urn:native is skipped", "<interfaces> of urn:if is skipped",
                                        "<odd> without a namespace is skipped"}));
    EXPECT_EQ(tree(netconf("config", "<a xmlns='urn:a'/>" + bgp("<global/>"))), "bgp oc-bgp\n  global\n");
}

TEST(ReadXml, ReadsOverWhatOtherNamespacesAddToARequest)
{
    const auto document = read(netconf("get", "<filter>" + bgp("") +
                                                  "</filter><with-defaults xmlns='urn:wd'>trim"
                                                  "</with-defaults>"));
    EXPECT_EQ(document.notes, std::vector<std::string>{"<with-defaults> of urn:wd is skipped"});
}

// ---- Operations -----------------------------------------------------------------------------

TEST(ReadXml, ReadsEachEditOperation)
{
    EXPECT_EQ(tree(bgp("<a nc:operation='merge'/><b nc:operation='replace'/><c nc:operation='create'/>"
                       "<d nc:operation='delete'/><e nc:operation='remove'/>")),
              "bgp oc-bgp\n  a [merge]\n  b [replace]\n  c [create]\n  d [delete]\n  e [remove]\n");
}

TEST(ReadXml, GivesNoOperationToChildren)
{
    EXPECT_EQ(tree(bgp("<global nc:operation='replace'><config><as>1</as></config></global>")),
              "bgp oc-bgp\n  global [replace]\n    config\n      as = 1\n");
}

TEST(ReadXml, HandsOnARemovalWithoutItsChildren)
{
    EXPECT_EQ(tree(bgp("<global nc:operation='delete'><config><as>1</as></config></global>"
                       "<neighbors><neighbor><timers nc:operation='remove'><config/></timers></neighbor></neighbors>")),
              "bgp oc-bgp\n  global [delete]\n  neighbors\n    neighbor\n      timers [remove]\n");
}

TEST(ReadXml, KeepsTheKeyOfARemovedListEntry)
{
    EXPECT_EQ(tree(bgp("<neighbors><neighbor nc:operation='delete'><config><peer-as>1</peer-as></config>"
                       "<neighbor-address>10.0.0.1</neighbor-address></neighbor></neighbors>")),
              "bgp oc-bgp\n  neighbors\n    neighbor [delete]\n      neighbor-address = 10.0.0.1\n");
}

TEST(ReadXml, KeepsTheValueOfARemovedLeaf)
{
    EXPECT_EQ(tree(group_config("<description nc:operation='remove'>a</description>")),
              group_config_tree + "        description [remove] = a\n");
}

TEST(ReadXml, MarksBgpAsReplacedByTheDefaultOperation)
{
    const auto edit = [](const std::string &content) {
        return tree(
            netconf("edit-config", "<default-operation> replace </default-operation><config>" + content + "</config>"));
    };
    EXPECT_EQ(edit(bgp("<global/>")), "bgp oc-bgp [replace]\n  global\n");
    EXPECT_EQ(edit("<bgp xmlns='http://openconfig.net/yang/bgp' xmlns:n='urn:ietf:params:xml:ns:netconf:base:1.0' "
                   "n:operation='merge'/>"),
              "bgp oc-bgp [merge]\n");
}

TEST(ReadXml, ReadsOverAttributesOfOtherNamespacesWithOneNoteEach)
{
    const auto document = read(bgp("<a x:hint='1' xmlns:x='urn:x'/><b y:hint='2' xmlns:y='urn:x'/><c xml:lang='en'/>"));
    EXPECT_EQ(document.notes,
              (std::vector<std::string>{"the attribute hint of urn:x is read over",
                                        "the attribute lang of http://www.w3.org/XML/1998/namespace is read over"}));
}

// ---- Nodes and values -----------------------------------------------------------------------

TEST(ReadXml, KeepsTheOrderAndWhatTheModelDoesNotKnow)
{
    EXPECT_EQ(tree(bgp("<zzz><y>1</y></zzz><neighbors/><global/><zzz/>")),
              "bgp oc-bgp\n  zzz\n    y = 1\n  neighbors\n  global\n  zzz\n");
}

TEST(ReadXml, KeepsTheNamespaceOfEachElement)
{
    EXPECT_EQ(tree(bgp("<vrf xmlns='urn:x'><config/><b:neighbors xmlns:b='http://openconfig.net/yang/bgp'/></vrf>"
                       "<none xmlns=''/>")),
              "bgp oc-bgp\n  vrf <urn:x>\n    config\n    neighbors oc-bgp\n  none\n");
}

TEST(ReadXml, ResolvesReferencesInNamespaces)
{
    EXPECT_EQ(tree(bgp("<vrf xmlns='urn:a&amp;b&#x63;'/>")), "bgp oc-bgp\n  vrf <urn:a&bc>\n");
}

TEST(ReadXml, GivesNoNamespaceToAnElementWithout)
{
    auto document = read(bgp("<none xmlns=''/>"));
    EXPECT_EQ(platform::namespace_of(platform::children_of(document.bgp.root())[0]), nullptr);
}

TEST(ReadXml, InternsWhatTheProcessKnows)
{
    auto document = read(bgp("<global/>"));
    EXPECT_EQ(platform::namespace_of(platform::children_of(document.bgp.root())[0]), platform::intern(OC_BGP_NS));
}

TEST(ReadXml, TrimsValuesThatAreNoTexts)
{
    EXPECT_EQ(tree(group_config("<peer-as>\n  65001\t</peer-as><description> a b </description>")),
              group_config_tree + "        peer-as = 65001\n        description = \" a b \"\n");
    EXPECT_EQ(tree(bgp("<neighbors><neighbor><neighbor-address> ::1</neighbor-address></neighbor></neighbors>")),
              "bgp oc-bgp\n  neighbors\n    neighbor\n      neighbor-address = \" ::1\"\n");
}

TEST(ReadXml, TakesBlankTextForNoValue)
{
    EXPECT_EQ(tree(group_config("<peer-as/><local-as>\n </local-as><description>  </description>")),
              group_config_tree + "        peer-as\n        local-as\n        description\n");
}

TEST(ReadXml, TakesAZeroFractionOffADecimal)
{
    const auto timer = [](const std::string &value) {
        const std::string all = tree(bgp("<neighbors><neighbor><timers><config><hold-time>" + value +
                                         "</hold-time></config></timers></neighbor></neighbors>"));
        return all.substr(all.find("= ") + 2);
    };
    EXPECT_EQ(timer("180.00"), "180\n");
    EXPECT_EQ(timer(" 180.0 "), "180\n");
    EXPECT_EQ(timer("-5.0"), "-5\n");
    EXPECT_EQ(timer("+5.0"), "+5\n");
    EXPECT_EQ(timer("180"), "180\n");
    EXPECT_EQ(timer("180.50"), "180.50\n");
    EXPECT_EQ(timer("180."), "180.\n");
    EXPECT_EQ(timer(".0"), ".0\n");
    EXPECT_EQ(timer("1e3.0"), "1e3.0\n");
}

TEST(ReadXml, LeavesTheFractionOfOtherTypes)
{
    EXPECT_EQ(tree(group_config("<peer-as>1.0</peer-as><description>2.0</description>")),
              group_config_tree + "        peer-as = 1.0\n        description = 2.0\n");
}

TEST(ReadXml, JoinsCharacterDataAcrossCommentsAndReferences)
{
    EXPECT_EQ(tree(group_config("<description>a<!-- no -->b<![CDATA[<c> ]]>&amp;&lt;&#x64;<?pi no?>e</description>")),
              group_config_tree + "        description = ab<c> &<de\n");
}

TEST(ReadXml, ReadsTheLongestValueWhole)
{
    const std::string value(io::longest_value, 'x');
    auto document = read(group_config("<description>" + value + "</description>"));
    const std::string all = tree_of(std::move(document));
    EXPECT_EQ(all.size(), group_config_tree.size() + value.size() + std::string("        description = \n").size());
}

TEST(ReadXml, ReadsTheDeepestNesting)
{
    EXPECT_EQ(refusal(nested(64)), "");
    EXPECT_EQ(refusal(nested(65)), "in.xml:65:1: elements nested deeper than 64");
}

TEST(ReadXml, CountsTheNestingFromTheRoot)
{
    EXPECT_EQ(refusal(netconf("config", nested(63))), "");
    EXPECT_NE(refusal(netconf("config", nested(64))), "");
}

// ---- Identities -----------------------------------------------------------------------------

namespace {

std::string family(const std::string &declarations, const std::string &value)
{
    const std::string all = tree(bgp("<global><afi-safis><afi-safi" + declarations + "><afi-safi-name>" + value +
                                     "</afi-safi-name></afi-safi></afi-safis></global>"));
    return all.substr(all.find("afi-safi-name"));
}

}  // namespace

TEST(ReadXml, ResolvesThePrefixOfAnIdentity)
{
    EXPECT_EQ(family(" xmlns:t='http://openconfig.net/yang/bgp-types'", "t:IPV4_UNICAST"),
              "afi-safi-name = bgp-types:IPV4_UNICAST\n");
    EXPECT_EQ(family("", "\n  nc:IPV4_UNICAST\n"),
              "afi-safi-name = <urn:ietf:params:xml:ns:netconf:base:1.0>:IPV4_UNICAST\n");
}

TEST(ReadXml, TakesTheDefaultNamespaceForAnIdentityWithoutPrefix)
{
    EXPECT_EQ(family("", "IPV4_UNICAST"), "afi-safi-name = oc-bgp:IPV4_UNICAST\n");
}

TEST(ReadXml, GivesAnIdentityNoNamespaceWhereNoneIsInScope)
{
    EXPECT_EQ(
        tree(
            "<o:bgp xmlns:o='http://openconfig.net/yang/bgp'><o:global><o:afi-safis><o:afi-safi><o:config>"
            "<o:afi-safi-name>IPV4_UNICAST</o:afi-safi-name></o:config></o:afi-safi></o:afi-safis></o:global></o:bgp>"),
        "bgp oc-bgp\n  global\n    afi-safis\n      afi-safi\n        config\n          afi-safi-name = "
        "IPV4_UNICAST\n");
}

TEST(ReadXml, ForgetsAPrefixWhereItsElementEnds)
{
    EXPECT_EQ(refusal(bgp("<global xmlns:t='urn:t'/><neighbors>\n<neighbor><afi-safis><afi-safi><afi-safi-name>t:X"
                          "</afi-safi-name></afi-safi></afi-safis></neighbor></neighbors>")),
              "in.xml:2:32: an undeclared prefix in <afi-safi-name>: \"t:X\"");
}

TEST(ReadXml, TakesTheInnermostDeclarationOfAPrefix)
{
    EXPECT_EQ(
        tree(bgp("<global xmlns:t='urn:outer'><afi-safis xmlns:t='http://openconfig.net/yang/bgp-types'><afi-safi>"
                 "<afi-safi-name>t:A</afi-safi-name></afi-safi></afi-safis></global>")),
        "bgp oc-bgp\n  global\n    afi-safis\n      afi-safi\n        afi-safi-name = bgp-types:A\n");
}

TEST(ReadXml, SplitsNoOtherValuesAtAColon)
{
    EXPECT_EQ(tree(group_config("<description>nc:x</description><zzz>t:1</zzz>")),
              group_config_tree + "        description = nc:x\n        zzz = t:1\n");
}

// ---- Refused --------------------------------------------------------------------------------

class ReadXmlRefuses : public testing::TestWithParam<Refused> {};

TEST_P(ReadXmlRefuses, WithPlaceAndReason) { EXPECT_EQ(refusal(GetParam().text), GetParam().message); }

INSTANTIATE_TEST_SUITE_P(
    Place, ReadXmlRefuses,
    testing::Values(
        Refused{"BgpOfAnotherNamespace", "\n <bgp xmlns='urn:x'/>",
                "in.xml:2:2: <bgp> of urn:x; expected bgp of http://openconfig.net/yang/bgp, or what holds it of "
                "urn:ietf:params:xml:ns:netconf:base:1.0"},
        Refused{"BgpWithoutNamespace", "<bgp/>",
                "in.xml:1:1: <bgp> without a namespace; expected bgp of http://openconfig.net/yang/bgp, or what holds "
                "it of urn:ietf:params:xml:ns:netconf:base:1.0"},
        Refused{"RpcWithoutNamespace", "<rpc/>",
                "in.xml:1:1: <rpc> without a namespace; expected bgp of http://openconfig.net/yang/bgp, or what holds "
                "it of urn:ietf:params:xml:ns:netconf:base:1.0"},
        Refused{"UnknownRoot", netconf("commit", ""),
                "in.xml:1:1: <commit> of urn:ietf:params:xml:ns:netconf:base:1.0; expected bgp of "
                "http://openconfig.net/yang/bgp, or what holds it of urn:ietf:params:xml:ns:netconf:base:1.0"},
        Refused{"SoleBgpOfAnotherNamespaceInConfig", "<config>\n<x xmlns='urn:y'/><bgp xmlns='urn:x'/></config>",
                "in.xml:2:19: <bgp> of urn:x; expected bgp of http://openconfig.net/yang/bgp"},
        Refused{"SoleBgpWithoutNamespaceInConfig", "<config><bgp><global/></bgp></config>",
                "in.xml:1:9: <bgp> without a namespace; expected bgp of http://openconfig.net/yang/bgp"},
        Refused{"EmptyConfig", "<config/>", "in.xml:1:1: no bgp element of http://openconfig.net/yang/bgp"},
        Refused{"EmptyFilter", "<filter><a xmlns='urn:a'/></filter>",
                "in.xml:1:1: no bgp element of http://openconfig.net/yang/bgp"},
        Refused{"GetWithoutFilter", netconf("rpc", "\n<get/>"),
                "in.xml:2:1: no bgp element of http://openconfig.net/yang/bgp"},
        Refused{"RpcWithoutRequest", netconf("rpc", ""),
                "in.xml:1:1: no bgp element of http://openconfig.net/yang/bgp"},
        Refused{"SecondBgp", "<config>" + bgp("") + "\n" + bgp("") + "</config>", "in.xml:2:1: a second bgp element"},
        Refused{"OtherTopElement", "<config><x xmlns='http://openconfig.net/yang/bgp'/></config>",
                "in.xml:1:9: <x> of http://openconfig.net/yang/bgp; bgp is its only top element"},
        Refused{"WrongNesting", netconf("get", "\n<config/>"), "in.xml:2:1: <config> has no place in <get>"},
        Refused{"TwoRequests", netconf("rpc", "<get/>\n<get-config/>"),
                "in.xml:2:1: <get-config> is one too many in <rpc>"},
        Refused{"TextInConfig", "<config>x</config>", "in.xml:1:1: text in <config>"}),
    name_of_case<Refused>);

INSTANTIATE_TEST_SUITE_P(
    Attribute, ReadXmlRefuses,
    testing::Values(
        Refused{"XPath", "<filter type='xpath' select='/bgp'/>",
                "in.xml:1:1: an XPath filter; only subtree filters are read"},
        Refused{"QualifiedXPath",
                netconf("get", "\n<filter nc:type='xpath' xmlns:nc='urn:ietf:params:xml:ns:netconf:base:1.0'/>"),
                "in.xml:2:1: an XPath filter; only subtree filters are read"},
        Refused{"Select", "<filter select='/bgp'/>", "in.xml:1:1: an XPath filter; only subtree filters are read"},
        Refused{"OtherFilter", "<filter type='regex'/>", "in.xml:1:1: no type of filter is called \"regex\""},
        Refused{"OperationOnConfig", "<config operation='replace'/>",
                "in.xml:1:1: an edit operation on <config>, which is no data"},
        Refused{"UnknownOperation", bgp("\n  <global nc:operation='erase'/>"),
                "in.xml:2:3: no edit operation is called \"erase\""},
        Refused{"OperationOfSeveralLines", bgp("\n  <global nc:operation='a&#10;b'/>"),
                "in.xml:2:3: no edit operation is called \"a b\""},
        Refused{"OperationWithReferences", bgp("\n  <global nc:operation='a&amp;&lt;b'/>"),
                "in.xml:2:3: no edit operation is called \"a&<b\""},
        Refused{"UnqualifiedOperation", bgp("\n  <global operation='delete'/>"),
                "in.xml:2:3: the attribute operation on <global> must be in the namespace "
                "urn:ietf:params:xml:ns:netconf:base:1.0"},
        Refused{"UnqualifiedAttribute", bgp("\n\n<global name='x'/>"),
                "in.xml:3:1: the attribute name on <global> has no namespace"},
        Refused{"AttributeOfBgpItself", "<bgp xmlns='http://openconfig.net/yang/bgp' operation='merge'/>",
                "in.xml:1:1: the attribute operation on <bgp> must be in the namespace "
                "urn:ietf:params:xml:ns:netconf:base:1.0"},
        Refused{"DefaultOperationNone",
                netconf("edit-config", "\n<default-operation>none</default-operation><config>" + bgp("") + "</config>"),
                "in.xml:2:1: the default operation \"none\"; only merge and replace are read"},
        Refused{"UnknownDefaultOperation",
                netconf("edit-config", "<config>" + bgp("") + "</config>\n<default-operation>x</default-operation>"),
                "in.xml:2:1: the default operation \"x\"; only merge and replace are read"}),
    name_of_case<Refused>);

INSTANTIATE_TEST_SUITE_P(
    Value, ReadXmlRefuses,
    testing::Values(
        Refused{"TextBeforeElements", bgp("\n<global>x<config/></global>"),
                "in.xml:2:1: text beside elements in <global>"},
        Refused{"TextAfterElements", bgp("\n<global><config/>x</global>"),
                "in.xml:2:1: text beside elements in <global>"},
        Refused{"TextBesideElementsThatARemovalDrops", bgp("\n<global nc:operation='delete'><config/>x</global>"),
                "in.xml:2:1: text beside elements in <global>"},
        Refused{"TextInAContainer", bgp("\n<global>x</global>"), "in.xml:2:1: text in <global>, which is no leaf"},
        Refused{"ElementInALeaf", group_config("<peer-as>\n<x/></peer-as>"),
                "in.xml:2:1: an element in <peer-as>, which is a leaf"},
        Refused{"IdentityWithAnEmptyPrefix",
                bgp("\n<global><afi-safis><afi-safi><afi-safi-name>:X</afi-safi-name></afi-safi></afi-safis></global>"),
                "in.xml:2:30: an undeclared prefix in <afi-safi-name>: \":X\""}),
    name_of_case<Refused>);

INSTANTIATE_TEST_SUITE_P(
    Text, ReadXmlRefuses,
    testing::Values(
        Refused{"Empty", " \n", "in.xml: the input is empty"},
        Refused{"Doctype", "<?xml version='1.0'?>\n<!DOCTYPE bgp SYSTEM 'file:///etc/passwd'>\n" + bgp(""),
                "in.xml:2:1: a DOCTYPE is not read"},
        Refused{"InternalSubset", "<!DOCTYPE bgp [<!ENTITY a 'b'>]>" + bgp("&a;"), "in.xml:1:1: a DOCTYPE is not read"},
        Refused{"Entity", group_config("\n<description>a&foo;&bar;</description>"),
                "in.xml:2:15: the entity &foo; is not one of XML's own"},
        Refused{"EntityInAnAttribute", bgp("\n<x y='&nbsp;'/>"),
                "in.xml:2:7: the entity &nbsp; is not one of XML's own"},
        Refused{"NoUtf8", bgp("\n<x>\xE4</x>"), "in.xml:2:4: the text is not UTF-8"},
        Refused{"OverlongUtf8", bgp("\n<x>\xC0\xAF</x>"), "in.xml:2:4: the text is not UTF-8"},
        Refused{"OverlongUtf8OfThreeBytes", bgp("\n<x>\xE0\x9F\xBF</x>"), "in.xml:2:4: the text is not UTF-8"},
        Refused{"OverlongUtf8OfFourBytes", bgp("\n<x>\xF0\x8F\xBF\xBF</x>"), "in.xml:2:4: the text is not UTF-8"},
        Refused{"Surrogate", bgp("\n<x>\xED\xA0\x80</x>"), "in.xml:2:4: the text is not UTF-8"},
        Refused{"BeyondUnicode", bgp("\n<x>\xF4\x90\x80\x80</x>"), "in.xml:2:4: the text is not UTF-8"},
        Refused{"CutCharacter", bgp("") + "\n\xE2\x82", "in.xml:2:1: the text is not UTF-8"},
        Refused{"Utf16", std::string("\xFF\xFE<\0b\0", 6), "in.xml:1:1: the text is not UTF-8"},
        Refused{"Nul", bgp(std::string("\n<x>a\0b</x>", 11)), "in.xml:2:5: a NUL character"},
        Refused{"OtherEncoding", "<?xml version='1.0' encoding=\"ISO-8859-1\"?>" + bgp(""),
                "in.xml:1:31: the encoding ISO-8859-1; only UTF-8 is read"},
        Refused{"EncodingWithoutItsName", "<?xml version='1.0' encoding=?>" + bgp(""),
                "in.xml:1:30: not well-formed XML: String not started expecting ' or \""},
        Refused{"ColumnInCharacters", bgp("\n<!-- \u00E4\u20AC\U0001F600 --><global x='1'/>"),
                "in.xml:2:13: the attribute x on <global> has no namespace"},
        Refused{"NotClosed", "<config>\n<bgp>",
                "in.xml:2:6: not well-formed XML: Premature end of data in tag bgp line 2"},
        Refused{"WrongEndTag", "<config>\n  <a></b></config>",
                "in.xml:2:6: not well-formed XML: Opening and ending tag mismatch: a line 2 and b"},
        Refused{"UndeclaredElementPrefix", bgp("\n<global/><o:x/>"),
                "in.xml:2:10: not well-formed XML: Namespace prefix o on x is not defined"},
        Refused{"UndeclaredAttributePrefix", bgp("\n<global o:operation='merge'/>"),
                "in.xml:2:1: not well-formed XML: Namespace prefix o for operation on global is not defined"},
        Refused{"ControlCharacter", bgp("\n<x>a\x01</x>"),
                "in.xml:2:5: not well-formed XML: PCDATA invalid Char value 1"},
        Refused{"ReferenceToNul", bgp("\n<x>&#0;</x>"),
                "in.xml:2:8: not well-formed XML: xmlParseCharRef: invalid xmlChar value 0"},
        Refused{"SecondRoot", bgp("") + "\n<x/>",
                "in.xml:2:1: not well-formed XML: Extra content at the end of the document"}),
    name_of_case<Refused>);

// No part of a password may get into a message.
INSTANTIATE_TEST_SUITE_P(
    Secret, ReadXmlRefuses,
    testing::Values(Refused{"EntityInAPassword", group_config("\n<auth-password>a&hush;</auth-password>"),
                            "in.xml:2:17: an entity is not one of XML's own"},
                    Refused{"AmpersandInAPassword", group_config("\n<auth-password>a&hush</auth-password>"),
                            "in.xml:2:22: not well-formed XML"},
                    Refused{"BracketInAPassword", group_config("\n<auth-password>a<hush></auth-password>"),
                            "in.xml:2:1: text beside elements in <auth-password>"},
                    Refused{"BracketAtTheBeginOfAPassword", group_config("\n<auth-password><hush:x></auth-password>"),
                            "in.xml:2:16: not well-formed XML"},
                    Refused{"BracketInASkippedPassword",
                            "<config>\n<password xmlns='urn:n'><password><hush></password></password></config>",
                            "in.xml:2:41: not well-formed XML"}),
    name_of_case<Refused>);

TEST(ReadXml, AcceptsTheDeclarationOfUtf8AndAscii)
{
    for (const char *encoding : {"UTF-8", "utf-8", "US-ASCII"})
        EXPECT_EQ(tree("<?xml version='1.0' encoding='" + std::string(encoding) + "'?>\n" + bgp("<a>\u20AC</a>")),
                  "bgp oc-bgp\n  a = \u20AC\n");
}

TEST(ReadXml, OpensNoFileThatTheInputNames)
{
    EXPECT_EQ(refusal("<!DOCTYPE bgp [<!ENTITY % a SYSTEM 'file:///nowhere'> %a;]>" + bgp("")),
              "in.xml:1:1: a DOCTYPE is not read");
}
