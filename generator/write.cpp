#include "write.h"

#include <algorithm>

std::string made_by(const std::string &module, const char *comment)
{
    return std::string(comment) + " Made by generator/ from models/" + module + ".yang and models/" + module +
           ".mapping.\n" + comment + " Renew it with `cmake --build build/release --target generate`.\n";
}

std::string padded(std::string text, size_t width)
{
    text.resize(std::max(width, text.size()), ' ');
    return text;
}

std::string with_underscores(std::string text)
{
    std::replace(text.begin(), text.end(), '-', '_');
    return text;
}

size_t widest(const Model &nodes, const std::vector<size_t> &places, std::string (*text)(const Node &))
{
    size_t width = 0;
    for (size_t place : places) width = std::max(width, text(nodes[place]).size());
    return width;
}

std::string local_name(const Node &node)
{
    const std::string part = symbol_part(node);
    return part.empty() ? "bgp" : part.substr(1);
}

std::string quoted_tag(const Node &node) { return "\"" + node.tag + "\","; }
