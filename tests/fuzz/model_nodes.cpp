#include "model_nodes.h"

#include <fstream>
#include <iterator>
#include <map>
#include <nlohmann/json.hpp>
#include <regex>

namespace fuzz {

namespace {

std::string text_of_model(const std::string &name)
{
    std::ifstream in(SOURCE_DIR "/models/" + name);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::vector<std::string> split(const std::string &path)
{
    std::vector<std::string> tags;
    std::istringstream in(path.substr(1));
    for (std::string tag; std::getline(in, tag, '/');) tags.push_back(tag);
    return tags;
}

struct Nodes {
    explicit Nodes(const std::string &module)
    {
        for (const auto &row : nlohmann::json::parse(text_of_model(module + ".nodes.json"))) {
            const std::string path = row.at("path");
            by_path[path] = all.size();
            all.push_back({split(path), row.at("kind"), row.value("type", ""), row.value("key", "")});
        }
    }

    std::vector<ModelNode> all;
    std::map<std::string, size_t> by_path;
};

const Nodes &list_of(Model model)
{
    static const Nodes lists[] = {Nodes("openconfig-bgp"), Nodes("Zorvex-ZR-ipv4-bgp-cfg"),
                                  Nodes("Zorvex-ZR-ipv4-bgp-oper")};
    return lists[static_cast<size_t>(model)];
}

std::vector<std::string> words_of_models(const char *statement)
{
    std::vector<std::string> words;
    const std::regex pattern(std::string("\\b") + statement + " \"?([A-Za-z0-9_-]+)");
    for (const char *module :
         {"openconfig-bgp", "openconfig-bgp-types", "Zorvex-ZR-ipv4-bgp-cfg", "Zorvex-ZR-ipv4-bgp-oper"}) {
        const std::string text = text_of_model(std::string(module) + ".yang");
        for (std::sregex_iterator word(text.begin(), text.end(), pattern), end; word != end; ++word)
            words.push_back((*word)[1]);
    }
    return words;
}

const std::vector<std::string> &identities()
{
    static const std::vector<std::string> words = words_of_models("identity");
    return words;
}

const std::vector<std::string> &enumerations()
{
    static const std::vector<std::string> words = words_of_models("enum");
    return words;
}

constexpr const char *numbers[] = {"0",   "1",   "2",     "4",          "8",          "75",
                                   "100", "255", "256",   "65001",      "65536",      "4200000001",
                                   "007", "-1",  "180.0", "4294967295", "4294967296", "18446744073709551616",
                                   "30",  "12x", "0x10",  "1e3"};
constexpr const char *texts[] = {
    "10.0.0.1",  "10.0.0.2", "2001:db8::1", "2001:DB8::1", "0.0.0.0",      "default", "edge",
    "a/b",       ".*",       "entire",      "PASS",        "true ",        "TRUE",    "colour",
    "<&>'\"",    "]]>",      "\xC3\xA9",    "Loopback0",   "ipv4-unicast", "vp-nv4",  "bgp-types:IPV4_UNICAST",
    "10.0.0.256"};
constexpr size_t longest = 700;

}  // namespace

const std::vector<ModelNode> &nodes_of(Model model) { return list_of(model).all; }

const ModelNode *find_node(Model model, const std::string &path)
{
    const Nodes &nodes = list_of(model);
    const auto found = nodes.by_path.find(path);
    return found != nodes.by_path.end() ? &nodes.all[found->second] : nullptr;
}

std::string any_value(Random &random, std::string_view type)
{
    if (below(random, 8) == 0) type = "";
    if (type == "boolean") return below(random, 2) == 0 ? "true" : "false";
    if (type == "identityref") return any_of(random, identities());
    if (type == "enumeration") return any_of(random, enumerations());
    if (type.starts_with("uint") || type == "decimal64") return any_of(random, numbers);
    if (type == "empty") return "";
    switch (below(random, 8)) {
    case 0: return any_of(random, numbers);
    case 1: return any_of(random, identities());
    case 2: return any_of(random, enumerations());
    case 3: return below(random, 8) == 0 ? std::string(below(random, longest), 'x') : "";
    default: return any_of(random, texts);
    }
}

std::string any_tag(Random &random)
{
    constexpr const char *others[] = {"colour", "BGP", "", "bgp", "state", "config", "a:b", "remove-private-as"};
    if (below(random, 8) == 0) return any_of(random, others);
    constexpr Model models[] = {Model::openconfig, Model::cfg, Model::oper};
    return any_of(random, nodes_of(any_of(random, models))).tags.back();
}

}  // namespace fuzz
