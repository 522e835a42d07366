#include "generator.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>

#include "tree_lines.h"

namespace properties {

namespace {

// The first ones may have multiple paths of the router.
constexpr size_t families_with_paths = 4;
const std::vector<std::string> families = {"IPV4_UNICAST",         "IPV6_UNICAST",         "IPV4_MULTICAST",
                                           "IPV6_MULTICAST",       "IPV4_LABELED_UNICAST", "IPV6_LABELED_UNICAST",
                                           "L3VPN_IPV4_UNICAST",   "L3VPN_IPV6_UNICAST",   "L3VPN_IPV4_MULTICAST",
                                           "L3VPN_IPV6_MULTICAST", "L2VPN_VPLS",           "L2VPN_EVPN"};

// What the types of the native leaves narrow, and what a text looks like.
struct Values {
    std::string_view leaf;  // the end of the path
    std::vector<std::string> values;
};
const std::vector<Values> special_values = {
    {"afi-safi-name", {"IPV4_UNICAST"}},
    {"neighbor-address", {"192.0.2.2"}},
    {"peer-group-name", {"edge"}},
    {"global/config/router-id", {"192.0.2.1", "203.0.113.255"}},
    {"local-address", {"192.0.2.1", "Loopback0"}},
    {"cluster-id", {"192.0.2.77", "77", "4294967295"}},
    {"auth-password", {"s3cret", "a b", "<&>\"'"}},
    {"description", {"core", "two words", "\xC3\xA4 \xE2\x82\xAC", "a/b[c='d']"}},
    {"peer-group", {"edge", "a/b"}},
    {"import-policy", {"IN", "pass-all"}},
    {"export-policy", {"OUT", "pass-all"}},
    {"external-route-distance", {"1", "20", "255"}},
    {"internal-route-distance", {"1", "200", "255"}},
    {"maximum-paths", {"2", "8", "32"}},
    {"restart-time", {"1", "120", "4095"}},
    {"stale-routes-time", {"1", "360", "600"}},
    {"hold-time", {"3", "90", "65535"}},
    {"keepalive-interval", {"1", "30", "65535"}},
    {"minimum-advertisement-interval", {"0", "5", "600"}},
    {"tcp-mss", {"68", "1400", "9000"}},
    {"multihop-ttl", {"1", "4", "255"}},
    {"shutdown-threshold-pct", {"1", "75", "100"}},
    {"max-prefixes", {"1", "1000", "4294967295"}},
};

bool is_written(const model::OcNode &node)
{
    const bool is_leaf = node.kind == model::Kind::leaf || node.kind == model::Kind::leaf_list;
    const bool is_name = node.path.ends_with("/afi-safi-name") || node.path.ends_with("/neighbor-address") ||
                         node.path.ends_with("/peer-group-name");
    return is_leaf && node.config && !is_name && node.path != "/bgp/global/config/as";
}

// "IPV4_UNICAST" for ".../ipv4-unicast/...": a leaf in a family's own container belongs to that family alone.
std::string family_of(std::string_view schema)
{
    const std::string_view marker = "/afi-safi/";
    const size_t at = schema.find(marker);
    if (at == std::string_view::npos) return {};
    std::string name(schema.substr(at + marker.size()));
    name.erase(std::min(name.find('/'), name.size()));
    for (char &c : name) c = c == '-' ? '_' : static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return std::find(families.begin(), families.end(), name) != families.end() ? name : "";
}

bool may_have(const std::string &family, const model::OcNode &leaf)
{
    const std::string own = family_of(leaf.path);
    const auto last_with_paths = families.begin() + families_with_paths;
    const bool has_paths = std::find(families.begin(), last_with_paths, family) != last_with_paths;
    return (own.empty() || own == family) && (has_paths || !leaf.path.ends_with("/maximum-paths"));
}

}  // namespace

std::vector<const model::OcNode *> written_leaves()
{
    std::vector<const model::OcNode *> leaves;
    for (const model::OcNode &node : model::openconfig_bgp())
        if (is_written(node)) leaves.push_back(&node);
    return leaves;
}

std::string some_instance(std::string_view schema)
{
    const std::string own = family_of(schema);
    const std::string family = own.empty() ? families.front() : own;
    std::string path;
    for (size_t at = 0; at < schema.size();) {
        const size_t end = std::min(schema.find('/', at + 1), schema.size());
        path += schema.substr(at, end - at);
        const std::string_view key = model::find_oc_node(schema.substr(0, end))->key;
        if (!key.empty())
            path += "[" + (key == "afi-safi-name" ? family : key == "neighbor-address" ? "192.0.2.2" : "edge") + "]";
        at = end;
    }
    return path;
}

std::string Generator::value_of(const model::OcNode &leaf)
{
    for (const Values &special : special_values)
        if (leaf.path.ends_with(special.leaf))
            return special.values[below(static_cast<uint32_t>(special.values.size()))];
    switch (leaf.type) {
    case model::Type::boolean_: return one_in(2) ? "true" : "false";
    case model::Type::uint32_: return std::to_string(one_in(4) ? UINT32_MAX : 1 + below(65535));
    default: throw std::runtime_error("no values for " + std::string(leaf.path));
    }
}

void Generator::add_leaves(const std::string &schema, const std::string &path, Nodes &nodes)
{
    for (const model::OcNode *leaf : written_leaves()) {
        const std::string_view rest = leaf->path;
        if (!rest.starts_with(schema + "/") || rest.find("/afi-safi/", schema.size()) != std::string_view::npos)
            continue;
        if (one_in(4)) nodes.push_back({path + std::string(rest.substr(schema.size())), "", value_of(*leaf), true});
    }
}

void Generator::add_families(const std::string &schema, const std::string &path, Nodes &nodes)
{
    for (const std::string &family : families) {
        if (!one_in(4)) continue;
        const std::string entry = path + "[" + family + "]";
        nodes.push_back({entry, "", "", false});
        for (const model::OcNode *leaf : written_leaves()) {
            if (leaf->path.starts_with(schema + "/") && may_have(family, *leaf) && one_in(3))
                nodes.push_back({entry + std::string(leaf->path.substr(schema.size())), "", value_of(*leaf), true});
        }
    }
}

void Generator::add_entries(const std::string &list, const std::vector<std::string> &keys, Nodes &nodes)
{
    for (const std::string &key : keys) {
        if (one_in(3)) continue;
        const std::string entry = list + "[" + key + "]";
        nodes.push_back({entry, "", "", false});
        add_leaves(list, entry, nodes);
        add_families(list + "/afi-safis/afi-safi", entry + "/afi-safis/afi-safi", nodes);
    }
}

Nodes Generator::configuration()
{
    Nodes nodes;
    add_leaves("/bgp/global", "/bgp/global", nodes);
    add_families("/bgp/global/afi-safis/afi-safi", "/bgp/global/afi-safis/afi-safi", nodes);
    add_entries("/bgp/neighbors/neighbor", {"192.0.2.2", "2001:db8::2"}, nodes);
    add_entries("/bgp/peer-groups/peer-group", {"edge", "a [b]"}, nodes);
    return nodes;
}

}  // namespace properties
