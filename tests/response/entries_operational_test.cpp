// The operational entry, branch by branch, up to the removal of the native tree.
#include "entry_run.h"

namespace response {
namespace {

constexpr uint32_t all_kinds[] = {VMF_REQ_GET_CONFIG, VMF_REQ_EDIT, VMF_REQ_GET, 7};

struct OperationalRun : EntryRun {
    OperationalRun(uint32_t kind, uint32_t pending, const std::string &trees = std::string(other_text) + oper_text)
        : EntryRun(Model::oper, kind, pending, trees)
    {
    }
    // The response's new node owns the children that it shares with the root.
    ~OperationalRun()
    {
        if (!shares || root == nullptr) return;
        root->subtrees = nullptr;
        root->subtree_count = 0;
    }
    bool shares = false;
};

// ---- The mapped tree comes beside the native one --------------------------------------------

TEST(OperationalBeside, does_nothing_when_nothing_was_mapped)
{
    for (const uint32_t kind : all_kinds) {
        OperationalRun run(kind, 0);
        run.maps = "";
        EXPECT_EQ(run.call(), VMF_RC_OK);
        run.expect_response_untouched();
        EXPECT_TRUE(run.probe.added.empty());
        EXPECT_EQ(run.request().kept_mapped_tree, nullptr);
        EXPECT_EQ(run.skip_subtree, untouched);
        EXPECT_EQ(run.lines(), Lines{"TRC No mapped output"});
    }
}

TEST(OperationalBeside, leaves_the_mapped_data_where_the_walk_put_it_when_a_tree_is_kept)
{
    for (const uint32_t kind : all_kinds) {
        OperationalRun run(kind, 0);
        run.request().kept_mapped_tree = &run.mapped();
        EXPECT_EQ(run.call(), VMF_RC_OK);
        run.expect_response_untouched();
        EXPECT_TRUE(run.probe.added.empty());
        EXPECT_EQ(text_of(run.mapped_tree), mapped_text);
        EXPECT_EQ(run.skip_subtree, untouched);
        EXPECT_EQ(run.lines(), Lines{});
    }
}

TEST(OperationalBeside, adds_a_node_that_shares_its_children_with_the_root)
{
    for (const uint32_t kind : all_kinds) {
        for (const uint32_t oper_wanted : {0u, 1u}) {
            OperationalRun run(kind, 0);
            run.array_grew = run.shares = true;
            run.request().oper_wanted = oper_wanted;
            EXPECT_EQ(run.call(), VMF_RC_OK);
            EXPECT_EQ(text_of(run.response_tree), std::string(other_text) + oper_text + mapped_text);
            EXPECT_EQ(text_of(run.mapped_tree), mapped_text);
            const Datatree &added = platform::children_of(run.response())[2];
            EXPECT_EQ(added.subtrees, run.root_before.subtrees);
            EXPECT_EQ(added.subtree_count, 2);
            EXPECT_EQ(run.root->subtrees, run.root_before.subtrees);
            EXPECT_EQ(run.mapped().subtrees, run.root);
            run.expect_nothing_freed();
            ASSERT_EQ(run.probe.added.size(), 1u);
            const Probe::Added &asked = run.probe.added[0];
            EXPECT_EQ(asked.parent, &run.response());
            EXPECT_EQ(asked.tag, "bgp");
            EXPECT_EQ(asked.ns, OC_BGP_NS);
            EXPECT_EQ(asked.value, nullptr);
            EXPECT_EQ(asked.source, nullptr);
            EXPECT_EQ(asked.flag, 0u);
            EXPECT_EQ(run.request().kept_mapped_tree, nullptr);
            EXPECT_EQ(run.skip_subtree, untouched);
            EXPECT_EQ(run.lines(), Lines{});
        }
    }
}

TEST(OperationalBeside, takes_tag_and_namespace_from_the_root)
{
    OperationalRun run(VMF_REQ_GET, 0);
    run.array_grew = run.shares = true;
    run.maps = "border <urn:third>\n  leaf = 1\n";
    EXPECT_EQ(run.call(), VMF_RC_OK);
    EXPECT_EQ(text_of(run.response_tree), std::string(other_text) + oper_text + run.maps);
}

TEST(OperationalBeside, passes_a_failing_add_up_and_leaves_everything)
{
    OperationalRun run(VMF_REQ_GET, 0);
    uint32_t outcome = 0;
    {
        const Failing add("vmf_map_datatree_add_subtree");
        outcome = run.call();
    }
    EXPECT_EQ(outcome, some_failure);
    run.expect_response_untouched();
    EXPECT_EQ(text_of(run.mapped_tree), mapped_text);
    EXPECT_EQ(run.lines(), Lines{});
}

TEST(OperationalBeside, does_nothing_more_when_the_add_gives_no_node)
{
    OperationalRun run(VMF_REQ_GET, 0);
    run.probe.adds_give_no_node = true;
    EXPECT_EQ(run.call(), VMF_RC_OK);
    run.expect_response_untouched();
    EXPECT_EQ(text_of(run.mapped_tree), mapped_text);
}

TEST(OperationalBeside, gives_the_new_node_no_children_when_the_root_has_none)
{
    OperationalRun run(VMF_REQ_GET, 0);
    run.array_grew = true;
    run.maps = "bgp oc-bgp\n";
    EXPECT_EQ(run.call(), VMF_RC_OK);
    EXPECT_EQ(platform::children_of(run.response())[2].present[0], VMF_DT_TAG | VMF_DT_NAMESPACE);
    run.expect_nothing_freed();
}

// ---- The mapped tree takes the place of the native one --------------------------------------

TEST(OperationalInPlace, keeps_its_tree_and_removes_the_native_one_in_every_kind)
{
    for (const uint32_t kind : all_kinds) {
        for (const uint32_t oper_wanted : {0u, 1u}) {
            OperationalRun run(kind, 1);
            run.request().oper_wanted = oper_wanted;
            EXPECT_EQ(run.call(), VMF_RC_OK);
            EXPECT_EQ(run.request().kept_mapped_tree, &run.mapped());
            EXPECT_EQ(text_of(run.mapped_tree), mapped_text);
            EXPECT_EQ(text_of(run.response_tree), other_text);
            EXPECT_TRUE(run.probe.added.empty());
            EXPECT_EQ(run.skip_subtree, untouched);
            EXPECT_EQ(run.lines(),
                      (Lines{"TRC Keeping the mapped tree.", "TRC Removing ZR BGP oper datatree from response"}));
            EXPECT_EQ(run.labels(), Lines{"Mapped tree"});
        }
    }
}

TEST(OperationalInPlace, removes_the_native_tree_without_a_word_when_a_tree_is_kept)
{
    OperationalRun run(VMF_REQ_GET, 1);
    run.request().kept_mapped_tree = &run.out.root();
    EXPECT_EQ(run.call(), VMF_RC_OK);
    EXPECT_EQ(run.request().kept_mapped_tree, &run.out.root());
    EXPECT_EQ(text_of(run.response_tree), other_text);
    EXPECT_EQ(run.lines(), Lines{"TRC Removing ZR BGP oper datatree from response"});
}

TEST(OperationalInPlace, removes_the_native_tree_even_when_nothing_was_mapped)
{
    for (const uint32_t kind : all_kinds) {
        OperationalRun run(kind, 1);
        run.maps = "";
        EXPECT_EQ(run.call(), VMF_RC_OK);
        EXPECT_EQ(run.request().kept_mapped_tree, nullptr);
        EXPECT_EQ(text_of(run.response_tree), other_text);
        EXPECT_EQ(run.lines(), (Lines{"TRC No mapped output", "TRC Removing ZR BGP oper datatree from response"}));
    }
}

}  // namespace
}  // namespace response
