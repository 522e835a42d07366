// Runs every trip of the folder's *.trips files, and the tests beside them.
#include <gtest/gtest.h>

#include "trip_test.h"

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    trips::register_trips();
    return RUN_ALL_TESTS();
}
