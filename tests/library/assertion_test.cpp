// A null context is no error but the end of the process.
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <regex>
#include <unistd.h>

#include "library_test.h"
#include "probe.h"
#include "vmf_map_oc_bgp_handlers.h"
#include "vmf_map_oc_bgp_walkers.h"

using namespace library_test;

namespace {

// What is printed: the source file of that function, from the repository's root, a line in it, and the expression.
class AssertionLine : public testing::MatcherInterface<const std::string &> {
public:
    AssertionLine(std::string function, std::string expression)
        : function_(std::move(function)), expression_(std::move(expression))
    {
    }

    bool MatchAndExplain(const std::string &printed, testing::MatchResultListener *listener) const override
    {
        static const std::regex form("(^|\n)(manageability/yang/framework/mapping/src/[a-z_/]+\\.cpp): ([0-9]+) "
                                     "([^\n]*) -- assertion failed\n");
        std::smatch parts;
        if (!std::regex_search(printed, parts, form)) {
            *listener << "no assertion line in: " << printed;
            return false;
        }
        const auto source = sources().find(parts[2]);
        *listener << "it is " << parts[0];
        return source != sources().end() && stands_in(source->second, function_, std::stoi(parts[3])) &&
               parts[4] == expression_;
    }

    void DescribeTo(std::ostream *out) const override
    {
        *out << "prints a line of " << function_ << " and \"" << expression_ << "\"";
    }

private:
    const std::string function_, expression_;
};

testing::Matcher<const std::string &> asserts(const std::string &function, const std::string &expression)
{
    return testing::Matcher<const std::string &>(new AssertionLine(function, expression));
}

struct NullContext {
    const char *function;
    void (*call)();

    friend void PrintTo(const NullContext &it, std::ostream *out) { *out << it.function; }
};

Datatree node, out;

const NullContext with_null_context[] = {
    {"vmf_map_oc_bgp", [] { vmf_map_oc_bgp(nullptr, &node, &out); }},
    {"vmf_map_oc_bgp_global", [] { vmf_map_oc_bgp_global(nullptr, &node, &out); }},
    {"vmf_map_oc_bgp_neighbors_neighbor", [] { vmf_map_oc_bgp_neighbors_neighbor(nullptr, &node, &out); }},
    {"vmf_map_oc_bgp_global_config_as", [] { vmf_map_oc_bgp_global_config_as(nullptr, &node, &out); }},
    {"vmf_map_cont_oc_bgp", [] { vmf_map_cont_oc_bgp(nullptr, &node, 0, &out); }},
    {"vmf_map_leaf_oc_bgp_global_config_as", [] { vmf_map_leaf_oc_bgp_global_config_as(nullptr, &node, &out); }},
    {"__vmf_map_leaf_oc_bgp_global_config_routerid",
     [] { __vmf_map_leaf_oc_bgp_global_config_routerid(nullptr, &node, &out); }},
    {"vmf_map_man_leaf_oc_bgp_global_state_totalpaths",
     [] { vmf_map_man_leaf_oc_bgp_global_state_totalpaths(nullptr, &node, &out); }},
    {"vmf_map_datatree_add_bgp_path",
     [] { vmf_map_datatree_add_bgp_path(nullptr, &out, "x", ZR_BGP_CFG_NS, nullptr, nullptr, nullptr, 0); }},
    {"vmf_map_zr_bgp_cfg_add_path",
     [] { vmf_map_zr_bgp_cfg_add_path(nullptr, &out, "x", ZR_BGP_CFG_NS, nullptr, nullptr, nullptr, 0); }},
    {"vmf_map_zr_bgp_opr_add_path",
     [] { vmf_map_zr_bgp_opr_add_path(nullptr, &out, "x", ZR_BGP_OPER_NS, nullptr, nullptr, nullptr, 0); }},
    {"add_zr_cfg_bgp_one_node", [] { add_zr_cfg_bgp_one_node(nullptr, &out, "x", nullptr, nullptr, nullptr); }},
    {"add_zr_cfg_bgp_path", [] { add_zr_cfg_bgp_path(nullptr, &out, "x", nullptr, nullptr, nullptr); }},
    {"add_zr_opr_bgp_one_node", [] { add_zr_opr_bgp_one_node(nullptr, &out, "x", nullptr, nullptr, nullptr); }},
    {"get_zr_cfg_bgp_instance",
     [] {
         Datatree *instance = nullptr;
         get_zr_cfg_bgp_instance(nullptr, &out, &instance);
     }},
    {"get_zr_cfg_bgp_as_num_from_sysdb",
     [] {
         uint32_t as_x, as_y;
         get_zr_cfg_bgp_as_num_from_sysdb(nullptr, &as_x, &as_y);
     }},
};

struct NullContextDeathTest : testing::TestWithParam<NullContext> {};

TEST_P(NullContextDeathTest, ends_the_process)
{
    EXPECT_DEATH(GetParam().call(), asserts(GetParam().function, "NULL != ctx"));
}

INSTANTIATE_TEST_SUITE_P(Of, NullContextDeathTest, testing::ValuesIn(with_null_context),
                         [](const auto &tested) { return std::string(tested.param.function); });

// A record that is not null, and whose debug context lies at address 0.
template<class Record>
Record *with_debug_context_at_null()
{
    return reinterpret_cast<Record *>(uintptr_t{0} - offsetof(Record, _debug_ctx));
}

TEST(AssertionDeathTest, a_debug_context_at_null_ends_the_process)
{
    EXPECT_DEATH(vmf_map_oc_bgp(with_debug_context_at_null<MapContext>(), &node, &out),
                 asserts("vmf_map_oc_bgp", "NULL != (&((ctx)->_debug_ctx))"));
}

TEST(AssertionDeathTest, a_session_query_without_a_framework_context_ends_the_process)
{
    VmfReqContext request = {};
    SysdbBackendSession *session = nullptr;
    EXPECT_DEATH(get_backend_session(&request, &session, nullptr),
                 asserts("get_backend_session", "NULL != req_ctx->vmf_ctx"));
}

TEST(AssertionDeathTest, a_session_query_whose_debug_context_lies_at_null_ends_the_process)
{
    VmfReqContext request = {with_debug_context_at_null<VmfContext>(), nullptr};
    SysdbBackendSession *session = nullptr;
    EXPECT_DEATH(get_backend_session(&request, &session, nullptr),
                 asserts("get_backend_session", "NULL != (&((req_ctx->vmf_ctx)->_debug_ctx))"));
}

void tell_address_of_fault(int, siginfo_t *info, void *)
{
    char text[] = "fault at 0\n";
    text[sizeof text - 3] = static_cast<char>('0' + (reinterpret_cast<uintptr_t>(info->si_addr) & 7));
    if (reinterpret_cast<uintptr_t>(info->si_addr) < 8 && write(STDERR_FILENO, text, sizeof text - 1) > 0) _exit(3);
    _exit(4);
}

TEST(AssertionDeathTest, the_process_ends_with_a_fault_at_address_1)
{
    struct sigaction action = {};
    action.sa_sigaction = tell_address_of_fault;
    action.sa_flags = SA_SIGINFO;
    EXPECT_EXIT(
        {
            sigaction(SIGSEGV, &action, nullptr);
            vmf_map_oc_bgp(nullptr, &node, &out);
        },
        testing::ExitedWithCode(3), "fault at 1\n");
}

TEST(Assertion, is_made_before_the_arguments_are_looked_at)
{
    EXPECT_DEATH(vmf_map_oc_bgp(nullptr, nullptr, nullptr), asserts("vmf_map_oc_bgp", "NULL != ctx"));
}

}  // namespace
