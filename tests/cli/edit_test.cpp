// `ocbgp edit`, and what becomes of a candidate.
#include <fstream>

#include "router_folder.h"

namespace {

constexpr char as_levels[] = "/bgp/instance[instance-name='default']/instance-as[as='0']/four-byte-as[as='65001']";

constexpr char router_id[] = "<config><router-id>192.0.2.9</router-id></config>";
constexpr char restart_time[] = "<graceful-restart><config><restart-time>90</restart-time></config></graceful-restart>";

class Edit : public RouterFolder {
protected:
    void SetUp() override
    {
        RouterFolder::SetUp();
        succeed("edit examples/global-edit.xml");
    }
};

using Candidate = Edit;
using DryRun = Edit;

}  // namespace

TEST_F(Edit, LandsInTheRunningConfigurationWithoutAWord)
{
    EXPECT_EQ(succeed("edit -", global_edit(restart_time)), "");
    EXPECT_EQ(running(), "bgp zr-cfg\n"
                         "  instance\n"
                         "    instance-name = default\n"
                         "    instance-as\n"
                         "      as = 0\n"
                         "      four-byte-as\n"
                         "        as = 65001\n"
                         "        bgp-running\n"
                         "        default-vrf\n"
                         "          global\n"
                         "            router-id = 192.0.2.1\n"
                         "            graceful-restart-time = 90\n");
    EXPECT_EQ(candidate(), running());
}

TEST_F(Edit, IsReadFromXmlAndJsonAlike)
{
    succeed("edit examples/confederation-edit.xml");
    const std::string from_xml = running();
    succeed("reset");
    succeed("edit examples/global-edit.json");
    succeed("edit examples/confederation-edit.json");
    EXPECT_EQ(running(), from_xml);
}

TEST_F(Edit, ThatDeletesTheRootsConfigurationLeavesNothing)
{
    succeed("edit examples/global-delete.xml");
    EXPECT_EQ(running(), "");
}

// ---- Refusals -------------------------------------------------------------------------------

TEST_F(Edit, ThatTheMappingRefusesNamesOutcomeReasonTagAndPath)
{
    const auto before = files();
    expect(run_ocbgp("edit -", global_edit("<config><router-id>1.1.1.1</router-id><colour/></config>")), 1,
           "ocbgp: refused: VMF_RC_UNSUPPORTED (0xaaf2e600)\n"
           "  reason: Unsupported tag is specified in the request.\n"
           "  tag:    colour\n"
           "  path:   /bgp/global/config/colour\n");
    EXPECT_EQ(files(), before);
}

TEST_F(Edit, ThatIsRefusedBelowAFamilyNamesItAsTheClientDid)
{
    expect(run_ocbgp("edit -", global_edit("<afi-safis><afi-safi><afi-safi-name>t:L2VPN_EVPN</afi-safi-name>"
                                           "<use-multiple-paths><ebgp><config><maximum-paths>4</maximum-paths>"
                                           "</config></ebgp></use-multiple-paths></afi-safi></afi-safis>")),
           1,
           "ocbgp: refused: VMF_RC_UNSUPPORTED (0xaaf2e600)\n"
           "  reason: Operation not allowed for AF 'l2vpnevpn'\n"
           "  path:   /bgp/global/afi-safis/afi-safi[afi-safi-name='L2VPN_EVPN']/use-multiple-paths/ebgp/config"
           "/maximum-paths\n");
}

TEST_F(Edit, ThatCannotBeReadChangesNothing)
{
    const auto before = files();
    expect(run_ocbgp("edit no-such-file"), 2, "ocbgp: no-such-file: cannot be read: No such file or directory\n");
    const Ran broken = run_ocbgp("edit -", "<config><bgp");
    EXPECT_EQ(broken.code, 2);
    EXPECT_TRUE(broken.err.starts_with("ocbgp: -:1:")) << broken.err;
    expect(run_ocbgp("edit examples/global-filter.xml"), 2,
           "ocbgp: examples/global-filter.xml: a request to read, not an edit\n");
    EXPECT_EQ(files(), before);
}

TEST_F(Edit, ThatTheRouterRefusesNamesRuleAndBothPaths)
{
    const std::string value = "<config><router-id>192.0.2.1</router-id></config><graceful-restart><config>"
                              "<restart-time>soon</restart-time></config></graceful-restart>";
    const auto before = files();
    const Ran ran = run_ocbgp("edit -", global_edit(value));
    EXPECT_EQ(ran.code, 3);
    EXPECT_TRUE(ran.err.starts_with("ocbgp: refused by the router: Invalid type uint32 value \"soon\"")) << ran.err;
    EXPECT_TRUE(ran.err.ends_with(std::string("\n  native: ") + as_levels +
                                  "/default-vrf/global/graceful-restart-time\n"
                                  "  path:   /bgp/global/graceful-restart/config/restart-time\n"))
        << ran.err;
    EXPECT_EQ(files(), before);
}

TEST_F(Edit, ThatDeletesWhatIsNotThereIsRefused)
{
    expect(run_ocbgp("edit -", global_edit("<graceful-restart><config><enabled nc:operation=\"delete\"/></config>"
                                           "</graceful-restart>")),
           3,
           std::string("ocbgp: refused by the router: data is missing\n  native: ") + as_levels +
               "/default-vrf/global/graceful-restart\n"
               "  path:   /bgp/global/graceful-restart/config/enabled\n");
}

TEST_F(Edit, WithAnotherAsIsToldToDeleteBgpFirst)
{
    expect(run_ocbgp("edit -", global_edit("<config><as>65002</as></config>")), 3,
           "ocbgp: refused by the router: the AS number cannot change while BGP runs; delete BGP first\n"
           "  native: /bgp/instance[instance-name='default']/instance-as[as='0']/four-byte-as[as='65002']\n"
           "  path:   /bgp/global/config/as\n");
}

TEST_F(Edit, WithoutAnyAsIsToldToSetItFirst)
{
    succeed("reset");
    expect(run_ocbgp("edit -", global_edit(router_id)), 3,
           "ocbgp: refused by the router: no AS number is known; set /bgp/global/config/as first\n"
           "  native: /bgp/instance[instance-name='default']/instance-as\n"
           "  path:   /bgp/global/config/router-id\n");
    EXPECT_EQ(running(), "");
}

TEST_F(Edit, TracesTheMappingToStandardError)
{
    const Ran ran = run_ocbgp("edit --trace -", global_edit(router_id));
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(ran.out, "");
    EXPECT_TRUE(ran.err.starts_with("#1: TRC: vmf_map_oc_bgp:")) << ran.err;
}

// ---- A dry run ------------------------------------------------------------------------------

TEST_F(DryRun, ShowsTheNativeEditAndTheDifferenceInEveryFormat)
{
    succeed("edit -", global_edit("<graceful-restart><config><enabled>true</enabled><restart-time>60</restart-time>"
                                  "</config></graceful-restart>"));
    for (const std::string format : {"tree", "xml", "json"})
        expect_golden("dry-run." + format,
                      succeed("edit --dry-run --format " + format + " examples/graceful-restart-edit.xml"));
}

TEST_F(DryRun, ChangesNothing)
{
    succeed("edit --candidate -", global_edit(router_id));
    const auto before = files();
    const Ran ran = run_ocbgp("edit --dry-run examples/confederation-edit.xml");
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(files(), before);
}

TEST_F(DryRun, OfWhatIsThereAlreadyShowsNoDifference)
{
    const std::string shown = succeed("edit --dry-run examples/global-edit.xml");
    EXPECT_TRUE(shown.ends_with("# difference\nnone\n")) << shown;
}

TEST_F(DryRun, IsRefusedAsTheEditWouldBe)
{
    EXPECT_EQ(run_ocbgp("edit --dry-run -", global_edit("<config><as>65002</as></config>")).code, 3);
    EXPECT_EQ(run_ocbgp("edit --dry-run -", global_edit("<colour/>")).code, 1);
}

// ---- The candidate --------------------------------------------------------------------------

TEST_F(Candidate, StaysBesideWhatRunsUntilItIsCommitted)
{
    const std::string before = running();
    succeed("edit --candidate -", global_edit(router_id));
    succeed("edit --candidate -", global_edit(restart_time));
    EXPECT_EQ(running(), before);
    EXPECT_NE(candidate(), before);
    EXPECT_EQ(succeed("diff"), std::string("# OpenConfig\n"
                                           "- /bgp/global/config/router-id = 192.0.2.1\n"
                                           "+ /bgp/global/config/router-id = 192.0.2.9\n"
                                           "+ /bgp/global/graceful-restart/config/restart-time = 90\n"
                                           "# native\n"
                                           "- ") +
                                   as_levels + "/default-vrf/global/router-id = 192.0.2.1\n+ " + as_levels +
                                   "/default-vrf/global/router-id = 192.0.2.9\n+ " + as_levels +
                                   "/default-vrf/global/graceful-restart-time = 90\n");
    const std::string held = candidate();
    succeed("commit");
    EXPECT_EQ(running(), held);
    EXPECT_EQ(succeed("diff"), "# OpenConfig\nnone\n# native\nnone\n");
}

TEST_F(Candidate, IsDroppedByDiscard)
{
    const std::string before = running();
    succeed("edit --candidate -", global_edit(router_id));
    succeed("discard");
    EXPECT_EQ(candidate(), before);
}

TEST_F(Candidate, ThatIsWhatRunsIsToldSo)
{
    for (const char *command : {"commit", "discard"})
        expect(run_ocbgp(command), 0, "note: the candidate is what runs already\n");
}

TEST_F(Candidate, IsTakenAlongByTheNextEditWhichSaysSo)
{
    succeed("edit --candidate -", global_edit(router_id));
    expect(run_ocbgp("edit -", global_edit(restart_time)), 0,
           "note: the candidate holds changes already; a commit of this edit takes them along\n");
    EXPECT_NE(running().find("router-id = 192.0.2.9"), std::string::npos);
    EXPECT_NE(running().find("graceful-restart-time = 90"), std::string::npos);
}

// The next edit finds the AS in the candidate.
TEST_F(Candidate, BringsItsAsNumber)
{
    succeed("reset");
    succeed("edit --candidate examples/global-edit.xml");
    succeed("edit --candidate -", global_edit(restart_time));
    succeed("commit");
    EXPECT_NE(running().find("graceful-restart-time = 90"), std::string::npos);
}

// Kept without validation, which the commit makes up for: a second AS, written by hand.
TEST_F(Candidate, ThatIsNotValidIsNotCommitted)
{
    const std::string before = running();
    std::string text = read_file(router() + "/running.xml");
    const size_t end = text.find("</instance>");
    ASSERT_NE(end, std::string::npos);
    text.insert(end, "<instance-as><as>1</as></instance-as>");
    std::ofstream(router() + "/candidate.xml") << text;
    const Ran ran = run_ocbgp("commit");
    EXPECT_EQ(ran.code, 3);
    EXPECT_TRUE(ran.err.starts_with("ocbgp: refused by the router: Too many \"instance-as\" instances.\n  native: "))
        << ran.err;
    EXPECT_EQ(running(), before);
    succeed("discard");
    EXPECT_EQ(candidate(), before);
}
