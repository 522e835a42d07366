#include "text_mutation.h"

#include <algorithm>
#include <cctype>
#include <cstring>

namespace fuzz {

static bool is_word(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '-' || c == '_' || c == '.';
}

static size_t token_length(std::string_view text)
{
    if (text.front() == '<') return std::min(text.find('>'), text.size() - 1) + 1;
    if (text.front() == '"') {
        size_t end = 1;
        while (end < text.size() && text[end] != '"') end += text[end] == '\\' ? 2 : 1;
        return std::min(end + 1, text.size());
    }
    const auto end = std::find_if_not(text.begin(), text.end(), is_word);
    return std::max<size_t>(static_cast<size_t>(end - text.begin()), 1);
}

std::vector<std::string_view> tokens_of(std::string_view text)
{
    std::vector<std::string_view> tokens;
    while (!text.empty()) {
        tokens.push_back(text.substr(0, token_length(text)));
        text.remove_prefix(tokens.back().size());
    }
    return tokens;
}

using Tokens = std::vector<std::string>;

static std::string other_token(std::span<const char *const> others, Random &random)
{
    switch (below(random, 4)) {
    case 0: return any_tag(random);
    case 1: return any_value(random, "");
    default: return any_of(random, others);
    }
}

static void change(Tokens &tokens, std::span<const char *const> others, Random &random)
{
    if (tokens.empty()) return tokens.push_back(other_token(others, random));
    const auto at = tokens.begin() + static_cast<std::ptrdiff_t>(below(random, tokens.size()));
    const auto rest = static_cast<size_t>(tokens.end() - at);
    const auto end = at + static_cast<std::ptrdiff_t>(1 + below(random, std::min<size_t>(rest, 8)));
    constexpr size_t too_many = 4000;
    switch (below(random, 7)) {
    case 0: tokens.erase(at, end); break;
    case 1: {
        const Tokens part(at, end);
        const size_t place = below(random, tokens.size());
        const size_t count = below(random, 16) == 0 ? 80 : 1;
        for (size_t i = 0; i < count && tokens.size() < too_many; i++)
            tokens.insert(tokens.begin() + static_cast<std::ptrdiff_t>(place), part.begin(), part.end());
        break;
    }
    case 2: std::swap(*at, tokens[below(random, tokens.size())]); break;
    case 3:
    case 4: tokens.insert(at, other_token(others, random)); break;
    case 5: *at = other_token(others, random); break;
    default:
        if (!at->empty()) at->insert(below(random, at->size()), other_token(others, random));
    }
}

std::string mutate_tokens(std::string_view text, std::span<const char *const> others, Random &random)
{
    Tokens tokens;
    for (const std::string_view token : tokens_of(text)) tokens.emplace_back(token);
    for (size_t count = size_t{1} << below(random, 4); count > 0; count--) change(tokens, others, random);
    std::string changed;
    for (const std::string &token : tokens) changed += token;
    return changed;
}

std::string cross_tokens(std::string_view a, std::string_view b, Random &random)
{
    if (a.empty() || b.empty()) return std::string(a.empty() ? b : a);
    const auto of_a = tokens_of(a);
    const auto of_b = tokens_of(b);
    const auto before = static_cast<size_t>(any_of(random, of_a).data() - a.data());
    const auto behind = static_cast<size_t>(any_of(random, of_b).data() - b.data());
    return std::string(a.substr(0, before)).append(b.substr(behind));
}

size_t put(std::string_view text, uint8_t *out, size_t most)
{
    const size_t size = std::min(text.size(), most);
    std::memcpy(out, text.data(), size);
    return size;
}

}  // namespace fuzz
