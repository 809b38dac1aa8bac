#include "network/I3GStateParamXml.h"

#include "tests/support/Documents.h"

namespace
{

I3GStateParam sample()
{
    I3GStateParam param;
    param.setConnectState(2);
    param.setOperator("Example Mobile");
    param.setNetType("WCDMA");
    param.setSignalQuality(71);
    param.setSIMState(4);
    return param;
}

void expectParam(const I3GStateParam& expected, const I3GStateParam& param)
{
    EXPECT_EQ(expected.getConnectState(), param.getConnectState());
    EXPECT_EQ(expected.getOperator(), param.getOperator());
    EXPECT_EQ(expected.getNetType(), param.getNetType());
    EXPECT_EQ(expected.getSignalQuality(), param.getSignalQuality());
    EXPECT_EQ(expected.getSIMState(), param.getSIMState());
}

} // namespace

TEST(I3GStateParamXml, Writes)
{
    I3GStateParamXml codec;
    codec.setI3GStateParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "network/I3GStateParamXml.document.xml"));
}

TEST(I3GStateParamXml, Reads)
{
    I3GStateParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/I3GStateParamXml.document.xml")));
    expectParam(sample(), codec.getI3GStateParam());
}

TEST(I3GStateParamXml, LeavesWhatIsMissing)
{
    I3GStateParamXml codec;
    codec.setI3GStateParam(sample());
    ASSERT_TRUE(reads(codec, "<I3GStateParam />"));
    expectParam(sample(), codec.getI3GStateParam());
}
