#include "output.h"

#include <cstdio>

#include "outcome_names.h"
#include "secrets.h"
#include "tree.h"

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

std::string name_of_outcome(uint32_t outcome)
{
    const char *constant = framework::constant_of_outcome(outcome);
    char number[sizeof " (0x00000000)"];
    std::snprintf(number, sizeof number, " (0x%08x)", outcome);
    return (constant != nullptr ? constant : "outcome") + std::string(number);
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
