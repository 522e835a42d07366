// `ocbgp coverage`.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "command.h"

TEST(CoverageCommand, TellsItsOwnModelAsText)
{
    const Ran ran = run_ocbgp("coverage");
    EXPECT_EQ(ran.code, 0) << ran.err;
    EXPECT_TRUE(ran.out.starts_with("openconfig-bgp@2016-03-31: 431 nodes, ")) << ran.out;
    EXPECT_NE(ran.out.find("\n/bgp/neighbors/neighbor/timers "), std::string::npos) << ran.out;
    EXPECT_EQ(run_ocbgp("coverage --against models/openconfig-bgp.yang").out, ran.out);
}

TEST(CoverageCommand, AModuleOfItsOwnNativeModelIsRefusedAsAWhole)
{
    const Ran ran = run_ocbgp("coverage --json --against models/Zorvex-ZR-ipv4-bgp-oper.yang --search-dir models");
    EXPECT_EQ(ran.code, 0) << ran.err;
    const auto total = nlohmann::json::parse(ran.out)["total"];
    EXPECT_EQ(total["accepted"], 0);
    EXPECT_EQ(total["refused"], total["nodes"]);
}

TEST(CoverageCommand, WritesDeviations)
{
    const Ran ran = run_ocbgp("coverage --deviations --against models/Zorvex-ZR-ipv4-bgp-oper.yang");
    EXPECT_EQ(ran.code, 0) << ran.err;
    EXPECT_TRUE(ran.out.starts_with("module vmf-oc-bgp-deviations {\n")) << ran.out;
    EXPECT_NE(ran.out.find("  deviation \"/zr-bgp-oper:bgp\" {\n    deviate not-supported;\n  }\n"), std::string::npos);
}

TEST(CoverageCommand, AModuleThatDoesNotLoadIsUnreadable)
{
    const Ran ran = run_ocbgp("coverage --against README.md");
    EXPECT_EQ(ran.code, 2);
    EXPECT_TRUE(ran.err.starts_with("ocbgp: README.md: ")) << ran.err;
    EXPECT_EQ(run_ocbgp("coverage --against missing.yang").code, 2);
}

TEST(CoverageCommand, DeviationsAreNotJson) { EXPECT_EQ(run_ocbgp("coverage --json --deviations").code, 64); }
