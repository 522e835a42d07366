#include <gtest/gtest.h>

#include "requests.h"
#include "write.h"

using io::Envelope;
using io::Secrets;

namespace {

std::string xml(const std::string &tree, Envelope envelope = Envelope::config, Secrets secrets = Secrets::shown)
{
    return io::write_xml(io::read_tree(tree).root(), envelope, secrets);
}

// What stands in the envelope.
std::string content(const std::string &tree, Secrets secrets = Secrets::shown)
{
    const std::string all = xml(tree, Envelope::config, secrets);
    const size_t begin = all.find('\n') + 1;
    return all.substr(begin, all.rfind("</config>") - begin);
}

std::string read_back(const std::string &xml) { return tree_of(io::read_xml(xml, "in.xml")); }

}  // namespace

TEST(WriteXml, WritesATreeInAnEnvelope)
{
    EXPECT_EQ(xml("bgp oc-bgp\n  global\n    config\n      as = 65001\n"),
              "<config xmlns=\"urn:ietf:params:xml:ns:netconf:base:1.0\">\n"
              "  <bgp xmlns=\"http://openconfig.net/yang/bgp\">\n"
              "    <global>\n"
              "      <config>\n"
              "        <as>65001</as>\n"
              "      </config>\n"
              "    </global>\n"
              "  </bgp>\n"
              "</config>\n");
}

TEST(WriteXml, NamesTheEnvelope)
{
    EXPECT_EQ(xml("", Envelope::config), "<config xmlns=\"urn:ietf:params:xml:ns:netconf:base:1.0\"/>\n");
    EXPECT_EQ(xml("", Envelope::data), "<data xmlns=\"urn:ietf:params:xml:ns:netconf:base:1.0\"/>\n");
    EXPECT_EQ(xml("", Envelope::filter),
              "<filter xmlns=\"urn:ietf:params:xml:ns:netconf:base:1.0\" type=\"subtree\"/>\n");
}

TEST(WriteXml, WritesSeveralTrees)
{
    EXPECT_EQ(content("bgp zr-cfg\nbgp zr-oper\n"),
              "  <bgp xmlns=\"http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-cfg\"/>\n"
              "  <bgp xmlns=\"http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-oper\"/>\n");
}

TEST(WriteXml, DeclaresANamespaceWhereItChanges)
{
    EXPECT_EQ(content("bgp oc-bgp\n  a <urn:x>\n    b\n    c oc-bgp\n  d\n"),
              "  <bgp xmlns=\"http://openconfig.net/yang/bgp\">\n"
              "    <a xmlns=\"urn:x\">\n"
              "      <b/>\n"
              "      <c xmlns=\"http://openconfig.net/yang/bgp\"/>\n"
              "    </a>\n"
              "    <d/>\n"
              "  </bgp>\n");
    EXPECT_EQ(content("bgp\n"), "  <bgp xmlns=\"\"/>\n");
}

TEST(WriteXml, DeclaresNetconfOnlyForOperations)
{
    EXPECT_EQ(xml("bgp oc-bgp [replace]\n  a [delete] = 1\n"),
              "<config xmlns=\"urn:ietf:params:xml:ns:netconf:base:1.0\" "
              "xmlns:nc=\"urn:ietf:params:xml:ns:netconf:base:1.0\">\n"
              "  <bgp xmlns=\"http://openconfig.net/yang/bgp\" nc:operation=\"replace\">\n"
              "    <a nc:operation=\"delete\">1</a>\n"
              "  </bgp>\n"
              "</config>\n");
}

TEST(WriteXml, WritesAnIdentityWithThePrefixOfItsNamespace)
{
    EXPECT_EQ(content("a oc-bgp = bgp-types:IPV4_UNICAST\nb oc-bgp = oc-bgp:X\nc oc-bgp = Y\n"),
              "  <a xmlns=\"http://openconfig.net/yang/bgp\" xmlns:bgp-types=\"http://openconfig.net/yang/bgp-types\">"
              "bgp-types:IPV4_UNICAST</a>\n"
              "  <b xmlns=\"http://openconfig.net/yang/bgp\">X</b>\n"
              "  <c xmlns=\"http://openconfig.net/yang/bgp\">Y</c>\n");
}

TEST(WriteXml, MakesUpAPrefixForAnIdentityOfAnUnknownNamespace)
{
    auto tree = io::read_tree("a oc-bgp = X\n");
    platform::set_data_namespace(platform::children_of(tree.root())[0], "urn:x");
    EXPECT_EQ(io::write_xml(tree.root(), Envelope::data, Secrets::shown),
              "<data xmlns=\"urn:ietf:params:xml:ns:netconf:base:1.0\">\n"
              "  <a xmlns=\"http://openconfig.net/yang/bgp\" xmlns:ns1=\"urn:x\">ns1:X</a>\n"
              "</data>\n");
}

// Without a prefix of its own, "p" would be read as one.
TEST(WriteXml, WritesAnIdentityWithAColonWithAPrefixInAnyNamespace)
{
    EXPECT_EQ(content("a oc-bgp = oc-bgp:p:X\n"),
              "  <a xmlns=\"http://openconfig.net/yang/bgp\" xmlns:oc-bgp=\"http://openconfig.net/yang/bgp\">"
              "oc-bgp:p:X</a>\n");
}

TEST(WriteXml, EscapesWhatXmlTakesForItsOwn)
{
    EXPECT_EQ(content("a oc-bgp = <b>&\"c'\nd <urn:\"&> = \"x\\ry\\n\\tz\"\n"),
              "  <a xmlns=\"http://openconfig.net/yang/bgp\">&lt;b&gt;&amp;&quot;c'</a>\n"
              "  <d xmlns=\"urn:&quot;&amp;\">x&#13;y\n\tz</d>\n");
}

TEST(WriteXml, TellsNoValueFromAnEmptyOne)
{
    EXPECT_EQ(content("bgp oc-bgp\n  a\n  b = \"\"\n"), "  <bgp xmlns=\"http://openconfig.net/yang/bgp\">\n"
                                                        "    <a/>\n"
                                                        "    <b></b>\n"
                                                        "  </bgp>\n");
}

TEST(WriteXml, WritesWhatIsOfAnUnknownModuleWithoutNamespace)
{
    EXPECT_EQ(content("bgp oc-bgp\n  other:a <>\n    b\n"), "  <bgp xmlns=\"http://openconfig.net/yang/bgp\">\n"
                                                            "    <a xmlns=\"\">\n"
                                                            "      <b/>\n"
                                                            "    </a>\n"
                                                            "  </bgp>\n");
}

TEST(WriteXml, HidesPasswords)
{
    const std::string tree = "config oc-bgp\n  auth-password = hush\n  description = seen\npassword zr-cfg\n"
                             "  password = hush\n  auth-password\n";
    const std::string hidden = content(tree, Secrets::hidden);
    EXPECT_EQ(hidden.find("hush"), std::string::npos);
    EXPECT_NE(hidden.find("<auth-password>***</auth-password>"), std::string::npos);
    EXPECT_NE(hidden.find("<password>***</password>"), std::string::npos);
    EXPECT_NE(hidden.find("<auth-password/>"), std::string::npos);
    EXPECT_NE(hidden.find("<description>seen</description>"), std::string::npos);
    EXPECT_NE(content(tree, Secrets::shown).find("<auth-password>hush</auth-password>"), std::string::npos);
}

TEST(WriteXml, WritesWhatReadXmlReadsAsTheSameTree)
{
    EXPECT_EQ(read_back(xml(every_kind_of_node)), every_kind_of_node);
    EXPECT_EQ(read_back(xml(every_kind_of_node, Envelope::filter)), every_kind_of_node);
    EXPECT_EQ(read_back(xml("bgp oc-bgp [replace]\n  a <urn:x>\n    b oc-bgp\n")),
              "bgp oc-bgp [replace]\n  a <urn:x>\n    b oc-bgp\n");
}
