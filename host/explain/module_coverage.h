// How much of an OpenConfig module the mapping accepts.
#pragma once

#include <libyang/libyang.h>

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "explanation.h"

namespace explain {

// Modules that cannot be loaded: what libyang says.
struct BadModule : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Modules to hold the mapping against, compiled.
class Modules {
public:
    // The OpenConfig model that the mapping was written for.
    Modules();

    // Those of YANG files; what they import is looked for beside them, in `folders`, and among the program's own
    // modules. Throws BadModule.
    Modules(const std::vector<std::string> &files, const std::vector<std::string> &folders);

    const std::vector<const lys_module *> &all() const { return modules_; }

private:
    struct Destroy {
        void operator()(ly_ctx *context) const { ly_ctx_destroy(context); }
    };
    std::unique_ptr<ly_ctx, Destroy> context_;
    std::vector<const lys_module *> modules_;
};

struct CoveredNode {
    std::string path;  // without prefixes: "/bgp/global/config/as"
    const lysc_node *node;
    Acceptance acceptance;      // of what the mapping does not know: refused
    const CoveredNode *parent;  // null at the top
};

// Every node of the modules' data, in their order.
class Coverage {
public:
    explicit Coverage(const Modules &modules);

    const std::vector<std::unique_ptr<CoveredNode>> &nodes() const { return nodes_; }

private:
    void add(const lysc_node *node, const CoveredNode *parent);

    std::vector<std::unique_ptr<CoveredNode>> nodes_;
};

std::string write_coverage_text(const Modules &modules, const Coverage &coverage);
std::string write_coverage_json(const Modules &modules, const Coverage &coverage);

// A YANG module of deviations: what is refused is not supported, and what can only be read is no configuration. Loads
// beside the modules.
std::string write_deviations(const Modules &modules, const Coverage &coverage);

}  // namespace explain
