#include "records.h"

#include <algorithm>

namespace router {

// The one to write to: a copy, if another holds it too.
template<class Shared>
static Shared &own(std::shared_ptr<Shared> &shared)
{
    if (shared.use_count() != 1) shared = std::make_shared<Shared>(*shared);
    return *shared;
}

// ---- Entries --------------------------------------------------------------------------------

static uint64_t mixed(uint64_t hash, const std::string &key)
{
    return (hash ^ std::hash<std::string>()(key)) * 0x9E3779B97F4A7C15U;
}

static uint64_t hash_of(Entries::Keys keys)
{
    uint64_t hash = keys.size();
    for (const std::string &key : keys) hash = mixed(hash, key);
    return hash ^ hash >> 32;
}

static uint64_t hash_of(const Branch &entry, size_t key_count)
{
    uint64_t hash = key_count;
    for (size_t i = 0; i < key_count; i++) hash = mixed(hash, value_of(entry.members[i]));
    return hash ^ hash >> 32;
}

static bool has_keys(const Branch &entry, Entries::Keys keys)
{
    return std::equal(keys.begin(), keys.end(), entry.members.begin(),
                      [](const std::string &key, const Member &member) { return key == value_of(member); });
}

static size_t bucket_of(uint64_t hash, size_t bucket_count) { return hash & (bucket_count - 1); }

static uint32_t hint_of(uint64_t hash) { return static_cast<uint32_t>(hash >> 32); }

const Branch *Entries::at(size_t position) const
{
    return (*chunks_[position / chunk_size])[position % chunk_size].get();
}

std::shared_ptr<Branch> &Entries::own(size_t position)
{
    return router::own(chunks_[position / chunk_size])[position % chunk_size];
}

std::optional<size_t> Entries::find_position(Keys keys) const
{
    if (buckets_.empty()) return std::nullopt;
    const uint64_t hash = hash_of(keys);
    for (const Hint &hint : *buckets_[bucket_of(hash, buckets_.size())])
        if (hint.hash == hint_of(hash) && has_keys(*at(hint.position), keys)) return hint.position;
    return std::nullopt;
}

const Branch *Entries::find(Keys keys) const
{
    const auto position = find_position(keys);
    return position ? at(*position) : nullptr;
}

Branch *Entries::find_to_write(Keys keys)
{
    const auto position = find_position(keys);
    return position ? &router::own(own(*position)) : nullptr;
}

void Entries::append(std::shared_ptr<Branch> entry)
{
    if (position_count_ % chunk_size == 0) chunks_.push_back(std::make_shared<Chunk>());
    router::own(chunks_.back()).push_back(std::move(entry));
    position_count_++;
    size_++;
}

void Entries::index(size_t position)
{
    const uint64_t hash = hash_of(*at(position), schema_->key_count);
    router::own(buckets_[bucket_of(hash, buckets_.size())]).push_back({hint_of(hash), static_cast<uint32_t>(position)});
}

// Closes the gaps, and gives the index the size that the entries need.
void Entries::rebuild()
{
    const std::vector<std::shared_ptr<Chunk>> old = std::move(chunks_);
    chunks_.clear();
    position_count_ = size_ = 0;
    for (const auto &chunk : old)
        for (const auto &entry : *chunk)
            if (entry != nullptr) append(entry);
    if (schema_->key_count == 0) return;

    size_t bucket_count = 1;
    while (bucket_count * bucket_size <= size_) bucket_count *= 2;
    buckets_.assign(bucket_count, nullptr);
    for (auto &bucket : buckets_) bucket = std::make_shared<Bucket>();
    for (size_t position = 0; position < position_count_; position++) index(position);
}

Branch &Entries::add(std::shared_ptr<Branch> entry)
{
    append(std::move(entry));
    if (schema_->key_count != 0) {
        if (size_ > buckets_.size() * bucket_size || buckets_.empty())
            rebuild();
        else
            index(position_count_ - 1);
    }
    return router::own(own(position_count_ - 1));
}

bool Entries::remove(Keys keys)
{
    const auto position = find_position(keys);
    if (!position) return false;
    Bucket &bucket = router::own(buckets_[bucket_of(hash_of(keys), buckets_.size())]);
    std::erase_if(bucket, [&position](const Hint &hint) { return hint.position == *position; });
    own(*position) = nullptr;
    size_--;
    if (position_count_ > chunk_size && size_ < position_count_ / 2) rebuild();
    return true;
}

// ---- Branches -------------------------------------------------------------------------------

static auto place_of(const Branch &branch, const Schema &schema)
{
    return std::lower_bound(branch.members.begin(), branch.members.end(), schema.place,
                            [](const Member &member, size_t place) { return member.schema->place < place; });
}

const Member *find_member(const Branch &branch, const Schema &schema)
{
    const auto found = place_of(branch, schema);
    return found != branch.members.end() && found->schema == &schema ? &*found : nullptr;
}

static Member make_member(const Schema &schema)
{
    switch (schema.kind) {
    case Schema::Kind::leaf: return {&schema, std::string()};
    case Schema::Kind::container: return {&schema, std::make_shared<Branch>()};
    case Schema::Kind::list:
    case Schema::Kind::leaf_list: break;
    }
    return {&schema, std::make_shared<Entries>(schema)};
}

Member &member_of(Branch &branch, const Schema &schema)
{
    const auto at = branch.members.begin() + (place_of(branch, schema) - branch.members.begin());
    if (at != branch.members.end() && at->schema == &schema) return *at;
    return *branch.members.insert(at, make_member(schema));
}

bool remove_member(Branch &branch, const Schema &schema)
{
    return std::erase_if(branch.members, [&schema](const Member &member) { return member.schema == &schema; }) != 0;
}

const std::string &value_of(const Member &leaf) { return std::get<std::string>(leaf.content); }

const Branch &branch_of(const Member &container) { return *std::get<std::shared_ptr<Branch>>(container.content); }

const Entries &entries_of(const Member &list) { return *std::get<std::shared_ptr<Entries>>(list.content); }

Branch &own_branch(Member &container) { return own(std::get<std::shared_ptr<Branch>>(container.content)); }

Entries &own_entries(Member &list) { return own(std::get<std::shared_ptr<Entries>>(list.content)); }

static const Member *find_tag(const Branch &branch, std::string_view tag)
{
    const auto found = std::find_if(branch.members.begin(), branch.members.end(),
                                    [tag](const Member &member) { return member.schema->tag == tag; });
    return found != branch.members.end() ? &*found : nullptr;
}

const std::string *find_leaf(const Branch &branch, std::string_view tag)
{
    const Member *member = find_tag(branch, tag);
    return member != nullptr ? &value_of(*member) : nullptr;
}

const Branch *find_container(const Branch &branch, std::string_view tag)
{
    const Member *member = find_tag(branch, tag);
    return member != nullptr ? &branch_of(*member) : nullptr;
}

const Entries *find_list(const Branch &branch, std::string_view tag)
{
    const Member *member = find_tag(branch, tag);
    return member != nullptr ? &entries_of(*member) : nullptr;
}

// ---- Keys -----------------------------------------------------------------------------------

std::shared_ptr<Branch> make_entry(const Schema &schema, Entries::Keys keys)
{
    auto entry = std::make_shared<Branch>();
    for (const std::string &key : keys) {
        const bool is_list = schema.kind == Schema::Kind::list;
        entry->members.push_back({is_list ? &schema.children[entry->members.size()] : &schema, key});
    }
    return entry;
}

std::vector<std::string> keys_of(const Branch &entry, const Schema &schema)
{
    std::vector<std::string> keys;
    for (size_t i = 0; i < schema.key_count; i++) keys.push_back(value_of(entry.members[i]));
    return keys;
}

// ---- Equality -------------------------------------------------------------------------------

static bool are_equal(const Entries &a, const Entries &b, const Schema &schema)
{
    if (a.size() != b.size()) return false;
    const bool in_order = schema.in_user_order || schema.key_count == 0;
    size_t next = 0;  // the position in b that the next one of a stands at, if the order counts
    for (size_t position = 0; position < a.position_count(); position++) {
        const Branch *entry = a.at(position);
        if (entry == nullptr) continue;
        while (in_order && b.at(next) == nullptr) next++;
        const Branch *other = in_order ? b.at(next++) : b.find(keys_of(*entry, schema));
        if (other == nullptr || !are_equal(*entry, *other)) return false;
    }
    return true;
}

static bool are_equal(const Member &a, const Member &b)
{
    if (a.schema != b.schema) return false;
    if (a.content == b.content) return true;  // the same value, or shared
    if (std::holds_alternative<std::string>(a.content)) return false;
    if (a.schema->kind == Schema::Kind::container) return are_equal(branch_of(a), branch_of(b));
    return are_equal(entries_of(a), entries_of(b), *a.schema);
}

bool are_equal(const Branch &a, const Branch &b)
{
    return &a == &b || std::equal(a.members.begin(), a.members.end(), b.members.begin(), b.members.end(),
                                  [](const Member &one, const Member &other) { return are_equal(one, other); });
}

}  // namespace router
