#include "ptz/ComDataXml.h"

#include "tests/support/Documents.h"

namespace
{

ComData sample()
{
    ComData data;
    data.setData("hello", 5);
    return data;
}

void expectData(const ComData& expected, const ComData& data)
{
    EXPECT_EQ(expected.getDataLength(), data.getDataLength());
    EXPECT_STREQ(expected.getData(), data.getData());
}

} // namespace

TEST(ComDataXml, Writes)
{
    ComDataXml codec;
    codec.setComData(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "ptz/ComDataXml.document.xml"));
}

TEST(ComDataXml, Reads)
{
    ComDataXml codec;
    ASSERT_TRUE(reads(codec, golden("ptz/ComDataXml.document.xml")));
    expectData(sample(), codec.getComData());
}

TEST(ComDataXml, ResetsWhatIsMissing)
{
    ComDataXml codec;
    codec.setComData(sample());
    ASSERT_TRUE(reads(codec, "<ComData />"));
    expectData(ComData(), codec.getComData());
}

TEST(ComDataXml, TakesNoMoreThanTheTextHas)
{
    const std::pair<const char*, const char*> cases[] = {{"3", "hel"}, {"5", "hello"},          {"6", "hello"},
                                                         {"0", ""},    {"2147483647", "hello"}, {"-1", ""},
                                                         {"x", ""},    {"4x", "hell"}};
    for (const auto& length : cases)
    {
        ComDataXml codec;
        codec.setComData(sample());
        ASSERT_TRUE(reads(codec, std::string("<ComData Data='hello' ComDataLength='") + length.first + "' />"));
        EXPECT_STREQ(length.second, codec.getComData().getData()) << length.first;
        EXPECT_EQ(std::string(length.second).size(), static_cast<std::size_t>(codec.getComData().getDataLength()))
            << length.first;
    }
}

TEST(ComDataXml, ReadsNothingWithoutBothAttributes)
{
    for (const char* text : {"<ComData ComDataLength='5' />", "<ComData Data='hello' />"})
    {
        ComDataXml codec;
        codec.setComData(sample());
        ASSERT_TRUE(reads(codec, text));
        expectData(ComData(), codec.getComData());
    }
}

TEST(ComDataXml, WritesUpToAZeroByte)
{
    ComDataXml codec;
    codec.getComData().setData("ab\0cd", 5);
    EXPECT_EQ("<ComData ComDataLength=\"5\" Data=\"ab\" />\n", written(codec));
}

TEST(ComDataXml, KeepsATerminatorBehindItsBytes)
{
    const char bytes[] = {'a', 'b', 'c'};
    ComData data;
    data.setData(bytes, 2);
    EXPECT_STREQ("ab", data.getData());
    data.setData(data.getData() + 1, 1);
    EXPECT_STREQ("b", data.getData());
    data.setData(bytes, -1);
    expectData(ComData(), data);
    data.setData(bytes, 3);
    data.setData(nullptr, 3);
    expectData(ComData(), data);
}
