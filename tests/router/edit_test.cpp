#include <array>

#include "support.h"
#include "tree_text.h"
#include "vmf_map_types.h"

using namespace test;

namespace {

constexpr char no_as_is_known[] = "no AS number is known; set /bgp/global/config/as first";
constexpr char as_cannot_change[] = "the AS number cannot change while BGP runs; delete BGP first";

// Lines of a level with the operation in the place of "@".
std::string with_operation(std::string text, const std::string &operation)
{
    const size_t at = text.find('@');
    return text.replace(at, 1, operation.empty() ? "" : " [" + operation + "]");
}

}  // namespace

// ---- Every operation on every kind of node --------------------------------------------------

namespace {

// Lines below the default VRF.
struct Subject {
    const char *name;
    std::string path;
    std::string standing;
    std::string edit;
    std::string merged;    // the edit onto what stands
    std::string replaced;  // the edit in place of what stands; also the edit onto nothing
};

const Subject subjects[] = {
    {"a_leaf", "/global/router-id", "global\n  router-id = 10.0.0.1", "global\n  router-id@ = 10.0.0.2",
     "global\n  router-id = 10.0.0.2", "global\n  router-id = 10.0.0.2"},
    {"a_leaf_of_type_empty", "/global/graceful-restart", "global\n  graceful-restart", "global\n  graceful-restart@",
     "global\n  graceful-restart", "global\n  graceful-restart"},
    {"a_container", "/global/confederation-domain", "global\n  confederation-domain\n    as-xx = 0\n    as-yy = 1",
     "global\n  confederation-domain@\n    as-yy = 2", "global\n  confederation-domain\n    as-xx = 0\n    as-yy = 2",
     "global\n  confederation-domain\n    as-yy = 2"},
    {"a_list_entry", "/bgp-entity/neighbors/neighbor[neighbor-address='10.0.0.1']",
     "bgp-entity\n  neighbors\n    neighbor\n      neighbor-address = 10.0.0.1\n      description = old\n"
     "      session-open-mode = both",
     "bgp-entity\n  neighbors\n    neighbor@\n      neighbor-address = 10.0.0.1\n      description = new",
     "bgp-entity\n  neighbors\n    neighbor\n      neighbor-address = 10.0.0.1\n      description = new\n"
     "      session-open-mode = both",
     "bgp-entity\n  neighbors\n    neighbor\n      neighbor-address = 10.0.0.1\n      description = new"},
    {"a_list_entry_with_two_keys", "/global/confederation-peer-ases/confederation-peer-as[as-xx='0'][as-yy='7']",
     "global\n  confederation-peer-ases\n    confederation-peer-as\n      as-xx = 0\n      as-yy = 7",
     "global\n  confederation-peer-ases\n    confederation-peer-as@\n      as-xx = 0\n      as-yy = 7",
     "global\n  confederation-peer-ases\n    confederation-peer-as\n      as-xx = 0\n      as-yy = 7",
     "global\n  confederation-peer-ases\n    confederation-peer-as\n      as-xx = 0\n      as-yy = 7"},
};

struct Operation {
    const char *name;  // empty: none, which is a merge
    const char *onto_nothing;
    const char *onto_what_stands;  // "merged", "replaced", "nothing", or a rule that refuses
};

const Operation operations[] = {
    {"", "replaced", "merged"},
    {"merge", "replaced", "merged"},
    {"replace", "replaced", "replaced"},
    {"create", "replaced", "data exists"},
    {"delete", "data is missing", "nothing"},
    {"remove", "nothing", "nothing"},
};

struct Case {
    Operation operation;
    Subject subject;
    bool stands;
};

std::vector<Case> all_cases()
{
    std::vector<Case> cases;
    for (const Operation &operation : operations)
        for (const Subject &subject : subjects)
            for (const bool stands : {false, true}) cases.push_back({operation, subject, stands});
    return cases;
}

std::string name_of(const testing::TestParamInfo<Case> &info)
{
    const Case &row = info.param;
    const std::string operation = *row.operation.name != '\0' ? row.operation.name : "no_operation";
    return operation + "_of_" + row.subject.name + (row.stands ? "_that_stands" : "_that_is_missing");
}

class EditOperation : public testing::TestWithParam<Case> {};

}  // namespace

TEST_P(EditOperation, DoesAsNetconfSays)
{
    const auto &[operation, subject, stands] = GetParam();
    const std::string expected = stands ? operation.onto_what_stands : operation.onto_nothing;
    TestRouter made;
    const std::string before = stands ? subject.standing : "";
    edit(made.router, in_as("bgp-running"));
    if (stands) edit(made.router, in_vrf(before));
    const std::string unchanged = candidate_of(made.router);

    const std::string refusal = refusal_of(made.router, in_vrf(with_operation(subject.edit, operation.name)));
    const bool is_taken = expected == "merged" || expected == "replaced" || expected == "nothing";
    EXPECT_EQ(refusal, is_taken ? "" : vrf_path + subject.path + ": " + expected);
    const std::string body = expected == "merged" ? subject.merged : expected == "replaced" ? subject.replaced : "";
    const std::string after = in_as("bgp-running\n" + (body.empty() ? "" : below("default-vrf\n", body)));
    EXPECT_EQ(candidate_of(made.router), is_taken ? after : unchanged);
}

INSTANTIATE_TEST_SUITE_P(All, EditOperation, testing::ValuesIn(all_cases()), name_of);

// ---- Leaf-lists -----------------------------------------------------------------------------

namespace {

std::string in_family(const std::string &lines)
{
    return in_neighbors("neighbor\n  neighbor-address = 10.0.0.1\n  neighbor-afs\n" +
                        below("    neighbor-af\n", "af-name = ipv4-unicast\n" + lines));
}

const std::string family_path =
    vrf_path +
    "/bgp-entity/neighbors/neighbor[neighbor-address='10.0.0.1']/neighbor-afs/neighbor-af[af-name='ipv4-unicast']";

struct LeafListCase {
    const char *name;
    const char *edit;   // onto the values b and a, in this order
    const char *after;  // or "!" and the refusal behind the path of the leaf-list
};

const LeafListCase leaf_list_cases[] = {
    {"MergedValueComesLast", "route-policy-in = c", "route-policy-in = b\nroute-policy-in = a\nroute-policy-in = c"},
    {"MergedValueThatStandsKeepsItsPlace", "route-policy-in = b", "route-policy-in = b\nroute-policy-in = a"},
    {"ReplacedValueThatStandsKeepsItsPlace", "route-policy-in [replace] = b",
     "route-policy-in = b\nroute-policy-in = a"},
    {"ReplaceWithoutAValueLeavesNone", "route-policy-in [replace]", ""},
    {"CreatedValueComesLast", "route-policy-in [create] = c",
     "route-policy-in = b\nroute-policy-in = a\nroute-policy-in = c"},
    {"CreatedValueThatStandsIsRefused", "route-policy-in [create] = a", "![.='a']: data exists"},
    {"DeletedValueGoesAlone", "route-policy-in [delete] = b", "route-policy-in = a"},
    {"DeletedValueThatIsMissingIsRefused", "route-policy-in [delete] = c", "![.='c']: data is missing"},
    {"RemovedValueThatIsMissingIsNoMatter", "route-policy-in [remove] = c", "route-policy-in = b\nroute-policy-in = a"},
    {"RemoveWithoutAValueTakesAll", "route-policy-in [remove]", ""},
    {"DeleteWithoutAValueTakesAll", "route-policy-in [delete]", ""},
    {"DeleteWithoutAValueOfNoneIsRefused", "route-policy-out [delete]", "!: data is missing"},
    {"MergeWithoutAValueWritesNothing", "route-policy-in", "route-policy-in = b\nroute-policy-in = a"},
    {"RemovedAndWrittenAnewComesLast", "route-policy-in [remove] = b\nroute-policy-in = b",
     "route-policy-in = a\nroute-policy-in = b"},
};

class LeafList : public testing::TestWithParam<LeafListCase> {};

}  // namespace

TEST_P(LeafList, IsEditedByItsValues)
{
    TestRouter made;
    edit(made.router, in_family("route-policy-in = b\nroute-policy-in = a"));
    const std::string before = candidate_of(made.router);
    const std::string refusal = refusal_of(made.router, in_family(GetParam().edit));
    const std::string after = GetParam().after;
    if (after.starts_with('!')) {
        const std::string tag = std::string(GetParam().edit).substr(0, std::string(GetParam().edit).find(' '));
        EXPECT_EQ(refusal, family_path + "/" + tag + after.substr(1));
        EXPECT_EQ(candidate_of(made.router), before);
    } else {
        EXPECT_EQ(refusal, "");
        EXPECT_EQ(candidate_of(made.router), in_family(after));
    }
}

INSTANTIATE_TEST_SUITE_P(All, LeafList, testing::ValuesIn(leaf_list_cases), name_of_case<LeafListCase>);

// ---- Requests are no data -------------------------------------------------------------------

TEST(Edit, EntriesOfOneKeyMeetWhereverTheyStandInARequest)
{
    TestRouter made;
    edit(made.router, in_neighbors("neighbor\n  neighbor-address = 10.0.0.1\n  description = a\n"
                                   "neighbor\n  neighbor-address = 10.0.0.2\n"
                                   "neighbor\n  neighbor-address = 10.0.0.1\n  session-open-mode = both\n"));
    EXPECT_EQ(candidate_of(made.router),
              in_neighbors("neighbor\n  neighbor-address = 10.0.0.1\n  description = a\n  session-open-mode = both\n"
                           "neighbor\n  neighbor-address = 10.0.0.2\n"));
}

TEST(Edit, TreesAndNodesAreExecutedInTheOrderInWhichTheyStand)
{
    TestRouter made;
    edit(made.router, in_global("router-id = 10.0.0.1\nrouter-id = 10.0.0.2\n") +
                          in_global("router-id [delete]\nrouter-id [create] = 10.0.0.3\n"));
    EXPECT_EQ(candidate_of(made.router), in_global("router-id = 10.0.0.3"));

    EXPECT_EQ(refusal_of(made.router, in_global("router-id [create] = 10.0.0.4\nrouter-id [delete]")),
              vrf_path + "/global/router-id: data exists");
    EXPECT_EQ(refusal_of(made.router, in_global("router-id [delete]\nrouter-id [delete]")),
              vrf_path + "/global/router-id: data is missing");
}

TEST(Edit, AReplacedEntryTakesWhatComesForItLaterInTheRequest)
{
    TestRouter made;
    edit(made.router, in_neighbors("neighbor\n  neighbor-address = 10.0.0.1\n  description = a\n"));
    edit(made.router, in_neighbors("neighbor [replace]\n  neighbor-address = 10.0.0.1\n  session-open-mode = both\n"
                                   "neighbor\n  neighbor-address = 10.0.0.1\n  update-source-interface = eth0\n"));
    EXPECT_EQ(candidate_of(made.router),
              in_neighbors("neighbor\n  neighbor-address = 10.0.0.1\n"
                           "  session-open-mode = both\n  update-source-interface = eth0\n"));
}

TEST(Edit, AKeyMayStandBehindOtherChildrenOfItsEntry)
{
    TestRouter made;
    edit(made.router, in_neighbors("neighbor\n  description = a\n  neighbor-address = 10.0.0.1\n"));
    EXPECT_EQ(candidate_of(made.router), in_neighbors("neighbor\n  neighbor-address = 10.0.0.1\n  description = a\n"));
}

TEST(Edit, AKeyThatIsGivenTwiceAlikeIsOneKey)
{
    TestRouter made;
    edit(made.router, in_neighbors("neighbor\n  neighbor-address = 2001:DB8::1\n  neighbor-address = 2001:db8::1\n"));
    EXPECT_EQ(candidate_of(made.router), in_neighbors("neighbor\n  neighbor-address = 2001:db8::1\n"));
    EXPECT_EQ(refusal_of(made.router,
                         in_neighbors("neighbor\n  neighbor-address = 10.0.0.1\n  neighbor-address = 10.0.0.2\n")),
              vrf_path + "/bgp-entity/neighbors/neighbor/neighbor-address: a key has one value");
}

TEST(Edit, AnOuterRemovalCoversAllOperationsBelowIt)
{
    const std::string maximum = "neighbor\n  neighbor-address = 10.0.0.1\n  neighbor-afs\n    neighbor-af\n"
                                "      af-name = ipv4-unicast\n      maximum-prefixes";
    for (const char *operation : {" [delete]", " [remove]"}) {
        TestRouter made;
        edit(made.router, in_neighbors(maximum + "\n        prefix-limit = 10\n"));
        edit(made.router,
             in_neighbors(maximum + operation + "\n        warning-only [delete]\n        prefix-limit [create] = 5\n" +
                          "        warning-percentage = 75\n        discard-extra-paths = no boolean\n"));
        EXPECT_EQ(candidate_of(made.router), in_family("")) << operation;
    }
}

TEST(Edit, ARemovedInstanceTakesAllOfItWithoutAnAsBeingKnown)
{
    TestRouter made;
    edit(made.router, in_global("router-id = 10.0.0.1"));
    edit(made.router, "bgp zr-cfg\n  instance [delete]\n    instance-name = default\n    instance-as\n      as\n");
    EXPECT_EQ(candidate_of(made.router), "");
    EXPECT_EQ(refusal_of(made.router, "bgp zr-cfg\n  instance [delete]\n    instance-name = default\n"),
              "/bgp/instance[instance-name='default']: data is missing");
}

TEST(Edit, ARemovedTreeTakesAllOfIt)
{
    TestRouter made;
    edit(made.router, in_global("router-id = 10.0.0.1"));
    edit(made.router, "bgp zr-cfg [remove]\n");
    EXPECT_EQ(candidate_of(made.router), "");
}

TEST(Edit, TheRemovalOfTheLastEntryLeavesNoList)
{
    TestRouter made;
    edit(made.router, in_as("bgp-running"));
    edit(made.router, in_neighbors("neighbor\n  neighbor-address = 10.0.0.1\n"));
    edit(made.router, in_neighbors("neighbor [delete]\n  neighbor-address = 10.0.0.1\n"));
    EXPECT_EQ(candidate_of(made.router), in_as("bgp-running"));
}

TEST(Edit, AReplacedContainerWithoutChildrenIsEmptyAndSoNotThere)
{
    TestRouter made;
    edit(made.router, in_as("bgp-running"));
    edit(made.router, in_global("router-id = 10.0.0.1"));
    edit(made.router, in_vrf("global [replace]"));
    EXPECT_EQ(candidate_of(made.router), in_as("bgp-running"));
}

TEST(Edit, AContainerThatIsOnlyNamedIsNotThere)
{
    TestRouter made;
    edit(made.router, in_as("bgp-running"));
    edit(made.router, in_neighbors("") + in_global("confederation-domain [create]"));
    EXPECT_EQ(candidate_of(made.router), in_as("bgp-running"));
}

TEST(Edit, ALeafWithoutAValueIsWrittenOnlyIfItsTypeIsEmpty)
{
    TestRouter made;
    edit(made.router, in_global("router-id = 10.0.0.1"));
    edit(made.router, in_global("router-id\ngraceful-restart\ngraceful-restart-time\n"));
    EXPECT_EQ(candidate_of(made.router), in_global("router-id = 10.0.0.1\ngraceful-restart\n"));
}

TEST(Edit, ARemovalOfALeafDoesNotLookAtItsValue)
{
    TestRouter made;
    edit(made.router, in_as("bgp-running"));
    edit(made.router, in_global("router-id = 10.0.0.1"));
    edit(made.router, in_global("router-id [delete] = something else"));
    EXPECT_EQ(candidate_of(made.router), in_as("bgp-running"));
}

TEST(Edit, TheOperationOfAKeyDoesNotCountButThatOfItsEntry)
{
    TestRouter made;
    edit(made.router, in_neighbors("neighbor\n  neighbor-address [remove] = 10.0.0.1\n  description = a\n"));
    EXPECT_EQ(candidate_of(made.router), in_neighbors("neighbor\n  neighbor-address = 10.0.0.1\n  description = a\n"));
}

TEST(Edit, ValuesStandInTheFormOfTheirType)
{
    TestRouter made;
    edit(made.router, in_neighbors("neighbor\n  neighbor-address = 2001:DB8:0::1\n  timers\n    hold-time = +090\n"));
    edit(made.router, in_neighbors("neighbor\n  neighbor-address = 2001:db8::1\n  description = a\n"));
    EXPECT_EQ(candidate_of(made.router), in_neighbors("neighbor\n  neighbor-address = 2001:db8::1\n  description = a\n"
                                                      "  timers\n    hold-time = 90\n"));
}

TEST(Edit, AnswersStandInTheOrderOfTheModelAndEntriesInThatOfTheirMaking)
{
    TestRouter made;
    edit(made.router, in_neighbors("neighbor\n  neighbor-address = 10.0.0.9\n  timers\n    hold-time = 9\n"
                                   "    keepalive-interval = 3\n  description = a\n  remote-as\n    as-yy = 1\n"
                                   "    as-xx = 0\nneighbor\n  neighbor-address = 10.0.0.1\n") +
                          in_as("bgp-running\ndefault-vrf\n  global\n    graceful-restart\n    router-id = 10.0.0.1"));
    EXPECT_EQ(candidate_of(made.router),
              in_as("bgp-running\ndefault-vrf\n  bgp-entity\n    neighbors\n      neighbor\n"
                    "        neighbor-address = 10.0.0.9\n        remote-as\n          as-xx = 0\n          as-yy = 1\n"
                    "        description = a\n        timers\n          keepalive-interval = 3\n"
                    "          hold-time = 9\n      neighbor\n        neighbor-address = 10.0.0.1\n"
                    "  global\n    router-id = 10.0.0.1\n    graceful-restart\n"));
}

TEST(Edit, TreesOfOtherModelsAreNotLookedAt)
{
    TestRouter made;
    edit(made.router, "bgp zr-oper\n  instances = 1\nbgp oc-bgp\n  global\nbgp\n  x\n");
    EXPECT_EQ(candidate_of(made.router), "");
}

TEST(Edit, GoesToTheCandidateAndNotToWhatRuns)
{
    TestRouter made;
    EXPECT_FALSE(made.router.candidate_differs());
    edit(made.router, in_global("router-id = 10.0.0.1"));
    EXPECT_TRUE(made.router.candidate_differs());
    EXPECT_EQ(running_of(made.router), "");
    edit(made.router, "bgp zr-cfg [remove]\n");
    EXPECT_FALSE(made.router.candidate_differs());
}

TEST(Edit, ADifferentOrderOfPoliciesMakesADifferenceAndOneOfNeighborsNone)
{
    TestRouter made;
    edit(made.router, in_family("route-policy-in = a\nroute-policy-in = b") +
                          in_neighbors("neighbor\n  neighbor-address = 10.0.0.2\n"));
    made.router.commit();
    edit(made.router, in_neighbors("neighbor [delete]\n  neighbor-address = 10.0.0.1\n") +
                          in_family("route-policy-in = a\nroute-policy-in = b"));
    EXPECT_FALSE(made.router.candidate_differs());
    edit(made.router, in_family("route-policy-in [delete] = a\nroute-policy-in = a"));
    EXPECT_TRUE(made.router.candidate_differs());
}

// ---- The AS ---------------------------------------------------------------------------------

TEST(EditOfAs, WithoutAnAsIsRefusedWhateverItDoes)
{
    const std::string high = in_instance("instance-as\n  as\n  four-byte-as\n    as\n    default-vrf\n      global\n");
    for (const char *line : {"router-id = 10.0.0.1", "router-id [remove]", "router-id [delete]", ""}) {
        TestRouter made;
        EXPECT_EQ(refusal_of(made.router, high + (*line != '\0' ? std::string("            ") + line + "\n" : "")),
                  "/bgp/instance[instance-name='default']/instance-as: " + std::string(no_as_is_known))
            << line;
        EXPECT_EQ(candidate_of(made.router), "");
    }
}

TEST(EditOfAs, WithoutItsLowHalfIsRefusedThere)
{
    TestRouter made;
    const std::string low = in_instance("instance-as\n  as = 0\n  four-byte-as\n    as\n    bgp-running\n");
    const std::string rule =
        "/bgp/instance[instance-name='default']/instance-as[as='0']/four-byte-as: " + std::string(no_as_is_known);
    EXPECT_EQ(refusal_of(made.router, low), rule);
    edit(made.router, in_as("bgp-running"));
    EXPECT_EQ(refusal_of(made.router, low), rule);
}

TEST(EditOfAs, MayComeWithEverythingElseInOneRequest)
{
    TestRouter made;
    edit(made.router, in_as("bgp-running\ndefault-vrf\n  global\n    router-id = 10.0.0.1"));
    EXPECT_EQ(candidate_of(made.router), in_as("bgp-running\ndefault-vrf\n  global\n    router-id = 10.0.0.1"));
}

TEST(EditOfAs, ToAnotherOneIsRefused)
{
    TestRouter made;
    edit(made.router, in_as("bgp-running"));
    EXPECT_EQ(refusal_of(made.router, in_as("bgp-running", "65002")),
              "/bgp/instance[instance-name='default']/instance-as[as='0']/four-byte-as[as='65002']: " +
                  std::string(as_cannot_change));
    EXPECT_EQ(refusal_of(made.router, in_instance("instance-as\n  as = 1\n  four-byte-as\n    as = 65001\n")),
              "/bgp/instance[instance-name='default']/instance-as[as='1']: " + std::string(as_cannot_change));
    EXPECT_EQ(refusal_of(made.router, in_as("bgp-running") + in_as("bgp-running", "65002")),
              "/bgp/instance[instance-name='default']/instance-as[as='0']/four-byte-as[as='65002']: " +
                  std::string(as_cannot_change))
        << "also behind the one that stands";
    EXPECT_EQ(candidate_of(made.router), in_as("bgp-running"));
}

TEST(EditOfAs, ToAnotherOneIsTakenOnceBgpIsDeleted)
{
    TestRouter made;
    edit(made.router, in_as("bgp-running"));
    edit(made.router, "bgp zr-cfg\n  instance [delete]\n    instance-name = default\n");
    edit(made.router, in_as("bgp-running", "65002"));
    EXPECT_EQ(candidate_of(made.router), in_as("bgp-running", "65002"));
    edit(made.router, "bgp zr-cfg\n  instance [replace]\n    instance-name = default\n    instance-as\n      as = 0\n"
                      "      four-byte-as\n        as = 65003\n");
    EXPECT_EQ(candidate_of(made.router), in_as("", "65003")) << "a replaced instance begins anew";
}

TEST(EditOfAs, DeletesOnlyTheOneThatItNames)
{
    TestRouter made;
    edit(made.router, in_as("bgp-running"));
    EXPECT_EQ(refusal_of(made.router, in_instance("instance-as\n  as = 0\n  four-byte-as [delete]\n    as = 65002\n")),
              "/bgp/instance[instance-name='default']/instance-as[as='0']/four-byte-as[as='65002']: data is missing");
    edit(made.router, in_instance("instance-as [delete]\n  as = 0\n"));
    EXPECT_EQ(candidate_of(made.router), in_instance(""));
}

TEST(EditOfAs, OfOneInstanceSaysNothingOfAnother)
{
    TestRouter made;
    edit(made.router, in_as("bgp-running"));
    edit(made.router, in_instance("instance-as\n  as = 0\n  four-byte-as\n    as = 65002\n", "other"));
    EXPECT_FALSE(candidate_of(made.router).empty());
}

// ---- Refusals -------------------------------------------------------------------------------

namespace {

struct RefusalCase {
    const char *name;
    std::string lines;  // in the global container
    std::string path;   // behind its path
    std::string rule;   // or "~" and a part of what the type says
};

const RefusalCase refusals[] = {
    {"UnknownNode", "colour = red", "/colour", "the model has no such node"},
    {"ValueOutOfItsType", "router-id = 10.0.0", "/router-id", "~10.0.0"},
    {"NumberTooLarge", "graceful-restart-time = 4294967296", "/graceful-restart-time", "~4294967296"},
    {"ValueOfALeafOfTypeEmpty", "graceful-restart = true", "/graceful-restart", "~empty"},
    {"CharacterThatXmlDoesNotHave", "router-id = \"\\u0001\"", "/router-id",
     "a value with a character that XML does not have"},
    {"ValueOfAContainer", "confederation-domain = 5", "/confederation-domain", "only a leaf has a value"},
    {"ChildOfALeaf", "router-id\n  x", "/router-id", "a leaf has nothing below it"},
    {"EntryWithoutItsKey", "global-afs\n  global-af\n    enable", "/global-afs/global-af",
     "an entry without a value of its key af-name"},
    {"EntryWithAKeyWithoutAValue", "global-afs\n  global-af\n    af-name", "/global-afs/global-af",
     "an entry without a value of its key af-name"},
    {"RemovalOfAnEntryWithoutItsKey", "global-afs\n  global-af [remove]", "/global-afs/global-af",
     "an entry without a value of its key af-name"},
    {"EntryWithoutOneOfTwoKeys", "confederation-peer-ases\n  confederation-peer-as\n    as-xx = 0",
     "/confederation-peer-ases/confederation-peer-as", "an entry without a value of its key as-yy"},
    {"KeyOutOfItsType", "global-afs\n  global-af\n    af-name = ipv5-unicast", "/global-afs/global-af/af-name",
     "~ipv5-unicast"},
};

class RefusalOf : public testing::TestWithParam<RefusalCase> {};

}  // namespace

TEST_P(RefusalOf, NamesThePathAndTheRuleAndChangesNothing)
{
    TestRouter made;
    edit(made.router, in_global("graceful-restart-time = 5"));
    const std::string before = candidate_of(made.router);
    const std::string request = in_global("graceful-restart-time = 6\nbest-path-med-always\n" + GetParam().lines) +
                                in_global("best-path-router-id");
    try {
        edit(made.router, request);
        ADD_FAILURE() << "taken";
    } catch (const router::Refused &refused) {
        const auto &[path, rule] = refused.violations.at(0);
        EXPECT_EQ(path, vrf_path + "/global" + GetParam().path);
        if (GetParam().rule.starts_with('~'))
            EXPECT_NE(rule.find(GetParam().rule.substr(1)), std::string::npos) << rule;
        else
            EXPECT_EQ(rule, GetParam().rule);
    }
    EXPECT_EQ(candidate_of(made.router), before);
}

INSTANTIATE_TEST_SUITE_P(All, RefusalOf, testing::ValuesIn(refusals), name_of_case<RefusalCase>);

TEST(Refusal, OfAnOperationThatNetconfDoesNotHave)
{
    TestRouter made;
    platform::Tree request = io::read_tree("bgp zr-cfg\n");
    platform::set_operation(platform::children_of(request.root())[0], 5);
    EXPECT_EQ(error_of<router::Refused>([&] { made.router.edit(request.root()); }),
              "/bgp: no edit operation has the number 5");
}

TEST(Refusal, HoldsItsViolationsApart)
{
    TestRouter made;
    try {
        edit(made.router, in_global("router-id [delete]"));
        FAIL();
    } catch (const router::Refused &refused) {
        ASSERT_EQ(refused.violations.size(), 1u);
        EXPECT_EQ(refused.violations[0].path, vrf_path + "/global/router-id");
        EXPECT_EQ(refused.violations[0].rule, "data is missing");
    }
}

TEST(Refusal, QuotesAKeyWithWhatItDoesNotHold)
{
    TestRouter made;
    EXPECT_EQ(refusal_of(made.router, in_groups("neighbor-group [delete]\n  neighbor-group-name = it's\n")),
              vrf_path + "/bgp-entity/neighbor-groups/neighbor-group[neighbor-group-name=\"it's\"]: data is missing");
}

TEST(Refusal, DoesNotQuoteAPassword)
{
    TestRouter made;
    const std::string refusal = refusal_of(
        made.router,
        in_neighbors("neighbor\n  neighbor-address = 10.0.0.1\n  password\n    password = \"s3cret\\u0001\"\n"));
    EXPECT_NE(refusal, "");
    EXPECT_EQ(refusal.find("s3cret"), std::string::npos);
}
