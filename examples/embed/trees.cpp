// A platform's trees, texts and memory, as small as they can be. All memory comes from one pool that is released with
// the program, so nothing has an owner and nothing is freed: right for one request, wrong for a server.
#include <arpa/inet.h>

#include <cstring>
#include <memory_resource>
#include <sstream>
#include <string>

#include "vmf_map_platform.h"

static std::pmr::monotonic_buffer_resource pool;

static char *keep(const std::string &text)
{
    return static_cast<char *>(std::memcpy(pool.allocate(text.size() + 1), text.c_str(), text.size() + 1));
}

static bool same(const char *a, const char *b)
{
    return a == b || (a != nullptr && b != nullptr && !std::strcmp(a, b));
}

static bool carries_operation(const Datatree *node) { return node != nullptr && (node->present[0] & VMF_DT_OPERATION); }

static void set_value(Datatree &node, const char *value)
{
    if (value == nullptr) return;
    node.value = keep(value);
    node.present[0] |= VMF_DT_VALUE;
}

// The child of that tag and namespace (null: any), or null.
static Datatree *find(const Datatree &parent, const std::string &tag, const char *ns)
{
    for (int32_t i = 0; i < parent.subtree_count; i++)
        if (tag == parent.subtrees[i].tag && (ns == nullptr || same(parent.subtrees[i].namespace_, ns)))
            return &parent.subtrees[i];
    return nullptr;
}

// The array moves with every child that it gets.
static Datatree *append(Datatree &parent, const std::string &tag, const char *ns)
{
    const auto count = static_cast<size_t>(parent.subtree_count);
    auto *array = static_cast<Datatree *>(kos_named_calloc_(count + 1, sizeof(Datatree), "", 0));
    if (count != 0) std::memcpy(array, parent.subtrees, count * sizeof(Datatree));
    parent.subtrees = array;
    parent.subtree_count++;
    parent.present[0] |= VMF_DT_SUBTREES;
    array[count].tag = keep(tag);
    array[count].namespace_ = keep(ns);
    array[count].present[0] = VMF_DT_TAG | VMF_DT_NAMESPACE;
    return &array[count];
}

static Datatree *find_entry(Datatree &parent, const std::string &list, const char *ns, const std::string &key,
                            const char *key_value)
{
    for (int32_t i = 0; i < parent.subtree_count; i++) {
        const Datatree *leaf = find(parent.subtrees[i], key, ns);
        if (list == parent.subtrees[i].tag && leaf != nullptr && same(leaf->value, key_value))
            return &parent.subtrees[i];
    }
    Datatree *entry = append(parent, list, ns);
    set_value(*append(*entry, key, ns), key_value);
    return entry;
}

extern "C" {

// ---- Trees ----------------------------------------------------------------------------------

uint32_t vmf_map_datatree_add_path_common(MapContext *, Datatree *parent, const char *path, const char *ns,
                                          const char *value, const Datatree *source, Datatree **result, uint32_t repeat)
{
    const bool has_operation = carries_operation(source);
    const uint32_t operation = has_operation ? source->operation : 0;  // now: the source's own array may move
    std::istringstream elements(path[0] == '/' ? path + 1 : path);
    bool value_named_key = false;
    for (std::string element; std::getline(elements, element, '/');) {
        Datatree *found = nullptr;
        if (const size_t key = element.find('['); key != std::string::npos) {
            found = find_entry(*parent, element.substr(0, key), ns, element.substr(key + 1, element.size() - key - 2),
                               value);
            value_named_key = true;
        } else if (!elements.eof() || repeat == 0 || value_named_key) {
            found = find(*parent, element, ns);
        }
        parent = found != nullptr ? found : append(*parent, element, ns);
    }
    if (!value_named_key) set_value(*parent, value);
    if (has_operation) {
        parent->operation = operation;
        parent->present[0] |= VMF_DT_OPERATION;
    }
    if (result != nullptr) *result = parent;
    return VMF_RC_OK;
}

uint32_t vmf_map_datatree_add_path(MapContext *ctx, Datatree *parent, const char *path, const char *ns,
                                   const char *value, const Datatree *source, Datatree **result, uint32_t repeat)
{
    return vmf_map_datatree_add_path_common(ctx, parent, path, ns, value, source, result, repeat);
}

uint32_t vmf_map_datatree_add_subtree(MapContext *ctx, Datatree *parent, const char *tag, const char *ns,
                                      const char *value, const Datatree *source, Datatree **result, uint32_t)
{
    return vmf_map_datatree_add_path_common(ctx, parent, tag, ns, value, source, result, 0);
}

uint32_t vmf_map_datatree_add_list_node(MapContext *, Datatree *parent, const char *list_tag, const char *ns,
                                        const char *key_tag, const char *key_value, Datatree **result)
{
    Datatree *entry = find_entry(*parent, list_tag, ns, key_tag, key_value);
    if (result != nullptr) *result = entry;
    return VMF_RC_OK;
}

uint32_t vmf_map_datatree_add_data_ns(MapContext *, Datatree *parent, const char *path, const char *ns)
{
    std::istringstream elements(path);
    std::string element;
    std::getline(elements, element, '/');  // the tag of the parent itself
    while (parent != nullptr && std::getline(elements, element, '/')) parent = find(*parent, element, nullptr);
    if (parent == nullptr) return VMF_RC_BAD_TREE;
    parent->data_namespace = keep(ns);
    return VMF_RC_OK;
}

uint32_t vmf_map_get_subtrees(MapContext *, Datatree *node, Datatree **subtrees, int32_t *count)
{
    *subtrees = node->subtrees;
    *count = node->subtree_count;
    return VMF_RC_OK;
}

void kidl_vmf_datatree_free_ext(Datatree *node, void (*)(void *), uint32_t, uint32_t) { *node = {}; }
void vmf_gpb_free(void *) {}
void vmf_map_print_datatree_internal(MapContext *, const Datatree *, const char *) {}

// ---- Tests, texts and memory ----------------------------------------------------------------

uint32_t vmf_map_do_these_match(const char *a, const char *b) { return a != nullptr && same(a, b); }
uint32_t vmf_map_is_request_delete(const Datatree *n) { return carries_operation(n) && n->operation >= VMF_OP_DELETE; }
uint32_t vmf_map_is_request_replace(const Datatree *n)
{
    return carries_operation(n) && n->operation == VMF_OP_REPLACE;
}
uint32_t vmf_map_validate_data_ns(MapContext *, const Datatree *node, const char *ns, uint32_t)
{
    return node->value == nullptr || same(node->data_namespace, ns) ? 0 : 1;
}
uint32_t vmf_map_is_valid_ipv4_addr(const char *text)
{
    in_addr address;
    return text != nullptr && inet_pton(AF_INET, text, &address) == 1;
}
uint32_t vmf_map_update_current_list_node(MapContext *, const char *, int32_t) { return VMF_RC_OK; }
uint32_t vmf_map_set_bitmap(uint32_t bitmap, uint32_t bit) { return bitmap | 1u << bit; }

char *vmf_strdup(const char *text, const char *) { return text != nullptr ? keep(text) : nullptr; }
uint32_t vmf_safe_strncpy(char *to, size_t size, const char *from, size_t count)
{
    return strnlen(from, count) < size && std::snprintf(to, size, "%.*s", static_cast<int>(count), from) >= 0 ? 0 : 1;
}
void *kos_named_calloc_(size_t count, size_t size, const char *, uint32_t)
{
    return std::memset(pool.allocate(count * size), 0, count * size);
}
void kos_named_free(void *) {}
int32_t strcpy_s(char *to, size_t size, const char *from) { return vmf_safe_strncpy(to, size, from, size) != 0; }
int32_t strcat_s(char *to, size_t size, const char *from)
{
    const size_t length = strnlen(to, size);
    return strcpy_s(to + length, size - length, from);
}
int32_t __strcat_s_to_buf(size_t, char *to, size_t size, const char *from) { return strcat_s(to, size, from); }
char *itoa(uint32_t value, char *buffer, int32_t) { return std::strcpy(buffer, std::to_string(value).c_str()); }

}  // extern "C"
