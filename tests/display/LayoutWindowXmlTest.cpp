#include "display/LayoutWindowXml.h"

#include "tests/display/LayoutSample.h"
#include "tests/support/Documents.h"

TEST(LayoutWindowXml, Writes)
{
    LayoutWindowXml codec;
    codec.setLayoutWindow(sampleWindow(11));
    EXPECT_TRUE(matchesGolden(written(codec), "display/LayoutWindowXml.document.xml"));
}

TEST(LayoutWindowXml, Reads)
{
    LayoutWindowXml codec;
    ASSERT_TRUE(reads(codec, golden("display/LayoutWindowXml.document.xml")));
    expectWindow(sampleWindow(11), codec.getLayoutWindow());
}

TEST(LayoutWindowXml, WritesTheContainerOfNoChannels)
{
    LayoutWindowXml codec;
    EXPECT_EQ("<LayoutWindow WindowID=\"0\">\n\t<LiveVideoChannelList />\n</LayoutWindow>\n", written(codec));
}

TEST(LayoutWindowXml, LeavesWhatIsMissing)
{
    LayoutWindowXml codec;
    codec.setLayoutWindow(sampleWindow(11));
    ASSERT_TRUE(reads(codec, "<LayoutWindow />"));
    expectWindow(sampleWindow(11), codec.getLayoutWindow());
}

TEST(LayoutWindowXml, AddsChannelsOfTheirNameBehindThoseThatAreThere)
{
    LayoutWindowXml codec;
    codec.getLayoutWindow().setLiveVideoChannelList({sampleChannel(11)});
    ASSERT_TRUE(reads(codec, "<LayoutWindow><LiveVideoChannelList><Other ChannelID='1' /><!--LiveVideoChannel-->"
                             "<LiveVideoChannel ChannelID='2' />text<Other ChannelID='3' /><LiveVideoChannel />"
                             "</LiveVideoChannelList></LayoutWindow>"));
    const std::vector<LiveVideoChannel>& channels = codec.getLayoutWindow().getLiveVideoChannelList();
    ASSERT_EQ(3U, channels.size());
    expectChannel(sampleChannel(11), channels[0]);
    EXPECT_EQ(2, channels[1].getChannelID());
    expectChannel(LiveVideoChannel(), channels[2]);
}
