#include "system_database.h"

#include <algorithm>
#include <cstring>

#include "observer.h"

using platform::DatabaseRecord;
using platform::observed;

struct SysdbBackendSession {
    const platform::Database *database;
};

struct SysdbResultSet {
    std::vector<DatabaseRecord> found;  // by part, then in the order of the database
    size_t next = 0;
    uint32_t part = 0;
};

namespace platform {

bool meets(std::string_view pattern, std::string_view location)
{
    for (;;) {
        const size_t pattern_end = pattern.find('/');
        const size_t location_end = location.find('/');
        const std::string_view wanted = pattern.substr(0, pattern_end);
        if (wanted != ".*" && wanted != location.substr(0, location_end)) return false;
        const bool pattern_ends = pattern_end == std::string_view::npos;
        const bool location_ends = location_end == std::string_view::npos;
        if (pattern_ends || location_ends) return pattern_ends && location_ends;
        pattern.remove_prefix(pattern_end + 1);
        location.remove_prefix(location_end + 1);
        if (pattern.empty()) return !location.empty();  // ended in "/": all that lies below
    }
}

std::vector<DatabaseRecord> SystemDatabase::find(std::string_view pattern, bool merged) const
{
    std::vector<DatabaseRecord> found;
    for (const DatabaseRecord &record : records_)
        if ((merged || !record.only_in_candidate) && meets(pattern, record.location)) found.push_back(record);
    return found;
}

struct Sessions::Session {
    SysdbBackendSession backend;
    SysdbBackendSession *backends[1];
    VmfMeSession me;
    VmfSession session;
};

Sessions::Sessions() = default;
Sessions::~Sessions() = default;

void Sessions::open(uint32_t session_id, const Database &database)
{
    auto session = std::make_unique<Session>();
    session->backend.database = &database;
    session->backends[0] = &session->backend;
    session->me.backend_sessions = session->backends;
    session->session = {nullptr, nullptr, &session->me};
    sessions_[session_id] = std::move(session);
}

VmfSession *Sessions::find(uint32_t session_id)
{
    auto found = sessions_.find(session_id);
    return found != sessions_.end() ? &found->second->session : nullptr;
}

}  // namespace platform

// A result that the mapping holds: a record of the database with the memory that its one field needs.
struct HeldResult : SysdbResult {
    const DatabaseRecord *record;
};

extern "C" {

VmfSession *vmf_session_find(VmfContext *vmf_ctx, uint32_t session_id)
{
    if (observed({.name = "vmf_session_find"}) != 0) return nullptr;
    auto *sessions = static_cast<platform::Sessions *>(vmf_ctx->framework_state);
    return sessions != nullptr ? sessions->find(session_id) : nullptr;
}

uint32_t sysdb_backend_find_data(SysdbBackendSession *session, const char *path_pattern, uint32_t /*two*/,
                                 SysdbResultSet **result_set, uint32_t merged_view)
{
    if (uint32_t failed = observed({.name = "sysdb_backend_find_data", .path = path_pattern})) return failed;
    if (session == nullptr || path_pattern == nullptr || result_set == nullptr) return VMF_RC_BAD_ARGS;
    *result_set = nullptr;
    auto set = std::make_unique<SysdbResultSet>();
    set->found = session->database->find(path_pattern, merged_view != 0);
    if (set->found.empty()) return SYSDB_NOTHING_FOUND;
    std::stable_sort(set->found.begin(), set->found.end(),
                     [](const DatabaseRecord &a, const DatabaseRecord &b) { return a.part < b.part; });
    set->part = set->found.front().part;
    *result_set = set.release();
    return VMF_RC_OK;
}

uint32_t sysdb_backend_result_set_iterate_start(SysdbBackendSession * /*session*/, SysdbResultSet *result_set)
{
    if (uint32_t failed = observed({.name = "sysdb_backend_result_set_iterate_start"})) return failed;
    result_set->next = 0;
    result_set->part = result_set->found.front().part;
    return VMF_RC_OK;
}

uint32_t sysdb_backend_result_set_iterate_next(SysdbBackendSession * /*session*/, SysdbResultSet *result_set,
                                               SysdbResult **result)
{
    if (uint32_t failed = observed({.name = "sysdb_backend_result_set_iterate_next"})) return failed;
    *result = nullptr;
    if (result_set->next == result_set->found.size()) return VMF_RC_OK;  // the end of the last part: no record
    const DatabaseRecord *record = &result_set->found[result_set->next];
    if (record->part != result_set->part) return SYSDB_END_OF_PART;
    result_set->next++;
    auto *held = new HeldResult;
    held->record = record;
    held->packed_data = const_cast<DatabaseRecord *>(record);
    *result = held;
    return VMF_RC_OK;
}

uint32_t sysdb_backend_result_set_iterate_next_part(SysdbBackendSession * /*session*/, SysdbResultSet *result_set)
{
    if (uint32_t failed = observed({.name = "sysdb_backend_result_set_iterate_next_part"})) return failed;
    const auto &found = result_set->found;
    size_t &next = result_set->next;
    while (next < found.size() && found[next].part == result_set->part) next++;
    if (next < found.size()) result_set->part = found[next].part;
    return VMF_RC_OK;
}

void sysdb_backend_result_set_iterate_finish(SysdbResultSet *result_set) { delete result_set; }

uint32_t sysdb_backend_result_get_location(SysdbBackendSession * /*session*/, SysdbResult *result,
                                           const char **location)
{
    if (uint32_t failed = observed({.name = "sysdb_backend_result_get_location"})) return failed;
    *location = static_cast<HeldResult *>(result)->record->location.c_str();
    return VMF_RC_OK;
}

void sysdb_backend_result_free(SysdbResult *result) { delete static_cast<HeldResult *>(result); }

// The decoding context takes the words of the tuple from its start on; the tuple is the context itself.
uint32_t me_bk_sysdb_packed_data_unpack(void *packed_data, void **tuple, uint32_t *count, void *decoding_context)
{
    if (uint32_t failed = observed({.name = "me_bk_sysdb_packed_data_unpack"})) return failed;
    if (packed_data == nullptr || tuple == nullptr || count == nullptr || decoding_context == nullptr)
        return VMF_RC_BAD_ARGS;
    constexpr size_t most_words = 288 / sizeof(uint32_t);
    const std::vector<uint32_t> &words = static_cast<const DatabaseRecord *>(packed_data)->words;
    if (words.empty() || words.size() > most_words) return VMF_RC_BAD_TREE;
    std::memcpy(decoding_context, words.data(), words.size() * sizeof(uint32_t));
    *tuple = decoding_context;
    *count = static_cast<uint32_t>(words.size());
    return VMF_RC_OK;
}

}  // extern "C"
