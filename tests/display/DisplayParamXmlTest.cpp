#include "display/DisplayParamXml.h"

#include "tests/support/Documents.h"

namespace
{

DisplayParam sample(int first)
{
    DisplayParam param;
    param.setFrameMode(first);
    param.setDisplayType(first + 1);
    param.setFrameRate(first + 2);
    return param;
}

void expectParam(const DisplayParam& expected, const DisplayParam& param)
{
    EXPECT_EQ(expected.getFrameMode(), param.getFrameMode());
    EXPECT_EQ(expected.getDisplayType(), param.getDisplayType());
    EXPECT_EQ(expected.getFrameRate(), param.getFrameRate());
}

} // namespace

TEST(DisplayParamXml, Writes)
{
    DisplayParamXml codec;
    codec.setDisplayParam(sample(11));
    EXPECT_TRUE(matchesGolden(written(codec), "display/DisplayParamXml.document.xml"));
}

TEST(DisplayParamXml, Reads)
{
    DisplayParamXml codec;
    ASSERT_TRUE(reads(codec, golden("display/DisplayParamXml.document.xml")));
    expectParam(sample(11), codec.getDisplayParam());
}

TEST(DisplayParamXml, ResetsWhatIsMissing)
{
    DisplayParamXml codec;
    codec.setDisplayParam(sample(11));
    ASSERT_TRUE(reads(codec, "<DisplayParam />"));
    expectParam(DisplayParam(), codec.getDisplayParam());
}
