#include "document.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

#include "reading.h"

namespace io {

namespace {

struct Close {
    void operator()(FILE *file) const
    {
        if (file != stdin) std::fclose(file);
    }
};

[[noreturn]] void refuse_unreadable(const std::string &file)
{
    throw InputError(file + ": cannot be read: " + std::strerror(errno));
}

}  // namespace

std::string read_input(const std::string &file)
{
    const std::unique_ptr<FILE, Close> input(file == "-" ? stdin : std::fopen(file.c_str(), "rb"));
    if (input == nullptr) refuse_unreadable(file);
    std::string text;
    char block[size_t{64} << 10];
    while (const size_t count = std::fread(block, 1, sizeof block, input.get())) {
        if (count > largest_input - text.size())
            throw InputError(file + ": larger than " + std::to_string(largest_input) + " bytes");
        text.append(block, count);
    }
    if (std::ferror(input.get()) != 0) refuse_unreadable(file);
    return text;
}

Document read_request(std::string_view text, const std::string &file)
{
    const size_t begin = text.starts_with(byte_order_mark) ? byte_order_mark.size() : 0;
    const size_t first = text.find_first_not_of(white_space, begin);
    const bool is_xml = first != std::string_view::npos && text[first] == '<';
    return is_xml ? read_xml(text, file) : read_json(text, file);
}

}  // namespace io
