#include "progress.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "tree.h"

namespace cli {

namespace {

constexpr std::array<std::string_view, 2> counted_lists = {"/bgp/neighbors/neighbor", "/bgp/peer-groups/peer-group"};
constexpr std::chrono::milliseconds least_pause(100);

bool can_show()
{
    const char *terminal = std::getenv("TERM");
    return isatty(STDERR_FILENO) == 1 && terminal != nullptr && std::string_view(terminal) != "dumb";
}

bool is_tagged(const Datatree &node, std::string_view tag)
{
    const char *own = platform::tag_of(node);
    return own != nullptr && tag == own;
}

// The entries at a path of three tags.
size_t count_at(const Datatree &bgp, std::string_view path)
{
    const size_t list = path.rfind('/');
    const size_t holder = path.rfind('/', list - 1);
    size_t count = 0;
    for (const Datatree &child : platform::children_of(bgp)) {
        if (!is_tagged(child, path.substr(holder + 1, list - holder - 1))) continue;
        for (const Datatree &entry : platform::children_of(child)) count += is_tagged(entry, path.substr(list + 1));
    }
    return count;
}

// "12,345"
std::string with_commas(size_t number)
{
    std::string text = std::to_string(number);
    for (size_t at = text.size(); at > 3;) text.insert(at -= 3, ",");
    return text;
}

}  // namespace

Progress::Progress(bool is_quiet) : is_shown_(!is_quiet && can_show())
{
    if (is_shown_) writer_ = std::thread([this] { write_lines(); });
}

Progress::~Progress() { finish(); }

void Progress::step(std::string_view what)
{
    if (!is_shown_) return;
    stop_counting();
    const std::lock_guard lock(mutex_);
    step_ = what;
    entries_ = 0;
}

void Progress::count_entries(const Datatree &bgp)
{
    if (!is_shown_) return;
    step("mapping");
    entered_ = 0;
    size_t entries = 0;
    for (const std::string_view list : counted_lists) entries += count_at(bgp, list);
    const auto after = [](void *self, const platform::Operation &operation, const Datatree &result) {
        const platform::Observer *outer = static_cast<Progress *>(self)->outer_;
        if (outer != nullptr && outer->after != nullptr) outer->after(outer->self, operation, result);
    };
    observer_ = {before, this, after};
    outer_ = platform::observe(&observer_);
    is_counting_ = true;
    const std::lock_guard lock(mutex_);
    entries_ = entries;
}

void Progress::stop_counting()
{
    if (is_counting_) platform::observe(outer_);
    is_counting_ = false;
}

uint32_t Progress::before(void *self, const platform::Operation &operation)
{
    auto &progress = *static_cast<Progress *>(self);
    if (std::string_view(operation.name) == "vmf_map_update_current_list_node" && operation.path != nullptr &&
        std::find(counted_lists.begin(), counted_lists.end(), operation.path) != counted_lists.end())
        progress.entered_.fetch_add(1, std::memory_order_relaxed);
    return progress.outer_ != nullptr ? progress.outer_->before(progress.outer_->self, operation) : 0;
}

std::string Progress::line() const
{
    if (entries_ == 0) return step_;
    const size_t entered = std::min(entered_.load(std::memory_order_relaxed), entries_);
    return step_ + " " + with_commas(entered) + " of " + with_commas(entries_) + " entries";
}

void Progress::write_lines()
{
    std::unique_lock lock(mutex_);
    while (!end_.wait_for(lock, least_pause, [this] { return is_finished_; })) {
        const std::string now = line();
        if (now == shown_) continue;
        std::fprintf(stderr, "\r\033[K%s", now.c_str());
        std::fflush(stderr);
        shown_ = now;
    }
    erase();
}

void Progress::erase()
{
    if (shown_.empty()) return;
    std::fputs("\r\033[K", stderr);
    std::fflush(stderr);
    shown_.clear();
}

void Progress::interrupt(const std::function<void()> &writes)
{
    const std::lock_guard lock(mutex_);
    erase();
    writes();
}

void Progress::finish()
{
    if (!is_shown_) return;
    stop_counting();
    {
        const std::lock_guard lock(mutex_);
        is_finished_ = true;
    }
    end_.notify_one();
    writer_.join();
    is_shown_ = false;
}

}  // namespace cli
