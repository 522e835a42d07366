#include "reading.h"

#include <algorithm>
#include <new>

namespace io {

// ---- Text -----------------------------------------------------------------------------------

std::string_view trimmed(std::string_view text)
{
    const size_t first = text.find_first_not_of(white_space);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(white_space) - first + 1);
}

static bool continues_character(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

// Where a text can be cut without cutting a character.
static size_t boundary_before(std::string_view text, size_t at)
{
    while (at > 0 && continues_character(text[at])) at--;
    return at;
}

std::string on_one_line(std::string_view text)
{
    constexpr size_t longest_message = 1000;
    std::string line(trimmed(text));
    if (line.size() > longest_message) line = line.substr(0, boundary_before(line, longest_message)) + "...";
    for (size_t at = 0; at < line.size(); at++) {
        const auto byte = static_cast<unsigned char>(line[at]);
        const bool is_high_control =
            byte == 0xC2 && at + 1 < line.size() && static_cast<unsigned char>(line[at + 1]) < 0xA0;
        if (is_high_control) line.erase(at, 1);
        if (is_high_control || byte < ' ' || byte == 0x7F) line[at] = ' ';
    }
    return line;
}

// Overlong forms, surrogates and what lies beyond U+10FFFF show in the second byte.
static bool is_second_byte(unsigned char lead, unsigned char second)
{
    switch (lead) {
    case 0xE0: return second >= 0xA0;
    case 0xED: return second < 0xA0;
    case 0xF0: return second >= 0x90;
    case 0xF4: return second < 0x90;
    default: return true;
    }
}

// The length of the character that begins the text; 0 if it is not one of UTF-8.
static size_t character_length(std::string_view text)
{
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < 0x80) return 1;
    if (lead < 0xC2 || lead > 0xF4) return 0;
    const size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (text.size() < length || !is_second_byte(lead, static_cast<unsigned char>(text[1]))) return 0;
    const std::string_view rest = text.substr(1, length - 1);
    return std::all_of(rest.begin(), rest.end(), continues_character) ? length : 0;
}

static void check_characters(std::string_view text, const std::string &file)
{
    for (size_t at = 0; at < text.size();) {
        if (text[at] == '\0') refuse_at(text, at, file, "a NUL character");
        const size_t length = character_length(text.substr(at));
        if (length == 0) refuse_at(text, at, file, "the text is not UTF-8");
        at += length;
    }
}

std::string_view checked_text(std::string_view text, const std::string &file)
{
    if (text.size() > largest_input)
        throw InputError(file + ": larger than " + std::to_string(largest_input) + " bytes");
    if (text.starts_with(byte_order_mark)) text.remove_prefix(byte_order_mark.size());
    if (is_blank(text)) throw InputError(file + ": the input is empty");
    check_characters(text, file);
    return text;
}

std::string more_than(size_t limit) { return " of more than " + std::to_string(limit) + " bytes"; }

void refuse_at(std::string_view text, size_t offset, const std::string &file, const std::string &reason)
{
    const std::string_view before = text.substr(0, offset);
    const size_t line_end = before.rfind('\n');
    const std::string_view line = before.substr(line_end == std::string_view::npos ? 0 : line_end + 1);
    const auto lines = std::count(before.begin(), before.end(), '\n');
    const auto characters =
        std::count_if(line.begin(), line.end(), [](char byte) { return !continues_character(byte); });
    throw InputError(file + ":" + std::to_string(lines + 1) + ":" + std::to_string(characters + 1) + ": " +
                     on_one_line(reason));
}

void Notes::add(const std::string &text)
{
    if (known_.insert(text).second) texts_.push_back(on_one_line(text));
}

// ---- Nodes ----------------------------------------------------------------------------------

void name_root(Datatree &root, const char *tag, const char *ns)
{
    root.tag = const_cast<char *>(tag);
    root.namespace_ = const_cast<char *>(ns);
    root.present[0] |= VMF_DT_TAG | VMF_DT_NAMESPACE;
}

Datatree &add_child(Datatree &parent, const char *tag, const char *ns)
{
    Datatree *child = platform::append_child(parent, tag, ns);
    if (child == nullptr) throw std::bad_alloc();
    return *child;
}

void give_value(Datatree &node, std::string_view value)
{
    if (!platform::set_value(node, value)) throw std::bad_alloc();
}

bool is_taken_away(const Datatree &node)
{
    return platform::has_operation(node) && (node.operation == VMF_OP_DELETE || node.operation == VMF_OP_REMOVE);
}

bool stays_below_removal(const model::OcNode *parent, std::string_view tag)
{
    return parent != nullptr && parent->kind == model::Kind::list && parent->key == tag;
}

std::string_view without_zero_fraction(std::string_view text)
{
    const size_t point = text.find('.');
    if (point == std::string_view::npos) return text;
    std::string_view whole = text.substr(0, point);
    if (whole.starts_with('-') || whole.starts_with('+')) whole.remove_prefix(1);
    const std::string_view fraction = text.substr(point + 1);
    const bool is_whole = !whole.empty() && whole.find_first_not_of("0123456789") == std::string_view::npos &&
                          !fraction.empty() && fraction.find_first_not_of('0') == std::string_view::npos;
    return is_whole ? text.substr(0, point) : text;
}

}  // namespace io
