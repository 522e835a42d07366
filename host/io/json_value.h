// JSON as it was written: numbers keep their text, and members their order.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "names.h"

namespace io {

struct JsonValue {
    enum class Shape : uint8_t { null, scalar, object, array };

    const char *name = nullptr;  // of a member, held by a NameTable
    bool qualified = false;      // "openconfig-bgp:" stood before the name, and was taken off
    Shape shape = Shape::null;
    std::string text;              // of a scalar
    std::vector<JsonValue> items;  // members of an object, entries of an array
};

// Where a value stands, for messages: a chain that the callers of a reading function hold on their stacks.
struct JsonPath {
    const JsonPath *outer;  // null: this is the whole input
    std::string_view name;  // of a member; empty for an entry
    size_t entry = 0;       // position in an array, from 1
};

// "FILE: /bgp/neighbors/neighbor[2]/config: reason"; the path of the whole input is "/".
[[noreturn]] void refuse_at(const JsonPath &path, const std::string &file, const std::string &reason);

// Throws InputError. What comes back has no member twice, no array in an array, no character that XML cannot carry, and
// only names of YANG, perhaps with a module and with '@' in front, for members.
JsonValue parse_json(std::string_view text, const std::string &file, platform::NameTable &names);

}  // namespace io
