// Arrays of children: where they come from, how they grow, and how they move from record to record.
#include "pool.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "names.h"
#include "support.h"

using test::add;
using test::add_neighbor;
using test::move_children;
using test::text_of;

namespace {

// Gives a record an exactly full array, as the mapping makes one: of `count` children tagged "given".
void give_children(Datatree &parent, size_t count)
{
    parent.subtrees = static_cast<Datatree *>(kos_named_calloc_(count, sizeof(Datatree), "VMF MAP", 0));
    parent.subtree_count = static_cast<int32_t>(count);
    parent.present[0] |= VMF_DT_SUBTREES;
    for (Datatree &child : platform::children_of(parent)) {
        child.tag = const_cast<char *>(platform::intern("given"));
        child.present[0] = VMF_DT_TAG;
    }
}

}  // namespace

// ---- Blocks ---------------------------------------------------------------------------------

TEST(Pool, GivesZeroedMemory)
{
    auto *bytes = static_cast<uint8_t *>(kos_named_calloc_(16, 32, "VMF MAP", 0));
    ASSERT_NE(bytes, nullptr);
    EXPECT_EQ(std::accumulate(bytes, bytes + 512, 0), 0);
    kos_named_free(bytes);
}

TEST(Pool, GivesNullForMoreThanThereIs)
{
    EXPECT_EQ(kos_named_calloc_(SIZE_MAX / 2 + 1, 2, "VMF MAP", 0), nullptr);
    EXPECT_EQ(kos_named_calloc_(1, SIZE_MAX, "VMF MAP", 0), nullptr);
}

TEST(Pool, FreesABlockOfNothingAndNull)
{
    kos_named_free(kos_named_calloc_(0, 8, "VMF MAP", 0));
    kos_named_free(nullptr);
}

TEST(Pool, AGrownBlockKeepsItsBytes)
{
    auto *bytes = static_cast<uint8_t *>(platform::grow_block(nullptr, 4));
    std::fill_n(bytes, 4, uint8_t{1});
    bytes = static_cast<uint8_t *>(platform::grow_block(bytes, 4096));
    EXPECT_EQ(std::accumulate(bytes, bytes + 4, 0), 4);
    kos_named_free(bytes);
}

// ---- Arrays ---------------------------------------------------------------------------------

TEST(ChildArray, OneThatTheCallerMadeGrowsAndIsFreed)
{
    platform::Tree tree;
    give_children(tree.root(), 3);
    for (const char *tag : {"a", "b", "c", "d"}) add(tree.root(), tag, {.value = "1"});
    EXPECT_EQ(text_of(tree), "given\ngiven\ngiven\na zr-cfg = 1\nb zr-cfg = 1\nc zr-cfg = 1\nd zr-cfg = 1\n");
}

TEST(ChildArray, OneThatMovedGrowsInItsNewRecord)
{
    platform::Tree first = io::read_tree("bgp oc-bgp\n  global\n  neighbors\n");
    platform::Tree second = io::read_tree("bgp oc-bgp\n");
    move_children(platform::children_of(first.root())[0], platform::children_of(second.root())[0]);
    for (const char *path : {"bgp/peer-groups", "bgp/global/config"}) add(second.root(), path, {.ns = OC_BGP_NS});
    EXPECT_EQ(text_of(second), "bgp oc-bgp\n  global\n    config\n  neighbors\n  peer-groups\n");
}

TEST(ChildArray, OneThatTakesTheRoomOfALargerOneGrowsWithinItsOwn)
{
    platform::Tree first = io::read_tree("a\n");
    platform::Tree second = io::read_tree("b\nc\nd\ne\nf\n");  // leaves room for more
    Datatree rest = {};
    std::swap(rest.subtrees, second.root().subtrees);
    rest.subtree_count = second.root().subtree_count;
    rest.present[0] = VMF_DT_SUBTREES;
    move_children(first.root(), second.root());
    for (const char *tag : {"g", "h", "i"}) add(second.root(), tag);
    EXPECT_EQ(text_of(second), "a\ng zr-cfg\nh zr-cfg\ni zr-cfg\n");
    platform::release(rest);
}

TEST(ChildArray, OneWithANegativeCountIsFilledFromItsStart)
{
    platform::Tree tree;
    give_children(tree.root(), 2);
    tree.root().subtree_count = -1;
    add(tree.root(), "as");
    EXPECT_EQ(text_of(tree), "as zr-cfg\n");
}

TEST(ChildArray, ACountWithoutAnArrayIsNotBelieved)
{
    platform::Tree tree;
    tree.root().subtree_count = 7;
    tree.root().subtree_capacity = 9;
    tree.root().present[0] = VMF_DT_SUBTREES;
    add(tree.root(), "as");
    EXPECT_EQ(text_of(tree), "as zr-cfg\n");
}

// ---- How long a node stays where it is ------------------------------------------------------

TEST(ChildArray, GrandchildrenStayWhereTheyAreWhenTheArrayGrows)
{
    platform::Tree tree;
    const Datatree *grandchild = add(tree.root(), "neighbors/neighbor");
    const Datatree *before = tree.root().subtrees;
    for (int i = 0; i < 1000; i++) add(tree.root(), "neighbor", {.repeat = 1});
    EXPECT_NE(tree.root().subtrees, before);
    EXPECT_EQ(add(tree.root(), "neighbors/neighbor"), grandchild);
}

TEST(ChildArray, ANodeStaysWhereItIsWhenNothingIsAddedBesideIt)
{
    platform::Tree tree;
    const Datatree *held = add_neighbor(tree.root(), "10.0.0.1");
    for (int i = 0; i < 100; i++) {
        add(tree.root().subtrees[0], "route-policy-in", {.repeat = 1});
        add_neighbor(tree.root(), "10.0.0.1");
    }
    EXPECT_EQ(tree.root().subtrees, held);
}

// Wherever the names of its model lie in memory, and whatever other lists there were before.
TEST(ChildArray, AnEntryOfEachListHasItsRoomFromTheStart)
{
    constexpr int lists_before = 1000;
    constexpr int lists = 50;
    constexpr unsigned leaves = 5;
    platform::Tree tree;
    for (int list = 0; list < lists_before; list++)
        add(*add(tree.root(), ("before-" + std::to_string(list)).c_str()), "key");
    for (int round = 0; round < 2; round++)
        for (int list = 0; list < lists; list++) {
            const std::string name = "list-" + std::to_string(list);
            Datatree *entry = add(tree.root(), name.c_str(), {.repeat = 1});
            add(*entry, ("key-" + std::to_string(list)).c_str());
            const Datatree *first = entry->subtrees;
            for (unsigned leaf = 1; leaf < leaves; leaf++) add(*entry, ("leaf-" + std::to_string(leaf)).c_str());
            if (round == 0) continue;
            EXPECT_EQ(entry->subtrees, first) << name;
            EXPECT_EQ(entry->subtree_capacity, leaves) << name;
        }
}

TEST(ChildArray, GrowsByDoubling)
{
    platform::Tree tree;
    int grown = 0;
    size_t size = 0;
    for (int i = 0; i < 100'000; i++) {
        add(tree.root(), "member-as", {.repeat = 1});
        const size_t now = platform::head_of(tree.root().subtrees)->size;
        if (now != size) grown++;
        size = now;
    }
    EXPECT_LE(grown, 17);
}
