#include "network/CMSRegisterParamXml.h"

#include "tests/network/CMSRegisterSample.h"
#include "tests/support/Documents.h"

namespace
{

CMSRegisterParam sample()
{
    CMSCameraRegisterInfoParam second;
    second.setCameraID(4);
    CMSRegisterParam param;
    param.setCMSDeviceRegisterInfoParam(sampleDeviceInfo());
    param.setCMSExternConfigParam(sampleConfig());
    param.setCMSRegisterServerParam(sampleServers());
    param.setCMSCameraRegisterInfoParamList({sampleCameraInfo(), second});
    return param;
}

void expectParam(const CMSRegisterParam& expected, const CMSRegisterParam& param)
{
    expectDeviceInfo(expected.getCMSDeviceRegisterInfoParam(), param.getCMSDeviceRegisterInfoParam());
    expectConfig(expected.getCMSExternConfigParam(), param.getCMSExternConfigParam());
    expectServers(expected.getCMSRegisterServerParam(), param.getCMSRegisterServerParam());
    ASSERT_EQ(expected.getCMSCameraRegisterInfoParamList().size(), param.getCMSCameraRegisterInfoParamList().size());
    for (std::size_t number = 0; number < param.getCMSCameraRegisterInfoParamList().size(); ++number)
        expectCameraInfo(expected.getCMSCameraRegisterInfoParamList()[number],
                         param.getCMSCameraRegisterInfoParamList()[number]);
}

} // namespace

TEST(CMSRegisterParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(CMSRegisterParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "network/CMSRegisterParamXml.node.xml"));
}

TEST(CMSRegisterParamXml, ReadsNodesInPlaceOfWhatTheListHolds)
{
    CMSRegisterParam read;
    read.getCMSCameraRegisterInfoParamList().push_back(sampleCameraInfo());
    ASSERT_TRUE(CMSRegisterParamXml().parseXmlString(golden("network/CMSRegisterParamXml.node.xml"), read));
    expectParam(sample(), read);
}

TEST(CMSRegisterParamXml, LeavesTheFieldOfAMissingChild)
{
    CapturedOutput output;
    CMSRegisterParam read = sample();
    ASSERT_TRUE(CMSRegisterParamXml().parseXmlString(
        "<CMSRegisterParam><CMSCameraRegisterInfoParamList /></CMSRegisterParam>", read));
    CMSRegisterParam expected = sample();
    expected.getCMSCameraRegisterInfoParamList().clear();
    expectParam(expected, read);
    EXPECT_EQ("", output.text());
}

TEST(CMSRegisterParamXml, RefusesATextWithoutCamerasAfterReadingTheRest)
{
    CMSRegisterParam read;
    read.getCMSCameraRegisterInfoParamList().push_back(sampleCameraInfo());
    std::string text = golden("network/CMSRegisterParamXml.node.xml");
    const std::size_t list = text.find("\t<CMSCameraRegisterInfoParamList>");
    text.erase(list, text.find("</CMSRegisterParam>") - list);
    EXPECT_FALSE(CMSRegisterParamXml().parseXmlString(text, read));
    CMSRegisterParam expected = sample();
    expected.setCMSCameraRegisterInfoParamList({sampleCameraInfo()});
    expectParam(expected, read);
}

TEST(CMSRegisterParamXml, ReadsCamerasOfAnyName)
{
    CapturedOutput output;
    CMSRegisterParam read;
    ASSERT_TRUE(CMSRegisterParamXml().parseXmlString("<CMSRegisterParam><CMSCameraRegisterInfoParamList>text<!-- -->"
                                                     "<Other CameraID='3' CameraRegisterID='R-17-3' />"
                                                     "</CMSCameraRegisterInfoParamList></CMSRegisterParam>",
                                                     read));
    ASSERT_EQ(1U, read.getCMSCameraRegisterInfoParamList().size());
    expectCameraInfo(sampleCameraInfo(), read.getCMSCameraRegisterInfoParamList()[0]);
    EXPECT_EQ("", output.text());
}

TEST(CMSRegisterParamXml, PrintsTheLinesOfItsChildren)
{
    CapturedOutput output;
    CMSRegisterParam read = sample();
    ASSERT_TRUE(CMSRegisterParamXml().parseXmlString("<CMSRegisterParam><CMSDeviceRegisterInfoParam />"
                                                     "<CMSCameraRegisterInfoParamList /></CMSRegisterParam>",
                                                     read));
    EXPECT_EQ("", read.getCMSDeviceRegisterInfoParam().getDeviceRegisterID());
    EXPECT_EQ("CMSDeviceRegisterInfoParamXml::parseDomainXmlNode get DeviceRegisterID failed \n", output.text());
}

TEST(CMSRegisterParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    CMSRegisterParam read = sample();
    EXPECT_FALSE(CMSRegisterParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(CMSRegisterParamXml().parseDomainXmlNode(empty, read));
    expectParam(sample(), read);
}
