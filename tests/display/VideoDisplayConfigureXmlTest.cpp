#include "display/VideoDisplayConfigureXml.h"

#include "tests/support/Documents.h"

namespace
{

VideoDisplayDeviceInfo device(const std::string& name, const std::string& description)
{
    VideoDisplayDeviceInfo device;
    device.setDeviceName(name);
    device.setDescription(description);
    return device;
}

VideoDisplayConfigure sample()
{
    VideoDisplayConfigure display;
    display.setSupportFlag(true);
    display.setShowIpFlag(false);
    display.setCaptureId(3);
    display.setInputMode(4);
    display.setInterPolation(5);
    display.setDisplayVideoSystem(6);
    display.setVideoOutSwitchFlag(true);
    display.setVideoDisplayDeviceInfoList({device("fb0", "first"), device("fb1", "second")});
    return display;
}

void expectDisplay(const VideoDisplayConfigure& expected, const VideoDisplayConfigure& display)
{
    EXPECT_EQ(expected.getSupportFlag(), display.getSupportFlag());
    EXPECT_EQ(expected.getShowIpFlag(), display.getShowIpFlag());
    EXPECT_EQ(expected.getCaptureId(), display.getCaptureId());
    EXPECT_EQ(expected.getInputMode(), display.getInputMode());
    EXPECT_EQ(expected.getInterPolation(), display.getInterPolation());
    EXPECT_EQ(expected.getDisplayVideoSystem(), display.getDisplayVideoSystem());
    EXPECT_EQ(expected.getVideoOutSwitchFlag(), display.getVideoOutSwitchFlag());
    ASSERT_EQ(expected.getVideoDisplayDeviceInfoList().size(), display.getVideoDisplayDeviceInfoList().size());
    for (std::size_t number = 0; number < display.getVideoDisplayDeviceInfoList().size(); ++number)
    {
        const VideoDisplayDeviceInfo& wanted = expected.getVideoDisplayDeviceInfoList()[number];
        EXPECT_EQ(wanted.getDeviceName(), display.getVideoDisplayDeviceInfoList()[number].getDeviceName());
        EXPECT_EQ(wanted.getDescription(), display.getVideoDisplayDeviceInfoList()[number].getDescription());
    }
}

} // namespace

TEST(VideoDisplayConfigureXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(VideoDisplayConfigureXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "display/VideoDisplayConfigureXml.node.xml"));
}

TEST(VideoDisplayConfigureXml, ReadsNodes)
{
    CapturedOutput output;
    VideoDisplayConfigure read;
    ASSERT_TRUE(VideoDisplayConfigureXml().parseXmlString(golden("display/VideoDisplayConfigureXml.node.xml"), read));
    expectDisplay(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(VideoDisplayConfigureXml, TellsItsFlagsApart)
{
    VideoDisplayConfigure read;
    ASSERT_TRUE(VideoDisplayConfigureXml().parseXmlString("<VideoDisplay showip='true' />", read));
    EXPECT_FALSE(read.getSupportFlag());
    EXPECT_TRUE(read.getShowIpFlag());
    EXPECT_FALSE(read.getVideoOutSwitchFlag());
    ASSERT_TRUE(VideoDisplayConfigureXml().parseXmlString("<VideoDisplay VideoOutSwitchFlag='true' />", read));
    EXPECT_FALSE(read.getSupportFlag());
    EXPECT_FALSE(read.getShowIpFlag());
    EXPECT_TRUE(read.getVideoOutSwitchFlag());
}

TEST(VideoDisplayConfigureXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    VideoDisplayConfigure read = sample();
    ASSERT_TRUE(VideoDisplayConfigureXml().parseXmlString("<VideoDisplay />", read));
    expectDisplay(VideoDisplayConfigure(), read);
    EXPECT_EQ("", output.text());
}

TEST(VideoDisplayConfigureXml, ReplacesTheDevicesByThoseOfTheirName)
{
    CapturedOutput output;
    VideoDisplayConfigure read = sample();
    ASSERT_TRUE(VideoDisplayConfigureXml().parseXmlString(
        "<VideoDisplay>text<!--deviceNameList--><Other deviceName='x' /><deviceNameList /></VideoDisplay>", read));
    ASSERT_EQ(1U, read.getVideoDisplayDeviceInfoList().size());
    EXPECT_EQ("", read.getVideoDisplayDeviceInfoList()[0].getDeviceName());
    EXPECT_EQ("", read.getVideoDisplayDeviceInfoList()[0].getDescription());
    EXPECT_EQ("", output.text());
}

TEST(VideoDisplayConfigureXml, TakesNoCapitalLetterForASmallOne)
{
    VideoDisplayConfigure read;
    ASSERT_TRUE(
        VideoDisplayConfigureXml().parseXmlString("<VideoDisplay CaptureId='1' videoOutSwitchFlag='true' />", read));
    EXPECT_EQ(0, read.getCaptureId());
    EXPECT_FALSE(read.getVideoOutSwitchFlag());
}

TEST(VideoDisplayConfigureXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    VideoDisplayConfigure read = sample();
    EXPECT_FALSE(VideoDisplayConfigureXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(VideoDisplayConfigureXml().parseDomainXmlNode(empty, read));
    expectDisplay(sample(), read);
}
