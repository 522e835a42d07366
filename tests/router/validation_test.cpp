#include "support.h"
#include "vmf_map_types.h"

using namespace std::chrono_literals;
using namespace test;
using router::Refused;
using router::Router;

namespace {

// An edit cannot make it, but a candidate that was kept may be anything that the model has names and types for.
constexpr char two_ases[] =
    "<bgp xmlns=\"http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-cfg\">\n<instance>\n"
    "<instance-name>default</instance-name>\n<instance-as>\n<as>0</as>\n</instance-as>\n<instance-as>\n<as>1</as>\n"
    "</instance-as>\n</instance>\n</bgp>\n";

struct Invalid {
    Invalid()
    {
        Router::create(folder.path());
        write_file(folder / "candidate.xml", two_ases);
        router = std::make_unique<Router>(folder.path(), 0ms);
    }
    Folder folder;
    std::unique_ptr<Router> router;
};

void expect_too_many(const Refused &refused)
{
    ASSERT_EQ(refused.violations.size(), 1u);
    EXPECT_EQ(refused.violations[0].path.find("/bgp/instance[instance-name='default']/instance-as"), 0u)
        << refused.violations[0].path;
    EXPECT_NE(refused.violations[0].rule.find("instance-as"), std::string::npos) << refused.violations[0].rule;
    EXPECT_EQ(refused.what(), refused.violations[0].path + ": " + refused.violations[0].rule);
}

}  // namespace

TEST(Validation, NamesThePathAndTheRuleThatAreHurt)
{
    const Invalid invalid;
    try {
        invalid.router->validate();
        FAIL() << "taken";
    } catch (const Refused &refused) {
        expect_too_many(refused);
    }
}

TEST(Validation, AnInvalidCandidateIsNotCommitted)
{
    const Invalid invalid;
    for (int i = 0; i < 2; i++) {  // nor the second time
        try {
            invalid.router->commit();
            FAIL() << "taken";
        } catch (const Refused &refused) {
            expect_too_many(refused);
        }
        EXPECT_EQ(running_of(*invalid.router), "");
        EXPECT_TRUE(invalid.router->candidate_differs());
    }
    EXPECT_EQ(read_file(invalid.folder / "candidate.xml"), two_ases);
    EXPECT_EQ(read_file(invalid.folder / "running.xml").find("instance"), std::string::npos);
}

TEST(Validation, AnInvalidCandidateCanBeKeptMendedOrDiscarded)
{
    Invalid invalid;
    EXPECT_EQ(error_of<Refused>([&] { invalid.router->keep_candidate(); }), "");
    edit(*invalid.router, in_instance("instance-as [delete]\n  as = 1\n"));
    EXPECT_EQ(error_of<Refused>([&] { invalid.router->commit(); }), "");
    EXPECT_EQ(running_of(*invalid.router), in_instance("instance-as\n  as = 0\n"));

    Invalid other;
    other.router->discard();
    EXPECT_EQ(error_of<Refused>([&] { other.router->validate(); }), "");
}

TEST(Validation, AValidCandidateIsTaken)
{
    TestRouter made;
    EXPECT_EQ(error_of<Refused>([&] { made.router.validate(); }), "") << "nothing is valid too";
    edit(made.router, in_global("router-id = 10.0.0.1"));
    EXPECT_EQ(error_of<Refused>([&] { made.router.validate(); }), "");
}
