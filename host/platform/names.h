// Texts of tags and namespaces, each held once.
//
// A node borrows its `tag`, `namespace_` and `data_namespace`: the texts belong to a table of names that outlives the
// tree, and `kidl_vmf_datatree_free_ext` leaves them alone. A node owns its `value` and its array of children. The tree
// operations take their names from the table of the process, which holds the few that models and mapping know. Whoever
// builds a tree from foreign input keeps the names that this table does not know in a table of its own, beside the
// tree.
#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <unordered_set>

namespace platform {

// The one copy of `text` in the table of the process. Null for null. Any thread may call it.
const char *intern(const char *text);
const char *intern(std::string_view text);

// The same, but null if the table does not have it.
const char *find_interned(std::string_view text);

// Names of one document: those of the process where it knows them, its own copies where not. They stay where they are
// when the table moves.
class NameTable {
public:
    NameTable() = default;
    NameTable(NameTable &&) = default;
    NameTable &operator=(NameTable &&) = default;

    const char *hold(std::string_view text);

private:
    std::deque<std::string> texts_;  // a deque, since it does not move what it holds
    std::unordered_set<std::string_view> known_;
};

}  // namespace platform
