// What sets lists apart from containers in the two native walks: their paths, entries without children, the instances
// and the address families that are not mapped.
#include <set>

#include "walk_run.h"

namespace response {
namespace {

struct List {
    Model model;
    const char *path;
    bool refuses_empty_entries;
    bool is_reported = true;

    std::string tag() const { return std::string(path).substr(std::string(path).rfind('/') + 1); }
    friend void PrintTo(const List &it, std::ostream *out) { *out << it.path; }
};

const List lists[] = {
    {Model::cfg, "/bgp/instance", false},
    {Model::cfg, "/bgp/instance/instance-as", false},
    {Model::cfg, "/bgp/instance/instance-as/four-byte-as", false},
    {Model::cfg, "/bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbors/neighbor", false},
    {Model::cfg, "/bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbor-groups/neighbor-group", false},
    {Model::cfg,
     "/bgp/instance/instance-as/four-byte-as/default-vrf/global/confederation-peer-ases/confederation-peer-as", false},
    {Model::cfg, "/bgp/instance/instance-as/four-byte-as/default-vrf/global/global-afs/global-af", false},
    {Model::cfg,
     "/bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbors/neighbor/neighbor-afs/neighbor-af",
     false},
    {Model::cfg,
     "/bgp/instance/instance-as/four-byte-as/default-vrf/bgp-entity/neighbor-groups/neighbor-group/neighbor-group-afs/"
     "neighbor-group-af",
     false},
    {Model::oper, "/bgp/instances/instance", true},
    {Model::oper, "/bgp/instances/instance/instance-active/default-vrf/afs/af", false},
    {Model::oper, "/bgp/instances/instance/instance-active/default-vrf/afs/af/af-process-info", true, false},
    {Model::oper, "/bgp/instances/instance/instance-active/default-vrf/neighbors/neighbor", true},
    {Model::oper, "/bgp/instances/instance/instance-active/default-vrf/neighbors/neighbor/af-data", true},
};

struct WalkLists : testing::TestWithParam<List> {
    WalkLists() : list(GetParam()), place(*find_place(list.model, list.path)), run(list.model) {}

    uint32_t walk(const std::string &inside) { return run.walk(bare_text(list.model, list.path, inside)); }

    // Two entries, the first of which was changed, and the walk of them.
    template<class Change>
    uint32_t walk_changed(Change change)
    {
        const std::string parent = place.path.substr(0, place.path.rfind('/'));
        const std::string entry = list.tag() + "\n  " + place_leaf() + " = default\n";
        run.tree = io::read_tree(bare_text(list.model, parent, entry + entry));
        Datatree &node = platform::children_of(node_at(run.tree, parent.substr(1))).front();
        const Datatree before = node;
        change(node);
        const uint32_t outcome = run.walk();
        node.present[0] = before.present[0];
        node.subtrees = before.subtrees;
        node.subtree_count = before.subtree_count;
        return outcome;
    }

    std::string place_leaf() const { return place.leaves.empty() ? "colour" : place.leaves.front(); }

    // How often the list was reported with this number of children.
    ptrdiff_t reported(int32_t children) const
    {
        const auto &entered = run.probe.entered;
        return std::count(entered.begin(), entered.end(), Probe::Entered{list.path, children});
    }

    const List list;
    const Place &place;
    WalkRun run;
};

template<class Which>
std::vector<List> lists_that(Which which)
{
    std::vector<List> found;
    std::copy_if(std::begin(lists), std::end(lists), std::back_inserter(found), which);
    return found;
}

std::string list_name(const testing::TestParamInfo<List> &tested)
{
    return symbol("", tested.param.model, tested.param.path).substr(sizeof "zr_bgp_" - 1);
}

INSTANTIATE_TEST_SUITE_P(Of, WalkLists, testing::ValuesIn(lists), list_name);

struct WalkListsWithLeaves : WalkLists {};
INSTANTIATE_TEST_SUITE_P(Of, WalkListsWithLeaves, testing::ValuesIn(lists_that([](const List &list) {
                             return !find_place(list.model, list.path)->leaves.empty();
                         })),
                         list_name);

struct WalkReportedLists : WalkLists {};
INSTANTIATE_TEST_SUITE_P(Of, WalkReportedLists,
                         testing::ValuesIn(lists_that([](const List &list) { return list.is_reported; })), list_name);

struct WalkRefusingLists : WalkLists {};
INSTANTIATE_TEST_SUITE_P(Of, WalkRefusingLists,
                         testing::ValuesIn(lists_that([](const List &list) { return list.refuses_empty_entries; })),
                         list_name);

TEST(WalkListsOfTheTrees, are_all_here)
{
    std::set<std::string> here, there;
    for (const List &list : lists) here.insert(name_of(list.model) + std::string(list.path));
    for (const Model model : both_models)
        for (const Place &place : places(model))
            if (place.is_list) there.insert(name_of(model) + place.path);
    EXPECT_EQ(here, there);
}

TEST_P(WalkLists, tell_the_framework_their_path_and_the_number_of_children)
{
    EXPECT_EQ(walk("colour\nflavour\n"), VMF_RC_OK);
    EXPECT_EQ(reported(2), list.is_reported ? 1 : 0);
    std::vector<std::string> expected;
    for (const Place &outer : places(list.model)) {
        if (!outer.is_list || !(place.path + "/").starts_with(outer.path + "/")) continue;
        if (outer.tag() != "af-process-info") expected.push_back(outer.path);
    }
    std::vector<std::string> entered;
    for (const Probe::Entered &it : run.probe.entered) entered.push_back(it.list);
    EXPECT_EQ(entered, expected);
}

TEST_P(WalkListsWithLeaves, tell_it_before_their_children_are_walked)
{
    size_t reports = 0;
    run.probe.on_visit = [&](const Visit &, MapContext &) { reports = run.probe.entered.size(); };
    EXPECT_EQ(walk(place_leaf() + " = default\n"), VMF_RC_OK);
    EXPECT_EQ(run.visited().back(), leaf_handler(list.model, place.path + "/" + place_leaf()));
    EXPECT_EQ(reports, run.probe.entered.size());
}

TEST_P(WalkReportedLists, stop_where_the_framework_does_not_take_them)
{
    static thread_local const char *refused;
    refused = list.path;
    const platform::Observer observer = {[](void *, const platform::Operation &operation) {
                                             const bool is_it =
                                                 std::string(operation.name) == "vmf_map_update_current_list_node" &&
                                                 std::string(operation.path) == refused;
                                             return is_it ? some_failure : uint32_t{0};
                                         },
                                         nullptr};
    platform::observe(&observer);
    EXPECT_EQ(walk_changed([](Datatree &) {}), some_failure);
    platform::observe(nullptr);
    EXPECT_EQ(reported(1), 1);
    EXPECT_EQ(run.visited(), way_to(place, list.model));
    EXPECT_EQ(run.contexts.request.rejected_tag, nullptr);
    EXPECT_EQ(run.said_by(place.path), framed({}));
}

TEST_P(WalkLists, without_children_are_skipped_or_refused)
{
    const auto bit_is_clear = [](Datatree &node) { node.present[0] &= static_cast<uint8_t>(~VMF_DT_SUBTREES); };
    const auto count_is_0 = [](Datatree &node) { node.subtree_count = 0; };
    const auto count_is_0_without_array = [](Datatree &node) {
        node.subtree_count = 0;
        node.subtrees = nullptr;
    };
    const auto check = [&](const auto &change) {
        const uint32_t outcome = walk_changed(change);
        const Lines said = run.said_by(place.path);
        Lines expected = way_to(place, list.model);
        if (!list.refuses_empty_entries) {
            EXPECT_EQ(outcome, VMF_RC_OK);
            EXPECT_EQ(reported(0), 0);
            EXPECT_EQ(reported(1), 1);  // the second entry
            if (!place.leaves.empty()) expected.push_back(leaf_handler(list.model, place.path + "/" + place_leaf()));
            EXPECT_EQ(run.contexts.request.rejected_tag, nullptr);
            EXPECT_EQ(Lines(said.begin(), said.begin() + 2), framed({}));
        } else {
            EXPECT_EQ(outcome, VMF_RC_BAD_KEY);
            EXPECT_EQ(reported(0) + reported(1), 0);
            EXPECT_STREQ(run.contexts.request.rejected_tag, list.tag().c_str());
            EXPECT_EQ(run.probe.copied, Lines{"VMF MAP: " + list.tag()});
            EXPECT_EQ(said, framed({"ERR No keys specified with a list node."}));
            vmf_gpb_free(run.contexts.request.rejected_tag);
            run.contexts.request.rejected_tag = nullptr;
        }
        EXPECT_EQ(run.visited(), expected);
        run.probe.copied.clear();
    };
    check(bit_is_clear);
    check(count_is_0);
    check(count_is_0_without_array);
}

TEST_P(WalkRefusingLists, without_children_are_refused_too_when_there_is_no_memory_for_the_tag)
{
    const platform::Observer observer = {[](void *, const platform::Operation &operation) {
                                             return std::string(operation.name) == "vmf_strdup" ? some_failure
                                                                                                : uint32_t{0};
                                         },
                                         nullptr};
    platform::observe(&observer);
    EXPECT_EQ(walk(""), VMF_RC_BAD_KEY);
    platform::observe(nullptr);
    EXPECT_EQ(run.contexts.request.rejected_tag, nullptr);
}

TEST_P(WalkLists, are_walked_without_their_key)
{
    EXPECT_EQ(walk("colour\n"), VMF_RC_OK);
    EXPECT_EQ(run.visited(), way_to(place, list.model));
    EXPECT_EQ(run.said_by(place.path), framed({processing("colour"), "TRC Unsupported tag. Ignoring."}));
}

// ---- Instances ------------------------------------------------------------------------------

const std::string instance_handler = "vmf_map_leaf_zr_bgp_cfg_bgp_instance_instancename";
const std::string as_handler = "vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_as";

TEST(WalkInstances, of_the_configuration_other_than_the_default_one_are_left_at_once)
{
    WalkRun run(Model::cfg);
    EXPECT_EQ(run.walk("bgp zr-cfg\n"
                       "  instance\n"
                       "    instance-name = blue\n"
                       "    instance-as\n"
                       "      as = 1\n"
                       "  instance\n"
                       "    instance-name = default\n"
                       "    instance-as\n"
                       "      as = 2\n"),
              VMF_RC_OK);
    EXPECT_EQ(run.visited(), (Lines{"vmf_map_cont_zr_bgp_cfg_bgp", instance_handler, as_handler}));
    EXPECT_STREQ(run.probe.visits[2].node->value, "2");
    EXPECT_EQ(run.said_by("/bgp/instance"),
              (Lines{"TRC Start", processing("instance-name"), "TRC Ignoring non-default instance.", "TRC End",
                     "TRC Start", processing("instance-name"), processing("instance-as"), "TRC End"}));
}

TEST(WalkInstances, of_the_configuration_are_known_only_when_their_name_is_met)
{
    WalkRun run(Model::cfg);
    EXPECT_EQ(run.walk("bgp zr-cfg\n"
                       "  instance\n"
                       "    instance-as\n"
                       "      as = 1\n"
                       "    instance-name = blue\n"
                       "    instance-as\n"
                       "      as = 2\n"),
              VMF_RC_OK);
    EXPECT_EQ(run.visited(), (Lines{"vmf_map_cont_zr_bgp_cfg_bgp", as_handler}));
    EXPECT_STREQ(run.probe.visits[1].node->value, "1");
}

TEST(WalkInstances, of_the_configuration_have_the_name_that_the_value_says_whether_it_is_present_or_not)
{
    const std::string text = "bgp zr-cfg\n"
                             "  instance\n"
                             "    instance-name = default\n";
    WalkRun run(Model::cfg);
    run.tree = io::read_tree(text);
    Datatree &name = node_at(run.tree, "bgp/instance/instance-name");
    name.present[0] &= static_cast<uint8_t>(~VMF_DT_VALUE);
    EXPECT_EQ(run.walk(), VMF_RC_OK);
    EXPECT_EQ(run.visited().back(), instance_handler);

    char *value = name.value;
    name.value = nullptr;
    name.present[0] |= VMF_DT_VALUE;
    EXPECT_EQ(run.walk(), VMF_RC_OK);
    EXPECT_EQ(run.visited(), Lines{"vmf_map_cont_zr_bgp_cfg_bgp"});
    name.value = value;
}

TEST(WalkInstances, of_the_configuration_compare_the_whole_name)
{
    for (const char *name : {"Default", "default ", "defaults", "defaul", ""}) {
        WalkRun run(Model::cfg);
        EXPECT_EQ(run.walk(std::string("bgp zr-cfg\n  instance\n    instance-name = \"") + name + "\"\n"), VMF_RC_OK);
        EXPECT_EQ(run.visited(), Lines{"vmf_map_cont_zr_bgp_cfg_bgp"}) << name;
    }
}

TEST(WalkInstances, of_the_operational_tree_are_walked_whatever_their_name)
{
    WalkRun run(Model::oper);
    EXPECT_EQ(run.walk("bgp zr-oper\n"
                       "  instances\n"
                       "    instance\n"
                       "      instance-name = blue\n"
                       "      instance-active\n"
                       "        default-vrf\n"
                       "          neighbors\n"
                       "            neighbor\n"
                       "              neighbor-address = 10.0.0.1\n"
                       "    instance\n"
                       "      instance-active\n"
                       "        default-vrf\n"
                       "          neighbors\n"
                       "            neighbor\n"
                       "              neighbor-address = 10.0.0.2\n"
                       "      instance-name\n"),
              VMF_RC_OK);
    const std::string instance = "/bgp/instances/instance";
    const std::string neighbors = instance + "/instance-active/default-vrf/neighbors";
    const Lines way = {container_handler(Model::oper, instance + "/instance-active"),
                       container_handler(Model::oper, instance + "/instance-active/default-vrf"),
                       container_handler(Model::oper, neighbors),
                       leaf_handler(Model::oper, neighbors + "/neighbor/neighbor-address")};
    const std::string name = leaf_handler(Model::oper, instance + "/instance-name");
    Lines expected = {container_handler(Model::oper, "/bgp"), container_handler(Model::oper, "/bgp/instances"), name};
    expected.insert(expected.end(), way.begin(), way.end());
    expected.insert(expected.end(), way.begin(), way.end());
    expected.push_back(name);
    EXPECT_EQ(run.visited(), expected);
}

// The name's handler does nothing, and neither does that of the instance behind it know the one before.
TEST(WalkInstances, of_the_operational_tree_share_the_neighbors_of_one_address)
{
    WalkRun run(Model::oper);
    run.probe.hands_on = true;
    const std::string instance = "    instance\n"
                                 "      instance-name = %\n"
                                 "      instance-active\n"
                                 "        default-vrf\n"
                                 "          neighbors\n"
                                 "            neighbor\n"
                                 "              neighbor-address = 10.0.0.1\n"
                                 "            neighbor\n"
                                 "              neighbor-address = 10.0.0.%\n";
    const auto named = [&](char number) {
        std::string text = instance;
        std::replace(text.begin(), text.end(), '%', number);
        return text;
    };
    ASSERT_EQ(run.walk("bgp zr-oper\n  instances\n" + named('2') + named('3')), VMF_RC_OK);
    Lines addresses;
    for (const Datatree &neighbor : platform::children_of(node_at(run.out, "bgp/neighbors")))
        for (const Datatree &child : platform::children_of(neighbor))
            if (std::string(platform::tag_of(child)) == "neighbor-address")
                addresses.push_back(platform::value_of(child));
    EXPECT_EQ(addresses, (Lines{"10.0.0.1", "10.0.0.2", "10.0.0.3"}));
}

TEST(WalkAfProcessInfo, has_a_container_handler_that_no_walk_calls)
{
    const std::string path = "/bgp/instances/instance/instance-active/default-vrf/afs/af/af-process-info";
    EXPECT_EQ(find_node(Model::oper, "af/af-process-info").handler, container_handler(Model::oper, path));
    WalkRun run(Model::oper);
    EXPECT_EQ(run.walk(bare_text(Model::oper, path, "global\n  paths-num = 7\n")), VMF_RC_OK);
    const Lines visited = run.visited();
    EXPECT_EQ(std::count(visited.begin(), visited.end(), container_handler(Model::oper, path)), 0);
    EXPECT_EQ(visited.back(), leaf_handler(Model::oper, path + "/global/paths-num"));
}

// ---- Address families -----------------------------------------------------------------------

struct FamilyList {
    const char *path;
    const char *unmapped;  // what is said of a family that is not mapped
    friend void PrintTo(const FamilyList &it, std::ostream *out) { *out << it.path; }
};

const FamilyList family_lists[] = {
    {"neighbors/neighbor/neighbor-afs/neighbor-af", "TRC Unsupported af-name blue-unicast. Skipping it."},
    {"neighbor-groups/neighbor-group/neighbor-group-afs/neighbor-group-af",
     "TRC Unsupported af-name blue-unicast. Skipping it."},
    {"global/global-afs/global-af", "TRC Unsupported af-name. Skipping it."},
};

struct WalkFamilies : testing::TestWithParam<FamilyList> {
    WalkFamilies()
        : path(find_node(Model::cfg, GetParam().path).path), leaf(find_place(Model::cfg, path)->leaves[1]),
          entry(path.substr(path.rfind('/') + 1)), run(Model::cfg)
    {
        // As the handlers do: the entry, the name that the messages give, and whether it is mapped.
        run.probe.on_visit = [this](const Visit &visit, MapContext &ctx) {
            if (visit.handler != leaf_handler(Model::cfg, path + "/af-name")) return;
            ctx.af_name = "blue-unicast";
            ctx.af_node = visit.mapped == &run.out.root() ? const_cast<Datatree *>(visit.node) : nullptr;
            if (std::string(platform::value_of(*visit.node)) != "blue") ctx.af_mapped = 1;
        };
    }

    uint32_t walk(const std::string &entries)
    {
        return run.walk(bare_text(Model::cfg, path.substr(0, path.rfind('/')), entries));
    }
    std::string family(const std::string &name, const std::string &value) const
    {
        return entry + "\n  af-name = " + name + "\n  " + leaf + " = " + value + "\n";
    }

    // Values of the leaves that were met, and their families: "af-name=blue leaf=1".
    Lines met() const
    {
        Lines values;
        for (const Visit &visit : run.probe.visits)
            if (visit.children < 0) values.push_back(std::string(visit.node->tag) + "=" + visit.node->value);
        return values;
    }

    const std::string path, leaf, entry;
    WalkRun run;
};
INSTANTIATE_TEST_SUITE_P(Of, WalkFamilies, testing::ValuesIn(family_lists), [](const auto &tested) {
    std::string name = symbol("", Model::cfg, std::string("_") + tested.param.path);
    return name.substr(name.rfind('_') + 1);
});

TEST_P(WalkFamilies, that_are_not_mapped_end_their_own_entry_only)
{
    EXPECT_EQ(walk(family("red", "1") + family("blue", "2") + family("green", "3")), VMF_RC_OK);
    EXPECT_EQ(met(), (Lines{"af-name=red", leaf + "=1", "af-name=blue", "af-name=green", leaf + "=3"}));
    EXPECT_EQ(run.said_by(path), (Lines{"TRC Start", processing("af-name"), processing(leaf), "TRC End",     //
                                        "TRC Start", processing("af-name"), GetParam().unmapped, "TRC End",  //
                                        "TRC Start", processing("af-name"), processing(leaf), "TRC End"}));
}

TEST_P(WalkFamilies, are_unmapped_until_their_handler_says_otherwise)
{
    run.ctx.af_mapped = 1;
    EXPECT_EQ(walk(family("blue", "1")), VMF_RC_OK);
    ASSERT_EQ(met(), Lines{"af-name=blue"});
    EXPECT_EQ(run.probe.visits.back().af_mapped, 0u);
}

TEST_P(WalkFamilies, that_are_not_mapped_give_the_outcome_of_their_handler)
{
    run.probe.outcomes[leaf_handler(Model::cfg, path + "/af-name")] = some_failure;
    EXPECT_EQ(walk(family("blue", "1") + family("red", "2")), some_failure);
    EXPECT_EQ(met(), Lines{"af-name=blue"});
    EXPECT_EQ(run.said_by(path), framed({processing("af-name"), GetParam().unmapped}));
}

TEST_P(WalkFamilies, that_are_mapped_and_fail_end_the_walk_without_a_word)
{
    run.probe.outcomes[leaf_handler(Model::cfg, path + "/af-name")] = some_failure;
    EXPECT_EQ(walk(family("red", "1")), some_failure);
    EXPECT_EQ(met(), Lines{"af-name=red"});
    EXPECT_EQ(run.said_by(path), framed({processing("af-name")}));
}

TEST_P(WalkFamilies, whose_name_comes_late_have_their_first_children_mapped_into_the_entry_before)
{
    EXPECT_EQ(walk(family("red", "1") +  //
                   entry + "\n  " + leaf + " = 2\n  af-name = green\n  " + leaf + " = 3\n"),
              VMF_RC_OK);
    ASSERT_EQ(met(), (Lines{"af-name=red", leaf + "=1", leaf + "=2", "af-name=green", leaf + "=3"}));
    std::vector<const Datatree *> entries;
    for (const Visit &visit : run.probe.visits)
        if (visit.children < 0) entries.push_back(visit.af_node);
    EXPECT_EQ(entries[2], entries[1]);
    EXPECT_NE(entries[4], entries[1]);
}

TEST_P(WalkFamilies, whose_name_comes_late_and_is_not_mapped_lose_only_what_follows)
{
    EXPECT_EQ(walk(entry + "\n  " + leaf + " = 1\n  af-name = blue\n  " + leaf + " = 2\n"), VMF_RC_OK);
    EXPECT_EQ(met(), (Lines{leaf + "=1", "af-name=blue"}));
}

TEST(WalkOperationalFamilies, are_walked_whether_mapped_or_not)
{
    for (const char *end : {"afs/af", "neighbor/af-data"}) {
        const std::string path = find_node(Model::oper, end).path;
        WalkRun run(Model::oper);
        run.probe.on_visit = nullptr;
        run.ctx.af_mapped = 7;
        const std::string more = end == std::string("afs/af") ? "global-af-process-info\n" : "prefixes-accepted = 1\n";
        EXPECT_EQ(run.walk(bare_text(Model::oper, path, "af-name = blue\n" + more)), VMF_RC_OK);
        EXPECT_EQ(run.visited().end()[-2], leaf_handler(Model::oper, path + "/af-name"));
        EXPECT_EQ(run.ctx.af_mapped, 7u);
    }
}

// ---- Refusals behind other entries ----------------------------------------------------------

TEST(WalkRefusals, of_an_operational_entry_end_the_whole_walk)
{
    const std::string neighbors = "/bgp/instances/instance/instance-active/default-vrf/neighbors";
    WalkRun run(Model::oper);
    EXPECT_EQ(run.walk(bare_text(Model::oper, neighbors,
                                 "neighbor\n"
                                 "  neighbor-address = 10.0.0.1\n"
                                 "neighbor\n"
                                 "neighbor\n"
                                 "  neighbor-address = 10.0.0.3\n")),
              VMF_RC_BAD_KEY);
    const Lines visited = run.visited();
    EXPECT_EQ(
        std::count(visited.begin(), visited.end(), leaf_handler(Model::oper, neighbors + "/neighbor/neighbor-address")),
        1);
    EXPECT_STREQ(run.contexts.request.rejected_tag, "neighbor");
    EXPECT_EQ(run.failures(),
              Lines{symbol("vmf_map_", Model::oper, neighbors + "/neighbor") + ": ERR No keys specified with a list "
                                                                               "node."});
}

}  // namespace
}  // namespace response
