// The system database: what other parts of the router find there of its BGP configuration.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "records.h"
#include "system_database.h"

namespace router {

class Items final : public platform::Database {
public:
    // Both are the root of the configuration. They are looked at when something is asked for, and must outlive this.
    Items(const std::shared_ptr<Branch> &candidate, const std::shared_ptr<Branch> &running)
        : candidate_(candidate), running_(running)
    {
    }

    // First the item that says that BGP runs, then the activated families, then the prefix limits; of neighbors before
    // those of groups. A pattern that names a neighbor or group is answered without looking at the others.
    std::vector<platform::DatabaseRecord> find(std::string_view pattern, bool merged) const override;

private:
    const std::shared_ptr<Branch> &candidate_;
    const std::shared_ptr<Branch> &running_;
};

}  // namespace router
