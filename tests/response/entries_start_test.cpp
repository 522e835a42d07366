// What both response entries do before they decide about the trees.
#include "entry_run.h"

namespace response {
namespace {

struct EntryStart : testing::TestWithParam<std::tuple<Model, uint32_t>> {
    Model model = std::get<0>(GetParam());
    uint32_t pending = std::get<1>(GetParam());
    std::string trees = std::string(cfg_text) + oper_text;
};
INSTANTIATE_TEST_SUITE_P(Of, EntryStart,
                         testing::Combine(testing::Values(Model::cfg, Model::oper), testing::Values(0u, 1u)),
                         [](const auto &tested) {
                             return std::string(name_of(std::get<0>(tested.param))) +
                                    (std::get<1>(tested.param) != 0 ? "_pending" : "_beside");
                         });

TEST_P(EntryStart, ends_with_the_outcome_of_a_failing_walk_and_leaves_everything)
{
    for (const uint32_t outcome : {some_failure, uint32_t{VMF_RC_BAD_TREE}, uint32_t{VMF_RC_BAD_KEY}}) {
        for (const uint32_t kind : {VMF_REQ_GET_CONFIG, VMF_REQ_EDIT, VMF_REQ_GET}) {
            for (const bool kept : {false, true}) {
                EntryRun run(model, kind, pending, trees);
                run.request().oper_wanted = 1;
                run.request().kept_mapped_tree = kept ? &run.out.root() : nullptr;
                run.walk_outcome = outcome;
                EXPECT_EQ(run.call(), outcome);
                run.expect_response_untouched();
                EXPECT_EQ(text_of(run.mapped_tree), mapped_text);
                EXPECT_EQ(run.request().kept_mapped_tree, kept ? &run.out.root() : nullptr);
                EXPECT_EQ(run.skip_subtree, untouched);
                EXPECT_TRUE(run.probe.printed.empty());
                EXPECT_EQ(run.lines(), Lines{std::string("ERR Failed to map ZR model to open config model! (rc = ") +
                                             cerr_strerror(outcome) + ")"});
            }
        }
    }
}

TEST_P(EntryStart, dumps_the_mapped_tree)
{
    EntryRun run(model, VMF_REQ_GET, pending, trees);
    run.request().kept_mapped_tree = &run.mapped();
    EXPECT_EQ(run.call(), VMF_RC_OK);
    ASSERT_FALSE(run.probe.printed.empty());
    EXPECT_EQ(run.probe.printed[0].label, "Mapped tree");
    EXPECT_TRUE(run.probe.printed[0].tree == &run.mapped() || run.probe.printed[0].tree == run.root);
    run.mapped_is_gone = model == Model::cfg && pending != 0;
}

TEST_P(EntryStart, says_so_and_dumps_nothing_when_nothing_was_mapped)
{
    EntryRun run(model, VMF_REQ_GET, pending, trees);
    run.request().oper_wanted = 1;
    run.maps = "";
    EXPECT_EQ(run.call(), VMF_RC_OK);
    EXPECT_EQ(run.lines().front(), "TRC No mapped output");
    EXPECT_EQ(run.labels(), Lines{});
    EXPECT_EQ(run.request().kept_mapped_tree, nullptr);
}

// A holder whose bit 6 is set has a mapped tree, but a root that is not there cannot be taken.
TEST_P(EntryStart, survives_a_mapped_tree_without_a_root)
{
    for (const uint32_t kind : {VMF_REQ_EDIT, VMF_REQ_GET}) {
        EntryRun run(model, kind, pending, trees);
        run.maps = "";
        run.after_walk = [&] { run.mapped().present[0] |= VMF_DT_SUBTREES; };
        EXPECT_EQ(run.call(), VMF_RC_OK);
        EXPECT_EQ(run.labels(), Lines{});
        EXPECT_TRUE(run.probe.added.empty());
        EXPECT_EQ(run.request().kept_mapped_tree, nullptr);
        if (model == Model::cfg || pending == 0) run.expect_response_untouched();
    }
}

// ---- With the library's own walks -----------------------------------------------------------

TEST(EntryWithItsWalk, maps_nothing_of_a_native_root_without_children)
{
    for (const Model model : both_models) {
        for (const uint32_t pending : {0u, 1u}) {
            EntryRun run(model, VMF_REQ_GET, pending, std::string("bgp ") + namespace_name(model) + "\n" + other_text);
            run.probe.walk = nullptr;
            EXPECT_EQ(run.call(), VMF_RC_OK);
            ASSERT_EQ(run.probe.visits.size(), 1u);
            EXPECT_EQ(run.probe.visits[0].handler, symbol("vmf_map_cont_", model, "/bgp"));
            EXPECT_EQ(run.probe.visits[0].children, 0);
            EXPECT_EQ(run.mapped().present[0], 0);
            EXPECT_EQ(run.said_by_entry().front(), "TRC No mapped output");
        }
    }
}

TEST(EntryWithItsWalk, maps_nothing_of_operational_data_but_for_a_get)
{
    for (const uint32_t kind : {uint32_t{VMF_REQ_GET_CONFIG}, uint32_t{VMF_REQ_EDIT}, 7u}) {
        EntryRun run(Model::oper, kind, 0, oper_text);
        run.probe.walk = nullptr;
        run.probe.hands_on = true;
        EXPECT_EQ(run.call(), VMF_RC_OK);
        EXPECT_EQ(run.probe.visits.size(), 1u);
        EXPECT_EQ(run.mapped().present[0], 0);
        EXPECT_EQ(run.said_by_entry(), Lines{"TRC No mapped output"});
    }
}

TEST(EntryWithItsWalk, refuses_a_null_tree_and_a_null_holder)
{
    for (const Model model : both_models) {
        const auto entry = model == Model::cfg ? vmf_map_zr_cfg_bgp_to_oc : vmf_map_zr_opr_bgp_to_oc;
        EntryRun run(model, VMF_REQ_GET, 1, std::string(cfg_text) + oper_text);
        run.probe.walk = nullptr;
        Datatree &tree = platform::children_of(run.response())[0];
        EXPECT_EQ(entry(&run.ctx, &run.response(), nullptr, &run.mapped(), nullptr), VMF_RC_BAD_ARGS);
        EXPECT_EQ(entry(&run.ctx, &run.response(), &tree, nullptr, nullptr), VMF_RC_BAD_ARGS);
        const std::string line = std::string("ERR Failed to map ZR model to open config model! (rc = ") +
                                 cerr_strerror(VMF_RC_BAD_ARGS) + ")";
        EXPECT_EQ(run.said_by_entry(), (Lines{line, line}));
    }
}

using EntryStartDeathTest = EntryStart;
INSTANTIATE_TEST_SUITE_P(Of, EntryStartDeathTest,
                         testing::Combine(testing::Values(Model::cfg, Model::oper), testing::Values(0u)),
                         [](const auto &tested) { return std::string(name_of(std::get<0>(tested.param))); });

TEST_P(EntryStartDeathTest, asserts_its_context_and_the_place_of_its_debug_context)
{
    const auto entry = model == Model::cfg ? vmf_map_zr_cfg_bgp_to_oc : vmf_map_zr_opr_bgp_to_oc;
    Datatree tree = {};
    int32_t skip = 0;
    EXPECT_DEATH(entry(nullptr, &tree, &tree, &tree, &skip),
                 "vmf_map_oc_bgp_common/[a-z_]+\\.cpp: [0-9]+ NULL != ctx -- assertion failed");
    auto *without_debug = reinterpret_cast<MapContext *>(uintptr_t{0} - offsetof(MapContext, _debug_ctx));
    EXPECT_DEATH(entry(without_debug, &tree, &tree, &tree, &skip),
                 "NULL != \\(&\\(\\(ctx\\)->_debug_ctx\\)\\) -- assertion failed");
}

}  // namespace
}  // namespace response
