#include "device/CameraDeviceXml.h"

#include "tests/support/Documents.h"

namespace
{

CameraDevice camera(int id, const std::string& name, const std::string& model, int videoSystem)
{
    CameraDevice camera;
    camera.setCameraId(id);
    camera.setCameraName(name);
    camera.setCameraModel(model);
    camera.setVideoSystem(videoSystem);
    return camera;
}

CameraDevice sample()
{
    return camera(3, "North gate", "M-200", 1);
}

void expectCamera(const CameraDevice& expected, const CameraDevice& camera)
{
    EXPECT_EQ(expected.getCameraId(), camera.getCameraId());
    EXPECT_EQ(expected.getCameraName(), camera.getCameraName());
    EXPECT_EQ(expected.getCameraModel(), camera.getCameraModel());
    EXPECT_EQ(expected.getVideoSystem(), camera.getVideoSystem());
}

} // namespace

TEST(CameraDeviceXml, Writes)
{
    CameraDeviceXml codec;
    codec.setCameraDevice(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/CameraDeviceXml.document.xml"));
}

TEST(CameraDeviceXml, Reads)
{
    CameraDeviceXml codec;
    ASSERT_TRUE(reads(codec, golden("device/CameraDeviceXml.document.xml")));
    expectCamera(sample(), codec.getCameraDevice());
}

TEST(CameraDeviceXml, ResetsWhatIsMissing)
{
    CameraDeviceXml codec;
    codec.setCameraDevice(sample());
    ASSERT_TRUE(reads(codec, "<CameraDevice />"));
    expectCamera(CameraDevice(), codec.getCameraDevice());
}

TEST(CameraDeviceXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(CameraDeviceXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "device/CameraDeviceXml.node.xml"));
}

TEST(CameraDeviceXml, ReadsNodes)
{
    CameraDevice read;
    ASSERT_TRUE(CameraDeviceXml().parseXmlString(golden("device/CameraDeviceXml.node.xml"), read));
    expectCamera(sample(), read);
}

TEST(CameraDeviceXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    CameraDevice read = sample();
    ASSERT_TRUE(CameraDeviceXml().parseXmlString("<CameraDevice />", read));
    expectCamera(CameraDevice(), read);
    EXPECT_EQ("", output.text());
}

TEST(CameraDeviceXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(CameraDeviceXml().createXmlString({sample(), camera(4, "South", "", 0)}, text));
    EXPECT_TRUE(matchesGolden(text, "device/CameraDeviceXml.list.xml"));
    ASSERT_TRUE(CameraDeviceXml().createXmlString(std::vector<CameraDevice>(), text));
    EXPECT_EQ("<CameraDeviceList />\n", text);
}

TEST(CameraDeviceXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<CameraDevice> list(1, camera(9, "before", "", 0));
    ASSERT_TRUE(CameraDeviceXml().parseXmlString(golden("device/CameraDeviceXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectCamera(camera(9, "before", "", 0), list[0]);
    expectCamera(sample(), list[1]);
    expectCamera(camera(4, "South", "", 0), list[2]);
}

TEST(CameraDeviceXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    CameraDevice read = sample();
    std::vector<CameraDevice> list(1, sample());
    EXPECT_FALSE(CameraDeviceXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(CameraDeviceXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(CameraDeviceXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(CameraDeviceXml().parseDomainXmlNode(empty, list));
    expectCamera(sample(), read);
    EXPECT_EQ(1U, list.size());
}

TEST(CameraDeviceXml, RefusesTheRootOfTheOtherKind)
{
    CameraDevice read;
    std::vector<CameraDevice> list;
    EXPECT_FALSE(CameraDeviceXml().parseXmlString(golden("device/CameraDeviceXml.list.xml"), read));
    EXPECT_FALSE(CameraDeviceXml().parseXmlString(golden("device/CameraDeviceXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}
