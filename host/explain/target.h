// A node of the OpenConfig tree that a question is about, and the requests that are made for it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "document.h"
#include "made_router.h"
#include "native_schema.h"
#include "nodes.h"

namespace explain {

// The key of a list entry on the way to a node.
struct Key {
    const model::OcNode *list;
    std::string value;  // an identity without its module; empty: any entry
};

struct Target {
    const model::OcNode *node;
    std::vector<Key> keys;  // from the top

    // "/bgp/neighbors/neighbor[neighbor-address='192.0.2.1']/config": the client's path.
    std::string path() const;
};

// The target at a schema path, with keys where none are given: made ones, and of the address families the first one
// with which the mapping takes a read of the node. Null node: there is none at that path.
Target make_target(std::string_view schema_path, const std::vector<Key> &given = {});

// The same node with another family, in all lists of families on the way.
Target with_family(const Target &target, const std::string &identity);
bool has_family(const Target &target);

// A key as the router keeps it; none if no entry can have it. Not of families.
std::optional<std::string> canonical_key(const model::OcNode &list, const std::string &value);

// The entries of a made router that meet the target.
EntryKeys entry_keys(const Target &target);

// The same with the target's family alone, or else the first one.
EntryKeys keys_of_one_entry(const Target &target);

// What a made request says about the target.
struct Saying {
    uint32_t kind;                                     // VMF_REQ_...
    std::optional<uint32_t> operation = std::nullopt;  // on the target, or on the ancestor at `operation_at`
    std::optional<std::string> value = std::nullopt;
    std::string_view operation_at = {};  // a schema path; empty: the target
};
io::Document make_request(const Target &target, const Saying &saying);

// The node in the compiled OpenConfig model.
const router::Schema &schema_of(const model::OcNode &node);

bool is_leaf(const model::OcNode &node);

// The list whose key a leaf is, or null.
const model::OcNode *list_of_key(const model::OcNode &node);

// Identities of the address families.
std::vector<std::string> families();

}  // namespace explain
