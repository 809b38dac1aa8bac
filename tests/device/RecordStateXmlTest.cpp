#include "device/RecordStateXml.h"

#include "tests/support/Documents.h"

namespace
{

RecordState record(const std::string& deviceId, int cameraId, int state)
{
    RecordState record;
    record.setDeviceId(deviceId);
    record.setCameraId(cameraId);
    record.setState(state);
    return record;
}

void expectRecordState(const RecordState& expected, const RecordState& state)
{
    EXPECT_EQ(expected.getDeviceId(), state.getDeviceId());
    EXPECT_EQ(expected.getCameraId(), state.getCameraId());
    EXPECT_EQ(expected.getState(), state.getState());
}

} // namespace

TEST(RecordStateXml, Writes)
{
    RecordStateXml codec;
    codec.setRecordStateList({record("D-4", 5, 6), record("", 7, -8)});
    EXPECT_TRUE(matchesGolden(written(codec), "device/RecordStateXml.document.xml"));
}

TEST(RecordStateXml, WritesAnEmptyList)
{
    RecordStateXml codec;
    EXPECT_EQ("<RecordStateList />\n", written(codec));
}

TEST(RecordStateXml, ReadsBehindWhatTheListHolds)
{
    RecordStateXml codec;
    codec.setRecordStateList({record("before", 9, 9)});
    ASSERT_TRUE(reads(codec, golden("device/RecordStateXml.document.xml")));
    ASSERT_EQ(3U, codec.getRecordStateList().size());
    expectRecordState(record("before", 9, 9), codec.getRecordStateList()[0]);
    expectRecordState(record("D-4", 5, 6), codec.getRecordStateList()[1]);
    expectRecordState(record("", 7, -8), codec.getRecordStateList()[2]);
}

TEST(RecordStateXml, ReadsItemsOfItsNameOnlyAndResetsWhatTheyLack)
{
    RecordStateXml codec;
    ASSERT_TRUE(reads(codec, "<RecordStateList>text<Other State='1' /><RecordState State='2' /><!--RecordState-->"
                             "<Other State='3' /><RecordState DeviceId='D' CameraId='x' /></RecordStateList>"));
    ASSERT_EQ(2U, codec.getRecordStateList().size());
    expectRecordState(record("", 0, 2), codec.getRecordStateList()[0]);
    expectRecordState(record("D", 0, 0), codec.getRecordStateList()[1]);
}
