// `global/graceful-restart`. The native switch is an empty leaf: present means on.
#include "../vmf_map_oc_bgp_common/forms.h"
#include "../vmf_map_oc_bgp_common/oc_handlers.h"

static constexpr Native presence = cfg(ZR_BGP_GLOBAL "/graceful-restart");
static constexpr Native restart_time = cfg(ZR_BGP_GLOBAL "/graceful-restart-time");
static constexpr Native stalepath_time = cfg(ZR_BGP_GLOBAL "/graceful-restart-stalepath-time");

// clang-format off
OC_CONT(_global_gracefulrestart)        { return removing_selection(ctx, node, subtree_count, out, {presence, restart_time, stalepath_time}); }
OC_CONT(_global_gracefulrestart_config) { return removing_selection_by_turns(ctx, node, subtree_count, out, {presence, restart_time, stalepath_time}); }
// On purpose: a state named as a whole asks for the times alone.
OC_CONT(_global_gracefulrestart_state)  { return state_selection(ctx, node, subtree_count, out, {restart_time, stalepath_time}); }
// clang-format on

// On purpose: the value is not looked at. "false" sets the leaf as "true" does; only a delete switches it off.
OC_LEAF(_global_gracefulrestart_config_enabled)
{
    if (uint32_t bad = enter(ctx, node, out)) return bad;
    return log_end(ctx, add(ctx, out, presence, is_read(ctx) ? selection_only : from_node(node)));
}
