// What the sender of an edit is told when it becomes something else than it says.
#include "edit_notes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "database_items.h"
#include "mapped_request.h"
#include "nodes.h"
#include "request.h"
#include "tree.h"
#include "tree_lines.h"
#include "trip.h"
#include "write.h"

namespace {

constexpr char nbr[] = "/bgp/neighbors/neighbor[192.0.2.2]";
constexpr char grp[] = "/bgp/peer-groups/peer-group[edge]";
constexpr char nbr_shown[] = "/bgp/neighbors/neighbor[neighbor-address='192.0.2.2']";
constexpr char grp_shown[] = "/bgp/peer-groups/peer-group[peer-group-name='edge']";

std::string replaced(std::string text, const std::string &what, const std::string &with)
{
    for (size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += with.size())
        text.replace(at, what.size(), with);
    return text;
}

// An edit in the notation of the trips: a node a line.
platform::Tree edit_of(const std::string &lines)
{
    trips::Step step = {"edit", 0, "", {}};
    std::istringstream in(lines);
    std::getline(in, step.text);
    for (std::string line; std::getline(in, line);) step.lines.push_back(line);
    return trips::tree_of(trips::nodes_of_edit(step));
}

std::vector<std::string> notes_of(const std::string &lines)
{
    const platform::Tree holder = edit_of(lines);
    return framework::edit_notes(platform::children_of(holder.root()).front());
}

// An edit of one line, of a neighbor and of a group where it begins with "@"; F is a family. `path` is the one of the
// note, empty for that of the edit.
struct Case {
    const char *edit;
    const char *text;
    const char *path = "";
};

constexpr char family_path[] = "/afi-safis/afi-safi[IPV4_UNICAST]";
constexpr char family_shown[] = "/afi-safis/afi-safi[afi-safi-name='IPV4_UNICAST']";

// Each of them gives this note and no other.
const Case with_note[] = {
    // A switch that is not what it says.
    {"/bgp/global/graceful-restart/config/enabled = false",
     "\"false\" switches graceful restart on, as \"true\" does; delete the leaf to switch it off"},
    {"/bgp/globalF/config/enabled = false",
     "\"false\" is dropped and the family stays as it is; delete the leaf to switch it off"},
    {"/bgp/neighbors/neighbor[192.0.2.2]F/config/enabled = false",
     "\"false\" is dropped and the family stays as it is; delete the leaf to switch it off"},
    {"/bgp/peer-groups/peer-group[edge]F/config/enabled = false",
     "\"false\" switches the family on, as \"true\" does; delete the leaf to switch it off"},
    {"@/ebgp-multihop/config/enabled = false",
     "\"false\" switches multihop on with 255 hops, as \"true\" does; delete the leaf to switch it off"},
    {"@/ebgp-multihop/config/enabled = true", "sets the hop count to 255"},

    // A removal that takes more than it names, or makes something.
    {"/bgp [delete]", "takes all of BGP away, what the router has beyond this model too"},
    {"/bgp [replace]", "replaces all of BGP, what the router has beyond this model too"},
    {"/bgp/global [delete]", "takes all of BGP away, neighbors and peer groups too"},
    {"/bgp/global/config [delete]", "takes all of BGP away, neighbors and peer groups too"},
    {"/bgp/global/config/as [remove]", "takes all of BGP away, neighbors and peer groups too"},
    {"/bgp/global/afi-safis [delete]", "takes the route distances away too"},
    {"/bgp/globalF [delete]", "takes the family's route distances away too"},
    {"/bgp/globalF [replace]", "takes the family's route distances away too"},
    {"/bgp/globalF/config [delete]", "takes the whole family away, its route distances too"},
    {"/bgp/globalF/config/afi-safi-name [delete]", "takes the whole family away, its route distances too"},
    {"@/config [delete]", "takes the whole entry away, its families too"},
    {"@/config [remove]", "takes the whole entry away, its families too"},
    {"/bgp/neighbors/neighbor[192.0.2.2]/config/neighbor-address [delete]",
     "takes the whole neighbor away, its families too"},
    {"/bgp/peer-groups/peer-group[edge]/config/peer-group-name [delete]",
     "takes the whole peer group away, its families too"},
    {"@/ebgp-multihop/config/enabled [delete]", "takes the hop count away too"},
    {"@/ebgp-multihop/config/multihop-ttl [delete]", "switches multihop off too"},
    {"@/route-reflector [delete]", "takes the entry's families away, all twelve"},
    {"@/route-reflector/config [remove]", "takes the entry's families away, all twelve"},
    {"@F/config [delete]", "takes the whole family away"},
    {"@F/config/afi-safi-name [delete]", "takes the whole family away"},
    {"@F/ipv4-unicast/prefix-limit/config/max-prefixes [delete]", "takes the threshold away too"},
    {"@F/l2vpn-evpn/prefix-limit/config/shutdown-threshold-pct [delete]",
     "sets the threshold back to 75 percent and writes the standing limit again; without a limit the edit is "
     "refused"},
    {"/bgp/global/use-multiple-paths [delete]", "makes entries of four families, where there are none"},
    {"/bgp/global/use-multiple-paths/ebgp [delete]", "makes entries of four families, where there are none"},
    {"/bgp/global/use-multiple-paths/ibgp/config [delete]", "makes entries of four families, where there are none"},
    {"/bgp/global/use-multiple-paths/ebgp/config/maximum-paths [delete]", "switches four families on"},
    {"/bgp/global/default-route-distance [delete]", "makes entries of four families, where there are none"},
    {"/bgp/global/default-route-distance/config [delete]", "makes entries of four families, where there are none"},
    {"/bgp/global/default-route-distance/config/external-route-distance [remove]",
     "makes entries of four families, where there are none"},

    // Companions that nobody named.
    {"/bgp/global/default-route-distance/config/internal-route-distance = 100",
     "switches four families on and sets their local distance to 200", "/bgp/global/default-route-distance/config"},
    {"/bgp/global/use-multiple-paths/ibgp/config/maximum-paths = 4",
     "switches four families on, with multiple paths of equal cost only"},
    {"/bgp/globalF/use-multiple-paths/ebgp/config/maximum-paths = 4", "allows multiple paths of equal cost only"},
    {"/bgp/global/route-selection-options",
     "an empty container sets the first three options to \"true\" and enable-aigp to \"false\""},
    {"/bgp/global/route-selection-options/config",
     "an empty container sets the first three options to \"true\" and enable-aigp to \"false\""},
    {"/bgp/global/graceful-restart", "an empty container switches graceful restart on"},
    {"/bgp/global/graceful-restart/config", "an empty container switches graceful restart on"},
    {"@/graceful-restart", "an empty container switches graceful restart on"},
    {"/bgp/neighbors/neighbor[192.0.2.2]/graceful-restart/config", "an empty container switches graceful restart on"},
    {"@F/config", "an empty container switches the family on"},
    {"@F/use-multiple-paths", "an empty container switches multiple paths on"},
    {"@F/use-multiple-paths/config", "an empty container switches multiple paths on"},
    {"@/ebgp-multihop/config/multihop-ttl = 4", "switches multihop on too"},
    {"/bgp/peer-groups/peer-group[edge]/graceful-restart/config/restart-time = 120",
     "switches graceful restart on too"},
    {"/bgp/peer-groups/peer-group[edge]/graceful-restart/config/stale-routes-time = 300",
     "switches graceful restart on too"},
    {"@F/ipv4-unicast/prefix-limit/config/max-prefixes = 10",
     "makes the limit hold: no mode that only warns, none that discards"},

    // Something that is not taken for what it is.
    {"@/transport/config/local-address = 2001:db8::1", "an IPv6 address is taken for the name of an interface"},
    {"@/route-reflector/config/route-reflector-cluster-id = 77",
     "leaves an id of the other form standing, a number beside an address"},
    {"@/timers/config [replace]", "is merged, not replaced: what stands there and is not named stays"},
    {"/bgp/global [replace]", "is merged, not replaced: what stands there and is not named stays"},
    {"@/transport [create]", "is merged, not created: nobody checks that it is not there yet"},
    {"@/config [create]", "is merged, not created: nobody checks that it is not there yet"},
};

// None of them gives a note.
const char *const without_note[] = {
    "/bgp",
    "/bgp [create]",
    "/bgp/global",
    "/bgp/global/config",
    "/bgp/global/config/as = 65001",
    "/bgp/global/config/as [replace] = 65001",
    "/bgp/global/config/router-id [delete]",
    "/bgp/global/graceful-restart/config/enabled = true",
    "/bgp/global/graceful-restart/config/enabled [delete]",
    "/bgp/global/graceful-restart/config/restart-time = 120",
    "/bgp/global/graceful-restart [delete]",
    "/bgp/global/graceful-restart/config [delete]",  // no entry of a list
    "/bgp/global/confederation/config [remove]",
    "/bgp/global/route-selection-options/config/always-compare-med = false",
    "/bgp/global/route-selection-options/config/enable-aigp = true",
    "/bgp/global/route-selection-options/config [delete]",
    "/bgp/global/use-multiple-paths",
    "/bgp/global/use-multiple-paths/ebgp/config",
    "/bgp/global/default-route-distance/config",
    "/bgp/global/afi-safis",
    "/bgp/globalF",
    "/bgp/globalF [create]",
    "/bgp/globalF/config",
    "/bgp/globalF/config/enabled = true",
    "/bgp/globalF/config/enabled [delete]",
    "/bgp/globalF/use-multiple-paths",
    "/bgp/globalF/use-multiple-paths/ebgp/config/maximum-paths [delete]",
    "/bgp/neighbors [replace]",
    "/bgp/peer-groups [delete]",
    "@",
    "@ [replace]",
    "@ [delete]",
    "@/config",
    "@/config [replace]",
    "@/config/peer-as = 65010",
    "@/config/auth-password [replace] = s3cret",
    "@/config/peer-as [delete]",
    "@/ebgp-multihop [delete]",
    "@/ebgp-multihop/config",
    "@/graceful-restart [delete]",
    "@/graceful-restart/config [delete]",
    "@/graceful-restart/config/enabled = false",
    "/bgp/peer-groups/peer-group[edge]/graceful-restart/config",
    "/bgp/neighbors/neighbor[192.0.2.2]/graceful-restart/config/restart-time = 120",
    "/bgp/peer-groups/peer-group[edge]/graceful-restart/config/restart-time [delete]",
    "@/route-reflector",
    "@/route-reflector/config/route-reflector-cluster-id [delete]",
    "@/timers [delete]",
    "@/timers/config/hold-time [replace] = 90",
    "@/transport/config/local-address = 192.0.2.1",
    "@/transport/config/local-address = Loopback0",
    "@/transport/config/local-address [delete]",
    "@F",
    "@F [delete]",
    "@F [replace]",
    "@F/config/enabled = true",
    "@F/config/enabled [delete]",
    "@F/config/afi-safi-name = IPV4_UNICAST",
    "@F/apply-policy/config",
    "@F/use-multiple-paths/config/enabled = false",
    "@F/use-multiple-paths [delete]",
    "@F/ipv4-unicast [delete]",
    "@F/ipv4-unicast/prefix-limit/config [delete]",
    "@F/ipv4-unicast/prefix-limit/config/shutdown-threshold-pct = 85",
};

// The same edit of a neighbor and of a group, or the one that it is, with their paths in the notes.
std::vector<std::pair<std::string, std::string>> edits_of(const std::string &text)
{
    std::vector<std::pair<std::string, std::string>> edits;
    const std::string with_family = replaced(text, "F", family_path);
    const bool is_twin = text.starts_with('@');
    for (const char *entry : {nbr, grp}) {
        const std::string edit = is_twin ? entry + with_family.substr(1) : with_family;
        std::string shown = edit.substr(0, edit.find(' '));
        for (const auto &[path, with_key] : {std::pair(nbr, nbr_shown), {grp, grp_shown}, {family_path, family_shown}})
            shown = replaced(shown, path, with_key);
        edits.emplace_back(edit, shown);
        if (!is_twin) break;
    }
    return edits;
}

io::Document document_of(const std::string &lines)
{
    return io::read_xml(io::write_xml(edit_of(lines).root(), io::Envelope::config, io::Secrets::shown), "edit");
}

framework::MappedRequest::Setting setting_of(const std::string &lines, uint32_t kind,
                                             const platform::SystemDatabase &database)
{
    return {.read = [lines] { return document_of(lines); }, .kind = kind, .database = &database};
}

}  // namespace

TEST(EditNotes, EachRuleHasItsNote)
{
    for (const Case &one : with_note)
        for (const auto &[edit, shown] : edits_of(one.edit)) {
            const std::string path = *one.path != '\0' ? one.path : shown;
            EXPECT_EQ(notes_of(edit), std::vector<std::string>{path + ": " + one.text}) << edit;
        }
}

TEST(EditNotes, WhatIsDoneAsItSaysHasNone)
{
    for (const char *one : without_note)
        for (const auto &[edit, shown] : edits_of(one)) EXPECT_EQ(notes_of(edit), std::vector<std::string>{}) << edit;
}

TEST(EditNotes, ANoteStandsOnceWithTheFirstPathAndTheCountOfTheOthers)
{
    EXPECT_EQ(notes_of("/bgp/neighbors/neighbor[192.0.2.2]/ebgp-multihop/config/enabled = false\n"
                       "/bgp/neighbors/neighbor[2001:db8::1]/ebgp-multihop/config/enabled = false\n"
                       "/bgp/peer-groups/peer-group[edge]/ebgp-multihop/config/enabled = false"),
              std::vector<std::string>{std::string(nbr_shown) +
                                       "/ebgp-multihop/config/enabled: \"false\" switches multihop on with 255 hops, "
                                       "as \"true\" does; delete the leaf to switch it off (and so 2 more)"});
}

TEST(EditNotes, NotesStandInTheOrderOfTheRules)
{
    EXPECT_EQ(notes_of("/bgp/neighbors/neighbor[192.0.2.2]/transport/config/local-address = 2001:db8::1\n"
                       "/bgp/global/graceful-restart/config/enabled = false"),
              (std::vector<std::string>{
                  "/bgp/global/graceful-restart/config/enabled: \"false\" switches graceful restart on, as \"true\" "
                  "does; delete the leaf to switch it off",
                  std::string(nbr_shown) +
                      "/transport/config/local-address: an IPv6 address is taken for the name of an interface"}));
}

// Only if a distance is written first: the mapping looks at the first child.
TEST(EditNotes, DistancesSwitchFamiliesOnUnlessTheFirstIsDeleted)
{
    const std::string external = "/bgp/global/default-route-distance/config/external-route-distance";
    const std::string internal = "/bgp/global/default-route-distance/config/internal-route-distance";
    const std::string on = "/bgp/global/default-route-distance/config: switches four families on and sets their local "
                           "distance to 200";
    const std::string made = ": makes entries of four families, where there are none";
    EXPECT_EQ(notes_of(external + " = 20\n" + internal + " [delete]"), (std::vector<std::string>{internal + made, on}));
    EXPECT_EQ(notes_of(external + " [delete]\n" + internal + " = 200"), std::vector<std::string>{external + made});
}

// ---- Behind a replace ------------------------------------------------------------------------

namespace {

bool has_operation_anywhere(const Datatree &node, uint32_t operation)
{
    if (platform::has_operation(node) && node.operation == operation) return true;
    const auto children = platform::children_of(node);
    return std::any_of(children.begin(), children.end(),
                       [operation](const Datatree &child) { return has_operation_anywhere(child, operation); });
}

struct Behind {
    const char *edit;
    const char *dropped;   // the leaf whose word is dropped; empty: none
    bool arrives = false;  // whether its removal arrives natively
};

constexpr char multiple_paths[] = "/use-multiple-paths/config/enabled";

// The scope of a replace ends with its node if nothing stands below it that keeps one too, and else not at all.
const Behind behind_replace[] = {
    {"/bgp/global/route-selection-options/config [replace]\n"
     "/bgp/global/route-selection-options/config/always-compare-med = false",
     "/bgp/global/route-selection-options/config/always-compare-med"},
    {"/bgp/global/route-selection-options/config [replace]\n"
     "/bgp/global/route-selection-options/config/ignore-as-path-length = false",
     "/bgp/global/route-selection-options/config/ignore-as-path-length"},
    {"/bgp/global/route-selection-options [replace]\n"
     "/bgp/global/route-selection-options/config/external-compare-router-id = false",
     "/bgp/global/route-selection-options/config/external-compare-router-id"},
    {"/bgp/global [replace]\n/bgp/global/route-selection-options/config/enable-aigp = true",
     "/bgp/global/route-selection-options/config/enable-aigp"},
    {"/bgp/global/route-selection-options/config [replace]\n"
     "/bgp/global/route-selection-options/config/always-compare-med = true\n"
     "/bgp/global/route-selection-options/config/enable-aigp = false",
     ""},
    {"@F/use-multiple-paths [replace]\n@F/use-multiple-paths/config/enabled = false", multiple_paths},
    {"@F/use-multiple-paths/config [replace]\n@F/use-multiple-paths/config/enabled = false", multiple_paths},
    {"@/afi-safis [replace]\n@F/use-multiple-paths/config/enabled = false", multiple_paths},
    // The scope of `transport` ends with it, and that of the entry does not.
    {"@/transport [replace]\n@/transport/config/tcp-mss = 1400\n@F/use-multiple-paths/config/enabled = false",
     multiple_paths},
    {"@/transport/config [replace]\n@/transport/config/tcp-mss = 1400\n@F/use-multiple-paths/config/enabled = false",
     "", true},
    {"@/timers [replace]\n@/timers/config/hold-time = 90\n@F/use-multiple-paths/config/enabled = false", "", true},
    // Replaced on the router too: there is nothing that could stay.
    {"@ [replace]\n@F/use-multiple-paths/config/enabled = false", ""},
    {"@F [replace]\n@F/use-multiple-paths/config/enabled = false", ""},
    {"/bgp [replace]\n/bgp/global/route-selection-options/config/always-compare-med = false", ""},
};

}  // namespace

TEST(EditNotes, TheWordThatSwitchesOffIsDroppedBehindAReplace)
{
    for (const Behind &one : behind_replace)
        for (const char *entry : {nbr, grp}) {
            const std::string edit = replaced(replaced(one.edit, "F/", std::string(family_path) + "/"), "@", entry);
            std::string family_edit = replaced(edit, "F [", std::string(family_path) + " [");
            const std::vector<std::string> notes = notes_of(family_edit);
            const auto dropped = std::count_if(notes.begin(), notes.end(), [&](const std::string &note) {
                return note.find(std::string(one.dropped) + ": ") != std::string::npos &&
                       note.find(" is dropped behind a replace and the ") != std::string::npos;
            });
            const platform::SystemDatabase database;
            const framework::MappedRequest mapped(setting_of(family_edit, VMF_REQ_EDIT, database));
            EXPECT_EQ(mapped.outcome(), uint32_t{VMF_RC_OK}) << family_edit;
            EXPECT_EQ(has_operation_anywhere(mapped.native(), VMF_OP_REMOVE), one.arrives) << family_edit;
            EXPECT_EQ(dropped, *one.dropped != '\0' ? 1 : 0) << family_edit;
            EXPECT_EQ(std::count_if(notes.begin(), notes.end(),
                                    [](const std::string &note) {
                                        return note.find("dropped behind a replace") != std::string::npos;
                                    }),
                      dropped)
                << family_edit;
        }
}

// A replace reaches over the entry that opened it: the next one is behind it too.
TEST(EditNotes, AReplacedNeighborTakesTheWordsOfTheNextForReplacedToo)
{
    const std::string second = "/bgp/neighbors/neighbor[192.0.2.4]";
    EXPECT_EQ(notes_of(std::string(nbr) + " [replace]\n" + nbr + family_path + "/config/enabled = true\n" + second +
                       family_path + "/use-multiple-paths/config/enabled = false"),
              std::vector<std::string>{"/bgp/neighbors/neighbor[neighbor-address='192.0.2.4']" +
                                       std::string(family_shown) +
                                       "/use-multiple-paths/config/enabled: \"false\" is dropped behind a replace and "
                                       "the family stays as it is; delete the leaf to switch it off"});
}

// ---- The notes and the mapping ---------------------------------------------------------------

namespace {

// A container with the first leaf of configuration that it holds, where its lists have an entry. The leaf's word does
// not switch anything off.
std::string container_and_leaf(const model::OcNode &container, const std::string &operation)
{
    const auto with_keys = [](std::string_view path) {
        std::string keyed, schema;
        for (size_t at = 1; at < path.size();) {
            const size_t end = std::min(path.find('/', at), path.size());
            schema.append("/").append(path.substr(at, end - at));
            keyed.append("/").append(path.substr(at, end - at));
            const model::OcNode *node = model::find_oc_node(schema);
            at = end + 1;
            if (node->kind != model::Kind::list) continue;
            const std::string_view next = path.substr(std::min(at, path.size()));
            const std::string family = replaced(std::string(next.substr(0, next.find('/'))), "-", "_");
            std::string identity;
            for (const char c : family) identity += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
            const auto known = model::openconfig_bgp_identities();
            const bool is_family = std::find(known.begin(), known.end(), identity) != known.end();
            keyed += node->key != "afi-safi-name" ? "[192.0.2.2]" : is_family ? "[" + identity + "]" : "[IPV4_UNICAST]";
        }
        return keyed;
    };
    for (const model::OcNode &node : model::openconfig_bgp()) {
        const bool is_leaf = node.kind == model::Kind::leaf || node.kind == model::Kind::leaf_list;
        if (!is_leaf || !node.config || node.path.find("/config/") == std::string_view::npos) continue;
        if (!node.path.starts_with(std::string(container.path) + "/")) continue;
        const std::string leaf = with_keys(node.path);
        // The keys stand in the leaf's path as its own lists ask for them.
        const size_t depth = static_cast<size_t>(std::count(container.path.begin(), container.path.end(), '/'));
        size_t end = 0;
        for (size_t i = 0; i <= depth && end != std::string::npos; i++) end = leaf.find('/', i == 0 ? 0 : end + 1);
        const std::string value = node.type == model::Type::boolean_             ? "true"
                                  : node.path.ends_with("/config/afi-safi-name") ? "IPV4_UNICAST"
                                                                                 : "1";
        return leaf.substr(0, end) + " [" + operation + "]\n" + leaf + " = " + value;
    }
    return "";
}

}  // namespace

// Held against the mapping: where a container's operation does not arrive natively, there is a note, and nowhere else.
// To replace a neighbor's or a group's configuration is written as the removal of its leaves.
TEST(EditNotes, AReplaceOrCreateThatIsLostOnTheWayHasItsNoteForEveryContainer)
{
    platform::SystemDatabase database;
    database.put(framework::global_as_item(0, 65001));
    size_t lost = 0, kept = 0;
    for (const model::OcNode &node : model::openconfig_bgp()) {
        if (node.kind != model::Kind::container || !node.config) continue;
        for (const auto &[word, operation] : {std::pair("replace", VMF_OP_REPLACE), {"create", VMF_OP_CREATE}}) {
            const std::string edit = container_and_leaf(node, word);
            ASSERT_NE(edit, "") << node.path;
            const framework::MappedRequest mapped(setting_of(edit, VMF_REQ_EDIT, database));
            ASSERT_EQ(mapped.outcome(), uint32_t{VMF_RC_OK}) << edit << "\n" << mapped.refusal().reason;
            const bool is_entry_config =
                node.path == "/bgp/neighbors/neighbor/config" || node.path == "/bgp/peer-groups/peer-group/config";
            const bool is_removal = operation == VMF_OP_REPLACE && is_entry_config;
            const bool arrives = is_removal || has_operation_anywhere(mapped.native(), operation);
            const auto notes = mapped.notes();
            const bool is_noted = std::any_of(notes.begin(), notes.end(), [](const std::string &note) {
                return note.find(": is merged, not ") != std::string::npos;
            });
            EXPECT_EQ(is_noted, !arrives) << edit;
            (arrives ? kept : lost)++;
        }
    }
    EXPECT_GT(lost, 100u);
    EXPECT_EQ(kept, 10u);
}

TEST(EditNotes, AReadHasNone)
{
    const platform::SystemDatabase database;
    const std::string lines = "/bgp/global/graceful-restart/config/enabled = false";
    for (const uint32_t kind : {VMF_REQ_GET_CONFIG, VMF_REQ_GET})
        EXPECT_EQ(framework::MappedRequest(setting_of(lines, kind, database)).notes(), std::vector<std::string>{});
    EXPECT_EQ(framework::MappedRequest(setting_of(lines, VMF_REQ_EDIT, database)).notes().size(), 1u);
}

TEST(EditNotes, AnEditThatIsRefusedHasNone)
{
    const platform::SystemDatabase database;
    const std::string lines = "/bgp/global/graceful-restart/config/enabled = false\n/bgp/global/config/colour = red";
    const framework::MappedRequest mapped(setting_of(lines, VMF_REQ_EDIT, database));
    EXPECT_EQ(mapped.outcome(), uint32_t{VMF_RC_UNSUPPORTED});
    EXPECT_EQ(mapped.notes(), std::vector<std::string>{});
}

TEST(EditNotes, PasswordsStandInNone)
{
    for (const char *entry : {nbr, grp})
        for (const std::string operation : {"", " [replace]", " [create]", " [delete]"}) {
            const auto notes =
                notes_of(std::string(entry) + "/config" + operation + "\n" + entry + "/config/auth-password" +
                         operation + " = s3cret:false\n" + entry + "/ebgp-multihop/config/enabled = false");
            EXPECT_FALSE(notes.empty());
            for (const std::string &note : notes) EXPECT_EQ(note.find("s3cret"), std::string::npos) << note;
        }
}
