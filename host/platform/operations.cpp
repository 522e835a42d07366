// The operations of the platform that are no more than a test or a text.
#include <arpa/inet.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "observer.h"
#include "tree.h"
#include "vmf_map_platform.h"

using platform::observed;

extern "C" {

// ---- Tree and request tests -----------------------------------------------------------------

uint32_t vmf_map_do_these_match(const char *a, const char *b)
{
    if (a == nullptr || b == nullptr || *a != *b) return 0;
    return a == b || std::strcmp(a, b) == 0 ? 1 : 0;  // every add compares the namespace that it is given with itself
}

uint32_t vmf_map_is_request_delete(const Datatree *node)
{
    if (node == nullptr || !platform::has_operation(*node)) return 0;
    return node->operation == VMF_OP_DELETE || node->operation == VMF_OP_REMOVE ? 1 : 0;
}

uint32_t vmf_map_is_request_replace(const Datatree *node)
{
    return node != nullptr && platform::has_operation(*node) && node->operation == VMF_OP_REPLACE ? 1 : 0;
}

uint32_t vmf_map_is_valid_ipv4_addr(const char *text)
{
    in_addr address;
    return text != nullptr && inet_pton(AF_INET, text, &address) == 1 ? 1 : 0;
}

// A node without a value has no identity that could lie in a wrong module: containers, and keys that select all.
uint32_t vmf_map_validate_data_ns(MapContext * /*ctx*/, const Datatree *node, const char *ns, uint32_t /*zero*/)
{
    if (uint32_t failed = observed({.name = "vmf_map_validate_data_ns", .parent = node, .ns = ns})) return failed;
    if (node == nullptr || ns == nullptr) return VMF_RC_BAD_ARGS;
    if (platform::value_of(*node) == nullptr) return 0;
    return vmf_map_do_these_match(platform::data_namespace_of(*node), ns) != 0 ? 0 : 1;
}

uint32_t vmf_map_update_current_list_node(MapContext * /*ctx*/, const char *schema_path, int32_t /*child_count*/)
{
    if (uint32_t failed = observed({.name = "vmf_map_update_current_list_node", .path = schema_path})) return failed;
    return schema_path != nullptr ? VMF_RC_OK : VMF_RC_BAD_ARGS;
}

uint32_t vmf_map_set_bitmap(uint32_t bitmap, uint32_t bit_index)
{
    return bit_index < 32 ? bitmap | uint32_t{1} << bit_index : bitmap;
}

// ---- Text -----------------------------------------------------------------------------------

// What does not fit is cut, and the caller is told.
uint32_t vmf_safe_strncpy(char *destination, size_t destination_size, const char *source, size_t count)
{
    if (uint32_t failed = observed({.name = "vmf_safe_strncpy", .path = source})) return failed;
    if (destination == nullptr || source == nullptr || destination_size == 0) return VMF_RC_BAD_ARGS;
    const size_t wanted = strnlen(source, count);
    const size_t copied = wanted < destination_size ? wanted : destination_size - 1;
    std::memcpy(destination, source, copied);
    destination[copied] = '\0';
    return copied == wanted ? VMF_RC_OK : VMF_RC_BAD_ARGS;
}

static int32_t copy_bounded(char *destination, size_t size, size_t from, const char *source)
{
    if (destination == nullptr || source == nullptr || size == 0) return EINVAL;
    const size_t length = std::strlen(source);
    if (from >= size || length >= size - from) {
        destination[0] = '\0';
        return ERANGE;
    }
    std::memcpy(destination + from, source, length + 1);
    return 0;
}

int32_t strcpy_s(char *destination, size_t size, const char *source)
{
    if (observed({.name = "strcpy_s", .path = source}) != 0) return ERANGE;
    return copy_bounded(destination, size, 0, source);
}

int32_t strcat_s(char *destination, size_t size, const char *source)
{
    if (observed({.name = "strcat_s", .path = source}) != 0) return ERANGE;
    return copy_bounded(destination, size, destination != nullptr ? strnlen(destination, size) : 0, source);
}

int32_t __strcat_s_to_buf(size_t buffer_size, char *destination, size_t size, const char *source)
{
    if (observed({.name = "__strcat_s_to_buf", .path = source}) != 0) return ERANGE;
    const size_t bound = size < buffer_size ? size : buffer_size;
    return copy_bounded(destination, bound, destination != nullptr ? strnlen(destination, bound) : 0, source);
}

// Decimal only: nothing asks for another radix.
char *itoa(uint32_t value, char *buffer, int32_t radix)
{
    if (buffer == nullptr || radix != 10) return nullptr;
    std::sprintf(buffer, "%u", value);
    return buffer;
}

const char *cerr_strerror(uint32_t outcome)
{
    switch (outcome) {
    case VMF_RC_OK: return "success";
    case VMF_RC_BAD_TREE: return "malformed tree";
    case VMF_RC_BAD_ARGS: return "invalid argument";
    case VMF_RC_NO_MEMORY: return "no memory";
    case VMF_RC_UNSUPPORTED: return "not supported";
    case VMF_RC_BAD_KEY: return "unusable list key";
    case VMF_RC_KEY_OPERATION: return "operation on a list key";
    case SYSDB_NOTHING_FOUND: return "nothing found";
    case SYSDB_END_OF_PART: return "end of a part";
    default: break;
    }
    thread_local char text[sizeof "outcome 0x00000000"];
    std::snprintf(text, sizeof text, "outcome 0x%08x", outcome);
    return text;
}

}  // extern "C"
