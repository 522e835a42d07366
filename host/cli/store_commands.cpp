#include "store_commands.h"

#include <filesystem>
#include <iostream>
#include <new>

#include "answer_check.h"
#include "difference.h"
#include "document.h"
#include "exchange.h"
#include "exit_codes.h"
#include "get_request.h"
#include "names.h"
#include "store.h"
#include "vmf_map_types.h"

namespace cli {

namespace {

std::string no_operational_data() { return std::string("<bgp xmlns=\"") + ZR_BGP_OPER_NS + "\"/>"; }

constexpr char nothing_in_candidate[] = "note: the candidate is what runs already\n";

// Leaves nothing in the candidate.
void clear(router::Router &router)
{
    platform::Tree edit;
    Datatree *bgp = platform::append_child(edit.root(), platform::intern("bgp"), platform::intern(ZR_BGP_CFG_NS));
    if (bgp == nullptr) throw std::bad_alloc();
    platform::set_operation(*bgp, VMF_OP_REMOVE);
    router.edit(edit.root());
}

std::string operational_xml(const router::Router &router)
{
    const platform::Tree data = router.operational();
    if (platform::children_of(data.root()).empty()) return no_operational_data();
    return io::write_xml(data.root(), io::Envelope::data, io::Secrets::shown);
}

// Makes `to` what `from` runs.
void copy(const router::Router &from, router::Router &to)
{
    clear(to);
    to.edit(from.config(router::Datastore::running).root());
    to.commit();
    to.load_operational(operational_xml(from), "operational data");
}

// What a datastore says in OpenConfig, without what is not configuration.
platform::Tree openconfig(const router::Router &router, router::Datastore from)
{
    framework::MappedRequest::Setting setting;
    setting.read = [] { return io::read_path("/bgp"); };
    setting.kind = VMF_REQ_GET_CONFIG;
    setting.database = &router.database();
    framework::MappedRequest mapped(setting);
    platform::Tree answer;
    uint32_t outcome = mapped.outcome();
    if (outcome == VMF_RC_OK) outcome = answer_of(router, mapped, from, answer);
    if (outcome != VMF_RC_OK) throw std::runtime_error("the mapping failed: " + name_of_outcome(outcome));
    framework::drop_state(answer.root());
    return answer;
}

bool is_same_folder(const std::string &a, const std::string &b)
{
    std::error_code error;
    return std::filesystem::equivalent(a, b, error);
}

void print_difference(const char *title, const Datatree &before, const Datatree &after, io::Secrets secrets)
{
    const std::string lines = router::difference(before, after, secrets);
    std::cout << "# " << title << "\n" << (lines.empty() ? "none\n" : lines);
}

}  // namespace

int init(const RouterOptions &options)
{
    router::Router::create(options.folder);
    return exit_ok;
}

int reset(const RouterOptions &options)
{
    router::Router router(options.folder, options.wait());
    clear(router);
    router.commit();
    router.load_operational(no_operational_data(), "no operational data");
    return exit_ok;
}

int backup(const RouterOptions &options, const std::string &folder)
{
    if (is_same_folder(folder, options.folder))
        throw UsageError(folder + ": the router's own folder is no place for its backup");
    const router::Router router(options.folder, options.wait());
    router::Router::create(folder);
    router::Router copied(folder, options.wait());
    copy(router, copied);
    return exit_ok;
}

int restore(const RouterOptions &options, const std::string &folder)
{
    if (is_same_folder(folder, options.folder))
        throw UsageError(folder + ": the router's own folder is no backup of it");
    if (!std::filesystem::exists(std::filesystem::path(folder) / router::Store::format))
        throw router::StoreError("no backup in " + folder);
    const router::Router saved(folder, options.wait());
    router::Router router(options.folder, options.wait());
    copy(saved, router);
    return exit_ok;
}

int commit(const RouterOptions &options)
{
    router::Router router(options.folder, options.wait());
    if (!router.candidate_differs()) std::cerr << nothing_in_candidate;
    router.commit();
    return exit_ok;
}

int discard(const RouterOptions &options)
{
    router::Router router(options.folder, options.wait());
    if (!router.candidate_differs()) std::cerr << nothing_in_candidate;
    router.discard();
    return exit_ok;
}

int diff(const RouterOptions &options)
{
    using router::Datastore;
    const router::Router router(options.folder, options.wait());
    print_difference("OpenConfig", openconfig(router, Datastore::running).root(),
                     openconfig(router, Datastore::candidate).root(), options.secrets);
    print_difference("native", router.config(Datastore::running).root(), router.config(Datastore::candidate).root(),
                     options.secrets);
    return exit_ok;
}

int show(const RouterOptions &options, const std::string &what, Format format)
{
    const router::Router router(options.folder, options.wait());
    platform::Tree tree = what == "operational" ? router.operational()
                          : what == "candidate" ? router.config(router::Datastore::candidate)
                                                : router.config(router::Datastore::running);
    std::cout << write_trees(tree.root(), format, io::Envelope::data, options.secrets);
    return exit_ok;
}

int load_operational(const RouterOptions &options, const std::string &file)
{
    const std::string xml = io::read_input(file);
    router::Router router(options.folder, options.wait());
    router.load_operational(xml, file);
    return exit_ok;
}

}  // namespace cli
