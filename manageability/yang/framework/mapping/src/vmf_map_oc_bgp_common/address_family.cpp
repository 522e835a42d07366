// The names of an address family in the four places that have one of their own. The row of a family is the same in
// all three tables, and its bit in the address-family bitmaps.
#include "vmf_map_oc_bgp.h"

static constexpr uint32_t families = 12;

// clang-format off
extern "C" {
const char *const oc_zr_af_names[families][2] = {
    {"IPV4_UNICAST",         "ipv4-unicast"},
    {"IPV6_UNICAST",         "ipv6-unicast"},
    {"IPV4_LABELED_UNICAST", "ipv4-labeled-unicast"},
    {"IPV6_LABELED_UNICAST", "ipv6-labeled-unicast"},
    {"L3VPN_IPV4_UNICAST",   "vp-nv4-unicast"},
    {"L3VPN_IPV6_UNICAST",   "vp-nv6-unicast"},
    {"L3VPN_IPV4_MULTICAST", "vp-nv4-multicast"},
    {"L3VPN_IPV6_MULTICAST", "vp-nv6-multicast"},
    {"L2VPN_VPLS",           "l2vpnvpls"},
    {"L2VPN_EVPN",           "l2vpnevpn"},
    {"IPV4_MULTICAST",       "ipv4-multicast"},
    {"IPV6_MULTICAST",       "ipv6-multicast"},
};

const char *const oc_zr_nbr_oper_af_names[families][2] = {
    {"IPV4_UNICAST",         "ipv4"},
    {"IPV6_UNICAST",         "ipv6"},
    {"IPV4_LABELED_UNICAST", "ipv4-labeled"},
    {"IPV6_LABELED_UNICAST", "ipv6-labeled"},
    {"L3VPN_IPV4_UNICAST",   "vp-nv4"},
    {"L3VPN_IPV6_UNICAST",   "vp-nv6"},
    {"L3VPN_IPV4_MULTICAST", "vp-nv4-multicast"},
    {"L3VPN_IPV6_MULTICAST", "vp-nv6-multicast"},
    {"L2VPN_VPLS",           "l2vpn-vpls"},
    {"L2VPN_EVPN",           "l2vpn-evpn"},
    {"IPV4_MULTICAST",       "ipv4-multicast"},
    {"IPV6_MULTICAST",       "ipv6-multicast"},
};

const char *const oc_bgp_af_container[families][2] = {
    {"ipv4-unicast",         "ipv4-unicast"},
    {"ipv6-unicast",         "ipv6-unicast"},
    {"ipv4-labeled-unicast", "ipv4-labeled-unicast"},
    {"ipv6-labeled-unicast", "ipv6-labeled-unicast"},
    {"l3vpn-ipv4-unicast",   "vp-nv4-unicast"},
    {"l3vpn-ipv6-unicast",   "vp-nv6-unicast"},
    {"l3vpn-ipv4-multicast", "vp-nv4-multicast"},
    {"l3vpn-ipv6-multicast", "vp-nv6-multicast"},
    {"l2vpn-vpls",           "l2vpnvpls"},
    {"l2vpn-evpn",           "l2vpnevpn"},
    {"ipv4-multicast",       "ipv4-multicast"},
    {"ipv6-multicast",       "ipv6-multicast"},
};
}
// clang-format on

// The system database knows a family by a number. Only these four can be asked for by name.
static constexpr const char *codes[][2] = {
    {"ipv4-unicast", "0x0"},
    {"ipv4-labeled-unicast", "0x2"},
    {"ipv6-unicast", "0x5"},
    {"ipv6-labeled-unicast", "0x7"},
};

static bool match(const char *a, const char *b)
{
    return a != nullptr && b != nullptr && vmf_map_do_these_match(a, b) != 0;
}

extern "C" const char *vmf_map_af_name(const char *name, uint32_t both, uint32_t *row)
{
    for (uint32_t i = 0; i < families; i++) {
        const char *other = nullptr;
        if (both != 0 && match(name, oc_zr_af_names[i][0]))
            other = oc_zr_af_names[i][1];
        else if (match(name, oc_zr_af_names[i][1]))
            other = oc_zr_af_names[i][0];
        if (other == nullptr) continue;
        if (row != nullptr) *row = i;
        return other;
    }
    return nullptr;
}

extern "C" const char *vmf_map_oc_bgp_af_container(const char *af_name)
{
    for (const auto &row : oc_bgp_af_container) {
        if (match(af_name, row[1])) return row[0];
    }
    return nullptr;
}

extern "C" const char *vmf_map_get_af_value(const char *af_name)
{
    for (const auto &row : codes) {
        if (match(af_name, row[0])) return row[1];
    }
    return nullptr;
}

extern "C" uint32_t vmf_map_is_neighbor_af_name_valid(const char *address, const char *af_name)
{
    if (address == nullptr || af_name == nullptr) return 0;
    if (vmf_map_is_valid_ipv4_addr(address) != 0) return match(af_name, "ipv6-multicast") ? 0 : 1;
    return match(af_name, "ipv6-unicast") || match(af_name, "ipv6-multicast") || match(af_name, "ipv6-labeled-unicast")
               ? 1
               : 0;
}
