// The two entries as the framework calls them, with the library's own walks and handlers: which tree becomes the
// answer, and that each tree has one owner whatever fails.
#include <gtest/gtest.h>

#include "names.h"
#include "observer.h"
#include "probe.h"
#include "request.h"
#include "response.h"
#include "tree_text.h"

namespace response {
namespace {

constexpr uint32_t some_failure = 0x77;

const std::string cfg_tree = bare_text(Model::cfg, "/bgp/instance",
                                       "instance-name = default\n"
                                       "instance-as\n"
                                       "  as = 0\n"
                                       "  four-byte-as\n"
                                       "    default-vrf\n"
                                       "      global\n"
                                       "        router-id = 1.1.1.1\n");
const std::string oper_tree = bare_text(Model::oper, "/bgp/instances/instance/instance-active/default-vrf/afs", "");
const std::string other_tree = "interfaces <urn:other>\n"
                               "  interface\n"
                               "    name = lo0\n";

const std::string mapped_tree = "bgp oc-bgp\n"
                                "  neighbors\n";

const std::string from_cfg = "bgp oc-bgp\n"
                             "  global\n"
                             "    config\n"
                             "      router-id = 1.1.1.1\n";
const std::string from_oper = "bgp oc-bgp\n"
                              "  global\n"
                              "    afi-safis\n";
const std::string from_both = from_cfg + "    afi-safis\n";

struct Way {
    const char *name;
    uint32_t kind, oper_wanted, response_pending;
    std::string trees, answer;

    friend void PrintTo(const Way &it, std::ostream *out) { *out << it.name; }
};

const Way ways[] = {
    // In the place of the native trees.
    {"an_edit_overwrites", VMF_REQ_EDIT, 0, 1, cfg_tree, from_cfg},
    {"an_edit_overwrites_beside_others", VMF_REQ_EDIT, 1, 1, other_tree + cfg_tree, from_cfg},
    {"another_kind_overwrites", 7, 1, 1, cfg_tree + other_tree, from_cfg},
    {"a_read_of_configuration_overwrites", VMF_REQ_GET_CONFIG, 1, 1, cfg_tree, from_cfg},
    {"a_get_without_operational_data_overwrites", VMF_REQ_GET, 0, 1, cfg_tree, from_cfg},
    {"a_get_keeps_what_both_trees_give", VMF_REQ_GET, 1, 1, cfg_tree + oper_tree, from_both},
    {"a_get_keeps_it_whatever_their_order", VMF_REQ_GET, 1, 1, oper_tree + cfg_tree, from_both},
    {"a_get_keeps_it_among_others", VMF_REQ_GET, 1, 1, cfg_tree + other_tree + oper_tree, from_both},
    {"a_get_keeps_what_the_configuration_alone_gives", VMF_REQ_GET, 1, 1, cfg_tree, from_cfg},
    {"a_get_keeps_what_the_operational_tree_alone_gives", VMF_REQ_GET, 1, 1, oper_tree, from_oper},
    {"a_get_of_nothing_that_is_mapped", VMF_REQ_GET, 1, 1, "bgp zr-cfg\nbgp zr-oper\n", ""},
    {"a_get_to_which_only_the_operational_tree_has_to_say", VMF_REQ_GET, 1, 1, "bgp zr-cfg\n" + oper_tree, from_oper},
    {"a_get_of_other_trees", VMF_REQ_GET, 1, 1, other_tree, ""},
    {"a_get_of_no_tree", VMF_REQ_GET, 1, 1, "", ""},
    {"an_edit_with_an_operational_tree", VMF_REQ_EDIT, 1, 1, cfg_tree + oper_tree, from_cfg},
    // Beside the native trees.
    {"an_edit_adds", VMF_REQ_EDIT, 0, 0, cfg_tree, from_cfg},
    {"an_edit_adds_beside_others", VMF_REQ_EDIT, 1, 0, cfg_tree + oper_tree + other_tree, from_cfg},
    {"a_read_of_configuration_adds", VMF_REQ_GET_CONFIG, 0, 0, cfg_tree, from_cfg},
    {"a_get_keeps_the_configuration_beside", VMF_REQ_GET, 0, 0, cfg_tree, from_cfg},
    {"a_get_keeps_both_beside", VMF_REQ_GET, 1, 0, cfg_tree + oper_tree, from_both},
    {"a_get_adds_what_the_operational_tree_alone_gives", VMF_REQ_GET, 1, 0, other_tree + oper_tree, from_oper},
    {"an_edit_of_nothing_that_is_mapped", VMF_REQ_EDIT, 0, 0, "bgp zr-cfg\n", ""},
    // Beside an OpenConfig tree that somebody else put there.
    {"an_edit_replaces_what_was_mapped_before", VMF_REQ_EDIT, 0, 0, mapped_tree + cfg_tree, from_cfg},
    {"a_get_replaces_what_was_mapped_before", VMF_REQ_GET, 1, 0, mapped_tree + oper_tree, from_oper},
    {"an_edit_keeps_what_was_mapped_before", VMF_REQ_EDIT, 0, 0, mapped_tree + "bgp zr-cfg\n", mapped_tree},
};

std::string way_name(const testing::TestParamInfo<Way> &tested) { return tested.param.name; }

// The request is one for configuration leaves alone, so that no handler makes a second copy.
struct FrameworkRun {
    explicit FrameworkRun(const Way &way) : request(way.kind, database, log)
    {
        request.context().response_pending = way.response_pending;
        request.context().oper_wanted = way.oper_wanted;
        request.context().config_named = 1;
    }

    uint32_t answer(const Way &way) { return request.answer(io::read_tree(way.trees), given); }

    platform::SystemDatabase database;
    platform::Log log;
    framework::Request request;
    platform::Tree given;
};

struct EntriesOfFramework : testing::TestWithParam<Way> {};
INSTANTIATE_TEST_SUITE_P(When, EntriesOfFramework, testing::ValuesIn(ways), way_name);

TEST_P(EntriesOfFramework, give_the_mapped_tree_as_the_answer)
{
    FrameworkRun run(GetParam());
    EXPECT_EQ(run.answer(GetParam()), VMF_RC_OK);
    EXPECT_EQ(text_of(run.given), GetParam().answer);
    EXPECT_EQ(run.request.context().kept_mapped_tree, nullptr);  // nobody is left to own it
}

// Lets the operation of a number fail, and counts them.
struct FailingAt {
    explicit FailingAt(size_t number) : number_(number) { platform::observe(&observer_); }
    ~FailingAt() { platform::observe(nullptr); }
    FailingAt(const FailingAt &) = delete;
    FailingAt &operator=(const FailingAt &) = delete;

    const std::string &failed() const { return failed_; }

private:
    static uint32_t before(void *self, const platform::Operation &operation)
    {
        auto &failing = *static_cast<FailingAt *>(self);
        if (++failing.count_ != failing.number_) return 0;
        failing.failed_ = operation.name;
        return some_failure;
    }

    const platform::Observer observer_ = {before, this};
    const size_t number_;
    size_t count_ = 0;
    std::string failed_;
};

TEST_P(EntriesOfFramework, pass_every_failure_up_and_give_no_answer)
{
    for (size_t number = 1;; number++) {
        FrameworkRun run(GetParam());
        platform::Tree trees = io::read_tree(GetParam().trees);
        uint32_t outcome = 0;
        std::string failed;
        {
            const FailingAt failing(number);
            outcome = run.request.answer(std::move(trees), run.given);
            failed = failing.failed();
        }
        if (failed.empty()) break;
        SCOPED_TRACE(failed + ", operation " + std::to_string(number));
        EXPECT_EQ(outcome, failed == "kos_named_calloc_" ? uint32_t{VMF_RC_NO_MEMORY} : some_failure);
        EXPECT_EQ(text_of(run.given), "");
        EXPECT_EQ(run.request.context().kept_mapped_tree, nullptr);
    }
}

// What was kept can still be asked for where a later step fails.
TEST_P(EntriesOfFramework, own_every_tree_once_when_the_answer_is_taken_after_a_failure)
{
    for (size_t number = 1;; number++) {
        FrameworkRun run(GetParam());
        platform::SystemDatabase database;
        platform::Log log;
        framework::Contexts contexts(GetParam().kind, database, log);
        contexts.request = run.request.context();
        contexts.request.request_info = &contexts.info;
        std::string failed;
        uint32_t outcome = 0;
        {
            framework::Response response(contexts, io::read_tree(GetParam().trees));
            {
                const FailingAt failing(number);
                outcome = response.map_configuration();
                if (outcome == VMF_RC_OK) outcome = response.map_operational();
                failed = failing.failed();
            }
            if (!failed.empty()) {
                EXPECT_NE(outcome, VMF_RC_OK) << failed;
            }
            platform::Tree answer = response.take_answer();
            EXPECT_LE(platform::children_of(answer.root()).size(), 1u);
        }
        EXPECT_EQ(contexts.request.kept_mapped_tree, nullptr);
        if (failed.empty()) break;
    }
}

// ---- The calls of the entries ---------------------------------------------------------------

const Way get_both = {"get", VMF_REQ_GET, 1, 1, cfg_tree + oper_tree, from_both};

TEST(EntriesOfFrameworkCalls, come_configuration_first_into_one_holder_each_with_a_fresh_run)
{
    struct Run {
        std::string handler;
        const Datatree *mapped;
        bool is_fresh;
    };
    std::vector<Run> runs;
    Probe probe;
    probe.hands_on = true;
    probe.on_visit = [&](const Visit &visit, MapContext &run) {
        if (visit.handler.ends_with("_bgp")) {
            const bool is_fresh = run.list_node == nullptr && run.af_key == nullptr && run.as_low == 0;
            runs.push_back({visit.handler, visit.mapped, is_fresh});
        }
        run.as_low = 7;
        run.af_key = "key";
    };
    FrameworkRun run(get_both);
    ASSERT_EQ(run.request.answer(io::read_tree(oper_tree + cfg_tree), run.given), VMF_RC_OK);
    ASSERT_EQ(runs.size(), 2u);
    EXPECT_EQ(runs[0].handler, "vmf_map_cont_zr_bgp_cfg_bgp");
    EXPECT_EQ(runs[1].handler, "vmf_map_cont_zr_bgp_oper_bgp");
    EXPECT_EQ(runs[0].mapped, runs[1].mapped);
    EXPECT_TRUE(runs[0].is_fresh);
    EXPECT_TRUE(runs[1].is_fresh);
}

TEST(EntriesOfFrameworkCalls, leave_the_operational_entry_out_when_no_operational_data_is_wanted)
{
    Probe probe;
    probe.hands_on = true;
    FrameworkRun run(get_both);
    run.request.context().oper_wanted = 0;
    ASSERT_EQ(run.answer(get_both), VMF_RC_OK);
    for (const Visit &visit : probe.visits) EXPECT_TRUE(visit.handler.find("zr_bgp_cfg") != std::string::npos);
    EXPECT_EQ(text_of(run.given), from_cfg);
}

TEST(EntriesOfFrameworkCalls, end_with_a_refused_operational_entry)
{
    const std::string empty_neighbor =
        bare_text(Model::oper, "/bgp/instances/instance/instance-active/default-vrf/neighbors/neighbor", "");
    for (const uint32_t pending : {0u, 1u}) {
        FrameworkRun run(get_both);
        run.request.context().response_pending = pending;
        EXPECT_EQ(run.request.answer(io::read_tree(cfg_tree + empty_neighbor), run.given), VMF_RC_BAD_KEY);
        EXPECT_STREQ(run.request.context().rejected_tag, "neighbor");
        EXPECT_EQ(text_of(run.given), "");
    }
}

TEST(EntriesOfFrameworkCalls, begin_with_a_response_that_takes_the_place_of_the_native_trees)
{
    platform::SystemDatabase database;
    platform::Log log;
    const framework::Contexts contexts(VMF_REQ_GET, database, log);
    EXPECT_EQ(contexts.request.response_pending, 1u);
    EXPECT_EQ(contexts.request.kept_mapped_tree, nullptr);
}

// ---- Trees that the entries do not carry over -----------------------------------------------

TEST(EntriesOfFrameworkOwnership, releases_what_a_removal_drops_from_other_trees)
{
    FrameworkRun run(get_both);
    EXPECT_EQ(run.request.answer(io::read_tree("note <urn:other> = text\n" + cfg_tree + "empty <urn:other>\n" +
                                               oper_tree + other_tree),
                                 run.given),
              VMF_RC_OK);
    EXPECT_EQ(text_of(run.given), from_both);
}

TEST(EntriesOfFrameworkOwnership, releases_two_trees_of_one_model)
{
    for (const uint32_t kind : {VMF_REQ_EDIT, VMF_REQ_GET}) {
        for (const uint32_t pending : {0u, 1u}) {
            FrameworkRun run({"", kind, 1, pending, "", ""});
            EXPECT_EQ(run.request.answer(io::read_tree(cfg_tree + cfg_tree), run.given), VMF_RC_OK);
            EXPECT_EQ(text_of(run.given), from_cfg);
        }
    }
}

TEST(EntriesOfFrameworkOwnership, does_not_offer_a_tree_of_the_models_namespace_that_is_not_its_bgp)
{
    FrameworkRun run(get_both);
    const std::string alike = "logging" + cfg_tree.substr(cfg_tree.find(' '));
    EXPECT_EQ(run.request.answer(io::read_tree(alike + other_tree), run.given), VMF_RC_OK);
    EXPECT_EQ(text_of(run.given), "");
}

}  // namespace
}  // namespace response
