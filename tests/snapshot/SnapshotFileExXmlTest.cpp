#include "snapshot/SnapshotFileExXml.h"

#include "tests/snapshot/SnapshotSample.h"
#include "tests/support/Documents.h"

TEST(SnapshotFileExXml, Writes)
{
    SnapshotFileEx file = sampleStretch();
    file.setSnapshotAlarmExType(alarmType("Motion", 1, 2));
    SnapshotFileExXml codec;
    codec.setSnapshotFile(file);
    EXPECT_TRUE(matchesGolden(written(codec), "snapshot/SnapshotFileExXml.document.xml"));
}

TEST(SnapshotFileExXml, Reads)
{
    SnapshotFileExXml codec;
    codec.setSnapshotFile(emptyStretch("d1", "10.0.0.9", 3));
    ASSERT_TRUE(reads(codec, golden("snapshot/SnapshotFileExXml.document.xml")));
    expectStretch(sampleStretch(), codec.getSnapshotFile());
}

TEST(SnapshotFileExXml, LeavesWhatIsMissing)
{
    SnapshotFileEx file = sampleStretch();
    file.setSnapshotAlarmExType(alarmType("Motion", 1, 2));
    SnapshotFileExXml codec;
    codec.setSnapshotFile(file);
    ASSERT_TRUE(reads(codec, "<SnapshotFile snapshotFileTime='5' />"));
    expectStretch(file, codec.getSnapshotFile());
}

TEST(SnapshotFileExXml, ReplacesTheAlarmAsAWhole)
{
    SnapshotFileEx file = sampleStretch();
    file.setSnapshotAlarmExType(alarmType("Motion", 1, 2));
    SnapshotFileExXml codec;
    codec.setSnapshotFile(file);
    ASSERT_TRUE(reads(codec, "<SnapshotFile><AlarmExType AlarmTypeName='x' MinorAlarmType='9' /></SnapshotFile>"));
    expectAlarmTypes({alarmType("", 0, 9)}, {codec.getSnapshotFile().getSnapshotAlarmExType()});
}

TEST(SnapshotFileExXml, PassesOverAListOfAlarms)
{
    SnapshotFileExXml codec;
    ASSERT_TRUE(reads(codec, "<SnapshotFile><AlarmExTypeList><AlarmExType MajorAlarmType='1' /></AlarmExTypeList>"
                             "</SnapshotFile>"));
    expectStretch(SnapshotFileEx(), codec.getSnapshotFile());
}

TEST(SnapshotFileExXml, ReadsTimesThroughADouble)
{
    SnapshotFileExXml codec;
    ASSERT_TRUE(reads(codec, "<SnapshotFile SnapshotFileBeginTime='9007199254740993' SnapshotFileEndTime='nan' />"));
    EXPECT_EQ(9007199254740992, codec.getSnapshotFile().getSnapshotFileBeginTime());
    EXPECT_EQ(0, codec.getSnapshotFile().getSnapshotFileEndTime());
}

TEST(SnapshotFileExXml, ConvertsNumbers)
{
    std::string text;
    EXPECT_TRUE(SnapshotFileExXml().Int642Str(-1, text));
    EXPECT_EQ("-1", text);
    long long value = 7;
    EXPECT_TRUE(SnapshotFileExXml().str2Int64("12.9", value));
    EXPECT_EQ(12, value);
}
