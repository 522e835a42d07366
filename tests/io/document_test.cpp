// Input as such: where it comes from, and which of the two readers takes it.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>

#include "requests.h"

namespace {

class File {
public:
    explicit File(const std::string &content) { std::ofstream(path_, std::ios::binary) << content; }
    ~File() { std::filesystem::remove(path_); }
    File(const File &) = delete;
    File &operator=(const File &) = delete;

    const std::string &path() const { return path_; }

private:
    std::string path_ = testing::TempDir() + "io_test_input_" + std::to_string(getpid());
};

}  // namespace

TEST(ReadInput, GivesTheBytesOfAFile)
{
    const std::string content("a\r\n\0\xFF", 5);
    EXPECT_EQ(io::read_input(File(content).path()), content);
}

TEST(ReadInput, TakesADashForStandardInput)
{
    const File file("from standard input");
    const int saved = dup(STDIN_FILENO);
    ASSERT_NE(std::freopen(file.path().c_str(), "rb", stdin), nullptr);
    EXPECT_EQ(io::read_input("-"), "from standard input");
    dup2(saved, STDIN_FILENO);
    close(saved);
    std::clearerr(stdin);
}

TEST(ReadInput, RefusesAMissingFile)
{
    EXPECT_EQ(refusal_of([] { io::read_input("/nowhere/at/all"); }),
              "/nowhere/at/all: cannot be read: No such file or directory");
}

TEST(ReadInput, RefusesAFolder)
{
    EXPECT_EQ(refusal_of([] { io::read_input("/"); }), "/: cannot be read: Is a directory");
}

TEST(ReadInput, RefusesAFileThatIsTooLarge)
{
    const File file("");
    std::filesystem::resize_file(file.path(), io::largest_input + 1);
    EXPECT_EQ(refusal_of([&] { io::read_input(file.path()); }), file.path() + ": larger than 268435456 bytes");
}

TEST(ReadRequest, RefusesATextThatIsTooLarge)
{
    const std::unique_ptr<char[]> text(new char[io::largest_input + 1]);
    text[0] = '<';
    EXPECT_EQ(refusal_of([&] {
                  io::read_request({text.get(), io::largest_input + 1}, "in");
              }),
              "in: larger than 268435456 bytes");
}

TEST(ReadRequest, TellsXmlFromJson)
{
    const std::string tree = "bgp oc-bgp\n  global\n";
    EXPECT_EQ(tree_of(io::read_request("<bgp xmlns='http://openconfig.net/yang/bgp'><global/></bgp>", "in")), tree);
    EXPECT_EQ(tree_of(io::read_request("\r\n <bgp xmlns='http://openconfig.net/yang/bgp'><global/></bgp>", "in")),
              tree);
    EXPECT_EQ(tree_of(io::read_request("\t{\"openconfig-bgp:bgp\": {\"global\": {}}}", "in")), tree);
}

TEST(ReadRequest, DropsAByteOrderMark)
{
    const std::string tree = "bgp oc-bgp\n";
    EXPECT_EQ(tree_of(io::read_request("\xEF\xBB\xBF<?xml version='1.0'?><bgp xmlns='http://openconfig.net/yang/bgp'/>",
                                       "in")),
              tree);
    EXPECT_EQ(tree_of(io::read_request("\xEF\xBB\xBF{\"openconfig-bgp:bgp\": {}}", "in")), tree);
}

TEST(ReadRequest, RefusesEmptyInput)
{
    EXPECT_EQ(refusal_of([] { io::read_request("", "in"); }), "in: the input is empty");
    EXPECT_EQ(refusal_of([] { io::read_request("\xEF\xBB\xBF \n", "in"); }), "in: the input is empty");
}
