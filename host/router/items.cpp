#include "items.h"

#include <algorithm>
#include <optional>

namespace router {

namespace {

using Record = platform::DatabaseRecord;

// ---- Locations ------------------------------------------------------------------------------

// Families that items are kept of.
constexpr std::pair<std::string_view, std::string_view> codes[] = {
    {"ipv4-unicast", "0x0"},
    {"ipv6-unicast", "0x5"},
    {"ipv4-labeled-unicast", "0x2"},
    {"ipv6-labeled-unicast", "0x7"},
    {"vp-nv4-unicast", "0x4"},
    {"vp-nv6-unicast", "0x8"},
    {"vp-nv4-multicast", "0x10"},
    {"vp-nv6-multicast", "0x11"},
    {"l2vpnvpls", "0xa"},
    {"l2vpnevpn", "0xe"},
};

// Empty if the family has none.
std::string_view code_of(std::string_view family)
{
    const auto *found =
        std::find_if(std::begin(codes), std::end(codes), [family](const auto &row) { return row.first == family; });
    return found != std::end(codes) ? found->second : std::string_view();
}

// The places of neighbors and of groups in the configuration model and in the database.
struct Lists {
    const char *list_container;
    const char *list;
    const char *family_container;
    const char *family;
    std::string_view before_key;  // in a location
    std::string_view after_key;
};

constexpr Lists neighbors = {"neighbors", "neighbor", "neighbor-afs", "neighbor-af", "edm/ord_u/0x3/", "/________"};
constexpr Lists groups = {"neighbor-groups",   "neighbor-group",          "neighbor-group-afs",
                          "neighbor-group-af", "edm/ord_q/0x2/________/", ""};

// What is kept of a family.
struct Kind {
    std::string_view before_code;
    std::string_view after_code;
    std::vector<uint32_t> (*words)(const Branch &family);  // none: no item
};

uint32_t number_of(const std::string *text, uint32_t otherwise)
{
    return text != nullptr ? static_cast<uint32_t>(std::stoul(*text)) : otherwise;
}

uint32_t flag_of(const std::string *text) { return text != nullptr && *text == "true" ? 1 : 0; }

std::vector<uint32_t> words_of_activation(const Branch &family)
{
    if (find_leaf(family, "activate") == nullptr) return {};
    return {1};
}

std::vector<uint32_t> words_of_limit(const Branch &family)
{
    constexpr uint32_t usual_percentage = 75;
    const Branch *limit = find_container(family, "maximum-prefixes");
    if (limit == nullptr || find_leaf(*limit, "prefix-limit") == nullptr) return {};
    return {number_of(find_leaf(*limit, "prefix-limit"), 0),
            number_of(find_leaf(*limit, "warning-percentage"), usual_percentage),
            flag_of(find_leaf(*limit, "warning-only")), flag_of(find_leaf(*limit, "discard-extra-paths"))};
}

constexpr Kind activation = {"/ord_s/", "/ord_c/activate", words_of_activation};
constexpr Kind limit = {"/________/ord_s/", "/ord_g/max-prefix", words_of_limit};

// A location of a family of a neighbor or group, by the elements that tell it apart.
std::string location_of(const std::string &before, const Lists &lists, const Kind &kind, std::string_view key,
                        std::string_view code)
{
    return std::string(before)
        .append(lists.before_key)
        .append(key)
        .append(lists.after_key)
        .append(kind.before_code)
        .append(code)
        .append(kind.after_code);
}

// ---- Queries --------------------------------------------------------------------------------

struct Query {
    std::string_view pattern;
    std::vector<Record> &found;

    void add(std::string location, std::vector<uint32_t> words) const
    {
        if (platform::meets(pattern, location)) found.push_back({std::move(location), std::move(words)});
    }
};

constexpr std::string_view any = ".*";

// Whether a pattern may meet what lies below a place; both end where their text does.
bool may_meet_below(std::string_view pattern, std::string_view place)
{
    while (!place.empty()) {
        if (pattern.empty()) return true;  // ended in "/": all that lies below
        const size_t pattern_end = pattern.find('/');
        const size_t place_end = place.find('/');
        const std::string_view wanted = pattern.substr(0, pattern_end);
        if (pattern_end == std::string_view::npos || (wanted != any && wanted != place.substr(0, place_end)))
            return false;
        pattern.remove_prefix(pattern_end + 1);
        place.remove_prefix(place_end + 1);
    }
    return true;
}

// Whether a pattern that does not leave the end open ends like the locations of that kind.
bool may_end_so(std::string_view pattern, std::string_view end)
{
    if (pattern.ends_with('/')) return true;
    const auto length = std::count(end.begin(), end.end(), '/');
    size_t begin = pattern.size();
    for (auto left = length; left > 0 && begin != std::string_view::npos; left--)
        begin = begin > 0 ? pattern.rfind('/', begin - 1) : std::string_view::npos;
    return begin != std::string_view::npos && platform::meets(pattern.substr(begin), end);
}

bool has_any(std::string_view path)
{
    const std::string elements = "/" + std::string(path) + "/";
    return elements.find("/.*/") != std::string::npos;
}

// The key that a pattern names, which may have a "/" in it; none if it leaves the key open, or what stands around it.
std::optional<std::string_view> named_key(std::string_view before_key, std::string_view behind_key,
                                          std::string_view pattern)
{
    const size_t end = pattern.rfind(behind_key);
    if (!pattern.starts_with(before_key) || end == std::string_view::npos || end < before_key.size())
        return std::nullopt;
    const std::string_view key = pattern.substr(before_key.size(), end - before_key.size());
    if (has_any(key)) return std::nullopt;
    return key;
}

// `key` is the entry's, as it stands in the locations.
void find_of_entry(const Branch &entry, std::string_view key, const std::string &before, const Lists &lists,
                   const Kind &kind, const Query &query)
{
    const Branch *container = find_container(entry, lists.family_container);
    const Entries *families = container != nullptr ? find_list(*container, lists.family) : nullptr;
    if (families == nullptr) return;
    families->for_each([&](const Branch &family) {
        const std::string_view code = code_of(value_of(family.members.front()));
        std::vector<uint32_t> words = code.empty() ? std::vector<uint32_t>() : kind.words(family);
        if (!words.empty()) query.add(location_of(before, lists, kind, key, code), std::move(words));
    });
}

void find_of_list(const Branch &bgp_entity, const std::string &before, const Lists &lists, const Kind &kind,
                  const Query &query)
{
    const Branch *container = find_container(bgp_entity, lists.list_container);
    const Entries *entries = container != nullptr ? find_list(*container, lists.list) : nullptr;
    if (entries == nullptr) return;
    const std::string before_key = before + std::string(lists.before_key);
    if (!may_meet_below(query.pattern, before_key) || !may_end_so(query.pattern, kind.after_code)) return;
    const std::string behind_key = std::string(lists.after_key).append(kind.before_code);
    const auto key = named_key(before_key, behind_key, query.pattern);
    if (!key) {
        entries->for_each([&](const Branch &entry) {
            find_of_entry(entry, value_of(entry.members.front()), before, lists, kind, query);
        });
        return;
    }
    // However a client writes an address, it finds the neighbor.
    const auto canonical = canonical_value(entries->schema().children.front(), *key);
    const Branch *entry = canonical ? entries->find({&*canonical, 1}) : nullptr;
    if (entry != nullptr) find_of_entry(*entry, *key, before, lists, kind, query);
}

void find_of_as(const Branch &four_byte_as, const std::string &as_numbers, const Query &query)
{
    const std::string before = "/cfg/gl/ip-bgp/default/" + as_numbers;
    if (find_leaf(four_byte_as, "bgp-running") != nullptr) query.add(before + "gbl/edm/ord_a/running", {1});

    const Branch *vrf = find_container(four_byte_as, "default-vrf");
    const Branch *bgp_entity = vrf != nullptr ? find_container(*vrf, "bgp-entity") : nullptr;
    if (bgp_entity == nullptr) return;
    for (const Kind &kind : {activation, limit})
        for (const Lists &lists : {neighbors, groups})
            find_of_list(*bgp_entity, before + "ord_a/default/nbr/________/", lists, kind, query);
}

void find_of_instance(const Branch &instance, const Query &query)
{
    const Entries *high_halves = find_list(instance, "instance-as");
    if (high_halves == nullptr) return;
    high_halves->for_each([&query](const Branch &high_half) {
        const Entries *low_halves = find_list(high_half, "four-byte-as");
        if (low_halves == nullptr) return;
        low_halves->for_each([&](const Branch &low_half) {
            find_of_as(low_half, value_of(high_half.members.front()) + "/" + value_of(low_half.members.front()) + "/",
                       query);
        });
    });
}

}  // namespace

std::vector<Record> Items::find(std::string_view pattern, bool merged) const
{
    std::vector<Record> found;
    const std::string name = "default";  // the instance that the database has items of
    const Branch *bgp = find_container(merged ? *candidate_ : *running_, "bgp");
    const Entries *instances = bgp != nullptr ? find_list(*bgp, "instance") : nullptr;
    const Branch *instance = instances != nullptr ? instances->find({&name, 1}) : nullptr;
    if (instance != nullptr) find_of_instance(*instance, {pattern, found});
    return found;
}

}  // namespace router
