#include "replay.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>

#include "exit_codes.h"
#include "reading.h"
#include "saved_trace.h"

namespace cli {

namespace {

// Whether nothing differs.
bool replay_file(const std::string &file, bool updates)
{
    const framework::SavedTrace before = framework::read_saved_trace(io::read_input(file), file);
    framework::SavedTrace now = framework::run_again(before, file);
    const std::vector<framework::Difference> differences = framework::differences(before, now);
    if (differences.empty()) {
        std::cout << file << ": nothing differs\n";
        return true;
    }
    for (const framework::Difference &difference : differences) {
        std::cout << file << ": " << difference.part << "\n";
        for (const std::string &line : difference.lines) std::cout << "  " << line << "\n";
    }
    if (!updates) return false;
    write_file(file, framework::write_saved_trace(now));
    return true;
}

}  // namespace

void write_file(const std::string &file, const std::string &text)
{
    std::ofstream out(file, std::ios::binary);
    out << text;
    if (!out.flush()) throw std::runtime_error(file + ": cannot be written: " + std::strerror(errno));
}

int replay(const ReplayOptions &options)
{
    bool differs = false;
    for (const std::string &file : options.files) differs = !replay_file(file, options.updates) || differs;
    return differs ? exit_differs : exit_ok;
}

}  // namespace cli
