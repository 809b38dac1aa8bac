#include "device/CameraInfoXml.h"

#include "tests/support/Documents.h"

namespace
{

CameraInfo camera(const std::string& deviceId, int cameraId)
{
    CameraInfo camera;
    camera.setDeviceId(deviceId);
    camera.setCameraId(cameraId);
    return camera;
}

void expectCamera(const CameraInfo& expected, const CameraInfo& camera)
{
    EXPECT_EQ(expected.getDeviceId(), camera.getDeviceId());
    EXPECT_EQ(expected.getCameraId(), camera.getCameraId());
}

} // namespace

TEST(CameraInfoXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(CameraInfoXml().createXmlString(camera("D-4", 5), text));
    EXPECT_TRUE(matchesGolden(text, "device/CameraInfoXml.node.xml"));
}

TEST(CameraInfoXml, ReadsNodes)
{
    CameraInfo read;
    ASSERT_TRUE(CameraInfoXml().parseXmlString(golden("device/CameraInfoXml.node.xml"), read));
    expectCamera(camera("D-4", 5), read);
}

TEST(CameraInfoXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    CameraInfo read = camera("D-4", 5);
    ASSERT_TRUE(CameraInfoXml().parseXmlString("<CameraInfo />", read));
    expectCamera(CameraInfo(), read);
    EXPECT_EQ("", output.text());
}

TEST(CameraInfoXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(CameraInfoXml().createXmlString({camera("D-4", 5), camera("", 6)}, text));
    EXPECT_TRUE(matchesGolden(text, "device/CameraInfoXml.list.xml"));
    ASSERT_TRUE(CameraInfoXml().createXmlString(std::vector<CameraInfo>(), text));
    EXPECT_EQ("<CameraInfoList />\n", text);
}

TEST(CameraInfoXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<CameraInfo> list(1, camera("", 6));
    ASSERT_TRUE(CameraInfoXml().parseXmlString(golden("device/CameraInfoXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectCamera(camera("", 6), list[0]);
    expectCamera(camera("D-4", 5), list[1]);
    expectCamera(camera("", 6), list[2]);
}

TEST(CameraInfoXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    CameraInfo read = camera("D-4", 5);
    std::vector<CameraInfo> list(1, camera("D-4", 5));
    EXPECT_FALSE(CameraInfoXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(CameraInfoXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(CameraInfoXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(CameraInfoXml().parseDomainXmlNode(empty, list));
    expectCamera(camera("D-4", 5), read);
    EXPECT_EQ(1U, list.size());
}

TEST(CameraInfoXml, ReadsItemsOfAnyName)
{
    std::vector<CameraInfo> list;
    ASSERT_TRUE(
        CameraInfoXml().parseXmlString("<CameraInfoList>text<!-- --><Other CameraId='9' /></CameraInfoList>", list));
    ASSERT_EQ(1U, list.size());
    expectCamera(camera("", 9), list[0]);
}
