// Whether a family is activated, asked of the mapping for the neighbors and groups of the router.
#include "contexts.h"
#include "support.h"
#include "vmf_map_oc_bgp.h"

using namespace test;

namespace {

constexpr const char *families[] = {"ipv4-unicast",   "ipv6-unicast",   "ipv4-labeled-unicast", "ipv6-labeled-unicast",
                                    "vp-nv4-unicast", "vp-nv6-unicast", "vp-nv4-multicast",     "vp-nv6-multicast",
                                    "l2vpnvpls",      "l2vpnevpn",      "ipv4-multicast",       "ipv6-multicast"};
constexpr size_t families_with_a_check = 4;

// Every family, all but one activated; an empty text: all are.
std::string families_but(const char *container, const char *entry, const std::string &left_out)
{
    std::string lines;
    for (const std::string family : families)
        lines += std::string(entry) + "\n  af-name = " + family + "\n" + (family == left_out ? "" : "  activate\n");
    return below(std::string("  ") + container + "\n", lines);
}

std::string configuration(const std::string &left_out = "")
{
    return in_as("bgp-running") +
           in_neighbors("neighbor\n  neighbor-address = 10.0.0.1\n" +
                        families_but("neighbor-afs", "neighbor-af", left_out)) +
           in_groups("neighbor-group\n  neighbor-group-name = transit\n" +
                     families_but("neighbor-group-afs", "neighbor-group-af", left_out));
}

struct Asked {
    explicit Asked(const router::Router &router) : contexts(VMF_REQ_GET, router.database(), log) {}

    uint32_t neighbor(const char *key, const char *family) { return ask(check_zr_cfg_bgp_nbr_af, key, family); }
    uint32_t group(const char *key, const char *family) { return ask(check_zr_cfg_bgp_nbr_grp_af, key, family); }

    uint32_t ask(uint32_t (*check)(MapContext *, const char *), const char *key, const char *family)
    {
        MapContext run = contexts.fresh_run();
        run.af_key = key;
        return check(&run, family);
    }

    platform::Log log;
    framework::Contexts contexts;
};

}  // namespace

TEST(Presence, IsFoundForTheFourUnicastFamiliesAlone)
{
    TestRouter made;
    edit(made.router, configuration());
    made.router.commit();
    Asked asked(made.router);
    for (size_t i = 0; i < std::size(families); i++) {
        EXPECT_EQ(asked.neighbor("10.0.0.1", families[i]), i < families_with_a_check ? 1u : 0u) << families[i];
        EXPECT_EQ(asked.group("transit", families[i]), i < families_with_a_check ? 1u : 0u) << families[i];
    }
}

TEST(Presence, OfAFamilyThatIsNotActivatedIsNotFound)
{
    for (size_t i = 0; i < families_with_a_check; i++) {
        TestRouter made;
        edit(made.router, configuration(families[i]));
        made.router.commit();
        Asked asked(made.router);
        for (size_t other = 0; other < families_with_a_check; other++) {
            EXPECT_EQ(asked.neighbor("10.0.0.1", families[other]), other != i ? 1u : 0u) << families[other];
            EXPECT_EQ(asked.group("transit", families[other]), other != i ? 1u : 0u) << families[other];
        }
    }
}

TEST(Presence, IsThatOfTheKeyInItsOwnList)
{
    TestRouter made;
    edit(made.router, configuration());
    made.router.commit();
    Asked asked(made.router);
    for (const char *key : {"10.0.0.2", "transit", ""}) EXPECT_EQ(asked.neighbor(key, "ipv4-unicast"), 0u) << key;
    for (const char *key : {"10.0.0.1", "peering", ""}) EXPECT_EQ(asked.group(key, "ipv4-unicast"), 0u) << key;
}

TEST(Presence, IsOfWhatRunsAndNotOfTheCandidate)
{
    TestRouter made;
    edit(made.router, configuration());
    Asked asked(made.router);
    EXPECT_EQ(asked.neighbor("10.0.0.1", "ipv4-unicast"), 0u);
    EXPECT_EQ(asked.group("transit", "ipv4-unicast"), 0u);
    made.router.commit();
    EXPECT_EQ(asked.neighbor("10.0.0.1", "ipv4-unicast"), 1u);
    EXPECT_EQ(asked.group("transit", "ipv4-unicast"), 1u);
}

TEST(Presence, WithoutASessionIsNotFound)
{
    TestRouter made;
    edit(made.router, configuration());
    made.router.commit();
    Asked asked(made.router);
    asked.contexts.message.session_id = 77;
    EXPECT_EQ(asked.neighbor("10.0.0.1", "ipv4-unicast"), 0u);
    EXPECT_EQ(asked.group("transit", "ipv4-unicast"), 0u);
}

TEST(Presence, WithAnEmptyRouterIsNotFound)
{
    TestRouter made;
    Asked asked(made.router);
    EXPECT_EQ(asked.neighbor("10.0.0.1", "ipv4-unicast"), 0u);
    EXPECT_EQ(asked.group("transit", "ipv4-unicast"), 0u);
}
