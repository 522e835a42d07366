#include "native_model.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>

#include "tree_text.h"

namespace response {

const char *name_of(Model model) { return model == Model::cfg ? "cfg" : "oper"; }
const char *namespace_name(Model model) { return model == Model::cfg ? "zr-cfg" : "zr-oper"; }
Walk *walk_of(Model model) { return model == Model::cfg ? vmf_map_zr_bgp_cfg_bgp : vmf_map_zr_bgp_oper_bgp; }

// ---- The nodes of the models ----------------------------------------------------------------

static std::vector<Node> read_nodes(Model model)
{
    std::vector<Node> nodes;
    const std::string file = std::string(SOURCE_DIR "/models/Zorvex-ZR-ipv4-bgp-") + name_of(model) + ".nodes.json";
    for (const auto &node : nlohmann::json::parse(std::ifstream(file))) {
        const auto field = [&](const char *name) { return node.value(name, std::string()); };
        nodes.push_back(
            {field("path"), field("kind"), field("form"), field("handler"), field("default"), field("man")});
    }
    return nodes;
}

const std::vector<Node> &nodes(Model model)
{
    static const auto *const all = new std::map<Model, std::vector<Node>>{{Model::cfg, read_nodes(Model::cfg)},
                                                                          {Model::oper, read_nodes(Model::oper)}};
    return all->at(model);
}

const Node &find_node(Model model, const std::string &end_of_path)
{
    const Node *found = nullptr;
    for (const Node &node : nodes(model)) {
        if (!node.path.ends_with("/" + end_of_path)) continue;
        if (found != nullptr) throw std::runtime_error("several nodes are called " + end_of_path);
        found = &node;
    }
    if (found == nullptr) throw std::runtime_error("no node is called " + end_of_path);
    return *found;
}

// ---- The tags -------------------------------------------------------------------------------

static std::vector<Place> read_places(Model model)
{
    std::vector<Place> places;
    std::vector<size_t> open;
    std::ifstream in(std::string(SOURCE_DIR "/tests/response/") + name_of(model) + "_tags.txt");
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with('#')) continue;
        open.resize(line.find_first_not_of(' ') / 2);
        std::istringstream words(line);
        std::string tag;
        words >> tag;
        if (tag != ":") {
            const bool has_leaves = tag.ends_with(':');
            if (has_leaves) tag.pop_back();
            if (!open.empty()) places[open.back()].children.push_back(tag);
            places.push_back({(open.empty() ? "" : places[open.back()].path) + "/" + tag, false, {}, {}});
            open.push_back(places.size() - 1);
        }
        Place &place = places[open.back()];
        for (std::string word; words >> word;) {
            if (word == "list" || word == "list:")
                place.is_list = true;
            else
                place.leaves.push_back(word);
        }
    }
    return places;
}

const std::vector<Place> &places(Model model)
{
    static const auto *const all = new std::map<Model, std::vector<Place>>{{Model::cfg, read_places(Model::cfg)},
                                                                           {Model::oper, read_places(Model::oper)}};
    return all->at(model);
}

std::string symbol(const std::string &prefix, Model model, const std::string &path)
{
    std::string name = prefix + "zr_bgp_" + name_of(model) + path;
    std::erase(name, '-');
    std::replace(name.begin(), name.end(), '/', '_');
    return name;
}

// ---- Trees ----------------------------------------------------------------------------------

static std::string wrapped(Model model, const std::string &path, const std::string &inside, const char *instance_name)
{
    std::string text;
    std::string indent;
    std::istringstream tags(path.substr(1));
    for (std::string tag; std::getline(tags, tag, '/');) {
        text += indent + tag + (indent.empty() ? std::string(" ") + namespace_name(model) : "") + "\n";
        indent += "  ";
        if (tag == "instance" && instance_name != nullptr) text += indent + "instance-name = " + instance_name + "\n";
    }
    std::istringstream lines(inside);
    for (std::string line; std::getline(lines, line);) text += indent + line + "\n";
    return text;
}

std::string native_text(Model model, const std::string &place, const std::string &inside)
{
    return wrapped(model, place == "bgp" ? "/bgp" : find_node(model, place).path, inside, "default");
}

std::string bare_text(Model model, const std::string &path, const std::string &inside)
{
    return wrapped(model, path, inside, nullptr);
}

Datatree &node_at(platform::Tree &tree, const std::string &path)
{
    Datatree *node = &tree.root();
    std::istringstream tags(path);
    for (std::string tag; std::getline(tags, tag, '/');) {
        Datatree *found = nullptr;
        for (Datatree &child : platform::children_of(*node))
            if (platform::tag_of(child) == tag) found = &child;
        if (found == nullptr) throw std::runtime_error("no " + tag + " of " + path);
        node = found;
    }
    return *node;
}

std::string text_of(const platform::Tree &tree) { return io::write_tree(tree.root(), io::Secrets::shown); }

}  // namespace response
