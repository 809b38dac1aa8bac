#include "network/CMSDeviceRegisterInfoParamXml.h"

#include "tests/network/CMSRegisterSample.h"
#include "tests/support/Documents.h"

TEST(CMSDeviceRegisterInfoParamXml, Writes)
{
    CMSDeviceRegisterInfoParamXml codec;
    codec.setDeviceRegisterInfoParam(sampleDeviceInfo());
    EXPECT_TRUE(matchesGolden(written(codec), "network/CMSDeviceRegisterInfoParamXml.document.xml"));
}

TEST(CMSDeviceRegisterInfoParamXml, Reads)
{
    CMSDeviceRegisterInfoParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/CMSDeviceRegisterInfoParamXml.document.xml")));
    expectDeviceInfo(sampleDeviceInfo(), codec.getDeviceRegisterInfoParam());
}

TEST(CMSDeviceRegisterInfoParamXml, LeavesWhatIsMissing)
{
    CMSDeviceRegisterInfoParamXml codec;
    codec.setDeviceRegisterInfoParam(sampleDeviceInfo());
    ASSERT_TRUE(reads(codec, "<DeviceRegisterInfoParam />"));
    expectDeviceInfo(sampleDeviceInfo(), codec.getDeviceRegisterInfoParam());
}

TEST(CMSDeviceRegisterInfoParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(CMSDeviceRegisterInfoParamXml().createXmlString(sampleDeviceInfo(), text));
    EXPECT_TRUE(matchesGolden(text, "network/CMSDeviceRegisterInfoParamXml.node.xml"));
}

TEST(CMSDeviceRegisterInfoParamXml, ReadsNodes)
{
    CMSDeviceRegisterInfoParam read;
    ASSERT_TRUE(
        CMSDeviceRegisterInfoParamXml().parseXmlString(golden("network/CMSDeviceRegisterInfoParamXml.node.xml"), read));
    expectDeviceInfo(sampleDeviceInfo(), read);
}

TEST(CMSDeviceRegisterInfoParamXml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    CMSDeviceRegisterInfoParam read = sampleDeviceInfo();
    ASSERT_TRUE(CMSDeviceRegisterInfoParamXml().parseXmlString("<DeviceRegisterInfoParam />", read));
    expectDeviceInfo(CMSDeviceRegisterInfoParam(), read);
    EXPECT_EQ("CMSDeviceRegisterInfoParamXml::parseDomainXmlNode get DeviceRegisterID failed \n", output.text());
}

TEST(CMSDeviceRegisterInfoParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    CMSDeviceRegisterInfoParam read = sampleDeviceInfo();
    EXPECT_FALSE(CMSDeviceRegisterInfoParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(CMSDeviceRegisterInfoParamXml().parseDomainXmlNode(empty, read));
    expectDeviceInfo(sampleDeviceInfo(), read);
}
