#include "snapshot/ManualSnapshotParameterXml.h"

#include "tests/snapshot/SnapshotPolicySample.h"
#include "tests/support/Documents.h"

namespace
{

ManualSnapshotParameter sample()
{
    ManualSnapshotParameter parameter;
    parameter.setCameraId(2);
    parameter.setSnapshotParameter(sampleSnapshotParameter());
    return parameter;
}

void expectParameter(const ManualSnapshotParameter& expected, const ManualSnapshotParameter& parameter)
{
    EXPECT_EQ(expected.getCameraId(), parameter.getCameraId());
    expectSnapshotParameter(expected.getSnapshotParameter(), parameter.getSnapshotParameter());
}

} // namespace

TEST(ManualSnapshotParameterXml, Writes)
{
    ManualSnapshotParameterXml codec;
    codec.setManualSnapshotParameter(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "snapshot/ManualSnapshotParameterXml.document.xml"));
}

TEST(ManualSnapshotParameterXml, Reads)
{
    ManualSnapshotParameterXml codec;
    ASSERT_TRUE(reads(codec, golden("snapshot/ManualSnapshotParameterXml.document.xml")));
    expectParameter(sample(), codec.getManualSnapshotParameter());
}

TEST(ManualSnapshotParameterXml, ResetsTheCameraAndLeavesTheParameterThatIsMissing)
{
    ManualSnapshotParameterXml codec;
    codec.setManualSnapshotParameter(sample());
    ASSERT_TRUE(reads(codec, "<ManualSnapshotParameter />"));
    ManualSnapshotParameter expected = sample();
    expected.setCameraId(0);
    expectParameter(expected, codec.getManualSnapshotParameter());
}

TEST(ManualSnapshotParameterXml, ReplacesTheParameterByTheOneThatIsThere)
{
    ManualSnapshotParameterXml codec;
    codec.setManualSnapshotParameter(sample());
    ASSERT_TRUE(reads(
        codec, "<ManualSnapshotParameter CameraId='x'><SnapshotParameter interval='9' /></ManualSnapshotParameter>"));
    ManualSnapshotParameter expected;
    expected.getSnapshotParameter().setInterval(9);
    expectParameter(expected, codec.getManualSnapshotParameter());
}
