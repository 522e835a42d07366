#include "tree.h"

#include <utility>

#include "support.h"

using test::add;
using test::add_neighbor;
using test::text_of;

namespace {

// Adds "as" below `parent`, which must succeed.
Datatree *add_as(Datatree &parent, const char *value, const Datatree *source = nullptr, const char *ns = ZR_BGP_CFG_NS)
{
    Datatree *node = nullptr;
    EXPECT_EQ(vmf_map_datatree_add_subtree(nullptr, &parent, "as", ns, value, source, &node, 0), VMF_RC_OK);
    return node;
}

}  // namespace

// ---- vmf_map_datatree_add_subtree -----------------------------------------------------------

TEST(AddSubtree, FindsAChildByTagAndNamespace)
{
    platform::Tree tree;
    Datatree *first = add_as(tree.root(), nullptr);
    EXPECT_EQ(add_as(tree.root(), nullptr), first);
    add_as(tree.root(), nullptr, nullptr, ZR_BGP_OPER_NS);
    EXPECT_EQ(text_of(tree), "as zr-cfg\nas zr-oper\n");
}

TEST(AddSubtree, FindsDirectChildrenOnly)
{
    platform::Tree tree = io::read_tree("instance zr-cfg\n  as = 1\n");
    add_as(tree.root(), "2");
    EXPECT_EQ(text_of(tree), "instance zr-cfg\n  as = 1\nas zr-cfg = 2\n");
}

TEST(AddSubtree, DoesNotFindAChildWithoutANamespace)
{
    platform::Tree tree = io::read_tree("as = 1\n");
    add_as(tree.root(), "2");
    EXPECT_EQ(text_of(tree), "as = 1\nas zr-cfg = 2\n");
}

TEST(AddSubtree, NeedsNoResultAddress)
{
    platform::Tree tree;
    EXPECT_EQ(vmf_map_datatree_add_subtree(nullptr, &tree.root(), "as", ZR_BGP_CFG_NS, "1", nullptr, nullptr, 0),
              VMF_RC_OK);
    EXPECT_EQ(text_of(tree), "as zr-cfg = 1\n");
}

TEST(AddSubtree, CopiesTheTextsItIsGiven)
{
    platform::Tree tree;
    char tag[] = "as";
    char value[] = "65001";
    std::string ns = ZR_BGP_CFG_NS;
    ASSERT_EQ(vmf_map_datatree_add_subtree(nullptr, &tree.root(), tag, ns.c_str(), value, nullptr, nullptr, 0),
              VMF_RC_OK);
    tag[0] = value[0] = ns[0] = 'x';
    EXPECT_EQ(text_of(tree), "as zr-cfg = 65001\n");
}

TEST(AddSubtree, AValueReplacesTheOldOneAndNoValueLeavesIt)
{
    platform::Tree tree;
    add_as(tree.root(), "1");
    add_as(tree.root(), "2");
    EXPECT_EQ(text_of(tree), "as zr-cfg = 2\n");
    add_as(tree.root(), nullptr);
    EXPECT_EQ(text_of(tree), "as zr-cfg = 2\n");
    add_as(tree.root(), "");
    EXPECT_EQ(text_of(tree), "as zr-cfg = \"\"\n");
}

TEST(AddSubtree, TakesANodesOwnValueAsItsNewOne)
{
    platform::Tree tree = io::read_tree("as zr-cfg = 65001\n");
    add_as(tree.root(), platform::value_of(platform::children_of(tree.root())[0]));
    EXPECT_EQ(text_of(tree), "as zr-cfg = 65001\n");
}

TEST(AddSubtree, CopiesTheOperationOfItsSource)
{
    for (const char *operation : {"merge", "replace", "create", "delete", "remove"}) {
        const std::string expected = "as zr-cfg [" + std::string(operation) + "]\n";
        const platform::Tree request = io::read_tree(expected);
        platform::Tree tree;
        const Datatree *node = add_as(tree.root(), nullptr, &platform::children_of(request.root())[0]);
        EXPECT_EQ(text_of(tree), expected);
        EXPECT_TRUE(platform::has_operation(*node));
    }
}

TEST(AddSubtree, ASourceWithoutAnOperationGivesNone)
{
    Datatree source = {};
    source.operation = VMF_OP_CREATE;
    platform::Tree tree = io::read_tree("as zr-cfg [merge]\n");
    add_as(tree.root(), nullptr, &source);
    add_as(tree.root(), nullptr);
    EXPECT_EQ(text_of(tree), "as zr-cfg [merge]\n");
    EXPECT_FALSE(platform::has_operation(*add_as(tree.root(), nullptr, &source, ZR_BGP_OPER_NS)));
}

TEST(AddSubtree, TakesASourceFromTheArrayThatItMakesGrow)
{
    platform::Tree tree = io::read_tree("instance zr-cfg [create]\n");
    for (const char *tag : {"a", "b", "c", "d", "e"}) {
        const Datatree *source = &platform::children_of(tree.root())[0];
        EXPECT_EQ(vmf_map_datatree_add_subtree(nullptr, &tree.root(), tag, ZR_BGP_CFG_NS, nullptr, source, nullptr, 0),
                  VMF_RC_OK);
    }
    EXPECT_EQ(text_of(tree), "instance zr-cfg [create]\na zr-cfg [create]\nb zr-cfg [create]\nc zr-cfg [create]\n"
                             "d zr-cfg [create]\ne zr-cfg [create]\n");
}

TEST(AddSubtree, RefusesANullParentOrTag)
{
    platform::Tree tree;
    Datatree *node = nullptr;
    EXPECT_EQ(vmf_map_datatree_add_subtree(nullptr, nullptr, "as", ZR_BGP_CFG_NS, nullptr, nullptr, &node, 0),
              VMF_RC_BAD_ARGS);
    EXPECT_EQ(vmf_map_datatree_add_subtree(nullptr, &tree.root(), nullptr, ZR_BGP_CFG_NS, nullptr, nullptr, &node, 0),
              VMF_RC_BAD_ARGS);
    EXPECT_EQ(node, nullptr);
    EXPECT_EQ(text_of(tree), "");
}

// ---- vmf_map_datatree_add_list_node ---------------------------------------------------------

TEST(AddListNode, AddsAnEntryWithItsKeyAndFindsItAgain)
{
    platform::Tree tree;
    add_neighbor(tree.root(), "10.0.0.1");
    add_neighbor(tree.root(), "10.0.0.2");
    add(*add_neighbor(tree.root(), "10.0.0.1"), "remote-as");
    EXPECT_EQ(text_of(tree), "neighbor zr-cfg\n"
                             "  neighbor-address = 10.0.0.1\n"
                             "  remote-as\n"
                             "neighbor zr-cfg\n"
                             "  neighbor-address = 10.0.0.2\n");
}

TEST(AddListNode, ComparesTheListItsNamespaceAndTheKey)
{
    platform::Tree tree = io::read_tree("group zr-cfg\n  neighbor-address = 10.0.0.1\n"
                                        "neighbor zr-oper\n  neighbor-address = 10.0.0.1\n"
                                        "neighbor zr-cfg\n  name = 10.0.0.1\n"
                                        "neighbor zr-cfg\n  neighbor-address = 10.0.0.10\n");
    const std::string before = text_of(tree);
    add_neighbor(tree.root(), "10.0.0.1");
    EXPECT_EQ(text_of(tree), before + "neighbor zr-cfg\n  neighbor-address = 10.0.0.1\n");
}

TEST(AddListNode, ANullKeyValueMeetsTheEntryWhoseKeyHasNone)
{
    platform::Tree tree;
    add_neighbor(tree.root(), "10.0.0.1");
    const char *no_address = nullptr;
    Datatree *any = add_neighbor(tree.root(), no_address);
    EXPECT_EQ(add_neighbor(tree.root(), no_address), any);
    EXPECT_EQ(text_of(tree), "neighbor zr-cfg\n  neighbor-address = 10.0.0.1\nneighbor zr-cfg\n  neighbor-address\n");
}

TEST(AddListNode, RefusesANullParentListOrKeyTag)
{
    platform::Tree tree;
    const auto refused = [](Datatree *parent, const char *list, const char *key) {
        return vmf_map_datatree_add_list_node(nullptr, parent, list, ZR_BGP_CFG_NS, key, "1", nullptr);
    };
    EXPECT_EQ(refused(nullptr, "neighbor", "neighbor-address"), VMF_RC_BAD_ARGS);
    EXPECT_EQ(refused(&tree.root(), nullptr, "neighbor-address"), VMF_RC_BAD_ARGS);
    EXPECT_EQ(refused(&tree.root(), "neighbor", nullptr), VMF_RC_BAD_ARGS);
    EXPECT_EQ(text_of(tree), "");
}

// ---- vmf_map_datatree_add_data_ns -----------------------------------------------------------

class AddDataNs : public testing::Test {
protected:
    const std::string text = "afi-safi oc-bgp\n"
                             "  afi-safi-name = IPV4_UNICAST\n"
                             "  config\n"
                             "    afi-safi-name = IPV4_UNICAST\n";
    platform::Tree tree = io::read_tree(text);
    Datatree *entry = &platform::children_of(tree.root())[0];
};

TEST_F(AddDataNs, TakesThePathFromTheEntrysOwnTag)
{
    EXPECT_EQ(vmf_map_datatree_add_data_ns(nullptr, entry, "afi-safi/config/afi-safi-name", OC_BGP_TYPES_NS),
              VMF_RC_OK);
    EXPECT_EQ(text_of(tree), "afi-safi oc-bgp\n"
                             "  afi-safi-name = IPV4_UNICAST\n"
                             "  config\n"
                             "    afi-safi-name = bgp-types:IPV4_UNICAST\n");
}

TEST_F(AddDataNs, BorrowsNothingFromItsCaller)
{
    std::string ns = OC_BGP_TYPES_NS;
    EXPECT_EQ(vmf_map_datatree_add_data_ns(nullptr, entry, "afi-safi/afi-safi-name", ns.c_str()), VMF_RC_OK);
    ns[0] = 'x';
    EXPECT_STREQ(platform::data_namespace_of(platform::children_of(*entry)[0]), OC_BGP_TYPES_NS);
}

TEST_F(AddDataNs, AddsNoNode)
{
    for (const char *absent : {"afi-safi/state/afi-safi-name", "afi-safi/config/enabled"})
        EXPECT_EQ(vmf_map_datatree_add_data_ns(nullptr, entry, absent, OC_BGP_TYPES_NS), VMF_RC_BAD_TREE) << absent;
    EXPECT_EQ(text_of(tree), text);
}

TEST_F(AddDataNs, RefusesAPathThatBeginsElsewhere)
{
    for (const char *bad : {"", "/", "config/afi-safi-name", "/afi-safi/config/afi-safi-name", "afi-safi/"})
        EXPECT_EQ(vmf_map_datatree_add_data_ns(nullptr, entry, bad, OC_BGP_TYPES_NS), VMF_RC_BAD_ARGS) << bad;
    EXPECT_EQ(vmf_map_datatree_add_data_ns(nullptr, nullptr, "afi-safi", OC_BGP_TYPES_NS), VMF_RC_BAD_ARGS);
    EXPECT_EQ(vmf_map_datatree_add_data_ns(nullptr, entry, nullptr, OC_BGP_TYPES_NS), VMF_RC_BAD_ARGS);
    EXPECT_EQ(text_of(tree), text);
}

// ---- Arrays that move -----------------------------------------------------------------------

// A handler whose add has failed goes on with the entry of before.
TEST(MovedArray, TakesTheEntriesOfTheWalkAlong)
{
    for (const bool moves : {false, true}) {
        platform::move_arrays_at_every_add(moves);
        platform::Tree tree = io::read_tree("a zr-cfg\nb zr-cfg\nc zr-cfg\nd zr-cfg\n");
        platform::Tree other = io::read_tree("e zr-cfg\n");
        RequestContext request = {};
        MapContext walk = {};
        walk.request = &request;
        const auto child = [](const platform::Tree &of, size_t at) { return &platform::children_of(of.root())[at]; };
        walk.list_node = child(tree, 0);
        walk.oper_list_node = child(tree, 1);
        request.oper_af_matched = child(tree, 3);
        Datatree *elsewhere = walk.af_node = child(other, 0);

        const Datatree *before = tree.root().subtrees;
        while (platform::children_of(tree.root()).size() < 100) {
            ASSERT_EQ(vmf_map_datatree_add_path(&walk, &tree.root(), "f", ZR_BGP_CFG_NS, nullptr, nullptr, nullptr, 1),
                      VMF_RC_OK);
        }
        EXPECT_NE(tree.root().subtrees, before);
        EXPECT_EQ(walk.list_node, child(tree, 0));
        EXPECT_EQ(walk.oper_list_node, child(tree, 1));
        EXPECT_EQ(request.oper_af_matched, child(tree, 3));
        EXPECT_EQ(walk.af_node, elsewhere);
        EXPECT_EQ(walk.oper_af_node, nullptr);
        platform::move_arrays_at_every_add(false);
    }
}

// ---- vmf_map_get_subtrees -------------------------------------------------------------------

class GetSubtrees : public testing::Test {
protected:
    uint32_t get() { return vmf_map_get_subtrees(nullptr, &node, &children, &count); }

    Datatree child = {};
    Datatree node = {};
    Datatree *children = &child;
    int32_t count = 99;
};

TEST_F(GetSubtrees, GivesTheArrayItself)
{
    node.subtrees = &child;
    node.subtree_count = 1;
    node.present[0] = VMF_DT_SUBTREES;
    EXPECT_EQ(get(), VMF_RC_OK);
    EXPECT_EQ(children, &child);
    EXPECT_EQ(count, 1);
}

TEST_F(GetSubtrees, ANodeWithoutAnArrayHasNoChildren)
{
    node.subtrees = &child;  // means nothing, since the presence bit is clear
    node.subtree_count = 1;
    EXPECT_EQ(get(), VMF_RC_OK);
    EXPECT_EQ(children, nullptr);
    EXPECT_EQ(count, 0);
}

TEST_F(GetSubtrees, ACountBelowOneCountsAsNone)
{
    node.subtrees = &child;
    node.present[0] = VMF_DT_SUBTREES;
    for (int32_t none : {0, -1, INT32_MIN}) {
        node.subtree_count = none;
        count = 99;
        EXPECT_EQ(get(), VMF_RC_OK);
        EXPECT_EQ(count, 0);
        EXPECT_TRUE(platform::children_of(node).empty());
    }
    node.subtrees = nullptr;
    node.subtree_count = 0;
    EXPECT_EQ(get(), VMF_RC_OK);
}

TEST_F(GetSubtrees, ACountWithoutAnArrayIsABadTree)
{
    node.present[0] = VMF_DT_SUBTREES;
    for (int32_t corrupt : {1, -1}) {
        node.subtree_count = corrupt;
        EXPECT_EQ(get(), VMF_RC_BAD_TREE);
        EXPECT_TRUE(platform::children_of(node).empty());
    }
}

TEST_F(GetSubtrees, RefusesNulls)
{
    EXPECT_EQ(vmf_map_get_subtrees(nullptr, nullptr, &children, &count), VMF_RC_BAD_ARGS);
    EXPECT_EQ(vmf_map_get_subtrees(nullptr, &node, nullptr, &count), VMF_RC_BAD_ARGS);
    EXPECT_EQ(vmf_map_get_subtrees(nullptr, &node, &children, nullptr), VMF_RC_BAD_ARGS);
}

// ---- kidl_vmf_datatree_free_ext -------------------------------------------------------------

namespace {

int values_freed;

void count_and_free(void *value)
{
    values_freed++;
    vmf_gpb_free(value);
}

}  // namespace

TEST(FreeTree, FreesAllThatTheNodeOwnsAndClearsTheRecord)
{
    platform::Tree tree = io::read_tree("bgp zr-cfg\n  instance\n    instance-name = default\n    as [create] = 1\n");
    values_freed = 0;
    Datatree &bgp = platform::children_of(tree.root())[0];
    kidl_vmf_datatree_free_ext(&bgp, count_and_free, 0, 0);
    EXPECT_EQ(values_freed, 2);
    EXPECT_EQ(bgp.tag, nullptr);
    EXPECT_EQ(bgp.subtrees, nullptr);
    EXPECT_EQ(bgp.subtree_count, 0);
    EXPECT_EQ(bgp.present[0], 0);
    EXPECT_EQ(platform::children_of(tree.root()).size(), 1u) << "the record stays in its parent's array";
}

TEST(FreeTree, LeavesFieldsThatAreNotPresent)
{
    char value[] = "not of the heap";
    Datatree child = {};
    Datatree node = {};
    node.value = value;
    node.subtrees = &child;
    node.subtree_count = 1;
    kidl_vmf_datatree_free_ext(&node, vmf_gpb_free, 0, 0);
    EXPECT_EQ(node.value, nullptr);
}

TEST(FreeTree, NullIsHarmless) { kidl_vmf_datatree_free_ext(nullptr, vmf_gpb_free, 0, 0); }

// ---- Tree -----------------------------------------------------------------------------------

TEST(Tree, MovesAndReleasesWhatItHeld)
{
    platform::Tree tree = io::read_tree("as zr-cfg = 1\n");
    platform::Tree other = io::read_tree("as zr-cfg = 2\n");
    other = std::move(tree);
    EXPECT_EQ(text_of(other), "as zr-cfg = 1\n");
    platform::Tree &same = other;
    other = std::move(same);
    EXPECT_EQ(text_of(other), "as zr-cfg = 1\n");
    const platform::Tree last(std::move(other));
    EXPECT_EQ(text_of(last), "as zr-cfg = 1\n");
}

TEST(Tree, SetsAnEmptyValue)
{
    platform::Tree tree = io::read_tree("as zr-cfg = 1\n");
    EXPECT_TRUE(platform::set_value(platform::children_of(tree.root())[0], std::string_view()));
    EXPECT_EQ(text_of(tree), "as zr-cfg = \"\"\n");
}
