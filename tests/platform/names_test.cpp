#include "names.h"

#include <gtest/gtest.h>

#include <array>
#include <thread>
#include <type_traits>
#include <vector>

using platform::find_interned;
using platform::intern;
using platform::NameTable;

TEST(Intern, GivesOnePointerForOneText)
{
    const std::string text = "neighbor-address";
    const char *name = intern(text.c_str());
    EXPECT_STREQ(name, text.c_str());
    EXPECT_NE(name, text.c_str());
    EXPECT_EQ(intern(std::string(text)), name);
    EXPECT_EQ(intern(std::string_view("neighbor-address-family").substr(0, text.size())), name);
    EXPECT_NE(intern("neighbor"), name);
}

TEST(Intern, GivesNullForNullAndATextForAnEmptyOne)
{
    EXPECT_EQ(intern(static_cast<const char *>(nullptr)), nullptr);
    EXPECT_STREQ(intern(""), "");
    EXPECT_EQ(intern(""), intern(std::string_view()));
}

TEST(FindInterned, KnowsWhatWasInterned)
{
    const char *name = intern("a name that is known");
    EXPECT_EQ(find_interned("a name that is known"), name);
}

TEST(FindInterned, AddsNothing)
{
    EXPECT_EQ(find_interned("a name that nobody gave"), nullptr);
    EXPECT_EQ(find_interned("a name that nobody gave"), nullptr);
}

TEST(Intern, GivesAllThreadsTheSamePointers)
{
    constexpr size_t names = 2000;
    std::array<std::vector<const char *>, 4> given;
    std::vector<std::thread> threads;
    for (size_t i = 0; i < given.size(); i++) {
        threads.emplace_back([&mine = given[i], i] {
            for (size_t n = 0; n < names; n++) mine.push_back(intern("shared-" + std::to_string(n)));
            for (size_t n = 0; n < names; n++) {
                const std::string own = "of-" + std::to_string(i) + "-" + std::to_string(n);
                const char *name = intern(own);
                ASSERT_EQ(find_interned(own), name);
                ASSERT_EQ(find_interned("shared-" + std::to_string(n)), mine[n]);
            }
        });
    }
    for (std::thread &thread : threads) thread.join();
    for (const auto &others : given) EXPECT_EQ(others, given[0]);
    for (size_t n = 0; n < names; n++) ASSERT_EQ(given[0][n], "shared-" + std::to_string(n));
}

// ---- NameTable ------------------------------------------------------------------------------

TEST(NameTable, GivesTheProcessesCopyOfANameThatItKnows)
{
    const char *known = intern("remote-as");
    NameTable names;
    EXPECT_EQ(names.hold("remote-as"), known);
}

TEST(NameTable, HoldsForeignNamesItself)
{
    NameTable names;
    const char *foreign = names.hold("a foreign name");
    EXPECT_STREQ(foreign, "a foreign name");
    EXPECT_EQ(names.hold("a foreign name"), foreign);
    EXPECT_EQ(find_interned("a foreign name"), nullptr) << "the process does not keep what one document says";
    NameTable others;
    EXPECT_NE(others.hold("a foreign name"), foreign);
}

TEST(NameTable, KeepsItsNamesWhereTheyAre)
{
    NameTable names;
    const char *first = names.hold("foreign");
    for (int i = 0; i < 10'000; i++) names.hold("foreign-" + std::to_string(i));
    EXPECT_EQ(names.hold("foreign"), first);
    NameTable moved(std::move(names));
    EXPECT_EQ(moved.hold("foreign"), first);
    EXPECT_STREQ(first, "foreign");
}

// A copy would know the names of the original by texts that go with the original.
static_assert(!std::is_copy_constructible_v<NameTable> && std::is_move_assignable_v<NameTable>);
