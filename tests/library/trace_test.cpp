// The log statement: two channels, each tested by itself before anything is formatted.
#include <cstdarg>
#include <cstdio>
#include <regex>

#include "library_test.h"
#include "probe.h"
#include "vmf_map_oc_bgp_handlers.h"
#include "vmf_map_oc_bgp_walkers.h"

using namespace library_test;

// ---- In the place of the C library's: what the mapping formats ------------------------------

static size_t formatted_by_the_mapping = 0;

static void note_formatting(const void *caller)
{
    static const void *const library = [] {
        Dl_info info = {};
        dladdr(dlsym(RTLD_DEFAULT, "vmf_map_oc_bgp"), &info);
        return info.dli_fbase;
    }();
    Dl_info info = {};
    if (dladdr(caller, &info) != 0 && info.dli_fbase == library) formatted_by_the_mapping++;
}

using Format = int(char *, size_t, const char *, va_list);
static Format *const format_of_c_library = reinterpret_cast<Format *>(dlsym(RTLD_NEXT, "vsnprintf"));

extern "C" int vsnprintf(char *text, size_t size, const char *format, va_list arguments) noexcept
{
    if (format_of_c_library == nullptr) return 0;  // before this program's own start
    note_formatting(__builtin_return_address(0));
    return format_of_c_library(text, size, format, arguments);
}

extern "C" int snprintf(char *text, size_t size, const char *format, ...) noexcept
{
    if (format_of_c_library == nullptr) return 0;
    note_formatting(__builtin_return_address(0));
    va_list arguments;
    va_start(arguments, format);
    const int length = format_of_c_library(text, size, format, arguments);
    va_end(arguments);
    return length;
}

// ---- A statement of each level --------------------------------------------------------------

namespace {

struct TraceTest : testing::Test {
    TraceTest() { probe::heard() = {}; }

    void log_on(bool on)
    {
        run.log.err.enabled = on;
        run.log.trc.enabled = on;
    }
    void trace_on(bool on) { run.ctx._debug_ctx.trace_enabled = on ? 1 : 0; }

    // Says "Start" at level 3 and a failure at level 0.
    void say_two_lines() { add_zr_cfg_bgp_one_node(&run.ctx, nullptr, "bgp", nullptr, nullptr, nullptr); }

    // Says "Start", "Processing '...'" and "End".
    uint32_t add(const char *tag)
    {
        return add_zr_cfg_bgp_one_node(&run.ctx, &run.out.root(), tag, nullptr, nullptr, nullptr);
    }

    MappingRun run{VMF_REQ_EDIT};
};

std::string address(const void *of)
{
    char text[32];
    std::snprintf(text, sizeof text, "%p", of);
    return text;
}

// A trace line with its index taken off and its address and line number masked.
struct TraceLine {
    explicit TraceLine(const std::string &line, const void *ctx)
    {
        static const std::regex form("#([0-9]+): (.*):([0-9]+) ctx=([^,]*),([^]*)");
        std::smatch parts;
        if (!std::regex_match(line, parts, form)) {
            ADD_FAILURE() << "not the form of a trace line: " << line;
            return;
        }
        index = static_cast<uint32_t>(std::stoul(parts[1]));
        source_line = std::stoi(parts[3]);
        const std::string speaker = parts[4] == address(ctx) ? "CTX" : parts[4].str();
        masked = "#N: " + parts[2].str() + ":LINE ctx=" + speaker + "," + parts[5].str();
    }
    uint32_t index = 0;
    int source_line = 0;
    std::string masked;
};

TEST_F(TraceTest, a_log_line_is_prefix_context_and_text)
{
    log_on(true);
    trace_on(false);
    say_two_lines();

    const auto &log = probe::heard().log;
    ASSERT_EQ(log.size(), 2u);
    EXPECT_EQ(log[0].format, "TRC: VMF: ctx=%p,Start");
    EXPECT_EQ(log[0].line, "TRC: VMF: ctx=" + address(&run.ctx) + ",Start");
    EXPECT_EQ(log[0].filter, run.ctx._debug_ctx.trc_filter);
    EXPECT_EQ(log[1].format, "ERR: VMF: ctx=%p,NULL argument(s) passed!");
    EXPECT_EQ(log[1].line, "ERR: VMF: ctx=" + address(&run.ctx) + ",NULL argument(s) passed!");
    EXPECT_EQ(log[1].filter, run.ctx._debug_ctx.err_filter);
    EXPECT_TRUE(log[0].zeros && log[1].zeros);
}

TEST_F(TraceTest, a_trace_line_is_number_prefix_function_line_context_and_text)
{
    log_on(false);
    trace_on(true);
    const uint32_t before = ret_nc_vmf_trace_index_incr();
    say_two_lines();

    const auto &trace = probe::heard().trace;
    ASSERT_EQ(trace.size(), 2u);
    const TraceLine start(trace[0].line, &run.ctx);
    const TraceLine failure(trace[1].line, &run.ctx);
    EXPECT_EQ(start.masked, "#N: TRC: add_zr_cfg_bgp_one_node:LINE ctx=CTX,Start");
    EXPECT_EQ(failure.masked, "#N: ERR: add_zr_cfg_bgp_one_node:LINE ctx=CTX,NULL argument(s) passed!");
    EXPECT_EQ(start.index, before + 1);
    EXPECT_EQ(failure.index, before + 2);
    EXPECT_TRUE(stands_in_a_source("add_zr_cfg_bgp_one_node", start.source_line)) << start.source_line;
    EXPECT_TRUE(stands_in_a_source("add_zr_cfg_bgp_one_node", failure.source_line)) << failure.source_line;
}

TEST_F(TraceTest, the_arguments_of_a_text_come_behind_the_context)
{
    log_on(true);
    ASSERT_EQ(add("bgp"), VMF_RC_OK);

    ASSERT_EQ(probe::heard().log.size(), 3u);
    EXPECT_EQ(probe::heard().log[1].format, "TRC: VMF: ctx=%p,Processing '%s'");
    EXPECT_EQ(probe::heard().log[1].line, "TRC: VMF: ctx=" + address(&run.ctx) + ",Processing 'bgp'");
    ASSERT_EQ(probe::heard().trace.size(), 3u);
    EXPECT_EQ(TraceLine(probe::heard().trace[1].line, &run.ctx).masked,
              "#N: TRC: add_zr_cfg_bgp_one_node:LINE ctx=CTX,Processing 'bgp'");
}

TEST_F(TraceTest, the_trace_buffer_gets_each_line_with_the_one_constant)
{
    say_two_lines();
    ASSERT_EQ(probe::heard().trace.size(), 2u);
    for (const probe::TraceCall &call : probe::heard().trace) {
        EXPECT_EQ(call.buffer, run.ctx._debug_ctx.trace_buffer);
        EXPECT_EQ(call.flags, 0x10101000000u);
    }
}

TEST_F(TraceTest, either_channel_speaks_without_the_other)
{
    for (const bool log : {false, true})
        for (const bool trace : {false, true}) {
            SCOPED_TRACE(testing::Message() << "log " << log << ", trace " << trace);
            log_on(log);
            trace_on(trace);
            probe::heard() = {};
            say_two_lines();
            EXPECT_EQ(probe::heard().log.size(), log ? 2u : 0u);
            EXPECT_EQ(probe::heard().trace.size(), trace ? 2u : 0u);
            EXPECT_EQ(probe::heard().indices, trace ? 2u : 0u);
        }
}

TEST_F(TraceTest, each_level_has_a_filter_of_its_own)
{
    run.log.err.enabled = true;
    say_two_lines();
    ASSERT_EQ(probe::heard().log.size(), 1u);
    EXPECT_EQ(probe::heard().log[0].filter, &run.log.err);

    probe::heard() = {};
    run.log.err.enabled = false;
    run.log.trc.enabled = true;
    say_two_lines();
    ASSERT_EQ(probe::heard().log.size(), 1u);
    EXPECT_EQ(probe::heard().log[0].filter, &run.log.trc);
}

TEST_F(TraceTest, each_statement_asks_once_whether_its_level_is_on)
{
    const VmfDebugContext *debug = &run.ctx._debug_ctx;
    say_two_lines();
    EXPECT_EQ(probe::heard().questions, (std::vector<probe::Question>{{debug, 3}, {debug, 0}}));

    probe::heard() = {};
    ASSERT_EQ(add("bgp"), VMF_RC_OK);
    EXPECT_EQ(probe::heard().questions, (std::vector<probe::Question>{{debug, 3}, {debug, 3}, {debug, 3}}));
}

TEST_F(TraceTest, a_line_longer_than_the_buffer_is_cut_in_the_trace_alone)
{
    log_on(true);
    const std::string tag(3000, 'x');
    ASSERT_EQ(add(tag.c_str()), VMF_RC_OK);

    ASSERT_EQ(probe::heard().trace.size(), 3u);
    const std::string cut = probe::heard().trace[1].line;
    EXPECT_EQ(cut.size(), 1023u);
    EXPECT_NE(cut.find(",Processing 'xxx"), std::string::npos);
    EXPECT_EQ(cut.back(), 'x');
    ASSERT_EQ(probe::heard().log.size(), 3u);
    EXPECT_TRUE(probe::heard().log[1].line.ends_with(",Processing '" + tag + "'"));
}

TEST_F(TraceTest, a_line_of_1023_characters_is_whole)
{
    while (ret_nc_vmf_trace_index_incr() % 100 > 50) {
    }  // so that the numbers of all lines below have as many digits
    ASSERT_EQ(add("x"), VMF_RC_OK);
    const size_t around = probe::heard().trace[1].line.size() - 1;  // all but the tag
    for (const size_t length : {size_t{1023}, size_t{1024}}) {
        probe::heard() = {};
        const std::string tag(length - around, 'x');
        ASSERT_EQ(add(tag.c_str()), VMF_RC_OK);
        const std::string line = probe::heard().trace[1].line;
        EXPECT_EQ(line.size(), 1023u);
        EXPECT_EQ(line.back(), length == 1023 ? '\'' : 'x');
    }
}

// ---- Site words -----------------------------------------------------------------------------

TEST_F(TraceTest, a_statement_has_one_site_word_and_no_other_has_it)
{
    log_on(true);
    say_two_lines();
    say_two_lines();
    ASSERT_EQ(add("bgp"), VMF_RC_OK);

    const auto &log = probe::heard().log;
    ASSERT_EQ(log.size(), 7u);
    EXPECT_NE(log[0].site, log[1].site);
    EXPECT_EQ(log[0].site, log[2].site);
    EXPECT_EQ(log[1].site, log[3].site);
    for (const probe::LogCall &call : log) EXPECT_EQ(*call.site, 0xFFFFFFFFu);
}

TEST_F(TraceTest, a_site_word_belongs_to_the_filter)
{
    log_on(true);
    run.log.trc.write = [](std::string_view, uint32_t *site) { *site = 7; };
    ASSERT_EQ(add("bgp"), VMF_RC_OK);
    run.log.trc.write = nullptr;
    ASSERT_EQ(add("bgp"), VMF_RC_OK);
    for (const probe::LogCall &call : probe::heard().log) EXPECT_EQ(*call.site, 7u);
    for (const probe::LogCall &call : probe::heard().log) *call.site = 0xFFFFFFFF;
}

// A request of the global subtree, in which all of its containers and leaves stand.
platform::Tree whole_global_request()
{
    platform::Tree request;
    add_child(request.root(), "bgp", OC_BGP_NS);
    for (const Node &node : nodes()) {
        if (!node.path.starts_with("/bgp/global")) continue;
        const std::string parent = node.path.substr(1, node.path.rfind('/') - 1);
        Datatree &added = add_child(node_at(request, parent), node.tag().c_str(), OC_BGP_NS);
        if (node.tag() != "afi-safi-name") continue;
        platform::set_value(added, "IPV4_UNICAST");
        platform::set_data_namespace(added, platform::intern(OC_BGP_TYPES_NS));
    }
    return request;
}

TEST(TraceOfAWalk, a_site_word_never_speaks_two_texts)
{
    probe::heard() = {};
    MappingRun run(VMF_REQ_GET);
    run.know_as(65001);
    run.log.err.enabled = true;
    run.log.trc.enabled = true;
    platform::Tree request = whole_global_request();
    vmf_map_oc_bgp(&run.ctx, &platform::children_of(request.root())[0], &run.out.root());
    platform::Tree empty;
    vmf_map_oc_bgp(&run.ctx, &empty.root(), nullptr);

    std::map<const uint32_t *, std::string> texts;
    for (const probe::LogCall &call : probe::heard().log) {
        const auto known = texts.emplace(call.site, call.format).first;
        EXPECT_EQ(known->second, call.format);
    }
    EXPECT_GT(texts.size(), 12u);
}

TEST(TraceOfAWalk, both_channels_say_the_same)
{
    probe::heard() = {};
    MappingRun run(VMF_REQ_GET);
    run.know_as(65001);
    run.log.err.enabled = true;
    run.log.trc.enabled = true;
    platform::Tree request = whole_global_request();
    ASSERT_EQ(vmf_map_oc_bgp(&run.ctx, &platform::children_of(request.root())[0], &run.out.root()), VMF_RC_OK);

    const probe::Heard &heard = probe::heard();
    ASSERT_EQ(heard.log.size(), heard.trace.size());
    EXPECT_EQ(heard.indices, heard.trace.size());
    for (size_t i = 0; i < heard.log.size(); i++) {
        const std::string &log = heard.log[i].line;
        const std::string &trace = heard.trace[i].line;
        EXPECT_EQ(log.substr(0, 3), trace.substr(trace.find(' ') + 1, 3));
        EXPECT_EQ(log.substr(log.find(" ctx=")), trace.substr(trace.find(" ctx=")));
    }
}

TEST(TraceOfAWalk, with_both_channels_off_a_whole_walk_formats_nothing_and_takes_no_number)
{
    platform::Tree native;
    MappingRun first(VMF_REQ_GET);
    first.know_as(65001);
    platform::Tree request = whole_global_request();
    formatted_by_the_mapping = 0;
    ASSERT_EQ(vmf_map_oc_bgp(&first.ctx, &platform::children_of(request.root())[0], &native.root()), VMF_RC_OK);
    EXPECT_GT(formatted_by_the_mapping, 100u);  // it is seen when it formats

    MappingRun run(VMF_REQ_GET);
    run.ctx._debug_ctx.trace_enabled = 0;
    run.contexts.vmf._debug_ctx.trace_enabled = 0;
    request = whole_global_request();
    formatted_by_the_mapping = 0;
    probe::heard() = {};
    const uint32_t index = ret_nc_vmf_trace_index_incr();
    probe::heard().indices = 0;
    ASSERT_EQ(vmf_map_oc_bgp(&run.ctx, &platform::children_of(request.root())[0], &native.root()), VMF_RC_OK);
    EXPECT_EQ(probe::heard().indices, 0u);
    EXPECT_EQ(ret_nc_vmf_trace_index_incr(), index + 1);
    EXPECT_EQ(formatted_by_the_mapping, 0u);
    EXPECT_TRUE(probe::heard().log.empty());
    EXPECT_TRUE(probe::heard().trace.empty());
    EXPECT_GT(probe::heard().questions.size(), 200u);  // but it was asked
}

// ---- Names and lines ------------------------------------------------------------------------

// Every function of the tree is called once with good arguments: in a read, in an edit.
struct EachFunctionTest : testing::TestWithParam<uint32_t> {
    void each(const std::function<void(const std::string &name, MappingRun &run)> &check)
    {
        for (const Node &node : nodes()) {
            Lines symbols = handlers_of(node);
            symbols.push_back(node.walker);
            for (const std::string &symbol : symbols) {
                SCOPED_TRACE(symbol);
                MappingRun run(GetParam());
                run.know_as(65001);
                platform::Tree request;
                Datatree &child = add_child(request.root(), node.tag().c_str(), OC_BGP_NS);
                call(node, symbol, &run.ctx, &child, &run.out.root());
                check(name_in_lines(node, symbol), run);
            }
        }
    }
};

TEST_P(EachFunctionTest, says_start_and_end_under_its_own_name)
{
    each([](const std::string &name, MappingRun &run) {
        const Lines said = spoken(run).by(name);
        ASSERT_GE(said.size(), 2u);
        EXPECT_EQ(said.front(), "TRC Start");
        EXPECT_EQ(said.back(), "TRC End");
        EXPECT_EQ(std::count(said.begin(), said.end(), "TRC Start"), 1);
        EXPECT_EQ(std::count(said.begin(), said.end(), "TRC End"), 1);
    });
}

TEST_P(EachFunctionTest, names_a_line_of_its_own_definition)
{
    each([](const std::string &name, MappingRun &run) {
        for (const std::string &text : run.trace.take()) {
            const TraceLine line(text, &run.ctx);
            if (line.masked.find(": " + name + ":LINE ") == std::string::npos) continue;
            EXPECT_TRUE(stands_in_a_source(name, line.source_line)) << text;
        }
    });
}

TEST(EachWalker, calls_the_handler_of_its_own_node_first)
{
    for (const Node &node : nodes()) {
        if (node.handler.empty()) continue;
        MappingRun run(VMF_REQ_GET);
        run.know_as(65001);
        platform::Tree request;
        Datatree &child = add_child(request.root(), node.tag().c_str(), OC_BGP_NS);
        call(node, node.walker, &run.ctx, &child, &run.out.root());
        const Lines said = spoken(run).whole();
        ASSERT_GE(said.size(), 2u);
        EXPECT_EQ(said[0], node.walker + ": TRC Start");
        EXPECT_EQ(said[1], name_in_lines(node, node.handler) + ": TRC Start");
    }
}

INSTANTIATE_TEST_SUITE_P(Reads, EachFunctionTest, testing::Values(uint32_t{VMF_REQ_GET}));
INSTANTIATE_TEST_SUITE_P(Edits, EachFunctionTest, testing::Values(uint32_t{VMF_REQ_EDIT}));

TEST_F(TraceTest, a_default_speaks_under_its_own_name_also_when_called_by_the_public_one)
{
    platform::Tree request;
    Datatree &node = add_child(request.root(), "router-id", OC_BGP_NS);
    ASSERT_EQ(vmf_map_leaf_oc_bgp_global_config_routerid(&run.ctx, &node, &run.out.root()), VMF_RC_OK);
    const Spoken said = spoken(run);
    EXPECT_EQ(said.by("__vmf_map_leaf_oc_bgp_global_config_routerid"), framed({}));
    EXPECT_TRUE(said.by("vmf_map_leaf_oc_bgp_global_config_routerid").empty());
}

TEST_F(TraceTest, a_failure_deeper_down_is_logged_where_it_is_found_and_nowhere_above)
{
    Operations operations;
    operations.fail_add(1, some_failure);
    platform::Tree request;
    Datatree &node = add_child(request.root(), "router-id", OC_BGP_NS);
    EXPECT_EQ(vmf_map_oc_bgp_global_config_routerid(&run.ctx, &node, &run.out.root()), some_failure);
    EXPECT_EQ(spoken(run).failures(), Lines{"vmf_map_zr_bgp_cfg_add_path: Failed to process common path!"});
}

}  // namespace
