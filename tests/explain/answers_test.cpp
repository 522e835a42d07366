// Which native leaves an OpenConfig leaf is read from.
#include "answers.h"

#include <gtest/gtest.h>

using explain::Answer;

namespace {

constexpr char vrf[] = "/bgp/instance/instance-as/four-byte-as/default-vrf";
constexpr char oper[] = "/bgp/instances/instance/instance-active/default-vrf";

std::vector<Answer> answers_at(const char *path) { return explain::answers_of(explain::make_target(path)); }

// "VALUE <- NATIVE = NATIVE VALUE", without keys.
std::vector<std::string> lines_of(const std::vector<Answer> &answers)
{
    std::vector<std::string> lines;
    for (const Answer &answer : answers)
        lines.push_back(answer.value + " <- " + explain::path_of(*answer.native) +
                        (answer.native_value ? " = " + *answer.native_value : ""));
    return lines;
}

using Lines = std::vector<std::string>;

}  // namespace

TEST(Answers, ALeafIsReadFromTheOneThatHoldsIt)
{
    EXPECT_EQ(lines_of(answers_at("/bgp/global/graceful-restart/config/restart-time")),
              (Lines{"10 <- " + std::string(vrf) + "/global/graceful-restart-time = 10",
                     "0 <- " + std::string(vrf) + "/global/graceful-restart-time = 0"}));
}

TEST(Answers, APresenceIsABooleanAndMayBeTheOppositeOne)
{
    EXPECT_EQ(lines_of(answers_at("/bgp/global/route-selection-options/config/always-compare-med")),
              Lines{"true <- " + std::string(vrf) + "/global/best-path-med-always"});
    EXPECT_EQ(lines_of(answers_at("/bgp/global/route-selection-options/config/enable-aigp")),
              Lines{"false <- " + std::string(vrf) + "/global/best-path-aigp-ignore"});
}

TEST(Answers, EveryWordOfASessionsStateHasItsEnumeration)
{
    const std::string state = std::string(" <- ") + oper + "/neighbors/neighbor/connection-state = bgp-st-";
    EXPECT_EQ(lines_of(answers_at("/bgp/neighbors/neighbor/state/session-state")),
              (Lines{"IDLE" + state + "idle", "CONNECT" + state + "connect", "ACTIVE" + state + "active",
                     "OPENSENT" + state + "open-sent", "OPENCONFIRM" + state + "open-conf-irm",
                     "ESTABLISHED" + state + "estab"}));
}

TEST(Answers, AnAddressCountsOnlyBesideAWordThatItIsNotDisabled)
{
    const std::vector<Answer> answers = answers_at("/bgp/neighbors/neighbor/transport/config/local-address");
    ASSERT_EQ(answers.size(), 3u);
    EXPECT_EQ(lines_of(answers)[1], "192.0.2.9 <- " + std::string(vrf) +
                                        "/bgp-entity/neighbors/neighbor/local-address/local-ip-address = 192.0.2.9");
    ASSERT_EQ(answers[1].with.size(), 1u);
    EXPECT_TRUE(answers[1].with.front().ends_with("/local-address/local-address-disable = false"));
}

TEST(Answers, ADistanceNeedsAllFamiliesToAgree)
{
    const std::vector<Answer> answers = answers_at("/bgp/global/default-route-distance/config/external-route-distance");
    ASSERT_FALSE(answers.empty());
    EXPECT_EQ(explain::path_of(*answers.front().native),
              std::string(vrf) + "/global/global-afs/global-af/distance/external-routes");
    EXPECT_EQ(answers.front().with, Lines{"the same in the entries of all families"});
}

TEST(Answers, KeysAreReadFromKeys)
{
    const Lines lines = lines_of(answers_at("/bgp/neighbors/neighbor/afi-safis/afi-safi/afi-safi-name"));
    const std::string key =
        std::string(" <- ") + vrf + "/bgp-entity/neighbors/neighbor/neighbor-afs/neighbor-af/af-name = ";
    EXPECT_NE(std::find(lines.begin(), lines.end(), "L3VPN_IPV4_UNICAST" + key + "vp-nv4-unicast"), lines.end());
}

TEST(Answers, ANativeLeafMayFeedTwoOfOpenConfig)
{
    EXPECT_EQ(explain::feeds().fed_by(std::string(vrf) + "/global/router-id"),
              (std::set<std::string>{"/bgp/global/config/router-id", "/bgp/global/state/router-id"}));
    EXPECT_TRUE(
        explain::feeds().fed_by(std::string(vrf) + "/global/global-afs/global-af/distance/local-routes").empty());
}

// Whatever the mapping reads comes from somewhere.
TEST(Answers, EveryLeafIsFed)
{
    for (const model::OcNode &node : model::openconfig_bgp())
        EXPECT_NE(explain::is_leaf(node), explain::feeds().answers(node).empty()) << node.path;
}
