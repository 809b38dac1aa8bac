#include "device/ImageFormatXml.h"

#include "tests/support/Documents.h"

namespace
{

ImageFormat sample()
{
    ImageFormat format;
    format.setImageFormatId(8);
    format.setImageFormatName("CIF");
    return format;
}

void expectImageFormat(const ImageFormat& expected, const ImageFormat& read)
{
    EXPECT_EQ(expected.getImageFormatId(), read.getImageFormatId());
    EXPECT_EQ(expected.getImageFormatName(), read.getImageFormatName());
}

} // namespace

TEST(ImageFormatXml, Writes)
{
    ImageFormatXml codec;
    codec.setImageFormat(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/ImageFormatXml.document.xml"));
}

TEST(ImageFormatXml, Reads)
{
    ImageFormatXml codec;
    ASSERT_TRUE(reads(codec, golden("device/ImageFormatXml.document.xml")));
    expectImageFormat(sample(), codec.getImageFormat());
}

TEST(ImageFormatXml, ResetsWhatIsMissing)
{
    ImageFormatXml codec;
    codec.setImageFormat(sample());
    ASSERT_TRUE(reads(codec, "<ImageFormat />"));
    expectImageFormat(ImageFormat(), codec.getImageFormat());
}
