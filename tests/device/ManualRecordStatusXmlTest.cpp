#include "device/ManualRecordStatusXml.h"

#include "tests/support/Documents.h"

namespace
{

ManualRecordStatus status(int cameraId, std::uint8_t recordStatus)
{
    ManualRecordStatus status;
    status.setCameraId(cameraId);
    status.setRecordStatus(recordStatus);
    return status;
}

void expectManualRecordStatus(const ManualRecordStatus& expected, const ManualRecordStatus& status)
{
    EXPECT_EQ(expected.getCameraId(), status.getCameraId());
    EXPECT_EQ(expected.getRecordStatus(), status.getRecordStatus());
}

} // namespace

TEST(ManualRecordStatusXml, Writes)
{
    ManualRecordStatusXml codec;
    codec.setManualRecordStatusList({status(5, 6), status(-7, 255)});
    EXPECT_TRUE(matchesGolden(written(codec), "device/ManualRecordStatusXml.document.xml"));
}

TEST(ManualRecordStatusXml, WritesAnEmptyList)
{
    ManualRecordStatusXml codec;
    EXPECT_EQ("<ManualRecordStatusList />\n", written(codec));
}

TEST(ManualRecordStatusXml, ReadsBehindWhatTheListHolds)
{
    ManualRecordStatusXml codec;
    codec.setManualRecordStatusList({status(9, 9)});
    ASSERT_TRUE(reads(codec, golden("device/ManualRecordStatusXml.document.xml")));
    ASSERT_EQ(3U, codec.getManualRecordStatusList().size());
    expectManualRecordStatus(status(9, 9), codec.getManualRecordStatusList()[0]);
    expectManualRecordStatus(status(5, 6), codec.getManualRecordStatusList()[1]);
    expectManualRecordStatus(status(-7, 255), codec.getManualRecordStatusList()[2]);
}

TEST(ManualRecordStatusXml, ReadsItemsOfItsNameOnlyAndLeavesWhatTheyLackAtZero)
{
    ManualRecordStatusXml codec;
    ASSERT_TRUE(reads(codec,
                      "<ManualRecordStatusList>text<Other RecordStatus='1' /><ManualRecordStatus RecordStatus='2' />"
                      "<!--ManualRecordStatus--><Other RecordStatus='3' />"
                      "<ManualRecordStatus CameraId='4x' RecordStatus='x' /></ManualRecordStatusList>"));
    ASSERT_EQ(2U, codec.getManualRecordStatusList().size());
    expectManualRecordStatus(status(0, 2), codec.getManualRecordStatusList()[0]);
    expectManualRecordStatus(status(4, 0), codec.getManualRecordStatusList()[1]);
}

TEST(ManualRecordStatusXml, NarrowsTheStatus)
{
    ManualRecordStatusXml codec;
    ASSERT_TRUE(
        reads(codec, "<ManualRecordStatusList><ManualRecordStatus RecordStatus='257' /></ManualRecordStatusList>"));
    ASSERT_EQ(1U, codec.getManualRecordStatusList().size());
    expectManualRecordStatus(status(0, 1), codec.getManualRecordStatusList()[0]);
}
