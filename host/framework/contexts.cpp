#include "contexts.h"

#include "vmf_map_platform.h"

namespace framework {

Contexts::Contexts(uint32_t kind, const platform::Database &database, platform::Log &log)
{
    constexpr uint32_t session_id = 1;
    sessions.open(session_id, database);
    vmf.framework_state = &sessions;
    platform::connect(vmf._debug_ctx, log);
    message.session_id = session_id;
    message.present = VMF_REQUEST_HAS_SESSION_ID;
    req = {&vmf, &message};
    info.kind = kind;
    request.request_info = &info;
    request.response_pending = 1;  // the answer takes the place of the native trees
}

Contexts::~Contexts() { vmf_gpb_free(request.rejected_tag); }

MapContext Contexts::fresh_run()
{
    MapContext run = {};
    run.req_ctx = &req;
    run.request = &request;
    run._debug_ctx = vmf._debug_ctx;
    return run;
}

}  // namespace framework
