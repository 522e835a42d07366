#include "terminal.h"

#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>

Terminal::Terminal(const std::string &type, const std::function<int()> &child)
{
    child_ = forkpty(&terminal_, nullptr, nullptr, nullptr);
    if (child_ != 0) return;
    setenv("TERM", type.c_str(), 1);
    _exit(child());
}

Terminal::~Terminal()
{
    if (child_ > 0) wait();
    close(terminal_);
}

bool Terminal::read_some()
{
    char block[4096];
    const ssize_t count = read(terminal_, block, sizeof block);
    if (count <= 0) return false;  // the child has gone
    output_.append(block, static_cast<size_t>(count));
    return true;
}

bool Terminal::read_until(const std::string &text)
{
    while (output_.find(text) == std::string::npos)
        if (!read_some()) return false;
    return true;
}

int Terminal::wait()
{
    while (read_some()) {
    }
    int status = 0;
    waitpid(child_, &status, 0);
    child_ = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

int run_on_terminal(const std::string &type, const std::string &arguments, std::string &output)
{
    Terminal terminal(type, [&] {
        const std::string line = std::string("cd " SOURCE_DIR " && exec " OCBGP " ") + arguments;
        return execl("/bin/sh", "sh", "-c", line.c_str(), nullptr);
    });
    const int code = terminal.wait();
    output = terminal.output();
    return code;
}
