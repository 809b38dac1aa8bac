#include "snapshot/RemoteSnapshotParamXml.h"

#include "tests/support/Documents.h"

namespace
{

RemoteSnapshotParam sample()
{
    RemoteSnapshotParam param;
    param.setCameraID(1);
    param.setQuality(2);
    param.setPhotoFormat(3);
    return param;
}

void expectParam(const RemoteSnapshotParam& expected, const RemoteSnapshotParam& param)
{
    EXPECT_EQ(expected.getCameraID(), param.getCameraID());
    EXPECT_EQ(expected.getQuality(), param.getQuality());
    EXPECT_EQ(expected.getPhotoFormat(), param.getPhotoFormat());
}

} // namespace

TEST(RemoteSnapshotParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(RemoteSnapshotParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "snapshot/RemoteSnapshotParamXml.node.xml"));
}

TEST(RemoteSnapshotParamXml, ReadsNodes)
{
    RemoteSnapshotParam read;
    ASSERT_TRUE(RemoteSnapshotParamXml().parseXmlString(golden("snapshot/RemoteSnapshotParamXml.node.xml"), read));
    expectParam(sample(), read);
}

TEST(RemoteSnapshotParamXml, ResetsWhatIsMissing)
{
    CapturedOutput output;
    RemoteSnapshotParam read = sample();
    ASSERT_TRUE(RemoteSnapshotParamXml().parseXmlString("<RemoteSnapshotParam />", read));
    expectParam(RemoteSnapshotParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(RemoteSnapshotParamXml, LeavesTheRecordWhenItRefusesTheRoot)
{
    RemoteSnapshotParam read = sample();
    EXPECT_FALSE(RemoteSnapshotParamXml().parseXmlString("<SnapshotParam CameraID='9' />", read));
    expectParam(sample(), read);
}
