#include "explain.h"

#include <iostream>

#include "exit_codes.h"
#include "explanation_json.h"

namespace cli {

const char explain_json_help[] = "";

static int explain_all()
{
    std::vector<explain::Explanation> explanations;
    for (const model::OcNode &node : model::openconfig_bgp())
        explanations.push_back(explain::explain_node(explain::make_target(node.path)));
    std::cout << explain::write_json(explanations);
    return exit_ok;
}

int explain(const ExplainOptions &options)
{
    if (options.all) return explain_all();
    const explain::Target target = explain::make_target(options.path);
    if (target.node == nullptr) throw UsageError(options.path + ": not in the OpenConfig model");
    std::cout << explain::write_json(explain::explain_node(target));
    return exit_ok;
}

}  // namespace cli
