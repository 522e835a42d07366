// What the host knows of the nodes of a model: enough to read a request as its types ask for, and to say where in the
// model something stands.
#pragma once

#include <span>
#include <string_view>

namespace model {

enum class Kind { container, list, leaf, leaf_list };

enum class Type {
    none,  // not a leaf
    boolean_,
    decimal64_,
    empty_,
    enumeration_,
    identityref_,
    string_,
    union_,
    uint8_,
    uint16_,
    uint32_,
    uint64_,
};

struct OcNode {
    std::string_view path;  // of the schema: "/bgp/neighbors/neighbor/config/peer-as"
    Kind kind;
    Type type;             // that of its target for a leafref
    std::string_view key;  // of a list
    bool config;
    std::string_view walker;
    std::string_view handler;  // none for a list
};

// A node of a native model: enough to write it.
struct NativeNode {
    std::string_view path;  // "configuration/bgp/instance", "operational/bgp/instances"
    Kind kind;
    Type type;
};
std::span<const NativeNode> native();

// The node at such a path, or null.
const NativeNode *find_native_node(std::string_view path);

// The OpenConfig tree, in the order of the model.
std::span<const OcNode> openconfig_bgp();

// The identities of the module of BGP types.
std::span<const std::string_view> openconfig_bgp_identities();

// The node at a schema path, or null.
const OcNode *find_oc_node(std::string_view path);

}  // namespace model
