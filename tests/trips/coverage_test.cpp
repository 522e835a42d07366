// No node that a request can name without its trip.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "nodes.h"
#include "tree_lines.h"
#include "trip.h"

namespace {

using Paths = std::set<std::string>;  // of the schema

bool is_refused(const trips::Trip &trip, size_t step)
{
    return step + 1 < trip.steps.size() && trip.steps[step + 1].verb == "refused";
}

bool is_leaf(const std::string &path)
{
    const model::OcNode *node = model::find_oc_node(path);
    return node != nullptr && (node->kind == model::Kind::leaf || node->kind == model::Kind::leaf_list);
}

void add_keys(const std::string &path, Paths &to)
{
    for (const std::string &key : trips::schema_paths_of_keys(path)) to.insert(key);
}

// A leaf counts as read if it comes back, a container if it is named.
void add_read(const trips::Step &step, Paths &to)
{
    Paths answered;
    for (const std::string &line : trips::answer_of_read(step))
        answered.insert(trips::schema_path(line.substr(0, line.find(' '))));
    for (const trips::Named &node : trips::nodes_of_read(step)) {
        const std::string schema = trips::schema_path(node.path);
        if (!is_leaf(schema) || answered.contains(schema)) to.insert(schema);
        add_keys(node.path, to);
    }
}

// What was done to the nodes: "edit", "delete", "get-config", "get". A delete counts if something is read behind it.
std::map<std::string, Paths> paths_by_deed()
{
    std::map<std::string, Paths> done;
    for (const trips::Trip &trip : trips::all_trips()) {
        Paths deleted;
        for (size_t i = 0; i < trip.steps.size(); i++) {
            const trips::Step &step = trip.steps[i];
            if (is_refused(trip, i)) continue;
            if (step.verb == "get" || step.verb == "get-config") {
                add_read(step, done[step.verb]);
                done["delete"].merge(deleted);
                deleted.clear();
            }
            if (step.verb != "edit") continue;
            for (const trips::Named &node : trips::nodes_of_edit(step)) {
                const bool is_deleted = node.operation == "delete" || node.operation == "remove";
                (is_deleted ? deleted : done["edit"]).insert(trips::schema_path(node.path));
                add_keys(node.path, done["edit"]);
            }
        }
    }
    return done;
}

bool is_key(const model::OcNode &node)
{
    const size_t end = node.path.rfind('/');
    const model::OcNode *parent = model::find_oc_node(node.path.substr(0, end));
    return parent != nullptr && parent->key == node.path.substr(end + 1);
}

// A key goes with its entry: a delete of its own is refused. A container that is written says nothing of its own.
std::vector<std::string> deeds_for(const model::OcNode &node)
{
    if (!node.config) return {"get"};
    if (is_key(node)) return {"edit", "get-config", "get"};
    if (node.kind == model::Kind::container || node.kind == model::Kind::list) return {"delete", "get-config", "get"};
    return {"edit", "delete", "get-config", "get"};
}

}  // namespace

TEST(Coverage, EveryNodeIsWrittenReadAndDeleted)
{
    const auto done = paths_by_deed();
    size_t leaves = 0, others = 0;
    for (const model::OcNode &node : model::openconfig_bgp()) {
        const std::string path(node.path);
        is_leaf(path) ? leaves++ : others++;
        for (const std::string &deed : deeds_for(node))
            EXPECT_TRUE(done.contains(deed) && done.at(deed).contains(path)) << "no trip has " << deed << " " << path;
    }
    EXPECT_EQ(leaves, 244u);
    EXPECT_EQ(others, 187u);
}
