#include "text.h"

#include <cstring>

#include "tree.h"

namespace bench {

void append_line(std::string &text, size_t depth, const char *tag, const char *value)
{
    text.append(depth, ' ');
    text += tag;
    if (value != nullptr && *value != '\0') text += std::string(" = ") + value;
    text += '\n';
}

std::string value_of(const Datatree &node)
{
    const std::string value = platform::value_of(node) != nullptr ? platform::value_of(node) : "";
    const char *ns = platform::data_namespace_of(node);
    if (ns == nullptr) return value;
    return (std::strcmp(ns, OC_BGP_TYPES_NS) == 0 ? "openconfig-bgp-types:" : "?:") + value;
}

static void append(std::string &text, const Datatree &node, size_t depth)
{
    append_line(text, depth, platform::tag_of(node), value_of(node).c_str());
    for (const Datatree &child : platform::children_of(node)) append(text, child, depth + 1);
}

std::string text_of(const Datatree &node)
{
    std::string text;
    for (const Datatree &child : platform::children_of(node)) append(text, child, 0);
    return text;
}

}  // namespace bench
