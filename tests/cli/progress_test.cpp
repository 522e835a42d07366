// How far an edit has come, shown on a terminal and nowhere else.
#include "progress.h"

#include <unistd.h>

#include <algorithm>
#include <fstream>

#include "names.h"
#include "router_folder.h"
#include "terminal.h"
#include "tree_text.h"
#include "vmf_map_platform.h"

namespace {

const std::string line_back = "\r\033[K";

std::string edit_of_neighbors(int count)
{
    std::string edit = "<bgp xmlns=\"http://openconfig.net/yang/bgp\"><global><config><as>65001</as></config></global>"
                       "<neighbors>";
    for (int i = 0; i < count; i++)
        edit += "<neighbor><neighbor-address>10.0." + std::to_string(i / 256) + "." + std::to_string(i % 256) +
                "</neighbor-address><config><peer-as>65002</peer-as></config></neighbor>";
    return edit + "</neighbors></bgp>";
}

// What was written besides the line of progress.
std::string without_progress(std::string text)
{
    for (size_t begin = text.find(line_back); begin != std::string::npos; begin = text.find(line_back))
        text.erase(begin, std::min(text.find_first_of("\r\n", begin + 1), text.size()) - begin);
    return text;
}

class EditProgress : public RouterFolder {};

}  // namespace

TEST(Progress, SaysStepsAndEntriesAndTakesItsLineBack)
{
    int go_on[2];
    ASSERT_EQ(pipe(go_on), 0);
    const platform::Tree request = io::read_tree("bgp oc-bgp\n  neighbors\n    neighbor\n    neighbor\n  peer-groups\n"
                                                 "    peer-group\n");
    Terminal terminal("xterm", [&] {
        const auto wait = [&] {
            char any;
            return read(go_on[0], &any, 1);
        };
        cli::Progress progress(false);
        progress.step("reading");
        wait();
        progress.count_entries(platform::children_of(request.root()).front());
        MapContext context = {};
        for (const char *list :
             {"/bgp/neighbors/neighbor", "/bgp/neighbors/neighbor/afi-safis/afi-safi", "/bgp/peer-groups/peer-group"})
            vmf_map_update_current_list_node(&context, list, 1);
        wait();
        progress.interrupt([] { (void)!write(STDERR_FILENO, "a note\n", 7); });
        progress.step("storing");
        wait();
        return 0;
    });
    const auto next = [&] { EXPECT_EQ(write(go_on[1], "", 1), 1); };
    EXPECT_TRUE(terminal.read_until(line_back + "reading"));
    next();
    EXPECT_TRUE(terminal.read_until(line_back + "mapping 2 of 3 entries"));
    next();
    EXPECT_TRUE(terminal.read_until("a note\r\n" + line_back + "storing"));
    next();
    // The child leaves by _exit, so the line is taken back by the object alone.
    EXPECT_EQ(terminal.wait(), 0);
    EXPECT_TRUE(terminal.output().ends_with(line_back + "storing" + line_back)) << terminal.output();
    EXPECT_NE(terminal.output().find("entries" + line_back + "a note"), std::string::npos) << terminal.output();
    close(go_on[0]);
    close(go_on[1]);
}

TEST_F(EditProgress, OnATerminalLeavesNothingBehind)
{
    std::ofstream(path("edit.xml")) << edit_of_neighbors(20000);
    std::string output;
    EXPECT_EQ(run_on_terminal("xterm", "edit --candidate " + path("edit.xml"), output), 0) << output;
    EXPECT_EQ(without_progress(output), "");
    EXPECT_TRUE(output.empty() || output.ends_with(line_back));
}

TEST_F(EditProgress, IsNotShownWhereItWouldBeInTheWay)
{
    std::ofstream(path("edit.xml")) << edit_of_neighbors(5000);
    const std::string edit = "edit --candidate " + path("edit.xml");
    const struct {
        const char *what;
        std::string type;
        std::string arguments;
    } cases[] = {
        {"a terminal that cannot go back", "dumb", edit},
        {"when it shall be quiet", "xterm", "edit --quiet --candidate " + path("edit.xml")},
        {"standard error to a file", "xterm", edit + " 2>" + path("err")},
    };
    for (const auto &one : cases) {
        std::string output;
        EXPECT_EQ(run_on_terminal(one.type, one.arguments, output), 0) << one.what;
        EXPECT_EQ(output, "") << one.what;
    }
    EXPECT_EQ(read_file(path("err")), "");
    const Ran piped = run_ocbgp(edit);
    EXPECT_EQ(piped.out + piped.err, "");
}

TEST_F(EditProgress, GoesBeforeWhatIsSaidOfARefusal)
{
    std::ofstream(path("edit.xml")) << "<bgp xmlns=\"http://openconfig.net/yang/bgp\"><colour/></bgp>";
    std::string output;
    EXPECT_EQ(run_on_terminal("xterm", "edit " + path("edit.xml"), output), 1);
    EXPECT_EQ(
        without_progress(output),
        "ocbgp: refused: VMF_RC_UNSUPPORTED (0xaaf2e600)\r\n"
        "  reason: Unsupported tag is specified in the request.\r\n  tag:    colour\r\n  path:   /bgp/colour\r\n");
}
