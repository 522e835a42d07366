// YANG modules by name, as JSON names them, and by namespace, as XML does.
#pragma once

#include <string_view>

#include "vmf_map_types.h"

namespace io {

constexpr char NETCONF_BASE_NS[] = "urn:ietf:params:xml:ns:netconf:base:1.0";

// What JSON calls the attribute `operation` of NETCONF.
constexpr std::string_view json_operation = "ietf-netconf:operation";

struct Module {
    std::string_view name;
    std::string_view ns;
};

constexpr Module modules[] = {
    {"openconfig-bgp", OC_BGP_NS},
    {"openconfig-bgp-types", OC_BGP_TYPES_NS},
    {"Zorvex-ZR-ipv4-bgp-cfg", ZR_BGP_CFG_NS},
    {"Zorvex-ZR-ipv4-bgp-oper", ZR_BGP_OPER_NS},
};

// Empty if no module is known by that namespace, or name.
constexpr std::string_view module_of_namespace(std::string_view ns)
{
    for (const Module &module : modules)
        if (module.ns == ns) return module.name;
    return {};
}

constexpr std::string_view namespace_of_module(std::string_view name)
{
    for (const Module &module : modules)
        if (module.name == name) return module.ns;
    return {};
}

}  // namespace io
