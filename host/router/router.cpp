#include "router.h"

#include "bgp_element.h"
#include "edit.h"
#include "items.h"
#include "native_xml.h"
#include "reading.h"
#include "selection.h"
#include "store.h"

namespace router {

using Data = std::shared_ptr<Branch>;

static std::string message_of(const std::vector<Violation> &violations)
{
    std::string message;
    for (const Violation &violation : violations) {
        if (!message.empty()) message += "; ";
        message += violation.path.empty() ? violation.rule : violation.path + ": " + violation.rule;
    }
    return io::on_one_line(message);
}

// Both quote values, which may have lines.
static std::vector<Violation> a_line_each(std::vector<Violation> violations)
{
    for (Violation &violation : violations) violation.rule = io::on_one_line(violation.rule);
    return violations;
}

Refused::Refused(std::vector<Violation> what)
    : std::runtime_error(message_of(what)), violations(a_line_each(std::move(what)))
{
}

// ---- The folder -----------------------------------------------------------------------------

// What is not well-formed is not quoted: it may be a password.
[[noreturn]] static void fail_as_damaged(const std::string &file, const BadXml &bad)
{
    const std::string where = bad.line.empty() ? file : file + ":" + bad.line;
    if (bad.is_malformed) throw StoreError(where + ": damaged: not well-formed XML with one bgp element");
    throw StoreError(where + ": damaged: " + message_of({bad.violation}));
}

static Data load(const std::string &text, const std::string &file, const Schema &root, Check check)
{
    try {
        return read_xml(text, root, check);
    } catch (const BadXml &bad) {
        fail_as_damaged(file, bad);
    }
}

static Data load(const Store &store, const char *file, const Schema &root)
{
    const auto text = store.read(file);
    if (!text) throw StoreError(store.path_of(file) + ": damaged: the file is missing");
    return load(*text, store.path_of(file), root, Check::model);
}

struct Router::State {
    State(const std::filesystem::path &folder, std::chrono::milliseconds patience)
        : store(folder, patience), running(load(store, Store::running, models().config)), candidate(running),
          operational(load(store, Store::operational, models().operational)), valid(running)
    {
    }

    const Branch &config(Datastore from) const { return from == Datastore::candidate ? *candidate : *running; }

    void keep(std::string_view text)
    {
        store.write(Store::candidate, text);
        kept = candidate;
    }

    void drop_kept()
    {
        if (kept != nullptr) store.remove(Store::candidate);
        kept = nullptr;
    }

    Store store;

    // Each the root of its module. What they point to is not written to: another takes its place.
    Data running;
    Data candidate;
    Data operational;

    Data valid;           // a candidate that the model takes
    Data kept = nullptr;  // what the file of the candidate holds; null: there is none
    Items items = {candidate, running};
};

void Router::create(const std::filesystem::path &folder)
{
    Store::create(folder, write_xml({}, models().config), write_xml({}, models().operational));
}

// A candidate that has come to run while its file stood has nothing to say any more.
Router::Router(const std::filesystem::path &folder, std::chrono::milliseconds patience)
    : state_(std::make_unique<State>(folder, patience))
{
    const auto text = state_->store.read(Store::candidate);
    if (!text) return;
    state_->kept = load(*text, state_->store.path_of(Store::candidate), models().config, Check::structure);
    if (!are_equal(*state_->kept, *state_->running)) state_->candidate = state_->kept;
}

Router::~Router() = default;

// ---- Configuration --------------------------------------------------------------------------

void Router::edit(const Datatree &request) { state_->candidate = edited(state_->candidate, request); }

static void check(const std::string &candidate_text)
{
    try {
        check_xml(candidate_text);
    } catch (const BadXml &bad) {
        throw Refused({bad.violation});
    }
}

void Router::validate() const
{
    if (state_->valid == state_->candidate) return;
    check(write_xml(*state_->candidate, models().config));
    state_->valid = state_->candidate;
}

bool Router::candidate_differs() const { return !are_equal(*state_->candidate, *state_->running); }

void Router::keep_candidate()
{
    State &state = *state_;
    if (!candidate_differs()) return state.drop_kept();
    if (state.kept != state.candidate) state.keep(write_xml(*state.candidate, models().config));
}

// If the candidate has a file, that becomes the running configuration's: so there is no moment at which an older
// candidate stands beside what runs.
void Router::commit()
{
    State &state = *state_;
    if (!candidate_differs()) return state.drop_kept();
    if (state.valid != state.candidate || state.kept != state.candidate) {
        const std::string text = write_xml(*state.candidate, models().config);
        if (state.valid != state.candidate) check(text);
        state.valid = state.candidate;
        if (state.kept == nullptr)
            state.store.write(Store::running, text);
        else if (state.kept != state.candidate)
            state.keep(text);
    }
    if (state.kept != nullptr) state.store.rename(Store::candidate, Store::running);
    state.kept = nullptr;
    state.running = state.candidate;
}

void Router::discard()
{
    state_->drop_kept();
    state_->candidate = state_->valid = state_->running;
}

// ---- Reading --------------------------------------------------------------------------------

platform::Tree Router::read_config(const Datatree &request, Datastore from) const
{
    return selected(state_->config(from), models().config, request);
}

platform::Tree Router::read_operational(const Datatree &request) const
{
    return selected(*state_->operational, models().operational, request);
}

platform::Tree Router::config(Datastore from) const { return whole(state_->config(from)); }

platform::Tree Router::operational() const { return whole(*state_->operational); }

const platform::Database &Router::database() const { return state_->items; }

// ---- Operational data -----------------------------------------------------------------------

void Router::load_operational(std::string_view xml, const std::string &file)
{
    const Schema &root = models().operational;
    Data data;
    try {
        data = read_xml(bgp_element(xml, file, root), root, Check::model);
    } catch (const BadXml &bad) {
        const std::string line = bad.line.empty() ? "" : " (" + file + ":" + bad.line + ")";
        throw Refused({{bad.violation.path, bad.violation.rule + line}});
    }
    state_->store.write(Store::operational, write_xml(*data, root));
    state_->operational = data;
}

}  // namespace router
