// Operations that the mapping requires of the platform. The library leaves these symbols undefined.
//
// All may be called from the request's thread at any time, without locks. Those that return uint32_t give an outcome,
// 0 on success, unless a comment says otherwise. Texts given to an operation are the caller's: the platform copies what
// it keeps.
#pragma once

#include <cstddef>
#include <cstdint>

#include "vmf_map_types.h"

extern "C" {

// ---- Tree building (outcomes) ---------------------------------------------------------------
//
// `ns` is the namespace of the nodes that are added. A `value` that is not null replaces the one there, a null value
// leaves it. An `operation_source` with bit 4 set hands its operation on to the last node. `result` (null: not wanted)
// takes that node; it stays valid until the next add below the same parent. A failing add moves nothing.

// One child of `parent`: the one with this tag and namespace if it is there. `flag` is always 0.

uint32_t vmf_map_datatree_add_subtree(MapContext *ctx, Datatree *parent, const char *tag, const char *ns,
                                      const char *value, const Datatree *operation_source, Datatree **result,
                                      uint32_t flag);

// All elements of `path` below `parent`, found or made. "/" at its start: `parent` is the root of its tree. `repeat` 1:
// another instance of the last element, each time. An element `list[key]` meets or makes the entry whose key has
// `value`; the last element is then only selected.
uint32_t vmf_map_datatree_add_path(MapContext *ctx, Datatree *parent, const char *path, const char *ns,
                                   const char *value, const Datatree *operation_source, Datatree **result,
                                   uint32_t repeat);
uint32_t vmf_map_datatree_add_path_common(MapContext *ctx, Datatree *parent, const char *path, const char *ns,
                                          const char *value, const Datatree *operation_source, Datatree **result,
                                          uint32_t repeat);

// The entry of the list `list_tag` whose key `key_tag` has `key_value`: found, or made with its key leaf.
uint32_t vmf_map_datatree_add_list_node(MapContext *ctx, Datatree *parent, const char *list_tag, const char *ns,
                                        const char *key_tag, const char *key_value, Datatree **result);

// Records the namespace of the identity that is the value at `path`, which begins with the tag of `parent` itself:
// (afi-safi entry, "afi-safi/config/afi-safi-name").
uint32_t vmf_map_datatree_add_data_ns(MapContext *ctx, Datatree *parent, const char *path, const char *ns);

// The children of a node, in its own array: 0 with a count of 0 where it has none.
uint32_t vmf_map_get_subtrees(MapContext *ctx, Datatree *node, Datatree **subtrees, int32_t *count);

// Frees all that a node owns, recursively, with `free_callback`, which is always vmf_gpb_free. The record itself stays:
// it may lie in its parent's array.
void kidl_vmf_datatree_free_ext(Datatree *node, void (*free_callback)(void *), uint32_t zero1, uint32_t zero2);
void vmf_gpb_free(void *memory);

// Prints a tree to the trace, for diagnosis only.
void vmf_map_print_datatree_internal(MapContext *ctx, const Datatree *tree, const char *label);

// ---- Tree and request tests -----------------------------------------------------------------

// These give nonzero for yes. Two texts are equal; the node's operation is a delete or remove, a replace, with bit 4
// set; the text is a dotted IPv4 address. Null equals nothing.
uint32_t vmf_map_do_these_match(const char *a, const char *b);
uint32_t vmf_map_is_request_delete(const Datatree *node);
uint32_t vmf_map_is_request_replace(const Datatree *node);
uint32_t vmf_map_is_valid_ipv4_addr(const char *text);

// 0 if the identity that is the node's value lies in the namespace `ns`; any other outcome is a refusal.
uint32_t vmf_map_validate_data_ns(MapContext *ctx, const Datatree *node, const char *ns, uint32_t zero);

// Tells which list the walk has entered, by its absolute schema path.
uint32_t vmf_map_update_current_list_node(MapContext *ctx, const char *schema_path, int32_t child_count);

// The bitmap with that bit set.
uint32_t vmf_map_set_bitmap(uint32_t bitmap, uint32_t bit_index);

// ---- Text and memory ------------------------------------------------------------------------

// A copy that the receiver owns, from the pool of that label; null for null.
char *vmf_strdup(const char *text, const char *label);

// A bounded copy of `count` characters; an outcome other than 0 if they did not fit.
uint32_t vmf_safe_strncpy(char *destination, size_t destination_size, const char *source, size_t count);

// Zeroed memory, or null; freed with kos_named_free, which takes null too. Arrays of children come from here.
void *kos_named_calloc_(size_t count, size_t size, const char *label, uint32_t zero);
void kos_named_free(void *memory);

// Bounded copy and concatenation, in bytes; nonzero if the text did not fit. The last one knows the buffer's size too.
int32_t strcpy_s(char *destination, size_t size, const char *source);
int32_t strcat_s(char *destination, size_t size, const char *source);
int32_t __strcat_s_to_buf(size_t buffer_size, char *destination, size_t size, const char *source);

// Decimal text of a sum, in a buffer of the caller. Gives the buffer.
char *itoa(uint32_t value, char *buffer, int32_t radix);

// ---- Trace ----------------------------------------------------------------------------------

enum : uint64_t { VMF_LSTRACE_FLAGS = 0x10101000000 };

// Nonzero if the level (0 failures, 2 one diagnosis, 3 progress) is on.
uint32_t vmf_debug_should_log(const VmfDebugContext *debug_ctx, uint32_t level);

// Writes a line to the filter of a level. The site word belongs to the statement, and the filter keeps its state there.
void _kos_dt_log_filter_adv(void *filter, uint64_t zero1, uint64_t zero2, uint64_t zero3, uint64_t zero4,
                            uint64_t zero5, uint32_t *site, const char *format, ...)
    __attribute__((format(printf, 8, 9)));

// The next number of a line in the trace buffer.
uint32_t ret_nc_vmf_trace_index_incr(void);

// Appends a line to the trace buffer.
void _lstrace(void *trace_buffer, uint64_t flags, const char *text);

// An outcome in words, valid until the thread's next call.
const char *cerr_strerror(uint32_t outcome);

// ---- Sessions and the system database -------------------------------------------------------

enum : uint32_t {
    SYSDB_FIND_FLAGS = 2,  // third argument of every sysdb_backend_find_data
    SYSDB_NOTHING_FOUND = 2,
    SYSDB_END_OF_PART = 13,
};

struct SysdbBackendSession;
struct SysdbResultSet;
struct SysdbResult {
    void *packed_data;
};
struct VmfMeSession {
    SysdbBackendSession **backend_sessions;
};
struct VmfSession {
    void *word0;
    void *word1;
    VmfMeSession *me_session;
};

// The session of that id, or null. It stays the framework's.
VmfSession *vmf_session_find(VmfContext *vmf_ctx, uint32_t session_id);

// Finds what lies at the locations that a pattern meets. `merged_view` nonzero: candidate and running configuration as
// one. `result_set` takes the results, or stays null; `iterate_finish` ends them, and takes null too.
uint32_t sysdb_backend_find_data(SysdbBackendSession *session, const char *path_pattern, uint32_t two,
                                 SysdbResultSet **result_set, uint32_t merged_view);

// The next record: 0 with a record, which the caller frees, or with null at the very end; SYSDB_END_OF_PART at the end
// of a part, after which `next_part` moves on.
uint32_t sysdb_backend_result_set_iterate_start(SysdbBackendSession *session, SysdbResultSet *result_set);
uint32_t sysdb_backend_result_set_iterate_next(SysdbBackendSession *session, SysdbResultSet *result_set,
                                               SysdbResult **result);
uint32_t sysdb_backend_result_set_iterate_next_part(SysdbBackendSession *session, SysdbResultSet *result_set);
void sysdb_backend_result_set_iterate_finish(SysdbResultSet *result_set);

// Where a record lies. The text is the record's.
uint32_t sysdb_backend_result_get_location(SysdbBackendSession *session, SysdbResult *result, const char **location);
void sysdb_backend_result_free(SysdbResult *result);

// Unpacks a record's tuple. The decoding context (288 bytes, zeroed) then begins with the tuple's first value.
uint32_t me_bk_sysdb_packed_data_unpack(void *packed_data, void **tuple, uint32_t *count, void *decoding_context);

}  // extern "C"
