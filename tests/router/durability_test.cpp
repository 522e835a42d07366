// In which order files are written, brought to disk and renamed, and what is there if the process ends in between. This
// program's own fsync and rename take the place of the system's.
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <vector>

#include "support.h"

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using namespace test;
using router::Router;
using router::StoreError;

namespace {

struct Watch {
    std::vector<std::string> calls = {};
    size_t last = SIZE_MAX;        // the call of this number, from 0 on, does not happen:
    bool is_killed_by_it = false;  // the process ends there; else it fails
};

Watch *watch = nullptr;

// False if the call shall not happen.
bool note(const std::string &call)
{
    if (watch == nullptr) return true;
    watch->calls.push_back(call);
    if (watch->calls.size() != watch->last + 1) return true;
    if (watch->is_killed_by_it) kill(getpid(), SIGKILL);
    errno = EIO;
    return false;
}

std::string name_of(int file)
{
    char name[PATH_MAX] = {};
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    if (readlink(link.c_str(), name, sizeof name - 1) < 0) return "?";
    return fs::is_directory(name) ? "folder" : fs::path(name).filename().string();
}

}  // namespace

extern "C" int fsync(int file)
{
    if (!note("fsync " + name_of(file))) return -1;
    return static_cast<int>(syscall(SYS_fsync, file));
}

extern "C" int rename(const char *from, const char *to) noexcept
{
    if (!note("rename " + fs::path(from).filename().string() + " " + fs::path(to).filename().string())) return -1;
    return static_cast<int>(syscall(SYS_rename, from, to));
}

namespace {

struct Writing {
    const char *name;
    bool has_kept_candidate;
    void (*write)(Router &router);
    std::vector<std::string> calls;
};

constexpr char operational_data[] = "<bgp xmlns=\"http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-oper\"/>";

const Writing writings[] = {
    {"commit",
     false,
     [](Router &router) { router.commit(); },
     {"fsync running.xml.new", "rename running.xml.new running.xml", "fsync folder"}},
    {"commit of another than the kept candidate",
     true,
     [](Router &router) { router.commit(); },
     {"fsync candidate.xml.new", "rename candidate.xml.new candidate.xml", "fsync folder",
      "rename candidate.xml running.xml", "fsync folder"}},
    {"commit of the kept candidate",
     true,
     [](Router &router) {
         router.keep_candidate();
         router.commit();
     },
     {"fsync candidate.xml.new", "rename candidate.xml.new candidate.xml", "fsync folder",
      "rename candidate.xml running.xml", "fsync folder"}},
    {"keeping the candidate",
     false,
     [](Router &router) { router.keep_candidate(); },
     {"fsync candidate.xml.new", "rename candidate.xml.new candidate.xml", "fsync folder"}},
    {"discard", true, [](Router &router) { router.discard(); }, {"fsync folder"}},
    {"loading operational data",
     false,
     [](Router &router) { router.load_operational(operational_data, "data"); },
     {"fsync operational.xml.new", "rename operational.xml.new operational.xml", "fsync folder"}},
};

const std::string before = in_global("router-id = 10.0.0.1");
const std::string kept = in_global("router-id = 10.0.0.2");
const std::string after = in_global("router-id = 10.0.0.3");

void prepare(const fs::path &folder, const Writing &writing)
{
    Router::create(folder);
    Router router(folder, 0ms);
    edit(router, before);
    router.commit();
    if (!writing.has_kept_candidate) return;
    edit(router, kept);
    router.keep_candidate();
}

void write(const fs::path &folder, const Writing &writing, Watch &watched)
{
    Router router(folder, 0ms);
    edit(router, after);
    watch = &watched;
    try {
        writing.write(router);
    } catch (...) {
        watch = nullptr;
        throw;
    }
    watch = nullptr;
}

}  // namespace

TEST(Durability, FilesReachTheDiskBeforeTheirNamesDo)
{
    for (const Writing &writing : writings) {
        const Folder folder;
        prepare(folder.path(), writing);
        Watch watched;
        write(folder.path(), writing, watched);
        EXPECT_EQ(watched.calls, writing.calls) << writing.name;
    }
}

TEST(Durability, ARouterIsOneOnlyWhenItsFilesAreOnDisk)
{
    const Folder folder;
    Watch watched;
    watch = &watched;
    Router::create(folder.path());
    watch = nullptr;
    const std::vector<std::string> calls = {
        "fsync running.xml.new",
        "rename running.xml.new running.xml",
        "fsync folder",
        "fsync operational.xml.new",
        "rename operational.xml.new operational.xml",
        "fsync folder",
        "fsync format.new",
        "rename format.new format",
        "fsync folder",
        "fsync folder",
    };
    EXPECT_EQ(watched.calls, calls);
}

TEST(Durability, AnEndBetweenAnyTwoStepsLeavesOneOfTheConfigurationsWhole)
{
    for (const Writing &writing : writings) {
        for (size_t step = 0; step < writing.calls.size(); step++) {
            SCOPED_TRACE(writing.name + (" up to " + writing.calls[step]));
            const Folder folder;
            prepare(folder.path(), writing);
            const pid_t child = fork();
            if (child == 0) {
                Watch watched = {.last = step, .is_killed_by_it = true};
                write(folder.path(), writing, watched);
                _exit(0);
            }
            int status = 0;
            waitpid(child, &status, 0);
            ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
            const Router router(folder.path(), 0ms);
            const std::string found = running_of(router);
            EXPECT_TRUE(found == before || found == after) << found;
            const std::string candidate = candidate_of(router);
            EXPECT_TRUE(candidate == before || candidate == kept || candidate == after) << candidate;
            EXPECT_FALSE(found == after && router.candidate_differs()) << "an old candidate beside what runs";
        }
    }
}

TEST(Durability, WhatCannotBeBroughtToDiskDoesNotTakeItsPlace)
{
    for (const Writing &writing : writings) {
        for (size_t step = 0; step < writing.calls.size(); step++) {
            if (writing.calls[step] == "fsync folder") continue;  // it is in its place by then
            SCOPED_TRACE(writing.name + (" up to " + writing.calls[step]));
            const Folder folder;
            prepare(folder.path(), writing);
            Watch watched = {.last = step};
            const std::string error = error_of<StoreError>([&] { write(folder.path(), writing, watched); });
            EXPECT_NE(error.find(": Input/output error"), std::string::npos) << error;
            EXPECT_EQ(running_of(Router(folder.path(), 0ms)), before);
        }
    }
}
