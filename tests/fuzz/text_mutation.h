// Changes of XML and JSON: tokens are taken out, doubled, moved, or others put in.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "model_nodes.h"

namespace fuzz {

// "<tag a='b'>", a text in quotes, a word, or a character.
std::vector<std::string_view> tokens_of(std::string_view text);

std::string mutate_tokens(std::string_view text, std::span<const char *const> others, Random &random);

// The part of `a` before a token, and of `b` behind one.
std::string cross_tokens(std::string_view a, std::string_view b, Random &random);

size_t put(std::string_view text, uint8_t *out, size_t most);

}  // namespace fuzz
