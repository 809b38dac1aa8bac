#include "ptz/RS485DeviceInfoXml.h"

#include "tests/support/Documents.h"

namespace
{

RS485DeviceInfo sample()
{
    RS485DeviceInfo info;
    info.setComId(7);
    info.setName("Dome bus");
    return info;
}

void expectInfo(const RS485DeviceInfo& expected, const RS485DeviceInfo& info)
{
    EXPECT_EQ(expected.getComId(), info.getComId());
    EXPECT_EQ(expected.getName(), info.getName());
}

} // namespace

TEST(RS485DeviceInfoXml, Writes)
{
    RS485DeviceInfoXml codec;
    codec.setRS485DeviceInfo(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "ptz/RS485DeviceInfoXml.document.xml"));
}

TEST(RS485DeviceInfoXml, Reads)
{
    RS485DeviceInfoXml codec;
    ASSERT_TRUE(reads(codec, golden("ptz/RS485DeviceInfoXml.document.xml")));
    expectInfo(sample(), codec.getRS485DeviceInfo());
}

TEST(RS485DeviceInfoXml, ResetsWhatIsMissing)
{
    RS485DeviceInfoXml codec;
    codec.setRS485DeviceInfo(sample());
    ASSERT_TRUE(reads(codec, "<RS485DeviceInfo />"));
    expectInfo(RS485DeviceInfo(), codec.getRS485DeviceInfo());
}
