#include "parsed_path.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <unordered_set>

#include "names.h"

namespace platform {

namespace {

// Takes the first element off `rest`. False if it is not one.
bool next_element(std::string_view &rest, PathElement &element)
{
    const size_t end = rest.find('/');
    std::string_view name = rest.substr(0, end);
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
    if (end != std::string_view::npos && rest.empty()) return false;  // ends with "/"

    std::string_view key;
    if (const size_t bracket = name.find('['); bracket != std::string_view::npos) {
        if (!name.ends_with(']')) return false;
        key = name.substr(bracket + 1, name.size() - bracket - 2);
        name = name.substr(0, bracket);
        if (key.empty()) return false;
    }
    if (name.empty()) return false;
    element = {intern(name), key.empty() ? nullptr : intern(key)};
    return true;
}

ParsedPath parsed(const char *path)
{
    ParsedPath result{path};
    std::string_view rest = result.text;
    result.elements.reserve(1 + static_cast<size_t>(std::count(rest.begin(), rest.end(), '/')));
    if (rest.starts_with('/')) rest.remove_prefix(1);
    do {
        PathElement element;
        if (!next_element(rest, element)) return result;
        result.elements.push_back(element);
        result.has_key |= element.key != nullptr;
    } while (!rest.empty());
    result.is_path = true;
    return result;
}

// A path is looked for by its address first, since most are literals, and others are put together at one place: the
// last two of an address, since those differ by a family of addresses. Its text is compared all the same.
struct Slot {
    const ParsedPath *last;
    const ParsedPath *before;
};
thread_local constinit std::array<Slot, 1024> by_address = {};

bool holds(const ParsedPath *parsed, const char *path)
{
    return parsed != nullptr && std::strcmp(parsed->text.c_str(), path) == 0;
}

struct TextHash {
    using is_transparent = void;
    size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
    size_t operator()(const ParsedPath &path) const { return (*this)(std::string_view(path.text)); }
};
struct SameText {
    using is_transparent = void;
    bool operator()(const ParsedPath &a, const ParsedPath &b) const { return a.text == b.text; }
    bool operator()(const ParsedPath &a, std::string_view b) const { return a.text == b; }
    bool operator()(std::string_view a, const ParsedPath &b) const { return a == b.text; }
};

class Cache {
public:
    const ParsedPath &find(const char *path)
    {
        if (auto found = by_text_.find(std::string_view(path)); found != by_text_.end()) return *found;
        if (by_text_.size() >= limit) {
            by_text_.clear();
            by_address = {};
        }
        return *by_text_.insert(parsed(path)).first;
    }

private:
    // More than the mapping has: paths that a caller makes up do not pile up.
    static constexpr size_t limit = 4096;

    std::unordered_set<ParsedPath, TextHash, SameText> by_text_;  // stay where they are when more come
};

thread_local Cache cache;

}  // namespace

const ParsedPath &parse_path(const char *path)
{
    Slot &slot = by_address[reinterpret_cast<uintptr_t>(path) / 8 % by_address.size()];
    if (!holds(slot.last, path)) {
        const ParsedPath *other = holds(slot.before, path) ? slot.before : &cache.find(path);
        slot = {other, slot.last};
    }
    return *slot.last;
}

}  // namespace platform
