// A request as a client wrote it, read into a tree of the platform.
#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "names.h"
#include "tree.h"

namespace io {

// Why an input was refused: "FILE:LINE:COLUMN: reason", or for the meaning of JSON "FILE: /bgp/global/...: reason".
struct InputError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct Document {
    platform::NameTable names;       // of what the process does not know; outlives the tree
    platform::Tree bgp;              // its root is the `bgp` node itself
    std::optional<uint32_t> kind;    // request kind that the input itself tells, if it does
    std::vector<std::string> notes;  // what was read over, in words for the user; may be empty
};

// What bounds the memory that an input can take: its size in bytes, its elements or JSON values, and how deep they are
// nested; and the longest tag name, tag with its attributes, and value, in bytes.
constexpr size_t largest_input = size_t{256} << 20;
constexpr size_t most_nodes = size_t{16} << 20;
constexpr size_t deepest_nesting = 64;
constexpr size_t longest_name = 256;
constexpr size_t longest_tag = size_t{64} << 10;
constexpr size_t longest_value = size_t{64} << 10;

// Reads a request; `file` is the name for messages. Throws InputError, at the first thing that is wrong.
//
// The order of the nodes is kept, and so is what the model does not know. Values are as they were written, but for a
// zero fraction of a decimal64, and an identity loses its prefix or module, which becomes its data namespace. A node
// that is deleted or removed has no children here, the key of a list entry excepted.
Document read_xml(std::string_view text, const std::string &file);
Document read_json(std::string_view text, const std::string &file);

// XML or JSON, told apart by the first character that is not white space.
Document read_request(std::string_view text, const std::string &file);

// Reads a whole file, or standard input for "-". Throws InputError.
std::string read_input(const std::string &file);

}  // namespace io
