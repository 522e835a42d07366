#include "origins.h"

#include <cstring>

namespace framework {

namespace {

// The path without its keys.
std::string schema_path(const std::string &path)
{
    std::string schema;
    char quote = '\0';
    bool in_key = false;
    for (const char c : path) {
        if (in_key && quote != '\0') {
            if (c == quote) quote = '\0';
        } else if (in_key) {
            if (c == '\'' || c == '"') quote = c;
            if (c == ']') in_key = false;
        } else if (c == '[') {
            in_key = true;
        } else {
            schema += c;
        }
    }
    return schema;
}

// The values of the keys of a path, in quotes as they stand.
std::vector<std::string> keys_of(const std::string &path)
{
    std::vector<std::string> keys;
    for (size_t at = path.find('='); at != std::string::npos; at = path.find('=', at + 1)) {
        if (at + 1 >= path.size()) break;
        const size_t end = path.find(path[at + 1], at + 2);
        if (end == std::string::npos) break;
        keys.push_back(path.substr(at + 2, end - at - 2));
        at = end;
    }
    return keys;
}

bool ends_with_element(const std::string &path, const std::string &end)
{
    return path == end || (path.ends_with(end) && path[path.size() - end.size() - 1] == '/');
}

// A node of one entry does not come from the request for another.
bool fits_keys(const std::string &client_path, const std::vector<std::string> &native_keys)
{
    for (const std::string &key : keys_of(client_path)) {
        if (key.find('_') != std::string::npos) continue;  // a family, which has another name natively
        bool found = false;
        for (const std::string &native : native_keys) found = found || native == key;
        if (!found) return false;
    }
    return true;
}

// Whether `native_path`, absolute or from an entry, leads to a node below the one at `path`.
bool leads_below(const std::string &native_path, const std::string &path)
{
    for (size_t end = native_path.rfind('/'); end != std::string::npos && end > 0;
         end = native_path.rfind('/', end - 1))
        if (ends_with_element(path, native_path.substr(0, end))) return true;
    return false;
}

// The levels that every request names, whatever it asks for.
bool is_above_all(const std::string &path) { return path.find("/default-vrf") == std::string::npos; }

}  // namespace

const Origins::Origin *Origins::find_up(std::string path, const std::vector<std::string> &keys) const
{
    for (; path.size() > 1; path.resize(path.rfind('/'))) {
        const Origin *best = nullptr;
        for (const Origin &origin : origins_) {
            if (!ends_with_element(path, origin.native_path) || !fits_keys(origin.client_path, keys)) continue;
            if (best == nullptr || origin.native_path.size() >= best->native_path.size()) best = &origin;
        }
        if (best != nullptr) return best;
    }
    return nullptr;
}

const Origins::Origin *Origins::find_below(const std::string &path, const std::vector<std::string> &keys) const
{
    for (const Origin &origin : origins_)
        if (leads_below(origin.native_path, path) && fits_keys(origin.client_path, keys)) return &origin;
    return nullptr;
}

void Origins::note(std::string native_path, std::string client_path)
{
    if (native_path.starts_with('/')) native_path.erase(0, 1);
    origins_.push_back({std::move(native_path), std::move(client_path)});
}

std::string Origins::find(const std::string &native_path) const
{
    const std::vector<std::string> keys = keys_of(native_path);
    const std::string path = schema_path(native_path);
    const Origin *origin = find_up(path, keys);
    if (origin == nullptr) origin = find_below(path, keys);
    if (origin == nullptr && is_above_all(path) && !origins_.empty()) origin = &origins_.front();
    return origin != nullptr ? origin->client_path : "";
}

OriginWatch::OriginWatch(Origins &origins, const WalkFollower &follower)
    : origins_(origins), follower_(follower), observer_{before, this}, outer_(platform::observe(&observer_))
{
}

OriginWatch::~OriginWatch() { platform::observe(outer_); }

uint32_t OriginWatch::before(void *self, const platform::Operation &operation)
{
    auto &watch = *static_cast<OriginWatch *>(self);
    const bool adds =
        std::strncmp(operation.name, "vmf_map_datatree_add_path", sizeof "vmf_map_datatree_add_path" - 1) == 0;
    if (adds && operation.path != nullptr) watch.origins_.note(operation.path, watch.follower_.path_at_hand());
    return watch.outer_ != nullptr ? watch.outer_->before(watch.outer_->self, operation) : 0;
}

}  // namespace framework
