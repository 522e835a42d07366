// Paths of the native operational model, and the dispatch by namespace that handlers call. The levels above an
// operational path are simpler than those of the configuration: no AS, no reserved paths, no operations.
#include <cstring>

#include "frame.h"
#include "native_path.h"
#include "native_paths.h"
#include "node.h"
#include "vmf_map_oc_bgp.h"
#include "vmf_map_trace.h"

extern "C" uint32_t add_zr_opr_bgp_one_node(MapContext *ctx, Datatree *parent, const char *tag, const char *value,
                                            const Datatree *operation_source, Datatree **result)
{
    if (uint32_t bad = enter_service(ctx, here(), parent, tag)) return bad;
    VMF_TRC(ctx, here(), "Processing '%s'", tag);
    return log_end(ctx,
                   vmf_map_datatree_add_subtree(ctx, parent, tag, ZR_BGP_OPER_NS, value, operation_source, result, 0));
}

static uint32_t add_oper_instance(MapContext *ctx, Datatree *out, Datatree **instance, const At &at)
{
    Datatree *bgp = nullptr;
    Datatree *instances = nullptr;
    if (uint32_t bad = add_zr_opr_bgp_one_node(ctx, out, "bgp", nullptr, nullptr, &bgp)) return bad;
    if (uint32_t bad = add_zr_opr_bgp_one_node(ctx, bgp, "instances", nullptr, nullptr, &instances)) return bad;
    if (uint32_t bad = add_zr_opr_bgp_one_node(ctx, instances, "instance", nullptr, nullptr, instance)) return bad;
    if (uint32_t bad = add_zr_opr_bgp_one_node(ctx, *instance, "instance-name", "default", nullptr, nullptr))
        return bad;
    if (*instance == nullptr || !has_subtrees(*instance)) {
        VMF_ERR(ctx, at, "Invalid output datatree passed!");
        return VMF_RC_BAD_TREE;
    }
    return VMF_RC_OK;
}

static uint32_t add_absolute(MapContext *ctx, Datatree *tree, const PathAdd &given, const At &at)
{
    constexpr size_t prefix = sizeof ZR_BGP_OPER_INSTANCE - 1;
    if (std::strncmp(given.path, ZR_BGP_OPER_INSTANCE, prefix) != 0) {
        VMF_ERR(ctx, at, "The passed path is not BGP OPER common path! (%s)", given.path);
        return VMF_RC_BAD_ARGS;
    }
    Datatree *instance = nullptr;
    if (uint32_t bad = add_oper_instance(ctx, tree, &instance, at)) {
        VMF_ERR(ctx, at, "Failed to process common path!");
        return bad;
    }
    // On purpose: the path of the configuration model. No path with the prefix above equals it.
    if (vmf_map_do_these_match(given.path, ZR_BGP_FOUR_BYTE_AS) != 0) {
        if (given.result != nullptr) *given.result = instance;
        return VMF_RC_OK;
    }
    const char *rest = given.path[prefix] != '\0' ? given.path + prefix + 1 : "";
    return add_below(ctx, instance, rest, given);
}

extern "C" uint32_t vmf_map_zr_bgp_opr_add_path(MapContext *ctx, Datatree *tree, const char *path, const char *ns,
                                                const char *value, const Datatree *operation_source, Datatree **result,
                                                uint32_t repeat)
{
    if (uint32_t bad = enter_service(ctx, here(), tree, path, ns)) return bad;
    if (path[0] == '/')
        return log_end(ctx, add_absolute(ctx, tree, {path, ns, value, operation_source, result, repeat}, here()));
    VMF_TRC(ctx, here(), "Setting a relative path '%s' with '%s'", path, shown(value));
    return log_end(ctx, vmf_map_datatree_add_path_common(ctx, tree, path, ns, value, operation_source, result, repeat));
}

static uint32_t add_by_namespace(MapContext *ctx, Datatree *tree, const char *path, const char *ns, const char *value,
                                 const Datatree *operation_source, Datatree **result, uint32_t repeat)
{
    if (vmf_map_do_these_match(ns, ZR_BGP_CFG_NS) != 0)
        return vmf_map_zr_bgp_cfg_add_path(ctx, tree, path, ns, value, operation_source, result, repeat);
    if (vmf_map_do_these_match(ns, ZR_BGP_OPER_NS) != 0)
        return vmf_map_zr_bgp_opr_add_path(ctx, tree, path, ns, value, operation_source, result, repeat);
    return vmf_map_datatree_add_path_common(ctx, tree, path, ns, value, operation_source, result, repeat);
}

extern "C" uint32_t vmf_map_datatree_add_bgp_path(MapContext *ctx, Datatree *tree, const char *path, const char *ns,
                                                  const char *value, const Datatree *operation_source,
                                                  Datatree **result, uint32_t repeat)
{
    if (uint32_t bad = enter_service(ctx, here(), tree, path, ns)) return bad;
    return log_end(ctx, add_by_namespace(ctx, tree, path, ns, value, operation_source, result, repeat));
}
