#include <nlohmann/json.hpp>
#include <sstream>

#include "write.h"

namespace {

std::string row_in_words(const Node &node)
{
    std::string words = node.form;
    for (const OtherPath &other : node.others) words += " " + other.text;
    if (node.overridden) words += "; overridden";
    return words;
}

const char *kind_name(const Node &node)
{
    switch (node.kind) {
    case NodeKind::container: return "container";
    case NodeKind::list: return "list";
    case NodeKind::leaf: return "leaf";
    case NodeKind::leaf_list: return "leaf-list";
    }
    return "";
}

// A walker is exported under its name, but of the responses only the root's.
bool is_walker_exported(const Node &node) { return node.tree == "oc" || node.path == "/bgp"; }

}  // namespace

std::string write_handler_declarations(const Tree &tree, const Model &nodes)
{
    std::ostringstream out;
    out << made_by(tree.module, "//")
        << "//\n"
           "// The handlers of a tree: for each node its path with the form of its default, the public name, the "
           "default,\n"
           "// and the body written by hand where there is one. An override includes this header and defines the "
           "public\n"
           "// name; a name that is not here does not compile.\n"
           "#pragma once\n\n#include \"vmf_map_oc_bgp.h\"\n\n// clang-format off\nextern \"C\" {\n";
    for (const Node &node : nodes) {
        if (!node.has_handler) continue;
        const std::string type = node.is_leaf() ? "VmfLeafHandler " : "VmfContainerHandler ";
        out << "\n// " << node.path << ": " << row_in_words(node) << "\n" << type << handler_symbol(node) << ";\n";
        if (node.has_default()) out << type << default_symbol(node) << ";\n";
        if (node.has_man_body) out << type << man_symbol(node) << ";\n";
    }
    out << "\n}  // extern \"C\"\n";
    return out.str();
}

std::string write_exports(const std::vector<Model> &trees, const std::vector<std::string> &services)
{
    std::ostringstream out;
    out << "# Made by generator/ from the models and mapping tables in models/ and from generator/services.txt.\n"
           "# Renew it with `cmake --build build/release --target generate`.\n"
           "# All that the library exports, and nothing else, in the node that the build names after the version.\n"
           "@VMF_MAP_SYMBOL_VERSION@ {\nglobal:\n    # services\n";
    for (const std::string &name : services) out << "    " << name << ";\n";
    out << "\n    # walkers\n";
    for (const Model &nodes : trees)
        for (const Node &node : nodes)
            if (is_walker_exported(node)) out << "    " << walker_symbol(node) << ";\n";
    out << "\n    # handlers: the public name, the default, the body written by hand\n";
    for (const Model &nodes : trees) {
        for (const Node &node : nodes) {
            if (!node.has_handler) continue;
            out << "    " << handler_symbol(node) << ";\n";
            if (node.has_default()) out << "    " << default_symbol(node) << ";\n";
            if (node.has_man_body) out << "    " << man_symbol(node) << ";\n";
        }
    }
    out << "local:\n    *;\n};\n";
    return out.str();
}

std::string write_node_list(const Model &nodes)
{
    std::ostringstream out;
    out << "[\n";
    for (size_t i = 0; i < nodes.size(); i++) {
        const Node &node = nodes[i];
        nlohmann::ordered_json row;
        row["path"] = node.path;
        row["kind"] = kind_name(node);
        if (node.is_leaf()) row["type"] = node.type;
        if (!node.key.empty()) row["key"] = node.key;
        row["config"] = node.config;
        row["form"] = node.form;
        for (const OtherPath &other : node.others) {
            const std::string place = other.place.empty() ? "" : other.place + ":";
            row[node.tree == "oc" ? "native" : "openconfig"].push_back(place + other.path);
        }
        if (is_walker_exported(node)) row["walker"] = walker_symbol(node);
        if (node.has_handler) {
            row["handler"] = handler_symbol(node);
            row["binding"] = node.overridden ? "strong" : "weak";
            if (node.has_default()) row["default"] = default_symbol(node);
        }
        if (node.has_man_body) row["man"] = man_symbol(node);
        if (node.tree == "oc" && !node.description.empty()) row["description"] = node.description;
        out << row.dump() << (i + 1 < nodes.size() ? ",\n" : "\n");
    }
    out << "]\n";
    return out.str();
}

static std::string shape_of(const Node &node, const std::string &path)
{
    return "\"" + path + "\", Kind::" + with_underscores(kind_name(node)) +
           ", Type::" + (node.is_leaf() ? with_underscores(node.type) + "_" : "none");
}

std::string write_native_table(const Model &configuration, const Model &operational)
{
    std::ostringstream out;
    out << "// Made by generator/ from the native models in models/.\n// Renew it with `cmake --build build/release "
           "--target generate`.\n"
        << "#include \"nodes.h\"\n\n// clang-format off\nnamespace model {\n\n"
        << "static constexpr NativeNode nodes[] = {\n";
    for (const Node &node : configuration) out << "    {" << shape_of(node, "configuration" + node.path) << "},\n";
    for (const Node &node : operational) out << "    {" << shape_of(node, "operational" + node.path) << "},\n";
    out << "};\n\nstd::span<const NativeNode> native() { return nodes; }\n\n}  // namespace model\n";
    return out.str();
}

std::string write_node_table(const Model &nodes, const std::vector<std::string> &identities)
{
    std::ostringstream out;
    out << made_by("openconfig-bgp", "//") << "#include \"nodes.h\"\n\n// clang-format off\nnamespace model {\n\n"
        << "static constexpr OcNode nodes[] = {\n";
    for (const Node &node : nodes) {
        out << "    {" << shape_of(node, node.path) << ", \"" << node.key << "\", " << (node.config ? "true" : "false")
            << ", \"" << walker_symbol(node) << "\", \"" << (node.has_handler ? handler_symbol(node) : "") << "\"},\n";
    }
    out << "};\n\nstatic constexpr std::string_view identities[] = {\n";
    for (const std::string &identity : identities) out << "    \"" << identity << "\",\n";
    out << "};\n\nstd::span<const OcNode> openconfig_bgp() { return nodes; }\n"
        << "std::span<const std::string_view> openconfig_bgp_identities() { return identities; }\n\n"
        << "}  // namespace model\n";
    return out.str();
}
