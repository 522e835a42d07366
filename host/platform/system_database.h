// A system database in memory, and the sessions through which the mapping reads it.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "vmf_map_platform.h"

namespace platform {

struct DatabaseRecord {
    std::string location;              // "/cfg/gl/ip-bgp/default/0/65001/gbl/edm/ord_a/running"
    std::vector<uint32_t> words = {};  // the packed tuple
    uint32_t part = 0;                 // results come in parts, in ascending order
    bool only_in_candidate = false;    // seen by the merged view alone

    bool operator==(const DatabaseRecord &) const = default;
};

// What answers the mapping's queries.
class Database {
public:
    virtual ~Database() = default;

    // The records at the locations that a pattern meets, in the order in which the mapping shall see them. `merged`: of
    // the candidate configuration; else of the running one alone.
    virtual std::vector<DatabaseRecord> find(std::string_view pattern, bool merged) const = 0;
};

// A database that holds what it was given.
class SystemDatabase final : public Database {
public:
    // Records are given in the order in which they were put, those of one part together.
    void put(DatabaseRecord record) { records_.push_back(std::move(record)); }
    void clear() { records_.clear(); }

    std::vector<DatabaseRecord> find(std::string_view pattern, bool merged) const override;

private:
    std::vector<DatabaseRecord> records_;
};

// A pattern is literal, save for elements that are exactly ".*" and stand for any one element. It meets its own
// location, or what lies below it when it ends in "/".
bool meets(std::string_view pattern, std::string_view location);

// The management sessions that requests belong to. The framework's context names them as its state.
class Sessions {
public:
    Sessions();
    ~Sessions();
    Sessions(const Sessions &) = delete;
    Sessions &operator=(const Sessions &) = delete;

    // Opens a session that reads `database`, which must outlive it.
    void open(uint32_t session_id, const Database &database);

    // Null if there is no such session.
    VmfSession *find(uint32_t session_id);

private:
    struct Session;
    std::map<uint32_t, std::unique_ptr<Session>> sessions_;
};

}  // namespace platform
