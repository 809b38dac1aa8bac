#include <clocale>
#include <gtest/gtest.h>

// The suite runs in the locale of its environment, which may have a decimal comma.
int main(int argc, char** argv)
{
    std::setlocale(LC_ALL, "");
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
