#include "tree_text.h"

#include <gtest/gtest.h>

TEST(TreeText, ReadsWhatItWrites)
{
    const std::string text = "bgp zr-cfg\n"
                             "  instance\n"
                             "    instance-name = default\n"
                             "    instance-as [remove]\n"
                             "    note = \" a\\nb\"\n"
                             "    family = bgp-types:IPV4_UNICAST\n"
                             "    other <urn:x> [replace] = 1\n"
                             "bgp zr-oper\n";
    EXPECT_EQ(io::write_tree(io::read_tree(text).root(), io::Secrets::shown), text);
}

TEST(TreeText, HidesPasswords)
{
    const auto tree = io::read_tree("config oc-bgp\n  auth-password = a\npassword zr-cfg\n  password = b\n"
                                    "  password-disable = false\n");
    EXPECT_EQ(io::write_tree(tree.root(), io::Secrets::hidden),
              "config oc-bgp\n  auth-password = ***\npassword zr-cfg\n  password = ***\n  password-disable = false\n");
}

TEST(TreeText, AValueThatLooksLikeADataNamespaceStaysAValue)
{
    platform::Tree tree;
    Datatree *leaf = platform::append_child(tree.root(), "description", OC_BGP_NS);
    ASSERT_TRUE(platform::set_value(*leaf, "zr-cfg:uplink"));
    const platform::Tree read = io::read_tree(io::write_tree(tree.root(), io::Secrets::hidden));
    const Datatree &again = platform::children_of(read.root()).front();
    EXPECT_STREQ(platform::value_of(again), "zr-cfg:uplink");
    EXPECT_EQ(platform::data_namespace_of(again), nullptr);
}
