#include <cstdarg>
#include <cstdio>
#include <cstdlib>

#include "frame.h"

void speak_start(MapContext *ctx, const char *function, int line, uint32_t log_is_on)
{
    VMF_SPEAK_(ctx, &ctx->_debug_ctx, (At{function, nullptr, line}), log_is_on, "TRC", trc_filter, "Start");
}

void speak_end(MapContext *ctx, const char *function, int line, uint32_t log_is_on)
{
    VMF_SPEAK_(ctx, &ctx->_debug_ctx, (At{function, nullptr, line}), log_is_on, "TRC", trc_filter, "End");
}

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
__attribute__((no_sanitize("address", "undefined"))) void assertion_failed(const char *file, int line,
                                                                           const char *expression)
{
    flockfile(stderr);
    std::fprintf(stderr, "%s: %d %s -- assertion failed\n", file, line, expression);
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Warray-bounds"
    *reinterpret_cast<volatile uint32_t *>(1) = 0;
#pragma GCC diagnostic pop
    std::abort();
}

uint32_t refuse_arguments(MapContext *ctx, const char *function, int line)
{
    VMF_ERR(ctx, (At{function, nullptr, line}), "Invalid arguments passed!");
    return VMF_RC_BAD_ARGS;
}

uint32_t refuse_null_arguments(MapContext *ctx, const char *function, int line)
{
    VMF_ERR(ctx, (At{function, nullptr, line}), "NULL argument(s) passed!");
    return VMF_RC_BAD_ARGS;
}
