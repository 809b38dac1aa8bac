#include "device/DeviceConfigureXml.h"

#include "tests/support/Documents.h"

namespace
{

void setCommand(DeviceConfigureXml& codec, int primary, int sub)
{
    codec.setPrimaryCommandID(primary);
    codec.setSubCommandID(sub);
}

void expectCommand(int primary, int sub, const DeviceConfigureXml& codec)
{
    EXPECT_EQ(primary, codec.getPrimaryCommandID());
    EXPECT_EQ(sub, codec.getSubCommandID());
}

} // namespace

TEST(DeviceConfigureXml, Writes)
{
    DeviceConfigureXml codec;
    setCommand(codec, 3, 7);
    std::string text;
    ASSERT_TRUE(codec.createXmlString(text));
    EXPECT_TRUE(matchesGolden(text, "device/DeviceConfigureXml.document.xml"));
    // Another call writes the same: nothing is kept but the two numbers.
    ASSERT_TRUE(codec.createXmlString(text));
    EXPECT_TRUE(matchesGolden(text, "device/DeviceConfigureXml.document.xml"));
}

TEST(DeviceConfigureXml, Reads)
{
    DeviceConfigureXml codec;
    expectCommand(0, 0, codec);
    ASSERT_TRUE(codec.parseXmlString(golden("device/DeviceConfigureXml.document.xml")));
    expectCommand(3, 7, codec);
    ASSERT_TRUE(
        codec.parseXmlString("<DeviceConfigure><CommandID PrimaryCommandID='4' SubCommandID='5' /></DeviceConfigure>"));
    expectCommand(4, 5, codec);
}

TEST(DeviceConfigureXml, ResetsWhatIsMissing)
{
    DeviceConfigureXml codec;
    setCommand(codec, 3, 7);
    ASSERT_TRUE(codec.parseXmlString("<DeviceConfigure><CommandID SubCommandID='5' /></DeviceConfigure>"));
    expectCommand(0, 5, codec);
    ASSERT_TRUE(codec.parseXmlString("<DeviceConfigure><CommandID PrimaryCommandID='6' /></DeviceConfigure>"));
    expectCommand(6, 0, codec);
}

TEST(DeviceConfigureXml, RefusesADocumentWithoutACommand)
{
    DeviceConfigureXml codec;
    setCommand(codec, 3, 7);
    EXPECT_FALSE(codec.parseXmlString("<DeviceConfigure />"));
    EXPECT_FALSE(codec.parseXmlString(
        "<DeviceConfigure PrimaryCommandID='1' SubCommandID='2'><!--CommandID--></DeviceConfigure>"));
    EXPECT_FALSE(codec.parseXmlString("<CommandID PrimaryCommandID='1' SubCommandID='2' />"));
    EXPECT_FALSE(codec.parseXmlString("<DeviceConfigure><CommandID PrimaryCommandID='1'"));
    EXPECT_FALSE(codec.parseXmlString(""));
    expectCommand(3, 7, codec);
}
