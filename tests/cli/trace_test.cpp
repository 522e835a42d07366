// `ocbgp trace`: which handlers run and what they do; and `ocbgp replay` of what it saves.
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <nlohmann/json.hpp>

#include "router_folder.h"
#include "terminal.h"

namespace {

using Json = nlohmann::ordered_json;

std::string neighbor(const std::string &inside)
{
    return "<bgp xmlns=\"http://openconfig.net/yang/bgp\"><neighbors><neighbor><neighbor-address>10.0.0.1"
           "</neighbor-address>" +
           inside + "</neighbor></neighbors></bgp>";
}

bool holds(const std::string &text, const std::string &part) { return text.find(part) != std::string::npos; }

std::string without_colours(std::string text)
{
    for (size_t begin = text.find('\033'); begin != std::string::npos; begin = text.find('\033'))
        text.erase(begin, text.find('m', begin) + 1 - begin);
    return text;
}

class Trace : public RouterFolder {
protected:
    void SetUp() override
    {
        RouterFolder::SetUp();
        succeed("edit examples/internet-edge-edit.xml");
        succeed("load-operational examples/neighbors-operational.xml");
    }

    std::string with_router() const { return " --router " + router(); }

    // Saves the trace of a request, which has to succeed, and gives the file.
    std::string saved(const std::string &arguments) const
    {
        EXPECT_EQ(run_ocbgp("trace " + arguments + " --save " + path("trace")).code, 0) << arguments;
        return path("trace");
    }

    // A saved trace of one neighbor's state.
    Json saved_read() const
    {
        return Json::parse(read_file(
            saved("--path \"/bgp/neighbors/neighbor[neighbor-address='203.0.113.9']/state\"" + with_router())));
    }

    Ran replay_of(const Json &trace) const
    {
        std::ofstream(path("changed"), std::ios::binary) << trace.dump(1);
        return run_ocbgp("replay " + path("changed"));
    }
};

}  // namespace

// ---- The walk -------------------------------------------------------------------------------

TEST_F(Trace, OfAnEditShowsEachHandlerWithWhatItAdds)
{
    const Ran ran = run_ocbgp("trace examples/global-edit.xml");
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(ran.err, "");
    expect_golden("trace-global-edit", ran.out);
}

TEST_F(Trace, OfAReadShowsBothWays)
{
    const Ran ran =
        run_ocbgp("trace --path \"/bgp/neighbors/neighbor[neighbor-address='203.0.113.9']/state\"" + with_router());
    EXPECT_EQ(ran.code, 0);
    expect_golden("trace-neighbor-state", ran.out);
}

TEST_F(Trace, IsTheSameForXmlAndJson)
{
    EXPECT_EQ(run_ocbgp("trace --as 65001 examples/confederation-edit.xml").out,
              run_ocbgp("trace --as 65001 examples/confederation-edit.json").out);
}

TEST_F(Trace, ShowsWhereARequestIsRefused)
{
    const Ran ran = run_ocbgp("trace --as 1 -", neighbor("<config><peer-as>2</peer-as><colour/></config>"));
    EXPECT_EQ(ran.code, 1);
    EXPECT_TRUE(ran.out.ends_with("        peer-as = 2  vmf_map_leaf_oc_bgp_neighbors_neighbor_config_peeras\n"
                                  "          + neighbor[neighbor-address='10.0.0.1']/remote-as/as-xx = 0\n"
                                  "          + neighbor[neighbor-address='10.0.0.1']/remote-as/as-yy = 2\n"
                                  "        ! Unsupported tag is specified in the request.\n"
                                  "        ! refused tag 'colour'\n"))
        << ran.out;
    EXPECT_EQ(ran.err, run_ocbgp("translate --as 1 -", neighbor("<config><peer-as>2</peer-as><colour/></config>")).err);
}

TEST_F(Trace, ShowsOperationsAndFlags)
{
    const Ran removal = run_ocbgp("trace --as 65001 examples/global-delete.xml");
    EXPECT_TRUE(holds(removal.out, "[delete]")) << removal.out;
    const Ran read = run_ocbgp("trace --kind get --path /bgp/global/state/total-paths");
    EXPECT_TRUE(holds(read.out, "~ state_named = 1\n")) << read.out;
    EXPECT_TRUE(holds(read.out, "~ oper_wanted = 1\n")) << read.out;
    EXPECT_TRUE(holds(read.out, "~ global_paths_wanted = 1\n")) << read.out;
}

TEST_F(Trace, HidesPasswordsUnlessTheyAreAskedFor)
{
    const std::string edit = neighbor("<config><auth-password>geheim</auth-password></config>");
    for (const std::string &form : {std::string(), std::string("--json "), "--save " + path("secret") + " "}) {
        const Ran hidden = run_ocbgp("trace --as 1 " + form + "-", edit);
        EXPECT_FALSE(holds(hidden.out + hidden.err, "geheim")) << form;
        EXPECT_TRUE(holds(hidden.out, "***")) << form;
        EXPECT_TRUE(holds(run_ocbgp("trace --as 1 --show-secrets " + form + "-", edit).out, "geheim")) << form;
    }
    EXPECT_TRUE(holds(read_file(path("secret")), "geheim"));  // the last one showed them
    run_ocbgp("trace --as 1 --save " + path("secret") + " -", edit);
    EXPECT_FALSE(holds(read_file(path("secret")), "geheim"));
    EXPECT_EQ(run_ocbgp("replay " + path("secret")).code, 0);
}

TEST_F(Trace, NeverChangesTheRouter)
{
    const auto before = files();
    EXPECT_EQ(run_ocbgp("trace examples/global-delete.xml" + with_router()).code, 0);
    EXPECT_EQ(run_ocbgp("trace" + with_router()).code, 0);
    EXPECT_EQ(files(), before);
}

TEST_F(Trace, AsksTheRoutersSystemDatabase)
{
    // The AS number of the native path is the router's.
    const std::string edit = neighbor("<config><description>x</description></config>");
    EXPECT_TRUE(holds(run_ocbgp("trace -" + with_router(), edit).out, "+ four-byte-as/as = 65001\n"));
    EXPECT_TRUE(holds(run_ocbgp("trace --as 7 -", edit).out, "+ four-byte-as/as = 7\n"));
}

TEST_F(Trace, AsJsonNamesEveryFunction)
{
    const Json json = Json::parse(run_ocbgp("trace --json examples/global-edit.xml").out);
    EXPECT_EQ(json["request"][0]["function"], "vmf_map_oc_bgp");
    EXPECT_EQ(json["request"][0]["steps"][0]["function"], "vmf_map_cont_oc_bgp");
    EXPECT_FALSE(json.contains("answer"));
    const Json read = Json::parse(run_ocbgp("trace --json --path /bgp/global/config" + with_router()).out);
    EXPECT_EQ(read["answer"][0]["function"], "vmf_map_zr_bgp_cfg_bgp");
}

// ---- Colours --------------------------------------------------------------------------------

TEST_F(Trace, IsColouredOnATerminalAndWhereItIsAskedFor)
{
    const std::string command = "trace examples/global-edit.xml";
    const std::string plain = run_ocbgp(command).out;
    const struct {
        const char *what;
        std::string type;
        std::string environment;
        std::string arguments;
        bool is_coloured;
    } cases[] = {
        {"a terminal", "xterm", "", "", true},
        {"NO_COLOR", "xterm", "NO_COLOR=1", "", false},
        {"NO_COLOR without a value", "xterm", "NO_COLOR=", "", true},
        {"always, against NO_COLOR", "xterm", "NO_COLOR=1", " --color=always", true},
        {"never", "xterm", "", " --color=never", false},
        {"a terminal without colours", "dumb", "", "", false},
    };
    for (const auto &one : cases) {
        Terminal terminal(one.type, [&] {
            unsetenv("NO_COLOR");
            const std::string line =
                "cd " SOURCE_DIR " && env " + one.environment + " " OCBGP " " + command + one.arguments;
            return execl("/bin/sh", "sh", "-c", line.c_str(), nullptr);
        });
        EXPECT_EQ(terminal.wait(), 0) << one.what;
        std::string out = terminal.output();
        out.erase(std::remove(out.begin(), out.end(), '\r'), out.end());
        EXPECT_EQ(holds(out, "\033["), one.is_coloured) << one.what;
        EXPECT_EQ(without_colours(out), plain) << one.what;
    }
    EXPECT_FALSE(holds(plain, "\033"));
    EXPECT_TRUE(holds(run_ocbgp(command + " --color=always").out, "\033["));
    EXPECT_EQ(run_ocbgp(command + " --color=sometimes").code, 64);
}

// ---- Saved and run again --------------------------------------------------------------------

TEST_F(Trace, ThatWasSavedIsRunAgainWithoutTheRouter)
{
    const std::string requests[] = {
        "examples/global-edit.xml",
        "--as 65001 examples/families-edit.xml",
        "examples/prefix-limit-edit.xml" + with_router(),
        "--kind get examples/global-filter.xml" + with_router(),
        "--config" + with_router(),
        with_router(),
    };
    for (const std::string &request : requests) {
        const std::string file = saved(request);
        const Ran again = run_shell("unset OCBGP_ROUTER; " OCBGP " replay " + file);
        EXPECT_EQ(again.code, 0) << request << "\n" << again.out;
        EXPECT_EQ(again.out, file + ": nothing differs\n") << request;
        EXPECT_EQ(again.err, "");
    }
}

TEST_F(Trace, OfARefusalIsRunAgainToo)
{
    EXPECT_EQ(run_ocbgp("trace --save " + path("refused") + " -", neighbor("<colour/>")).code, 1);
    EXPECT_EQ(run_ocbgp("replay " + path("refused")).code, 0);
    Json trace = Json::parse(read_file(path("refused")));
    EXPECT_EQ(trace["result"]["outcome"], "0xaaf2e600");
    EXPECT_EQ(trace["result"]["path"], "/bgp/neighbors/neighbor[neighbor-address='10.0.0.1']/colour");
    trace["request"][4] = "      description = x";
    EXPECT_EQ(replay_of(trace).code, 6);
}

TEST_F(Trace, HoldsRequestQueriesResponseAndResult)
{
    const Json trace = saved_read();
    EXPECT_EQ(trace["format"], "ocbgp-trace");
    EXPECT_EQ(trace["version"], 1);
    EXPECT_EQ(trace["kind"], "get");
    EXPECT_EQ(trace["request"], Json::parse(R"(["bgp oc-bgp", "  neighbors", "    neighbor",
        "      neighbor-address = 203.0.113.9", "      state"])"));
    EXPECT_EQ(trace["system-database"][0]["pattern"], "/cfg/gl/ip-bgp/default/.*/.*/gbl/edm/ord_a/running");
    EXPECT_EQ(trace["system-database"][0]["view"], "candidate");
    EXPECT_EQ(trace["system-database"][0]["records"][0]["location"],
              "/cfg/gl/ip-bgp/default/0/65001/gbl/edm/ord_a/running");
    EXPECT_EQ(trace["native-request"][0], "bgp zr-cfg");
    EXPECT_EQ(trace["native-response"][0], "bgp zr-cfg");
    EXPECT_EQ(trace["result"]["outcome"], "0x00000000");
    EXPECT_EQ(trace["answer"]["outcome"], "0x00000000");
    EXPECT_EQ(trace["answer"]["tree"][0], "bgp oc-bgp");
}

TEST_F(Trace, ShowsWhatDiffersWhenItIsRunAgain)
{
    const struct {
        const char *part;
        std::function<void(Json &trace)> change;
        const char *shown;
    } cases[] = {
        {"answer", [](Json &trace) { trace["answer"]["tree"].back() = "        received = 9"; },
         "  -         received = 9\n"},
        {"native request", [](Json &trace) { trace["native-request"].back() = "x = 1"; }, "  - x = 1\n"},
        {"result",
         [](Json &trace) {
             trace["result"] = {
                 {"outcome", "0xaaf2a000"}, {"reason", "r"}, {"tag", "t"}, {"path", "/p"}, {"notes", Json::array()}};
         },
         "  - outcome 0xaaf2a000\n"},
        {"notes", [](Json &trace) { trace["result"]["notes"].push_back("be careful"); }, "  - be careful\n"},
        {"outcome of the answer", [](Json &trace) { trace["answer"]["outcome"] = "0xaaf29e00"; },
         "  - outcome 0xaaf29e00\n"},
        {"system database",
         [](Json &trace) {
             trace["system-database"].push_back({{"pattern", "/no"}, {"view", "running"}, {"records", Json::array()}});
         },
         "  - /no of what runs\n"},
    };
    const Json trace = saved_read();
    EXPECT_EQ(replay_of(trace).code, 0);
    for (const auto &one : cases) {
        Json changed = trace;
        one.change(changed);
        const Ran ran = replay_of(changed);
        EXPECT_EQ(ran.code, 6) << one.part;
        EXPECT_TRUE(ran.out.starts_with(path("changed") + ": " + one.part + "\n")) << ran.out;
        EXPECT_TRUE(holds(ran.out, one.shown)) << ran.out;
        EXPECT_EQ(ran.err, "");
    }
}

TEST_F(Trace, OfAnotherResponseGivesAnotherAnswerWithWhatStandsAboveIt)
{
    Json trace = saved_read();
    for (Json &line : trace["native-response"])
        if (line == "                description = transit C, behind two hops")
            line = "                description = new";
    const Ran ran = replay_of(trace);
    EXPECT_EQ(ran.code, 6);
    EXPECT_EQ(ran.out, path("changed") +
                           ": answer\n"
                           "    bgp oc-bgp\n      neighbors\n        neighbor\n          state\n"
                           "  -         description = transit C, behind two hops\n  +         description = new\n");
}

TEST_F(Trace, IsUpdatedInItsFileWhereThatIsAskedFor)
{
    Json trace = saved_read();
    const std::string whole = read_file(path("trace"));
    trace["answer"]["tree"].clear();
    EXPECT_EQ(replay_of(trace).code, 6);
    EXPECT_EQ(run_ocbgp("replay --update " + path("changed")).code, 0);
    EXPECT_EQ(run_ocbgp("replay " + path("changed")).code, 0);
    EXPECT_EQ(read_file(path("changed")), whole);
}

TEST_F(Trace, ThatIsDamagedIsRefusedInOneLine)
{
    const Json trace = saved_read();
    const auto changed = [&](const std::function<void(Json &)> &change) {
        Json copy = trace;
        change(copy);
        return copy.dump();
    };
    const struct {
        std::string text;
        std::string reason;
    } cases[] = {
        {"", "not a saved trace"},
        {trace.dump().substr(0, 200), "not a saved trace"},
        {"[]", "not a saved trace"},
        {changed([](Json &json) { json["format"] = "other"; }), "not a saved trace"},
        {changed([](Json &json) { json["version"] = 2; }), "a saved trace of version 2; only version 1 is read"},
        {changed([](Json &json) { json.erase("kind"); }), "damaged: there is no member \"kind\""},
        {changed([](Json &json) { json["kind"] = "paint"; }), "damaged: no number of 32 bits is the member \"kind\""},
        {changed([](Json &json) { json["request"] = "bgp"; }), "damaged: no array is the member \"request\""},
        {changed([](Json &json) { json["request"][0] = 7; }),
         "damaged: not all are lines of text in the member \"request\""},
        {changed([](Json &json) { json["request"].clear(); }), "damaged: request: not one tree"},
        {changed([](Json &json) { json["request"][1] = "     x"; }),
         "damaged: request: line 2: indented too far, or by an odd number"},
        {changed([](Json &json) { json["native-response"][0] = "bgp nowhere"; }),
         "damaged: native-response: line 1: no namespace is called nowhere"},
        {changed([](Json &json) { json["result"]["outcome"] = "fine"; }),
         "damaged: no outcome is the member \"outcome\""},
        {changed([](Json &json) { json["system-database"][0]["view"] = "none"; }),
         "damaged: no view is called \"none\""},
        {changed([](Json &json) { json["system-database"][0]["records"][0]["words"] = {-1}; }),
         "damaged: no number of 32 bits is the member \"words\""},
        {changed([](Json &json) { json.erase("answer"); }), "damaged: there is no member \"answer\""},
    };
    for (const auto &one : cases) expect(run_ocbgp("replay -", one.text), 2, "ocbgp: -: " + one.reason + "\n");
    expect(run_ocbgp("replay /no/such/trace"), 2, "ocbgp: /no/such/trace: cannot be read: No such file or directory\n");
}

TEST_F(Trace, ThatCannotBeWrittenIsSaid)
{
    const Ran ran = run_ocbgp("trace --save /no/such/folder/trace examples/global-edit.xml");
    EXPECT_EQ(ran.code, 70);
    EXPECT_EQ(ran.err, "ocbgp: /no/such/folder/trace: cannot be written: No such file or directory\n");
}
