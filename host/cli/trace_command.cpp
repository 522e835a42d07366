#include "trace_command.h"

#include <unistd.h>

#include <cstdlib>
#include <iostream>

#include "database_items.h"
#include "exchange.h"
#include "exit_codes.h"
#include "get_request.h"
#include "reading.h"
#include "replay.h"
#include "report.h"
#include "router_options.h"
#include "saved_trace.h"
#include "step_tree.h"

namespace cli {

namespace {

io::Document read_traced(const TraceOptions &options, const std::string &text)
{
    if (options.file.empty()) {
        io::Document document = io::read_path(options.path.empty() ? "/bgp" : options.path);
        document.kind = VMF_REQ_GET;
        io::complete_keys(document);
        return document;
    }
    return io::read_request(text, options.file);
}

uint32_t kind_of(const TraceOptions &options, const io::Document &document)
{
    if (options.only_config) return VMF_REQ_GET_CONFIG;
    return options.kind.value_or(document.kind.value_or(VMF_REQ_EDIT));
}

bool wants_colours(Colour colour)
{
    if (colour != Colour::automatic) return colour == Colour::always;
    const char *no_color = std::getenv("NO_COLOR");
    const char *terminal = std::getenv("TERM");
    const bool is_refused = no_color != nullptr && *no_color != '\0';
    const bool is_dumb = terminal == nullptr || std::string_view(terminal) == "dumb";
    return !is_refused && !is_dumb && isatty(STDOUT_FILENO) == 1;
}

void print_walk(const char *title, const framework::Step &walk, const StepStyle &style)
{
    const Paint &paint = paint_of(style.is_coloured);
    std::cout << paint.aside << "# " << title << paint.end << "\n" << write_steps(walk, style);
}

std::vector<std::string> passwords_of(const framework::Recording &recording, io::Secrets secrets)
{
    if (secrets == io::Secrets::shown) return {};
    std::vector<std::string> all = passwords_in(recording.request.bgp.root());
    for (std::string &password : passwords_in(recording.response.root())) all.push_back(std::move(password));
    return all;
}

void print(const framework::Recording &recording, const TraceOptions &options)
{
    const StepStyle style = {.is_coloured = wants_colours(options.colour) && !options.as_json,
                             .secrets = options.secrets,
                             .queries = &recording.queries,
                             .passwords = passwords_of(recording, options.secrets)};
    if (options.as_json) {
        const framework::Step *answer = recording.was_answered ? &recording.way_back : nullptr;
        std::cout << write_steps_json(recording.walk, answer, style);
        return;
    }
    print_walk("request", recording.walk, style);
    if (recording.was_answered) print_walk("answer", recording.way_back, style);
}

int report(const framework::Recording &recording)
{
    for (const std::string &note : recording.notes) std::cerr << "note: " << io::on_one_line(note) << "\n";
    if (recording.outcome != VMF_RC_OK) {
        print_refusal(recording.refusal);
        return exit_refused;
    }
    if (recording.answer_outcome != VMF_RC_OK) {
        print_refused_answer(recording.answer_outcome, nullptr);
        return exit_refused;
    }
    return exit_ok;
}

}  // namespace

int trace(const TraceOptions &options)
{
    const std::string text = options.file.empty() ? "" : io::read_input(options.file);
    const uint32_t kind = kind_of(options, read_traced(options, text));
    std::optional<router::Router> router;
    platform::SystemDatabase own;
    if (!options.folder.empty())
        router.emplace(options.folder, RouterOptions{.folder = options.folder, .patience = options.patience}.wait());
    if (options.global_as) own.put(framework::global_as_item(0, *options.global_as));

    const auto read = [&] {
        io::Document document = read_traced(options, text);
        if (router && framework::is_read(kind)) io::complete_keys(document);
        return document;
    };
    const platform::Database &database = router ? router->database() : own;
    framework::RecordedRequest recorded(read, kind, database);
    const framework::Recording &recording = recorded.recording();
    if (router && framework::is_read(kind) && recording.outcome == VMF_RC_OK)
        recorded.answer(
            response_to(*router, recording.native.root(), recording.wants_operational, router::Datastore::running));
    if (!options.save.empty())
        write_file(options.save, framework::write_saved_trace(framework::saved(recording, options.secrets)));
    print(recording, options);
    return report(recording);
}

}  // namespace cli
