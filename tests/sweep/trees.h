// The trees of an exchange.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "golden.h"
#include "tree.h"
#include "tree_text.h"
#include "write.h"

namespace sweep {

// How many of an exchange's operations fail, each in a run of its own: all of them, but for a sanitizer's time. `make
// sweep` has all of them fail under the sanitizers.
#if defined(__SANITIZE_ADDRESS__)
#define HAS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define HAS_SANITIZER
#endif
#endif
inline size_t most_points()
{
#ifdef HAS_SANITIZER
    if (std::getenv("SWEEP_ALL") == nullptr) return 40;
#endif
    return SIZE_MAX;
}

inline std::string text_of(const platform::Tree &tree) { return io::write_tree(tree.root(), io::Secrets::shown); }

inline void copy(const Datatree &from, Datatree &to)
{
    if (const char *value = platform::value_of(from)) platform::set_value(to, value);
    if (platform::has_operation(from)) platform::set_operation(to, from.operation);
    platform::set_data_namespace(to, platform::data_namespace_of(from));
    for (const Datatree &child : platform::children_of(from))
        copy(child, *platform::append_child(to, platform::tag_of(child), platform::namespace_of(child)));
}

inline platform::Tree copy_of(const platform::Tree &tree)
{
    platform::Tree made;
    copy(tree.root(), made.root());
    return made;
}

// As an exchange has them. The mapping writes into its trees: a run takes copies.
struct Trees {
    explicit Trees(const Exchange &exchange)
        : request(io::read_tree(exchange.request)), response(io::read_tree(exchange.response))
    {
    }
    platform::Tree request;
    platform::Tree response;
};

}  // namespace sweep
