#include "alarm/AlarmOutDeviceInfoXml.h"

#include "tests/support/Documents.h"

namespace
{

AlarmOutDeviceInfo sample()
{
    AlarmOutDeviceInfo info;
    info.setAlarmOutId(4);
    info.setAlarmOutName("Siren & lamp");
    return info;
}

void expectInfo(const AlarmOutDeviceInfo& expected, const AlarmOutDeviceInfo& info)
{
    EXPECT_EQ(expected.getAlarmOutId(), info.getAlarmOutId());
    EXPECT_EQ(expected.getAlarmOutName(), info.getAlarmOutName());
}

} // namespace

TEST(AlarmOutDeviceInfoXml, Writes)
{
    AlarmOutDeviceInfoXml codec;
    codec.setAlarmOutDeviceInfo(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmOutDeviceInfoXml.document.xml"));
}

TEST(AlarmOutDeviceInfoXml, Reads)
{
    AlarmOutDeviceInfoXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmOutDeviceInfoXml.document.xml")));
    expectInfo(sample(), codec.getAlarmOutDeviceInfo());
}

TEST(AlarmOutDeviceInfoXml, ResetsWhatIsMissing)
{
    AlarmOutDeviceInfoXml codec;
    codec.setAlarmOutDeviceInfo(sample());
    ASSERT_TRUE(reads(codec, "<AlarmOutDeviceInfo />"));
    expectInfo(AlarmOutDeviceInfo(), codec.getAlarmOutDeviceInfo());
}
