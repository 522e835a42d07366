// `ocbgp get --explain-missing`: what is not in an answer, and why.
#include <sstream>
#include <vector>

#include "router_folder.h"

namespace {

std::string family(const std::string &name, const std::string &inside)
{
    return "<afi-safi><afi-safi-name>t:" + name + "</afi-safi-name>" + inside + "</afi-safi>";
}

std::string paths(int count)
{
    return "<use-multiple-paths><ebgp><config><maximum-paths>" + std::to_string(count) +
           "</maximum-paths></config></ebgp></use-multiple-paths>";
}

const char *const four_families[] = {"IPV4_UNICAST", "IPV4_MULTICAST", "IPV6_UNICAST", "IPV6_MULTICAST"};

std::string edit_of_paths(const std::vector<int> &counts)
{
    std::string families;
    for (size_t at = 0; at < counts.size(); at++) families += family(four_families[at], paths(counts[at]));
    return global_edit("<config><as>65001</as></config><afi-safis>" + families + "</afi-safis>");
}

class Missing : public RouterFolder {
protected:
    // What is said of a read; the answer is the same as without the question.
    static std::string explained(const std::string &arguments)
    {
        const Ran ran = run_ocbgp("get --explain-missing " + arguments);
        EXPECT_EQ(ran.code, 0) << ran.err;
        EXPECT_EQ(ran.out, run_ocbgp("get " + arguments).out) << arguments;
        return ran.err;
    }

    static std::string line_with(const std::string &text, const std::string &begin)
    {
        std::istringstream in(text);
        for (std::string line; std::getline(in, line);)
            if (line.starts_with(begin)) return line;
        return "";
    }
};

}  // namespace

TEST_F(Missing, YangDefaultsAreNotReported)
{
    succeed("edit examples/global-edit.xml");
    EXPECT_EQ(explained("--path /bgp/global/route-selection-options/config/always-compare-med"),
              "missing: /bgp/global/route-selection-options/config/always-compare-med: the router has no value; the "
              "model's default, false, is not reported\n");
    // It is there once somebody has set it.
    succeed("edit -", global_edit("<route-selection-options><config><always-compare-med>true</always-compare-med>"
                                  "</config></route-selection-options>"));
    EXPECT_EQ(explained("--path /bgp/global/route-selection-options/config/always-compare-med"), "");
}

TEST_F(Missing, WithoutADefaultTheRouterHasNoValue)
{
    succeed("edit -", global_edit("<config><as>65001</as></config>"));
    EXPECT_EQ(explained("--path /bgp/global/config/router-id"),
              "missing: /bgp/global/config/router-id: the router has no value\n");
    EXPECT_EQ(explained("--path /bgp/global/config"),
              "missing: /bgp/global/config/router-id: the router has no value\n");
    EXPECT_EQ(explained("--path /bgp/global/confederation/config"),
              "missing: /bgp/global/confederation/config: the router has no value for any of the 2 leaves that it "
              "holds\n");
}

TEST_F(Missing, FamiliesThatDisagreeHaveNoGlobalLeaf)
{
    const std::string read = "--path /bgp/global/use-multiple-paths/ebgp/config/maximum-paths";
    const std::string leaf = "/bgp/global/use-multiple-paths/ebgp/config/maximum-paths";
    succeed("edit -", edit_of_paths({4, 4, 8, 4}));
    EXPECT_EQ(line_with(explained(read), "missing: "),
              "missing: " + leaf +
                  ": the families disagree, and have no global leaf: ipv4-unicast 4, ipv4-multicast 4, "
                  "ipv6-unicast 8, ipv6-multicast 4");
    succeed("reset");
    succeed("edit -", edit_of_paths({4, 4, 4}));
    EXPECT_EQ(line_with(explained(read), "missing: "),
              "missing: " + leaf +
                  ": the families disagree, and have no global leaf: ipv4-unicast 4, ipv4-multicast 4, "
                  "ipv6-unicast 4, ipv6-multicast none");
    succeed("edit -", edit_of_paths({4, 4, 4, 4}));
    EXPECT_EQ(line_with(explained(read), "missing: "), "");
}

TEST_F(Missing, DistancesThatDisagreeHaveNoGlobalLeaf)
{
    succeed("edit -", global_edit("<config><as>65001</as></config><default-route-distance><config>"
                                  "<external-route-distance>20</external-route-distance>"
                                  "<internal-route-distance>200</internal-route-distance></config>"
                                  "</default-route-distance>"));
    const std::string read = "--path /bgp/global/default-route-distance/config";
    EXPECT_EQ(line_with(explained(read), "missing: "), "");
    succeed("edit -", global_edit("<afi-safis>" + family("IPV6_MULTICAST", "").insert(9, " nc:operation=\"delete\"") +
                                  "</afi-safis>"));
    EXPECT_EQ(line_with(explained(read), "missing: "),
              "missing: /bgp/global/default-route-distance/config/external-route-distance: the families disagree, and "
              "have no global leaf: ipv4-unicast 20, ipv4-multicast 20, ipv6-unicast 20, ipv6-multicast none");
}

TEST_F(Missing, AFullReadHasNoGlobalMultipathLeaves)
{
    succeed("edit -", edit_of_paths({4, 4, 4, 4}));
    for (const std::string read : {"", "--path /bgp", "--path /bgp/global"}) {
        const std::string line =
            line_with(explained(read), "missing: /bgp/global/use-multiple-paths/ebgp/config/maximum-paths: ");
        EXPECT_EQ(
            line,
            "missing: /bgp/global/use-multiple-paths/ebgp/config/maximum-paths: a read that takes in the families "
            "too has no global multipath leaves; read /bgp/global/use-multiple-paths, or the families' own leaves")
            << read;
    }
    EXPECT_EQ(line_with(explained("--path /bgp/global/use-multiple-paths"),
                        "missing: /bgp/global/use-multiple-paths/ebgp/config"),
              "");
}

TEST_F(Missing, NativeValuesWithoutAnOpenConfigFormAreDropped)
{
    succeed("edit examples/internet-edge-edit.xml");
    const std::string said = explained("--path /bgp/neighbors --config");
    // A native leaf that no handler takes.
    EXPECT_NE(said.find("/maximum-prefixes/warning-only = false: no handler takes it"), std::string::npos) << said;
    // A native leaf that a handler takes and makes nothing of.
    EXPECT_NE(
        said.find("/password/password-disable = false: vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_"
                  "defaultvrf_bgpentity_neighbors_neighbor_password_passworddisable makes nothing of it"),
        std::string::npos)
        << said;
    // What comes back is not told, nor are the halves of a number, nor a password.
    for (const std::string comes_back : {"remote-as", "as-xx", "description = ", "auth-password"})
        EXPECT_EQ(said.find("dropped: " + comes_back), std::string::npos) << comes_back;
    EXPECT_EQ(said.find("/description = "), std::string::npos);
    EXPECT_EQ(said.find("/remote-as"), std::string::npos);
}

TEST_F(Missing, AStateWithoutAnOpenConfigWordIsDropped)
{
    succeed("edit examples/internet-edge-edit.xml");
    std::string operational = read_file(SOURCE_DIR "/examples/neighbors-operational.xml");
    const std::string word = "bgp-st-active";
    ASSERT_NE(operational.find(word), std::string::npos);
    operational.replace(operational.find(word), word.size(), "bgp-st-none");
    succeed("load-operational -", operational);
    const std::string said =
        explained("--path \"/bgp/neighbors/neighbor[neighbor-address='203.0.113.9']/state/session-state\"");
    EXPECT_NE(
        said.find("missing: /bgp/neighbors/neighbor[neighbor-address='203.0.113.9']/state/session-state: what the "
                  "router has here has no OpenConfig form: "),
        std::string::npos)
        << said;
    EXPECT_NE(said.find("/connection-state = bgp-st-none"), std::string::npos) << said;
}

TEST_F(Missing, ConfigAndStateThatAreBothNamedKeepEachOtherOut)
{
    succeed("edit examples/global-edit.xml");
    const Ran ran =
        run_ocbgp("get --explain-missing -", "{\"openconfig-bgp:bgp\": {\"global\": {\"config\": {\"router-id\": "
                                             "[null]}, \"state\": {\"router-id\": [null]}}}}");
    EXPECT_EQ(ran.code, 0) << ran.err;
    EXPECT_EQ(line_with(ran.err, "missing: "),
              "missing: /bgp/global/config/router-id: config and state were both named, and each keeps the other out");
}

TEST_F(Missing, AnEntryThatIsNotThereIsToldOnce)
{
    succeed("edit examples/global-edit.xml");
    EXPECT_EQ(explained("--path \"/bgp/neighbors/neighbor[neighbor-address='10.9.9.9']/config\""),
              "missing: /bgp/neighbors/neighbor[neighbor-address='10.9.9.9']: the answer has no such entry\n");
}

TEST_F(Missing, NothingIsSaidWhereNothingIsMissing)
{
    succeed("edit examples/global-edit.xml");
    EXPECT_EQ(explained("--path /bgp/global/config"), "");
    EXPECT_EQ(run_ocbgp("get --path /bgp/global/config").err, "");
}
