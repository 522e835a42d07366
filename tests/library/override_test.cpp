// A handler that somebody else defines: in the library, where it beats the weak default, and in the program that loads
// the library, where it beats both.
#include <gtest/gtest.h>

#include "names.h"
#include "trace.h"
#include "tree.h"
#include "vmf_map_oc_bgp_handlers.h"
#include "vmf_map_oc_bgp_walkers.h"

// ---- The handlers of this program -----------------------------------------------------------

static std::vector<std::string> called;

static uint32_t note(const char *handler)
{
    called.push_back(handler);
    return 0x77;
}

extern "C" {

// Weak in the library.
uint32_t vmf_map_leaf_oc_bgp_global_gracefulrestart_config_restarttime(MapContext *, Datatree *, Datatree *)
{
    return note("restart-time");
}

// Strong in the library.
uint32_t vmf_map_cont_oc_bgp_global_confederation_config(MapContext *, Datatree *, int32_t, Datatree *)
{
    return note("confederation/config");
}

// Called by another handler of the library.
uint32_t vmf_map_leaf_oc_bgp_global_state_as(MapContext *, Datatree *, Datatree *) { return note("state/as"); }

// Called by a default of the library.
uint32_t vmf_map_man_leaf_oc_bgp_global_state_totalpaths(MapContext *, Datatree *, Datatree *)
{
    return note("total-paths by hand");
}

}  // extern "C"

namespace {

struct OverrideTest : testing::Test {
    OverrideTest()
    {
        called.clear();
        ctx.request = &request;
        request.request_info = &info;
        ctx.as_low = 65001;
        log.trace = &trace;
        platform::connect(ctx._debug_ctx, log);
    }

    // A request with one node at a path of tags; gives the last one.
    Datatree &make_request(const std::vector<const char *> &tags, const char *value)
    {
        Datatree *node = &tree.root();
        for (const char *tag : tags) node = platform::append_child(*node, platform::intern(tag), nullptr);
        if (value != nullptr) platform::set_value(*node, value);
        return *node;
    }

    const Datatree *find(const std::vector<std::string> &tags) const
    {
        const Datatree *node = &out.root();
        for (const std::string &tag : tags) {
            const Datatree *found = nullptr;
            for (const Datatree &child : platform::children_of(*node))
                if (tag == platform::tag_of(child)) found = &child;
            if (found == nullptr) return nullptr;
            node = found;
        }
        return node;
    }

    bool said(const std::string &function)
    {
        bool is_there = false;
        for (const std::string &line : trace.take()) is_there |= line.find(": " + function + ":") != std::string::npos;
        return is_there;
    }

    VmfRequestInfo info = {VMF_REQ_EDIT};
    RequestContext request = {};
    platform::TraceBuffer trace{1000};
    platform::Log log;
    MapContext ctx = {};
    platform::Tree tree, out;
};

const std::vector<std::string> by_hand = {"bgp", "instance", "instance-as", "four-byte-as", "by-hand"};
const std::vector<std::string> by_default = {"bgp",         "instance", "instance-as", "four-byte-as",
                                             "default-vrf", "global",   "router-id"};

TEST_F(OverrideTest, a_strong_definition_is_what_the_walk_reaches)
{
    Datatree &bgp = make_request({"bgp"}, nullptr);
    Datatree *node = platform::append_child(bgp, "global", nullptr);
    node = platform::append_child(*node, "config", nullptr);
    node = platform::append_child(*node, "router-id", nullptr);
    platform::set_value(*node, "10.0.0.1");
    ASSERT_EQ(vmf_map_oc_bgp(&ctx, &bgp, &out.root()), VMF_RC_OK);
    ASSERT_NE(find(by_hand), nullptr);
    EXPECT_STREQ(platform::value_of(*find(by_hand)), "10.0.0.1");
    EXPECT_EQ(find(by_default), nullptr);
    EXPECT_FALSE(said("__vmf_map_leaf_oc_bgp_global_config_routerid"));
}

TEST_F(OverrideTest, the_default_stays_callable_under_its_own_name)
{
    Datatree &node = make_request({"router-id"}, "10.0.0.1");
    ASSERT_EQ(__vmf_map_leaf_oc_bgp_global_config_routerid(&ctx, &node, &out.root()), VMF_RC_OK);
    ASSERT_NE(find(by_default), nullptr);
    EXPECT_STREQ(platform::value_of(*find(by_default)), "10.0.0.1");
    EXPECT_EQ(find(by_hand), nullptr);
    EXPECT_TRUE(said("__vmf_map_leaf_oc_bgp_global_config_routerid"));
}

TEST_F(OverrideTest, the_loading_programs_definition_takes_the_place_of_a_default)
{
    Datatree &node = make_request({"restart-time"}, "120");
    EXPECT_EQ(vmf_map_oc_bgp_global_gracefulrestart_config_restarttime(&ctx, &node, &out.root()), 0x77u);
    EXPECT_EQ(called, std::vector<std::string>{"restart-time"});
    EXPECT_FALSE(said("__vmf_map_leaf_oc_bgp_global_gracefulrestart_config_restarttime"));

    EXPECT_EQ(__vmf_map_leaf_oc_bgp_global_gracefulrestart_config_restarttime(&ctx, &node, &out.root()), VMF_RC_OK);
    EXPECT_TRUE(said("__vmf_map_leaf_oc_bgp_global_gracefulrestart_config_restarttime"));
}

TEST_F(OverrideTest, the_loading_programs_definition_takes_the_place_of_a_handler_written_by_hand)
{
    Datatree &node = make_request({"config"}, nullptr);
    EXPECT_EQ(vmf_map_oc_bgp_global_confederation_config(&ctx, &node, &out.root()), 0x77u);
    EXPECT_EQ(called, std::vector<std::string>{"confederation/config"});
}

TEST_F(OverrideTest, handlers_call_each_other_by_their_public_names)
{
    info.kind = VMF_REQ_GET;
    Datatree &node = make_request({"state"}, nullptr);
    EXPECT_EQ(vmf_map_cont_oc_bgp_global_state(&ctx, &node, 0, &out.root()), 0x77u);
    EXPECT_EQ(called, std::vector<std::string>{"state/as"});
}

TEST_F(OverrideTest, a_default_forwards_to_the_body_by_its_public_name)
{
    Datatree &node = make_request({"total-paths"}, nullptr);
    EXPECT_EQ(__vmf_map_leaf_oc_bgp_global_state_totalpaths(&ctx, &node, &out.root()), 0x77u);
    EXPECT_EQ(called, std::vector<std::string>{"total-paths by hand"});
}

}  // namespace
