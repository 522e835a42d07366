// A request as a tool runs it: mapped once, and mapped again with its walk followed when somebody has to be told where
// it failed, or which of its nodes a native node came from.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "document.h"
#include "request.h"

namespace framework {

// Why the mapping refused a request.
struct Refusal {
    uint32_t outcome;
    std::string reason;  // the mapping's own words, or the outcome in words
    std::string tag;     // the refused tag; may be empty
    std::string path;    // the client's path to it
};

class MappedRequest {
public:
    struct Setting {
        std::function<io::Document()> read;  // gives the request, each time anew: the mapping writes into it
        uint32_t kind = 0;
        const platform::Database *database = nullptr;
        std::function<void(std::string_view line)> trace = {};  // if set, hears the mapping's trace, both ways
    };

    // Maps the request. Throws what `read` throws.
    explicit MappedRequest(Setting setting);
    ~MappedRequest();
    MappedRequest(const MappedRequest &) = delete;
    MappedRequest &operator=(const MappedRequest &) = delete;

    uint32_t outcome() const { return outcome_; }
    const Refusal &refusal() const { return refusal_; }  // if the outcome is not 0
    const Datatree &native() const { return native_.root(); }
    const std::vector<std::string> &notes() const { return notes_; }  // of the reader, and of an edit that is mapped

    // The way back, as Request.
    Request &request() { return *request_; }

    // The client's path to the node that a native node came from; empty if none is known.
    std::string origin_of(const std::string &native_path);

private:
    struct Followed;

    void run();
    void run_followed();
    void map(io::Document &document);

    Setting setting_;
    platform::TraceBuffer trace_;
    platform::Log log_;
    std::unique_ptr<Request> request_;
    std::unique_ptr<Followed> followed_;
    platform::Tree native_;
    uint32_t outcome_ = 0;
    Refusal refusal_ = {};
    std::vector<std::string> notes_;
};

}  // namespace framework
