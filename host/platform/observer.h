// Lets a caller watch the operations that the mapping asks of the platform, and let any of them fail: for tests, for a
// trace of what a handler adds, for an explanation of a request.
#pragma once

#include <concepts>
#include <cstdint>

#include "vmf_map_types.h"

namespace platform {

struct Operation {
    const char *name;  // of the platform operation
    const Datatree *parent = nullptr;
    const char *path = nullptr;  // or tag, text, pattern
    const char *ns = nullptr;
    const char *value = nullptr;
    const Datatree *operation_source = nullptr;
    uint32_t repeat = 0;
};

struct Observer {
    // Called before an operation that can fail. 0: go on. Any other value: do nothing and fail, with this outcome
    // where the operation has one, with null where it gives a pointer.
    uint32_t (*before)(void *self, const Operation &operation);
    void *self;

    // If not null, called behind an add that was done, with the node that it gave: valid as long as the mapping's own
    // pointer to it would be.
    void (*after)(void *self, const Operation &operation, const Datatree &result) = nullptr;
};

// Sets the observer of this thread; null ends it. The caller keeps the observer alive. Gives the one before, so that an
// observer can hand on what it hears.
const Observer *observe(const Observer *observer);

extern thread_local constinit const Observer *current_observer;

// What the platform's operations call first, and what its adds call last. The frequent ones give a function that makes
// the record, which is called only while somebody watches.
inline uint32_t observed(const Operation &operation)
{
    return current_observer != nullptr ? current_observer->before(current_observer->self, operation) : 0;
}
template<std::invocable MakeOperation>
uint32_t observed(const MakeOperation &operation)
{
    if (current_observer == nullptr) [[likely]]
        return 0;
    return observed(operation());
}
template<std::invocable MakeOperation>
void observed_result(const MakeOperation &operation, const Datatree &result)
{
    if (current_observer == nullptr || current_observer->after == nullptr) [[likely]]
        return;
    current_observer->after(current_observer->self, operation(), result);
}

}  // namespace platform
