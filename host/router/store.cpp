#include "store.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <system_error>
#include <thread>

#include "router.h"

namespace fs = std::filesystem;

namespace router {

// The number of the format that this program writes, and the only one that it reads.
static constexpr std::string_view format_text = "1\n";

static constexpr char unfinished[] = ".new";  // the ending of a file that is being written

[[noreturn]] static void fail(const fs::path &path, const std::string &what, int error)
{
    throw StoreError(path.string() + ": " + what + ": " + std::generic_category().message(error));
}

// ---- Files ----------------------------------------------------------------------------------

File::~File()
{
    if (is_open()) ::close(number_);
}

// The configuration holds passwords: nobody else may read it.
static constexpr mode_t for_the_owner = 0600;

static File open_file(const fs::path &path, int flags)
{
    return File(::open(path.c_str(), flags | O_CLOEXEC, for_the_owner));
}

static void write_all(const File &file, std::string_view text, const fs::path &path)
{
    while (!text.empty()) {
        const ssize_t written = ::write(file.number(), text.data(), text.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) fail(path, "cannot be written", errno);
        text.remove_prefix(static_cast<size_t>(written));
    }
}

static void sync(const File &file, const fs::path &path)
{
    if (::fsync(file.number()) != 0) fail(path, "cannot be kept on disk", errno);
}

// A folder in which something is put, renamed or removed. That is so only when the folder itself is on disk, and so it
// is opened before anything in it changes.
class ChangingFolder {
public:
    explicit ChangingFolder(fs::path path) : path_(std::move(path)), file_(open_file(path_, O_RDONLY | O_DIRECTORY))
    {
        if (!file_.is_open()) fail(path_, "cannot be opened", errno);
    }
    void sync() const { router::sync(file_, path_); }

private:
    fs::path path_;
    File file_;
};

static void rename_file(const fs::path &from, const fs::path &to)
{
    const ChangingFolder folder(to.parent_path());
    if (::rename(from.c_str(), to.c_str()) != 0) fail(to, "cannot be written", errno);
    folder.sync();
}

static void write_file(const fs::path &path, std::string_view text)
{
    const fs::path beside = path.string() + unfinished;
    try {
        const File file = open_file(beside, O_WRONLY | O_CREAT | O_TRUNC);
        if (!file.is_open()) fail(path, "cannot be written", errno);
        write_all(file, text, path);
        sync(file, path);
        rename_file(beside, path);
    } catch (const StoreError &) {
        ::unlink(beside.c_str());
        throw;
    }
}

static std::optional<std::string> read_file(const fs::path &path)
{
    const File file = open_file(path, O_RDONLY);
    if (!file.is_open() && (errno == ENOENT || errno == ENOTDIR)) return std::nullopt;
    struct stat about = {};
    if (!file.is_open() || ::fstat(file.number(), &about) != 0) fail(path, "cannot be read", errno);
    std::string text;
    text.reserve(static_cast<size_t>(about.st_size));
    char block[size_t{64} << 10];
    for (;;) {
        const ssize_t count = ::read(file.number(), block, sizeof block);
        if (count == 0) return text;
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) fail(path, "cannot be read", errno);
        text.append(block, static_cast<size_t>(count));
    }
}

// ---- The lock -------------------------------------------------------------------------------

// For reading: a folder that nobody may write to can be read, and held meanwhile.
static File open_lock(const fs::path &folder) { return open_file(folder / Store::lock, O_RDONLY | O_CREAT); }

// The lock goes with the process, however it ends.
static void hold(const File &lock, const fs::path &folder, std::chrono::milliseconds patience)
{
    constexpr std::chrono::milliseconds between_tries(5);
    const auto begin = std::chrono::steady_clock::now();
    if (!lock.is_open()) fail(folder / Store::lock, "cannot be opened", errno);
    while (::flock(lock.number(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR) fail(folder / Store::lock, "cannot be locked", errno);
        if (std::chrono::steady_clock::now() - begin >= patience)
            throw Locked(folder.string() + ": another process holds the router; waited " +
                         std::to_string(patience.count()) + " ms for it");
        std::this_thread::sleep_for(between_tries);
    }
}

// ---- The folder -----------------------------------------------------------------------------

static bool is_number(std::string_view text)
{
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

static void check_format(const fs::path &folder)
{
    const fs::path path = folder / Store::format;
    const auto text = read_file(path);
    if (!text) throw StoreError("no router in " + folder.string() + "; make one with ocbgp init");
    if (*text == format_text) return;
    const std::string_view number = std::string_view(*text).substr(0, text->find('\n'));
    if (!is_number(number) || format_text.starts_with(number))
        throw StoreError(path.string() + ": damaged: no number of a format");
    throw StoreError(path.string() + ": the router has format " + std::string(number) + "; this program reads format " +
                     std::string(format_text.substr(0, format_text.find('\n'))));
}

// A folder without a format may be what was left of a killed creation, but nothing else that looks like a router.
static void check_unused(const fs::path &folder, const char *file, std::optional<std::string_view> text)
{
    const auto found = read_file(folder / file);
    if (found && found != text) throw StoreError((folder / file).string() + ": stands there without a router");
}

void Store::create(const fs::path &folder, std::string_view running_text, std::string_view operational_text)
{
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) fail(folder, "cannot be made", error.value());
    const File held = open_lock(folder);
    try {
        hold(held, folder, std::chrono::milliseconds(0));
    } catch (const Locked &locked) {
        throw StoreError(locked.what());
    }
    if (read_file(folder / format)) throw StoreError(folder.string() + ": a router is here already");
    check_unused(folder, running, running_text);
    check_unused(folder, candidate, std::nullopt);
    check_unused(folder, operational, operational_text);
    write_file(folder / running, running_text);
    write_file(folder / operational, operational_text);
    write_file(folder / format, format_text);  // the last: now it is a router
    ChangingFolder(folder / "..").sync();
}

static fs::path checked(fs::path folder)
{
    check_format(folder);
    return folder;
}

Store::Store(fs::path folder, std::chrono::milliseconds patience)
    : folder_(checked(std::move(folder))), lock_(open_lock(folder_))
{
    hold(lock_, folder_, patience);
    for (const char *file : {running, candidate, operational}) ::unlink((path_of(file) + unfinished).c_str());
}

std::optional<std::string> Store::read(const char *file) const { return read_file(path_of(file)); }

void Store::write(const char *file, std::string_view text) const { write_file(path_of(file), text); }

void Store::rename(const char *from, const char *to) const { rename_file(path_of(from), path_of(to)); }

void Store::remove(const char *file) const
{
    const ChangingFolder folder(folder_);
    if (::unlink(path_of(file).c_str()) == 0) return folder.sync();
    if (errno != ENOENT) fail(path_of(file), "cannot be removed", errno);
}

}  // namespace router
