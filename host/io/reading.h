// What the readers of XML and JSON have in common.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "document.h"
#include "nodes.h"
#include "tree.h"

namespace io {

// ---- Text -----------------------------------------------------------------------------------

constexpr std::string_view white_space = " \t\r\n";  // of XML and of JSON
constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";

constexpr bool is_white_space(char character)
{
    return std::find(white_space.begin(), white_space.end(), character) != white_space.end();
}
inline bool is_blank(std::string_view text) { return std::all_of(text.begin(), text.end(), is_white_space); }

std::string_view trimmed(std::string_view text);

// For messages, which take a line each whatever they quote, and not an endless one. Controls, which could speak to a
// terminal, become blanks.
std::string on_one_line(std::string_view text);

// The text without a byte order mark. Throws InputError if it is blank, too large, not UTF-8, or holds a NUL, which
// would end the strings of a tree early.
std::string_view checked_text(std::string_view text, const std::string &file);

// " of more than 256 bytes"
std::string more_than(size_t limit);

// "FILE:LINE:COLUMN: reason" of a byte in the text; the column counts characters.
[[noreturn]] void refuse_at(std::string_view text, size_t offset, const std::string &file, const std::string &reason);

// The notes of a document, a line each and each once.
class Notes {
public:
    explicit Notes(std::vector<std::string> &texts) : texts_(texts) {}
    void add(const std::string &text);

private:
    std::vector<std::string> &texts_;
    std::unordered_set<std::string> known_;
};

// ---- Nodes ----------------------------------------------------------------------------------

// Makes a record without a parent the node `tag`, as platform::append_child does with a child.
void name_root(Datatree &root, const char *tag, const char *ns);

// These throw std::bad_alloc.
Datatree &add_child(Datatree &parent, const char *tag, const char *ns);
void give_value(Datatree &node, std::string_view value);

// A node that is taken away is handed on without what stands below it, which may not say anything else. The key of a
// list entry stays: without it nobody knows which entry it is.
bool is_taken_away(const Datatree &node);
bool stays_below_removal(const model::OcNode *parent, std::string_view tag);

// A decimal64 of whole seconds is an integer in the native models: "180.00" is "180" there.
std::string_view without_zero_fraction(std::string_view text);

}  // namespace io
