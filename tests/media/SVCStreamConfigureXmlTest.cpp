#include "media/SVCStreamConfigureXml.h"

#include "tests/support/Documents.h"

namespace
{

SVCStreamConfigure sample(int first)
{
    SVCStreamConfigure stream;
    stream.setSVCStreamId(first);
    stream.setSVCStreamName("layer " + std::to_string(first + 1));
    stream.setSVCStreamSourceStream(first + 2);
    stream.setSVCStreamDivisor(first + 3);
    return stream;
}

void expectStream(const SVCStreamConfigure& expected, const SVCStreamConfigure& stream)
{
    EXPECT_EQ(expected.getSVCStreamId(), stream.getSVCStreamId());
    EXPECT_EQ(expected.getSVCStreamName(), stream.getSVCStreamName());
    EXPECT_EQ(expected.getSVCStreamSourceStream(), stream.getSVCStreamSourceStream());
    EXPECT_EQ(expected.getSVCStreamDivisor(), stream.getSVCStreamDivisor());
}

} // namespace

TEST(SVCStreamConfigureXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(SVCStreamConfigureXml().createXmlString({sample(11), sample(31)}, text));
    EXPECT_TRUE(matchesGolden(text, "media/SVCStreamConfigureXml.list.xml"));
    ASSERT_TRUE(SVCStreamConfigureXml().createXmlString(std::vector<SVCStreamConfigure>(), text));
    EXPECT_EQ("<SVCStreamConfigureList />\n", text);
}

TEST(SVCStreamConfigureXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<SVCStreamConfigure> list(1, sample(71));
    ASSERT_TRUE(SVCStreamConfigureXml().parseXmlString(golden("media/SVCStreamConfigureXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectStream(sample(71), list[0]);
    expectStream(sample(11), list[1]);
    expectStream(sample(31), list[2]);
}

TEST(SVCStreamConfigureXml, ReadsItemsOfAnyNameWithWhatTheyLackAsInANewRecord)
{
    CapturedOutput output;
    std::vector<SVCStreamConfigure> list;
    ASSERT_TRUE(SVCStreamConfigureXml().parseXmlString(
        "<SVCStreamConfigureList>text<!-- --><Other SVCStreamId='9' /></SVCStreamConfigureList>", list));
    SVCStreamConfigure expected;
    expected.setSVCStreamId(9);
    ASSERT_EQ(1U, list.size());
    expectStream(expected, list[0]);
    EXPECT_EQ("", output.text());
}

TEST(SVCStreamConfigureXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    std::vector<SVCStreamConfigure> list(1, sample(11));
    EXPECT_FALSE(SVCStreamConfigureXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(SVCStreamConfigureXml().parseDomainXmlNode(empty, list));
    EXPECT_EQ(1U, list.size());
}
