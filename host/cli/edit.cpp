#include "edit.h"

#include <iostream>
#include <optional>
#include <utility>

#include "difference.h"
#include "exit_codes.h"
#include "progress.h"
#include "report.h"
#include "rpc_errors.h"

namespace cli {

namespace {

io::Document read_edit(const std::string &text, const std::string &file)
{
    io::Document document = io::read_request(text, file);
    if (document.kind.value_or(VMF_REQ_EDIT) != VMF_REQ_EDIT)
        throw io::InputError(file + ": a request to read, not an edit");
    return document;
}

void show(const framework::MappedRequest &mapped, const platform::Tree &before, const router::Router &router,
          const EditOptions &options)
{
    std::cout << "# native edit\n"
              << write_trees(mapped.native(), options.format, io::Envelope::config, options.router.secrets);
    const platform::Tree after = router.config(router::Datastore::candidate);
    const std::string difference = router::difference(before.root(), after.root(), options.router.secrets);
    std::cout << "# difference\n" << (difference.empty() ? "none\n" : difference);
}

void store(router::Router &router, bool stays_candidate)
{
    if (stays_candidate)
        router.keep_candidate();
    else
        router.commit();
}

// The candidate takes the edit, or stays as it was.
void apply(const framework::MappedRequest &mapped, router::Router &router, const EditOptions &options,
           Progress &progress)
{
    if (router.candidate_differs() && !options.stays_candidate)
        progress.interrupt(
            [] { std::cerr << "note: the candidate holds changes already; a commit of this edit takes them along\n"; });
    const platform::Tree before = options.only_shows ? router.config(router::Datastore::candidate) : platform::Tree();
    router.edit(mapped.native());
    if (options.only_shows) {
        progress.finish();
        if (options.rpc_error) router.validate();  // before anything is printed
        show(mapped, before, router, options);
        router.validate();
    } else {
        progress.step("storing");
        store(router, options.stays_candidate);
    }
}

}  // namespace

int edit(const EditOptions &options)
{
    const std::string text = io::read_input(options.file);  // which a person may type
    Progress progress(options.is_quiet || options.trace);
    progress.step("reading");
    std::optional<io::Document> first = read_edit(text, options.file);
    router::Router router(options.router.folder, options.router.wait());

    TracePrinter trace(options.router.secrets);
    trace.hide(first->bgp.root());
    framework::MappedRequest::Setting setting;
    setting.read = [&] {
        progress.step("reading");
        io::Document document = first ? std::move(*first) : read_edit(text, options.file);
        first.reset();
        progress.count_entries(document.bgp.root());
        return document;
    };
    setting.kind = VMF_REQ_EDIT;
    setting.database = &router.database();
    if (options.trace) setting.trace = [&](std::string_view line) { trace.print(line); };
    framework::MappedRequest mapped(setting);
    progress.step("applying");
    progress.interrupt([&] { print_notes(mapped); });
    if (mapped.outcome() != VMF_RC_OK) {
        progress.finish();
        print_refusal(mapped.refusal());
        if (options.rpc_error) print_rpc_error(mapped.refusal(), read_edit(text, options.file).bgp.root());
        return exit_refused;
    }
    try {
        apply(mapped, router, options, progress);
        return exit_ok;
    } catch (const router::Refused &refused) {
        progress.finish();
        const auto origin_of = [&](const std::string &native_path) { return mapped.origin_of(native_path); };
        print_violations(refused, origin_of);
        if (options.rpc_error) print_rpc_errors(refused, &read_edit(text, options.file).bgp.root(), origin_of);
        return exit_refused_by_router;
    }
}

}  // namespace cli
