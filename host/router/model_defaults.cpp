#include "model_defaults.h"

#include "native_schema.h"
#include "vmf_map_types.h"

namespace router {

std::optional<std::string> default_of_openconfig(std::string_view path)
{
    const Schema *schema = &models().openconfig;
    while (schema != nullptr && path.starts_with('/')) {
        path.remove_prefix(1);
        const std::string tag(path.substr(0, path.find('/')));
        path.remove_prefix(tag.size());
        schema = schema->find_child(tag.c_str(), OC_BGP_NS);
    }
    if (schema == nullptr || schema->kind != Schema::Kind::leaf) return std::nullopt;
    const auto *leaf = reinterpret_cast<const lysc_node_leaf *>(schema->compiled);
    if (leaf->dflt == nullptr) return std::nullopt;
    return lyd_value_get_canonical(models().context, leaf->dflt);
}

}  // namespace router
