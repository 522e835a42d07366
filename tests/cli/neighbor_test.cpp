// Neighbors and peer groups at the command line: the large examples, and the notes of edits.
#include "router_folder.h"

namespace {

class Neighbors : public RouterFolder {
protected:
    void SetUp() override
    {
        RouterFolder::SetUp();
        succeed("edit examples/internet-edge-edit.xml");
        succeed("load-operational examples/neighbors-operational.xml");
    }
};

constexpr char transit_a[] = "--path \"/bgp/neighbors/neighbor[neighbor-address='198.51.100.1']\"";

std::string limit_edit(const std::string &inside)
{
    return "<bgp xmlns=\"http://openconfig.net/yang/bgp\" xmlns:t=\"http://openconfig.net/yang/bgp-types\" "
           "xmlns:nc=\"urn:ietf:params:xml:ns:netconf:base:1.0\"><neighbors><neighbor>"
           "<neighbor-address>198.51.100.1</neighbor-address><afi-safis><afi-safi>"
           "<afi-safi-name>t:IPV6_UNICAST</afi-safi-name><ipv6-unicast><prefix-limit><config>" +
           inside + "</config></prefix-limit></ipv6-unicast></afi-safi></afi-safis></neighbor></neighbors></bgp>";
}

constexpr char limit_path[] = "/bgp/neighbors/neighbor[neighbor-address='198.51.100.1']/afi-safis/"
                              "afi-safi[afi-safi-name='IPV6_UNICAST']/ipv6-unicast/prefix-limit/config";

}  // namespace

TEST_F(Neighbors, OneIsReadWithItsConfigurationAndWhatItIsDoing)
{
    expect_golden("get-neighbor.tree", succeed(std::string("get --format tree ") + transit_a));
    expect_golden("get-neighbor.json", succeed(std::string("get --format json ") + transit_a));
}

TEST_F(Neighbors, APasswordIsShownOnlyToWhoAsksForIt)
{
    EXPECT_EQ(succeed(std::string("get ") + transit_a).find("transit-secret"), std::string::npos);
    EXPECT_NE(succeed(std::string("get --show-secrets ") + transit_a).find("transit-secret"), std::string::npos);
}

TEST_F(Neighbors, ADifferenceIsToldInBothModels)
{
    succeed("edit --candidate examples/prefix-limit-edit.xml");
    expect_golden("diff-prefix-limit", succeed("diff"));
}

// What comes from a router changes nothing on it.
TEST_F(Neighbors, TheLargeExamplesReadBackAsEditsInBothFormats)
{
    const std::string entries[] = {"/bgp/neighbors/neighbor", "/bgp/peer-groups/peer-group"};
    const std::string below[] = {"/config",
                                 "/timers/config",
                                 "/transport/config",
                                 "/ebgp-multihop/config",
                                 "/graceful-restart/config",
                                 "/afi-safis/afi-safi/config",
                                 "/afi-safis/afi-safi/apply-policy/config",
                                 "/afi-safis/afi-safi/use-multiple-paths/config"};
    for (const std::string name : {"internet-edge", "route-reflector", "data-centre-leaf"}) {
        succeed("reset");
        succeed("edit examples/" + name + "-edit.xml");
        for (const std::string &entry : entries)
            for (const std::string &path : below)
                for (const std::string format : {"xml", "json"}) {
                    const std::string answer =
                        succeed("get --config --show-secrets --format " + format + " --path " + entry + path);
                    const std::string shown = succeed("edit --dry-run -", answer);
                    EXPECT_TRUE(shown.ends_with("# difference\nnone\n")) << name << entry << path << "\n" << shown;
                }
    }
}

// ---- Notes ----------------------------------------------------------------------------------

TEST_F(Neighbors, AnEditPrintsItsNotesAndIsDone)
{
    const Ran ran = run_ocbgp("edit -", limit_edit("<max-prefixes>10</max-prefixes>"));
    expect(ran, 0,
           "note: " + std::string(limit_path) +
               "/max-prefixes: makes the limit hold: no mode that only warns, none that discards\n");
    EXPECT_NE(running().find("prefix-limit = 10"), std::string::npos);
}

TEST_F(Neighbors, TranslateAndADryRunPrintTheNotesToo)
{
    const std::string edit = limit_edit("<max-prefixes>10</max-prefixes>");
    const std::string notes = run_ocbgp("edit --dry-run -", edit).err;
    EXPECT_TRUE(notes.starts_with("note: " + std::string(limit_path))) << notes;
    EXPECT_EQ(run_ocbgp("translate --as 65001 -", edit).err, notes);
    EXPECT_EQ(run_ocbgp("translate --as 65001 --kind get -", edit).err, "");
}

// Nothing was done that a note could be about.
TEST_F(Neighbors, AThresholdThatHasNoLimitIsRefusedAndTheClientIsToldSo)
{
    expect(run_ocbgp("edit -", limit_edit("<shutdown-threshold-pct nc:operation=\"delete\"/>")), 1,
           "ocbgp: refused: SYSDB_NOTHING_FOUND (0x00000002)\n"
           "  reason: Failed to get the value for max-prefix from the candidate config.\n"
           "  path:   " +
               std::string(limit_path) + "/shutdown-threshold-pct\n");
}

TEST_F(Neighbors, NoNoteHoldsAPassword)
{
    for (const std::string name : {"internet-edge", "route-reflector", "data-centre-leaf"})
        EXPECT_EQ(run_ocbgp("translate examples/" + name + "-edit.xml").err.find("secret"), std::string::npos);
}
