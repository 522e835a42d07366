// A program that keeps secrets in a vault: a client writes "vault:NAME" as a neighbor's password, and the router gets
// what the vault holds under that name. The library has a handler for the leaf, written by hand. This definition in the
// program that loads the library takes its place, and calls it with the secret.
#include <dlfcn.h>

#include <cstring>
#include <map>
#include <string>

#include "vmf_map_oc_bgp_handlers.h"

static std::map<std::string, std::string> vault = {{"transit-c", "correct horse"}};

static VmfLeafHandler *handler_of_the_library()
{
    void *next = dlsym(RTLD_NEXT, "vmf_map_leaf_oc_bgp_neighbors_neighbor_config_authpassword");
    return reinterpret_cast<VmfLeafHandler *>(next);
}

extern "C" uint32_t vmf_map_leaf_oc_bgp_neighbors_neighbor_config_authpassword(MapContext *ctx, Datatree *node,
                                                                               Datatree *out)
{
    static VmfLeafHandler *const map = handler_of_the_library();
    constexpr char prefix[] = "vault:";
    constexpr size_t length = sizeof prefix - 1;
    const bool has_value = node != nullptr && (node->present[0] & VMF_DT_VALUE) != 0;
    if (!has_value || std::strncmp(node->value, prefix, length) != 0) return map(ctx, node, out);

    const auto secret = vault.find(node->value + length);
    if (secret == vault.end()) return VMF_RC_BAD_ARGS;
    Datatree resolved = *node;  // the request keeps what the client wrote; the native tree takes a copy of the value
    resolved.value = secret->second.data();
    return map(ctx, &resolved, out);
}
