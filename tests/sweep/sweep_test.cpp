// Every exchange of the golden set, with each operation of the platform that it asks for failing once. What comes of a
// failure at each single place, the cases of the requests say; here it is held against what each operation may do.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <set>

#include "trees.h"
#include "vmf_map_platform.h"

namespace {

using sweep::Exchange;
using sweep::injected;
using sweep::Trees;

// ---- What may come of a failure -------------------------------------------------------------

constexpr uint32_t same = 0;  // the outcome that the exchange has without the failure: it is dropped
constexpr uint32_t passed = injected;

struct Consequence {
    const char *operation;
    std::set<uint32_t> there;  // of the request
    std::set<uint32_t> back;   // of the response
};

const Consequence consequences[] = {
    // The handlers drop the outcome of many an add; a list entry or a node that is missing then is a bad tree or a bad
    // argument where it is needed.
    {"vmf_map_datatree_add_path", {passed, same}, {passed, same, VMF_RC_BAD_ARGS}},
    {"vmf_map_datatree_add_path_common", {passed, same, VMF_RC_BAD_ARGS, VMF_RC_UNSUPPORTED}, {}},
    {"vmf_map_datatree_add_subtree", {passed, same, VMF_RC_BAD_ARGS, VMF_RC_BAD_TREE}, {passed}},
    {"vmf_map_datatree_add_list_node", {}, {passed, same}},
    {"vmf_map_datatree_add_data_ns", {}, {passed, same}},
    {"vmf_map_get_subtrees", {passed}, {passed}},
    // A list that the framework does not take is walked all the same, but not on the way back.
    {"vmf_map_update_current_list_node", {same}, {passed}},
    // An identity that cannot be held against its module, or a name that does not fit, is not supported.
    {"vmf_map_validate_data_ns", {VMF_RC_UNSUPPORTED, same}, {}},
    {"vmf_safe_strncpy", {VMF_RC_UNSUPPORTED, same}, {}},
    // What is refused is refused without its tag.
    {"vmf_strdup", {same, passed}, {same}},
    {"kos_named_calloc_", {VMF_RC_NO_MEMORY}, {VMF_RC_NO_MEMORY}},
    {"strcpy_s", {passed}, {passed, same}},
    {"__strcat_s_to_buf", {passed}, {passed, same}},
    // A request goes on without the AS, unless it asks for it by name.
    {"vmf_session_find", {same, VMF_RC_BAD_ARGS, SYSDB_NOTHING_FOUND}, {}},
    {"sysdb_backend_find_data", {same, passed, SYSDB_NOTHING_FOUND}, {}},
    {"sysdb_backend_result_set_iterate_start", {same, passed, SYSDB_NOTHING_FOUND}, {}},
    {"sysdb_backend_result_set_iterate_next", {same, passed, SYSDB_NOTHING_FOUND}, {}},
    {"sysdb_backend_result_get_location", {same, passed, VMF_RC_BAD_TREE, SYSDB_NOTHING_FOUND}, {}},
    {"me_bk_sysdb_packed_data_unpack", {passed}, {}},
};

const Consequence *consequence_of(const std::string &operation)
{
    const auto *found = std::find_if(std::begin(consequences), std::end(consequences),
                                     [&](const Consequence &row) { return row.operation == operation; });
    return found != std::end(consequences) ? found : nullptr;
}

// ---- A run ----------------------------------------------------------------------------------

// Counts the operations of a run, lets one of them fail, and keeps what was added until then.
struct Witness {
    size_t number;
    const sweep::Run &run;
    size_t count = 0;
    std::string operation = {};  // that failed; empty: none yet
    std::string path = {};
    bool failed_there = false;  // not on the way back
    std::string native_at_failure = {};

    static uint32_t before(void *self, const platform::Operation &operation)
    {
        auto &failing = *static_cast<Witness *>(self);
        if (++failing.count != failing.number) return 0;
        failing.operation = operation.name;
        failing.path = operation.path != nullptr ? operation.path : "-";
        failing.failed_there = !failing.run.comes_back;
        failing.native_at_failure = sweep::text_of(failing.run.native);
        return injected;
    }
};

struct Ended {
    size_t operations;
    std::string operation;  // that failed
    std::string path;
    bool failed_there;
    uint32_t there;
    uint32_t back;
    bool lost_what_was_added;
};

Ended run(const Exchange &exchange, const Trees &trees, size_t failing_number)
{
    platform::Log log;
    sweep::Run run(exchange, log);
    Witness failing = {failing_number, run};
    run.go(trees, failing);
    const bool is_lost =
        failing.failed_there && run.there == injected && sweep::text_of(run.native) != failing.native_at_failure;
    return {failing.count, failing.operation, failing.path, failing.failed_there, run.there, run.back, is_lost};
}

void expect_consequence(const Exchange &exchange, const Ended &without, const Ended &ended)
{
    const uint32_t outcome = ended.failed_there ? ended.there : ended.back;
    const uint32_t otherwise = ended.failed_there ? without.there : without.back;
    const Consequence *row = consequence_of(ended.operation);
    ASSERT_NE(row, nullptr) << ended.operation;
    const std::set<uint32_t> &allowed = ended.failed_there ? row->there : row->back;
    EXPECT_TRUE(allowed.contains(outcome == otherwise ? same : outcome))
        << exchange.name << ": " << ended.operation << " " << ended.path << " fails, outcome " << std::hex << outcome;
    EXPECT_FALSE(ended.lost_what_was_added) << exchange.name << ": " << ended.operation << " " << ended.path;
}

}  // namespace

TEST(Sweep, EveryOperationFailsOnce)
{
    size_t points = 0, passed_up = 0;
    std::set<std::string> operations;
    for (const Exchange &exchange : sweep::golden_set()) {
        const Trees trees(exchange);
        const Ended without = run(exchange, trees, 0);
        for (size_t number = 1; number <= without.operations; number++) {
            const Ended ended = run(exchange, trees, number);
            expect_consequence(exchange, without, ended);

            operations.insert(ended.operation);
            points++;
            passed_up += ended.there == injected || ended.back == injected ? 1 : 0;
        }
    }
    std::printf("%zu exchanges, %zu points of failure, %zu passed up\n", sweep::golden_set().size(), points, passed_up);
    EXPECT_GE(sweep::golden_set().size(), size_t{300});
    for (const Consequence &row : consequences)
        EXPECT_TRUE(operations.contains(row.operation)) << row.operation << " never failed";
}
