#include "snapshot/SnapshotFileListExXml.h"

#include "tests/snapshot/SnapshotSample.h"
#include "tests/support/Documents.h"

namespace
{

using Files = std::vector<SnapshotFileEx>;

/// An entry that is told from others by its count.
SnapshotFileEx entry(const std::string& deviceId, int cameraId, int number)
{
    SnapshotFileEx file;
    file.setDeviceId(deviceId);
    file.setCameraId(cameraId);
    file.setSnapshotCount(number);
    return file;
}

/// The groups of a list in short, as in "a1: 1 2; b1: 3; ".
std::string shape(const TiXmlNode& list)
{
    std::string text;
    for (const TiXmlElement* group = list.FirstChildElement(); group != nullptr; group = group->NextSiblingElement())
    {
        text += std::string(group->Attribute("deviceId")) + group->Attribute("CameraId") + ":";
        for (const TiXmlElement* item = group->FirstChildElement(); item != nullptr; item = item->NextSiblingElement())
            text += std::string(" ") + item->Attribute("SnapshotCount");
        text += "; ";
    }
    return text;
}

std::string shapeOf(const Files& files)
{
    TiXmlElement parent("Parent");
    return shape(SnapshotFileListExXml::writeElement(parent, files));
}

} // namespace

TEST(SnapshotFileListExXml, Writes)
{
    SnapshotFileListExXml codec;
    codec.setSnapshotFileList({sampleStretch(), emptyStretch("d1", "10.0.0.9", 3), emptyStretch("d1", "10.0.0.9", 4)});
    EXPECT_TRUE(matchesGolden(written(codec), "snapshot/SnapshotFileListExXml.document.xml"));
}

TEST(SnapshotFileListExXml, WritesAnEmptyList)
{
    SnapshotFileListExXml codec;
    EXPECT_EQ("<SnapshotFileList />\n", written(codec));
}

TEST(SnapshotFileListExXml, GroupsEntriesByDeviceAndCamera)
{
    EXPECT_EQ("a1: 1 2; a2: 3; b2: 4; ",
              shapeOf({entry("a", 1, 1), entry("a", 1, 2), entry("a", 2, 3), entry("b", 2, 4)}));
}

TEST(SnapshotFileListExXml, WritesEntriesThatComeBackToTheirGroup)
{
    EXPECT_EQ("a1: 1 3 4; b1: 2 5; ",
              shapeOf({entry("a", 1, 1), entry("b", 1, 2), entry("a", 1, 3), entry("a", 1, 4), entry("b", 1, 5)}));
}

// The device and the camera that a new codec remembers.
TEST(SnapshotFileListExXml, MakesAGroupForAnEmptyDevice)
{
    EXPECT_EQ("-1: 1; ", shapeOf({entry("", -1, 1)}));
}

TEST(SnapshotFileListExXml, GoesOnInTheLastGroupWhenItWritesTwice)
{
    SnapshotFileListExXml codec;
    codec.setSnapshotFileList({entry("a", 1, 1), entry("b", 1, 2)});
    codec.createXmlNode();
    codec.setSnapshotFileList({entry("b", 1, 3), entry("a", 1, 4), entry("b", 1, 5)});
    codec.createXmlNode();
    EXPECT_EQ("a1: 1; b1: 2 3; ", shape(*codec.getXmlNode()->FirstChild()));
    EXPECT_EQ("a1: 4; b1: 5; ", shape(*codec.getXmlNode()->LastChild()));
}

TEST(SnapshotFileListExXml, ForgetsTheLastGroupWithItsDocument)
{
    SnapshotFileListExXml codec;
    codec.setSnapshotFileList({entry("a", 1, 1)});
    codec.createXmlNode();
    codec.getXmlNode()->Clear();
    codec.createXmlNode();
    EXPECT_EQ("a1: 1; ", shape(*codec.getXmlNode()->FirstChild()));
}

TEST(SnapshotFileListExXml, Reads)
{
    SnapshotFileListExXml codec;
    ASSERT_TRUE(reads(codec, golden("snapshot/SnapshotFileListExXml.document.xml")));
    ASSERT_EQ(3U, codec.getSnapshotFileList().size());
    expectStretch(sampleStretch(), codec.getSnapshotFileList()[0]);
    expectStretch(emptyStretch("d1", "10.0.0.9", 3), codec.getSnapshotFileList()[1]);
    expectStretch(emptyStretch("d1", "10.0.0.9", 4), codec.getSnapshotFileList()[2]);
}

TEST(SnapshotFileListExXml, EmptiesItsListFirst)
{
    TiXmlDocument document;
    document.Parse(golden("snapshot/SnapshotFileListExXml.document.xml").c_str());
    SnapshotFileListExXml codec;
    codec.setSnapshotFileList({entry("before", 1, 1)});
    codec.setXmlNode(document.RootElement());
    ASSERT_TRUE(codec.parseXmlNode());
    ASSERT_TRUE(codec.parseXmlNode());
    EXPECT_EQ(3U, codec.getSnapshotFileList().size());

    TiXmlElement bare("SnapshotFileList");
    codec.setXmlNode(&bare);
    ASSERT_TRUE(codec.parseXmlNode());
    EXPECT_TRUE(codec.getSnapshotFileList().empty());
}

TEST(SnapshotFileListExXml, GivesFreshValuesForWhatIsMissing)
{
    SnapshotFileListExXml codec;
    ASSERT_TRUE(reads(codec, "<SnapshotFileList><DeviceInfo><SnapshotFile /></DeviceInfo></SnapshotFileList>"));
    ASSERT_EQ(1U, codec.getSnapshotFileList().size());
    expectStretch(emptyStretch("", "", 0), codec.getSnapshotFileList()[0]);
}

TEST(SnapshotFileListExXml, ReadsGroupsOfAnyNameAndEntriesOfTheirName)
{
    SnapshotFileListExXml codec;
    ASSERT_TRUE(reads(codec, "<SnapshotFileList>text<!--DeviceInfo--><Other><SnapshotFile /></Other>"
                             "<DeviceInfo deviceId='a' /><!-- -->text<Other deviceId='b'>text<!--SnapshotFile-->"
                             "<Other /><SnapshotFile /><Other /><SnapshotFile /></Other></SnapshotFileList>"));
    ASSERT_EQ(2U, codec.getSnapshotFileList().size());
    expectStretch(emptyStretch("b", "", 0), codec.getSnapshotFileList()[0]);
    expectStretch(emptyStretch("b", "", 0), codec.getSnapshotFileList()[1]);
}

TEST(SnapshotFileListExXml, ReadsOneGroup)
{
    TiXmlDocument document;
    document.Parse("<DeviceInfo deviceId='a' deviceIp='b' CameraId='c'><SnapshotFile /></DeviceInfo>");
    Files files(1, entry("before", 1, 1));
    SnapshotFileListExXml codec;
    ASSERT_TRUE(codec.parserDeviceInfoNode(document.RootElement(), files));
    ASSERT_EQ(2U, files.size());
    EXPECT_EQ("before", files[0].getDeviceId());
    expectStretch(emptyStretch("a", "b", 0), files[1]);

    EXPECT_FALSE(codec.parserDeviceInfoNode(nullptr, files));
    EXPECT_FALSE(codec.parserDeviceInfoNode(&document, files));
    EXPECT_EQ(2U, files.size());
}

TEST(SnapshotFileListExXml, AppendsAGroup)
{
    TiXmlElement list("SnapshotFileList");
    SnapshotFileListExXml codec;
    EXPECT_EQ(nullptr, codec.createDeviceInfoXmlNode(nullptr, sampleStretch()));
    codec.createDeviceInfoXmlNode(&list, entry("a", 1, 1));
    TiXmlNode* group = codec.createDeviceInfoXmlNode(&list, sampleStretch());
    ASSERT_EQ(list.LastChild(), group);
    EXPECT_STREQ("d1", group->ToElement()->Attribute("deviceId"));
    EXPECT_STREQ("10.0.0.9", group->ToElement()->Attribute("deviceIp"));
    EXPECT_STREQ("3", group->ToElement()->Attribute("CameraId"));
    EXPECT_EQ("a1:; d13:; ", shape(list));
}

TEST(SnapshotFileListExXml, FindsAGroupAndGoesOnThere)
{
    SnapshotFileListExXml codec;
    codec.setSnapshotFileList({entry("a", 1, 1), entry("b", 1, 2)});
    codec.createXmlNode();
    TiXmlNode* list = codec.getXmlNode()->FirstChild();
    EXPECT_FALSE(codec.findNode(list, "a", 2, nullptr));
    EXPECT_FALSE(codec.findNode(list, "aa", 1, nullptr));
    EXPECT_FALSE(codec.findNode(nullptr, "a", 1, nullptr));
    EXPECT_TRUE(codec.findNode(list, "a", 1, nullptr));

    codec.setSnapshotFileList({entry("a", 1, 3)});
    codec.createXmlNode();
    EXPECT_EQ("a1: 1 3; b1: 2; ", shape(*list));
}

TEST(SnapshotFileListExXml, PassesOverGroupsThatLackAnAttribute)
{
    TiXmlDocument document;
    document.Parse("<SnapshotFileList><DeviceInfo deviceId='a' /><!-- --><DeviceInfo CameraId='0' />text"
                   "<DeviceInfo deviceId='b' CameraId='7x' /></SnapshotFileList>");
    SnapshotFileListExXml codec;
    EXPECT_FALSE(codec.findNode(document.RootElement(), "a", 0, nullptr));
    EXPECT_FALSE(codec.findNode(document.RootElement(), "", 0, nullptr));
    EXPECT_TRUE(codec.findNode(document.RootElement(), "b", 7, nullptr));
}
