// The native instance and its AS number.
#include "../vmf_map_oc_bgp_common/response_forms.h"
#include "../vmf_map_oc_bgp_common/zr_handlers.h"

// The instance's name is dropped: OpenConfig knows one instance.
ZR_CFG_LEAF(_instance_instancename) { return open_path(ctx, node, mapped, oc("/bgp")); }

ZR_CFG_LEAF(_instance_instanceas_as)
{
    if (uint32_t bad = enter(ctx, node, mapped)) return bad;
    if (has_value(node)) ctx->as_high = static_cast<uint32_t>(number_of(node->value));
    return log_end(ctx, VMF_RC_OK);
}

static uint32_t write_as(MapContext *ctx, const Datatree *node, Datatree *mapped, const At &at)
{
    if (ctx->request->global_as_named == 0) {
        VMF_TRC(ctx, at, "global/as should not be added.");
        return VMF_RC_OK;
    }
    if (!has_value(node)) {
        VMF_TRC(ctx, at, "AS number is not set.");
        return VMF_RC_OK;
    }
    const AsText as = as_text((ctx->as_high << 16) + static_cast<uint32_t>(number_of(node->value)));
    return write_copies(ctx, mapped, oc_copies(COPIES("/bgp/global/", "/as")), as.text);
}

ZR_CFG_LEAF(_instance_instanceas_fourbyteas_as)
{
    if (uint32_t bad = enter(ctx, node, mapped)) return bad;
    return log_end(ctx, write_as(ctx, node, mapped, here()));
}
