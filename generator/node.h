// A node of a model, as the generator's writers see it: what YANG says of it and what its row in the mapping table
// says.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

enum class NodeKind { container, list, leaf, leaf_list };

// A path of the other model that a row names.
struct OtherPath {
    std::string text;             // as the table has it
    std::string place;            // what it hangs from: "" (the output root), "list", "af", "oper-list", "oper-af"
    std::string path;             // whole below the output root, else relative to the place
    bool is_operational = false;  // of a request: lies in the operational model
    bool repeated = false;
    bool direct = false;
    // Of a request: what a write gives it in the place of the leaf's value, and the branches that name it.
    std::string constant;
    bool in_reads = true;
    bool in_removals = true;
    bool in_writes = true;

    bool is_plain() const { return constant.empty() && in_reads && in_removals && in_writes; }
};

struct Node {
    // From the model.
    std::string path;  // "/bgp/global/config/as"
    std::string tag;
    NodeKind kind = NodeKind::container;
    std::string type;  // YANG base type of a leaf, that of its target for a leafref
    std::string description;
    bool config = true;
    bool is_key = false;
    std::string key;               // of a list; empty if it has none or several
    std::vector<size_t> children;  // positions in the model's order

    // From its row.
    std::string tree;  // "oc", "zr_bgp_cfg", "zr_bgp_oper"
    std::string form;
    std::vector<OtherPath> others;
    bool overridden = false;
    bool has_man_body = false;
    bool keeps_scope = false;
    bool looks_at_kind = false;  // below `state`, where a request is a get and nothing else does
    std::string habit;           // of a list: how it speaks of its key, or what a response walk does in it
    bool has_handler = false;    // lists have none, but for one
    bool reports_path = true;    // of a list in a response

    bool is_leaf() const { return kind == NodeKind::leaf || kind == NodeKind::leaf_list; }
    bool has_default() const { return has_handler && form != "hand"; }
    bool is_walked() const { return form != "hand"; }
    bool lies_below_state() const;  // or is a `state` container itself
};

using Model = std::vector<Node>;  // in the order of the model, parents before children

// What stands wrong in the models or the tables; the text says where.
struct InputError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Reads `module_name` from `folder` and gives its data nodes.
Model read_model(const std::string &folder, const std::string &module_name);

// The identities of a module that are values: bases are none.
std::vector<std::string> read_identities(const std::string &folder, const std::string &module_name);

// The node at a schema path, or null.
const Node *find_node(const Model &model, const std::string &path);

// ---- Mapping tables -------------------------------------------------------------------------

enum class Direction { request, response };

struct Tree {
    std::string word;    // in symbols: "oc", "zr_bgp_cfg", "zr_bgp_oper"
    std::string module;  // and name of the mapping table
    Direction direction;
};

// The models that the other paths of rows lie in.
struct OtherModels {
    const Model *configuration;  // of a response's rows: the OpenConfig model
    const Model *operational;    // of a request's rows only
};

// Gives the nodes of `model` that have a row, each with what its row says; in a request's tree that is every node. Rows
// stand in the order of the model, and every path that they name is one of the other models.
Model read_mapping(const std::string &file, const Tree &tree, const Model &model, const OtherModels &others);

// ---- Symbols --------------------------------------------------------------------------------

// The path part of a node's symbols behind the root: "_global_config_routerid"; empty for the root.
std::string symbol_part(const Node &node);
std::string walker_symbol(const Node &node);
std::string handler_symbol(const Node &node);
std::string default_symbol(const Node &node);
std::string man_symbol(const Node &node);
