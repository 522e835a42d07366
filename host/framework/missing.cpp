#include "missing.h"

#include <algorithm>
#include <map>
#include <unordered_map>

#include "get_request.h"
#include "mapped_again.h"
#include "native_leaves.h"
#include "nodes.h"

namespace framework {

namespace {

// ---- The model ------------------------------------------------------------------------------

using OcChildren = std::unordered_map<std::string_view, std::vector<const model::OcNode *>>;

const OcChildren &children_by_path()
{
    static const auto *const children = [] {
        auto *all = new OcChildren;
        for (const model::OcNode &node : model::openconfig_bgp())
            (*all)[node.path.substr(0, node.path.rfind('/'))].push_back(&node);
        return all;
    }();
    return *children;
}

std::string_view last_element(std::string_view path) { return path.substr(path.rfind('/') + 1); }

bool is_leaf(const model::OcNode &node)
{
    return node.kind == model::Kind::leaf || node.kind == model::Kind::leaf_list;
}

bool has_element(std::string_view path, std::string_view element)
{
    for (size_t at = path.find(element); at != std::string_view::npos; at = path.find(element, at + 1)) {
        const size_t end = at + element.size();
        if (at > 0 && path[at - 1] == '/' && (end == path.size() || path[end] == '/')) return true;
    }
    return false;
}

// ---- Families that disagree -----------------------------------------------------------------

// A global leaf that has a form only where four families say the same.
struct Fold {
    std::string_view container;  // the OpenConfig path above config and state
    std::string_view leaf;
    std::string_view native;  // below a global-af
};
constexpr Fold folds[] = {
    {"/bgp/global/default-route-distance", "external-route-distance", "/distance/external-routes"},
    {"/bgp/global/default-route-distance", "internal-route-distance", "/distance/internal-routes"},
    {"/bgp/global/use-multiple-paths/ebgp", "maximum-paths", "/ebgp/paths-value"},
    {"/bgp/global/use-multiple-paths/ibgp", "maximum-paths", "/ibgp/paths-value"},
};
constexpr std::string_view folded_families[] = {"ipv4-unicast", "ipv4-multicast", "ipv6-unicast", "ipv6-multicast"};

const Fold *fold_of(std::string_view schema)
{
    for (const Fold &fold : folds)
        if (schema.starts_with(fold.container) && last_element(schema) == fold.leaf) return &fold;
    return nullptr;
}

bool is_multipath_switch(std::string_view schema) { return schema == "/bgp/global/use-multiple-paths/state/enabled"; }

// The native value of each of the four families; empty where it has none.
std::map<std::string_view, std::string> values_of_families(const std::vector<NativeLeaf> &leaves, const Fold &fold)
{
    std::map<std::string_view, std::string> values;
    for (const NativeLeaf &leaf : leaves) {
        if (!leaf.schema.ends_with("/global-af" + std::string(fold.native)) ||
            platform::value_of(*leaf.leaf) == nullptr)
            continue;
        for (const std::string_view family : folded_families)
            if (leaf.path.find("[af-name=" + in_quotes(family) + "]") != std::string::npos)
                values[family] = platform::value_of(*leaf.leaf);
    }
    return values;
}

bool agree(const std::map<std::string_view, std::string> &values)
{
    return values.size() == std::size(folded_families) &&
           std::all_of(values.begin(), values.end(),
                       [&](const auto &value) { return value.second == values.begin()->second; });
}

std::string words_of(const std::map<std::string_view, std::string> &values)
{
    std::string words;
    for (const std::string_view family : folded_families) {
        const auto found = values.find(family);
        words +=
            (words.empty() ? "" : ", ") + std::string(family) + " " + (found != values.end() ? found->second : "none");
    }
    return words;
}

// ---- What is missing ------------------------------------------------------------------------

class Search {
public:
    Search(const Recording &recording, const platform::Database &database,
           const std::function<std::optional<std::string>(std::string_view)> &default_of, io::Secrets secrets)
        : recording_(recording), database_(database), default_of_(default_of), secrets_(secrets),
          leaves_(native_leaves(recording.response.root())), selector_(recording.response.root())
    {
    }

    std::vector<MissingNode> run()
    {
        const model::OcNode *bgp = model::find_oc_node("/bgp");
        const Datatree *answer = find_child(&recording_.answer.root(), "bgp");
        visit(*bgp, {{answer, "/bgp"}}, &recording_.request.bgp.root(), found_);
        return std::move(found_);
    }

private:
    struct Instance {
        const Datatree *node;  // in the answer; null: it is not there
        std::string path;      // the client's
    };
    using Instances = std::vector<Instance>;

    // Gives how many leaves were asked for at or below the node.
    size_t visit(const model::OcNode &node, const Instances &instances, const Datatree *request,
                 std::vector<MissingNode> &found)
    {
        if (is_leaf(node)) return visit_leaf(node, instances, found);
        size_t asked = 0;
        std::vector<MissingNode> below;
        for (const model::OcNode *child : asked_children(node, request)) {
            const Datatree *wanted = request != nullptr ? find_child(request, last_element(child->path)) : nullptr;
            asked += child->kind == model::Kind::list ? visit_list(*child, instances, request, below)
                                                      : visit(*child, instances_of(*child, instances), wanted, below);
        }
        const bool has_nothing = below.size() > 1 && asked == below.size() &&
                                 std::all_of(below.begin(), below.end(), [&](const MissingNode &one) {
                                     return one.reason == Reason::no_value && one.others + 1 == instances.size();
                                 });
        if (has_nothing) {
            found.push_back(
                {instances.front().path, Reason::no_value,
                 "the router has no value for any of the " + std::to_string(asked) + " leaves that it holds",
                 instances.size() - 1});
            return 1;
        }
        std::move(below.begin(), below.end(), std::back_inserter(found));
        return asked;
    }

    std::vector<const model::OcNode *> asked_children(const model::OcNode &node, const Datatree *request) const
    {
        std::vector<const model::OcNode *> asked;
        const auto children = children_by_path().find(node.path);
        if (children == children_by_path().end()) return asked;
        const bool names = request != nullptr && names_any(node, *request);
        for (const model::OcNode *child : children->second) {
            if (!child->config && recording_.kind == VMF_REQ_GET_CONFIG) continue;
            if (!names || find_child(request, last_element(child->path)) != nullptr) asked.push_back(child);
        }
        return asked;
    }

    // The key of an entry says which, not what.
    static bool names_any(const model::OcNode &node, const Datatree &request)
    {
        const auto children = platform::children_of(request);
        return std::any_of(children.begin(), children.end(),
                           [&](const Datatree &child) { return node.key.empty() || tag_text(child) != node.key; });
    }

    static Instances instances_of(const model::OcNode &child, const Instances &parents)
    {
        const std::string_view tag = last_element(child.path);
        Instances instances;
        for (const Instance &parent : parents)
            instances.push_back({find_child(parent.node, tag), parent.path + "/" + std::string(tag)});
        return instances;
    }

    size_t visit_list(const model::OcNode &list, const Instances &parents, const Datatree *request,
                      std::vector<MissingNode> &found)
    {
        const std::string_view tag = last_element(list.path);
        std::vector<const Datatree *> wanted;
        if (request != nullptr)
            for (const Datatree &entry : platform::children_of(*request))
                if (tag_text(entry) == tag) wanted.push_back(&entry);
        if (wanted.empty()) wanted.push_back(nullptr);
        size_t asked = 0;
        for (const Datatree *entry : wanted) asked += visit_entries(list, parents, entry, found);
        return asked;
    }

    size_t visit_entries(const model::OcNode &list, const Instances &parents, const Datatree *request,
                         std::vector<MissingNode> &found)
    {
        const std::string_view tag = last_element(list.path);
        const Datatree *wanted_key = find_child(request, list.key);
        const bool names_entry = wanted_key != nullptr && platform::value_of(*wanted_key) != nullptr;
        Instances entries;
        std::vector<std::string> without;  // the parents that have no such entry
        for (const Instance &parent : parents) {
            const size_t before = entries.size();
            const auto children = parent.node != nullptr ? platform::children_of(*parent.node) : std::span<Datatree>();
            for (const Datatree &child : children) {
                const Datatree *key = find_child(&child, list.key);
                if (tag_text(child) != tag || (names_entry && (key == nullptr || !has_same_value(*wanted_key, *key))))
                    continue;
                const char *value = key != nullptr ? platform::value_of(*key) : nullptr;
                const std::string predicate =
                    value != nullptr ? "[" + std::string(list.key) + "=" + in_quotes(value) + "]" : "";
                entries.push_back({&child, parent.path + "/" + std::string(tag) + predicate});
            }
            const std::string predicate =
                names_entry ? "[" + std::string(list.key) + "=" + in_quotes(platform::value_of(*wanted_key)) + "]" : "";
            if (entries.size() == before) without.push_back(parent.path + "/" + std::string(tag) + predicate);
        }
        if (!without.empty()) add_entry_missing(list, without, found);
        return (without.empty() ? 0 : 1) + (entries.empty() ? 0 : visit(list, entries, request, found));
    }

    static void add_entry_missing(const model::OcNode & /*list*/, const std::vector<std::string> &paths,
                                  std::vector<MissingNode> &found)
    {
        found.push_back({paths.front(), Reason::no_entry, "the answer has no such entry", paths.size() - 1});
    }

    size_t visit_leaf(const model::OcNode &leaf, const Instances &instances, std::vector<MissingNode> &found)
    {
        std::vector<MissingNode> own;
        for (const Instance &instance : instances) {
            if (instance.node != nullptr && says_something(leaf, *instance.node)) continue;
            MissingNode missing = explain(leaf, instance.path);
            const auto alike = std::find_if(own.begin(), own.end(), [&](const MissingNode &one) {
                return one.reason == missing.reason &&
                       (one.text == missing.text || missing.reason == Reason::no_openconfig_form);
            });
            if (alike != own.end())
                alike->others++;
            else
                own.push_back(std::move(missing));
        }
        std::move(own.begin(), own.end(), std::back_inserter(found));
        return 1;
    }

    // A word that the mapping does not know leaves a leaf without a value behind.
    static bool says_something(const model::OcNode &leaf, const Datatree &node)
    {
        return platform::value_of(node) != nullptr || leaf.type == model::Type::empty_;
    }

    MissingNode explain(const model::OcNode &leaf, const std::string &path)
    {
        const std::string_view schema = leaf.path;
        const RequestContext &flags = recording_.flags;
        const bool kept_out = flags.config_named != 0 && flags.state_named != 0;
        if (kept_out && (has_element(schema, "config") || has_element(schema, "state")))
            return {path, Reason::both_named, "config and state were both named, and each keeps the other out"};
        if (auto global = explain_global(schema, path)) return *global;
        const auto native = native_leaf_of(path);
        if (native) return {path, Reason::no_openconfig_form, *native};
        if (const auto model_default = default_of_(schema))
            return {path, Reason::default_value,
                    "the router has no value; the model's default, " + *model_default + ", is not reported"};
        return {path, Reason::no_value, "the router has no value"};
    }

    // The leaves of the whole router that are made of the families'.
    std::optional<MissingNode> explain_global(std::string_view schema, const std::string &path) const
    {
        const bool is_multipath = schema.starts_with("/bgp/global/use-multiple-paths/");
        const Fold *fold = fold_of(schema);
        if (fold == nullptr && !is_multipath_switch(schema)) return std::nullopt;
        std::map<std::string_view, std::string> values;
        if (fold != nullptr) {
            values = values_of_families(leaves_, *fold);
        } else {
            for (const Fold &one : folds)
                if (one.leaf == "maximum-paths")
                    for (const auto &value : values_of_families(leaves_, one)) values.insert(value);
        }
        if (values.empty()) return std::nullopt;
        if (is_multipath && recording_.flags.global_afisafis_named != 0)
            return MissingNode{path, Reason::whole_read,
                               "a read that takes in the families too has no global multipath leaves; read "
                               "/bgp/global/use-multiple-paths, or the families' own leaves"};
        if (fold == nullptr || agree(values)) return std::nullopt;
        return MissingNode{path, Reason::families_disagree,
                           "the families disagree, and have no global leaf: " + words_of(values)};
    }

    // What the router said where the leaf is asked for alone, in words.
    std::optional<std::string> native_leaf_of(const std::string &path)
    {
        std::optional<io::Document> document;
        try {
            document = io::read_path(path);
        } catch (const io::InputError &) {
            return std::nullopt;  // a key that no path can quote
        }
        io::complete_keys(*document);
        const MappedAgain alone(recording_.kind, database_, std::move(*document));
        if (alone.outcome() != VMF_RC_OK) return std::nullopt;
        const auto selected = selector_.leaves(alone.native());
        if (selected.empty()) return std::nullopt;
        std::string words;
        size_t others = 0;
        for (const NativeLeaf &leaf : leaves_) {
            if (!selected.contains(leaf.leaf)) continue;
            if (words.empty())
                words = shown(leaf, secrets_);
            else
                others++;
        }
        if (others > 0) words += " and " + std::to_string(others) + " more";
        return "what the router has here has no OpenConfig form: " + words;
    }

    const Recording &recording_;
    const platform::Database &database_;
    const std::function<std::optional<std::string>(std::string_view)> &default_of_;
    const io::Secrets secrets_;
    const std::vector<NativeLeaf> leaves_;
    Selector selector_;
    std::vector<MissingNode> found_;
};

}  // namespace

std::vector<MissingNode>
missing_nodes(const Recording &recording, const platform::Database &database,
              const std::function<std::optional<std::string>(std::string_view schema)> &default_of, io::Secrets secrets)
{
    return Search(recording, database, default_of, secrets).run();
}

}  // namespace framework
