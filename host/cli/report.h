// What the command says on standard error.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "mapped_request.h"
#include "router.h"
#include "write.h"

namespace cli {

// Notes of the reader, and nodes whose mapping is still to come.
void print_notes(const framework::MappedRequest &mapped);

void print_refusal(const framework::Refusal &refusal);

// The mapping did not take what the router answered. `tag` may be null.
void print_refused_answer(uint32_t outcome, const char *tag);

// Each violation with its rule and its native path, and the client's path if `origin_of` knows one.
void print_violations(const router::Refused &refused,
                      const std::function<std::string(const std::string &native_path)> &origin_of = {});

// Writes the mapping's trace, with the passwords of a request hidden unless they are to be shown.
class TracePrinter {
public:
    explicit TracePrinter(io::Secrets secrets) : secrets_(secrets) {}

    // Hides the passwords of one more tree.
    void hide(const Datatree &tree);

    void print(std::string_view line) const;

private:
    io::Secrets secrets_;
    std::vector<std::string> passwords_;
};

// Does the work of a command; what it throws becomes a message and an exit code.
int reporting(const std::function<int()> &work);

}  // namespace cli
