// Paths of data, for people: "/bgp/instance[instance-name='default']/instance-as[as='0']".
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "native_schema.h"

namespace router {

// Quoted with what the value does not hold.
std::string quoted(std::string_view value);

// "/TAG", and a predicate for each of its keys. A leaf-list has its value for a key.
void append_element(std::string &path, const Schema &schema, std::span<const std::string> keys);

// Where an edit stands: nodes that refer to the one around them, on the stack.
struct Place {
    const Place *outer;  // null: the root
    const Schema *schema;
    std::span<const std::string> keys = {};  // of a list entry, or the value of a leaf-list
};

std::string path_of(const Place &place);

}  // namespace router
