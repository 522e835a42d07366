// What the built library exports: the contract's names, with their bindings, and nothing else.
#include <cstdio>
#include <fstream>
#include <memory>
#include <set>

#include "library_test.h"

using namespace library_test;

namespace {

struct Symbol {
    std::string address;
    char type;
    std::string version;
};
using Symbols = std::map<std::string, Symbol>;

struct SymbolTable {
    Symbols defined;
    std::set<std::string> undefined;  // but for those with a version, which are the C and C++ libraries'
};

std::string output_of(const std::string &command)
{
    const std::unique_ptr<FILE, int (*)(FILE *)> out(popen(command.c_str(), "r"), pclose);
    std::string text;
    char part[4096];
    while (size_t count = std::fread(part, 1, sizeof part, out.get())) text.append(part, count);
    return text;
}

SymbolTable symbols_of(const std::string &library)
{
    SymbolTable table;
    std::istringstream lines(output_of(std::string(NM) + " -D " + library));
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        std::string address, type, name;
        if (line[0] != ' ') fields >> address;
        fields >> type >> name;
        const size_t at = name.find("@@");    // one "@" is a version that no program is linked to
        if (!address.empty() && type != "A")  // "A": the version itself
            table.defined[name.substr(0, at)] = {address, type[0], at != name.npos ? name.substr(at + 2) : ""};
        else if (type == "U" && name.find('@') == std::string::npos)
            table.undefined.insert(name);
    }
    return table;
}

const SymbolTable &library()
{
    static const SymbolTable table = symbols_of(LIBRARY_FILE);
    return table;
}

std::string text_of_file(const std::string &path)
{
    std::ifstream in(SOURCE_DIR "/" + path);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::vector<Node> all_nodes()
{
    std::vector<Node> all = nodes();
    all.insert(all.end(), cfg_nodes().begin(), cfg_nodes().end());
    all.insert(all.end(), oper_nodes().begin(), oper_nodes().end());
    return all;
}

// Name and binding of all that the contract names. "D": a table.
std::map<std::string, char> contract()
{
    std::map<std::string, char> names;
    std::ifstream services(SOURCE_DIR "/generator/services.txt");
    for (std::string name; std::getline(services, name);)
        if (!name.empty() && name[0] != '#') names[name] = name.starts_with("oc_") ? 'D' : 'T';
    for (const Node &node : all_nodes()) {
        if (!node.walker.empty()) names[node.walker] = 'T';
        if (!node.handler.empty()) names[node.handler] = node.binding == "weak" ? 'W' : 'T';
        if (!node.fallback.empty()) names[node.fallback] = 'T';
        if (!node.man.empty()) names[node.man] = 'T';
    }
    return names;
}

TEST(Exports, are_the_names_of_the_contract_with_their_bindings)
{
    for (const auto &[name, binding] : contract()) {
        const auto found = library().defined.find(name);
        if (found == library().defined.end())
            ADD_FAILURE() << name << " is not exported";
        else
            EXPECT_EQ(found->second.type == 'R' ? 'D' : found->second.type, binding) << name;
    }
}

TEST(Exports, are_nothing_else)
{
    const auto names = contract();
    for (const auto &[name, symbol] : library().defined) EXPECT_TRUE(names.contains(name)) << name;
}

std::string major_version() { return std::string(PROJECT_VERSION).substr(0, std::string(PROJECT_VERSION).find('.')); }

TEST(Exports, all_bear_the_version_that_the_project_has)
{
    for (const auto &[name, symbol] : library().defined)
        EXPECT_EQ(symbol.version, "VMF_MAP_OC_BGP_" + major_version()) << name;
}

TEST(Exports, stand_in_a_library_whose_name_bears_the_version_that_the_project_has)
{
    const std::string command = std::string(READELF) + " -d " + LIBRARY_FILE;
    EXPECT_NE(output_of(command).find("Library soname: [libvmf_map_oc_bgp.so." + major_version() + "]\n"),
              std::string::npos);
    EXPECT_TRUE(std::string(LIBRARY_FILE).ends_with("/libvmf_map_oc_bgp.so." PROJECT_VERSION)) << LIBRARY_FILE;
}

TEST(Exports, are_as_many_as_the_trees_have_nodes)
{
    std::map<std::string, int> counts;
    for (const auto &[name, symbol] : library().defined) {
        const std::string type(1, symbol.type);
        if (name.starts_with("__")) counts["defaults " + type]++;
        for (const char *tree : {"oc", "zr_bgp_cfg", "zr_bgp_oper"})
            for (const char *prefix : {"vmf_map_cont_", "vmf_map_leaf_"})
                if (name.starts_with(std::string(prefix) + tree + "_")) counts[std::string(tree) + " handlers"]++;
    }
    EXPECT_EQ(counts["defaults T"], 600);
    EXPECT_EQ(counts["oc handlers"], 426);
    EXPECT_EQ(counts["zr_bgp_cfg handlers"], 126);  // six have no default
    EXPECT_EQ(counts["zr_bgp_oper handlers"], 54);
}

TEST(Exports, a_public_name_that_nobody_has_defined_is_the_default_itself)
{
    for (const Node &node : all_nodes()) {
        if (node.fallback.empty()) continue;
        const std::string &handler = library().defined.at(node.handler).address;
        EXPECT_EQ(handler == library().defined.at(node.fallback).address, node.binding == "weak") << node.path;
    }
}

TEST(Exports, the_tables_of_the_address_families_are_data)
{
    for (const char *name : {"oc_zr_af_names", "oc_zr_nbr_oper_af_names", "oc_bgp_af_container"}) {
        const char type = library().defined.at(name).type;
        EXPECT_TRUE(type == 'D' || type == 'R') << name << " " << type;
    }
}

TEST(Exports, the_platform_stays_undefined)
{
    const std::string header = text_of_file("manageability/yang/framework/mapping/include/vmf_map_platform.h");
    size_t operations = 0;
    for (const std::string &name : library().undefined) {
        if (name.starts_with("__asan") || name.starts_with("__ubsan") || name.starts_with("__san")) continue;
        EXPECT_NE(header.find(name + "("), std::string::npos) << name;
        operations++;
    }
    EXPECT_GT(operations, 20u);
    for (const char *name :
         {"vmf_map_datatree_add_subtree", "vmf_map_datatree_add_path", "vmf_map_datatree_add_path_common",
          "vmf_map_do_these_match", "vmf_map_is_request_delete", "vmf_map_update_current_list_node", "vmf_strdup",
          "vmf_debug_should_log", "_kos_dt_log_filter_adv", "ret_nc_vmf_trace_index_incr", "_lstrace",
          "sysdb_backend_find_data", "vmf_session_find"})
        EXPECT_TRUE(library().undefined.contains(name)) << name;
}

TEST(Exports, the_headers_declare_every_name_in_full)
{
    const std::string include = "manageability/yang/framework/mapping/include/";
    std::string handlers;
    for (const char *tree : {"oc_bgp", "zr_bgp_cfg", "zr_bgp_oper"})
        handlers += text_of_file(include + "vmf_map_" + tree + "_handlers.h");
    const std::string walkers =
        text_of_file(include + "vmf_map_oc_bgp_walkers.h") + text_of_file(include + "vmf_map_oc_bgp.h");
    for (const Node &node : all_nodes()) {
        for (const std::string &symbol : handlers_of(node))
            EXPECT_NE(handlers.find(" " + symbol + ";"), std::string::npos) << symbol;
        if (!node.walker.empty()) {
            EXPECT_NE(walkers.find(" " + node.walker + "("), std::string::npos) << node.walker;
        }
    }
}

TEST(Exports, an_override_turns_its_weak_name_into_a_strong_one_and_changes_no_other)
{
    const Symbols overridden = symbols_of(OVERRIDDEN_LIBRARY_FILE).defined;
    std::map<std::string, char> types, types_before;
    for (const auto &[name, symbol] : overridden) types[name] = symbol.type;
    for (const auto &[name, symbol] : library().defined) types_before[name] = symbol.type;
    EXPECT_EQ(types_before.at("vmf_map_leaf_oc_bgp_global_config_routerid"), 'W');
    EXPECT_EQ(types.at("vmf_map_leaf_oc_bgp_global_config_routerid"), 'T');
    types.erase("vmf_map_leaf_oc_bgp_global_config_routerid");
    types_before.erase("vmf_map_leaf_oc_bgp_global_config_routerid");
    EXPECT_EQ(types, types_before);
}

}  // namespace
