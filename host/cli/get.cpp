#include "get.h"

#include <iostream>

#include "answer_check.h"
#include "exchange.h"
#include "exit_codes.h"
#include "get_request.h"
#include "missing.h"
#include "model_defaults.h"
#include "report.h"
#include "rpc_errors.h"

namespace cli {

namespace {

io::Document read_selection(const GetOptions &options, const std::string &text)
{
    io::Document document = options.filter.empty() ? io::read_path(options.path.empty() ? "/bgp" : options.path)
                                                   : io::read_request(text, options.filter);
    io::complete_keys(document);
    return document;
}

uint32_t kind_of(const GetOptions &options, const io::Document &document)
{
    const uint32_t said = document.kind.value_or(VMF_REQ_GET);
    if (said == VMF_REQ_EDIT) throw io::InputError(options.filter + ": an edit, not a request to read");
    return options.only_config ? uint32_t{VMF_REQ_GET_CONFIG} : said;
}

// Each of the two keeps the other out of the answer, wherever it was named.
void note_config_and_state(const RequestContext &request)
{
    if (request.config_named != 0 && request.state_named != 0)
        std::cerr << "note: config and state were both named, and each keeps the other out; read one of them, or what "
                     "holds both\n";
}

// Says on standard error what was asked and is not there. The request runs once more, with all of it written down.
void explain_missing(const router::Router &router, const framework::MappedRequest::Setting &setting,
                     io::Secrets secrets)
{
    framework::RecordedRequest again(setting.read, setting.kind, *setting.database);
    const framework::Recording &recording = again.recording();
    if (recording.outcome != VMF_RC_OK) return;
    again.answer(response_to(router, recording.native.root(), recording.wants_operational, router::Datastore::running));
    if (recording.answer_outcome != VMF_RC_OK) return;
    for (const framework::MissingNode &node :
         framework::missing_nodes(recording, *setting.database, router::default_of_openconfig, secrets)) {
        std::cerr << "missing: " << node.path << ": " << node.text;
        if (node.others > 0) std::cerr << " (and so " << node.others << " more)";
        std::cerr << "\n";
    }
    for (const std::string &line : framework::dropped_values(recording, *setting.database, secrets))
        std::cerr << "dropped: " << line << "\n";
}

}  // namespace

int get(const GetOptions &options)
{
    const std::string text = options.filter.empty() ? "" : io::read_input(options.filter);
    const io::Document document = read_selection(options, text);
    framework::MappedRequest::Setting setting;
    setting.kind = kind_of(options, document);
    setting.read = [&] { return read_selection(options, text); };
    const router::Router router(options.router.folder, options.router.wait());
    setting.database = &router.database();

    TracePrinter trace(options.router.secrets);
    trace.hide(document.bgp.root());
    if (options.trace) setting.trace = [&](std::string_view line) { trace.print(line); };
    framework::MappedRequest mapped(setting);
    print_notes(mapped);
    if (mapped.outcome() != VMF_RC_OK) {
        print_refusal(mapped.refusal());
        if (options.rpc_error) print_rpc_error(mapped.refusal(), document.bgp.root());
        return exit_refused;
    }
    note_config_and_state(mapped.request().context());
    trace.hide(router.config(router::Datastore::running).root());
    platform::Tree answer;
    const uint32_t outcome = answer_of(router, mapped, router::Datastore::running, answer);
    if (outcome != VMF_RC_OK) {
        print_refused_answer(outcome, mapped.request().context().rejected_tag);
        if (options.rpc_error) print_rpc_error_of_answer(outcome, mapped.request().context().rejected_tag);
        return exit_refused;
    }
    for (const std::string &line : framework::check_answer(answer.root())) std::cerr << "warning: " << line << "\n";
    std::cout << write_trees(answer.root(), options.format, io::Envelope::data, options.router.secrets);
    if (options.explains_missing) {
        std::cout.flush();
        explain_missing(router, setting, options.router.secrets);
    }
    return exit_ok;
}

}  // namespace cli
