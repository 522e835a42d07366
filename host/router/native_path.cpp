#include "native_path.h"

namespace router {

std::string quoted(std::string_view value)
{
    const char quote = value.find('\'') == std::string_view::npos ? '\'' : '"';
    return quote + std::string(value) + quote;
}

void append_element(std::string &path, const Schema &schema, std::span<const std::string> keys)
{
    path.append("/").append(schema.tag);
    for (size_t i = 0; i < keys.size(); i++) {
        const char *name = schema.kind == Schema::Kind::list ? schema.children[i].tag : ".";
        path.append("[").append(name).append("=").append(quoted(keys[i])).append("]");
    }
}

std::string path_of(const Place &place)
{
    if (place.outer == nullptr) return {};
    std::string path = path_of(*place.outer);
    append_element(path, *place.schema, place.keys);
    return path;
}

}  // namespace router
