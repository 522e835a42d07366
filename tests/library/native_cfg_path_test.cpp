// The builder of native configuration paths, and what it is made of.
#include <cstdlib>

#include "library_test.h"
#include "probe.h"

using namespace library_test;

namespace {

constexpr char four_byte_as[] = "/bgp/instance/instance-as/four-byte-as";
constexpr char global_path[] = "/bgp/instance/instance-as/four-byte-as/default-vrf/global";
constexpr char builder[] = "vmf_map_zr_bgp_cfg_add_path";

// The arguments of an add that most tests leave alone.
struct With {
    const char *value = nullptr;
    const Datatree *source = nullptr;
    Datatree **result = nullptr;
    uint32_t repeat = 0;
    const char *ns = ZR_BGP_CFG_NS;
};

struct CfgPathTest : testing::Test {
    CfgPathTest() { probe::heard() = {}; }
    ~CfgPathTest() override { probe::after_add_subtree = nullptr; }

    uint32_t add(const char *path, const With &with = {}) { return add_below(run.out.root(), path, with); }
    uint32_t add_below(Datatree &parent, const char *path, const With &with = {})
    {
        return vmf_map_zr_bgp_cfg_add_path(&run.ctx, &parent, path, with.ns, with.value, with.source, with.result,
                                           with.repeat);
    }

    // The output tree as an earlier path may have left it.
    void given(const char *tree) { run.out = io::read_tree(tree); }
    void given_instance(const std::string &children)
    {
        given(("bgp zr-cfg\n  instance\n    instance-name = default\n" + children).c_str());
    }
    Datatree &at(const char *path) { return node_at(run.out, path); }
    std::string tree() { return text_of(run.out); }

    // A router whose AS has two halves that can be told apart.
    void know_as(uint32_t high, uint32_t low)
    {
        run.database.put({.location = "/cfg/gl/ip-bgp/default/" + std::to_string(high) + "/" + std::to_string(low) +
                                      "/gbl/edm/ord_a/running"});
    }
    bool asked_for_as() const { return !probe::heard().backend.empty(); }

    MappingRun run{VMF_REQ_EDIT};
    Operations operations;
};

// ---- From nothing ---------------------------------------------------------------------------

TEST_F(CfgPathTest, an_empty_tree_gets_the_instance_and_the_as_levels)
{
    know_as(0, 100);
    Datatree *global = nullptr;
    EXPECT_EQ(add(global_path, {.result = &global}), VMF_RC_OK);
    EXPECT_EQ(tree(), "bgp zr-cfg\n"
                      "  instance\n"
                      "    instance-name = default\n"
                      "    instance-as\n"
                      "      as = 0\n"
                      "      four-byte-as\n"
                      "        as = 100\n"
                      "        default-vrf\n"
                      "          global\n");
    EXPECT_EQ(global, &at("bgp/instance/instance-as/four-byte-as/default-vrf/global"));
    EXPECT_EQ(run.ctx.as_written, 1u);
}

TEST_F(CfgPathTest, the_levels_are_added_in_their_order)
{
    know_as(7, 100);
    ASSERT_EQ(add(global_path), VMF_RC_OK);
    EXPECT_EQ(operations.adds(), (Lines{
                                     "add_subtree out: bgp",
                                     "add_subtree bgp: instance",
                                     "add_subtree instance: instance-name = default",
                                     "add_subtree instance: instance-as",
                                     "add_subtree instance-as: as = 7",
                                     "add_subtree instance-as: four-byte-as",
                                     "add_subtree four-byte-as: as = 100",
                                     "add_path_common four-byte-as: default-vrf/global",
                                 }));
}

TEST_F(CfgPathTest, the_levels_are_told_in_their_order)
{
    know_as(0, 100);
    ASSERT_EQ(add(global_path), VMF_RC_OK);
    const Spoken said = spoken(run);
    EXPECT_EQ(said.by(builder), framed({
                                    "TRC 'instance-as' not found so create it.",
                                    "TRC AS number is not set so get it from sysdb.",
                                    "TRC Now setting the obtained AS number",
                                    "TRC 'four-byte-as' not found so create it.",
                                }));
    const Lines whole = said.whole();
    EXPECT_EQ(Lines(whole.begin(), whole.begin() + 10), (Lines{
                                                            "vmf_map_zr_bgp_cfg_add_path: TRC Start",
                                                            "add_zr_cfg_bgp_one_node: TRC Start",
                                                            "add_zr_cfg_bgp_one_node: TRC Processing 'bgp'",
                                                            "add_zr_cfg_bgp_one_node: TRC End",
                                                            "add_zr_cfg_bgp_one_node: TRC Start",
                                                            "add_zr_cfg_bgp_one_node: TRC Processing 'instance'",
                                                            "add_zr_cfg_bgp_one_node: TRC End",
                                                            "add_zr_cfg_bgp_one_node: TRC Start",
                                                            "add_zr_cfg_bgp_one_node: TRC Processing 'instance-name'",
                                                            "add_zr_cfg_bgp_one_node: TRC End",
                                                        }));
    EXPECT_TRUE(said.failures().empty());
}

TEST_F(CfgPathTest, a_second_path_adds_only_what_is_new_and_asks_nothing)
{
    know_as(0, 100);
    ASSERT_EQ(add(global_path), VMF_RC_OK);
    const std::string before = tree();
    spoken(run);
    probe::heard() = {};
    EXPECT_EQ(add(global_path), VMF_RC_OK);
    EXPECT_EQ(tree(), before);
    EXPECT_FALSE(asked_for_as());
    EXPECT_EQ(spoken(run).by(builder), framed({"TRC 'as' and 'four-byte-as' found under 'instance-as'."}));
    EXPECT_EQ(add("/bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity"), VMF_RC_OK);
    EXPECT_EQ(tree(), before + "          bgp-entity\n");
}

TEST_F(CfgPathTest, the_largest_numbers_are_written_whole)
{
    know_as(4294967295, 4294967295);
    ASSERT_EQ(add(four_byte_as), VMF_RC_OK);
    EXPECT_STREQ(platform::value_of(at("bgp/instance/instance-as/as")), "4294967295");
    EXPECT_STREQ(platform::value_of(at("bgp/instance/instance-as/four-byte-as/as")), "4294967295");
}

TEST_F(CfgPathTest, a_cached_as_is_written_without_a_query)
{
    run.ctx.as_high = 1;
    run.ctx.as_low = 2;
    ASSERT_EQ(add(four_byte_as), VMF_RC_OK);
    EXPECT_FALSE(asked_for_as());
    EXPECT_STREQ(platform::value_of(at("bgp/instance/instance-as/as")), "1");
    EXPECT_STREQ(platform::value_of(at("bgp/instance/instance-as/four-byte-as/as")), "2");
}

TEST_F(CfgPathTest, the_query_runs_in_every_kind_of_request)
{
    for (const uint32_t kind : {uint32_t{VMF_REQ_GET_CONFIG}, uint32_t{VMF_REQ_EDIT}, uint32_t{VMF_REQ_GET}, 7u}) {
        MappingRun other(kind);
        other.know_as(100);
        ASSERT_EQ(vmf_map_zr_bgp_cfg_add_path(&other.ctx, &other.out.root(), four_byte_as, ZR_BGP_CFG_NS, nullptr,
                                              nullptr, nullptr, 0),
                  VMF_RC_OK);
        EXPECT_STREQ(platform::value_of(node_at(other.out, "bgp/instance/instance-as/four-byte-as/as")), "100");
    }
}

TEST_F(CfgPathTest, a_failing_query_leaves_as_leaves_without_a_value_and_goes_on)
{
    EXPECT_EQ(add(global_path), VMF_RC_OK);
    EXPECT_EQ(tree(), "bgp zr-cfg\n"
                      "  instance\n"
                      "    instance-name = default\n"
                      "    instance-as\n"
                      "      as\n"
                      "      four-byte-as\n"
                      "        as\n"
                      "        default-vrf\n"
                      "          global\n");
    EXPECT_EQ(run.ctx.as_written, 0u);
    const Spoken said = spoken(run);
    EXPECT_EQ(said.by(builder), framed({
                                    "TRC 'instance-as' not found so create it.",
                                    "TRC AS number is not set so get it from sysdb.",
                                    "TRC 'four-byte-as' not found so create it.",
                                    "TRC Adding 'as' under 'four-byte-as.",
                                }));
    EXPECT_TRUE(said.failures().empty());
}

TEST_F(CfgPathTest, a_failed_query_is_not_made_again)
{
    ASSERT_EQ(add(global_path), VMF_RC_OK);
    probe::heard() = {};
    EXPECT_EQ(add(global_path), VMF_RC_OK);
    EXPECT_FALSE(asked_for_as());
}

TEST_F(CfgPathTest, the_nodes_of_other_models_in_the_output_stay_apart)
{
    given("bgp zr-oper\n  instances\n");
    know_as(0, 100);
    ASSERT_EQ(add(four_byte_as), VMF_RC_OK);
    EXPECT_TRUE(tree().starts_with("bgp zr-oper\n  instances\nbgp zr-cfg\n  instance\n"));
}

// ---- Arguments ------------------------------------------------------------------------------

TEST_F(CfgPathTest, a_null_tree_path_or_namespace_is_a_bad_argument)
{
    Datatree *const out = &run.out.root();
    const struct {
        Datatree *tree;
        const char *path, *ns;
    } cases[] = {{nullptr, global_path, ZR_BGP_CFG_NS}, {out, nullptr, ZR_BGP_CFG_NS}, {out, global_path, nullptr}};
    for (const auto &it : cases) {
        EXPECT_EQ(vmf_map_zr_bgp_cfg_add_path(&run.ctx, it.tree, it.path, it.ns, nullptr, nullptr, nullptr, 0),
                  VMF_RC_BAD_ARGS);
        EXPECT_EQ(spoken(run).by(builder), refused("NULL argument(s) passed!"));
    }
    EXPECT_TRUE(operations.adds().empty());
}

TEST_F(CfgPathTest, an_absolute_path_elsewhere_is_refused)
{
    for (const std::string path :
         {"/bgp/neighbors", "/", "/bgp", "/bgp/instance/", "/bgp/instance/instance-as", "/bgp/instance/instance-as/As",
          "/bgp/instance/instance-as/four-byte-a", "/bgp/instances/instance/instance-active/default-vrf"}) {
        EXPECT_EQ(add(path.c_str()), VMF_RC_BAD_ARGS) << path;
        EXPECT_EQ(spoken(run).by(builder), framed({"ERR The passed path is not BGP CFG common path! (" + path + ")"}));
    }
    EXPECT_TRUE(operations.adds().empty());
    EXPECT_FALSE(asked_for_as());
}

// ---- The end of the path --------------------------------------------------------------------

TEST_F(CfgPathTest, the_rest_of_the_path_goes_on_with_all_arguments_as_given)
{
    know_as(0, 100);
    const Datatree source = source_with(VMF_OP_CREATE);
    Datatree *first = nullptr;
    Datatree *second = nullptr;
    const char value[] = "5";
    const With with = {.value = value, .source = &source, .result = &first, .repeat = 1, .ns = "urn:other"};
    const std::string path = std::string(four_byte_as) + "/default-vrf/item";
    ASSERT_EQ(add(path.c_str(), with), VMF_RC_OK);
    EXPECT_EQ(operations.adds().back(), "add_path_common four-byte-as: default-vrf/item ns=urn:other = 5 src repeat");
    EXPECT_EQ(operations.last_add().value, value);
    EXPECT_EQ(operations.last_add().operation_source, &source);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->operation, VMF_OP_CREATE);

    With again = with;
    again.result = &second;
    ASSERT_EQ(add(path.c_str(), again), VMF_RC_OK);
    EXPECT_EQ(platform::children_of(at("bgp/instance/instance-as/four-byte-as/default-vrf")).size(), 2u);
    EXPECT_EQ(second, &at("bgp/instance/instance-as/four-byte-as/default-vrf/item"));
}

TEST_F(CfgPathTest, the_levels_get_neither_value_nor_operation_of_the_caller)
{
    know_as(0, 100);
    const Datatree source = source_with(VMF_OP_DELETE);
    ASSERT_EQ(add(global_path, {.value = "5", .source = &source}), VMF_RC_OK);
    EXPECT_EQ(tree(), "bgp zr-cfg\n"
                      "  instance\n"
                      "    instance-name = default\n"
                      "    instance-as\n"
                      "      as = 0\n"
                      "      four-byte-as\n"
                      "        as = 100\n"
                      "        default-vrf\n"
                      "          global [delete] = 5\n");
}

TEST_F(CfgPathTest, the_outcome_of_the_last_add_is_the_outcome)
{
    know_as(0, 100);
    operations.fail("vmf_map_datatree_add_path_common", some_failure);
    EXPECT_EQ(add(global_path), some_failure);
    EXPECT_TRUE(spoken(run).failures().empty());
}

TEST_F(CfgPathTest, any_character_may_stand_behind_the_common_beginning_and_is_lost)
{
    know_as(0, 100);
    ASSERT_EQ(add("/bgp/instance/instance-as/four-byte-asXdefault-vrf/global"), VMF_RC_OK);
    EXPECT_EQ(operations.adds().back(), "add_path_common four-byte-as: default-vrf/global");
}

TEST_F(CfgPathTest, nothing_behind_the_slash_is_an_empty_rest)
{
    know_as(0, 100);
    add("/bgp/instance/instance-as/four-byte-as/");
    EXPECT_EQ(operations.adds().back(), "add_path_common four-byte-as: ");
}

TEST_F(CfgPathTest, the_four_byte_as_itself_takes_the_operation_and_is_the_result)
{
    know_as(0, 100);
    const Datatree source = source_with(VMF_OP_REMOVE);
    Datatree *result = nullptr;
    ASSERT_EQ(add(four_byte_as, {.value = "5", .source = &source, .result = &result, .repeat = 1}), VMF_RC_OK);
    EXPECT_EQ(result, &at("bgp/instance/instance-as/four-byte-as"));
    EXPECT_EQ(tree(), "bgp zr-cfg\n"
                      "  instance\n"
                      "    instance-name = default\n"
                      "    instance-as\n"
                      "      as = 0\n"
                      "      four-byte-as [remove]\n"
                      "        as = 100\n");
    EXPECT_EQ(operations.adds().back(), "add_subtree four-byte-as: as = 100");
}

TEST_F(CfgPathTest, the_four_byte_as_takes_no_operation_without_bit_4)
{
    know_as(0, 100);
    const Datatree source = source_without_bit4(VMF_OP_REMOVE);
    ASSERT_EQ(add(four_byte_as, {.source = &source}), VMF_RC_OK);
    ASSERT_EQ(add(four_byte_as), VMF_RC_OK);
    EXPECT_FALSE(platform::has_operation(at("bgp/instance/instance-as/four-byte-as")));
}

// ---- Relative paths -------------------------------------------------------------------------

TEST_F(CfgPathTest, a_relative_path_goes_to_the_platform_as_it_is)
{
    platform::Tree entry;
    Datatree &parent = add_child(entry.root(), "neighbor");
    const Datatree source = source_with(VMF_OP_CREATE);
    Datatree *result = nullptr;
    ASSERT_EQ(add_below(parent, "timers/hold-time",
                        {.value = "180", .source = &source, .result = &result, .repeat = 1, .ns = "urn:other"}),
              VMF_RC_OK);
    EXPECT_EQ(operations.adds(), Lines{"add_path_common neighbor: timers/hold-time ns=urn:other = 180 src repeat"});
    EXPECT_EQ(result, &node_at(parent, "timers/hold-time"));
    EXPECT_EQ(spoken(run).by(builder), framed({"TRC Setting a relative path 'timers/hold-time' with '180'"}));
    EXPECT_FALSE(asked_for_as());
}

TEST_F(CfgPathTest, a_relative_path_without_a_value_says_so)
{
    ASSERT_EQ(add("neighbors"), VMF_RC_OK);
    EXPECT_EQ(tree(), "neighbors zr-cfg\n");
    EXPECT_EQ(spoken(run).by(builder), framed({"TRC Setting a relative path 'neighbors' with '(null)'"}));
}

TEST_F(CfgPathTest, a_relative_path_is_not_checked)
{
    for (const char *path : {"neighbors/", "", "bgp/instance"}) {
        operations.forget();
        add(path);
        EXPECT_EQ(operations.adds(), Lines{std::string("add_path_common out: ") + path});
    }
}

TEST_F(CfgPathTest, a_failing_relative_path_passes_its_outcome_up)
{
    operations.fail_add(1, some_failure);
    EXPECT_EQ(add("neighbors"), some_failure);
    EXPECT_EQ(spoken(run).by(builder), framed({"TRC Setting a relative path 'neighbors' with '(null)'"}));
}

// ---- Reserved paths -------------------------------------------------------------------------

struct Reserved {
    const char *path, *value, *rest, *written;
};

constexpr Reserved reserved[] = {
    {"/bgp/instance/instance-as/as", "100", "instance-as/as", "0"},
    {"/bgp/instance/instance-as/as", "", "instance-as/as", "0"},
    {"/bgp/instance/instance-as/as", nullptr, "instance-as/as", nullptr},
    {"/bgp/instance/instance-as/four-byte-as/as", "100", "instance-as/four-byte-as/as", "100"},
    {"/bgp/instance/instance-as/four-byte-as/as", nullptr, "instance-as/four-byte-as/as", nullptr},
    {"/bgp/instance/instance-as/four-byte-as/bgp-running", "true", "instance-as/four-byte-as/bgp-running", nullptr},
    {"/bgp/instance/instance-as/four-byte-as/bgp-running", nullptr, "instance-as/four-byte-as/bgp-running", nullptr},
};

TEST_F(CfgPathTest, a_reserved_path_is_added_below_the_instance_with_the_source)
{
    const Datatree source = source_with(VMF_OP_CREATE);
    for (const Reserved &it : reserved) {
        SCOPED_TRACE(it.path);
        operations.forget();
        run.out = platform::Tree();
        ASSERT_EQ(add(it.path, {.value = it.value, .source = &source}), VMF_RC_OK);
        const std::string value = it.written != nullptr ? " = " + std::string(it.written) : "";
        EXPECT_EQ(operations.adds(), (Lines{
                                         "add_subtree out: bgp",
                                         "add_subtree bgp: instance",
                                         "add_subtree instance: instance-name = default",
                                         "add_path instance: " + std::string(it.rest) + value + " src",
                                     }));
        const Datatree &leaf = at((std::string("bgp/instance/") + it.rest).c_str());
        EXPECT_EQ(leaf.operation, VMF_OP_CREATE);
        EXPECT_TRUE(platform::has_operation(leaf));
        const Spoken said = spoken(run);
        EXPECT_EQ(said.by(builder), framed({}));
        EXPECT_EQ(said.by("get_zr_cfg_bgp_instance"), framed({}));
        EXPECT_EQ(said.by("add_zr_cfg_bgp_path"), framed({std::string("TRC Processing '") + it.rest + "'"}));
    }
    EXPECT_FALSE(asked_for_as());
}

TEST_F(CfgPathTest, a_reserved_path_looks_at_neither_result_nor_repeat_flag_nor_namespace)
{
    Datatree untouched = {};
    for (const char *path :
         {"/bgp/instance", "/bgp/instance/instance-as/as", "/bgp/instance/instance-as/four-byte-as/as",
          "/bgp/instance/instance-as/four-byte-as/bgp-running"}) {
        Datatree *result = &untouched;
        ASSERT_EQ(add(path, {.result = &result, .repeat = 1, .ns = "urn:other"}), VMF_RC_OK);
        ASSERT_EQ(add(path, {.result = &result, .repeat = 1, .ns = "urn:other"}), VMF_RC_OK);
        EXPECT_EQ(result, &untouched) << path;
    }
    EXPECT_EQ(tree(), "bgp zr-cfg\n"
                      "  instance\n"
                      "    instance-name = default\n"
                      "    instance-as\n"
                      "      as\n"
                      "      four-byte-as\n"
                      "        as\n"
                      "        bgp-running\n");
}

TEST_F(CfgPathTest, the_instance_itself_takes_the_operation)
{
    const Datatree source = source_with(VMF_OP_DELETE);
    ASSERT_EQ(add("/bgp/instance", {.value = "5", .source = &source}), VMF_RC_OK);
    EXPECT_EQ(tree(), "bgp zr-cfg\n"
                      "  instance [delete]\n"
                      "    instance-name = default\n");
    EXPECT_EQ(operations.adds().size(), 3u);
}

TEST_F(CfgPathTest, the_instance_takes_no_operation_without_bit_4)
{
    const Datatree source = source_without_bit4(VMF_OP_DELETE);
    ASSERT_EQ(add("/bgp/instance", {.source = &source}), VMF_RC_OK);
    ASSERT_EQ(add("/bgp/instance"), VMF_RC_OK);
    EXPECT_FALSE(platform::has_operation(at("bgp/instance")));
}

TEST_F(CfgPathTest, a_reserved_path_fails_without_a_word_of_its_own)
{
    for (const Reserved &it : reserved)
        for (size_t number = 1; number <= 4; number++) {
            run.out = platform::Tree();
            operations.forget();
            operations.fail_add(number, some_failure);
            EXPECT_EQ(add(it.path), some_failure) << it.path << ", add " << number;
            const Spoken said = spoken(run);
            EXPECT_EQ(said.by(builder), framed({}));
            EXPECT_TRUE(said.failures().empty());
        }
}

TEST_F(CfgPathTest, a_reserved_path_passes_the_refusal_of_a_malformed_instance_up)
{
    const Datatree source = source_with(VMF_OP_DELETE);
    for (const char *path : {"/bgp/instance", "/bgp/instance/instance-as/as"}) {
        std::optional<WrongChildren> wrong;
        probe::after_add_subtree = [&](const char *tag, Datatree *parent, Datatree **) {
            if (std::string_view(tag) != "instance-name") return;
            wrong.emplace(*parent);
            clear_bit6(*parent);
        };
        EXPECT_EQ(add(path, {.source = &source}), VMF_RC_BAD_TREE);
        EXPECT_EQ(spoken(run).failures(), Lines{"get_zr_cfg_bgp_instance: Invalid output datatree passed!"});
        EXPECT_FALSE(platform::has_operation(at("bgp/instance")));
        probe::after_add_subtree = nullptr;
    }
}

TEST_F(CfgPathTest, an_as_alone_makes_the_next_common_path_fail)
{
    know_as(0, 100);
    ASSERT_EQ(add("/bgp/instance/instance-as/as", {.value = "100"}), VMF_RC_OK);
    spoken(run);
    EXPECT_EQ(add(global_path), VMF_RC_BAD_TREE);
    EXPECT_EQ(spoken(run).by(builder), framed({"ERR Failed to process common path!"}));
    EXPECT_FALSE(asked_for_as());
    EXPECT_EQ(tree(), "bgp zr-cfg\n"
                      "  instance\n"
                      "    instance-name = default\n"
                      "    instance-as\n"
                      "      as = 0\n");
}

TEST_F(CfgPathTest, both_as_leaves_let_the_next_common_path_pass)
{
    ASSERT_EQ(add("/bgp/instance/instance-as/as", {.value = "100"}), VMF_RC_OK);
    ASSERT_EQ(add("/bgp/instance/instance-as/four-byte-as/as", {.value = "100"}), VMF_RC_OK);
    EXPECT_EQ(add(global_path), VMF_RC_OK);
    EXPECT_FALSE(asked_for_as());
}

// ---- A malformed instance -------------------------------------------------------------------

TEST_F(CfgPathTest, a_failing_add_of_the_instance_passes_its_outcome_up)
{
    for (size_t number = 1; number <= 3; number++) {
        operations.forget();
        operations.fail_add(number, some_failure);
        EXPECT_EQ(add(global_path), some_failure);
        EXPECT_EQ(operations.adds().size(), number);
        EXPECT_EQ(spoken(run).by(builder), framed({"ERR Failed to process common path!"}));
    }
    EXPECT_FALSE(asked_for_as());
}

struct WrongInstance {
    const char *name;
    void (*make)(Datatree &instance);

    friend void PrintTo(const WrongInstance &it, std::ostream *out) { *out << it.name; }
};
const WrongInstance wrong_instances[] = {
    {"bit_6_clear", [](Datatree &instance) { clear_bit6(instance); }},
    {"no_children", [](Datatree &instance) { set_children(instance, instance.subtrees, 0); }},
    {"null_array", [](Datatree &instance) { set_children(instance, nullptr, 1); }},
};

struct WrongInstanceTest : CfgPathTest, testing::WithParamInterface<WrongInstance> {};

TEST_P(WrongInstanceTest, is_an_invalid_output_tree)
{
    std::optional<WrongChildren> wrong;
    probe::after_add_subtree = [&](const char *tag, Datatree *parent, Datatree **) {
        if (std::string_view(tag) != "instance-name") return;
        wrong.emplace(*parent);
        GetParam().make(*parent);
    };
    EXPECT_EQ(add(global_path), VMF_RC_BAD_TREE);
    EXPECT_EQ(spoken(run).by(builder),
              framed({"ERR Invalid output datatree passed!", "ERR Failed to process common path!"}));
    EXPECT_EQ(operations.adds().size(), 3u);
    EXPECT_FALSE(asked_for_as());
}

INSTANTIATE_TEST_SUITE_P(With, WrongInstanceTest, testing::ValuesIn(wrong_instances),
                         [](const auto &tested) { return std::string(tested.param.name); });

// ---- A malformed instance-as ----------------------------------------------------------------

TEST_F(CfgPathTest, a_bad_child_before_instance_as_is_forgotten_when_instance_as_can_be_added)
{
    for (const Untagged way : untagged) {
        given_instance("    other\n"
                       "    instance-as\n");
        take_tag(platform::children_of(at("bgp/instance"))[1], way);
        run.ctx.as_low = 100;
        EXPECT_EQ(add(global_path), VMF_RC_OK);
        EXPECT_EQ(spoken(run).by(builder), framed({
                                               "ERR Invalid output datatree passed!",
                                               "TRC 'instance-as' not found so create it.",
                                               "TRC AS number is not set so get it from sysdb.",
                                               "TRC Now setting the obtained AS number",
                                               "TRC 'four-byte-as' not found so create it.",
                                           }));
        EXPECT_STREQ(platform::value_of(at("bgp/instance/instance-as/four-byte-as/as")), "100");
    }
}

TEST_F(CfgPathTest, a_bad_child_is_forgotten_for_the_outcome_of_a_failing_add_too)
{
    given_instance("    other\n");
    take_tag(at("bgp/instance/other"), Untagged::bit_is_clear);
    operations.fail_add(4, some_failure);
    EXPECT_EQ(add(global_path), some_failure);
    EXPECT_EQ(spoken(run).by(builder), framed({
                                           "ERR Invalid output datatree passed!",
                                           "TRC 'instance-as' not found so create it.",
                                           "ERR Failed to process common path!",
                                       }));
    EXPECT_FALSE(asked_for_as());
}

TEST_F(CfgPathTest, a_bad_child_behind_instance_as_is_not_met)
{
    given_instance("    instance-as\n"
                   "      as\n"
                   "      four-byte-as\n"
                   "    other\n");
    take_tag(at("bgp/instance/other"), Untagged::bit_is_clear);
    EXPECT_EQ(add(global_path), VMF_RC_OK);
    EXPECT_TRUE(spoken(run).failures().empty());
}

TEST_F(CfgPathTest, a_failing_add_of_instance_as_passes_its_outcome_up)
{
    operations.fail_add(4, some_failure);
    EXPECT_EQ(add(global_path), some_failure);
    EXPECT_EQ(spoken(run).by(builder),
              framed({"TRC 'instance-as' not found so create it.", "ERR Failed to process common path!"}));
    EXPECT_FALSE(asked_for_as());
    EXPECT_EQ(tree(), "bgp zr-cfg\n  instance\n    instance-name = default\n");
}

TEST_F(CfgPathTest, an_instance_as_that_says_it_has_children_and_has_none_is_an_invalid_output_tree)
{
    Datatree some = {};
    const struct {
        Datatree *array;
        int32_t count;
    } cases[] = {{nullptr, 0}, {&some, 0}, {nullptr, 2}};
    for (const auto &it : cases) {
        given_instance("    instance-as\n");
        WrongChildren wrong(at("bgp/instance/instance-as"));
        set_children(at("bgp/instance/instance-as"), it.array, it.count);
        EXPECT_EQ(add(global_path), VMF_RC_BAD_TREE);
        EXPECT_EQ(spoken(run).by(builder),
                  framed({"ERR Invalid output datatree passed!", "ERR Failed to process common path!"}));
    }
    EXPECT_FALSE(asked_for_as());
}

TEST_F(CfgPathTest, an_instance_as_with_bit_6_clear_has_neither_level)
{
    given_instance("    instance-as\n");
    run.ctx.as_low = 100;
    EXPECT_EQ(add(four_byte_as), VMF_RC_OK);
    EXPECT_STREQ(platform::value_of(at("bgp/instance/instance-as/as")), "0");
    EXPECT_STREQ(platform::value_of(at("bgp/instance/instance-as/four-byte-as/as")), "100");
}

TEST_F(CfgPathTest, a_bad_child_of_instance_as_fails_wherever_it_stands)
{
    for (const char *children :
         {"      bad\n      as\n      four-byte-as\n", "      as\n      bad\n      four-byte-as\n",
          "      as\n      four-byte-as\n      bad\n", "      bad\n"})
        for (const Untagged way : untagged) {
            given_instance(std::string("    instance-as\n") + children);
            take_tag(at("bgp/instance/instance-as/bad"), way);
            EXPECT_EQ(add(global_path), VMF_RC_BAD_TREE);
            EXPECT_EQ(spoken(run).by(builder),
                      framed({"ERR Invalid output datatree passed!", "ERR Failed to process common path!"}));
        }
    EXPECT_FALSE(asked_for_as());
}

TEST_F(CfgPathTest, a_later_four_byte_as_replaces_an_earlier_one)
{
    given_instance(
        "    instance-as\n      as\n      four-byte-as\n        as = 1\n      four-byte-as\n        as = 2\n");
    Datatree *global = nullptr;
    ASSERT_EQ(add(global_path, {.result = &global}), VMF_RC_OK);
    EXPECT_EQ(tree(), "bgp zr-cfg\n"
                      "  instance\n"
                      "    instance-name = default\n"
                      "    instance-as\n"
                      "      as\n"
                      "      four-byte-as\n"
                      "        as = 1\n"
                      "      four-byte-as\n"
                      "        as = 2\n"
                      "        default-vrf\n"
                      "          global\n");
}

TEST_F(CfgPathTest, as_without_four_byte_as_is_not_mended)
{
    given_instance("    instance-as\n      as = 0\n");
    know_as(0, 100);
    EXPECT_EQ(add(global_path), VMF_RC_BAD_TREE);
    EXPECT_EQ(spoken(run).by(builder), framed({"ERR Failed to process common path!"}));
    EXPECT_FALSE(asked_for_as());
    EXPECT_EQ(operations.adds().size(), 3u);
}

// ---- four-byte-as stands, as is missing -----------------------------------------------------

TEST_F(CfgPathTest, as_is_added_beside_a_four_byte_as)
{
    given_instance("    instance-as\n      four-byte-as\n");
    know_as(7, 100);
    EXPECT_EQ(add(global_path), VMF_RC_OK);
    EXPECT_EQ(tree(), "bgp zr-cfg\n"
                      "  instance\n"
                      "    instance-name = default\n"
                      "    instance-as\n"
                      "      four-byte-as\n"
                      "        as = 100\n"
                      "        default-vrf\n"
                      "          global\n"
                      "      as = 7\n");
    EXPECT_EQ(spoken(run).by(builder),
              framed({"TRC AS number is not set so get it from sysdb.", "TRC Now setting the obtained AS number"}));
    EXPECT_EQ(run.ctx.as_written, 1u);
}

TEST_F(CfgPathTest, the_four_byte_as_is_looked_up_again_when_its_array_has_moved)
{
    given_instance("    instance-as\n      four-byte-as\n");
    know_as(7, 100);
    void *old_array = nullptr;
    operations.before_add = [&](const platform::Operation &add) {
        if (std::string_view(add.path) != "as" || std::string_view(platform::tag_of(*add.parent)) != "instance-as")
            return;
        auto &parent = const_cast<Datatree &>(*add.parent);
        const size_t used = platform::children_of(parent).size();
        auto *moved = static_cast<Datatree *>(kos_named_calloc_(used + 1, sizeof(Datatree), "VMF MAP", 0));
        std::copy_n(parent.subtrees, used, moved);
        memset(static_cast<void *>(parent.subtrees), 0xDD, used * sizeof(Datatree));
        old_array = parent.subtrees;
        parent.subtrees = moved;
        parent.subtree_capacity = static_cast<uint32_t>(used + 1);
    };
    EXPECT_EQ(add(global_path), VMF_RC_OK);
    ASSERT_NE(old_array, nullptr);
    kos_named_free(old_array);
    EXPECT_STREQ(platform::value_of(at("bgp/instance/instance-as/four-byte-as/as")), "100");
    at("bgp/instance/instance-as/four-byte-as/default-vrf/global");
}

TEST_F(CfgPathTest, the_later_four_byte_as_is_the_one_that_is_looked_up_again)
{
    given_instance("    instance-as\n      four-byte-as\n        as = 1\n      four-byte-as\n");
    know_as(7, 100);
    ASSERT_EQ(add(four_byte_as), VMF_RC_OK);
    EXPECT_EQ(tree(), "bgp zr-cfg\n"
                      "  instance\n"
                      "    instance-name = default\n"
                      "    instance-as\n"
                      "      four-byte-as\n"
                      "        as = 1\n"
                      "      four-byte-as\n"
                      "        as = 100\n"
                      "      as = 7\n");
}

TEST_F(CfgPathTest, a_failing_query_adds_nothing_beside_a_four_byte_as_and_goes_on)
{
    given_instance("    instance-as\n      four-byte-as\n");
    EXPECT_EQ(add(global_path), VMF_RC_OK);
    EXPECT_EQ(tree(), "bgp zr-cfg\n"
                      "  instance\n"
                      "    instance-name = default\n"
                      "    instance-as\n"
                      "      four-byte-as\n"
                      "        default-vrf\n"
                      "          global\n");
    EXPECT_EQ(spoken(run).by(builder), framed({"TRC AS number is not set so get it from sysdb."}));
}

// ---- Adds that fail while the AS is written -------------------------------------------------

struct FailingAdd {
    const char *name;
    bool as_is_known;
    const char *instance_as;  // what stands below it
    size_t failing;           // of the adds of the AS levels
    size_t made;              // of them
    uint32_t outcome;

    friend void PrintTo(const FailingAdd &it, std::ostream *out) { *out << it.name; }
};
constexpr char nothing[] = "";
constexpr char level[] = "      four-byte-as\n";

const FailingAdd failing_adds[] = {
    {"as_with_a_number", true, nothing, 1, 1, VMF_RC_BAD_TREE},
    {"the_level_after_as_with_a_number", true, nothing, 2, 2, VMF_RC_BAD_TREE},
    {"the_second_as_with_a_number", true, nothing, 3, 3, VMF_RC_OK},
    {"as_with_a_number_beside_the_level", true, level, 1, 1, VMF_RC_OK},
    {"the_second_as_with_a_number_below_the_level", true, level, 2, 2, VMF_RC_OK},
    {"as_without_a_number", false, nothing, 1, 1, VMF_RC_BAD_TREE},
    {"the_level_after_as_without_a_number", false, nothing, 2, 2, VMF_RC_BAD_TREE},
    {"the_second_as_without_a_number", false, nothing, 3, 3, VMF_RC_OK},
};

struct FailingAddTest : CfgPathTest, testing::WithParamInterface<FailingAdd> {};

TEST_P(FailingAddTest, counts_only_if_no_level_stands_afterwards)
{
    const FailingAdd &it = GetParam();
    if (it.as_is_known) know_as(7, 100);
    given_instance(std::string("    instance-as\n      x\n") + it.instance_as);
    operations.fail_add(3 + it.failing, some_failure);
    EXPECT_EQ(add(global_path), it.outcome);

    const size_t last_add = it.outcome == VMF_RC_OK ? 1 : 0;
    EXPECT_EQ(operations.adds().size(), 3 + it.made + last_add);
    EXPECT_EQ(run.ctx.as_written, 0u);
    const Spoken said = spoken(run);
    EXPECT_EQ(said.failures(),
              it.outcome == VMF_RC_OK ? Lines{} : Lines{"vmf_map_zr_bgp_cfg_add_path: Failed to process common path!"});
    if (it.outcome == VMF_RC_OK) at("bgp/instance/instance-as/four-byte-as/default-vrf/global");
}

INSTANTIATE_TEST_SUITE_P(Of, FailingAddTest, testing::ValuesIn(failing_adds),
                         [](const auto &tested) { return std::string(tested.param.name); });

// ---- One node -------------------------------------------------------------------------------

TEST_F(CfgPathTest, one_node_is_one_add_of_a_child)
{
    const Datatree source = source_with(VMF_OP_CREATE);
    Datatree *result = nullptr;
    ASSERT_EQ(add_zr_cfg_bgp_one_node(&run.ctx, &run.out.root(), "bgp", "5", &source, &result), VMF_RC_OK);
    EXPECT_EQ(operations.adds(), Lines{"add_subtree out: bgp = 5 src"});
    EXPECT_EQ(result, &at("bgp"));
    EXPECT_EQ(tree(), "bgp zr-cfg [create] = 5\n");
    EXPECT_EQ(spoken(run).by("add_zr_cfg_bgp_one_node"), framed({"TRC Processing 'bgp'"}));
}

TEST_F(CfgPathTest, one_node_without_a_parent_or_tag_is_a_bad_argument)
{
    EXPECT_EQ(add_zr_cfg_bgp_one_node(&run.ctx, nullptr, "bgp", nullptr, nullptr, nullptr), VMF_RC_BAD_ARGS);
    EXPECT_EQ(spoken(run).by("add_zr_cfg_bgp_one_node"), refused("NULL argument(s) passed!"));
    EXPECT_EQ(add_zr_cfg_bgp_one_node(&run.ctx, &run.out.root(), nullptr, nullptr, nullptr, nullptr), VMF_RC_BAD_ARGS);
    EXPECT_EQ(spoken(run).by("add_zr_cfg_bgp_one_node"), refused("NULL argument(s) passed!"));
    EXPECT_TRUE(operations.adds().empty());
}

TEST_F(CfgPathTest, one_node_that_fails_passes_its_outcome_up)
{
    operations.fail_add(1, some_failure);
    EXPECT_EQ(add_zr_cfg_bgp_one_node(&run.ctx, &run.out.root(), "bgp", nullptr, nullptr, nullptr), some_failure);
    EXPECT_EQ(spoken(run).by("add_zr_cfg_bgp_one_node"), framed({"TRC Processing 'bgp'"}));
}

// ---- A path below a node --------------------------------------------------------------------

TEST_F(CfgPathTest, a_path_below_a_node_is_one_add_without_the_repeat_flag)
{
    const Datatree source = source_with(VMF_OP_CREATE);
    Datatree *result = nullptr;
    ASSERT_EQ(add_zr_cfg_bgp_path(&run.ctx, &run.out.root(), "a/b", "5", &source, &result), VMF_RC_OK);
    EXPECT_EQ(operations.adds(), Lines{"add_path out: a/b = 5 src"});
    EXPECT_EQ(result, &at("a/b"));
    EXPECT_EQ(spoken(run).by("add_zr_cfg_bgp_path"), framed({"TRC Processing 'a/b'"}));
}

TEST_F(CfgPathTest, a_path_below_a_node_cannot_start_or_end_with_a_slash)
{
    for (const std::string path : {"/a/b", "a/b/", "/"}) {
        EXPECT_EQ(add_zr_cfg_bgp_path(&run.ctx, &run.out.root(), path.c_str(), nullptr, nullptr, nullptr),
                  VMF_RC_BAD_ARGS);
        EXPECT_EQ(spoken(run).by("add_zr_cfg_bgp_path"),
                  refused(("The path '" + path + "' cannot start or end with '/'").c_str()));
    }
    EXPECT_TRUE(operations.adds().empty());
}

TEST_F(CfgPathTest, a_path_without_a_parent_or_text_is_a_bad_argument)
{
    EXPECT_EQ(add_zr_cfg_bgp_path(&run.ctx, nullptr, "a", nullptr, nullptr, nullptr), VMF_RC_BAD_ARGS);
    EXPECT_EQ(spoken(run).by("add_zr_cfg_bgp_path"), refused("NULL argument(s) passed!"));
    EXPECT_EQ(add_zr_cfg_bgp_path(&run.ctx, &run.out.root(), nullptr, nullptr, nullptr, nullptr), VMF_RC_BAD_ARGS);
    EXPECT_EQ(spoken(run).by("add_zr_cfg_bgp_path"), refused("NULL argument(s) passed!"));
}

TEST_F(CfgPathTest, an_empty_path_below_a_node_is_left_to_the_platform)
{
    add_zr_cfg_bgp_path(&run.ctx, &run.out.root(), "", nullptr, nullptr, nullptr);
    EXPECT_EQ(operations.adds(), Lines{"add_path out: "});
}

// ---- The instance ---------------------------------------------------------------------------

TEST_F(CfgPathTest, the_instance_is_built_once_and_found_again)
{
    Datatree *instance = nullptr;
    ASSERT_EQ(get_zr_cfg_bgp_instance(&run.ctx, &run.out.root(), &instance), VMF_RC_OK);
    EXPECT_EQ(instance, &at("bgp/instance"));
    ASSERT_EQ(get_zr_cfg_bgp_instance(&run.ctx, &run.out.root(), &instance), VMF_RC_OK);
    EXPECT_EQ(instance, &at("bgp/instance"));
    EXPECT_EQ(tree(), "bgp zr-cfg\n  instance\n    instance-name = default\n");
    const Lines said = spoken(run).by("get_zr_cfg_bgp_instance");
    EXPECT_EQ(said, (Lines{"TRC Start", "TRC End", "TRC Start", "TRC End"}));
}

TEST_F(CfgPathTest, the_instance_needs_an_address_for_the_result)
{
    EXPECT_EQ(get_zr_cfg_bgp_instance(&run.ctx, &run.out.root(), nullptr), VMF_RC_BAD_ARGS);
    EXPECT_EQ(spoken(run).whole(), (Lines{"get_zr_cfg_bgp_instance: TRC Start",
                                          "get_zr_cfg_bgp_instance: ERR NULL subtree pointer passed!"}));
    EXPECT_TRUE(operations.adds().empty());
}

TEST_F(CfgPathTest, the_instance_below_nothing_fails_as_its_first_node_does)
{
    Datatree *instance = nullptr;
    EXPECT_EQ(get_zr_cfg_bgp_instance(&run.ctx, nullptr, &instance), VMF_RC_BAD_ARGS);
    const Spoken said = spoken(run);
    EXPECT_EQ(said.failures(), Lines{"add_zr_cfg_bgp_one_node: NULL argument(s) passed!"});
    EXPECT_EQ(said.by("get_zr_cfg_bgp_instance"), framed({}));
}

TEST_F(CfgPathTest, a_failing_add_of_the_instance_is_returned_by_its_search)
{
    for (size_t number = 1; number <= 3; number++) {
        Datatree *instance = nullptr;
        operations.forget();
        operations.fail_add(number, some_failure);
        EXPECT_EQ(get_zr_cfg_bgp_instance(&run.ctx, &run.out.root(), &instance), some_failure);
        EXPECT_EQ(operations.adds().size(), number);
        EXPECT_EQ(instance, nullptr);
        EXPECT_EQ(spoken(run).by("get_zr_cfg_bgp_instance"), framed({}));
    }
}

TEST_F(CfgPathTest, an_instance_that_has_lost_its_children_is_an_invalid_output_tree)
{
    std::optional<WrongChildren> wrong;
    probe::after_add_subtree = [&](const char *tag, Datatree *parent, Datatree **) {
        if (std::string_view(tag) != "instance-name") return;
        wrong.emplace(*parent);
        clear_bit6(*parent);
    };
    Datatree *instance = nullptr;
    EXPECT_EQ(get_zr_cfg_bgp_instance(&run.ctx, &run.out.root(), &instance), VMF_RC_BAD_TREE);
    EXPECT_EQ(instance, nullptr);
    EXPECT_EQ(spoken(run).by("get_zr_cfg_bgp_instance"), framed({"ERR Invalid output datatree passed!"}));
}

}  // namespace
