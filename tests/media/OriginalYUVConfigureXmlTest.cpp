#include "media/OriginalYUVConfigureXml.h"

#include "tests/support/Documents.h"

namespace
{

OriginalYUVConfigure sample(int first)
{
    OriginalYUVConfigure output;
    output.setSupportFlag(true);
    output.setYUVResolutionId(first + 1);
    output.setVideoWidth(first + 2);
    output.setVideoHeight(first + 3);
    output.setYUVFrameRate(first + 4);
    output.setYUVVideoType(first + 5);
    return output;
}

void expectOutput(const OriginalYUVConfigure& expected, const OriginalYUVConfigure& output)
{
    EXPECT_EQ(expected.getSupportFlag(), output.getSupportFlag());
    EXPECT_EQ(expected.getYUVResolutionId(), output.getYUVResolutionId());
    EXPECT_EQ(expected.getVideoWidth(), output.getVideoWidth());
    EXPECT_EQ(expected.getVideoHeight(), output.getVideoHeight());
    EXPECT_EQ(expected.getYUVFrameRate(), output.getYUVFrameRate());
    EXPECT_EQ(expected.getYUVVideoType(), output.getYUVVideoType());
}

} // namespace

TEST(OriginalYUVConfigureXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(OriginalYUVConfigureXml().createXmlString(sample(11), text));
    EXPECT_TRUE(matchesGolden(text, "media/OriginalYUVConfigureXml.node.xml"));
}

TEST(OriginalYUVConfigureXml, ReadsNodes)
{
    CapturedOutput output;
    OriginalYUVConfigure read;
    ASSERT_TRUE(OriginalYUVConfigureXml().parseXmlString(golden("media/OriginalYUVConfigureXml.node.xml"), read));
    expectOutput(sample(11), read);
    EXPECT_EQ("", output.text());
}

TEST(OriginalYUVConfigureXml, LeavesWhatANodeLacks)
{
    CapturedOutput output;
    OriginalYUVConfigure read = sample(11);
    ASSERT_TRUE(OriginalYUVConfigureXml().parseXmlString("<OriginalYUV />", read));
    expectOutput(sample(11), read);
    EXPECT_EQ("", output.text());
}

TEST(OriginalYUVConfigureXml, WritesTheSizeOnce)
{
    std::string text;
    ASSERT_TRUE(OriginalYUVConfigureXml().createXmlString(sample(11), text));
    const std::size_t place = text.find("resolutionId");
    ASSERT_NE(std::string::npos, place);
    EXPECT_LT(place, text.find("Width"));
    EXPECT_EQ(std::string::npos, text.find("resolutionId", place + 1));
}

TEST(OriginalYUVConfigureXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    OriginalYUVConfigure read = sample(11);
    EXPECT_FALSE(OriginalYUVConfigureXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(OriginalYUVConfigureXml().parseDomainXmlNode(empty, read));
    expectOutput(sample(11), read);
}
