#include "walk_follower.h"

#include <unordered_map>

#include "nodes.h"
#include "tree.h"

namespace framework {

namespace {

const model::OcNode *node_of_walker(std::string_view function)
{
    static const auto *const walkers = [] {
        auto *nodes = new std::unordered_map<std::string_view, const model::OcNode *>;
        for (const model::OcNode &node : model::openconfig_bgp()) nodes->emplace(node.walker, &node);
        return nodes;
    }();
    auto found = walkers->find(function);
    return found != walkers->end() ? found->second : nullptr;
}

std::string_view tag_text(const Datatree &node)
{
    const char *tag = platform::tag_of(node);
    return tag != nullptr ? tag : "";
}

const Datatree *child_with_tag(const Datatree &parent, std::string_view tag)
{
    for (const Datatree &child : platform::children_of(parent))
        if (tag_text(child) == tag) return &child;
    return nullptr;
}

std::string quoted(std::string_view value)
{
    const char quote = value.find('\'') == std::string_view::npos ? '\'' : '"';
    return quote + std::string(value) + quote;
}

// Which of its parent's entries, for an entry that no key tells apart: "[2]".
std::string position_of(const Datatree &entry, const Datatree &parent)
{
    size_t position = 1;
    for (const Datatree &child : platform::children_of(parent)) {
        if (&child == &entry) break;
        if (tag_text(child) == tag_text(entry)) position++;
    }
    return "[" + std::to_string(position) + "]";
}

}  // namespace

TraceLine read_trace_line(std::string_view line)
{
    if (!line.starts_with('#')) return {};
    const size_t level = line.find(": ");
    const size_t function = line.find(": ", level + 2);
    const size_t number = line.find(':', function + 2);
    const size_t text = line.find(',', number);
    constexpr size_t none = std::string_view::npos;
    if (level == none || function == none || number == none || text == none) return {};
    return {line.substr(level + 2, function - level - 2), line.substr(function + 2, number - function - 2),
            line.substr(text + 1)};
}

WalkFollower::Frame *WalkFollower::walker()
{
    for (size_t i = open_.size(); i-- > 0;)
        if (open_[i].node != nullptr) return &open_[i];
    return nullptr;
}

// The node that a walker which starts now stands for. A list entry's key is walked before any other child.
const Datatree *WalkFollower::next_node()
{
    Frame *parent = walker();
    if (parent == nullptr) return &bgp_;
    if (parent->child >= 0) {
        parent->child_entered = true;
        return &platform::children_of(*parent->node)[static_cast<size_t>(parent->child)];
    }
    const model::OcNode *list = node_of_walker(parent->function);
    return list != nullptr ? child_with_tag(*parent->node, list->key) : nullptr;
}

void WalkFollower::start(std::string_view function)
{
    const bool walks = node_of_walker(function) != nullptr;
    const Datatree *node = walks ? next_node() : nullptr;
    open_.push_back({std::string(function), node, -1, false});
}

void WalkFollower::end(std::string_view function)
{
    if (!returning_) at_end_ = open_;
    // A function that was handed bad arguments returns without saying so.
    while (!open_.empty() && open_.back().function != function) open_.pop_back();
    if (!open_.empty()) open_.pop_back();
}

void WalkFollower::follow(std::string_view line)
{
    const TraceLine said = read_trace_line(line);
    if (said.level.empty()) return;
    if (said.text == "End") {
        end(said.function);
        returning_ = true;
        return;
    }
    returning_ = false;
    reason_ = said.level == "ERR" ? said.text : "";
    if (said.text == "Start") {
        start(said.function);
    } else if (said.text.starts_with("Processing tag '") && !open_.empty() && open_.back().node != nullptr) {
        open_.back().child++;
        open_.back().child_entered = false;
    }
}

std::string WalkFollower::path_to(const std::vector<Frame> &frames)
{
    std::string path;
    const Datatree *parent = nullptr;
    const auto append = [&](const Datatree &node, std::string_view key) {
        path += "/" + std::string(tag_text(node));
        if (!key.empty()) {
            const Datatree *key_node = child_with_tag(node, key);
            const char *value = key_node != nullptr ? platform::value_of(*key_node) : nullptr;
            if (value != nullptr)
                path += "[" + std::string(key) + "=" + quoted(value) + "]";
            else if (parent != nullptr)
                path += position_of(node, *parent);
        }
        parent = &node;
    };
    const Frame *last = nullptr;
    for (const Frame &frame : frames) {
        if (frame.node == nullptr) continue;
        const model::OcNode *node = node_of_walker(frame.function);
        append(*frame.node, node != nullptr ? node->key : "");
        last = &frame;
    }
    if (last != nullptr && last->child >= 0 && !last->child_entered)
        append(platform::children_of(*last->node)[static_cast<size_t>(last->child)], "");
    return path;
}

}  // namespace framework
