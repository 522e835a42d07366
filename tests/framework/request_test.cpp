// One request from the framework's side: what the entries of the mapping are handed, and what becomes of the answer.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>

#include "entry_spy.h"
#include "trees.h"

namespace {

constexpr char router_id[] = "  global\n    config\n      router-id\n";
constexpr char sums[] = "  global\n    state\n      router-id\n      total-paths\n";

constexpr char router_id_answer[] = "bgp oc-bgp\n  global\n    config\n      router-id = 192.0.2.1\n";
constexpr char sums_answer[] =
    "bgp oc-bgp\n  global\n    state\n      router-id = 192.0.2.1\n      total-paths = 100\n";

using Bytes = std::vector<unsigned char>;

bool is_zero(const Bytes &bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](unsigned char byte) { return byte == 0; });
}

void blank(Bytes &bytes, size_t begin, size_t end)
{
    std::fill(bytes.begin() + static_cast<ptrdiff_t>(begin), bytes.begin() + static_cast<ptrdiff_t>(end), 0);
}

// A field, and the gap between two of them, which nobody fills.
#define FIELD(record, field) offsetof(record, field), offsetof(record, field) + sizeof(record::field)
#define GAP(record, before, after) offsetof(record, before) + sizeof(record::before), offsetof(record, after)

// A run has nothing but its links.
bool is_fresh(Bytes run)
{
    if (is_zero(run)) return false;
    blank(run, FIELD(MapContext, req_ctx));
    blank(run, FIELD(MapContext, request));
    blank(run, FIELD(MapContext, _debug_ctx));
    blank(run, GAP(MapContext, as_written, remote_as_high));
    blank(run, GAP(MapContext, ebgp_paths_count, ebgp_path_texts));
    blank(run, GAP(MapContext, ibgp_paths_count, ibgp_path_texts));
    blank(run, GAP(MapContext, four_byte_received, distance_texts));
    return is_zero(run);
}

// A request that has its kind, and waits for its response.
bool is_fresh_request(Bytes request)
{
    blank(request, FIELD(RequestContext, request_info));
    blank(request, FIELD(RequestContext, response_pending));
    blank(request, GAP(RequestContext, response_pending, kept_mapped_tree));
    blank(request, GAP(RequestContext, af_paths_wanted, oper_af_matched));
    blank(request, offsetof(RequestContext, replace_scope_owner) + sizeof(RequestContext::replace_scope_owner),
          sizeof(RequestContext));
    return is_zero(request);
}

class Requests : public testing::Test {
protected:
    void SetUp() override { take_entry_calls(); }
};

}  // namespace

// ---- What is handed over --------------------------------------------------------------------

TEST_F(Requests, BeginWithAZeroedContextButForKindAndPendingResponse)
{
    const Exchange exchange(VMF_REQ_GET, router_id);
    const auto calls = take_entry_calls();
    ASSERT_EQ(names_of(calls), std::vector<std::string>{"request"});
    EXPECT_EQ(calls[0].request.response_pending, 1u);
    EXPECT_EQ(calls[0].kind, uint32_t{VMF_REQ_GET});
    EXPECT_TRUE(is_fresh_request(calls[0].request_bytes));
    EXPECT_TRUE(is_fresh(calls[0].run_bytes));
}

TEST_F(Requests, GiveEachEntryAFreshRunAndTheSameRequest)
{
    Exchange exchange(VMF_REQ_GET, sums);
    ASSERT_EQ(exchange.answer(configuration() + operational()), uint32_t{VMF_RC_OK});
    const auto calls = take_entry_calls();
    ASSERT_EQ(names_of(calls), (std::vector<std::string>{"request", "configuration", "operational"}));
    for (const EntryCall &call : calls) {
        EXPECT_TRUE(is_fresh(call.run_bytes)) << call.entry;
        EXPECT_EQ(call.request_at, calls[0].request_at) << call.entry;
    }
    EXPECT_EQ(calls[1].request.oper_wanted, 1u);
    EXPECT_EQ(calls[2].request.global_paths_wanted, 1u);
}

TEST_F(Requests, HandTheKeptHolderToTheOperationalEntry)
{
    Exchange exchange(VMF_REQ_GET, sums);
    exchange.answer(configuration() + operational());
    const auto calls = take_entry_calls();
    ASSERT_EQ(calls.size(), 3u);
    EXPECT_EQ(calls[1].request.kept_mapped_tree, nullptr);
    EXPECT_EQ(calls[2].request.kept_mapped_tree, calls[1].holder);
    EXPECT_EQ(calls[2].holder, calls[1].holder);
    for (size_t i : {1, 2}) EXPECT_EQ(calls[i].skips, 0);
}

TEST_F(Requests, CallTheConfigurationEntryFirstWhateverComesFirst)
{
    Exchange exchange(VMF_REQ_GET, sums);
    exchange.answer(operational() + configuration());
    EXPECT_EQ(names_of(take_entry_calls()), (std::vector<std::string>{"request", "configuration", "operational"}));
    EXPECT_EQ(text_of(exchange.answered), sums_answer);
}

// ---- Operational data -----------------------------------------------------------------------

TEST_F(Requests, WantOperationalDataOnlyIfTheMappingSaysSo)
{
    EXPECT_TRUE(Exchange(VMF_REQ_GET, sums).request.wants_operational());
    EXPECT_FALSE(Exchange(VMF_REQ_GET, router_id).request.wants_operational());
    EXPECT_FALSE(Exchange(VMF_REQ_GET_CONFIG, router_id).request.wants_operational());
    EXPECT_FALSE(Exchange(VMF_REQ_EDIT, router_id).request.wants_operational());
}

TEST_F(Requests, DoNotCallTheOperationalEntryForATreeThatNobodyWanted)
{
    Exchange exchange(VMF_REQ_GET, router_id);
    ASSERT_EQ(exchange.answer(configuration() + operational()), uint32_t{VMF_RC_OK});
    EXPECT_EQ(names_of(take_entry_calls()), (std::vector<std::string>{"request", "configuration"}));
    EXPECT_EQ(text_of(exchange.answered), router_id_answer);
}

// ---- The answer -----------------------------------------------------------------------------

TEST_F(Requests, AreAnsweredInThePlaceOfTheNativeTree)
{
    for (const uint32_t kind : {VMF_REQ_GET_CONFIG, VMF_REQ_GET}) {
        Exchange exchange(kind, router_id);
        ASSERT_EQ(exchange.answer(configuration()), uint32_t{VMF_RC_OK});
        EXPECT_EQ(text_of(exchange.answered), router_id_answer);
    }
}

TEST_F(Requests, AreAnsweredByTheKeptTreeWhenBothModelsSpeak)
{
    Exchange exchange(VMF_REQ_GET, sums);
    ASSERT_EQ(exchange.answer(configuration() + operational()), uint32_t{VMF_RC_OK});
    const auto calls = take_entry_calls();
    EXPECT_EQ(calls[1].skipped, 0);
    EXPECT_EQ(calls[2].skipped, 1);
    EXPECT_EQ(text_of(exchange.answered), sums_answer);
}

TEST_F(Requests, DropTheNativeTreeThatIsToBeSkipped)
{
    Exchange exchange(VMF_REQ_GET, sums);
    ASSERT_EQ(exchange.answer(configuration()), uint32_t{VMF_RC_OK});
    const auto calls = take_entry_calls();
    ASSERT_EQ(names_of(calls), (std::vector<std::string>{"request", "configuration"}));
    EXPECT_EQ(calls[1].skipped, 1);
    EXPECT_EQ(text_of(exchange.answered), "bgp oc-bgp\n  global\n    state\n      router-id = 192.0.2.1\n");
}

TEST_F(Requests, AreAnsweredByOperationalDataAlone)
{
    Exchange exchange(VMF_REQ_GET, sums);
    ASSERT_EQ(exchange.answer(operational()), uint32_t{VMF_RC_OK});
    const auto calls = take_entry_calls();
    ASSERT_EQ(names_of(calls), (std::vector<std::string>{"request", "operational"}));
    EXPECT_EQ(calls[1].skipped, 1);
    EXPECT_EQ(text_of(exchange.answered), "bgp oc-bgp\n  global\n    state\n      total-paths = 100\n");
}

TEST_F(Requests, AreNotAnsweredByTreesOfOtherModels)
{
    const std::string other = "system <urn:other>\n  hostname = r1\n";
    for (const char *inside : {router_id, sums}) {
        Exchange exchange(VMF_REQ_GET, inside);
        ASSERT_EQ(exchange.answer(other + configuration() + other + operational()), uint32_t{VMF_RC_OK});
        EXPECT_EQ(text_of(exchange.answered), inside == router_id ? router_id_answer : sums_answer);
    }
}

TEST_F(Requests, HaveNoAnswerWhenNothingWasSaid)
{
    const std::string other_instance = "bgp zr-cfg\n  instance\n    instance-name = blue\n";
    for (const std::string &native : {std::string(), std::string("bgp zr-cfg\n"), other_instance}) {
        Exchange exchange(VMF_REQ_GET, sums);
        ASSERT_EQ(exchange.answer(native), uint32_t{VMF_RC_OK});
        EXPECT_EQ(text_of(exchange.answered), "");
    }
}

// A list entry of the operational model without children.
TEST_F(Requests, PassOnWhatTheWayBackRefuses)
{
    Exchange exchange(VMF_REQ_GET, sums);
    EXPECT_EQ(exchange.answer(configuration() + "bgp zr-oper\n  instances\n    instance\n"), uint32_t{VMF_RC_BAD_KEY});
    EXPECT_EQ(text_of(exchange.answered), "");
    EXPECT_STREQ(exchange.request.context().rejected_tag, "instance");
}

TEST_F(Requests, LeaveTheHolderNamedByNobodyBehindThem)
{
    Exchange exchange(VMF_REQ_GET, sums);
    exchange.answer(configuration() + operational());
    EXPECT_EQ(exchange.request.context().kept_mapped_tree, nullptr);
}

// ---- An answer beside the native trees ------------------------------------------------------

namespace {

struct Beside {
    const char *name;
    uint32_t kind;
    const char *request;
    std::string native;
    const char *answer;
};

}  // namespace

TEST_F(Requests, AreAnsweredBesideTheNativeTreesIfNoResponseIsPending)
{
    const Beside cases[] = {
        {"moved to the response", VMF_REQ_GET_CONFIG, router_id, configuration(), router_id_answer},
        {"kept", VMF_REQ_GET, router_id, configuration(), router_id_answer},
        {"kept for both", VMF_REQ_GET, sums, configuration() + operational(), sums_answer},
        {"shared with the response", VMF_REQ_GET, sums, operational(),
         "bgp oc-bgp\n  global\n    state\n      total-paths = 100\n"},
        {"nothing", VMF_REQ_GET, sums, "bgp zr-cfg\nbgp zr-oper\n", ""},
    };
    for (const Beside &it : cases) {
        Exchange exchange(it.kind, it.request);
        exchange.request.context().response_pending = 0;
        EXPECT_EQ(exchange.answer(it.native), uint32_t{VMF_RC_OK}) << it.name;
        EXPECT_EQ(text_of(exchange.answered), it.answer) << it.name;
    }
}
