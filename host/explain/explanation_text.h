// Explanations for a person.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "explanation.h"

namespace explain {

// `kind`: only what requests of that kind become. Ends with a line end.
std::string write_text(const Explanation &explanation, std::optional<Kind> kind);

// What a native leaf, or each leaf below a native node, feeds.
struct Feed {
    const model::OcNode *node;
    Answer answer;
};
std::vector<Feed> feeds_of(const std::string &native_path);
std::string write_text(const std::vector<Feed> &feeds);

}  // namespace explain
