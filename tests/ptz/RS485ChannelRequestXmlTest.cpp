#include "ptz/RS485ChannelRequestXml.h"

#include "tests/ptz/ExternInterfaceSample.h"
#include "tests/support/Documents.h"

TEST(RS485ChannelRequestXml, Writes)
{
    RS485ChannelRequestXml codec;
    codec.setDataChannelId(21);
    codec.setRS485Device(samplePort());
    EXPECT_TRUE(matchesGolden(written(codec), "ptz/RS485ChannelRequestXml.document.xml"));
}

TEST(RS485ChannelRequestXml, Reads)
{
    RS485ChannelRequestXml codec;
    ASSERT_TRUE(reads(codec, golden("ptz/RS485ChannelRequestXml.document.xml")));
    EXPECT_EQ(21, codec.getDataChannelId());
    expectPort(samplePort(), codec.getRS485Device());
}

TEST(RS485ChannelRequestXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    RS485ChannelRequestXml codec;
    ASSERT_TRUE(reads(codec, "<RS485ChannelRequestCommand />"));
    EXPECT_EQ(0, codec.getDataChannelId());
    expectPort(RS485Device(), codec.getRS485Device());

    RS485ChannelRequestXml used;
    used.setDataChannelId(21);
    used.setRS485Device(samplePort());
    ASSERT_TRUE(reads(used, "<RS485ChannelRequestCommand><!--RS485Device--></RS485ChannelRequestCommand>"));
    EXPECT_EQ(21, used.getDataChannelId());
    expectPort(samplePort(), used.getRS485Device());
}

TEST(RS485ChannelRequestXml, ReplacesThePortByTheOneThatIsThere)
{
    RS485ChannelRequestXml codec;
    codec.setRS485Device(samplePort());
    ASSERT_TRUE(reads(codec, "<RS485ChannelRequestCommand><RS485Device ComId='9' /></RS485ChannelRequestCommand>"));
    RS485Device expected;
    expected.setComId(9);
    expectPort(expected, codec.getRS485Device());
}
