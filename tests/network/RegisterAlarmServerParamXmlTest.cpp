#include "network/RegisterAlarmServerParamXml.h"

#include "tests/support/Documents.h"

namespace
{

InetAddr addr(const char* ip, unsigned short port, int ipProtoVer)
{
    InetAddr addr;
    addr.setIP(ip);
    addr.setPORT(port);
    addr.setIPProtoVer(ipProtoVer);
    return addr;
}

InetAddr sample()
{
    return addr("192.0.2.8", 40999, 6);
}

void expectAddr(const InetAddr& expected, const InetAddr& addr)
{
    EXPECT_STREQ(expected.getIP(), addr.getIP());
    EXPECT_EQ(expected.getPORT(), addr.getPORT());
    EXPECT_EQ(expected.getIPProtoVer(), addr.getIPProtoVer());
}

} // namespace

TEST(RegisterAlarmServerParamXml, Writes)
{
    RegisterAlarmServerParamXml codec;
    codec.setAddr(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "network/RegisterAlarmServerParamXml.document.xml"));
}

TEST(RegisterAlarmServerParamXml, WritesANewAddress)
{
    RegisterAlarmServerParamXml codec;
    EXPECT_EQ("<RegisterAlarmServerParam ServerIP=\"\" ServerPort=\"0\" IPProtoVer=\"0\" />\n", written(codec));
}

TEST(RegisterAlarmServerParamXml, Reads)
{
    RegisterAlarmServerParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/RegisterAlarmServerParamXml.document.xml")));
    expectAddr(sample(), codec.getAddr());
}

TEST(RegisterAlarmServerParamXml, LeavesTheAddressAndGivesDefaultsForTheRest)
{
    RegisterAlarmServerParamXml codec;
    codec.setAddr(sample());
    ASSERT_TRUE(reads(codec, "<RegisterAlarmServerParam />"));
    expectAddr(addr("192.0.2.8", 0, 1), codec.getAddr());
}

TEST(RegisterAlarmServerParamXml, ReadsAnAddressOfAnyLength)
{
    const std::string address(1000, 'a');
    RegisterAlarmServerParamXml codec;
    ASSERT_TRUE(reads(codec, "<RegisterAlarmServerParam ServerIP='" + address + "' ServerPort='70000' />"));
    expectAddr(addr(address.c_str(), 4464, 1), codec.getAddr());
}
