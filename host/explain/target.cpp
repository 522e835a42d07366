#include "target.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

#include "names.h"
#include "native_path.h"
#include "reading.h"
#include "request.h"
#include "samples.h"
#include "schema.h"
#include "vmf_map_oc_bgp.h"

namespace explain {

bool is_leaf(const model::OcNode &node) { return io::is_leaf(node); }

const router::Schema &schema_of(const model::OcNode &node)
{
    const router::Schema *schema = &router::models().openconfig;
    std::string_view path = node.path;
    while (schema != nullptr && !path.empty()) {
        path.remove_prefix(1);
        const std::string tag(path.substr(0, path.find('/')));
        path.remove_prefix(tag.size());
        schema = schema->find_child(tag.c_str(), nullptr);
    }
    if (schema == nullptr) throw std::runtime_error(std::string(node.path) + ": not in the compiled model");
    return *schema;
}

const model::OcNode *list_of_key(const model::OcNode &node)
{
    const size_t end = node.path.rfind('/');
    const model::OcNode *parent = model::find_oc_node(node.path.substr(0, end));
    const bool is_key =
        parent != nullptr && parent->kind == model::Kind::list && parent->key == node.path.substr(end + 1);
    return is_key ? parent : nullptr;
}

// From the top, the target last.
static std::vector<const model::OcNode *> way_to(const model::OcNode &node)
{
    std::vector<const model::OcNode *> way;
    for (std::string_view path = node.path; !path.empty(); path = path.substr(0, path.rfind('/')))
        way.insert(way.begin(), model::find_oc_node(path));
    return way;
}

static std::string_view tag_of(const model::OcNode &node) { return node.path.substr(node.path.rfind('/') + 1); }

static const Key *key_of(const Target &target, const model::OcNode &list)
{
    const auto found =
        std::find_if(target.keys.begin(), target.keys.end(), [&list](const Key &key) { return key.list == &list; });
    return found != target.keys.end() ? &*found : nullptr;
}

std::string Target::path() const
{
    std::string path;
    for (const model::OcNode *on_way : way_to(*node)) {
        path.append("/").append(tag_of(*on_way));
        const Key *key = key_of(*this, *on_way);
        if (key != nullptr && !key->value.empty())
            path.append("[").append(on_way->key).append("=").append(router::quoted(key->value)).append("]");
    }
    return path;
}

// ---- Families -------------------------------------------------------------------------------

static bool is_family_list(const model::OcNode &list) { return list.key == "afi-safi-name"; }

bool has_family(const Target &target)
{
    return std::any_of(target.keys.begin(), target.keys.end(),
                       [](const Key &key) { return is_family_list(*key.list); });
}

Target with_family(const Target &target, const std::string &identity)
{
    Target other = target;
    for (Key &key : other.keys)
        if (is_family_list(*key.list)) key.value = identity;
    return other;
}

std::vector<std::string> families()
{
    return samples_of(schema_of(*model::find_oc_node("/bgp/global/afi-safis/afi-safi/afi-safi-name")));
}

// A key refers to the leaf below `config` that has its type.
std::optional<std::string> canonical_key(const model::OcNode &list, const std::string &value)
{
    const model::OcNode *leaf = model::find_oc_node(std::string(list.path).append("/config/").append(list.key));
    return router::canonical_value(schema_of(*leaf), value);
}

EntryKeys entry_keys(const Target &target)
{
    EntryKeys keys;
    for (const Key &key : target.keys) {
        if (key.value.empty()) continue;
        if (key.list->key == "neighbor-address") keys.neighbor = key.value;
        if (key.list->key == "peer-group-name") keys.group = key.value;
    }
    return keys;
}

EntryKeys keys_of_one_entry(const Target &target)
{
    EntryKeys keys = entry_keys(target);
    std::string family = families().front();
    for (const Key &key : target.keys)
        if (is_family_list(*key.list) && !key.value.empty()) family = key.value;
    const char *word = vmf_map_af_name(family.c_str(), 1, nullptr);
    keys.families = {word != nullptr ? word : oc_zr_af_names[0][1]};
    return keys;
}

// ---- Making a target ------------------------------------------------------------------------

static std::string made_key(const model::OcNode &list)
{
    const EntryKeys made;
    if (list.key == "neighbor-address") return made.neighbor;
    if (list.key == "peer-group-name") return made.group;
    return families().front();
}

static bool is_taken(const Target &target)
{
    const MadeRouter router;
    platform::Log log;
    framework::Request request(VMF_REQ_GET, router.database(), log);
    io::Document document = make_request(target, {VMF_REQ_GET});
    platform::Tree native;
    return request.map(document.bgp.root(), native.root()) == VMF_RC_OK;
}

Target make_target(std::string_view schema_path, const std::vector<Key> &given)
{
    Target target = {model::find_oc_node(schema_path), given};
    if (target.node == nullptr) return target;
    bool family_is_open = false;
    for (const model::OcNode *node : way_to(*target.node)) {
        if (node->kind != model::Kind::list || key_of(target, *node) != nullptr) continue;
        family_is_open |= is_family_list(*node);
        target.keys.push_back({node, made_key(*node)});
    }
    if (!family_is_open) return target;
    for (const std::string &family : families()) {
        Target other = with_family(target, family);
        if (is_taken(other)) return other;
    }
    return target;
}

// ---- Requests -------------------------------------------------------------------------------

static void give_value(Datatree &node, const model::OcNode &model, const std::string &value)
{
    io::give_value(node, model.type == model::Type::decimal64_ ? io::without_zero_fraction(value) : value);
    if (model.type == model::Type::identityref_) platform::set_data_namespace(node, platform::intern(OC_BGP_TYPES_NS));
}

io::Document make_request(const Target &target, const Saying &saying)
{
    io::Document document;
    document.kind = saying.kind;
    const char *ns = platform::intern(OC_BGP_NS);
    Datatree *node = &document.bgp.root();
    const std::vector<const model::OcNode *> way = way_to(*target.node);
    const model::OcNode *list_above = nullptr;
    for (const model::OcNode *on_way : way) {
        const bool is_key = list_above != nullptr && list_above == list_of_key(*on_way);
        if (on_way == way.front())
            io::name_root(*node, platform::intern(tag_of(*on_way)), ns);
        else if (is_key)
            node = &platform::children_of(*node).front();
        else
            node = &io::add_child(*node, platform::intern(tag_of(*on_way)), ns);
        if (on_way->kind == model::Kind::list) {
            const model::OcNode &key = *model::find_oc_node(std::string(on_way->path).append("/").append(on_way->key));
            Datatree &key_node = io::add_child(*node, platform::intern(on_way->key), ns);
            const Key *given = key_of(target, *on_way);
            if (given != nullptr && !given->value.empty()) give_value(key_node, key, given->value);
        }
        const bool is_target = on_way == target.node;
        if (saying.operation && (saying.operation_at.empty() ? is_target : on_way->path == saying.operation_at))
            platform::set_operation(*node, *saying.operation);
        if (is_target && saying.value && !is_key) give_value(*node, *on_way, *saying.value);
        list_above = on_way->kind == model::Kind::list ? on_way : nullptr;
    }
    return document;
}

}  // namespace explain
