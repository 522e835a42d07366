// The prefix limit that stands in the candidate configuration: the query, and its place in the output tree.
#include "library_test.h"
#include "probe.h"

using namespace library_test;
using probe::Allocation;
using probe::end_of_part;
using probe::record_at;

namespace {

constexpr char fetch[] = "get_zr_cfg_bgp_prefix_limit_from_sysdb";
constexpr char populate[] = "vmf_map_oc_bgp_populate_prefixlimit_config_maxprefixes_from_candidate";
constexpr char path[] = "/cfg/gl/ip-bgp/default/0/65001/ord_a/default/nbr/________/edm/ord_u/0x3/10.0.0.1/________/"
                        "________/ord_s/0x0/ord_g/";
const std::string location = std::string(path) + "max-prefix";
const std::string find_call = std::string("find ") + path + " 2 1";

constexpr char first_label[] = "Sysdb backend result set";
constexpr char second_label[] = "SysDB backend pack decoding context";
constexpr char value_label[] = "max-prefix";

struct PrefixLimitTest : testing::Test {
    PrefixLimitTest() { probe::heard() = {}; }
    ~PrefixLimitTest() override { kos_named_free(value); }

    uint32_t ask() { return get_zr_cfg_bgp_prefix_limit_from_sysdb(&run.ctx, path, &value); }

    void put(const std::string &item, uint32_t limit, uint32_t part = 0)
    {
        run.database.put({.location = path + item, .words = {limit, 80, 1}, .part = part, .only_in_candidate = true});
    }

    void expect_found(const char *limit)
    {
        EXPECT_EQ(ask(), VMF_RC_OK);
        ASSERT_NE(value, nullptr);
        EXPECT_STREQ(value, limit);
    }

    // Named memory beyond what stood before the test.
    Lines held() const
    {
        Lines now = probe::memory_in_use();
        for (const std::string &label : before_)
            if (auto found = std::find(now.begin(), now.end(), label); found != now.end()) now.erase(found);
        return now;
    }

    MappingRun run{VMF_REQ_EDIT};
    char *value = nullptr;

private:
    const Lines before_ = probe::memory_in_use();
};

// ---- The query ------------------------------------------------------------------------------

TEST_F(PrefixLimitTest, the_limit_is_read_from_the_candidate_without_a_start_of_the_iteration)
{
    put("max-prefix", 1000);
    expect_found("1000");
    EXPECT_EQ(probe::heard().backend, (Lines{find_call, "next", "location", "unpack", "free", "finish"}));
    EXPECT_EQ(spoken(run).whole(), (Lines{
                                       std::string(fetch) + ": TRC Start",
                                       "get_backend_session: TRC Entering get_backend_session",
                                       "get_backend_session: TRC This request belongs to session '1'",
                                       "get_backend_session: TRC Exiting get_backend_session",
                                       std::string(fetch) + ": TRC End",
                                   }));
}

TEST_F(PrefixLimitTest, the_text_is_the_callers_and_the_other_memory_is_freed)
{
    put("max-prefix", 1000);
    expect_found("1000");
    EXPECT_EQ(probe::heard().allocations,
              (std::vector<Allocation>{{first_label, 32, 0}, {second_label, 288, 0}, {value_label, 12, 0}}));
    EXPECT_EQ(held(), Lines{value_label});
}

TEST_F(PrefixLimitTest, the_first_word_of_the_tuple_is_the_limit)
{
    run.database.put({.location = location, .words = {7, 4294967295, 3}});
    expect_found("7");
}

TEST_F(PrefixLimitTest, a_limit_of_ten_digits_fits)
{
    put("max-prefix", 4294967295);
    expect_found("4294967295");
}

TEST_F(PrefixLimitTest, a_limit_of_zero_is_a_limit)
{
    put("max-prefix", 0);
    expect_found("0");
}

TEST_F(PrefixLimitTest, the_first_limit_wins_and_later_items_are_not_looked_at)
{
    put("activate", 1);
    put("max-prefix", 2);
    put("max-prefix", 3);
    expect_found("2");
    EXPECT_EQ(probe::heard().backend,
              (Lines{find_call, "next", "location", "free", "next", "location", "unpack", "free", "finish"}));
}

TEST_F(PrefixLimitTest, a_limit_in_a_later_part_is_reached)
{
    put("activate", 1, 1);
    put("max-prefix", 2, 2);
    expect_found("2");
    EXPECT_EQ(probe::heard().backend, (Lines{find_call, "next", "location", "free", "next", "next part", "next",
                                             "location", "unpack", "free", "finish"}));
    EXPECT_TRUE(spoken(run).failures().empty());
}

TEST_F(PrefixLimitTest, an_empty_database_gives_2_and_no_failure_line)
{
    EXPECT_EQ(ask(), 2u);
    EXPECT_EQ(value, nullptr);
    EXPECT_EQ(probe::heard().backend, (Lines{find_call, "finish null"}));
    const Spoken said = spoken(run);
    EXPECT_EQ(said.by(fetch), framed({"TRC sysdb_backend_find_data failed: nothing found!"}));
    EXPECT_TRUE(said.failures().empty());
}

TEST_F(PrefixLimitTest, items_without_a_limit_give_2_without_a_line)
{
    put("activate", 1);
    put("route-policy", 2);
    EXPECT_EQ(ask(), 2u);
    EXPECT_EQ(value, nullptr);
    EXPECT_EQ(probe::heard().backend,
              (Lines{find_call, "next", "location", "free", "next", "location", "free", "next", "finish"}));
    EXPECT_TRUE(probe::heard().allocations.empty());
    EXPECT_EQ(spoken(run).by(fetch), framed({}));
}

TEST_F(PrefixLimitTest, asks_again_each_time)
{
    put("max-prefix", 1000);
    expect_found("1000");
    kos_named_free(std::exchange(value, nullptr));
    expect_found("1000");
    EXPECT_EQ(std::count(probe::heard().backend.begin(), probe::heard().backend.end(), find_call), 2);
}

// ---- Which location is a limit --------------------------------------------------------------

struct Location {
    const char *name, *text;
    bool is_limit;

    friend void PrintTo(const Location &it, std::ostream *out) { *out << it.name; }
};

constexpr Location locations[] = {
    {"at_the_end", "/cfg/nbr/ord_g/max-prefix", true},
    {"in_the_middle", "/cfg/max-prefix/x/y", true},
    {"at_the_start", "/max-prefix", true},
    {"as_the_start_of_an_element", "/cfg/max-prefixes", true},
    {"as_the_end_of_an_element", "/cfg/my-max-prefix", false},
    {"without_a_slash", "max-prefix", false},
    {"in_capitals", "/cfg/MAX-PREFIX", false},
    {"another_item", "/cfg/max-path", false},
    {"an_empty_text", "", false},
};

struct PrefixLimitLocationTest : PrefixLimitTest, testing::WithParamInterface<Location> {};

TEST_P(PrefixLimitLocationTest, is_a_limit_or_is_passed_over)
{
    const probe::Backend backend({.next = {record_at(GetParam().text)}, .limit = 9});
    Lines calls = {find_call, "next", "location"};
    if (GetParam().is_limit) {
        expect_found("9");
        calls.insert(calls.end(), {"unpack", "free", "finish"});
    } else {
        EXPECT_EQ(ask(), 2u);
        EXPECT_EQ(value, nullptr);
        calls.insert(calls.end(), {"free", "next", "finish"});
    }
    EXPECT_EQ(probe::heard().backend, calls);
}

INSTANTIATE_TEST_SUITE_P(Of, PrefixLimitLocationTest, testing::ValuesIn(locations),
                         [](const auto &tested) { return std::string(tested.param.name); });

// ---- Each operation may fail ----------------------------------------------------------------

struct FailingOperation {
    const char *name;
    probe::Script script;
    uint32_t outcome;
    Lines calls;
    const char *line;  // null: none

    friend void PrintTo(const FailingOperation &it, std::ostream *out) { *out << it.name; }
};

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
    {"next",
     {.next = {{.outcome = some_failure}}},
     some_failure,
     {find_call, "next", "finish"},
     "ERR sysdb_backend_result_set_iterate_next failed: outcome 0x00000077!"},
    {"next_without_a_record", {}, 2, {find_call, "next", "finish"}, nullptr},
    {"next_part",
     {.next = {end_of_part}, .next_part = some_failure},
     some_failure,
     {find_call, "next", "next part", "finish"},
     "ERR sysdb_backend_result_set_iterate_next_part failed: outcome 0x00000077!"},
    {"next_after_the_end_of_a_part",
     {.next = {end_of_part, {.outcome = some_failure}}},
     some_failure,
     {find_call, "next", "next part", "next", "finish"},
     "ERR sysdb_backend_result_set_iterate_next failed: outcome 0x00000077!"},
    {"a_second_end_of_a_part_in_a_row",
     {.next = {end_of_part, end_of_part}},
     13,
     {find_call, "next", "next part", "next", "finish"},
     "ERR sysdb_backend_result_set_iterate_next failed: end of a part!"},
    {"an_end_of_a_part_without_a_record_behind_it",
     {.next = {end_of_part}},
     2,
     {find_call, "next", "next part", "next", "finish"},
     nullptr},
    {"location_with_a_text",
     {.next = {{.record = true, .location = "/max-prefix", .location_outcome = some_failure}}},
     some_failure,
     {find_call, "next", "location", "free", "finish"},
     "ERR backend_result_get_location failed: outcome 0x00000077!"},
    {"location_without_a_text",
     {.next = {{.record = true, .location_outcome = some_failure}}},
     VMF_RC_BAD_TREE,
     {find_call, "next", "location", "free", "finish"},
     "ERR backend_result_get_location failed: malformed tree!"},
    {"location_that_succeeds_without_a_text",
     {.next = {{.record = true}}},
     VMF_RC_BAD_TREE,
     {find_call, "next", "location", "free", "finish"},
     "ERR backend_result_get_location failed: malformed tree!"},
    {"location_of_a_later_record",
     {.next = {record_at("/x"), {.record = true}}},
     VMF_RC_BAD_TREE,
     {find_call, "next", "location", "free", "next", "location", "free", "finish"},
     "ERR backend_result_get_location failed: malformed tree!"},
    {"memory_for_the_result_set",
     {.next = {record_at("/max-prefix"), record_at("/max-prefix")}, .no_memory_for = first_label},
     VMF_RC_NO_MEMORY,
     {find_call, "next", "location", "free", "finish"},
     "ERR Cannot allocate sysdb backend result set."},
    {"memory_for_the_decoding_context_without_a_line",
     {.next = {record_at("/max-prefix"), record_at("/max-prefix")}, .no_memory_for = second_label},
     VMF_RC_NO_MEMORY,
     {find_call, "next", "location", "free", "finish"},
     nullptr},
    {"unpack",
     {.next = {record_at("/max-prefix"), record_at("/max-prefix")}, .unpack = some_failure, .limit = 9},
     some_failure,
     {find_call, "next", "location", "unpack", "free", "finish"},
     "ERR Cannot unpack SysDB packed tuple."},
    {"memory_for_the_text",
     {.next = {record_at("/max-prefix"), record_at("/max-prefix")}, .limit = 9, .no_memory_for = value_label},
     VMF_RC_NO_MEMORY,
     {find_call, "next", "location", "unpack", "free", "finish"},
     "ERR Failed to allocate memory for max-prefix."},
};

struct PrefixLimitFailureTest : PrefixLimitTest, testing::WithParamInterface<FailingOperation> {};

TEST_P(PrefixLimitFailureTest, ends_the_query_and_frees_what_it_held)
{
    const FailingOperation &it = GetParam();
    const probe::Backend backend(it.script);
    EXPECT_EQ(ask(), it.outcome);
    EXPECT_EQ(value, nullptr);
    EXPECT_EQ(probe::heard().backend, it.calls);
    EXPECT_EQ(held(), Lines{});
    EXPECT_EQ(spoken(run).by(fetch), framed(it.line != nullptr ? Lines{it.line} : Lines{}));
}

INSTANTIATE_TEST_SUITE_P(Of, PrefixLimitFailureTest, testing::ValuesIn(failing_operations),
                         [](const auto &tested) { return std::string(tested.param.name); });

TEST_F(PrefixLimitTest, without_a_session_there_is_no_query_but_its_end)
{
    run.contexts.message.session_id = 55;
    EXPECT_EQ(ask(), VMF_RC_BAD_ARGS);
    EXPECT_EQ(value, nullptr);
    EXPECT_EQ(probe::heard().backend, Lines{"finish null"});
    EXPECT_EQ(spoken(run).by(fetch), framed({std::string("ERR Failed to get backend session context: ") +
                                             cerr_strerror(VMF_RC_BAD_ARGS) + "!"}));
}

TEST_F(PrefixLimitTest, a_session_without_a_backend_is_a_bad_tree)
{
    VmfSession found = {nullptr, nullptr, nullptr};
    const probe::Backend backend({.session = &found});
    EXPECT_EQ(ask(), VMF_RC_BAD_TREE);
    EXPECT_EQ(probe::heard().backend, Lines{"finish null"});
    EXPECT_EQ(spoken(run).by(fetch), framed({"ERR Failed to get backend session context: malformed tree!"}));
}

TEST_F(PrefixLimitTest, a_session_whose_handle_is_null_is_asked_all_the_same)
{
    SysdbBackendSession *handles[] = {nullptr};
    VmfMeSession me_session = {handles};
    VmfSession found = {nullptr, nullptr, &me_session};
    const probe::Backend backend({.session = &found, .next = {record_at("/max-prefix")}, .limit = 9});
    expect_found("9");
}

TEST_F(PrefixLimitTest, a_tuple_that_the_platform_cannot_unpack_fails)
{
    run.database.put({.location = location});  // without words
    EXPECT_EQ(ask(), VMF_RC_BAD_TREE);
    EXPECT_EQ(value, nullptr);
    EXPECT_EQ(spoken(run).by(fetch), framed({"ERR Cannot unpack SysDB packed tuple."}));
}

TEST_F(PrefixLimitTest, each_end_of_a_part_is_followed_by_one_more_try)
{
    const probe::Backend backend({.next = {end_of_part, record_at("/x"), end_of_part, record_at("/max-prefix")}});
    expect_found("0");
    EXPECT_EQ(probe::heard().backend, (Lines{find_call, "next", "next part", "next", "location", "free", "next",
                                             "next part", "next", "location", "unpack", "free", "finish"}));
}

// ---- Into the output tree -------------------------------------------------------------------

constexpr char neighbor_format[] =
    "/cfg/gl/ip-bgp/default/%d/%d/ord_a/default/nbr/________/edm/ord_u/0x3/%s/________/________/ord_s/%s/ord_g/";
constexpr char group_format[] =
    "/cfg/gl/ip-bgp/default/%d/%d/ord_a/default/nbr/________/edm/ord_q/0x2/________/%s/________/ord_s/%s/ord_g/";

struct PrefixLimitPlaceTest : PrefixLimitTest {
    PrefixLimitPlaceTest() : out(io::read_tree("neighbor-af zr-cfg\n"))
    {
        run.ctx.as_low = 65001;
        run.ctx.af_key = "10.0.0.1";
        run.ctx.af_node = &platform::children_of(out.root())[0];
    }

    uint32_t map(const char *format = neighbor_format, const char *code = "0x0", const char *ns = ZR_BGP_CFG_NS)
    {
        return vmf_map_oc_bgp_populate_prefixlimit_config_maxprefixes_from_candidate(&run.ctx, format, code, ns);
    }

    // Memory of the fetch that is still held; the tree has its own.
    Lines held_by_fetch() const
    {
        Lines labels;
        for (const std::string &label : held())
            if (label == first_label || label == second_label || label == value_label) labels.push_back(label);
        return labels;
    }

    platform::Tree out;
    Operations operations;
};

TEST_F(PrefixLimitPlaceTest, the_limit_goes_below_the_family_without_a_source_and_its_text_is_freed)
{
    put("max-prefix", 1000);
    EXPECT_EQ(map(), VMF_RC_OK);
    EXPECT_EQ(operations.adds(), Lines{"add_path_common neighbor-af: maximum-prefixes/prefix-limit = 1000"});
    EXPECT_EQ(text_of(out), "neighbor-af zr-cfg\n  maximum-prefixes\n    prefix-limit = 1000\n");
    EXPECT_EQ(held_by_fetch(), Lines{});
    EXPECT_EQ(spoken(run).by(populate), framed({"TRC Setting the max-prefix value to 1000"}));
}

TEST_F(PrefixLimitPlaceTest, the_limit_goes_below_the_namespace_that_is_given)
{
    for (const char *ns : {ZR_BGP_CFG_NS, ZR_BGP_OPER_NS, OC_BGP_NS}) {
        put("max-prefix", 1000);
        EXPECT_EQ(map(neighbor_format, "0x0", ns), VMF_RC_OK);
        EXPECT_STREQ(operations.last_add().ns, ns);
        EXPECT_STREQ(operations.last_add().path, "maximum-prefixes/prefix-limit");
    }
}

TEST_F(PrefixLimitPlaceTest, the_flag_of_a_limit_that_was_added_is_the_callers)
{
    put("max-prefix", 1000);
    EXPECT_EQ(map(), VMF_RC_OK);
    EXPECT_EQ(run.ctx.prefix_limit_added, 0u);
}

TEST_F(PrefixLimitPlaceTest, a_failing_add_is_the_outcome_and_the_text_is_freed)
{
    put("max-prefix", 1000);
    operations.fail_add(1, some_failure);
    EXPECT_EQ(map(), some_failure);
    EXPECT_EQ(held_by_fetch(), Lines{});
    EXPECT_EQ(text_of(out), "neighbor-af zr-cfg\n");
    EXPECT_EQ(spoken(run).by(populate), framed({"TRC Setting the max-prefix value to 1000"}));
}

TEST_F(PrefixLimitPlaceTest, without_a_family_the_limit_has_no_place)
{
    put("max-prefix", 1000);
    run.ctx.af_node = nullptr;
    EXPECT_EQ(map(), VMF_RC_BAD_ARGS);
    EXPECT_TRUE(operations.adds().empty());
    EXPECT_EQ(held_by_fetch(), Lines{});
}

TEST_F(PrefixLimitPlaceTest, where_no_limit_stands_it_fails_and_says_so)
{
    EXPECT_EQ(map(), 2u);
    EXPECT_TRUE(operations.adds().empty());
    EXPECT_EQ(spoken(run).failures(),
              Lines{std::string(populate) + ": Failed to get the value for max-prefix from the candidate config."});
}

TEST_F(PrefixLimitPlaceTest, a_fetch_that_succeeds_without_a_value_adds_nothing)
{
    const probe::Backend backend({.finds_no_limit = true});
    EXPECT_EQ(map(), VMF_RC_OK);
    EXPECT_TRUE(operations.adds().empty());
    EXPECT_EQ(spoken(run).by(populate), framed({}));
}

TEST_F(PrefixLimitPlaceTest, an_empty_iteration_fails_in_the_same_way)
{
    put("activate", 1);
    EXPECT_EQ(map(), 2u);
    EXPECT_TRUE(operations.adds().empty());
    EXPECT_EQ(spoken(run).by(populate),
              framed({"ERR Failed to get the value for max-prefix from the candidate config."}));
}

TEST_F(PrefixLimitPlaceTest, a_failing_query_passes_its_outcome_up)
{
    const probe::Backend backend({.next = {record_at("/max-prefix")}, .unpack = some_failure});
    EXPECT_EQ(map(), some_failure);
    EXPECT_TRUE(operations.adds().empty());
    EXPECT_EQ(spoken(run).failures(),
              (Lines{std::string(fetch) + ": Cannot unpack SysDB packed tuple.",
                     std::string(populate) + ": Failed to get the value for max-prefix from the candidate config."}));
}

TEST_F(PrefixLimitPlaceTest, the_platforms_own_failures_pass_up)
{
    put("max-prefix", 1000);
    for (const char *operation : {"sysdb_backend_result_set_iterate_next", "me_bk_sysdb_packed_data_unpack"}) {
        Operations failing;
        failing.fail(operation, some_failure);
        EXPECT_EQ(map(), some_failure);
    }
}

// ---- The path -------------------------------------------------------------------------------

struct Asked {
    const char *name, *format, *key, *code;
    uint32_t as_high, as_low;
    const char *path;

    friend void PrintTo(const Asked &it, std::ostream *out) { *out << it.name; }
};

constexpr Asked asked[] = {
    {"of_a_neighbor", neighbor_format, "10.0.0.1", "0x0", 0, 65001,
     "/cfg/gl/ip-bgp/default/0/65001/ord_a/default/nbr/________/edm/ord_u/0x3/10.0.0.1/________/________/ord_s/0x0/"
     "ord_g/"},
    {"of_an_IPv6_neighbor", neighbor_format, "2001:db8::1", "0x11", 0, 1,
     "/cfg/gl/ip-bgp/default/0/1/ord_a/default/nbr/________/edm/ord_u/0x3/2001:db8::1/________/________/ord_s/0x11/"
     "ord_g/"},
    {"of_a_group", group_format, "EDGE", "0xe", 0, 65001,
     "/cfg/gl/ip-bgp/default/0/65001/ord_a/default/nbr/________/edm/ord_q/0x2/________/EDGE/________/ord_s/0xe/ord_g/"},
    {"with_both_halves", neighbor_format, "k", "0x5", 3, 4,
     "/cfg/gl/ip-bgp/default/3/4/ord_a/default/nbr/________/edm/ord_u/0x3/k/________/________/ord_s/0x5/ord_g/"},
    {"with_the_halves_signed", neighbor_format, "k", "0x5", 2147483648, 4294967295,
     "/cfg/gl/ip-bgp/default/-2147483648/-1/ord_a/default/nbr/________/edm/ord_u/0x3/k/________/________/ord_s/0x5/"
     "ord_g/"},
    {"without_an_AS_is_asked_all_the_same", neighbor_format, "k", "0x5", 0, 0,
     "/cfg/gl/ip-bgp/default/0/0/ord_a/default/nbr/________/edm/ord_u/0x3/k/________/________/ord_s/0x5/ord_g/"},
    {"in_another_format", "%d %d %s %s", "key", "code", 1, 2, "1 2 key code"},
};

struct PrefixLimitPathTest : PrefixLimitPlaceTest, testing::WithParamInterface<Asked> {};

TEST_P(PrefixLimitPathTest, comes_from_the_context_without_a_query_of_the_AS)
{
    const Asked &it = GetParam();
    run.ctx.as_high = it.as_high;
    run.ctx.as_low = it.as_low;
    run.ctx.af_key = it.key;
    const probe::Backend backend({.next = {record_at("/max-prefix")}, .limit = 12});
    EXPECT_EQ(map(it.format, it.code), VMF_RC_OK);
    EXPECT_EQ(probe::heard().backend,
              (Lines{std::string("find ") + it.path + " 2 1", "next", "location", "unpack", "free", "finish"}));
    EXPECT_EQ(operations.adds(), Lines{"add_path_common neighbor-af: maximum-prefixes/prefix-limit = 12"});
}

INSTANTIATE_TEST_SUITE_P(Of, PrefixLimitPathTest, testing::ValuesIn(asked),
                         [](const auto &tested) { return std::string(tested.param.name); });

TEST_F(PrefixLimitPlaceTest, a_key_that_does_not_fit_is_cut)
{
    const std::string key(1000, 'k');
    run.ctx.af_key = key.c_str();
    const probe::Backend backend({});
    EXPECT_EQ(map(), 2u);
    const std::string start = "/cfg/gl/ip-bgp/default/0/65001/ord_a/default/nbr/________/edm/ord_u/0x3/";
    const std::string cut = start + std::string(511 - start.size(), 'k');
    EXPECT_EQ(probe::heard().backend.at(0), "find " + cut + " 2 1");
}

// ---- Within a request -----------------------------------------------------------------------

// How often a request asks for a limit.
size_t questions()
{
    const Lines &calls = probe::heard().backend;
    return static_cast<size_t>(std::count_if(calls.begin(), calls.end(), [](const std::string &call) {
        return call.starts_with("find ") && call.find("/ord_s/") != std::string::npos;
    }));
}

const std::string one_neighbor = "bgp oc-bgp\n"
                                 "  neighbors\n"
                                 "    neighbor\n"
                                 "      neighbor-address = 10.0.0.1\n"
                                 "      afi-safis\n";

std::string family(const char *identity, const char *container, const Lines &leaves)
{
    std::string text = std::string("        afi-safi\n          afi-safi-name = bgp-types:") + identity +
                       "\n          " + container + "\n            prefix-limit\n              config\n";
    for (const std::string &leaf : leaves) text += "                " + leaf + "\n";
    return text;
}

struct PrefixLimitRequestTest : PrefixLimitTest {
    PrefixLimitRequestTest()
    {
        run.know_as(65001);
        put("max-prefix", 1000);
        run.database.put({.location =
                              "/cfg/gl/ip-bgp/default/0/65001/ord_a/default/nbr/________/edm/ord_u/0x3/10.0.0.1/"
                              "________/________/ord_s/0x5/ord_g/max-prefix",
                          .words = {6}});
    }

    void edit(const std::string &families)
    {
        platform::Tree request = io::read_tree(one_neighbor + families);
        EXPECT_EQ(vmf_map_oc_bgp(&run.ctx, &platform::children_of(request.root())[0], &run.out.root()), VMF_RC_OK);
    }
};

TEST_F(PrefixLimitRequestTest, the_removal_of_a_limit_and_then_its_threshold_asks_nothing)
{
    edit(family("IPV4_UNICAST", "ipv4-unicast", {"max-prefixes [delete]", "shutdown-threshold-pct [delete]"}));
    EXPECT_EQ(questions(), 0u);
}

TEST_F(PrefixLimitRequestTest, the_removal_of_a_threshold_and_then_its_limit_asks_once)
{
    edit(family("IPV4_UNICAST", "ipv4-unicast", {"shutdown-threshold-pct [delete]", "max-prefixes [delete]"}));
    EXPECT_EQ(questions(), 1u);
}

TEST_F(PrefixLimitRequestTest, a_threshold_that_is_removed_twice_asks_once)
{
    edit(
        family("IPV4_UNICAST", "ipv4-unicast", {"shutdown-threshold-pct [delete]", "shutdown-threshold-pct [delete]"}));
    EXPECT_EQ(questions(), 1u);
}

TEST_F(PrefixLimitRequestTest, two_families_ask_for_themselves)
{
    edit(family("IPV4_UNICAST", "ipv4-unicast", {"shutdown-threshold-pct [delete]"}) +
         family("IPV6_UNICAST", "ipv6-unicast", {"shutdown-threshold-pct [delete]"}));
    EXPECT_EQ(questions(), 2u);
}

TEST_F(PrefixLimitRequestTest, a_threshold_that_is_written_asks_nothing)
{
    edit(family("IPV4_UNICAST", "ipv4-unicast", {"shutdown-threshold-pct = 80", "max-prefixes = 5"}));
    EXPECT_EQ(questions(), 0u);
}

}  // namespace
