// The golden set on a platform that moves an array of children at every add.
#include <gtest/gtest.h>

#include <algorithm>

#include "database_items.h"
#include "trees.h"

namespace {

using sweep::Exchange;
using sweep::Failing;
using sweep::Trees;

// How often an exchange is run with one of its operations failing, twice each time.
constexpr size_t most_points = 40;

class Moving {
public:
    explicit Moving(bool moves = true) { platform::move_arrays_at_every_add(moves); }
    ~Moving() { platform::move_arrays_at_every_add(false); }
    Moving(const Moving &) = delete;
    Moving &operator=(const Moving &) = delete;
};

// Lets the last of the adds to a path fail.
struct FailingAtPath {
    std::string path;
    size_t number;
    size_t count = 0;

    static uint32_t before(void *self, const platform::Operation &operation)
    {
        auto &failing = *static_cast<FailingAtPath *>(self);
        const bool is_at_path = operation.path != nullptr && std::string_view(operation.path).ends_with(failing.path);
        return is_at_path && ++failing.count == failing.number ? sweep::injected : 0;
    }
};

// Outcomes and trees, as a text.
template<class Failing>
std::string run(const Exchange &exchange, const Trees &trees, Failing &failing)
{
    platform::Log log;
    sweep::Run run(exchange, log);
    run.go(trees, failing);
    return run.result();
}

}  // namespace

TEST(MovingArrays, MoveAtEveryAdd)
{
    const Moving moving;
    platform::Tree tree;
    for (const char *tag : {"a", "b", "c", "d"}) {
        const Datatree *before = tree.root().subtrees;
        platform::append_child(tree.root(), tag, nullptr);
        EXPECT_NE(tree.root().subtrees, before) << tag;
    }
    EXPECT_EQ(sweep::text_of(tree), "a\nb\nc\nd\n");
}

TEST(MovingArrays, GiveTheSameTrees)
{
    for (const Exchange &exchange : sweep::golden_set()) {
        const Trees trees(exchange);
        Failing never = {0};
        const std::string expected = run(exchange, trees, never);
        const Moving moving;
        EXPECT_EQ(run(exchange, trees, never), expected) << exchange.name;
    }
}

TEST(MovingArrays, GiveTheSameTreesWhateverFails)
{
    for (const Exchange &exchange : sweep::golden_set()) {
        const Trees trees(exchange);
        Failing never = {0};
        run(exchange, trees, never);
        const size_t step = std::max<size_t>(1, never.count / most_points);
        const size_t first = 1 + static_cast<size_t>(&exchange - sweep::golden_set().data()) % step;
        for (size_t number = first; number <= never.count; number += step) {
            Failing once = {number};
            const std::string expected = run(exchange, trees, once);
            once = {number};
            const Moving moving;
            EXPECT_EQ(run(exchange, trees, once), expected) << exchange.name << ", operation " << number;
        }
    }
}

// That one has moved by then: the families of `ibgp` came beside it.
TEST(MovingArrays, AnEntryThatFailsIsMappedIntoTheOneBefore)
{
    const Exchange exchange = {.name = "two families",
                               .kind = VMF_REQ_EDIT,
                               .request = "bgp oc-bgp\n"
                                          "  global\n"
                                          "    afi-safis\n"
                                          "      afi-safi\n"
                                          "        afi-safi-name = bgp-types:L3VPN_IPV4_UNICAST\n"
                                          "    use-multiple-paths\n"
                                          "      ibgp [delete]\n"
                                          "    afi-safis\n"
                                          "      afi-safi\n"
                                          "        afi-safi-name = bgp-types:L3VPN_IPV6_UNICAST\n",
                               .records = {framework::global_as_item(0, 65001)}};
    std::string expected = "global-afs\n"
                           "              global-af\n"
                           "                af-name = vp-nv6-unicast\n";
    for (const std::string family : {"ipv4-unicast", "ipv6-unicast", "ipv4-multicast", "ipv6-multicast"})
        expected += "              global-af\n"
                    "                af-name = " +
                    family + "\n                ibgp [remove]\n";
    const Trees trees(exchange);
    for (const bool moves : {false, true}) {
        const Moving moving(moves);
        constexpr size_t second_family = 6;  // of the request, behind the first and the four of `ibgp`
        FailingAtPath failing = {"global-afs/global-af", second_family};
        const std::string native = run(exchange, trees, failing);
        EXPECT_EQ(failing.count, second_family);
        EXPECT_EQ(native.substr(native.find("global-afs")), expected);
    }
}
