#include "device/ResolutionXml.h"

#include "tests/support/Documents.h"

namespace
{

Resolution sample()
{
    Resolution resolution;
    resolution.setResolutionId(7);
    resolution.setResolutionName("Half");
    return resolution;
}

void expectResolution(const Resolution& expected, const Resolution& read)
{
    EXPECT_EQ(expected.getResolutionId(), read.getResolutionId());
    EXPECT_EQ(expected.getResolutionName(), read.getResolutionName());
}

} // namespace

TEST(ResolutionXml, Writes)
{
    ResolutionXml codec;
    codec.setResolution(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/ResolutionXml.document.xml"));
}

TEST(ResolutionXml, Reads)
{
    ResolutionXml codec;
    ASSERT_TRUE(reads(codec, golden("device/ResolutionXml.document.xml")));
    expectResolution(sample(), codec.getResolution());
}

TEST(ResolutionXml, ResetsWhatIsMissing)
{
    ResolutionXml codec;
    codec.setResolution(sample());
    ASSERT_TRUE(reads(codec, "<Resolution />"));
    expectResolution(Resolution(), codec.getResolution());
}
