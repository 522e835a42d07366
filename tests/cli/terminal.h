// A terminal that a program runs on, for what it does only there.
#pragma once

#include <functional>
#include <string>

class Terminal {
public:
    // Runs `child` in a process of its own, whose input, output and errors are a terminal of the type `type`. The
    // process ends with what `child` gives.
    Terminal(const std::string &type, const std::function<int()> &child);
    ~Terminal();
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    // Reads until `text` has come. False if the child closes the terminal before.
    bool read_until(const std::string &text);

    // Reads to the end and gives the child's exit code.
    int wait();

    const std::string &output() const { return output_; }  // so far, with "\r\n" for a line's end

private:
    bool read_some();

    int terminal_ = -1;
    int child_ = -1;
    std::string output_;
};

// The same for the command, whose router and working directory are those of run_ocbgp.
int run_on_terminal(const std::string &type, const std::string &arguments, std::string &output);
