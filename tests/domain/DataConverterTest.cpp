#include "domain/DataConverter.h"

#include <gtest/gtest.h>
#include <limits>

namespace
{

template <class Value>
std::string textOf(const Value& value)
{
    std::string text = "old";
    EXPECT_TRUE(DataConverter::convert(value, text));
    return text;
}

} // namespace

TEST(DataConverter, WritesText)
{
    EXPECT_EQ("true", textOf(true));
    EXPECT_EQ("false", textOf(false));
    EXPECT_EQ("-2147483648", textOf(std::numeric_limits<int>::min()));
    EXPECT_EQ("-5", textOf(-5L));
    EXPECT_EQ("4294967295", textOf(4294967295UL));
    EXPECT_EQ("25.5", textOf(25.5));
    EXPECT_EQ("0.1", textOf(0.1));
}

TEST(DataConverter, ReadsFlags)
{
    bool value = false;
    EXPECT_TRUE(DataConverter::convert(std::string("true"), value));
    EXPECT_TRUE(value);
    EXPECT_TRUE(DataConverter::convert(std::string("false"), value));
    EXPECT_FALSE(value);
    EXPECT_TRUE(DataConverter::convert(std::string("1"), value));
    EXPECT_TRUE(value);
    EXPECT_FALSE(DataConverter::convert(std::string("TRUE"), value));
    EXPECT_FALSE(value);
    EXPECT_TRUE(DataConverter::convert(std::string("0"), value));
    EXPECT_FALSE(value);
}

TEST(DataConverter, ReadsNumbers)
{
    int integer = 0;
    EXPECT_TRUE(DataConverter::convert(std::string("-12 m"), integer));
    EXPECT_EQ(-12, integer);
    EXPECT_TRUE(DataConverter::convert(std::string("4294967297"), integer));
    EXPECT_EQ(1, integer);
    unsigned int natural = 0;
    EXPECT_TRUE(DataConverter::convert(std::string("4294967295"), natural));
    EXPECT_EQ(4294967295U, natural);
    unsigned long large = 0;
    EXPECT_TRUE(DataConverter::convert(textOf(std::numeric_limits<unsigned long>::max()), large));
    EXPECT_EQ(std::numeric_limits<unsigned long>::max(), large);
    double number = 0;
    EXPECT_TRUE(DataConverter::convert(std::string("1.5e3x"), number));
    EXPECT_EQ(1500, number);
}

TEST(DataConverter, RefusesWhatIsNoNumberAndLeavesTheValue)
{
    int integer = 7;
    unsigned int natural = 7;
    unsigned long large = 7;
    double number = 7;
    for (const char* text : {"", "x1", "-", " "})
    {
        EXPECT_FALSE(DataConverter::convert(std::string(text), integer)) << text;
        EXPECT_FALSE(DataConverter::convert(std::string(text), natural)) << text;
        EXPECT_FALSE(DataConverter::convert(std::string(text), large)) << text;
        EXPECT_FALSE(DataConverter::convert(std::string(text), number)) << text;
    }
    EXPECT_EQ(7, integer);
    EXPECT_EQ(7U, natural);
    EXPECT_EQ(7U, large);
    EXPECT_EQ(7, number);
}
