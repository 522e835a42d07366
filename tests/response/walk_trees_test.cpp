// The two native walks against the trees of tags: every place with every tag, in every kind of request.
#include <set>

#include "walk_run.h"

namespace response {
namespace {

struct WalkTrees : testing::TestWithParam<Model> {
    Model model = GetParam();

    std::set<std::string> all_tags() const
    {
        std::set<std::string> tags = {"colour", "config", "state", "BGP", "entire", "remove-private-as-entire-as-path"};
        for (const Place &place : places(model)) {
            tags.insert(place.tag());
            tags.insert(place.leaves.begin(), place.leaves.end());
        }
        return tags;
    }
};
INSTANTIATE_TEST_SUITE_P(Of, WalkTrees, testing::Values(Model::cfg, Model::oper), model_name);

TEST_P(WalkTrees, have_the_nodes_of_the_model_with_handlers_named_by_their_path)
{
    size_t lists = 0;
    for (const Place &place : places(model)) {
        AT(place.path);
        const Node &node = find_node(model, place.path.substr(1));
        EXPECT_EQ(node.kind, place.is_list ? "list" : "container");
        lists += place.is_list ? 1 : 0;
        EXPECT_EQ(node.handler.empty(), place.is_list && place.tag() != "af-process-info");
        if (!node.handler.empty()) {
            EXPECT_EQ(node.handler, container_handler(model, place.path));
        }
        for (const std::string &leaf : place.leaves) {
            const Node &of_leaf = find_node(model, (place.path + "/" + leaf).substr(1));
            EXPECT_TRUE(of_leaf.is_leaf());
            EXPECT_EQ(of_leaf.handler, leaf_handler(model, of_leaf.path));
        }
    }
    EXPECT_EQ(lists, model == Model::cfg ? 9u : 5u);
    EXPECT_EQ(leaf_handler(Model::cfg, find_node(Model::cfg, "neighbor/neighbor-address").path),
              "vmf_map_leaf_zr_bgp_cfg_bgp_instance_instanceas_fourbyteas_defaultvrf_bgpentity_neighbors_neighbor_"
              "neighboraddress");
    EXPECT_EQ(leaf_handler(Model::oper, find_node(Model::oper, "ipv4vpna-mcastddress").path),
              "vmf_map_leaf_zr_bgp_oper_bgp_instances_instance_instanceactive_defaultvrf_neighbors_neighbor_"
              "connectionremoteaddress_ipv4vpnamcastddress");
}

TEST_P(WalkTrees, lead_every_tag_of_every_place_to_its_handler)
{
    for (const Place &place : places(model)) {
        for (const std::string &tag : tags_of(place)) {
            AT(place.path + " with " + tag);
            WalkRun run(model);
            const std::string handler = handler_of(model, place, tag);
            EXPECT_EQ(run.walk(bare_text(model, place.path, child_text(model, place, tag))), VMF_RC_OK);

            Lines expected = way_to(place, model);
            const size_t way = expected.size();
            if (!handler.empty()) expected.push_back(handler);
            ASSERT_EQ(run.visited(), expected);
            for (size_t i = 0; i < way; i++) EXPECT_EQ(run.probe.visits[i].children, 1);
            for (const Visit &visit : run.probe.visits) EXPECT_EQ(visit.mapped, &run.out.root());
            if (handler.empty()) continue;
            const bool is_leaf = find_place(model, place.path + "/" + tag) == nullptr;
            EXPECT_EQ(run.probe.visits.back().children, is_leaf ? -1 : 0);
            EXPECT_EQ(run.probe.visits.back().node, &node_at(run.tree, path_of_nodes(place) + "/" + tag));
            EXPECT_EQ(run.said_by(place.path), framed({processing(tag)}));
        }
    }
}

TEST_P(WalkTrees, ignore_every_other_tag_and_go_on)
{
    for (const Place &place : places(model)) {
        const Lines own = tags_of(place);
        const std::string known = child_text(model, place, own.front());
        for (const std::string &tag : all_tags()) {
            if (std::find(own.begin(), own.end(), tag) != own.end()) continue;
            AT(place.path + " with " + tag);
            WalkRun run(model);
            EXPECT_EQ(run.walk(bare_text(model, place.path, tag + " = default\n" + known)), VMF_RC_OK);
            Lines expected = way_to(place, model);
            if (const std::string next = handler_of(model, place, own.front()); !next.empty()) expected.push_back(next);
            EXPECT_EQ(run.visited(), expected);
            EXPECT_EQ(run.contexts.request.rejected_tag, nullptr);
            EXPECT_EQ(run.said_by(place.path),
                      framed({processing(tag), "TRC Unsupported tag. Ignoring.", processing(own.front())}));
        }
    }
}

TEST_P(WalkTrees, take_children_in_the_order_in_which_they_stand)
{
    for (const Place &place : places(model)) {
        Lines tags = tags_of(place);
        tags.push_back(tags.front());  // once more
        for (const bool backwards : {false, true}) {
            AT(place.path + (backwards ? " backwards" : ""));
            if (backwards) std::reverse(tags.begin(), tags.end());
            std::string inside;
            Lines expected = way_to(place, model);
            for (const std::string &tag : tags) {
                inside += child_text(model, place, tag);
                if (const std::string handler = handler_of(model, place, tag); !handler.empty())
                    expected.push_back(handler);
            }
            WalkRun run(model);
            EXPECT_EQ(run.walk(bare_text(model, place.path, inside)), VMF_RC_OK);
            EXPECT_EQ(run.visited(), expected);
            if (!place.is_list) {
                EXPECT_EQ(run.probe.visits[way_to(place, model).size() - 1].children,
                          static_cast<int32_t>(tags.size()));
            }
        }
    }
}

TEST_P(WalkTrees, compare_tags_as_the_platform_does)
{
    const auto upper = [](std::string text) {
        for (char &letter : text)
            if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
        return text;
    };
    for (const Place &place : places(model)) {
        for (const std::string &tag : tags_of(place)) {
            const std::string handler = handler_of(model, place, tag);
            if (handler.empty()) continue;
            AT(place.path + " with " + tag);
            WalkRun run(model);
            run.probe.match = [&](const char *a, const char *b) { return upper(a) == upper(b) ? 1u : 0u; };
            run.tree = io::read_tree(bare_text(model, place.path, upper(tag) + " = DEFAULT\n"));
            EXPECT_EQ(run.walk(), VMF_RC_OK);
            EXPECT_EQ(run.visited().back(), handler);
        }
    }
}

TEST_P(WalkTrees, do_not_look_at_namespaces_or_operations)
{
    for (const Place &place : places(model)) {
        AT(place.path);
        WalkRun run(model);
        const std::string tag = tags_of(place).front();
        run.tree = io::read_tree(bare_text(model, place.path, child_text(model, place, tag)));
        Datatree *node = &node_at(run.tree, path_of_nodes(place) + "/" + tag);
        node->present[0] &= static_cast<uint8_t>(~VMF_DT_NAMESPACE);
        platform::set_operation(*node, VMF_OP_DELETE);
        platform::set_operation(node_at(run.tree, path_of_nodes(place)), VMF_OP_REPLACE);
        EXPECT_EQ(run.walk(), VMF_RC_OK);
        EXPECT_EQ(run.contexts.request.replace_scope, 0u);
        EXPECT_EQ(run.ctx.list_op_present, 0u);
        if (const std::string handler = handler_of(model, place, tag); !handler.empty()) {
            EXPECT_EQ(run.visited().back(), handler);
        }
    }
}

TEST_P(WalkTrees, write_nothing_into_the_output)
{
    for (const Place &place : places(model)) {
        WalkRun run(model);
        std::string inside;
        for (const std::string &tag : tags_of(place)) inside += child_text(model, place, tag);
        ASSERT_EQ(run.walk(bare_text(model, place.path, inside)), VMF_RC_OK);
        EXPECT_EQ(run.out.root().present[0], 0u) << place.path;
    }
}

TEST(WalkLog, names_each_walker_and_each_child)
{
    WalkRun run(Model::cfg);
    ASSERT_EQ(run.walk("bgp zr-cfg\n"
                       "  instance\n"
                       "    instance-name = default\n"
                       "    colour\n"
                       "    instance-as\n"
                       "      as = 0\n"),
              VMF_RC_OK);
    Lines lines;
    for (const support::Said &line : run.said()) lines.push_back(line.function + ": " + line.level + " " + line.text);
    EXPECT_EQ(lines, (Lines{"vmf_map_zr_bgp_cfg_bgp: TRC Start",                      //
                            "vmf_map_zr_bgp_cfg_bgp: TRC Processing tag 'instance'",  //
                            "vmf_map_zr_bgp_cfg_bgp_instance: TRC Start",             //
                            "vmf_map_zr_bgp_cfg_bgp_instance: TRC Processing tag 'instance-name'",
                            "vmf_map_zr_bgp_cfg_bgp_instance: TRC Processing tag 'colour'",  //
                            "vmf_map_zr_bgp_cfg_bgp_instance: TRC Unsupported tag. Ignoring.",
                            "vmf_map_zr_bgp_cfg_bgp_instance: TRC Processing tag 'instance-as'",
                            "vmf_map_zr_bgp_cfg_bgp_instance_instanceas: TRC Start",
                            "vmf_map_zr_bgp_cfg_bgp_instance_instanceas: TRC Processing tag 'as'",
                            "vmf_map_zr_bgp_cfg_bgp_instance_instanceas: TRC End",
                            "vmf_map_zr_bgp_cfg_bgp_instance: TRC End",  //
                            "vmf_map_zr_bgp_cfg_bgp: TRC End"}));
}

// ---- The kind of the request ----------------------------------------------------------------

constexpr uint32_t other_kinds[] = {VMF_REQ_GET_CONFIG, VMF_REQ_EDIT, 7, 15};

TEST(WalkKinds, make_no_difference_to_the_configuration_walk)
{
    for (const Place &place : places(Model::cfg)) {
        std::string inside;
        for (const std::string &tag : tags_of(place)) inside += child_text(Model::cfg, place, tag);
        const std::string text = bare_text(Model::cfg, place.path, inside);
        WalkRun get(Model::cfg);
        ASSERT_EQ(get.walk(text), VMF_RC_OK);
        for (const uint32_t kind : other_kinds) {
            AT(place.path + " in kind " + std::to_string(kind));
            WalkRun run(Model::cfg, kind);
            run.contexts.request.config_named = 1;
            run.contexts.request.state_named = 1;
            EXPECT_EQ(run.walk(text), VMF_RC_OK);
            EXPECT_EQ(run.visited(), get.visited());
        }
    }
}

TEST(WalkKinds, but_a_get_know_no_tag_of_the_operational_tree)
{
    for (const uint32_t kind : other_kinds) {
        WalkRun run(Model::oper, kind);
        EXPECT_EQ(run.walk("bgp zr-oper\n"
                           "  instances\n"
                           "    instance\n"
                           "  instances\n"),
                  VMF_RC_OK);
        ASSERT_EQ(run.visited(), Lines{"vmf_map_cont_zr_bgp_oper_bgp"});
        EXPECT_EQ(run.probe.visits[0].children, 2);
        EXPECT_EQ(run.said_by("/bgp"), framed({processing("instances"), "TRC Unsupported tag. Ignoring.",
                                               processing("instances"), "TRC Unsupported tag. Ignoring."}));
    }
}

TEST(WalkKinds, are_looked_at_on_every_level_of_the_operational_tree)
{
    for (const Place &place : places(Model::oper)) {
        std::string inside;
        for (const std::string &tag : tags_of(place)) inside += tag + "\n";  // lists without keys too
        AT(place.path);
        WalkRun run(Model::oper);
        const std::string start = " " + symbol("vmf_map_", Model::oper, place.path) + ":";
        run.trace.listener = [&](std::string_view line) {
            if (line.find(start) != std::string_view::npos) run.contexts.info.kind = VMF_REQ_EDIT;
        };
        EXPECT_EQ(run.walk(bare_text(Model::oper, place.path, inside)), VMF_RC_OK);
        EXPECT_EQ(run.visited(), way_to(place, Model::oper));
    }
}

}  // namespace
}  // namespace response
