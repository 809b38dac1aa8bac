#include "snapshot/SnapshotDownParamXml.h"

#include "tests/snapshot/SnapshotSample.h"
#include "tests/support/Documents.h"

namespace
{

SnapshotDownParam sample()
{
    SnapshotDownParam param;
    param.setCameraID(1);
    param.setSnapTime(1425283747045);
    param.setSnapIndex(2);
    param.setSnapAlarmType(alarmType("", 3, 4));
    return param;
}

void expectParam(const SnapshotDownParam& expected, const SnapshotDownParam& param)
{
    EXPECT_EQ(expected.getCameraID(), param.getCameraID());
    EXPECT_EQ(expected.getSnapTime(), param.getSnapTime());
    EXPECT_EQ(expected.getSnapIndex(), param.getSnapIndex());
    expectAlarmTypes({expected.getSnapAlarmType()}, {param.getSnapAlarmType()});
}

} // namespace

TEST(SnapshotDownParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(SnapshotDownParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "snapshot/SnapshotDownParamXml.node.xml"));
}

TEST(SnapshotDownParamXml, ReadsNodes)
{
    SnapshotDownParam read;
    read.setSnapAlarmType(alarmType("Motion", 5, 6));
    ASSERT_TRUE(SnapshotDownParamXml().parseXmlString(golden("snapshot/SnapshotDownParamXml.node.xml"), read));
    expectParam(sample(), read);
}

TEST(SnapshotDownParamXml, RefusesATextThatLacksAProperty)
{
    const std::string properties[] = {"CameraID", "SnapBeginTime", "SnapIndex", "SnapMajor", "SnapMinor"};
    for (const std::string& missing : properties)
    {
        std::string text = "<SnapshotDownParam";
        for (const std::string& property : properties)
        {
            if (property != missing) text += " " + property + "='9'";
        }
        CapturedOutput output;
        SnapshotDownParam read = sample();
        EXPECT_FALSE(SnapshotDownParamXml().parseXmlString(text + " />", read)) << missing;
        expectParam(sample(), read);
        EXPECT_EQ("", output.text());
    }
}

TEST(SnapshotDownParamXml, TakesWhatIsNoNumberForZero)
{
    SnapshotDownParam read = sample();
    ASSERT_TRUE(SnapshotDownParamXml().parseXmlString(
        "<SnapshotDownParam CameraID='x' SnapBeginTime='x' SnapIndex='' SnapMajor='7x' SnapMinor='x' />", read));
    SnapshotDownParam expected;
    expected.setSnapAlarmType(alarmType("", 7, 0));
    expectParam(expected, read);
}

TEST(SnapshotDownParamXml, ReadsTheTimeThroughADouble)
{
    SnapshotDownParam read;
    ASSERT_TRUE(SnapshotDownParamXml().parseXmlString(
        "<SnapshotDownParam CameraID='1' SnapBeginTime='9007199254740993' SnapIndex='1' SnapMajor='1' SnapMinor='1' />",
        read));
    EXPECT_EQ(9007199254740992, read.getSnapTime());
}

TEST(SnapshotDownParamXml, ConvertsNumbers)
{
    std::string text;
    EXPECT_TRUE(SnapshotDownParamXml().Int642Str(-1, text));
    EXPECT_EQ("-1", text);
    long long value = 7;
    EXPECT_TRUE(SnapshotDownParamXml().str2Int64("none", value));
    EXPECT_EQ(0, value);
}
