#include "commands/StreamlInfoXml.h"

#include "tests/support/Documents.h"

namespace
{

StreamlInfo sample(int first)
{
    StreamlInfo info;
    info.setCameraId(first);
    info.setStreamId(first + 1);
    return info;
}

void expectInfo(const StreamlInfo& expected, const StreamlInfo& info)
{
    EXPECT_EQ(expected.getCameraId(), info.getCameraId());
    EXPECT_EQ(expected.getStreamId(), info.getStreamId());
}

} // namespace

TEST(StreamlInfoXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(StreamlInfoXml().createXmlString(sample(11), text));
    EXPECT_TRUE(matchesGolden(text, "commands/StreamlInfoXml.node.xml"));
}

TEST(StreamlInfoXml, ReadsNodes)
{
    CapturedOutput output;
    StreamlInfo read;
    ASSERT_TRUE(StreamlInfoXml().parseXmlString(golden("commands/StreamlInfoXml.node.xml"), read));
    expectInfo(sample(11), read);
    EXPECT_EQ("", output.text());
}

TEST(StreamlInfoXml, ResetsWhatANodeLacksAndPrintsALineForTheCamera)
{
    CapturedOutput output;
    StreamlInfo read = sample(11);
    ASSERT_TRUE(StreamlInfoXml().parseXmlString("<StreamlInfo />", read));
    expectInfo(StreamlInfo(), read);
    EXPECT_EQ("StreamlInfoXml::parseDomainXmlNode get CameraId failed \n", output.text());
}

TEST(StreamlInfoXml, IsSilentAboutAMissingStream)
{
    CapturedOutput output;
    StreamlInfo read = sample(11);
    ASSERT_TRUE(StreamlInfoXml().parseXmlString("<StreamlInfo CameraId='1' />", read));
    EXPECT_EQ(1, read.getCameraId());
    EXPECT_EQ(0, read.getStreamId());
    EXPECT_EQ("", output.text());
}

TEST(StreamlInfoXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    StreamlInfo read = sample(11);
    EXPECT_FALSE(StreamlInfoXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(StreamlInfoXml().parseDomainXmlNode(empty, read));
    expectInfo(sample(11), read);
}
