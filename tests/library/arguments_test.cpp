// A node or an output that is null is refused by every function of the tree, before it does anything.
#include "library_test.h"
#include "probe.h"

using namespace library_test;

namespace {

void expect_refusals(const std::function<Lines(const Node &)> &symbols_of)
{
    Datatree some = {};
    MappingRun run(VMF_REQ_EDIT);
    const RequestContext before = run.contexts.request;
    for (const Node &node : nodes())
        for (const std::string &symbol : symbols_of(node))
            for (const bool null_node : {true, false}) {
                SCOPED_TRACE(symbol + (null_node ? ", null node" : ", null output"));
                EXPECT_EQ(call(node, symbol, &run.ctx, null_node ? nullptr : &some, null_node ? &some : nullptr),
                          VMF_RC_BAD_ARGS);
                const std::string name = name_in_lines(node, symbol);
                EXPECT_EQ(spoken(run).whole(), (Lines{name + ": TRC Start", name + ": ERR Invalid arguments passed!"}));
            }
    EXPECT_EQ(memcmp(&before, &run.contexts.request, sizeof before), 0);
}

TEST(NullArguments, are_refused_by_every_walker)
{
    expect_refusals([](const Node &node) { return Lines{node.walker}; });
}

TEST(NullArguments, are_refused_by_every_public_handler)
{
    expect_refusals([](const Node &node) { return node.handler.empty() ? Lines() : Lines{node.handler}; });
}

TEST(NullArguments, are_refused_by_every_default)
{
    expect_refusals([](const Node &node) { return node.fallback.empty() ? Lines() : Lines{node.fallback}; });
}

TEST(NullArguments, are_refused_by_every_body_written_by_hand)
{
    expect_refusals([](const Node &node) { return node.man.empty() ? Lines() : Lines{node.man}; });
}

TEST(NullArguments, the_list_of_nodes_is_the_whole_tree)
{
    const auto count = [](const auto &holds) { return std::count_if(nodes().begin(), nodes().end(), holds); };
    EXPECT_EQ(count([](const Node &node) { return node.kind == "container"; }), 182);
    EXPECT_EQ(count([](const Node &node) { return node.kind == "list"; }), 5);
    EXPECT_EQ(count([](const Node &node) { return node.is_leaf(); }), 244);
    EXPECT_EQ(count([](const Node &node) { return !node.fallback.empty(); }), 426);
}

}  // namespace
