// Explanations as JSON.
#pragma once

#include <string>
#include <vector>

#include "explanation.h"
#include "explanation_text.h"

namespace explain {

// An object, as `ocbgp explain --json` prints it.
std::string write_json(const Explanation &explanation);

// An array of them, an object a line.
std::string write_json(const std::vector<Explanation> &explanations);

// An array of what native leaves feed.
std::string write_json(const std::vector<Feed> &feeds);

// "accepted", or the name of an outcome: "VMF_RC_UNSUPPORTED", or "0x00000002" for one that is not the mapping's own.
std::string name_of_outcome(uint32_t outcome);

std::string_view name_of(model::Kind kind);
std::string_view name_of(model::Type type);

}  // namespace explain
