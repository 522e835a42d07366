#include "run.h"

#include <algorithm>
#include <cstring>
#include <span>

#include "edit_notes.h"
#include "native_path.h"
#include "observer.h"
#include "request.h"
#include "vmf_map_platform.h"
#include "walk_follower.h"

namespace explain {

namespace {

// Where a node stands in a tree, by the positions of its ancestors. Children are added behind the others, so it holds
// when the array of children moves.
using Position = std::vector<size_t>;

bool find_position(const Datatree &root, const Datatree &node, Position &position)
{
    const std::span<Datatree> children = platform::children_of(root);
    for (size_t i = 0; i < children.size(); i++) {
        position.push_back(i);
        if (&children[i] == &node || find_position(children[i], node, position)) return true;
        position.pop_back();
    }
    return false;
}

// Notes which native nodes were added while the walk stood at a target: a leaf's container may do its work, and a
// list's key does.
class AddWatch {
public:
    AddWatch(const Target &target, const Datatree &native, const framework::WalkFollower &follower)
        : native_(native), follower_(follower), observer_{before, this, after}, outer_(platform::observe(&observer_))
    {
        places_.push_back(target.path());
        Target place = target;
        const std::string_view path = target.node->path;
        if (is_leaf(*target.node)) {
            place.node = model::find_oc_node(path.substr(0, path.rfind('/')));
            places_.push_back(place.path());
        } else if (target.node->kind == model::Kind::list) {
            place.node = model::find_oc_node(std::string(path).append("/").append(target.node->key));
            places_.push_back(place.path());
        }
    }
    ~AddWatch() { platform::observe(outer_); }
    AddWatch(const AddWatch &) = delete;
    AddWatch &operator=(const AddWatch &) = delete;

    // In the order of their making, none twice.
    const std::vector<Position> &added() const { return added_; }

    // The levels that every path hangs from, if the target asked for nothing else.
    const Position &level() const { return level_; }

private:
    static uint32_t before(void * /*self*/, const platform::Operation & /*operation*/) { return 0; }

    static void after(void *self, const platform::Operation &operation, const Datatree &result)
    {
        static_cast<AddWatch *>(self)->note(operation, result);
    }

    void note(const platform::Operation &operation, const Datatree &result)
    {
        const std::string at_hand = follower_.path_at_hand();
        if (std::find(places_.begin(), places_.end(), at_hand) == places_.end()) return;
        Position position;
        if (!find_position(native_, result, position)) return;
        const bool is_level = std::strcmp(operation.name, "vmf_map_datatree_add_subtree") == 0;
        if (is_level && platform::value_of(result) == nullptr) level_ = position;
        if (!is_level && std::find(added_.begin(), added_.end(), position) == added_.end()) added_.push_back(position);
    }

    const Datatree &native_;
    const framework::WalkFollower &follower_;
    std::vector<std::string> places_;
    std::vector<Position> added_;
    Position level_;
    platform::Observer observer_;
    const platform::Observer *outer_;
};

// ---- Reading the native trees ---------------------------------------------------------------

struct Found {
    NativeNode node;
    Position position;
    bool is_selected;
};

std::vector<std::string> keys_of(const Datatree &entry, const router::Schema &list)
{
    std::vector<std::string> keys;
    for (size_t i = 0; i < list.key_count; i++)
        for (const Datatree &child : platform::children_of(entry))
            if (std::strcmp(platform::tag_of(child), list.children[i].tag) == 0 && platform::value_of(child) != nullptr)
                keys.emplace_back(platform::value_of(child));
    if (keys.size() < list.key_count) keys.clear();
    return keys;
}

// Null for a node that no native model has.
const router::Schema *find_schema(const Datatree &node, const router::Schema *parent)
{
    if (parent == nullptr) parent = router::models().find_root(platform::namespace_of(node));
    return parent != nullptr ? parent->find_child(platform::tag_of(node), platform::namespace_of(node)) : nullptr;
}

Found find_node(const Datatree &root, const Position &position)
{
    Found found = {{"", nullptr}, position, false};
    const Datatree *node = &root;
    for (const size_t at : position) {
        node = &platform::children_of(*node)[at];
        const router::Schema *schema = find_schema(*node, found.node.schema);
        if (schema == nullptr)
            throw std::runtime_error(found.node.path + "/" + platform::tag_of(*node) + ": not in the native model");
        found.node.schema = schema;
        const bool is_list = schema->kind == router::Schema::Kind::list;
        router::append_element(found.node.path, *schema,
                               is_list ? keys_of(*node, *schema) : std::vector<std::string>());
    }
    if (const char *value = platform::value_of(*node)) found.node.value = value;
    if (platform::has_operation(*node)) found.node.operation = node->operation;
    found.is_selected = platform::is_selected(*node);
    return found;
}

void collect_operations(const Datatree &node, Position &position, std::vector<Position> &positions)
{
    if (platform::has_operation(node) && std::find(positions.begin(), positions.end(), position) == positions.end())
        positions.push_back(position);
    const std::span<Datatree> children = platform::children_of(node);
    for (size_t i = 0; i < children.size(); i++) {
        position.push_back(i);
        collect_operations(children[i], position, positions);
        position.pop_back();
    }
}

bool starts_with(const Position &position, const Position &start)
{
    return position.size() > start.size() && std::equal(start.begin(), start.end(), position.begin());
}

// The AS levels have keys that are leaves of their own right: the AS number.
bool is_as_level(const router::Schema &schema)
{
    const std::string_view tag = schema.tag;
    return tag == "instance-as" || tag == "four-byte-as";
}

// The key of an entry stands in the entry's path.
bool is_said_by_entry(const Found &found, const std::vector<Found> &all)
{
    if (!found.node.schema->is_key || is_as_level(*parent_of(*found.node.schema))) return false;
    const Position entry(found.position.begin(), found.position.end() - 1);
    return std::any_of(all.begin(), all.end(), [&](const Found &other) {
        return other.position == entry || (starts_with(other.position, entry) && !other.node.schema->is_key);
    });
}

// A container or entry that only leads to others.
bool is_on_the_way(const Found &found, const std::vector<Found> &all)
{
    if (found.node.operation || found.is_selected) return false;
    return std::any_of(all.begin(), all.end(),
                       [&](const Found &other) { return starts_with(other.position, found.position); });
}

std::vector<NativeNode> nodes_of(const Datatree &native, const AddWatch &watch)
{
    std::vector<Position> positions = watch.added();
    Position at;
    collect_operations(native, at, positions);
    if (positions.empty() && !watch.level().empty()) positions.push_back(watch.level());
    std::vector<Found> all;
    all.reserve(positions.size());
    for (const Position &position : positions) all.push_back(find_node(native, position));
    std::erase_if(all, [copy = all](const Found &found) { return is_said_by_entry(found, copy); });
    std::erase_if(all, [copy = all](const Found &found) { return is_on_the_way(found, copy); });
    std::vector<NativeNode> nodes;
    for (Found &found : all)
        if (std::find(nodes.begin(), nodes.end(), found.node) == nodes.end()) nodes.push_back(std::move(found.node));
    return nodes;
}

// The target's own path is not said again.
std::vector<std::string> notes_about(const std::string &path, const Datatree &bgp)
{
    std::vector<std::string> notes;
    for (const std::string &line : framework::edit_notes(bgp))
        notes.push_back(line.starts_with(path + ": ") ? line.substr(path.size() + 2) : line);
    return notes;
}

}  // namespace

Run run_request(const Target &target, const Saying &saying, const MadeRouter &router)
{
    Run run;
    const io::Document as_written = make_request(target, saying);
    io::Document document = make_request(target, saying);
    framework::WalkFollower follower(as_written.bgp.root());
    platform::TraceBuffer trace(0);
    trace.listener = [&follower](std::string_view line) { follower.follow(line); };
    platform::Log log;
    log.trace = &trace;
    framework::Request request(saying.kind, router.database(), log);
    {
        const AddWatch watch(target, run.tree.root(), follower);
        run.outcome = request.map(document.bgp.root(), run.tree.root());
        run.native = nodes_of(run.tree.root(), watch);
    }
    if (run.outcome != VMF_RC_OK) {
        run.reason = follower.reason().empty() ? cerr_strerror(run.outcome) : follower.reason();
        const char *tag = request.context().rejected_tag;
        run.refused_tag = tag != nullptr ? tag : "";
    } else if (saying.kind == VMF_REQ_EDIT) {
        run.notes = notes_about(target.path(), as_written.bgp.root());
    }
    return run;
}

}  // namespace explain
