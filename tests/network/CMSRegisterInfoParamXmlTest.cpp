#include "network/CMSRegisterInfoParamXml.h"

#include "tests/network/CMSRegisterSample.h"
#include "tests/support/Documents.h"

namespace
{

CMSRegisterServerParamV2 server(const std::string& name, const std::string& ip, int port)
{
    CMSRegisterServerParamV2 server;
    server.setRegisterSrvName(name);
    server.setRegisterSrvIP(ip);
    server.setRegisterSrvPort(port);
    return server;
}

CMSRegisterInfoParam sample()
{
    CMSDeviceRegisterInfoParam secondDevice;
    secondDevice.setDeviceRegisterID("R-18");
    CMSCameraRegisterInfoParam secondCamera;
    secondCamera.setCameraID(4);
    CMSExternConfigParamV2 config;
    config.setExternConfigName("Zone");
    config.setExternConfigValue("North");

    CMSRegisterInfoParam param;
    param.setProtocolName("CMS");
    param.setProtocolVersion("2.0");
    param.setDeviceProtocolState("online");
    param.setCMSRegisterServerParam({server("Main", "192.0.2.8", 7000), server("Spare", "192.0.2.9", 7001)});
    param.setCMSDeviceRegisterInfoParam({sampleDeviceInfo(), secondDevice});
    param.setCMSCameraRegisterInfoParam({sampleCameraInfo(), secondCamera});
    param.setCMSExternConfigParam({config, CMSExternConfigParamV2()});
    return param;
}

void expectParam(const CMSRegisterInfoParam& expected, const CMSRegisterInfoParam& param)
{
    EXPECT_EQ(expected.getProtocolName(), param.getProtocolName());
    EXPECT_EQ(expected.getProtocolVersion(), param.getProtocolVersion());
    EXPECT_EQ(expected.getDeviceProtocolState(), param.getDeviceProtocolState());

    ASSERT_EQ(expected.getCMSRegisterServerParam().size(), param.getCMSRegisterServerParam().size());
    for (std::size_t number = 0; number < param.getCMSRegisterServerParam().size(); ++number)
    {
        const CMSRegisterServerParamV2& wanted = expected.getCMSRegisterServerParam()[number];
        const CMSRegisterServerParamV2& server = param.getCMSRegisterServerParam()[number];
        EXPECT_EQ(wanted.getRegisterSrvName(), server.getRegisterSrvName());
        EXPECT_EQ(wanted.getRegisterSrvIP(), server.getRegisterSrvIP());
        EXPECT_EQ(wanted.getRegisterSrvPort(), server.getRegisterSrvPort());
    }
    ASSERT_EQ(expected.getCMSDeviceRegisterInfoParam().size(), param.getCMSDeviceRegisterInfoParam().size());
    for (std::size_t number = 0; number < param.getCMSDeviceRegisterInfoParam().size(); ++number)
        expectDeviceInfo(expected.getCMSDeviceRegisterInfoParam()[number],
                         param.getCMSDeviceRegisterInfoParam()[number]);
    ASSERT_EQ(expected.getCMSCameraRegisterInfoParam().size(), param.getCMSCameraRegisterInfoParam().size());
    for (std::size_t number = 0; number < param.getCMSCameraRegisterInfoParam().size(); ++number)
        expectCameraInfo(expected.getCMSCameraRegisterInfoParam()[number],
                         param.getCMSCameraRegisterInfoParam()[number]);
    ASSERT_EQ(expected.getCMSExternConfigParam().size(), param.getCMSExternConfigParam().size());
    for (std::size_t number = 0; number < param.getCMSExternConfigParam().size(); ++number)
    {
        const CMSExternConfigParamV2& wanted = expected.getCMSExternConfigParam()[number];
        const CMSExternConfigParamV2& config = param.getCMSExternConfigParam()[number];
        EXPECT_EQ(wanted.getExternConfigName(), config.getExternConfigName());
        EXPECT_EQ(wanted.getExternConfigValue(), config.getExternConfigValue());
    }
}

} // namespace

TEST(CMSRegisterInfoParamXml, Writes)
{
    std::string text;
    ASSERT_TRUE(CMSRegisterInfoParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "network/CMSRegisterInfoParamXml.node.xml"));
}

TEST(CMSRegisterInfoParamXml, WritesEveryPartOfANewRecord)
{
    std::string text;
    ASSERT_TRUE(CMSRegisterInfoParamXml().createXmlString(CMSRegisterInfoParam(), text));
    EXPECT_EQ("<CMSRegisterInfoParam>\n"
              "\t<ProtocolConfig ProtocolName=\"\" ProtocolVersion=\"\" />\n"
              "\t<DeviceState state=\"\" />\n"
              "\t<CMSRegisterServerList />\n"
              "\t<CMSRegisterInfoDeviceList />\n"
              "\t<CMSRegisterInfoCameraList />\n"
              "\t<CMSExternConfigList />\n"
              "</CMSRegisterInfoParam>\n",
              text);
}

TEST(CMSRegisterInfoParamXml, ReadsInPlaceOfWhatTheListsHold)
{
    CMSRegisterInfoParam read;
    read.getCMSRegisterServerParam().push_back(server("before", "", 1));
    read.getCMSDeviceRegisterInfoParam().push_back(sampleDeviceInfo());
    read.getCMSCameraRegisterInfoParam().push_back(sampleCameraInfo());
    read.getCMSExternConfigParam().push_back(CMSExternConfigParamV2());
    ASSERT_TRUE(CMSRegisterInfoParamXml().parseXmlString(golden("network/CMSRegisterInfoParamXml.node.xml"), read));
    expectParam(sample(), read);
}

TEST(CMSRegisterInfoParamXml, LeavesTheFieldsOfMissingParts)
{
    CapturedOutput output;
    CMSRegisterInfoParam read = sample();
    ASSERT_TRUE(CMSRegisterInfoParamXml().parseXmlString("<CMSRegisterInfoParam />", read));
    expectParam(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(CMSRegisterInfoParamXml, EmptiesWhatAPartLacks)
{
    CapturedOutput output;
    CMSRegisterInfoParam read = sample();
    ASSERT_TRUE(CMSRegisterInfoParamXml().parseXmlString(
        "<CMSRegisterInfoParam><ProtocolConfig /><DeviceState /><CMSRegisterServerList /><CMSRegisterInfoDeviceList />"
        "<CMSRegisterInfoCameraList /><CMSExternConfigList /></CMSRegisterInfoParam>",
        read));
    expectParam(CMSRegisterInfoParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(CMSRegisterInfoParamXml, KeepsItemsWithoutPropertiesAndPassesOverOtherNames)
{
    CapturedOutput output;
    CMSRegisterInfoParam read;
    ASSERT_TRUE(CMSRegisterInfoParamXml().parseXmlString(
        "<CMSRegisterInfoParam><CMSRegisterServerList><Other SrvName='x' /><CMSRegisterServer /><!-- --><Other />"
        "<CMSRegisterServer SrvPort='9' /></CMSRegisterServerList></CMSRegisterInfoParam>",
        read));
    CMSRegisterInfoParam expected;
    expected.setCMSRegisterServerParam({server("", "", 0), server("", "", 9)});
    expectParam(expected, read);
    EXPECT_EQ("", output.text());
}

TEST(CMSRegisterInfoParamXml, CarriesMoreThanFourServers)
{
    CMSRegisterInfoParam param;
    for (int number = 1; number <= 5; ++number)
        param.getCMSRegisterServerParam().push_back(server("S", "192.0.2.1", number));
    std::string text;
    ASSERT_TRUE(CMSRegisterInfoParamXml().createXmlString(param, text));
    CMSRegisterInfoParam read;
    ASSERT_TRUE(CMSRegisterInfoParamXml().parseXmlString(text, read));
    expectParam(param, read);
}

TEST(CMSRegisterInfoParamXml, WritesAndReadsEachListBelowARoot)
{
    const CMSRegisterInfoParamXml codec;
    SafePointer<DomainXmlNode> root(new DomainXmlNode("Root"));
    CMSRegisterInfoParam read;
    EXPECT_FALSE(codec.getCMSRegisterServerParam(read, root));
    EXPECT_FALSE(codec.getCMSRegisterInfoDeviceParam(read, root));
    EXPECT_FALSE(codec.getCMSRegisterInfoCameraParam(read, root));
    EXPECT_FALSE(codec.getCMSExternConfigParam(read, root));

    EXPECT_TRUE(codec.addCMSRegisterServerListNode(sample(), root));
    EXPECT_TRUE(codec.addCMSRegisterInfoDeviceListNode(sample(), root));
    EXPECT_TRUE(codec.addCMSRegisterInfoCameraListNode(sample(), root));
    EXPECT_TRUE(codec.addCMSExternConfigListNode(sample(), root));

    EXPECT_TRUE(codec.getCMSRegisterServerParam(read, root));
    EXPECT_TRUE(codec.getCMSRegisterInfoDeviceParam(read, root));
    EXPECT_TRUE(codec.getCMSRegisterInfoCameraParam(read, root));
    EXPECT_TRUE(codec.getCMSExternConfigParam(read, root));
    CMSRegisterInfoParam expected = sample();
    expected.setProtocolName("");
    expected.setProtocolVersion("");
    expected.setDeviceProtocolState("");
    expectParam(expected, read);
}

TEST(CMSRegisterInfoParamXml, RefusesAnEmptyPointer)
{
    const CMSRegisterInfoParamXml codec;
    SafePointer<DomainXmlNode> empty;
    CMSRegisterInfoParam read = sample();
    EXPECT_FALSE(codec.addCMSRegisterServerListNode(read, empty));
    EXPECT_FALSE(codec.addCMSRegisterInfoDeviceListNode(read, empty));
    EXPECT_FALSE(codec.addCMSRegisterInfoCameraListNode(read, empty));
    EXPECT_FALSE(codec.addCMSExternConfigListNode(read, empty));
    EXPECT_FALSE(codec.getCMSRegisterServerParam(read, empty));
    EXPECT_FALSE(codec.getCMSRegisterInfoDeviceParam(read, empty));
    EXPECT_FALSE(codec.getCMSRegisterInfoCameraParam(read, empty));
    EXPECT_FALSE(codec.getCMSExternConfigParam(read, empty));
    expectParam(sample(), read);
}

TEST(CMSRegisterInfoParamXml, TakesANullTextForAnEmptyOne)
{
    CMSRegisterInfoParam param = sample();
    param.setProtocolName(nullptr);
    param.setProtocolVersion(nullptr);
    param.setDeviceProtocolState(nullptr);
    EXPECT_EQ("", param.getProtocolName());
    EXPECT_EQ("", param.getProtocolVersion());
    EXPECT_EQ("", param.getDeviceProtocolState());
}
