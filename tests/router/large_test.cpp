// Long lists: whatever is done to each of many neighbors takes time in proportion to their number, or these tests would
// not come to an end.
#include <algorithm>

#include "difference.h"
#include "support.h"
#include "tree_text.h"

using namespace std::chrono_literals;
using namespace test;
using router::Datastore;
using router::Router;

namespace {

constexpr int count = 20000;

std::string address_of(int number)
{
    return "10." + std::to_string(number >> 16) + "." + std::to_string(number >> 8 & 255) + "." +
           std::to_string(number & 255);
}

// A request with an entry for each neighbor. Its lines stand below the key; "@" is the number.
platform::Tree for_each_neighbor(const std::string &operation, const std::string &line, bool is_backwards = false)
{
    std::string text = in_neighbors("neighbor");
    const size_t at = text.find("neighbor\n", text.find("neighbors\n") + 10);
    const std::string indent = text.substr(text.rfind('\n', at) + 1, at - text.rfind('\n', at) - 1);
    text.resize(at - indent.size());
    for (int i = 0; i < count; i++) {
        const int number = is_backwards ? count - 1 - i : i;
        text += indent + "neighbor" + operation + "\n" + indent + "  neighbor-address = " + address_of(number) + "\n";
        if (!line.empty()) text += indent + "  " + line + "\n";
    }
    return io::read_tree(text);
}

const Datatree &neighbors_of(const platform::Tree &tree)
{
    const Datatree *node = &platform::children_of(tree.root())[0];
    while (std::string(platform::tag_of(*node)) != "neighbors") node = &platform::children_of(*node).back();
    return *node;
}

struct Large : TestRouter {
    Large() { router.edit(for_each_neighbor("", "description = a").root()); }
};

}  // namespace

TEST(LongList, IsMadeCommittedAndFoundAgain)
{
    Large made;
    made.router.commit();
    EXPECT_EQ(platform::children_of(neighbors_of(made.router.config(Datastore::running))).size(), size_t{count});
    const Folder copy;
    std::filesystem::copy(made.folder.path(), copy.path());
    const Router reopened(copy.path(), 0ms);
    EXPECT_EQ(running_of(reopened), running_of(made.router));
}

TEST(LongList, EveryEntryIsFoundByItsKeyInOneRequest)
{
    const Large made;
    const platform::Tree answer =
        made.router.read_config(for_each_neighbor("", "description", true).root(), Datastore::candidate);
    const auto entries = platform::children_of(neighbors_of(answer));
    ASSERT_EQ(entries.size(), size_t{count});
    EXPECT_STREQ(platform::value_of(platform::children_of(entries[0])[0]), address_of(0).c_str());
    EXPECT_STREQ(platform::value_of(platform::children_of(entries[count - 1])[1]), "a");
}

TEST(LongList, EveryEntryIsEditedByItsKeyInOneRequest)
{
    Large made;
    const platform::Tree before = made.router.config(Datastore::candidate);
    made.router.edit(for_each_neighbor("", "description = b", true).root());
    const platform::Tree after = made.router.config(Datastore::candidate);
    const std::string lines = router::difference(before.root(), after.root(), io::Secrets::hidden);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 2 * count);
}

TEST(LongList, IsTheSameInAnotherOrder)
{
    Large made;
    made.router.commit();
    made.router.edit(for_each_neighbor(" [delete]", "", true).root());
    EXPECT_EQ(candidate_of(made.router).find("neighbor-address"), std::string::npos);
    made.router.edit(for_each_neighbor(" [create]", "description = a", true).root());
    EXPECT_FALSE(made.router.candidate_differs());
    const platform::Tree running = made.router.config(Datastore::running);
    const platform::Tree candidate = made.router.config(Datastore::candidate);
    EXPECT_STREQ(platform::value_of(platform::children_of(platform::children_of(neighbors_of(candidate))[0])[0]),
                 address_of(count - 1).c_str());
    EXPECT_EQ(router::difference(running.root(), candidate.root(), io::Secrets::hidden), "");
}

TEST(LongList, IsEditedEntryByEntryInManyRequests)
{
    Large made;
    const platform::Tree before = made.router.config(Datastore::candidate);
    for (int i = 0; i < count; i += 10) {
        edit(made.router, in_neighbors("neighbor [delete]\n  neighbor-address = " + address_of(i) + "\n"));
        edit(made.router, in_neighbors("neighbor [create]\n  neighbor-address = " + address_of(i) + "\n"));
    }
    const platform::Tree after = made.router.config(Datastore::candidate);
    EXPECT_EQ(platform::children_of(neighbors_of(after)).size(), size_t{count});
    const std::string lines = router::difference(before.root(), after.root(), io::Secrets::hidden);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), count / 10);
}

TEST(LongList, AnItemOfOneNeighborIsFoundWithoutTheOthers)
{
    Large made;
    edit(made.router, in_as("bgp-running"));
    for (int i = 0; i < count; i++) {
        const std::string pattern = "/cfg/gl/ip-bgp/default/0/65001/ord_a/default/nbr/________/edm/ord_u/0x3/" +
                                    address_of(i) + "/________/ord_s/0x0/ord_c/activate";
        ASSERT_TRUE(made.router.database().find(pattern, true).empty());
        ASSERT_EQ(made.router.database().find("/cfg/gl/ip-bgp/default/.*/.*/gbl/edm/ord_a/running", true).size(), 1u);
    }
}

TEST(LongList, OfPoliciesIsOneToo)
{
    TestRouter made;
    const auto edit_policies = [&](const std::string &operation) {
        std::string lines = "neighbor\n  neighbor-address = 10.0.0.1\n  neighbor-afs\n    neighbor-af\n"
                            "      af-name = ipv4-unicast\n";
        for (int i = 0; i < count; i++)
            lines += "      route-policy-in" + operation + " = p" + std::to_string(i) + "\n";
        edit(made.router, in_neighbors(lines));
    };
    edit_policies("");
    made.router.commit();
    edit_policies(" [delete]");
    edit_policies(" [create]");
    EXPECT_FALSE(made.router.candidate_differs());
}

TEST(LongList, OfOperationalDataIsOneToo)
{
    std::string xml = "<data><bgp xmlns=\"http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-oper\"><instances><instance>"
                      "<instance-name>default</instance-name><instance-active><default-vrf><neighbors>";
    std::string request = "bgp zr-oper\n  instances\n    instance\n      instance-active\n        default-vrf\n"
                          "          neighbors\n";
    for (int i = 0; i < count; i++) {
        xml += "<neighbor><neighbor-address>" + address_of(i) + "</neighbor-address></neighbor>\n";
        request += "            neighbor\n              neighbor-address = " + address_of(count - 1 - i) + "\n";
    }
    TestRouter made;
    made.router.load_operational(
        xml + "</neighbors></default-vrf></instance-active></instance></instances></bgp></data>", "file.xml");
    const platform::Tree answer = made.router.read_operational(io::read_tree(request).root());
    EXPECT_EQ(platform::children_of(neighbors_of(answer)).size(), size_t{count});
}
