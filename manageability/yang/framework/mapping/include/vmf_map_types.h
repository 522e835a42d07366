// Records, request kinds, edit operations and outcome codes shared by the mapping and the framework.
#pragma once

#include <cstdint>

extern "C" {

// ---- Datatree -------------------------------------------------------------------------------

// A field of a Datatree is meaningful only while its presence bit is set (`present[0]`).
enum : uint8_t {
    VMF_DT_TAG = 1u << 0,
    VMF_DT_VALUE = 1u << 1,
    VMF_DT_NAMESPACE = 1u << 2,
    VMF_DT_WORD3 = 1u << 3,
    VMF_DT_OPERATION = 1u << 4,
    VMF_DT_PAIR5 = 1u << 5,
    VMF_DT_SUBTREES = 1u << 6,
};

// NETCONF edit operations. They count only while bit 4 is set.
enum : uint32_t {
    VMF_OP_MERGE = 0,
    VMF_OP_REPLACE = 1,
    VMF_OP_CREATE = 2,
    VMF_OP_DELETE = 3,
    VMF_OP_REMOVE = 4,
};

struct Datatree {
    char *tag;
    char *value;
    char *namespace_;
    uint32_t word3;
    uint32_t operation;
    uint64_t pair5_a;
    uint32_t pair5_b;
    Datatree *subtrees;     // an array of whole records, not of pointers
    int32_t subtree_count;  // below 1: no children
    // The framework's own optional fields; the mapping only clears them when it reuses a record.
    char *data_namespace;
    uint32_t subtree_capacity;  // below subtree_count: the array is exactly full
    uint8_t present[2];
};

// ---- Contexts -------------------------------------------------------------------------------

// Where log statements go: a filter for each level, and the trace buffer.
struct VmfDebugContext {
    uint64_t word0;
    void *dbg_filter;
    void *err_filter;
    void *trc_filter;
    void *trace_buffer;
    uint32_t trace_enabled;
};

struct VmfContext {
    void *framework_state;
    VmfDebugContext _debug_ctx;
};

enum : uint32_t { VMF_REQUEST_HAS_SESSION_ID = 1u << 1 };

struct VmfRequestMessage {
    uint32_t word0;
    uint32_t session_id;
    uint32_t present;
};

struct VmfReqContext {
    VmfContext *vmf_ctx;
    VmfRequestMessage *request_message;
};

// The kind of a request. Any other number is an edit too, without the refusal of empty list keys.
enum : uint32_t {
    VMF_REQ_GET_CONFIG = 0,
    VMF_REQ_EDIT = 1,
    VMF_REQ_GET = 10,
};

struct VmfRequestInfo {
    uint32_t kind;
};

// One request: what it named, for the way back. Handed over zeroed, one for both directions. Flags hold 0 or 1.
struct RequestContext {
    VmfRequestInfo *request_info;     // the request kind
    char *rejected_tag;               // the tag of a refusal; the framework's to free
    uint32_t global_as_named;         // the answer carries the global AS
    uint32_t multipath_named;         // global use-multiple-paths: the answer has no family entries
    uint32_t response_pending;        // the framework's: the answer takes the place of the native trees
    Datatree *kept_mapped_tree;       // the OpenConfig tree that both response entries build
    uint32_t config_named;            // a `config` was met: no `state/` copies
    uint32_t state_named;             // a `state` was met: no `config/` copies
    uint32_t oper_wanted;             // the operational tree is needed
    uint32_t global_prefixes_wanted;  // which sums the answer gives
    uint32_t af_prefixes_wanted;
    uint32_t global_paths_wanted;
    uint32_t af_paths_wanted;
    Datatree *oper_af_matched;  // the OpenConfig family of the operational entry at hand
    uint32_t nbr_af_filter;     // only families whose bit is set go into the answer
    uint32_t grp_af_filter;
    uint32_t glb_af_filter;
    // Cleared as one block, glb_af_no_config to key_leaf_named, when the bgp container handler runs.
    uint32_t glb_af_no_config;
    uint32_t glb_af_no_state;
    uint32_t nbr_no_config;
    uint32_t nbr_no_state;
    uint32_t nbr_af_no_config;
    uint32_t nbr_af_no_state;
    uint32_t grp_no_config;
    uint32_t grp_no_state;
    uint32_t grp_af_no_config;
    uint32_t grp_af_no_state;
    uint32_t key_leaf_named;      // a key leaf was named alone
    uint32_t af_name_leaf_named;  // an `afi-safi-name` below config or state was named
    uint32_t nbr_af_bitmap;       // families that the request named, by row of the name tables
    uint32_t grp_af_bitmap;
    uint32_t glb_af_bitmap;
    uint32_t confederation_state_named;  // a mask of 1, 2 and 4; all other flags hold 0 or 1
    uint32_t multipath_state_named;      // state of the global multipath was named
    uint32_t af_multipath_state_named;   // the same of a family's
    uint32_t global_afisafis_named;      // global/afi-safis was named
    uint32_t replace_scope;              // the walk is inside a subtree that is replaced
    uint32_t replace_scope_owner;        // the walker that opened the scope may close it
};

// One run of the mapping: the first argument of every function. Handed over zeroed, a fresh one for each entry. Nodes
// and texts that it names belong to a tree and hold for as long as the walk stands at their entry.
struct MapContext {
    VmfReqContext *req_ctx;
    RequestContext *request;
    VmfDebugContext _debug_ctx;
    Datatree *list_node;         // the native list entry at hand; on the way back the OpenConfig one
    Datatree *af_node;           // the address-family entry below it
    const char *af_key;          // key of the list entry at hand: address, group name or family
    const char *af_name;         // native name of the family at hand, or its OpenConfig container
    Datatree *oper_list_node;    // the entry of the native operational tree at hand
    Datatree *oper_af_node;      // its address-family entry
    const char *oper_key;        // key of that entry
    const char *oper_af_name;    // operational word of the family; written, never read
    uint32_t list_op_present;    // the list entry being entered carries an operation
    uint32_t list_op;            // that operation
    uint32_t as_high;            // global AS number, for the native `as`
    uint32_t as_low;             // 0: no AS number is known yet
    uint32_t as_written;         // the AS has been dealt with; a record for the framework
    const char *remote_as_high;  // `as-xx` of a remote AS, until its `as-yy` comes
    uint32_t password_disabled;  // on the way back
    int32_t private_as_state;    // on the way back
    uint32_t af_seen_bitmap;     // families of the entry at hand
    uint32_t af_option_bitmap;   // those of them with an option set
    const char *multihop_ttl;    // hop count, until it is known whether it holds
    uint32_t ebgp_paths_count;   // external path values seen
    const char *ebgp_path_texts[4];
    uint32_t ibgp_paths_count;  // internal path values seen
    const char *ibgp_path_texts[4];
    uint32_t local_address_seen;  // the native local address may be disabled
    uint32_t four_byte_sent;      // capability, one half
    uint32_t four_byte_received;  // capability, the other half
    const char *distance_texts[8];
    uint32_t oper_wanted_in_state;  // operational data is wanted; a record for the framework
    uint32_t total_paths;           // running sums over the families
    uint32_t total_prefixes;
    uint32_t prefix_limit_added;  // the family's maximum-prefixes nodes stand already
    const char *oc_af_name;       // OpenConfig name of the family at hand
    uint32_t list_child_count;    // children of the list entry being walked
    uint32_t af_mapped;           // the native family has an OpenConfig counterpart
};

// ---- Outcomes -------------------------------------------------------------------------------

// Each function returns one of these, or what a platform operation returned.
enum : uint32_t {
    VMF_RC_OK = 0,
    VMF_RC_BAD_TREE = 0xaaf29e00,
    VMF_RC_BAD_ARGS = 0xaaf2a000,
    VMF_RC_NO_MEMORY = 0xaaf2a400,
    VMF_RC_UNSUPPORTED = 0xaaf2e600,
    VMF_RC_BAD_KEY = 0xaaf2e800,
    VMF_RC_KEY_OPERATION = 0xaaf2ea00,
};

}  // extern "C"

// ---- Namespaces -----------------------------------------------------------------------------

inline constexpr char ZR_BGP_CFG_NS[] = "http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-cfg";
inline constexpr char ZR_BGP_OPER_NS[] = "http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-oper";
inline constexpr char OC_BGP_NS[] = "http://openconfig.net/yang/bgp";
inline constexpr char OC_BGP_TYPES_NS[] = "http://openconfig.net/yang/bgp-types";
