#include "parsed_path.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <unordered_map>

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

class Cache {
public:
    const ParsedPath &find(const char *path)
    {
        if (auto found = by_text_.find(path); found != by_text_.end()) return *found->second;
        if (by_text_.size() >= limit) {
            by_text_.clear();
            by_address = {};
        }
        auto fresh = std::make_unique<ParsedPath>(parsed(path));
        const std::string_view text = fresh->text;
        return *by_text_.emplace(text, std::move(fresh)).first->second;
    }

private:
    // More than the mapping has: paths that a caller makes up do not pile up.
    static constexpr size_t limit = 4096;

    std::unordered_map<std::string_view, std::unique_ptr<ParsedPath>> by_text_ = {};
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
