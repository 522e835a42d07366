// What both examples do with their handler: map one edit, and print what came of it.
#pragma once

#include <initializer_list>

// Maps an edit that writes `value` to the leaf at `path` below neighbor 192.0.2.9, in AS 65001. Prints the native edit,
// or the failures that the mapping logs. Gives what the program exits with: 0, or 1 for a refusal.
int map_neighbor_edit(std::initializer_list<const char *> path, const char *value);
