#include <algorithm>
#include <sstream>

#include "write.h"

namespace {

// "ZR_CFG" or "ZR_OPER": what the macros of a tree begin with.
std::string macro_word(const Tree &tree) { return tree.word == "zr_bgp_cfg" ? "ZR_CFG" : "ZR_OPER"; }

// ---- Walkers --------------------------------------------------------------------------------

// A leaf has no walker of its own: the walk calls its handler.
std::string steps_into(const Node &node) { return node.is_leaf() ? handler_symbol(node) : walker_symbol(node); }

std::string role_of(const Node &list, const Node &child)
{
    if (list.habit == "default-only" && child.is_key) return "instance_name";
    if ((list.habit == "families" || list.habit == "named-families") && child.is_key) return "family_name";
    return "none";
}

void write_children(std::ostream &out, const Model &nodes, const Node &node)
{
    std::vector<size_t> walked;
    for (size_t place : node.children)
        if (nodes[place].is_walked()) walked.push_back(place);
    const size_t tags = widest(nodes, walked, quoted_tag);
    out << "static constexpr ResponseChild " << local_name(node) << "_children[] = {\n";
    for (size_t place : walked) {
        const Node &child = nodes[place];
        out << "    {" << padded(quoted_tag(child), tags) << " Role::" << role_of(node, child) << ", "
            << steps_into(child) << "},\n";
    }
    out << "};\n";
}

std::string list_expression(const Node &node)
{
    const std::string path = node.reports_path ? "\"" + node.path + "\"" : "nullptr";
    const std::string names = node.habit == "named-families" ? "FamilyLine::names_it" : "FamilyLine::plain";
    const std::string childless = node.habit == "childless" ? "Childless::passes" : "Childless::by_rules";
    return "{\"" + node.tag + "\", " + path + ", " + local_name(node) + "_children, " + names + ", " + childless + "}";
}

// Children first: a walker is internal, and its parent's table names it.
void write_walker(std::ostream &out, const Tree &tree, const Model &nodes, const Node &node)
{
    for (size_t place : node.children)
        if (!nodes[place].is_leaf() && nodes[place].is_walked()) write_walker(out, tree, nodes, nodes[place]);
    const std::string name = local_name(node);
    out << "\n// ---- " << node.path << "\n";
    write_children(out, nodes, node);
    const bool is_list = node.kind == NodeKind::list;
    out << "static constexpr " << (is_list ? "ResponseList " : "ResponseContainer ") << name << " = "
        << (is_list ? list_expression(node) : "{" + handler_symbol(node) + ", " + name + "_children}") << ";\n"
        << macro_word(tree) << (node.path == "/bgp" ? "_ROOT" : "_WALK(" + symbol_part(node) + ")") << " { return "
        << (is_list ? "walk_response_list" : "walk_response_container") << "(ctx, tree, mapped, " << name
        << ", rules); }\n";
}

// ---- Defaults -------------------------------------------------------------------------------

std::string place_expression(const OtherPath &other)
{
    if (other.place.empty()) return "oc";
    return "oc_" + with_underscores(other.place);
}

std::string target_expression(const OtherPath &other)
{
    const size_t star = other.path.find('*');
    std::string expression = place_expression(other);
    if (star == std::string::npos)
        expression += "(\"" + other.path + "\")";
    else
        expression +=
            "_copies(COPIES(\"" + other.path.substr(0, star) + "\", \"" + other.path.substr(star + 1) + "\"))";
    return other.repeated ? "repeated(" + expression + ")" : expression;
}

std::string form_function(const Node &node)
{
    if (node.form == "copies") return "copy_value";
    if (node.form == "whole") return "whole_path";
    if (node.form == "opens") return "open_path";
    if (node.form == "entry") return "entry_key";
    if (node.form == "empty") return "empty_container";
    if (node.form == "forward") return "forward";
    return "silent";
}

std::string default_body(const Node &node)
{
    const bool counts = node.form == "empty";
    std::string body = form_function(node) + (counts ? "(ctx, node, subtree_count, mapped" : "(ctx, node, mapped");
    if (node.form == "forward") body += ", " + man_symbol(node);
    if (node.form == "entry") {
        const bool is_family = node.others[1].place == "af";
        body += std::string(", ") + (is_family ? "&Ctx::af_node" : "&Ctx::list_node");
    }
    for (const OtherPath &other : node.others) body += ", " + target_expression(other);
    return body + ")";
}

std::string default_head(const Node &node)
{
    const std::string word = node.tree == "zr_bgp_cfg" ? "ZR_CFG" : "ZR_OPER";
    return word + (node.is_leaf() ? "_LEAF_DEFAULT(" : "_CONT_DEFAULT(") + symbol_part(node) + ")";
}

std::string file_word(const Tree &tree) { return tree.word == "zr_bgp_cfg" ? "zr_cfg" : "zr_oper"; }

}  // namespace

std::string write_response_walkers(const Tree &tree, const Model &nodes)
{
    std::ostringstream out;
    out << made_by(tree.module, "//") << "#include \"" << file_word(tree) << "_walk.h\"\n\n// clang-format off\n";
    write_walker(out, tree, nodes, nodes.front());
    return out.str();
}

std::string write_response_defaults(const Tree &tree, const Model &nodes)
{
    std::ostringstream out;
    out << made_by(tree.module, "//") << "#include \"" << file_word(tree) << "_defaults.h\"\n\n// clang-format off\n";
    std::vector<size_t> places;
    for (size_t i = 0; i < nodes.size(); i++)
        if (nodes[i].has_default()) places.push_back(i);
    const size_t width = std::min<size_t>(widest(nodes, places, default_head), 96);
    for (size_t place : places) {
        const Node &node = nodes[place];
        if (!node.is_leaf()) out << "\n";
        out << padded(default_head(node), width) << " { return " << default_body(node) << "; }\n";
    }
    return out.str();
}
