#include "line_difference.h"

#include <algorithm>
#include <cstdint>

namespace framework {

namespace {

using Lines = std::vector<std::string>;

// Writes lines in their order, and before a changed one those that it stands below.
class Writer {
public:
    void keep(const std::string &line) { enter(line, false); }

    void change(const char *mark, const std::string &line)
    {
        const size_t depth = indent_of(line);
        while (!above_.empty() && above_.back().depth >= depth) above_.pop_back();
        for (Above &one : above_) {
            if (!one.is_written) out_.push_back("  " + *one.line);
            one.is_written = true;
        }
        out_.push_back(mark + line);
        above_.push_back({&line, depth, true});
    }

    Lines take() { return std::move(out_); }

private:
    struct Above {
        const std::string *line;
        size_t depth;
        bool is_written;
    };

    static size_t indent_of(const std::string &line) { return std::min(line.find_first_not_of(' '), line.size()); }

    void enter(const std::string &line, bool is_written)
    {
        const size_t depth = indent_of(line);
        while (!above_.empty() && above_.back().depth >= depth) above_.pop_back();
        above_.push_back({&line, depth, is_written});
    }

    std::vector<Above> above_;
    Lines out_;
};

// What two texts have in common from each pair of lines on: the lengths of their longest common subsequences.
class Common {
public:
    Common(const Lines &before, const Lines &now, size_t first, size_t before_end, size_t now_end)
        : first_(first), width_(now_end - first + 1)
    {
        constexpr size_t most = size_t{16} << 20;
        const size_t height = before_end - first + 1;
        if (height > most / width_) return;
        lengths_.resize(height * width_);
        for (size_t b = before_end; b-- > first;)
            for (size_t n = now_end; n-- > first;)
                at(b, n) = before[b] == now[n] ? at(b + 1, n + 1) + 1 : std::max(at(b + 1, n), at(b, n + 1));
    }

    // Whether to go on with a line of `before` that is gone, rather than with one of `now` that is new.
    bool is_gone(size_t b, size_t n) { return lengths_.empty() || at(b + 1, n) >= at(b, n + 1); }
    bool pairs(size_t b, size_t n) { return !lengths_.empty() && at(b, n) > std::max(at(b + 1, n), at(b, n + 1)); }

private:
    uint32_t &at(size_t b, size_t n) { return lengths_[(b - first_) * width_ + (n - first_)]; }

    size_t first_;
    size_t width_;
    std::vector<uint32_t> lengths_;  // empty: too many
};

}  // namespace

std::vector<std::string> line_difference(const Lines &before, const Lines &now)
{
    const auto same = std::mismatch(before.begin(), before.end(), now.begin(), now.end());
    if (same.first == before.end() && same.second == now.end()) return {};
    const auto first = static_cast<size_t>(same.first - before.begin());
    size_t before_end = before.size();
    size_t now_end = now.size();
    while (before_end > first && now_end > first && before[before_end - 1] == now[now_end - 1]) before_end--, now_end--;

    Writer writer;
    for (size_t at = 0; at < first; at++) writer.keep(before[at]);
    Common common(before, now, first, before_end, now_end);
    size_t b = first;
    size_t n = first;
    while (b < before_end || n < now_end) {
        if (b < before_end && n < now_end && before[b] == now[n] && common.pairs(b, n)) {
            writer.keep(before[b++]);
            n++;
        } else if (b < before_end && (n == now_end || common.is_gone(b, n))) {
            writer.change("- ", before[b++]);
        } else {
            writer.change("+ ", now[n++]);
        }
    }
    return writer.take();
}

}  // namespace framework
