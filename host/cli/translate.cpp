#include "translate.h"

#include <iostream>

#include "database_items.h"
#include "exit_codes.h"
#include "report.h"
#include "rpc_errors.h"

namespace cli {

static bool is_read(uint32_t kind) { return kind == VMF_REQ_GET || kind == VMF_REQ_GET_CONFIG; }

int translate(const TranslateOptions &options)
{
    const std::string text = io::read_input(options.file);
    const io::Document document = io::read_request(text, options.file);
    const uint32_t kind = options.kind.value_or(document.kind.value_or(VMF_REQ_EDIT));
    platform::SystemDatabase database;
    if (options.global_as) database.put(framework::global_as_item(0, *options.global_as));

    TracePrinter trace(options.secrets);
    trace.hide(document.bgp.root());
    framework::MappedRequest::Setting setting;
    setting.read = [&] { return io::read_request(text, options.file); };
    setting.kind = kind;
    setting.database = &database;
    if (options.trace) setting.trace = [&](std::string_view line) { trace.print(line); };
    const framework::MappedRequest mapped(setting);
    print_notes(mapped);
    if (mapped.outcome() != VMF_RC_OK) {
        print_refusal(mapped.refusal());
        if (options.rpc_error) print_rpc_error(mapped.refusal(), document.bgp.root());
        return exit_refused;
    }
    const io::Envelope envelope = is_read(kind) ? io::Envelope::filter : io::Envelope::config;
    std::cout << write_trees(mapped.native(), options.format, envelope, options.secrets);
    return exit_ok;
}

}  // namespace cli
