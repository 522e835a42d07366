// What holds for any configuration, and the explicit list of where it does not.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "generator.h"
#include "tree_lines.h"

namespace {

using properties::Device;
using properties::Generator;
using properties::Nodes;
using trips::Named;

constexpr uint32_t seed = 65001;
constexpr int configurations = 200;

// ---- Exceptions -----------------------------------------------------------------------------

// A leaf that does not come back as it was written.
struct ReadException {
    const char *leaf;              // of the schema, "*" for any text
    const char *value;             // that is written; null: any
    std::set<std::string> reads;   // what may come back; "-": nothing; "+": what was written
    const char *beside = nullptr;  // only if such a leaf is written in the same entry, or in the same router
};

const ReadException read_exceptions[] = {
    // Natively a switch that is there or is not: only "true" is written.
    {"/bgp/global/route-selection-options/config/always-compare-med", "false", {"-"}},
    {"/bgp/global/route-selection-options/config/external-compare-router-id", "false", {"-"}},
    {"/bgp/global/route-selection-options/config/ignore-as-path-length", "false", {"-"}},
    // The native switch is the other way round: what is enabled is not there.
    {"/bgp/global/route-selection-options/config/enable-aigp", "true", {"-"}},
    // The value is not looked at: only a delete switches it off.
    {"/bgp/global/graceful-restart/config/enabled", "false", {"true"}},
    // The router's maximum is that of four families: where one of them has its own, they do not agree.
    {"/bgp/global/use-multiple-paths/ebgp/config/maximum-paths",
     nullptr,
     {"-", "+"},
     "/bgp/global/afi-safis/afi-safi/use-multiple-paths/ebgp/config/maximum-paths"},
    {"/bgp/global/use-multiple-paths/ibgp/config/maximum-paths",
     nullptr,
     {"-", "+"},
     "/bgp/global/afi-safis/afi-safi/use-multiple-paths/ibgp/config/maximum-paths"},
    // A family that is set to false stays as it is; what the router has of distances and paths switches four on.
    {"/bgp/global/afi-safis/afi-safi/config/enabled", "false", {"-", "true"}, "/bgp/global/default-route-distance/*"},
    {"/bgp/global/afi-safis/afi-safi/config/enabled", "false", {"-", "true"}, "/bgp/global/use-multiple-paths/*"},
    {"/bgp/global/afi-safis/afi-safi/config/enabled", "false", {"-"}},
    {"/bgp/neighbors/neighbor/afi-safis/afi-safi/config/enabled", "false", {"-"}},
    // Of a group any word switches the family on.
    {"/bgp/peer-groups/peer-group/afi-safis/afi-safi/config/enabled", "false", {"true"}},
    // Natively a switch that is there or is not.
    {"*/afi-safis/afi-safi/use-multiple-paths/config/enabled", "false", {"-"}},
    // The hop count is what says that multihop is on, and "false" makes one too.
    {"*/ebgp-multihop/config/enabled", "false", {"true"}},
    // A time of a group switches graceful restart on.
    {"/bgp/peer-groups/peer-group/graceful-restart/config/enabled",
     "false",
     {"true"},
     "/bgp/peer-groups/peer-group/graceful-restart/config/*-time"},
};

// Leaves that leave something behind when they are deleted, or that are not deleted alone.
constexpr const char *delete_exceptions[] = {
    // They switch four families on, which stay.
    "/bgp/global/default-route-distance/config/*",
    "/bgp/global/use-multiple-paths/*",
    // They switch graceful restart of the group on, which stays.
    "/bgp/peer-groups/peer-group/graceful-restart/config/*-time",
    // A threshold is deleted with its limit alone.
    "*/prefix-limit/config/shutdown-threshold-pct",
};

bool fits(std::string_view pattern, std::string_view text)
{
    const size_t star = pattern.find('*');
    if (star == std::string_view::npos) return pattern == text;
    const std::string_view head = pattern.substr(0, star), tail = pattern.substr(star + 1);
    return text.size() >= head.size() + tail.size() && text.starts_with(head) && text.ends_with(tail);
}

// ---- Nodes ----------------------------------------------------------------------------------

bool is_leaf(const Named &node) { return node.has_value; }

// "/bgp/neighbors/neighbor[192.0.2.2]" of what stands in it; "/bgp/global" of the router's own.
std::string entry_of(const std::string &path)
{
    if (path.starts_with("/bgp/global")) return "/bgp/global";
    return path.substr(0, path.find(']') + 1);
}

Nodes removals_of(const Nodes &nodes)
{
    Nodes removals;
    for (const Named &node : nodes) {
        const bool is_one_value = trips::is_leaf_list(node.path);
        if (is_leaf(node)) removals.push_back({node.path, "remove", is_one_value ? node.value : "", is_one_value});
    }
    return removals;
}

std::string shown(const Nodes &nodes)
{
    std::string text;
    for (const Named &node : nodes)
        text += node.path + (node.operation.empty() ? "" : " [" + node.operation + "]") +
                (node.has_value ? " = " + node.value : "") + "\n";
    return text;
}

bool is_beside(const Named &node, const Nodes &nodes, const char *beside)
{
    return std::any_of(nodes.begin(), nodes.end(), [&](const Named &other) {
        return is_leaf(other) && &other != &node && entry_of(other.path) == entry_of(node.path) &&
               fits(beside, trips::schema_path(other.path));
    });
}

const ReadException *exception_of(const Named &node, const Nodes &nodes)
{
    for (const ReadException &row : read_exceptions) {
        const bool is_meant = fits(row.leaf, trips::schema_path(node.path)) &&
                              (row.value == nullptr || node.value == row.value) &&
                              (row.beside == nullptr || is_beside(node, nodes, row.beside));
        if (is_meant) return &row;
    }
    return nullptr;
}

bool may_read(const ReadException &row, const std::set<std::string> &read, const std::set<std::string> &written)
{
    return (read == written && row.reads.contains("+")) || (read.size() == 1 && row.reads.contains(*read.begin()));
}

// The values of a leaf among the lines of an answer, or "-".
std::set<std::string> values_in(const std::vector<std::string> &lines, const std::string &path)
{
    std::set<std::string> values;
    for (const std::string &line : lines)
        if (line.starts_with(path + " = ")) values.insert(line.substr(path.size() + 3));
    if (values.empty()) values.insert("-");
    return values;
}

std::set<std::string> values_written(const Nodes &nodes, const std::string &path)
{
    std::set<std::string> values;
    for (const Named &node : nodes)
        if (node.path == path) values.insert(node.value);
    return values;
}

Nodes without_delete_exceptions(Nodes nodes)
{
    std::erase_if(nodes, [](const Named &node) {
        return std::any_of(std::begin(delete_exceptions), std::end(delete_exceptions),
                           [&](const char *leaf) { return fits(leaf, trips::schema_path(node.path)); });
    });
    return nodes;
}

}  // namespace

TEST(Properties, WhatWasWrittenReadsBack)
{
    Device device;
    Generator generator(seed);
    std::set<const ReadException *> met;
    size_t leaves = 0;
    for (int i = 0; i < configurations; i++) {
        device.reset();
        const Nodes nodes = generator.configuration();
        ASSERT_EQ(device.edit(nodes), "") << shown(nodes);
        for (const Named &node : nodes) {
            if (!is_leaf(node)) continue;
            leaves++;
            const auto read = values_in(device.read({{node.path, "", "", false}}), node.path);
            const ReadException *row = exception_of(node, nodes);
            if (row != nullptr) met.insert(row);
            const auto written = values_written(nodes, node.path);
            EXPECT_TRUE(row == nullptr ? read == written : may_read(*row, read, written))
                << *read.begin() << " for " << node.path << " of\n"
                << shown(nodes);
        }
        if (HasFailure()) return;
    }
    for (const ReadException &row : read_exceptions) EXPECT_TRUE(met.contains(&row)) << row.leaf << " is never met";
    EXPECT_GT(leaves, size_t{4000});
}

TEST(Properties, ADeleteAfterAWriteLeavesTheRouterAsBefore)
{
    Device device;
    Generator generator(seed);
    for (int i = 0; i < configurations; i++) {
        device.reset();
        const Nodes nodes = without_delete_exceptions(generator.configuration());
        Nodes entries = nodes;
        std::erase_if(entries, is_leaf);
        if (!entries.empty()) {
            ASSERT_EQ(device.edit(entries), "");
        }
        const std::string before = device.native();
        ASSERT_EQ(device.edit(nodes), "");
        ASSERT_EQ(device.edit(removals_of(nodes)), "") << shown(nodes);
        ASSERT_EQ(device.native(), before) << shown(nodes);
    }
}

TEST(Properties, AReplaceIsIdempotent)
{
    Device device;
    Generator generator(seed);
    int done = 0;
    for (int i = 0; i < configurations; i++) {
        device.reset();
        ASSERT_EQ(device.edit(generator.configuration()), "");
        Nodes nodes = generator.configuration();
        if (nodes.empty()) continue;
        std::string path = nodes[generator.below(static_cast<uint32_t>(nodes.size()))].path;
        path.erase(std::max(path.rfind('/'), path.rfind(']') == std::string::npos ? 0 : path.rfind(']') + 1));
        nodes.insert(nodes.begin(), {path, "replace", "", false});
        const std::string refusal = device.edit(nodes);
        const std::string once = device.native();
        EXPECT_EQ(device.edit(nodes), refusal) << shown(nodes);
        ASSERT_EQ(device.native(), once) << shown(nodes);
        done += refusal.empty() ? 1 : 0;
    }
    EXPECT_GT(done, configurations / 2);
}

TEST(Properties, TwoEditsEndAsTheOneThatHoldsBoth)
{
    Device device;
    Generator generator(seed);
    for (int i = 0; i < configurations; i++) {
        const Nodes nodes = generator.configuration();
        const auto cut = nodes.begin() + generator.below(static_cast<uint32_t>(nodes.size() + 1));
        device.reset();
        ASSERT_EQ(device.edit(nodes), "");
        const std::string at_once = device.native();
        device.reset();
        if (cut != nodes.begin()) {
            ASSERT_EQ(device.edit({nodes.begin(), cut}), "");
        }
        if (cut != nodes.end()) {
            ASSERT_EQ(device.edit({cut, nodes.end()}), "");
        }
        ASSERT_EQ(device.native(), at_once) << "cut before " << shown({cut, nodes.end()}) << "of\n" << shown(nodes);
    }
}
