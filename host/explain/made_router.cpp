#include "made_router.h"

#include <algorithm>
#include <new>
#include <utility>

#include "edit.h"
#include "selection.h"
#include "vmf_map_oc_bgp.h"

namespace explain {

using router::Branch;
using router::Schema;

// ---- Native nodes ---------------------------------------------------------------------------

const Schema *parent_of(const Schema &native)
{
    const lysc_node *parent = native.compiled->parent;
    return parent != nullptr ? static_cast<const Schema *>(parent->priv) : nullptr;
}

std::string path_of(const Schema &native)
{
    const Schema *parent = parent_of(native);
    return (parent != nullptr ? path_of(*parent) : "") + "/" + native.tag;
}

bool is_operational(const Schema &native) { return native.ns == router::models().operational.ns; }

static const Schema *find_below(const Schema &root, std::string_view path)
{
    const Schema *node = &root;
    while (node != nullptr && !path.empty()) {
        path.remove_prefix(1);
        const std::string tag(path.substr(0, path.find('/')));
        path.remove_prefix(tag.size());
        node = node->find_child(tag.c_str(), nullptr);
    }
    return node;
}

const Schema *find_native(std::string_view path)
{
    if (!path.starts_with('/')) return nullptr;
    const Schema *config = find_below(router::models().config, path);
    return config != nullptr ? config : find_below(router::models().operational, path);
}

static std::vector<const Schema *> way_to(const Schema &native)
{
    std::vector<const Schema *> way;
    for (const Schema *node = &native; node != nullptr; node = parent_of(*node)) way.insert(way.begin(), node);
    return way;
}

// ---- Entries --------------------------------------------------------------------------------

// The words that an operational list has for families of the configuration model.
static std::vector<std::string> operational_words(const std::vector<std::string> &families)
{
    std::vector<std::string> words;
    for (size_t row = 0; row < std::size(oc_zr_af_names); row++)
        if (std::find(families.begin(), families.end(), oc_zr_af_names[row][1]) != families.end())
            words.emplace_back(oc_zr_nbr_oper_af_names[row][1]);
    return words;
}

static std::vector<std::string> all_families()
{
    std::vector<std::string> families;
    for (const auto &row : oc_zr_af_names) families.emplace_back(row[1]);
    return families;
}

std::vector<std::string> entries_of(const Schema &list, const EntryKeys &keys)
{
    if (const auto found = keys.instead.find(&list); found != keys.instead.end()) return {found->second};
    const std::string_view tag = list.tag;
    if (tag == "instance") return {"default"};
    if (tag == "instance-as") return {keys.as_high};
    if (tag == "four-byte-as") return {keys.as_low};
    if (tag == "neighbor") return {keys.neighbor};
    if (tag == "neighbor-group") return {keys.group};
    std::vector<std::string> families = keys.families.empty() ? all_families() : keys.families;
    if (tag == "af-data") return operational_words(families);
    if (tag == "af" || tag == "global-af" || tag == "neighbor-af" || tag == "neighbor-group-af") return families;
    return {};
}

static Branch &entry_of(router::Member &list, const std::vector<std::string> &keys)
{
    router::Entries &entries = router::own_entries(list);
    Branch *found = entries.find_to_write(keys);
    return found != nullptr ? *found : entries.add(router::make_entry(*list.schema, keys));
}

static void make_entries(Branch &branch, const Schema &schema, const EntryKeys &keys)
{
    for (const Schema &child : schema.children) {
        if (child.kind == Schema::Kind::container) {
            Branch below;
            make_entries(below, child, keys);
            if (!below.members.empty()) router::own_branch(router::member_of(branch, child)) = std::move(below);
        } else if (child.kind == Schema::Kind::list) {
            for (const std::string &key : entries_of(child, keys))
                make_entries(entry_of(router::member_of(branch, child), {key}), child, keys);
        }
    }
}

namespace {

// What a router holds that has nothing but its entries.
struct Bare {
    EntryKeys keys;
    Branch config;
    Branch operational;

    explicit Bare(EntryKeys of) : keys(std::move(of))
    {
        make_entries(config, router::models().config, keys);
        make_entries(operational, router::models().operational, keys);
    }
};

}  // namespace

// Many routers are made for a question, and most have the entries of the one before. They share what they do not
// change.
static const Bare &bare_of(const EntryKeys &keys)
{
    thread_local std::unique_ptr<const Bare> last;
    if (last == nullptr || last->keys != keys) last = std::make_unique<const Bare>(keys);
    return *last;
}

MadeRouter::MadeRouter(EntryKeys keys) : keys_(std::move(keys))
{
    const Bare &bare = bare_of(keys_);
    *config_ = bare.config;
    *operational_ = bare.operational;
    set(*find_native("/bgp/instance/instance-as/four-byte-as/bgp-running"), "");
}

// ---- Leaves ---------------------------------------------------------------------------------

static std::string canonical_of(const Schema &leaf, const std::string &value)
{
    return leaf.is_empty ? "" : router::canonical_value(leaf, value).value_or(value);
}

// The nodes on the way to a leaf or list, from the top, and what it is given.
struct Setting {
    std::vector<const Schema *> way;
    const std::string &value;
    const EntryKeys &keys;
};

static void set_below(Branch &branch, const Setting &setting, size_t at);

static void set_in_list(router::Member &list, const Setting &setting, size_t at)
{
    const Schema &schema = *list.schema;
    const bool is_last = at + 1 == setting.way.size();
    if (schema.key_count == 0) {
        auto entry = std::make_shared<Branch>();
        if (!is_last) set_below(*entry, setting, at + 1);
        router::own_entries(list).add(entry);
        return;
    }
    const std::vector<std::string> entries = entries_of(schema, setting.keys);
    for (const std::string &key : entries)
        if (!is_last) set_below(entry_of(list, {key}), setting, at + 1);
    if (!entries.empty()) return;
    std::vector<std::string> keys(schema.key_count, "0");
    keys.back() = setting.value;
    entry_of(list, keys);
}

static void set_below(Branch &branch, const Setting &setting, size_t at)
{
    router::Member &member = router::member_of(branch, *setting.way[at]);
    switch (member.schema->kind) {
    case Schema::Kind::container: return set_below(router::own_branch(member), setting, at + 1);
    case Schema::Kind::leaf: member.content = canonical_of(*member.schema, setting.value); return;
    case Schema::Kind::leaf_list: entry_of(member, {canonical_of(*member.schema, setting.value)}); return;
    case Schema::Kind::list: return set_in_list(member, setting, at);
    }
}

void MadeRouter::set(const Schema &node, const std::string &value, const EntryKeys &in)
{
    set_below(is_operational(node) ? *operational_ : *config_, {way_to(node), value, in}, 0);
}

// ---- Exchanges ------------------------------------------------------------------------------

void MadeRouter::edit(const Datatree &native) { config_ = router::edited(config_, native); }

// A response holds a tree for each native model.
platform::Tree MadeRouter::respond(const Datatree &native, bool wants_operational) const
{
    platform::Tree response = router::selected(*config_, router::models().config, native);
    if (wants_operational)
        platform::move_trees(response, router::selected(*operational_, router::models().operational, native));
    return response;
}

platform::Tree MadeRouter::config() const { return router::whole(*config_); }

}  // namespace explain
