#include "media/DeviceOSDInfoXml.h"

#include "tests/media/OverlaySample.h"
#include "tests/support/Documents.h"

namespace
{

DeviceOSDInfo sample()
{
    DeviceOSDInfo info;
    info.setOSDPrintTime(samplePrintTime());
    info.setPositionOSDType(6);
    info.setVideoOSDInfoExList(sampleVideos());
    return info;
}

void expectInfo(const DeviceOSDInfo& expected, const DeviceOSDInfo& info)
{
    expectPrintTime(expected.getOSDPrintTime(), info.getOSDPrintTime());
    EXPECT_EQ(expected.getPositionOSDType(), info.getPositionOSDType());
    expectVideos(expected.getVideoOSDInfoExList(), info.getVideoOSDInfoExList());
}

} // namespace

TEST(DeviceOSDInfoXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(DeviceOSDInfoXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "media/DeviceOSDInfoXml.node.xml"));
}

TEST(DeviceOSDInfoXml, ReadsNodes)
{
    DeviceOSDInfo read;
    ASSERT_TRUE(DeviceOSDInfoXml().parseXmlString(golden("media/DeviceOSDInfoXml.node.xml"), read));
    expectInfo(sample(), read);
}

TEST(DeviceOSDInfoXml, PrintsItsLinesForWhatIsMissing)
{
    CapturedOutput output;
    DeviceOSDInfo read = sample();
    ASSERT_TRUE(DeviceOSDInfoXml().parseXmlString("<DeviceOSDInfo />", read));
    EXPECT_EQ("DeviceOSDInfoXml::parseDomainXmlNode NODE_OSD_PRINT_TIME failed 1111111111\n"
              "DeviceOSDInfoXml::parseDomainXmlNode NODE_OSD_PRINT_TIME failed 22222222\n"
              "DeviceOSDInfoXml::parseDomainXmlNode ATTR_OSD_POSITION_TYPE failed 22222222\n"
              "DeviceOSDInfoXml::parseDomainXmlNode CONST_NODE_OSD_FONT_LIST failed 1111111111\n"
              "DeviceOSDInfoXml::parseDomainXmlNode CONST_NODE_OSD_FONT_LIST failed 2222222222\n",
              output.text());

    EXPECT_EQ(7, read.getOSDPrintTime().getOSDType());
    EXPECT_EQ(5, read.getOSDPrintTime().getTime());
    EXPECT_EQ(0, read.getPositionOSDType());
    EXPECT_TRUE(read.getVideoOSDInfoExList().empty());
}

TEST(DeviceOSDInfoXml, TakesAnEmptyChildAsItIs)
{
    CapturedOutput output;
    DeviceOSDInfo read = sample();
    ASSERT_TRUE(DeviceOSDInfoXml().parseXmlString(
        "<DeviceOSDInfo PositionOSDType='6'><OSDPrintTime /><OSDFontList /></DeviceOSDInfo>", read));
    expectPrintTime(OSDPrintTime(), read.getOSDPrintTime());
    EXPECT_TRUE(read.getVideoOSDInfoExList().empty());
    EXPECT_EQ("OSDPrintTimeXml::parseDomainXmlNode ATTR_TIME  failed \n\n"
              "OSDPrintTimeXml::parseDomainXmlNode ATTR_OSD_TYPE  failed \n\n",
              output.text());
}

TEST(DeviceOSDInfoXml, ReplacesTheListOfTheRecord)
{
    DeviceOSDInfo read = sample();
    ASSERT_TRUE(DeviceOSDInfoXml().parseXmlString(golden("media/DeviceOSDInfoXml.node.xml"), read));
    expectInfo(sample(), read);
}

TEST(DeviceOSDInfoXml, PrintsItsLinesForANodeWithoutAnElement)
{
    CapturedOutput output;
    SafePointer<DomainXmlNode> node(new DomainXmlNode(static_cast<TiXmlElement*>(nullptr)));
    EXPECT_FALSE(DeviceOSDInfoXml().createDomainXmlNode(sample(), node));
    EXPECT_EQ("DeviceOSDInfoXml::createDomainXmlNode NODE_OSD_PRINT_TIME failed 22222222\n"
              "DeviceOSDInfoXml::createDomainXmlNode ATTR_OSD_POSITION_TYPE failed 22222222\n"
              "DeviceOSDInfoXml::createDomainXmlNode CONST_NODE_OSD_FONT_LIST failed 2222222222\n",
              output.text());
}

TEST(DeviceOSDInfoXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    DeviceOSDInfo read = sample();
    EXPECT_FALSE(DeviceOSDInfoXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(DeviceOSDInfoXml().parseDomainXmlNode(empty, read));
    expectInfo(sample(), read);
}
