#include "effects.h"

#include <algorithm>
#include <map>

#include "router.h"

namespace explain {

namespace {

using Values = std::vector<std::string>;

// The leaves of a router, each read when it is asked for.
class View {
public:
    View(const Target &target, std::unique_ptr<MadeRouter> router) : target_(target), router_(std::move(router)) {}

    const Values &values(std::string_view path)
    {
        const auto found = values_.find(path);
        if (found != values_.end()) return found->second;
        return values_[path] = values_of(make_target(path, keys_for(path)), *router_);
    }

    MadeRouter &router() { return *router_; }

private:
    // Those of the target's keys whose lists lie on the way.
    std::vector<Key> keys_for(std::string_view path) const
    {
        std::vector<Key> keys;
        for (const Key &key : target_.keys)
            if (path.starts_with(std::string(key.list->path) + "/")) keys.push_back(key);
        return keys;
    }

    const Target &target_;
    std::unique_ptr<MadeRouter> router_;
    std::map<std::string_view, Values> values_;
};

bool lies_below(std::string_view path, std::string_view top)
{
    return path == top || (path.starts_with(top) && path[top.size()] == '/');
}

// The key of an entry comes back as long as anything of the entry does.
bool is_config_leaf(const model::OcNode &node) { return node.config && is_leaf(node) && list_of_key(node) == nullptr; }

// Leaves that are read from a native node that the edit names, or from one below it.
std::set<std::string_view> leaves_touched(const Target &target, const Request &request)
{
    std::set<std::string_view> leaves;
    for (const model::OcNode &node : model::openconfig_bgp()) {
        if (!is_config_leaf(node) || lies_below(node.path, target.node->path)) continue;
        for (const std::string &feeder : feeds().feeders(node))
            for (const NativeNode &native : request.native)
                if (lies_below(feeder, path_of(*native.schema))) leaves.insert(node.path);
    }
    return leaves;
}

// The child of the nearest node above both on the way to `path`.
std::string_view branch_beside(std::string_view path, std::string_view target)
{
    size_t common = 0;
    for (size_t i = 0; i < path.size() && i < target.size() && path[i] == target[i]; i++)
        if (path[i] == '/') common = i;
    return path.substr(0, path.find('/', common + 1));
}

// The subtree, if all that it had is gone; else the leaf.
std::string_view widest_gone(std::string_view path, const Target &target, View &before, View &after)
{
    const std::string_view branch = branch_beside(path, target.node->path);
    for (const model::OcNode &node : model::openconfig_bgp()) {
        if (!is_config_leaf(node) || !lies_below(node.path, branch)) continue;
        if (!before.values(node.path).empty() && !after.values(node.path).empty()) return path;
    }
    return branch;
}

void compare(const Target &target, const Request &request, View before, View after, Effects &effects)
{
    const Run run = run_request(target, saying_of(request.kind, request.value), before.router());
    if (run.outcome != VMF_RC_OK) return;
    try {
        after.router().edit(run.tree.root());
    } catch (const router::Refused &) {
        return;
    }
    for (const std::string_view path : leaves_touched(target, request)) {
        const Values &was = before.values(path);
        const Values &is = after.values(path);
        if (was == is) continue;
        if (is.empty())
            effects.gone.emplace(widest_gone(path, target, before, after));
        else
            effects.written.insert(std::string(path) + " as \"" + is.front() + "\"");
    }
}

}  // namespace

Effects effects_of(const Target &target, const Request &request)
{
    Effects effects;
    if (request.kind != Kind::remove) {
        const auto bare = [&target] { return std::make_unique<MadeRouter>(entry_keys(target)); };
        compare(target, request, {target, bare()}, {target, bare()}, effects);
        return effects;
    }
    for (const Filled filled : {Filled::with_first_values, Filled::with_last_values})
        compare(target, request, {target, configured_router(target, filled)},
                {target, configured_router(target, filled)}, effects);
    return effects;
}

}  // namespace explain
