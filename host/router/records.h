// Data of the native models, as the datastores hold it.
//
// A copy shares what it holds with its original until one of the two writes to it, and then only what lies on the way
// to the place that is written is copied. So an edit works on a copy of a datastore, which is dropped if the edit is
// refused; and the running configuration is nothing but the candidate as it was.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "native_schema.h"

namespace router {

class Entries;
struct Member;

// What stands below a container, a list entry, or the root of a module.
struct Branch {
    std::vector<Member> members;  // in the order of the model
};

struct Member {
    const Schema *schema;
    // Of a leaf: its value, in canonical form. Of a container. Of a list or leaf-list: at least one entry.
    std::variant<std::string, std::shared_ptr<Branch>, std::shared_ptr<Entries>> content;
};

// The entries of a list, or the values of a leaf-list, each in a branch whose first members are its keys (its value).
// Found by a hash of the keys, and kept in the order in which they were made. Entries of a list without keys are only
// kept.
class Entries {
public:
    using Keys = std::span<const std::string>;

    explicit Entries(const Schema &schema) : schema_(&schema) {}

    const Schema &schema() const { return *schema_; }
    size_t size() const { return size_; }

    // Null if there is none.
    const Branch *find(Keys keys) const;
    Branch *find_to_write(Keys keys);

    // Adds one that is not there yet.
    Branch &add(std::shared_ptr<Branch> entry);

    // False if there is none.
    bool remove(Keys keys);

    // Positions ascend in the order in which the entries were made. Where one was taken out, there is none. They hold
    // until something is added or taken out.
    size_t position_count() const { return position_count_; }
    const Branch *at(size_t position) const;
    std::optional<size_t> find_position(Keys keys) const;

    template<class Visit>
    void for_each(Visit visit) const
    {
        for (size_t position = 0; position < position_count_; position++)
            if (const Branch *entry = at(position)) visit(*entry);
    }

private:
    static constexpr size_t chunk_size = 128;
    static constexpr size_t bucket_size = 32;  // on average

    // Both are shared with copies.
    using Chunk = std::vector<std::shared_ptr<Branch>>;
    struct Hint {
        uint32_t hash;
        uint32_t position;
    };
    using Bucket = std::vector<Hint>;

    std::shared_ptr<Branch> &own(size_t position);
    void append(std::shared_ptr<Branch> entry);
    void index(size_t position);
    void rebuild();

    const Schema *schema_;
    size_t size_ = 0;
    size_t position_count_ = 0;
    std::vector<std::shared_ptr<Chunk>> chunks_ = {};
    std::vector<std::shared_ptr<Bucket>> buckets_ = {};  // a power of two of them, or none
};

// The one of a branch, or null.
const Member *find_member(const Branch &branch, const Schema &schema);

// Found or made: an empty leaf, a container or list without anything in it.
Member &member_of(Branch &branch, const Schema &schema);

// False if there is none.
bool remove_member(Branch &branch, const Schema &schema);

const std::string &value_of(const Member &leaf);
const Branch &branch_of(const Member &container);
const Entries &entries_of(const Member &list);

// The same to write to.
Branch &own_branch(Member &container);
Entries &own_entries(Member &list);

// The value of a leaf of a branch, of one of its containers; null if it is not there.
const std::string *find_leaf(const Branch &branch, std::string_view tag);
const Branch *find_container(const Branch &branch, std::string_view tag);
const Entries *find_list(const Branch &branch, std::string_view tag);

// A list entry with those keys, and nothing else; a value of a leaf-list.
std::shared_ptr<Branch> make_entry(const Schema &schema, Entries::Keys keys);

// The keys of an entry; the value of a leaf-list.
std::vector<std::string> keys_of(const Branch &entry, const Schema &schema);

// The same data. The order of entries counts only where it is the user's.
bool are_equal(const Branch &a, const Branch &b);

}  // namespace router
