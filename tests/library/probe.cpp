#include "probe.h"

#include <dlfcn.h>

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <map>

#include "vmf_map_oc_bgp.h"

namespace probe {

AfterAdd after_add_subtree;

static std::optional<Script> script;
static size_t next_answer;
static Next record_in_hand;

Heard &heard()
{
    static Heard what_was_heard;
    return what_was_heard;
}

Backend::Backend(Script answers)
{
    script = std::move(answers);
    next_answer = 0;
}

Backend::~Backend() { script.reset(); }

// Never destroyed: the platform frees memory until the very end.
static std::map<void *, std::string> &labels_in_use()
{
    static auto *const labels = new std::map<void *, std::string>;
    return *labels;
}

std::vector<std::string> memory_in_use()
{
    std::vector<std::string> labels;
    for (const auto &[memory, label] : labels_in_use()) labels.push_back(label);
    return labels;
}

static Next take_answer() { return next_answer < script->next.size() ? script->next[next_answer++] : Next(); }

}  // namespace probe

using namespace probe;

// The function of that name that the probe stands before: the platform's own, or the library's.
template<class Function>
static Function *platform_function(Function * /*its type*/, const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}
#define PLATFORM(function) platform_function(&function, #function)

static void note(const std::string &backend_call) { heard().backend.push_back(backend_call); }

extern "C" {

// ---- Trace ----------------------------------------------------------------------------------

uint32_t vmf_debug_should_log(const VmfDebugContext *debug_ctx, uint32_t level)
{
    heard().questions.push_back({debug_ctx, level});
    return PLATFORM(vmf_debug_should_log)(debug_ctx, level);
}

void _kos_dt_log_filter_adv(void *filter, uint64_t zero1, uint64_t zero2, uint64_t zero3, uint64_t zero4,
                            uint64_t zero5, uint32_t *site, const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    std::string line(8192, '\0');
    line.resize(static_cast<size_t>(std::vsnprintf(line.data(), line.size(), format, arguments)));
    va_end(arguments);
    const bool zeros = (zero1 | zero2 | zero3 | zero4 | zero5) == 0;
    heard().log.push_back({filter, zeros, site, format, line});
    PLATFORM(_kos_dt_log_filter_adv)(filter, zero1, zero2, zero3, zero4, zero5, site, "%s", line.c_str());
}

uint32_t ret_nc_vmf_trace_index_incr()
{
    heard().indices++;
    return PLATFORM(ret_nc_vmf_trace_index_incr)();
}

void _lstrace(void *trace_buffer, uint64_t flags, const char *text)
{
    heard().trace.push_back({trace_buffer, flags, text});
    PLATFORM(_lstrace)(trace_buffer, flags, text);
}

// ---- Trees and texts ------------------------------------------------------------------------

uint32_t vmf_map_datatree_add_subtree(MapContext *ctx, Datatree *parent, const char *tag, const char *ns,
                                      const char *value, const Datatree *operation_source, Datatree **result,
                                      uint32_t flag)
{
    const uint32_t outcome =
        PLATFORM(vmf_map_datatree_add_subtree)(ctx, parent, tag, ns, value, operation_source, result, flag);
    if (outcome == VMF_RC_OK && after_add_subtree) after_add_subtree(tag, parent, result);
    return outcome;
}

uint32_t vmf_map_update_current_list_node(MapContext *ctx, const char *schema_path, int32_t child_count)
{
    heard().list_entries.push_back({schema_path, child_count});
    return PLATFORM(vmf_map_update_current_list_node)(ctx, schema_path, child_count);
}

char *vmf_strdup(const char *text, const char *label)
{
    heard().copy_labels.push_back(label);
    return PLATFORM(vmf_strdup)(text, label);
}

void *kos_named_calloc_(size_t count, size_t size, const char *label, uint32_t zero)
{
    heard().allocations.push_back({label, count * size, zero});
    if (script && script->no_memory_for == heard().allocations.back().label) return nullptr;
    void *memory = PLATFORM(kos_named_calloc_)(count, size, label, zero);
    if (memory != nullptr) labels_in_use()[memory] = label;
    return memory;
}

void kos_named_free(void *memory)
{
    labels_in_use().erase(memory);
    PLATFORM(kos_named_free)(memory);
}

// ---- Sessions and the system database -------------------------------------------------------

VmfSession *vmf_session_find(VmfContext *vmf_ctx, uint32_t session_id)
{
    if (script && script->session) return *script->session;
    return PLATFORM(vmf_session_find)(vmf_ctx, session_id);
}

uint32_t sysdb_backend_find_data(SysdbBackendSession *session, const char *path_pattern, uint32_t two,
                                 SysdbResultSet **result_set, uint32_t merged_view)
{
    note("find " + std::string(path_pattern) + " " + std::to_string(two) + " " + std::to_string(merged_view));
    if (!script) return PLATFORM(sysdb_backend_find_data)(session, path_pattern, two, result_set, merged_view);
    if (script->gives_set) *result_set = reinterpret_cast<SysdbResultSet *>(new int);
    return script->find;
}

uint32_t sysdb_backend_result_set_iterate_start(SysdbBackendSession *session, SysdbResultSet *result_set)
{
    note("start");
    if (!script) return PLATFORM(sysdb_backend_result_set_iterate_start)(session, result_set);
    return script->start;
}

uint32_t sysdb_backend_result_set_iterate_next(SysdbBackendSession *session, SysdbResultSet *result_set,
                                               SysdbResult **result)
{
    note("next");
    if (!script) return PLATFORM(sysdb_backend_result_set_iterate_next)(session, result_set, result);
    record_in_hand = take_answer();
    *result = record_in_hand.record ? new SysdbResult{nullptr} : nullptr;
    return record_in_hand.outcome;
}

uint32_t sysdb_backend_result_set_iterate_next_part(SysdbBackendSession *session, SysdbResultSet *result_set)
{
    note("next part");
    if (!script) return PLATFORM(sysdb_backend_result_set_iterate_next_part)(session, result_set);
    return script->next_part;
}

void sysdb_backend_result_set_iterate_finish(SysdbResultSet *result_set)
{
    note(result_set != nullptr ? "finish" : "finish null");
    if (!script) return PLATFORM(sysdb_backend_result_set_iterate_finish)(result_set);
    delete reinterpret_cast<int *>(result_set);
}

uint32_t sysdb_backend_result_get_location(SysdbBackendSession *session, SysdbResult *result, const char **location)
{
    note("location");
    if (!script) return PLATFORM(sysdb_backend_result_get_location)(session, result, location);
    if (record_in_hand.location != nullptr) *location = record_in_hand.location;
    return record_in_hand.location_outcome;
}

void sysdb_backend_result_free(SysdbResult *result)
{
    note("free");
    if (!script) return PLATFORM(sysdb_backend_result_free)(result);
    delete result;
}

uint32_t me_bk_sysdb_packed_data_unpack(void *packed_data, void **tuple, uint32_t *count, void *decoding_context)
{
    note("unpack");
    if (!script) return PLATFORM(me_bk_sysdb_packed_data_unpack)(packed_data, tuple, count, decoding_context);
    std::memcpy(decoding_context, &script->limit, sizeof script->limit);
    return script->unpack;
}

uint32_t get_zr_cfg_bgp_prefix_limit_from_sysdb(MapContext *ctx, const char *path, char **value)
{
    if (script && script->finds_no_limit) return VMF_RC_OK;
    return PLATFORM(get_zr_cfg_bgp_prefix_limit_from_sysdb)(ctx, path, value);
}

}  // extern "C"
