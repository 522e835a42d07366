#include "support.h"
#include "tree_text.h"
#include "vmf_map_platform.h"

using namespace test;
using router::Datastore;

namespace {

std::string text_of(const platform::Tree &tree) { return io::write_tree(tree.root(), io::Secrets::shown); }

std::string selected(const router::Router &router, const std::string &request)
{
    return text_of(router.read_config(io::read_tree(request).root(), Datastore::candidate));
}

const std::string first = "neighbor\n  neighbor-address = 10.0.0.1\n  remote-as\n    as-xx = 0\n    as-yy = 65001\n"
                          "  description = a\n  session-open-mode = both\n  neighbor-afs\n    neighbor-af\n"
                          "      af-name = ipv4-unicast\n      activate\n      route-policy-in = p\n"
                          "      route-policy-in = q\n    neighbor-af\n      af-name = ipv6-unicast\n";
const std::string second = "neighbor\n  neighbor-address = 2001:db8::1\n  description = a\n";
const std::string third = "neighbor\n  neighbor-address = 10.0.0.3\n  session-open-mode = active-only\n";

struct SelectionCase {
    const char *name;
    std::string request;  // below `neighbors`
    std::string answer;   // there too; empty: no tree at all
};

const SelectionCase cases[] = {
    // What nothing stands below of is selected as a whole.
    {"AContainerAlone", "", first + second + third},
    {"AListEntryAloneIsAll", "neighbor", first + second + third},
    {"AContainerOfEachEntry", "neighbor\n  remote-as",
     "neighbor\n  neighbor-address = 10.0.0.1\n  remote-as\n    as-xx = 0\n    as-yy = 65001\n"},
    {"ALeafOfEachEntryThatHasIt", "neighbor\n  description",
     "neighbor\n  neighbor-address = 10.0.0.1\n  description = a\n"
     "neighbor\n  neighbor-address = 2001:db8::1\n  description = a\n"},
    {"AKeyWithoutAValueIsAnyKey", "neighbor\n  neighbor-address",
     "neighbor\n  neighbor-address = 10.0.0.1\nneighbor\n  neighbor-address = 2001:db8::1\n"
     "neighbor\n  neighbor-address = 10.0.0.3\n"},
    {"AKeyWithoutAValueAndALeafThatOneEntryHas", "neighbor\n  neighbor-address\n  remote-as",
     "neighbor\n  neighbor-address = 10.0.0.1\n  remote-as\n    as-xx = 0\n    as-yy = 65001\n"
     "neighbor\n  neighbor-address = 2001:db8::1\nneighbor\n  neighbor-address = 10.0.0.3\n"},
    {"NothingThatIsNotThere", "neighbor\n  timers", ""},
    {"NothingThatTheModelDoesNotHave", "neighbor\n  colour", ""},
    {"NothingBesideWhatTheModelDoesNotHave", "neighbor\n  neighbor-address = 10.0.0.3\n  colour",
     "neighbor\n  neighbor-address = 10.0.0.3\n"},

    // Content that must match.
    {"AnEntryByItsKeyAlone", "neighbor\n  neighbor-address = 10.0.0.3", third},
    {"ALeafOfAnEntryByItsKey", "neighbor\n  neighbor-address = 10.0.0.1\n  description",
     "neighbor\n  neighbor-address = 10.0.0.1\n  description = a\n"},
    {"AKeyInAnotherFormOfItsType", "neighbor\n  neighbor-address = 2001:DB8:0::1", second},
    {"NothingByAKeyThatNoEntryHas", "neighbor\n  neighbor-address = 10.0.0.4", ""},
    {"NothingByAKeyThatIsNoAddress", "neighbor\n  neighbor-address = red", ""},
    {"NothingByTwoValuesOfOneKey", "neighbor\n  neighbor-address = 10.0.0.1\n  neighbor-address = 10.0.0.3", ""},
    {"EntriesByALeafThatIsNoKey", "neighbor\n  session-open-mode = both", first},
    {"EntriesByTwoLeaves", "neighbor\n  session-open-mode = both\n  description = a", first},
    {"NothingIfOneOfTwoLeavesDiffers", "neighbor\n  session-open-mode = both\n  description = b", ""},
    {"AMatchAndALeaf", "neighbor\n  description = a\n  session-open-mode",
     "neighbor\n  neighbor-address = 10.0.0.1\n  description = a\n  session-open-mode = both\n"
     "neighbor\n  neighbor-address = 2001:db8::1\n  description = a\n"},
    {"AnEntryByAnInnerMatch", "neighbor\n  remote-as\n    as-yy = 65001\n    as-xx",
     "neighbor\n  neighbor-address = 10.0.0.1\n  remote-as\n    as-xx = 0\n    as-yy = 65001\n"},
    {"NothingOfAContainerWithAMatchThatFails",
     "neighbor\n  neighbor-address = 10.0.0.1\n  remote-as\n    as-yy = 1\n    as-xx\n  description",
     "neighbor\n  neighbor-address = 10.0.0.1\n  description = a\n"},
    {"ANumberInAnotherForm", "neighbor\n  remote-as\n    as-yy = 065001",
     "neighbor\n  neighbor-address = 10.0.0.1\n  remote-as\n    as-xx = 0\n    as-yy = 65001\n"},
    {"InnerEntriesByTheirKeyOfAllOuterOnes", "neighbor\n  neighbor-afs\n    neighbor-af\n      af-name = ipv6-unicast",
     "neighbor\n  neighbor-address = 10.0.0.1\n  neighbor-afs\n    neighbor-af\n      af-name = ipv6-unicast\n"},
    {"AValueOfALeafList", "neighbor\n  neighbor-afs\n    neighbor-af\n      route-policy-in = q\n      activate",
     "neighbor\n  neighbor-address = 10.0.0.1\n  neighbor-afs\n    neighbor-af\n      af-name = ipv4-unicast\n"
     "      activate\n      route-policy-in = q\n"},
    {"AllValuesOfALeafList", "neighbor\n  neighbor-afs\n    neighbor-af\n      route-policy-in",
     "neighbor\n  neighbor-address = 10.0.0.1\n  neighbor-afs\n    neighbor-af\n      af-name = ipv4-unicast\n"
     "      route-policy-in = p\n      route-policy-in = q\n"},
    {"NothingByAValueThatALeafListDoesNotHave",
     "neighbor\n  neighbor-afs\n    neighbor-af\n      route-policy-in = r\n      activate", ""},
    {"ALeafOfTypeEmptyByItsPresence", "neighbor\n  neighbor-afs\n    neighbor-af\n      activate",
     "neighbor\n  neighbor-address = 10.0.0.1\n  neighbor-afs\n    neighbor-af\n      af-name = ipv4-unicast\n"
     "      activate\n"},
    {"NothingByAContainerWithAValue", "neighbor\n  remote-as = 5", ""},

    // The union of what is asked for.
    {"TwoEntriesInTheOrderOfTheData",
     "neighbor\n  neighbor-address = 10.0.0.3\nneighbor\n  neighbor-address = 2001:db8::1", second + third},
    {"TwoLeavesOfOneEntryThatIsNamedTwice",
     "neighbor\n  neighbor-address = 10.0.0.1\n  session-open-mode\nneighbor\n  neighbor-address = 10.0.0.1\n  "
     "description",
     "neighbor\n  neighbor-address = 10.0.0.1\n  description = a\n  session-open-mode = both\n"},
    {"OneEntryWholeAndALeafOfAll", "neighbor\n  neighbor-address = 10.0.0.3\nneighbor\n  description",
     "neighbor\n  neighbor-address = 10.0.0.1\n  description = a\n"
     "neighbor\n  neighbor-address = 2001:db8::1\n  description = a\n" +
         third},
    {"AnEntryWholeAndALeafOfItIsWhole",
     "neighbor\n  neighbor-address = 2001:db8::1\n  description\nneighbor\n  neighbor-address = 2001:db8::1", second},
    {"AContainerThatIsNamedTwice",
     "neighbor\n  neighbor-address = 10.0.0.1\n  remote-as\n    as-yy\n  remote-as\n    as-xx",
     "neighbor\n  neighbor-address = 10.0.0.1\n  remote-as\n    as-xx = 0\n    as-yy = 65001\n"},
    {"AMatchThatFailsBesideOneThatHolds",
     "neighbor\n  neighbor-address = 10.0.0.1\n  description = b\nneighbor\n  neighbor-address = 10.0.0.1\n  "
     "description",
     "neighbor\n  neighbor-address = 10.0.0.1\n  description = a\n"},
};

struct Filled : TestRouter {
    Filled() { edit(router, in_neighbors(first + second + third)); }
};

class Selection : public testing::TestWithParam<SelectionCase> {};

}  // namespace

TEST_P(Selection, GivesWhatASubtreeFilterAsksFor)
{
    const Filled made;
    const std::string answer = selected(made.router, in_neighbors(GetParam().request));
    EXPECT_EQ(answer, GetParam().answer.empty() ? in_as("") : in_neighbors(GetParam().answer));
}

INSTANTIATE_TEST_SUITE_P(All, Selection, testing::ValuesIn(cases), name_of_case<SelectionCase>);

// The levels above, which carry matches of their own.

TEST(SelectionOfLevels, TreesAreOneRequestTogether)
{
    TestRouter made;
    edit(made.router, in_as("bgp-running\ndefault-vrf\n  global\n    router-id = 10.0.0.1\n    graceful-restart"));
    EXPECT_EQ(selected(made.router, in_global("graceful-restart") + in_global("router-id")),
              in_global("router-id = 10.0.0.1\ngraceful-restart\n"));
    EXPECT_EQ(selected(made.router, in_global("router-id") + in_as("")), candidate_of(made.router));
}

TEST(SelectionOfLevels, AnAsWithoutAValueIsAnyAs)
{
    TestRouter made;
    edit(made.router, in_as("bgp-running"));
    EXPECT_EQ(selected(made.router, in_instance("instance-as\n  as\n  four-byte-as\n    as\n    bgp-running\n")),
              in_as("bgp-running"));
}

TEST(SelectionOfLevels, AnotherAsHasNothing)
{
    TestRouter made;
    edit(made.router, in_as("bgp-running"));
    EXPECT_EQ(
        selected(made.router, "bgp zr-cfg\n  instance\n    instance-as\n      four-byte-as\n        as = 65002\n"), "");
    EXPECT_EQ(selected(made.router, "bgp zr-cfg\n  instance\n    instance-name = other\n"), "");
}

TEST(SelectionOfLevels, OnlyTreesOfTheModelCount)
{
    TestRouter made;
    edit(made.router, in_as("bgp-running"));
    for (const char *request : {"", "bgp\n", "bgp zr-oper\n", "bgp oc-bgp\n", "colour zr-cfg\n"})
        EXPECT_EQ(selected(made.router, request), "") << request;
    EXPECT_EQ(selected(made.router, "bgp zr-oper\nbgp zr-cfg\n"), in_as("bgp-running"));
}

TEST(SelectionOfLevels, ARouterWithoutBgpHasNothing)
{
    const TestRouter made;
    EXPECT_EQ(selected(made.router, "bgp zr-cfg\n"), "");
    EXPECT_EQ(candidate_of(made.router), "");
}

TEST(SelectionOfLevels, TheDatastoreIsTheOneAskedFor)
{
    TestRouter made;
    edit(made.router, in_as("bgp-running"));
    made.router.commit();
    edit(made.router, in_global("router-id = 10.0.0.1"));
    const platform::Tree request = io::read_tree("bgp zr-cfg\n");
    EXPECT_EQ(text_of(made.router.read_config(request.root(), Datastore::running)), in_as("bgp-running"));
    EXPECT_EQ(text_of(made.router.read_config(request.root(), Datastore::candidate)), candidate_of(made.router));
}

TEST(SelectionOfLevels, EveryNodeOfTheAnswerHasTheNamespaceOfTheModel)
{
    const Filled made;
    const platform::Tree answer =
        made.router.read_config(io::read_tree(in_neighbors("neighbor\n  description")).root(), Datastore::candidate);
    const Datatree *node = &platform::children_of(answer.root())[0];
    while (!platform::children_of(*node).empty()) {
        EXPECT_STREQ(platform::namespace_of(*node), ZR_BGP_CFG_NS);
        node = &platform::children_of(*node).back();
    }
    EXPECT_STREQ(platform::namespace_of(*node), ZR_BGP_CFG_NS);
}

TEST(SelectionOfLevels, AContainerThatTheMappingSelectedStaysWholeWhenALeafOfItIsSelectedToo)
{
    const std::string both = "confederation-domain\n  as-xx = 0\n  as-yy = 7\n";
    TestRouter made;
    edit(made.router, in_global("router-id = 10.0.0.1\n" + both));
    platform::Tree request;
    const char path[] = "bgp/instance/instance-as/four-byte-as/default-vrf/global/confederation-domain";
    for (const char *below : {"", "/as-yy"})
        ASSERT_EQ(vmf_map_datatree_add_path(nullptr, &request.root(), (std::string(path) + below).c_str(),
                                            ZR_BGP_CFG_NS, nullptr, nullptr, nullptr, 0),
                  VMF_RC_OK);
    EXPECT_EQ(text_of(made.router.read_config(request.root(), Datastore::candidate)), in_global(both));
}
