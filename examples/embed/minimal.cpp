// The smallest framework that the mapping library runs in: it maps one request, and the answer to it. Nothing of host/
// is linked; trees.cpp beside this file has the operations on trees, texts and memory.
#include <cstdarg>
#include <cstdio>
#include <regex>

#include "vmf_map_oc_bgp.h"

extern "C" {

// ---- Log: failures to standard error, no trace ----------------------------------------------

uint32_t vmf_debug_should_log(const VmfDebugContext *, uint32_t level) { return level == 0; }
void _kos_dt_log_filter_adv(void *, uint64_t, uint64_t, uint64_t, uint64_t, uint64_t, uint32_t *, const char *format,
                            ...)
{
    va_list arguments;
    va_start(arguments, format);
    std::vfprintf(stderr, format, arguments);
    va_end(arguments);
    std::fputc('\n', stderr);
}
uint32_t ret_nc_vmf_trace_index_incr() { return 0; }
void _lstrace(void *, uint64_t, const char *) {}
const char *cerr_strerror(uint32_t outcome)
{
    thread_local char text[sizeof "outcome 0x00000000"];
    std::snprintf(text, sizeof text, "outcome 0x%08x", outcome);
    return text;
}

// ---- Sessions and the system database -------------------------------------------------------

struct SysdbResultSet {
    SysdbResult record;
    bool is_read;
};
struct SysdbBackendSession {
    const char *location;  // of the one record of the database
    SysdbResultSet found;
};

VmfSession *vmf_session_find(VmfContext *vmf_ctx, uint32_t)
{
    return static_cast<VmfSession *>(vmf_ctx->framework_state);
}
uint32_t sysdb_backend_find_data(SysdbBackendSession *session, const char *pattern, uint32_t, SysdbResultSet **set,
                                 uint32_t)
{
    if (!std::regex_match(session->location, std::regex(pattern))) return SYSDB_NOTHING_FOUND;
    session->found = {};
    *set = &session->found;
    return VMF_RC_OK;
}
uint32_t sysdb_backend_result_set_iterate_start(SysdbBackendSession *, SysdbResultSet *) { return VMF_RC_OK; }
uint32_t sysdb_backend_result_set_iterate_next(SysdbBackendSession *, SysdbResultSet *set, SysdbResult **result)
{
    *result = set->is_read ? nullptr : &set->record;
    set->is_read = true;
    return VMF_RC_OK;
}
uint32_t sysdb_backend_result_set_iterate_next_part(SysdbBackendSession *, SysdbResultSet *) { return VMF_RC_OK; }
void sysdb_backend_result_set_iterate_finish(SysdbResultSet *) {}
uint32_t sysdb_backend_result_get_location(SysdbBackendSession *session, SysdbResult *, const char **location)
{
    *location = session->location;
    return VMF_RC_OK;
}
void sysdb_backend_result_free(SysdbResult *) {}
uint32_t me_bk_sysdb_packed_data_unpack(void *, void **, uint32_t *, void *) { return SYSDB_NOTHING_FOUND; }

}  // extern "C"

// ---- One request and its answer -------------------------------------------------------------

static void print(const Datatree &node, int depth)
{
    std::printf("%*s%s%s%s\n", depth * 2, "", node.tag, node.value != nullptr ? " = " : "",
                node.value != nullptr ? node.value : "");
    for (int32_t i = 0; i < node.subtree_count; i++) print(node.subtrees[i], depth + 1);
}

static Datatree *add(Datatree &root, const char *path, const char *ns, const char *value)
{
    Datatree *node = nullptr;
    vmf_map_datatree_add_path(nullptr, &root, path, ns, value, nullptr, &node, 0);
    return node;
}

int main()
{
    SysdbBackendSession database = {"/cfg/gl/ip-bgp/default/0/65001/gbl/edm/ord_a/running", {}};
    SysdbBackendSession *backends[] = {&database};
    VmfMeSession me_session = {backends};
    VmfSession session = {nullptr, nullptr, &me_session};
    VmfContext vmf = {&session, {}};
    VmfRequestMessage message = {0, 1, VMF_REQUEST_HAS_SESSION_ID};
    VmfReqContext req = {&vmf, &message};
    VmfRequestInfo info = {VMF_REQ_GET_CONFIG};
    RequestContext request = {};  // one for both directions
    request.request_info = &info;
    request.response_pending = 1;  // the answer takes the place of the native tree

    Datatree read = {}, native = {};
    add(read, "/bgp/neighbors/neighbor/neighbor-address", OC_BGP_NS, "192.0.2.9");
    add(read, "/bgp/neighbors/neighbor/config/peer-as", OC_BGP_NS, nullptr);
    MapContext way_in = {};  // a fresh one for each entry
    way_in.req_ctx = &req;
    way_in.request = &request;
    if (vmf_map_oc_bgp(&way_in, read.subtrees, &native) != VMF_RC_OK) return 1;
    std::puts("asked of the router:");
    print(*native.subtrees, 1);

    Datatree answer = {}, mapped = {};  // what the router answers: the selection with its values
    add(answer, "/bgp/instance/instance-name", ZR_BGP_CFG_NS, "default");
    Datatree *as = add(answer, "/bgp/instance/instance-as/four-byte-as", ZR_BGP_CFG_NS, nullptr);
    add(*as, "as", ZR_BGP_CFG_NS, "65001");
    Datatree *neighbor = add(*as, "default-vrf/bgp-entity/neighbors/neighbor", ZR_BGP_CFG_NS, nullptr);
    add(*neighbor, "neighbor-address", ZR_BGP_CFG_NS, "192.0.2.9");
    add(*neighbor, "remote-as/as-xx", ZR_BGP_CFG_NS, "0");
    add(*neighbor, "remote-as/as-yy", ZR_BGP_CFG_NS, "64500");
    MapContext way_back = {};
    way_back.req_ctx = &req;
    way_back.request = &request;
    int32_t skip_subtree = 0;
    if (vmf_map_zr_cfg_bgp_to_oc(&way_back, &answer, answer.subtrees, &mapped, &skip_subtree) != VMF_RC_OK) return 1;
    std::puts("answered to the client:");
    print(*answer.subtrees, 1);
}
