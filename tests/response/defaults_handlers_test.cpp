#include <dlfcn.h>
#include <gtest/gtest.h>

#include "handler_run.h"
#include "mapping_run.h"
#include "native_model.h"

namespace response {

namespace {

[[maybe_unused]] const bool registered = register_cases("global_") && register_cases("family_") &&
                                         register_cases("neighbor_") && register_cases("peer_") &&
                                         register_cases("defaults_");

struct Handler {
    std::string symbol;
    std::string function;  // the name that it logs under
    void *address;
    bool is_leaf;
};

void *exported(const std::string &symbol)
{
    void *address = dlsym(RTLD_NEXT, symbol.c_str());
    if (address == nullptr) throw std::runtime_error("the library does not export " + symbol);
    return address;
}

// Public names, defaults and bodies.
std::vector<Handler> handlers()
{
    std::vector<Handler> handlers;
    for (const Model model : both_models)
        for (const Node &node : nodes(model)) {
            if (node.handler.empty()) continue;  // a list
            const bool has_default = !node.fallback.empty();
            const bool is_default = has_default && exported(node.handler) == exported(node.fallback);
            handlers.push_back({node.handler, is_default ? node.fallback : node.handler, nullptr, node.is_leaf()});
            if (has_default) handlers.push_back({node.fallback, node.fallback, nullptr, node.is_leaf()});
            if (!node.man.empty()) handlers.push_back({node.man, node.man, nullptr, node.is_leaf()});
        }
    for (Handler &handler : handlers) handler.address = exported(handler.symbol);
    return handlers;
}

uint32_t call(const Handler &handler, MapContext *ctx, Datatree *node, Datatree *out)
{
    if (handler.is_leaf) return reinterpret_cast<VmfLeafHandler *>(handler.address)(ctx, node, out);
    return reinterpret_cast<VmfContainerHandler *>(handler.address)(ctx, node, 0, out);
}

TEST(ResponseHandlers, refuse_a_null_node_and_a_null_output_without_an_end_line)
{
    const std::vector<Handler> all = handlers();
    EXPECT_EQ(all.size(), 2u * (120 + 54) + 6 + 4);  // six have no default, four a body of their own
    for (const Handler &handler : all) {
        for (const bool is_node_null : {true, false}) {
            support::MappingRun run(VMF_REQ_GET);
            Datatree node = {};
            EXPECT_EQ(call(handler, &run.ctx, is_node_null ? nullptr : &node, is_node_null ? &run.out.root() : nullptr),
                      VMF_RC_BAD_ARGS)
                << handler.symbol;
            std::string said;
            for (const support::Said &line : run.said())
                said += line.level + " " + line.function + " " + line.text + "\n";
            EXPECT_EQ(said,
                      "TRC " + handler.function + " Start\nERR " + handler.function + " Invalid arguments passed!\n");
            EXPECT_EQ(text_of(run.out), "") << handler.symbol;
        }
    }
}

}  // namespace

}  // namespace response
