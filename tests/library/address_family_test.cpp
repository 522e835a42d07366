// The address-family tables, cell by cell, and the functions that search them.
#include <gtest/gtest.h>

#include "vmf_map_oc_bgp.h"

namespace {

struct Row {
    const char *identity, *native, *operational, *container;
};

constexpr Row rows[12] = {
    {"IPV4_UNICAST", "ipv4-unicast", "ipv4", "ipv4-unicast"},
    {"IPV6_UNICAST", "ipv6-unicast", "ipv6", "ipv6-unicast"},
    {"IPV4_LABELED_UNICAST", "ipv4-labeled-unicast", "ipv4-labeled", "ipv4-labeled-unicast"},
    {"IPV6_LABELED_UNICAST", "ipv6-labeled-unicast", "ipv6-labeled", "ipv6-labeled-unicast"},
    {"L3VPN_IPV4_UNICAST", "vp-nv4-unicast", "vp-nv4", "l3vpn-ipv4-unicast"},
    {"L3VPN_IPV6_UNICAST", "vp-nv6-unicast", "vp-nv6", "l3vpn-ipv6-unicast"},
    {"L3VPN_IPV4_MULTICAST", "vp-nv4-multicast", "vp-nv4-multicast", "l3vpn-ipv4-multicast"},
    {"L3VPN_IPV6_MULTICAST", "vp-nv6-multicast", "vp-nv6-multicast", "l3vpn-ipv6-multicast"},
    {"L2VPN_VPLS", "l2vpnvpls", "l2vpn-vpls", "l2vpn-vpls"},
    {"L2VPN_EVPN", "l2vpnevpn", "l2vpn-evpn", "l2vpn-evpn"},
    {"IPV4_MULTICAST", "ipv4-multicast", "ipv4-multicast", "ipv4-multicast"},
    {"IPV6_MULTICAST", "ipv6-multicast", "ipv6-multicast", "ipv6-multicast"},
};

constexpr uint32_t untouched = 99;

TEST(AddressFamily, the_tables_hold_these_words)
{
    for (size_t i = 0; i < std::size(rows); i++) {
        SCOPED_TRACE(i);
        EXPECT_STREQ(oc_zr_af_names[i][0], rows[i].identity);
        EXPECT_STREQ(oc_zr_af_names[i][1], rows[i].native);
        EXPECT_STREQ(oc_zr_nbr_oper_af_names[i][0], rows[i].identity);
        EXPECT_STREQ(oc_zr_nbr_oper_af_names[i][1], rows[i].operational);
        EXPECT_STREQ(oc_bgp_af_container[i][0], rows[i].container);
        EXPECT_STREQ(oc_bgp_af_container[i][1], rows[i].native);
    }
    static_assert(sizeof oc_zr_af_names == sizeof(const char *[12][2]));
    static_assert(sizeof oc_zr_nbr_oper_af_names == sizeof(const char *[12][2]));
    static_assert(sizeof oc_bgp_af_container == sizeof(const char *[12][2]));
}

TEST(AddressFamily, a_native_word_becomes_the_identity_in_either_mode)
{
    for (uint32_t i = 0; i < std::size(rows); i++)
        for (const uint32_t both : {0u, 1u, 0x80000000u}) {
            uint32_t row = untouched;
            EXPECT_STREQ(vmf_map_af_name(rows[i].native, both, &row), rows[i].identity);
            EXPECT_EQ(row, i);
            EXPECT_STREQ(vmf_map_af_name(rows[i].native, both, nullptr), rows[i].identity);
        }
}

TEST(AddressFamily, an_identity_becomes_the_native_word_only_if_both_ways_are_asked_for)
{
    for (uint32_t i = 0; i < std::size(rows); i++) {
        uint32_t row = untouched;
        EXPECT_EQ(vmf_map_af_name(rows[i].identity, 0, &row), nullptr);
        EXPECT_EQ(row, untouched);
        EXPECT_STREQ(vmf_map_af_name(rows[i].identity, 1, &row), rows[i].native);
        EXPECT_EQ(row, i);
        EXPECT_STREQ(vmf_map_af_name(rows[i].identity, 1, nullptr), rows[i].native);
    }
}

TEST(AddressFamily, an_unknown_word_gives_nothing_and_leaves_the_row)
{
    for (const char *word : {"ipv4-Unicast", "Ipv4-unicast", "ipv4_unicast", "ipv4", "", "l3vpn-ipv4-unicast", "vp-nv4",
                             "l2vpn-vpls", "IPV4_UNICAST ", static_cast<const char *>(nullptr)})
        for (const uint32_t both : {0u, 1u}) {
            uint32_t row = untouched;
            EXPECT_EQ(vmf_map_af_name(word, both, &row), nullptr);
            EXPECT_EQ(row, untouched);
        }
}

TEST(AddressFamily, a_native_word_has_a_container)
{
    for (const Row &row : rows) EXPECT_STREQ(vmf_map_oc_bgp_af_container(row.native), row.container);
    for (const char *word : {"l2vpn-vpls", "l3vpn-ipv4-unicast", "vp-nv4", "IPV4_UNICAST", "Ipv4-unicast", "",
                             static_cast<const char *>(nullptr)})
        EXPECT_EQ(vmf_map_oc_bgp_af_container(word), nullptr);
}

TEST(AddressFamily, four_families_have_a_code)
{
    EXPECT_STREQ(vmf_map_get_af_value("ipv4-unicast"), "0x0");
    EXPECT_STREQ(vmf_map_get_af_value("ipv4-labeled-unicast"), "0x2");
    EXPECT_STREQ(vmf_map_get_af_value("ipv6-unicast"), "0x5");
    EXPECT_STREQ(vmf_map_get_af_value("ipv6-labeled-unicast"), "0x7");
    for (size_t i = 4; i < std::size(rows); i++) EXPECT_EQ(vmf_map_get_af_value(rows[i].native), nullptr);
    for (const char *word : {"IPV4_UNICAST", "", "ipv4-unicast ", static_cast<const char *>(nullptr)})
        EXPECT_EQ(vmf_map_get_af_value(word), nullptr);
}

TEST(AddressFamily, an_ipv4_neighbor_may_have_any_family_but_ipv6_multicast)
{
    for (const Row &row : rows)
        EXPECT_EQ(vmf_map_is_neighbor_af_name_valid("10.0.0.1", row.native) != 0,
                  std::string_view(row.native) != "ipv6-multicast")
            << row.native;
    for (const char *word : {"colour", "", "IPV6_MULTICAST"})
        EXPECT_NE(vmf_map_is_neighbor_af_name_valid("10.0.0.1", word), 0u) << word;
}

TEST(AddressFamily, any_other_neighbor_may_have_three_ipv6_families)
{
    for (const char *address : {"2001:db8::1", "peer", "", "10.0.0.256"})
        for (const Row &row : rows) {
            const std::string_view name = row.native;
            EXPECT_EQ(vmf_map_is_neighbor_af_name_valid(address, row.native) != 0,
                      name == "ipv6-unicast" || name == "ipv6-multicast" || name == "ipv6-labeled-unicast")
                << address << " " << name;
        }
    EXPECT_EQ(vmf_map_is_neighbor_af_name_valid("2001:db8::1", "colour"), 0u);
}

TEST(AddressFamily, null_is_no_address_and_no_family)
{
    EXPECT_EQ(vmf_map_is_neighbor_af_name_valid("10.0.0.1", nullptr), 0u);
    EXPECT_EQ(vmf_map_is_neighbor_af_name_valid("2001:db8::1", nullptr), 0u);
    EXPECT_EQ(vmf_map_is_neighbor_af_name_valid(nullptr, "ipv6-multicast"), 0u);
    EXPECT_EQ(vmf_map_is_neighbor_af_name_valid(nullptr, nullptr), 0u);
}

}  // namespace
