// Eight threads on eight requests, each with contexts of its own; one log, one trace buffer, one system database. Meant
// for the thread sanitizer.
#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "request.h"
#include "trees.h"

namespace {

using sweep::Exchange;
using sweep::Trees;

constexpr size_t thread_count = 8;
constexpr size_t every = 3;  // of the golden set

struct Shared {
    platform::SystemDatabase database;
    platform::TraceBuffer trace{1000};
    platform::Log log;
    std::atomic<size_t> lines = 0;

    Shared()
    {
        // What a filter keeps in a statement's site word is shared by all threads that come by the statement.
        const auto write = [this](std::string_view /*line*/, uint32_t *site) {
            std::atomic_ref<uint32_t>(*site).fetch_add(1, std::memory_order_relaxed);
            lines++;
        };
        log.err = log.dbg = log.trc = {.enabled = true, .write = write};
        log.trace = &trace;
        for (const platform::DatabaseRecord &record : sweep::golden_set().front().records) database.put(record);
    }
};

// Outcomes and trees, as a text.
std::string run(const Exchange &exchange, const Trees &trees, Shared &shared)
{
    framework::Request request(exchange.kind, shared.database, shared.log);
    request.context().response_pending = exchange.response_pending;
    platform::Tree tree = sweep::copy_of(trees.request), response = sweep::copy_of(trees.response), native, answer;
    const uint32_t there = request.map(platform::children_of(tree.root()).front(), native.root());
    const bool comes_back = there == VMF_RC_OK && !exchange.response.empty();
    const uint32_t back = comes_back ? request.answer(std::move(response), answer) : 0;
    return std::to_string(there) + " " + std::to_string(back) + "\n" + sweep::text_of(native) + sweep::text_of(answer);
}

}  // namespace

TEST(Threads, OfOneProcessMapWithoutHeedToEachOther)
{
    Shared shared;
    std::vector<const Exchange *> exchanges;
    std::vector<Trees> trees;
    std::vector<std::string> alone;
    for (size_t i = 0; i < sweep::golden_set().size(); i += every) {
        exchanges.push_back(&sweep::golden_set()[i]);
        trees.emplace_back(*exchanges.back());
        alone.push_back(run(*exchanges.back(), trees.back(), shared));
    }
    const size_t lines_alone = shared.lines;

    std::vector<size_t> differ(thread_count, 0);
    std::atomic<size_t> waiting = thread_count;
    std::vector<std::thread> threads;
    for (size_t number = 0; number < thread_count; number++) {
        threads.emplace_back([&, number] {
            waiting--;
            while (waiting != 0) std::this_thread::yield();  // all begin together, each at another place
            for (size_t i = 0; i < exchanges.size(); i++) {
                const size_t at = (i + number * exchanges.size() / thread_count) % exchanges.size();
                differ[number] += run(*exchanges[at], trees[at], shared) != alone[at] ? 1 : 0;
            }
        });
    }
    for (std::thread &thread : threads) thread.join();
    EXPECT_EQ(differ, std::vector<size_t>(thread_count, 0));
    EXPECT_EQ(shared.lines, lines_alone * (thread_count + 1));
}
