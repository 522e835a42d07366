// `ocbgp explain`.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "command.h"

using nlohmann::json;

// ---- What a node becomes --------------------------------------------------------------------

TEST(Explain, TellsWhatEachKindBecomesWhoAnswersAndWhatComesBack)
{
    const Ran ran = run_ocbgp("explain '/bgp/neighbors/neighbor[neighbor-address=10.0.0.1]/config/peer-as'");
    EXPECT_EQ(ran.code, 0) << ran.err;
    const std::string remote =
        "/bgp/instance[instance-name='default']/instance-as[as='0']/four-byte-as[as='65000']/default-vrf/bgp-entity/"
        "neighbors/neighbor[neighbor-address='10.0.0.1']/remote-as";
    for (const std::string &line :
         {std::string("/bgp/neighbors/neighbor[neighbor-address='10.0.0.1']/config/peer-as\n"),
          std::string("  leaf of type uint32, writable\n"),
          std::string("  handler: vmf_map_leaf_oc_bgp_neighbors_neighbor_config_peeras, an override\n"
                      "           manageability/yang/framework/mapping/src/vmf_map_oc_bgp_man/neighbor.cpp\n"),
          "  read\n    reads " + remote + "\n",
          "  merge of \"65001\"\n    writes " + remote + "/as-xx = 0  (companion)\n    writes " + remote +
              "/as-yy = 65001\n",
          "  delete\n    deletes " + remote + "\n", "  comes back\n    \"65001\" from " + remote + "/as-yy = 65001\n"})
        EXPECT_NE(ran.out.find(line), std::string::npos) << line << "in\n" << ran.out;
}

TEST(Explain, AKindLeavesTheOthersOut)
{
    const std::string out = run_ocbgp("explain /bgp/global/config/as --kind delete").out;
    EXPECT_NE(out.find("\n  delete\n    deletes /bgp/instance[instance-name='default']\n"), std::string::npos) << out;
    for (const char *other : {"\n  read\n", "\n  merge", "\n  replace", "\n  comes back", "a merge "})
        EXPECT_EQ(out.find(other), std::string::npos) << other << " in\n" << out;
}

TEST(Explain, JsonOfOneNodeIsAnObject)
{
    const json node = json::parse(run_ocbgp("explain /bgp/global/config/router-id --json").out);
    EXPECT_EQ(node["path"], "/bgp/global/config/router-id");
    EXPECT_EQ(node["handler"]["override"], false);
    EXPECT_EQ(node["answers"][0]["native-value"], node["answers"][0]["value"]);
}

TEST(Explain, AllNodesAreInTheOrderOfTheModel)
{
    const json all = json::parse(run_ocbgp("explain --all --json").out);
    ASSERT_EQ(all.size(), 431u);
    EXPECT_EQ(all[0]["path"], "/bgp");
    EXPECT_EQ(all[3]["path"], "/bgp/global/config/as");
    EXPECT_EQ(all[3]["oddities"], json::parse(run_ocbgp("explain /bgp/global/config/as --json").out)["oddities"]);
}

// ---- The other way --------------------------------------------------------------------------

TEST(Explain, ANativeLeafTellsWhatItFeeds)
{
    const std::string leaf = "/bgp/instance/instance-as/four-byte-as/default-vrf/global/graceful-restart";
    const std::string in_router = "/bgp/instance[instance-name='default']/instance-as[as='0']/four-byte-as[as='65000']/"
                                  "default-vrf/global/graceful-restart\n";
    const Ran ran = run_ocbgp("explain --native " + leaf);
    EXPECT_EQ(ran.code, 0) << ran.err;
    EXPECT_EQ(ran.out, in_router + "    /bgp/global/graceful-restart/config/enabled = true\n" + in_router +
                           "    /bgp/global/graceful-restart/state/enabled = true\n");
    const json feeds = json::parse(run_ocbgp("explain --json --native " + leaf).out);
    EXPECT_EQ(feeds.size(), 2u);
    EXPECT_EQ(feeds[0]["path"], "/bgp/global/graceful-restart/config/enabled");
}

TEST(Explain, ANativeLeafThatFeedsNothingSaysSo)
{
    const Ran ran = run_ocbgp("explain --native /bgp/instance/instance-as/four-byte-as/default-vrf/global/global-afs/"
                              "global-af/distance/local-routes");
    EXPECT_EQ(ran.code, 0);
    EXPECT_NE(ran.out.find("feeds no leaf of OpenConfig"), std::string::npos) << ran.out;
}

// ---- Refusals -------------------------------------------------------------------------------

TEST(Explain, AnUnknownPathIsRefusedWithItsReasonAndTheNearest)
{
    struct Case {
        const char *arguments, *reason, *nearest;
    };
    const Case cases[] = {
        {"/bgp/global/config/router-di", "not mapped: /bgp/global/config has no router-di",
         "/bgp/global/config/router-id"},
        {"'/bgp/neighbors/neighbor[name=x]/config/peer-as'", "wrong key: ", "/bgp/neighbors/neighbor/config/peer-as"},
        {"/bgp/neighbors/neighbor/state/peer-as --kind merge", "read-only: ", "/bgp/neighbors/neighbor/config/peer-as"},
        {"--native /bgp/instance/instance-as/az", "not in the native models", "/bgp/instance/instance-as/as"},
    };
    for (const Case &one : cases) {
        const Ran ran = run_ocbgp(std::string("explain ") + one.arguments);
        EXPECT_EQ(ran.code, 1) << one.arguments;
        EXPECT_EQ(ran.out, "") << one.arguments;
        EXPECT_NE(ran.err.find(std::string("  reason:  ") + one.reason), std::string::npos) << ran.err;
        EXPECT_NE(ran.err.find(std::string("  nearest: ") + one.nearest + "\n"), std::string::npos) << ran.err;
    }
}

TEST(Explain, ATextThatIsNoPathIsUnreadable)
{
    const Ran ran = run_ocbgp("explain bgp/global");
    EXPECT_EQ(ran.code, 2);
    EXPECT_EQ(ran.err, "ocbgp: bgp/global: at character 1: expected /\n");
}

TEST(Explain, WrongUsageIsTold)
{
    for (const char *arguments : {"explain", "explain --all", "explain /bgp --all --json", "explain /bgp --native /bgp",
                                  "explain /bgp --kind create"}) {
        const Ran ran = run_ocbgp(arguments);
        EXPECT_EQ(ran.code, 64) << arguments;
        EXPECT_EQ(ran.out, "") << arguments;
    }
}
