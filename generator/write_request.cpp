#include <algorithm>
#include <sstream>

#include "write.h"

const char *const subtrees[4] = {"bgp", "global", "neighbors", "peer_groups"};

namespace {

constexpr char module[] = "openconfig-bgp";

std::string subtree_of(const Node &node)
{
    if (node.path == "/bgp") return "bgp";
    std::string top = node.path.substr(sizeof "/bgp/" - 1);
    return with_underscores(top.substr(0, top.find('/')));
}

// ---- Walkers --------------------------------------------------------------------------------

std::string gate_of(const Node &parent, const Node &child)
{
    if (parent.lies_below_state()) return "below_state";
    if (child.kind == NodeKind::container && child.tag == "config") return "config";
    if (child.kind == NodeKind::container && child.tag == "state") return "state";
    return "none";
}

void write_children(std::ostream &out, const Model &nodes, const Node &node)
{
    std::vector<size_t> shown;
    for (size_t place : node.children)
        if (node.kind != NodeKind::list || !nodes[place].is_key) shown.push_back(place);
    const size_t tags = widest(nodes, shown, quoted_tag);
    size_t gates = 0;
    for (size_t place : shown) gates = std::max(gates, gate_of(node, nodes[place]).size());

    out << "static constexpr WalkChild " << local_name(node) << "_children[] = {\n";
    for (size_t place : shown) {
        const Node &child = nodes[place];
        out << "    {" << padded(quoted_tag(child), tags) << " Gate::" << padded(gate_of(node, child) + ",", gates + 1)
            << " " << walker_symbol(child) << "},\n";
    }
    out << "};\n";
}

void write_walk(std::ostream &out, const char *engine, const Node &node, const std::string &rule)
{
    out << "OC_WALK(" << symbol_part(node) << ") { return " << engine << "(ctx, node, out, " << rule << "); }\n";
}

void write_inner_walker(std::ostream &out, const Model &nodes, const Node &node)
{
    const std::string scope = node.keeps_scope ? "Scope::keeps" : "Scope::none";
    const std::string name = local_name(node);
    out << "\n// ---- " << node.path << "\n";
    write_children(out, nodes, node);
    if (node.kind == NodeKind::container) {
        out << "static constexpr WalkContainer " << name << " = {" << handler_symbol(node) << ", " << name
            << "_children, " << scope << "};\n";
        write_walk(out, "walk_container", node, name);
        return;
    }
    const Node &key = nodes[node.children.front()];
    out << "static constexpr WalkList " << name << " = {\n    \"" << node.tag << "\", \"" << node.key << "\", \""
        << node.path << "\", " << walker_symbol(key) << ",\n    KeyHabit::" << with_underscores(node.habit) << ", "
        << name << "_children, " << scope << "};\n";
    write_walk(out, "walk_list_entry", node, name);
}

// ---- Defaults -------------------------------------------------------------------------------

std::string form_function(const Node &node)
{
    if (node.form == "plain") return "plain_leaf";
    if (node.form == "fan-out") return "fan_out_leaf";
    if (node.form == "state") return "state_leaf";
    if (node.form == "key") return "key_leaf";
    if (node.form == "selection" || node.form == "forward") return node.form;
    if (node.form == "state-selection") return "state_selection";
    return "silent";  // a node whose row is still to come is silent too
}

// The path as C++, with the places of the native model by their names.
std::string path_expression(const OtherPath &native)
{
    static const std::pair<const char *, const char *> places[] = {
        {"/bgp/instance/instance-as/four-byte-as/default-vrf/global/global-afs", "ZR_BGP_GLOBAL_AFS"},
        {"/bgp/instance/instance-as/four-byte-as/default-vrf/global", "ZR_BGP_GLOBAL"},
        {"/bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity", "ZR_BGP_ENTITY"},
        {"/bgp/instance/instance-as/four-byte-as/default-vrf", "ZR_BGP_DEFAULT_VRF"},
        {"/bgp/instance/instance-as/four-byte-as", "ZR_BGP_FOUR_BYTE_AS"},
        {"/bgp/instance/instance-as/as", "ZR_BGP_AS"},
        {"/bgp/instances/instance/instance-active/default-vrf", "ZR_BGP_OPER_DEFAULT_VRF"},
    };
    for (const auto &[prefix, macro] : places) {
        if (!native.path.starts_with(prefix)) continue;
        const std::string rest = native.path.substr(std::string(prefix).size());
        if (rest.empty()) return macro;
        if (rest.front() == '/') return std::string(macro) + " \"" + rest + "\"";
    }
    return "\"" + native.path + "\"";
}

std::string native_expression(const OtherPath &native)
{
    const std::string place = native.place.empty() ? "cfg" : with_underscores(native.place);
    std::string expression = place + "(" + path_expression(native) + ")";
    if (native.repeated) expression = "repeated(" + expression + ")";
    if (native.direct) expression = "direct(" + expression + ")";
    return expression;
}

// The paths that one branch names. Only the last outcome counts.
std::string branch_expression(const Node &node, bool OtherPath::*is_in, bool is_write)
{
    std::vector<std::string> rows;
    for (const OtherPath &native : node.others) {
        if (!(native.*is_in)) continue;
        const std::string expression = native_expression(native);
        const bool has_constant = is_write && !native.constant.empty();
        rows.push_back(has_constant ? "fixed(" + expression + ", \"" + native.constant + "\")" : expression);
    }
    std::string list;
    for (size_t i = 0; i < rows.size(); i++)
        list += (i == 0 ? "" : ", ") + (i + 1 < rows.size() ? "lost(" + rows[i] + ")" : rows[i]);
    return "{" + list + "}";
}

std::string branching_body(const Node &node)
{
    return "branching_leaf(ctx, node, out, {.read = " + branch_expression(node, &OtherPath::in_reads, false) +
           ", .remove = " + branch_expression(node, &OtherPath::in_removals, false) +
           ", .write = " + branch_expression(node, &OtherPath::in_writes, true) + "})";
}

std::string default_body(const Node &node)
{
    for (const OtherPath &native : node.others)
        if (!native.is_plain()) return branching_body(node);
    const bool selects = node.form == "selection" || node.form == "state-selection";
    const bool counts = selects || (node.form == "forward" && !node.is_leaf());
    std::string body = form_function(node) + (counts ? "(ctx, node, subtree_count, out" : "(ctx, node, out");
    if (node.form == "forward") body += ", " + man_symbol(node);
    std::string natives;
    for (const OtherPath &native : node.others) natives += (natives.empty() ? "" : ", ") + native_expression(native);
    if (node.form == "plain" || node.form == "key")
        body += ", " + natives;
    else if (!natives.empty())
        body += ", {" + natives + "}";
    return body + ")";
}

std::string default_head(const Node &node)
{
    return std::string(node.is_leaf() ? "OC_LEAF_DEFAULT" : "OC_CONT_DEFAULT") + "(" + symbol_part(node) + ")";
}

}  // namespace

std::string write_request_walkers(const Model &nodes, const std::string &subtree)
{
    std::ostringstream out;
    out << made_by(module, "//") << "#include \"oc_walk.h\"\n\n// clang-format off\n";
    for (const Node &node : nodes) {
        if (subtree_of(node) != subtree) continue;
        if (node.is_leaf())
            write_walk(out, "walk_leaf", node, handler_symbol(node));
        else
            write_inner_walker(out, nodes, node);
    }
    return out.str();
}

std::string write_request_defaults(const Model &nodes, const std::string &subtree)
{
    std::ostringstream out;
    out << made_by(module, "//") << "#include \"oc_defaults.h\"\n\n// clang-format off\n";
    std::vector<size_t> places;
    for (size_t i = 0; i < nodes.size(); i++)
        if (nodes[i].has_handler && subtree_of(nodes[i]) == subtree) places.push_back(i);
    const size_t width = std::min<size_t>(widest(nodes, places, default_head), 72);
    for (size_t place : places) {
        const Node &node = nodes[place];
        if (!node.is_leaf()) out << "\n";
        out << padded(default_head(node), width) << " { return " << default_body(node) << "; }"
            << "\n";
    }
    return out.str();
}

std::string write_walker_declarations(const Model &nodes)
{
    std::ostringstream out;
    out << made_by(module, "//") << "// The walker of every node of the OpenConfig tree.\n#pragma once\n\n"
        << "#include \"vmf_map_oc_bgp.h\"\n\n// clang-format off\nextern \"C\" {\n\n";
    for (const Node &node : nodes) {
        if (node.path == "/bgp") continue;  // the root entry stands with the entries
        out << "uint32_t " << walker_symbol(node) << "(MapContext *ctx, Datatree *node, Datatree *out);\n";
    }
    out << "\n}  // extern \"C\"\n";
    return out.str();
}
