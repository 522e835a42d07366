#include "array_index.h"

#include <cstring>
#include <functional>
#include <string_view>

namespace platform {

namespace {

bool has(const Datatree &node, uint8_t bit) { return (node.present[0] & bit) != 0; }

uint64_t hash_of(const char *text) { return std::hash<std::string_view>{}(text); }

}  // namespace

const char *key_value_of(const Datatree &entry, const char *key_tag)
{
    if (!has(entry, VMF_DT_SUBTREES)) return nullptr;
    for (int32_t i = 0; i < entry.subtree_count; i++) {
        const Datatree &child = entry.subtrees[i];
        if (has(child, VMF_DT_TAG) && same_text(child.tag, key_tag))
            return has(child, VMF_DT_VALUE) ? child.value : nullptr;
    }
    return nullptr;
}

// ---- PositionSet ----------------------------------------------------------------------------

template<class Same>
int32_t PositionSet::find(uint64_t hash, Same same) const
{
    if (slots_.empty()) return -1;
    const size_t mask = slots_.size() - 1;
    int32_t first = -1;
    for (size_t i = hash & mask; slots_[i].position >= 0; i = (i + 1) & mask) {
        const Slot &slot = slots_[i];
        if (slot.hash == hash && (first < 0 || slot.position < first) && same(slot.position)) first = slot.position;
    }
    return first;
}

template<class Same>
void PositionSet::insert_first(uint64_t hash, int32_t position, Same same)
{
    const int32_t known = find(hash, same);
    if (known < 0 || position < known) insert(hash, position);
}

void PositionSet::insert(uint64_t hash, int32_t position)
{
    if (slots_.size() <= used_ * 2) {
        std::vector<Slot> old(slots_.empty() ? 64 : slots_.size() * 2, empty);
        old.swap(slots_);
        used_ = 0;
        for (const Slot &slot : old)
            if (slot.position >= 0) insert(slot.hash, slot.position);
    }
    const size_t mask = slots_.size() - 1;
    size_t i = hash & mask;
    while (slots_[i].position >= 0) i = (i + 1) & mask;
    slots_[i] = {hash, position};
    used_++;
}

// ---- ArrayIndex -----------------------------------------------------------------------------

void ArrayIndex::follow(int32_t count, int32_t added)
{
    if (count < count_) *this = ArrayIndex();
    count_ = count + added;
}

int32_t ArrayIndex::find_by_name(const Datatree *children, int32_t count, ChildName name)
{
    follow(count);
    const auto ns_of = [](const Datatree &child) { return has(child, VMF_DT_NAMESPACE) ? child.namespace_ : nullptr; };
    for (; scanned_ < count; scanned_++) {
        const Datatree &child = children[scanned_];
        if (!has(child, VMF_DT_TAG) || child.tag == nullptr) continue;
        names_.insert_first(hash_of(child.tag), scanned_, [&](int32_t position) {
            const Datatree &other = children[position];
            return has_name(other, {child.tag, nullptr}) && same_text(ns_of(other), ns_of(child));
        });
    }
    return names_.find(hash_of(name.tag), [&](int32_t position) { return has_name(children[position], name); });
}

int32_t ArrayIndex::find_by_key(const Datatree *children, int32_t count, ChildName list, const char *key_tag,
                                const char *key_value)
{
    follow(count);
    KeyedList *keyed = nullptr;
    for (KeyedList &known : lists_) {
        if (same_text(known.name.tag, list.tag) && same_text(known.name.ns, list.ns) &&
            same_text(known.key_tag, key_tag))
            keyed = &known;
    }
    if (keyed == nullptr) keyed = &lists_.emplace_back(KeyedList{list, key_tag, 0, {}, {}});

    const auto has_value = [&](const char *value) {
        return [&, value](int32_t position) {
            return has_name(children[position], list) && same_text(key_value_of(children[position], key_tag), value);
        };
    };
    const auto take_in = [&](int32_t position) {
        const char *value = key_value_of(children[position], key_tag);
        if (value != nullptr) keyed->by_value.insert_first(hash_of(value), position, has_value(value));
        return value != nullptr;
    };
    std::erase_if(keyed->without_value, take_in);
    for (; keyed->scanned < count; keyed->scanned++) {
        if (has_name(children[keyed->scanned], list) && !take_in(keyed->scanned))
            keyed->without_value.push_back(keyed->scanned);
    }

    if (key_value == nullptr) return keyed->without_value.empty() ? -1 : keyed->without_value.front();
    return keyed->by_value.find(hash_of(key_value), has_value(key_value));
}

}  // namespace platform
