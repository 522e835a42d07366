// Paths that a person writes.
#include "paths.h"

#include <gtest/gtest.h>

#include "document.h"

using explain::read_asked;

TEST(Paths, KeysStandWithAndWithoutQuotesAndPrefixes)
{
    const char *const written[] = {
        "/bgp/neighbors/neighbor[neighbor-address=10.0.0.1]/config/peer-as",
        "/bgp/neighbors/neighbor[neighbor-address='10.0.0.1']/config/peer-as",
        "/bgp/neighbors/neighbor[neighbor-address=\"10.0.0.1\"]/config/peer-as",
        "/oc-bgp:bgp/oc-bgp:neighbors/neighbor[oc-bgp:neighbor-address=10.0.0.1]/config/peer-as",
    };
    for (const char *path : written) {
        const explain::Asked asked = read_asked(path);
        ASSERT_NE(asked.target.node, nullptr) << path << ": " << asked.reason;
        EXPECT_EQ(asked.target.path(), "/bgp/neighbors/neighbor[neighbor-address='10.0.0.1']/config/peer-as");
    }
}

TEST(Paths, AnAddressIsKeptAsTheRouterKeepsIt)
{
    EXPECT_EQ(read_asked("/bgp/neighbors/neighbor[neighbor-address=2001:DB8::1]/config").target.path(),
              "/bgp/neighbors/neighbor[neighbor-address='2001:db8::1']/config");
}

TEST(Paths, KeysThatAreLeftOutAreMadeWithAFamilyThatTheMappingTakes)
{
    EXPECT_EQ(read_asked("/bgp/peer-groups/peer-group/afi-safis/afi-safi/ipv6-unicast").target.path(),
              "/bgp/peer-groups/peer-group[peer-group-name='UPSTREAM']/afi-safis/"
              "afi-safi[afi-safi-name='IPV6_UNICAST']/ipv6-unicast");
}

TEST(Paths, WhatLeadsNowhereIsToldApart)
{
    const std::pair<const char *, const char *> cases[] = {
        {"/bgp/global/config/colour", "not mapped: /bgp/global/config has no colour"},
        {"/bgp/neighbors/neighbor[name=x]/config", "wrong key: /bgp/neighbors/neighbor has the key neighbor-address"},
        {"/bgp/neighbors/neighbor[neighbor-address=x]/config", "wrong key: neighbor-address cannot be \"x\""},
        {"/bgp/global/afi-safis/afi-safi[afi-safi-name=IPV9]/config", "wrong key: afi-safi-name cannot be \"IPV9\""},
        {"/bgp/global[as=1]/config", "wrong key: /bgp/global is no list"},
    };
    for (const auto &[path, reason] : cases) {
        const explain::Asked asked = read_asked(path);
        EXPECT_EQ(asked.target.node, nullptr) << path;
        EXPECT_TRUE(asked.reason.starts_with(reason)) << asked.reason;
    }
}

TEST(Paths, ATextThatIsNoPathIsRefusedWithItsPlace)
{
    for (const char *text : {"bgp", "/bgp/", "/bgp/neighbors/neighbor[neighbor-address]", ""})
        EXPECT_THROW(read_asked(text), io::InputError) << text;
}

TEST(Paths, TheNearestTakeTheFewestChanges)
{
    const auto nearest = [](const char *path) {
        return explain::nearest_paths(path, explain::openconfig_paths(), 1).front();
    };
    EXPECT_EQ(nearest("/bgp/global/config/router-di"), "/bgp/global/config/router-id");
    EXPECT_EQ(nearest("/bgp/neighbor/config/peer-as"), "/bgp/neighbors/neighbor/config/peer-as");
    EXPECT_EQ(nearest("/bgp/neighbors/neighbor/config/session-state"), "/bgp/neighbors/neighbor/state/session-state");
    EXPECT_EQ(nearest("/bgp/global/confederation/identifier"), "/bgp/global/confederation/config/identifier");
}

TEST(Paths, NativePathsLoseKeysAndPrefixes)
{
    EXPECT_EQ(explain::native_path_of("/zr:bgp/instance[instance-name='a/b]']/instance-as[as=0]/as"),
              "/bgp/instance/instance-as/as");
}
