#include "alarm/AlarmInDeviceInfoXml.h"

#include "tests/support/Documents.h"

namespace
{

AlarmInDeviceInfo sample()
{
    AlarmInDeviceInfo info;
    info.setAlarmInId(3);
    info.setAlarmInName("Door & gate");
    return info;
}

void expectInfo(const AlarmInDeviceInfo& expected, const AlarmInDeviceInfo& info)
{
    EXPECT_EQ(expected.getAlarmInId(), info.getAlarmInId());
    EXPECT_EQ(expected.getAlarmInName(), info.getAlarmInName());
}

} // namespace

TEST(AlarmInDeviceInfoXml, Writes)
{
    AlarmInDeviceInfoXml codec;
    codec.setAlarmInDeviceInfo(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmInDeviceInfoXml.document.xml"));
}

TEST(AlarmInDeviceInfoXml, Reads)
{
    AlarmInDeviceInfoXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmInDeviceInfoXml.document.xml")));
    expectInfo(sample(), codec.getAlarmInDeviceInfo());
}

TEST(AlarmInDeviceInfoXml, ResetsWhatIsMissing)
{
    AlarmInDeviceInfoXml codec;
    codec.setAlarmInDeviceInfo(sample());
    ASSERT_TRUE(reads(codec, "<AlarmInDeviceInfo />"));
    expectInfo(AlarmInDeviceInfo(), codec.getAlarmInDeviceInfo());
}
