// What the commands that need a router have in common.
#pragma once

#include <chrono>
#include <string>

#include "output.h"
#include "router.h"

namespace cli {

struct RouterOptions {
    std::string folder;
    double patience = 5;  // seconds to wait for another process
    io::Secrets secrets = io::Secrets::hidden;

    std::chrono::milliseconds wait() const { return std::chrono::milliseconds(static_cast<int64_t>(patience * 1000)); }
};

}  // namespace cli
