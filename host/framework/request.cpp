#include "request.h"

#include "response.h"
#include "vmf_map_oc_bgp.h"

namespace framework {

uint32_t Request::map(Datatree &bgp, Datatree &native)
{
    MapContext run = contexts_.fresh_run();
    return vmf_map_oc_bgp(&run, &bgp, &native);
}

uint32_t Request::answer(platform::Tree response, platform::Tree &answer)
{
    Response way_back(contexts_, std::move(response));
    if (uint32_t bad = way_back.map_configuration()) return bad;
    if (wants_operational())
        if (uint32_t bad = way_back.map_operational()) return bad;
    answer = way_back.take_answer();
    return VMF_RC_OK;
}

}  // namespace framework
