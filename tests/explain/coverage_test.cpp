// How much of a module is accepted, and deviations that yanglint loads beside it.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "module_coverage.h"

namespace fs = std::filesystem;

namespace {

// The model with nodes that the mapping does not know: by augmentation, in its own module, and below a choice.
constexpr char wider[] = R"(module openconfig-bgp {
  yang-version 1.1;
  namespace "http://openconfig.net/yang/bgp";
  prefix oc-bgp;

  grouping counters {
    leaf total-paths { type uint32; }
    leaf colour { type string; }
  }

  container bgp {
    container global {
      container config {
        leaf as { type uint32; }
        leaf colour { type string; }
      }
      container state { uses counters; }
      container weather {
        leaf wind { type uint8; }
        choice rain { case heavy { leaf heavy { type empty; } } }
      }
    }
  }
}
)";

constexpr char beside[] = R"(module colours {
  yang-version 1.1;
  namespace "http://zorvex.example/ns/yang/colours";
  prefix c;

  import openconfig-bgp { prefix oc-bgp; }

  augment "/oc-bgp:bgp/oc-bgp:global/oc-bgp:config" {
    leaf router-id { type string; }
  }
}
)";

class Coverage : public testing::Test {
protected:
    void SetUp() override
    {
        std::string name = (fs::temp_directory_path() / "explain-XXXXXX").string();
        ASSERT_NE(mkdtemp(name.data()), nullptr);
        folder_ = name;
        write("openconfig-bgp.yang", wider);
        write("colours.yang", beside);
    }
    void TearDown() override { fs::remove_all(folder_); }

    std::string write(const std::string &name, const std::string &text) const
    {
        const std::string path = folder_ / name;
        std::ofstream(path) << text;
        return path;
    }

    std::string path(const std::string &name) const { return folder_ / name; }

    // What yanglint prints of the modules, or of their tree; "refused" if it does not take them.
    std::string yanglint(const std::string &arguments) const
    {
        const std::string out = path("out");
        const std::string command = std::string(YANGLINT) + " -p " + folder_.string() + " -p " SOURCE_DIR "/models " +
                                    arguments + " > " + out + " 2>&1";
        const bool is_taken = std::system(command.c_str()) == 0;
        std::ifstream file(out);
        const std::string text((std::istreambuf_iterator<char>(file)), {});
        return is_taken ? text : "refused: " + text;
    }

    fs::path folder_;
};

std::map<std::string, std::string> coverage_by_path(const explain::Modules &modules)
{
    std::map<std::string, std::string> rows;
    const auto json = nlohmann::json::parse(write_coverage_json(modules, explain::Coverage(modules)));
    for (const auto &node : json["nodes"]) rows[node["path"]] = node["coverage"];
    return rows;
}

}  // namespace

TEST_F(Coverage, OfItsOwnModelIsWhole)
{
    const explain::Modules modules;
    const explain::Coverage coverage(modules);
    const auto json = nlohmann::json::parse(write_coverage_json(modules, coverage));
    EXPECT_EQ(json["total"]["nodes"], 431);
    EXPECT_EQ(json["total"]["refused"], 0);
    size_t sum = 0;
    for (const auto &subtree : json["subtrees"]) sum += subtree["nodes"].get<size_t>();
    EXPECT_EQ(sum, 431u);
    for (const auto &node : json["nodes"])
        EXPECT_EQ(node["coverage"], node["config"] == true ? "accepted" : "read-only") << node["path"];
}

TEST_F(Coverage, TellsAcceptedReadOnlyAndRefusedApart)
{
    const explain::Modules modules({path("openconfig-bgp.yang"), path("colours.yang")}, {});
    EXPECT_EQ(coverage_by_path(modules), (std::map<std::string, std::string>{
                                             {"/bgp", "accepted"},
                                             {"/bgp/global", "accepted"},
                                             {"/bgp/global/config", "accepted"},
                                             {"/bgp/global/config/as", "accepted"},
                                             {"/bgp/global/config/colour", "refused"},
                                             {"/bgp/global/config/router-id", "refused"},  // another module's
                                             {"/bgp/global/state", "read-only"},
                                             {"/bgp/global/state/total-paths", "read-only"},
                                             {"/bgp/global/state/colour", "refused"},
                                             {"/bgp/global/weather", "refused"},
                                             {"/bgp/global/weather/wind", "refused"},
                                             {"/bgp/global/weather/heavy", "refused"},
                                         }));
}

TEST_F(Coverage, TextHasATableAndTheUppermostOfWhatIsRefused)
{
    const explain::Modules modules({path("openconfig-bgp.yang")}, {});
    const std::string text = write_coverage_text(modules, explain::Coverage(modules));
    EXPECT_TRUE(text.starts_with("openconfig-bgp: 11 nodes, 4 accepted, 2 read-only, 5 refused\n")) << text;
    EXPECT_NE(text.find("/bgp/global/weather         0          0        3\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\n  /bgp/global/weather\n"), std::string::npos) << text;
    EXPECT_EQ(text.find("\n  /bgp/global/weather/wind\n"), std::string::npos) << text;
    EXPECT_NE(text.find("only read, with all that lies below:\n  /bgp/global/state\n"), std::string::npos) << text;
}

TEST_F(Coverage, DeviationsLoadBesideTheModelAndTakeAwayWhatIsRefused)
{
    const explain::Modules modules({path("openconfig-bgp.yang")}, {});
    const std::string deviations =
        write("vmf-oc-bgp-deviations.yang", write_deviations(modules, explain::Coverage(modules)));
    const std::string tree = yanglint("-f tree " + path("openconfig-bgp.yang") + " " + deviations);
    EXPECT_EQ(tree.find("refused"), std::string::npos) << tree;
    EXPECT_NE(tree.find("rw as?"), std::string::npos) << tree;
    EXPECT_NE(tree.find("ro total-paths?"), std::string::npos) << tree;
    EXPECT_EQ(tree.find("colour"), std::string::npos) << tree;
    EXPECT_EQ(tree.find("weather"), std::string::npos) << tree;
    const std::string without = yanglint("-f tree " + path("openconfig-bgp.yang"));
    EXPECT_NE(without.find("rw total-paths?"), std::string::npos) << without;
    EXPECT_NE(without.find("colour"), std::string::npos) << without;
}

TEST_F(Coverage, DeviationsOfAnAugmentedModelNameBothModules)
{
    const explain::Modules modules({path("openconfig-bgp.yang"), path("colours.yang")}, {});
    const std::string deviations =
        write("vmf-oc-bgp-deviations.yang", write_deviations(modules, explain::Coverage(modules)));
    const std::string data = write("data.xml", R"(<bgp xmlns="http://openconfig.net/yang/bgp"><global><config>
  <router-id xmlns="http://zorvex.example/ns/yang/colours">x</router-id>
</config></global></bgp>)");
    const std::string both = "-t config " + path("openconfig-bgp.yang") + " " + path("colours.yang") + " ";
    EXPECT_EQ(yanglint(both + data), "");
    const std::string said = yanglint(both + deviations + " " + data);
    EXPECT_TRUE(said.starts_with("refused: ")) << said;
    EXPECT_NE(said.find("\"router-id\" not found"), std::string::npos) << said;
}

TEST_F(Coverage, DeviationsOfItsOwnModelAreNoneAndLoad)
{
    const explain::Modules modules;
    const std::string text = write_deviations(modules, explain::Coverage(modules));
    EXPECT_EQ(text.find("deviation \""), std::string::npos);
    fs::remove(path("openconfig-bgp.yang"));
    const std::string said = yanglint(write("vmf-oc-bgp-deviations.yang", text));
    EXPECT_EQ(said.find("refused"), std::string::npos) << said;
}

TEST_F(Coverage, AModuleThatDoesNotLoadIsRefusedWithItsName)
{
    const std::string bad = write("bad.yang", "module bad {");
    try {
        const explain::Modules modules({bad}, {});
        FAIL() << "it was taken";
    } catch (const explain::BadModule &said) {
        EXPECT_TRUE(std::string(said.what()).starts_with(bad)) << said.what();
    }
    EXPECT_THROW(explain::Modules({path("missing.yang")}, {}), explain::BadModule);
    EXPECT_THROW(explain::Modules({path("colours.yang")}, {path("missing")}), explain::BadModule);
}
