#include "network/UpdateParamXml.h"

#include "tests/support/Documents.h"

namespace
{

UpdateParam sample()
{
    UpdateParam param;
    param.setUpdateEnableFlag(true);
    param.setUpdateServerIP("192.0.2.7");
    param.setUpdateServerPort(30006);
    param.setUpdatePeriod(24);
    param.setIPProtoVer(4);
    return param;
}

void expectParam(const UpdateParam& expected, const UpdateParam& param)
{
    EXPECT_EQ(expected.getUpdateEnableFlag(), param.getUpdateEnableFlag());
    EXPECT_EQ(expected.getUpdateServerIP(), param.getUpdateServerIP());
    EXPECT_EQ(expected.getUpdateServerPort(), param.getUpdateServerPort());
    EXPECT_EQ(expected.getUpdatePeriod(), param.getUpdatePeriod());
    EXPECT_EQ(expected.getIPProtoVer(), param.getIPProtoVer());
}

} // namespace

TEST(UpdateParamXml, Writes)
{
    UpdateParamXml codec;
    codec.setUpdateParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "network/UpdateParamXml.document.xml"));
}

TEST(UpdateParamXml, Reads)
{
    UpdateParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/UpdateParamXml.document.xml")));
    expectParam(sample(), codec.getUpdateParam());
}

TEST(UpdateParamXml, ResetsWhatIsMissing)
{
    UpdateParamXml codec;
    codec.setUpdateParam(sample());
    ASSERT_TRUE(reads(codec, "<UpdateParam />"));
    expectParam(UpdateParam(), codec.getUpdateParam());
}
