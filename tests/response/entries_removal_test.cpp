// The removal of the native tree from the response, which both entries end with, each in its own words.
#include <cstring>

#include "entry_run.h"

namespace response {
namespace {

// A run that comes to the removal, and the tree that it removes.
struct RemovalRun : EntryRun {
    RemovalRun(Model native, const std::string &trees) : EntryRun(native, VMF_REQ_GET, 1, trees)
    {
        request().oper_wanted = 1;
    }

    // What is said behind the words with which the removal begins.
    Lines said_in_removal()
    {
        Lines all = lines();
        const Lines start =
            is_configuration()
                ? Lines{"TRC Overwriting ZR BGP config model.", "TRC This is get request. Keep the mapped tree.",
                        "TRC Removing ZR BGP config datatree from response"}
                : Lines{"TRC Keeping the mapped tree.", "TRC Removing ZR BGP oper datatree from response"};
        if (all.size() < start.size() || !std::equal(start.begin(), start.end(), all.begin())) {
            ADD_FAILURE() << "begins with other words";
            return all;
        }
        all.erase(all.begin(), all.begin() + static_cast<ptrdiff_t>(start.size()));
        return all;
    }

    bool is_reset(const Datatree &record) const
    {
        const Datatree zero = {};
        return std::memcmp(&record, &zero, sizeof zero) == 0;
    }
};

struct EntryRemoval : testing::TestWithParam<Model> {
    Model model = GetParam();
    const std::string native = model == Model::cfg ? cfg_text : oper_text;
    const std::string sibling = model == Model::cfg ? oper_text : cfg_text;  // the native tree of the other model
    const Lines freeing = model == Model::cfg ? Lines{"TRC Freeing ZR BGP tree."} : Lines{};
    const Lines labels = model == Model::cfg ? Lines{"Mapped tree", "New response tree"} : Lines{"Mapped tree"};
};
INSTANTIATE_TEST_SUITE_P(Of, EntryRemoval, testing::Values(Model::cfg, Model::oper),
                         [](const auto &tested) { return std::string(name_of(tested.param)); });

TEST_P(EntryRemoval, refuses_a_response_without_trees)
{
    enum class Way { count_is_0, array_is_null, response_is_null };
    for (const Way way : {Way::count_is_0, Way::array_is_null, Way::response_is_null}) {
        RemovalRun run(model, native + sibling);
        run.native_tree = &platform::children_of(run.response())[0];
        const Datatree before = run.response();
        if (way == Way::count_is_0) run.response().subtree_count = 0;
        if (way == Way::array_is_null) run.response().subtrees = nullptr;
        run.response_is_null = way == Way::response_is_null;
        EXPECT_EQ(run.call(), VMF_RC_BAD_TREE);
        EXPECT_EQ(run.said_in_removal(), Lines{"ERR Invalid response data. Corrupted?"});
        EXPECT_EQ(run.request().kept_mapped_tree, &run.mapped());
        EXPECT_EQ(run.skip_subtree, untouched);
        EXPECT_TRUE(run.probe.allocated.empty());
        run.expect_nothing_freed();
        run.response() = before;
        run.old_array = nullptr;
        EXPECT_EQ(text_of(run.response_tree), native + sibling);
    }
}

TEST_P(EntryRemoval, asks_to_skip_the_only_tree_and_leaves_it)
{
    for (const std::string &only : {native, std::string(other_text)}) {
        RemovalRun run(model, only);
        run.native_tree = &platform::children_of(run.response())[0];
        EXPECT_EQ(run.call(), VMF_RC_OK);
        EXPECT_EQ(run.skip_subtree, 1);
        run.expect_response_untouched();
        EXPECT_TRUE(run.probe.allocated.empty());
        EXPECT_EQ(run.request().kept_mapped_tree, &run.mapped());
        EXPECT_EQ(run.said_in_removal(),
                  Lines{model == Model::cfg ? "TRC One subtree. Only BGP config tree."
                                            : "TRC Only one datatree in the mapped data. Skipping this as we expect "
                                              "2nd datatree which is oper data"});
        for (const std::string &label : run.labels()) EXPECT_EQ(label, "Mapped tree");
    }
}

TEST_P(EntryRemoval, fails_without_memory_and_leaves_the_native_tree)
{
    const size_t sizes[] = {2, 3, 5};
    for (const size_t n : sizes) {
        std::string trees = native;
        for (size_t i = 1; i < n; i++) trees += i == 1 ? sibling : "x" + std::to_string(i) + " <urn:other>\n";
        RemovalRun run(model, trees);
        uint32_t outcome = 0;
        {
            const Failing pool("kos_named_calloc_");
            outcome = run.call();
        }
        EXPECT_EQ(outcome, VMF_RC_NO_MEMORY);
        run.expect_response_untouched();
        EXPECT_EQ(run.request().kept_mapped_tree, &run.mapped());
        EXPECT_EQ(run.skip_subtree, untouched);
        const std::string bytes = std::to_string((n - 1) * sizeof(Datatree));
        EXPECT_EQ(run.said_in_removal(),
                  Lines{model == Model::cfg ? "ERR Failed to allocate memory!"
                                            : "ERR Failed to allocate memory of " + bytes + " bytes!"});
    }
}

TEST_P(EntryRemoval, keeps_the_other_trees_in_their_order_wherever_the_native_one_stands)
{
    const std::string others[] = {other_text, sibling};
    for (size_t at = 0; at < 3; at++) {
        AT("native tree at " + std::to_string(at));
        std::string trees;
        for (size_t i = 0, next = 0; i < 3; i++) trees += i == at ? native : others[next++];
        RemovalRun run(model, trees);
        std::vector<const Datatree *> children;
        for (int32_t i = 0; i < 3; i++)
            if (i != static_cast<int32_t>(at)) children.push_back(run.response().subtrees[i].subtrees);

        EXPECT_EQ(run.call(), VMF_RC_OK);
        EXPECT_EQ(text_of(run.response_tree), others[0] + others[1]);
        EXPECT_NE(run.response().subtrees, run.old_array);
        EXPECT_EQ(run.response().subtree_count, 2);
        EXPECT_EQ(run.response().present[0], VMF_DT_SUBTREES);
        for (size_t i = 0; i < 2; i++) EXPECT_EQ(run.response().subtrees[i].subtrees, children[i]);
        EXPECT_EQ(run.skip_subtree, untouched);

        EXPECT_EQ(run.probe.allocated, (std::vector<Probe::Allocated>{{2, sizeof(Datatree), "VMF MAP", 0}}));
        ASSERT_EQ(run.probe.emptied.size(), 1u);
        EXPECT_EQ(run.probe.emptied[0].node, &run.old_array[at]);
        EXPECT_TRUE(run.probe.emptied[0].by_framework_callback);
        EXPECT_TRUE(run.probe.released.empty());  // the old array is the framework's
        EXPECT_EQ(run.said_in_removal(), freeing);
        EXPECT_EQ(run.labels(), labels);
        if (model == Model::cfg) {
            EXPECT_EQ(run.probe.printed.back().tree, run.response().subtrees);
        }
    }
}

TEST_P(EntryRemoval, resets_the_native_record_in_the_old_array_and_leaves_the_others)
{
    for (const bool platform_leaves_records : {false, true}) {
        RemovalRun run(model, native + sibling);
        run.probe.leaves_records = platform_leaves_records;
        const Datatree other = run.response().subtrees[1];
        EXPECT_EQ(run.call(), VMF_RC_OK);
        EXPECT_TRUE(run.is_reset(run.old_array[0]));
        EXPECT_EQ(std::memcmp(&run.old_array[1], &other, sizeof other), 0);
    }
}

TEST_P(EntryRemoval, carries_tag_namespace_and_children_over_and_nothing_else)
{
    RemovalRun run(model, native + "value-holder <urn:other>\n" + sibling + "bare <urn:other>\n");
    Datatree *trees = run.response().subtrees;
    platform::set_value(trees[1], "lost");
    for (const int32_t at : {1, 2}) {
        platform::set_operation(trees[at], VMF_OP_DELETE);
        trees[at].word3 = trees[at].pair5_b = 5;
        trees[at].data_namespace = trees[at].namespace_;
        trees[at].present[0] |= VMF_DT_WORD3 | VMF_DT_PAIR5;
        trees[at].present[1] = 0xff;
    }
    trees[3].present[0] = 0;  // neither tag nor namespace
    EXPECT_EQ(run.call(), VMF_RC_OK);

    ASSERT_EQ(run.response().subtree_count, 3);
    const Datatree *copies = run.response().subtrees;
    EXPECT_EQ(copies[0].present[0], VMF_DT_TAG | VMF_DT_NAMESPACE);
    EXPECT_EQ(copies[1].present[0], VMF_DT_TAG | VMF_DT_NAMESPACE | VMF_DT_SUBTREES);
    EXPECT_EQ(copies[2].present[0], 0);
    EXPECT_STREQ(copies[0].tag, "value-holder");
    EXPECT_STREQ(copies[0].namespace_, "urn:other");
    EXPECT_STREQ(copies[1].tag, "bgp");
    EXPECT_EQ(copies[1].subtrees, run.old_array[2].subtrees);
    EXPECT_EQ(copies[1].subtree_count, 1);
    for (int32_t i = 0; i < 3; i++) {
        EXPECT_EQ(copies[i].value, nullptr);
        EXPECT_EQ(copies[i].operation, 0u);
        EXPECT_EQ(copies[i].word3, 0u);
        EXPECT_EQ(copies[i].pair5_b, 0u);
        EXPECT_EQ(copies[i].data_namespace, nullptr);
        EXPECT_EQ(copies[i].present[1], 0);
    }
}

TEST_P(EntryRemoval, knows_the_native_tree_by_tag_and_namespace_that_are_present)
{
    struct Look {
        const char *what;
        void (*change)(Datatree &);
    };
    static char bgp_entity[] = "bgp-entity";
    static char longer_ns[sizeof ZR_BGP_CFG_NS + 10];
    const Look looks[] = {
        {"tag absent", [](Datatree &it) { it.present[0] &= static_cast<uint8_t>(~VMF_DT_TAG); }},
        {"namespace absent", [](Datatree &it) { it.present[0] &= static_cast<uint8_t>(~VMF_DT_NAMESPACE); }},
        {"another tag", [](Datatree &it) { it.tag = bgp_entity; }},
        {"another namespace",
         [](Datatree &it) { it.namespace_ = std::strcat(std::strcpy(longer_ns, it.namespace_), "-x"); }},
    };
    for (const Look &look : looks) {
        AT(look.what);
        // One that looks nearly so, and the native tree itself.
        RemovalRun run(model, native + native + other_text);
        run.native_tree = &run.response().subtrees[1];
        look.change(run.response().subtrees[0]);
        const Datatree near_miss = run.response().subtrees[0];
        EXPECT_EQ(run.call(), VMF_RC_OK);
        ASSERT_EQ(run.response().subtree_count, 2);
        EXPECT_EQ(run.response().subtrees[0].subtrees, near_miss.subtrees);
        EXPECT_EQ(run.response().subtrees[0].present[0], near_miss.present[0]);
        EXPECT_STREQ(platform::tag_of(run.response().subtrees[1]), "interfaces");
        ASSERT_EQ(run.probe.emptied.size(), 1u);
        EXPECT_EQ(run.probe.emptied[0].node, &run.old_array[1]);
        EXPECT_EQ(run.said_in_removal(), freeing);
    }
}

TEST_P(EntryRemoval, compares_tag_and_namespace_as_the_platform_does)
{
    RemovalRun run(model, "BGP <urn:third>\n  instance\n" + std::string(other_text));
    run.native_tree = &run.response().subtrees[0];
    const std::string ns = run.ns();
    run.probe.match = [&](const char *a, const char *b) {
        const auto are = [&](const std::string &one, const std::string &two) {
            return (one == a && two == b) || (one == b && two == a);
        };
        return are("BGP", "bgp") || are("urn:third", ns) ? 1u : 0u;
    };
    EXPECT_EQ(run.call(), VMF_RC_OK);
    EXPECT_EQ(text_of(run.response_tree), other_text);
}

TEST_P(EntryRemoval, releases_two_trees_that_both_match_and_leaves_an_empty_record)
{
    RemovalRun run(model, native + native);
    EXPECT_EQ(run.call(), VMF_RC_OK);
    EXPECT_EQ(run.probe.emptied.size(), 2u);
    EXPECT_TRUE(run.is_reset(run.old_array[0]));
    EXPECT_TRUE(run.is_reset(run.old_array[1]));
    ASSERT_EQ(run.response().subtree_count, 1);
    EXPECT_TRUE(run.is_reset(run.response().subtrees[0]));
    Lines twice = freeing;
    twice.insert(twice.end(), freeing.begin(), freeing.end());
    EXPECT_EQ(run.said_in_removal(), twice);
}

TEST_P(EntryRemoval, stays_within_the_new_array_when_no_tree_matches)
{
    RemovalRun run(model, std::string(other_text) + sibling);
    run.native_tree = &run.response().subtrees[0];
    EXPECT_EQ(run.call(), VMF_RC_OK);
    EXPECT_EQ(text_of(run.response_tree), other_text);
    EXPECT_TRUE(run.probe.emptied.empty());
    EXPECT_EQ(run.said_in_removal(), Lines{});
    // Nobody owns the children of the tree that found no place.
    run.detached = run.old_array[1];
    run.detached.present[0] &= VMF_DT_SUBTREES;
}

}  // namespace
}  // namespace response
