#include "edit_notes.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "nodes.h"
#include "tree.h"

namespace framework {

namespace {

enum class When : uint8_t {
    removed,           // deleted or removed by an operation of its own
    replaced,          // by one of its own
    replaced_in_vain,  // a container whose replacement nobody carries out
    created_in_vain,   // the same of a creation
    written,           // none of the first two
    written_alone,     // the same of a container without children
    written_false,     // a leaf
    written_true,
    false_behind_replace,  // written where the mapping takes what it says for replaced already, and it is not
    true_behind_replace,
    first_child_written,
    written_as_ipv6  // an address with a colon
};

struct Rule {
    std::string_view path;  // of the schema; "*" stands for one element, "@" for a neighbor or a group; "": any node
    When when;
    std::string_view text;
};

// clang-format off
constexpr Rule rules[] = {
    // A switch that is not what it says.
    {"/bgp/global/graceful-restart/config/enabled",                  When::written_false,    "\"false\" switches graceful restart on, as \"true\" does; delete the leaf to switch it off"},
    {"/bgp/global/afi-safis/afi-safi/config/enabled",                When::written_false,    "\"false\" is dropped and the family stays as it is; delete the leaf to switch it off"},
    {"/bgp/neighbors/neighbor/afi-safis/afi-safi/config/enabled",    When::written_false,    "\"false\" is dropped and the family stays as it is; delete the leaf to switch it off"},
    {"/bgp/peer-groups/peer-group/afi-safis/afi-safi/config/enabled", When::written_false,   "\"false\" switches the family on, as \"true\" does; delete the leaf to switch it off"},
    {"@/ebgp-multihop/config/enabled",                               When::written_false,    "\"false\" switches multihop on with 255 hops, as \"true\" does; delete the leaf to switch it off"},
    {"@/ebgp-multihop/config/enabled",                               When::written_true,     "sets the hop count to 255"},
    {"/bgp/global/route-selection-options/config/always-compare-med",         When::false_behind_replace, "\"false\" is dropped behind a replace and the option stays as it is; delete the leaf to switch it off"},
    {"/bgp/global/route-selection-options/config/ignore-as-path-length",      When::false_behind_replace, "\"false\" is dropped behind a replace and the option stays as it is; delete the leaf to switch it off"},
    {"/bgp/global/route-selection-options/config/external-compare-router-id", When::false_behind_replace, "\"false\" is dropped behind a replace and the option stays as it is; delete the leaf to switch it off"},
    {"/bgp/global/route-selection-options/config/enable-aigp",                When::true_behind_replace,  "\"true\" is dropped behind a replace and the option stays as it is; delete the leaf to switch it on"},
    {"@/afi-safis/afi-safi/use-multiple-paths/config/enabled",                When::false_behind_replace, "\"false\" is dropped behind a replace and the family stays as it is; delete the leaf to switch it off"},

    // A removal that takes more than it names, or makes something.
    {"/bgp",                                                         When::removed,          "takes all of BGP away, what the router has beyond this model too"},
    {"/bgp",                                                         When::replaced,         "replaces all of BGP, what the router has beyond this model too"},
    {"/bgp/global",                                                  When::removed,          "takes all of BGP away, neighbors and peer groups too"},
    {"/bgp/global/config",                                           When::removed,          "takes all of BGP away, neighbors and peer groups too"},
    {"/bgp/global/config/as",                                        When::removed,          "takes all of BGP away, neighbors and peer groups too"},
    {"/bgp/global/afi-safis",                                        When::removed,          "takes the route distances away too"},
    {"/bgp/global/afi-safis/afi-safi",                               When::removed,          "takes the family's route distances away too"},
    {"/bgp/global/afi-safis/afi-safi",                               When::replaced,         "takes the family's route distances away too"},
    {"/bgp/global/afi-safis/afi-safi/config",                        When::removed,          "takes the whole family away, its route distances too"},
    {"/bgp/global/afi-safis/afi-safi/config/afi-safi-name",          When::removed,          "takes the whole family away, its route distances too"},
    {"@/config",                                                     When::removed,          "takes the whole entry away, its families too"},
    {"/bgp/neighbors/neighbor/config/neighbor-address",              When::removed,          "takes the whole neighbor away, its families too"},
    {"/bgp/peer-groups/peer-group/config/peer-group-name",           When::removed,          "takes the whole peer group away, its families too"},
    {"@/ebgp-multihop/config/enabled",                               When::removed,          "takes the hop count away too"},
    {"@/ebgp-multihop/config/multihop-ttl",                          When::removed,          "switches multihop off too"},
    {"@/route-reflector",                                            When::removed,          "takes the entry's families away, all twelve"},
    {"@/route-reflector/config",                                     When::removed,          "takes the entry's families away, all twelve"},
    {"@/afi-safis/afi-safi/config",                                  When::removed,          "takes the whole family away"},
    {"@/afi-safis/afi-safi/config/afi-safi-name",                    When::removed,          "takes the whole family away"},
    {"@/afi-safis/afi-safi/*/prefix-limit/config/max-prefixes",      When::removed,          "takes the threshold away too"},
    {"@/afi-safis/afi-safi/*/prefix-limit/config/shutdown-threshold-pct", When::removed,     "sets the threshold back to 75 percent and writes the standing limit again; without a limit the edit is refused"},
    {"/bgp/global/use-multiple-paths",                               When::removed,          "makes entries of four families, where there are none"},
    {"/bgp/global/use-multiple-paths/*",                             When::removed,          "makes entries of four families, where there are none"},
    {"/bgp/global/use-multiple-paths/*/config",                      When::removed,          "makes entries of four families, where there are none"},
    {"/bgp/global/use-multiple-paths/*/config/maximum-paths",        When::removed,          "switches four families on"},
    {"/bgp/global/default-route-distance",                           When::removed,          "makes entries of four families, where there are none"},
    {"/bgp/global/default-route-distance/config",                    When::removed,          "makes entries of four families, where there are none"},
    {"/bgp/global/default-route-distance/config/*",                  When::removed,          "makes entries of four families, where there are none"},

    // Companions that nobody named.
    {"/bgp/global/default-route-distance/config",                    When::first_child_written, "switches four families on and sets their local distance to 200"},
    {"/bgp/global/use-multiple-paths/*/config/maximum-paths",        When::written,          "switches four families on, with multiple paths of equal cost only"},
    {"/bgp/global/afi-safis/afi-safi/use-multiple-paths/*/config/maximum-paths", When::written, "allows multiple paths of equal cost only"},
    {"/bgp/global/route-selection-options",                          When::written_alone,    "an empty container sets the first three options to \"true\" and enable-aigp to \"false\""},
    {"/bgp/global/route-selection-options/config",                   When::written_alone,    "an empty container sets the first three options to \"true\" and enable-aigp to \"false\""},
    {"/bgp/global/graceful-restart",                                 When::written_alone,    "an empty container switches graceful restart on"},
    {"/bgp/global/graceful-restart/config",                          When::written_alone,    "an empty container switches graceful restart on"},
    {"@/graceful-restart",                                           When::written_alone,    "an empty container switches graceful restart on"},
    {"/bgp/neighbors/neighbor/graceful-restart/config",              When::written_alone,    "an empty container switches graceful restart on"},
    {"@/afi-safis/afi-safi/config",                                  When::written_alone,    "an empty container switches the family on"},
    {"@/afi-safis/afi-safi/use-multiple-paths",                      When::written_alone,    "an empty container switches multiple paths on"},
    {"@/afi-safis/afi-safi/use-multiple-paths/config",               When::written_alone,    "an empty container switches multiple paths on"},
    {"@/ebgp-multihop/config/multihop-ttl",                          When::written,          "switches multihop on too"},
    {"/bgp/peer-groups/peer-group/graceful-restart/config/restart-time",      When::written, "switches graceful restart on too"},
    {"/bgp/peer-groups/peer-group/graceful-restart/config/stale-routes-time", When::written, "switches graceful restart on too"},
    {"@/afi-safis/afi-safi/*/prefix-limit/config/max-prefixes",      When::written,          "makes the limit hold: no mode that only warns, none that discards"},

    // Something that is not taken for what it is.
    {"@/transport/config/local-address",                             When::written_as_ipv6,  "an IPv6 address is taken for the name of an interface"},
    {"@/route-reflector/config/route-reflector-cluster-id",          When::written,          "leaves an id of the other form standing, a number beside an address"},
    {"",                                                             When::replaced_in_vain, "is merged, not replaced: what stands there and is not named stays"},
    {"",                                                             When::created_in_vain,  "is merged, not created: nobody checks that it is not there yet"},
};

// Containers whose own operation is carried out.
constexpr std::string_view replaced_containers[] = {
    "/bgp", "/bgp/neighbors", "/bgp/peer-groups", "@/config", "/bgp/global/default-route-distance/config",
};
constexpr std::string_view created_containers[] = {
    "/bgp", "/bgp/neighbors", "/bgp/peer-groups", "/bgp/global/default-route-distance/config",
};

// Behind a replace on one of these the mapping takes leaves for gone that are switched off: until the end of the node
// that opened it, or of the request if another of these stands below it.
constexpr std::string_view scopes[] = {
    "/bgp", "/bgp/global", "/bgp/global/route-selection-options", "/bgp/global/route-selection-options/config",
    "/bgp/neighbors", "/bgp/peer-groups", "@", "@/transport", "@/transport/config", "@/afi-safis",
    "@/afi-safis/afi-safi", "@/afi-safis/afi-safi/use-multiple-paths",
    "@/afi-safis/afi-safi/use-multiple-paths/config",
};
// clang-format on

std::string_view take_element(std::string_view &path)
{
    const std::string_view element = path.substr(1, path.find('/', 1) - 1);
    path.remove_prefix(element.size() + 1);
    return element;
}

bool meets(std::string_view pattern, std::string_view path)
{
    if (pattern.starts_with('@')) {
        pattern.remove_prefix(1);
        const std::string_view entries[] = {"/bgp/neighbors/neighbor", "/bgp/peer-groups/peer-group"};
        const auto *entry = std::find_if(std::begin(entries), std::end(entries),
                                         [path](std::string_view start) { return path.starts_with(start); });
        if (entry == std::end(entries)) return false;
        path.remove_prefix(entry->size());
    }
    while (!pattern.empty() && !path.empty()) {
        const std::string_view wanted = take_element(pattern);
        if (take_element(path) != wanted && wanted != "*") return false;
    }
    return pattern.empty() && path.empty();
}

template<size_t count>
bool meets_any(const std::string_view (&patterns)[count], std::string_view path)
{
    return std::any_of(std::begin(patterns), std::end(patterns),
                       [path](std::string_view pattern) { return meets(pattern, path); });
}

bool is(const Datatree &node, uint32_t operation)
{
    return platform::has_operation(node) && node.operation == operation;
}

bool is_removed(const Datatree &node) { return is(node, VMF_OP_DELETE) || is(node, VMF_OP_REMOVE); }

// What the tables say of a node of the model. An edit of many entries has few such nodes.
struct Place {
    explicit Place(std::string schema_path)
        : schema(std::move(schema_path)), node(model::find_oc_node(schema)),
          is_container(node != nullptr && node->kind == model::Kind::container), is_scope(meets_any(scopes, schema)),
          is_replaced(!is_container || meets_any(replaced_containers, schema)),
          is_created(!is_container || meets_any(created_containers, schema))
    {
        for (size_t rule = 0; rule < std::size(rules); rule++)
            if (rules[rule].path.empty() || meets(rules[rule].path, schema)) rules_of_it.push_back(rule);
    }

    Place &child(std::string_view tag)
    {
        auto found = children.find(tag);
        if (found == children.end())
            found = children.try_emplace(std::string(tag), schema + "/" + std::string(tag)).first;
        return found->second;
    }

    std::string schema;
    const model::OcNode *node;
    bool is_container;
    bool is_scope;
    bool is_replaced;  // its own replace is carried out
    bool is_created;
    std::vector<size_t> rules_of_it = {};
    std::map<std::string, Place, std::less<>> children = {};
};

class Notes {
public:
    void visit(const Datatree &node, Place &place)
    {
        above_.push_back({&node, &place});
        const bool was_replaced = is_replaced_;
        for (const size_t rule : place.rules_of_it) {
            if (!applies(rules[rule].when, node, place)) continue;
            if (met_[rule].count++ == 0) met_[rule].first = path();
        }
        is_replaced_ |= is(node, VMF_OP_REPLACE) && place.is_replaced;
        if (place.is_scope) {
            owns_scope_ = !in_scope_ && is(node, VMF_OP_REPLACE);
            in_scope_ |= owns_scope_;
        }
        for (const Datatree &child : platform::children_of(node))
            if (const char *tag = platform::tag_of(child)) visit(child, place.child(tag));
        if (place.is_scope && owns_scope_) in_scope_ = owns_scope_ = false;
        is_replaced_ = was_replaced;
        above_.pop_back();
    }

    std::vector<std::string> lines() const
    {
        std::vector<std::string> all;
        for (size_t rule = 0; rule < std::size(rules); rule++) {
            if (met_[rule].count == 0) continue;
            std::string line = met_[rule].first + ": " + std::string(rules[rule].text);
            if (met_[rule].count > 1) line += " (and so " + std::to_string(met_[rule].count - 1) + " more)";
            all.push_back(line);
        }
        return all;
    }

private:
    struct Met {
        size_t count = 0;
        std::string first = {};
    };

    bool applies(When when, const Datatree &node, const Place &place) const
    {
        const auto children = platform::children_of(node);
        const char *text = platform::value_of(node);
        const std::string_view value = text != nullptr ? text : "";
        const bool is_written = !is_removed(node);
        const bool is_behind_replace = is_written && in_scope_ && !is_replaced_;
        switch (when) {
        case When::removed: return is_removed(node);
        case When::replaced: return is(node, VMF_OP_REPLACE);
        case When::replaced_in_vain: return is(node, VMF_OP_REPLACE) && !is_replaced_ && !place.is_replaced;
        case When::created_in_vain: return is(node, VMF_OP_CREATE) && !place.is_created;
        case When::written: return is_written;
        case When::written_alone: return is_written && children.empty();
        case When::written_false: return is_written && value == "false";
        case When::written_true: return is_written && value == "true";
        case When::false_behind_replace: return is_behind_replace && value == "false";
        case When::true_behind_replace: return is_behind_replace && value == "true";
        case When::first_child_written: return is_written && !children.empty() && !is_removed(children.front());
        case When::written_as_ipv6: return is_written && value.find(':') != std::string_view::npos;
        }
        return false;
    }

    // The client's path to the node that is visited.
    std::string path() const
    {
        std::string path;
        for (const auto &[node, place] : above_) {
            path.append(place->schema, place->schema.rfind('/'));
            path += key_of(*node, *place);
        }
        return path;
    }

    static std::string key_of(const Datatree &entry, const Place &place)
    {
        if (place.node == nullptr || place.node->key.empty()) return "";
        const std::string_view key = place.node->key;
        for (const Datatree &child : platform::children_of(entry)) {
            const char *tag = platform::tag_of(child);
            const char *value = platform::value_of(child);
            if (tag != nullptr && key == tag && value != nullptr) return "[" + std::string(key) + "='" + value + "']";
        }
        return "";
    }

    struct Above {
        const Datatree *node;
        const Place *place;
    };
    std::vector<Above> above_ = {};
    std::array<Met, std::size(rules)> met_ = {};
    bool is_replaced_ = false;  // something above the node is replaced on the router too
    bool in_scope_ = false;
    bool owns_scope_ = false;  // whether the last scope that was entered opened it
};

}  // namespace

std::vector<std::string> edit_notes(const Datatree &bgp)
{
    Place root("/bgp");
    Notes notes;
    notes.visit(bgp, root);
    return notes.lines();
}

}  // namespace framework
