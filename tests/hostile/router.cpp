#include "router.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <map>

namespace fs = std::filesystem;

namespace {

constexpr char configuration[] = "<bgp xmlns='http://openconfig.net/yang/bgp'><global><config><as>65001</as>"
                                 "<router-id>192.0.2.1</router-id></config></global><neighbors><neighbor>"
                                 "<neighbor-address>192.0.2.2</neighbor-address><config><peer-as>65002</peer-as>"
                                 "</config></neighbor></neighbors></bgp>";

// Of the test program: it has one router, whatever tests it runs.
fs::path folder() { return fs::temp_directory_path() / ("ocbgp-hostile-" + std::to_string(getpid())); }

using Files = std::map<std::string, std::string>;

Files files()
{
    Files all;
    for (const auto &entry : fs::recursive_directory_iterator(folder()))
        all[entry.path().string()] = entry.is_regular_file() ? read_file(entry.path().string()) : "folder";
    return all;
}

Files &files_before()
{
    static Files before;
    return before;
}

}  // namespace

void HostileTest::SetUpTestSuite()
{
    setenv("OCBGP_ROUTER", folder().c_str(), 1);
    setenv("ocbgp", OCBGP, 1);
    fs::remove_all(folder());
    ASSERT_EQ(run_ocbgp("init").code, 0);
    ASSERT_EQ(run_ocbgp("edit -", configuration).code, 0);
    files_before() = files();
    ASSERT_FALSE(files_before().empty());
}

void HostileTest::TearDownTestSuite() { fs::remove_all(folder()); }

void HostileTest::expect_refusal(const std::string &line, const std::string &input, int code, const std::string &error)
{
    const Ran ran = run_shell(line, input);
    EXPECT_EQ(ran.err, error);
    EXPECT_EQ(ran.code, code);
    EXPECT_EQ(ran.out, "");
    EXPECT_TRUE(files() == files_before()) << "the router's folder has changed";
}
