// Follows the walk of a request by its trace, and so knows where it stood when it ended.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "vmf_map_types.h"

namespace framework {

// A line of the trace buffer, taken apart: "#12: TRC: vmf_map_oc_bgp:34 ctx=0x1,Start".
struct TraceLine {
    std::string_view level;  // "ERR", "DBG" or "TRC"; empty: not a line of a log statement
    std::string_view function;
    std::string_view text;
};
TraceLine read_trace_line(std::string_view line);

class WalkFollower {
public:
    // `bgp` is the request that is about to be walked; it must outlive the follower.
    explicit WalkFollower(const Datatree &bgp) : bgp_(bgp) {}

    // Takes the next line of the trace.
    void follow(std::string_view line);

    // The client's path to the node at which the walk ended, once it has failed:
    // "/bgp/neighbors/neighbor[neighbor-address='10.0.0.1']/config/colour".
    std::string path_of_end() const { return path_to(at_end_); }

    // The same of the node that is being walked now.
    std::string path_at_hand() const { return path_to(open_); }

    // The failure's own words, if the last thing that the walk said was a failure; else empty.
    const std::string &reason() const { return reason_; }

private:
    struct Frame {
        std::string function;
        const Datatree *node = nullptr;  // of a walker; null for any other function
        int32_t child = -1;              // the child in hand
        bool child_entered = false;      // its walker has started
    };

    void start(std::string_view function);
    void end(std::string_view function);
    static std::string path_to(const std::vector<Frame> &frames);
    Frame *walker();
    const Datatree *next_node();

    const Datatree &bgp_;
    std::vector<Frame> open_;
    std::vector<Frame> at_end_;  // as it stood before the functions began to return
    bool returning_ = false;
    std::string reason_;
};

}  // namespace framework
