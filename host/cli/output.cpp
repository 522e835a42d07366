#include "output.h"

#include <cstdio>

#include "secrets.h"
#include "tree.h"
#include "vmf_map_platform.h"

namespace cli {

std::string write_trees(const Datatree &holder, Format format, io::Envelope envelope, io::Secrets secrets)
{
    switch (format) {
    case Format::xml: return io::write_xml(holder, envelope, secrets);
    case Format::json: return io::write_json(holder, secrets);
    case Format::tree: break;
    }
    return io::write_tree(holder, secrets);
}

static const char *constant_of_outcome(uint32_t outcome)
{
    switch (outcome) {
    case VMF_RC_BAD_TREE: return "VMF_RC_BAD_TREE";
    case VMF_RC_BAD_ARGS: return "VMF_RC_BAD_ARGS";
    case VMF_RC_NO_MEMORY: return "VMF_RC_NO_MEMORY";
    case VMF_RC_UNSUPPORTED: return "VMF_RC_UNSUPPORTED";
    case VMF_RC_BAD_KEY: return "VMF_RC_BAD_KEY";
    case VMF_RC_KEY_OPERATION: return "VMF_RC_KEY_OPERATION";
    case SYSDB_NOTHING_FOUND: return "SYSDB_NOTHING_FOUND";
    case SYSDB_END_OF_PART: return "SYSDB_END_OF_PART";
    default: return "outcome";
    }
}

std::string name_of_outcome(uint32_t outcome)
{
    char number[sizeof " (0x00000000)"];
    std::snprintf(number, sizeof number, " (0x%08x)", outcome);
    return constant_of_outcome(outcome) + std::string(number);
}

static void collect_passwords(const Datatree &node, const char *parent, std::vector<std::string> &passwords)
{
    const char *tag = platform::tag_of(node);
    const char *value = platform::value_of(node);
    if (value != nullptr && io::is_secret(tag, parent)) passwords.emplace_back(value);
    for (const Datatree &child : platform::children_of(node)) collect_passwords(child, tag, passwords);
}

std::vector<std::string> passwords_in(const Datatree &tree)
{
    std::vector<std::string> passwords;
    collect_passwords(tree, nullptr, passwords);
    return passwords;
}

std::string hide_passwords(std::string line, const std::vector<std::string> &passwords)
{
    const std::string hidden = "'" + std::string(io::hidden_value) + "'";
    for (const std::string &password : passwords) {
        const std::string quoted = "'" + password + "'";
        for (size_t at = line.find(quoted); at != std::string::npos; at = line.find(quoted, at + hidden.size()))
            line.replace(at, quoted.size(), hidden);
    }
    return line;
}

}  // namespace cli
