// How the command prints trees, outcomes and traces.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "write.h"

namespace cli {

enum class Format { xml, json, tree };

std::string write_trees(const Datatree &holder, Format format, io::Envelope envelope, io::Secrets secrets);

// "VMF_RC_UNSUPPORTED (0xaaf2e600)"; an outcome that is not the mapping's own has its number alone.
std::string name_of_outcome(uint32_t outcome);

// The passwords that stand in a tree.
std::vector<std::string> passwords_in(const Datatree &tree);

// A line of the trace with each of `passwords` hidden. The mapping quotes the values that it logs.
std::string hide_passwords(std::string line, const std::vector<std::string> &passwords);

}  // namespace cli
