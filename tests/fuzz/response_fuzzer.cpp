// Any native trees, with any words that a request may have left, through the entries of the way back.
#include <algorithm>
#include <cstring>
#include <set>
#include <sstream>

#include "checks.h"
#include "fuzzer.h"
#include "mapping_input.h"
#include "response.h"
#include "tree_input.h"
#include "vmf_map_oc_bgp.h"

namespace fuzz {
namespace {

Choice make_choice()
{
    Choice made = {{Model::cfg, Model::cfg, Model::oper},
                   {"kind", "kind", "response_pending", "fail", "once", "moves", "both"}};
    for (const Word &word : request_words) made.words.push_back(word.name);
    return made;
}

struct Run {
    Run(const TreeInput &input, bool is_traced)
        : database(input), buffer(1), contexts(input.word("kind", VMF_REQ_GET), database, connected(is_traced))
    {
        contexts.request.response_pending = input.word("response_pending", 1);
        for (const Word &word : request_words)
            contexts.request.*word.member = input.word(word.name) > word.largest ? word.largest : input.word(word.name);
        framework::Response response(contexts, build(input.lines));
        const FailingOperations failing(input);
        const MovingArrays moving(!is_traced && input.word("moves") != 0);
        outcome = response.map_configuration();
        if (outcome == VMF_RC_OK && (contexts.request.oper_wanted != 0 || input.word("both") != 0))
            outcome = response.map_operational();
        answer = response.take_answer();
    }

    platform::Log &connected(bool is_traced)
    {
        if (is_traced) log.trace = &buffer;
        return log;
    }

    AnyDatabase database;
    platform::TraceBuffer buffer;
    platform::Log log;
    framework::Contexts contexts;
    platform::Tree answer;
    uint32_t outcome = 0;
};

// A native node out of its place leaves its words below the entry that was met last, so only the tags are looked at. A
// family container may bear the native name, whatever that is.
using Tags = std::set<std::string>;

Tags possible_tags(const TreeInput &input)
{
    static const Tags of_model = [] {
        Tags tags;
        for (const ModelNode &node : nodes_of(Model::openconfig)) tags.insert(node.tags.back());
        for (const auto &family : oc_bgp_af_container) tags.insert(family[0]);
        return tags;
    }();
    Tags tags = of_model;
    for (const Line &line : input.lines) {
        if (line.tag != "af-name" || !line.value) continue;
        std::istringstream name(*line.value);
        for (std::string tag; std::getline(name, tag, '/');) tags.insert(tag);
    }
    return tags;
}

void check_nodes(const Datatree &holder, const Tags &tags)
{
    for (const Datatree &node : platform::children_of(holder)) {
        const char *ns = platform::namespace_of(node);
        require(ns != nullptr && std::strcmp(ns, OC_BGP_NS) == 0, "the answer is of the OpenConfig model");
        require(!platform::has_operation(node), "an answer has no edit operations");
        if (!tags.contains(node.tag)) fail("a tag of the OpenConfig model", node.tag);
        check_nodes(node, tags);
    }
}

// Then the answer may be that, as it stood there.
bool has_openconfig(const TreeInput &input)
{
    return std::any_of(input.lines.begin(), input.lines.end(), [](const Line &line) { return line.ns == 'o'; });
}

void check_response(const TreeInput &input)
{
    const Run run(input, false);
    const Run again(input, true);
    require(is_outcome(run.outcome), "a known outcome");
    require(run.outcome == again.outcome, "the same outcome again");
    if (!are_same(run.answer.root(), again.answer.root()))
        fail("the same answer again", text_of(run.answer.root()), text_of(again.answer.root()));
    for (const Word &word : request_words)
        require(run.contexts.request.*word.member == again.contexts.request.*word.member, word.name);
    check_words(run.contexts.request);
    require(platform::children_of(run.answer.root()).size() <= 1, "one tree at most is the answer");
    if (has_openconfig(input)) return;
    check_well_formed(run.answer.root());
    check_nodes(run.answer.root(), possible_tags(input));
}

}  // namespace

const Choice mapping_choice = make_choice();

}  // namespace fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzz::check_response(fuzz::read_input(fuzz::text_of(data, size)));
    return 0;
}
