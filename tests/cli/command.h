// Runs the command `ocbgp` as a person would.
#pragma once

#include <string>

struct Ran {
    int code;
    std::string out;
    std::string err;
};

// `arguments` as in a shell; `input` goes to standard input. The working directory is the repository's root unless
// another is given.
Ran run_ocbgp(const std::string &arguments, const std::string &input = "", const std::string &folder = SOURCE_DIR);

// A whole line of a shell.
Ran run_shell(const std::string &command, const std::string &input = "", const std::string &folder = SOURCE_DIR);

std::string read_file(const std::string &path);

// Standard error but for the notes that an edit comes with.
std::string without_notes(const std::string &err);

// Holds `text` against a file of tests/cli/golden. With UPDATE_GOLDEN in the environment it writes that file.
void expect_golden(const std::string &name, const std::string &text);
