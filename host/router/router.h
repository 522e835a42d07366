// An embedded router: native configuration in two datastores, candidate and running, and native operational data, all
// in a folder. It executes native requests as the mapping builds them.
#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "system_database.h"
#include "tree.h"

namespace router {

// What the router does not take, and why.
struct Violation {
    std::string path;  // native: "/bgp/instance[instance-name='default']/instance-as[as='0']/..."; empty: of no node
    std::string rule;  // in words
};

struct Refused : std::runtime_error {
    explicit Refused(std::vector<Violation> what);
    std::vector<Violation> violations;  // at least one
};

// Another process has the router.
struct Locked : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// There is no router in the folder, or its files are damaged, or cannot be written.
struct StoreError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

enum class Datastore { candidate, running };

class Router {
public:
    // Makes an empty router in a folder, which is made too if it is missing. Throws StoreError, also if a router is
    // there.
    static void create(const std::filesystem::path &folder);

    // Opens the router of a folder and holds it until the object goes: waits so long for another process to leave it.
    // Throws Locked, StoreError.
    Router(const std::filesystem::path &folder, std::chrono::milliseconds patience);
    ~Router();
    Router(const Router &) = delete;
    Router &operator=(const Router &) = delete;

    // Executes the native configuration trees among the children of `request`, in the order in which they stand, on the
    // candidate in memory. All or nothing: throws Refused and leaves the candidate as it was.
    void edit(const Datatree &request);

    // Holds the candidate against the native models. Throws Refused.
    void validate() const;

    // Validates the candidate and makes it the running configuration, on disk when it returns. Throws Refused,
    // StoreError; running is then as it was, in memory and on disk.
    void commit();

    // Keeps the candidate on disk, validated or not. Throws StoreError.
    void keep_candidate();

    // Makes the candidate what runs, in memory and on disk. Throws StoreError.
    void discard();

    bool candidate_differs() const;

    // What the native configuration (operational) trees among the children of `request` select, in schema order. The
    // holder that comes back has one `bgp` child, or none if nothing was selected.
    platform::Tree read_config(const Datatree &request, Datastore from) const;
    platform::Tree read_operational(const Datatree &request) const;

    // A datastore, or the operational data, as a whole.
    platform::Tree config(Datastore from) const;
    platform::Tree operational() const;

    // Replaces the operational data by what a native XML text holds, on disk when it returns. `file` is the name for
    // messages. Throws Refused for what the model does not know, io::InputError for what is no XML, StoreError.
    void load_operational(std::string_view xml, const std::string &file);

    // The system database: the merged view is the candidate, the other the running configuration.
    const platform::Database &database() const;

private:
    struct State;
    std::unique_ptr<State> state_;
};

}  // namespace router
