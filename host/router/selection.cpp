#include "selection.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace router {

namespace {

// ---- The filter -----------------------------------------------------------------------------

// A leaf with a value: content that must be there. Values of a leaf-list are alternatives; a leaf cannot have two.
struct Match {
    const Schema *schema;
    std::vector<std::string> values = {};
};

struct Part;

// What one request node asks of each node that it stands for.
struct Clause {
    bool is_whole = false;       // nothing stands below it: all is selected
    bool is_impossible = false;  // it holds content that no node can have
    bool has_only_matches = true;
    std::vector<Match> matches = {};
    std::vector<Part> parts;             // what is asked of the members, by member
    std::vector<std::string> keys = {};  // of the one list entry that it can stand for; empty: of any
};

struct Part {
    const Schema *schema;
    std::vector<Clause> clauses = {};
};

using Clauses = std::vector<const Clause *>;

template<class Row>
Row &row_of(std::vector<Row> &rows, const Schema &schema)
{
    const auto found =
        std::find_if(rows.begin(), rows.end(), [&schema](const Row &row) { return row.schema == &schema; });
    return found != rows.end() ? *found : rows.emplace_back(Row{&schema});
}

template<class Row>
const Row *find_row(const std::vector<Row> &rows, const Schema &schema)
{
    const auto found =
        std::find_if(rows.begin(), rows.end(), [&schema](const Row &row) { return row.schema == &schema; });
    return found != rows.end() ? &*found : nullptr;
}

void read_match(const Schema &schema, const char *text, Clause &clause)
{
    Match &match = row_of(clause.matches, schema);
    auto value = canonical_value(schema, text);
    const bool is_leaf = schema.kind == Schema::Kind::leaf;
    const bool is_another = !match.values.empty() && match.values.front() != value;
    if (is_leaf && (!value || is_another)) clause.is_impossible = true;
    if (value) match.values.push_back(*std::move(value));
}

void read_keys(const Schema &list, Clause &clause)
{
    for (size_t i = 0; i < list.key_count; i++) {
        const Match *match = find_row(clause.matches, list.children[i]);
        if (match == nullptr || match->values.empty()) return clause.keys.clear();
        clause.keys.push_back(match->values.front());
    }
}

// Whether a container with something below it is selected as a whole all the same. Whoever asks for a group asks for
// the container of all groups first; only the group is meant.
bool is_whole_container(const Datatree &request, const Schema &schema)
{
    return schema.kind == Schema::Kind::container && platform::is_selected(request) &&
           std::strcmp(schema.tag, "neighbor-groups") != 0;
}

Clause read_clause(const Datatree &request, const Schema &schema)
{
    Clause clause;
    const auto children = platform::children_of(request);
    clause.is_whole = children.empty() || is_whole_container(request, schema);
    clause.is_impossible = platform::value_of(request) != nullptr;  // of what is no leaf, or has children
    if (clause.is_whole) return clause;
    for (const Datatree &child : children) {
        const Schema *found = schema.find_child(platform::tag_of(child), platform::namespace_of(child));
        const char *value = platform::value_of(child);
        if (found != nullptr && found->is_terminal() && value != nullptr) {
            read_match(*found, value, clause);
            continue;
        }
        clause.has_only_matches = false;
        if (found != nullptr) row_of(clause.parts, *found).clauses.push_back(read_clause(child, *found));
    }
    if (schema.kind == Schema::Kind::list) read_keys(schema, clause);
    return clause;
}

// ---- The answer -----------------------------------------------------------------------------

Datatree &append(Datatree &parent, const Schema &schema)
{
    Datatree *child = platform::append_child(parent, schema.tag, schema.ns);
    if (child == nullptr) throw std::bad_alloc();
    return *child;
}

void drop_last(Datatree &parent)
{
    platform::release(platform::children_of(parent).back());
    parent.subtree_count--;
}

void append_leaf(Datatree &parent, const Schema &schema, const std::string &value)
{
    Datatree &leaf = append(parent, schema);
    if (!schema.is_empty && !platform::set_value(leaf, value)) throw std::bad_alloc();
}

void append_all(Datatree &out, const Branch &data);

void append_all(Datatree &out, const Member &member)
{
    const Schema &schema = *member.schema;
    if (schema.kind == Schema::Kind::leaf) return append_leaf(out, schema, value_of(member));
    if (schema.kind == Schema::Kind::container) return append_all(append(out, schema), branch_of(member));
    entries_of(member).for_each([&](const Branch &entry) {
        if (schema.kind == Schema::Kind::list)
            append_all(append(out, schema), entry);
        else
            append_leaf(out, schema, value_of(entry.members.front()));
    });
}

void append_all(Datatree &out, const Branch &data)
{
    for (const Member &member : data.members) append_all(out, member);
}

// ---- The selection --------------------------------------------------------------------------

bool is_met(const Match &match, const Branch &data)
{
    const Member *member = find_member(data, *match.schema);
    if (member == nullptr) return false;
    if (match.schema->kind == Schema::Kind::leaf) return value_of(*member) == match.values.front();
    return std::any_of(match.values.begin(), match.values.end(), [member](const std::string &value) {
        return entries_of(*member).find({&value, 1}) != nullptr;
    });
}

bool is_met(const Clause &clause, const Branch &data)
{
    return !clause.is_impossible && std::all_of(clause.matches.begin(), clause.matches.end(),
                                                [&data](const Match &match) { return is_met(match, data); });
}

// What the clauses ask of one member.
Clauses clauses_of_member(const Clauses &clauses, const Schema &schema)
{
    Clauses all;
    for (const Clause *clause : clauses)
        if (const Part *part = find_row(clause->parts, schema))
            for (const Clause &below : part->clauses) all.push_back(&below);
    return all;
}

bool is_matched(const Clauses &clauses, const Schema &schema)
{
    return std::any_of(clauses.begin(), clauses.end(),
                       [&schema](const Clause *clause) { return find_row(clause->matches, schema) != nullptr; });
}

bool is_whole(const Clauses &clauses)
{
    return std::any_of(clauses.begin(), clauses.end(),
                       [](const Clause *clause) { return clause->is_whole && !clause->is_impossible; });
}

// These give whether anything was selected. All data is met by some clause when they are called.

bool select(const Branch &data, const Clauses &clauses, Datatree &out);

bool select_node(const Branch &data, const Schema &schema, const Clauses &clauses, Datatree &out)
{
    if (select(data, clauses, append(out, schema))) return true;
    drop_last(out);
    return false;
}

// A key says which entry the rest belongs to, and so it goes with it.
bool select_leaf(const Member &leaf, const Clauses &clauses, Datatree &out)
{
    const Schema &schema = *leaf.schema;
    const bool is_asked = is_matched(clauses, schema) || is_whole(clauses_of_member(clauses, schema));
    if (is_asked || schema.is_key) append_leaf(out, schema, value_of(leaf));
    return is_asked;
}

bool select_values(const Member &leaf_list, const Clauses &clauses, Datatree &out)
{
    const Schema &schema = *leaf_list.schema;
    if (is_whole(clauses_of_member(clauses, schema))) {
        append_all(out, leaf_list);
        return true;
    }
    if (!is_matched(clauses, schema)) return false;
    const Entries &values = entries_of(leaf_list);
    std::vector<size_t> positions;
    for (const Clause *clause : clauses)
        if (const Match *match = find_row(clause->matches, schema))
            for (const std::string &value : match->values)
                if (const auto position = values.find_position({&value, 1})) positions.push_back(*position);
    std::sort(positions.begin(), positions.end());
    positions.erase(std::unique(positions.begin(), positions.end()), positions.end());
    for (const size_t position : positions) append_leaf(out, schema, value_of(values.at(position)->members.front()));
    return true;
}

// A clause that tells its entry's keys is held for that entry alone: however many name one each, the list is not walked
// for each of them.
bool select_entries(const Member &list, const Clauses &clauses, Datatree &out)
{
    const Schema &schema = *list.schema;
    const Entries &entries = entries_of(list);
    Clauses of_all;
    std::vector<std::pair<size_t, const Clause *>> of_one;
    for (const Clause *clause : clauses) {
        if (clause->keys.empty())
            of_all.push_back(clause);
        else if (const auto position = entries.find_position(clause->keys))
            of_one.emplace_back(*position, clause);
    }
    std::stable_sort(of_one.begin(), of_one.end(), [](const auto &a, const auto &b) { return a.first < b.first; });

    bool is_any = false;
    auto next = of_one.begin();
    size_t position = 0;
    while (position < entries.position_count()) {
        if (of_all.empty()) {
            if (next == of_one.end()) break;
            position = next->first;
        }
        Clauses of_this = of_all;
        for (; next != of_one.end() && next->first == position; ++next) of_this.push_back(next->second);
        const Branch *entry = entries.at(position++);
        if (entry != nullptr) is_any |= select_node(*entry, schema, of_this, out);
    }
    return is_any;
}

bool select_member(const Member &member, const Clauses &clauses, Datatree &out)
{
    const Schema &schema = *member.schema;
    if (schema.kind == Schema::Kind::leaf) return select_leaf(member, clauses, out);
    if (schema.kind == Schema::Kind::leaf_list) return select_values(member, clauses, out);
    const Clauses below = clauses_of_member(clauses, schema);
    if (below.empty()) return false;
    if (schema.kind == Schema::Kind::container) return select_node(branch_of(member), schema, below, out);
    return select_entries(member, below, out);
}

bool select(const Branch &data, const Clauses &clauses, Datatree &out)
{
    Clauses met;
    for (const Clause *clause : clauses)
        if (is_met(*clause, data)) met.push_back(clause);
    if (std::any_of(met.begin(), met.end(), [](const Clause *clause) { return clause->has_only_matches; })) {
        append_all(out, data);
        return true;
    }
    bool is_any = false;
    for (const Member &member : data.members) is_any |= select_member(member, met, out);
    return is_any;
}

}  // namespace

platform::Tree selected(const Branch &data, const Schema &root, const Datatree &request)
{
    Clause filter;
    filter.has_only_matches = false;
    for (const Datatree &tree : platform::children_of(request)) {
        const Schema *top = root.find_child(platform::tag_of(tree), platform::namespace_of(tree));
        if (top != nullptr && platform::namespace_of(tree) != nullptr)
            row_of(filter.parts, *top).clauses.push_back(read_clause(tree, *top));
    }
    platform::Tree answer;
    if (!select(data, {&filter}, answer.root())) return {};
    return answer;
}

platform::Tree whole(const Branch &data)
{
    platform::Tree answer;
    append_all(answer.root(), data);
    return answer;
}

}  // namespace router
