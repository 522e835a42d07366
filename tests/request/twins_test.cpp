// Where neighbors and peer groups part: each difference runs both on the same request.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <functional>

#include "mapping_run.h"
#include "nodes.h"
#include "recorder.h"
#include "tree_text.h"
#include "vmf_map_oc_bgp.h"
#include "words.h"

namespace {

using Lines = std::vector<std::string>;

constexpr uint32_t get = VMF_REQ_GET;
constexpr uint32_t get_config = VMF_REQ_GET_CONFIG;
constexpr uint32_t edit = VMF_REQ_EDIT;
constexpr uint32_t injected = 0x77;

struct Call {
    uint32_t kind;
    std::string node;                // below the entry; "list" and "key" for what stands above
    std::string says = "";           // operation and value: "[delete] = 7"
    int32_t children = 0;            // of a container
    size_t fails = 0;                // the add of this number
    Lines words = {};                // that are set before, for both: "list_child_count=1"
    std::string family = "";         // the container that the family at hand allows
    uint32_t unmarked = UINT32_MAX;  // an operation that the node holds without its bit
};

struct Ran {
    uint32_t outcome = 0;
    Lines adds;
    std::string flags;  // the words that changed
    Lines lines;        // what the handler itself said
    std::string entry;  // the native entry of the neighbor or group, and what was added below
    std::string family_operation;
};

struct Twins {
    Ran neighbor;
    Ran group;
};

std::string operation_of(const Datatree &node)
{
    return platform::has_operation(node) ? std::to_string(node.operation) : "none";
}

std::string changes(const std::map<std::string, uint32_t> &before, const std::map<std::string, uint32_t> &after)
{
    std::string text;
    for (const auto &[name, value] : after) {
        if (before.at(name) == value) continue;
        text += (text.empty() ? "" : " ") + name + (value == 1 ? "" : "=" + std::to_string(value));
    }
    return text;
}

std::string path_of(const std::string &list, const std::string &entry, const std::string &key, const std::string &node)
{
    if (node == "list") return list;
    return list + "/" + entry + "/" + (node == "key" ? key : node);
}

Ran run_on(const std::string &path, const Call &it)
{
    Ran ran;
    const model::OcNode *node = model::find_oc_node("/bgp/" + path);
    if (node == nullptr) {
        ADD_FAILURE() << "no node is called " << path;
        return ran;
    }
    platform::Tree request = io::read_tree(path.substr(path.rfind('/') + 1) + " oc-bgp " + it.says);
    Datatree *asked = &platform::children_of(request.root())[0];
    if (it.unmarked != UINT32_MAX) asked->operation = it.unmarked;

    support::MappingRun run(it.kind);
    run.know_as(65001);
    platform::Tree entries = io::read_tree("entry zr-cfg\nfamily zr-cfg\noper-entry zr-oper\noper-family zr-oper");
    auto entry = platform::children_of(entries.root());
    run.ctx.list_node = &entry[0];
    run.ctx.af_node = &entry[1];
    run.ctx.oper_list_node = &entry[2];
    run.ctx.oper_af_node = &entry[3];
    run.ctx.oper_key = "192.0.2.1";
    if (!it.family.empty()) run.ctx.af_name = it.family.c_str();
    for (const std::string &word : it.words) {
        const size_t equals = word.find('=');
        const uint32_t value =
            equals == std::string::npos ? 1 : static_cast<uint32_t>(std::stoul(word.substr(equals + 1)));
        EXPECT_TRUE(support::set_word(word.substr(0, equals), value, run.contexts.request, run.ctx)) << word;
    }
    const auto words_before = support::words_of(run.contexts.request, run.ctx);

    void *handler = dlsym(RTLD_DEFAULT, std::string(node->handler).c_str());
    if (handler == nullptr) {
        ADD_FAILURE() << "the library does not export " << node->handler;
        return ran;
    }
    {
        support::Recorder recorder(&run.ctx, asked, &run.out.root());
        if (it.fails != 0) recorder.fail(it.fails, injected);
        if (node->kind == model::Kind::leaf || node->kind == model::Kind::leaf_list)
            ran.outcome = reinterpret_cast<VmfLeafHandler *>(handler)(&run.ctx, asked, &run.out.root());
        else
            ran.outcome =
                reinterpret_cast<VmfContainerHandler *>(handler)(&run.ctx, asked, it.children, &run.out.root());
        ran.adds = recorder.adds();
    }
    ran.flags = changes(words_before, support::words_of(run.contexts.request, run.ctx));
    for (const support::Said &line : run.said())
        if ((line.function == node->handler || line.function == "__" + std::string(node->handler)) &&
            line.text != "Start" && line.text != "End")
            ran.lines.push_back(line.level + " " + line.text);
    ran.entry = io::write_tree(entries.root(), io::Secrets::shown);
    ran.entry = ran.entry.substr(0, ran.entry.find("\nfamily") + 1);
    ran.family_operation = operation_of(entry[1]);
    return ran;
}

Twins twins(const Call &it)
{
    return {run_on(path_of("neighbors", "neighbor", "neighbor-address", it.node), it),
            run_on(path_of("peer-groups", "peer-group", "peer-group-name", it.node), it)};
}

bool asks_for_operational_data(const Ran &ran)
{
    for (const std::string &add : ran.adds)
        if (add.starts_with("oper ")) return true;
    return ran.flags.find("oper_wanted") != std::string::npos;
}

// What both add, and the outcomes.
void expect_adds(const Twins &ran, const Lines &of_neighbor, const Lines &of_group, uint32_t outcome_of_neighbor = 0,
                 uint32_t outcome_of_group = 0)
{
    EXPECT_EQ(ran.neighbor.adds, of_neighbor);
    EXPECT_EQ(ran.group.adds, of_group);
    EXPECT_EQ(ran.neighbor.outcome, outcome_of_neighbor);
    EXPECT_EQ(ran.group.outcome, outcome_of_group);
}

void expect_flags(const Twins &ran, const std::string &of_neighbor, const std::string &of_group)
{
    EXPECT_EQ(ran.neighbor.flags, of_neighbor);
    EXPECT_EQ(ran.group.flags, of_group);
}

const std::string family = "afi-safis/afi-safi/";
const char *const containers_of_families[] = {
    "ipv4-unicast",       "ipv6-unicast",         "ipv4-labeled-unicast", "ipv6-labeled-unicast", "l3vpn-ipv4-unicast",
    "l3vpn-ipv6-unicast", "l3vpn-ipv4-multicast", "l3vpn-ipv6-multicast", "l2vpn-vpls",           "l2vpn-evpn"};

// ---- The lists and their keys ---------------------------------------------------------------

TEST(Twins, a_read_with_children_names_the_list_of_groups_and_not_that_of_neighbors)
{
    for (const uint32_t kind : {get, get_config})
        expect_adds(twins({.kind = kind, .node = "list", .children = 1}), {}, {"bgp-entity/neighbor-groups"});
}

TEST(Twins, a_get_of_the_list_asks_for_operational_data_of_neighbors_alone)
{
    const Twins ran = twins({.kind = get, .node = "list"});
    EXPECT_TRUE(asks_for_operational_data(ran.neighbor));
    EXPECT_EQ(ran.group.adds, Lines{"bgp-entity/neighbor-groups"});
    EXPECT_FALSE(asks_for_operational_data(ran.group));
}

TEST(Twins, a_group_is_created_and_a_neighbor_only_named)
{
    expect_adds(twins({.kind = edit, .node = "key", .says = "= one"}),
                {"bgp-entity/neighbors/neighbor repeat", "#1:neighbor-address = one src"},
                {"bgp-entity/neighbor-groups/neighbor-group repeat", "#1:neighbor-group-name = one src", "#1:create"});
    expect_adds(twins({.kind = edit, .node = "key", .says = "[delete] = one"}),
                {"bgp-entity/neighbors/neighbor repeat", "#1:neighbor-address = one src"},
                {"bgp-entity/neighbor-groups/neighbor-group repeat", "#1:neighbor-group-name = one src"});
}

TEST(Twins, the_outcome_of_the_key_is_lost_for_a_group_that_is_created)
{
    const Twins ran = twins({.kind = edit, .node = "key", .says = "= one", .fails = 2});
    EXPECT_EQ(ran.neighbor.outcome, injected);
    EXPECT_EQ(ran.group.outcome, 0u);
}

TEST(Twins, a_get_by_key_alone_asks_for_operational_data_of_a_neighbor_alone)
{
    const Twins ran = twins({.kind = get, .node = "key", .says = "= 192.0.2.1", .words = {"list_child_count=1"}});
    EXPECT_TRUE(asks_for_operational_data(ran.neighbor));
    EXPECT_EQ(ran.neighbor.lines, Lines{"TRC Only list key was specified. Need to map all supported oper nodes."});
    EXPECT_FALSE(asks_for_operational_data(ran.group));
    EXPECT_EQ(ran.group.adds.size(), 2u);
    EXPECT_EQ(ran.group.lines, Lines{});
}

// ---- config ---------------------------------------------------------------------------------

TEST(Twins, a_read_of_config_names_a_membership_of_neighbors_alone_and_a_source_for_groups_alone)
{
    for (const uint32_t kind : {get, get_config})
        expect_adds(
            twins({.kind = kind, .node = "config"}),
            {"list:remote-as", "list:local-as", "list:password", "list:description", "list:neighbor-group-add-member"},
            {"direct list:remote-as src", "direct list:local-as src", "direct list:password src",
             "direct list:description src"});
}

TEST(Twins, a_replace_of_config_removes_a_membership_of_neighbors_alone)
{
    expect_adds(twins({.kind = edit, .node = "config", .says = "[replace]"}),
                {"direct list:remote-as src", "direct list:local-as src", "direct list:password src",
                 "direct list:description src", "direct list:neighbor-group-add-member src"},
                {"direct list:remote-as src", "direct list:local-as src", "direct list:password src",
                 "direct list:description src"});
}

TEST(Twins, config_leaves_out_state_copies_of_neighbors_alone)
{
    for (const uint32_t kind : {get, get_config, edit})
        expect_flags(twins({.kind = kind, .node = "config", .children = 1}), "nbr_af_filter nbr_no_state",
                     "grp_af_filter");
}

TEST(Twins, a_read_of_config_lets_config_copies_of_groups_in)
{
    expect_flags(twins({.kind = get, .node = "config", .words = {"nbr_no_config", "grp_no_config"}}),
                 "nbr_af_filter nbr_no_state", "grp_af_filter grp_no_config=0");
    expect_flags(twins({.kind = get, .node = "config", .children = 1, .words = {"nbr_no_config", "grp_no_config"}}),
                 "nbr_af_filter nbr_no_state", "grp_af_filter");
}

TEST(Twins, a_removal_that_config_does_not_carry_takes_a_neighbor_and_no_group)
{
    for (const uint32_t operation : {VMF_OP_DELETE, VMF_OP_REMOVE}) {
        const Twins ran = twins({.kind = edit, .node = "config", .unmarked = operation});
        EXPECT_EQ(ran.neighbor.entry,
                  operation == VMF_OP_DELETE ? "entry zr-cfg [delete]\n" : "entry zr-cfg [remove]\n");
        EXPECT_EQ(ran.group.entry, "entry zr-cfg\n");
    }
}

TEST(Twins, a_replace_that_config_does_not_carry_removes_for_both)
{
    const Twins ran = twins({.kind = edit, .node = "config", .unmarked = VMF_OP_REPLACE});
    EXPECT_EQ(ran.neighbor.adds.size(), 5u);
    EXPECT_EQ(ran.group.entry,
              "entry zr-cfg\n  remote-as [remove]\n  local-as [remove]\n  password [remove]\n  description [remove]\n");
}

TEST(Twins, the_key_below_config_and_state_stands_for_what_a_neighbor_is_and_for_that_a_group_exists)
{
    const Lines of_neighbor = {"list:neighbor-address", "list:remote-as", "list:description",
                               "list:neighbor-group-add-member"};
    const Lines of_group = {"list:neighbor-group-name", "list:create"};
    for (const std::string container : {"config/", "state/"}) {
        const Twins ran = {
            run_on("neighbors/neighbor/" + container + "neighbor-address", {.kind = get, .node = ""}),
            run_on("peer-groups/peer-group/" + container + "peer-group-name", {.kind = get, .node = ""})};
        expect_adds(ran, of_neighbor, of_group);
        expect_flags(ran, "key_leaf_named", "key_leaf_named");
    }
}

TEST(Twins, reads_and_removals_of_a_remote_as_name_the_halves_of_a_group)
{
    expect_adds(twins({.kind = get, .node = "config/peer-as"}), {"list:remote-as"},
                {"list:remote-as/as-xx", "list:remote-as/as-yy"});
    expect_adds(twins({.kind = edit, .node = "config/peer-as", .says = "[delete]"}), {"list:remote-as src"},
                {"list:remote-as/as-xx src", "list:remote-as/as-yy src"});
}

TEST(Twins, the_outcome_of_the_zero_of_a_remote_as_is_lost_for_a_group)
{
    const Lines both = {"list:remote-as/as-xx = 0 src", "list:remote-as/as-yy = 65010 src"};
    expect_adds(twins({.kind = edit, .node = "config/peer-as", .says = "= 65010", .fails = 1}), {both[0]}, both,
                injected, 0);
}

TEST(Twins, a_read_of_a_local_as_sets_no_flag_for_a_group)
{
    const Twins ran = twins({.kind = get, .node = "config/local-as"});
    expect_adds(ran, {"list:local-as"}, {"list:local-as"});
    expect_flags(ran, "nbr_no_config", "");
}

TEST(Twins, a_local_as_below_state_is_named_twice_and_by_its_halves_for_a_group)
{
    const Twins ran = twins({.kind = get, .node = "state/local-as"});
    expect_adds(ran, {"list:local-as"},
                {"list:local-as", "list:local-as", "list:local-as/as-xx", "list:local-as/as-yy"});
    expect_flags(ran, "nbr_no_state", "");
}

TEST(Twins, reads_and_removals_of_a_password_name_the_leaves_of_a_group)
{
    const Twins ran = twins({.kind = get, .node = "config/auth-password"});
    expect_adds(ran, {"list:password"}, {"list:password/password-disable", "list:password/password"});
    expect_flags(ran, "nbr_no_config", "");
    expect_adds(twins({.kind = edit, .node = "config/auth-password", .says = "[delete]"}), {"list:password src"},
                {"list:password/password-disable src", "list:password/password src"});
}

TEST(Twins, a_password_below_state_is_named_by_its_leaves_for_a_group)
{
    const Twins ran = twins({.kind = get, .node = "state/auth-password"});
    expect_adds(ran, {"list:password"}, {"list:password/password-disable", "list:password/password"});
    expect_flags(ran, "nbr_no_state", "");
}

// ---- state ----------------------------------------------------------------------------------

TEST(Twins, a_failing_leaf_ends_a_get_of_state_of_a_group_alone)
{
    const Twins ran = twins({.kind = get, .node = "state", .fails = 1});
    EXPECT_EQ(ran.neighbor.outcome, 0u);
    EXPECT_GT(ran.neighbor.adds.size(), 5u);
    EXPECT_EQ(ran.neighbor.adds[0], "list:remote-as");
    EXPECT_EQ(ran.group.outcome, injected);
    EXPECT_EQ(ran.group.adds, Lines{"direct list:remote-as src"});
}

TEST(Twins, a_get_of_state_asks_for_operational_data_of_a_neighbor_alone)
{
    const Twins ran = twins({.kind = get, .node = "state"});
    EXPECT_TRUE(asks_for_operational_data(ran.neighbor));
    EXPECT_FALSE(asks_for_operational_data(ran.group));
}

TEST(Twins, state_leaves_out_config_copies_of_neighbors_alone)
{
    expect_flags(twins({.kind = get, .node = "state", .children = 1, .words = {"list_child_count=3"}}), "nbr_no_config",
                 "");
}

TEST(Twins, state_in_a_small_entry_lets_state_copies_of_groups_in)
{
    expect_flags(twins({.kind = get,
                        .node = "state",
                        .children = 1,
                        .words = {"list_child_count=2", "nbr_no_state", "grp_no_state"}}),
                 "nbr_af_filter nbr_no_config", "grp_af_filter grp_no_state=0");
}

// ---- timers ---------------------------------------------------------------------------------

TEST(Twins, a_hold_time_was_negotiated_with_neighbors_alone)
{
    const Lines both = {"list:timers", "list:advertisement-interval/minimum-interval"};
    Lines of_neighbor = both;
    of_neighbor.push_back("oper oper-list:hold-time");
    for (const char *node : {"timers", "timers/state"})
        expect_adds(twins({.kind = get, .node = node}), of_neighbor, both);
    expect_flags(twins({.kind = get, .node = "timers"}), "nbr_no_config nbr_no_state oper_wanted oper_wanted_in_state",
                 "grp_no_config grp_no_state");
    expect_flags(twins({.kind = get, .node = "timers/state"}), "oper_wanted oper_wanted_in_state", "");
}

TEST(Twins, the_timers_below_state_set_no_flag_for_a_group)
{
    for (const char *node :
         {"timers/state/hold-time", "timers/state/keepalive-interval", "timers/state/minimum-advertisement-interval"}) {
        const Twins ran = twins({.kind = get, .node = node});
        EXPECT_EQ(ran.neighbor.adds, ran.group.adds);
        expect_flags(ran, "oper_wanted_in_state", "");
    }
}

// ---- transport ------------------------------------------------------------------------------

TEST(Twins, ports_and_addresses_of_a_session_are_those_of_neighbors_alone)
{
    const Lines of_group = {"list:session-open-mode", "list:tcpmss/mss", "list:local-address",
                            "direct list:update-source-interface"};
    Lines of_neighbor = of_group;
    of_neighbor.insert(of_neighbor.end(),
                       {"oper oper-list:connection-local-port", "oper oper-list:connection-remote-address/ipv4-address",
                        "oper oper-list:connection-remote-port"});
    const Twins ran = twins({.kind = get, .node = "transport"});
    expect_adds(ran, of_neighbor, of_group);
    expect_flags(ran, "nbr_no_config nbr_no_state oper_wanted oper_wanted_in_state", "grp_no_config grp_no_state");
}

TEST(Twins, a_written_transport_says_so_in_other_words)
{
    for (const char *node : {"transport", "transport/config"}) {
        const Twins ran = twins({.kind = edit, .node = node});
        EXPECT_EQ(ran.neighbor.lines, (Lines{"TRC No subtrees", "TRC No mapping done for this node when it is a "
                                                                "merge/create request"}));
        EXPECT_EQ(ran.group.lines,
                  (Lines{"TRC No subtrees", "TRC No mapping done for this node for a merge/create request"}));
    }
}

TEST(Twins, the_state_of_transport_names_the_interface_and_the_whole_address_of_groups)
{
    expect_adds(
        twins({.kind = get, .node = "transport/state"}),
        {"list:session-open-mode", "direct list:tcpmss/mss", "direct list:local-address/local-address-disable",
         "direct list:local-address/local-ip-address", "oper oper-list:connection-local-port",
         "oper oper-list:connection-remote-address/ipv4-address", "oper oper-list:connection-remote-port"},
        {"list:session-open-mode", "list:tcpmss/mss", "list:local-address", "direct list:update-source-interface"});
}

TEST(Twins, a_read_of_the_local_address_is_direct_for_a_group)
{
    expect_adds(twins({.kind = get, .node = "transport/config/local-address"}),
                {"list:local-address", "direct list:update-source-interface"},
                {"direct list:local-address", "direct list:update-source-interface"});
    const Lines removed = {"direct list:local-address src", "direct list:update-source-interface src"};
    expect_adds(twins({.kind = edit, .node = "transport/config/local-address", .says = "[delete]"}), removed, removed);
}

TEST(Twins, passive_mode_below_state_is_direct_for_a_neighbor)
{
    expect_adds(twins({.kind = get, .node = "transport/state/passive-mode"}), {"direct list:session-open-mode"},
                {"list:session-open-mode"});
}

TEST(Twins, the_transport_below_state_sets_no_flag_for_a_group)
{
    for (const char *node :
         {"transport/state/tcp-mss", "transport/state/passive-mode", "transport/state/local-address"})
        expect_flags(twins({.kind = get, .node = node}), "oper_wanted_in_state", "");
}

// ---- route-reflector ------------------------------------------------------------------------

TEST(Twins, config_and_state_of_route_reflection_filter_the_families_of_groups_alone)
{
    for (const char *node : {"route-reflector/config", "route-reflector/state"}) {
        const Twins ran = twins({.kind = get, .node = node});
        expect_flags(ran, "", "grp_af_filter");
        ASSERT_EQ(ran.neighbor.adds.size(), 37u);
        ASSERT_EQ(ran.group.adds.size(), 37u);
        EXPECT_EQ(ran.neighbor.adds[1], "direct list:neighbor-afs/neighbor-af repeat");
        EXPECT_EQ(ran.group.adds[1], "direct list:neighbor-group-afs/neighbor-group-af repeat");
    }
    expect_flags(twins({.kind = edit, .node = "route-reflector/config", .children = 1}), "", "grp_af_filter");
}

// ---- Families -------------------------------------------------------------------------------

TEST(Twins, a_get_of_the_families_asks_for_operational_data_of_a_neighbor_alone)
{
    const Twins ran = twins({.kind = get, .node = "afi-safis"});
    EXPECT_TRUE(asks_for_operational_data(ran.neighbor));
    EXPECT_EQ(ran.group.adds, Lines{"list:neighbor-group-afs"});
    EXPECT_FALSE(asks_for_operational_data(ran.group));
}

TEST(Twins, a_get_of_an_unknown_family_is_refused_for_a_neighbor_alone)
{
    const Call call = {.kind = get, .node = family + "afi-safi-name", .says = "= bgp-types:COLOUR"};
    expect_adds(twins(call), {"list:neighbor-afs/neighbor-af repeat", "#1:af-name = COLOUR"},
                {"list:neighbor-group-afs/neighbor-group-af repeat", "#1:af-name = COLOUR"}, VMF_RC_UNSUPPORTED, 0);
}

TEST(Twins, a_get_of_a_family_asks_for_operational_data_of_a_neighbor_alone)
{
    for (const std::string word : {"list_child_count=1", "list_child_count=2"}) {
        const Twins ran = twins(
            {.kind = get, .node = family + "afi-safi-name", .says = "= bgp-types:L3VPN_IPV4_UNICAST", .words = {word}});
        EXPECT_TRUE(asks_for_operational_data(ran.neighbor));
        EXPECT_EQ(ran.group.adds,
                  (Lines{"list:neighbor-group-afs/neighbor-group-af repeat", "#1:af-name = vp-nv4-unicast"}));
        EXPECT_EQ(ran.group.flags, "grp_af_bitmap=16");
        EXPECT_EQ(ran.group.lines, Lines{});
    }
}

TEST(Twins, a_removal_of_a_familys_config_is_a_deletion_for_a_neighbor_and_stays_what_it_is_for_a_group)
{
    const Twins ran = twins({.kind = edit, .node = family + "config", .says = "[remove]"});
    EXPECT_EQ(ran.neighbor.family_operation, std::to_string(VMF_OP_DELETE));
    EXPECT_EQ(ran.group.family_operation, std::to_string(VMF_OP_REMOVE));
}

TEST(Twins, a_familys_config_sets_no_flag_for_a_group)
{
    for (const uint32_t kind : {get, get_config, edit})
        for (const int32_t children : {0, 1})
            expect_flags(twins({.kind = kind, .node = family + "config", .children = children}), "nbr_af_no_state", "");
}

TEST(Twins, a_family_set_to_false_is_activated_for_a_group_and_left_alone_for_a_neighbor)
{
    expect_adds(twins({.kind = edit, .node = family + "config/enabled", .says = "= false"}), {}, {"af:activate src"});
    expect_adds(twins({.kind = edit, .node = family + "config/enabled", .says = "= colour"}), {}, {"af:activate src"});
}

TEST(Twins, an_edit_of_whether_a_family_is_on_sets_no_flag_for_a_group)
{
    const std::string node = family + "config/enabled";
    for (const char *says : {"= true", "= false", "[delete]"})
        expect_flags(twins({.kind = edit, .node = node, .says = says}), "nbr_af_no_config", "");
    expect_flags(twins({.kind = get, .node = node}), "nbr_af_no_config", "grp_af_no_config");
}

TEST(Twins, the_state_of_a_family_has_counters_for_neighbors_alone)
{
    const Twins ran = twins({.kind = get, .node = family + "state"});
    expect_adds(ran,
                {"af:activate", "oper oper-af:prefixes-accepted", "oper oper-af:prefixes-advertised",
                 "oper oper-af:is-neighbor-af-capable"},
                {"af:activate"});
    expect_flags(ran, "nbr_af_no_config oper_wanted oper_wanted_in_state", "grp_af_no_config");
}

// ---- Policies and multipath -----------------------------------------------------------------

TEST(Twins, a_failing_import_policy_ends_a_read_of_both_for_a_neighbor_alone)
{
    expect_adds(twins({.kind = get, .node = family + "apply-policy", .fails = 1}), {"af:route-policy-in"},
                {"af:route-policy-in", "af:route-policy-out"}, injected, 0);
}

TEST(Twins, an_edit_of_the_config_of_policies_adds_both_for_a_group_alone)
{
    expect_adds(twins({.kind = edit, .node = family + "apply-policy/config"}), {},
                {"direct af:route-policy-in src repeat", "direct af:route-policy-out src repeat"});
}

TEST(Twins, the_config_of_policies_takes_its_own_value_and_repeats_for_a_group_alone)
{
    expect_adds(twins({.kind = get, .node = family + "apply-policy/config", .says = "= PASS"}),
                {"direct af:route-policy-in", "direct af:route-policy-out"},
                {"direct af:route-policy-in = PASS repeat", "direct af:route-policy-out = PASS repeat"});
    expect_adds(twins({.kind = edit, .node = family + "apply-policy/config", .says = "[delete] = PASS"}),
                {"direct af:route-policy-in src", "direct af:route-policy-out src"},
                {"direct af:route-policy-in = PASS src repeat", "direct af:route-policy-out = PASS src repeat"});
}

TEST(Twins, the_config_of_policies_with_children_says_nothing_for_a_group)
{
    const Twins ran = twins({.kind = get, .node = family + "apply-policy/config", .children = 1});
    expect_adds(ran, {}, {});
    EXPECT_EQ(ran.neighbor.lines, Lines{"TRC No mapping done for this node"});
    EXPECT_EQ(ran.group.lines, Lines{});
}

TEST(Twins, the_state_of_policies_passes_a_source_for_a_neighbor_and_a_value_for_a_group)
{
    expect_adds(twins({.kind = get, .node = family + "apply-policy/state", .says = "= PASS"}),
                {"direct af:route-policy-in src", "direct af:route-policy-out src"},
                {"direct af:route-policy-in = PASS repeat", "direct af:route-policy-out = PASS repeat"});
}

TEST(Twins, an_import_policy_below_state_passes_a_source_for_a_neighbor_alone)
{
    expect_adds(twins({.kind = get, .node = family + "apply-policy/state/import-policy", .says = "= PASS"}),
                {"direct af:route-policy-in = PASS src repeat"}, {"direct af:route-policy-in = PASS repeat"});
    const Lines both = {"direct af:route-policy-out = PASS repeat"};
    expect_adds(twins({.kind = get, .node = family + "apply-policy/state/export-policy", .says = "= PASS"}), both,
                both);
}

TEST(Twins, multipath_of_a_family_sets_no_flag_for_a_group)
{
    for (const uint32_t kind : {get, get_config, edit}) {
        const Twins ran = twins({.kind = kind, .node = family + "use-multiple-paths"});
        expect_adds(ran, {"af:multipath"}, {"af:multipath"});
        expect_flags(ran, "nbr_af_no_config nbr_af_no_state", "");
    }
}

TEST(Twins, the_container_of_a_family_sets_no_flag_for_a_group)
{
    for (const std::string container : containers_of_families) {
        const Twins ran = twins({.kind = get, .node = family + container, .family = container});
        EXPECT_EQ(ran.neighbor.adds, ran.group.adds);
        expect_flags(ran, "nbr_af_no_config nbr_af_no_state", "");
    }
}

TEST(Twins, the_container_of_another_family_sets_no_flag_for_a_group)
{
    for (const std::string container : containers_of_families) {
        const Twins ran = twins({.kind = get, .node = family + container, .family = "colour"});
        expect_adds(ran, {}, {}, VMF_RC_UNSUPPORTED, VMF_RC_UNSUPPORTED);
        EXPECT_EQ(ran.neighbor.lines, ran.group.lines);
        expect_flags(ran, container == "ipv4-unicast" ? "" : "nbr_af_no_config nbr_af_no_state", "");
    }
}

// ---- graceful-restart -----------------------------------------------------------------------

TEST(Twins, a_deletion_of_graceful_restart_forces_the_removal_of_the_flag_for_a_neighbor_alone)
{
    const std::string times = "  neighbor-graceful-restart-time [remove]\n"
                              "  neighbor-graceful-restart-stalepath-time [remove]\n";
    for (const char *node : {"graceful-restart", "graceful-restart/config"}) {
        const Twins ran = twins({.kind = edit, .node = node, .says = "[delete]"});
        EXPECT_EQ(ran.neighbor.entry, "entry zr-cfg\n  neighbor-graceful-restart [remove]\n" + times);
        EXPECT_EQ(ran.group.entry, "entry zr-cfg\n  neighbor-graceful-restart [delete]\n" + times);
    }
}

TEST(Twins, an_edit_of_the_config_of_graceful_restart_switches_it_on_for_a_neighbor_alone)
{
    const Lines on = {"list:neighbor-graceful-restart = false"};
    expect_adds(twins({.kind = edit, .node = "graceful-restart/config"}), on, {});
    expect_adds(twins({.kind = edit, .node = "graceful-restart"}), on, on);
}

TEST(Twins, the_restart_time_of_the_other_side_is_that_of_neighbors_alone)
{
    const Lines of_group = {"list:neighbor-graceful-restart", "list:neighbor-graceful-restart-time",
                            "list:neighbor-graceful-restart-stalepath-time"};
    const Twins ran = twins({.kind = get, .node = "graceful-restart"});
    expect_adds(ran, {of_group[0], "oper oper-list:gr-restart-time", of_group[1], of_group[2]}, of_group);
    expect_flags(ran, "nbr_no_config nbr_no_state oper_wanted oper_wanted_in_state", "grp_no_config grp_no_state");
    const Twins state = twins({.kind = get, .node = "graceful-restart/state"});
    expect_adds(state,
                {of_group[0], of_group[1], of_group[2], "oper oper-list:graceful-restart-enabled-nbr",
                 "oper oper-list:gr-restart-time"},
                of_group);
    expect_flags(state, "oper_wanted oper_wanted_in_state", "");
}

TEST(Twins, a_failing_leaf_ends_a_get_of_the_state_of_graceful_restart_for_a_neighbor_alone)
{
    for (const size_t fails : {size_t{1}, size_t{2}}) {
        const Twins ran = twins({.kind = get, .node = "graceful-restart/state", .fails = fails});
        EXPECT_EQ(ran.neighbor.adds.size(), fails);
        EXPECT_EQ(ran.neighbor.outcome, injected);
        EXPECT_EQ(ran.group.adds.size(), 3u);
        EXPECT_EQ(ran.group.outcome, 0u);
    }
}

struct RestartTime {
    const char *node;
    const char *native;
};
constexpr RestartTime restart_times[] = {{"restart-time", "list:neighbor-graceful-restart-time"},
                                         {"stale-routes-time", "list:neighbor-graceful-restart-stalepath-time"}};

TEST(Twins, naming_a_time_switches_graceful_restart_on_for_a_group_alone)
{
    for (const RestartTime &time : restart_times) {
        const std::string node = std::string("graceful-restart/config/") + time.node;
        const std::string native = time.native;
        expect_adds(twins({.kind = edit, .node = node, .says = "= 120"}), {native + " = 120 src"},
                    {"list:neighbor-graceful-restart = false", native + " = 120 src"});
        expect_adds(twins({.kind = get, .node = node}), {native}, {"list:neighbor-graceful-restart", native});
        expect_adds(twins({.kind = edit, .node = node, .says = "[delete]"}), {native + " src"}, {native + " src"});
    }
}

TEST(Twins, a_time_below_state_comes_with_the_flag_whether_or_not_config_was_named_for_a_group)
{
    for (const RestartTime &time : restart_times) {
        const std::string node = std::string("graceful-restart/state/") + time.node;
        const Lines of_group = {"list:neighbor-graceful-restart", time.native};
        const Twins alone = twins({.kind = get, .node = node});
        expect_adds(alone, {time.native}, of_group);
        expect_flags(alone, "oper_wanted_in_state", "");
        const Twins with_config = twins({.kind = get, .node = node, .words = {"config_named"}});
        expect_adds(with_config, {}, of_group);
        expect_flags(with_config, "oper_wanted_in_state", "");
    }
}

}  // namespace
