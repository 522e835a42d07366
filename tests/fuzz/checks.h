// What holds of every tree, and how a fuzzer says that something does not.
#pragma once

#include <string>

#include "vmf_map_types.h"

namespace fuzz {

// Ends the process, with what was wrong and the texts that show it.
[[noreturn]] void fail(const std::string &what, const std::string &shown = "", const std::string &beside = "");

inline void require(bool holds, const char *what)
{
    if (!holds) fail(what);
}

// Every node has a tag; a field is there exactly if its bit says so; an array has as many records as it counts.
void check_well_formed(const Datatree &holder);

// The same in all that a tree says.
bool are_same(const Datatree &a, const Datatree &b);

// The plain tree, for `fail`.
std::string text_of(const Datatree &holder);

}  // namespace fuzz
