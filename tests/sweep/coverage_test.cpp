// The golden set reaches every handler, in each of the three trees.
#include <gtest/gtest.h>

#include <fstream>
#include <nlohmann/json.hpp>
#include <set>

#include "golden.h"
#include "request.h"
#include "tree_text.h"
#include "walk_follower.h"

namespace {

// The functions that a run of the exchange logs under.
void collect_functions(const sweep::Exchange &exchange, std::set<std::string> &functions)
{
    platform::SystemDatabase database;
    for (const platform::DatabaseRecord &record : exchange.records) database.put(record);
    platform::TraceBuffer trace(0);
    trace.listener = [&functions](std::string_view line) {
        functions.emplace(framework::read_trace_line(line).function);
    };
    platform::Log log;
    log.trace = &trace;
    framework::Request request(exchange.kind, database, log);
    platform::Tree tree = io::read_tree(exchange.request);
    platform::Tree native, answer;
    const uint32_t outcome = request.map(platform::children_of(tree.root()).front(), native.root());
    if (outcome == VMF_RC_OK && !exchange.response.empty()) request.answer(io::read_tree(exchange.response), answer);
}

std::set<std::string> handlers_of(const std::string &model)
{
    std::ifstream in(SOURCE_DIR "/models/" + model + ".nodes.json");
    std::set<std::string> handlers;
    for (const auto &node : nlohmann::json::parse(in))
        if (node.contains("handler")) handlers.insert(node["handler"]);
    return handlers;
}

// On purpose: the native walks do not name these nodes.
bool is_called_by_no_walker(const std::string &handler)
{
    return handler.ends_with("_afs_af_afprocessinfo") ||
           handler.find("_removeprivateasentireaspath") != std::string::npos;
}

}  // namespace

TEST(Golden, SetReachesEveryHandler)
{
    std::set<std::string> functions;
    for (const sweep::Exchange &exchange : sweep::golden_set()) collect_functions(exchange, functions);
    for (const char *model : {"openconfig-bgp", "Zorvex-ZR-ipv4-bgp-cfg", "Zorvex-ZR-ipv4-bgp-oper"})
        for (const std::string &handler : handlers_of(model)) {
            if (is_called_by_no_walker(handler)) continue;
            EXPECT_TRUE(functions.contains(handler) || functions.contains("__" + handler)) << handler;
        }
}
