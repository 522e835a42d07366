#include "report.h"

#include <iostream>

#include "document.h"
#include "exit_codes.h"
#include "output.h"
#include "reading.h"
#include "vmf_map_platform.h"

namespace cli {

void print_notes(const framework::MappedRequest &mapped)
{
    for (const std::string &note : mapped.notes()) std::cerr << "note: " << io::on_one_line(note) << "\n";
}

void print_refusal(const framework::Refusal &refusal)
{
    std::cerr << "ocbgp: refused: " << name_of_outcome(refusal.outcome) << "\n";
    std::cerr << "  reason: " << io::on_one_line(refusal.reason) << "\n";
    if (!refusal.tag.empty()) std::cerr << "  tag:    " << io::on_one_line(refusal.tag) << "\n";
    std::cerr << "  path:   " << io::on_one_line(refusal.path) << "\n";
}

void print_refused_answer(uint32_t outcome, const char *tag)
{
    std::cerr << "ocbgp: the router's answer was refused: " << name_of_outcome(outcome) << "\n";
    std::cerr << "  reason: " << cerr_strerror(outcome) << "\n";
    if (tag != nullptr) std::cerr << "  tag:    " << io::on_one_line(tag) << "\n";
}

void print_violations(const router::Refused &refused,
                      const std::function<std::string(const std::string &native_path)> &origin_of)
{
    for (const router::Violation &violation : refused.violations) {
        std::cerr << "ocbgp: refused by the router: " << io::on_one_line(violation.rule) << "\n";
        if (violation.path.empty()) continue;
        std::cerr << "  native: " << io::on_one_line(violation.path) << "\n";
        const std::string origin = origin_of ? origin_of(violation.path) : "";
        if (!origin.empty()) std::cerr << "  path:   " << io::on_one_line(origin) << "\n";
    }
}

void TracePrinter::hide(const Datatree &tree)
{
    if (secrets_ == io::Secrets::shown) return;
    for (std::string &password : passwords_in(tree)) passwords_.push_back(std::move(password));
}

void TracePrinter::print(std::string_view line) const
{
    std::cerr << hide_passwords(std::string(line), passwords_) << "\n";
}

static int complain(const std::exception &error, ExitCode code)
{
    std::cerr << "ocbgp: " << io::on_one_line(error.what()) << "\n";
    return code;
}

int reporting(const std::function<int()> &work)
{
    try {
        return work();
    } catch (const io::InputError &error) {
        return complain(error, exit_unreadable);
    } catch (const router::Refused &error) {
        print_violations(error);
        return exit_refused_by_router;
    } catch (const UsageError &error) {
        return complain(error, exit_usage);
    } catch (const router::Locked &error) {
        return complain(error, exit_locked);
    } catch (const router::StoreError &error) {
        return complain(error, exit_store);
    }
}

}  // namespace cli
