// `global/route-selection-options`. The native switches are empty leaves.
#include "../vmf_map_oc_bgp_common/forms.h"
#include "../vmf_map_oc_bgp_common/oc_handlers.h"

// clang-format off
#define SELECTION_LEAF(leaf) OC_LEAF(_global_routeselectionoptions_config_##leaf)

SELECTION_LEAF(alwayscomparemed)        { return presence_boolean_leaf(ctx, node, out, cfg(ZR_BGP_GLOBAL "/best-path-med-always"),     "true"); }
SELECTION_LEAF(ignoreaspathlength)      { return presence_boolean_leaf(ctx, node, out, cfg(ZR_BGP_GLOBAL "/best-path-as-path-length"), "true"); }
SELECTION_LEAF(externalcomparerouterid) { return presence_boolean_leaf(ctx, node, out, cfg(ZR_BGP_GLOBAL "/best-path-router-id"),      "true"); }
// The native leaf says to ignore: it stands for the opposite.
SELECTION_LEAF(enableaigp)              { return presence_boolean_leaf(ctx, node, out, cfg(ZR_BGP_GLOBAL "/best-path-aigp-ignore"),    "false"); }
// clang-format on
