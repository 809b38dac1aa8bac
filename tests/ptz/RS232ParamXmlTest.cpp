#include "ptz/RS232ParamXml.h"

#include "tests/support/Documents.h"

namespace
{

RS232Param sample()
{
    RS232Param param;
    param.setComId(1);
    param.setFunction(5);
    param.setBaudRate(115200);
    param.setDataBits(8);
    param.setStopBits(2);
    param.setParity(3);
    return param;
}

void expectParam(const RS232Param& expected, const RS232Param& param)
{
    EXPECT_EQ(expected.getComId(), param.getComId());
    EXPECT_EQ(expected.getFunction(), param.getFunction());
    EXPECT_EQ(expected.getBaudRate(), param.getBaudRate());
    EXPECT_EQ(expected.getDataBits(), param.getDataBits());
    EXPECT_EQ(expected.getStopBits(), param.getStopBits());
    EXPECT_EQ(expected.getParity(), param.getParity());
}

} // namespace

TEST(RS232ParamXml, Writes)
{
    RS232ParamXml codec;
    codec.setRS232Param(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "ptz/RS232ParamXml.document.xml"));
}

TEST(RS232ParamXml, Reads)
{
    RS232ParamXml codec;
    ASSERT_TRUE(reads(codec, golden("ptz/RS232ParamXml.document.xml")));
    expectParam(sample(), codec.getRS232Param());
}

TEST(RS232ParamXml, ResetsWhatIsMissing)
{
    RS232ParamXml codec;
    codec.setRS232Param(sample());
    ASSERT_TRUE(reads(codec, "<RS232Param />"));
    expectParam(RS232Param(), codec.getRS232Param());
}
