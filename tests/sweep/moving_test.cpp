// The golden set on a platform that moves an array of children at every add.
#include <gtest/gtest.h>

#include <algorithm>

#include "observer.h"
#include "request.h"
#include "trees.h"

namespace {

using sweep::Exchange;
using sweep::Trees;

class Moving {
public:
    Moving() { platform::move_arrays_at_every_add(true); }
    ~Moving() { platform::move_arrays_at_every_add(false); }
    Moving(const Moving &) = delete;
    Moving &operator=(const Moving &) = delete;
};

// Lets the operation of this number fail.
struct Failing {
    size_t number;
    size_t count = 0;

    static uint32_t before(void *self, const platform::Operation & /*operation*/)
    {
        auto &failing = *static_cast<Failing *>(self);
        return ++failing.count == failing.number ? 0x77 : 0;
    }
};

// Outcomes and trees, as a text.
std::string run(const Exchange &exchange, const Trees &trees, Failing &failing)
{
    platform::SystemDatabase database;
    for (const platform::DatabaseRecord &record : exchange.records) database.put(record);
    platform::Log log;
    framework::Request request(exchange.kind, database, log);
    request.context().response_pending = exchange.response_pending;
    platform::Tree tree = sweep::copy_of(trees.request), response = sweep::copy_of(trees.response), native, answer;
    const platform::Observer observer = {Failing::before, &failing};
    platform::observe(&observer);
    const uint32_t there = request.map(platform::children_of(tree.root()).front(), native.root());
    const bool comes_back = there == VMF_RC_OK && !exchange.response.empty();
    const uint32_t back = comes_back ? request.answer(std::move(response), answer) : 0;
    platform::observe(nullptr);
    return std::to_string(there) + " " + std::to_string(back) + "\n" + sweep::text_of(native) + sweep::text_of(answer);
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
        const size_t step = std::max<size_t>(1, never.count / 4);
        for (size_t number = 1; number <= never.count; number += step) {
            Failing once = {number};
            const std::string expected = run(exchange, trees, once);
            once = {number};
            const Moving moving;
            EXPECT_EQ(run(exchange, trees, once), expected) << exchange.name << ", operation " << number;
        }
    }
}
