#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "command.h"

namespace {

std::string edit_of(const std::string &inside)
{
    return "<config><bgp xmlns=\"http://openconfig.net/yang/bgp\">" + inside + "</bgp></config>";
}

std::string neighbor_with(const std::string &inside)
{
    return edit_of("<neighbors><neighbor><neighbor-address>10.0.0.1</neighbor-address>" + inside +
                   "</neighbor></neighbors>");
}

const std::set<std::string> large = {"internet-edge-edit.xml",    "internet-edge-edit.json",
                                     "route-reflector-edit.xml",  "route-reflector-edit.json",
                                     "data-centre-leaf-edit.xml", "data-centre-leaf-edit.json"};

}  // namespace

// ---- What comes out -------------------------------------------------------------------------

TEST(Translate, EveryExampleInEveryFormat)
{
    size_t examples = 0;
    for (const auto &entry : std::filesystem::directory_iterator(SOURCE_DIR "/examples")) {
        const std::string name = entry.path().filename().string();
        if (!name.ends_with(".xml") && !name.ends_with(".json")) continue;
        if (name.ends_with("operational.xml")) continue;
        examples++;
        if (large.contains(name)) continue;
        for (const std::string format : {"tree", "xml", "json"}) {
            const Ran ran = run_ocbgp("translate --as 65001 --format " + format + " examples/" + name);
            EXPECT_EQ(ran.code, 0) << name << "\n" << ran.err;
            expect_golden(name + "." + format, ran.out);
            expect_golden(name + ".notes", ran.err);
        }
    }
    EXPECT_GE(examples, 18u);
}

TEST(Translate, EveryLargeExampleAsATree)
{
    for (const std::string &name : large) {
        const Ran ran = run_ocbgp("translate --format tree examples/" + name);
        EXPECT_EQ(ran.code, 0) << name << "\n" << ran.err;
        const std::string golden = name.substr(0, name.find('.'));  // XML and JSON alike
        expect_golden(golden + ".tree", ran.out);
        expect_golden(golden + ".notes", ran.err);
    }
}

TEST(Translate, XmlIsTheDefaultFormat)
{
    EXPECT_EQ(run_ocbgp("translate examples/global-edit.xml").out,
              run_ocbgp("translate --format xml examples/global-edit.xml").out);
}

TEST(Translate, XmlAndJsonOfOneRequestGiveTheSameTrees)
{
    for (const std::string name : {"global-edit", "confederation-edit", "graceful-restart-edit", "internet-edge-edit",
                                   "route-reflector-edit", "data-centre-leaf-edit"})
        EXPECT_EQ(run_ocbgp("translate --as 65001 --format tree examples/" + name + ".xml").out,
                  run_ocbgp("translate --as 65001 --format tree examples/" + name + ".json").out);
}

TEST(Translate, StandardInputIsNamedByAHyphen)
{
    const std::string request = read_file(SOURCE_DIR "/examples/global-edit.xml");
    EXPECT_EQ(run_ocbgp("translate -", request).out, run_ocbgp("translate examples/global-edit.xml").out);
}

TEST(Translate, TheKindOnTheCommandLineGoesBeforeThatOfTheInput)
{
    const std::string as_read = run_ocbgp("translate --kind get-config --format tree examples/global-edit.xml").out;
    EXPECT_EQ(as_read, "bgp zr-cfg\n  instance\n    instance-name = default\n    instance-as\n      as\n"
                       "      four-byte-as\n        as\n        bgp-running\n        default-vrf\n          global\n"
                       "            router-id\n");
}

TEST(Translate, ABareTreeIsAnEditUnlessItIsSaidToBeRead)
{
    const std::string bare = "<bgp xmlns=\"http://openconfig.net/yang/bgp\"><global><config><router-id>192.0.2.1"
                             "</router-id></config></global></bgp>";
    EXPECT_NE(run_ocbgp("translate --format tree -", bare).out.find("router-id = 192.0.2.1"), std::string::npos);
    EXPECT_EQ(run_ocbgp("translate --kind get --format tree -", bare).out.find("192.0.2.1"), std::string::npos);
}

TEST(Translate, AnyNumberIsAKind)
{
    EXPECT_EQ(run_ocbgp("translate --kind 7 --format tree examples/global-edit.xml").out,
              run_ocbgp("translate --kind edit --format tree examples/global-edit.xml").out);
}

TEST(Translate, TheRoutersAsStandsInTheSystemDatabase)
{
    const std::string edit = edit_of("<global><config><router-id>192.0.2.1</router-id></config></global>");
    EXPECT_NE(run_ocbgp("translate --as 4200000001 --format tree -", edit).out.find("as = 4200000001"),
              std::string::npos);
    EXPECT_EQ(run_ocbgp("translate --format tree -", edit).out.find("as ="), std::string::npos);
}

// ---- Refusals -------------------------------------------------------------------------------

TEST(Translate, ARefusalNamesOutcomeReasonTagAndPath)
{
    const Ran ran = run_ocbgp("translate -", edit_of("<global><config><colour>red</colour></config></global>"));
    EXPECT_EQ(ran.code, 1);
    EXPECT_EQ(ran.out, "");
    EXPECT_EQ(ran.err, "ocbgp: refused: VMF_RC_UNSUPPORTED (0xaaf2e600)\n"
                       "  reason: Unsupported tag is specified in the request.\n"
                       "  tag:    colour\n"
                       "  path:   /bgp/global/config/colour\n");
}

TEST(Translate, ARefusalBelowAListEntryNamesItsKey)
{
    const Ran ran = run_ocbgp("translate -", neighbor_with("<timers><colour/></timers>"));
    EXPECT_EQ(ran.code, 1);
    EXPECT_NE(ran.err.find("  path:   /bgp/neighbors/neighbor[neighbor-address='10.0.0.1']/timers/colour\n"),
              std::string::npos)
        << ran.err;
}

TEST(Translate, ARefusedEntryIsNamedByItsPlaceWhenItHasNoKey)
{
    const Ran ran =
        run_ocbgp("translate -", edit_of("<neighbors><neighbor><neighbor-address>10.0.0.1</neighbor-address></neighbor>"
                                         "<neighbor><config/></neighbor></neighbors>"));
    EXPECT_EQ(ran.code, 1);
    EXPECT_NE(ran.err.find("refused: VMF_RC_BAD_KEY (0xaaf2e800)\n  reason: unusable list key\n"
                           "  path:   /bgp/neighbors/neighbor[2]\n"),
              std::string::npos)
        << ran.err;
}

TEST(Translate, AStateInAnEditIsRefused)
{
    const Ran ran = run_ocbgp("translate -", edit_of("<global><state/></global>"));
    EXPECT_EQ(ran.code, 1);
    EXPECT_NE(ran.err.find("  tag:    state\n  path:   /bgp/global/state\n"), std::string::npos) << ran.err;
}

TEST(Translate, ARemovedKeyIsRefusedAtTheKey)
{
    const Ran ran = run_ocbgp("translate -", edit_of("<neighbors><neighbor><neighbor-address "
                                                     "xmlns:nc=\"urn:ietf:params:xml:ns:netconf:base:1.0\" "
                                                     "nc:operation=\"delete\">10.0.0.1</neighbor-address>"
                                                     "</neighbor></neighbors>"));
    EXPECT_EQ(ran.code, 1);
    EXPECT_NE(ran.err.find("VMF_RC_KEY_OPERATION (0xaaf2ea00)\n  reason: The key node should not have delete "
                           "operation.\n"),
              std::string::npos)
        << ran.err;
}

TEST(Translate, UnreadableInputExitsWithTwo)
{
    const Ran missing = run_ocbgp("translate no-such-file.xml");
    EXPECT_EQ(missing.code, 2);
    EXPECT_NE(missing.err.find("no-such-file.xml"), std::string::npos);
    const Ran broken = run_ocbgp("translate -", "<config><bgp");
    EXPECT_EQ(broken.code, 2);
    EXPECT_TRUE(broken.err.starts_with("ocbgp: -:1:")) << broken.err;
}

TEST(Translate, WrongUsageExitsWithSixtyFour)
{
    for (const char *arguments : {"", "translate", "translate a b", "translate --kind often -", "translate --as 0 -",
                                  "translate --as 4294967296 -", "translate --format yaml -", "--colour", "paint"})
        EXPECT_EQ(run_ocbgp(arguments).code, 64) << arguments;
}

// ---- Nodes whose mapping is still to come ---------------------------------------------------

// ---- Trace and secrets ----------------------------------------------------------------------

TEST(Translate, TheTraceGoesToStandardError)
{
    const Ran plain = run_ocbgp("translate examples/global-edit.xml");
    const Ran traced = run_ocbgp("translate --trace examples/global-edit.xml");
    EXPECT_EQ(traced.out, plain.out);
    EXPECT_TRUE(traced.err.starts_with("#1: TRC: vmf_map_oc_bgp:")) << traced.err;
    EXPECT_NE(traced.err.find(": TRC: vmf_map_leaf_oc_bgp_global_config_as:"), std::string::npos);
}

TEST(Translate, APasswordIsHiddenEverywhereUnlessItIsAskedFor)
{
    const std::string request = neighbor_with("<config><auth-password>s3cret</auth-password></config>") + "";
    for (const char *arguments :
         {"translate --trace -", "translate --trace --format json -", "translate --trace --format tree -"}) {
        const Ran ran = run_ocbgp(arguments, request);
        EXPECT_EQ(ran.code, 0);
        EXPECT_EQ((ran.out + ran.err).find("s3cret"), std::string::npos) << arguments;
    }
}
