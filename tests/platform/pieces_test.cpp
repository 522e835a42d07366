// Pieces of memory by classes of size: no piece is smaller than was asked for, none is used twice, and threads take
// over what others left.
#include "pieces.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "pool.h"
#include "sanitizers.h"
#include "tree.h"

using platform::class_of;
using platform::no_class;
using platform::PieceClass;
using platform::size_of_class;

#if IS_ADDRESS_SANITIZED

// Every piece is one of malloc's then, so that what is used after its release is noticed.
TEST(PieceClasses, AreNoneForTheAddressSanitizer)
{
    for (size_t size = 1; size <= 32769; size++) ASSERT_EQ(class_of(size), no_class) << size;
}

#else

TEST(PieceClasses, HoldWhatWasAskedForAndHardlyMore)
{
    for (size_t size = 1; size <= 32768; size++) {
        const size_t held = size_of_class(class_of(size));
        ASSERT_GE(held, size);
        ASSERT_LE(held, size <= 1024 ? size + 15 : size + size / 4);
        ASSERT_EQ(held % 16, 0u) << size;
        ASSERT_EQ(class_of(held), class_of(size)) << size;
    }
}

TEST(PieceClasses, AreNotForLargePieces) { EXPECT_EQ(class_of(32769), no_class); }

TEST(Pieces, ThatAThreadLeavesAreTakenOverByTheNext)
{
    const PieceClass piece_class = class_of(20000);
    void *left = nullptr;
    std::thread([&] {
        left = platform::take_piece(piece_class, 20000);
        platform::give_back_piece(left, piece_class);
    }).join();
    std::thread([&] {
        void *taken = platform::take_piece(piece_class, 20000);
        EXPECT_EQ(taken, left);
        platform::give_back_piece(taken, piece_class);
    }).join();
}

#endif

TEST(Pieces, DoNotOverlapAndAreUsedAgain)
{
    std::vector<std::pair<char *, size_t>> pieces;
    const auto take_all = [&] {
        for (size_t size : {1, 16, 17, 100, 1024, 1025, 1376, 4000, 32768, 40000})
            for (int i = 0; i < 50; i++) {
                auto *piece = static_cast<char *>(platform::take_piece(class_of(size), size));
                ASSERT_NE(piece, nullptr);
                ASSERT_EQ(reinterpret_cast<uintptr_t>(piece) % 16, 0u);
                std::memset(piece, static_cast<int>(pieces.size() % 251), size);
                pieces.emplace_back(piece, size);
            }
    };
    for (int round = 0; round < 3; round++) {
        take_all();
        for (size_t i = 0; i < pieces.size(); i++) {
            const auto [piece, size] = pieces[i];
            ASSERT_EQ(std::string(piece, size), std::string(size, static_cast<char>(i % 251)));
        }
        for (const auto &[piece, size] : pieces) platform::give_back_piece(piece, class_of(size));
        pieces.clear();
    }
}

TEST(Pieces, OfOneThreadAreReleasedByAnother)
{
    platform::Tree tree;
    std::thread([&] {
        for (int i = 0; i < 1000; i++) {
            Datatree *child = platform::append_child(tree.root(), "child", nullptr);
            platform::set_value(*child, std::to_string(i));
        }
    }).join();
    EXPECT_STREQ(platform::value_of(platform::children_of(tree.root())[999]), "999");
    std::thread([&] { tree = platform::Tree(); }).join();
    EXPECT_TRUE(platform::children_of(tree.root()).empty());
}

TEST(Texts, OfAnyLengthAreCopied)
{
    for (size_t size : {0, 1, 13, 14, 15, 1022, 1023, 70000}) {
        const std::string text(size, 'x');
        char *copy = platform::copy_text(text);
        ASSERT_NE(copy, nullptr);
        EXPECT_EQ(copy, text);
        platform::release_text(copy);
    }
    platform::release_text(nullptr);
}
