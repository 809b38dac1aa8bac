#include "core/Conversions.h"

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

TEST(Conversions, RunInTheLocaleThatTheEnvironmentPromises)
{
    if (std::getenv("PARAMXML_DECIMAL_COMMA") == nullptr) GTEST_SKIP() << "no decimal comma promised";
    EXPECT_STREQ(",", std::localeconv()->decimal_point);
}

TEST(Conversions, WriteIntegers)
{
    EXPECT_STREQ("0", frame::integerText(0).characters);
    EXPECT_STREQ("-1", frame::integerText(-1).characters);
    EXPECT_STREQ("-9223372036854775808", frame::integerText(std::numeric_limits<long long>::min()).characters);
    EXPECT_STREQ("18446744073709551615",
                 frame::unsignedText(std::numeric_limits<unsigned long long>::max()).characters);
}

TEST(Conversions, ReadLeadingDigits)
{
    EXPECT_EQ(12, frame::integerIn("12"));
    EXPECT_EQ(12, frame::integerIn(" +12abc"));
    EXPECT_EQ(-12, frame::integerIn("-12.9"));
    EXPECT_EQ(0, frame::integerIn(""));
    EXPECT_EQ(0, frame::integerIn("abc"));
    EXPECT_EQ(0, frame::integerIn("0x10"));
    EXPECT_EQ(std::numeric_limits<long long>::max(), frame::integerIn("99999999999999999999"));
    EXPECT_EQ(18446744073709551615U, frame::unsignedIn("18446744073709551615"));
    EXPECT_EQ(18446744073709551615U, frame::unsignedIn("-1"));
}

TEST(Conversions, TellNumbersFromOtherText)
{
    long long integer = 7;
    EXPECT_FALSE(frame::readInteger("x1", integer));
    EXPECT_EQ(7, integer);
    EXPECT_TRUE(frame::readInteger("1x", integer));
    EXPECT_EQ(1, integer);

    unsigned long long natural = 7;
    EXPECT_FALSE(frame::readUnsigned("", natural));
    EXPECT_EQ(7U, natural);

    double number = 7;
    EXPECT_FALSE(frame::readDouble(".", number));
    EXPECT_EQ(7, number);
}

TEST(Conversions, ReadFlags)
{
    bool value = false;
    EXPECT_TRUE(frame::readFlag("true", value));
    EXPECT_TRUE(value);
    EXPECT_TRUE(frame::readFlag("0", value));
    EXPECT_FALSE(value);
    EXPECT_TRUE(frame::readFlag("1", value));
    EXPECT_TRUE(value);
    EXPECT_TRUE(frame::readFlag("false", value));
    EXPECT_FALSE(value);
    for (const char* text : {"", "True", "yes", "2", "true "})
    {
        value = true;
        EXPECT_FALSE(frame::readFlag(text, value)) << text;
        EXPECT_FALSE(value) << text;
    }
}

TEST(Conversions, WriteTheShortestFraction)
{
    EXPECT_STREQ("0.1", frame::floatText(0.1F).characters);
    EXPECT_STREQ("0.1", frame::doubleText(0.1).characters);
    EXPECT_STREQ("25.5", frame::doubleText(25.5).characters);
    EXPECT_STREQ("30", frame::doubleText(30).characters);
    EXPECT_STREQ("0.30000000000000004", frame::doubleText(0.1 + 0.2).characters);
    EXPECT_STREQ("-0", frame::doubleText(-0.0).characters);
    EXPECT_STREQ("1e-45", frame::floatText(std::numeric_limits<float>::denorm_min()).characters);
}

TEST(Conversions, ReadAllThatStrtodTakes)
{
    EXPECT_EQ(0.5, frame::doubleIn("0.5"));
    EXPECT_EQ(0, frame::doubleIn(",5"));
    EXPECT_EQ(1, frame::doubleIn("1,5"));
    EXPECT_EQ(-1500, frame::doubleIn("  -1.5e3xyz"));
    EXPECT_EQ(16, frame::doubleIn("0x10"));
    EXPECT_TRUE(std::isinf(frame::doubleIn("inf")));
    EXPECT_TRUE(std::isnan(frame::doubleIn("nan")));
    EXPECT_TRUE(std::isinf(frame::floatIn("1e300")));
    EXPECT_EQ(0, frame::floatIn("none"));
}

TEST(Conversions, ReadBackEveryFraction)
{
    std::mt19937_64 random(11);
    for (int round = 0; round < 100000; ++round)
    {
        const std::uint64_t bits = random();
        double number = 0;
        std::memcpy(&number, &bits, sizeof(number));
        float single = 0;
        std::memcpy(&single, &bits, sizeof(single));
        if (std::isfinite(number))
        {
            ASSERT_EQ(number, frame::doubleIn(frame::doubleText(number).characters));
        }
        if (std::isfinite(single))
        {
            ASSERT_EQ(single, frame::floatIn(frame::floatText(single).characters));
        }
    }
}

TEST(Conversions, ReadWholeNumbersByWayOfADouble)
{
    EXPECT_EQ(9007199254740992, frame::wholeNumberIn("9007199254740993"));
    EXPECT_EQ(12, frame::wholeNumberIn("12.9"));
    EXPECT_EQ(-12, frame::wholeNumberIn("-12.9"));
    EXPECT_EQ(1500, frame::wholeNumberIn("1.5e3"));
    EXPECT_EQ(0, frame::wholeNumberIn("abc"));
    EXPECT_EQ(0, frame::wholeNumberIn("nan"));
    EXPECT_EQ(std::numeric_limits<long long>::max(), frame::wholeNumberIn("1e300"));
    EXPECT_EQ(std::numeric_limits<long long>::max(), frame::wholeNumberIn("9223372036854775807"));
    EXPECT_EQ(std::numeric_limits<long long>::min(), frame::wholeNumberIn("-inf"));
    EXPECT_EQ(std::numeric_limits<long long>::min(), frame::wholeNumberIn("-9223372036854775808"));
}

TEST(Conversions, TakesWhatAnIntegerHoldsOfAFloat)
{
    using Limits = std::numeric_limits<float>;
    EXPECT_EQ(45, frame::intFrom(45.9F));
    EXPECT_EQ(-45, frame::intFrom(-45.9F));
    EXPECT_EQ(std::numeric_limits<int>::max(), frame::intFrom(2147483648.0F));
    EXPECT_EQ(2147483520, frame::intFrom(2147483520.0F));
    EXPECT_EQ(std::numeric_limits<int>::min(), frame::intFrom(-Limits::infinity()));
    EXPECT_EQ(0, frame::intFrom(Limits::quiet_NaN()));
    EXPECT_EQ(12U, frame::unsignedFrom(12.9F));
    EXPECT_EQ(0U, frame::unsignedFrom(-3.0F));
    EXPECT_EQ(4294967040U, frame::unsignedFrom(4294967040.0F));
    EXPECT_EQ(std::numeric_limits<unsigned>::max(), frame::unsignedFrom(Limits::infinity()));
    EXPECT_EQ(0U, frame::unsignedFrom(Limits::quiet_NaN()));
}
