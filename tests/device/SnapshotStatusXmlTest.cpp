#include "device/SnapshotStatusXml.h"

#include "tests/support/Documents.h"

namespace
{

SnapshotStatus record(int cameraId, int status)
{
    SnapshotStatus record;
    record.setCameraId(cameraId);
    record.setStatus(status);
    return record;
}

void expectSnapshotStatus(const SnapshotStatus& expected, const SnapshotStatus& status)
{
    EXPECT_EQ(expected.getCameraId(), status.getCameraId());
    EXPECT_EQ(expected.getStatus(), status.getStatus());
}

} // namespace

TEST(SnapshotStatusXml, Writes)
{
    SnapshotStatusXml codec;
    codec.setSnapshotStatusList({record(5, 6), record(7, -8)});
    EXPECT_TRUE(matchesGolden(written(codec), "device/SnapshotStatusXml.document.xml"));
}

TEST(SnapshotStatusXml, WritesAnEmptyList)
{
    SnapshotStatusXml codec;
    EXPECT_EQ("<SnapshotStatusList />\n", written(codec));
}

TEST(SnapshotStatusXml, ReadsBehindWhatTheListHolds)
{
    SnapshotStatusXml codec;
    codec.setSnapshotStatusList({record(9, 9)});
    ASSERT_TRUE(reads(codec, golden("device/SnapshotStatusXml.document.xml")));
    ASSERT_EQ(3U, codec.getSnapshotStatusList().size());
    expectSnapshotStatus(record(9, 9), codec.getSnapshotStatusList()[0]);
    expectSnapshotStatus(record(5, 6), codec.getSnapshotStatusList()[1]);
    expectSnapshotStatus(record(7, -8), codec.getSnapshotStatusList()[2]);
}

TEST(SnapshotStatusXml, ReadsItemsOfItsNameOnlyAndLeavesWhatTheyLackAtZero)
{
    SnapshotStatusXml codec;
    ASSERT_TRUE(reads(codec,
                      "<SnapshotStatusList>text<Other Status='1' /><SnapshotStatus Status='2' /><!--SnapshotStatus-->"
                      "<Other Status='3' /><SnapshotStatus CameraId='4x' Status='x' /></SnapshotStatusList>"));
    ASSERT_EQ(2U, codec.getSnapshotStatusList().size());
    expectSnapshotStatus(record(0, 2), codec.getSnapshotStatusList()[0]);
    expectSnapshotStatus(record(4, 0), codec.getSnapshotStatusList()[1]);
}
