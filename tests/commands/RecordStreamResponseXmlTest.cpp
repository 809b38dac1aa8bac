#include "commands/RecordStreamResponseXml.h"

#include "tests/support/Documents.h"

namespace
{

InetAddr address(const char* ip, unsigned short port, int ipProtoVer)
{
    InetAddr address;
    address.setIP(ip);
    address.setPORT(port);
    address.setIPProtoVer(ipProtoVer);
    return address;
}

void expectAddress(const InetAddr& expected, const InetAddr& address)
{
    EXPECT_STREQ(expected.getIP(), address.getIP());
    EXPECT_EQ(expected.getPORT(), address.getPORT());
    EXPECT_EQ(expected.getIPProtoVer(), address.getIPProtoVer());
}

} // namespace

TEST(RecordStreamResponseXml, Writes)
{
    RecordStreamResponseXml codec;
    codec.setManagerId(1);
    codec.setConsumerId(2);
    codec.setStreamAddr(address("192.0.2.17", 65535, 6));
    EXPECT_TRUE(matchesGolden(written(codec), "commands/RecordStreamResponseXml.document.xml"));
}

TEST(RecordStreamResponseXml, WritesAnEmptyAddress)
{
    RecordStreamResponseXml codec;
    EXPECT_EQ("<RecordStreamResponseCommand ManagerId=\"0\" ConsumerId=\"0\">\n"
              "\t<StreamAddr IP=\"\" Port=\"0\" IPProtoVar=\"0\" />\n"
              "</RecordStreamResponseCommand>\n",
              written(codec));
}

TEST(RecordStreamResponseXml, Reads)
{
    RecordStreamResponseXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/RecordStreamResponseXml.document.xml")));
    EXPECT_EQ(1, codec.getManagerId());
    EXPECT_EQ(2, codec.getConsumerId());
    expectAddress(address("192.0.2.17", 65535, 6), codec.getStreamAddr());
}

TEST(RecordStreamResponseXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    RecordStreamResponseXml codec;
    ASSERT_TRUE(reads(codec, "<RecordStreamResponseCommand />"));
    EXPECT_EQ(0, codec.getManagerId());
    EXPECT_EQ(0, codec.getConsumerId());
    expectAddress(InetAddr(), codec.getStreamAddr());

    RecordStreamResponseXml used;
    used.setManagerId(11);
    used.setConsumerId(12);
    used.setStreamAddr(address("192.0.2.1", 13, 4));
    ASSERT_TRUE(reads(used, "<RecordStreamResponseCommand />"));
    EXPECT_EQ(11, used.getManagerId());
    EXPECT_EQ(12, used.getConsumerId());
    expectAddress(address("192.0.2.1", 13, 4), used.getStreamAddr());
}

TEST(RecordStreamResponseXml, LeavesWhatAnAddressLacks)
{
    RecordStreamResponseXml codec;
    codec.setStreamAddr(address("192.0.2.1", 13, 4));
    ASSERT_TRUE(reads(codec, "<RecordStreamResponseCommand><!--StreamAddr--><StreamAddr Port='65537' IPProtoVer='9' />"
                             "</RecordStreamResponseCommand>"));
    expectAddress(address("192.0.2.1", 1, 4), codec.getStreamAddr());
}
