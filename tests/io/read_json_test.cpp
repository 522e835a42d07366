#include <gtest/gtest.h>

#include "requests.h"

namespace {

io::Document read(const std::string &text) { return io::read_json(text, "in.json"); }

std::string tree(const std::string &text) { return tree_of(read(text)); }

std::string refusal(const std::string &text)
{
    return refusal_of([&] { read(text); });
}

// A bgp member with these members inside.
std::string bgp(const std::string &members) { return R"({"openconfig-bgp:bgp": {)" + members + "}}"; }

std::string group_config(const std::string &members)
{
    return bgp(R"("peer-groups": {"peer-group": [{"config": {)" + members + "}}]}");
}

const std::string group_config_tree = "bgp oc-bgp\n  peer-groups\n    peer-group\n      config\n";

std::string nested(int depth)
{
    std::string text = "\"x\": {}";
    for (int i = 2; i < depth; i++) text.insert(0, "\"x\": {").append("}");
    return bgp(text);
}

}  // namespace

// ---- The top --------------------------------------------------------------------------------

TEST(ReadJson, TakesABareBgpMember)
{
    EXPECT_EQ(read(bgp("")).kind, std::nullopt);
    EXPECT_EQ(tree(bgp(R"("global": {})")), "bgp oc-bgp\n  global\n");
}

TEST(ReadJson, TakesAMemberOfNetconfAroundIt)
{
    const auto kind = [](const std::string &name) {
        io::Document document = read("{\"ietf-netconf:" + name + "\": " + bgp("") + "}");
        EXPECT_EQ(platform::tag_of(document.bgp.root()), std::string("bgp"));
        return document.kind;
    };
    EXPECT_EQ(kind("config"), VMF_REQ_EDIT);
    EXPECT_EQ(kind("data"), VMF_REQ_EDIT);
    EXPECT_EQ(kind("filter"), VMF_REQ_GET);
}

TEST(ReadJson, SkipsOtherModulesAtTheTopWithANote)
{
    const auto document =
        read(R"({"a:interfaces": {"interface": [{"@x": 1}]}, "openconfig-bgp:bgp": {}, "@a:x": null})");
    EXPECT_EQ(document.notes, (std::vector<std::string>{"a:interfaces is skipped", "@a:x is skipped"}));
}

// ---- Values ---------------------------------------------------------------------------------

TEST(ReadJson, KeepsTheTextOfNumbersAndBooleans)
{
    EXPECT_EQ(tree(bgp(R"("a": 1.50, "b": 65001, "c": -7, "d": true, "e": false, "f": "text", "g": 18446744073709551615,
                          "h": 1e3, "i": "")")),
              "bgp oc-bgp\n  a = 1.50\n  b = 65001\n  c = -7\n  d = true\n  e = false\n  f = text\n"
              "  g = 18446744073709551615\n  h = 1e3\n  i = \"\"\n");
}

TEST(ReadJson, KeepsStringsAsTheyAre)
{
    EXPECT_EQ(tree(group_config(R"("peer-as": " 65001 ", "description": " a\tb\u20ac\ud83d\ude00 ")")),
              group_config_tree + "        peer-as = \" 65001 \"\n        description = \" a\\tb\u20AC\U0001F600 \"\n");
}

TEST(ReadJson, TakesNullForNoValue)
{
    EXPECT_EQ(tree(group_config(R"("peer-as": null, "description": [null], "unknown": null, "other": [null])")),
              group_config_tree + "        peer-as\n        description\n        unknown\n        other\n");
    EXPECT_EQ(
        tree(bgp(R"("global": {"confederation": {"config": {"member-as": [null]}, "state": {"member-as": null}}})")),
        "bgp oc-bgp\n  global\n    confederation\n      config\n        member-as\n      state\n        member-as\n");
}

TEST(ReadJson, TakesAZeroFractionOffADecimal)
{
    EXPECT_EQ(tree(bgp(R"("neighbors": {"neighbor": [{"timers": {"config":
                          {"hold-time": "180.00", "keepalive-interval": 60.0,
                           "minimum-advertisement-interval": 1.50}}}]})")),
              "bgp oc-bgp\n  neighbors\n    neighbor\n      timers\n        config\n          hold-time = 180\n"
              "          keepalive-interval = 60\n          minimum-advertisement-interval = 1.50\n");
}

TEST(ReadJson, GivesAnIdentityTheNamespaceOfItsModule)
{
    EXPECT_EQ(tree(bgp(R"("global": {"afi-safis": {"afi-safi": [{"afi-safi-name": "openconfig-bgp-types:A"},
                          {"afi-safi-name": "openconfig-bgp:B"}, {"config": {"afi-safi-name": "C"}}]}})")),
              "bgp oc-bgp\n  global\n    afi-safis\n      afi-safi\n        afi-safi-name = bgp-types:A\n"
              "      afi-safi\n        afi-safi-name = oc-bgp:B\n"
              "      afi-safi\n        config\n          afi-safi-name = oc-bgp:C\n");
}

TEST(ReadJson, SplitsNoOtherValuesAtAColon)
{
    EXPECT_EQ(tree(group_config(R"("description": "a:b", "unknown": "openconfig-bgp:c")")),
              group_config_tree + "        description = a:b\n        unknown = openconfig-bgp:c\n");
}

// ---- Nodes ----------------------------------------------------------------------------------

TEST(ReadJson, MakesANodeOfEachEntry)
{
    EXPECT_EQ(tree(bgp(R"("neighbors": {"neighbor": [{"neighbor-address": "::1"}, {}]},
                          "global": {"confederation": {"config": {"member-as": [1, 2]}}})")),
              "bgp oc-bgp\n  neighbors\n    neighbor\n      neighbor-address = ::1\n    neighbor\n"
              "  global\n    confederation\n      config\n        member-as = 1\n        member-as = 2\n");
}

TEST(ReadJson, MakesNoNodeOfAnEmptyArray)
{
    EXPECT_EQ(tree(bgp(R"("neighbors": {"neighbor": []})")), "bgp oc-bgp\n  neighbors\n");
}

TEST(ReadJson, TakesTheModuleOfOpenconfigOffNames)
{
    EXPECT_EQ(tree(bgp(R"("openconfig-bgp:global": {"openconfig-bgp:config": {"openconfig-bgp:as": 1}})")),
              "bgp oc-bgp\n  global\n    config\n      as = 1\n");
}

TEST(ReadJson, KeepsNamesOfOtherModulesWhole)
{
    io::Document document = read(bgp(R"("other:global": {"config": {}})"));
    const Datatree &foreign = platform::children_of(document.bgp.root())[0];
    EXPECT_EQ(platform::tag_of(foreign), std::string("other:global"));
    EXPECT_EQ(platform::namespace_of(foreign), nullptr);
    EXPECT_EQ(platform::namespace_of(platform::children_of(foreign)[0]), nullptr);
}

TEST(ReadJson, KeepsUnknownMembersOfAnyShape)
{
    EXPECT_EQ(tree(bgp(R"("a": [{"b": 1}, 2, null], "c": {}, "d": {"e": []})")),
              "bgp oc-bgp\n  a\n    b = 1\n  a = 2\n  a\n  c\n  d\n");
}

TEST(ReadJson, ReadsTheDeepestNesting)
{
    EXPECT_EQ(refusal(nested(64)), "");
    EXPECT_NE(refusal(nested(65)).find("/x/x: nested deeper than 64"), std::string::npos);
}

TEST(ReadJson, EndsAtOnceWhereBracketsGoOnAndOn)
{
    EXPECT_EQ(refusal("{\"a:a\": " + std::string(1000000, '[')), "in.json: /a:a[1]: an array in an array");
}

// ---- Operations -----------------------------------------------------------------------------

TEST(ReadJson, ReadsEachEditOperation)
{
    EXPECT_EQ(tree(bgp(R"("@": {"ietf-netconf:operation": "merge"},
                          "a": {"@": {"ietf-netconf:operation": "replace"}},
                          "b": 1, "@b": {"ietf-netconf:operation": "create"},
                          "@c": {"ietf-netconf:operation": "delete"}, "c": null,
                          "d": [{"@": {"ietf-netconf:operation": "remove"}}, {}])")),
              "bgp oc-bgp [merge]\n  a [replace]\n  b [create] = 1\n  c [delete]\n  d [remove]\n  d\n");
}

TEST(ReadJson, ReadsAnArrayOfAnnotationsByPosition)
{
    EXPECT_EQ(tree(bgp(R"("global": {"confederation": {"config": {"member-as": [1, 2, 3],
                          "@member-as": [null, {"ietf-netconf:operation": "delete"}]}}})")),
              "bgp oc-bgp\n  global\n    confederation\n      config\n        member-as = 1\n"
              "        member-as [delete] = 2\n        member-as = 3\n");
    EXPECT_EQ(tree(bgp(R"("neighbors": {"neighbor": [{}, {}], "@neighbor": [{"ietf-netconf:operation": "remove"}]})")),
              "bgp oc-bgp\n  neighbors\n    neighbor [remove]\n    neighbor\n");
}

TEST(ReadJson, MakesANodeOfARemovalWithoutItsLeaf)
{
    EXPECT_EQ(
        tree(group_config(R"("local-as": 1, "@description": {"ietf-netconf:operation": "delete"}, "peer-as": 2)")),
        group_config_tree + "        local-as = 1\n        description [delete]\n        peer-as = 2\n");
}

TEST(ReadJson, HandsOnARemovalWithoutItsChildrenButWithTheKey)
{
    EXPECT_EQ(tree(bgp(R"("global": {"config": {"as": 1}, "@": {"ietf-netconf:operation": "delete"}},
                          "neighbors": {"neighbor": [{"config": {}, "neighbor-address": "::1", "@zzz": {},
                                                      "@": {"ietf-netconf:operation": "remove"}}]})")),
              "bgp oc-bgp\n  global [delete]\n  neighbors\n    neighbor [remove]\n      neighbor-address = ::1\n");
}

TEST(ReadJson, ReadsOverOtherAnnotationsWithANote)
{
    io::Document document = read(bgp(R"("@": {"a:hint": 1}, "b": 1, "@b": {"a:hint": {}}, "@c": {"a:other": 1})"));
    EXPECT_EQ(document.notes,
              (std::vector<std::string>{"the annotation a:hint is read over", "the annotation a:other is read over"}));
    EXPECT_EQ(tree_of(std::move(document)), "bgp oc-bgp\n  b = 1\n");
}

// ---- Refused --------------------------------------------------------------------------------

class ReadJsonRefuses : public testing::TestWithParam<Refused> {};

TEST_P(ReadJsonRefuses, WithPlaceAndReason) { EXPECT_EQ(refusal(GetParam().text), GetParam().message); }

INSTANTIATE_TEST_SUITE_P(
    Top, ReadJsonRefuses,
    testing::Values(
        Refused{"NoObject", "[]", "in.json: /: an object is expected"},
        Refused{"Empty", "\n", "in.json: the input is empty"},
        Refused{"NoBgp", R"({"a:b": 1})", "in.json: /: no bgp element: there is no member openconfig-bgp:bgp"},
        Refused{"NoBgpInConfig", R"({"ietf-netconf:config": {}})",
                "in.json: /ietf-netconf:config: no bgp element: there is no member openconfig-bgp:bgp"},
        Refused{"UnqualifiedBgp", R"({"bgp": {}})", "in.json: /bgp: a name at the top needs its module"},
        Refused{"OtherTopElement", R"({"openconfig-bgp:global": {}})",
                "in.json: /global: bgp is the only top element of openconfig-bgp"},
        Refused{"SecondBgp", R"({"openconfig-bgp:bgp": {}, "openconfig-bgp:bgp": {}})",
                "in.json: /: the member \"bgp\" stands twice"},
        Refused{"BgpBesideConfig", R"({"openconfig-bgp:bgp": {}, "ietf-netconf:config": {}})",
                "in.json: /ietf-netconf:config: one too many beside bgp"},
        Refused{"ConfigInConfig", R"({"ietf-netconf:config": {"ietf-netconf:config": {}}})",
                "in.json: /ietf-netconf:config: no bgp element: there is no member openconfig-bgp:bgp"},
        Refused{"BgpIsNoObject", R"({"openconfig-bgp:bgp": null})", "in.json: /bgp: a container is an object"},
        Refused{"BgpIsAnArray", R"({"openconfig-bgp:bgp": [{}]})",
                "in.json: /bgp: an array where the model has a container"}),
    name_of_case<Refused>);

INSTANTIATE_TEST_SUITE_P(
    Shape, ReadJsonRefuses,
    testing::Values(
        Refused{"MemberTwice", group_config(R"("peer-as": 1, "openconfig-bgp:peer-as": 2)"),
                "in.json: /bgp/peer-groups/peer-group[1]/config: the member \"peer-as\" stands twice"},
        Refused{"ObjectForALeaf", bgp(R"("neighbors": {"neighbor": [{}, {"config": {"peer-as": {}}}]})"),
                "in.json: /bgp/neighbors/neighbor[2]/config/peer-as: an object where the model has a leaf"},
        Refused{"ArrayForALeaf", group_config(R"("peer-as": [1])"),
                "in.json: /bgp/peer-groups/peer-group[1]/config/peer-as: an array where the model has a leaf"},
        Refused{"ScalarForAContainer", bgp(R"("global": 1)"), "in.json: /bgp/global: a container is an object"},
        Refused{"ArrayForAContainer", bgp(R"("global": [null])"),
                "in.json: /bgp/global: an array where the model has a container"},
        Refused{"ObjectForAList", bgp(R"("neighbors": {"neighbor": {}})"),
                "in.json: /bgp/neighbors/neighbor: a list is an array"},
        Refused{"ScalarForAnEntry", bgp(R"("neighbors": {"neighbor": [{}, null]})"),
                "in.json: /bgp/neighbors/neighbor[2]: an entry of a list is an object"},
        Refused{"ScalarForALeafList", bgp(R"("global": {"confederation": {"config": {"member-as": 1}}})"),
                "in.json: /bgp/global/confederation/config/member-as: a leaf-list is an array"},
        Refused{"ObjectInALeafList", bgp(R"("global": {"confederation": {"config": {"member-as": [1, {}]}}})"),
                "in.json: /bgp/global/confederation/config/member-as[2]: an object where the model has a leaf"},
        Refused{"ArrayInAnArray", bgp(R"("x": [1, [2]])"), "in.json: /bgp/x[2]: an array in an array"},
        Refused{"UnknownModuleOfAnIdentity",
                bgp(R"("global": {"afi-safis": {"afi-safi": [{"afi-safi-name": "oc-types:A"}]}})"),
                "in.json: /bgp/global/afi-safis/afi-safi[1]/afi-safi-name: an undeclared prefix: \"oc-types:A\""},
        Refused{"ControlCharacter", group_config(R"("description": "a\u0000")"),
                "in.json: /bgp/peer-groups/peer-group[1]/config/description: a character that XML cannot carry"},
        Refused{"ControlCharacterInAList", bgp(R"("x": ["a", "\u001f"])"),
                "in.json: /bgp/x[2]: a character that XML cannot carry"},
        Refused{"Noncharacter", bgp(R"("x": "\uffff")"), "in.json: /bgp/x: a character that XML cannot carry"},
        Refused{"NameThatIsNoName", bgp(R"("global": {"a b": 1})"),
                "in.json: /bgp/global: \"a b\" is no name of a member"},
        Refused{"EmptyName", bgp(R"("": 1)"), "in.json: /bgp: \"\" is no name of a member"},
        Refused{"NameOfTwoModules", bgp(R"("a:b:c": 1)"), "in.json: /bgp: \"a:b:c\" is no name of a member"}),
    name_of_case<Refused>);

INSTANTIATE_TEST_SUITE_P(
    Annotation, ReadJsonRefuses,
    testing::Values(
        Refused{"UnknownOperation", bgp(R"("global": {"@": {"ietf-netconf:operation": "erase"}})"),
                "in.json: /bgp/global/@/ietf-netconf:operation: no edit operation is called \"erase\""},
        Refused{"OperationThatIsNoString", bgp(R"("@": {"ietf-netconf:operation": null})"),
                "in.json: /bgp/@/ietf-netconf:operation: an edit operation is a string"},
        Refused{"OperationWithoutModule", bgp(R"("@": {"operation": "delete"})"),
                "in.json: /bgp/@/operation: the annotation must be ietf-netconf:operation"},
        Refused{"AnnotationWithoutModule", bgp(R"("@": {"hint": 1})"),
                "in.json: /bgp/@/hint: an annotation needs the name of its module"},
        Refused{"AnnotationThatIsNoObject", bgp(R"("a": 1, "@a": 1)"), "in.json: /bgp/@a: annotations are an object"},
        Refused{"EntryThatIsNoObject", bgp(R"("a": [1, 2], "@a": [null, 1])"),
                "in.json: /bgp/@a[2]: annotations are an object"},
        Refused{"TooManyAnnotations", bgp(R"("a": [1, 2], "@a": [null, null, null])"),
                "in.json: /bgp/@a: more annotations than entries"},
        Refused{"OneAnnotationForAList", bgp(R"("neighbors": {"neighbor": [{}], "@neighbor": {}})"),
                "in.json: /bgp/neighbors/@neighbor: the annotations of a list are an array"},
        Refused{"OneAnnotationForSeveral", bgp(R"("a": [1, 2], "@a": {})"),
                "in.json: /bgp/@a: the annotations of a list are an array"},
        Refused{"TwoOperations", bgp(R"("a": {"@": {"ietf-netconf:operation": "merge"}},
                                            "@a": {"ietf-netconf:operation": "merge"})"),
                "in.json: /bgp/a/@: a second edit operation for one node"},
        Refused{"MergeWithoutItsLeaf", group_config(R"("@description": {"ietf-netconf:operation": "merge"})"),
                "in.json: /bgp/peer-groups/peer-group[1]/config/@description: the edit operation of a member that is "
                "not there"},
        Refused{"RemovalWithoutItsEntries",
                bgp(R"("neighbors": {"@neighbor": [{"ietf-netconf:operation": "delete"}]})"),
                "in.json: /bgp/neighbors/@neighbor: annotations of entries that are not there"}),
    name_of_case<Refused>);

INSTANTIATE_TEST_SUITE_P(
    Text, ReadJsonRefuses,
    testing::Values(
        Refused{"NotClosed", "{\n  \"a:b\": 1",
                "in.json:2:11: syntax error while parsing object - unexpected end of input; expected '}'"},
        Refused{"CommaTooMany", "{\n  \"a:b\": 1,\n}",
                "in.json:3:1: syntax error while parsing object key - unexpected '}'; expected string literal"},
        Refused{"NameBeyondAscii", "{\"a:\u00E4\": 1}", "in.json: /: \"a:\u00E4\" is no name of a member"},
        Refused{"BadLiteral", "{\"x\": \"\u00E4\",\n \"y\": trux}",
                "in.json:2:10: syntax error while parsing value - invalid literal"},
        Refused{"TwoTexts", "{}\n{}",
                "in.json:2:1: syntax error while parsing value - unexpected '{'; expected end of input"},
        Refused{"NoUtf8", "{\n \"\xE4\"", "in.json:2:3: the text is not UTF-8"},
        Refused{"Nul", std::string("{\n\0}", 4), "in.json:2:1: a NUL character"},
        Refused{"HalfASurrogatePair", "{\"a\": \"\\ud800\"}",
                "in.json:1:14: syntax error while parsing value - invalid string: surrogate U+D800..U+DBFF must be "
                "followed by U+DC00..U+DFFF"},
        Refused{"PasswordThatIsNotClosed", group_config("\n\"auth-password\": \"hush"),
                "in.json:2:29: syntax error while parsing value - invalid string: missing closing quote"},
        Refused{"PasswordThatIsABadString", group_config("\n\"auth-password\": \"hush\\q\""),
                "in.json:2:24: syntax error while parsing value - invalid string: forbidden character after backslash"},
        Refused{"PasswordThatIsTooLarge", group_config("\n\"auth-password\": 1e999"),
                "in.json:2:22: a number that is too large"},
        Refused{"PasswordWithAControlCharacter", group_config("\"auth-password\": \"hush\\u0001\""),
                "in.json: /bgp/peer-groups/peer-group[1]/config/auth-password: a character that XML cannot carry"}),
    name_of_case<Refused>);
