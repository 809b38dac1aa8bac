#include "domain/TimeConverter.h"

#include <ctime>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace
{

std::string textOf(unsigned long seconds)
{
    std::string text;
    EXPECT_TRUE(TimeConverter().longToStr(seconds, text));
    return text;
}

/// 0 where the converter refuses the text.
unsigned long secondsOf(const std::string& text)
{
    unsigned long seconds = 7;
    const bool read = TimeConverter().strToLong(text.c_str(), seconds);
    EXPECT_EQ(read, seconds != 0 || text == "1970-01-01 00:00:00") << text;
    return seconds;
}

} // namespace

TEST(TimeConverter, WritesUtc)
{
    EXPECT_EQ("1970-01-01 00:00:00", textOf(0));
    EXPECT_EQ("2015-03-02 08:09:07", textOf(1425283747));
    EXPECT_EQ("2000-02-29 23:59:59", textOf(951868799));
    EXPECT_EQ("2106-02-07 06:28:15", textOf(4294967295UL));
}

TEST(TimeConverter, ReadsUtc)
{
    EXPECT_EQ(0U, secondsOf("1970-01-01 00:00:00"));
    EXPECT_EQ(1U, secondsOf("1970-01-01 00:00:01"));
    EXPECT_EQ(1425283747U, secondsOf("2015-03-02 08:09:07"));
    EXPECT_EQ(4294967295U, secondsOf("2106-02-07 06:28:15"));
}

TEST(TimeConverter, GivesZeroForAnythingElse)
{
    for (const char* text : {"",
                             "now",
                             "2015-03-02",
                             "2015-03-02 08:09",
                             "2015-03-02 08:09:07 ",
                             "2015-03-02 08:09:07Z",
                             "2015-03-02T08:09:07",
                             " 2015-03-02 08:09:07",
                             "2015-3-2 8:9:7",
                             "2015-13-02 08:09:07",
                             "2015-00-02 08:09:07",
                             "2015-03-00 08:09:07",
                             "2015-03-32 08:09:07",
                             "2015-02-29 08:09:07",
                             "2100-02-29 08:09:07",
                             "2015-04-31 08:09:07",
                             "2015-03-02 24:00:00",
                             "2015-03-02 08:60:07",
                             "2015-03-02 08:09:60",
                             "1969-12-31 23:59:59",
                             "0000-01-01 00:00:00",
                             "02015-03-02 08:09:07",
                             "+015-03-02 08:09:07",
                             "-2015-03-02 08:09:07",
                             "999999999999-03-02 08:09:07",
                             "9999999999999-03-02 08:09:07"})
        EXPECT_EQ(0U, secondsOf(text));

    unsigned long seconds = 7;
    EXPECT_FALSE(TimeConverter().strToLong(nullptr, seconds));
    EXPECT_EQ(0U, seconds);
}

TEST(TimeConverter, ReadsBackWhatItWrites)
{
    std::mt19937_64 random(3);
    for (int round = 0; round < 100000; ++round)
    {
        const unsigned long seconds = static_cast<unsigned long>(random() >> (round % 64));
        ASSERT_EQ(seconds, secondsOf(textOf(seconds)));
    }
    const unsigned long latest = std::numeric_limits<unsigned long>::max();
    EXPECT_EQ(latest, secondsOf(textOf(latest)));
}

TEST(TimeConverter, BreaksTimesDownAsTheCLibraryDoes)
{
    std::mt19937 random(5);
    for (int round = 0; round < 20000; ++round)
    {
        const unsigned long seconds = random() >> 1; // as far as a time_t of 32 bits goes
        const std::time_t time = static_cast<std::time_t>(seconds);
        std::tm expected = {};
        ASSERT_NE(nullptr, gmtime_r(&time, &expected));

        ZTDateTime fields;
        ASSERT_TRUE(TimeConverter().longToStruct(seconds, fields));
        ASSERT_EQ(expected.tm_year + 1900, fields.year);
        ASSERT_EQ(expected.tm_mon + 1, fields.month);
        ASSERT_EQ(expected.tm_wday, fields.dayOfWeek);
        ASSERT_EQ(expected.tm_mday, fields.day);
        ASSERT_EQ(expected.tm_hour, fields.hour);
        ASSERT_EQ(expected.tm_min, fields.minute);
        ASSERT_EQ(expected.tm_sec, fields.second);

        char text[32];
        std::strftime(text, sizeof(text), "%Y-%m-%d %H:%M:%S", &expected);
        ASSERT_EQ(text, textOf(seconds));
    }
}
