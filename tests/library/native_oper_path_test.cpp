// The builder of native operational paths, and the dispatch by namespace.
#include "library_test.h"
#include "probe.h"

using namespace library_test;

namespace {

constexpr char builder[] = "vmf_map_zr_bgp_opr_add_path";
constexpr char dispatch[] = "vmf_map_datatree_add_bgp_path";
constexpr char neighbors_path[] = "/bgp/instances/instance/instance-active/default-vrf/neighbors";
constexpr char oper_ns[] = " ns=http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-oper";

struct OperPathTest : testing::Test {
    OperPathTest() { probe::heard() = {}; }
    ~OperPathTest() override { probe::after_add_subtree = nullptr; }

    uint32_t add(const char *path, const char *value = nullptr, const Datatree *source = nullptr,
                 Datatree **result = nullptr, uint32_t repeat = 0)
    {
        return vmf_map_zr_bgp_opr_add_path(&run.ctx, &run.out.root(), path, ZR_BGP_OPER_NS, value, source, result,
                                           repeat);
    }
    std::string tree() { return text_of(run.out); }

    MappingRun run{VMF_REQ_GET};
    Operations operations;
};

// ---- The builder ----------------------------------------------------------------------------

TEST_F(OperPathTest, an_empty_tree_gets_the_instance_and_the_platform_the_rest)
{
    const char path[] =
        "/bgp/instances/instance/instance-active/default-vrf/neighbors/neighbor[neighbor-address]/hold-time";
    EXPECT_EQ(add(path, "10.0.0.1", nullptr, nullptr, 1), VMF_RC_OK);
    EXPECT_EQ(
        operations.adds(),
        (Lines{
            std::string("add_subtree out: bgp") + oper_ns,
            std::string("add_subtree bgp: instances") + oper_ns,
            std::string("add_subtree instances: instance") + oper_ns,
            std::string("add_subtree instance: instance-name") + oper_ns + " = default",
            "add_path_common instance: instance-active/default-vrf/neighbors/neighbor[neighbor-address]/hold-time" +
                std::string(oper_ns) + " = 10.0.0.1 repeat",
        }));
    EXPECT_EQ(tree(), "bgp zr-oper\n"
                      "  instances\n"
                      "    instance\n"
                      "      instance-name = default\n"
                      "      instance-active\n"
                      "        default-vrf\n"
                      "          neighbors\n"
                      "            neighbor\n"
                      "              neighbor-address = 10.0.0.1\n"
                      "              hold-time\n");
    EXPECT_TRUE(probe::heard().backend.empty());
    EXPECT_EQ(spoken(run).by(builder), framed({}));
}

TEST_F(OperPathTest, the_levels_are_found_again)
{
    Datatree *first = nullptr;
    Datatree *again = nullptr;
    ASSERT_EQ(add(neighbors_path, nullptr, nullptr, &first), VMF_RC_OK);
    ASSERT_EQ(add(neighbors_path, nullptr, nullptr, &again), VMF_RC_OK);
    EXPECT_EQ(first, again);
    EXPECT_EQ(first, &node_at(run.out, "bgp/instances/instance/instance-active/default-vrf/neighbors"));
}

TEST_F(OperPathTest, configuration_in_the_output_gets_a_second_bgp_beside_it)
{
    run.out = io::read_tree("bgp zr-cfg\n  instance\n");
    ASSERT_EQ(add(neighbors_path), VMF_RC_OK);
    EXPECT_TRUE(tree().starts_with("bgp zr-cfg\n  instance\nbgp zr-oper\n  instances\n"));
}

TEST_F(OperPathTest, the_rest_goes_on_with_all_arguments_as_given)
{
    const Datatree source = source_with(VMF_OP_CREATE);
    const std::string path = std::string(neighbors_path) + "/item";
    ASSERT_EQ(
        vmf_map_zr_bgp_opr_add_path(&run.ctx, &run.out.root(), path.c_str(), "urn:other", "5", &source, nullptr, 1),
        VMF_RC_OK);
    EXPECT_EQ(operations.adds().back(),
              "add_path_common instance: instance-active/default-vrf/neighbors/item ns=urn:other = 5 src repeat");
    EXPECT_EQ(operations.last_add().operation_source, &source);
}

TEST_F(OperPathTest, no_level_takes_an_operation)
{
    const Datatree source = source_with(VMF_OP_DELETE);
    ASSERT_EQ(add("/bgp/instances/instance/instance-active", nullptr, &source), VMF_RC_OK);
    EXPECT_EQ(tree(), "bgp zr-oper\n"
                      "  instances\n"
                      "    instance\n"
                      "      instance-name = default\n"
                      "      instance-active [delete]\n");
}

TEST_F(OperPathTest, a_null_tree_path_or_namespace_is_a_bad_argument)
{
    Datatree *const out = &run.out.root();
    const struct {
        Datatree *tree;
        const char *path, *ns;
    } cases[] = {
        {nullptr, neighbors_path, ZR_BGP_OPER_NS}, {out, nullptr, ZR_BGP_OPER_NS}, {out, neighbors_path, nullptr}};
    for (const auto &it : cases) {
        EXPECT_EQ(vmf_map_zr_bgp_opr_add_path(&run.ctx, it.tree, it.path, it.ns, nullptr, nullptr, nullptr, 0),
                  VMF_RC_BAD_ARGS);
        EXPECT_EQ(spoken(run).by(builder), refused("NULL argument(s) passed!"));
        EXPECT_EQ(vmf_map_datatree_add_bgp_path(&run.ctx, it.tree, it.path, it.ns, nullptr, nullptr, nullptr, 0),
                  VMF_RC_BAD_ARGS);
        EXPECT_EQ(spoken(run).whole(), (Lines{std::string(dispatch) + ": TRC Start",
                                              std::string(dispatch) + ": ERR NULL argument(s) passed!"}));
    }
    EXPECT_TRUE(operations.adds().empty());
}

TEST_F(OperPathTest, an_absolute_path_elsewhere_is_refused)
{
    for (const std::string path :
         {"/", "/bgp/instances", "/bgp/instances/instanc", "/bgp/instance/instance-as/four-byte-as",
          "/bgp/instance/instance-as/four-byte-as/default-vrf"}) {
        EXPECT_EQ(add(path.c_str()), VMF_RC_BAD_ARGS);
        EXPECT_EQ(spoken(run).by(builder), framed({"ERR The passed path is not BGP OPER common path! (" + path + ")"}));
    }
    EXPECT_TRUE(operations.adds().empty());
}

TEST_F(OperPathTest, a_relative_path_goes_to_the_platform_as_it_is)
{
    const Datatree source = source_with(VMF_OP_CREATE);
    Datatree *result = nullptr;
    ASSERT_EQ(add("connection-state", "x", &source, &result, 1), VMF_RC_OK);
    EXPECT_EQ(operations.adds(),
              Lines{std::string("add_path_common out: connection-state") + oper_ns + " = x src repeat"});
    EXPECT_EQ(result, &node_at(run.out, "connection-state"));
    EXPECT_EQ(spoken(run).by(builder), framed({"TRC Setting a relative path 'connection-state' with 'x'"}));

    ASSERT_EQ(add("connection-state"), VMF_RC_OK);
    EXPECT_EQ(spoken(run).by(builder), framed({"TRC Setting a relative path 'connection-state' with '(null)'"}));
}

TEST_F(OperPathTest, a_failing_level_passes_its_outcome_up)
{
    for (size_t number = 1; number <= 4; number++) {
        operations.forget();
        operations.fail_add(number, some_failure);
        EXPECT_EQ(add(neighbors_path), some_failure);
        EXPECT_EQ(operations.adds().size(), number);
        EXPECT_EQ(spoken(run).by(builder), framed({"ERR Failed to process common path!"}));
    }
}

TEST_F(OperPathTest, a_failing_last_add_passes_its_outcome_up_without_a_word)
{
    operations.fail_add(5, some_failure);
    EXPECT_EQ(add(neighbors_path), some_failure);
    EXPECT_EQ(spoken(run).by(builder), framed({}));
}

TEST_F(OperPathTest, an_instance_that_has_lost_its_children_is_an_invalid_output_tree)
{
    std::optional<WrongChildren> wrong;
    probe::after_add_subtree = [&](const char *tag, Datatree *parent, Datatree **) {
        if (std::string_view(tag) != "instance-name") return;
        wrong.emplace(*parent);
        clear_bit6(*parent);
    };
    EXPECT_EQ(add(neighbors_path), VMF_RC_BAD_TREE);
    EXPECT_EQ(spoken(run).by(builder),
              framed({"ERR Invalid output datatree passed!", "ERR Failed to process common path!"}));
    EXPECT_EQ(operations.adds().size(), 4u);
}

TEST_F(OperPathTest, any_character_may_stand_behind_the_common_beginning_and_is_lost)
{
    ASSERT_EQ(add("/bgp/instances/instanceXinstance-active"), VMF_RC_OK);
    EXPECT_EQ(operations.adds().back(), std::string("add_path_common instance: instance-active") + oper_ns);
}

TEST_F(OperPathTest, the_instance_alone_has_an_empty_rest)
{
    // In a block of its own, in which a read beyond the text would be seen.
    const std::vector<char> path = [] {
        constexpr std::string_view text = "/bgp/instances/instance";
        std::vector<char> exact(text.begin(), text.end());
        exact.push_back('\0');
        exact.shrink_to_fit();
        return exact;
    }();
    add(path.data());
    EXPECT_EQ(operations.adds().back(), std::string("add_path_common instance: ") + oper_ns);
}

TEST_F(OperPathTest, one_node_is_one_add_of_a_child)
{
    const Datatree source = source_with(VMF_OP_CREATE);
    Datatree *result = nullptr;
    ASSERT_EQ(add_zr_opr_bgp_one_node(&run.ctx, &run.out.root(), "bgp", "5", &source, &result), VMF_RC_OK);
    EXPECT_EQ(operations.adds(), Lines{std::string("add_subtree out: bgp") + oper_ns + " = 5 src"});
    EXPECT_EQ(result, &node_at(run.out, "bgp"));
    EXPECT_EQ(spoken(run).by("add_zr_opr_bgp_one_node"), framed({"TRC Processing 'bgp'"}));

    for (const char *tag : {"bgp", static_cast<const char *>(nullptr)}) {
        Datatree *parent = tag != nullptr ? nullptr : &run.out.root();
        EXPECT_EQ(add_zr_opr_bgp_one_node(&run.ctx, parent, tag, nullptr, nullptr, nullptr), VMF_RC_BAD_ARGS);
        EXPECT_EQ(spoken(run).by("add_zr_opr_bgp_one_node"), refused("NULL argument(s) passed!"));
    }
}

// ---- The dispatch ---------------------------------------------------------------------------

struct Way {
    const char *name, *ns, *path;
    std::string_view through;  // the builder, if there is one
    const char *last_add;

    friend void PrintTo(const Way &it, std::ostream *out) { *out << it.name; }
};

const Way ways[] = {
    {"configuration", ZR_BGP_CFG_NS, "/bgp/instance/instance-as/four-byte-as/x", "vmf_map_zr_bgp_cfg_add_path",
     "add_path_common four-byte-as: x = 5 src repeat"},
    {"configuration_relative", ZR_BGP_CFG_NS, "x", "vmf_map_zr_bgp_cfg_add_path",
     "add_path_common out: x = 5 src repeat"},
    {"operational", ZR_BGP_OPER_NS, "/bgp/instances/instance/x", builder,
     "add_path_common instance: x ns=http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-oper = 5 src repeat"},
    {"openconfig", OC_BGP_NS, "/bgp/neighbors", "",
     "add_path_common out: /bgp/neighbors ns=http://openconfig.net/yang/bgp = 5 src repeat"},
    {"any_other", "urn:other", "a/b", "", "add_path_common out: a/b ns=urn:other = 5 src repeat"},
};

struct DispatchTest : testing::TestWithParam<Way> {
    uint32_t add()
    {
        // A copy: a namespace is known by its text, not by its place.
        const std::string ns = GetParam().ns;
        return vmf_map_datatree_add_bgp_path(&run.ctx, &run.out.root(), GetParam().path, ns.c_str(), "5", &source,
                                             &result, 1);
    }

    MappingRun run{VMF_REQ_EDIT};
    Operations operations;
    const Datatree source = source_with(VMF_OP_CREATE);
    Datatree *result = nullptr;
};

TEST_P(DispatchTest, goes_by_the_namespace_with_all_arguments_as_given)
{
    ASSERT_EQ(add(), VMF_RC_OK);
    EXPECT_EQ(operations.adds().back(), GetParam().last_add);
    ASSERT_NE(result, nullptr);
    EXPECT_STREQ(platform::value_of(*result), "5");
    const Spoken said = spoken(run);
    EXPECT_EQ(said.by(dispatch), framed({}));
    for (const char *name : {"vmf_map_zr_bgp_cfg_add_path", builder})
        EXPECT_EQ(!said.by(name).empty(), GetParam().through == name) << name;
    if (GetParam().through.empty()) {
        EXPECT_EQ(operations.adds().size(), 1u);
    }
}

TEST_P(DispatchTest, passes_a_failure_up)
{
    operations.fail("vmf_map_datatree_add_path_common", some_failure);
    EXPECT_EQ(add(), some_failure);
    const Spoken said = spoken(run);
    EXPECT_EQ(said.by(dispatch), framed({}));
    EXPECT_TRUE(said.failures().empty());
}

INSTANTIATE_TEST_SUITE_P(Of, DispatchTest, testing::ValuesIn(ways),
                         [](const auto &tested) { return std::string(tested.param.name); });

TEST_F(OperPathTest, a_configuration_path_in_the_operational_namespace_is_refused)
{
    EXPECT_EQ(vmf_map_datatree_add_bgp_path(&run.ctx, &run.out.root(), "/bgp/instance/instance-as/four-byte-as",
                                            ZR_BGP_OPER_NS, nullptr, nullptr, nullptr, 0),
              VMF_RC_BAD_ARGS);
    EXPECT_TRUE(operations.adds().empty());
}

}  // namespace
