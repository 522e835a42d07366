#include "pieces.h"

#include <sys/mman.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdlib>
#include <mutex>
#include <utility>

namespace platform {

namespace {

// The address sanitizer shall see every piece.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool has_classes = false;
#elif defined(__has_feature)
constexpr bool has_classes = !__has_feature(address_sanitizer);
#else
constexpr bool has_classes = true;
#endif

constexpr size_t step = 16;
constexpr size_t stepped = 1024;   // up to here a class a step
constexpr size_t largest = 32768;  // up to here four classes a power of two
constexpr unsigned steps = stepped / step;
constexpr unsigned stepped_bits = std::bit_width(stepped);  // of the first size beyond, less one
constexpr unsigned classes = 1 + steps + 4 * (std::bit_width(largest) - stepped_bits);

struct FreePiece {
    FreePiece *next;
};

// What a thread cuts from and has got back.
struct Stock {
    char *next = nullptr;
    char *end = nullptr;
    size_t last_chunk = 0;
    std::array<FreePiece *, classes> free = {};
};

// What threads that have ended left. Never destroyed: trees may be released later than statics are.
struct Left {
    std::mutex mutex;
    Stock stock;
    bool has_stock = false;
};
Left &left()
{
    static Left *const what_is_left = new Left;
    return *what_is_left;
}

thread_local constinit Stock *stock = nullptr;
thread_local constinit bool has_ended = false;

// Appends one list to another.
void join(FreePiece *&list, FreePiece *more)
{
    if (more == nullptr) return;
    FreePiece *last = more;
    while (last->next != nullptr) last = last->next;
    last->next = std::exchange(list, more);
}

// The thread's stock, from its first piece to its end.
class OwnStock {
public:
    OwnStock()
    {
        Left &others = left();
        const std::lock_guard lock(others.mutex);
        if (std::exchange(others.has_stock, false)) own_ = std::exchange(others.stock, Stock());
        stock = &own_;
    }
    ~OwnStock()
    {
        stock = nullptr;
        has_ended = true;
        Left &others = left();
        const std::lock_guard lock(others.mutex);
        // The larger rest of a chunk is kept, the smaller is lost.
        if (own_.end - own_.next < others.stock.end - others.stock.next) {
            std::swap(own_.next, others.stock.next);
            std::swap(own_.end, others.stock.end);
        }
        for (unsigned i = 0; i < classes; i++) join(own_.free[i], others.stock.free[i]);
        others.stock = own_;
        others.has_stock = true;
    }
    OwnStock(const OwnStock &) = delete;
    OwnStock &operator=(const OwnStock &) = delete;

private:
    Stock own_;
};

// A thread that is ending, and has no stock of its own any more, shares what others left.
template<class Use>
auto with_stock(Use use)
{
    if (stock != nullptr) [[likely]]
        return use(*stock);
    if (!has_ended) {
        thread_local OwnStock own;
        return use(*stock);
    }
    Left &others = left();
    const std::lock_guard lock(others.mutex);
    others.has_stock = true;
    return use(others.stock);
}

constexpr size_t large_page = size_t{2} << 20;

// Memory for one large page, where it may lie.
char *map_large_page()
{
    const auto map = [](size_t size) -> char * {
        void *mapped = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        return mapped != MAP_FAILED ? static_cast<char *>(mapped) : nullptr;
    };
    const auto misfit = [](const char *at) { return reinterpret_cast<uintptr_t>(at) % large_page; };
    char *page = map(large_page);  // fits if it comes to lie beside the one before
    if (page != nullptr && misfit(page) != 0) {
        munmap(page, large_page);
        char *both = map(2 * large_page);
        if (both == nullptr) return nullptr;
        const size_t before = (large_page - misfit(both)) % large_page;
        page = both + before;
        if (before != 0) munmap(both, before);
        munmap(page + large_page, large_page - before);
    }
    if (page != nullptr) madvise(page, large_page, MADV_HUGEPAGE);  // a hint
    return page;
}

// A small chunk first, for one small request; then larger ones, up to large pages.
bool take_chunk(Stock &of)
{
    constexpr size_t first = size_t{64} << 10;
    const size_t size = std::clamp(of.last_chunk * 4, first, large_page);
    char *chunk = size < large_page ? static_cast<char *>(std::malloc(size)) : map_large_page();
    if (chunk == nullptr) return false;
    of.next = chunk;
    of.end = chunk + size;
    of.last_chunk = size;
    return true;
}

}  // namespace

PieceClass class_of(size_t size)
{
    if (!has_classes || size > largest) return no_class;
    if (size <= stepped) return static_cast<PieceClass>(size == 0 ? 1 : (size + step - 1) / step);
    const auto bits = static_cast<unsigned>(std::bit_width(size - 1));     // 11 for 1,025 to 2,048
    const auto quarter = static_cast<unsigned>((size - 1) >> (bits - 3));  // 4 to 7
    return static_cast<PieceClass>(steps + 1 + (bits - stepped_bits) * 4 + (quarter - 4));
}

size_t size_of_class(PieceClass piece_class)
{
    if (piece_class <= steps) return piece_class * step;
    const unsigned beyond = piece_class - steps - 1u;
    return (beyond % 4 + size_t{5}) << (beyond / 4 + stepped_bits - 3);
}

void *take_piece(PieceClass piece_class, size_t size)
{
    if (piece_class == no_class) return std::malloc(size);
    return with_stock([piece_class](Stock &from) -> void * {
        if (FreePiece *piece = from.free[piece_class]) {
            from.free[piece_class] = piece->next;
            return piece;
        }
        const size_t needed = size_of_class(piece_class);
        if (static_cast<size_t>(from.end - from.next) < needed && !take_chunk(from)) return nullptr;
        return std::exchange(from.next, from.next + needed);
    });
}

void give_back_piece(void *piece, PieceClass piece_class)
{
    if (piece_class == no_class) {
        std::free(piece);
        return;
    }
    with_stock([=](Stock &to) {
        auto *free_piece = static_cast<FreePiece *>(piece);
        free_piece->next = std::exchange(to.free[piece_class], free_piece);
    });
}

}  // namespace platform
