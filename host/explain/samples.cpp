#include "samples.h"

#include <algorithm>

namespace explain {

namespace {

using Values = std::vector<std::string>;

// Tried with every type that is no closed set of words. The type takes what it can.
constexpr const char *numbers[] = {"10", "65001"};
constexpr const char *texts[] = {"192.0.2.9", "2001:db8::9", "GigabitEthernet0/1", "example"};

// Words of the native models in leaves that are plain strings there.
constexpr const char *connection_states[] = {"bgp-st-idle",      "bgp-st-connect",       "bgp-st-active",
                                             "bgp-st-open-sent", "bgp-st-open-conf-irm", "bgp-st-estab"};

void add_identities(const lysc_ident &base, Values &values)
{
    LY_ARRAY_COUNT_TYPE i = 0;
    LY_ARRAY_FOR(base.derived, i)
    {
        values.emplace_back(base.derived[i]->name);
        add_identities(*base.derived[i], values);
    }
}

void add_enums(const lysc_type_enum &type, Values &values)
{
    LY_ARRAY_COUNT_TYPE i = 0;
    LY_ARRAY_FOR(type.enums, i) values.emplace_back(type.enums[i].name);
}

void add_bounds(const lysc_range *range, Values &values)
{
    if (range == nullptr) return;
    LY_ARRAY_COUNT_TYPE i = 0;
    LY_ARRAY_FOR(range->parts, i)
    {
        values.push_back(std::to_string(range->parts[i].min_u64));
        values.push_back(std::to_string(range->parts[i].max_u64));
    }
}

void add_values(const lysc_type &type, Values &values)
{
    switch (type.basetype) {
    case LY_TYPE_EMPTY: values.emplace_back(""); return;
    case LY_TYPE_BOOL:
        values.emplace_back("true");
        values.emplace_back("false");
        return;
    case LY_TYPE_ENUM: return add_enums(reinterpret_cast<const lysc_type_enum &>(type), values);
    case LY_TYPE_IDENT: {
        const auto &identity = reinterpret_cast<const lysc_type_identityref &>(type);
        LY_ARRAY_COUNT_TYPE i = 0;
        LY_ARRAY_FOR(identity.bases, i) add_identities(*identity.bases[i], values);
        return;
    }
    case LY_TYPE_LEAFREF: return add_values(*reinterpret_cast<const lysc_type_leafref &>(type).realtype, values);
    case LY_TYPE_UNION: {
        const auto &members = reinterpret_cast<const lysc_type_union &>(type);
        LY_ARRAY_COUNT_TYPE i = 0;
        LY_ARRAY_FOR(members.types, i) add_values(*members.types[i], values);
        return;
    }
    case LY_TYPE_STRING:
        for (const char *text : texts) values.emplace_back(text);
        return;
    case LY_TYPE_UINT8:
    case LY_TYPE_UINT16:
    case LY_TYPE_UINT32:
    case LY_TYPE_UINT64:
        for (const char *number : numbers) values.emplace_back(number);
        return add_bounds(reinterpret_cast<const lysc_type_num &>(type).range, values);
    case LY_TYPE_DEC64:
        for (const char *number : numbers) values.emplace_back(number);
        values.emplace_back("10.5");
        return;
    default: return;
    }
}

// The type of the target for a leafref.
const lysc_type &type_of(const lysc_node &leaf)
{
    const lysc_type *type = leaf.nodetype == LYS_LEAFLIST ? reinterpret_cast<const lysc_node_leaflist &>(leaf).type
                                                          : reinterpret_cast<const lysc_node_leaf &>(leaf).type;
    while (type->basetype == LY_TYPE_LEAFREF) type = reinterpret_cast<const lysc_type_leafref *>(type)->realtype;
    return *type;
}

bool is_closed_set(const lysc_type &type)
{
    return type.basetype == LY_TYPE_EMPTY || type.basetype == LY_TYPE_BOOL || type.basetype == LY_TYPE_ENUM ||
           type.basetype == LY_TYPE_IDENT;
}

bool is_number(const lysc_type &type)
{
    return type.basetype == LY_TYPE_UINT8 || type.basetype == LY_TYPE_UINT16 || type.basetype == LY_TYPE_UINT32 ||
           type.basetype == LY_TYPE_UINT64 || type.basetype == LY_TYPE_DEC64;
}

// One text says as much as another where all are taken alike.
bool is_plain_text(const lysc_type &type)
{
    const auto &string = reinterpret_cast<const lysc_type_str &>(type);
    return type.basetype == LY_TYPE_STRING && string.patterns == nullptr && string.length == nullptr;
}

bool holds_an_as(const router::Schema &leaf)
{
    const std::string_view tag = leaf.tag;
    return tag == "as" || tag == "as-yy" || tag.ends_with("-as");
}

}  // namespace

Values samples_of(const router::Schema &leaf)
{
    if (leaf.tag == std::string_view("connection-state"))
        return {std::begin(connection_states), std::end(connection_states)};
    const lysc_type &type = type_of(*leaf.compiled);
    if (is_plain_text(type)) return {"example"};
    Values candidates;
    add_values(type, candidates);
    if (is_closed_set(type)) return candidates;
    if (is_number(type)) candidates.erase(holds_an_as(leaf) ? candidates.begin() : candidates.begin() + 1);
    Values values;
    for (std::string &value : candidates)
        if (router::canonical_value(leaf, value) && std::find(values.begin(), values.end(), value) == values.end())
            values.push_back(std::move(value));
    return values;
}

}  // namespace explain
