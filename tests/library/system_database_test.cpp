// The session of a request, and the query of the global AS number.
#include "library_test.h"
#include "probe.h"

using namespace library_test;
using probe::end_of_part;
using probe::record_at;

namespace {

constexpr char query[] = "get_zr_cfg_bgp_as_num_from_sysdb";
constexpr char inner[] = "get_as_num_from_backend";
constexpr uint32_t untouched = 77;

struct SysdbTest : testing::Test {
    SysdbTest() { probe::heard() = {}; }

    uint32_t ask() { return get_zr_cfg_bgp_as_num_from_sysdb(&run.ctx, &as_x, &as_y); }

    void put(const char *location, uint32_t part = 0) { run.database.put({.location = location, .part = part}); }

    void expect_found(uint32_t high, uint32_t low)
    {
        EXPECT_EQ(ask(), VMF_RC_OK);
        EXPECT_EQ(as_x, high);
        EXPECT_EQ(as_y, low);
        EXPECT_EQ(run.ctx.as_high, high);
        EXPECT_EQ(run.ctx.as_low, low);
    }
    void expect_not_found(uint32_t outcome)
    {
        EXPECT_EQ(ask(), outcome);
        EXPECT_EQ(run.ctx.as_high, 0u);
        EXPECT_EQ(run.ctx.as_low, 0u);
    }

    MappingRun run{VMF_REQ_EDIT};
    Operations operations;
    uint32_t as_x = untouched;
    uint32_t as_y = untouched;
};

// The calls of a query that finds its answer in the first record, and their order.
const std::string find_call = "find /cfg/gl/ip-bgp/default/.*/.*/gbl/edm/ord_a/running 2 1";

// ---- The session ----------------------------------------------------------------------------

struct SessionTest : SysdbTest {
    uint32_t ask_session() { return get_backend_session(&run.contexts.req, &session, nullptr); }

    // Its lines; each carries the framework's context, not a mapping's.
    Lines said()
    {
        char speaker[32];
        std::snprintf(speaker, sizeof speaker, " ctx=%p,", static_cast<void *>(&run.contexts.vmf));
        for (const probe::TraceCall &call : probe::heard().trace)
            EXPECT_NE(call.line.find(speaker), std::string::npos) << call.line;
        return spoken(run).by("get_backend_session");
    }

    static Lines entered(Lines lines)
    {
        lines.insert(lines.begin(), "TRC Entering get_backend_session");
        return lines;
    }
    static Lines entered_and_left(Lines lines)
    {
        lines.push_back("TRC Exiting get_backend_session");
        return entered(lines);
    }

    SysdbBackendSession *session = nullptr;
};

TEST_F(SessionTest, is_that_of_the_request)
{
    run.contexts.message.session_id = 1234567;
    run.contexts.sessions.open(1234567, run.database);
    EXPECT_EQ(ask_session(), VMF_RC_OK);
    EXPECT_EQ(session, run.contexts.sessions.find(1234567)->me_session->backend_sessions[0]);
    EXPECT_EQ(said(), entered_and_left({"TRC This request belongs to session '1234567'"}));
}

TEST_F(SessionTest, speaks_through_the_context_of_the_framework)
{
    platform::Log framework_log;
    framework_log.trc.enabled = true;
    run.contexts.vmf._debug_ctx.trc_filter = &framework_log.trc;
    ASSERT_EQ(ask_session(), VMF_RC_OK);
    ASSERT_EQ(probe::heard().log.size(), 3u);
    EXPECT_EQ(probe::heard().log[0].format, "TRC: VMF: ctx=%p,Entering %s");
    EXPECT_EQ(probe::heard().log[2].format, "TRC: VMF: ctx=%p,Exiting %s");
    for (const probe::LogCall &call : probe::heard().log) EXPECT_EQ(call.filter, &framework_log.trc);
    for (const probe::Question &question : probe::heard().questions)
        EXPECT_EQ(question.debug, &run.contexts.vmf._debug_ctx);
}

TEST_F(SessionTest, looks_at_the_third_argument_not_at_all)
{
    EXPECT_EQ(get_backend_session(&run.contexts.req, &session, &run.ctx), VMF_RC_OK);
    EXPECT_EQ(get_backend_session(&run.contexts.req, &session, nullptr), VMF_RC_OK);
}

TEST_F(SessionTest, of_no_request_is_a_bad_argument_without_a_line)
{
    EXPECT_EQ(get_backend_session(nullptr, &session, nullptr), VMF_RC_BAD_ARGS);
    EXPECT_TRUE(probe::heard().trace.empty());
    EXPECT_EQ(session, nullptr);
}

TEST_F(SessionTest, needs_a_message_and_an_address)
{
    EXPECT_EQ(get_backend_session(&run.contexts.req, nullptr, nullptr), VMF_RC_BAD_ARGS);
    EXPECT_EQ(said(), entered({"ERR NULL argument(s) passed!"}));
    run.contexts.req.request_message = nullptr;
    EXPECT_EQ(ask_session(), VMF_RC_BAD_ARGS);
    EXPECT_EQ(said(), entered({"ERR NULL argument(s) passed!"}));
    EXPECT_EQ(session, nullptr);
}

TEST_F(SessionTest, needs_a_session_id_in_the_message)
{
    for (const uint32_t flags : {0u, ~uint32_t{VMF_REQUEST_HAS_SESSION_ID}}) {
        run.contexts.message.present = flags;
        EXPECT_EQ(ask_session(), VMF_RC_BAD_ARGS);
        EXPECT_EQ(said(), entered_and_left({"ERR Missing session id in request!"}));
    }
    EXPECT_EQ(session, nullptr);
}

TEST_F(SessionTest, has_to_be_there)
{
    run.contexts.message.session_id = 55;
    EXPECT_EQ(ask_session(), VMF_RC_BAD_ARGS);
    EXPECT_EQ(said(), entered_and_left({"ERR Session with id=55 not found!"}));
    EXPECT_EQ(session, nullptr);
}

TEST_F(SessionTest, has_to_have_a_backend)
{
    VmfMeSession without_array = {nullptr};
    for (VmfMeSession *me_session : {static_cast<VmfMeSession *>(nullptr), &without_array}) {
        VmfSession found = {nullptr, nullptr, me_session};
        const probe::Backend backend({.session = &found});
        EXPECT_EQ(ask_session(), VMF_RC_BAD_TREE);
        EXPECT_EQ(said(), entered_and_left(
                              {"TRC This request belongs to session '1'", "ERR NULL me_session or backend_sessions!"}));
    }
    EXPECT_EQ(session, nullptr);
}

// ---- The query ------------------------------------------------------------------------------

TEST_F(SysdbTest, the_as_number_is_read_from_the_candidate_and_kept)
{
    run.database.put({.location = "/cfg/gl/ip-bgp/default/0/65001/gbl/edm/ord_a/running", .only_in_candidate = true});
    expect_found(0, 65001);
    EXPECT_EQ(probe::heard().backend, (Lines{find_call, "start", "next", "location", "free", "finish"}));
    EXPECT_EQ(spoken(run).whole(), (Lines{
                                       "get_zr_cfg_bgp_as_num_from_sysdb: TRC Start",
                                       "get_backend_session: TRC Entering get_backend_session",
                                       "get_backend_session: TRC This request belongs to session '1'",
                                       "get_backend_session: TRC Exiting get_backend_session",
                                       "get_zr_cfg_bgp_as_num_from_sysdb: TRC Query global AS numbers from candidate "
                                       "config (merged view)...",
                                       "get_as_num_from_backend: TRC Start",
                                       "get_as_num_from_backend: TRC End",
                                       "get_zr_cfg_bgp_as_num_from_sysdb: TRC Found Global AS numbers: as_x=0, "
                                       "as_y=65001",
                                       "get_zr_cfg_bgp_as_num_from_sysdb: TRC End",
                                   }));
}

TEST_F(SysdbTest, both_halves_are_read)
{
    put("/cfg/gl/ip-bgp/default/4294967295/4294967294/gbl/edm/ord_a/running");
    expect_found(4294967295, 4294967294);
    EXPECT_EQ(spoken(run).by(query)[2], "TRC Found Global AS numbers: as_x=4294967295, as_y=4294967294");
}

TEST_F(SysdbTest, a_cached_pair_needs_neither_query_nor_session)
{
    run.ctx.as_high = 3;
    run.ctx.as_low = 4;
    run.contexts.req.request_message = nullptr;
    EXPECT_EQ(ask(), VMF_RC_OK);
    EXPECT_EQ(as_x, 3u);
    EXPECT_EQ(as_y, 4u);
    EXPECT_TRUE(probe::heard().backend.empty());
    EXPECT_EQ(spoken(run).whole(), (Lines{std::string(query) + ": TRC Start", std::string(query) + ": TRC End"}));
}

TEST_F(SysdbTest, a_pair_with_a_zero_low_half_is_not_cached)
{
    run.ctx.as_high = 3;
    put("/cfg/gl/ip-bgp/default/0/65001/gbl/edm/ord_a/running");
    expect_found(0, 65001);
}

TEST_F(SysdbTest, a_zero_that_was_found_is_asked_for_again)
{
    put("/cfg/gl/ip-bgp/default/5/0/gbl/edm/ord_a/running");
    expect_found(5, 0);
    probe::heard() = {};
    expect_found(5, 0);
    EXPECT_FALSE(probe::heard().backend.empty());
}

TEST_F(SysdbTest, null_arguments_are_refused_with_an_end)
{
    run.ctx.as_low = 4;  // a cached answer does not help
    const Lines lines = framed({"ERR NULL argument(s) passed!"});
    EXPECT_EQ(get_zr_cfg_bgp_as_num_from_sysdb(&run.ctx, nullptr, &as_y), VMF_RC_BAD_ARGS);
    EXPECT_EQ(spoken(run).by(query), lines);
    EXPECT_EQ(get_zr_cfg_bgp_as_num_from_sysdb(&run.ctx, &as_x, nullptr), VMF_RC_BAD_ARGS);
    EXPECT_EQ(spoken(run).by(query), lines);
    run.ctx.req_ctx = nullptr;
    EXPECT_EQ(ask(), VMF_RC_BAD_ARGS);
    EXPECT_EQ(spoken(run).by(query), lines);
    EXPECT_EQ(as_x, untouched);
    EXPECT_EQ(as_y, untouched);
}

TEST_F(SysdbTest, without_a_session_there_is_no_query)
{
    run.contexts.message.session_id = 55;
    expect_not_found(VMF_RC_BAD_ARGS);
    EXPECT_TRUE(probe::heard().backend.empty());
    EXPECT_EQ(spoken(run).by(query),
              framed({
                  std::string("ERR Failed to get ME backend session context: ") + cerr_strerror(VMF_RC_BAD_ARGS) + "!",
                  "TRC Global AS numbers not found!",
              }));
    EXPECT_EQ(as_x, untouched);
    EXPECT_EQ(as_y, untouched);
}

TEST_F(SysdbTest, an_empty_database_gives_2_and_no_failure_line)
{
    expect_not_found(2);
    EXPECT_EQ(probe::heard().backend, (Lines{find_call, "finish null"}));
    const Spoken said = spoken(run);
    EXPECT_TRUE(said.failures().empty());
    EXPECT_EQ(said.by(inner), framed({"TRC sysdb_backend_find_data failed: nothing found!"}));
    EXPECT_EQ(said.by(query), framed({"TRC Query global AS numbers from candidate config (merged view)...",
                                      "TRC Global AS numbers not found!"}));
}

TEST_F(SysdbTest, a_failure_is_not_kept)
{
    expect_not_found(2);
    put("/cfg/gl/ip-bgp/default/0/65001/gbl/edm/ord_a/running");
    expect_found(0, 65001);
}

TEST_F(SysdbTest, the_first_record_wins)
{
    put("/cfg/gl/ip-bgp/default/0/2/gbl/edm/ord_a/running");
    put("/cfg/gl/ip-bgp/default/0/1/gbl/edm/ord_a/running");
    expect_found(0, 2);
}

TEST_F(SysdbTest, records_of_a_later_part_are_reached)
{
    put("/cfg/gl/ip-bgp/default/0/x/gbl/edm/ord_a/running", 1);
    put("/cfg/gl/ip-bgp/default/0/65001/gbl/edm/ord_a/running", 2);
    expect_found(0, 65001);
    EXPECT_EQ(probe::heard().backend, (Lines{find_call, "start", "next", "location", "free", "next", "next part",
                                             "next", "location", "free", "finish"}));
    EXPECT_TRUE(spoken(run).failures().empty());
}

TEST_F(SysdbTest, a_database_without_a_location_that_parses_gives_2)
{
    put("/cfg/gl/ip-bgp/default/0/x/gbl/edm/ord_a/running");
    put("/cfg/gl/ip-bgp/default/y/1/gbl/edm/ord_a/running");
    expect_not_found(2);
    EXPECT_TRUE(spoken(run).failures().empty());
    EXPECT_EQ(probe::heard().backend,
              (Lines{find_call, "start", "next", "location", "free", "next", "location", "free", "next", "finish"}));
}

// ---- Each operation may fail ----------------------------------------------------------------

struct FailingOperation {
    const char *name;
    probe::Script script;
    uint32_t outcome;
    Lines calls;
    const char *line;  // of the inner step; null: none

    friend void PrintTo(const FailingOperation &it, std::ostream *out) { *out << it.name; }
};

const std::string failure_text = "outcome 0x00000077";

const FailingOperation failing_operations[] = {
    {"find_with_a_set",
     {.find = some_failure},
     some_failure,
     {find_call, "finish"},
     "TRC sysdb_backend_find_data failed: outcome 0x00000077!"},
    {"find_without_a_set",
     {.find = some_failure, .gives_set = false},
     2,
     {find_call, "finish null"},
     "TRC sysdb_backend_find_data failed: nothing found!"},
    {"find_that_succeeds_without_a_set",
     {.gives_set = false},
     2,
     {find_call, "finish null"},
     "TRC sysdb_backend_find_data failed: nothing found!"},
    {"start",
     {.start = some_failure},
     some_failure,
     {find_call, "start", "finish"},
     "ERR sysdb_backend_result_set_iterate_start failed: outcome 0x00000077!"},
    {"next",
     {.next = {{.outcome = some_failure}}},
     some_failure,
     {find_call, "start", "next", "finish"},
     "ERR sysdb_backend_result_set_iterate_next failed: outcome 0x00000077!"},
    {"next_without_a_record", {}, 2, {find_call, "start", "next", "finish"}, nullptr},
    {"next_part",
     {.next = {end_of_part}, .next_part = some_failure},
     some_failure,
     {find_call, "start", "next", "next part", "finish"},
     "ERR sysdb_backend_result_set_iterate_next_part failed: outcome 0x00000077!"},
    {"next_after_the_end_of_a_part",
     {.next = {end_of_part, {.outcome = some_failure}}},
     some_failure,
     {find_call, "start", "next", "next part", "next", "finish"},
     "ERR sysdb_backend_result_set_iterate_next failed: outcome 0x00000077!"},
    {"a_second_end_of_a_part_in_a_row",
     {.next = {end_of_part, end_of_part}},
     13,
     {find_call, "start", "next", "next part", "next", "finish"},
     "ERR sysdb_backend_result_set_iterate_next failed: end of a part!"},
    {"an_end_of_a_part_without_a_record_behind_it",
     {.next = {end_of_part}},
     2,
     {find_call, "start", "next", "next part", "next", "finish"},
     nullptr},
    {"location_with_a_text",
     {.next = {{.record = true, .location = "/cfg/gl/ip-bgp/default/0/1/", .location_outcome = some_failure}}},
     some_failure,
     {find_call, "start", "next", "location", "free", "finish"},
     "ERR backend_result_get_location failed: outcome 0x00000077!"},
    {"location_without_a_text",
     {.next = {{.record = true, .location_outcome = some_failure}}},
     VMF_RC_BAD_TREE,
     {find_call, "start", "next", "location", "free", "finish"},
     "ERR backend_result_get_location failed: malformed tree!"},
    {"location_that_succeeds_without_a_text",
     {.next = {{.record = true}}},
     VMF_RC_BAD_TREE,
     {find_call, "start", "next", "location", "free", "finish"},
     "ERR backend_result_get_location failed: malformed tree!"},
    {"location_of_a_later_record",
     {.next = {record_at("default/x"), {.record = true, .location_outcome = some_failure}}},
     VMF_RC_BAD_TREE,
     {find_call, "start", "next", "location", "free", "next", "location", "free", "finish"},
     "ERR backend_result_get_location failed: malformed tree!"},
};

struct FailingOperationTest : SysdbTest, testing::WithParamInterface<FailingOperation> {};

TEST_P(FailingOperationTest, ends_the_query_and_frees_what_it_held)
{
    const FailingOperation &it = GetParam();
    const probe::Backend backend(it.script);
    expect_not_found(it.outcome);
    EXPECT_EQ(probe::heard().backend, it.calls);
    const Spoken said = spoken(run);
    EXPECT_EQ(said.by(inner), framed(it.line != nullptr ? Lines{it.line} : Lines{}));
    EXPECT_EQ(said.by(query), framed({"TRC Query global AS numbers from candidate config (merged view)...",
                                      "TRC Global AS numbers not found!"}));
}

INSTANTIATE_TEST_SUITE_P(Of, FailingOperationTest, testing::ValuesIn(failing_operations),
                         [](const auto &tested) { return std::string(tested.param.name); });

TEST_F(SysdbTest, a_session_whose_handle_is_null_is_a_bad_argument_of_the_inner_step)
{
    SysdbBackendSession *handles[] = {nullptr};
    VmfMeSession me_session = {handles};
    VmfSession found = {nullptr, nullptr, &me_session};
    const probe::Backend backend({.session = &found});
    expect_not_found(VMF_RC_BAD_ARGS);
    EXPECT_EQ(probe::heard().backend, Lines{"finish null"});
    EXPECT_EQ(spoken(run).by(inner), framed({"ERR NULL argument(s) passed!"}));
}

TEST_F(SysdbTest, the_platforms_own_failures_pass_up)
{
    put("/cfg/gl/ip-bgp/default/0/65001/gbl/edm/ord_a/running");
    for (const char *operation : {"sysdb_backend_result_set_iterate_start", "sysdb_backend_result_set_iterate_next"}) {
        Operations failing;
        failing.fail(operation, some_failure);
        expect_not_found(some_failure);
        EXPECT_EQ(spoken(run).failures(),
                  Lines{std::string(inner) + ": " + operation + " failed: " + failure_text + "!"});
    }
    Operations failing;
    failing.fail("sysdb_backend_result_get_location", some_failure);
    expect_not_found(VMF_RC_BAD_TREE);
}

// ---- Locations ------------------------------------------------------------------------------

struct Location {
    const char *name, *text;
    bool parses;
    uint32_t as_x, as_y;

    friend void PrintTo(const Location &it, std::ostream *out) { *out << it.name; }
};

constexpr Location locations[] = {
    {"both_numbers", "/cfg/gl/ip-bgp/default/1/2/gbl/edm/ord_a/running", true, 1, 2},
    {"nothing_behind_the_second_slash", "/cfg/gl/ip-bgp/default/0/100/", true, 0, 100},
    {"without_a_first_number", "/cfg/gl/ip-bgp/default//5/gbl", true, 0, 5},
    {"without_a_second_number", "/cfg/gl/ip-bgp/default/5//gbl", true, 5, 0},
    {"leading_zeros_are_decimal", "/cfg/gl/ip-bgp/default/010/0100/", true, 10, 100},
    {"the_first_default_counts", "/default/7/8/cfg/gl/ip-bgp/default/1/2/", true, 7, 8},
    {"no_slash_behind_the_second_number", "/cfg/gl/ip-bgp/default/0/100", false, 0, 0},
    {"no_slash_behind_the_first_number", "/cfg/gl/ip-bgp/default/100", false, 0, 0},
    {"letters_for_the_first_number", "/cfg/gl/ip-bgp/default/x/100/gbl", false, 0, 0},
    {"letters_for_the_second_number", "/cfg/gl/ip-bgp/default/0/x/gbl", false, 0, 0},
    {"letters_behind_the_first_number", "/cfg/gl/ip-bgp/default/1x/100/gbl", false, 0, 0},
    {"letters_behind_the_second_number", "/cfg/gl/ip-bgp/default/0/100x/gbl", false, 0, 0},
    {"hexadecimal", "/cfg/gl/ip-bgp/default/0x1/0x2/gbl", false, 0, 0},
    {"the_first_number_out_of_range", "/cfg/gl/ip-bgp/default/99999999999999999999/1/gbl", false, 0, 0},
    {"the_second_number_out_of_range", "/cfg/gl/ip-bgp/default/1/99999999999999999999/gbl", false, 0, 0},
    {"no_default", "/cfg/gl/ip-bgp/1/2/gbl", false, 0, 0},
    {"an_empty_text", "", false, 0, 0},
    {"default_without_a_slash", "/cfg/gl/ip-bgp/default", false, 0, 0},
};

struct LocationTest : SysdbTest, testing::WithParamInterface<Location> {};

TEST_P(LocationTest, parses_or_is_passed_over)
{
    const Location &it = GetParam();
    const probe::Backend backend({.next = {record_at(it.text), record_at("/cfg/gl/ip-bgp/default/11/12/")}});
    errno = ERANGE;  // of somebody else
    if (it.parses)
        expect_found(it.as_x, it.as_y);
    else
        expect_found(11, 12);
    Lines calls = {find_call, "start", "next", "location", "free"};
    if (!it.parses) calls.insert(calls.end(), {"next", "location", "free"});
    calls.push_back("finish");
    EXPECT_EQ(probe::heard().backend, calls);
    EXPECT_EQ(spoken(run).by(inner), framed({}));
}

INSTANTIATE_TEST_SUITE_P(Of, LocationTest, testing::ValuesIn(locations),
                         [](const auto &tested) { return std::string(tested.param.name); });

TEST_F(SysdbTest, each_end_of_a_part_is_followed_by_one_more_try)
{
    const probe::Backend backend(
        {.next = {end_of_part, record_at("default/x"), end_of_part, record_at("default/0/65001/")}});
    expect_found(0, 65001);
    EXPECT_EQ(probe::heard().backend, (Lines{find_call, "start", "next", "next part", "next", "location", "free",
                                             "next", "next part", "next", "location", "free", "finish"}));
}

}  // namespace
