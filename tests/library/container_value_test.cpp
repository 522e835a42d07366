// A container has no value. One that a request gives it all the same goes nowhere, but for two containers.
#include "library_test.h"

using namespace library_test;

namespace {

struct Request {
    uint32_t kind, operation;
};
constexpr Request requests[] = {{VMF_REQ_GET_CONFIG, VMF_OP_MERGE}, {VMF_REQ_GET, VMF_OP_MERGE},
                                {VMF_REQ_EDIT, VMF_OP_MERGE},       {VMF_REQ_EDIT, VMF_OP_REPLACE},
                                {VMF_REQ_EDIT, VMF_OP_REMOVE},      {VMF_REQ_EDIT, VMF_OP_DELETE}};

constexpr char value[] = "the value of a container";

// The adds that a container without children makes below entries that stand.
Lines adds_of(const Node &container, const std::string &handler, const Request &request)
{
    MappingRun run(request.kind);
    run.know_as(65001);
    platform::Tree list, af, oper_list, oper_af;
    run.ctx.list_node = &list.root();
    run.ctx.af_node = &af.root();
    run.ctx.oper_list_node = &oper_list.root();
    run.ctx.oper_af_node = &oper_af.root();
    const std::string family = container.tag();  // what a container of a family asks for
    run.ctx.af_name = family.c_str();
    Datatree node = {};
    platform::set_value(node, value);
    platform::set_operation(node, request.operation);
    Operations operations;
    call(container, handler, &run.ctx, &node, &run.out.root());
    platform::release(node);
    return operations.adds();
}

// On purpose: a peer group's policies are selected and written with the value of the container that names them.
bool hands_on_its_value(const Node &container)
{
    const std::string policies = "/peer-groups/peer-group/afi-safis/afi-safi/apply-policy/";
    return container.path.ends_with(policies + "config") || container.path.ends_with(policies + "state");
}

TEST(Containers, hand_on_no_value_but_for_the_policies_of_a_peer_group)
{
    size_t adds = 0;
    for (const Node &node : nodes()) {
        if (node.kind != "container") continue;
        for (const std::string &handler : handlers_of(node))
            for (const Request &request : requests)
                for (const std::string &add : adds_of(node, handler, request)) {
                    adds++;
                    EXPECT_EQ(add.find(value) != std::string::npos, hands_on_its_value(node) && handler == node.handler)
                        << handler << ", kind " << request.kind << ", operation " << request.operation << ": " << add;
                }
    }
    EXPECT_GT(adds, 1000u);
}

}  // namespace
