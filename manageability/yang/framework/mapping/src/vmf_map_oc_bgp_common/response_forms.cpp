#include "response_forms.h"

#include <cstdio>
#include <cstdlib>

bool wants_config(const MapContext *ctx) { return ctx->request->state_named == 0; }
bool wants_state(const MapContext *ctx) { return ctx->request->config_named == 0; }

uint32_t write_text(MapContext *ctx, Datatree *mapped, const Native &place, const char *text, Datatree **result)
{
    return add(ctx, mapped, place, {text, nullptr}, result);
}

uint32_t write_copies(MapContext *ctx, Datatree *mapped, const Copies &copies, const char *text)
{
    uint32_t outcome = VMF_RC_OK;
    if (wants_config(ctx)) outcome = write_text(ctx, mapped, copies.config, text);
    if (wants_state(ctx)) outcome = write_text(ctx, mapped, copies.state, text);
    return outcome;
}

// ---- Forms ----------------------------------------------------------------------------------

uint32_t copy_value(MapContext *ctx, Datatree *node, Datatree *mapped, const Copies &copies, const At &at)
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    return log_end(ctx, write_copies(ctx, mapped, copies, value_of(node)), at);
}

uint32_t copy_constant(MapContext *ctx, Datatree *node, Datatree *mapped, const Copies &copies, const char *text,
                       const At &at)
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    return log_end(ctx, write_copies(ctx, mapped, copies, text), at);
}

uint32_t whole_path(MapContext *ctx, Datatree *node, Datatree *mapped, const Native &place, const At &at)
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    return log_end(ctx, write_text(ctx, mapped, place, value_of(node)), at);
}

uint32_t open_path(MapContext *ctx, Datatree *node, Datatree *mapped, const Native &place, const At &at)
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    return log_end(ctx, write_text(ctx, mapped, place, nullptr), at);
}

uint32_t entry_key(MapContext *ctx, Datatree *node, Datatree *mapped, Datatree *Ctx::*held, const Native &entry,
                   const Native &key, const At &at)
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    Datatree *added = nullptr;
    if (uint32_t bad = write_text(ctx, mapped, entry, nullptr, &added)) return log_end(ctx, bad, at);
    ctx->*held = added;
    return log_end(ctx, write_text(ctx, mapped, key, value_of(node)), at);
}

uint32_t empty_container(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *mapped, const Native &place,
                         const At &at)
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    if (!maps_itself(ctx, subtree_count, at)) return log_end(ctx, VMF_RC_OK, at);
    return log_end(ctx, write_text(ctx, mapped, place, nullptr), at);
}

// ---- Families -------------------------------------------------------------------------------

uint32_t write_family_name(MapContext *ctx, Datatree *mapped, const Native &place, const char *name,
                           const char *path_from_entry)
{
    if (uint32_t bad = write_text(ctx, mapped, place, name)) return bad;
    return vmf_map_datatree_add_data_ns(ctx, ctx->*place.under, path_from_entry, OC_BGP_TYPES_NS);
}

static uint32_t write_switch(MapContext *ctx, Datatree *mapped, const Copies &enabled, const Copies &name,
                             const char *native_name)
{
    const RequestContext *request = ctx->request;
    const bool names_key = request->key_leaf_named != 0;
    const bool names_family = request->af_name_leaf_named != 0;
    uint32_t outcome = VMF_RC_OK;
    if (wants_config(ctx)) {
        if (!names_key) outcome = write_text(ctx, mapped, enabled.config, "true");
        if (outcome == VMF_RC_OK && names_family) outcome = write_text(ctx, mapped, name.config, native_name);
    }
    if (wants_state(ctx)) {
        if (!names_key) outcome = write_text(ctx, mapped, enabled.state, "true");
        if (outcome == VMF_RC_OK && names_family) outcome = write_text(ctx, mapped, name.state, native_name);
    }
    return outcome;
}

uint32_t family_switch(MapContext *ctx, Datatree *node, Datatree *mapped, const Copies &enabled, const Copies &name,
                       const char *Ctx::*native_name, const At &at)
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    return log_end(ctx, write_switch(ctx, mapped, enabled, name, ctx->*native_name), at);
}

// ---- AS numbers -----------------------------------------------------------------------------

uint32_t keep_as_high(MapContext *ctx, Datatree *node, Datatree *mapped, const At &at)
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    if (has_value(node)) ctx->remote_as_high = node->value;
    return log_end(ctx, VMF_RC_OK, at);
}

long number_of(const char *text) { return text != nullptr ? std::strtol(text, nullptr, 10) : 0; }

AsText as_text(uint32_t number)
{
    AsText text;
    std::snprintf(text.text, sizeof text.text, "%u", number);
    return text;
}

AsText composed_as(const MapContext *ctx, const Datatree *low)
{
    if (!has_value(low)) return as_text(0);
    const auto high = static_cast<uint32_t>(number_of(ctx->remote_as_high));
    return as_text((high << 16) + static_cast<uint32_t>(number_of(low->value)));
}
