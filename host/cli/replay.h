// `ocbgp replay`: saved traces run again, and what has changed.
#pragma once

#include <string>
#include <vector>

namespace cli {

struct ReplayOptions {
    std::vector<std::string> files;
    bool updates = false;  // writes what came of it into the files that differ
};

// Prints what differs to standard output. Gives exit_differs if something does. Throws what the reader throws.
int replay(const ReplayOptions &options);

// Writes a file as a whole. Throws std::runtime_error.
void write_file(const std::string &file, const std::string &text);

}  // namespace cli
