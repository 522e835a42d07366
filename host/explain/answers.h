// What comes back: which native leaves feed an OpenConfig leaf, found by giving a made router one leaf after the other
// and reading.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "run.h"

namespace explain {

// A native leaf, alone or beside others, and what the OpenConfig leaf is with it.
struct Answer {
    const router::Schema *native;             // a leaf, or a list of keys alone
    std::string path;                         // with the keys of one entry
    std::optional<std::string> native_value;  // none: a leaf of type empty
    std::string value;
    std::vector<std::string> with = {};  // other native leaves that have to be there, as "PATH = VALUE"
};

// The values of the target, read by its own path from the router; empty if it does not come back.
std::vector<std::string> values_of(const Target &target, const MadeRouter &router);

// Nothing for a container or a list, whose leaves have answers of their own.
std::vector<Answer> answers_of(const Target &target);

// Which OpenConfig leaves each native leaf feeds, and which native leaves feed each OpenConfig leaf, by their paths in
// the models. Made once, for all of the model.
class Feeds {
public:
    Feeds();

    const std::vector<Answer> &answers(const model::OcNode &leaf) const;
    const std::set<std::string> &fed_by(const std::string &native_path) const;
    // Of a leaf, or of all leaves below a container or list.
    std::set<std::string> feeders(const model::OcNode &node) const;

private:
    std::map<std::string_view, std::vector<Answer>> answers_;
    std::map<std::string, std::set<std::string>> fed_;
};
const Feeds &feeds();

}  // namespace explain
