// Where the two channels of a log statement end: log filters, and a trace buffer that a caller reads.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "vmf_map_types.h"

namespace platform {

// One level of the log channel. `write` is called with each whole line and the statement's site word, by the thread
// that logs.
struct LogFilter {
    bool enabled = false;
    std::function<void(std::string_view line, uint32_t *site)> write;
};

// The last lines of the trace, oldest first. Any thread may append; the reader takes what is there.
class TraceBuffer {
public:
    explicit TraceBuffer(size_t capacity) : capacity_(capacity) {}

    void append(std::string_view line);
    std::vector<std::string> take();  // and empties the buffer
    size_t lost() const;              // lines that were pushed out unread

    // If set, called with each line as it comes, before it is stored.
    std::function<void(std::string_view line)> listener;

private:
    const size_t capacity_;
    mutable std::mutex mutex_;
    std::deque<std::string> lines_;
    size_t lost_ = 0;
};

// The three levels of one owner, and what a debug context must hold to speak through them. A null buffer: no trace.
struct Log {
    LogFilter err;
    LogFilter dbg;
    LogFilter trc;
    TraceBuffer *trace = nullptr;
};
void connect(VmfDebugContext &debug, Log &log);

}  // namespace platform
