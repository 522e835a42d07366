#include "names.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <mutex>
#include <shared_mutex>

namespace platform {

namespace {

struct Table {
    std::shared_mutex mutex;
    std::deque<std::string> texts;
    std::unordered_set<std::string_view> known;
};

Table &table()
{
    static Table *const the_table = new Table;  // never destroyed: trees may be released later than statics are
    return *the_table;
}

}  // namespace

const char *intern(std::string_view text)
{
    if (const char *known = find_interned(text)) return known;
    Table &names = table();
    std::unique_lock lock(names.mutex);
    auto found = names.known.find(text);
    if (found == names.known.end()) found = names.known.insert(names.texts.emplace_back(text)).first;
    return found->data();
}

// Most names are literals, so that a name is looked for by its address first; its text is compared all the same.
const char *intern(const char *text)
{
    thread_local std::array<const char *, 512> by_address = {};
    if (text == nullptr) return nullptr;
    const char *&slot = by_address[reinterpret_cast<uintptr_t>(text) / 8 % by_address.size()];
    if (slot == nullptr || std::strcmp(slot, text) != 0) slot = intern(std::string_view(text));
    return slot;
}

const char *find_interned(std::string_view text)
{
    Table &names = table();
    std::shared_lock lock(names.mutex);
    auto found = names.known.find(text);
    return found != names.known.end() ? found->data() : nullptr;
}

const char *NameTable::hold(std::string_view text)
{
    if (const char *known = find_interned(text)) return known;
    auto found = known_.find(text);
    if (found == known_.end()) found = known_.insert(texts_.emplace_back(text)).first;
    return found->data();
}

}  // namespace platform
