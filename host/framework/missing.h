// Why an answer does not hold all that was asked for: from the request, what it became, what the router said, and what
// the mapping made of that.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "recording.h"
#include "write.h"

namespace framework {

enum class Reason : uint8_t {
    no_value,            // the router has none, and the model no default
    default_value,       // the router has none: the model's default holds, and is not reported
    no_entry,            // the router has no entry of the list
    both_named,          // config and state were both named
    families_disagree,   // the families have values that one global leaf cannot say
    whole_read,          // a read of the families too has no global leaves of multipath
    no_openconfig_form,  // a native value is there, and nothing came of it
};

struct MissingNode {
    std::string path;  // the client's, of the first that is missing
    Reason reason;
    std::string text;   // the reason in words
    size_t others = 0;  // entries in which the same leaf is missing for the same reason
};

// What was asked for and is not in the answer, in the order of the model. Where no leaf below a container has a value,
// the container stands for them. `default_of` gives the model's default of a leaf at a schema path, if it has one.
// `database` is the one that the request was mapped with.
std::vector<MissingNode>
missing_nodes(const Recording &recording, const platform::Database &database,
              const std::function<std::optional<std::string>(std::string_view schema)> &default_of,
              io::Secrets secrets);

// The native values that the router gave and that the answer does not depend on, as "PATH = VALUE: reason".
std::vector<std::string> dropped_values(const Recording &recording, const platform::Database &database,
                                        io::Secrets secrets);

}  // namespace framework
