// Who is measured against whom does the same work.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <sstream>
#include <string>
#include <vector>

#include "observer.h"
#include "peer.h"

namespace {

using bench::Way;

constexpr size_t neighbors = 20;

std::vector<std::string> sorted_lines(const std::string &text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    std::sort(lines.begin(), lines.end());
    return lines;
}

std::unique_ptr<bench::Peer> worked(const bench::PeerKind &kind, Way way)
{
    std::unique_ptr<bench::Peer> peer = kind.make(way, neighbors);
    peer->work();
    return peer;
}

const bench::PeerKind &ours() { return bench::peers().front(); }

// How often the library asks for an addition to a tree.
size_t operations(Way way, size_t count)
{
    size_t asked = 0;
    const platform::Observer observer = {[](void *self, const platform::Operation &operation) {
                                             const std::string name = operation.name;
                                             if (name.starts_with("vmf_map_datatree_add_"))
                                                 ++*static_cast<size_t *>(self);
                                             return uint32_t{0};
                                         },
                                         &asked};
    const std::unique_ptr<bench::Peer> peer = ours().make(way, count);
    platform::observe(&observer);
    peer->work();
    platform::observe(nullptr);
    return asked;
}

class Peers : public testing::TestWithParam<bench::PeerKind> {
protected:
    void expect_same_tree(Way way) const
    {
        const auto expected = worked(ours(), way);
        const auto peer = worked(GetParam(), way);
        EXPECT_EQ(peer->nodes_in() / neighbors, expected->nodes_in() / neighbors);
        EXPECT_EQ(peer->nodes_out() / neighbors, expected->nodes_out() / neighbors);
        // libyang puts the children of a node in the order of the schema.
        if (std::strcmp(GetParam().name, "libyang") == 0)
            EXPECT_EQ(sorted_lines(peer->text()), sorted_lines(expected->text()));
        else
            EXPECT_EQ(peer->text(), expected->text());
    }
};

std::string name_of(const testing::TestParamInfo<bench::PeerKind> &peer)
{
    std::string name = peer.param.name;
    std::erase(name, '-');
    return name;
}

}  // namespace

TEST_P(Peers, BuildTheNativeTreeThatTheLibraryBuilds) { expect_same_tree(Way::forward); }

TEST_P(Peers, BuildTheOpenConfigTreeThatTheLibraryBuilds) { expect_same_tree(Way::back); }

INSTANTIATE_TEST_SUITE_P(All, Peers, testing::ValuesIn(bench::peers().begin() + 1, bench::peers().end()), name_of);

TEST(Work, IsThatOfFiftyFourNodesInAndFiftyTwoOutForANeighbor)
{
    const auto peer = worked(ours(), Way::forward);
    EXPECT_EQ(peer->nodes_in() / neighbors, 54u);
    EXPECT_EQ(peer->nodes_out() / neighbors, 52u);
}

TEST(Work, IsThatOfFiftyOneNodesInAndNinetySevenOutOnTheWayBack)
{
    const auto peer = worked(ours(), Way::back);
    EXPECT_EQ(peer->nodes_in() / neighbors, 51u);
    EXPECT_EQ(peer->nodes_out() / neighbors, 97u);
}

TEST(Work, TakesTheLibraryFortySixTreeOperationsANeighbor)
{
    EXPECT_EQ(operations(Way::forward, 21) - operations(Way::forward, 20), 46u);
}

TEST(Work, TakesTheLibrarySeventyTwoTreeOperationsANeighborOnTheWayBack)
{
    EXPECT_EQ(operations(Way::back, 21) - operations(Way::back, 20), 72u);
}
