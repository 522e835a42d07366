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

static void append(std::string &text, const Datatree &node, size_t depth)
{
    std::string value = platform::value_of(node) != nullptr ? platform::value_of(node) : "";
    if (platform::data_namespace_of(node) != nullptr) {
        const bool known = std::strcmp(platform::data_namespace_of(node), OC_BGP_TYPES_NS) == 0;
        value.insert(0, known ? "openconfig-bgp-types:" : "?:");
    }
    append_line(text, depth, platform::tag_of(node), value.c_str());
    for (const Datatree &child : platform::children_of(node)) append(text, child, depth + 1);
}

std::string text_of(const Datatree &node)
{
    std::string text;
    for (const Datatree &child : platform::children_of(node)) append(text, child, 0);
    return text;
}

}  // namespace bench
