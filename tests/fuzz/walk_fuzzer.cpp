// Any request tree in any kind of request, against a plain reading of the tree of tags.
#include <cstring>
#include <optional>

#include "checks.h"
#include "fuzzer.h"
#include "mapping_input.h"
#include "trace.h"
#include "tree_input.h"
#include "vmf_map_oc_bgp.h"
#include "vmf_map_platform.h"
#include "walk_follower.h"

namespace fuzz {

const Choice mapping_choice = {{Model::openconfig}, {"kind", "items", "as", "fail", "once", "moves"}};

namespace {

// ---- What the tree of tags refuses ----------------------------------------------------------

struct Refusal {
    uint32_t outcome = VMF_RC_OK;
    std::string tag = {};  // empty: none
};

bool is_removal(const Datatree &node)
{
    return platform::has_operation(node) && (node.operation == VMF_OP_DELETE || node.operation == VMF_OP_REMOVE);
}

bool is_corrupt(const Datatree &node)
{
    return (node.present[0] & VMF_DT_SUBTREES) != 0 && node.subtree_count != 0 && node.subtrees == nullptr;
}

Refusal refusal_of(const Datatree &node, const std::string &path, uint32_t kind);

Refusal refusal_of_key(const Datatree &entry, const std::string &tag, const std::string &key_tag, uint32_t kind)
{
    const auto children = platform::children_of(entry);
    if (children.empty()) return {VMF_RC_BAD_KEY, tag};
    for (const Datatree &child : children) {
        const char *name = platform::tag_of(child);
        if (name != nullptr && name != key_tag) continue;
        if (kind == VMF_REQ_EDIT && platform::value_of(child) == nullptr) return {VMF_RC_BAD_KEY};
        if (is_removal(child)) return {VMF_RC_KEY_OPERATION};
        const bool is_tested = tag != "neighbor";
        return name == nullptr && is_tested ? Refusal{VMF_RC_BAD_KEY} : Refusal{};
    }
    return {VMF_RC_BAD_KEY};
}

Refusal refusal_of_children(const Datatree &node, const std::string &path, uint32_t kind)
{
    for (const Datatree &child : platform::children_of(node)) {
        const char *tag = platform::tag_of(child);
        if (tag == nullptr) return {VMF_RC_BAD_TREE};
        const bool is_refused = find_node(Model::openconfig, path + "/" + tag) == nullptr ||
                                (std::strcmp(tag, "state") == 0 && kind != VMF_REQ_GET);
        if (is_refused) return {VMF_RC_UNSUPPORTED, tag};
        const Refusal refusal = refusal_of(child, path + "/" + tag, kind);
        if (refusal.outcome != VMF_RC_OK) return refusal;
    }
    return {};
}

Refusal refusal_of(const Datatree &node, const std::string &path, uint32_t kind)
{
    const ModelNode &model = *find_node(Model::openconfig, path);
    if (model.is_leaf()) return {};
    if (is_corrupt(node)) return {VMF_RC_BAD_TREE};
    if (model.kind == "list") {
        const Refusal refusal = refusal_of_key(node, model.tags.back(), model.key, kind);
        if (refusal.outcome != VMF_RC_OK) return refusal;
    }
    return refusal_of_children(node, path, kind);
}

// ---- A run ----------------------------------------------------------------------------------

// The words in which a walker refuses. Those of a key in which it does not are silent.
bool is_refused_by_walker(const std::string &words)
{
    for (const char *known : {"Unsupported tag is specified in the request.", "Tag name is not available!",
                              "No keys specified with a list node.", "Empty list key specified.",
                              "The key node should not have delete operation."})
        if (words == known) return true;
    return false;
}

struct Run {
    Run(const TreeInput &input, bool is_traced)
        : database(input), buffer(size_t{1} << 14), request(build(input.lines)),
          contexts(input.word("kind", 1), database, connected(is_traced))
    {
        MapContext run = contexts.fresh_run();
        const FailingOperations failing(input);
        const MovingArrays moving(!is_traced && input.word("moves") != 0);
        const auto trees = platform::children_of(request.root());
        outcome = vmf_map_oc_bgp(&run, trees.empty() ? nullptr : trees.data(), &native.root());
    }

    platform::Log &connected(bool is_traced)
    {
        if (!is_traced) return log;
        log.trace = &buffer;
        log.trc = log.dbg =
            log.err = {true, [this](std::string_view line, uint32_t * /*site*/) { letters += line.size(); }};
        return log;
    }

    // What was said last at level 0.
    std::string last_error()
    {
        std::string words;
        for (const std::string &line : buffer.take()) {
            const framework::TraceLine taken = framework::read_trace_line(line);
            if (taken.level == "ERR") words = taken.text;
        }
        return words;
    }

    std::string rejected() const
    {
        return contexts.request.rejected_tag != nullptr ? contexts.request.rejected_tag : "";
    }

    AnyDatabase database;
    platform::TraceBuffer buffer;
    platform::Log log;
    size_t letters = 0;
    platform::Tree request;
    platform::Tree native;
    framework::Contexts contexts;
    uint32_t outcome = 0;
};

void check_same_shape(const Datatree &a, const Datatree &b)
{
    require(a.tag == b.tag && a.namespace_ == b.namespace_ && a.subtree_count == b.subtree_count,
            "the request keeps its tags and its shape");
    const auto of_a = platform::children_of(a);
    const auto of_b = platform::children_of(b);
    for (size_t i = 0; i < of_a.size(); i++) check_same_shape(of_a[i], of_b[i]);
}

void check_refusal(const TreeInput &input, const Datatree &written, Run &run)
{
    const auto trees = platform::children_of(written);
    if (trees.empty()) return require(run.outcome == VMF_RC_BAD_ARGS, "no tree is a bad argument");
    const Refusal refusal = refusal_of(trees.front(), "/bgp", input.word("kind", 1));
    if (refusal.outcome != VMF_RC_OK) require(run.outcome != VMF_RC_OK, "what the tree of tags refuses fails");
    if (input.word("fail") != 0) return;
    if (run.outcome == VMF_RC_OK) require(run.rejected().empty(), "no tag is refused where nothing fails");
    if (!run.rejected().empty())
        require(run.outcome == VMF_RC_UNSUPPORTED || run.outcome == VMF_RC_BAD_KEY, "a refused tag has its outcome");
    if (run.outcome == VMF_RC_OK || !is_refused_by_walker(run.last_error())) return;
    if (run.outcome != refusal.outcome || run.rejected() != refusal.tag)
        fail("the walk refuses what the tree of tags does", run.rejected(), refusal.tag);
}

void check_native(const Datatree &native)
{
    check_well_formed(native);
    for (const Datatree &tree : platform::children_of(native)) {
        const char *ns = platform::namespace_of(tree);
        require(ns != nullptr && (std::strcmp(ns, ZR_BGP_CFG_NS) == 0 || std::strcmp(ns, ZR_BGP_OPER_NS) == 0),
                "a tree of each native model");
        require(std::strcmp(tree.tag, "bgp") == 0, "native trees are of bgp");
    }
    require(platform::children_of(native).size() <= 2, "one tree of each native model");
}

void check_walk(const TreeInput &input)
{
    Run run(input, false);
    Run again(input, true);
    const platform::Tree written = build(input.lines);
    require(is_outcome(run.outcome), "a known outcome");
    require(run.outcome == again.outcome && run.rejected() == again.rejected(), "the same outcome again");
    if (!are_same(run.native.root(), again.native.root()))
        fail("the same trees again", text_of(run.native.root()), text_of(again.native.root()));
    for (const Word &word : request_words)
        require(run.contexts.request.*word.member == again.contexts.request.*word.member, word.name);
    check_words(run.contexts.request);
    check_native(run.native.root());
    check_same_shape(written.root(), run.request.root());
    check_refusal(input, written.root(), again);
}

}  // namespace
}  // namespace fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzz::check_walk(fuzz::read_input(fuzz::text_of(data, size)));
    return 0;
}
