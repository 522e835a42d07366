// The commands that look after the embedded router itself. Each gives an exit code and throws what the router throws.
#pragma once

#include <string>

#include "router_options.h"

namespace cli {

int init(const RouterOptions &options);
int reset(const RouterOptions &options);

// To and from a folder that holds a router of its own.
int backup(const RouterOptions &options, const std::string &folder);
int restore(const RouterOptions &options, const std::string &folder);

int commit(const RouterOptions &options);
int discard(const RouterOptions &options);

// What the candidate would change, in OpenConfig terms and natively.
int diff(const RouterOptions &options);

// "running", "candidate" or "operational".
int show(const RouterOptions &options, const std::string &what, Format format);

int load_operational(const RouterOptions &options, const std::string &file);

}  // namespace cli
