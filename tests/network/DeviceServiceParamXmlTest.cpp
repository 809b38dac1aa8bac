#include "network/DeviceServiceParamXml.h"

#include "tests/support/Documents.h"

TEST(DeviceServiceParamXml, Writes)
{
    DeviceServiceParamXml codec;
    EXPECT_TRUE(matchesGolden(written(codec), "network/DeviceServiceParamXml.document.xml"));

    DeviceServiceParam param;
    param.setAlarmCenterStartFlag(true);
    DeviceServiceParamXml other;
    other.setDeviceServiceParam(param);
    EXPECT_EQ("<DeviceServiceParam AlarmCenterStartFlag=\"true\" />\n", written(other));
}

TEST(DeviceServiceParamXml, Reads)
{
    DeviceServiceParamXml codec;
    codec.getDeviceServiceParam().setAlarmCenterStartFlag(true);
    ASSERT_TRUE(reads(codec, golden("network/DeviceServiceParamXml.document.xml")));
    EXPECT_FALSE(codec.getDeviceServiceParam().getAlarmCenterStartFlag());

    DeviceServiceParamXml other;
    ASSERT_TRUE(reads(other, "<DeviceServiceParam AlarmCenterStartFlag='true' />"));
    EXPECT_TRUE(other.getDeviceServiceParam().getAlarmCenterStartFlag());
}

TEST(DeviceServiceParamXml, TakesAMissingFlagForTrue)
{
    DeviceServiceParamXml codec;
    EXPECT_FALSE(codec.getDeviceServiceParam().getAlarmCenterStartFlag());
    ASSERT_TRUE(reads(codec, "<DeviceServiceParam />"));
    EXPECT_TRUE(codec.getDeviceServiceParam().getAlarmCenterStartFlag());
}
