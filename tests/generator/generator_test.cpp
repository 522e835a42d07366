// The generator on copies of the models: what it makes of them, and what it says when they do not fit.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

namespace fs = std::filesystem;

namespace {

std::string read_file(const fs::path &path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

std::map<std::string, std::string> files_below(const fs::path &folder)
{
    std::map<std::string, std::string> files;
    for (const auto &entry : fs::recursive_directory_iterator(folder))
        if (entry.is_regular_file()) files[fs::relative(entry.path(), folder).string()] = read_file(entry.path());
    return files;
}

class Generator : public testing::Test {
protected:
    void SetUp() override
    {
        root_ = fs::temp_directory_path() / ("generator-test-" + std::to_string(getpid()));
        fs::create_directories(root_ / "generator");
        fs::copy(SOURCE_DIR "/models", root_ / "models", fs::copy_options::recursive);
        fs::copy(SOURCE_DIR "/generator/services.txt", root_ / "generator");
    }
    void TearDown() override { fs::remove_all(root_); }

    int run(const std::string &arguments = "")
    {
        const std::string command = std::string(GENERATOR) + " " + arguments + " " + root_.string() + " >" +
                                    (root_ / "said").string() + " 2>&1";
        const int status = std::system(command.c_str());
        said_ = read_file(root_ / "said");
        fs::remove(root_ / "said");
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    void replace_in_mapping(const std::string &text, const std::string &by)
    {
        std::string mapping = read_file(root_ / "models/openconfig-bgp.mapping");
        const size_t at = mapping.find(text);
        ASSERT_NE(at, std::string::npos) << text;
        mapping.replace(at, text.size(), by);
        std::ofstream(root_ / "models/openconfig-bgp.mapping", std::ios::binary) << mapping;
    }

    fs::path root_;
    std::string said_;
};

}  // namespace

TEST_F(Generator, GivesTheSameTwice)
{
    ASSERT_EQ(run(), 0) << said_;
    const auto first = files_below(root_);
    ASSERT_EQ(run(), 0) << said_;
    EXPECT_EQ(files_below(root_), first);
}

TEST_F(Generator, GivesWhatIsCommitted)
{
    ASSERT_EQ(run(), 0) << said_;
    for (const auto &[file, text] : files_below(root_)) EXPECT_EQ(text, read_file(fs::path(SOURCE_DIR) / file)) << file;
}

TEST_F(Generator, CountsTheNodes)
{
    ASSERT_EQ(run(), 0);
    for (const char *count :
         {"openconfig-bgp: 431 nodes\n", "Zorvex-ZR-ipv4-bgp-cfg: 135 nodes\n", "Zorvex-ZR-ipv4-bgp-oper: 58 nodes\n"})
        EXPECT_NE(said_.find(count), std::string::npos) << said_;
}

TEST_F(Generator, NamesWhatIsStale)
{
    ASSERT_EQ(run(), 0);
    EXPECT_EQ(run("--check"), 0);
    std::ofstream(root_ / "models/openconfig-bgp.nodes.json", std::ios::app) << "\n";
    EXPECT_EQ(run("--check"), 1);
    EXPECT_NE(said_.find("stale: models/openconfig-bgp.nodes.json"), std::string::npos) << said_;
}

TEST_F(Generator, RefusesATableThatDoesNotFitTheModel)
{
    const std::string row = "router-id                     plain            global/router-id\n";
    struct Fault {
        std::string by;
        std::string says;
    };
    const Fault faults[] = {
        {"", "the model has /bgp/global/config/router-id here, not /bgp/global/state"},
        {"colour plain global/router-id\n",
         "the model has /bgp/global/config/router-id here, not /bgp/global/config/colour"},
        {"router-id\n", "a node without a form"},
        {"router-id flat global/router-id\n", "no such form: flat"},
        {"router-id plain\n", "this form takes another number of paths"},
        {"router-id plain global/router-id global/confederation-domain\n", "this form takes another number of paths"},
        {"router-id plain global/colour\n",
         "the other model has no such node: /bgp/instance/instance-as/four-byte-as/default-vrf/global/colour"},
        {"router-id selection global/router-id\n", "not a form of this kind of node"},
        {"router-id plain router-id\n", "a path that hangs nowhere: router-id"},
        {"router-id plain global/router-id @colour\n", "a mark that /bgp/global/config/router-id cannot have: @colour"},
        {"router-id forward\n", "forward to what?"},
        {row + row, "the model has /bgp/global/state here, not /bgp/global/config/router-id"},
    };
    for (const Fault &fault : faults) {
        const std::string whole = read_file(root_ / "models/openconfig-bgp.mapping");
        replace_in_mapping(row, fault.by);
        EXPECT_EQ(run(), 1) << fault.by;
        EXPECT_NE(said_.find(fault.says), std::string::npos) << "wanted: " << fault.says << "\nsaid: " << said_;
        std::ofstream(root_ / "models/openconfig-bgp.mapping", std::ios::binary) << whole;
    }
}

TEST_F(Generator, RefusesAFormThatLooksAtTheKindBelowState)
{
    replace_in_mapping("state/enabled                 state            global/graceful-restart\n",
                       "state/enabled                 plain            global/graceful-restart\n");
    EXPECT_EQ(run(), 1);
    EXPECT_NE(said_.find("below `state` nothing looks at the kind"), std::string::npos) << said_;
}

TEST_F(Generator, SaysWhereTheTableIsWrong)
{
    replace_in_mapping("below /bgp/global\n", "below\n");
    EXPECT_EQ(run(), 1);
    EXPECT_NE(said_.find("openconfig-bgp.mapping:"), std::string::npos) << said_;
}
