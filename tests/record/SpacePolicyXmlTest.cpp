#include "record/SpacePolicyXml.h"

#include "tests/record/RecordPolicySample.h"
#include "tests/support/Documents.h"

#include <cmath>
#include <limits>

TEST(SpacePolicyXml, Writes)
{
    SpacePolicyXml codec;
    codec.setSpacePolicy(sampleSpacePolicy());
    EXPECT_TRUE(matchesGolden(written(codec), "record/SpacePolicyXml.document.xml"));
}

TEST(SpacePolicyXml, Reads)
{
    SpacePolicyXml codec;
    ASSERT_TRUE(reads(codec, golden("record/SpacePolicyXml.document.xml")));
    expectSpacePolicy(sampleSpacePolicy(), codec.getSpacePolicy());
}

TEST(SpacePolicyXml, ResetsWhatIsMissing)
{
    SpacePolicyXml codec;
    codec.setSpacePolicy(sampleSpacePolicy());
    ASSERT_TRUE(reads(codec, "<SpacePolicy />"));
    expectSpacePolicy(SpacePolicy(), codec.getSpacePolicy());
}

TEST(SpacePolicyXml, WritesPercentagesInDoublePrecision)
{
    SpacePolicyXml codec;
    codec.getSpacePolicy().setScheduleRecordDiskSizePercent(0.1F);
    const std::string text = written(codec);
    EXPECT_EQ("<SpacePolicy CameraId=\"0\" MaxDiskSize=\"0\""
              " ScheduleRecordDiskSizePercent=\"0.10000000149011612\" AlarmRecordDiskSizePercent=\"0\" />\n",
              text);

    SpacePolicyXml reader;
    ASSERT_TRUE(reads(reader, text));
    EXPECT_EQ(0.1F, reader.getSpacePolicy().getScheduleRecordDiskSizePercent());
}

TEST(SpacePolicyXml, ReadsPercentagesThatNoFloatHolds)
{
    SpacePolicyXml codec;
    ASSERT_TRUE(reads(codec, "<SpacePolicy ScheduleRecordDiskSizePercent='1e300' AlarmRecordDiskSizePercent='nan' />"));
    EXPECT_EQ(std::numeric_limits<float>::infinity(), codec.getSpacePolicy().getScheduleRecordDiskSizePercent());
    EXPECT_TRUE(std::isnan(codec.getSpacePolicy().getAlarmRecordDiskSizePercent()));
}
