#include "missing.h"

#include <algorithm>
#include <map>
#include <set>
#include <unordered_map>
#include <unordered_set>

#include "get_request.h"
#include "nodes.h"
#include "reading.h"
#include "secrets.h"
#include "tree_text.h"

namespace framework {

namespace {

// ---- Trees ----------------------------------------------------------------------------------

std::string_view tag_of(const Datatree &node)
{
    const char *tag = platform::tag_of(node);
    return tag != nullptr ? tag : "";
}

const Datatree *child_of(const Datatree *node, std::string_view tag)
{
    if (node == nullptr) return nullptr;
    for (const Datatree &child : platform::children_of(*node))
        if (tag_of(child) == tag) return &child;
    return nullptr;
}

bool is_same_value(const Datatree &a, const Datatree &b)
{
    const char *one = platform::value_of(a);
    const char *other = platform::value_of(b);
    return one != nullptr && other != nullptr && std::string_view(one) == other;
}

std::string quoted(std::string_view value)
{
    const char quote = value.find('\'') == std::string_view::npos ? '\'' : '"';
    return quote + std::string(value) + quote;
}

std::string shown(const Datatree &leaf, std::string_view parent, io::Secrets secrets)
{
    const char *value = platform::value_of(leaf);
    if (value == nullptr) return "";
    const bool hides =
        secrets == io::Secrets::hidden && io::is_secret(platform::tag_of(leaf), std::string(parent).c_str());
    return " = " + (hides ? std::string(io::hidden_value) : io::on_one_line(value));
}

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

// ---- Asking again ---------------------------------------------------------------------------

platform::Tree copy_of(const Datatree &holder) { return io::read_tree(io::write_tree(holder, io::Secrets::shown)); }

// What the mapping makes of another request, or of another answer to the same one.
class Again {
public:
    Again(uint32_t kind, const platform::Database &database, io::Document document)
        : request_(kind, database, log_), document_(std::move(document))
    {
        outcome_ = request_.map(document_.bgp.root(), native_.root());
    }

    uint32_t outcome() const { return outcome_; }
    const Datatree &native() const { return native_.root(); }

    std::string answer_to(platform::Tree response)
    {
        platform::Tree answer;
        if (request_.answer(std::move(response), answer) != VMF_RC_OK) return "refused";
        return io::write_tree(answer.root(), io::Secrets::shown);
    }

private:
    platform::Log log_;
    Request request_;
    io::Document document_;
    platform::Tree native_;
    uint32_t outcome_;
};

io::Document copy_of_request(const io::Document &document)
{
    Datatree holder = {};  // borrows the request
    holder.subtrees = const_cast<Datatree *>(&document.bgp.root());
    holder.subtree_count = 1;
    holder.present[0] = VMF_DT_SUBTREES;
    platform::Tree copy = copy_of(holder);
    io::Document again;
    std::swap(again.bgp.root(), platform::children_of(copy.root()).front());
    return again;
}

// ---- Native leaves --------------------------------------------------------------------------

struct NativeLeaf {
    const Datatree *leaf;
    std::string path;    // with the keys of the entries above
    std::string schema;  // without
    std::string_view parent;
};

// The first leaf of an entry is its key in the native trees; what repeats is an entry.
std::string name_in(const Datatree &node, const Datatree &parent)
{
    std::string name(tag_of(node));
    const auto children = platform::children_of(node);
    const bool has_key = !children.empty() && platform::children_of(children.front()).empty() &&
                         platform::value_of(children.front()) != nullptr;
    const auto siblings = platform::children_of(parent);
    const auto alike = std::count_if(siblings.begin(), siblings.end(),
                                     [&](const Datatree &sibling) { return tag_of(sibling) == tag_of(node); });
    const bool ends_as_key =
        has_key && (tag_of(children.front()).ends_with("-name") || tag_of(children.front()).ends_with("-address"));
    if (has_key && (alike > 1 || ends_as_key))
        name += "[" + std::string(tag_of(children.front())) + "=" + quoted(platform::value_of(children.front())) + "]";
    return name;
}

void collect_leaves(const Datatree &node, const Datatree &parent, const std::string &above,
                    const std::string &schema_above, std::vector<NativeLeaf> &leaves)
{
    const std::string path = above + "/" + name_in(node, parent);
    const std::string schema = schema_above + "/" + std::string(tag_of(node));
    if (platform::children_of(node).empty()) leaves.push_back({&node, path, schema, tag_of(parent)});
    for (const Datatree &child : platform::children_of(node)) collect_leaves(child, node, path, schema, leaves);
}

// The two native trees have roots of one name.
std::string model_of(const Datatree &tree)
{
    const char *ns = platform::namespace_of(tree);
    return ns != nullptr ? std::string(io::short_name(ns)) : "";
}

std::string schema_of_root(const Datatree &tree) { return model_of(tree) + "/" + std::string(tag_of(tree)); }

std::vector<NativeLeaf> leaves_below(const Datatree &holder)
{
    std::vector<NativeLeaf> leaves;
    for (const Datatree &tree : platform::children_of(holder)) collect_leaves(tree, holder, "", model_of(tree), leaves);
    return leaves;
}

void take_leaves(const Datatree &node, std::unordered_set<const Datatree *> &leaves)
{
    if (platform::children_of(node).empty()) leaves.insert(&node);
    for (const Datatree &child : platform::children_of(node)) take_leaves(child, leaves);
}

// What a native request selects of a response: as a subtree filter does (RFC 6241, section 6), but for entries and
// containers that the mapping added on the way to something, which would select all that they hold.
void select(const Datatree &request, const Datatree &response, std::unordered_set<const Datatree *> &selected)
{
    const auto wanted = platform::children_of(request);
    for (const Datatree &match : wanted) {
        if (platform::value_of(match) == nullptr) continue;
        const Datatree *own = child_of(&response, tag_of(match));
        if (own == nullptr || !is_same_value(match, *own)) return;
    }
    if (wanted.empty() && platform::is_selected(request)) take_leaves(response, selected);
    for (const Datatree &child : platform::children_of(response))
        for (const Datatree &one : wanted)
            if (platform::value_of(one) == nullptr && tag_of(one) == tag_of(child)) select(one, child, selected);
}

std::unordered_set<const Datatree *> selected_leaves(const Datatree &request, const Datatree &response)
{
    std::unordered_set<const Datatree *> selected;
    for (const Datatree &asked : platform::children_of(request))
        for (const Datatree &given : platform::children_of(response)) {
            const char *ns = platform::namespace_of(given);
            const char *asked_ns = platform::namespace_of(asked);
            if (ns != nullptr && asked_ns != nullptr && std::string_view(ns) == asked_ns)
                select(asked, given, selected);
        }
    return selected;
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
            if (leaf.path.find("[af-name=" + quoted(family) + "]") != std::string::npos)
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
          leaves_(leaves_below(recording.response.root()))
    {
    }

    std::vector<MissingNode> run()
    {
        const model::OcNode *bgp = model::find_oc_node("/bgp");
        const Datatree *answer = child_of(&recording_.answer.root(), "bgp");
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
            const Datatree *wanted = request != nullptr ? child_of(request, last_element(child->path)) : nullptr;
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
            if (!names || child_of(request, last_element(child->path)) != nullptr) asked.push_back(child);
        }
        return asked;
    }

    // The key of an entry says which, not what.
    static bool names_any(const model::OcNode &node, const Datatree &request)
    {
        const auto children = platform::children_of(request);
        return std::any_of(children.begin(), children.end(),
                           [&](const Datatree &child) { return node.key.empty() || tag_of(child) != node.key; });
    }

    static Instances instances_of(const model::OcNode &child, const Instances &parents)
    {
        const std::string_view tag = last_element(child.path);
        Instances instances;
        for (const Instance &parent : parents)
            instances.push_back({child_of(parent.node, tag), parent.path + "/" + std::string(tag)});
        return instances;
    }

    size_t visit_list(const model::OcNode &list, const Instances &parents, const Datatree *request,
                      std::vector<MissingNode> &found)
    {
        const std::string_view tag = last_element(list.path);
        std::vector<const Datatree *> wanted;
        if (request != nullptr)
            for (const Datatree &entry : platform::children_of(*request))
                if (tag_of(entry) == tag) wanted.push_back(&entry);
        if (wanted.empty()) wanted.push_back(nullptr);
        size_t asked = 0;
        for (const Datatree *entry : wanted) asked += visit_entries(list, parents, entry, found);
        return asked;
    }

    size_t visit_entries(const model::OcNode &list, const Instances &parents, const Datatree *request,
                         std::vector<MissingNode> &found)
    {
        const std::string_view tag = last_element(list.path);
        const Datatree *wanted_key = child_of(request, list.key);
        const bool names_entry = wanted_key != nullptr && platform::value_of(*wanted_key) != nullptr;
        Instances entries;
        std::vector<std::string> without;  // the parents that have no such entry
        for (const Instance &parent : parents) {
            const size_t before = entries.size();
            const auto children = parent.node != nullptr ? platform::children_of(*parent.node) : std::span<Datatree>();
            for (const Datatree &child : children) {
                const Datatree *key = child_of(&child, list.key);
                if (tag_of(child) != tag || (names_entry && (key == nullptr || !is_same_value(*wanted_key, *key))))
                    continue;
                const char *value = key != nullptr ? platform::value_of(*key) : nullptr;
                const std::string predicate =
                    value != nullptr ? "[" + std::string(list.key) + "=" + quoted(value) + "]" : "";
                entries.push_back({&child, parent.path + "/" + std::string(tag) + predicate});
            }
            const std::string predicate =
                names_entry ? "[" + std::string(list.key) + "=" + quoted(platform::value_of(*wanted_key)) + "]" : "";
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
        const Again alone(recording_.kind, database_, std::move(*document));
        if (alone.outcome() != VMF_RC_OK) return std::nullopt;
        const auto selected = selected_leaves(alone.native(), recording_.response.root());
        if (selected.empty()) return std::nullopt;
        std::string words;
        size_t others = 0;
        for (const NativeLeaf &leaf : leaves_) {
            if (!selected.contains(leaf.leaf)) continue;
            if (words.empty())
                words = leaf.path + shown(*leaf.leaf, leaf.parent, secrets_);
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
    std::vector<MissingNode> found_;
};

// ---- What is dropped ------------------------------------------------------------------------

// The native leaves for which a handler ran, with what it said.
void collect_handled(const Step &step, std::unordered_map<const Datatree *, const Step *> &handled)
{
    if (step.kind == Step::Kind::function && !step.walks && step.at != nullptr) handled.emplace(step.at, &step);
    for (const Step &inner : step.steps) collect_handled(inner, handled);
}

bool adds_any(const Step &step)
{
    return std::any_of(step.steps.begin(), step.steps.end(), [](const Step &inner) {
        return (inner.kind == Step::Kind::add && !inner.failed) || adds_any(inner);
    });
}

// Halves of a number, and the names that every native path goes by.
bool says_nothing_itself(const NativeLeaf &leaf)
{
    constexpr std::string_view names[] = {"as", "as-xx", "instance-name", "bgp-running"};
    return std::find(std::begin(names), std::end(names), tag_of(*leaf.leaf)) != std::end(names);
}

// Takes the leaves of a schema path out.
void take_out(Datatree &node, const std::string &schema, const std::string &wanted)
{
    int32_t kept = 0;
    for (Datatree &child : platform::children_of(node)) {
        const std::string path = schema + "/" + std::string(tag_of(child));
        take_out(child, path, wanted);
        if (path == wanted)
            platform::release(child);
        else
            std::swap(node.subtrees[kept++], child);
    }
    if (kept < node.subtree_count) node.subtree_count = kept;
}

// Whether anything comes of the native leaves of a schema path: in the answer to the request, or in that to a read of
// everything.
class Influence {
public:
    Influence(const Recording &recording, const platform::Database &database)
        : recording_(recording), database_(database)
    {
    }

    bool has(const std::string &schema)
    {
        if (with_.empty())
            for (const Read read : reads) with_.push_back(answer(read, copy_of(recording_.response.root())));
        for (size_t at = 0; at < std::size(reads); at++) {
            platform::Tree without = copy_of(recording_.response.root());
            for (Datatree &tree : platform::children_of(without.root())) take_out(tree, schema_of_root(tree), schema);
            if (answer(reads[at], std::move(without)) != with_[at]) return true;
        }
        return false;
    }

private:
    enum class Read : uint8_t { as_asked, everything };
    static constexpr Read reads[] = {Read::as_asked, Read::everything};

    std::string answer(Read read, platform::Tree response) const
    {
        const bool is_as_asked = read == Read::as_asked;
        Again again(is_as_asked ? recording_.kind : uint32_t{VMF_REQ_GET}, database_,
                    is_as_asked ? copy_of_request(recording_.request) : io::read_path("/bgp"));
        return again.answer_to(std::move(response));
    }

    const Recording &recording_;
    const platform::Database &database_;
    std::vector<std::string> with_;
};

std::string reason_of(const Step &handler)
{
    for (const Step &step : handler.steps)
        if (step.kind == Step::Kind::remark || step.kind == Step::Kind::error)
            return handler.name + " says: " + step.name;
    return handler.name + " makes nothing of it";
}

}  // namespace

std::vector<MissingNode>
missing_nodes(const Recording &recording, const platform::Database &database,
              const std::function<std::optional<std::string>(std::string_view schema)> &default_of, io::Secrets secrets)
{
    return Search(recording, database, default_of, secrets).run();
}

std::vector<std::string> dropped_values(const Recording &recording, const platform::Database &database,
                                        io::Secrets secrets)
{
    std::unordered_map<const Datatree *, const Step *> handled;
    collect_handled(recording.way_back, handled);

    struct Silent {
        const NativeLeaf *first;
        const Step *handler;  // null: none
        size_t count;
    };
    std::vector<std::string> order;
    std::map<std::string, Silent> by_schema;
    const std::vector<NativeLeaf> leaves = leaves_below(recording.response.root());
    for (const NativeLeaf &leaf : leaves) {
        const auto found = handled.find(leaf.leaf);
        const Step *handler = found != handled.end() ? found->second : nullptr;
        if ((handler != nullptr && adds_any(*handler)) || says_nothing_itself(leaf)) continue;
        const auto [place, is_new] = by_schema.try_emplace(leaf.schema, Silent{&leaf, handler, 0});
        place->second.count++;
        if (is_new) order.push_back(leaf.schema);
    }

    std::vector<std::string> lines;
    Influence influence(recording, database);
    for (const std::string &schema : order) {
        const Silent &silent = by_schema.at(schema);
        // It may be held for another leaf, or be kept out of this answer only because nobody asked for it.
        if (silent.handler != nullptr && influence.has(schema)) continue;
        std::string line = silent.first->path + shown(*silent.first->leaf, silent.first->parent, secrets) + ": " +
                           (silent.handler != nullptr ? reason_of(*silent.handler) : "no handler takes it");
        if (silent.count > 1) line += " (and so " + std::to_string(silent.count - 1) + " more)";
        lines.push_back(std::move(line));
    }
    return lines;
}

}  // namespace framework
