#include "media/StreamConfigureXml.h"

#include "tests/support/Documents.h"

namespace
{

StreamConfigure sample(int first)
{
    StreamConfigure stream;
    stream.setStreamId(first);
    stream.setStreamName("stream " + std::to_string(first + 1));
    stream.setVideoWidth(first + 2);
    stream.setVideoHeight(first + 3);
    stream.setFrameRate(first + 4.5);
    stream.setBitRateType(first + 5);
    stream.setBitRate(first + 6);
    stream.setQuality(first + 7);
    stream.setIFrameInterval(first + 8);
    stream.setIFrameIntervalUnit(first + 9);
    stream.setVideoEncoderType(first + 10);
    stream.setAudioEncoderType(first + 11);
    stream.setResolutionId(first + 12);
    return stream;
}

void expectStream(const StreamConfigure& expected, const StreamConfigure& stream)
{
    EXPECT_EQ(expected.getStreamId(), stream.getStreamId());
    EXPECT_EQ(expected.getStreamName(), stream.getStreamName());
    EXPECT_EQ(expected.getVideoWidth(), stream.getVideoWidth());
    EXPECT_EQ(expected.getVideoHeight(), stream.getVideoHeight());
    EXPECT_EQ(expected.getFrameRate(), stream.getFrameRate());
    EXPECT_EQ(expected.getBitRateType(), stream.getBitRateType());
    EXPECT_EQ(expected.getBitRate(), stream.getBitRate());
    EXPECT_EQ(expected.getQuality(), stream.getQuality());
    EXPECT_EQ(expected.getIFrameInterval(), stream.getIFrameInterval());
    EXPECT_EQ(expected.getIFrameIntervalUnit(), stream.getIFrameIntervalUnit());
    EXPECT_EQ(expected.getVideoEncoderType(), stream.getVideoEncoderType());
    EXPECT_EQ(expected.getAudioEncoderType(), stream.getAudioEncoderType());
    EXPECT_EQ(expected.getResolutionId(), stream.getResolutionId());
}

} // namespace

TEST(StreamConfigureXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(StreamConfigureXml().createXmlString({sample(11), sample(31)}, text));
    EXPECT_TRUE(matchesGolden(text, "media/StreamConfigureXml.list.xml"));
    ASSERT_TRUE(StreamConfigureXml().createXmlString(std::vector<StreamConfigure>(), text));
    EXPECT_EQ("<StreamConfigList />\n", text);
}

TEST(StreamConfigureXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<StreamConfigure> list(1, sample(71));
    ASSERT_TRUE(StreamConfigureXml().parseXmlString(golden("media/StreamConfigureXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectStream(sample(71), list[0]);
    expectStream(sample(11), list[1]);
    expectStream(sample(31), list[2]);
}

TEST(StreamConfigureXml, ReadsItemsOfAnyNameWithWhatTheyLackAsInANewRecord)
{
    CapturedOutput output;
    std::vector<StreamConfigure> list;
    ASSERT_TRUE(StreamConfigureXml().parseXmlString(
        "<StreamConfigList>text<!-- --><Other streamId='9' /></StreamConfigList>", list));
    StreamConfigure expected;
    expected.setStreamId(9);
    ASSERT_EQ(1U, list.size());
    expectStream(expected, list[0]);
    EXPECT_EQ("", output.text());
}

TEST(StreamConfigureXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    std::vector<StreamConfigure> list(1, sample(11));
    EXPECT_FALSE(StreamConfigureXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(StreamConfigureXml().parseDomainXmlNode(empty, list));
    EXPECT_EQ(1U, list.size());
}

TEST(StreamConfigureXml, ReadsNoOtherGenerationsNames)
{
    std::vector<StreamConfigure> list;
    ASSERT_TRUE(StreamConfigureXml().parseXmlString(
        "<StreamConfigList><StreamConfig StreamId='1' FrameRate='25' iFrameInterval='50' /></StreamConfigList>", list));
    ASSERT_EQ(1U, list.size());
    expectStream(StreamConfigure(), list[0]);
    EXPECT_FALSE(StreamConfigureXml().parseXmlString(golden("media/AVStreamParamXml.document.xml"), list));
}

TEST(StreamConfigureXml, TakesAFrameRateThatIsNoNumberForZero)
{
    std::vector<StreamConfigure> list;
    ASSERT_TRUE(StreamConfigureXml().parseXmlString(
        "<StreamConfigList><StreamConfig frameRate='full' streamId='3' /></StreamConfigList>", list));
    ASSERT_EQ(1U, list.size());
    EXPECT_EQ(0, list[0].getFrameRate());
    EXPECT_EQ(3, list[0].getStreamId());
}
