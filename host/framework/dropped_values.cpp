#include <algorithm>
#include <map>
#include <unordered_map>

#include "get_request.h"
#include "mapped_again.h"
#include "missing.h"
#include "native_leaves.h"

namespace framework {

namespace {

// The native leaves for which a handler ran, with what it said.
void collect_handled(const Step &step, std::unordered_map<const Datatree *, const Step *> &handled)
{
    if (step.kind == Step::Kind::function && !step.walks && step.at != nullptr) handled.emplace(step.at, &step);
    for (const Step &inner : step.steps) collect_handled(inner, handled);
}

bool adds_any(const Step &step)
{
    return std::any_of(step.steps.begin(), step.steps.end(), [](const Step &inner) {
        return (inner.kind == Step::Kind::add && !inner.failed) || adds_any(inner);
    });
}

// Halves of a number, and the names that every native path goes by.
bool says_nothing_itself(const NativeLeaf &leaf)
{
    constexpr std::string_view names[] = {"as", "as-xx", "instance-name", "bgp-running"};
    return std::find(std::begin(names), std::end(names), tag_text(*leaf.leaf)) != std::end(names);
}

// Takes the leaves of a schema path out.
void take_out(Datatree &node, const std::string &schema, const std::string &wanted)
{
    int32_t kept = 0;
    for (Datatree &child : platform::children_of(node)) {
        const std::string path = schema + "/" + std::string(tag_text(child));
        take_out(child, path, wanted);
        if (path == wanted)
            platform::release(child);
        else
            std::swap(node.subtrees[kept++], child);
    }
    if (kept < node.subtree_count) node.subtree_count = kept;
}

// Whether anything comes of the native leaves of a schema path: in the answer to the request, or in that to a read of
// everything.
class Influence {
public:
    Influence(const Recording &recording, const platform::Database &database)
        : recording_(recording), database_(database)
    {
    }

    bool has(const std::string &schema)
    {
        if (with_.empty())
            for (const Read read : reads) with_.push_back(answer(read, copy_of(recording_.response.root())));
        for (size_t at = 0; at < std::size(reads); at++) {
            platform::Tree without = copy_of(recording_.response.root());
            for (Datatree &tree : platform::children_of(without.root())) take_out(tree, schema_of_root(tree), schema);
            if (answer(reads[at], std::move(without)) != with_[at]) return true;
        }
        return false;
    }

private:
    enum class Read : uint8_t { as_asked, everything };
    static constexpr Read reads[] = {Read::as_asked, Read::everything};

    std::string answer(Read read, platform::Tree response) const
    {
        const bool is_as_asked = read == Read::as_asked;
        MappedAgain again(is_as_asked ? recording_.kind : uint32_t{VMF_REQ_GET}, database_,
                          is_as_asked ? copy_of_request(recording_.request.bgp.root()) : io::read_path("/bgp"));
        return again.answer_to(std::move(response));
    }

    const Recording &recording_;
    const platform::Database &database_;
    std::vector<std::string> with_;
};

std::string reason_of(const Step &handler)
{
    for (const Step &step : handler.steps)
        if (step.kind == Step::Kind::remark || step.kind == Step::Kind::error)
            return handler.name + " says: " + step.name;
    return handler.name + " makes nothing of it";
}

}  // namespace

std::vector<std::string> dropped_values(const Recording &recording, const platform::Database &database,
                                        io::Secrets secrets)
{
    std::unordered_map<const Datatree *, const Step *> handled;
    collect_handled(recording.way_back, handled);

    struct Silent {
        const NativeLeaf *first;
        const Step *handler;  // null: none
        size_t count;
    };
    std::vector<std::string> order;
    std::map<std::string, Silent> by_schema;
    const std::vector<NativeLeaf> leaves = native_leaves(recording.response.root());
    for (const NativeLeaf &leaf : leaves) {
        const auto found = handled.find(leaf.leaf);
        const Step *handler = found != handled.end() ? found->second : nullptr;
        if ((handler != nullptr && adds_any(*handler)) || says_nothing_itself(leaf)) continue;
        const auto [place, is_new] = by_schema.try_emplace(leaf.schema, Silent{&leaf, handler, 0});
        place->second.count++;
        if (is_new) order.push_back(leaf.schema);
    }

    std::vector<std::string> lines;
    Influence influence(recording, database);
    for (const std::string &schema : order) {
        const Silent &silent = by_schema.at(schema);
        // It may be held for another leaf, or be kept out of this answer only because nobody asked for it.
        if (silent.handler != nullptr && influence.has(schema)) continue;
        std::string line = shown(*silent.first, secrets) + ": " +
                           (silent.handler != nullptr ? reason_of(*silent.handler) : "no handler takes it");
        if (silent.count > 1) line += " (and so " + std::to_string(silent.count - 1) + " more)";
        lines.push_back(std::move(line));
    }
    return lines;
}

}  // namespace framework
