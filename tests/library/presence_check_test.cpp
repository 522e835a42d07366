// Whether a family is activated for the neighbor or the group at hand.
#include "library_test.h"
#include "probe.h"

using namespace library_test;

namespace {

struct Check {
    const char *name;
    uint32_t (*function)(MapContext *, const char *);
    const char *symbol;
    const char *key;
    std::string before_code;  // the path for AS 0, 65001 and that key
    Lines first_words;
};

const Check checks[] = {
    {"of_a_neighbor",
     check_zr_cfg_bgp_nbr_af,
     "check_zr_cfg_bgp_nbr_af",
     "192.0.2.1",
     "/cfg/gl/ip-bgp/default/0/65001/ord_a/default/nbr/________/edm/ord_u/0x3/192.0.2.1/________/ord_s/",
     {"TRC Entering check_zr_cfg_bgp_nbr_af"}},
    {"of_a_group",
     check_zr_cfg_bgp_nbr_grp_af,
     "check_zr_cfg_bgp_nbr_grp_af",
     "transit",
     "/cfg/gl/ip-bgp/default/0/65001/ord_a/default/nbr/________/edm/ord_q/0x2/________/transit/ord_s/",
     {}},
};

struct Family {
    const char *name;
    const char *code;
};
constexpr Family families[] = {
    {"ipv4-unicast", "0x0"}, {"ipv4-labeled-unicast", "0x2"}, {"ipv6-unicast", "0x5"}, {"ipv6-labeled-unicast", "0x7"}};

constexpr char running_as[] = "/cfg/gl/ip-bgp/default/0/65001/gbl/edm/ord_a/running";

struct PresenceTest : testing::TestWithParam<Check> {
    PresenceTest()
    {
        probe::heard() = {};
        run.ctx.as_low = 65001;
        run.ctx.af_key = it.key;
    }
    // Whatever came of it, nothing stays allocated.
    ~PresenceTest() override { EXPECT_EQ(probe::memory_in_use(), Lines{}); }

    uint32_t ask(const char *family) { return it.function(&run.ctx, family); }

    std::string path_of(const Family &family) const { return it.before_code + family.code + "/ord_c/activate"; }
    std::string find_call(const Family &family) const { return "find " + path_of(family) + " 2 0"; }
    std::string find_call() const { return find_call(families[0]); }

    Lines framed_words(const Lines &words) const
    {
        Lines all = it.first_words;
        all.insert(all.end(), words.begin(), words.end());
        return framed(all);
    }
    // The lines of a check that gets as far as the database.
    Lines asked(const Family &family, const Lines &words) const
    {
        Lines all = {std::string("TRC af_value is : ") + family.code,
                     "TRC sysdb path to be verified is: " + path_of(family)};
        all.insert(all.end(), words.begin(), words.end());
        return framed_words(all);
    }
    Lines said() { return spoken(run).by(it.symbol); }

    const Check &it = GetParam();
    MappingRun run{VMF_REQ_EDIT};
    Operations operations;
};

TEST_P(PresenceTest, finds_an_activated_family)
{
    for (const Family &family : families) {
        run.database.clear();
        run.database.put({.location = path_of(family)});
        probe::heard() = {};
        EXPECT_EQ(ask(family.name), 1u);
        EXPECT_EQ(probe::heard().backend, (Lines{find_call(family), "finish"}));
        EXPECT_EQ(said(), asked(family, {std::string("TRC af-name: ") + family.name + " is configured in datastore"}));
    }
}

TEST_P(PresenceTest, does_not_find_a_family_that_is_not_activated)
{
    for (const Family &other : families) run.database.put({.location = path_of(other) + "d"});
    for (const Family &family : families) {
        probe::heard() = {};
        EXPECT_EQ(ask(family.name), 0u);
        EXPECT_EQ(probe::heard().backend, (Lines{find_call(family), "finish null"}));
        EXPECT_EQ(said(),
                  asked(family, {std::string("TRC af-name:") + family.name + " is NOT configured in datastore"}));
    }
}

TEST_P(PresenceTest, looks_at_the_running_configuration_alone)
{
    run.database.put({.location = path_of(families[0]), .only_in_candidate = true});
    EXPECT_EQ(ask("ipv4-unicast"), 0u);
    EXPECT_EQ(probe::heard().backend, (Lines{find_call(), "finish null"}));
}

TEST_P(PresenceTest, is_that_of_the_key_at_hand)
{
    run.database.put({.location = path_of(families[0])});
    run.ctx.af_key = "another";
    EXPECT_EQ(ask("ipv4-unicast"), 0u);
    run.ctx.af_key = it.key;
    EXPECT_EQ(ask("ipv4-unicast"), 1u);
}

TEST_P(PresenceTest, takes_a_set_for_the_answer_and_looks_at_no_record)
{
    const probe::Backend backend({});
    EXPECT_EQ(ask("ipv4-unicast"), 1u);
    EXPECT_EQ(probe::heard().backend, (Lines{find_call(), "finish"}));
}

TEST_P(PresenceTest, of_a_family_without_a_code_is_never_found)
{
    const probe::Backend backend({});
    const char *const without_a_code[] = {"ipv4-multicast",   "ipv6-multicast",   "vp-nv4-unicast", "vp-nv6-unicast",
                                          "vp-nv4-multicast", "vp-nv6-multicast", "l2vpnvpls",      "l2vpnevpn",
                                          "IPV4_UNICAST",     "Ipv4-unicast",     "colour",         ""};
    for (const char *family : without_a_code) {
        EXPECT_EQ(ask(family), 0u) << family;
        EXPECT_EQ(said(), framed_words({"ERR af_value is NULL"})) << family;
        EXPECT_EQ(probe::memory_in_use(), Lines{}) << family;
    }
    EXPECT_EQ(probe::heard().backend, Lines{});
    EXPECT_EQ(probe::heard().allocations.size(), std::size(without_a_code));
}

TEST_P(PresenceTest, of_no_family_is_refused_with_an_end)
{
    run.ctx.as_low = 0;
    EXPECT_EQ(ask(nullptr), 0u);
    EXPECT_EQ(said(), framed_words({"ERR NULL argument(s) passed!"}));
    EXPECT_EQ(probe::heard().backend, Lines{});
    EXPECT_TRUE(probe::heard().allocations.empty());
}

TEST_P(PresenceTest, asks_the_candidate_for_the_as_number_and_keeps_it)
{
    run.ctx.as_low = 0;
    run.database.put({.location = running_as, .only_in_candidate = true});
    run.database.put({.location = path_of(families[0])});
    EXPECT_EQ(ask("ipv4-unicast"), 1u);
    EXPECT_EQ(run.ctx.as_low, 65001u);
    EXPECT_EQ(probe::heard().backend, (Lines{"find /cfg/gl/ip-bgp/default/.*/.*/gbl/edm/ord_a/running 2 1", "start",
                                             "next", "location", "free", "finish", find_call(), "finish"}));
}

TEST_P(PresenceTest, without_an_as_number_finds_nothing)
{
    run.ctx.as_low = 0;
    run.database.put({.location = path_of(families[0])});
    EXPECT_EQ(ask("ipv4-unicast"), 0u);
    EXPECT_EQ(said(), framed_words({"ERR Error retreiving AS numbers"}));
    EXPECT_EQ(probe::heard().backend.size(), 2u);  // of the query for the number
    EXPECT_TRUE(probe::heard().allocations.empty());
}

TEST_P(PresenceTest, writes_both_halves_of_the_as_number_however_long)
{
    run.ctx.as_high = 4294967295;
    run.ctx.as_low = 4294967294;
    std::string location = path_of(families[0]);
    location.replace(location.find("0/65001"), sizeof "0/65001" - 1, "4294967295/4294967294");
    run.database.put({.location = location});
    EXPECT_EQ(ask("ipv4-unicast"), 1u);
    EXPECT_EQ(probe::heard().backend, (Lines{"find " + location + " 2 0", "finish"}));
}

TEST_P(PresenceTest, builds_its_path_in_512_bytes)
{
    EXPECT_EQ(ask("ipv4-unicast"), 0u);
    EXPECT_EQ(probe::heard().allocations, (std::vector<probe::Allocation>{{"sysdb path", 512, 0}}));
}

TEST_P(PresenceTest, without_memory_finds_nothing)
{
    const probe::Backend backend({.no_memory_for = "sysdb path"});
    EXPECT_EQ(ask("ipv4-unicast"), 0u);
    EXPECT_EQ(said(), framed_words({"ERR VMF map sysdb_path allocation failed"}));
    EXPECT_EQ(probe::heard().backend, Lines{});
}

TEST_P(PresenceTest, with_a_key_that_does_not_fit_finds_nothing)
{
    const std::string key(600, 'k');
    run.ctx.af_key = key.c_str();
    EXPECT_EQ(ask("ipv4-unicast"), 0u);
    ASSERT_EQ(probe::heard().backend.size(), 2u);
    EXPECT_LT(probe::heard().backend[0].size(), sizeof "find  2 0" + 512);
}

TEST_P(PresenceTest, without_a_session_goes_on_with_none)
{
    run.contexts.message.session_id = 55;
    run.database.put({.location = path_of(families[0])});
    EXPECT_EQ(ask("ipv4-unicast"), 0u);
    EXPECT_EQ(probe::heard().backend, (Lines{find_call(), "finish null"}));
    EXPECT_EQ(said(), asked(families[0], {"ERR Failed to get ME backend session context",
                                          "TRC af-name:ipv4-unicast is NOT configured in datastore"}));
}

TEST_P(PresenceTest, without_a_session_believes_a_database_that_answers)
{
    const probe::Backend backend({.session = nullptr});
    EXPECT_EQ(ask("ipv4-unicast"), 1u);
    EXPECT_EQ(said(), asked(families[0], {"ERR Failed to get ME backend session context",
                                          "TRC af-name: ipv4-unicast is configured in datastore"}));
}

struct Answer {
    uint32_t outcome;
    bool gives_set;
    uint32_t result;
    const char *finish;
    const char *line;
};
constexpr Answer answers[] = {
    {0, true, 1, "finish", "TRC af-name: ipv6-unicast is configured in datastore"},
    {0, false, 0, "finish null", "TRC af-name:ipv6-unicast is NOT configured in datastore"},
    {some_failure, true, 0, "finish", "TRC sysdb_backend_find_data failed"},
    {some_failure, false, 0, "finish null", "TRC af-name:ipv6-unicast is NOT configured in datastore"},
};

TEST_P(PresenceTest, depends_on_outcome_and_set_of_the_database)
{
    for (const Answer &answer : answers) {
        const probe::Backend backend({.find = answer.outcome, .gives_set = answer.gives_set});
        probe::heard() = {};
        EXPECT_EQ(ask("ipv6-unicast"), answer.result);
        EXPECT_EQ(probe::heard().backend, (Lines{find_call(families[2]), answer.finish}));
        EXPECT_EQ(said(), asked(families[2], {answer.line}));
        EXPECT_EQ(probe::memory_in_use(), Lines{});
    }
}

TEST_P(PresenceTest, says_its_words_as_they_stand)
{
    platform::Log log;
    log.trc.enabled = true;
    run.ctx._debug_ctx.trc_filter = &log.trc;
    run.database.put({.location = path_of(families[0])});
    ASSERT_EQ(ask("ipv4-unicast"), 1u);
    Lines formats;
    for (const probe::LogCall &call : probe::heard().log)
        if (call.filter == &log.trc) formats.push_back(call.format);
    Lines expected = {"TRC: VMF: ctx=%p,Start"};
    if (!it.first_words.empty()) expected.emplace_back("TRC: VMF: ctx=%p,Entering check_zr_cfg_bgp_nbr_af");
    for (const char *words :
         {"af_value is : %s", "sysdb path to be verified is: %s", "af-name: %s is configured in datastore"})
        EXPECT_NE(std::find(formats.begin(), formats.end(), std::string("TRC: VMF: ctx=%p,") + words), formats.end())
            << words;
    ASSERT_GE(formats.size(), expected.size());
    EXPECT_EQ(Lines(formats.begin(), formats.begin() + static_cast<long>(expected.size())), expected);
}

INSTANTIATE_TEST_SUITE_P(Check, PresenceTest, testing::ValuesIn(checks),
                         [](const auto &tested) { return std::string(tested.param.name); });

}  // namespace
