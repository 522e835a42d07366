#include "one_edit.h"

#include <cstdio>
#include <string>

#include "names.h"
#include "trace.h"
#include "tree.h"
#include "vmf_map_oc_bgp.h"

static void print(const Datatree &node, int depth)
{
    const char *value = platform::value_of(node);
    std::printf("%*s%s%s%s\n", depth * 2, "", node.tag, value != nullptr ? " = " : "", value != nullptr ? value : "");
    for (const Datatree &child : platform::children_of(node)) print(child, depth + 1);
}

static Datatree *add(Datatree *parent, const char *tag)
{
    return platform::append_child(*parent, platform::intern(tag), OC_BGP_NS);
}

int map_neighbor_edit(std::initializer_list<const char *> path, const char *value)
{
    platform::Tree edit, native;
    Datatree *neighbor = add(add(add(&edit.root(), "bgp"), "neighbors"), "neighbor");
    platform::set_value(*add(neighbor, "neighbor-address"), "192.0.2.9");
    Datatree *leaf = neighbor;
    for (const char *tag : path) leaf = add(leaf, tag);
    platform::set_value(*leaf, value);

    platform::Log log;
    log.err = {true, [](std::string_view line, uint32_t *) {
                   const size_t text = line.find(',');  // behind "ERR: VMF: ctx=0x...,"
                   std::printf("%s\n", std::string(line.substr(text + 1)).c_str());
               }};
    VmfRequestInfo info = {VMF_REQ_EDIT};
    RequestContext request = {};
    request.request_info = &info;
    VmfContext vmf = {};
    VmfReqContext req = {&vmf, nullptr};  // no session: nothing asks the system database,
    MapContext ctx = {};
    ctx.as_low = 65001;  // since the AS number is known
    ctx.req_ctx = &req;
    ctx.request = &request;
    platform::connect(ctx._debug_ctx, log);

    const uint32_t outcome = vmf_map_oc_bgp(&ctx, &platform::children_of(edit.root()).front(), &native.root());
    vmf_gpb_free(request.rejected_tag);
    if (outcome != VMF_RC_OK) {
        std::printf("refused: %s\n", cerr_strerror(outcome));
        return 1;
    }
    for (const Datatree &tree : platform::children_of(native.root())) print(tree, 0);
    return 0;
}
