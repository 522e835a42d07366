// Finds a child in a large array: by its tag, or an entry of a list by its key. A small array is searched from its
// start and has no index. An index is only a hint where to look: what it names is compared before it is believed.
//
// An index follows an array that grows at its end, and begins anew with one that has become shorter. It finds entries
// whose key came later than they did; those that have no key value yet are looked at again by each search of their
// list. It does not see that a tag, a namespace or a key has changed, or that children have changed places.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

#include "vmf_map_types.h"

namespace platform {

// Names are compared as pointers first; the caller gives them as the table of names holds them.
struct ChildName {
    const char *tag;
    const char *ns;  // null: any namespace
};

inline bool same_text(const char *a, const char *b)
{
    if (a == b) return true;
    return a != nullptr && b != nullptr && *a == *b && std::strcmp(a, b) == 0;
}

inline bool has_name(const Datatree &node, ChildName name)
{
    if ((node.present[0] & VMF_DT_TAG) == 0 || !same_text(node.tag, name.tag)) return false;
    return name.ns == nullptr || ((node.present[0] & VMF_DT_NAMESPACE) != 0 && same_text(node.namespace_, name.ns));
}

// The value of the child `key_tag` of an entry; null if there is none, or if it has no value.
const char *key_value_of(const Datatree &entry, const char *key_tag);

// A set of positions in an array, found by a hash of what stands there. Open addressing; nothing is ever taken out.
class PositionSet {
public:
    // The first position that `same` holds for; -1 if there is none.
    template<class Same>
    int32_t find(uint64_t hash, Same same) const;

    // Takes a position in, unless one before it is there that `same` holds for. So a hash has few positions, however
    // many children are alike.
    template<class Same>
    void insert_first(uint64_t hash, int32_t position, Same same);

private:
    void insert(uint64_t hash, int32_t position);

    struct Slot {
        uint64_t hash;
        int32_t position;
    };
    static constexpr Slot empty = {0, -1};
    std::vector<Slot> slots_;
    size_t used_ = 0;
};

class ArrayIndex {
public:
    // The array has that many children, and is about to be searched or to get `added` more.
    void follow(int32_t count, int32_t added = 0);

    // The first child of that name; -1 if there is none.
    int32_t find_by_name(const Datatree *children, int32_t count, ChildName name);

    // The first entry of that list whose key has that value (null: whose key has none); -1 if there is none.
    int32_t find_by_key(const Datatree *children, int32_t count, ChildName list, const char *key_tag,
                        const char *key_value);

private:
    struct KeyedList {
        ChildName name;
        const char *key_tag;
        int32_t scanned = 0;
        PositionSet by_value;
        std::vector<int32_t> without_value;  // entries that had no key value when they were scanned
    };

    int32_t count_ = 0;
    PositionSet names_;
    int32_t scanned_ = 0;
    std::vector<KeyedList> lists_;
};

// From this number of children on an array has an index.
constexpr int32_t indexed_from = 32;

}  // namespace platform
