#include "record/ManualRecordParameterXml.h"

#include "tests/support/Documents.h"

namespace
{

ManualRecordParameter sample()
{
    ManualRecordParameter parameter;
    parameter.setCameraId(1);
    parameter.setRecordDuration(1425283747);
    parameter.setStreamId(3);
    return parameter;
}

void expectParameter(const ManualRecordParameter& expected, const ManualRecordParameter& parameter)
{
    EXPECT_EQ(expected.getCameraId(), parameter.getCameraId());
    EXPECT_EQ(expected.getRecordDuration(), parameter.getRecordDuration());
    EXPECT_EQ(expected.getStreamId(), parameter.getStreamId());
}

} // namespace

TEST(ManualRecordParameterXml, Writes)
{
    ManualRecordParameterXml codec;
    codec.setManualRecordParameter(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "record/ManualRecordParameterXml.document.xml"));
}

TEST(ManualRecordParameterXml, Reads)
{
    ManualRecordParameterXml codec;
    ASSERT_TRUE(reads(codec, golden("record/ManualRecordParameterXml.document.xml")));
    expectParameter(sample(), codec.getManualRecordParameter());
}

TEST(ManualRecordParameterXml, LeavesWhatIsMissing)
{
    ManualRecordParameterXml codec;
    codec.setManualRecordParameter(sample());
    ASSERT_TRUE(reads(codec, "<ManualRecordParameter />"));
    expectParameter(sample(), codec.getManualRecordParameter());
}

TEST(ManualRecordParameterXml, WritesASpanAsAPointInTime)
{
    ManualRecordParameterXml codec;
    codec.getManualRecordParameter().setRecordDuration(60);
    EXPECT_EQ("<ManualRecordParameter CameraId=\"0\" Duration=\"1970-01-01 00:01:00\" StreamId=\"0\" />\n",
              written(codec));
}

TEST(ManualRecordParameterXml, TakesWhatIsNoValueForZero)
{
    ManualRecordParameterXml codec;
    codec.setManualRecordParameter(sample());
    ASSERT_TRUE(reads(codec, "<ManualRecordParameter CameraId='first' Duration='60' StreamId='12x' />"));
    ManualRecordParameter expected;
    expected.setStreamId(12);
    expectParameter(expected, codec.getManualRecordParameter());
}
