#include "coverage.h"

#include <iostream>

#include "document.h"
#include "exit_codes.h"
#include "module_coverage.h"

namespace cli {

static explain::Modules load(const CoverageOptions &options)
{
    try {
        if (options.modules.empty()) return {};
        return {options.modules, options.folders};
    } catch (const explain::BadModule &bad) {
        throw io::InputError(bad.what());
    }
}

int coverage(const CoverageOptions &options)
{
    if (options.json && options.deviations) throw UsageError("--deviations are YANG, not JSON");
    const explain::Modules modules = load(options);
    const explain::Coverage coverage(modules);
    if (options.deviations)
        std::cout << explain::write_deviations(modules, coverage);
    else
        std::cout << (options.json ? write_coverage_json(modules, coverage) : write_coverage_text(modules, coverage));
    return exit_ok;
}

}  // namespace cli
