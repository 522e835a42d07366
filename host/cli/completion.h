// Completion of the command in a shell, made from the command's own description of its options.
#pragma once

#include <CLI/App.hpp>
#include <string>

namespace cli {

// The script for `shell`, which is "bash", "zsh" or "fish". Options without a group are hidden, and left out.
//
// What an option takes is told by the text that stands behind it in the help: words with "|" between them, of which
// those in capitals stand for something else; FILE, FILTER and MODULE for a file; DIR and FOLDER for a folder.
std::string completion_script(const CLI::App &app, const std::string &shell);

}  // namespace cli
