// The walk against the tree of tags in tree_of_tags.txt: every walker with every tag, in every kind of request.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>
#include <sstream>

#include "mapping_run.h"
#include "names.h"
#include "tree_text.h"
#include "vmf_map_oc_bgp.h"

namespace {

struct Place {
    std::string path;  // below bgp: "global/config"; empty for the root
    std::string tag;
    std::string key;  // of a list entry
    std::set<std::string> containers;
    std::set<std::string> leaves;

    bool lies_below_state() const { return ("/" + path + "/").find("/state/") != std::string::npos; }
};

const std::vector<std::string> plain_families = {
    "ipv4-labeled-unicast", "ipv6-labeled-unicast", "l3vpn-ipv4-unicast", "l3vpn-ipv6-unicast",
    "l3vpn-ipv4-multicast", "l3vpn-ipv6-multicast", "l2vpn-vpls",         "l2vpn-evpn"};

class TreeReader {
public:
    std::vector<Place> read(std::istream &in)
    {
        for (std::string line; std::getline(in, line);)
            if (!line.empty() && line[0] != '#') read_line(line);
        return places_;
    }

private:
    void read_line(const std::string &line)
    {
        const size_t depth = line.find_first_not_of(' ') / 2;
        open_.resize(depth);
        std::istringstream words(line);
        std::string tag;
        words >> tag;
        if (tag == "families") {
            for (const char *family : {"ipv4-unicast", "ipv6-unicast"}) add_family(family, true);
            for (const std::string &family : plain_families) add_family(family, false);
            return;
        }
        const bool has_leaves = tag.ends_with(':');
        if (has_leaves) tag.pop_back();
        open_.push_back(add(open_.empty() ? SIZE_MAX : open_.back(), tag));
        for (std::string word; words >> word;) {
            if (word == "list")
                words >> places_[open_.back()].key;
            else
                places_[open_.back()].leaves.insert(word);
        }
    }

    size_t add(size_t parent, const std::string &tag)
    {
        Place place;
        place.tag = tag;
        if (parent != SIZE_MAX) {
            const std::string above = places_[parent].path;
            place.path = above.empty() ? tag : above + "/" + tag;
            places_[parent].containers.insert(tag);
        }
        places_.push_back(place);
        return places_.size() - 1;
    }

    void add_family(const std::string &family, bool sends_default_route)
    {
        const size_t container = add(open_.back(), family);
        const size_t limit = add(container, "prefix-limit");
        for (const char *tag : {"config", "state"})
            places_[add(limit, tag)].leaves = {"max-prefixes", "shutdown-threshold-pct"};
        if (!sends_default_route) return;
        for (const char *tag : {"config", "state"}) places_[add(container, tag)].leaves = {"send-default-route"};
    }

    std::vector<Place> places_;
    std::vector<size_t> open_;
};

const std::vector<Place> &places()
{
    static const std::vector<Place> the_places = [] {
        std::ifstream in(SOURCE_DIR "/tests/request/tree_of_tags.txt");
        return TreeReader().read(in);
    }();
    return the_places;
}

std::set<std::string> all_tags()
{
    std::set<std::string> tags = {"bgp", "colour", "route-reflector-client"};
    for (const Place &place : places()) {
        tags.insert(place.tag);
        tags.insert(place.leaves.begin(), place.leaves.end());
    }
    return tags;
}

std::string walker_of(const std::string &path)
{
    std::string name = "vmf_map_oc_bgp" + (path.empty() ? "" : "_" + path);
    std::erase(name, '-');
    std::replace(name.begin(), name.end(), '/', '_');
    return name;
}

using Walker = uint32_t(MapContext *, Datatree *, Datatree *);

// The family that the key of a neighbor's or a group's family entry has named, for the one container that it allows.
const char *family_of(const std::string &path)
{
    const size_t family = path.find("/afi-safi/");
    if (family == std::string::npos) return "ipv4-unicast";
    const std::string below = path.substr(family + sizeof "/afi-safi/" - 1);
    return platform::intern(below.substr(0, below.find('/')));
}

// A run whose handlers find the entries and flags that a walk to this place would have left.
struct PlaceRun : support::MappingRun {
    PlaceRun(uint32_t kind, const Place &place, const std::string &inside, const std::string &operation = "")
        : MappingRun(kind), request(tree_text(place, inside, operation))
    {
        entry = io::read_tree("entry");
        Datatree *node = &platform::children_of(entry.root())[0];
        ctx.list_node = ctx.af_node = ctx.oper_list_node = ctx.oper_af_node = node;
        ctx.af_key = "ipv4-unicast";
        ctx.af_name = family_of(place.path);
    }

    uint32_t walk(const Place &place)
    {
        auto *walker = reinterpret_cast<Walker *>(dlsym(RTLD_DEFAULT, walker_of(place.path).c_str()));
        if (walker == nullptr) {
            ADD_FAILURE() << "no walker is called " << walker_of(place.path);
            return 0;
        }
        return walker(&ctx, &platform::children_of(request.root())[0], &out.root());
    }

    static platform::Tree tree_text(const Place &place, const std::string &inside, const std::string &operation)
    {
        std::string text = place.tag + " oc-bgp" + operation + "\n";
        if (place.key == "neighbor-address") text += "  neighbor-address = 10.0.0.1\n";
        if (place.key == "peer-group-name") text += "  peer-group-name = transit\n";
        if (place.key == "afi-safi-name") text += "  afi-safi-name = bgp-types:IPV4_UNICAST\n";
        return io::read_tree(text + inside);
    }

    bool entered(const std::string &walker)
    {
        const std::vector<support::Said> lines = said();
        return std::any_of(lines.begin(), lines.end(),
                           [&](const support::Said &line) { return line.function == walker && line.text == "Start"; });
    }

    platform::Tree request;
    platform::Tree entry;
};

bool accepts(const Place &place, const std::string &tag, uint32_t kind)
{
    const bool is_get = kind == VMF_REQ_GET;
    if (place.containers.contains(tag)) return (tag != "state" && !place.lies_below_state()) || is_get;
    if (place.leaves.contains(tag)) return !place.lies_below_state() || is_get;
    return false;
}

// The walkers that remember a replace for the handlers below them.
const std::set<std::string> scoped = {
    "",
    "global",
    "global/route-selection-options",
    "global/route-selection-options/config",
    "neighbors",
    "neighbors/neighbor",
    "neighbors/neighbor/transport",
    "neighbors/neighbor/transport/config",
    "neighbors/neighbor/afi-safis",
    "neighbors/neighbor/afi-safis/afi-safi",
    "neighbors/neighbor/afi-safis/afi-safi/use-multiple-paths",
    "neighbors/neighbor/afi-safis/afi-safi/use-multiple-paths/config",
    "peer-groups",
    "peer-groups/peer-group",
    "peer-groups/peer-group/transport",
    "peer-groups/peer-group/transport/config",
    "peer-groups/peer-group/afi-safis",
    "peer-groups/peer-group/afi-safis/afi-safi",
    "peer-groups/peer-group/afi-safis/afi-safi/use-multiple-paths",
    "peer-groups/peer-group/afi-safis/afi-safi/use-multiple-paths/config",
};

constexpr uint32_t kinds[] = {VMF_REQ_GET_CONFIG, VMF_REQ_EDIT, VMF_REQ_GET, 7};

}  // namespace

TEST(WalkTree, HasTheNodesOfTheModel)
{
    size_t entries = 0;
    size_t leaves = 0;
    for (const Place &place : places()) {
        entries += place.key.empty() ? 0 : 1;
        leaves += place.leaves.size() + (place.key.empty() ? 0 : 1);
    }
    EXPECT_EQ(places().size() - entries, 182u);
    EXPECT_EQ(entries, 5u);
    EXPECT_EQ(leaves, 244u);
}

TEST(WalkTree, EveryContainerTakesItsOwnTagsAndRefusesAllOthers)
{
    for (const Place &place : places()) {
        for (const std::string &tag : all_tags()) {
            if (tag == place.key) continue;  // the walk of a list meets its key in another way
            for (const uint32_t kind : kinds) {
                const testing::ScopedTrace at(__FILE__, __LINE__,
                                              place.path + " with " + tag + " in kind " + std::to_string(kind));
                PlaceRun run(kind, place, "  " + tag + "\n");
                const uint32_t outcome = run.walk(place);
                const RequestContext &request = run.contexts.request;
                if (accepts(place, tag, kind)) {
                    EXPECT_TRUE(run.entered(walker_of(place.path.empty() ? tag : place.path + "/" + tag)));
                    EXPECT_EQ(request.config_named, tag == "config" ? 1u : 0u);
                    EXPECT_EQ(request.state_named, tag == "state" ? 1u : 0u);
                } else {
                    EXPECT_EQ(outcome, uint32_t{VMF_RC_UNSUPPORTED});
                    EXPECT_STREQ(request.rejected_tag, tag.c_str());
                    EXPECT_EQ(request.state_named, 0u);
                }
            }
        }
    }
}

// An unknown tag stops the walk inside, so that the words show what the walker has opened.
TEST(WalkTree, TwentyWalkersKeepTheReplaceScope)
{
    for (const Place &place : places()) {
        const testing::ScopedTrace at(__FILE__, __LINE__, place.path);
        const uint32_t opened = scoped.contains(place.path) ? 1 : 0;
        PlaceRun inside(VMF_REQ_EDIT, place, "  colour\n", " [replace]");
        EXPECT_EQ(inside.walk(place), uint32_t{VMF_RC_UNSUPPORTED});
        EXPECT_EQ(inside.contexts.request.replace_scope, opened);
        EXPECT_EQ(inside.contexts.request.replace_scope_owner, opened);
    }
}

TEST(WalkTree, AScopeWithNothingBelowClosesAtItsWalkersEnd)
{
    for (const Place &place : places()) {
        const testing::ScopedTrace at(__FILE__, __LINE__, place.path);
        PlaceRun run(VMF_REQ_EDIT, place, "", " [replace]");
        run.walk(place);
        EXPECT_EQ(run.contexts.request.replace_scope, 0u);
        EXPECT_EQ(run.contexts.request.replace_scope_owner, 0u);
    }
}

TEST(WalkTree, EveryScopedWalkerWritesTheOwnerAndNoOtherDoes)
{
    for (const Place &place : places()) {
        const testing::ScopedTrace at(__FILE__, __LINE__, place.path);
        PlaceRun run(VMF_REQ_EDIT, place, "  colour\n");
        run.contexts.request.replace_scope = 1;
        run.contexts.request.replace_scope_owner = 1;
        run.walk(place);
        EXPECT_EQ(run.contexts.request.replace_scope, 1u);
        EXPECT_EQ(run.contexts.request.replace_scope_owner, scoped.contains(place.path) ? 0u : 1u);
    }
}

TEST(WalkTree, OnlyAReplaceOpensTheScope)
{
    for (const Place &place : places()) {
        for (const char *operation : {" [merge]", " [create]", " [delete]", " [remove]", ""}) {
            const testing::ScopedTrace at(__FILE__, __LINE__, place.path + operation);
            PlaceRun run(VMF_REQ_EDIT, place, "  colour\n", operation);
            run.walk(place);
            EXPECT_EQ(run.contexts.request.replace_scope, 0u);
        }
    }
}
