// An embedded router that configurations of OpenConfig are written to and read from. All stays in its candidate.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "router.h"
#include "trip.h"

namespace properties {

using Nodes = std::vector<trips::Named>;

class Device {
public:
    Device();  // it runs BGP with the AS 65001
    ~Device();
    Device(const Device &) = delete;
    Device &operator=(const Device &) = delete;

    // Why the edit was refused, by the mapping or by the router; empty: it was not.
    std::string edit(const Nodes &nodes);

    // Back to the AS alone.
    void reset();

    // What <get-config> of these nodes gives, as lines_of.
    std::vector<std::string> read(const Nodes &nodes);

    // The native configuration, as text.
    std::string native() const;

    // Configurations one above the other, and operational data: whatever is asked for is there.
    void load_everything();

    const router::Router &router() const { return *router_; }

private:
    std::filesystem::path folder_;
    std::unique_ptr<router::Router> router_;
};

}  // namespace properties
