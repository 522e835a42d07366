// Large arrays of children. They must give what a search from the start gives, and never search from the start.
#include "array_index.h"

#include <sys/mman.h>

#include <algorithm>
#include <vector>

#include "support.h"

using test::add;
using test::add_neighbor;

namespace {

// Far more children than one could search for each of them: were an add or a lookup to walk over its siblings, each of
// the tests that make so many would run for minutes.
constexpr int very_many = 200'000;
constexpr int many = 100'000;

std::string address_of(int i) { return "a" + std::to_string(i); }

size_t count_of(const platform::Tree &tree) { return platform::children_of(tree.root()).size(); }

// While it lives, every record of an array names texts and children that nobody can read: who looks at one, crashes.
class Unreadable {
public:
    explicit Unreadable(Datatree &parent)
        : parent_(parent), records_(parent.subtrees, parent.subtrees + parent.subtree_count),
          page_(mmap(nullptr, sizeof(Datatree), PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0))
    {
        for (size_t i = 0; i < records_.size(); i++) hide(i);
    }
    ~Unreadable()
    {
        for (size_t i = 0; i < records_.size(); i++) show(i);
        munmap(page_, sizeof(Datatree));
    }
    Unreadable(const Unreadable &) = delete;
    Unreadable &operator=(const Unreadable &) = delete;

    void show(size_t i) { parent_.subtrees[i] = records_[i]; }
    void hide(size_t i)
    {
        Datatree &record = parent_.subtrees[i];
        record.tag = record.value = record.namespace_ = static_cast<char *>(page_);
        if (record.subtrees != nullptr) record.subtrees = static_cast<Datatree *>(page_);
    }

private:
    Datatree &parent_;
    const std::vector<Datatree> records_;
    void *const page_;
};

}  // namespace

// ---- What is found --------------------------------------------------------------------------

TEST(LargeArray, FindsEveryEntryByItsKey)
{
    platform::Tree tree;
    for (int i = 0; i < very_many; i++) add_neighbor(tree.root(), address_of(i));
    for (int i = 0; i < very_many; i++) ASSERT_EQ(add_neighbor(tree.root(), address_of(i)), &tree.root().subtrees[i]);
    EXPECT_EQ(count_of(tree), size_t{very_many});
}

TEST(LargeArray, FindsEveryChildByItsTag)
{
    platform::Tree tree;
    for (int i = 0; i < very_many; i++) add(tree.root(), address_of(i).c_str());
    for (int i = 0; i < very_many; i++) ASSERT_EQ(add(tree.root(), address_of(i).c_str()), &tree.root().subtrees[i]);
    EXPECT_EQ(count_of(tree), size_t{very_many});
}

TEST(LargeArray, BracketElementsMeetInTheEntriesOfTheirKeys)
{
    platform::Tree tree;
    for (const char *path : {"neighbor[neighbor-address]/remote-as", "neighbor[neighbor-address]/description"})
        for (int i = 0; i < many; i++) add(tree.root(), path, {.value = address_of(i).c_str(), .repeat = 1});
    ASSERT_EQ(count_of(tree), size_t{many});
    for (const Datatree &entry : platform::children_of(tree.root()))
        ASSERT_EQ(platform::children_of(entry).size(), 3u) << "the key and two leaves";
}

TEST(LargeArray, FindsTheFirstOfATag)
{
    platform::Tree tree;
    for (int i = 0; i < many; i++) add(tree.root(), "member-as", {.value = address_of(i).c_str(), .repeat = 1});
    add(tree.root(), "last");
    for (int i = 0; i < many; i++) ASSERT_EQ(add(tree.root(), "member-as"), tree.root().subtrees);
    EXPECT_EQ(add(tree.root(), "last"), &tree.root().subtrees[many]);
}

TEST(LargeArray, TellsNamespacesApart)
{
    platform::Tree tree;
    for (int i = 0; i < many; i++) add(tree.root(), address_of(i).c_str(), {.ns = i % 2 != 0 ? OC_BGP_NS : nullptr});
    for (const char *ns : {ZR_BGP_CFG_NS, ZR_BGP_OPER_NS}) add(tree.root(), "a1", {.ns = ns});
    EXPECT_EQ(add(tree.root(), "a1", {.ns = OC_BGP_NS}), &tree.root().subtrees[1]);
    EXPECT_EQ(add(tree.root(), "a1", {.ns = ZR_BGP_CFG_NS}), &tree.root().subtrees[many]);
    EXPECT_EQ(add(tree.root(), "a1", {.ns = ZR_BGP_OPER_NS}), &tree.root().subtrees[many + 1]);
    EXPECT_EQ(add(tree.root(), "a1", {.ns = nullptr}), &tree.root().subtrees[1]) << "no namespace: any";
}

TEST(LargeArray, KeepsListsOfOneTagApart)
{
    platform::Tree tree;
    for (int round = 0; round < 2; round++) {
        for (int i = 0; i < many; i++) {
            const std::string name = address_of(i);
            for (const char *ns : {ZR_BGP_CFG_NS, ZR_BGP_OPER_NS})
                add(tree.root(), "group[name]", {.value = name.c_str(), .ns = ns});
            add(tree.root(), "neighbor[name]", {.value = name.c_str()});
        }
        ASSERT_EQ(count_of(tree), size_t{3 * many});
    }
}

TEST(LargeArray, FindsAnEntryByEachOfItsKeys)
{
    platform::Tree tree;
    for (int i = 0; i < many; i++) {
        const std::string name = address_of(i);
        const std::string address = address_of(many - i);
        Datatree *entry = add(tree.root(), "peer[name]", {.value = name.c_str()});
        add(*entry, "address", {.value = address.c_str()});
        ASSERT_EQ(add(tree.root(), "peer[address]", {.value = address.c_str()}), entry);
        ASSERT_EQ(add(tree.root(), "peer[name]", {.value = name.c_str()}), entry);
    }
    EXPECT_EQ(count_of(tree), size_t{many});
}

TEST(LargeArray, MeetsAnEntryWhoseKeyCameLater)
{
    platform::Tree tree;
    add_neighbor(tree.root(), "other");
    for (int i = 1; i < many; i++) {
        Datatree *entry = add(tree.root(), "neighbor", {.repeat = 1});
        add_neighbor(tree.root(), "other");  // the index now knows the entry as one without a key
        add(*entry, "neighbor-address", {.value = address_of(i).c_str()});
        ASSERT_EQ(add_neighbor(tree.root(), address_of(i)), entry);
    }
    EXPECT_EQ(count_of(tree), size_t{many});
}

TEST(LargeArray, HoldsEntriesWithoutKeys)
{
    platform::Tree tree;
    for (int i = 0; i < many; i++) add(tree.root(), "neighbor", {.repeat = 1});
    for (const char *address : {"a1", "a2", "a1", "a2"}) add_neighbor(tree.root(), address);
    EXPECT_EQ(count_of(tree), size_t{many} + 2);
    const char *no_address = nullptr;
    EXPECT_EQ(add_neighbor(tree.root(), no_address), tree.root().subtrees);
}

TEST(LargeArray, FindsTheFirstOfManyEntriesOfOneKey)
{
    platform::Tree tree;
    for (int i = 0; i < many; i++) {
        add(*add(tree.root(), "neighbor", {.repeat = 1}), "neighbor-address", {.value = "same"});
        ASSERT_EQ(add_neighbor(tree.root(), "same"), tree.root().subtrees);
    }
    EXPECT_EQ(count_of(tree), size_t{many});
}

// Whatever the order in which an index comes to know of them: many keys, since where a key falls in a table matters.
TEST(LargeArray, FindsTheFirstOfTwoEntriesOfOneKeyWhateverTheKey)
{
    for (int key = 0; key < 1000; key++) {
        platform::Tree tree;
        for (int i = 0; i < 2; i++)
            add(*add(tree.root(), "neighbor", {.repeat = 1}), "neighbor-address", {.value = address_of(key).c_str()});
        for (int i = 0; i < 64; i++) {
            add_neighbor(tree.root(), "b" + std::to_string(i));
            ASSERT_EQ(add_neighbor(tree.root(), address_of(key)), tree.root().subtrees) << key;
        }
    }
}

TEST(LargeArray, FindsTheFirstOfTwoEntriesOfOneKeyAlsoIfItsKeyCameLater)
{
    platform::Tree tree;
    add(tree.root(), "neighbor", {.repeat = 1});
    for (int i = 0; i < 100; i++) add_neighbor(tree.root(), address_of(i));
    add(tree.root().subtrees[0], "neighbor-address", {.value = "a50"});
    EXPECT_EQ(add_neighbor(tree.root(), "a50"), tree.root().subtrees);
}

// ---- Arrays that move, and arrays that are cut ----------------------------------------------

TEST(LargeArray, TakesItsIndexAlongWhenItMoves)
{
    platform::Tree from;
    for (int i = 0; i < 1000; i++) add_neighbor(from.root(), address_of(i));
    platform::Tree to;
    test::move_children(from.root(), to.root());
    for (int i = 0; i < 2000; i++) add_neighbor(to.root(), address_of(i));
    for (int i = 0; i < 2000; i++) ASSERT_EQ(add_neighbor(to.root(), address_of(i)), &to.root().subtrees[i]);
    EXPECT_EQ(count_of(to), 2000u);
    for (int i = 0; i < 100; i++) add_neighbor(from.root(), address_of(i));
    EXPECT_EQ(count_of(from), 100u);
}

TEST(LargeArray, ForgetsChildrenThatWereTakenFromItsEnd)
{
    platform::Tree tree;
    for (int i = 0; i < 100; i++) add_neighbor(tree.root(), address_of(i));
    for (const char *tag : {"x", "y"}) add(tree.root(), tag);
    Datatree &root = tree.root();
    while (root.subtree_count > 50) platform::release(root.subtrees[--root.subtree_count]);

    for (int i = 40; i < 100; i++) ASSERT_EQ(add_neighbor(root, address_of(i)), &root.subtrees[i]);
    for (const char *tag : {"y", "x"}) add(root, tag);
    EXPECT_EQ(add(root, "y"), &root.subtrees[100]);
    EXPECT_EQ(add(root, "x"), &root.subtrees[101]);
    EXPECT_EQ(root.subtree_count, 102);
}

TEST(LargeArray, ForgetsAChildThatWasTakenOutBeforeAnotherWasAdded)
{
    platform::Tree tree;
    for (int i = 0; i < 100; i++) add_neighbor(tree.root(), address_of(i));
    Datatree &root = tree.root();
    platform::release(root.subtrees[10]);
    std::copy(root.subtrees + 11, root.subtrees + 100, root.subtrees + 10);
    root.subtree_count--;
    add(root, "neighbor", {.repeat = 1});
    add(root.subtrees[99], "neighbor-address", {.value = "a10"});

    EXPECT_EQ(add_neighbor(root, "a10"), &root.subtrees[99]);
    EXPECT_EQ(add_neighbor(root, "a99"), &root.subtrees[98]);
    EXPECT_EQ(root.subtree_count, 100);
}

// ---- What it costs --------------------------------------------------------------------------

TEST(LargeArray, ALookupByKeyReadsNoOtherEntry)
{
    platform::Tree tree;
    for (int i = 0; i < 1000; i++) add_neighbor(tree.root(), address_of(i));
    add_neighbor(tree.root(), address_of(0));
    Unreadable entries(tree.root());
    for (size_t i = 0; i < 1000; i++) {
        entries.show(i);
        ASSERT_EQ(add_neighbor(tree.root(), address_of(static_cast<int>(i))), &tree.root().subtrees[i]);
        entries.hide(i);
    }
}

TEST(LargeArray, ALookupByTagReadsNoOtherChild)
{
    platform::Tree tree;
    for (int i = 0; i < 1000; i++) add(tree.root(), address_of(i).c_str());
    add(tree.root(), "a0");
    Unreadable children(tree.root());
    for (size_t i = 0; i < 1000; i++) {
        children.show(i);
        ASSERT_EQ(add(tree.root(), address_of(static_cast<int>(i)).c_str()), &tree.root().subtrees[i]);
        children.hide(i);
    }
}

TEST(LargeArray, AnAddReadsNoChildThatTheIndexKnows)
{
    platform::Tree tree;
    for (int i = 0; i < 1000; i++) add_neighbor(tree.root(), address_of(i));
    for (const char *tag : {"x", "x"}) add(tree.root(), tag);
    add_neighbor(tree.root(), "a0");
    Unreadable children(tree.root());
    children.show(0);  // every neighbor is compared with the first of that tag
    for (int i = 2000; i < many; i++) {
        add_neighbor(tree.root(), address_of(i));
        add(tree.root(), address_of(i).c_str());
        add(tree.root(), "member-as", {.repeat = 1});
    }
    EXPECT_EQ(count_of(tree), size_t{1001 + 3 * (many - 2000)});
}
