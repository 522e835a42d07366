// What the library exports besides the walkers and node handlers, which go by their schema-path names.
//
// Unless a comment says otherwise: every function takes the run's context first, never null (a null context ends the
// process with an assertion), and returns an outcome, 0 on success; a tree, path or namespace that is null yields
// VMF_RC_BAD_ARGS; the outcome of a failing platform operation passes up as it is; trees, texts and results stay the
// caller's or the tree's own. What was added to a tree before a failure stays there.
#pragma once

#include <cstdint>

#include "vmf_map_platform.h"
#include "vmf_map_types.h"

extern "C" {

// ---- Entries --------------------------------------------------------------------------------

// Maps a request. `node` is the request's `bgp` node, into which the mapping writes (operations, converted keys); the
// native request trees are added below `out`, one `bgp` child for each native model. The selection flags for the way
// back are left in the request's context.
//   VMF_RC_UNSUPPORTED    a tag or value that is not mapped; `rejected_tag` names it
//   VMF_RC_BAD_KEY        a list entry without a usable key; `rejected_tag` may name what stands in its place
//   VMF_RC_KEY_OPERATION  a list key that carries a removal
//   VMF_RC_BAD_TREE       a child without a tag, or a count without an array
//   VMF_RC_BAD_ARGS       `node` or `out` null, or a leaf's value that cannot be read
uint32_t vmf_map_oc_bgp(MapContext *ctx, Datatree *node, Datatree *out);

// Map a response: the native configuration, then the native operational data. `response` holds one child for each
// native tree, `native_tree` is the one to map, `mapped` the holder that the OpenConfig tree is built in; an
// operational call gets the holder that the configuration call kept. `skip_subtree` is set to 1 where the native tree
// is left in the response and shall be dropped, and never written otherwise. A failing walk leaves the response as it
// was.
//   VMF_RC_BAD_TREE   the response has no children, or a native tree is malformed
//   VMF_RC_NO_MEMORY  the response's new array of children could not be allocated
uint32_t vmf_map_zr_cfg_bgp_to_oc(MapContext *ctx, Datatree *response, Datatree *native_tree, Datatree *mapped,
                                  int32_t *skip_subtree);
uint32_t vmf_map_zr_opr_bgp_to_oc(MapContext *ctx, Datatree *response, Datatree *native_tree, Datatree *mapped,
                                  int32_t *skip_subtree);

// The walks of the two native trees, from their `bgp` node, into `mapped`.
uint32_t vmf_map_zr_bgp_cfg_bgp(MapContext *ctx, Datatree *tree, Datatree *mapped);
uint32_t vmf_map_zr_bgp_oper_bgp(MapContext *ctx, Datatree *tree, Datatree *mapped);

// ---- Node handlers: the shape of every vmf_map_cont_..., vmf_map_leaf_..., __ default and _man_ body
//
// `node` is the node of the tree that is walked, `subtree_count` the number of its children (0 when one handler calls
// another to expand it), `out` the root of the output tree. Null node or output: VMF_RC_BAD_ARGS.

typedef uint32_t VmfContainerHandler(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *out);
typedef uint32_t VmfLeafHandler(MapContext *ctx, Datatree *node, Datatree *out);

// ---- Native paths ---------------------------------------------------------------------------
//
// `tree` is the output root for an absolute path, a held entry for a relative one. `value` (null: none) is copied.
// `operation_source` (null: none) hands its edit operation on, if it carries one. `result` (null: not wanted) takes the
// last node, valid until the next add below the same parent; it is written on success only. `repeat` is 1 to add
// another instance of the last element, 0 to find or make it.

// The one entry for handlers: goes by the namespace, an unknown one straight to the platform.

uint32_t vmf_map_datatree_add_bgp_path(MapContext *ctx, Datatree *tree, const char *path, const char *ns,
                                       const char *value, const Datatree *operation_source, Datatree **result,
                                       uint32_t repeat);

// Configuration: supplies the instance and the AS levels above an absolute path. Four paths are reserved:
// /bgp/instance,
// .../instance-as/as, .../four-byte-as/as and .../bgp-running; they write no `result` and know no `repeat`.
//   VMF_RC_BAD_ARGS  an absolute path that does not lie below /bgp/instance/instance-as/four-byte-as
//   VMF_RC_BAD_TREE  the output tree's instance or AS levels are malformed, or could not be made
uint32_t vmf_map_zr_bgp_cfg_add_path(MapContext *ctx, Datatree *tree, const char *path, const char *ns,
                                     const char *value, const Datatree *operation_source, Datatree **result,
                                     uint32_t repeat);

// Operational data: supplies the instance above an absolute path, which lies below /bgp/instances/instance.
uint32_t vmf_map_zr_bgp_opr_add_path(MapContext *ctx, Datatree *tree, const char *path, const char *ns,
                                     const char *value, const Datatree *operation_source, Datatree **result,
                                     uint32_t repeat);

// One child of the configuration namespace; one relative path (which neither starts nor ends with "/"); one child of
// the operational namespace.
uint32_t add_zr_cfg_bgp_one_node(MapContext *ctx, Datatree *parent, const char *tag, const char *value,
                                 const Datatree *operation_source, Datatree **result);
uint32_t add_zr_cfg_bgp_path(MapContext *ctx, Datatree *parent, const char *path, const char *value,
                             const Datatree *operation_source, Datatree **result);
uint32_t add_zr_opr_bgp_one_node(MapContext *ctx, Datatree *parent, const char *tag, const char *value,
                                 const Datatree *operation_source, Datatree **result);

// The native instance "default" below `out`, made if it is missing.
uint32_t get_zr_cfg_bgp_instance(MapContext *ctx, Datatree *out, Datatree **instance);

// ---- Address families -----------------------------------------------------------------------

// Pure data and lookups: no context, no log line, any thread. A null text is no family. A row's number is the same in
// all three tables, and its bit in the address-family bitmaps.
extern const char *const oc_zr_af_names[12][2];           // OpenConfig identity, native configuration word
extern const char *const oc_zr_nbr_oper_af_names[12][2];  // OpenConfig identity, native operational word
extern const char *const oc_bgp_af_container[12][2];      // OpenConfig container, native configuration word

// The other column of `oc_zr_af_names`, or null: from the native word to the identity, with `both` nonzero in either
// direction. `row` (null: not wanted) takes the row's number, and stays as it is without a match.
const char *vmf_map_af_name(const char *name, uint32_t both, uint32_t *row);

// The OpenConfig container of a native word, or null.
const char *vmf_map_oc_bgp_af_container(const char *af_name);

// The system database's code of a native word, as hexadecimal text; null for all but the four families that have one.
const char *vmf_map_get_af_value(const char *af_name);

// 1 if a neighbor of this address may have the family of this native word, else 0.
uint32_t vmf_map_is_neighbor_af_name_valid(const char *address, const char *af_name);

// ---- System database ------------------------------------------------------------------------

// The system database handle of the request's session. Written on success only; the session stays the framework's.
//   VMF_RC_BAD_ARGS  an argument is null, the request has no session id, or there is no such session
//   VMF_RC_BAD_TREE  the session has no backend
uint32_t get_backend_session(VmfReqContext *req_ctx, SysdbBackendSession **session, void *ignored);

// The two halves of the global AS number, from the context or else from the candidate configuration (then kept in the
// context). Outcome 2: the router has none.
uint32_t get_zr_cfg_bgp_as_num_from_sysdb(MapContext *ctx, uint32_t *as_x, uint32_t *as_y);

// No outcomes: 1 if the family of this native word is activated for the neighbor (the group) whose key the context
// holds, 0 otherwise and on any failure.
uint32_t check_zr_cfg_bgp_nbr_af(MapContext *ctx, const char *af_name);
uint32_t check_zr_cfg_bgp_nbr_grp_af(MapContext *ctx, const char *af_name);

// The prefix limit at a location of the candidate configuration, as decimal text that the caller frees with
// kos_named_free. Outcome 2: there is none.
uint32_t get_zr_cfg_bgp_prefix_limit_from_sysdb(MapContext *ctx, const char *path, char **value);

// Adds that limit below the current address-family entry. `path_format` takes the two AS halves, the current key and
// `family_code`, in this order.
uint32_t vmf_map_oc_bgp_populate_prefixlimit_config_maxprefixes_from_candidate(MapContext *ctx, const char *path_format,
                                                                               const char *family_code, const char *ns);

}  // extern "C"
