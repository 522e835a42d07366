#include "mapped.h"

#include <cstdio>
#include <cstdlib>

#include "database_items.h"
#include "text.h"
#include "vmf_map_oc_bgp.h"
#include "workload.h"

namespace bench {

Mapped::Mapped(Way way, size_t neighbors)
    : way_(way), contexts_(way == Way::forward ? VMF_REQ_EDIT : VMF_REQ_GET, database_, log_),
      in_(way == Way::forward ? openconfig_neighbors(neighbors) : native_neighbors(neighbors))
{
    database_.put(framework::global_as_item(0, 65001));
    contexts_.request.response_pending = 0;  // the answer comes beside the native tree, which nobody frees
}

void Mapped::work()
{
    MapContext run = contexts_.fresh_run();
    uint32_t outcome = VMF_RC_OK;
    if (way_ == Way::forward) {
        outcome = vmf_map_oc_bgp(&run, &in_.root(), &out_.root());
    } else {
        int32_t skip_subtree = 0;
        Datatree *native = &platform::children_of(in_.root()).front();
        outcome = vmf_map_zr_cfg_bgp_to_oc(&run, &in_.root(), native, &out_.root(), &skip_subtree);
    }
    if (outcome == VMF_RC_OK) return;
    std::fprintf(stderr, "the mapping refuses: %s\n", cerr_strerror(outcome));
    std::_Exit(1);
}

size_t Mapped::nodes_in() const { return count_nodes(in_.root()); }

size_t Mapped::nodes_out() const { return count_nodes(out_.root()); }

std::string Mapped::text() const { return text_of(out_.root()); }

}  // namespace bench
