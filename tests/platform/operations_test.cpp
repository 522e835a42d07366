// Tests of nodes and texts, and the bounded copies.
#include <climits>

#include "support.h"

using test::source_with;

// ---- Tree and request tests -----------------------------------------------------------------

TEST(DoTheseMatch, ComparesWholeTexts)
{
    EXPECT_NE(vmf_map_do_these_match("bgp", std::string("bgp").c_str()), 0u);
    EXPECT_NE(vmf_map_do_these_match("", ""), 0u);
    for (const char *other : {"", "bg", "bgps", "BGP"}) EXPECT_EQ(vmf_map_do_these_match("bgp", other), 0u) << other;
}

TEST(DoTheseMatch, NullEqualsNothing)
{
    EXPECT_EQ(vmf_map_do_these_match(nullptr, ""), 0u);
    EXPECT_EQ(vmf_map_do_these_match("", nullptr), 0u);
    EXPECT_EQ(vmf_map_do_these_match(nullptr, nullptr), 0u);
}

TEST(IsRequest, TellsRemovalsAndReplacements)
{
    for (uint32_t operation : {VMF_OP_MERGE, VMF_OP_REPLACE, VMF_OP_CREATE, VMF_OP_DELETE, VMF_OP_REMOVE}) {
        const Datatree node = source_with(operation);
        const bool removes = operation == VMF_OP_DELETE || operation == VMF_OP_REMOVE;
        EXPECT_EQ(vmf_map_is_request_delete(&node) != 0, removes) << operation;
        EXPECT_EQ(vmf_map_is_request_replace(&node) != 0, operation == VMF_OP_REPLACE) << operation;
    }
}

TEST(IsRequest, BelievesAnOperationOnlyWhileItIsPresent)
{
    for (uint32_t operation : {VMF_OP_REPLACE, VMF_OP_DELETE, VMF_OP_REMOVE}) {
        Datatree node = source_with(operation);
        node.present[0] = static_cast<uint8_t>(~VMF_DT_OPERATION);
        EXPECT_EQ(vmf_map_is_request_delete(&node), 0u);
        EXPECT_EQ(vmf_map_is_request_replace(&node), 0u);
    }
    EXPECT_EQ(vmf_map_is_request_delete(nullptr), 0u);
    EXPECT_EQ(vmf_map_is_request_replace(nullptr), 0u);
}

TEST(IsValidIpv4Addr, TakesDottedAddressesOnly)
{
    for (const char *good : {"1.2.3.4", "0.0.0.0", "255.255.255.255"})
        EXPECT_NE(vmf_map_is_valid_ipv4_addr(good), 0u) << good;
    for (const char *bad : {"", "1.2.3", "1.2.3.4.5", "01.2.3.4", "256.1.1.1", "::1", "1.2.3.4 ", " 1.2.3.4",
                            "1.2.3.4/8", "1..2.3", "a.b.c.d", "0x1.2.3.4", "Loopback0", "-1.2.3.4"})
        EXPECT_EQ(vmf_map_is_valid_ipv4_addr(bad), 0u) << bad;
    EXPECT_EQ(vmf_map_is_valid_ipv4_addr(nullptr), 0u);
}

TEST(ValidateDataNs, AValueMustLieInTheNamespace)
{
    const auto outcome_of = [](const char *text) {
        const platform::Tree tree = io::read_tree(text);
        return vmf_map_validate_data_ns(nullptr, &platform::children_of(tree.root())[0], OC_BGP_TYPES_NS, 0);
    };
    EXPECT_EQ(outcome_of("afi-safi-name oc-bgp"), 0u) << "a node without a value has no identity";
    EXPECT_EQ(outcome_of("afi-safi-name oc-bgp = bgp-types:IPV4_UNICAST"), 0u);
    EXPECT_NE(outcome_of("afi-safi-name oc-bgp = oc-bgp:IPV4_UNICAST"), 0u);
    EXPECT_NE(outcome_of("afi-safi-name oc-bgp = IPV4_UNICAST"), 0u);
    EXPECT_NE(outcome_of("afi-safi-name bgp-types = IPV4_UNICAST"), 0u) << "the node's own namespace is another matter";
}

TEST(ValidateDataNs, RefusesNulls)
{
    const Datatree node = {};
    EXPECT_NE(vmf_map_validate_data_ns(nullptr, nullptr, OC_BGP_TYPES_NS, 0), 0u);
    EXPECT_NE(vmf_map_validate_data_ns(nullptr, &node, nullptr, 0), 0u);
}

TEST(UpdateCurrentListNode, TakesAnyListAndAnyCount)
{
    for (int32_t count : {0, 1, INT_MAX})
        EXPECT_EQ(vmf_map_update_current_list_node(nullptr, "/bgp/neighbors/neighbor", count), VMF_RC_OK);
    EXPECT_EQ(vmf_map_update_current_list_node(nullptr, nullptr, 1), VMF_RC_BAD_ARGS);
}

TEST(SetBitmap, SetsOneBitAndKeepsTheOthers)
{
    EXPECT_EQ(vmf_map_set_bitmap(0, 0), 1u);
    EXPECT_EQ(vmf_map_set_bitmap(0, 31), 0x80000000u);
    EXPECT_EQ(vmf_map_set_bitmap(0x11, 1), 0x13u);
    EXPECT_EQ(vmf_map_set_bitmap(0x11, 4), 0x11u);
}

TEST(SetBitmap, IgnoresABitThatThereIsNot)
{
    EXPECT_EQ(vmf_map_set_bitmap(0x11, 32), 0x11u);
    EXPECT_EQ(vmf_map_set_bitmap(0x11, UINT32_MAX), 0x11u);
}

// ---- Texts ----------------------------------------------------------------------------------

TEST(Strdup, GivesACopy)
{
    char text[] = "ipv4";
    char *copy = vmf_strdup(text, "VMF MAP");
    text[0] = 'x';
    EXPECT_STREQ(copy, "ipv4");
    vmf_gpb_free(copy);
}

TEST(Strdup, GivesNullForNull) { EXPECT_EQ(vmf_strdup(nullptr, "VMF MAP"), nullptr); }

TEST(SafeStrncpy, CopiesWhatFits)
{
    char text[] = "IPV4_UNICAST";
    EXPECT_EQ(vmf_safe_strncpy(text, sizeof text, "ipv4-unicast", 12), 0u);
    EXPECT_STREQ(text, "ipv4-unicast");
    EXPECT_EQ(vmf_safe_strncpy(text, sizeof text, "", 5), 0u);
    EXPECT_STREQ(text, "");
}

TEST(SafeStrncpy, TakesNoMoreThanTheCount)
{
    const char source[] = {'a', 'b', 'c'};  // ends without a null
    char text[] = "xxxxx";
    EXPECT_EQ(vmf_safe_strncpy(text, sizeof text, source, 3), 0u);
    EXPECT_STREQ(text, "abc");
    EXPECT_EQ(vmf_safe_strncpy(text, sizeof text, "abc", 0), 0u);
    EXPECT_STREQ(text, "");
}

TEST(SafeStrncpy, CutsWhatDoesNotFitAndTells)
{
    char text[] = "xxxx|";
    EXPECT_NE(vmf_safe_strncpy(text, 4, "abcd", 4), 0u);
    EXPECT_STREQ(text, "abc");
    EXPECT_EQ(text[4], '|') << "nothing is written behind the end";
    EXPECT_NE(vmf_safe_strncpy(text, 1, "abcd", 4), 0u);
    EXPECT_STREQ(text, "");
}

TEST(SafeStrncpy, RefusesNullsAndNoRoom)
{
    char text[] = "x";
    EXPECT_NE(vmf_safe_strncpy(nullptr, 2, "a", 1), 0u);
    EXPECT_NE(vmf_safe_strncpy(text, 2, nullptr, 1), 0u);
    EXPECT_NE(vmf_safe_strncpy(text, 0, "a", 1), 0u);
    EXPECT_STREQ(text, "x");
}

TEST(BoundedCopy, CopiesAndAppends)
{
    char text[8] = "xxxxxxx";
    EXPECT_EQ(strcpy_s(text, sizeof text, "abc"), 0);
    EXPECT_EQ(strcat_s(text, sizeof text, "de"), 0);
    EXPECT_EQ(__strcat_s_to_buf(sizeof text, text, sizeof text, "fg"), 0);
    EXPECT_STREQ(text, "abcdefg");
    EXPECT_EQ(strcat_s(text, sizeof text, ""), 0);
    EXPECT_STREQ(text, "abcdefg");
}

TEST(BoundedCopy, LeavesAnEmptyTextWhereTheSourceDoesNotFit)
{
    char text[5] = "ab";
    EXPECT_NE(strcat_s(text, 4, "cd"), 0);
    EXPECT_STREQ(text, "");
    text[0] = 'x';
    EXPECT_NE(strcpy_s(text, 4, "abcd"), 0);
    EXPECT_STREQ(text, "");
    EXPECT_EQ(text[4], '\0');
}

TEST(BoundedCopy, HoldsTheSmallerOfTwoSizes)
{
    char text[8] = "ab";
    EXPECT_NE(__strcat_s_to_buf(4, text, 8, "cd"), 0);
    EXPECT_STREQ(text, "");
    EXPECT_EQ(strcpy_s(text, 8, "ab"), 0);
    EXPECT_NE(__strcat_s_to_buf(8, text, 4, "cd"), 0);
    EXPECT_STREQ(text, "");
}

TEST(BoundedCopy, ADestinationWithoutAnEndIsFull)
{
    char text[4] = {'a', 'b', 'c', 'd'};
    EXPECT_NE(strcat_s(text, sizeof text, ""), 0);
    EXPECT_STREQ(text, "");
}

TEST(BoundedCopy, RefusesNullsAndNoRoom)
{
    char text[] = "x";
    for (auto *copy : {strcpy_s, strcat_s}) {
        EXPECT_NE(copy(nullptr, 2, "a"), 0);
        EXPECT_NE(copy(text, 2, nullptr), 0);
        EXPECT_NE(copy(text, 0, "a"), 0);
    }
    EXPECT_NE(__strcat_s_to_buf(2, nullptr, 2, "a"), 0);
    EXPECT_NE(__strcat_s_to_buf(0, text, 2, "a"), 0);
}

TEST(Itoa, WritesDecimal)
{
    char text[11];
    EXPECT_STREQ(itoa(0, text, 10), "0");
    EXPECT_STREQ(itoa(UINT32_MAX, text, 10), "4294967295");
    EXPECT_EQ(itoa(7, text, 10), text);
}

TEST(Itoa, KnowsNoOtherRadix)
{
    char text[] = "x";
    EXPECT_EQ(itoa(7, text, 16), nullptr);
    EXPECT_EQ(itoa(7, nullptr, 10), nullptr);
    EXPECT_STREQ(text, "x");
}

TEST(Strerror, HasATextForEachOutcome)
{
    const std::pair<uint32_t, const char *> texts[] = {
        {VMF_RC_OK, "success"},
        {VMF_RC_BAD_TREE, "malformed tree"},
        {VMF_RC_BAD_ARGS, "invalid argument"},
        {VMF_RC_NO_MEMORY, "no memory"},
        {VMF_RC_UNSUPPORTED, "not supported"},
        {VMF_RC_BAD_KEY, "unusable list key"},
        {VMF_RC_KEY_OPERATION, "operation on a list key"},
        {SYSDB_NOTHING_FOUND, "nothing found"},
        {SYSDB_END_OF_PART, "end of a part"},
        {0x1234, "outcome 0x00001234"},
        {UINT32_MAX, "outcome 0xffffffff"},
    };
    for (const auto &[outcome, text] : texts) EXPECT_STREQ(cerr_strerror(outcome), text);
}
