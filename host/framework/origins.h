// Which node of a request a native node came from: noted while the request is mapped, for messages about the native
// node.
#pragma once

#include <string>
#include <vector>

#include "observer.h"
#include "walk_follower.h"

namespace framework {

class Origins {
public:
    // `native_path` is the path of an add, absolute or from an entry; `client_path` that of the node being walked.
    void note(std::string native_path, std::string client_path);

    // The client's path behind the node at a whole native path with keys, "/bgp/instance[instance-name='default']/...",
    // or behind the nearest node above it, or else the first below it; empty if there is none.
    std::string find(const std::string &native_path) const;

private:
    struct Origin {
        std::string native_path;  // without a leading "/"
        std::string client_path;
    };
    const Origin *find_up(std::string path, const std::vector<std::string> &keys) const;
    const Origin *find_below(const std::string &path, const std::vector<std::string> &keys) const;

    std::vector<Origin> origins_;
};

// Notes every add of this thread, as long as it lives.
class OriginWatch {
public:
    OriginWatch(Origins &origins, const WalkFollower &follower);
    ~OriginWatch();
    OriginWatch(const OriginWatch &) = delete;
    OriginWatch &operator=(const OriginWatch &) = delete;

private:
    static uint32_t before(void *self, const platform::Operation &operation);

    Origins &origins_;
    const WalkFollower &follower_;
    platform::Observer observer_;
    const platform::Observer *outer_;
};

}  // namespace framework
