#include "golden.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <set>
#include <utility>

#include "cases.h"
#include "database_items.h"
#include "generator.h"
#include "get_request.h"
#include "request.h"
#include "tree_lines.h"
#include "tree_text.h"
#include "write.h"

namespace sweep {

namespace fs = std::filesystem;
using properties::Nodes;

namespace {

std::vector<platform::DatabaseRecord> known_as() { return {framework::global_as_item(0, 65001)}; }

std::string text_of(const platform::Tree &tree) { return io::write_tree(tree.root(), io::Secrets::shown); }

// ---- Sources of requests --------------------------------------------------------------------

void add_cases(std::vector<Exchange> &all)
{
    std::vector<fs::path> files;
    for (const auto &entry : fs::directory_iterator(SOURCE_DIR "/tests/request"))
        if (entry.path().extension() == ".cases") files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    for (const fs::path &file : files) {
        for (const support::Case &it : support::read_cases(file.string()))
            if (it.has("request"))
                all.push_back({file.stem().string() + ": " + it.name,
                               support::number_of_kind(it.text("kind")),
                               support::tree_of(it, "request"),
                               {},
                               1,
                               support::records_of(it)});
    }
}

Exchange exchange(const std::string &name, uint32_t kind, const Nodes &nodes)
{
    return {name, kind, text_of(trips::tree_of(nodes)), {}, 1, known_as()};
}

Nodes nodes_at(const std::vector<std::string> &paths)
{
    Nodes nodes;
    for (const std::string &path : paths) nodes.push_back({path, "", "", false});
    return nodes;
}

void add_trips(std::vector<Exchange> &all)
{
    for (const trips::Trip &trip : trips::all_trips()) {
        for (const trips::Step &step : trip.steps) {
            const std::string name = trip.name + ", line " + std::to_string(step.line);
            if (step.verb == "edit") all.push_back(exchange(name, VMF_REQ_EDIT, trips::nodes_of_edit(step)));
            if (step.verb == "get") all.push_back(exchange(name, VMF_REQ_GET, trips::nodes_of_read(step)));
            if (step.verb == "get-config")
                all.push_back(exchange(name, VMF_REQ_GET_CONFIG, trips::nodes_of_read(step)));
        }
    }
}

void add_every_node(std::vector<Exchange> &all)
{
    properties::Generator generator(1);
    for (const model::OcNode &node : model::openconfig_bgp()) {
        const std::string path = properties::some_instance(node.path);
        const bool is_leaf = node.kind == model::Kind::leaf || node.kind == model::Kind::leaf_list;
        all.push_back(exchange("get " + path, VMF_REQ_GET, nodes_at({path})));
        if (!node.config) continue;
        all.push_back(exchange("get-config " + path, VMF_REQ_GET_CONFIG, nodes_at({path})));
        all.push_back(exchange("delete " + path, VMF_REQ_EDIT, {{path, "delete", "", false}}));
        all.push_back(
            exchange("write " + path, VMF_REQ_EDIT, {{path, "", is_leaf ? generator.value_of(node) : "", is_leaf}}));
    }
}

void add_configurations(std::vector<Exchange> &all)
{
    properties::Generator generator(1);
    for (int i = 0; i < 10; i++)
        all.push_back(exchange("configuration " + std::to_string(i), VMF_REQ_EDIT, generator.configuration()));
}

// ---- The router that answers ----------------------------------------------------------------

std::string response_to(const Exchange &exchange, properties::Device &device)
{
    platform::SystemDatabase database;
    for (const platform::DatabaseRecord &record : exchange.records) database.put(record);
    platform::Log log;
    framework::Request request(exchange.kind, database, log);
    platform::Tree tree = io::read_tree(exchange.request);
    platform::Tree native;
    if (request.map(platform::children_of(tree.root()).front(), native.root()) != VMF_RC_OK) return {};
    const std::string config = text_of(device.router().read_config(native.root(), router::Datastore::candidate));
    return config + (request.wants_operational() ? text_of(device.router().read_operational(native.root())) : "");
}

std::string value_of_native(const std::string &tag, const std::string &type)
{
    if (tag == "instance-name") return "default";
    if (tag == "af-name") return "ipv4-unicast";
    if (tag.ends_with("address")) return "192.0.2.2";
    return type == "boolean" ? "true" : "1";
}

// A native tree of every node of its model, once.
std::string every_native_node(const std::string &model, const std::string &ns)
{
    std::ifstream in(SOURCE_DIR "/models/" + model + ".nodes.json");
    std::string text;
    for (const auto &node : nlohmann::json::parse(in)) {
        const std::string path = node["path"], kind = node["kind"], type = node.value("type", "");
        const std::string tag = path.substr(path.rfind('/') + 1);
        const auto depth = static_cast<size_t>(std::count(path.begin(), path.end(), '/')) - 1;
        text += std::string(2 * depth, ' ') + tag + (depth == 0 ? " " + ns : "");
        if (kind.starts_with("leaf") && type != "empty") text += " = " + value_of_native(tag, type);
        text += "\n";
    }
    return text;
}

void add_whole_responses(std::vector<Exchange> &all)
{
    const std::string cfg = every_native_node("Zorvex-ZR-ipv4-bgp-cfg", "zr-cfg");
    const std::string oper = every_native_node("Zorvex-ZR-ipv4-bgp-oper", "zr-oper");
    for (const std::string path : {"/bgp", "/bgp/global/state", "/bgp/neighbors", "/bgp/peer-groups"}) {
        for (const uint32_t kind : {VMF_REQ_GET, VMF_REQ_GET_CONFIG}) {
            all.push_back(exchange("every native node for " + path, kind, nodes_at({path})));
            all.back().response = cfg + oper;
        }
    }
}

// Many trips begin alike.
void keep_first_of_each(std::vector<Exchange> &all)
{
    std::set<std::pair<uint32_t, std::string>> known;
    std::erase_if(all, [&known](const Exchange &exchange) {
        return !known.insert({exchange.kind, std::to_string(exchange.records.size()) + exchange.request}).second;
    });
}

void add_responses(std::vector<Exchange> &all)
{
    properties::Device device;
    device.load_everything();
    for (Exchange &exchange : all) {
        if (exchange.kind != VMF_REQ_GET && exchange.kind != VMF_REQ_GET_CONFIG) continue;
        exchange.response = response_to(exchange, device);
        exchange.response_pending = (&exchange - all.data()) % 4 == 0 ? 0 : 1;
    }
}

}  // namespace

const std::vector<Exchange> &golden_set()
{
    static const std::vector<Exchange> *const set = [] {
        auto *all = new std::vector<Exchange>;
        add_cases(*all);
        add_trips(*all);
        add_every_node(*all);
        add_configurations(*all);
        keep_first_of_each(*all);
        add_responses(*all);
        add_whole_responses(*all);
        return all;
    }();
    return *set;
}

}  // namespace sweep
