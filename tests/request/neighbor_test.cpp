// What a case cannot say of a neighbor's nodes: an operation whose presence bit is clear, and that no default raises a
// word.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include "mapping_run.h"
#include "nodes.h"
#include "tree.h"
#include "tree_text.h"
#include "vmf_map_oc_bgp.h"
#include "vmf_map_oc_bgp_handlers.h"
#include "words.h"

namespace {

// A neighbor whose config carries an operation that no presence bit vouches for.
struct ConfigRun : support::MappingRun {
    explicit ConfigRun(uint32_t operation)
        : MappingRun(VMF_REQ_EDIT), entry(io::read_tree("neighbor zr-cfg\n")), request(io::read_tree("config oc-bgp\n"))
    {
        ctx.list_node = &platform::children_of(entry.root())[0];
        node().operation = operation;
    }

    Datatree &node() { return platform::children_of(request.root())[0]; }
    uint32_t map() { return vmf_map_cont_oc_bgp_neighbors_neighbor_config(&ctx, &node(), 0, &out.root()); }
    std::string native() const { return io::write_tree(entry.root(), io::Secrets::shown); }

    platform::Tree entry;
    platform::Tree request;
};

}  // namespace

TEST(NeighborConfig, ARemovalCountsWithoutItsPresenceBit)
{
    for (const uint32_t operation : {VMF_OP_DELETE, VMF_OP_REMOVE}) {
        ConfigRun run(operation);
        EXPECT_EQ(run.map(), 0u);
        EXPECT_EQ(run.native(),
                  operation == VMF_OP_DELETE ? "neighbor zr-cfg [delete]\n" : "neighbor zr-cfg [remove]\n");
        EXPECT_FALSE(platform::has_operation(run.node()));
    }
}

TEST(NeighborConfig, AReplaceCountsWithoutItsPresenceBit)
{
    ConfigRun run(VMF_OP_REPLACE);
    EXPECT_EQ(run.map(), 0u);
    EXPECT_EQ(run.native(), "neighbor zr-cfg\n"
                            "  remote-as [remove]\n"
                            "  local-as [remove]\n"
                            "  password [remove]\n"
                            "  description [remove]\n"
                            "  neighbor-group-add-member [remove]\n");
    EXPECT_TRUE(platform::has_operation(run.node()));
    EXPECT_EQ(run.node().operation, uint32_t{VMF_OP_REMOVE});
}

TEST(NeighborConfig, AMergeOrACreationMarksNothing)
{
    for (const uint32_t operation : {VMF_OP_MERGE, VMF_OP_CREATE}) {
        ConfigRun run(operation);
        EXPECT_EQ(run.map(), 0u);
        EXPECT_EQ(run.native(), "neighbor zr-cfg\n");
    }
}

TEST(NeighborDefaults, RaiseNoWordInAnyKindOfRequest)
{
    using Leaf = VmfLeafHandler;
    using Container = VmfContainerHandler;
    size_t called = 0;
    for (const model::OcNode &node : model::openconfig_bgp()) {
        if (!node.path.starts_with("/bgp/neighbors") || node.handler.empty()) continue;
        if (node.path.starts_with("/bgp/neighbors/neighbor/afi-safis")) continue;
        const std::string symbol = "__" + std::string(node.handler);
        void *function = dlsym(RTLD_DEFAULT, symbol.c_str());
        ASSERT_NE(function, nullptr) << symbol;
        for (const uint32_t kind : std::initializer_list<uint32_t>{VMF_REQ_GET_CONFIG, VMF_REQ_EDIT, VMF_REQ_GET, 7}) {
            support::MappingRun run(kind);
            run.ctx.as_written = 1;  // the builder's, not the default's
            platform::Tree entries = io::read_tree("neighbor");
            run.ctx.list_node = run.ctx.af_node = run.ctx.oper_list_node = run.ctx.oper_af_node =
                &platform::children_of(entries.root())[0];
            platform::Tree request = io::read_tree("node oc-bgp = 7\n");
            Datatree *at = &platform::children_of(request.root())[0];
            const auto before = support::words_of(run.contexts.request, run.ctx);
            if (node.kind == model::Kind::container)
                reinterpret_cast<Container *>(function)(&run.ctx, at, 0, &run.out.root());
            else
                reinterpret_cast<Leaf *>(function)(&run.ctx, at, &run.out.root());
            EXPECT_EQ(support::words_of(run.contexts.request, run.ctx), before) << symbol << " in kind " << kind;
            called++;
        }
    }
    EXPECT_EQ(called, 4u * 72);
}
