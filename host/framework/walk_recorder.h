// Writes down what the mapping does while it walks a tree, either way: which function ran at which node, what it added,
// asked, raised and refused.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "observer.h"
#include "vmf_map_types.h"

namespace framework {

// A thing that happened, with what happened inside of it.
struct Step {
    enum class Kind : uint8_t {
        function,  // name: its symbol; node: what it was called for
        add,       // name: where; value; operation
        query,     // of the system database; name: the pattern
        flag,      // raised or cleared in the request's record; name, value
        error,     // name: the mapping's words
        remark     // the same of a line that is no failure
    };

    Kind kind;
    std::string name;
    std::string node = {};         // "neighbor[neighbor-address='10.0.0.1']"; empty: of no node
    std::string value = {};        // of a leaf, of an add, of a flag
    bool has_value = false;        // a leaf or an add without one is not one with an empty one
    std::string operation = {};    // of an edit, at the node or at what was added; empty: none
    bool failed = false;           // an add
    bool walks = false;            // a function that steers, and handles nothing
    bool is_secret = false;        // the value is a password
    const Datatree *at = nullptr;  // the node in the tree that the recorder was given
    std::vector<Step> steps = {};
};

// Watches the adds and queries of this thread as long as it lives, and takes the trace's lines by hand.
class WalkRecorder {
public:
    // `trees` are a copy of what is walked, which the mapping leaves alone: the `bgp` of a request, or those of a
    // native response. They and `request`, the record whose flags are watched, outlive the recorder.
    WalkRecorder(std::span<const Datatree> trees, const RequestContext &request);
    ~WalkRecorder();
    WalkRecorder(const WalkRecorder &) = delete;
    WalkRecorder &operator=(const WalkRecorder &) = delete;

    // Takes the next line of the trace.
    void follow(std::string_view line);

    // What happened so far, as the steps of a nameless function. The recorder is done with it.
    Step take();

private:
    struct Frame {
        Step *step;
        const Datatree *node;
        bool walks;
        int32_t child = -1;  // of a function that walks: the child in hand
    };

    static uint32_t before(void *self, const platform::Operation &operation);
    static void after(void *self, const platform::Operation &operation, const Datatree &result);

    Step &add_step(Step step);
    void note_request();
    void start(std::string_view function);
    void leave_to(std::string_view function);
    const Datatree *node_of_start(std::string_view function, bool walks) const;

    std::span<const Datatree> trees_;
    const RequestContext &request_;
    RequestContext seen_;
    Step root_ = {.kind = Step::Kind::function, .name = ""};
    std::vector<Frame> open_;
    Step *adding_ = nullptr;  // an add that has not been done yet
    platform::Observer observer_;
    const platform::Observer *outer_;
};

}  // namespace framework
