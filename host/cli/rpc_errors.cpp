#include "rpc_errors.h"

#include <iostream>
#include <new>

#include "document.h"
#include "reading.h"
#include "refusal_errors.h"

namespace cli {

namespace {

void print(const std::vector<io::RpcError> &errors, const Datatree *bgp = nullptr)
{
    std::cout << io::write_rpc_errors(errors, bgp);
}

void print_failure(const char *tag, const char *what)
{
    print({{.type = "application", .tag = tag, .message = io::on_one_line(what)}});
}

}  // namespace

void print_rpc_error(const framework::Refusal &refusal, const Datatree &bgp)
{
    print({framework::error_of(refusal)}, &bgp);
}

void print_rpc_error_of_answer(uint32_t outcome, const char *tag) { print({framework::error_of_answer(outcome, tag)}); }

void print_rpc_errors(const router::Refused &refused, const Datatree *bgp,
                      const std::function<std::string(const std::string &native_path)> &origin_of)
{
    std::vector<io::RpcError> errors;
    for (const router::Violation &violation : refused.violations) {
        std::string message = violation.rule;
        if (!violation.path.empty()) message += " (" + violation.path + ")";
        errors.push_back({.type = "application",
                          .tag = "operation-failed",
                          .path = origin_of ? origin_of(violation.path) : "",
                          .message = io::on_one_line(message)});
    }
    print(errors, bgp);
}

int telling_rpc_errors(bool wanted, const std::function<int()> &work)
{
    if (!wanted) return work();
    try {
        return work();
    } catch (const io::InputError &error) {
        print({framework::error_of_input(error.what())});
        throw;
    } catch (const router::Refused &refused) {
        print_rpc_errors(refused, nullptr);
        throw;
    } catch (const router::Locked &error) {
        print_failure("in-use", error.what());
        throw;
    } catch (const router::StoreError &error) {
        print_failure("operation-failed", error.what());
        throw;
    } catch (const std::bad_alloc &) {
        print_failure("resource-denied", "there is not enough memory");
        throw;
    }
}

}  // namespace cli
