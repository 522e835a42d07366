#include <cstdarg>
#include <cstdio>
#include <cstdlib>

#include "frame.h"

void log_start(MapContext *ctx, At at)
{
    if (ctx == nullptr) assertion_failed(at, "NULL != ctx");
    const uint32_t log_is_on = vmf_debug_should_log(&ctx->_debug_ctx, 3);
    if (lies_at_null(&ctx->_debug_ctx)) assertion_failed(at, "NULL != (&((ctx)->_debug_ctx))");
    VMF_SPEAK_(ctx, &ctx->_debug_ctx, at, log_is_on, "TRC", trc_filter, "Start");
}

void say_end(MapContext *ctx, At at) { VMF_TRC(ctx, at, "End"); }

void trace_line(const VmfDebugContext *debug, const char *format, ...)
{
    char line[1024];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line, sizeof line, format, arguments);
    va_end(arguments);
    _lstrace(debug->trace_buffer, VMF_LSTRACE_FLAGS, line);
}

// The fault at address 1 tells a core dump apart from any other abort. Nobody unlocks stderr again: no other thread
// shall write between the line and the end of the process.
__attribute__((no_sanitize("address", "undefined"))) void assertion_failed(At at, const char *expression)
{
    flockfile(stderr);
    std::fprintf(stderr, "%s: %d %s -- assertion failed\n", at.file, at.line, expression);
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Warray-bounds"
    *reinterpret_cast<volatile uint32_t *>(1) = 0;
#pragma GCC diagnostic pop
    std::abort();
}

uint32_t enter(MapContext *ctx, const Datatree *node, const Datatree *out, At at)
{
    log_start(ctx, at);
    if (node != nullptr && out != nullptr) return VMF_RC_OK;
    VMF_ERR(ctx, at, "Invalid arguments passed!");
    return VMF_RC_BAD_ARGS;
}

uint32_t enter_service(MapContext *ctx, std::initializer_list<const void *> required, At at)
{
    log_start(ctx, at);
    for (const void *argument : required) {
        if (argument != nullptr) continue;
        VMF_ERR(ctx, at, "NULL argument(s) passed!");
        return VMF_RC_BAD_ARGS;
    }
    return VMF_RC_OK;
}
