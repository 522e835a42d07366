#include "trace.h"

#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "vmf_map_platform.h"

namespace platform {

void TraceBuffer::append(std::string_view line)
{
    if (listener) listener(line);
    const std::lock_guard lock(mutex_);
    if (capacity_ == 0) return;
    if (lines_.size() == capacity_) {
        lines_.pop_front();
        lost_++;
    }
    lines_.emplace_back(line);
}

std::vector<std::string> TraceBuffer::take()
{
    const std::lock_guard lock(mutex_);
    std::vector<std::string> taken(lines_.begin(), lines_.end());
    lines_.clear();
    return taken;
}

size_t TraceBuffer::lost() const
{
    const std::lock_guard lock(mutex_);
    return lost_;
}

void connect(VmfDebugContext &debug, Log &log)
{
    debug.err_filter = &log.err;
    debug.dbg_filter = &log.dbg;
    debug.trc_filter = &log.trc;
    debug.trace_buffer = log.trace;
    debug.trace_enabled = log.trace != nullptr ? 1 : 0;
}

}  // namespace platform

using platform::LogFilter;
using platform::TraceBuffer;

extern "C" {

// Asked about ten times a node, mostly of traces.
uint32_t vmf_debug_should_log(const VmfDebugContext *debug_ctx, uint32_t level)
{
    if (debug_ctx == nullptr) return 0;
    const void *filter = nullptr;
    if (level == 3) [[likely]]
        filter = debug_ctx->trc_filter;
    else if (level == 0)
        filter = debug_ctx->err_filter;
    else if (level == 2)
        filter = debug_ctx->dbg_filter;
    return filter != nullptr && static_cast<const LogFilter *>(filter)->enabled ? 1 : 0;
}

void _kos_dt_log_filter_adv(void *filter, uint64_t /*zero1*/, uint64_t /*zero2*/, uint64_t /*zero3*/,
                            uint64_t /*zero4*/, uint64_t /*zero5*/, uint32_t *site, const char *format, ...)
{
    const auto *log = static_cast<const LogFilter *>(filter);
    if (log == nullptr || !log->write) return;
    char *text = nullptr;
    va_list arguments;
    va_start(arguments, format);
    const int length = vasprintf(&text, format, arguments);
    va_end(arguments);
    if (length < 0) return;  // no memory
    const std::unique_ptr<char, void (*)(void *)> owned(text, std::free);
    log->write({text, static_cast<size_t>(length)}, site);
}

uint32_t ret_nc_vmf_trace_index_incr()
{
    static std::atomic<uint32_t> index{0};
    return index.fetch_add(1, std::memory_order_relaxed) + 1;
}

void _lstrace(void *trace_buffer, uint64_t /*flags*/, const char *text)
{
    if (trace_buffer != nullptr) static_cast<TraceBuffer *>(trace_buffer)->append(text);
}

}  // extern "C"
