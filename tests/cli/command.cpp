#include "command.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

std::string read_file(const std::string &path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

Ran run_shell(const std::string &command, const std::string &input, const std::string &folder)
{
    namespace fs = std::filesystem;
    const fs::path files = fs::temp_directory_path() / ("ocbgp-test-" + std::to_string(getpid()));
    fs::create_directories(files);
    std::ofstream(files / "in", std::ios::binary) << input;
    const std::string line = "cd " + folder + " && { " + command + "\n} <" + (files / "in").string() + " >" +
                             (files / "out").string() + " 2>" + (files / "err").string();
    const int status = std::system(line.c_str());
    const Ran ran = {WIFEXITED(status) ? WEXITSTATUS(status) : -1, read_file((files / "out").string()),
                     read_file((files / "err").string())};
    fs::remove_all(files);
    return ran;
}

Ran run_ocbgp(const std::string &arguments, const std::string &input, const std::string &folder)
{
    return run_shell(OCBGP " " + arguments, input, folder);
}

std::string without_notes(const std::string &err)
{
    std::string others;
    std::istringstream in(err);
    for (std::string line; std::getline(in, line);)
        if (!line.starts_with("note: ")) others += line + "\n";
    return others;
}

void expect_golden(const std::string &name, const std::string &text)
{
    const std::string file = SOURCE_DIR "/tests/cli/golden/" + name;
    const bool is_new = std::getenv("UPDATE_GOLDEN") != nullptr && text != read_file(file);
    if (is_new) std::ofstream(file, std::ios::binary) << text;
    EXPECT_EQ(text, read_file(file)) << "in " << file << "; UPDATE_GOLDEN=1 writes it anew";
}
