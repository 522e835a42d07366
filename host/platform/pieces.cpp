#include "pieces.h"

#include <sys/mman.h>

#include <algorithm>
#include <cstdlib>
#include <mutex>

namespace platform {

thread_local constinit PieceStock *own_pieces = nullptr;

namespace {

// What threads that have ended left. Never destroyed: trees may be released later than statics are.
struct Left {
    std::mutex mutex;
    PieceStock stock;
    bool has_stock = false;
};
Left &left()
{
    static Left *const what_is_left = new Left;
    return *what_is_left;
}

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
        if (std::exchange(others.has_stock, false)) own_ = std::exchange(others.stock, PieceStock());
        own_pieces = &own_;
    }
    ~OwnStock()
    {
        own_pieces = nullptr;
        has_ended = true;
        Left &others = left();
        const std::lock_guard lock(others.mutex);
        // The larger rest of a chunk is kept, the smaller is lost.
        if (own_.end - own_.next < others.stock.end - others.stock.next) {
            std::swap(own_.next, others.stock.next);
            std::swap(own_.end, others.stock.end);
        }
        for (unsigned i = 0; i < piece_classes; i++) join(own_.free[i], others.stock.free[i]);
        others.stock = own_;
        others.has_stock = true;
    }
    OwnStock(const OwnStock &) = delete;
    OwnStock &operator=(const OwnStock &) = delete;

private:
    PieceStock own_;
};

// A thread that is ending, and has no stock of its own any more, shares what others left.
template<class Use>
auto with_stock(Use use)
{
    if (own_pieces != nullptr) return use(*own_pieces);
    if (!has_ended) {
        thread_local OwnStock own;
        return use(*own_pieces);
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
bool take_chunk(PieceStock &of)
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

PieceClass class_of_large(size_t size)
{
    if (!has_piece_classes || size > largest_piece) return no_class;
    const auto bits = static_cast<unsigned>(std::bit_width(size - 1));     // 11 for 1,025 to 2,048
    const auto quarter = static_cast<unsigned>((size - 1) >> (bits - 3));  // 4 to 7
    return static_cast<PieceClass>(piece_steps + 1 + (bits - stepped_bits) * 4 + (quarter - 4));
}

size_t size_of_large_class(PieceClass piece_class)
{
    const unsigned beyond = piece_class - piece_steps - 1u;
    return (beyond % 4 + size_t{5}) << (beyond / 4 + stepped_bits - 3);
}

void *take_other_piece(PieceClass piece_class, size_t size)
{
    if (piece_class == no_class) return std::malloc(size);
    return with_stock([piece_class](PieceStock &from) -> void * {
        if (void *piece = cut_piece(from, piece_class)) return piece;
        return take_chunk(from) ? cut_piece(from, piece_class) : nullptr;
    });
}

void give_back_other_piece(void *piece, PieceClass piece_class)
{
    if (piece_class == no_class)
        std::free(piece);
    else
        with_stock([=](PieceStock &to) { keep_piece(to, piece, piece_class); });
}

}  // namespace platform
