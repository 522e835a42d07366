// The configuration entry, branch by branch, up to the removal of the native tree.
#include "entry_run.h"

namespace response {
namespace {

constexpr uint32_t edit_like_kinds[] = {VMF_REQ_GET_CONFIG, VMF_REQ_EDIT, 7};

struct ConfigurationRun : EntryRun {
    ConfigurationRun(uint32_t kind, uint32_t pending, const std::string &trees = std::string(cfg_text) + other_text)
        : EntryRun(Model::cfg, kind, pending, trees)
    {
    }
};

// ---- The mapped tree comes beside the native one --------------------------------------------

TEST(ConfigurationBeside, does_nothing_when_nothing_was_mapped)
{
    for (const uint32_t kind : {VMF_REQ_GET_CONFIG, VMF_REQ_EDIT, VMF_REQ_GET}) {
        ConfigurationRun run(kind, 0);
        run.maps = "";
        EXPECT_EQ(run.call(), VMF_RC_OK);
        run.expect_response_untouched();
        EXPECT_TRUE(run.probe.added.empty());
        EXPECT_EQ(run.request().kept_mapped_tree, nullptr);
        EXPECT_EQ(run.skip_subtree, untouched);
        EXPECT_EQ(run.lines(), Lines{"TRC No mapped output"});
    }
}

TEST(ConfigurationBeside, keeps_the_tree_of_a_get_whether_operational_data_is_wanted_or_not)
{
    for (const uint32_t oper_wanted : {0u, 1u}) {
        ConfigurationRun run(VMF_REQ_GET, 0);
        run.request().oper_wanted = oper_wanted;
        EXPECT_EQ(run.call(), VMF_RC_OK);
        run.expect_response_untouched();
        EXPECT_TRUE(run.probe.added.empty());
        EXPECT_EQ(run.request().kept_mapped_tree, &run.mapped());
        EXPECT_EQ(text_of(run.mapped_tree), mapped_text);
        EXPECT_EQ(run.skip_subtree, untouched);
        EXPECT_EQ(run.lines(), Lines{"TRC This is get request. Keep the mapped tree."});
    }
}

TEST(ConfigurationBeside, hands_the_children_of_any_other_request_over_to_the_response)
{
    for (const uint32_t kind : edit_like_kinds) {
        for (const uint32_t oper_wanted : {0u, 1u}) {
            ConfigurationRun run(kind, 0);
            run.array_grew = run.mapped_is_gone = true;
            run.request().oper_wanted = oper_wanted;
            EXPECT_EQ(run.call(), VMF_RC_OK);
            EXPECT_EQ(text_of(run.response_tree), std::string(cfg_text) + other_text + mapped_text);
            const Datatree &added = platform::children_of(run.response())[2];
            EXPECT_EQ(added.subtrees, run.root_before.subtrees);
            EXPECT_EQ(added.subtree_count, 2);
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

TEST(ConfigurationBeside, takes_tag_and_namespace_from_the_root)
{
    ConfigurationRun run(VMF_REQ_EDIT, 0);
    run.array_grew = run.mapped_is_gone = true;
    run.maps = "border <urn:third>\n  leaf = 1\n";
    EXPECT_EQ(run.call(), VMF_RC_OK);
    EXPECT_EQ(text_of(run.response_tree), std::string(cfg_text) + other_text + run.maps);
}

void expect_root_emptied_and_released(const ConfigurationRun &run)
{
    ASSERT_EQ(run.probe.emptied.size(), 1u);
    const Probe::Emptied &emptied = run.probe.emptied[0];
    EXPECT_EQ(emptied.node, run.root);
    EXPECT_TRUE(emptied.by_framework_callback);
    EXPECT_EQ(emptied.record.subtrees, nullptr);
    EXPECT_EQ(emptied.record.subtree_count, 0);
    EXPECT_NE(emptied.record.present[0] & VMF_DT_SUBTREES, 0);
    EXPECT_EQ(run.probe.released, std::vector<const void *>{run.root});
}

TEST(ConfigurationBeside, empties_and_releases_the_root)
{
    ConfigurationRun run(VMF_REQ_EDIT, 0);
    run.array_grew = run.mapped_is_gone = true;
    EXPECT_EQ(run.call(), VMF_RC_OK);
    expect_root_emptied_and_released(run);
    EXPECT_EQ(run.mapped().subtrees, run.root);  // names released memory, and is not updated
    EXPECT_NE(run.mapped().present[0] & VMF_DT_SUBTREES, 0);
}

TEST(ConfigurationBeside, releases_the_root_but_not_its_children_when_the_response_takes_no_node)
{
    ConfigurationRun run(VMF_REQ_EDIT, 0);
    run.mapped_is_gone = true;
    uint32_t outcome = 0;
    {
        const Failing add("vmf_map_datatree_add_subtree");
        outcome = run.call();
    }
    run.detached = run.root_before;
    run.detached.present[0] &= VMF_DT_SUBTREES;
    EXPECT_EQ(outcome, some_failure);
    EXPECT_EQ(text_of(run.response_tree), run.text_before);
    expect_root_emptied_and_released(run);
    EXPECT_EQ(run.detached.subtree_count, 2);
    EXPECT_STREQ(platform::tag_of(run.detached.subtrees[0]), "global");
    EXPECT_EQ(run.lines(), Lines{});
}

TEST(ConfigurationBeside, loses_the_children_when_the_add_gives_no_node)
{
    ConfigurationRun run(VMF_REQ_EDIT, 0);
    run.mapped_is_gone = true;
    run.probe.adds_give_no_node = true;
    EXPECT_EQ(run.call(), VMF_RC_OK);
    run.detached = run.root_before;
    run.detached.present[0] &= VMF_DT_SUBTREES;
    EXPECT_EQ(text_of(run.response_tree), run.text_before);
    expect_root_emptied_and_released(run);
}

TEST(ConfigurationBeside, gives_the_new_node_no_children_when_the_root_has_none)
{
    ConfigurationRun run(VMF_REQ_EDIT, 0);
    run.array_grew = run.mapped_is_gone = true;
    run.maps = "bgp oc-bgp\n";
    EXPECT_EQ(run.call(), VMF_RC_OK);
    const Datatree &added = platform::children_of(run.response())[2];
    EXPECT_EQ(added.present[0], VMF_DT_TAG | VMF_DT_NAMESPACE);
    EXPECT_EQ(added.subtrees, nullptr);
    expect_root_emptied_and_released(run);
}

// ---- The mapped tree takes the place of the native one --------------------------------------

TEST(ConfigurationInPlace, leaves_the_native_tree_when_nothing_was_mapped)
{
    for (const uint32_t kind : {VMF_REQ_GET_CONFIG, VMF_REQ_EDIT, VMF_REQ_GET}) {
        for (const uint32_t oper_wanted : {0u, 1u}) {
            ConfigurationRun run(kind, 1);
            run.request().oper_wanted = oper_wanted;
            run.maps = "";
            EXPECT_EQ(run.call(), VMF_RC_OK);
            run.expect_response_untouched();
            EXPECT_EQ(run.request().kept_mapped_tree, nullptr);
            EXPECT_EQ(run.skip_subtree, untouched);
            EXPECT_EQ(run.lines(), (Lines{"TRC No mapped output", "TRC Overwriting ZR BGP config model."}));
        }
    }
}

struct Case {
    uint32_t kind, oper_wanted;
};
constexpr Case overwritten[] = {
    {VMF_REQ_GET_CONFIG, 0}, {VMF_REQ_GET_CONFIG, 1}, {VMF_REQ_EDIT, 0}, {VMF_REQ_EDIT, 1}, {7, 0}, {7, 1},
    {VMF_REQ_GET, 0}};

// The native tree, with every field of its record in use.
void fill_record(Datatree &tree)
{
    platform::set_value(tree, "value");
    platform::set_operation(tree, VMF_OP_DELETE);
    tree.word3 = tree.pair5_b = 5;
    tree.pair5_a = 5;
    tree.data_namespace = tree.namespace_;
    tree.present[0] = 0xff;
    tree.present[1] = 0xff;
}

TEST(ConfigurationInPlace, overwrites_the_native_tree_unless_a_get_wants_operational_data)
{
    for (const Case &tested : overwritten) {
        for (const bool platform_leaves_records : {false, true}) {
            AT("kind " + std::to_string(tested.kind) + " oper_wanted " + std::to_string(tested.oper_wanted));
            ConfigurationRun run(tested.kind, 1, std::string(other_text) + cfg_text + third_text);
            run.mapped_is_gone = true;
            run.request().oper_wanted = tested.oper_wanted;
            run.probe.leaves_records = platform_leaves_records;
            Datatree &native = platform::children_of(run.response())[1];
            fill_record(native);
            EXPECT_EQ(run.call(), VMF_RC_OK);

            EXPECT_EQ(run.response().subtrees, run.old_array);
            EXPECT_EQ(text_of(run.response_tree), std::string(other_text) + mapped_text + third_text);
            EXPECT_EQ(native.present[0], VMF_DT_TAG | VMF_DT_NAMESPACE | VMF_DT_SUBTREES);
            EXPECT_EQ(native.present[1], 0);
            EXPECT_EQ(native.value, nullptr);
            EXPECT_EQ(native.word3, 0u);
            EXPECT_EQ(native.operation, uint32_t{VMF_OP_MERGE});
            EXPECT_EQ(native.pair5_a, 0u);
            EXPECT_EQ(native.pair5_b, 0u);
            EXPECT_EQ(native.data_namespace, nullptr);
            EXPECT_EQ(native.subtrees, run.root_before.subtrees);
            EXPECT_EQ(native.subtree_count, 2);

            ASSERT_EQ(run.probe.emptied.size(), 1u);
            EXPECT_EQ(run.probe.emptied[0].node, &native);
            EXPECT_TRUE(run.probe.emptied[0].by_framework_callback);
            EXPECT_STREQ(run.probe.emptied[0].record.tag, "bgp");
            EXPECT_EQ(run.probe.released, std::vector<const void *>{run.root});
            EXPECT_EQ(run.mapped().subtrees, run.root);
            EXPECT_TRUE(run.probe.added.empty());
            EXPECT_EQ(run.request().kept_mapped_tree, nullptr);
            EXPECT_EQ(run.skip_subtree, untouched);
            EXPECT_EQ(run.lines(), Lines{"TRC Overwriting ZR BGP config model."});
            EXPECT_EQ(run.labels(), Lines{"Mapped tree"});
        }
    }
}

TEST(ConfigurationInPlace, overwrites_with_a_root_that_has_no_children)
{
    ConfigurationRun run(VMF_REQ_EDIT, 1);
    run.mapped_is_gone = true;
    run.maps = "bgp oc-bgp\n";
    EXPECT_EQ(run.call(), VMF_RC_OK);
    EXPECT_EQ(text_of(run.response_tree), std::string("bgp oc-bgp\n") + other_text);
    EXPECT_EQ(run.native_tree->subtrees, nullptr);
    EXPECT_EQ(run.native_tree->subtree_count, 0);
}

TEST(ConfigurationInPlace, overwrites_the_only_tree_without_asking_to_skip_it)
{
    ConfigurationRun run(VMF_REQ_EDIT, 1, cfg_text);
    run.mapped_is_gone = true;
    EXPECT_EQ(run.call(), VMF_RC_OK);
    EXPECT_EQ(text_of(run.response_tree), mapped_text);
    EXPECT_EQ(run.skip_subtree, untouched);
}

TEST(ConfigurationInPlace, keeps_the_tree_of_a_get_that_wants_operational_data_and_removes_the_native_one)
{
    ConfigurationRun run(VMF_REQ_GET, 1, std::string(cfg_text) + oper_text);
    run.request().oper_wanted = 1;
    EXPECT_EQ(run.call(), VMF_RC_OK);
    EXPECT_EQ(run.request().kept_mapped_tree, &run.mapped());
    EXPECT_EQ(text_of(run.mapped_tree), mapped_text);
    EXPECT_EQ(text_of(run.response_tree), oper_text);
    EXPECT_EQ(run.lines(),
              (Lines{"TRC Overwriting ZR BGP config model.", "TRC This is get request. Keep the mapped tree.",
                     "TRC Removing ZR BGP config datatree from response", "TRC Freeing ZR BGP tree."}));
}

TEST(ConfigurationInPlace, writes_over_a_tree_that_was_kept_before)
{
    ConfigurationRun run(VMF_REQ_GET, 1, std::string(cfg_text) + oper_text);
    run.request().oper_wanted = 1;
    run.request().kept_mapped_tree = &run.out.root();
    EXPECT_EQ(run.call(), VMF_RC_OK);
    EXPECT_EQ(run.request().kept_mapped_tree, &run.mapped());
}

}  // namespace
}  // namespace response
