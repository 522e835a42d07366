// What the native model says below `default-vrf/global`.
#include "../vmf_map_oc_bgp_common/response_forms.h"
#include "../vmf_map_oc_bgp_common/zr_handlers.h"

#define GLOBAL_LEAF(path) ZR_CFG_LEAF(_instance_instanceas_fourbyteas_defaultvrf_global_##path)
#define GLOBAL_CONT(path) ZR_CFG_CONT(_instance_instanceas_fourbyteas_defaultvrf_global_##path)
#define SELECTION(leaf) oc_copies(COPIES("/bgp/global/route-selection-options/", "/" leaf))

// clang-format off
// Empty leaves: their presence is the value.
GLOBAL_LEAF(gracefulrestart)      { return copy_constant(ctx, node, mapped, oc_copies(COPIES("/bgp/global/graceful-restart/", "/enabled")), "true"); }
GLOBAL_LEAF(bestpathaigpignore)   { return copy_constant(ctx, node, mapped, SELECTION("enable-aigp"), "false"); }
GLOBAL_LEAF(bestpathaspathlength) { return copy_constant(ctx, node, mapped, SELECTION("ignore-as-path-length"), "true"); }
GLOBAL_LEAF(bestpathmedalways)    { return copy_constant(ctx, node, mapped, SELECTION("always-compare-med"), "true"); }
GLOBAL_LEAF(bestpathrouterid)     { return copy_constant(ctx, node, mapped, SELECTION("external-compare-router-id"), "true"); }

GLOBAL_LEAF(confederationdomain_asxx)                     { return keep_as_high(ctx, node, mapped); }
GLOBAL_LEAF(confederationpeerases_confederationpeeras_asxx) { return keep_as_high(ctx, node, mapped); }
// clang-format on

// ---- Confederation --------------------------------------------------------------------------

// What the request asked for of the state: 0 for all of it.
enum : uint32_t { identifier_named = 1, member_as_named = 2, enabled_named = 4 };

static bool wants_confederation_state(const MapContext *ctx, uint32_t leaf)
{
    const uint32_t named = ctx->request->confederation_state_named;
    return wants_state(ctx) && (named == 0 || (named & leaf) != 0);
}

// Either native container says that there is a confederation; nothing of it is configuration.
static uint32_t confederation_container(MapContext *ctx, Datatree *node, Datatree *mapped, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    uint32_t outcome = VMF_RC_OK;
    if (wants_confederation_state(ctx, enabled_named))
        outcome = write_text(ctx, mapped, oc("/bgp/global/confederation/state/enabled"), "true");
    return log_end(ctx, outcome, at);
}

GLOBAL_CONT(confederationdomain) { return confederation_container(ctx, node, mapped); }
GLOBAL_CONT(confederationpeerases) { return confederation_container(ctx, node, mapped); }

static uint32_t confederation_as(MapContext *ctx, Datatree *node, Datatree *mapped, const Copies &copies, uint32_t leaf,
                                 const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    const AsText as = composed_as(ctx, node);
    uint32_t outcome = VMF_RC_OK;
    if (wants_config(ctx)) outcome = write_text(ctx, mapped, copies.config, as.text);
    if (wants_confederation_state(ctx, leaf)) outcome = write_text(ctx, mapped, copies.state, as.text);
    return log_end(ctx, outcome, at);
}

GLOBAL_LEAF(confederationdomain_asyy)
{
    return confederation_as(ctx, node, mapped, oc_copies(COPIES("/bgp/global/confederation/", "/identifier")),
                            identifier_named);
}

GLOBAL_LEAF(confederationpeerases_confederationpeeras_asyy)
{
    return confederation_as(ctx, node, mapped, repeated(oc_copies(COPIES("/bgp/global/confederation/", "/member-as"))),
                            member_as_named);
}
