#include "nothing.h"

#include "vmf_map_platform.h"

// The one node that every operation gives. The mapping reads the levels above the neighbors out of it.
static Datatree leaf(const char *tag)
{
    Datatree node = {};
    node.tag = const_cast<char *>(tag);
    node.present[0] = VMF_DT_TAG;
    return node;
}

template<int32_t count>
static Datatree inner(const char *tag, Datatree (&children)[count])
{
    Datatree node = leaf(tag);
    node.subtrees = children;
    node.subtree_count = count;
    node.present[0] |= VMF_DT_SUBTREES;
    return node;
}

static Datatree as_levels[] = {leaf("as"), leaf("four-byte-as")};
static Datatree instance_children[] = {leaf("instance-name"), inner("instance-as", as_levels)};
static Datatree scratch = inner("instance", instance_children);

static size_t operations = 0;

namespace bench {

size_t tree_operations() { return operations; }

}  // namespace bench

static uint32_t nothing(Datatree **result)
{
    operations++;
    if (result != nullptr) *result = &scratch;
    return VMF_RC_OK;
}

extern "C" {

uint32_t vmf_map_datatree_add_subtree(MapContext * /*ctx*/, Datatree * /*parent*/, const char * /*tag*/,
                                      const char * /*ns*/, const char * /*value*/,
                                      const Datatree * /*operation_source*/, Datatree **result, uint32_t /*flag*/)
{
    return nothing(result);
}

uint32_t vmf_map_datatree_add_path(MapContext * /*ctx*/, Datatree * /*parent*/, const char * /*path*/,
                                   const char * /*ns*/, const char * /*value*/, const Datatree * /*operation_source*/,
                                   Datatree **result, uint32_t /*repeat*/)
{
    return nothing(result);
}

uint32_t vmf_map_datatree_add_path_common(MapContext * /*ctx*/, Datatree * /*parent*/, const char * /*path*/,
                                          const char * /*ns*/, const char * /*value*/,
                                          const Datatree * /*operation_source*/, Datatree **result, uint32_t /*repeat*/)
{
    return nothing(result);
}

uint32_t vmf_map_datatree_add_list_node(MapContext * /*ctx*/, Datatree * /*parent*/, const char * /*list_tag*/,
                                        const char * /*ns*/, const char * /*key_tag*/, const char * /*key_value*/,
                                        Datatree **result)
{
    return nothing(result);
}

uint32_t vmf_map_datatree_add_data_ns(MapContext * /*ctx*/, Datatree * /*parent*/, const char * /*path*/,
                                      const char * /*ns*/)
{
    return nothing(nullptr);
}

}  // extern "C"
