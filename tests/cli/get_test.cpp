// `ocbgp get`: reading in OpenConfig terms.
#include "router_folder.h"

namespace {

const std::string ipv4 = "\"/bgp/global/afi-safis/afi-safi[afi-safi-name='IPV4_UNICAST']";

std::string filter(const std::string &envelope, const std::string &inside)
{
    return "<rpc xmlns=\"urn:ietf:params:xml:ns:netconf:base:1.0\" message-id=\"1\"><" + envelope + ">" +
           (envelope == "get-config" ? "<source><running/></source>" : "") + "<filter>" + global_edit(inside) +
           "</filter></" + envelope + "></rpc>";
}

// Without the router's notes of subtrees whose mapping is to come.
std::string out_of(const std::string &arguments, const std::string &input = "")
{
    const Ran ran = run_ocbgp(arguments, input);
    EXPECT_EQ(ran.code, 0) << arguments << "\n" << ran.err;
    return ran.out;
}

class Get : public RouterFolder {
protected:
    void SetUp() override
    {
        RouterFolder::SetUp();
        for (const char *edit : {"global-edit.xml", "families-edit.xml", "confederation-edit.xml"})
            succeed(std::string("edit examples/") + edit);
        succeed("edit -",
                global_edit("<graceful-restart><config><enabled>true</enabled><restart-time>120</restart-time>"
                            "<stale-routes-time>360</stale-routes-time></config></graceful-restart>"
                            "<route-selection-options><config><enable-aigp>false</enable-aigp></config>"
                            "</route-selection-options>"));
        succeed("load-operational examples/operational.xml");
    }
};

}  // namespace

// ---- What is asked --------------------------------------------------------------------------

TEST_F(Get, OfNothingReadsTheWholeTreeInEveryFormat)
{
    for (const std::string format : {"xml", "json", "tree"}) {
        const std::string whole = out_of("get --format " + format);
        expect_golden("get-whole." + format, whole);
        EXPECT_EQ(out_of("get --path /bgp --format " + format), whole);
    }
    EXPECT_EQ(out_of("get"), out_of("get --format xml"));
}

TEST_F(Get, OfThePathIsTheSameAsOfTheFilter)
{
    const std::string expected = "bgp oc-bgp\n  global\n    graceful-restart\n      config\n        enabled = true\n"
                                 "        restart-time = 120\n        stale-routes-time = 360\n";
    EXPECT_EQ(succeed("get --format tree --path /bgp/global/graceful-restart/config"), expected);
    EXPECT_EQ(succeed("get --format tree -", filter("get", "<graceful-restart><config/></graceful-restart>")),
              expected);
    EXPECT_EQ(succeed("get --format tree -",
                      "{\"openconfig-bgp:bgp\": {\"global\": {\"graceful-restart\": {\"config\": {}}}}}"),
              expected);
    EXPECT_EQ(succeed("get --format tree --path /openconfig-bgp:bgp/global/graceful-restart/config"), expected);
}

TEST_F(Get, OfAFamilyNamesItsKeyWithOrWithoutItsModule)
{
    const std::string expected =
        "bgp oc-bgp\n  global\n    afi-safis\n      afi-safi\n        afi-safi-name = bgp-types:IPV4_UNICAST\n"
        "        config\n          enabled = true\n";
    EXPECT_EQ(succeed("get --format tree --path " + ipv4 + "/config/enabled\""), expected);
    EXPECT_EQ(succeed("get --format tree --path \"/bgp/global/afi-safis/afi-safi[afi-safi-name="
                      "'openconfig-bgp-types:IPV4_UNICAST']/config/enabled\""),
              expected);
}

TEST_F(Get, OfAnEntryWithoutAKeyReadsAllEntries)
{
    const std::string all = succeed("get --format tree --path /bgp/global/afi-safis/afi-safi/config/enabled");
    EXPECT_EQ(succeed("get --format tree -", filter("get", "<afi-safis><afi-safi><config><enabled/></config></afi-safi>"
                                                           "</afi-safis>")),
              all);
    size_t entries = 0;
    for (size_t at = all.find("enabled = true"); at != std::string::npos; at = all.find("enabled = true", at + 1))
        entries++;
    EXPECT_EQ(entries, 5u);
}

// Wanted of one family only, since not every one has it.
TEST_F(Get, OfAnEntryWithoutAKeyIsRefusedWithTheMappingsReason)
{
    expect(run_ocbgp("get --path /bgp/global/afi-safis/afi-safi/use-multiple-paths/ebgp/config/maximum-paths"), 1,
           "ocbgp: refused: VMF_RC_UNSUPPORTED (0xaaf2e600)\n"
           "  reason: Operation not allowed for AF '(null)'\n"
           "  path:   /bgp/global/afi-safis/afi-safi[1]/use-multiple-paths/ebgp/config/maximum-paths\n");
}

TEST_F(Get, OfConfigurationIsToldByOptionOrInput)
{
    const std::string refused = "ocbgp: refused: VMF_RC_UNSUPPORTED (0xaaf2e600)\n"
                                "  reason: Unsupported tag is specified in the request.\n"
                                "  tag:    state\n"
                                "  path:   /bgp/global/state\n";
    expect(run_ocbgp("get --config --path /bgp/global/state"), 1, refused);
    expect(run_ocbgp("get --config -", filter("get", "<state/>")), 1, refused);
    expect(run_ocbgp("get -", filter("get-config", "<state/>")), 1, refused);
    EXPECT_EQ(succeed("get --format tree -", filter("get", "<state><router-id/></state>")),
              "bgp oc-bgp\n  global\n    state\n      router-id = 192.0.2.1\n");
}

TEST_F(Get, OfConfigAndStateTogetherSaysThatEachKeepsTheOtherOut)
{
    const Ran ran = run_ocbgp("get --format tree examples/global-filter.json");
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(run_ocbgp("get --format tree examples/global-filter.xml").err,
              "note: config and state were both named, and each keeps the other out; read one of them, or what holds "
              "both\n");
}

TEST_F(Get, OfWhatCannotBeReadExitsWithTwo)
{
    expect(run_ocbgp("get no-such-file"), 2, "ocbgp: no-such-file: cannot be read: No such file or directory\n");
    expect(run_ocbgp("get examples/global-edit.xml"), 2,
           "ocbgp: examples/global-edit.xml: an edit, not a request to read\n");
    expect(run_ocbgp("get --path global"), 2, "ocbgp: --path: at character 1: expected /\n");
    expect(run_ocbgp("get --path /other"), 2, "ocbgp: --path: at character 7: a path begins with /bgp\n");
    expect(run_ocbgp("get --path " + ipv4 + "/config[\""), 2, "ocbgp: --path: at character 69: a name is missing\n");
    EXPECT_EQ(run_ocbgp("get -", "<filter").code, 2);
}

TEST_F(Get, OfAnUnknownNodeIsRefusedByTheMapping)
{
    expect(run_ocbgp("get --path /bgp/global/colour"), 1,
           "ocbgp: refused: VMF_RC_UNSUPPORTED (0xaaf2e600)\n"
           "  reason: Unsupported tag is specified in the request.\n"
           "  tag:    colour\n"
           "  path:   /bgp/global/colour\n");
}

// ---- What comes back ------------------------------------------------------------------------

TEST_F(Get, OfAnEmptyRouterIsAnEmptyAnswerInEveryFormat)
{
    succeed("reset");
    EXPECT_EQ(succeed("get --config"), "<data xmlns=\"urn:ietf:params:xml:ns:netconf:base:1.0\"/>\n");
    EXPECT_EQ(succeed("get --config --format json"), "{}\n");
    EXPECT_EQ(succeed("get --config --format tree"), "");
}

TEST_F(Get, InJsonQualifiesNamesAndIdentitiesAndQuotesDecimals)
{
    EXPECT_EQ(succeed("get --format json --path /bgp/global/graceful-restart/config"),
              "{\n  \"openconfig-bgp:bgp\": {\n    \"global\": {\n      \"graceful-restart\": {\n"
              "        \"config\": {\n          \"enabled\": true,\n          \"restart-time\": 120,\n"
              "          \"stale-routes-time\": \"360\"\n        }\n      }\n    }\n  }\n}\n");
    EXPECT_NE(succeed("get --format json --path " + ipv4 + "/config\"")
                  .find("\"afi-safi-name\": \"openconfig-bgp-types:IPV4_UNICAST\""),
              std::string::npos);
}

// The mapping puts the native word in the place of the name.
TEST_F(Get, PrintsNativeWordsAsTheyStandWithAWarning)
{
    const std::pair<std::string, std::string> formats[] = {
        {"tree", "          afi-safi-name = ipv4-unicast\n"},
        {"xml", "            <afi-safi-name>ipv4-unicast</afi-safi-name>\n"},
        {"json", "              \"afi-safi-name\": \"ipv4-unicast\",\n"},
    };
    for (const auto &[format, line] : formats) {
        const Ran ran = run_ocbgp("get --format " + format + " --path " + ipv4 + "/config/afi-safi-name\"");
        EXPECT_EQ(ran.code, 0);
        EXPECT_EQ(ran.err, "warning: /bgp/global/afi-safis/afi-safi/config/afi-safi-name holds the native word "
                           "\"ipv4-unicast\"\n");
        EXPECT_NE(ran.out.find(line), std::string::npos) << ran.out;
    }
}

TEST_F(Get, ReadsBackAsAnEditInBothFormats)
{
    for (const char *path :
         {"/bgp/global/config", "/bgp/global/confederation/config", "/bgp/global/graceful-restart/config",
          "/bgp/global/route-selection-options/config", "/bgp/global/default-route-distance/config"}) {
        for (const char *format : {"xml", "json"}) {
            const std::string answer = succeed(std::string("get --format ") + format + " --path " + path);
            // What comes from a router changes nothing on it.
            const std::string shown = succeed("edit --dry-run -", answer);
            EXPECT_TRUE(shown.ends_with("# difference\nnone\n")) << path << "\n" << shown;
            EXPECT_NE(succeed("translate --as 65001 --format tree -", answer), "");
        }
    }
    for (const char *format : {"xml", "json"}) {
        const std::string answer = succeed(std::string("get --format ") + format + " --path " + ipv4 + "/config\"");
        EXPECT_TRUE(succeed("edit --dry-run -", answer).ends_with("# difference\nnone\n"));
    }
}

TEST_F(Get, TracesBothWays)
{
    const Ran ran = run_ocbgp("get --trace --path /bgp/global/config/router-id");
    EXPECT_EQ(ran.code, 0);
    EXPECT_NE(ran.err.find(": TRC: vmf_map_oc_bgp:"), std::string::npos);
    EXPECT_NE(ran.err.find(": TRC: vmf_map_zr_bgp_cfg_bgp:"), std::string::npos);
    EXPECT_EQ(ran.err.find(": TRC: vmf_map_zr_bgp_oper_bgp:"), std::string::npos);
}

TEST_F(Get, ReadsWhatRunsAndNotTheCandidate)
{
    succeed("edit --candidate -", global_edit("<config><router-id>192.0.2.9</router-id></config>"));
    EXPECT_EQ(succeed("get --format tree --path /bgp/global/config/router-id"),
              "bgp oc-bgp\n  global\n    config\n      router-id = 192.0.2.1\n");
}
