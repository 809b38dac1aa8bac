#include "network/FTPParamXml.h"

#include "tests/support/Documents.h"

namespace
{

FTPParam sample()
{
    FTPParam param;
    param.setFTPEnableFlag(true);
    param.setFTPServerAddr("files.example.org");
    param.setFTPUserName("recorder");
    param.setFTPPassword("not told");
    param.setFTPServerWorkPath("/upload/gate");
    param.setIPProtoVer(4);
    return param;
}

void expectParam(const FTPParam& expected, const FTPParam& param)
{
    EXPECT_EQ(expected.getFTPEnableFlag(), param.getFTPEnableFlag());
    EXPECT_EQ(expected.getFTPServerAddr(), param.getFTPServerAddr());
    EXPECT_EQ(expected.getFTPUserName(), param.getFTPUserName());
    EXPECT_TRUE(expected.getFTPPassword() == param.getFTPPassword()); // without the texts
    EXPECT_EQ(expected.getFTPServerWorkPath(), param.getFTPServerWorkPath());
    EXPECT_EQ(expected.getIPProtoVer(), param.getIPProtoVer());
}

} // namespace

TEST(FTPParamXml, Writes)
{
    FTPParamXml codec;
    codec.setFTPParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "network/FTPParamXml.document.xml"));
}

TEST(FTPParamXml, Reads)
{
    FTPParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/FTPParamXml.document.xml")));
    expectParam(sample(), codec.getFTPParam());
}

TEST(FTPParamXml, ResetsWhatIsMissing)
{
    FTPParamXml codec;
    codec.setFTPParam(sample());
    ASSERT_TRUE(reads(codec, "<FTPParam />"));
    expectParam(FTPParam(), codec.getFTPParam());
}
