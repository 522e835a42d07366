// What requests for a node become, which of that nobody asked for, and what is odd about it.
#include "explanation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>

#include "explanation_json.h"

using explain::Explanation;
using explain::Kind;

namespace {

using Lines = std::vector<std::string>;

Explanation explain_path(const char *path) { return explain::explain_node(explain::make_target(path)); }

// "OPERATION PATH = VALUE", without keys; companions in parentheses.
Lines native_of(const Explanation &explanation, Kind kind, const char *value = nullptr)
{
    for (const explain::Request &request : explanation.requests) {
        const std::string said = request.value.value_or("");
        if (request.kind != kind || request.on_configured_router || (value != nullptr && said != value)) continue;
        Lines lines;
        for (const explain::NativeNode &native : request.native) {
            constexpr const char *operations[] = {"merge ", "replace ", "create ", "delete ", "remove "};
            std::string line = native.operation ? operations[*native.operation] : "";
            const std::string path = explain::path_of(*native.schema);
            line += path.substr(
                path.find("/default-vrf") == std::string::npos ? 0 : path.find("/default-vrf") + sizeof "/default-vrf");
            if (native.value && kind != Kind::read) line += " = " + *native.value;
            lines.push_back(native.is_companion ? "(" + line + ")" : line);
        }
        return lines;
    }
    return {"no such request"};
}

bool has_oddity(const Explanation &explanation, const std::string &start)
{
    return std::any_of(explanation.oddities.begin(), explanation.oddities.end(),
                       [&start](const std::string &line) { return line.starts_with(start); });
}

std::string all_of(const Lines &lines)
{
    std::string text;
    for (const std::string &line : lines) text += line + "\n";
    return text;
}

#define EXPECT_ODDITY(explanation, start) EXPECT_TRUE(has_oddity(explanation, start)) << all_of((explanation).oddities)

}  // namespace

// ---- What requests become -------------------------------------------------------------------

TEST(Explanation, AnAsGoesOutInTwoHalvesOfWhichOneIsACompanion)
{
    const Explanation peer_as = explain_path("/bgp/neighbors/neighbor/config/peer-as");
    const std::string remote = "bgp-entity/neighbors/neighbor/remote-as";
    EXPECT_EQ(native_of(peer_as, Kind::read), Lines{remote});
    EXPECT_EQ(native_of(peer_as, Kind::merge), (Lines{"(" + remote + "/as-xx = 0)", remote + "/as-yy = 65001"}));
    EXPECT_EQ(native_of(peer_as, Kind::replace),
              (Lines{"(replace " + remote + "/as-xx = 0)", "replace " + remote + "/as-yy = 65001"}));
    EXPECT_EQ(native_of(peer_as, Kind::remove), Lines{"delete " + remote});
    EXPECT_EQ(peer_as.acceptance, explain::Acceptance::writable);
}

TEST(Explanation, AStateLeafIsOnlyRead)
{
    const Explanation state = explain_path("/bgp/neighbors/neighbor/state/session-state");
    EXPECT_EQ(state.acceptance, explain::Acceptance::read_only);
    EXPECT_EQ(native_of(state, Kind::read), Lines{"neighbors/neighbor/connection-state"});
    for (const explain::Request &request : state.requests)
        EXPECT_EQ(request.outcome, request.kind == Kind::read ? VMF_RC_OK : VMF_RC_UNSUPPORTED);
}

TEST(Explanation, ADistanceSwitchesFourFamiliesOnWithACompanionForEach)
{
    const Lines merge =
        native_of(explain_path("/bgp/global/default-route-distance/config/external-route-distance"), Kind::merge, "10");
    ASSERT_EQ(merge.size(), 12u);
    EXPECT_EQ(merge[0], "(global/global-afs/global-af/enable)");
    EXPECT_EQ(merge[1], "(global/global-afs/global-af/distance/local-routes = 200)");
    EXPECT_EQ(merge[2], "global/global-afs/global-af/distance/external-routes = 10");
}

TEST(Explanation, TheEntryOfAKeyIsWhatTheListBecomes)
{
    const Explanation list = explain_path("/bgp/neighbors/neighbor");
    EXPECT_EQ(native_of(list, Kind::remove), Lines{"delete bgp-entity/neighbors/neighbor"});
    EXPECT_EQ(list.handler.symbol, "vmf_map_leaf_oc_bgp_neighbors_neighbor_neighboraddress");
}

TEST(Explanation, AThresholdIsRemovedOnlyWhereALimitStands)
{
    const Explanation threshold = explain_path(
        "/bgp/neighbors/neighbor/afi-safis/afi-safi/ipv4-unicast/prefix-limit/config/shutdown-threshold-pct");
    std::vector<const explain::Request *> removals;
    for (const explain::Request &request : threshold.requests)
        if (request.kind == Kind::remove) removals.push_back(&request);
    ASSERT_EQ(removals.size(), 2u);
    EXPECT_EQ(removals[0]->outcome, 2u);
    EXPECT_TRUE(removals[1]->on_configured_router);
    EXPECT_EQ(removals[1]->outcome, VMF_RC_OK);
    EXPECT_ODDITY(threshold, "a delete on a configured router takes nothing away natively");
    EXPECT_EQ(threshold.families, Lines{"IPV4_UNICAST"});
}

TEST(Explanation, TheAsReadsBackFromARouterWithoutBgp)
{
    for (const explain::Request &request : explain_path("/bgp/global/config/as").requests)
        EXPECT_TRUE(request.kind != Kind::merge || request.reads_back == Lines{"65001"});
}

// ---- Oddities -------------------------------------------------------------------------------

TEST(Oddities, FalseThatSwitchesOn)
{
    for (const char *path :
         {"/bgp/global/graceful-restart/config/enabled", "/bgp/neighbors/neighbor/ebgp-multihop/config/enabled",
          "/bgp/peer-groups/peer-group/afi-safis/afi-safi/config/enabled"}) {
        const Explanation enabled = explain_path(path);
        EXPECT_ODDITY(enabled, "all values are written alike: \"true\", \"false\"");
        EXPECT_ODDITY(enabled, "a merge of \"false\" reads back as \"true\"");
    }
}

TEST(Oddities, FalseThatIsDropped)
{
    for (const char *path : {"/bgp/global/afi-safis/afi-safi/config/enabled",
                             "/bgp/neighbors/neighbor/afi-safis/afi-safi/config/enabled"}) {
        const Explanation enabled = explain_path(path);
        EXPECT_ODDITY(enabled, "a merge of \"false\" is accepted and changes nothing");
        EXPECT_FALSE(has_oddity(enabled, "a merge of \"true\" is accepted and changes nothing"));
    }
}

TEST(Oddities, AWordThatIsDroppedBehindAReplace)
{
    EXPECT_ODDITY(explain_path("/bgp/global/route-selection-options/config/always-compare-med"),
                  "a merge of \"false\" changes nothing where one of these is replaced: /bgp, /bgp/global, ");
    EXPECT_ODDITY(explain_path("/bgp/global/route-selection-options/config/enable-aigp"),
                  "a merge of \"true\" changes nothing where one of these is replaced: /bgp, /bgp/global, ");
    EXPECT_FALSE(has_oddity(explain_path("/bgp/global/config/router-id"), "a merge of \"192.0.2.9\" changes nothing"));
}

TEST(Oddities, ARemovalThatTakesMore)
{
    EXPECT_ODDITY(explain_path("/bgp/neighbors/neighbor/ebgp-multihop/config/enabled"),
                  "a delete takes away too: /bgp/neighbors/neighbor/ebgp-multihop/config/multihop-ttl");
    EXPECT_ODDITY(explain_path("/bgp/global/config/as"), "a delete takes away too: /bgp/global/afi-safis, ");
    EXPECT_FALSE(has_oddity(explain_path("/bgp/global/config/router-id"), "a delete takes away too"));
}

TEST(Oddities, AKeyThatStandsTwiceIsNotWrittenTheSecondTime)
{
    EXPECT_ODDITY(explain_path("/bgp/neighbors/neighbor/config/neighbor-address"),
                  "a merge is accepted and changes nothing");
}

TEST(Oddities, AReadThatAsksForMore)
{
    EXPECT_ODDITY(explain_path("/bgp/neighbors/neighbor/config/peer-as"), "a read selects the whole of ");
    EXPECT_FALSE(has_oddity(explain_path("/bgp/global/config/router-id"), "a read selects"));
}

TEST(Oddities, ALeafThatIsNothingButItself)
{
    EXPECT_EQ(explain_path("/bgp/global/config/router-id").oddities, Lines{});
}

// ---- All of them ----------------------------------------------------------------------------

TEST(Explanation, EveryNodeIsTakenAndWritableWhereTheModelSaysSo)
{
    for (const model::OcNode &node : model::openconfig_bgp()) {
        const auto expected = node.config ? explain::Acceptance::writable : explain::Acceptance::read_only;
        EXPECT_EQ(explain::acceptance_of(explain::make_target(node.path)), expected) << node.path;
    }
}

TEST(Explanation, JsonHasTheFormThatItsHelpTells)
{
    const auto json =
        nlohmann::json::parse(explain::write_json(explain_path("/bgp/neighbors/neighbor/config/peer-as")));
    for (const char *name : {"path", "node", "type", "keys", "writable", "accepted", "handler", "request-path",
                             "requests", "answers", "oddities"})
        EXPECT_TRUE(json.contains(name)) << name;
    EXPECT_EQ(json["node"], "leaf");
    EXPECT_EQ(json["type"], "uint32");
    EXPECT_EQ(json["handler"]["override"], true);
    const auto &merge = json["requests"][1];
    EXPECT_EQ(merge["kind"], "merge");
    EXPECT_EQ(merge["outcome"], "accepted");
    EXPECT_EQ(merge["native"][0]["companion"], true);
    EXPECT_EQ(merge["native"][0]["operation"], nullptr);
    EXPECT_TRUE(merge["native"][1]["path"].get<std::string>().ends_with(
        "/neighbor[neighbor-address='192.0.2.1']/remote-as/as-yy"));
    EXPECT_EQ(json["answers"][0]["native-value"], "65001");
}
