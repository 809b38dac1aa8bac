#include "ptz/RS232DeviceInfoXml.h"

#include "tests/support/Documents.h"

namespace
{

RS232DeviceInfo sample()
{
    RS232DeviceInfo info;
    info.setName("Console");
    info.setComId(6);
    return info;
}

void expectInfo(const RS232DeviceInfo& expected, const RS232DeviceInfo& info)
{
    EXPECT_EQ(expected.getName(), info.getName());
    EXPECT_EQ(expected.getComId(), info.getComId());
}

} // namespace

TEST(RS232DeviceInfoXml, Writes)
{
    RS232DeviceInfoXml codec;
    codec.setRS232DeviceInfo(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "ptz/RS232DeviceInfoXml.document.xml"));
}

TEST(RS232DeviceInfoXml, Reads)
{
    RS232DeviceInfoXml codec;
    ASSERT_TRUE(reads(codec, golden("ptz/RS232DeviceInfoXml.document.xml")));
    expectInfo(sample(), codec.getRS232DeviceInfo());
}

TEST(RS232DeviceInfoXml, ResetsWhatIsMissing)
{
    RS232DeviceInfoXml codec;
    codec.setRS232DeviceInfo(sample());
    ASSERT_TRUE(reads(codec, "<RS232DeviceInfo />"));
    expectInfo(RS232DeviceInfo(), codec.getRS232DeviceInfo());
}
