#include "recorder.h"

#include <dlfcn.h>

#include "tree.h"
#include "vmf_map_oc_bgp.h"

namespace support {

namespace {

thread_local Recorder *recording = nullptr;

uint32_t before_operation(void *self, const platform::Operation &operation)
{
    auto *recorder = static_cast<Recorder *>(self);
    if (uint32_t failed = recorder->hear(operation)) return failed;
    const std::string name = operation.name;
    if (recorder->is_inside() || !name.starts_with("vmf_map_datatree_add_")) return 0;
    return recorder->note({name.substr(sizeof "vmf_map_datatree_" - 1) == "add_path" ? "direct" : operation.name,
                           operation.parent, operation.path, operation.ns, operation.value, operation.operation_source,
                           operation.repeat});
}

void after_operation(void *self, const platform::Operation &operation, const Datatree &result)
{
    auto *recorder = static_cast<Recorder *>(self);
    if (!recorder->is_inside() && std::string(operation.name).starts_with("vmf_map_datatree_add_"))
        recorder->note_result(&result);
}

// Native paths as the mapping table writes them.
std::string shortened(const std::string &path)
{
    for (const std::string prefix : {"/bgp/instance/instance-as/four-byte-as/default-vrf/", "/bgp/instance/"})
        if (path.starts_with(prefix)) return path.substr(prefix.size());
    return path;
}

}  // namespace

Recorder::Recorder(const MapContext *ctx, const Datatree *node, const Datatree *out) : ctx_(ctx), node_(node), out_(out)
{
    static thread_local platform::Observer observer;
    observer = {before_operation, this, after_operation};
    platform::observe(&observer);
    recording = this;
}

Recorder::~Recorder()
{
    platform::observe(nullptr);
    recording = nullptr;
}

Recorder *Recorder::current() { return recording; }

void Recorder::fail(size_t number, uint32_t outcome)
{
    failing_ = number;
    outcome_ = outcome;
}

void Recorder::enter(const char *path) { inside_ = shortened(path != nullptr ? path : "(null)"); }

uint32_t Recorder::hear(const platform::Operation &operation) const
{
    if (!on_operation) return 0;
    std::string said = inside_ + " > " + operation.name;
    if (operation.path != nullptr) {
        const char *parent = operation.parent != nullptr ? platform::tag_of(*operation.parent) : nullptr;
        said += std::string(" ") + (parent != nullptr ? std::string(parent) + ":" : "") + operation.path;
    }
    return on_operation(said);
}

std::string Recorder::place_of(const Datatree *parent) const
{
    if (parent == out_) return "";
    if (parent == nullptr) return "null:";
    for (size_t i = results_.size(); i-- > 0;)
        if (results_[i] == parent) return "#" + std::to_string(i + 1) + ":";
    if (parent == ctx_->list_node) return "list:";
    if (parent == ctx_->af_node) return "af:";
    if (parent == ctx_->oper_list_node) return "oper-list:";
    if (parent == ctx_->oper_af_node) return "oper-af:";
    return "unknown:";
}

uint32_t Recorder::note(const Call &call)
{
    std::string line;
    if (call.way[0] != '\0') line += std::string(call.way) + " ";
    if (call.ns != nullptr && std::string(call.ns) == ZR_BGP_OPER_NS) line += "oper ";
    line += place_of(call.parent) + shortened(call.path != nullptr ? call.path : "(null)");
    if (call.value != nullptr) line += std::string(" = ") + call.value;
    if (call.source != nullptr) line += call.source == node_ ? " src" : " src=other";
    if (call.repeat != 0) line += " repeat";
    adds_.push_back(line);
    results_.push_back(nullptr);
    return adds_.size() == failing_ ? outcome_ : 0;
}

}  // namespace support

// ---- In the place of the library's builders -------------------------------------------------

using support::Recorder;

using Builder = uint32_t(MapContext *, Datatree *, const char *, const char *, const char *, const Datatree *,
                         Datatree **, uint32_t);

static uint32_t record_and_call(Builder *library, const char *way, MapContext *ctx, Datatree *tree, const char *path,
                                const char *ns, const char *value, const Datatree *source, Datatree **result,
                                uint32_t repeat)
{
    Recorder *recorder = Recorder::current();
    if (recorder == nullptr || recorder->is_inside())
        return library(ctx, tree, path, ns, value, source, result, repeat);
    if (uint32_t failed = recorder->note({way, tree, path, ns, value, source, repeat})) return failed;
    recorder->enter(path);
    const uint32_t outcome = library(ctx, tree, path, ns, value, source, result, repeat);
    recorder->leave();
    if (outcome == VMF_RC_OK && result != nullptr) recorder->note_result(*result);
    return outcome;
}

static Builder *library_function(const char *name) { return reinterpret_cast<Builder *>(dlsym(RTLD_NEXT, name)); }

extern "C" {

uint32_t vmf_map_datatree_add_bgp_path(MapContext *ctx, Datatree *tree, const char *path, const char *ns,
                                       const char *value, const Datatree *operation_source, Datatree **result,
                                       uint32_t repeat)
{
    static Builder *const library = library_function("vmf_map_datatree_add_bgp_path");
    return record_and_call(library, "", ctx, tree, path, ns, value, operation_source, result, repeat);
}

uint32_t vmf_map_zr_bgp_opr_add_path(MapContext *ctx, Datatree *tree, const char *path, const char *ns,
                                     const char *value, const Datatree *operation_source, Datatree **result,
                                     uint32_t repeat)
{
    static Builder *const library = library_function("vmf_map_zr_bgp_opr_add_path");
    return record_and_call(library, "builder", ctx, tree, path, ns, value, operation_source, result, repeat);
}

}  // extern "C"
