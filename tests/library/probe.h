// Stands between the mapping library and the platform: a shared library that is searched before the platform's, hears
// every call that matters to a test, and hands it on. What the platform would never do by itself, a test can have the
// probe do in its place.
#pragma once

#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "vmf_map_platform.h"

namespace probe {

// A call of the log channel.
struct LogCall {
    void *filter;
    bool zeros;  // the five arguments behind the filter
    uint32_t *site;
    std::string format;
    std::string line;
};

// A call of the trace channel.
struct TraceCall {
    void *buffer;
    uint64_t flags;
    std::string line;
};

struct Question {
    const VmfDebugContext *debug;
    uint32_t level;
    bool operator==(const Question &) const = default;
};

struct ListEntry {
    std::string schema_path;
    int32_t children;
    bool operator==(const ListEntry &) const = default;
};

struct Allocation {
    std::string label;
    size_t bytes;
    uint32_t zero;  // the last argument
    bool operator==(const Allocation &) const = default;
    friend void PrintTo(const Allocation &it, std::ostream *out)
    {
        *out << it.label << " " << it.bytes << " " << it.zero;
    }
};

struct Heard {
    std::vector<LogCall> log;
    std::vector<TraceCall> trace;
    std::vector<Question> questions;  // whether a level is on
    size_t indices = 0;               // numbers taken for trace lines
    std::vector<ListEntry> list_entries;
    std::vector<std::string> copy_labels;
    std::vector<std::string> backend;  // "find PATTERN 2 1", "start", "next", "location", "free", "finish", ...
    std::vector<Allocation> allocations;
};
Heard &heard();

// Called after an add of a child that succeeded.
using AfterAdd = std::function<void(const char *tag, Datatree *parent, Datatree **result)>;
extern AfterAdd after_add_subtree;

// The labels of the named memory that is not freed yet, in no order that matters.
std::vector<std::string> memory_in_use();

// ---- A system database that answers as it is told -------------------------------------------

struct Next {
    uint32_t outcome = 0;
    bool record = false;
    const char *location = nullptr;
    uint32_t location_outcome = 0;
};
inline Next record_at(const char *location) { return {.record = true, .location = location}; }
constexpr Next end_of_part = {.outcome = SYSDB_END_OF_PART};

struct Script {
    std::optional<VmfSession *> session = {};  // the platform's own if it is left out
    uint32_t find = 0;
    bool gives_set = true;
    uint32_t start = 0;
    std::vector<Next> next = {};  // one a call; at their end: no record
    uint32_t next_part = 0;
    uint32_t unpack = 0;
    uint32_t limit = 0;              // what every record holds
    const char *no_memory_for = "";  // a label
    bool finds_no_limit = false;     // the library's own fetch succeeds without a value
};

// The script is in force until this goes.
class Backend {
public:
    explicit Backend(Script script);
    ~Backend();
    Backend(const Backend &) = delete;
    Backend &operator=(const Backend &) = delete;
};

}  // namespace probe
