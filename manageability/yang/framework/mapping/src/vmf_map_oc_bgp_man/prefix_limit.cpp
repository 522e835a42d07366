// The prefix limits of neighbors and peer groups: one family of twenty. The native limit stands as a whole or not at
// all, so that companions are written which nobody named.
#include "peer.h"

static constexpr char neighbor_limit[] =
    "/cfg/gl/ip-bgp/default/%d/%d/ord_a/default/nbr/________/edm/ord_u/0x3/%s/________/________/ord_s/%s/ord_g/";
static constexpr char group_limit[] =
    "/cfg/gl/ip-bgp/default/%d/%d/ord_a/default/nbr/________/edm/ord_q/0x2/________/%s/________/ord_s/%s/ord_g/";

static uint32_t max_prefixes(MapContext *ctx, Datatree *node, Datatree *out, const At &at = here())
{
    constexpr Native whole = af("maximum-prefixes");
    constexpr Native limit = af("maximum-prefixes/prefix-limit");
    constexpr Native warning = af("maximum-prefixes/warning-only");
    constexpr Native discard = af("maximum-prefixes/discard-extra-paths");
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    const uint32_t outcome =
        add_branch(ctx, node, out,
                   {.read = {lost(limit), lost(warning), discard},
                    .remove = {lost(whole), lost(warning), discard},
                    .write = {lost(limit), lost(fixed(warning, "false")), fixed(discard, "false")}});
    ctx->prefix_limit_added = 1;
    return log_end(ctx, outcome, at);
}

struct Threshold {
    const char *path_format;
    const char *family_code;
    bool has_source;  // on purpose: four of the neighbor's members have none
};

// Without a threshold the router warns at 75 percent. The limit goes out again beside it: the two stand together.
static uint32_t reset_threshold(MapContext *ctx, Datatree *out, const Threshold &threshold)
{
    if (ctx->prefix_limit_added == 0) {
        const uint32_t bad = vmf_map_oc_bgp_populate_prefixlimit_config_maxprefixes_from_candidate(
            ctx, threshold.path_format, threshold.family_code, ZR_BGP_CFG_NS);
        ctx->prefix_limit_added = 1;
        if (bad != VMF_RC_OK) return bad;
    }
    return add(ctx, out, af("maximum-prefixes/warning-percentage"), {"75", nullptr});
}

static uint32_t shutdown_threshold(MapContext *ctx, Datatree *node, Datatree *out, const Threshold &threshold,
                                   const At &at = here())
{
    constexpr Native percentage = af("maximum-prefixes/warning-percentage");
    if (uint32_t bad = enter(ctx, node, out, at)) return bad;
    uint32_t outcome = VMF_RC_OK;
    switch (branch_of(ctx, node)) {
    case Branch::read: outcome = add(ctx, out, percentage, selection_only); break;
    case Branch::remove: outcome = reset_threshold(ctx, out, threshold); break;
    case Branch::write:
        outcome = add(ctx, out, percentage, {value_of(node), threshold.has_source ? node : nullptr});
        break;
    }
    return log_end(ctx, outcome, at);
}

// clang-format off
NEIGHBOR_FAMILY_LEAF(ipv4unicast_prefixlimit_config_maxprefixes)        { return max_prefixes(ctx, node, out); }
NEIGHBOR_FAMILY_LEAF(ipv6unicast_prefixlimit_config_maxprefixes)        { return max_prefixes(ctx, node, out); }
NEIGHBOR_FAMILY_LEAF(ipv4labeledunicast_prefixlimit_config_maxprefixes) { return max_prefixes(ctx, node, out); }
NEIGHBOR_FAMILY_LEAF(ipv6labeledunicast_prefixlimit_config_maxprefixes) { return max_prefixes(ctx, node, out); }
NEIGHBOR_FAMILY_LEAF(l3vpnipv4unicast_prefixlimit_config_maxprefixes)   { return max_prefixes(ctx, node, out); }
NEIGHBOR_FAMILY_LEAF(l3vpnipv6unicast_prefixlimit_config_maxprefixes)   { return max_prefixes(ctx, node, out); }
NEIGHBOR_FAMILY_LEAF(l3vpnipv4multicast_prefixlimit_config_maxprefixes) { return max_prefixes(ctx, node, out); }
NEIGHBOR_FAMILY_LEAF(l3vpnipv6multicast_prefixlimit_config_maxprefixes) { return max_prefixes(ctx, node, out); }
NEIGHBOR_FAMILY_LEAF(l2vpnvpls_prefixlimit_config_maxprefixes)          { return max_prefixes(ctx, node, out); }
NEIGHBOR_FAMILY_LEAF(l2vpnevpn_prefixlimit_config_maxprefixes)          { return max_prefixes(ctx, node, out); }

GROUP_FAMILY_LEAF(ipv4unicast_prefixlimit_config_maxprefixes)        { return max_prefixes(ctx, node, out); }
GROUP_FAMILY_LEAF(ipv6unicast_prefixlimit_config_maxprefixes)        { return max_prefixes(ctx, node, out); }
GROUP_FAMILY_LEAF(ipv4labeledunicast_prefixlimit_config_maxprefixes) { return max_prefixes(ctx, node, out); }
GROUP_FAMILY_LEAF(ipv6labeledunicast_prefixlimit_config_maxprefixes) { return max_prefixes(ctx, node, out); }
GROUP_FAMILY_LEAF(l3vpnipv4unicast_prefixlimit_config_maxprefixes)   { return max_prefixes(ctx, node, out); }
GROUP_FAMILY_LEAF(l3vpnipv6unicast_prefixlimit_config_maxprefixes)   { return max_prefixes(ctx, node, out); }
GROUP_FAMILY_LEAF(l3vpnipv4multicast_prefixlimit_config_maxprefixes) { return max_prefixes(ctx, node, out); }
GROUP_FAMILY_LEAF(l3vpnipv6multicast_prefixlimit_config_maxprefixes) { return max_prefixes(ctx, node, out); }
GROUP_FAMILY_LEAF(l2vpnvpls_prefixlimit_config_maxprefixes)          { return max_prefixes(ctx, node, out); }
GROUP_FAMILY_LEAF(l2vpnevpn_prefixlimit_config_maxprefixes)          { return max_prefixes(ctx, node, out); }

//                                                                                    code    written with a source
NEIGHBOR_FAMILY_LEAF(ipv4unicast_prefixlimit_config_shutdownthresholdpct)        { return shutdown_threshold(ctx, node, out, {neighbor_limit, "0x0",  true}); }
NEIGHBOR_FAMILY_LEAF(ipv6unicast_prefixlimit_config_shutdownthresholdpct)        { return shutdown_threshold(ctx, node, out, {neighbor_limit, "0x5",  true}); }
NEIGHBOR_FAMILY_LEAF(ipv4labeledunicast_prefixlimit_config_shutdownthresholdpct) { return shutdown_threshold(ctx, node, out, {neighbor_limit, "0x2",  true}); }
NEIGHBOR_FAMILY_LEAF(ipv6labeledunicast_prefixlimit_config_shutdownthresholdpct) { return shutdown_threshold(ctx, node, out, {neighbor_limit, "0x7",  true}); }
NEIGHBOR_FAMILY_LEAF(l3vpnipv4unicast_prefixlimit_config_shutdownthresholdpct)   { return shutdown_threshold(ctx, node, out, {neighbor_limit, "0x4",  true}); }
NEIGHBOR_FAMILY_LEAF(l3vpnipv6unicast_prefixlimit_config_shutdownthresholdpct)   { return shutdown_threshold(ctx, node, out, {neighbor_limit, "0x8",  false}); }
NEIGHBOR_FAMILY_LEAF(l3vpnipv4multicast_prefixlimit_config_shutdownthresholdpct) { return shutdown_threshold(ctx, node, out, {neighbor_limit, "0x10", false}); }
NEIGHBOR_FAMILY_LEAF(l3vpnipv6multicast_prefixlimit_config_shutdownthresholdpct) { return shutdown_threshold(ctx, node, out, {neighbor_limit, "0x11", false}); }
NEIGHBOR_FAMILY_LEAF(l2vpnvpls_prefixlimit_config_shutdownthresholdpct)          { return shutdown_threshold(ctx, node, out, {neighbor_limit, "0xa",  false}); }
NEIGHBOR_FAMILY_LEAF(l2vpnevpn_prefixlimit_config_shutdownthresholdpct)          { return shutdown_threshold(ctx, node, out, {neighbor_limit, "0xe",  true}); }

GROUP_FAMILY_LEAF(ipv4unicast_prefixlimit_config_shutdownthresholdpct)           { return shutdown_threshold(ctx, node, out, {group_limit,    "0x0",  true}); }
GROUP_FAMILY_LEAF(ipv6unicast_prefixlimit_config_shutdownthresholdpct)           { return shutdown_threshold(ctx, node, out, {group_limit,    "0x5",  true}); }
GROUP_FAMILY_LEAF(ipv4labeledunicast_prefixlimit_config_shutdownthresholdpct)    { return shutdown_threshold(ctx, node, out, {group_limit,    "0x2",  true}); }
GROUP_FAMILY_LEAF(ipv6labeledunicast_prefixlimit_config_shutdownthresholdpct)    { return shutdown_threshold(ctx, node, out, {group_limit,    "0x7",  true}); }
GROUP_FAMILY_LEAF(l3vpnipv4unicast_prefixlimit_config_shutdownthresholdpct)      { return shutdown_threshold(ctx, node, out, {group_limit,    "0x4",  true}); }
GROUP_FAMILY_LEAF(l3vpnipv6unicast_prefixlimit_config_shutdownthresholdpct)      { return shutdown_threshold(ctx, node, out, {group_limit,    "0x8",  true}); }
GROUP_FAMILY_LEAF(l3vpnipv4multicast_prefixlimit_config_shutdownthresholdpct)    { return shutdown_threshold(ctx, node, out, {group_limit,    "0x10", true}); }
GROUP_FAMILY_LEAF(l3vpnipv6multicast_prefixlimit_config_shutdownthresholdpct)    { return shutdown_threshold(ctx, node, out, {group_limit,    "0x11", true}); }
GROUP_FAMILY_LEAF(l2vpnvpls_prefixlimit_config_shutdownthresholdpct)             { return shutdown_threshold(ctx, node, out, {group_limit,    "0xa",  true}); }
GROUP_FAMILY_LEAF(l2vpnevpn_prefixlimit_config_shutdownthresholdpct)             { return shutdown_threshold(ctx, node, out, {group_limit,    "0xe",  true}); }
// clang-format on
