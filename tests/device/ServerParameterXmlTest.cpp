#include "device/ServerParameterXml.h"

#include "tests/device/DevicePortSample.h"
#include "tests/support/Documents.h"

namespace
{

ServerParameter sample()
{
    ServerParameter server;
    server.setDeviceID("D-8");
    server.setDeviceName("Hall");
    server.setVersion(3);
    server.setClientBroadcastPort(37810);
    server.setWebServicePort(8088);
    server.setAlarmCenterPort(37811);
    server.setWorkingModeID(5);
    server.setLanguageID(7);
    server.setNTPStartFlag(true);
    server.setDevicePort(samplePorts());
    return server;
}

void expectServer(const ServerParameter& expected, const ServerParameter& server)
{
    EXPECT_EQ(expected.getDeviceID(), server.getDeviceID());
    EXPECT_EQ(expected.getDeviceName(), server.getDeviceName());
    EXPECT_EQ(expected.getVersion(), server.getVersion());
    EXPECT_EQ(expected.getClientBroadcastPort(), server.getClientBroadcastPort());
    EXPECT_EQ(expected.getWebServicePort(), server.getWebServicePort());
    EXPECT_EQ(expected.getAlarmCenterPort(), server.getAlarmCenterPort());
    EXPECT_EQ(expected.getWorkingModeID(), server.getWorkingModeID());
    EXPECT_EQ(expected.getLanguageID(), server.getLanguageID());
    EXPECT_EQ(expected.getNTPStartFlag(), server.getNTPStartFlag());
    expectPorts(expected.getDevicePort(), server.getDevicePort());
}

} // namespace

TEST(ServerParameterXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ServerParameterXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "device/ServerParameterXml.node.xml"));
}

TEST(ServerParameterXml, ReadsNodes)
{
    ServerParameter read;
    ASSERT_TRUE(ServerParameterXml().parseXmlString(golden("device/ServerParameterXml.node.xml"), read));
    expectServer(sample(), read);
}

TEST(ServerParameterXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    ServerParameter read = sample();
    EXPECT_FALSE(ServerParameterXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(ServerParameterXml().parseDomainXmlNode(empty, read));
    expectServer(sample(), read);
}

TEST(ServerParameterXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    ServerParameter read = sample();
    ASSERT_TRUE(ServerParameterXml().parseXmlString("<ServerParameter />", read));
    expectServer(ServerParameter(), read);
    EXPECT_EQ("", output.text());
}

TEST(ServerParameterXml, ReplacesThePortsByThoseThatAreThere)
{
    ServerParameter read = sample();
    ASSERT_TRUE(ServerParameterXml().parseXmlString(
        "<ServerParameter>text<!--DevicePort--><DevicePort HttpPort='81' /></ServerParameter>", read));
    DevicePort expected;
    expected.setHttpPort(81);
    expectPorts(expected, read.getDevicePort());
}
