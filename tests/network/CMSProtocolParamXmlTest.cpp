#include "network/CMSProtocolParamXml.h"

#include "tests/support/Documents.h"

namespace
{

CMSProtocolParam sample()
{
    CMSProtocolParam param;
    param.setProtocolName("CMS");
    param.setProtocolVersion("2.0");
    param.setProtocolSoftwareVersion("2.0.17");
    return param;
}

void expectParam(const CMSProtocolParam& expected, const CMSProtocolParam& param)
{
    EXPECT_EQ(expected.getProtocolName(), param.getProtocolName());
    EXPECT_EQ(expected.getProtocolVersion(), param.getProtocolVersion());
    EXPECT_EQ(expected.getProtocolSoftwareVersion(), param.getProtocolSoftwareVersion());
}

} // namespace

TEST(CMSProtocolParamXml, Writes)
{
    CMSProtocolParamXml codec;
    codec.setCMSProtocolParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "network/CMSProtocolParamXml.document.xml"));
}

TEST(CMSProtocolParamXml, Reads)
{
    CMSProtocolParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/CMSProtocolParamXml.document.xml")));
    expectParam(sample(), codec.getCMSProtocolParam());
}

TEST(CMSProtocolParamXml, LeavesWhatIsMissing)
{
    CMSProtocolParamXml codec;
    codec.setCMSProtocolParam(sample());
    ASSERT_TRUE(reads(codec, "<CMSProtocolParam />"));
    expectParam(sample(), codec.getCMSProtocolParam());
}
