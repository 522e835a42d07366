// What each walker of the native trees does with a node as such: without children, corrupt, refused by its handler.
#include <cstring>

#include "walk_run.h"

namespace response {
namespace {

struct WalkContainers : testing::TestWithParam<Model> {
    Model model = GetParam();

    // Outcome and handlers for a way to the place whose last node was changed.
    template<class Change>
    uint32_t walk_changed(WalkRun &run, const Place &place, const std::string &inside, Change change)
    {
        // What stands behind the place must not be reached by a walk that stops.
        run.tree = io::read_tree(bare_text(model, place.path, inside));
        Datatree &node = node_at(run.tree, path_of_nodes(place));
        const Datatree before = node;
        change(node);
        const uint32_t outcome = run.walk();
        node.present[0] = before.present[0];
        node.subtrees = before.subtrees;
        node.subtree_count = before.subtree_count;
        return outcome;
    }
};
INSTANTIATE_TEST_SUITE_P(Of, WalkContainers, testing::Values(Model::cfg, Model::oper), model_name);

TEST_P(WalkContainers, without_children_get_their_handler_called_with_0)
{
    const auto bit_is_clear = [](Datatree &node) { node.present[0] &= static_cast<uint8_t>(~VMF_DT_SUBTREES); };
    const auto count_is_0 = [](Datatree &node) { node.subtree_count = 0; };
    const auto count_is_0_without_array = [](Datatree &node) {
        node.subtree_count = 0;
        node.subtrees = nullptr;
    };
    for (const Place &place : places(model)) {
        if (place.is_list) continue;
        AT(place.path);
        const std::string inside = child_text(model, place, tags_of(place).front());
        const auto check = [&](const auto &change) {
            WalkRun run(model);
            EXPECT_EQ(walk_changed(run, place, inside, change), VMF_RC_OK);
            EXPECT_EQ(run.visited(), way_to(place, model));
            EXPECT_EQ(run.probe.visits.back().children, 0);
            EXPECT_EQ(run.said_by(place.path), framed({}));
        };
        check(bit_is_clear);
        check(count_is_0);
        check(count_is_0_without_array);
    }
}

TEST_P(WalkContainers, without_children_pass_the_outcome_of_their_handler_up)
{
    for (const Place &place : places(model)) {
        if (place.is_list) continue;
        AT(place.path);
        WalkRun run(model);
        run.probe.outcomes[container_handler(model, place.path)] = some_failure;
        EXPECT_EQ(run.walk(bare_text(model, place.path, "")), some_failure);
        EXPECT_EQ(run.failures(), Lines{});
    }
}

TEST_P(WalkContainers, with_a_count_below_0_have_no_children)
{
    for (const Place &place : places(model)) {
        if (place.is_list) continue;
        AT(place.path);
        WalkRun run(model);
        const std::string inside = child_text(model, place, tags_of(place).front());
        EXPECT_EQ(walk_changed(run, place, inside, [](Datatree &node) { node.subtree_count = -1; }), VMF_RC_OK);
        EXPECT_EQ(run.visited(), way_to(place, model));
    }
}

TEST_P(WalkContainers, with_a_count_but_no_array_are_refused_before_their_handler)
{
    for (const Place &place : places(model)) {
        AT(place.path);
        WalkRun run(model);
        const std::string inside = child_text(model, place, tags_of(place).front());
        EXPECT_EQ(walk_changed(run, place, inside, [](Datatree &node) { node.subtrees = nullptr; }), VMF_RC_BAD_TREE);
        Lines expected = way_to(place, model);
        if (!place.is_list) expected.pop_back();
        EXPECT_EQ(run.visited(), expected);
        EXPECT_EQ(run.contexts.request.rejected_tag, nullptr);
        if (!run.probe.entered.empty()) {
            EXPECT_NE(run.probe.entered.back().list, place.path);
        }
        EXPECT_EQ(run.said_by(place.path), framed({"ERR Failed to get subtrees!"}));
    }
}

TEST_P(WalkContainers, stop_at_a_child_without_a_tag)
{
    const auto bit_is_clear = [](Datatree &child) { child.present[0] &= static_cast<uint8_t>(~VMF_DT_TAG); };
    const auto tag_is_null = [](Datatree &child) { child.tag = nullptr; };
    for (const Place &place : places(model)) {
        AT(place.path);
        const auto check = [&](const auto &take_tag) {
            WalkRun run(model);
            const std::string tag = tags_of(place).front();
            run.tree = io::read_tree(
                bare_text(model, place.path, child_text(model, place, tag) + "x\n" + child_text(model, place, tag)));
            take_tag(platform::children_of(node_at(run.tree, path_of_nodes(place)))[1]);
            EXPECT_EQ(run.walk(), VMF_RC_BAD_TREE);
            Lines expected = way_to(place, model);
            if (const std::string handler = handler_of(model, place, tag); !handler.empty())
                expected.push_back(handler);
            EXPECT_EQ(run.visited(), expected);
            EXPECT_EQ(run.said_by(place.path), framed({processing(tag), "ERR Tag name is not available!"}));
        };
        check(bit_is_clear);
        check(tag_is_null);
    }
}

TEST_P(WalkContainers, stop_where_a_handler_fails_and_pass_its_outcome_up)
{
    for (const Place &place : places(model)) {
        for (const std::string &tag : tags_of(place)) {
            const std::string handler = handler_of(model, place, tag);
            if (handler.empty()) continue;
            AT(place.path + " with " + tag);
            const Place *child = find_place(model, place.path + "/" + tag);
            std::string inside = child_text(model, place, tag);
            if (child != nullptr) inside += "  " + tags_of(*child).front() + "\n";  // behind the failing handler
            inside += child_text(model, place, tags_of(place).front());
            WalkRun run(model);
            run.probe.outcomes[handler] = some_failure;
            EXPECT_EQ(run.walk(bare_text(model, place.path, inside)), some_failure);
            Lines expected = way_to(place, model);
            expected.push_back(handler);
            EXPECT_EQ(run.visited(), expected);
            EXPECT_EQ(run.said_by(place.path), framed({processing(tag)}));
            EXPECT_EQ(run.failures(), Lines{});
        }
    }
}

TEST_P(WalkContainers, give_leaves_to_their_handlers_whatever_they_hold)
{
    for (const Place &place : places(model)) {
        for (const std::string &leaf : place.leaves) {
            if (leaf == "instance-name") continue;
            AT(place.path + " with " + leaf);
            WalkRun run(model);
            EXPECT_EQ(run.walk(bare_text(model, place.path, leaf + "\n  colour\n" + leaf + "\n")), VMF_RC_OK);
            const Lines visited = run.visited();
            EXPECT_EQ(std::count(visited.begin(), visited.end(), leaf_handler(model, place.path + "/" + leaf)), 2);
        }
    }
}

TEST_P(WalkContainers, at_the_root_refuse_a_null_tree_and_a_null_output)
{
    for (const bool tree_is_null : {true, false}) {
        WalkRun run(model);
        Datatree tree = {};
        EXPECT_EQ(walk_of(model)(&run.ctx, tree_is_null ? nullptr : &tree, tree_is_null ? &run.out.root() : nullptr),
                  VMF_RC_BAD_ARGS);
        EXPECT_EQ(run.visited(), Lines{});
        EXPECT_EQ(run.said_by("/bgp"), (Lines{"TRC Start", "ERR Invalid arguments passed!"}));
    }
}

using WalkContainersDeathTest = WalkContainers;
INSTANTIATE_TEST_SUITE_P(Of, WalkContainersDeathTest, testing::Values(Model::cfg, Model::oper), model_name);

TEST_P(WalkContainersDeathTest, at_the_root_assert_their_context)
{
    Datatree tree = {};
    EXPECT_DEATH(walk_of(model)(nullptr, &tree, &tree), "NULL != ctx -- assertion failed");
}

// The walks keep what the framework and the request direction left, but for the word that tells a mapped family.
TEST_P(WalkContainers, leave_every_word_of_the_contexts_alone)
{
    for (const Place &place : places(model)) {
        AT(place.path);
        WalkRun run(model);
        run.probe.on_visit = nullptr;
        RequestContext &request = run.contexts.request;
        std::fill_n(reinterpret_cast<uint32_t *>(&request.config_named),
                    &request.replace_scope_owner + 1 - &request.config_named, 7);
        request.oper_af_matched = nullptr;
        run.ctx.list_op_present = run.ctx.list_op = run.ctx.list_child_count = 7;
        run.ctx.af_key = "key";
        run.ctx.af_name = "name";
        run.ctx.as_low = run.ctx.as_written = 7;
        run.ctx.list_node = run.ctx.af_node = run.ctx.oper_list_node = run.ctx.oper_af_node = &run.out.root();
        const RequestContext request_before = request;
        MapContext run_before = run.ctx;
        std::string inside;
        for (const std::string &tag : tags_of(place)) inside += child_text(model, place, tag);
        ASSERT_EQ(run.walk(bare_text(model, place.path, inside)), VMF_RC_OK);
        EXPECT_EQ(std::memcmp(&request, &request_before, sizeof request), 0);
        run_before.af_mapped = run.ctx.af_mapped;
        EXPECT_EQ(std::memcmp(&run.ctx, &run_before, sizeof run_before), 0);
    }
}

}  // namespace
}  // namespace response
