// The command itself: help, usage, exit codes that belong to no one command.
#include <gtest/gtest.h>

#include <filesystem>

#include "router_folder.h"

namespace {

const char *const commands[] = {"translate", "edit",    "get",     "init",    "reset",
                                "commit",    "discard", "diff",    "show",    "load-operational",
                                "backup",    "restore", "explain", "coverage"};

// The command of the example in a help text.
std::string example_in(const std::string &help)
{
    constexpr char before[] = "\n  ocbgp ";
    const size_t begin = help.find(before);
    if (begin == std::string::npos) return "";
    const size_t end = help.find('\n', begin + 1);
    return help.substr(begin + sizeof before - 1, end - begin - sizeof before + 1);
}

void replace_all(std::string &text, const std::string &what, const std::string &with)
{
    for (size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + with.size()))
        text.replace(at, what.size(), with);
}

class Examples : public RouterFolder {};

}  // namespace

TEST(Command, SaysItsVersion)
{
    const Ran ran = run_ocbgp("--version");
    EXPECT_EQ(ran.code, 0);
    EXPECT_TRUE(ran.out.starts_with("ocbgp ")) << ran.out;
}

TEST(Command, HelpTellsEveryExitCode)
{
    std::vector<std::string> helps = {run_ocbgp("--help").out};
    for (const char *command : commands) helps.push_back(run_ocbgp(std::string(command) + " --help").out);
    for (const std::string &help : helps)
        for (const char *code : {"0 done", "1 refused by the mapping", "2 unreadable", "3 refused by the router",
                                 "4 locked", "5 no router", "64 wrong usage", "70 failure"})
            EXPECT_NE(help.find(code), std::string::npos) << code << " in\n" << help;
}

// In the order in which a person could try them.
TEST_F(Examples, OfHelpWork)
{
    EXPECT_EQ(run_ocbgp(example_in(run_ocbgp("--help").out)).code, 0);
    for (const char *command : {"init", "translate", "edit", "get", "diff", "commit", "discard", "show",
                                "load-operational", "backup", "restore", "reset", "explain", "coverage"}) {
        std::string example = example_in(run_ocbgp(std::string(command) + " --help").out);
        EXPECT_TRUE(example.starts_with(command)) << example;
        replace_all(example, "/tmp/router", path("tried"));
        replace_all(example, "/tmp/saved", path("saved"));
        const Ran ran = run_ocbgp(example);
        EXPECT_EQ(ran.code, 0) << example << "\n" << ran.err;
    }
}

TEST(Command, WrongUsageExitsWithSixtyFourAndSaysWhatIsWrong)
{
    const std::pair<const char *, const char *> cases[] = {
        {"", "a command is required; see ocbgp --help"},
        {"paint", "The following argument was not expected: paint"},
        {"--colour", "The following argument was not expected: --colour"},
        {"get --format yaml", "--format: takes xml, json or tree, not \"yaml\""},
        {"get --wait soon", "--wait: takes a number of seconds, not \"soon\""},
        {"get --wait -1", "--wait: takes a number of seconds, not \"-1\""},
        {"get --wait 1e300", "--wait: takes a number of seconds, not \"1e300\""},
        {"show", "WHAT is required"},
        {"show walking", "WHAT: is running, candidate or operational, not \"walking\""},
        {"edit", "FILE is required"},
        {"edit --dry-run --candidate x", "--dry-run excludes --candidate"},
        {"get --path /bgp x", "FILTER excludes --path"},
        {"translate --kind often -", "--kind: takes edit, get, get-config or a number, not \"often\""},
        {"load-operational", "FILE is required"},
        {"backup", "FOLDER is required"},
        {"restore", "FOLDER is required"},
    };
    for (const auto &[arguments, reason] : cases) {
        const Ran ran = run_ocbgp(arguments);
        EXPECT_EQ(ran.code, 64) << arguments;
        EXPECT_EQ(ran.out, "") << arguments;
        EXPECT_EQ(ran.err.substr(0, ran.err.find('\n')), std::string("ocbgp: ") + reason);
    }
}

TEST(Command, StandardOutputThatCannotBeWrittenIsAFailure)
{
    const Ran ran = run_shell(OCBGP " translate examples/global-edit.xml >/dev/full");
    EXPECT_EQ(ran.code, 70);
    EXPECT_EQ(ran.err, "ocbgp: standard output cannot be written\n");
}

TEST(Command, ShowsItsExamples)
{
    const Ran ran = run_shell("scripts/show-examples " OCBGP);
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(without_notes(ran.err), "");
    for (const char *shown : {"+ /bgp/global/confederation/config/identifier = 64512", "session-state = ESTABLISHED",
                              "/ipv4-unicast/prefix-limit/config/max-prefixes = 1500000"})
        EXPECT_NE(ran.out.find(shown), std::string::npos) << ran.out;
}
