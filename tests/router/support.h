// What the tests of the router share: a folder for each, and native trees in a few lines.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "router.h"

namespace test {

// A folder of this test's own, gone with the object.
class Folder {
public:
    Folder();
    ~Folder();
    Folder(const Folder &) = delete;
    Folder &operator=(const Folder &) = delete;

    const std::filesystem::path &path() const { return path_; }
    std::filesystem::path operator/(const char *name) const { return path_ / name; }

private:
    std::filesystem::path path_;
};

std::string read_file(const std::filesystem::path &path);
void write_file(const std::filesystem::path &path, const std::string &text);

// An empty router in a folder of its own.
struct TestRouter {
    TestRouter();
    Folder folder;
    router::Router router;
};

// Lines below the last of those that lead to them.
std::string below(const std::string &levels, const std::string &lines);

// Native configuration as a tree in text. The lines given stand below the instance, the low half of the AS, its default
// VRF, or that VRF's container.
std::string in_instance(const std::string &lines, const std::string &instance = "default");
std::string in_as(const std::string &lines, const std::string &as = "65001");
std::string in_vrf(const std::string &lines);
std::string in_global(const std::string &lines);
std::string in_neighbors(const std::string &lines);
std::string in_groups(const std::string &lines);

// The path of that AS, of its default VRF.
inline const std::string as_path =
    "/bgp/instance[instance-name='default']/instance-as[as='0']/four-byte-as[as='65001']";
inline const std::string vrf_path = as_path + "/default-vrf";

void edit(router::Router &router, const std::string &tree_text);

// "PATH: RULE" of the refusal; empty if the edit was taken.
std::string refusal_of(router::Router &router, const std::string &tree_text);

// A datastore as such a text.
std::string candidate_of(const router::Router &router);
std::string running_of(const router::Router &router);

// The name of a row of a table.
template<class Row>
std::string name_of_case(const testing::TestParamInfo<Row> &info)
{
    return info.param.name;
}

// What `attempt` throws of that kind, in words; empty if nothing.
template<class Error, class Attempt>
std::string error_of(Attempt attempt)
{
    try {
        attempt();
    } catch (const Error &error) {
        return error.what();
    }
    return {};
}

}  // namespace test
