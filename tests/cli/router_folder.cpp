#include "router_folder.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

namespace fs = std::filesystem;

std::string global_edit(const std::string &inside)
{
    return "<bgp xmlns=\"http://openconfig.net/yang/bgp\" xmlns:t=\"http://openconfig.net/yang/bgp-types\" "
           "xmlns:nc=\"urn:ietf:params:xml:ns:netconf:base:1.0\"><global>" +
           inside + "</global></bgp>";
}

void RouterFolder::SetUp()
{
    // In memory if there is such a folder: the router waits for the disk with each commit.
    const char memory[] = "/dev/shm";
    const fs::path some_folder = access(memory, W_OK) == 0 ? memory : fs::temp_directory_path();
    folder_ = (some_folder / ("ocbgp-router-test-" + std::to_string(getpid()))).string();
    router_ = folder_ + "/router";
    fs::remove_all(folder_);
    fs::create_directories(folder_);
    setenv("OCBGP_ROUTER", router_.c_str(), 1);
    succeed("init");
}

void RouterFolder::TearDown()
{
    unsetenv("OCBGP_ROUTER");
    fs::remove_all(folder_);
}

std::string RouterFolder::succeed(const std::string &arguments, const std::string &input)
{
    const Ran ran = run_ocbgp(arguments, input);
    EXPECT_EQ(ran.code, 0) << arguments;
    const bool may_note = arguments.starts_with("edit ") || arguments.starts_with("translate ");
    EXPECT_EQ(may_note ? without_notes(ran.err) : ran.err, "") << arguments;
    return ran.out;
}

void RouterFolder::expect(const Ran &ran, int code, const std::string &err)
{
    EXPECT_EQ(ran.code, code);
    EXPECT_EQ(ran.err, err);
    EXPECT_TRUE(code == 0 || ran.out.empty()) << ran.out;
}

std::map<std::string, std::string> RouterFolder::files() const
{
    std::map<std::string, std::string> all;
    for (const auto &entry : fs::directory_iterator(router_))
        all[entry.path().filename().string()] = read_file(entry.path().string());
    return all;
}
