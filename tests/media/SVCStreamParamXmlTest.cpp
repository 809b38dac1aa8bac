#include "media/SVCStreamParamXml.h"

#include "tests/support/Documents.h"

namespace
{

SVCStreamParam sample(int first)
{
    SVCStreamParam stream;
    stream.setSourceStreamID(first);
    stream.setSVCStreamID(first + 1);
    stream.setFrameSkipInterval(first + 2);
    stream.setSVCStreamName("layer " + std::to_string(first + 3));
    return stream;
}

void expectStream(const SVCStreamParam& expected, const SVCStreamParam& stream)
{
    EXPECT_EQ(expected.getSourceStreamID(), stream.getSourceStreamID());
    EXPECT_EQ(expected.getSVCStreamID(), stream.getSVCStreamID());
    EXPECT_EQ(expected.getFrameSkipInterval(), stream.getFrameSkipInterval());
    EXPECT_EQ(expected.getSVCStreamName(), stream.getSVCStreamName());
}

} // namespace

TEST(SVCStreamParamXml, Writes)
{
    SVCStreamParamXml codec;
    codec.setSVCStreamParamList({sample(11), sample(31)});
    EXPECT_TRUE(matchesGolden(written(codec), "media/SVCStreamParamXml.document.xml"));
}

TEST(SVCStreamParamXml, WritesAnEmptyList)
{
    SVCStreamParamXml codec;
    EXPECT_EQ("<version />\n", written(codec));
}

TEST(SVCStreamParamXml, ReadsBehindWhatTheListHolds)
{
    SVCStreamParamXml codec;
    codec.setSVCStreamParamList({sample(71)});
    ASSERT_TRUE(reads(codec, golden("media/SVCStreamParamXml.document.xml")));
    ASSERT_EQ(3U, codec.getSVCStreamParamList().size());
    expectStream(sample(71), codec.getSVCStreamParamList()[0]);
    expectStream(sample(11), codec.getSVCStreamParamList()[1]);
    expectStream(sample(31), codec.getSVCStreamParamList()[2]);
}

TEST(SVCStreamParamXml, LeavesWhatAnItemLacksAsInANewRecord)
{
    SVCStreamParamXml codec;
    ASSERT_TRUE(reads(codec, "<version><SVCStreamParam /></version>"));
    ASSERT_EQ(1U, codec.getSVCStreamParamList().size());
    expectStream(SVCStreamParam(), codec.getSVCStreamParamList()[0]);
}

TEST(SVCStreamParamXml, ReadsARootWithoutStreams)
{
    for (const char* text : {"<version />", "<version>text<!--SVCStreamParam--><Other /></version>"})
    {
        SVCStreamParamXml codec;
        ASSERT_TRUE(reads(codec, text)) << text;
        EXPECT_TRUE(codec.getSVCStreamParamList().empty()) << text;
    }
}

TEST(SVCStreamParamXml, WalksOnFromTheFirstStreamOverElementsOfAnyName)
{
    SVCStreamParamXml codec;
    ASSERT_TRUE(reads(codec, "<version><Other SVCStreamID='1' /><SVCStreamParam SVCStreamID='2' /><!-- -->text"
                             "<Other SVCStreamID='3' /></version>"));
    ASSERT_EQ(2U, codec.getSVCStreamParamList().size());
    EXPECT_EQ(2, codec.getSVCStreamParamList()[0].getSVCStreamID());
    EXPECT_EQ(3, codec.getSVCStreamParamList()[1].getSVCStreamID());
}
