// The two channels of a log statement, over the golden set: neither changes what is mapped, each says what the other
// says, and one that is off says nothing.
#include <gtest/gtest.h>

#include <algorithm>

#include "trees.h"

namespace {

using sweep::Exchange;
using sweep::Trees;

struct Channels {
    bool log, trace;
};

struct Heard {
    std::string trees;               // outcomes and trees
    std::vector<std::string> log;    // "TRC Start"
    std::vector<std::string> trace;  // the same
    size_t operations = 0;
};

// Level and text of "TRC: VMF: ctx=0x1,Start" and of "#1: TRC: function:10 ctx=0x1,Start".
std::string said(std::string line)
{
    if (line.starts_with('#')) line = line.substr(line.find(": ") + 2);
    return line.substr(0, 3) + " " + line.substr(line.find(',', line.find("ctx=")) + 1);
}

Heard run(const Exchange &exchange, const Trees &trees, size_t failing_number, Channels channels)
{
    Heard heard;
    platform::TraceBuffer buffer(1);
    buffer.listener = [&heard](std::string_view line) {
        if (line.starts_with('#')) heard.trace.push_back(said(std::string(line)));  // else of a tree that is printed
    };
    platform::Log log;
    if (channels.trace) log.trace = &buffer;
    for (platform::LogFilter *filter : {&log.err, &log.dbg, &log.trc}) {
        filter->enabled = channels.log;
        filter->write = [&heard](std::string_view line, uint32_t *) { heard.log.push_back(said(std::string(line))); };
    }
    sweep::Run run(exchange, log);
    sweep::Failing failing = {failing_number};
    run.go(trees, failing);
    heard.trees = run.result();
    heard.operations = failing.count;
    return heard;
}

// The first line in which they differ, and its number; empty: none.
std::string difference(const std::vector<std::string> &lines, const std::vector<std::string> &others)
{
    const auto [one, other] = std::mismatch(lines.begin(), lines.end(), others.begin(), others.end());
    if (one == lines.end() && other == others.end()) return "";
    return std::to_string(one - lines.begin()) + ": \"" + (one != lines.end() ? *one : "no line") + "\", \"" +
           (other != others.end() ? *other : "no line") + "\"";
}

void expect_same_words(const Exchange &exchange, const Trees &trees, size_t failing_number)
{
    SCOPED_TRACE(exchange.name + ", operation " + std::to_string(failing_number));
    const Heard off = run(exchange, trees, failing_number, {false, false});
    const Heard log = run(exchange, trees, failing_number, {true, false});
    const Heard trace = run(exchange, trees, failing_number, {false, true});
    const Heard both = run(exchange, trees, failing_number, {true, true});
    for (const Heard *each : {&log, &trace, &both}) EXPECT_EQ(each->trees, off.trees);
    EXPECT_TRUE(off.log.empty() && off.trace.empty() && log.trace.empty() && trace.log.empty());
    EXPECT_FALSE(log.log.empty());
    EXPECT_EQ(difference(trace.trace, log.log), "");
    EXPECT_EQ(difference(both.log, log.log), "");
    EXPECT_EQ(difference(both.trace, log.log), "");
}

}  // namespace

TEST(Channels, SayTheSameAndChangeNothing)
{
    constexpr size_t failures = 3;  // of each exchange, as far apart as they can be, and others in the next one
    for (const Exchange &exchange : sweep::golden_set()) {
        const Trees trees(exchange);
        expect_same_words(exchange, trees, 0);
        const size_t operations = run(exchange, trees, 0, {false, false}).operations;
        const size_t step = std::max<size_t>(1, operations / failures);
        const size_t first = 1 + static_cast<size_t>(&exchange - sweep::golden_set().data()) % step;
        for (size_t number = first; number <= operations; number += step) expect_same_words(exchange, trees, number);
    }
}
