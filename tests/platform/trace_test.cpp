#include "trace.h"

#include <algorithm>
#include <set>
#include <thread>

#include "support.h"

using platform::Log;
using platform::TraceBuffer;

namespace {

using Lines = std::vector<std::string>;

void trace(TraceBuffer &buffer, const char *line) { _lstrace(&buffer, VMF_LSTRACE_FLAGS, line); }

}  // namespace

// ---- Log filters ----------------------------------------------------------------------------

TEST(LogFilter, EachLevelHasItsOwn)
{
    constexpr uint32_t levels[] = {0, 2, 3};
    for (uint32_t wanted : levels) {
        Log log;
        (wanted == 0 ? log.err : wanted == 2 ? log.dbg : log.trc).enabled = true;
        VmfDebugContext debug = {};
        platform::connect(debug, log);
        for (uint32_t level : levels) EXPECT_EQ(vmf_debug_should_log(&debug, level) != 0, level == wanted);
    }
}

TEST(LogFilter, OtherLevelsAreOff)
{
    Log log;
    log.err.enabled = log.dbg.enabled = log.trc.enabled = true;
    VmfDebugContext debug = {};
    platform::connect(debug, log);
    for (uint32_t level : {1u, 4u, UINT32_MAX}) EXPECT_EQ(vmf_debug_should_log(&debug, level), 0u) << level;
}

TEST(LogFilter, NoFilterIsOff)
{
    const VmfDebugContext debug = {};
    for (uint32_t level : {0u, 2u, 3u}) {
        EXPECT_EQ(vmf_debug_should_log(&debug, level), 0u) << level;
        EXPECT_EQ(vmf_debug_should_log(nullptr, level), 0u) << level;
    }
}

TEST(LogFilter, WritesTheFormattedLineWithItsSite)
{
    uint32_t site = UINT32_MAX;
    std::string written;
    platform::LogFilter filter = {.enabled = true, .write = [&](std::string_view line, uint32_t *its_site) {
                                      written = line;
                                      EXPECT_EQ(its_site, &site);
                                  }};
    const std::string address(3000, 'a');
    _kos_dt_log_filter_adv(&filter, 0, 0, 0, 0, 0, &site, "neighbor %s, %u", address.c_str(), 7u);
    EXPECT_EQ(written, "neighbor " + address + ", 7");
    _kos_dt_log_filter_adv(&filter, 0, 0, 0, 0, 0, &site, "%s", "");
    EXPECT_EQ(written, "");
}

TEST(LogFilter, OneThatWritesNowhereIsHarmless)
{
    uint32_t site = UINT32_MAX;
    platform::LogFilter filter = {.enabled = true, .write = {}};
    _kos_dt_log_filter_adv(&filter, 0, 0, 0, 0, 0, &site, "%s", "line");
    _kos_dt_log_filter_adv(nullptr, 0, 0, 0, 0, 0, &site, "%s", "line");
    EXPECT_EQ(site, UINT32_MAX);
}

// ---- The trace buffer -----------------------------------------------------------------------

TEST(TraceBuffer, GivesLinesInTheirOrderAndIsEmptyThen)
{
    TraceBuffer buffer(3);
    trace(buffer, "a");
    trace(buffer, "b");
    EXPECT_EQ(buffer.take(), Lines({"a", "b"}));
    EXPECT_EQ(buffer.take(), Lines());
    trace(buffer, "c");
    EXPECT_EQ(buffer.take(), Lines({"c"}));
    EXPECT_EQ(buffer.lost(), 0u);
}

TEST(TraceBuffer, PushesOutTheOldestLines)
{
    TraceBuffer buffer(3);
    for (const char *line : {"a", "b", "c"}) trace(buffer, line);
    EXPECT_EQ(buffer.lost(), 0u);
    for (const char *line : {"d", "e"}) trace(buffer, line);
    EXPECT_EQ(buffer.lost(), 2u);
    EXPECT_EQ(buffer.take(), Lines({"c", "d", "e"}));
    EXPECT_EQ(buffer.lost(), 2u);
}

TEST(TraceBuffer, OneWithoutRoomHoldsNothing)
{
    TraceBuffer buffer(0);
    trace(buffer, "a");
    EXPECT_EQ(buffer.take(), Lines());
}

TEST(TraceBuffer, ItsListenerHearsEachLineAsItComes)
{
    TraceBuffer buffer(1);
    Lines heard;
    buffer.listener = [&](std::string_view line) { heard.emplace_back(line); };
    for (const char *line : {"a", "b"}) trace(buffer, line);
    EXPECT_EQ(heard, Lines({"a", "b"}));
}

TEST(TraceBuffer, CopiesTheLine)
{
    TraceBuffer buffer(1);
    char line[] = "a";
    trace(buffer, line);
    line[0] = 'x';
    EXPECT_EQ(buffer.take(), Lines({"a"}));
}

TEST(TraceBuffer, NoBufferIsHarmless) { _lstrace(nullptr, VMF_LSTRACE_FLAGS, "a"); }

TEST(TraceBuffer, TwoThreadsAppend)
{
    constexpr size_t lines_each = 10'000;
    TraceBuffer buffer(lines_each);
    const auto write = [&](const char *line) {
        for (size_t i = 0; i < lines_each; i++) trace(buffer, line);
    };
    std::thread a(write, "a");
    std::thread b(write, "b");
    size_t taken = 0;
    for (int i = 0; i < 100; i++) taken += buffer.take().size();
    a.join();
    b.join();
    for (const std::string &line : buffer.take()) {
        ASSERT_TRUE(line == "a" || line == "b");
        taken++;
    }
    EXPECT_EQ(taken + buffer.lost(), 2 * lines_each);
}

TEST(TraceIndex, IncreasesByOne)
{
    const uint32_t first = ret_nc_vmf_trace_index_incr();
    EXPECT_EQ(ret_nc_vmf_trace_index_incr(), first + 1);
    EXPECT_EQ(ret_nc_vmf_trace_index_incr(), first + 2);
}

TEST(TraceIndex, TwoThreadsShareNoNumber)
{
    constexpr size_t numbers_each = 10'000;
    const auto take = [](std::vector<uint32_t> &numbers) {
        for (size_t i = 0; i < numbers_each; i++) numbers.push_back(ret_nc_vmf_trace_index_incr());
    };
    std::vector<uint32_t> a;
    std::vector<uint32_t> b;
    std::thread other(take, std::ref(a));
    take(b);
    other.join();
    std::set<uint32_t> all(a.begin(), a.end());
    all.insert(b.begin(), b.end());
    EXPECT_EQ(all.size(), 2 * numbers_each);
    EXPECT_TRUE(std::is_sorted(a.begin(), a.end()));
}

// ---- A debug context ------------------------------------------------------------------------

TEST(Connect, TracesOnlyIntoABuffer)
{
    Log log;
    VmfDebugContext debug = {};
    platform::connect(debug, log);
    EXPECT_EQ(debug.trace_enabled, 0u);

    TraceBuffer buffer(1);
    log.trace = &buffer;
    platform::connect(debug, log);
    EXPECT_NE(debug.trace_enabled, 0u);
    _lstrace(debug.trace_buffer, VMF_LSTRACE_FLAGS, "a");
    EXPECT_EQ(buffer.take(), Lines({"a"}));
}

// ---- vmf_map_print_datatree_internal --------------------------------------------------------

class PrintTree : public testing::Test {
protected:
    PrintTree()
    {
        log.trace = &buffer;
        platform::connect(ctx._debug_ctx, log);
    }

    platform::Tree tree = io::read_tree("bgp zr-cfg\n  instance\n    as = 65001\n  other\n");
    TraceBuffer buffer{10};
    Log log;
    MapContext ctx = {};
};

TEST_F(PrintTree, WritesANodeALine)
{
    vmf_map_print_datatree_internal(&ctx, tree.root().subtrees, "Mapped tree");
    EXPECT_EQ(buffer.take(), Lines({"Mapped tree: bgp", "Mapped tree:   instance", "Mapped tree:     as = '65001'",
                                    "Mapped tree:   other"}));
}

TEST_F(PrintTree, WritesNothingWhileTheTraceIsOff)
{
    ctx._debug_ctx.trace_enabled = 0;
    vmf_map_print_datatree_internal(&ctx, tree.root().subtrees, "Mapped tree");
    EXPECT_EQ(buffer.take(), Lines());
}

TEST_F(PrintTree, WritesNothingForNoTree)
{
    vmf_map_print_datatree_internal(&ctx, nullptr, "Mapped tree");
    EXPECT_EQ(buffer.take(), Lines());
}
