// Runs every case of the folder's *.cases files, and the tests beside them.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "cases.h"

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    std::vector<std::string> files;
    for (const auto &entry : std::filesystem::directory_iterator(SOURCE_DIR "/tests/request"))
        if (entry.path().extension() == ".cases") files.push_back(entry.path().string());
    std::sort(files.begin(), files.end());
    support::register_cases(files);
    return RUN_ALL_TESTS();
}
