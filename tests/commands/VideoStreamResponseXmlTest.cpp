#include "commands/VideoStreamResponseXml.h"

#include "media/AVStreamParamXml.h"
#include "tests/media/StreamSamples.h"
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

void fill(VideoStreamResponseXml& codec)
{
    codec.setConsumerId(1);
    codec.setStreamAddr(address("192.0.2.17", 9000, 4));
    codec.setAVStreamParam(sampleStream(11));
}

} // namespace

TEST(VideoStreamResponseXml, WritesAllButTheStream)
{
    VideoStreamResponseXml codec;
    fill(codec);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/VideoStreamResponseXml.document.xml"));
}

TEST(VideoStreamResponseXml, Reads)
{
    VideoStreamResponseXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/VideoStreamResponseXml.document.xml")));
    EXPECT_EQ(1, codec.getConsumerId());
    expectAddress(address("192.0.2.17", 9000, 4), codec.getStreamAddr());
    expectStream(AVStreamParam(), codec.getAVStreamParam());
}

TEST(VideoStreamResponseXml, ReadsTheFirstStreamOfTheList)
{
    AVStreamParamXml list;
    list.setAVStreamParamList({sampleStream(11), sampleStream(31)});
    VideoStreamResponseXml codec;
    codec.setAVStreamParam(sampleStream(71));
    ASSERT_TRUE(reads(codec, "<VideoStreamResponseCommand>" + written(list) + "</VideoStreamResponseCommand>"));
    expectStream(sampleStream(11), codec.getAVStreamParam());

    VideoStreamResponseXml other;
    ASSERT_TRUE(reads(other, "<VideoStreamResponseCommand><AVStreamParamList><AVStreamParam /></AVStreamParamList>"
                             "</VideoStreamResponseCommand>"));
    AVStreamParam expected;
    expected.setIFrameIntervalUnit(1);
    expectStream(expected, other.getAVStreamParam());
}

TEST(VideoStreamResponseXml, LeavesWhatIsMissing)
{
    for (const char* content : {"", "<StreamAddr /><AVStreamParamList />",
                                "<!--StreamAddr--><AVStreamParamList>text<Other /></AVStreamParamList>"})
    {
        VideoStreamResponseXml codec;
        fill(codec);
        ASSERT_TRUE(
            reads(codec, std::string("<VideoStreamResponseCommand>") + content + "</VideoStreamResponseCommand>"));
        EXPECT_EQ(1, codec.getConsumerId()) << content;
        expectAddress(address("192.0.2.17", 9000, 4), codec.getStreamAddr());
        expectStream(sampleStream(11), codec.getAVStreamParam());
    }
}

TEST(VideoStreamResponseXml, PassesOverTheOtherSpelling)
{
    VideoStreamResponseXml codec;
    ASSERT_TRUE(reads(codec, "<VideoStreamResponseCommand ComsumerId='7'><StreamAddr IPProtoVer='4' Port='65537' />"
                             "</VideoStreamResponseCommand>"));
    EXPECT_EQ(0, codec.getConsumerId());
    expectAddress(address("", 1, 0), codec.getStreamAddr());
}
