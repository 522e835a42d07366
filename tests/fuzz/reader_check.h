// What the fuzzers of the two readers share.
#pragma once

#include <span>
#include <string_view>

#include "document.h"

namespace fuzz {

struct Format {
    io::Document (*read)(std::string_view text, const std::string &file);
    std::string (*write)(const Datatree &holder);
    std::span<const char *const> tokens;
};
extern const Format xml;
extern const Format json;

// The one that a program of reader_fuzzer.cpp reads, and the one that has to carry it too.
extern const Format &tried_format;
extern const Format &other_format;

// What is refused is refused in a line that begins with the name of the file. What is accepted is a tree that is read
// again as it was written, and that the other format can carry.
void check_reader(std::string_view text, const Format &format, const Format &other);

size_t mutate_document(uint8_t *data, size_t size, size_t most, unsigned seed, const Format &format);

}  // namespace fuzz
