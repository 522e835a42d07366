// A run of one of the two walks, with handlers that only note that they were called.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>

#include "mapping_run.h"
#include "observer.h"
#include "probe.h"
#include "tree_text.h"
#include "vmf_map_platform.h"

namespace response {

using Lines = std::vector<std::string>;

constexpr uint32_t some_failure = 0x77;

struct WalkRun : support::MappingRun {
    explicit WalkRun(Model walked, uint32_t kind = VMF_REQ_GET) : MappingRun(kind), model(walked)
    {
        // The native families of a test all have a counterpart.
        probe.on_visit = [](const Visit &visit, MapContext &run) {
            if (visit.handler.ends_with("_afname")) run.af_mapped = 1;
        };
    }

    uint32_t walk(const std::string &text)
    {
        tree = io::read_tree(text);
        return walk();
    }
    uint32_t walk()
    {
        probe.visits.clear();
        probe.entered.clear();
        return walk_of(model)(&ctx, &platform::children_of(tree.root()).front(), &out.root());
    }

    Lines visited() const
    {
        Lines handlers;
        for (const Visit &visit : probe.visits) handlers.push_back(visit.handler);
        return handlers;
    }

    // The own words of the walker of a place, with their level.
    Lines said_by(const std::string &path)
    {
        const std::string walker = symbol("vmf_map_", model, path);
        Lines lines;
        for (const support::Said &line : said())
            if (line.function == walker) lines.push_back(line.level + " " + line.text);
        return lines;
    }

    Lines failures()
    {
        Lines lines;
        for (const support::Said &line : said())
            if (line.level != "TRC") lines.push_back(line.function + ": " + line.level + " " + line.text);
        return lines;
    }

    Model model;
    platform::Tree tree;
    Probe probe;
};

inline Lines framed(Lines words)
{
    words.insert(words.begin(), "TRC Start");
    words.push_back("TRC End");
    return words;
}

inline std::string processing(const std::string &tag) { return "TRC Processing tag '" + tag + "'"; }

inline std::string container_handler(Model model, const std::string &path)
{
    return symbol("vmf_map_cont_", model, path);
}
inline std::string leaf_handler(Model model, const std::string &path) { return symbol("vmf_map_leaf_", model, path); }

inline const Place *find_place(Model model, const std::string &path)
{
    for (const Place &place : places(model))
        if (place.path == path) return &place;
    return nullptr;
}

// The handlers on the way down to a place, its own last.
inline Lines way_to(const Place &place, Model model)
{
    Lines handlers;
    for (size_t end = place.path.find('/', 1);; end = place.path.find('/', end + 1)) {
        const std::string path = place.path.substr(0, end);
        if (!find_place(model, path)->is_list) handlers.push_back(container_handler(model, path));
        if (end == std::string::npos) return handlers;
    }
}

// A child as its walker accepts it: a leaf with a value that every gate lets pass, a list entry that is not empty.
inline std::string child_text(Model model, const Place &place, const std::string &tag)
{
    const Place *child = find_place(model, place.path + "/" + tag);
    if (child == nullptr) return tag + " = default\n";
    return tag + "\n" + (child->is_list ? "  colour\n" : "");
}

inline Lines tags_of(const Place &place)
{
    Lines tags = place.leaves;
    tags.insert(tags.end(), place.children.begin(), place.children.end());
    return tags;
}

// The handler that a child without children of its own leads to; empty for a list.
inline std::string handler_of(Model model, const Place &place, const std::string &tag)
{
    const std::string path = place.path + "/" + tag;
    const Place *child = find_place(model, path);
    if (child == nullptr) return leaf_handler(model, path);
    return child->is_list ? "" : container_handler(model, path);
}

inline std::string path_of_nodes(const Place &place) { return place.path.substr(1); }  // as node_at takes it

inline std::string model_name(const testing::TestParamInfo<Model> &tested) { return name_of(tested.param); }

#define AT(what) SCOPED_TRACE(what)

}  // namespace response
