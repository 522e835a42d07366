// A recording as a file: readable JSON, whose trees are lines of plain text (tree_text.h). What the file holds is
// enough to run the request again without a router, and to see what has changed since.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "recording.h"
#include "write.h"

namespace framework {

constexpr uint32_t saved_trace_version = 1;

struct SavedTrace {
    using Lines = std::vector<std::string>;

    uint32_t kind = 0;
    Lines request = {};
    std::vector<Query> queries = {};  // with the records that were given
    Lines native_request = {};
    uint32_t outcome = 0;
    std::string reason = {}, tag = {}, path = {};  // of a refusal
    Lines notes = {};

    // The way back, of a read that was answered.
    bool was_answered = false;
    Lines native_response = {};
    uint32_t answer_outcome = 0;
    Lines answer = {};
};

SavedTrace saved(const Recording &recording, io::Secrets secrets);

std::string write_saved_trace(const SavedTrace &trace);

// `file` is the name for messages. Throws InputError, whose message is one line.
SavedTrace read_saved_trace(std::string_view text, const std::string &file);

// Runs a saved request through the mapping, with the saved answers of the system database and of the router. Throws
// InputError if its trees cannot be read.
SavedTrace run_again(const SavedTrace &trace, const std::string &file);

// What is not the same in two traces.
struct Difference {
    std::string part;         // "native request"
    SavedTrace::Lines lines;  // "- " before what was, "+ " before what is, "  " before what both stand below
};
std::vector<Difference> differences(const SavedTrace &before, const SavedTrace &now);

}  // namespace framework
