#include "mapping_run.h"

#include "database_items.h"
#include "walk_follower.h"

namespace support {

static platform::Log traced(platform::TraceBuffer &trace)
{
    platform::Log log;
    log.trace = &trace;
    return log;
}

MappingRun::MappingRun(uint32_t kind) : log(traced(trace)), contexts(kind, database, log), ctx(contexts.fresh_run()) {}

void MappingRun::know_as(uint32_t as) { database.put(framework::global_as_item(0, as)); }

std::vector<Said> MappingRun::said()
{
    std::vector<Said> lines;
    for (const std::string &line : trace.take()) {
        const framework::TraceLine taken = framework::read_trace_line(line);
        lines.push_back({std::string(taken.level), std::string(taken.function), std::string(taken.text)});
    }
    return lines;
}

}  // namespace support
