#include "system_database.h"

#include "support.h"

using platform::DatabaseRecord;
using platform::meets;
using platform::SystemDatabase;

// ---- Patterns -------------------------------------------------------------------------------

TEST(Pattern, MeetsItsOwnLocation)
{
    EXPECT_TRUE(meets("/cfg/gl/as", "/cfg/gl/as"));
    for (const char *other : {"/cfg/gl", "/cfg/gl/as/x", "/cfg/gl/asn", "/cfg/gl/AS", "cfg/gl/as", "/cfg/gl/as/", ""})
        EXPECT_FALSE(meets("/cfg/gl/as", other)) << other;
}

TEST(Pattern, AnElementOfDotStarStandsForAnyOneElement)
{
    EXPECT_TRUE(meets("/cfg/.*/.*/as", "/cfg/0/65001/as"));
    EXPECT_TRUE(meets("/cfg/.*", "/cfg/0"));
    for (const char *other : {"/cfg/0/as", "/cfg/0/1/2/as", "/cfg/0/1/asn", "/x/0/1/as"})
        EXPECT_FALSE(meets("/cfg/.*/.*/as", other)) << other;
    EXPECT_FALSE(meets("/cfg/.*", "/cfg/0/1"));
}

TEST(Pattern, AllElseIsLiteral)
{
    EXPECT_TRUE(meets("/cfg/a.*", "/cfg/a.*"));
    EXPECT_FALSE(meets("/cfg/a.*", "/cfg/abc"));
    EXPECT_FALSE(meets("/cfg/.*b", "/cfg/ab"));
    EXPECT_FALSE(meets("/cfg/10.0.0.1", "/cfg/10a0b0c1"));
    EXPECT_FALSE(meets("/cfg/*", "/cfg/a"));
    EXPECT_FALSE(meets("/cfg/.", "/cfg/a"));
    EXPECT_FALSE(meets("/cfg/[ab]", "/cfg/a"));
    EXPECT_FALSE(meets("/cfg/a", "/cfg/.*")) << "a location is no pattern";
}

TEST(Pattern, OneThatEndsInASlashMeetsWhatLiesBelow)
{
    EXPECT_TRUE(meets("/cfg/af/", "/cfg/af/max-prefix"));
    EXPECT_TRUE(meets("/cfg/af/", "/cfg/af/x/y/z"));
    EXPECT_TRUE(meets("/cfg/.*/", "/cfg/af/x"));
    for (const char *other : {"/cfg/af", "/cfg/af/", "/cfg/afs/x", "/cfg/x"})
        EXPECT_FALSE(meets("/cfg/af/", other)) << other;
}

// ---- Sessions -------------------------------------------------------------------------------

TEST(Sessions, AreFoundByTheirId)
{
    SystemDatabase first;
    SystemDatabase second;
    first.put({.location = "/first"});
    platform::Sessions sessions;
    sessions.open(1, first);
    sessions.open(7, second);
    VmfContext context = {.framework_state = &sessions, ._debug_ctx = {}};

    const auto outcome_in = [&](uint32_t id) {
        SysdbResultSet *found = nullptr;
        SysdbBackendSession *backend = vmf_session_find(&context, id)->me_session->backend_sessions[0];
        const uint32_t outcome = sysdb_backend_find_data(backend, "/first", SYSDB_FIND_FLAGS, &found, 1);
        sysdb_backend_result_set_iterate_finish(found);
        return outcome;
    };
    EXPECT_EQ(outcome_in(1), VMF_RC_OK);
    EXPECT_EQ(outcome_in(7), SYSDB_NOTHING_FOUND);
    EXPECT_EQ(vmf_session_find(&context, 2), nullptr);
    sessions.open(7, first);
    EXPECT_EQ(outcome_in(7), VMF_RC_OK) << "opened anew on another database";
}

TEST(Sessions, AFrameworkWithoutThemHasNone)
{
    VmfContext context = {};
    EXPECT_EQ(vmf_session_find(&context, 1), nullptr);
}

// ---- Queries --------------------------------------------------------------------------------

class Query : public testing::Test {
protected:
    Query()
    {
        sessions.open(1, database);
        session = sessions.find(1)->me_session->backend_sessions[0];
    }
    ~Query() override { sysdb_backend_result_set_iterate_finish(found); }

    uint32_t find(const char *pattern, uint32_t merged_view = 1)
    {
        sysdb_backend_result_set_iterate_finish(found);
        found = nullptr;
        return sysdb_backend_find_data(session, pattern, SYSDB_FIND_FLAGS, &found, merged_view);
    }

    // The next record's location, or what there is in place of a record.
    std::string next()
    {
        SysdbResult *result = nullptr;
        const uint32_t outcome = sysdb_backend_result_set_iterate_next(session, found, &result);
        if (outcome == SYSDB_END_OF_PART) return "end of a part";
        EXPECT_EQ(outcome, VMF_RC_OK);
        if (result == nullptr) return "no record";
        const char *location = nullptr;
        EXPECT_EQ(sysdb_backend_result_get_location(session, result, &location), VMF_RC_OK);
        std::string text = location;
        sysdb_backend_result_free(result);
        return text;
    }
    void next_part() { EXPECT_EQ(sysdb_backend_result_set_iterate_next_part(session, found), VMF_RC_OK); }
    void start() { EXPECT_EQ(sysdb_backend_result_set_iterate_start(session, found), VMF_RC_OK); }

    SystemDatabase database;
    platform::Sessions sessions;
    SysdbBackendSession *session;
    SysdbResultSet *found = nullptr;
};

TEST_F(Query, GivesRecordsInTheOrderOfTheDatabase)
{
    for (const char *location : {"/as/2", "/other", "/as/1", "/as/3"}) database.put({.location = location});
    ASSERT_EQ(find("/as/.*"), VMF_RC_OK);
    start();
    for (const char *expected : {"/as/2", "/as/1", "/as/3", "no record", "no record"}) EXPECT_EQ(next(), expected);
}

TEST_F(Query, IteratesAlsoWithoutAStart)
{
    database.put({.location = "/as"});
    ASSERT_EQ(find("/as"), VMF_RC_OK);
    EXPECT_EQ(next(), "/as");
    EXPECT_EQ(next(), "no record");
}

TEST_F(Query, NothingFoundLeavesNoResultSet)
{
    EXPECT_EQ(find("/as"), SYSDB_NOTHING_FOUND);
    EXPECT_EQ(found, nullptr);
    database.put({.location = "/as/1"});
    EXPECT_EQ(find("/as"), SYSDB_NOTHING_FOUND);
    database.clear();
    EXPECT_EQ(find("/as/1"), SYSDB_NOTHING_FOUND);

    auto *stale = reinterpret_cast<SysdbResultSet *>(&database);
    EXPECT_EQ(sysdb_backend_find_data(session, "/as", SYSDB_FIND_FLAGS, &stale, 1), SYSDB_NOTHING_FOUND);
    EXPECT_EQ(stale, nullptr);
}

TEST_F(Query, OnlyTheMergedViewSeesTheCandidate)
{
    database.put({.location = "/as/new", .only_in_candidate = true});
    EXPECT_EQ(find("/as/.*", 0), SYSDB_NOTHING_FOUND);
    ASSERT_EQ(find("/as/.*", 1), VMF_RC_OK);
    EXPECT_EQ(next(), "/as/new");

    database.put({.location = "/as/old"});
    ASSERT_EQ(find("/as/.*", 0), VMF_RC_OK);
    for (const char *expected : {"/as/old", "no record"}) EXPECT_EQ(next(), expected);
    ASSERT_EQ(find("/as/.*", 1), VMF_RC_OK);
    for (const char *expected : {"/as/new", "/as/old", "no record"}) EXPECT_EQ(next(), expected);
}

TEST_F(Query, APartEndsBeforeTheNextBegins)
{
    database.put({.location = "/as/4", .part = 9});
    database.put({.location = "/as/1", .part = 3});
    database.put({.location = "/as/2", .part = 3});
    database.put({.location = "/as/3", .part = 5});
    ASSERT_EQ(find("/as/.*"), VMF_RC_OK);
    start();
    for (const char *expected : {"/as/1", "/as/2", "end of a part", "end of a part"}) EXPECT_EQ(next(), expected);
    next_part();
    for (const char *expected : {"/as/3", "end of a part"}) EXPECT_EQ(next(), expected);
    next_part();
    for (const char *expected : {"/as/4", "no record"}) EXPECT_EQ(next(), expected);
    next_part();
    EXPECT_EQ(next(), "no record");
}

TEST_F(Query, TheNextPartLeavesOutTheRestOfThisOne)
{
    database.put({.location = "/as/1"});
    database.put({.location = "/as/2"});
    database.put({.location = "/as/3", .part = 1});
    ASSERT_EQ(find("/as/.*"), VMF_RC_OK);
    EXPECT_EQ(next(), "/as/1");
    next_part();
    for (const char *expected : {"/as/3", "no record"}) EXPECT_EQ(next(), expected);
}

TEST_F(Query, AStartGoesBackToTheFirstPart)
{
    database.put({.location = "/as/1"});
    database.put({.location = "/as/2", .part = 1});
    ASSERT_EQ(find("/as/.*"), VMF_RC_OK);
    for (int round = 0; round < 2; round++) {
        start();
        for (const char *expected : {"/as/1", "end of a part"}) EXPECT_EQ(next(), expected);
        next_part();
        for (const char *expected : {"/as/2", "no record"}) EXPECT_EQ(next(), expected);
    }
}

TEST_F(Query, RefusesNulls)
{
    database.put({.location = "/as"});
    EXPECT_EQ(sysdb_backend_find_data(nullptr, "/as", SYSDB_FIND_FLAGS, &found, 1), VMF_RC_BAD_ARGS);
    EXPECT_EQ(sysdb_backend_find_data(session, nullptr, SYSDB_FIND_FLAGS, &found, 1), VMF_RC_BAD_ARGS);
    EXPECT_EQ(sysdb_backend_find_data(session, "/as", SYSDB_FIND_FLAGS, nullptr, 1), VMF_RC_BAD_ARGS);
    EXPECT_EQ(found, nullptr);
}

TEST_F(Query, FinishingAndFreeingNothingIsHarmless)
{
    sysdb_backend_result_set_iterate_finish(nullptr);
    sysdb_backend_result_free(nullptr);
}

// ---- Packed tuples --------------------------------------------------------------------------

class Unpack : public Query {
protected:
    // Unpacks a tuple of these words into the decoding context.
    uint32_t unpack(const std::vector<uint32_t> &words)
    {
        database.clear();
        database.put({.location = "/max-prefix", .words = words});
        EXPECT_EQ(find("/max-prefix"), VMF_RC_OK);
        SysdbResult *result = nullptr;
        EXPECT_EQ(sysdb_backend_result_set_iterate_next(session, found, &result), VMF_RC_OK);
        const uint32_t outcome = me_bk_sysdb_packed_data_unpack(result->packed_data, &tuple, &count, context.data());
        sysdb_backend_result_free(result);
        return outcome;
    }

    void *tuple = nullptr;
    uint32_t count = 99;
    std::vector<uint32_t> context = std::vector<uint32_t>(288 / sizeof(uint32_t), 1);
};

TEST_F(Unpack, PutsTheWordsIntoTheDecodingContext)
{
    EXPECT_EQ(unpack({UINT32_MAX, 75, 0}), VMF_RC_OK);
    EXPECT_EQ(count, 3u);
    EXPECT_EQ(tuple, context.data());
    EXPECT_EQ(std::vector<uint32_t>(context.begin(), context.begin() + 4),
              std::vector<uint32_t>({UINT32_MAX, 75, 0, 1}));
}

TEST_F(Unpack, TakesAsManyWordsAsTheContextHolds)
{
    EXPECT_EQ(unpack(std::vector<uint32_t>(72, 5)), VMF_RC_OK);
    EXPECT_EQ(count, 72u);
    EXPECT_EQ(context, std::vector<uint32_t>(72, 5));
}

TEST_F(Unpack, RefusesATupleWithoutWordsOrWithTooMany)
{
    EXPECT_EQ(unpack({}), VMF_RC_BAD_TREE);
    EXPECT_EQ(unpack(std::vector<uint32_t>(73, 5)), VMF_RC_BAD_TREE);
    EXPECT_EQ(context, std::vector<uint32_t>(72, 1));
    EXPECT_EQ(count, 99u);
}

TEST_F(Unpack, RefusesNulls)
{
    const DatabaseRecord record = {.location = "/max-prefix", .words = {1}};
    void *const packed = const_cast<DatabaseRecord *>(&record);
    EXPECT_EQ(me_bk_sysdb_packed_data_unpack(nullptr, &tuple, &count, context.data()), VMF_RC_BAD_ARGS);
    EXPECT_EQ(me_bk_sysdb_packed_data_unpack(packed, nullptr, &count, context.data()), VMF_RC_BAD_ARGS);
    EXPECT_EQ(me_bk_sysdb_packed_data_unpack(packed, &tuple, nullptr, context.data()), VMF_RC_BAD_ARGS);
    EXPECT_EQ(me_bk_sysdb_packed_data_unpack(packed, &tuple, &count, nullptr), VMF_RC_BAD_ARGS);
}
