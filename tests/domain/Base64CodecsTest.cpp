#include "domain/Base64Codecs.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace
{

/// "error" where the encoder fails.
std::string encoded(const std::string& bytes, int room = 1000)
{
    std::vector<char> output(static_cast<std::size_t>(room > 0 ? room : 1), '#');
    int length = room;
    if (Base64Codecs::base64Encode(bytes.data(), static_cast<int>(bytes.size()), output.data(), length) != 0)
    {
        EXPECT_EQ(0, length);
        EXPECT_EQ('#', output[0]);
        return "error";
    }
    EXPECT_EQ('\0', output[static_cast<std::size_t>(length)]);
    return std::string(output.data(), static_cast<std::size_t>(length));
}

/// "error" where the decoder fails.
std::string decoded(const std::string& text, int room = 1000)
{
    std::vector<char> output(static_cast<std::size_t>(room > 0 ? room : 1), '#');
    int length = room;
    if (Base64Codecs::base64Decode(text.data(), static_cast<int>(text.size()), output.data(), length) != 0)
    {
        EXPECT_EQ(0, length);
        EXPECT_EQ('#', output[0]);
        return "error";
    }
    return std::string(output.data(), static_cast<std::size_t>(length));
}

} // namespace

TEST(Base64Codecs, EncodeTheKnownTexts)
{
    EXPECT_EQ("", encoded(""));
    EXPECT_EQ("Zg==", encoded("f"));
    EXPECT_EQ("Zm8=", encoded("fo"));
    EXPECT_EQ("Zm9v", encoded("foo"));
    EXPECT_EQ("Zm9vYg==", encoded("foob"));
    EXPECT_EQ("Zm9vYmE=", encoded("fooba"));
    EXPECT_EQ("Zm9vYmFy", encoded("foobar"));
    EXPECT_EQ("+/8A", encoded(std::string("\xFB\xFF\0", 3)));
}

TEST(Base64Codecs, DecodeTheKnownTexts)
{
    EXPECT_EQ("", decoded(""));
    EXPECT_EQ("f", decoded("Zg=="));
    EXPECT_EQ("fo", decoded("Zm8="));
    EXPECT_EQ("foo", decoded("Zm9v"));
    EXPECT_EQ("foob", decoded("Zm9vYg=="));
    EXPECT_EQ("fooba", decoded("Zm9vYmE="));
    EXPECT_EQ("foobar", decoded("Zm9vYmFy"));
}

TEST(Base64Codecs, RefuseWhatIsNotBase64)
{
    for (const char* text : {"Z", "Zg", "Zg=", "Zm9v=", "Zm9vY", "Z===", "====", "=g==", "Zg==Zg==", "Zm 9", "Zm9\n",
                             "Zm9-", "Zm9_", "Zm\x80v"})
        EXPECT_EQ("error", decoded(text)) << text;
    EXPECT_EQ("error", decoded(std::string("Zm\0v", 4)));
}

TEST(Base64Codecs, KeepWithinTheRoom)
{
    EXPECT_EQ("error", encoded("foo", 4)); // no room for the terminating zero
    EXPECT_EQ("Zm9v", encoded("foo", 5));
    EXPECT_EQ("error", encoded("", 0));
    EXPECT_EQ("error", encoded("foo", -1));
    EXPECT_EQ("error", decoded("Zm9v", 2));
    EXPECT_EQ("foo", decoded("Zm9v", 3));
    EXPECT_EQ("fo", decoded("Zm8=", 2));
    EXPECT_EQ("", decoded("", 0));
}

TEST(Base64Codecs, RefuseBadArguments)
{
    char buffer[100];
    int length = 100;
    EXPECT_NE(0, Base64Codecs::base64Encode(nullptr, 1, buffer, length));
    EXPECT_EQ(0, length);
    length = 100;
    EXPECT_NE(0, Base64Codecs::base64Encode("f", 1, nullptr, length));
    length = 100;
    EXPECT_NE(0, Base64Codecs::base64Encode("f", -1, buffer, length));
    length = 100;
    EXPECT_NE(0, Base64Codecs::base64Decode(nullptr, 4, buffer, length));
    length = 100;
    EXPECT_NE(0, Base64Codecs::base64Decode("Zg==", 4, nullptr, length));
    length = 100;
    EXPECT_NE(0, Base64Codecs::base64Decode("Zg==", -4, buffer, length));
    EXPECT_EQ(0, length);
}

TEST(Base64Codecs, DecodeWhatTheyEncode)
{
    std::mt19937 random(9);
    for (int size = 0; size < 300; ++size)
    {
        std::string bytes;
        for (int left = size; left > 0; --left)
            bytes += static_cast<char>(random());
        ASSERT_EQ(bytes, decoded(encoded(bytes)));
    }
}
