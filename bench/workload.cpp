#include "workload.h"

#include "names.h"
#include "vmf_map_types.h"

namespace bench {

namespace {

// Builds below a node by tags, all of one namespace.
class Builder {
public:
    Builder(Datatree &node, const char *ns) : node_(&node), ns_(platform::intern(ns)) {}

    Builder add(const char *tag) const
    {
        return Builder(*platform::append_child(*node_, platform::intern(tag), ns_), ns_);
    }
    void leaf(const char *tag, std::string_view value) const
    {
        platform::set_value(*platform::append_child(*node_, platform::intern(tag), ns_), value);
    }
    void identity(const char *tag, std::string_view value) const
    {
        Datatree &leaf = *platform::append_child(*node_, platform::intern(tag), ns_);
        platform::set_value(leaf, value);
        platform::set_data_namespace(leaf, platform::intern(OC_BGP_TYPES_NS));
    }
    Datatree &node() const { return *node_; }

private:
    Datatree *node_;
    const char *ns_;
};

constexpr const char *families[][2] = {{"IPV4_UNICAST", "ipv4-unicast"}, {"IPV6_UNICAST", "ipv6-unicast"}};

void add_openconfig_neighbor(const Builder &neighbors, size_t number)
{
    const Builder neighbor = neighbors.add("neighbor");
    neighbor.leaf("neighbor-address", address_of(number));
    const Builder config = neighbor.add("config");
    config.leaf("peer-as", std::to_string(64512 + number % 1000));
    config.leaf("local-as", "65001");
    config.leaf("auth-password", "secret");
    config.leaf("description", "customer " + std::to_string(number));
    config.leaf("peer-group", "CUSTOMERS");
    const Builder timers = neighbor.add("timers").add("config");
    timers.leaf("hold-time", "90");
    timers.leaf("keepalive-interval", "30");
    timers.leaf("minimum-advertisement-interval", "5");
    const Builder transport = neighbor.add("transport").add("config");
    transport.leaf("tcp-mss", "1400");
    transport.leaf("passive-mode", "true");
    transport.leaf("local-address", "192.0.2.1");
    const Builder multihop = neighbor.add("ebgp-multihop").add("config");
    multihop.leaf("enabled", "true");
    multihop.leaf("multihop-ttl", "3");
    const Builder restart = neighbor.add("graceful-restart").add("config");
    restart.leaf("enabled", "true");
    restart.leaf("restart-time", "120");
    restart.leaf("stale-routes-time", "300");
    const Builder list = neighbor.add("afi-safis");
    for (const auto &family : families) {
        const Builder entry = list.add("afi-safi");
        entry.identity("afi-safi-name", family[0]);
        entry.add("config").leaf("enabled", "true");
        const Builder policies = entry.add("apply-policy").add("config");
        policies.leaf("import-policy", "CUSTOMER-IN");
        policies.leaf("export-policy", "CUSTOMER-OUT");
        const Builder limit = entry.add(family[1]).add("prefix-limit").add("config");
        limit.leaf("max-prefixes", "1000");
        limit.leaf("shutdown-threshold-pct", "80");
    }
}

void add_native_neighbor(const Builder &neighbors, size_t number)
{
    const Builder neighbor = neighbors.add("neighbor");
    neighbor.leaf("neighbor-address", address_of(number));
    for (const char *as : {"remote-as", "local-as"}) {
        const Builder halves = neighbor.add(as);
        halves.leaf("as-xx", "0");
        halves.leaf("as-yy", std::to_string(64512 + number % 1000));
    }
    const Builder password = neighbor.add("password");
    password.leaf("password-disable", "false");
    password.leaf("password", "secret");
    neighbor.leaf("description", "customer " + std::to_string(number));
    neighbor.leaf("session-open-mode", "passive-only");
    neighbor.add("tcpmss").leaf("mss", "1400");
    const Builder local = neighbor.add("local-address");
    local.leaf("local-address-disable", "false");
    local.leaf("local-ip-address", "192.0.2.1");
    const Builder multihop = neighbor.add("ebgp-multihop");
    multihop.leaf("max-hop-count", "3");
    multihop.leaf("mpls-deactivation", "false");
    const Builder timers = neighbor.add("timers");
    timers.leaf("keepalive-interval", "30");
    timers.leaf("hold-time", "90");
    neighbor.add("advertisement-interval").leaf("minimum-interval", "5");
    neighbor.leaf("neighbor-graceful-restart", "false");
    neighbor.leaf("neighbor-graceful-restart-time", "120");
    neighbor.leaf("neighbor-graceful-restart-stalepath-time", "300");
    neighbor.leaf("neighbor-group-add-member", "CUSTOMERS");
    const Builder list = neighbor.add("neighbor-afs");
    for (const auto &family : families) {
        const Builder entry = list.add("neighbor-af");
        entry.leaf("af-name", family[1]);
        entry.add("activate");
        const Builder limit = entry.add("maximum-prefixes");
        limit.leaf("prefix-limit", "1000");
        limit.leaf("warning-percentage", "80");
        limit.leaf("warning-only", "false");
        limit.leaf("discard-extra-paths", "false");
        entry.leaf("route-policy-in", "CUSTOMER-IN");
        entry.leaf("route-policy-out", "CUSTOMER-OUT");
    }
}

}  // namespace

std::string address_of(size_t neighbor)
{
    const size_t host = neighbor + 1;
    return "10." + std::to_string(host >> 16 & 255) + "." + std::to_string(host >> 8 & 255) + "." +
           std::to_string(host & 255);
}

platform::Tree openconfig_neighbors(size_t count)
{
    platform::Tree tree;
    tree.root().tag = const_cast<char *>(platform::intern("bgp"));
    tree.root().present[0] |= VMF_DT_TAG;
    const Builder neighbors = Builder(tree.root(), OC_BGP_NS).add("neighbors");
    for (size_t i = 0; i < count; i++) add_openconfig_neighbor(neighbors, i);
    return tree;
}

platform::Tree native_neighbors(size_t count)
{
    platform::Tree tree;
    const Builder instance = Builder(tree.root(), ZR_BGP_CFG_NS).add("bgp").add("instance");
    instance.leaf("instance-name", "default");
    const Builder as = instance.add("instance-as");
    as.leaf("as", "0");
    const Builder four_byte_as = as.add("four-byte-as");
    four_byte_as.leaf("as", "65001");
    const Builder neighbors = four_byte_as.add("default-vrf").add("bgp-entity").add("neighbors");
    for (size_t i = 0; i < count; i++) add_native_neighbor(neighbors, i);
    return tree;
}

size_t count_nodes(const Datatree &node)
{
    size_t count = 1;
    for (const Datatree &child : platform::children_of(node)) count += count_nodes(child);
    return count;
}

}  // namespace bench
