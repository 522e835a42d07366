// The command `ocbgp`.
#include <CLI/CLI.hpp>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <map>
#include <new>

#include "completion.h"
#include "coverage.h"
#include "edit.h"
#include "exit_codes.h"
#include "explain.h"
#include "get.h"
#include "replay.h"
#include "report.h"
#include "rpc_errors.h"
#include "store_commands.h"
#include "trace_command.h"
#include "translate.h"
#include "vmf_map_types.h"

namespace {

constexpr char exit_code_help[] =
    "Exit codes: 0 done, 1 refused by the mapping, 2 unreadable input, 3 refused by the router (no\n"
    "valid configuration, or no AS number known), 4 locked by another process, 5 no router, or a\n"
    "damaged or full store, 6 a saved trace gives something else, 64 wrong usage, 70 failure of the\n"
    "command itself.";

// ---- Options that commands share ------------------------------------------------------------

// "edit", "get", "get-config", or the number of any other kind.
uint32_t read_kind(const std::string &text)
{
    static const std::map<std::string, uint32_t> names = {
        {"edit", VMF_REQ_EDIT}, {"get", VMF_REQ_GET}, {"get-config", VMF_REQ_GET_CONFIG}};
    if (auto found = names.find(text); found != names.end()) return found->second;
    uint32_t kind = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), kind);
    if (error != std::errc() || end != text.data() + text.size())
        throw CLI::ValidationError("--kind", "takes edit, get, get-config or a number, not \"" + text + "\"");
    return kind;
}

cli::Format read_format(const std::string &text)
{
    static const std::map<std::string, cli::Format> formats = {
        {"xml", cli::Format::xml}, {"json", cli::Format::json}, {"tree", cli::Format::tree}};
    if (auto found = formats.find(text); found != formats.end()) return found->second;
    throw CLI::ValidationError("--format", "takes xml, json or tree, not \"" + text + "\"");
}

std::string read_store(const std::string &text)
{
    if (text == "running" || text == "candidate" || text == "operational") return text;
    throw CLI::ValidationError("WHAT", "is running, candidate or operational, not \"" + text + "\"");
}

double read_seconds(const std::string &text)
{
    constexpr double longest = 86400;
    char *end = nullptr;
    const double seconds = std::strtod(text.c_str(), &end);
    if (end == text.c_str() || *end != '\0' || !(seconds >= 0) || seconds > longest)
        throw CLI::ValidationError("--wait", "takes a number of seconds, not \"" + text + "\"");
    return seconds;
}

cli::Colour read_colour(const std::string &text)
{
    static const std::map<std::string, cli::Colour> words = {
        {"auto", cli::Colour::automatic}, {"always", cli::Colour::always}, {"never", cli::Colour::never}};
    if (auto found = words.find(text); found != words.end()) return found->second;
    throw CLI::ValidationError("--color", "takes auto, always or never, not \"" + text + "\"");
}

void add_format(CLI::App *command, cli::Format &format, const char *otherwise)
{
    command
        ->add_option_function<std::string>(
            "--format", [&format](const std::string &text) { format = read_format(text); },
            std::string("how to print trees (") + otherwise + ")")
        ->option_text("xml|json|tree");
}

void add_secrets(CLI::App *command, io::Secrets &secrets)
{
    command->add_flag_callback(
        "--show-secrets", [&secrets] { secrets = io::Secrets::shown; }, "print passwords as they are");
}

void add_trace(CLI::App *command, bool &trace)
{
    command->add_flag("--trace", trace, "print the mapping's trace to standard error");
}

void add_rpc_error(CLI::App *command, bool &rpc_error)
{
    command->add_flag("--rpc-error", rpc_error, "print a failure as NETCONF's <rpc-error> to standard output too");
}

void add_kind(CLI::App *command, std::optional<uint32_t> &kind)
{
    command
        ->add_option_function<std::string>(
            "--kind", [&kind](const std::string &text) { kind = read_kind(text); },
            "request kind; told by the input where it can, else edit")
        ->option_text("edit|get|get-config|N");
}

CLI::Option *add_global_as(CLI::App *command, std::optional<uint32_t> &global_as)
{
    return command->add_option("--as", global_as, "global AS number that the router has already")
        ->check(CLI::Range(uint32_t{1}, UINT32_MAX))
        ->option_text("N");
}

void add_wait(CLI::App *command, double &patience)
{
    command
        ->add_option_function<std::string>(
            "--wait", [&patience](const std::string &text) { patience = read_seconds(text); },
            "seconds to wait for another process to leave it (5)")
        ->option_text("SECONDS");
}

void add_router(CLI::App *command, cli::RouterOptions &options)
{
    const char *from_environment = std::getenv("OCBGP_ROUTER");
    options.folder = from_environment != nullptr ? from_environment : "ocbgp-router";
    command->add_option("--router", options.folder, "folder of the embedded router ($OCBGP_ROUTER, or ./ocbgp-router)")
        ->option_text("DIR");
    add_wait(command, options.patience);
}

// ---- Commands -------------------------------------------------------------------------------

// A command that parses its own options and runs when it was named.
struct Command {
    CLI::App *app;
    std::function<int()> run;
};

class Commands {
public:
    explicit Commands(CLI::App &app) : app_(app) {}

    CLI::App *add(const std::string &name, const std::string &what, const std::string &example,
                  std::function<int()> run)
    {
        CLI::App *command = app_.add_subcommand(name, what);
        command->footer("Example:\n  ocbgp " + example + "\n\n" + exit_code_help);
        commands_.push_back({command, std::move(run)});
        return command;
    }

    int run() const
    {
        for (const Command &command : commands_)
            if (command.app->parsed()) return cli::reporting(command.run);
        return cli::exit_usage;
    }

private:
    CLI::App &app_;
    std::vector<Command> commands_;
};

struct Options {
    cli::TranslateOptions translate;
    cli::EditOptions edit;
    cli::GetOptions get;
    cli::TraceOptions trace;
    cli::ReplayOptions replay;
    cli::ExplainOptions explain;
    cli::CoverageOptions coverage;
    cli::RouterOptions router;
    std::string file;
    std::string what;
    cli::Format format = cli::Format::tree;
};

void add_translate(Commands &commands, cli::TranslateOptions &options)
{
    CLI::App *command =
        commands.add("translate", "Show what an OpenConfig request becomes natively",
                     "translate examples/global-edit.xml --as 65001 --format tree", [&options] {
                         return cli::telling_rpc_errors(options.rpc_error, [&] { return cli::translate(options); });
                     });
    command->add_option("FILE", options.file, "request as XML or JSON; - for standard input")
        ->required()
        ->option_text(" ");
    add_kind(command, options.kind);
    add_global_as(command, options.global_as);
    add_format(command, options.format, "xml");
    add_trace(command, options.trace);
    add_rpc_error(command, options.rpc_error);
    add_secrets(command, options.secrets);
}

void add_edit(Commands &commands, cli::EditOptions &options)
{
    CLI::App *command =
        commands.add("edit", "Apply an OpenConfig edit to the embedded router",
                     "edit examples/global-edit.xml --router /tmp/router --dry-run", [&options] {
                         return cli::telling_rpc_errors(options.rpc_error, [&] { return cli::edit(options); });
                     });
    command->add_option("FILE", options.file, "edit as XML or JSON; - for standard input")
        ->required()
        ->option_text(" ");
    CLI::Option *dry_run = command->add_flag("--dry-run", options.only_shows,
                                             "only show the native edit and the difference it would make");
    command->add_flag("--candidate", options.stays_candidate, "leave it in the candidate, without a commit")
        ->excludes(dry_run);
    command->add_flag("--quiet", options.is_quiet, "no progress, on a terminal too");
    add_format(command, options.format, "tree");
    add_trace(command, options.trace);
    add_rpc_error(command, options.rpc_error);
    add_secrets(command, options.router.secrets);
    add_router(command, options.router);
}

void add_get(Commands &commands, cli::GetOptions &options)
{
    CLI::App *command = commands.add(
        "get", "Read the embedded router in OpenConfig terms", "get --router /tmp/router --path /bgp/global/config",
        [&options] { return cli::telling_rpc_errors(options.rpc_error, [&] { return cli::get(options); }); });
    CLI::Option *filter =
        command->add_option("FILTER", options.filter, "filter as XML or JSON; - for standard input")->option_text(" ");
    command->add_option("--path", options.path, "a path with list keys in brackets, in the place of a filter")
        ->excludes(filter)
        ->option_text("PATH");
    command->add_flag("--config", options.only_config, "as <get-config>, not <get>: configuration alone");
    command->add_flag("--explain-missing", options.explains_missing, "say what was asked and is not there, and why");
    add_format(command, options.format, "xml");
    add_trace(command, options.trace);
    add_rpc_error(command, options.rpc_error);
    add_secrets(command, options.router.secrets);
    add_router(command, options.router);
}

void add_trace_command(Commands &commands, cli::TraceOptions &options)
{
    CLI::App *command = commands.add("trace", "Show which handlers a request runs, and what each of them does",
                                     "trace examples/global-edit.xml", [&options] { return cli::trace(options); });
    CLI::Option *file = command->add_option("FILE", options.file, "request as XML or JSON; - for standard input");
    file->option_text(" ");
    command->add_option("--path", options.path, "a path to read, in the place of a file")
        ->excludes(file)
        ->option_text("PATH");
    add_kind(command, options.kind);
    command->add_flag("--config", options.only_config, "as <get-config>, not <get>: configuration alone");
    CLI::Option *folder = command->add_option("--router", options.folder,
                                              "folder of an embedded router, which is asked and never changed");
    folder->option_text("DIR");
    add_wait(command, options.patience);
    add_global_as(command, options.global_as)->excludes(folder);
    command->add_option("--save", options.save, "write all of it to a file that `ocbgp replay` runs again")
        ->option_text("FILE");
    command->add_flag("--json", options.as_json, "print the walk as JSON");
    command
        ->add_option_function<std::string>(
            "--color", [&options](const std::string &text) { options.colour = read_colour(text); },
            "when to colour (auto: on a terminal, unless NO_COLOR is set)")
        ->option_text("auto|always|never");
    add_secrets(command, options.secrets);
}

void add_replay(Commands &commands, cli::ReplayOptions &options)
{
    CLI::App *command =
        commands.add("replay", "Run saved traces again, and show what differs", "replay tests/golden/global-edit.trace",
                     [&options] { return cli::replay(options); });
    command->add_option("FILE", options.files, "what `ocbgp trace --save` wrote")->required()->option_text("...");
    command->add_flag("--update", options.updates, "write what came of it into the files that differ");
}

void add_explain(Commands &commands, cli::ExplainOptions &options)
{
    CLI::App *command =
        commands.add("explain", "Explain what a node of the OpenConfig tree becomes natively",
                     "explain /bgp/neighbors/neighbor/config/peer-as", [&options] { return cli::explain(options); });
    command->footer(std::string(cli::explain_json_help) + "\n" + command->get_footer());
    CLI::Option *path =
        command->add_option("PATH", options.path, "of OpenConfig, with or without list keys in brackets")
            ->option_text(" ");
    CLI::Option *native =
        command->add_option("--native", options.native_path, "which OpenConfig leaves a native node feeds")
            ->excludes(path)
            ->option_text("PATH");
    command->add_flag("--all", options.all, "every node of the OpenConfig tree; with --json")
        ->excludes(path)
        ->excludes(native);
    command->add_option("--kind", options.kind, "only what such a request becomes")
        ->check(CLI::IsMember({"read", "merge", "replace", "delete"}))
        ->option_text("read|merge|replace|delete");
    command->add_flag("--json", options.json, "as JSON");
}

void add_coverage(Commands &commands, cli::CoverageOptions &options)
{
    CLI::App *command =
        commands.add("coverage", "Tell how much of an OpenConfig module the mapping accepts",
                     "coverage --against models/openconfig-bgp.yang", [&options] { return cli::coverage(options); });
    command->add_option("--against", options.modules, "YANG modules; the mapping's own edition of the model otherwise")
        ->option_text("FILE...");
    command->add_option("--search-dir", options.folders, "where the modules that they import lie")
        ->option_text("DIR...");
    command->add_flag("--json", options.json, "as JSON, with every node");
    command->add_flag("--deviations", options.deviations,
                      "a YANG module that tells a client's tools what is not supported");
}

void add_store_commands(Commands &commands, Options &options)
{
    cli::RouterOptions &router = options.router;
    add_router(commands.add("init", "Make an empty embedded router", "init --router /tmp/router",
                            [&router] { return cli::init(router); }),
               router);
    add_router(commands.add("reset", "Take all configuration and operational data away", "reset --router /tmp/router",
                            [&router] { return cli::reset(router); }),
               router);
    add_router(commands.add("commit", "Make the candidate the running configuration", "commit --router /tmp/router",
                            [&router] { return cli::commit(router); }),
               router);
    add_router(commands.add("discard", "Drop the candidate", "discard --router /tmp/router",
                            [&router] { return cli::discard(router); }),
               router);

    CLI::App *diff = commands.add("diff", "Show what the candidate would change", "diff --router /tmp/router",
                                  [&router] { return cli::diff(router); });
    add_secrets(diff, router.secrets);
    add_router(diff, router);

    CLI::App *show = commands.add("show", "Show native data as it stands", "show running --router /tmp/router",
                                  [&options] { return cli::show(options.router, options.what, options.format); });
    show->add_option_function<std::string>(
            "WHAT", [&options](const std::string &text) { options.what = read_store(text); },
            "running, candidate or operational")
        ->required()
        ->type_name("running|candidate|operational")
        ->option_text(" ");
    add_format(show, options.format, "tree");
    add_secrets(show, router.secrets);
    add_router(show, router);

    CLI::App *load = commands.add("load-operational", "Give the router native operational data",
                                  "load-operational examples/operational.xml --router /tmp/router",
                                  [&options] { return cli::load_operational(options.router, options.file); });
    load->add_option("FILE", options.file, "native XML; - for standard input")->required()->option_text(" ");
    add_router(load, router);

    CLI::App *backup = commands.add("backup", "Copy what runs, and the operational data, to a new folder",
                                    "backup /tmp/saved --router /tmp/router",
                                    [&options] { return cli::backup(options.router, options.file); });
    backup->add_option("FOLDER", options.file, "a folder that is made")->required()->option_text(" ");
    add_router(backup, router);

    CLI::App *restore =
        commands.add("restore", "Make the router what a backup holds", "restore /tmp/saved --router /tmp/router",
                     [&options] { return cli::restore(options.router, options.file); });
    restore->add_option("FOLDER", options.file, "what backup made")->required()->option_text(" ");
    add_router(restore, router);
}

int run(int argc, char **argv)
{
    CLI::App app("OpenConfig BGP for a router that speaks its own model");
    app.set_version_flag("--version", "ocbgp " OCBGP_VERSION);
    app.require_subcommand(0, 1);
    std::string shell;
    app.add_option("--completion", shell, "print the completion of this command for a shell")
        ->check(CLI::IsMember({"bash", "zsh", "fish"}))
        ->group("");  // for the build
    app.footer(std::string("Example:\n  ocbgp translate examples/global-edit.xml\n\n") + exit_code_help);

    Options options;
    Commands commands(app);
    add_translate(commands, options.translate);
    add_edit(commands, options.edit);
    add_get(commands, options.get);
    add_trace_command(commands, options.trace);
    add_replay(commands, options.replay);
    add_explain(commands, options.explain);
    add_coverage(commands, options.coverage);
    add_store_commands(commands, options);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        if (error.get_exit_code() == 0) return app.exit(error);  // --help, --version
        std::cerr << "ocbgp: " << error.what() << "\nRun with --help for more information.\n";
        return cli::exit_usage;
    }
    if (!shell.empty()) {
        std::cout << cli::completion_script(app, shell);
        return cli::exit_ok;
    }
    if (app.get_subcommands().empty()) {
        std::cerr << "ocbgp: a command is required; see ocbgp --help\n";
        return cli::exit_usage;
    }
    const int code = commands.run();
    if (!std::cout.flush()) throw std::runtime_error("standard output cannot be written");
    return code;
}

}  // namespace

int main(int argc, char **argv)
{
    try {
        return run(argc, argv);
    } catch (const std::bad_alloc &) {
        std::fputs("ocbgp: there is not enough memory\n", stderr);
    } catch (const std::exception &error) {
        std::fprintf(stderr, "ocbgp: %s\n", error.what());
    } catch (...) {
        std::fputs("ocbgp: unknown failure\n", stderr);
    }
    return cli::exit_failed;
}
