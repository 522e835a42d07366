// One call of a response entry whose walk is the test's own, with the trees that it is given and all that it does.
#pragma once

#include <gtest/gtest.h>

#include "mapping_run.h"
#include "observer.h"
#include "probe.h"
#include "tree_text.h"
#include "vmf_map_platform.h"

namespace response {

using Lines = std::vector<std::string>;

constexpr uint32_t some_failure = 0x77;
constexpr int32_t untouched = 7;  // in the place of `skip_subtree`

constexpr char mapped_text[] = "bgp oc-bgp\n"
                               "  global\n"
                               "    config\n"
                               "      as = 65001\n"
                               "  neighbors\n";
constexpr char cfg_text[] = "bgp zr-cfg\n"
                            "  instance\n"
                            "    instance-name = default\n";
constexpr char oper_text[] = "bgp zr-oper\n"
                             "  instances\n"
                             "    instance\n"
                             "      instance-name = default\n";
constexpr char other_text[] = "interfaces <urn:other>\n"
                              "  interface\n"
                              "    name = lo0\n";
constexpr char third_text[] = "bgp <urn:third>\n"
                              "  peer = 10.0.0.1\n";

// Lets an operation of the platform fail by its name.
class Failing {
public:
    explicit Failing(const char *operation, uint32_t outcome = some_failure) : operation_(operation), outcome_(outcome)
    {
        platform::observe(&observer_);
    }
    ~Failing() { platform::observe(nullptr); }
    Failing(const Failing &) = delete;
    Failing &operator=(const Failing &) = delete;

private:
    static uint32_t before(void *self, const platform::Operation &operation)
    {
        const auto &failing = *static_cast<Failing *>(self);
        return failing.operation_ == operation.name ? failing.outcome_ : 0;
    }

    const std::string operation_;
    const uint32_t outcome_;
    const platform::Observer observer_ = {before, this};
};

struct EntryRun : support::MappingRun {
    EntryRun(Model native, uint32_t kind, uint32_t response_pending, const std::string &trees)
        : MappingRun(kind), model(native), response_tree(io::read_tree(trees))
    {
        request().response_pending = response_pending;
        probe.walk = [this](MapContext &run, Datatree &tree, Datatree &holder) {
            EXPECT_EQ(&run, &ctx);
            EXPECT_EQ(&tree, native_tree);
            EXPECT_EQ(&holder, &mapped());
            if (!maps.empty()) {
                platform::Tree made = io::read_tree(maps);
                holder = made.root();
                made.root() = {};
                root_before = *holder.subtrees;
                root = holder.subtrees;
            }
            if (after_walk) after_walk();
            probe.released.clear();
            probe.emptied.clear();
            return walk_outcome;
        };
    }

    // Of what the walk made nobody but the mapped tree is the owner, unless a test says otherwise.
    ~EntryRun()
    {
        if (mapped_is_gone) mapped() = {};
        platform::release(detached);
        if (old_array != nullptr && old_array != response().subtrees && !array_grew) {
            for (int32_t i = 0; i < old_count; i++)
                if ((old_array[i].present[0] & VMF_DT_VALUE) != 0) vmf_gpb_free(old_array[i].value);
            kos_named_free(old_array);
        }
        request().kept_mapped_tree = nullptr;
    }

    uint32_t call()
    {
        if (native_tree == nullptr)
            for (Datatree &tree : platform::children_of(response()))
                if (vmf_map_do_these_match(platform::namespace_of(tree), ns().c_str()) != 0) native_tree = &tree;
        old_array = response().subtrees;
        old_count = response().subtree_count;
        text_before = text_of(response_tree);
        const auto entry = model == Model::cfg ? vmf_map_zr_cfg_bgp_to_oc : vmf_map_zr_opr_bgp_to_oc;
        return entry(&ctx, response_is_null ? nullptr : &response(), native_tree, &mapped(), &skip_subtree);
    }

    Datatree &response() { return response_tree.root(); }
    Datatree &mapped() { return mapped_tree.root(); }
    RequestContext &request() { return contexts.request; }
    std::string ns() const { return model == Model::cfg ? ZR_BGP_CFG_NS : ZR_BGP_OPER_NS; }
    bool is_configuration() const { return model == Model::cfg; }

    // All that was said, "ERR text"; nobody but the entry speaks.
    Lines lines()
    {
        Lines texts;
        for (const support::Said &line : said()) {
            EXPECT_EQ(line.function, function());
            texts.push_back(line.level + " " + line.text);
        }
        return texts;
    }
    // What the entry said among others.
    Lines said_by_entry()
    {
        Lines texts;
        for (const support::Said &line : said())
            if (line.function == function()) texts.push_back(line.level + " " + line.text);
        return texts;
    }
    std::string function() const
    {
        return is_configuration() ? "vmf_map_zr_cfg_bgp_to_oc" : "vmf_map_zr_opr_bgp_to_oc";
    }

    Lines labels() const
    {
        Lines all;
        for (const Probe::Printed &printed : probe.printed) all.push_back(printed.label);
        return all;
    }

    void expect_response_untouched()
    {
        EXPECT_EQ(response().subtrees, old_array);
        EXPECT_EQ(text_of(response_tree), text_before);
        expect_nothing_freed();
    }
    void expect_nothing_freed() const
    {
        EXPECT_TRUE(probe.emptied.empty());
        EXPECT_TRUE(probe.released.empty());
    }

    const Model model;
    platform::Tree response_tree;
    platform::Tree mapped_tree;
    Datatree *native_tree = nullptr;  // if null, the tree of the model's namespace
    int32_t skip_subtree = untouched;
    bool response_is_null = false;
    Probe probe;

    std::string maps = mapped_text;  // what the walk makes; empty: nothing
    std::function<void()> after_walk;
    uint32_t walk_outcome = VMF_RC_OK;

    Datatree *root = nullptr;  // the mapped root, and its record as the walk made it
    Datatree root_before = {};
    Datatree *old_array = nullptr;
    int32_t old_count = 0;
    std::string text_before;

    // Who owns what afterwards.
    bool mapped_is_gone = false;  // its root was released
    bool array_grew = false;      // the platform has moved the response's array
    Datatree detached = {};       // children that nobody owns
};

#define AT(what) SCOPED_TRACE(what)

}  // namespace response
