// The mapping over tree operations that do nothing asks for all that it asks for over those that build.
#include <gtest/gtest.h>

#include "nothing.h"
#include "peer.h"

namespace {

size_t operations(bench::Way way, size_t neighbors)
{
    const size_t before = bench::tree_operations();
    bench::peers().front().make(way, neighbors)->work();
    return bench::tree_operations() - before;
}

}  // namespace

// The same numbers as in peers_test.cpp.
TEST(Mapping, AloneMakesTheTreeOperationsOfANeighborOnTheWayThere)
{
    EXPECT_EQ(operations(bench::Way::forward, 21) - operations(bench::Way::forward, 20), 46u);
}

TEST(Mapping, AloneMakesTheTreeOperationsOfANeighborOnTheWayBack)
{
    EXPECT_EQ(operations(bench::Way::back, 21) - operations(bench::Way::back, 20), 72u);
}

TEST(Mapping, AloneBuildsNothing)
{
    for (const bench::Way way : {bench::Way::forward, bench::Way::back}) {
        const auto peer = bench::peers().front().make(way, 20);
        peer->work();
        EXPECT_EQ(peer->text(), "");
    }
}
