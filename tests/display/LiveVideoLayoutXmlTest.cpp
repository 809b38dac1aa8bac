#include "display/LiveVideoLayoutXml.h"

#include "tests/display/LayoutSample.h"
#include "tests/support/Documents.h"

TEST(LiveVideoLayoutXml, Writes)
{
    LiveVideoLayoutXml codec;
    codec.setLiveVideoLayout(sampleLayout(11));
    EXPECT_TRUE(matchesGolden(written(codec), "display/LiveVideoLayoutXml.document.xml"));
}

TEST(LiveVideoLayoutXml, Reads)
{
    LiveVideoLayoutXml codec;
    ASSERT_TRUE(reads(codec, golden("display/LiveVideoLayoutXml.document.xml")));
    expectLayout(sampleLayout(11), codec.getLiveVideoLayout());
}

TEST(LiveVideoLayoutXml, ResetsMissingNamesAndLeavesWhatElseIsMissing)
{
    LiveVideoLayoutXml codec;
    codec.setLiveVideoLayout(sampleLayout(11));
    ASSERT_TRUE(reads(codec, "<LiveVideoLayout />"));
    LiveVideoLayout expected = sampleLayout(11);
    expected.setLayoutName("");
    expected.setUserName("");
    expectLayout(expected, codec.getLiveVideoLayout());
}

TEST(LiveVideoLayoutXml, AddsWindowsOfTheirNameBehindThoseThatAreThere)
{
    LiveVideoLayoutXml codec;
    codec.getLiveVideoLayout().setLayoutWindowList({sampleWindow(11)});
    ASSERT_TRUE(reads(codec,
                      "<LiveVideoLayout LayoutWindowNum='1'><LayoutWindowList><Other WindowID='1' />"
                      "<!--LayoutWindow--><LayoutWindow WindowID='2' />text<Other WindowID='3' /><LayoutWindow />"
                      "</LayoutWindowList></LiveVideoLayout>"));
    EXPECT_EQ(1, codec.getLiveVideoLayout().getLayoutWindowNum());
    const std::vector<LayoutWindow>& windows = codec.getLiveVideoLayout().getLayoutWindowList();
    ASSERT_EQ(3U, windows.size());
    expectWindow(sampleWindow(11), windows[0]);
    EXPECT_EQ(2, windows[1].getWinId());
    expectWindow(LayoutWindow(), windows[2]);
}
