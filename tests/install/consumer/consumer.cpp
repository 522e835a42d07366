// Maps a router id on the platform in memory, with a handler of its own for one leaf.
#include <cstdio>

#include "names.h"
#include "tree.h"
#include "vmf_map_oc_bgp.h"
#include "vmf_map_oc_bgp_handlers.h"

static int state_reads = 0;

// Takes the place of the library's.
uint32_t vmf_map_leaf_oc_bgp_global_state_routerid(MapContext *ctx, Datatree *node, Datatree *out)
{
    state_reads++;
    return __vmf_map_leaf_oc_bgp_global_state_routerid(ctx, node, out);
}

static Datatree *add(Datatree *parent, const char *tag)
{
    return platform::append_child(*parent, platform::intern(tag), platform::intern(OC_BGP_NS));
}

static void print(const Datatree &node, int depth)
{
    for (const Datatree &child : platform::children_of(node)) {
        const char *value = platform::value_of(child);
        std::printf("%*s%s%s%s\n", depth * 2, "", platform::tag_of(child), value != nullptr ? " = " : "",
                    value != nullptr ? value : "");
        print(child, depth + 1);
    }
}

int main()
{
    VmfContext vmf = {};
    VmfRequestMessage message = {};
    VmfReqContext req = {&vmf, &message};
    VmfRequestInfo info = {VMF_REQ_GET};
    RequestContext request = {};
    request.request_info = &info;
    MapContext ctx = {};
    ctx.req_ctx = &req;
    ctx.request = &request;

    platform::Tree input, output;
    Datatree *bgp = add(&input.root(), "bgp");
    add(add(add(bgp, "global"), "state"), "router-id");
    const uint32_t outcome = vmf_map_oc_bgp(&ctx, bgp, &output.root());
    print(output.root(), 0);
    std::printf("outcome %u, %d read of the state\n", outcome, state_reads);
    return 0;
}
