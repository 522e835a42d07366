// The two native trees as the tests of the way back need them: the nodes of the models, the tags written down apart
// from them, and native trees as text without the levels that all of them share.
#pragma once

#include <string>
#include <vector>

#include "tree.h"
#include "vmf_map_oc_bgp.h"

namespace response {

enum class Model { cfg, oper };
constexpr Model both_models[] = {Model::cfg, Model::oper};

const char *name_of(Model model);         // "cfg", as in the names of handlers
const char *namespace_name(Model model);  // "zr-cfg", as in tree texts
using Walk = uint32_t(MapContext *ctx, Datatree *tree, Datatree *mapped);
Walk *walk_of(Model model);

// ---- The nodes of the models ----------------------------------------------------------------

struct Node {
    std::string path, kind, form;
    std::string handler, fallback, man;  // public name, default, body written by hand; empty where there is none

    bool is_leaf() const { return kind == "leaf" || kind == "leaf-list"; }
    std::string tag() const { return path.substr(path.rfind('/') + 1); }
};

const std::vector<Node> &nodes(Model model);

// The one node whose path ends like that: "global/router-id". Throws if there are none or several.
const Node &find_node(Model model, const std::string &end_of_path);

// ---- The tags -------------------------------------------------------------------------------

struct Place {
    std::string path;  // "/bgp/instance"
    bool is_list = false;
    std::vector<std::string> children;  // containers and lists
    std::vector<std::string> leaves;

    std::string tag() const { return path.substr(path.rfind('/') + 1); }
};

// The containers and lists of the tree of tags, in its order.
const std::vector<Place> &places(Model model);

// By the rule that names follow: "vmf_map_cont_zr_bgp_cfg_bgp_instance...".
std::string symbol(const std::string &prefix, Model model, const std::string &path);

// ---- Trees ----------------------------------------------------------------------------------

// A native tree: the lines of `inside` below the place that ends like that ("global"; "bgp" is the root), with all that
// leads to it. The instance is the default one.
std::string native_text(Model model, const std::string &place, const std::string &inside);

// The same below a whole path, with nothing else in it.
std::string bare_text(Model model, const std::string &path, const std::string &inside);

// The node at a path of tags below a holder ("bgp/instance"); of several of a name the last. Throws if it is not there.
Datatree &node_at(platform::Tree &tree, const std::string &path);

std::string text_of(const platform::Tree &tree);

}  // namespace response
