// Which function answers, and where it stands.
#include "handlers.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "nodes.h"

using explain::find_handler;
using explain::Handler;

namespace {

constexpr char library[] = "manageability/yang/framework/mapping/src/";

std::string text_of(const std::string &source)
{
    std::ifstream file(SOURCE_DIR "/" + source);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

}  // namespace

TEST(Handlers, AGeneratedDefaultAnswersWhereNobodyWroteAnother)
{
    const Handler handler = find_handler("vmf_map_leaf_oc_bgp_global_config_routerid");
    EXPECT_EQ(handler.symbol, "vmf_map_leaf_oc_bgp_global_config_routerid");
    EXPECT_FALSE(handler.is_override);
    EXPECT_TRUE(handler.is_from_library);
    EXPECT_EQ(handler.source, std::string(library) + "vmf_map_oc_bgp_auto/oc_global.cpp");
    EXPECT_NE(text_of(handler.source).find("global_config_routerid"), std::string::npos);
}

TEST(Handlers, AHandlerWrittenByHandTakesItsPlace)
{
    const Handler handler = find_handler("vmf_map_leaf_oc_bgp_global_config_as");
    EXPECT_TRUE(handler.is_override);
    EXPECT_TRUE(handler.is_from_library);
    EXPECT_EQ(handler.source, std::string(library) + "vmf_map_oc_bgp_man/global.cpp");
    EXPECT_NE(text_of(handler.source).find("config_as"), std::string::npos);
}

TEST(Handlers, ADefinitionOfTheLoadingProgramTakesThePlaceOfBoth)
{
    const Handler handler = find_handler("vmf_map_leaf_oc_bgp_global_confederation_state_enabled");
    EXPECT_TRUE(handler.is_override);
    EXPECT_FALSE(handler.is_from_library);
    EXPECT_NE(handler.source.find("explain_test"), std::string::npos) << handler.source;
}

TEST(Handlers, EveryNodesHandlerStandsInASourceOfItsOwnRoom)
{
    size_t overrides = 0;
    size_t handlers = 0;
    for (const model::OcNode &node : model::openconfig_bgp()) {
        if (node.kind == model::Kind::list) continue;
        const Handler handler = find_handler(node.handler);
        handlers++;
        overrides += handler.is_override ? 1 : 0;
        if (!handler.is_from_library) continue;
        const std::string room = handler.is_override ? "vmf_map_oc_bgp_man/" : "vmf_map_oc_bgp_auto/";
        EXPECT_TRUE(handler.source.starts_with(library + room)) << handler.symbol << " " << handler.source;
        EXPECT_FALSE(text_of(handler.source).empty()) << handler.source;
    }
    EXPECT_EQ(handlers, 426u);
    EXPECT_EQ(overrides, 255u);  // the one of this program takes the place of one written by hand
}

TEST(Handlers, ANameThatIsNoHandlersIsRefused)
{
    EXPECT_THROW(find_handler("vmf_map_leaf_oc_bgp_global_config_colour"), std::runtime_error);
}
