// How a mapping function reports: the log statement with its two channels, the frame of a function, the assertion.
// For the mapping itself and for whoever writes an override.
#pragma once

#include <cstdint>

#include "vmf_map_platform.h"
#include "vmf_map_types.h"

// The place that a log line names. A shared form takes its caller's, so that a reader of the trace sees the handler
// that stands in the model and the line where it calls the form.
struct At {
    const char *function;  // the exported name
    const char *file;      // from the repository's root
    int line;
};

// The place of the call itself; as a default argument, the place of the caller.
constexpr At here(const char *function = __builtin_FUNCTION(), const char *file = __builtin_FILE(),
                  int line = __builtin_LINE())
{
    return {function, file, line};
}

// Writes "FILE: LINE EXPRESSION -- assertion failed" to stderr and ends the process with a memory fault at address 1.
[[noreturn]] void assertion_failed(const char *file, int line, const char *expression);

// An address that the compiler must take as unknown: the member of a record that is not null never lies at null, and
// the test for it, with the text of its assertion, would be removed.
inline bool lies_at_null(const void *address)
{
    __asm__("" : "+r"(address));
    return address == nullptr;
}

// What of a statement is left when one of its channels is on; the log's test is done. The place comes in parts: it need
// not be written down before it is needed.
void speak_start(MapContext *ctx, const char *function, int line, uint32_t log_is_on);
void speak_end(MapContext *ctx, const char *function, int line, uint32_t log_is_on);

// Asserts `ctx` and its debug context, logs "Start". Every mapping function opens with it.
inline void log_start(MapContext *ctx, const At &at = here())
{
    if (ctx == nullptr) assertion_failed(at.file, at.line, "NULL != ctx");
    const uint32_t log_is_on = vmf_debug_should_log(&ctx->_debug_ctx, 3);
    if (lies_at_null(&ctx->_debug_ctx)) assertion_failed(at.file, at.line, "NULL != (&((ctx)->_debug_ctx))");
    if (__builtin_expect(log_is_on != 0 || ctx->_debug_ctx.trace_enabled != 0, 0))
        speak_start(ctx, at.function, at.line, log_is_on);
}

// Logs "End" and gives `outcome` back. Every return but the one for bad arguments goes through it.
inline uint32_t log_end(MapContext *ctx, uint32_t outcome, const At &at = here())
{
    const uint32_t log_is_on = vmf_debug_should_log(&ctx->_debug_ctx, 3);
    if (__builtin_expect(log_is_on != 0 || ctx->_debug_ctx.trace_enabled != 0, 0))
        speak_end(ctx, at.function, at.line, log_is_on);
    return outcome;
}

// Formats one numbered line into the trace buffer. Only for the statements below, which ask first whether it is on.
void trace_line(const VmfDebugContext *debug, const char *format, ...) __attribute__((format(printf, 2, 3)));

// One statement, two channels, each tested by itself before anything is formatted. `text` and its arguments follow
// printf; the arguments are evaluated once for each channel that is on, so they have no side effects. Each statement
// owns one site word, which belongs to the log filter. Statements stand in functions of source files: in a header, a
// lambda or a template the site word would become an exported symbol, or the name in the line "operator()".
#define VMF_ERR(ctx, at, ...) VMF_STATEMENT_(ctx, &(ctx)->_debug_ctx, at, 0, "ERR", err_filter, __VA_ARGS__)
#define VMF_DBG(ctx, at, ...) VMF_STATEMENT_(ctx, &(ctx)->_debug_ctx, at, 2, "DBG", dbg_filter, __VA_ARGS__)
#define VMF_TRC(ctx, at, ...) VMF_STATEMENT_(ctx, &(ctx)->_debug_ctx, at, 3, "TRC", trc_filter, __VA_ARGS__)

#define VMF_STATEMENT_(speaker, debug, at, level, ...)                                                                 \
    VMF_SPEAK_(speaker, debug, at, vmf_debug_should_log(debug, level), __VA_ARGS__)

#define VMF_SPEAK_(speaker, debug, at, log_is_on, prefix, filter, text, ...)                                           \
    do {                                                                                                               \
        static uint32_t site = 0xFFFFFFFF;                                                                             \
        if (__builtin_expect((log_is_on) != 0, 0))                                                                     \
            _kos_dt_log_filter_adv((debug)->filter, 0, 0, 0, 0, 0, &site, prefix ": VMF: ctx=%p," text,                \
                                   static_cast<const void *>(speaker) __VA_OPT__(, ) __VA_ARGS__);                     \
        if (__builtin_expect((debug)->trace_enabled != 0, 0))                                                          \
            trace_line(debug, "#%u: " prefix ": %s:%d ctx=%p," text, ret_nc_vmf_trace_index_incr(), (at).function,     \
                       (at).line, static_cast<const void *>(speaker) __VA_OPT__(, ) __VA_ARGS__);                      \
    } while (false)

// A text for a `%s`, since texts of a request may be absent.
constexpr const char *shown(const char *text) { return text != nullptr ? text : "(null)"; }
