#include "device/I3GAbilityParamXml.h"

#include "tests/support/Documents.h"

namespace
{

I3GAbilityParam sample()
{
    I3GAbilityParam param;
    param.setSupportFlag(true);
    param.set3GDeviceName("ppp0");
    return param;
}

void expectI3GAbilityParam(const I3GAbilityParam& expected, const I3GAbilityParam& read)
{
    EXPECT_EQ(expected.getSupportFlag(), read.getSupportFlag());
    EXPECT_EQ(expected.get3GDeviceName(), read.get3GDeviceName());
}

} // namespace

TEST(I3GAbilityParamXml, Writes)
{
    I3GAbilityParamXml codec;
    codec.setI3GAbilityParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/I3GAbilityParamXml.document.xml"));
}

TEST(I3GAbilityParamXml, Reads)
{
    I3GAbilityParamXml codec;
    ASSERT_TRUE(reads(codec, golden("device/I3GAbilityParamXml.document.xml")));
    expectI3GAbilityParam(sample(), codec.getI3GAbilityParam());
}

TEST(I3GAbilityParamXml, LeavesWhatIsMissing)
{
    I3GAbilityParamXml codec;
    codec.setI3GAbilityParam(sample());
    ASSERT_TRUE(reads(codec, "<I3GAbilityParam />"));
    expectI3GAbilityParam(sample(), codec.getI3GAbilityParam());
}
