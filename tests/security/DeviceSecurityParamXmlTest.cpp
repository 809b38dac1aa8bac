#include "security/DeviceSecurityParamXml.h"

#include "tests/support/Documents.h"

namespace
{

DeviceSecurityParam param(int webMode, bool encrypt)
{
    CommunicationSecurityParam communication;
    communication.setWebMode(webMode);
    communication.setCommunicationEncryptFlag(encrypt);
    DeviceSecurityParam param;
    param.setCommunicationSecurityParam(communication);
    return param;
}

DeviceSecurityParam sample()
{
    return param(4, true);
}

void expectParam(const DeviceSecurityParam& expected, const DeviceSecurityParam& param)
{
    EXPECT_EQ(expected.getCommunicationSecurityParam().getWebMode(),
              param.getCommunicationSecurityParam().getWebMode());
    EXPECT_EQ(expected.getCommunicationSecurityParam().getCommunicationEncryptFlag(),
              param.getCommunicationSecurityParam().getCommunicationEncryptFlag());
}

} // namespace

TEST(DeviceSecurityParamXml, Writes)
{
    DeviceSecurityParamXml codec;
    codec.setDeviceSecurityParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "security/DeviceSecurityParamXml.document.xml"));
}

TEST(DeviceSecurityParamXml, ReadsAndPrintsWhatItRead)
{
    CapturedOutput output;
    DeviceSecurityParamXml codec;
    ASSERT_TRUE(reads(codec, golden("security/DeviceSecurityParamXml.document.xml")));
    expectParam(sample(), codec.getDeviceSecurityParam());
    EXPECT_EQ("DeviceSecurityParamXml::parseXmlNode():Flag = 1, WebMode = 4 \n", output.text());
}

TEST(DeviceSecurityParamXml, ResetsWhatIsMissing)
{
    CapturedOutput output;
    DeviceSecurityParamXml codec;
    codec.setDeviceSecurityParam(sample());
    ASSERT_TRUE(reads(codec, "<DeviceSecurityParam><CommunicationSecurityParam /></DeviceSecurityParam>"));
    expectParam(DeviceSecurityParam(), codec.getDeviceSecurityParam());
    EXPECT_EQ("DeviceSecurityParamXml::parseXmlNode():Flag = 0, WebMode = 0 \n", output.text());
}

TEST(DeviceSecurityParamXml, RefusesATextWithoutItsChild)
{
    CapturedOutput output;
    DeviceSecurityParamXml codec;
    codec.setDeviceSecurityParam(sample());
    EXPECT_FALSE(
        reads(codec, "<DeviceSecurityParam WebMode='9'><!--CommunicationSecurityParam--></DeviceSecurityParam>"));
    expectParam(sample(), codec.getDeviceSecurityParam());
    EXPECT_EQ("", output.text());
}

TEST(DeviceSecurityParamXml, ReadsTheNodeOfTheChild)
{
    TiXmlElement child("CommunicationSecurityParam");
    child.SetAttribute("WebMode", 7);
    CapturedOutput output;
    DeviceSecurityParamXml codec;
    codec.setXmlNode(&child);
    ASSERT_TRUE(codec.parseXmlNode());
    expectParam(param(7, false), codec.getDeviceSecurityParam());
    EXPECT_EQ("DeviceSecurityParamXml::parseXmlNode():Flag = 0, WebMode = 7 \n", output.text());
}

TEST(DeviceSecurityParamXml, PrintsNothingWithoutANode)
{
    CapturedOutput output;
    DeviceSecurityParamXml codec;
    EXPECT_FALSE(codec.parseXmlNode());
    EXPECT_EQ("", output.text());
}
