#include "module_coverage.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>
#include <set>

#include "vmf_map_types.h"
#include "yang_texts.h"

namespace explain {

namespace {

// ---- Modules --------------------------------------------------------------------------------

LY_ERR give_own_text(const char *module, const char * /*revision*/, const char *submodule,
                     const char * /*submodule_revision*/, void * /*data*/, LYS_INFORMAT *format, const char **text,
                     ly_module_imp_data_free_clb *free_text)
{
    *text = submodule == nullptr ? model::find_yang_text(module) : nullptr;
    *format = LYS_IN_YANG;
    *free_text = nullptr;
    return *text != nullptr ? LY_SUCCESS : LY_ENOTFOUND;
}

std::string message_of(const ly_ctx *context, const std::string &file)
{
    const char *said = ly_errmsg(context);
    const char *where = ly_errpath(context);
    std::string message = file + ": " + (said != nullptr ? said : "libyang does not take it");
    if (where != nullptr) message += std::string(" (") + where + ")";
    return message;
}

ly_ctx *make_context()
{
    ly_log_options(LY_LOSTORE_LAST);  // said by whoever asks, not printed
    ly_ctx *context = nullptr;
    constexpr uint16_t options = LY_CTX_NO_YANGLIBRARY | LY_CTX_DISABLE_SEARCHDIR_CWD | LY_CTX_PREFER_SEARCHDIRS;
    if (ly_ctx_new(nullptr, options, &context) != LY_SUCCESS) throw BadModule("libyang does not start");
    ly_ctx_set_module_imp_clb(context, give_own_text, nullptr);
    return context;
}

// ---- Counting -------------------------------------------------------------------------------

struct Counts {
    std::array<size_t, 3> of = {};  // by acceptance

    size_t &operator[](Acceptance acceptance) { return of[static_cast<size_t>(acceptance)]; }
    size_t operator[](Acceptance acceptance) const { return of[static_cast<size_t>(acceptance)]; }
    size_t sum() const { return of[0] + of[1] + of[2]; }
};

constexpr Acceptance acceptances[] = {Acceptance::writable, Acceptance::read_only, Acceptance::refused};

// Writable is what is accepted as a whole.
std::string_view column_of(Acceptance acceptance)
{
    return acceptance == Acceptance::writable ? "accepted" : name_of(acceptance);
}

// Three levels, of which a list is no one of its own: "/bgp/neighbors/neighbor/timers".
std::string subtree_of(const CoveredNode &node)
{
    constexpr size_t levels = 3;
    std::vector<const CoveredNode *> way;
    const bool is_leaf = (node.node->nodetype & (LYS_LEAF | LYS_LEAFLIST)) != 0 && node.parent != nullptr;
    for (const CoveredNode *above = is_leaf ? node.parent : &node; above != nullptr; above = above->parent)
        way.insert(way.begin(), above);
    size_t level = 0;
    const CoveredNode *last = way.front();
    for (const CoveredNode *above : way) {
        if (above->node->nodetype != LYS_LIST && level++ == levels) break;
        last = above;
    }
    return last->path;
}

struct Subtrees {
    explicit Subtrees(const Coverage &coverage)
    {
        for (const auto &node : coverage.nodes()) {
            total[node->acceptance]++;
            const std::string path = subtree_of(*node);
            auto found = std::find_if(rows.begin(), rows.end(), [&path](const auto &row) { return row.first == path; });
            if (found == rows.end()) found = rows.insert(found, {path, {}});
            found->second[node->acceptance]++;
        }
    }

    Counts total;
    std::vector<std::pair<std::string, Counts>> rows;
};

bool is_refused(const CoveredNode *node) { return node != nullptr && node->acceptance == Acceptance::refused; }

// The uppermost of those that are refused.
std::vector<const CoveredNode *> refused_subtrees(const Coverage &coverage)
{
    std::vector<const CoveredNode *> tops;
    for (const auto &node : coverage.nodes())
        if (is_refused(node.get()) && !is_refused(node->parent)) tops.push_back(node.get());
    return tops;
}

bool is_config(const CoveredNode &node) { return (node.node->flags & LYS_CONFIG_W) != 0; }

bool is_config_only_read(const CoveredNode *node)
{
    return node != nullptr && node->acceptance == Acceptance::read_only && is_config(*node);
}

// The uppermost of what the model lets a client configure and the mapping does not.
std::vector<const CoveredNode *> config_only_read(const Coverage &coverage)
{
    std::vector<const CoveredNode *> tops;
    for (const auto &node : coverage.nodes())
        if (is_config_only_read(node.get()) && !is_config_only_read(node->parent)) tops.push_back(node.get());
    return tops;
}

std::string name_of_module(const lys_module &module)
{
    return std::string(module.name) + (module.revision != nullptr ? std::string("@") + module.revision : "");
}

std::string padded(std::string text, size_t width)
{
    text.resize(std::max(text.size(), width), ' ');
    return text;
}

std::string right(size_t number, size_t width)
{
    const std::string text = std::to_string(number);
    return std::string(width - std::min(width, text.size()), ' ') + text;
}

}  // namespace

Modules::Modules() : context_(make_context())
{
    const lys_module *module = ly_ctx_load_module(context_.get(), "openconfig-bgp", nullptr, nullptr);
    if (module == nullptr) throw BadModule(message_of(context_.get(), "openconfig-bgp"));
    modules_.push_back(module);
}

Modules::Modules(const std::vector<std::string> &files, const std::vector<std::string> &folders)
    : context_(make_context())
{
    for (const std::string &folder : folders)
        if (const LY_ERR bad = ly_ctx_set_searchdir(context_.get(), folder.c_str());
            bad != LY_SUCCESS && bad != LY_EEXIST)
            throw BadModule(message_of(context_.get(), folder));
    for (const std::string &file : files) {
        const std::string beside = std::filesystem::absolute(file).parent_path().string();
        ly_ctx_set_searchdir(context_.get(), beside.c_str());
        lys_module *module = nullptr;
        if (lys_parse_path(context_.get(), file.c_str(), LYS_IN_YANG, &module) != LY_SUCCESS)
            throw BadModule(message_of(context_.get(), file));
        modules_.push_back(module);
    }
}

Coverage::Coverage(const Modules &modules)
{
    for (const lys_module *module : modules.all())
        for (const lysc_node *node = module->compiled->data; node != nullptr; node = node->next) add(node, nullptr);
}

void Coverage::add(const lysc_node *node, const CoveredNode *parent)
{
    const bool is_data = (node->nodetype & (LYS_CONTAINER | LYS_LIST | LYS_LEAF | LYS_LEAFLIST | LYS_ANYDATA)) != 0;
    const CoveredNode *at = parent;
    if (is_data) {
        const std::string path = (parent != nullptr ? parent->path : "") + "/" + node->name;
        const bool is_of_bgp = std::string_view(node->module->ns) == OC_BGP_NS;
        const Target target = is_of_bgp ? make_target(path) : Target{nullptr, {}};
        const Acceptance acceptance = target.node != nullptr ? acceptance_of(target) : Acceptance::refused;
        nodes_.push_back(std::make_unique<CoveredNode>(CoveredNode{path, node, acceptance, parent}));
        at = nodes_.back().get();
    }
    for (const lysc_node *child = lysc_node_child(node); child != nullptr; child = child->next) add(child, at);
}

// ---- Writing --------------------------------------------------------------------------------

std::string write_coverage_text(const Modules &modules, const Coverage &coverage)
{
    const Subtrees subtrees(coverage);
    std::string text;
    for (const lys_module *module : modules.all()) text += (text.empty() ? "" : ", ") + name_of_module(*module);
    text += ": " + std::to_string(subtrees.total.sum()) + " nodes";
    for (const Acceptance acceptance : acceptances)
        text += ", " + std::to_string(subtrees.total[acceptance]) + " " + std::string(column_of(acceptance));
    text += "\n\n";
    size_t width = sizeof "subtree";
    for (const auto &[path, counts] : subtrees.rows) width = std::max(width, path.size());
    text += padded("subtree", width);
    for (const Acceptance acceptance : acceptances) text += "  " + std::string(column_of(acceptance));
    text += "\n";
    for (const auto &[path, counts] : subtrees.rows) {
        text += padded(path, width);
        for (const Acceptance acceptance : acceptances)
            text += "  " + right(counts[acceptance], column_of(acceptance).size());
        text += "\n";
    }
    const auto list = [&text](const char *title, const std::vector<const CoveredNode *> &nodes) {
        if (nodes.empty()) return;
        text += std::string("\n") + title + "\n";
        for (const CoveredNode *node : nodes) text += "  " + node->path + "\n";
    };
    list("refused, with all that lies below:", refused_subtrees(coverage));
    list("configuration in the model, but only read, with all that lies below:", config_only_read(coverage));
    return text;
}

static nlohmann::ordered_json to_json(const Counts &counts)
{
    nlohmann::ordered_json json;
    json["nodes"] = counts.sum();
    for (const Acceptance acceptance : acceptances) json[std::string(column_of(acceptance))] = counts[acceptance];
    return json;
}

std::string write_coverage_json(const Modules &modules, const Coverage &coverage)
{
    const Subtrees subtrees(coverage);
    nlohmann::ordered_json json;
    json["modules"] = nlohmann::ordered_json::array();
    for (const lys_module *module : modules.all()) json["modules"].push_back(name_of_module(*module));
    json["total"] = to_json(subtrees.total);
    json["subtrees"] = nlohmann::ordered_json::array();
    for (const auto &[path, counts] : subtrees.rows) {
        nlohmann::ordered_json row;
        row["path"] = path;
        row.update(to_json(counts));
        json["subtrees"].push_back(row);
    }
    json["nodes"] = nlohmann::ordered_json::array();
    for (const auto &node : coverage.nodes()) {
        nlohmann::ordered_json row;
        row["path"] = node->path;
        row["config"] = is_config(*node);
        row["coverage"] = column_of(node->acceptance);
        json["nodes"].push_back(row);
    }
    return json.dump(2) + "\n";
}

// ---- Deviations -----------------------------------------------------------------------------

// With a prefix before every element; choices and cases are elements too.
static std::string prefixed_path(const lysc_node *node)
{
    if (node == nullptr) return "";
    return prefixed_path(node->parent) + "/" + node->module->prefix + ":" + node->name;
}

static void collect_modules(const lysc_node *node, std::set<std::pair<std::string, std::string>> &modules)
{
    for (; node != nullptr; node = node->parent) modules.emplace(node->module->name, node->module->prefix);
}

static std::string deviation_of(const lysc_node *node, const std::string &deviate)
{
    return "\n  deviation \"" + prefixed_path(node) + "\" {\n    deviate " + deviate + "\n  }\n";
}

// What a module says itself is replaced; what holds unsaid is added.
static std::string config_verb(const lysc_node &node) { return (node.flags & LYS_SET_CONFIG) != 0 ? "replace" : "add"; }

std::string write_deviations(const Modules &modules, const Coverage &coverage)
{
    std::set<std::pair<std::string, std::string>> imports;
    for (const lys_module *module : modules.all()) imports.emplace(module->name, module->prefix);
    std::string deviations;
    for (const CoveredNode *node : refused_subtrees(coverage)) {
        collect_modules(node->node, imports);
        deviations += deviation_of(node->node, "not-supported;");
    }
    for (const CoveredNode *node : config_only_read(coverage)) {
        collect_modules(node->node, imports);
        deviations += deviation_of(node->node, config_verb(*node->node).append(" {\n      config false;\n    }"));
    }
    std::string text = "module vmf-oc-bgp-deviations {\n"
                       "  yang-version 1.1;\n"
                       "  namespace \"http://zorvex.example/ns/yang/vmf-oc-bgp-deviations\";\n"
                       "  prefix vmf-oc-bgp-dev;\n\n";
    for (const auto &[name, prefix] : imports)
        text.append("  import ").append(name).append(" { prefix ").append(prefix).append("; }\n");
    text += "\n  organization \"The BGP mapping library\";\n\n"
            "  contact \"The maintainers of this repository\";\n\n"
            "  description\n"
            "    \"What the mapping does not take of the OpenConfig BGP model: nodes\n"
            "     that it refuses, and configuration that it only reads.\";\n";
    return text + deviations + "}\n";
}

}  // namespace explain
