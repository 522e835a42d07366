// The walk engine, with handlers of this program in the place of the library's, and requests that no parser would make.
#include "library_test.h"
#include "probe.h"
#include "vmf_map_oc_bgp_handlers.h"
#include "vmf_map_oc_bgp_walkers.h"

using namespace library_test;

// ---- In the place of the library's handlers -------------------------------------------------

namespace {

struct Visit {
    std::string handler;
    const Datatree *node;
    int32_t children;  // -1: a leaf
    uint32_t scope, config_named;
};
std::vector<Visit> visits;
std::map<std::string, uint32_t> outcomes;  // of the handlers that fail

uint32_t visit(const char *handler, const MapContext *ctx, const Datatree *node, int32_t children)
{
    visits.push_back({handler, node, children, ctx->request->replace_scope, ctx->request->config_named});
    const auto outcome = outcomes.find(handler);
    return outcome != outcomes.end() ? outcome->second : VMF_RC_OK;
}

Lines visited()
{
    Lines names;
    for (const Visit &it : visits) names.push_back(it.handler);
    return names;
}

}  // namespace

#define LEAF(path, name)                                                                                               \
    extern "C" uint32_t vmf_map_leaf_oc_bgp_##path(MapContext *ctx, Datatree *node, Datatree *)                        \
    {                                                                                                                  \
        return visit(name, ctx, node, -1);                                                                             \
    }
#define CONTAINER(path, name)                                                                                          \
    extern "C" uint32_t vmf_map_cont_oc_bgp_##path(MapContext *ctx, Datatree *node, int32_t children, Datatree *)      \
    {                                                                                                                  \
        return visit(name, ctx, node, children);                                                                       \
    }

LEAF(global_afisafis_afisafi_afisafiname, "key")
LEAF(neighbors_neighbor_neighboraddress, "key")
LEAF(neighbors_neighbor_afisafis_afisafi_afisafiname, "key")
LEAF(peergroups_peergroup_peergroupname, "key")
LEAF(peergroups_peergroup_afisafis_afisafi_afisafiname, "key")
LEAF(neighbors_neighbor_config_peeras, "peer-as")
LEAF(neighbors_neighbor_config_description, "description")
CONTAINER(global_afisafis_afisafi_config, "config")
CONTAINER(neighbors_neighbor_config, "config")
CONTAINER(neighbors_neighbor_afisafis_afisafi_config, "config")
CONTAINER(peergroups_peergroup_config, "config")
CONTAINER(peergroups_peergroup_afisafis_afisafi_config, "config")

namespace {

struct WalkTest : testing::Test {
    WalkTest()
    {
        visits.clear();
        outcomes.clear();
        probe::heard() = {};
    }

    RequestContext &request() { return run.contexts.request; }
    void set_kind(uint32_t kind) { run.contexts.info.kind = kind; }
    const char *rejected() const { return run.contexts.request.rejected_tag; }

    MappingRun run{VMF_REQ_GET};
    Operations operations;
};

// ---- Containers -----------------------------------------------------------------------------

struct ContainerWalkTest : WalkTest {
    ContainerWalkTest() : config(add_child(tree.root(), "config", OC_BGP_NS)) {}

    Datatree &add(const char *tag) { return add_child(config, tag, OC_BGP_NS); }
    uint32_t walk() { return vmf_map_oc_bgp_neighbors_neighbor_config(&run.ctx, &config, &run.out.root()); }
    Lines said() { return spoken(run).by("vmf_map_oc_bgp_neighbors_neighbor_config"); }

    platform::Tree tree;
    Datatree &config;
};

TEST_F(ContainerWalkTest, goes_from_the_handler_to_the_children_in_the_order_of_the_request)
{
    add("description");
    add("peer-as");
    EXPECT_EQ(walk(), VMF_RC_OK);
    EXPECT_EQ(visited(), (Lines{"config", "description", "peer-as"}));
    EXPECT_EQ(visits[0].children, 2);
    EXPECT_EQ(visits[0].node, &config);
    EXPECT_EQ(visits[1].node, &platform::children_of(config)[0]);
    EXPECT_EQ(said(), framed({"TRC Processing tag 'description'", "TRC Processing tag 'peer-as'"}));
    EXPECT_EQ(rejected(), nullptr);
}

TEST_F(ContainerWalkTest, dispatches_a_tag_each_time_it_occurs)
{
    for (const char *tag : {"peer-as", "description", "peer-as"}) add(tag);
    EXPECT_EQ(walk(), VMF_RC_OK);
    EXPECT_EQ(visited(), (Lines{"config", "peer-as", "description", "peer-as"}));
}

struct WithoutChildren {
    const char *name;
    bool bit6, array;
    int32_t count;

    friend void PrintTo(const WithoutChildren &it, std::ostream *out) { *out << it.name; }
};

struct WithoutChildrenTest : ContainerWalkTest, testing::WithParamInterface<WithoutChildren> {};

TEST_P(WithoutChildrenTest, is_walked_with_a_count_of_0)
{
    const WithoutChildren &it = GetParam();
    Datatree some = {};
    const WrongChildren wrong(config);
    set_children(config, it.array ? &some : nullptr, it.count);
    if (!it.bit6) clear_bit6(config);
    EXPECT_EQ(walk(), VMF_RC_OK);
    ASSERT_EQ(visited(), Lines{"config"});
    EXPECT_EQ(visits[0].children, 0);
    EXPECT_EQ(said(), framed({}));
}

constexpr WithoutChildren without_children[] = {
    {"bit_6_clear", false, false, 0},
    {"bit_6_clear_and_an_array", false, true, 1},
    {"bit_6_clear_and_a_count", false, false, 1},
    {"a_count_of_0_and_no_array", true, false, 0},
    {"a_count_of_0_and_an_array", true, true, 0},
    {"a_negative_count_and_an_array", true, true, -1},
    {"the_most_negative_count", true, true, INT32_MIN},
};
INSTANTIATE_TEST_SUITE_P(AContainerWith, WithoutChildrenTest, testing::ValuesIn(without_children),
                         [](const auto &tested) { return std::string(tested.param.name); });

TEST_F(ContainerWalkTest, a_count_without_an_array_is_a_bad_tree_before_the_handler)
{
    for (const int32_t count : {1, 3, -1}) {
        const WrongChildren wrong(config);
        set_children(config, nullptr, count);
        EXPECT_EQ(walk(), VMF_RC_BAD_TREE);
        EXPECT_EQ(said(), framed({"ERR Failed to get subtrees!"}));
    }
    EXPECT_TRUE(visits.empty());
    EXPECT_EQ(rejected(), nullptr);
}

TEST_F(ContainerWalkTest, a_failing_handler_ends_the_walk_of_its_node)
{
    add("peer-as");
    outcomes["config"] = some_failure;
    EXPECT_EQ(walk(), some_failure);
    EXPECT_EQ(visited(), Lines{"config"});
    EXPECT_EQ(said(), framed({}));
}

TEST_F(ContainerWalkTest, a_failing_child_ends_the_walk)
{
    add("peer-as");
    add("description");
    outcomes["peer-as"] = some_failure;
    EXPECT_EQ(walk(), some_failure);
    EXPECT_EQ(visited(), (Lines{"config", "peer-as"}));
    EXPECT_EQ(said(), framed({"TRC Processing tag 'peer-as'"}));
    EXPECT_EQ(rejected(), nullptr);
}

TEST_F(ContainerWalkTest, a_child_without_a_tag_is_a_bad_tree_when_it_is_reached)
{
    add("peer-as");
    add("description");
    add("peer-as");
    for (const Untagged way : untagged) {
        visits.clear();
        take_tag(platform::children_of(config)[1], way);
        EXPECT_EQ(walk(), VMF_RC_BAD_TREE);
        EXPECT_EQ(visited(), (Lines{"config", "peer-as"}));
        EXPECT_EQ(said(), framed({"TRC Processing tag 'peer-as'", "ERR Tag name is not available!"}));
        platform::children_of(config)[1].present[0] |= VMF_DT_TAG;
    }
    EXPECT_EQ(rejected(), nullptr);
}

TEST_F(ContainerWalkTest, an_unknown_tag_is_refused_with_a_copy_of_it)
{
    add("peer-as");
    add("colour");
    add("description");
    EXPECT_EQ(walk(), VMF_RC_UNSUPPORTED);
    EXPECT_EQ(visited(), (Lines{"config", "peer-as"}));
    EXPECT_STREQ(rejected(), "colour");
    EXPECT_NE(rejected(), platform::tag_of(platform::children_of(config)[1]));
    EXPECT_EQ(probe::heard().copy_labels, Lines{"VMF MAP"});
    EXPECT_EQ(said(), framed({"TRC Processing tag 'peer-as'", "TRC Processing tag 'colour'",
                              "ERR Unsupported tag is specified in the request."}));
}

TEST_F(ContainerWalkTest, a_tag_is_compared_whole_and_with_its_case)
{
    for (const char *tag : {"PEER-AS", "peer-a", "peer-as2", "peeras", ""}) {
        platform::Tree other;
        Datatree &node = add_child(other.root(), "config", OC_BGP_NS);
        add_child(node, tag, OC_BGP_NS);
        EXPECT_EQ(vmf_map_oc_bgp_neighbors_neighbor_config(&run.ctx, &node, &run.out.root()), VMF_RC_UNSUPPORTED);
        EXPECT_STREQ(rejected(), tag);
        vmf_gpb_free(request().rejected_tag);
        request().rejected_tag = nullptr;
    }
    EXPECT_EQ(visited(), Lines(5, "config"));
}

TEST_F(ContainerWalkTest, the_refusal_stands_also_when_the_tag_cannot_be_copied)
{
    add("colour");
    operations.fail("vmf_strdup", some_failure);
    EXPECT_EQ(walk(), VMF_RC_UNSUPPORTED);
    EXPECT_EQ(rejected(), nullptr);
}

TEST_F(ContainerWalkTest, a_leaf_is_mapped_without_a_look_at_its_children)
{
    Datatree &leaf = add("peer-as");
    set_children(leaf, nullptr, 3);
    EXPECT_EQ(walk(), VMF_RC_OK);
    EXPECT_EQ(visited(), (Lines{"config", "peer-as"}));
    EXPECT_EQ(spoken(run).by("vmf_map_oc_bgp_neighbors_neighbor_config_peeras"), framed({}));
}

// ---- List entries ---------------------------------------------------------------------------

// When a list speaks of its key: a habit of each, to be kept.
enum class Habit { says_then_tests, tests_then_says, says_on_failure };

struct List {
    const char *name;
    VmfLeafHandler *walk;
    const char *walker, *tag, *key, *schema_path;
    Habit habit;
    bool scoped;

    friend void PrintTo(const List &it, std::ostream *out) { *out << it.name; }
};

const List lists[] = {
    {"global_afi_safi", vmf_map_oc_bgp_global_afisafis_afisafi, "vmf_map_oc_bgp_global_afisafis_afisafi", "afi-safi",
     "afi-safi-name", "/bgp/global/afi-safis/afi-safi", Habit::says_then_tests, false},
    {"neighbor", vmf_map_oc_bgp_neighbors_neighbor, "vmf_map_oc_bgp_neighbors_neighbor", "neighbor", "neighbor-address",
     "/bgp/neighbors/neighbor", Habit::says_on_failure, true},
    {"neighbor_afi_safi", vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi,
     "vmf_map_oc_bgp_neighbors_neighbor_afisafis_afisafi", "afi-safi", "afi-safi-name",
     "/bgp/neighbors/neighbor/afi-safis/afi-safi", Habit::says_then_tests, true},
    {"peer_group", vmf_map_oc_bgp_peergroups_peergroup, "vmf_map_oc_bgp_peergroups_peergroup", "peer-group",
     "peer-group-name", "/bgp/peer-groups/peer-group", Habit::says_then_tests, true},
    {"peer_group_afi_safi", vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi,
     "vmf_map_oc_bgp_peergroups_peergroup_afisafis_afisafi", "afi-safi", "afi-safi-name",
     "/bgp/peer-groups/peer-group/afi-safis/afi-safi", Habit::tests_then_says, true},
};

struct ListWalkTest : WalkTest, testing::WithParamInterface<List> {
    ListWalkTest() : entry(add_child(tree.root(), list.tag, OC_BGP_NS)) {}
    ~ListWalkTest() override { vmf_gpb_free(rejected_before); }

    Datatree &add(const char *tag) { return add_child(entry, tag, OC_BGP_NS); }
    Datatree &add_key()
    {
        Datatree &key = add(list.key);
        platform::set_value(key, "k");
        return key;
    }
    Datatree &child(size_t i) { return platform::children_of(entry)[i]; }

    uint32_t walk() { return list.walk(&run.ctx, &entry, &run.out.root()); }
    Lines said() { return spoken(run).by(list.walker); }

    std::string expected() const { return std::string("ERR List key '") + list.key + "' expected."; }
    Lines when(bool spoken_of, Lines lines) const
    {
        if (spoken_of) lines.insert(lines.begin(), expected());
        return lines;
    }
    std::string processing(const char *tag) const { return std::string("TRC Processing tag '") + tag + "'"; }

    // A text that a refusal has to replace, or to leave.
    void reject_something_before()
    {
        rejected_before = vmf_strdup("before", "VMF MAP");
        request().rejected_tag = rejected_before;
        probe::heard() = {};
    }
    void forget_rejected() { request().rejected_tag = nullptr; }

    const List &list = GetParam();
    platform::Tree tree;
    Datatree &entry;
    char *rejected_before = nullptr;
};

INSTANTIATE_TEST_SUITE_P(Of, ListWalkTest, testing::ValuesIn(lists),
                         [](const auto &tested) { return std::string(tested.param.name); });

TEST_P(ListWalkTest, maps_the_key_before_the_other_children_and_once)
{
    add("config");
    add_key();
    add("config");
    EXPECT_EQ(walk(), VMF_RC_OK);
    EXPECT_EQ(visited(), (Lines{"key", "config", "config"}));
    EXPECT_EQ(visits[0].node, &child(1));
    EXPECT_EQ(run.ctx.list_child_count, 3u);
    EXPECT_EQ(probe::heard().list_entries, (std::vector<probe::ListEntry>{{list.schema_path, 3}}));
    EXPECT_EQ(said(), framed(when(list.habit == Habit::says_then_tests,
                                  {processing("config"), processing(list.key), processing("config")})));
    EXPECT_EQ(rejected(), nullptr);
}

TEST_P(ListWalkTest, with_nothing_but_its_key_goes_no_further)
{
    add_key();
    EXPECT_EQ(walk(), VMF_RC_OK);
    EXPECT_EQ(visited(), Lines{"key"});
    EXPECT_EQ(said(), framed(when(list.habit == Habit::says_then_tests, {processing(list.key)})));
}

TEST_P(ListWalkTest, skips_a_second_key)
{
    add_key();
    add_key();
    EXPECT_EQ(walk(), VMF_RC_OK);
    EXPECT_EQ(visited(), Lines{"key"});
    EXPECT_EQ(visits[0].node, &child(0));
}

TEST_P(ListWalkTest, names_the_config_before_it_is_entered)
{
    add_key();
    add("config");
    for (const uint32_t kind : {uint32_t{VMF_REQ_GET_CONFIG}, uint32_t{VMF_REQ_EDIT}, uint32_t{VMF_REQ_GET}}) {
        visits.clear();
        request().config_named = 0;
        set_kind(kind);
        ASSERT_EQ(walk(), VMF_RC_OK);
        EXPECT_EQ(visits[0].config_named, 0u);
        EXPECT_EQ(visits[1].config_named, 1u);
    }
    EXPECT_EQ(request().state_named, 0u);
}

TEST_P(ListWalkTest, refuses_an_unknown_tag_with_a_copy_of_it)
{
    add_key();
    add("colour");
    EXPECT_EQ(walk(), VMF_RC_UNSUPPORTED);
    EXPECT_STREQ(rejected(), "colour");
    EXPECT_EQ(said(),
              framed(when(list.habit == Habit::says_then_tests, {processing(list.key), processing("colour"),
                                                                 "ERR Unsupported tag is specified in the request."})));
}

TEST_P(ListWalkTest, meets_a_child_without_a_tag_behind_its_key)
{
    add_key();
    add("config");
    take_tag(child(1), Untagged::bit_is_clear);
    EXPECT_EQ(walk(), VMF_RC_BAD_TREE);
    EXPECT_EQ(visited(), Lines{"key"});
    EXPECT_EQ(said(), framed(when(list.habit == Habit::says_then_tests,
                                  {processing(list.key), "ERR Tag name is not available!"})));
    EXPECT_EQ(rejected(), nullptr);
}

// ---- An entry without children, without a key -----------------------------------------------

TEST_P(ListWalkTest, refuses_an_entry_without_children_in_every_kind)
{
    for (const uint32_t kind : {uint32_t{VMF_REQ_GET_CONFIG}, uint32_t{VMF_REQ_EDIT}, uint32_t{VMF_REQ_GET}, 7u}) {
        set_kind(kind);
        run.ctx.list_child_count = 9;
        probe::heard() = {};
        EXPECT_EQ(walk(), VMF_RC_BAD_KEY);
        EXPECT_EQ(run.ctx.list_child_count, 0u);
        EXPECT_STREQ(rejected(), list.tag);
        EXPECT_NE(rejected(), platform::tag_of(entry));
        EXPECT_EQ(probe::heard().copy_labels, Lines{"VMF MAP"});
        EXPECT_EQ(said(), framed({"ERR No keys specified with a list node."}));
        EXPECT_TRUE(probe::heard().list_entries.empty());
        vmf_gpb_free(request().rejected_tag);
        forget_rejected();
    }
}

TEST_P(ListWalkTest, takes_a_count_below_1_as_no_children)
{
    Datatree some = {};
    for (const int32_t count : {0, -1}) {
        const WrongChildren wrong(entry);
        set_children(entry, &some, count);
        run.ctx.list_child_count = 9;
        EXPECT_EQ(walk(), VMF_RC_BAD_KEY);
        EXPECT_EQ(run.ctx.list_child_count, 0u);
        EXPECT_EQ(said(), framed({"ERR No keys specified with a list node."}));
        vmf_gpb_free(request().rejected_tag);
        forget_rejected();
    }
    EXPECT_TRUE(probe::heard().list_entries.empty());
}

TEST_P(ListWalkTest, takes_a_count_without_an_array_as_a_bad_tree)
{
    run.ctx.list_child_count = 9;
    for (const int32_t count : {1, -1}) {
        const WrongChildren wrong(entry);
        set_children(entry, nullptr, count);
        EXPECT_EQ(walk(), VMF_RC_BAD_TREE);
        EXPECT_EQ(said(), framed({"ERR Failed to get subtrees!"}));
    }
    EXPECT_EQ(run.ctx.list_child_count, 9u);
    EXPECT_TRUE(probe::heard().list_entries.empty());
    EXPECT_EQ(rejected(), nullptr);
}

TEST_P(ListWalkTest, refuses_an_entry_without_a_key_and_says_nothing)
{
    add("config");
    add("colour");
    reject_something_before();
    EXPECT_EQ(walk(), VMF_RC_BAD_KEY);
    EXPECT_TRUE(visits.empty());
    EXPECT_EQ(rejected(), rejected_before);
    EXPECT_EQ(said(), framed({}));
    EXPECT_EQ(run.ctx.list_child_count, 2u);
    EXPECT_EQ(probe::heard().list_entries.size(), 1u);
    forget_rejected();
}

// ---- The key's value and operation ----------------------------------------------------------

TEST_P(ListWalkTest, refuses_a_key_without_a_value_in_an_edit_alone)
{
    add(list.key);
    for (const uint32_t kind : {uint32_t{VMF_REQ_GET_CONFIG}, uint32_t{VMF_REQ_GET}, 2u, 7u}) {
        visits.clear();
        set_kind(kind);
        EXPECT_EQ(walk(), VMF_RC_OK) << kind;
        EXPECT_EQ(visited(), Lines{"key"});
        said();
    }
    visits.clear();
    set_kind(VMF_REQ_EDIT);
    reject_something_before();
    EXPECT_EQ(walk(), VMF_RC_BAD_KEY);
    EXPECT_TRUE(visits.empty());
    EXPECT_EQ(rejected(), nullptr);
    EXPECT_EQ(said(), framed({"ERR Empty list key specified."}));
}

TEST_P(ListWalkTest, does_not_take_a_text_whose_bit_is_clear_as_the_keys_value)
{
    Datatree &key = add(list.key);
    char text[] = "k";
    key.value = text;
    set_kind(VMF_REQ_EDIT);
    EXPECT_EQ(walk(), VMF_RC_BAD_KEY);
    EXPECT_TRUE(visits.empty());
    EXPECT_EQ(said(), framed({"ERR Empty list key specified."}));
}

TEST_P(ListWalkTest, looks_at_the_bit_of_the_keys_value_not_at_its_text)
{
    Datatree &key = add(list.key);
    key.present[0] |= VMF_DT_VALUE;
    set_kind(VMF_REQ_EDIT);
    EXPECT_EQ(walk(), VMF_RC_OK);
    EXPECT_EQ(visited(), Lines{"key"});
}

TEST_P(ListWalkTest, refuses_a_removal_of_its_key)
{
    platform::set_value(add(list.key), "k");
    reject_something_before();
    for (const uint32_t operation : {uint32_t{VMF_OP_DELETE}, uint32_t{VMF_OP_REMOVE}})
        for (const uint32_t kind : {uint32_t{VMF_REQ_EDIT}, uint32_t{VMF_REQ_GET}}) {
            platform::set_operation(child(0), operation);
            set_kind(kind);
            EXPECT_EQ(walk(), VMF_RC_KEY_OPERATION);
            EXPECT_EQ(said(), framed({"ERR The key node should not have delete operation."}));
        }
    EXPECT_TRUE(visits.empty());
    EXPECT_EQ(rejected(), rejected_before);
    forget_rejected();
}

TEST_P(ListWalkTest, takes_any_other_operation_of_its_key)
{
    Datatree &key = add_key();
    key.operation = VMF_OP_DELETE;  // bit 4 is clear
    EXPECT_EQ(walk(), VMF_RC_OK);
    for (const uint32_t operation : {uint32_t{VMF_OP_MERGE}, uint32_t{VMF_OP_REPLACE}, uint32_t{VMF_OP_CREATE}}) {
        platform::set_operation(child(0), operation);
        EXPECT_EQ(walk(), VMF_RC_OK);
    }
}

TEST_P(ListWalkTest, sees_an_empty_key_before_its_removal)
{
    platform::set_operation(add(list.key), VMF_OP_DELETE);
    set_kind(VMF_REQ_EDIT);
    EXPECT_EQ(walk(), VMF_RC_BAD_KEY);
    EXPECT_EQ(said(), framed({"ERR Empty list key specified."}));
}

// ---- The entry's own operation --------------------------------------------------------------

TEST_P(ListWalkTest, records_the_entrys_operation_before_the_key)
{
    add_key();
    run.ctx.list_op = 77;
    run.ctx.list_op_present = 77;
    ASSERT_EQ(walk(), VMF_RC_OK);
    EXPECT_EQ(run.ctx.list_op_present, 0u);
    EXPECT_EQ(run.ctx.list_op, 77u);

    entry.operation = VMF_OP_CREATE;  // bit 4 is clear
    ASSERT_EQ(walk(), VMF_RC_OK);
    EXPECT_EQ(run.ctx.list_op_present, 0u);
    EXPECT_EQ(run.ctx.list_op, 77u);

    platform::set_operation(entry, VMF_OP_CREATE);
    outcomes["key"] = some_failure;
    ASSERT_EQ(walk(), some_failure);
    EXPECT_EQ(run.ctx.list_op_present, 1u);
    EXPECT_EQ(run.ctx.list_op, VMF_OP_CREATE);
}

TEST_P(ListWalkTest, keeps_the_former_operation_when_the_framework_does_not_take_the_list)
{
    add_key();
    platform::set_operation(entry, VMF_OP_CREATE);
    operations.fail("vmf_map_update_current_list_node", some_failure);
    for (const uint32_t present : {0u, 1u}) {
        visits.clear();
        run.ctx.list_op = 77;
        run.ctx.list_op_present = present;
        EXPECT_EQ(walk(), VMF_RC_OK);
        EXPECT_EQ(visited(), Lines{"key"});
        EXPECT_EQ(run.ctx.list_op, 77u);
        EXPECT_EQ(run.ctx.list_op_present, present);
        EXPECT_EQ(run.ctx.list_child_count, 1u);
    }
}

// ---- A failing key leaf ---------------------------------------------------------------------

TEST_P(ListWalkTest, ends_with_the_outcome_of_its_key)
{
    add_key();
    add("config");
    reject_something_before();
    outcomes["key"] = some_failure;
    EXPECT_EQ(walk(), some_failure);
    EXPECT_EQ(visited(), Lines{"key"});
    EXPECT_EQ(said(), framed(when(list.habit == Habit::says_on_failure, {})));
    EXPECT_EQ(rejected(), rejected_before);
    forget_rejected();
}

// ---- A child without a tag in the place of the key ------------------------------------------

TEST_P(ListWalkTest, takes_a_child_without_a_tag_as_its_key)
{
    for (const Untagged way : untagged) {
        visits.clear();
        platform::Tree other;
        Datatree &with_bad_key = add_child(other.root(), list.tag, OC_BGP_NS);
        add_child(with_bad_key, "config", OC_BGP_NS);
        take_tag(add_child(with_bad_key, "x", OC_BGP_NS), way);
        add_child(with_bad_key, list.key, OC_BGP_NS);
        vmf_gpb_free(rejected_before);
        reject_something_before();

        const uint32_t outcome = list.walk(&run.ctx, &with_bad_key, &run.out.root());
        EXPECT_EQ(visits[0].handler, "key");
        EXPECT_EQ(visits[0].node, &platform::children_of(with_bad_key)[1]);
        if (list.habit == Habit::says_on_failure) {  // and makes no test, so that the walk goes on
            EXPECT_EQ(outcome, VMF_RC_BAD_TREE);
            EXPECT_EQ(visited(), (Lines{"key", "config"}));
            EXPECT_EQ(said(), framed({processing("config"), "ERR Tag name is not available!"}));
            EXPECT_EQ(rejected(), rejected_before);
            forget_rejected();
        } else {
            EXPECT_EQ(outcome, VMF_RC_BAD_KEY);
            EXPECT_EQ(visited(), Lines{"key"});
            EXPECT_EQ(said(), framed({expected()}));
            EXPECT_EQ(rejected(), nullptr);
        }
    }
}

TEST_P(ListWalkTest, does_not_see_a_key_behind_a_child_without_a_tag_that_fails)
{
    take_tag(add("x"), Untagged::bit_is_clear);
    add_key();
    outcomes["key"] = some_failure;
    reject_something_before();
    const uint32_t outcome = walk();
    EXPECT_EQ(visited(), Lines{"key"});
    if (list.habit == Habit::says_on_failure) {
        EXPECT_EQ(outcome, VMF_RC_BAD_KEY);
        EXPECT_EQ(said(), framed({expected()}));
        EXPECT_EQ(rejected(), nullptr);
    } else {
        EXPECT_EQ(outcome, some_failure);
        EXPECT_EQ(said(), framed({}));
        EXPECT_EQ(rejected(), rejected_before);
        forget_rejected();
    }
}

TEST_P(ListWalkTest, refuses_a_child_without_tag_and_value_as_an_empty_key)
{
    take_tag(add("x"), Untagged::bit_is_clear);
    set_kind(VMF_REQ_EDIT);
    EXPECT_EQ(walk(), VMF_RC_BAD_KEY);
    EXPECT_TRUE(visits.empty());
    EXPECT_EQ(said(), framed({"ERR Empty list key specified."}));
}

// ---- The replace scope ----------------------------------------------------------------------

TEST_P(ListWalkTest, opens_a_replace_scope_behind_the_key_and_closes_it)
{
    add_key();
    add("config");
    platform::set_operation(entry, VMF_OP_REPLACE);
    request().replace_scope_owner = 7;
    ASSERT_EQ(walk(), VMF_RC_OK);
    EXPECT_EQ(visits[0].scope, 0u);
    EXPECT_EQ(visits[1].scope, list.scoped ? 1u : 0u);
    EXPECT_EQ(request().replace_scope, 0u);
    EXPECT_EQ(request().replace_scope_owner, list.scoped ? 0u : 7u);
}

TEST_P(ListWalkTest, leaves_a_replace_scope_open_when_it_fails)
{
    add_key();
    add("config");
    platform::set_operation(entry, VMF_OP_REPLACE);
    outcomes["config"] = some_failure;
    ASSERT_EQ(walk(), some_failure);
    EXPECT_EQ(request().replace_scope, list.scoped ? 1u : 0u);
    EXPECT_EQ(request().replace_scope_owner, list.scoped ? 1u : 0u);
}

TEST_P(ListWalkTest, opens_no_replace_scope_without_bit_4_or_for_another_operation)
{
    add_key();
    add("config");
    entry.operation = VMF_OP_REPLACE;
    ASSERT_EQ(walk(), VMF_RC_OK);
    EXPECT_EQ(visits[1].scope, 0u);
    for (const uint32_t operation : {uint32_t{VMF_OP_MERGE}, uint32_t{VMF_OP_CREATE}, uint32_t{VMF_OP_DELETE}}) {
        visits.clear();
        platform::set_operation(entry, operation);
        ASSERT_EQ(walk(), VMF_RC_OK);
        EXPECT_EQ(visits[1].scope, 0u);
    }
}

TEST_P(ListWalkTest, leaves_the_scope_of_another_open_and_takes_its_ownership_away)
{
    add_key();
    add("config");
    platform::set_operation(entry, VMF_OP_REPLACE);
    request().replace_scope = 1;
    request().replace_scope_owner = 1;
    ASSERT_EQ(walk(), VMF_RC_OK);
    EXPECT_EQ(visits[1].scope, 1u);
    EXPECT_EQ(request().replace_scope, 1u);
    EXPECT_EQ(request().replace_scope_owner, list.scoped ? 0u : 1u);
}

}  // namespace
