// The edit operations by the names that NETCONF gives them, in XML and in the annotations of JSON alike.
#pragma once

#include <cstdint>
#include <iterator>
#include <optional>
#include <string_view>

#include "vmf_map_types.h"

namespace io {

constexpr std::string_view operation_names[] = {"merge", "replace", "create", "delete", "remove"};

// Empty for a number that is no operation.
constexpr std::string_view name_of_operation(uint32_t operation)
{
    return operation < std::size(operation_names) ? operation_names[operation] : std::string_view();
}

constexpr std::optional<uint32_t> operation_of_name(std::string_view name)
{
    for (uint32_t operation = 0; operation < std::size(operation_names); operation++)
        if (operation_names[operation] == name) return operation;
    return std::nullopt;
}

static_assert(operation_of_name("merge") == VMF_OP_MERGE && operation_of_name("replace") == VMF_OP_REPLACE &&
              operation_of_name("create") == VMF_OP_CREATE && operation_of_name("delete") == VMF_OP_DELETE &&
              operation_of_name("remove") == VMF_OP_REMOVE);

}  // namespace io
