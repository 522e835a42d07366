// The paths below a family's own container, which are put together in buffers.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include "mapping_run.h"
#include "probe.h"

namespace response {
namespace {

struct Buffers {
    const char *leaf;
    size_t config, state;
};

constexpr Buffers buffers[] = {{"maximum-prefixes/prefix-limit", 56, 55},
                               {"maximum-prefixes/warning-percentage", 66, 65},
                               {"default-originate/enable", 50, 50}};

TEST(FamilyPaths, are_built_in_buffers_of_these_sizes)
{
    for (const char *family : {"neighbor-af/", "neighbor-group-af/"}) {
        for (const Buffers &row : buffers) {
            SCOPED_TRACE(family + std::string(row.leaf));
            support::MappingRun run{VMF_REQ_GET};
            run.ctx.af_node = &run.out.root();
            run.ctx.af_name = "ipv4-unicast";
            Datatree node = {};
            Probe probe;
            probe.hands_on = true;
            void *handler = dlsym(RTLD_NEXT, find_node(Model::cfg, family + std::string(row.leaf)).handler.c_str());
            ASSERT_NE(handler, nullptr);
            EXPECT_EQ(reinterpret_cast<VmfLeafHandler *>(handler)(&run.ctx, &node, &run.out.root()), VMF_RC_OK);
            // The family's name, and what stands behind it.
            EXPECT_EQ(probe.bounds, (std::vector<size_t>{row.config, row.config, row.config,  //
                                                         row.state, row.state, row.state}));
        }
    }
}

}  // namespace
}  // namespace response
