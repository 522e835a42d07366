#include "walk_recorder.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>

#include "nodes.h"
#include "operation_names.h"
#include "secrets.h"
#include "tree.h"
#include "walk_follower.h"

namespace framework {

namespace {

// ---- What is named --------------------------------------------------------------------------

struct FlagName {
    const char *name;
    uint32_t RequestContext::*word;
};

#define FLAG(name)                                                                                                     \
    {                                                                                                                  \
#name, &RequestContext::name                                                                                   \
    }
constexpr FlagName flags[] = {
    FLAG(global_as_named),       FLAG(multipath_named),
    FLAG(config_named),          FLAG(state_named),
    FLAG(oper_wanted),           FLAG(global_prefixes_wanted),
    FLAG(af_prefixes_wanted),    FLAG(global_paths_wanted),
    FLAG(af_paths_wanted),       FLAG(nbr_af_filter),
    FLAG(grp_af_filter),         FLAG(glb_af_filter),
    FLAG(glb_af_no_config),      FLAG(glb_af_no_state),
    FLAG(nbr_no_config),         FLAG(nbr_no_state),
    FLAG(nbr_af_no_config),      FLAG(nbr_af_no_state),
    FLAG(grp_no_config),         FLAG(grp_no_state),
    FLAG(grp_af_no_config),      FLAG(grp_af_no_state),
    FLAG(key_leaf_named),        FLAG(af_name_leaf_named),
    FLAG(nbr_af_bitmap),         FLAG(grp_af_bitmap),
    FLAG(glb_af_bitmap),         FLAG(confederation_state_named),
    FLAG(multipath_state_named), FLAG(af_multipath_state_named),
    FLAG(global_afisafis_named), FLAG(replace_scope),
    FLAG(replace_scope_owner),
};
#undef FLAG

struct NativeWalkers {
    std::string_view begin;  // of their names
    std::string_view ns;     // of what they walk
};
constexpr NativeWalkers native_walkers[] = {{"vmf_map_zr_bgp_cfg_bgp", ZR_BGP_CFG_NS},
                                            {"vmf_map_zr_bgp_oper_bgp", ZR_BGP_OPER_NS}};

bool is_oc_walker(std::string_view function)
{
    static const auto *const walkers = [] {
        auto *names = new std::vector<std::string_view>;
        for (const model::OcNode &node : model::openconfig_bgp()) names->push_back(node.walker);
        std::sort(names->begin(), names->end());
        return names;
    }();
    return std::binary_search(walkers->begin(), walkers->end(), function);
}

std::string_view namespace_of_walker(std::string_view function)
{
    for (const NativeWalkers &walkers : native_walkers)
        if (function.starts_with(walkers.begin)) return walkers.ns;
    return is_oc_walker(function) ? OC_BGP_NS : "";
}

bool is_walker(std::string_view function) { return !namespace_of_walker(function).empty(); }

// The keys of the models' lists, by the list's own tag: "neighbor" has the same one in all three.
struct ListKey {
    std::string_view list;
    std::string_view key;
};
constexpr ListKey list_keys[] = {
    {"neighbor", "neighbor-address"},
    {"peer-group", "peer-group-name"},
    {"afi-safi", "afi-safi-name"},
    {"instance", "instance-name"},
    {"neighbor-group", "neighbor-group-name"},
    {"neighbor-af", "af-name"},
    {"neighbor-group-af", "af-name"},
    {"global-af", "af-name"},
    {"af-data", "af-name"},
};

std::string_view text_or_empty(const char *text) { return text != nullptr ? text : ""; }

const Datatree *find_child(const Datatree &node, std::string_view tag)
{
    for (const Datatree &child : platform::children_of(node))
        if (text_or_empty(platform::tag_of(child)) == tag) return &child;
    return nullptr;
}

// "neighbor[neighbor-address='10.0.0.1']"
std::string name_of(const Datatree &node)
{
    const std::string_view tag = text_or_empty(platform::tag_of(node));
    std::string name(tag);
    for (const ListKey &known : list_keys) {
        if (known.list != tag) continue;
        const Datatree *key = find_child(node, known.key);
        if (key != nullptr && platform::value_of(*key) != nullptr)
            name += "[" + std::string(known.key) + "='" + platform::value_of(*key) + "']";
    }
    return name;
}

std::string_view last_element(std::string_view path)
{
    const size_t slash = path.rfind('/');
    return slash != std::string_view::npos ? path.substr(slash + 1) : path;
}

std::string_view element_before_last(std::string_view path)
{
    const size_t slash = path.rfind('/');
    return slash != std::string_view::npos ? last_element(path.substr(0, slash)) : std::string_view();
}

bool is_password(std::string_view path, std::string_view above)
{
    const std::string tag(last_element(path));
    const std::string before(element_before_last(path));
    return io::is_secret(tag.c_str(), before.empty() ? std::string(above).c_str() : before.c_str());
}

void set_operation(Step &step, const Datatree &node)
{
    if (platform::has_operation(node)) step.operation = io::name_of_operation(node.operation);
}

void set_value(Step &step, const char *value)
{
    step.has_value = value != nullptr;
    if (value != nullptr) step.value = value;
}

// ---- What is said ---------------------------------------------------------------------------

// Lines that say no more than the tree of steps does.
bool is_progress(std::string_view text)
{
    return text == "No subtrees" || text == "No mapping done for this node" || text.starts_with("Processing ") ||
           text.starts_with("Entering ") || text.starts_with("Exiting ");
}

// But for the namespace of a value, which belongs to the add before it.
bool adds(const platform::Operation &operation)
{
    const std::string_view name = operation.name;
    return name.starts_with("vmf_map_datatree_add_") && name != "vmf_map_datatree_add_data_ns";
}

}  // namespace

WalkRecorder::WalkRecorder(std::span<const Datatree> trees, const RequestContext &request)
    : trees_(trees), request_(request), seen_(request), observer_{before, this, after},
      outer_(platform::observe(&observer_))
{
}

WalkRecorder::~WalkRecorder() { platform::observe(outer_); }

Step &WalkRecorder::add_step(Step step)
{
    std::vector<Step> &steps = open_.empty() ? root_.steps : open_.back().step->steps;
    steps.push_back(std::move(step));
    return steps.back();
}

// What the function at hand has left in the request's record since the last look.
void WalkRecorder::note_request()
{
    for (const FlagName &flag : flags) {
        const uint32_t now = request_.*flag.word;
        if (now == seen_.*flag.word) continue;
        add_step({.kind = Step::Kind::flag, .name = flag.name, .value = std::to_string(now), .has_value = true});
    }
    if (request_.rejected_tag != seen_.rejected_tag && request_.rejected_tag != nullptr)
        add_step({.kind = Step::Kind::error, .name = "refused tag '" + std::string(request_.rejected_tag) + "'"});
    seen_ = request_;
}

// ---- The functions --------------------------------------------------------------------------

// A walker stands for the node that its caller has in hand; its first call is for the same node, but that of a list
// entry's walker, which is for the key. Any other function is called for the node of its caller.
const Datatree *WalkRecorder::node_of_start(std::string_view function, bool walks) const
{
    if (open_.empty()) {
        const std::string_view ns = namespace_of_walker(function);
        for (const Datatree &tree : trees_)
            if (text_or_empty(platform::namespace_of(tree)) == ns) return &tree;
        return nullptr;
    }
    const Frame &caller = open_.back();
    if (!caller.walks || caller.node == nullptr) return caller.node;
    const auto children = platform::children_of(*caller.node);
    if (caller.child >= 0)
        return static_cast<size_t>(caller.child) < children.size() ? &children[static_cast<size_t>(caller.child)]
                                                                   : nullptr;
    if (!walks || !is_oc_walker(function)) return caller.node;
    for (const ListKey &known : list_keys)
        if (known.list == text_or_empty(platform::tag_of(*caller.node))) return find_child(*caller.node, known.key);
    return caller.node;
}

void WalkRecorder::start(std::string_view function)
{
    const bool walks = is_walker(function);
    const Datatree *node = node_of_start(function, walks);
    Step step = {.kind = Step::Kind::function, .name = std::string(function), .walks = walks, .at = node};
    if (node != nullptr) {
        const Frame *caller = open_.empty() ? nullptr : &open_.back();
        step.node = name_of(*node);
        set_value(step, platform::value_of(*node));
        set_operation(step, *node);
        const bool has_parent = caller != nullptr && caller->node != nullptr;
        step.is_secret = io::is_secret(platform::tag_of(*node), has_parent ? platform::tag_of(*caller->node) : nullptr);
    }
    Step &added = add_step(std::move(step));
    open_.push_back({&added, node, walks});
}

// A function that was handed bad arguments returns without saying so.
void WalkRecorder::leave_to(std::string_view function)
{
    const auto found =
        std::find_if(open_.rbegin(), open_.rend(), [&](const Frame &frame) { return frame.step->name == function; });
    if (found != open_.rend()) open_.erase(found.base(), open_.end());
}

void WalkRecorder::follow(std::string_view line)
{
    const TraceLine said = read_trace_line(line);
    if (said.level.empty()) return;
    adding_ = nullptr;
    if (said.text == "Start") {
        note_request();
        start(said.function);
        return;
    }
    leave_to(said.function);
    note_request();
    if (said.text == "End") {
        const bool is_open = !open_.empty() && open_.back().step->name == said.function;
        if (is_open) open_.pop_back();
    } else if (said.text.starts_with("Processing tag '") && !open_.empty() && open_.back().walks) {
        open_.back().child++;
    } else if (said.level == "ERR") {
        add_step({.kind = Step::Kind::error, .name = std::string(said.text)});
    } else if (!is_progress(said.text)) {
        add_step({.kind = Step::Kind::remark, .name = std::string(said.text)});
    }
}

Step WalkRecorder::take()
{
    open_.clear();
    note_request();
    return std::exchange(root_, {.kind = Step::Kind::function, .name = ""});
}

// ---- The operations -------------------------------------------------------------------------

uint32_t WalkRecorder::before(void *self, const platform::Operation &operation)
{
    auto &recorder = *static_cast<WalkRecorder *>(self);
    const std::string_view path = text_or_empty(operation.path);
    if (std::string_view(operation.name) == "sysdb_backend_find_data") {
        recorder.note_request();
        recorder.add_step({.kind = Step::Kind::query, .name = std::string(path)});
    }
    if (adds(operation)) {
        recorder.note_request();
        const bool has_parent = operation.parent != nullptr && platform::tag_of(*operation.parent) != nullptr;
        const std::string from = has_parent && !path.starts_with('/') ? name_of(*operation.parent) + "/" : "";
        Step step = {.kind = Step::Kind::add, .name = from + std::string(path), .failed = true};
        set_value(step, operation.value);
        step.is_secret = is_password(path, has_parent ? text_or_empty(platform::tag_of(*operation.parent)) : "");
        if (operation.operation_source != nullptr) set_operation(step, *operation.operation_source);
        recorder.adding_ = &recorder.add_step(std::move(step));
    }
    const platform::Observer *outer = recorder.outer_;
    return outer != nullptr ? outer->before(outer->self, operation) : 0;
}

void WalkRecorder::after(void *self, const platform::Operation &operation, const Datatree &result)
{
    auto &recorder = *static_cast<WalkRecorder *>(self);
    if (recorder.adding_ != nullptr) recorder.adding_->failed = false;
    recorder.adding_ = nullptr;
    const platform::Observer *outer = recorder.outer_;
    if (outer != nullptr && outer->after != nullptr) outer->after(outer->self, operation, result);
}

}  // namespace framework
