#include "media/AVStreamParamXml.h"

#include "tests/media/StreamSamples.h"
#include "tests/support/Documents.h"

TEST(AVStreamParamXml, Writes)
{
    AVStreamParamXml codec;
    codec.setAVStreamParamList({sampleStream(11), sampleStream(31)});
    EXPECT_TRUE(matchesGolden(written(codec), "media/AVStreamParamXml.document.xml"));
}

TEST(AVStreamParamXml, WritesAnEmptyList)
{
    AVStreamParamXml codec;
    EXPECT_EQ("<AVStreamParamList />\n", written(codec));
}

TEST(AVStreamParamXml, ReadsBehindWhatTheListHolds)
{
    AVStreamParamXml codec;
    codec.setAVStreamParamList({sampleStream(71)});
    ASSERT_TRUE(reads(codec, golden("media/AVStreamParamXml.document.xml")));
    ASSERT_EQ(3U, codec.getAVStreamParamList().size());
    expectStream(sampleStream(71), codec.getAVStreamParamList()[0]);
    expectStream(sampleStream(11), codec.getAVStreamParamList()[1]);
    expectStream(sampleStream(31), codec.getAVStreamParamList()[2]);
}

TEST(AVStreamParamXml, GivesTheDefaultsOfWhatAnItemLacks)
{
    AVStreamParamXml codec;
    ASSERT_TRUE(reads(codec, "<AVStreamParamList><AVStreamParam /></AVStreamParamList>"));
    AVStreamParam expected;
    expected.setIFrameIntervalUnit(1);
    ASSERT_EQ(1U, codec.getAVStreamParamList().size());
    expectStream(expected, codec.getAVStreamParamList()[0]);
}

TEST(AVStreamParamXml, CutsTheFractionOfAFrameRate)
{
    AVStreamParamXml codec;
    ASSERT_TRUE(reads(codec, "<AVStreamParamList><AVStreamParam FrameRate='25.5' /></AVStreamParamList>"));
    ASSERT_EQ(1U, codec.getAVStreamParamList().size());
    EXPECT_EQ(25, codec.getAVStreamParamList()[0].getFrameRate());
}

TEST(AVStreamParamXml, ReadsARootWithoutStreams)
{
    AVStreamParamXml codec;
    ASSERT_TRUE(reads(codec, "<AVStreamParamList>text<!--AVStreamParam--><Other /></AVStreamParamList>"));
    EXPECT_TRUE(codec.getAVStreamParamList().empty());
}

TEST(AVStreamParamXml, WalksOnFromTheFirstStreamOverElementsOfAnyName)
{
    AVStreamParamXml codec;
    ASSERT_TRUE(reads(codec, "<AVStreamParamList><Other StreamId='1' /><AVStreamParam StreamId='2' /><!-- -->text"
                             "<Other StreamId='3' /></AVStreamParamList>"));
    ASSERT_EQ(2U, codec.getAVStreamParamList().size());
    EXPECT_EQ(2, codec.getAVStreamParamList()[0].getStreamId());
    EXPECT_EQ(3, codec.getAVStreamParamList()[1].getStreamId());
}
