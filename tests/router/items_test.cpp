// The system database that follows from the configuration.
#include "contexts.h"
#include "support.h"
#include "tree_text.h"
#include "vmf_map_oc_bgp.h"
#include "vmf_map_platform.h"

using namespace test;

namespace {

constexpr char as_pattern[] = "/cfg/gl/ip-bgp/default/.*/.*/gbl/edm/ord_a/running";
const std::string base = "/cfg/gl/ip-bgp/default/0/65001/";
const std::string nbr = base + "ord_a/default/nbr/________/edm/ord_u/0x3/";
const std::string grp = base + "ord_a/default/nbr/________/edm/ord_q/0x2/________/";

// The places of a family's items; `family` is its code.
std::string neighbor_activation(const std::string &key, const std::string &family)
{
    return nbr + key + "/________/ord_s/" + family + "/ord_c/activate";
}
std::string group_activation(const std::string &key, const std::string &family)
{
    return grp + key + "/ord_s/" + family + "/ord_c/activate";
}
std::string neighbor_limits(const std::string &key, const std::string &family)
{
    return nbr + key + "/________/________/ord_s/" + family + "/ord_g/";
}
std::string group_limits(const std::string &key, const std::string &family)
{
    return grp + key + "/________/ord_s/" + family + "/ord_g/";
}

// "LOCATION" or "LOCATION = WORDS", a line a record.
std::string found(const router::Router &router, const std::string &pattern, bool merged = true)
{
    std::string lines;
    for (const platform::DatabaseRecord &record : router.database().find(pattern, merged)) {
        lines += record.location + " =";
        for (const uint32_t word : record.words) lines += " " + std::to_string(word);
        lines += "\n";
    }
    return lines;
}

std::string neighbor_with(const std::string &family, const std::string &lines, const std::string &key = "10.0.0.1")
{
    return in_neighbors("neighbor\n  neighbor-address = " + key + "\n  neighbor-afs\n" +
                        below("    neighbor-af\n", "af-name = " + family + "\n" + lines));
}

std::string group_with(const std::string &family, const std::string &lines, const std::string &key = "g")
{
    return in_groups("neighbor-group\n  neighbor-group-name = " + key + "\n  neighbor-group-afs\n" +
                     below("    neighbor-group-af\n", "af-name = " + family + "\n" + lines));
}

constexpr char limit_of_10[] = "maximum-prefixes\n  prefix-limit = 10";

}  // namespace

// ---- The AS ---------------------------------------------------------------------------------

TEST(AsItem, StandsWhereBgpRuns)
{
    TestRouter made;
    EXPECT_EQ(found(made.router, as_pattern), "");
    edit(made.router, in_as(""));
    EXPECT_EQ(found(made.router, as_pattern), "") << "an AS alone does not run";
    edit(made.router, in_as("bgp-running"));
    EXPECT_EQ(found(made.router, as_pattern), base + "gbl/edm/ord_a/running = 1\n");
    edit(made.router, in_as("bgp-running [delete]"));
    EXPECT_EQ(found(made.router, as_pattern), "");
}

TEST(AsItem, HasBothHalvesInItsPlace)
{
    TestRouter made;
    edit(made.router, in_instance("instance-as\n  as = 7\n  four-byte-as\n    as = 4294967295\n    bgp-running\n"));
    EXPECT_EQ(found(made.router, as_pattern), "/cfg/gl/ip-bgp/default/7/4294967295/gbl/edm/ord_a/running = 1\n");
}

TEST(AsItem, IsThatOfTheDefaultInstance)
{
    TestRouter made;
    edit(made.router, in_instance("instance-as\n  as = 0\n  four-byte-as\n    as = 5\n    bgp-running\n", "other"));
    EXPECT_EQ(found(made.router, as_pattern), "");
}

TEST(AsItem, TheMergedViewIsTheCandidateAndTheOtherWhatRuns)
{
    TestRouter made;
    edit(made.router, in_as("bgp-running"));
    EXPECT_NE(found(made.router, as_pattern, true), "");
    EXPECT_EQ(found(made.router, as_pattern, false), "");
    made.router.commit();
    EXPECT_NE(found(made.router, as_pattern, false), "");
    edit(made.router, "bgp zr-cfg [delete]\n");
    EXPECT_EQ(found(made.router, as_pattern, true), "");
    EXPECT_NE(found(made.router, as_pattern, false), "");
    made.router.discard();
    EXPECT_NE(found(made.router, as_pattern, true), "");
}

TEST(AsItem, IsWhatTheMappingFinds)
{
    TestRouter made;
    edit(made.router, in_instance("instance-as\n  as = 3\n  four-byte-as\n    as = 65001\n    bgp-running\n"));
    platform::Log log;
    framework::Contexts contexts(VMF_REQ_EDIT, made.router.database(), log);
    MapContext run = contexts.fresh_run();
    uint32_t high = 0;
    uint32_t low = 0;
    EXPECT_EQ(get_zr_cfg_bgp_as_num_from_sysdb(&run, &high, &low), VMF_RC_OK);
    EXPECT_EQ(high, 3u);
    EXPECT_EQ(low, 65001u);

    edit(made.router, "bgp zr-cfg [delete]\n");
    MapContext other = contexts.fresh_run();
    EXPECT_EQ(get_zr_cfg_bgp_as_num_from_sysdb(&other, &high, &low), SYSDB_NOTHING_FOUND);
}

// ---- Families -------------------------------------------------------------------------------

namespace {

struct Family {
    const char *name;
    const char *code;  // empty: the database has nothing of it
};

constexpr Family families[] = {
    {"ipv4-unicast", "0x0"},
    {"ipv6-unicast", "0x5"},
    {"ipv4-labeled-unicast", "0x2"},
    {"ipv6-labeled-unicast", "0x7"},
    {"vp-nv4-unicast", "0x4"},
    {"vp-nv6-unicast", "0x8"},
    {"vp-nv4-multicast", "0x10"},
    {"vp-nv6-multicast", "0x11"},
    {"l2vpnvpls", "0xa"},
    {"l2vpnevpn", "0xe"},
    {"ipv4-multicast", ""},
    {"ipv6-multicast", ""},
};

}  // namespace

TEST(FamilyItems, StandAtTheCodeOfTheFamily)
{
    for (const Family &family : families) {
        TestRouter made;
        const std::string lines = std::string("activate\n") + limit_of_10;
        edit(made.router, neighbor_with(family.name, lines) + group_with(family.name, lines));
        const std::string code = family.code;
        const std::string all = neighbor_activation("10.0.0.1", code) + " = 1\n" + group_activation("g", code) +
                                " = 1\n" + neighbor_limits("10.0.0.1", code) + "max-prefix = 10 75 0 0\n" +
                                group_limits("g", code) + "max-prefix = 10 75 0 0\n";
        EXPECT_EQ(found(made.router, "/cfg/gl/ip-bgp/default/"), code.empty() ? "" : all) << family.name;
    }
}

TEST(FamilyItems, AreFoundAtTheirOwnPlaceAlone)
{
    TestRouter made;
    const std::string lines = std::string("activate\n") + limit_of_10;
    edit(made.router, neighbor_with("ipv4-unicast", lines) + neighbor_with("ipv6-unicast", lines) +
                          neighbor_with("ipv4-unicast", lines, "10.0.0.2") + group_with("ipv4-unicast", lines) +
                          group_with("ipv4-unicast", lines, "10.0.0.1"));
    for (const std::string &place :
         {neighbor_activation("10.0.0.1", "0x0"), neighbor_activation("10.0.0.1", "0x5"),
          neighbor_activation("10.0.0.2", "0x0"), group_activation("g", "0x0"), group_activation("10.0.0.1", "0x0")})
        EXPECT_EQ(found(made.router, place), place + " = 1\n");
    for (const std::string &place :
         {neighbor_limits("10.0.0.1", "0x0"), neighbor_limits("10.0.0.1", "0x5"), neighbor_limits("10.0.0.2", "0x0"),
          group_limits("g", "0x0"), group_limits("10.0.0.1", "0x0")})
        EXPECT_EQ(found(made.router, place), place + "max-prefix = 10 75 0 0\n");
    for (const std::string &place :
         {neighbor_activation("10.0.0.3", "0x0"), neighbor_activation("g", "0x0"),
          neighbor_activation("10.0.0.2", "0x5"), neighbor_limits("10.0.0.3", "0x0"), group_limits("h", "0x0"),
          group_activation("g", "0x5"), group_limits("g", "0xe"), neighbor_limits("10.0.0.1", "0x0") + "other"})
        EXPECT_EQ(found(made.router, place), "") << place;
}

TEST(FamilyItems, OfAnotherAsAreNotThere)
{
    TestRouter made;
    edit(made.router, neighbor_with("ipv4-unicast", "activate"));
    const std::string place = neighbor_activation("10.0.0.1", "0x0");
    std::string other = place;
    other.replace(other.find("65001"), 5, "65002");
    EXPECT_EQ(found(made.router, other), "");
    other.replace(other.find("65002"), 5, ".*");
    EXPECT_EQ(found(made.router, other), place + " = 1\n");
}

TEST(FamilyItems, AnyElementMayStandForTheKeyOrTheCode)
{
    TestRouter made;
    edit(made.router,
         neighbor_with("ipv4-unicast", "activate") + neighbor_with("ipv6-unicast", "activate", "10.0.0.2"));
    EXPECT_EQ(found(made.router, neighbor_activation(".*", "0x5")), neighbor_activation("10.0.0.2", "0x5") + " = 1\n");
    EXPECT_EQ(found(made.router, neighbor_activation("10.0.0.1", ".*")),
              neighbor_activation("10.0.0.1", "0x0") + " = 1\n");
}

TEST(FamilyItems, FollowTheMergedViewOrWhatRuns)
{
    TestRouter made;
    const std::string activation = neighbor_activation("10.0.0.1", "0x0");
    edit(made.router, neighbor_with("ipv4-unicast", "activate"));
    EXPECT_EQ(found(made.router, activation, true), activation + " = 1\n");
    EXPECT_EQ(found(made.router, activation, false), "");
    made.router.commit();
    edit(made.router, neighbor_with("ipv4-unicast", "activate [delete]"));
    EXPECT_EQ(found(made.router, activation, true), "");
    EXPECT_EQ(found(made.router, activation, false), activation + " = 1\n");
}

TEST(FamilyItems, AFamilyThatIsNotActivatedHasNoActivation)
{
    TestRouter made;
    edit(made.router, neighbor_with("ipv4-unicast", limit_of_10));
    EXPECT_EQ(found(made.router, neighbor_activation("10.0.0.1", "0x0")), "");
}

TEST(FamilyItems, AnAddressIsFoundHoweverItIsWritten)
{
    TestRouter made;
    edit(made.router, neighbor_with("ipv6-unicast", limit_of_10, "2001:DB8::1"));
    for (const char *form : {"2001:db8::1", "2001:DB8:0::1"})
        EXPECT_EQ(found(made.router, neighbor_limits(form, "0x5")),
                  neighbor_limits(form, "0x5") + "max-prefix = 10 75 0 0\n");
}

TEST(FamilyItems, AGroupMayHaveASlashInItsName)
{
    TestRouter made;
    const std::string lines = std::string("activate\n") + limit_of_10;
    edit(made.router, group_with("ipv4-unicast", lines, "a/b"));
    EXPECT_EQ(found(made.router, group_activation("a/b", "0x0")), group_activation("a/b", "0x0") + " = 1\n");
    EXPECT_EQ(found(made.router, group_limits("a/b", "0x0")), group_limits("a/b", "0x0") + "max-prefix = 10 75 0 0\n");
    EXPECT_EQ(found(made.router, group_limits("a", "0x0")), "");
}

TEST(FamilyItems, AGroupWithASlashIsFoundWhateverElementIsLeftOpen)
{
    TestRouter made;
    edit(made.router, group_with("ipv4-unicast", "activate", "a/b"));
    const std::string place = group_activation("a/b", "0x0");
    for (const std::string element : {"65001", "nbr", "ord_q", "a", "b", "ord_s", "0x0", "activate"}) {
        std::string open = place;
        open.replace((open + "/").rfind("/" + element + "/") + 1, element.size(), ".*");
        EXPECT_EQ(found(made.router, open), place + " = 1\n") << open;
    }
    for (const std::string &pattern : {std::string(grp), grp + "a/", grp + "a/b/", grp + "a/b/ord_s/"})
        EXPECT_EQ(found(made.router, pattern), place + " = 1\n") << pattern;
    for (const std::string &pattern : {grp + "a", grp + "b/", grp + ".*/ord_s/0x0/ord_c/activate"})
        EXPECT_EQ(found(made.router, pattern), "") << pattern;
}

// ---- Prefix limits --------------------------------------------------------------------------

TEST(PrefixLimitItem, BeginsWithTheLimit)
{
    const std::pair<const char *, const char *> cases[] = {
        {"maximum-prefixes\n  prefix-limit = 4294967295", "4294967295 75 0 0"},
        {"maximum-prefixes\n  prefix-limit = 0\n  warning-percentage = 80", "0 80 0 0"},
        {"maximum-prefixes\n  prefix-limit = 5\n  warning-only = true\n  discard-extra-paths = false", "5 75 1 0"},
        {"maximum-prefixes\n  prefix-limit = 5\n  warning-only = false\n  discard-extra-paths = true", "5 75 0 1"},
    };
    for (const auto &[lines, words] : cases) {
        TestRouter made;
        edit(made.router, neighbor_with("ipv4-unicast", lines));
        EXPECT_EQ(found(made.router, neighbor_limits("10.0.0.1", "0x0")),
                  neighbor_limits("10.0.0.1", "0x0") + "max-prefix = " + words + "\n");
    }
}

TEST(PrefixLimitItem, IsNotThereWithoutALimit)
{
    TestRouter made;
    edit(made.router, neighbor_with("ipv4-unicast", "activate\nmaximum-prefixes\n  warning-percentage = 80"));
    EXPECT_EQ(found(made.router, neighbor_limits("10.0.0.1", "0x0")), "");
}

TEST(PrefixLimitItem, IsUnpackedWithTheLimitInTheFirstWord)
{
    TestRouter made;
    edit(made.router, neighbor_with("ipv4-unicast", limit_of_10));
    platform::Sessions sessions;
    sessions.open(1, made.router.database());
    VmfContext context = {.framework_state = &sessions, ._debug_ctx = {}};
    SysdbBackendSession *session = vmf_session_find(&context, 1)->me_session->backend_sessions[0];
    SysdbResultSet *set = nullptr;
    ASSERT_EQ(sysdb_backend_find_data(session, neighbor_limits("10.0.0.1", "0x0").c_str(), SYSDB_FIND_FLAGS, &set, 1),
              VMF_RC_OK);
    SysdbResult *result = nullptr;
    ASSERT_EQ(sysdb_backend_result_set_iterate_next(session, set, &result), VMF_RC_OK);
    ASSERT_NE(result, nullptr);
    uint32_t decoded[72] = {};
    void *tuple = nullptr;
    uint32_t count = 0;
    EXPECT_EQ(me_bk_sysdb_packed_data_unpack(result->packed_data, &tuple, &count, decoded), VMF_RC_OK);
    EXPECT_EQ(decoded[0], 10u);
    sysdb_backend_result_free(result);
    sysdb_backend_result_set_iterate_finish(set);
}
