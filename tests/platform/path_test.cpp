// Adding by path: two operations of one behaviour, so every test runs with both.
#include "support.h"

using test::plain_write;
using test::removal;
using test::source_with;
using test::text_of;
using test::With;

namespace {

struct AddPathOperation {
    const char *name;
    decltype(&vmf_map_datatree_add_path) add;

    friend void PrintTo(const AddPathOperation &operation, std::ostream *out) { *out << operation.name; }
};

class AddPath : public testing::TestWithParam<AddPathOperation> {
protected:
    uint32_t outcome_of(Datatree *parent, const char *path, const With &with = {}, Datatree **node = nullptr)
    {
        return GetParam().add(nullptr, parent, path, with.ns, with.value, with.source, node, with.repeat);
    }
    Datatree *add(Datatree &parent, const char *path, const With &with = {})
    {
        Datatree *node = nullptr;
        EXPECT_EQ(outcome_of(&parent, path, with, &node), VMF_RC_OK) << path;
        return node;
    }
    Datatree *add(const char *path, const With &with = {}) { return add(tree.root(), path, with); }

    platform::Tree tree;
};

INSTANTIATE_TEST_SUITE_P(Operations, AddPath,
                         testing::Values(AddPathOperation{"add_path", vmf_map_datatree_add_path},
                                         AddPathOperation{"add_path_common", vmf_map_datatree_add_path_common}),
                         [](const auto &operation) { return operation.param.name; });

}  // namespace

// ---- Elements -------------------------------------------------------------------------------

TEST_P(AddPath, CreatesEachElementAndGivesTheLastOneItsValueAndOperation)
{
    const Datatree create = source_with(VMF_OP_CREATE);
    const Datatree *node = add("bgp/instance/as", {.value = "65001", .source = &create});
    EXPECT_STREQ(platform::tag_of(*node), "as");
    EXPECT_EQ(text_of(tree), "bgp zr-cfg\n  instance\n    as [create] = 65001\n");
}

TEST_P(AddPath, WalksTheElementsThatAreThere)
{
    add("bgp/instance/as", {.value = "65001"});
    add("bgp/instance/router-id", {.value = "10.0.0.1"});
    add("bgp/instance/as", {.value = "65002"});
    add("bgp/instance/router-id");
    EXPECT_EQ(text_of(tree), "bgp zr-cfg\n  instance\n    as = 65002\n    router-id = 10.0.0.1\n");
}

TEST_P(AddPath, TellsNamespacesApart)
{
    add("bgp/instance");
    add("bgp/instance", {.ns = ZR_BGP_OPER_NS});
    EXPECT_EQ(text_of(tree), "bgp zr-cfg\n  instance\nbgp zr-oper\n  instance\n");
}

TEST_P(AddPath, AnAbsolutePathBeginsBelowTheRoot)
{
    add("/bgp/instance");
    add("bgp/instance/as");
    EXPECT_EQ(text_of(tree), "bgp zr-cfg\n  instance\n    as\n");
}

TEST_P(AddPath, NeedsNoResultAddress)
{
    EXPECT_EQ(outcome_of(&tree.root(), "bgp"), VMF_RC_OK);
    EXPECT_EQ(text_of(tree), "bgp zr-cfg\n");
}

TEST_P(AddPath, TakesASourceFromTheArrayThatItMakesGrow)
{
    tree = io::read_tree("a zr-cfg [create]\n");
    for (const char *path : {"b/c", "d", "e/f", "g"}) add(path, {.source = &platform::children_of(tree.root())[0]});
    EXPECT_EQ(text_of(tree), "a zr-cfg [create]\nb zr-cfg\n  c [create]\nd zr-cfg [create]\ne zr-cfg\n  f [create]\n"
                             "g zr-cfg [create]\n");
}

// ---- Repeat ---------------------------------------------------------------------------------

TEST_P(AddPath, RepeatAddsANewInstanceOfTheLastElement)
{
    Datatree *first = add("neighbor-afs/neighbor-af", {.repeat = 1});
    add(*first, "af-name", {.value = "vpnv4-unicast"});
    Datatree *second = add("neighbor-afs/neighbor-af", {.repeat = 1});
    add(*second, "af-name", {.value = "ipv4-unicast"});
    EXPECT_EQ(text_of(tree), "neighbor-afs zr-cfg\n"
                             "  neighbor-af\n"
                             "    af-name = vpnv4-unicast\n"
                             "  neighbor-af\n"
                             "    af-name = ipv4-unicast\n");
}

TEST_P(AddPath, RepeatAddsALeafListValueTwice)
{
    for (const char *as : {"65001", "65002", "65001"}) add("confederation/member-as", {.value = as, .repeat = 1});
    EXPECT_EQ(text_of(tree), "confederation zr-cfg\n  member-as = 65001\n  member-as = 65002\n  member-as = 65001\n");
}

TEST_P(AddPath, OfSeveralInstancesTheFirstIsTaken)
{
    tree = io::read_tree("af zr-cfg\n  name = 1\naf zr-cfg\n  name = 2\n");
    add("af/enable");
    add("af/name", {.value = "3"});
    EXPECT_EQ(text_of(tree), "af zr-cfg\n  name = 3\n  enable\naf zr-cfg\n  name = 2\n");
}

// ---- Bracket elements -----------------------------------------------------------------------

TEST_P(AddPath, ABracketElementTakesTheValueAsItsKey)
{
    for (uint32_t repeat : {1u, 0u, 1u}) {
        add("neighbors/neighbor[neighbor-address]/remote-as", {.value = "10.0.0.1", .repeat = repeat});
        add("neighbors/neighbor[neighbor-address]/remote-as", {.value = "10.0.0.2", .repeat = repeat});
        add("neighbors/neighbor[neighbor-address]/description", {.value = "10.0.0.1", .repeat = repeat});
    }
    EXPECT_EQ(text_of(tree), "neighbors zr-cfg\n"
                             "  neighbor\n"
                             "    neighbor-address = 10.0.0.1\n"
                             "    remote-as\n"
                             "    description\n"
                             "  neighbor\n"
                             "    neighbor-address = 10.0.0.2\n"
                             "    remote-as\n");
}

TEST_P(AddPath, ABracketElementMayBeTheLast)
{
    for (uint32_t repeat : {1u, 0u, 1u}) {
        const Datatree *entry = add("neighbor[neighbor-address]", {.value = "10.0.0.1", .repeat = repeat});
        EXPECT_STREQ(platform::tag_of(*entry), "neighbor");
    }
    EXPECT_EQ(text_of(tree), "neighbor zr-cfg\n  neighbor-address = 10.0.0.1\n");
}

TEST_P(AddPath, ABracketElementFindsTheEntryOfAListNode)
{
    const Datatree *entry = test::add_neighbor(tree.root(), "10.0.0.1");
    EXPECT_EQ(add("neighbor[neighbor-address]", {.value = "10.0.0.1", .repeat = 1}), entry);
}

TEST_P(AddPath, ABracketElementWithoutAValueMeetsTheEntryWhoseKeyHasNone)
{
    add("neighbor[neighbor-address]/remote-as", {.repeat = 1});
    add("neighbor[neighbor-address]/description", {.repeat = 1});
    EXPECT_EQ(text_of(tree), "neighbor zr-cfg\n  neighbor-address\n  remote-as\n  description\n");
}

TEST_P(AddPath, TheOperationGoesToTheLastElementAlsoAfterABracketElement)
{
    add("neighbor[neighbor-address]/remote-as", {.value = "10.0.0.1", .source = &removal, .repeat = 1});
    EXPECT_EQ(text_of(tree), "neighbor zr-cfg\n  neighbor-address = 10.0.0.1\n  remote-as [remove]\n");
}

// ---- Refusals -------------------------------------------------------------------------------

TEST_P(AddPath, RefusesABadPathAndLeavesTheTree)
{
    tree = io::read_tree("a zr-cfg [remove]\nlist zr-cfg\n");
    const std::string before = text_of(tree);
    const Datatree *children = platform::children_of(tree.root()).data();
    for (const char *bad : {"",      "/",         "//",     "//a",    "a/",          "a//b",        "/a/",
                            "new/",  "new//b",    "new/b/", "a[",     "a[]",         "[key]",       "a[key]b",
                            "a[key", "new[key]/", "a/b[]",  "new/b[", "new/a[key]b", "new/[key]/b", "list/new/b//c"}) {
        Datatree *node = nullptr;
        for (uint32_t repeat : {0u, 1u}) {
            const With with = {.value = "1", .source = &plain_write, .repeat = repeat};
            EXPECT_EQ(outcome_of(&tree.root(), bad, with, &node), VMF_RC_BAD_ARGS) << bad;
        }
        EXPECT_EQ(node, nullptr) << bad;
        ASSERT_EQ(text_of(tree), before) << bad;
    }
    EXPECT_EQ(platform::children_of(tree.root()).data(), children);
}

TEST_P(AddPath, RefusesANullParentOrPath)
{
    EXPECT_EQ(outcome_of(nullptr, "a"), VMF_RC_BAD_ARGS);
    EXPECT_EQ(outcome_of(&tree.root(), nullptr), VMF_RC_BAD_ARGS);
    EXPECT_EQ(text_of(tree), "");
}

// ---- A write below a removal ----------------------------------------------------------------

TEST_P(AddPath, AWriteBelowARemovalMakesItAReplacement)
{
    for (uint32_t operation : {VMF_OP_REMOVE, VMF_OP_DELETE}) {
        const Datatree source = source_with(operation);
        tree = platform::Tree();
        add("remote-as", {.source = &source});
        add("remote-as/as-yy", {.value = "65001", .source = &plain_write});
        EXPECT_EQ(text_of(tree), "remote-as zr-cfg [replace]\n  as-yy = 65001\n");
    }
}

TEST_P(AddPath, AWriteOfARemovedElementMakesItAReplacement)
{
    add("neighbor/description", {.source = &removal});
    add("neighbor/description", {.value = "new", .source = &plain_write});
    EXPECT_EQ(text_of(tree), "neighbor zr-cfg\n  description [replace] = new\n");
}

TEST_P(AddPath, AWriteChangesEveryRemovalOnItsPathAndNoOther)
{
    tree = io::read_tree("a zr-cfg [remove]\n"
                         "  b [delete]\n"
                         "    c [merge]\n"
                         "      d [create]\n"
                         "  x [remove]\n");
    add("a/b/c/d/e", {.source = &plain_write});
    EXPECT_EQ(text_of(tree), "a zr-cfg [replace]\n"
                             "  b [replace]\n"
                             "    c [merge]\n"
                             "      d [create]\n"
                             "        e\n"
                             "  x [remove]\n");
}

TEST_P(AddPath, AWriteChangesTheRemovalOfTheListEntryItSelects)
{
    tree = io::read_tree("neighbor zr-cfg [remove]\n  neighbor-address = 10.0.0.1\n");
    add("neighbor[neighbor-address]/remote-as", {.value = "10.0.0.1", .source = &plain_write, .repeat = 1});
    EXPECT_EQ(text_of(tree), "neighbor zr-cfg [replace]\n  neighbor-address = 10.0.0.1\n  remote-as\n");
}

TEST_P(AddPath, AWriteLeavesTheRemovalOfTheParent)
{
    Datatree *held = add("maximum-prefixes", {.source = &removal});
    add(*held, "prefix-limit", {.value = "100", .source = &plain_write});
    EXPECT_EQ(text_of(tree), "maximum-prefixes zr-cfg [remove]\n  prefix-limit = 100\n");
}

TEST_P(AddPath, AnAddWithoutASourceLeavesARemoval)
{
    add("maximum-prefixes", {.source = &removal});
    add("maximum-prefixes/warning-percentage", {.value = "75"});
    add("maximum-prefixes");
    EXPECT_EQ(text_of(tree), "maximum-prefixes zr-cfg [remove]\n  warning-percentage = 75\n");
}

TEST_P(AddPath, ARemovalBelowARemovalLeavesIt)
{
    add("remote-as", {.source = &removal});
    add("remote-as/as-yy", {.source = &removal});
    EXPECT_EQ(text_of(tree), "remote-as zr-cfg [remove]\n  as-yy [remove]\n");
}

TEST(AddSubtreeAfterARemoval, AWriteMakesItAReplacementAndAnAddWithoutASourceDoesNot)
{
    platform::Tree tree = io::read_tree("multipath zr-cfg [remove]\n");
    const auto add_multipath = [&](const Datatree *source) {
        EXPECT_EQ(vmf_map_datatree_add_subtree(nullptr, &tree.root(), "multipath", ZR_BGP_CFG_NS, nullptr, source,
                                               nullptr, 0),
                  VMF_RC_OK);
        return text_of(tree);
    };
    EXPECT_EQ(add_multipath(nullptr), "multipath zr-cfg [remove]\n");
    EXPECT_EQ(add_multipath(&plain_write), "multipath zr-cfg [replace]\n");
}

TEST(AddSubtreeAfterARemoval, AWriteLeavesTheParents)
{
    platform::Tree tree = io::read_tree("remote-as zr-cfg [remove]\n");
    EXPECT_EQ(vmf_map_datatree_add_subtree(nullptr, &platform::children_of(tree.root())[0], "as-yy", ZR_BGP_CFG_NS,
                                           "65001", &plain_write, nullptr, 0),
              VMF_RC_OK);
    EXPECT_EQ(text_of(tree), "remote-as zr-cfg [remove]\n  as-yy = 65001\n");
}

TEST(AddListNodeAfterARemoval, LeavesIt)
{
    platform::Tree tree = io::read_tree("neighbor zr-cfg [remove]\n  neighbor-address = 10.0.0.1\n");
    const std::string before = text_of(tree);
    test::add_neighbor(tree.root(), "10.0.0.1");
    EXPECT_EQ(text_of(tree), before);
}
