#include "device/DeviceImageFormatXml.h"

#include "tests/support/Documents.h"

namespace
{

DeviceImageFormat sample()
{
    DeviceImageFormat format;
    format.setDeviceId("D-17");
    format.setCameraId(15);
    format.setImageFormatId(8);
    return format;
}

void expectDeviceImageFormat(const DeviceImageFormat& expected, const DeviceImageFormat& read)
{
    EXPECT_EQ(expected.getDeviceId(), read.getDeviceId());
    EXPECT_EQ(expected.getCameraId(), read.getCameraId());
    EXPECT_EQ(expected.getImageFormatId(), read.getImageFormatId());
}

} // namespace

TEST(DeviceImageFormatXml, Writes)
{
    DeviceImageFormatXml codec;
    codec.setDeviceImageFormat(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/DeviceImageFormatXml.document.xml"));
}

TEST(DeviceImageFormatXml, Reads)
{
    DeviceImageFormatXml codec;
    ASSERT_TRUE(reads(codec, golden("device/DeviceImageFormatXml.document.xml")));
    expectDeviceImageFormat(sample(), codec.getDeviceImageFormat());
}

TEST(DeviceImageFormatXml, ResetsWhatIsMissing)
{
    DeviceImageFormatXml codec;
    codec.setDeviceImageFormat(sample());
    ASSERT_TRUE(reads(codec, "<DeviceImageFormat />"));
    expectDeviceImageFormat(DeviceImageFormat(), codec.getDeviceImageFormat());
}
