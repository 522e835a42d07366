// What the tests of the library's contract share: what the library said, what it asked of the platform, and trees with
// the faults that no platform would build.
#pragma once

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <sstream>

#include "mapping_run.h"
#include "names.h"
#include "observer.h"
#include "tree_text.h"
#include "vmf_map_oc_bgp.h"
#include "vmf_map_platform.h"

namespace library_test {

using support::MappingRun;
using Lines = std::vector<std::string>;

// ---- What was said --------------------------------------------------------------------------

struct Spoken {
    std::vector<support::Said> all;

    // "ERR Invalid arguments passed!"
    Lines by(const std::string &function) const
    {
        Lines lines;
        for (const support::Said &said : all)
            if (said.function == function) lines.push_back(said.level + " " + said.text);
        return lines;
    }

    // "vmf_map_oc_bgp: Invalid arguments passed!"
    Lines failures() const
    {
        Lines lines;
        for (const support::Said &said : all)
            if (said.level == "ERR") lines.push_back(said.function + ": " + said.text);
        return lines;
    }

    // "vmf_map_oc_bgp: TRC Start"
    Lines whole() const
    {
        Lines lines;
        for (const support::Said &said : all) lines.push_back(said.function + ": " + said.level + " " + said.text);
        return lines;
    }
};

inline Spoken spoken(MappingRun &run) { return {run.said()}; }

// The lines of a function whose own words these are.
inline Lines framed(Lines own_words)
{
    own_words.insert(own_words.begin(), "TRC Start");
    own_words.push_back("TRC End");
    return own_words;
}

// The lines of a function that was handed a bad argument.
inline Lines refused(const char *message) { return {"TRC Start", std::string("ERR ") + message}; }

// ---- What was asked of the platform ---------------------------------------------------------

// Hears the adds to trees, lets any of them fail, and any other operation by its name.
class Operations {
public:
    Operations() { platform::observe(&observer_); }
    ~Operations() { platform::observe(nullptr); }
    Operations(const Operations &) = delete;
    Operations &operator=(const Operations &) = delete;

    // The add of this number, from 1 on.
    void fail_add(size_t number, uint32_t outcome) { failing_add_ = {number, outcome}; }
    void fail(const std::string &operation, uint32_t outcome) { failing_[operation] = outcome; }

    // "add_subtree instance: instance-name = default", parent and path; "ns=" if not the configuration's namespace,
    // "src" with an operation source, "repeat" with that flag set.
    const Lines &adds() const { return adds_; }
    const platform::Operation &last_add() const { return last_add_; }
    void forget() { adds_.clear(); }

    std::function<void(const platform::Operation &)> before_add;

private:
    static uint32_t before(void *self, const platform::Operation &operation)
    {
        return static_cast<Operations *>(self)->note(operation);
    }

    uint32_t note(const platform::Operation &operation)
    {
        static const std::string prefix = "vmf_map_datatree_";
        const std::string name = operation.name;
        if (auto failure = failing_.find(name); failure != failing_.end()) return failure->second;
        if (!name.starts_with(prefix + "add_")) return 0;
        adds_.push_back(name.substr(prefix.size()) + " " + text_of(operation));
        last_add_ = operation;
        if (adds_.size() == failing_add_.first) return failing_add_.second;
        if (before_add) before_add(operation);
        return 0;
    }

    static std::string text_of(const platform::Operation &add)
    {
        const char *parent = add.parent != nullptr ? platform::tag_of(*add.parent) : "null";
        std::string text = std::string(parent != nullptr ? parent : "out") + ": " + add.path;
        if (std::string_view(add.ns) != ZR_BGP_CFG_NS) text += " ns=" + std::string(add.ns);
        if (add.value != nullptr) text += std::string(" = ") + add.value;
        if (add.operation_source != nullptr) text += " src";
        if (add.repeat != 0) text += " repeat";
        return text;
    }

    platform::Observer observer_ = {before, this};
    std::pair<size_t, uint32_t> failing_add_ = {};
    std::map<std::string, uint32_t> failing_;
    Lines adds_;
    platform::Operation last_add_ = {};
};

constexpr uint32_t some_failure = 0x77;

// ---- Trees ----------------------------------------------------------------------------------

inline std::string text_of(const platform::Tree &tree) { return io::write_tree(tree.root(), io::Secrets::shown); }

// The node at a path of tags; of several children of a name the last.
inline Datatree &node_at(Datatree &root, const std::string &path)
{
    Datatree *node = &root;
    std::istringstream in(path);
    for (std::string tag; std::getline(in, tag, '/');) {
        Datatree *found = nullptr;
        for (Datatree &child : platform::children_of(*node))
            if (platform::tag_of(child) != nullptr && tag == platform::tag_of(child)) found = &child;
        if (found == nullptr) throw std::runtime_error("no " + tag + " of " + path);
        node = found;
    }
    return *node;
}
inline Datatree &node_at(platform::Tree &tree, const std::string &path) { return node_at(tree.root(), path); }

inline Datatree &add_child(Datatree &parent, const char *tag, const char *ns = ZR_BGP_CFG_NS)
{
    return *platform::append_child(parent, platform::intern(tag), platform::intern(ns));
}

// The ways in which a node can be without a tag.
enum class Untagged { bit_is_clear, text_is_null };
constexpr Untagged untagged[] = {Untagged::bit_is_clear, Untagged::text_is_null};

inline void take_tag(Datatree &node, Untagged way)
{
    if (way == Untagged::bit_is_clear)
        node.present[0] = static_cast<uint8_t>(node.present[0] & ~VMF_DT_TAG);
    else
        node.tag = nullptr;
}

// Lets a node speak wrongly of its children until this goes.
class WrongChildren {
public:
    explicit WrongChildren(Datatree &node) : node_(node), as_it_was_(node) {}
    ~WrongChildren()
    {
        node_.subtrees = as_it_was_.subtrees;
        node_.subtree_count = as_it_was_.subtree_count;
        node_.present[0] = as_it_was_.present[0];
    }
    WrongChildren(const WrongChildren &) = delete;
    WrongChildren &operator=(const WrongChildren &) = delete;

private:
    Datatree &node_;
    const Datatree as_it_was_;
};

inline void clear_bit6(Datatree &node) { node.present[0] = static_cast<uint8_t>(node.present[0] & ~VMF_DT_SUBTREES); }
inline void set_children(Datatree &node, Datatree *array, int32_t count)
{
    node.subtrees = array;
    node.subtree_count = count;
    node.present[0] |= VMF_DT_SUBTREES;
}

inline Datatree source_with(uint32_t operation)
{
    Datatree source = {};
    platform::set_operation(source, operation);
    return source;
}

// An operation that the node does not carry, since bit 4 is clear.
inline Datatree source_without_bit4(uint32_t operation)
{
    Datatree source = {};
    source.operation = operation;
    return source;
}

// ---- The model ------------------------------------------------------------------------------

struct Node {
    std::string path, kind, key, walker;
    std::string handler, binding, fallback, man;  // none for a list entry; `man` where there is one

    bool is_leaf() const { return kind == "leaf" || kind == "leaf-list"; }
    std::string tag() const { return path.substr(path.rfind('/') + 1); }
};

std::vector<Node> *read_nodes(const char *module);

inline const std::vector<Node> &nodes()
{
    static const auto *const all = read_nodes("openconfig-bgp");
    return *all;
}

// Of the native models. Only their roots have a walker that is known outside.
inline const std::vector<Node> &cfg_nodes()
{
    static const auto *const all = read_nodes("Zorvex-ZR-ipv4-bgp-cfg");
    return *all;
}

inline const std::vector<Node> &oper_nodes()
{
    static const auto *const all = read_nodes("Zorvex-ZR-ipv4-bgp-oper");
    return *all;
}

// The name that a handler's lines carry: a public name that nobody has defined is the default itself.
inline std::string name_in_lines(const Node &node, const std::string &symbol)
{
    return symbol == node.handler && node.binding == "weak" ? node.fallback : symbol;
}

inline Lines handlers_of(const Node &node)
{
    Lines symbols;
    for (const std::string &symbol : {node.handler, node.fallback, node.man})
        if (!symbol.empty()) symbols.push_back(symbol);
    return symbols;
}

// Calls a walker or handler of that node by its name.
inline uint32_t call(const Node &node, const std::string &symbol, MapContext *ctx, Datatree *request, Datatree *out)
{
    void *function = dlsym(RTLD_DEFAULT, symbol.c_str());
    if (function == nullptr) {
        ADD_FAILURE() << "the library does not export " << symbol;
        return 0;
    }
    if (node.is_leaf() || symbol == node.walker) return reinterpret_cast<VmfLeafHandler *>(function)(ctx, request, out);
    return reinterpret_cast<VmfContainerHandler *>(function)(ctx, request, 0, out);
}

// ---- The sources ----------------------------------------------------------------------------

using SourceFile = Lines;

const std::map<std::string, SourceFile> &sources();

// The line at which the definition begins that this line lies in: the nearest one above that is not indented.
inline std::string definition_around(const SourceFile &file, size_t line)
{
    for (size_t i = std::min(line, file.size()); i-- > 0;)
        if (!file[i].empty() && (std::isalpha(static_cast<unsigned char>(file[i][0])) != 0 || file[i][0] == '_'))
            return file[i];
    return "";
}

// Whether a definition is the one of that function: by its whole name, or through a macro that writes the name's
// beginning and is given the rest, which for the root is nothing.
inline bool defines(const std::string &definition, const std::string &function)
{
    if (definition.find(function + "(") != std::string::npos) return true;
    const size_t macro_end = definition.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ_");
    const size_t rest_end = definition.find(')');
    if (macro_end == std::string::npos || rest_end == std::string::npos || definition[macro_end] != '(') return false;
    const std::string rest = definition.substr(macro_end + 1, rest_end - macro_end - 1);
    return function.ends_with(rest.empty() ? "_oc_bgp" : rest);
}

inline bool stands_in(const SourceFile &file, const std::string &function, int line)
{
    return line > 0 && static_cast<size_t>(line) <= file.size() &&
           defines(definition_around(file, static_cast<size_t>(line)), function);
}

inline bool stands_in_a_source(const std::string &function, int line)
{
    for (const auto &[path, file] : sources())
        if (stands_in(file, function, line)) return true;
    return false;
}

}  // namespace library_test
