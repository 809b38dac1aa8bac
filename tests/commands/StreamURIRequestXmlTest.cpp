#include "commands/StreamURIRequestXml.h"

#include "tests/support/Documents.h"

namespace
{

void fill(StreamURIRequestXml& codec)
{
    InetAddr address;
    address.setIP("192.0.2.17");
    address.setPORT(9000);
    address.setIPProtoVer(4);
    codec.setUserName("operator");
    codec.setPassword("not told");
    codec.setCameraID(1);
    codec.setStreamID(2);
    codec.setRtspTransferProtocol(3);
    codec.setAddr(address);
}

void expectFilled(const StreamURIRequestXml& codec)
{
    EXPECT_EQ("operator", codec.getUserName());
    EXPECT_EQ("not told", codec.getPassword());
    EXPECT_EQ(1, codec.getCameraID());
    EXPECT_EQ(2, codec.getStreamID());
    EXPECT_EQ(3, codec.getRtspTransferProtocol());
    EXPECT_STREQ("192.0.2.17", codec.getAddr().getIP());
    EXPECT_EQ(9000, codec.getAddr().getPORT());
    EXPECT_EQ(4, codec.getAddr().getIPProtoVer());
}

} // namespace

TEST(StreamURIRequestXml, Writes)
{
    StreamURIRequestXml codec;
    fill(codec);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/StreamURIRequestXml.document.xml"));
}

TEST(StreamURIRequestXml, Reads)
{
    StreamURIRequestXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/StreamURIRequestXml.document.xml")));
    expectFilled(codec);
}

TEST(StreamURIRequestXml, LeavesWhatIsMissing)
{
    for (const char* text :
         {"<StreamURIRequestInfo />", "<StreamURIRequestInfo><!--Addr--><Addr /></StreamURIRequestInfo>"})
    {
        StreamURIRequestXml codec;
        fill(codec);
        ASSERT_TRUE(reads(codec, text)) << text;
        expectFilled(codec);
    }
}

TEST(StreamURIRequestXml, PassesOverTheOtherSpelling)
{
    StreamURIRequestXml codec;
    ASSERT_TRUE(reads(codec, "<StreamURIRequestInfo CameraId='1' StreamId='2'><StreamAddr Port='9' />"
                             "</StreamURIRequestInfo>"));
    EXPECT_EQ(0, codec.getCameraID());
    EXPECT_EQ(0, codec.getStreamID());
    EXPECT_EQ(0, codec.getAddr().getPORT());
}
