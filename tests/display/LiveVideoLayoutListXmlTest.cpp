#include "display/LiveVideoLayoutListXml.h"

#include "tests/display/LayoutSample.h"
#include "tests/support/Documents.h"

TEST(LiveVideoLayoutListXml, Writes)
{
    LiveVideoLayoutListXml codec;
    codec.setLiveVideoLayoutList({sampleLayout(11), sampleLayout(51)});
    EXPECT_TRUE(matchesGolden(written(codec), "display/LiveVideoLayoutListXml.document.xml"));
}

TEST(LiveVideoLayoutListXml, WritesAnEmptyList)
{
    LiveVideoLayoutListXml codec;
    EXPECT_EQ("<LiveVideoLayoutList />\n", written(codec));
}

TEST(LiveVideoLayoutListXml, ReadsBehindWhatTheListHolds)
{
    LiveVideoLayoutListXml codec;
    codec.setLiveVideoLayoutList({sampleLayout(71)});
    ASSERT_TRUE(reads(codec, golden("display/LiveVideoLayoutListXml.document.xml")));
    ASSERT_EQ(3U, codec.getLiveVideoLayoutList().size());
    expectLayout(sampleLayout(71), codec.getLiveVideoLayoutList()[0]);
    expectLayout(sampleLayout(11), codec.getLiveVideoLayoutList()[1]);
    expectLayout(sampleLayout(51), codec.getLiveVideoLayoutList()[2]);
}

TEST(LiveVideoLayoutListXml, ReadsARootWithoutLayouts)
{
    LiveVideoLayoutListXml codec;
    ASSERT_TRUE(reads(codec, "<LiveVideoLayoutList>text<!--LiveVideoLayout--><Other /></LiveVideoLayoutList>"));
    EXPECT_TRUE(codec.getLiveVideoLayoutList().empty());
}

TEST(LiveVideoLayoutListXml, WalksOnFromTheFirstLayoutOverElementsOfAnyName)
{
    LiveVideoLayoutListXml codec;
    ASSERT_TRUE(reads(codec,
                      "<LiveVideoLayoutList><Other LayoutMode='1' /><LiveVideoLayout LayoutMode='2' /><!-- -->text"
                      "<Other LayoutMode='3' /></LiveVideoLayoutList>"));
    ASSERT_EQ(2U, codec.getLiveVideoLayoutList().size());
    EXPECT_EQ(2, codec.getLiveVideoLayoutList()[0].getLayoutMode());
    EXPECT_EQ(3, codec.getLiveVideoLayoutList()[1].getLayoutMode());
}
