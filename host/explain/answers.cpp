#include "answers.h"

#include <algorithm>

#include "native_path.h"
#include "request.h"
#include "samples.h"

namespace explain {

namespace {

using router::Schema;
using Values = std::vector<std::string>;

// ---- Reading a made router ------------------------------------------------------------------

bool is_entry_of(const Datatree &node, const Target &target, const model::OcNode &list)
{
    const auto key =
        std::find_if(target.keys.begin(), target.keys.end(), [&list](const Key &given) { return given.list == &list; });
    if (key == target.keys.end() || key->value.empty()) return true;
    return std::ranges::any_of(platform::children_of(node), [&](const Datatree &child) {
        return platform::tag_of(child) == list.key && platform::value_of(child) == key->value;
    });
}

void collect_values(const Datatree &node, const std::string &path, const Target &target, Values &values)
{
    const model::OcNode *model = model::find_oc_node(path);
    if (model == nullptr || !target.node->path.starts_with(path)) return;
    if (model == target.node) {
        // A leaf without a value says nothing.
        if (const char *value = platform::value_of(node)) values.emplace_back(value);
        return;
    }
    if (model->kind == model::Kind::list && !is_entry_of(node, target, *model)) return;
    for (const Datatree &child : platform::children_of(node))
        collect_values(child, path + "/" + platform::tag_of(child), target, values);
}

// ---- Candidates -----------------------------------------------------------------------------

// What may be given to a router: a leaf, or a list that has nothing but keys.
bool is_candidate(const Schema &node)
{
    if (node.kind == Schema::Kind::list) return node.key_count > 0 && node.key_count == node.children.size();
    return node.is_terminal() && !node.is_key;
}

void collect_candidates(const Schema &node, std::vector<const Schema *> &candidates)
{
    if (is_candidate(node) && std::find(candidates.begin(), candidates.end(), &node) == candidates.end())
        candidates.push_back(&node);
    if (is_candidate(node)) return;
    for (const Schema &child : node.children) collect_candidates(child, candidates);
}

// All that the read of the target selects, or that lies below it.
void collect_selected(const Datatree &node, const Schema *parent, std::vector<const Schema *> &candidates)
{
    const Schema *schema = parent != nullptr ? parent : router::models().find_root(platform::namespace_of(node));
    if (schema != nullptr) schema = schema->find_child(platform::tag_of(node), platform::namespace_of(node));
    if (schema == nullptr) return;
    const auto children = platform::children_of(node);
    // Whoever asks for a group asks for the container of all groups first; only the group is meant.
    const bool is_whole = platform::is_selected(node) && schema->tag != std::string_view("neighbor-groups");
    if (children.empty() || is_whole) collect_candidates(*schema, candidates);
    const bool has_only_keys =
        schema->kind == Schema::Kind::list && std::ranges::all_of(children, [schema](const Datatree &child) {
            const Schema *key = schema->find_child(platform::tag_of(child), nullptr);
            return key != nullptr && key->is_key && platform::value_of(child) != nullptr;
        });
    if (has_only_keys) collect_candidates(*schema, candidates);
    for (const Datatree &child : children) collect_selected(child, schema, candidates);
}

// ---- Experiments ----------------------------------------------------------------------------

struct Given {
    const Schema *native;
    std::string value;
};

Values samples_of_candidate(const Schema &native)
{
    Values samples = samples_of(native.kind == Schema::Kind::list ? native.children.back() : native);
    const bool is_plain_number = samples.size() == 1 && !samples.front().empty() &&
                                 samples.front().find_first_not_of("0123456789") == std::string::npos;
    if (is_plain_number) samples.push_back("0");
    return samples;
}

// With the entry that the target stands for where a list stands on the way.
std::string path_in_router(const Schema &native, const EntryKeys &keys, const std::string &value)
{
    const Schema *parent = parent_of(native);
    std::string path = parent != nullptr ? path_in_router(*parent, keys, "") : "";
    Values of_entry;
    if (native.kind == Schema::Kind::list && is_candidate(native)) {
        of_entry.assign(native.key_count, "0");
        of_entry.back() = value;
    } else if (native.kind == Schema::Kind::list && native.key_count == 1) {
        const auto entries = entries_of(native, keys);
        if (!entries.empty()) of_entry = {entries.front()};
    }
    router::append_element(path, native, of_entry);
    return path;
}

// Where a leaf stands in entries of families: the target's, or all.
enum class Entries { one, all };

class Experiment {
public:
    explicit Experiment(const Target &target)
        : target_(target), keys_(entry_keys(target)), shown_keys_(keys_of_one_entry(target))
    {
    }

    Values run(const std::vector<Given> &given, Entries entries) const
    {
        MadeRouter router(keys_);
        for (const Given &leaf : given)
            router.set(*leaf.native, leaf.value, entries == Entries::one ? shown_keys_ : keys_);
        return values_of(target_, router);
    }

    Answer answer(const Given &given, const std::string &value, Entries entries) const
    {
        Answer made = {given.native, path_in_router(*given.native, shown_keys_, given.value), given.value, value};
        if (given.native->is_empty) made.native_value.reset();
        if (entries == Entries::all) made.with.push_back("the same in the entries of all families");
        return made;
    }

    std::string line(const Given &given) const
    {
        const std::string path = path_in_router(*given.native, shown_keys_, given.value);
        return given.native->is_empty ? path : path + " = " + given.value;
    }

    // Each candidate by itself.
    std::vector<Answer> of_single(const std::vector<const Schema *> &candidates, Entries entries) const
    {
        std::vector<Answer> answers;
        const Values without = run({}, entries);
        for (const Schema *native : candidates)
            for (const std::string &sample : samples_of_candidate(*native)) {
                const Values values = run({{native, sample}}, entries);
                if (values != without && !values.empty())
                    answers.push_back(answer({native, sample}, values.front(), entries));
            }
        return answers;
    }

    // All together; then what is not needed is taken out, and what is left is changed.
    std::vector<Answer> of_all(const std::vector<const Schema *> &candidates, Entries entries) const
    {
        constexpr size_t attempts = 3;
        for (size_t attempt = 0; attempt < attempts; attempt++) {
            std::vector<Given> given;
            for (const Schema *native : candidates) {
                const Values samples = samples_of_candidate(*native);
                given.push_back({native, samples[attempt % samples.size()]});
            }
            const Values values = run(given, entries);
            if (!values.empty() && values != run({}, entries))
                return of_needed(needed(given, values, entries), entries);
        }
        return {};
    }

    // Those that say nothing alone, each beside one other.
    std::vector<Answer> of_pairs(const std::vector<const Schema *> &candidates, const std::vector<Answer> &singles,
                                 Entries entries) const
    {
        std::vector<Answer> answers;
        for (const Schema *native : candidates) {
            const auto is_known = [native](const Answer &known) { return known.native == native; };
            if (std::any_of(singles.begin(), singles.end(), is_known)) continue;
            std::vector<Answer> found = of_pairs_with(*native, candidates, entries);
            std::erase_if(found, [native](const Answer &other) { return other.native != native; });
            answers.insert(answers.end(), found.begin(), found.end());
        }
        return answers;
    }

private:
    // The first other leaf that lets the target come back with the two, and with neither alone as it then is.
    std::vector<Answer> of_pairs_with(const Schema &native, const std::vector<const Schema *> &candidates,
                                      Entries entries) const
    {
        for (const Schema *beside : candidates)
            for (const std::string &sample : samples_of_candidate(native))
                for (const std::string &other : samples_of_candidate(*beside)) {
                    if (beside == &native) continue;
                    const std::vector<Given> pair = {{&native, sample}, {beside, other}};
                    const Values values = run(pair, entries);
                    if (values.empty() || values == run({pair[0]}, entries) || values == run({pair[1]}, entries))
                        continue;
                    return of_needed(pair, entries);
                }
        return {};
    }

    std::vector<Given> needed(std::vector<Given> given, const Values &values, Entries entries) const
    {
        for (size_t i = given.size(); i-- > 0;) {
            std::vector<Given> fewer = given;
            fewer.erase(fewer.begin() + static_cast<ptrdiff_t>(i));
            if (run(fewer, entries) == values) given = fewer;
        }
        return given;
    }

    // What one of the leaves can make of the target, with the others as they are.
    struct Influence {
        std::vector<Answer> answers;
        bool chooses = false;  // among values; else it only lets the target come back or not
    };

    Influence influence_of(size_t leaf, const std::vector<Given> &given, Entries entries) const
    {
        Influence influence;
        std::vector<Given> changed = given;
        for (const std::string &sample : samples_of_candidate(*given[leaf].native)) {
            changed[leaf].value = sample;
            const Values values = run(changed, entries);
            if (values.empty()) continue;
            influence.answers.push_back(answer(changed[leaf], values.front(), entries));
            Answer &made = influence.answers.back();
            for (size_t other = 0; other < given.size(); other++)
                if (other != leaf) made.with.push_back(line(given[other]));
            influence.chooses |= made.value != influence.answers.front().value;
        }
        return influence;
    }

    // Of leaves that are all needed: those that choose the value, or else all.
    std::vector<Answer> of_needed(const std::vector<Given> &given, Entries entries) const
    {
        std::vector<Influence> influences;
        for (size_t leaf = 0; leaf < given.size(); leaf++) influences.push_back(influence_of(leaf, given, entries));
        const bool is_chosen = std::any_of(influences.begin(), influences.end(),
                                           [](const Influence &influence) { return influence.chooses; });
        std::vector<Answer> answers;
        for (const Influence &influence : influences)
            if (influence.chooses || !is_chosen)
                answers.insert(answers.end(), influence.answers.begin(), influence.answers.end());
        return answers;
    }

    const Target &target_;
    EntryKeys keys_;
    EntryKeys shown_keys_;
};

// ---- Keys -----------------------------------------------------------------------------------

void collect_lists(const Schema &schema, const EntryKeys &keys, std::vector<const Schema *> &lists)
{
    for (const Schema &child : schema.children) {
        if (child.kind == Schema::Kind::list && !entries_of(child, keys).empty()) lists.push_back(&child);
        collect_lists(child, keys, lists);
    }
}

// Other keys than the one that the entries of a list have.
Values other_keys(const Schema &list, const EntryKeys &keys)
{
    const std::string_view tag = list.tag;
    if (tag == "instance-as") return {"1"};
    if (tag == "four-byte-as") return {"65002"};
    if (tag == "neighbor") return {"2001:db8::1"};
    if (tag == "neighbor-group") return {"CORE"};
    Values others;
    EntryKeys all = keys;
    all.families.clear();
    for (const std::string &key : entries_of(list, all))
        if (key != entries_of(list, keys).front()) others.push_back(key);
    return others;
}

// The keys of one list's entries, changed: what the target is then.
std::vector<Answer> answers_of_list(const Target &open, const EntryKeys &keys, const Schema &list)
{
    std::vector<Answer> answers;
    const Values usual = values_of(open, MadeRouter(keys));
    if (usual.empty()) return answers;
    const Schema &key = list.children.front();
    const auto note = [&](const EntryKeys &of_router, const std::string &value) {
        answers.push_back({&key, path_in_router(key, of_router, ""), entries_of(list, of_router).front(), value});
    };
    note(keys, usual.front());
    for (const std::string &other : other_keys(list, keys)) {
        EntryKeys changed = keys;
        changed.instead[&list] = other;
        for (const std::string &value : values_of(open, MadeRouter(changed))) {
            if (std::find(usual.begin(), usual.end(), value) != usual.end()) continue;
            note(changed, value);
            break;
        }
    }
    if (answers.size() < 2) answers.clear();
    return answers;
}

// A read that names no entry sees one with another key: all keys left open, or one of them.
std::vector<Target> opened(const Target &target)
{
    std::vector<Target> all = {target};
    for (Key &key : all.front().keys) key.value.clear();
    for (size_t i = 0; i < target.keys.size() && target.keys.size() > 1; i++) {
        all.push_back(target);
        all.back().keys[i].value.clear();
    }
    return all;
}

// Where a read has to name the family: what it finds where one native list has an entry of that family and all others
// of another, and not without it.
std::vector<Answer> answers_of_families(const Target &target, const std::vector<const Schema *> &lists)
{
    std::vector<Answer> answers;
    const std::vector<std::string> identities = families();
    for (const Schema *list : lists) {
        if (entries_of(*list, {}).size() != identities.size()) continue;  // no list of families
        for (size_t i = 0; i < identities.size(); i++) {
            const Target named = with_family(target, identities[i]);
            const Target other = with_family(target, identities[(i + 1) % identities.size()]);
            const EntryKeys of_other = keys_of_one_entry(other);
            EntryKeys keys = of_other;
            keys.instead[list] = entries_of(*list, keys_of_one_entry(named)).front();
            const Values values = values_of(named, MadeRouter(keys));
            if (values.empty() || !values_of(named, MadeRouter(of_other)).empty()) continue;
            const Schema &key = list->children.front();
            answers.push_back({&key, path_in_router(key, keys, ""), keys.instead[list], values.front()});
        }
    }
    return answers;
}

std::vector<Answer> answers_of_keys(const Target &target)
{
    const EntryKeys keys = keys_of_one_entry(target);
    std::vector<const Schema *> lists;
    collect_lists(router::models().config, keys, lists);
    collect_lists(router::models().operational, keys, lists);
    std::vector<Answer> answers;
    for (const Schema *list : lists)
        for (const Target &open : opened(target)) {
            const std::vector<Answer> of_list = answers_of_list(open, keys, *list);
            answers.insert(answers.end(), of_list.begin(), of_list.end());
            if (!of_list.empty()) break;
        }
    if (answers.empty() && has_family(target)) answers = answers_of_families(target, lists);
    return answers;
}

}  // namespace

Values values_of(const Target &target, const MadeRouter &router)
{
    platform::Log log;
    framework::Request request(VMF_REQ_GET, router.database(), log);
    io::Document document = make_request(target, {VMF_REQ_GET});
    platform::Tree native;
    if (request.map(document.bgp.root(), native.root()) != VMF_RC_OK) return {};
    platform::Tree answer;
    if (request.answer(router.respond(native.root(), request.wants_operational()), answer) != VMF_RC_OK) return {};
    Values values;
    for (const Datatree &tree : platform::children_of(answer.root())) collect_values(tree, "/bgp", target, values);
    return values;
}

// Of the candidates those that the target's own read names.
static std::vector<const Schema *> asked_for(const Run &read)
{
    constexpr size_t most = 12;  // a read of a whole entry says nothing of one leaf
    std::vector<const Schema *> candidates;
    for (const NativeNode &native : read.native) collect_candidates(*native.schema, candidates);
    if (candidates.size() > most) candidates.clear();
    return candidates;
}

std::vector<Answer> answers_of(const Target &target)
{
    if (!is_leaf(*target.node)) return {};
    const Run read = run_request(target, {VMF_REQ_GET}, MadeRouter(entry_keys(target)));
    if (read.outcome != VMF_RC_OK) return {};
    std::vector<const Schema *> candidates;
    for (const Datatree &tree : platform::children_of(read.tree.root())) collect_selected(tree, nullptr, candidates);
    const Experiment experiment(target);
    std::vector<Answer> answers = answers_of_keys(target);
    std::vector<Answer> of_leaves;
    for (const Entries entries : {Entries::one, Entries::all}) {
        if (of_leaves.empty()) of_leaves = experiment.of_single(candidates, entries);
        if (of_leaves.empty()) of_leaves = experiment.of_all(candidates, entries);
    }
    const std::vector<Answer> of_pairs = experiment.of_pairs(asked_for(read), of_leaves, Entries::one);
    of_leaves.insert(of_leaves.end(), of_pairs.begin(), of_pairs.end());
    answers.insert(answers.end(), of_leaves.begin(), of_leaves.end());
    return answers;
}

// ---- All of them ----------------------------------------------------------------------------

Feeds::Feeds()
{
    for (const model::OcNode &node : model::openconfig_bgp()) {
        if (!is_leaf(node)) continue;
        std::vector<Answer> &answers = answers_[node.path] = answers_of(make_target(node.path));
        for (const Answer &answer : answers) fed_[path_of(*answer.native)].insert(std::string(node.path));
    }
}

const std::vector<Answer> &Feeds::answers(const model::OcNode &leaf) const
{
    static const std::vector<Answer> none;
    const auto found = answers_.find(leaf.path);
    return found != answers_.end() ? found->second : none;
}

const std::set<std::string> &Feeds::fed_by(const std::string &native_path) const
{
    static const std::set<std::string> none;
    const auto found = fed_.find(native_path);
    return found != fed_.end() ? found->second : none;
}

std::set<std::string> Feeds::feeders(const model::OcNode &node) const
{
    const std::string below = std::string(node.path) + "/";
    std::set<std::string> feeders;
    for (const auto &[path, answers] : answers_) {
        if (path != node.path && !path.starts_with(below)) continue;
        for (const Answer &answer : answers) feeders.insert(path_of(*answer.native));
    }
    return feeders;
}

const Feeds &feeds()
{
    static const Feeds made;
    return made;
}

}  // namespace explain
