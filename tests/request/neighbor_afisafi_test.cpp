// What a case cannot say of a neighbor's families: what an entry that could not be made leaves for the nodes below it.
#include <gtest/gtest.h>

#include "mapping_run.h"
#include "recorder.h"
#include "tree_text.h"
#include "vmf_map_oc_bgp.h"

namespace {

constexpr uint32_t some_failure = 0x77;

struct FamilyRun : support::MappingRun {
    FamilyRun() : MappingRun(VMF_REQ_EDIT) { know_as(65001); }

    // The second native family cannot be added.
    uint32_t map(const std::string &second_family)
    {
        platform::Tree request = io::read_tree("bgp oc-bgp\n"
                                               "  neighbors\n"
                                               "    neighbor\n"
                                               "      neighbor-address = 10.0.0.1\n"
                                               "      afi-safis\n"
                                               "        afi-safi\n"
                                               "          afi-safi-name = bgp-types:IPV4_UNICAST\n"
                                               "        afi-safi\n" +
                                               second_family);
        Datatree *bgp = &platform::children_of(request.root())[0];
        support::Recorder recorder(&ctx, bgp, &out.root());
        int families = 0;
        recorder.on_operation = [&](const std::string &operation) {
            return operation.starts_with("neighbor-afs/neighbor-af > ") && ++families == 2 ? some_failure : 0;
        };
        return vmf_map_oc_bgp(&ctx, bgp, &out.root());
    }

    std::string native() const { return io::write_tree(out.root(), io::Secrets::shown); }
};

constexpr char up_to_the_families[] = "bgp zr-cfg\n"
                                      "  instance\n"
                                      "    instance-name = default\n"
                                      "    instance-as\n"
                                      "      as = 0\n"
                                      "      four-byte-as\n"
                                      "        as = 65001\n"
                                      "        default-vrf\n"
                                      "          bgp-entity\n"
                                      "            neighbors\n"
                                      "              neighbor\n"
                                      "                neighbor-address = 10.0.0.1\n"
                                      "                neighbor-afs\n"
                                      "                  neighbor-af\n";

}  // namespace

TEST(NeighborFamily, AnEntryThatFailsLeavesTheContainerOfTheOneBeforeInForce)
{
    FamilyRun run;
    EXPECT_EQ(run.map("          afi-safi-name = bgp-types:IPV6_UNICAST\n"
                      "          ipv6-unicast\n"),
              VMF_RC_UNSUPPORTED);
    EXPECT_STREQ(run.contexts.request.rejected_tag, "ipv6-unicast");
}

TEST(NeighborFamily, AnEntryThatFailsSendsItsNodesToTheOneBefore)
{
    FamilyRun run;
    EXPECT_EQ(run.map("          afi-safi-name = bgp-types:IPV6_UNICAST\n"
                      "          ipv4-unicast\n"
                      "            config\n"
                      "              send-default-route = true\n"
                      "          config\n"
                      "            enabled = true\n"),
              VMF_RC_OK);
    EXPECT_EQ(run.native(), std::string(up_to_the_families) + "                    af-name = ipv4-unicast\n"
                                                              "                    default-originate\n"
                                                              "                      enable = true\n"
                                                              "                    activate\n");
    EXPECT_EQ(run.contexts.request.nbr_af_bitmap, 1u);
}
