#include "difference.h"

#include "support.h"
#include "tree_text.h"

using namespace test;
using io::Secrets;

namespace {

std::string between(const std::string &before, const std::string &after, Secrets secrets = Secrets::hidden)
{
    return router::difference(io::read_tree(before).root(), io::read_tree(after).root(), secrets);
}

struct DifferenceCase {
    const char *name;
    std::string before;
    std::string after;
    std::string lines;  // "@" stands for the path of the default VRF
};

std::string neighbor(const std::string &address, const std::string &lines)
{
    return below("neighbor\n", "neighbor-address = " + address + "\n" + lines);
}

std::string policies(const std::string &lines)
{
    return in_neighbors(
        neighbor("10.0.0.1", "neighbor-afs\n" + below("  neighbor-af\n", "af-name = ipv4-unicast\n" + lines)));
}

const std::string family = "@/bgp-entity/neighbors/neighbor[neighbor-address='10.0.0.1']/neighbor-afs"
                           "/neighbor-af[af-name='ipv4-unicast']";

const DifferenceCase cases[] = {
    {"NoneOfNothing", "", "", ""},
    {"NoneOfTheSame", in_global("router-id = 10.0.0.1"), in_global("router-id = 10.0.0.1"), ""},
    {"ANewLeaf", in_global(""), in_global("router-id = 10.0.0.1"), "+ @/global/router-id = 10.0.0.1\n"},
    {"ALeafThatIsGone", in_global("router-id = 10.0.0.1"), in_global(""), "- @/global/router-id = 10.0.0.1\n"},
    {"AValueThatChanged", in_global("router-id = 10.0.0.1"), in_global("router-id = 10.0.0.2"),
     "- @/global/router-id = 10.0.0.1\n+ @/global/router-id = 10.0.0.2\n"},
    {"ALeafWithoutAValueIsAPathAlone", in_global(""), in_global("graceful-restart"), "+ @/global/graceful-restart\n"},
    {"AListEntryComesBeforeWhatStandsInItAndItsKeysInThePath", in_neighbors(""),
     in_neighbors(neighbor("10.0.0.1", "description = a\nremote-as\n  as-yy = 5\n")),
     "+ @/bgp-entity/neighbors/neighbor[neighbor-address='10.0.0.1']\n"
     "+ @/bgp-entity/neighbors/neighbor[neighbor-address='10.0.0.1']/description = a\n"
     "+ @/bgp-entity/neighbors/neighbor[neighbor-address='10.0.0.1']/remote-as/as-yy = 5\n"},
    {"AnEntryThatIsGone", in_neighbors(neighbor("10.0.0.1", "description = a\n")), in_neighbors(""),
     "- @/bgp-entity/neighbors/neighbor[neighbor-address='10.0.0.1']\n"
     "- @/bgp-entity/neighbors/neighbor[neighbor-address='10.0.0.1']/description = a\n"},
    {"EntriesMeetByTheirKeysWhereverTheyStand",
     in_neighbors(neighbor("10.0.0.1", "description = a\n") + neighbor("10.0.0.2", "description = b\n")),
     in_neighbors(neighbor("10.0.0.2", "description = c\n") + neighbor("10.0.0.1", "description = a\n")),
     "- @/bgp-entity/neighbors/neighbor[neighbor-address='10.0.0.2']/description = b\n"
     "+ @/bgp-entity/neighbors/neighbor[neighbor-address='10.0.0.2']/description = c\n"},
    {"ALeafMeetsItsOwnWhereverItStands",
     in_neighbors(neighbor("10.0.0.1", "description = a\nsession-open-mode = both\n")),
     in_neighbors(neighbor("10.0.0.1", "session-open-mode = both\ndescription = a\n")), ""},
    {"AnEntryWithTwoKeys", in_global("confederation-peer-ases"),
     in_global("confederation-peer-ases\n  confederation-peer-as\n    as-xx = 0\n    as-yy = 7"),
     "+ @/global/confederation-peer-ases/confederation-peer-as[as-xx='0'][as-yy='7']\n"},
    {"TheOrderOfTheTreesIsThatOfTheLines", in_global("router-id = 10.0.0.1\nbest-path-med-always\nbest-path-router-id"),
     in_global("router-id = 10.0.0.2\ngraceful-restart\nbest-path-router-id"),
     "- @/global/router-id = 10.0.0.1\n+ @/global/router-id = 10.0.0.2\n- @/global/best-path-med-always\n"
     "+ @/global/graceful-restart\n"},
    {"ANewPolicy", policies("route-policy-in = a\nroute-policy-in = b"),
     policies("route-policy-in = c\nroute-policy-in = a\nroute-policy-in = b"),
     "+ " + family + "/route-policy-in = c\n"},
    {"APolicyThatIsGone", policies("route-policy-in = a\nroute-policy-in = b"), policies("route-policy-in = b"),
     "- " + family + "/route-policy-in = a\n"},
    {"PoliciesInAnotherOrderAreAllGoneAndAllNew",
     policies("route-policy-in = a\nroute-policy-in = b\nroute-policy-in = c"),
     policies("route-policy-in = b\nroute-policy-in = a\nroute-policy-in = c"),
     "- " + family + "/route-policy-in = a\n- " + family + "/route-policy-in = b\n- " + family +
         "/route-policy-in = c\n+ " + family + "/route-policy-in = b\n+ " + family + "/route-policy-in = a\n+ " +
         family + "/route-policy-in = c\n"},
    {"TheOrderOfOneLeafListSaysNothingOfAnother",
     policies("route-policy-in = a\nroute-policy-in = b\nroute-policy-out = a"),
     policies("route-policy-in = b\nroute-policy-in = a\nroute-policy-out = a"),
     "- " + family + "/route-policy-in = a\n- " + family + "/route-policy-in = b\n+ " + family +
         "/route-policy-in = b\n+ " + family + "/route-policy-in = a\n"},
    {"AValueOnOneLine", in_neighbors(neighbor("10.0.0.1", "")),
     in_neighbors(neighbor("10.0.0.1", "description = \"a\\nb = c\"\n")),
     "+ @/bgp-entity/neighbors/neighbor[neighbor-address='10.0.0.1']/description = \"a\\nb = c\"\n"},
    {"AValueThatBecameEmpty", in_neighbors(neighbor("10.0.0.1", "description = a\n")),
     in_neighbors(neighbor("10.0.0.1", "description = \"\"\n")),
     "- @/bgp-entity/neighbors/neighbor[neighbor-address='10.0.0.1']/description = a\n"
     "+ @/bgp-entity/neighbors/neighbor[neighbor-address='10.0.0.1']/description = \"\"\n"},
    {"AnotherInstance", "", "bgp zr-cfg\n  instance\n    instance-name = it's\n",
     "+ /bgp/instance[instance-name=\"it's\"]\n"},
    {"TreesOfTwoModelsAreApart", "bgp zr-oper\n  instances\n    instance\n      instance-name = a\n",
     "bgp zr-cfg\n  instance\n    instance-name = a\n",
     "- /bgp/instances/instance[instance-name='a']\n+ /bgp/instance[instance-name='a']\n"},

    {"TreesOfTwoModelsInAnotherOrder", "bgp zr-oper\n  instances\nbgp zr-cfg\n  instance\n    instance-name = a\n",
     "bgp zr-cfg\n  instance\n    instance-name = a\nbgp zr-oper\n  instances\n", ""},

    // OpenConfig data.
    {"AnOpenConfigEntry", "bgp oc-bgp\n  neighbors\n    neighbor\n      neighbor-address = 10.0.0.1\n",
     "bgp oc-bgp\n  neighbors\n    neighbor\n      neighbor-address = 10.0.0.1\n      config\n        peer-as = 5\n",
     "+ /bgp/neighbors/neighbor[neighbor-address='10.0.0.1']/config/peer-as = 5\n"},
    {"AnIdentity",
     "bgp oc-bgp\n  global\n    afi-safis\n      afi-safi\n        afi-safi-name = bgp-types:IPV4_UNICAST\n",
     "bgp oc-bgp\n  global\n    afi-safis\n      afi-safi\n        afi-safi-name = bgp-types:IPV4_UNICAST\n"
     "        config\n          afi-safi-name = bgp-types:IPV4_UNICAST\n",
     "+ /bgp/global/afi-safis/afi-safi[afi-safi-name='IPV4_UNICAST']/config/afi-safi-name = bgp-types:IPV4_UNICAST\n"},
    {"ValuesThatAreASetHaveNoOrder",
     "bgp oc-bgp\n  global\n    confederation\n      config\n        member-as = 1\n        member-as = 2\n",
     "bgp oc-bgp\n  global\n    confederation\n      config\n        member-as = 2\n        member-as = 1\n"
     "        member-as = 3\n",
     "+ /bgp/global/confederation/config/member-as = 3\n"},
    {"WhatNoModelHas", "bgp oc-bgp\n  colour = red\n", "bgp oc-bgp\n  colour = blue\n  shade\n    dark\n",
     "- /bgp/colour = red\n+ /bgp/colour = blue\n+ /bgp/shade/dark\n"},
};

class Difference : public testing::TestWithParam<DifferenceCase> {};

}  // namespace

TEST_P(Difference, IsALineANode)
{
    std::string lines = GetParam().lines;
    for (size_t at = lines.find('@'); at != std::string::npos; at = lines.find('@')) lines.replace(at, 1, vrf_path);
    EXPECT_EQ(between(GetParam().before, GetParam().after), lines);
}

INSTANTIATE_TEST_SUITE_P(All, Difference, testing::ValuesIn(cases), name_of_case<DifferenceCase>);

TEST(DifferenceOfSecrets, PasswordsAreHiddenUnlessTheyAreAskedFor)
{
    const auto native = [](const std::string &password) {
        return in_neighbors(
            neighbor("10.0.0.1", "password\n  password-disable = false\n  password = " + password + "\n"));
    };
    const auto openconfig = [](const std::string &password) {
        return "bgp oc-bgp\n  neighbors\n    neighbor\n      neighbor-address = 10.0.0.1\n      config\n"
               "        auth-password = " +
               password + "\n";
    };
    const std::string native_path =
        vrf_path + "/bgp-entity/neighbors/neighbor[neighbor-address='10.0.0.1']/password/password";
    const std::string openconfig_path = "/bgp/neighbors/neighbor[neighbor-address='10.0.0.1']/config/auth-password";
    const auto lines = [](const std::string &path, const std::string &before, const std::string &after) {
        return "- " + path + " = " + before + "\n+ " + path + " = " + after + "\n";
    };
    EXPECT_EQ(between(native("old"), native("new")), lines(native_path, "***", "***"));
    EXPECT_EQ(between(native("old"), native("new"), Secrets::shown), lines(native_path, "old", "new"));
    EXPECT_EQ(between(openconfig("old"), openconfig("new")), lines(openconfig_path, "***", "***"));
    EXPECT_EQ(between(openconfig("old"), openconfig("new"), Secrets::shown), lines(openconfig_path, "old", "new"));
    EXPECT_EQ(between("", native("s3cret")).find("s3cret"), std::string::npos);
    EXPECT_EQ(between(native("s3cret"), "").find("s3cret"), std::string::npos);
}

TEST(DifferenceOfARouter, IsThatOfItsDatastores)
{
    TestRouter made;
    edit(made.router, in_global("router-id = 10.0.0.1"));
    made.router.commit();
    edit(made.router, in_global("router-id [delete]\ngraceful-restart"));
    EXPECT_EQ(router::difference(made.router.config(router::Datastore::running).root(),
                                 made.router.config(router::Datastore::candidate).root(), Secrets::hidden),
              "- " + vrf_path + "/global/router-id = 10.0.0.1\n+ " + vrf_path + "/global/graceful-restart\n");
}
