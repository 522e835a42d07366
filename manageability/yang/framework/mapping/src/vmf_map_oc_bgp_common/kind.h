// What a request wants. Inline: every handler asks first.
#pragma once

#include "vmf_map_types.h"

inline uint32_t kind_of(const MapContext *ctx) { return ctx->request->request_info->kind; }

inline bool is_edit(const MapContext *ctx) { return kind_of(ctx) == VMF_REQ_EDIT; }

inline bool is_get(const MapContext *ctx) { return kind_of(ctx) == VMF_REQ_GET; }

// get-config or get
inline bool is_read(const MapContext *ctx) { return kind_of(ctx) == VMF_REQ_GET_CONFIG || is_get(ctx); }
