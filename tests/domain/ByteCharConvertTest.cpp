#include "domain/ByteCharConvert.h"

#include <gtest/gtest.h>
#include <string>

TEST(ByteCharConvert, WritesFourDigitsAByte)
{
    const unsigned char bytes[] = {0, 7, 255};
    char text[13] = "############";
    int length = 0;
    EXPECT_TRUE(ByteCharConvert::convertByteToChar(text, length, bytes, 3));
    EXPECT_EQ(12, length);
    EXPECT_STREQ("000000070255", text);
}

TEST(ByteCharConvert, WritesNothingForNoBytes)
{
    const unsigned char bytes[] = {1};
    char text[] = "#";
    for (const int count : {0, -1})
    {
        int length = 7;
        EXPECT_TRUE(ByteCharConvert::convertByteToChar(text, length, bytes, count));
        EXPECT_EQ(0, length);
        EXPECT_STREQ("#", text);
    }
}

TEST(ByteCharConvert, ReadsWholeGroups)
{
    unsigned char bytes[] = {9, 9};
    int length = 0;
    EXPECT_TRUE(ByteCharConvert::convertCharToByte(bytes, length, "0012003", 7));
    EXPECT_EQ(1, length);
    EXPECT_EQ(12, bytes[0]);
    EXPECT_EQ(9, bytes[1]);
}

TEST(ByteCharConvert, WrapsAndTakesGarbageForZero)
{
    unsigned char bytes[4] = {9, 9, 9, 9};
    int length = 0;
    EXPECT_TRUE(ByteCharConvert::convertCharToByte(bytes, length, "0300abcd-001 12x", 16));
    EXPECT_EQ(4, length);
    EXPECT_EQ(44, bytes[0]);
    EXPECT_EQ(0, bytes[1]);
    EXPECT_EQ(255, bytes[2]);
    EXPECT_EQ(12, bytes[3]);
}

TEST(ByteCharConvert, ReadsNothingFromLessThanAGroup)
{
    unsigned char bytes[] = {9};
    for (const int count : {3, 0, -4})
    {
        int length = 7;
        EXPECT_TRUE(ByteCharConvert::convertCharToByte(bytes, length, "0001", count));
        EXPECT_EQ(0, length);
        EXPECT_EQ(9, bytes[0]);
    }
}

TEST(ByteCharConvert, RefusesNullAndLeavesTheLength)
{
    unsigned char bytes[] = {1};
    char text[] = "0001";
    int length = 7;
    EXPECT_FALSE(ByteCharConvert::convertByteToChar(nullptr, length, bytes, 1));
    EXPECT_FALSE(ByteCharConvert::convertByteToChar(text, length, nullptr, 1));
    EXPECT_FALSE(ByteCharConvert::convertCharToByte(nullptr, length, text, 4));
    EXPECT_FALSE(ByteCharConvert::convertCharToByte(bytes, length, nullptr, 4));
    EXPECT_EQ(7, length);
}
