// Reads the models and their mapping tables, writes what the library and the host take from them.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

#include "write.h"

namespace fs = std::filesystem;

namespace {

struct Output {
    fs::path file;  // below the repository's root
    std::string text;
};

std::vector<std::string> read_services(const fs::path &file)
{
    std::ifstream in(file);
    if (!in) throw InputError("cannot read " + file.string());
    std::vector<std::string> names;
    for (std::string line; std::getline(in, line);)
        if (!line.empty() && line[0] != '#') names.push_back(line);
    return names;
}

const Tree request_tree = {"oc", "openconfig-bgp", Direction::request};
const Tree cfg_tree = {"zr_bgp_cfg", "Zorvex-ZR-ipv4-bgp-cfg", Direction::response};
const Tree oper_tree = {"zr_bgp_oper", "Zorvex-ZR-ipv4-bgp-oper", Direction::response};

const fs::path library = "manageability/yang/framework/mapping";

void write_request_tree(const fs::path &models, const Model &nodes, std::vector<Output> &outputs)
{
    for (const char *subtree : subtrees) {
        const std::string file = std::string("oc_") + subtree + ".cpp";
        outputs.push_back({library / "src/vmf_map_oc_bgp_parser" / file, write_request_walkers(nodes, subtree)});
        outputs.push_back({library / "src/vmf_map_oc_bgp_auto" / file, write_request_defaults(nodes, subtree)});
    }
    outputs.push_back({library / "include/vmf_map_oc_bgp_walkers.h", write_walker_declarations(nodes)});
    outputs.push_back({library / "include/vmf_map_oc_bgp_handlers.h", write_handler_declarations(request_tree, nodes)});
    outputs.push_back({"host/model/openconfig_bgp_nodes.cpp",
                       write_node_table(nodes, read_identities(models.string(), "openconfig-bgp-types"))});
}

void write_response_tree(const Tree &tree, const Model &nodes, std::vector<Output> &outputs)
{
    const std::string room = "vmf_map_" + tree.word;
    outputs.push_back({library / "src" / (room + "_parser") / "walk.cpp", write_response_walkers(tree, nodes)});
    outputs.push_back({library / "src" / (room + "_auto") / "defaults.cpp", write_response_defaults(tree, nodes)});
    outputs.push_back({library / "include" / (room + "_handlers.h"), write_handler_declarations(tree, nodes)});
}

std::vector<Output> write_all(const fs::path &root)
{
    const fs::path models = root / "models";
    const Model openconfig = read_model(models.string(), request_tree.module);
    const Model configuration = read_model(models.string(), cfg_tree.module);
    const Model operational = read_model(models.string(), oper_tree.module);

    const auto read_table = [&](const Tree &tree, const Model &model, const OtherModels &others) {
        return read_mapping((models / (tree.module + ".mapping")).string(), tree, model, others);
    };
    const std::vector<Model> trees = {read_table(request_tree, openconfig, {&configuration, &operational}),
                                      read_table(cfg_tree, configuration, {&openconfig, nullptr}),
                                      read_table(oper_tree, operational, {&openconfig, nullptr})};

    std::vector<Output> outputs;
    write_request_tree(models, trees[0], outputs);
    write_response_tree(cfg_tree, trees[1], outputs);
    write_response_tree(oper_tree, trees[2], outputs);
    outputs.push_back({"host/model/native_nodes.cpp", write_native_table(configuration, operational)});
    outputs.push_back(
        {library / "src/vmf_map_oc_bgp.exports", write_exports(trees, read_services(root / "generator/services.txt"))});
    for (size_t i = 0; i < trees.size(); i++) {
        const Tree &tree = i == 0 ? request_tree : i == 1 ? cfg_tree : oper_tree;
        outputs.push_back({fs::path("models") / (tree.module + ".nodes.json"), write_node_list(trees[i])});
        std::cout << tree.module << ": " << trees[i].size() << " nodes\n";
    }
    return outputs;
}

std::string read_file(const fs::path &file)
{
    std::ifstream in(file, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

int check(const fs::path &root, const std::vector<Output> &outputs)
{
    int stale = 0;
    for (const Output &output : outputs) {
        if (read_file(root / output.file) == output.text) continue;
        std::cerr << "stale: " << output.file.string() << "\n";
        stale = 1;
    }
    return stale;
}

void store(const fs::path &root, const std::vector<Output> &outputs)
{
    for (const Output &output : outputs) {
        const fs::path file = root / output.file;
        fs::create_directories(file.parent_path());
        if (fs::exists(file) && read_file(file) == output.text) continue;  // nothing to build again
        std::ofstream out(file, std::ios::binary);
        out << output.text;
        if (!out.flush()) throw InputError("cannot write " + file.string());
    }
}

}  // namespace

// generate ROOT           writes
// generate --check ROOT   compares, and names what is stale
int main(int argc, char **argv)
{
    const bool checks = argc == 3 && std::string(argv[1]) == "--check";
    if (argc != 2 && !checks) {
        std::cerr << "usage: generate [--check] ROOT\n";
        return 2;
    }
    const fs::path root = argv[argc - 1];
    try {
        const std::vector<Output> outputs = write_all(root);
        if (checks) return check(root, outputs);
        store(root, outputs);
        return 0;
    } catch (const std::exception &error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
}
