#include "record/ZT_RecordDirInfoXml.h"

#include "tests/support/Documents.h"

namespace
{

using Disks = std::vector<ZT_RecordDirInfo>;

ZT_RecordDirInfo sampleDisk()
{
    ZT_RecordDirInfo info;
    info.setDiskType(1);
    info.setDiskName("hda1");
    info.setGroupId(2);
    info.setUsableSpace(300);
    info.setFreeSpace(200);
    info.setAttribute(4);
    info.setEnableFlag(true);
    info.setAlarmThreshold(50);
    info.setStatus(6);
    info.setFileSystemFormat(7);
    return info;
}

void expectDisk(const ZT_RecordDirInfo& expected, const ZT_RecordDirInfo& info)
{
    EXPECT_EQ(expected.getDiskType(), info.getDiskType());
    EXPECT_EQ(expected.getDiskName(), info.getDiskName());
    EXPECT_EQ(expected.getGroupId(), info.getGroupId());
    EXPECT_EQ(expected.getUsableSpace(), info.getUsableSpace());
    EXPECT_EQ(expected.getFreeSpace(), info.getFreeSpace());
    EXPECT_EQ(expected.getAttribute(), info.getAttribute());
    EXPECT_EQ(expected.getEnableFlag(), info.getEnableFlag());
    EXPECT_EQ(expected.getAlarmThreshold(), info.getAlarmThreshold());
    EXPECT_EQ(expected.getStatus(), info.getStatus());
    EXPECT_EQ(expected.getFileSystemFormat(), info.getFileSystemFormat());
}

ZT_RecordDirInfo nodeDefaults()
{
    ZT_RecordDirInfo info;
    info.setDiskType(2);
    info.setDiskName("SDCard");
    info.setGroupId(1);
    info.setAttribute(1);
    info.setStatus(3);
    info.setFileSystemFormat(3);
    return info;
}

} // namespace

TEST(ZT_RecordDirInfoXml, Writes)
{
    ZT_RecordDirInfoXml codec;
    codec.setRecordDirInfoList({sampleDisk(), ZT_RecordDirInfo()});
    EXPECT_TRUE(matchesGolden(written(codec), "record/ZT_RecordDirInfoXml.document.xml"));
}

TEST(ZT_RecordDirInfoXml, Reads)
{
    ZT_RecordDirInfoXml codec;
    ASSERT_TRUE(reads(codec, golden("record/ZT_RecordDirInfoXml.document.xml")));
    ASSERT_EQ(2U, codec.getRecordDirInfoList().size());
    expectDisk(sampleDisk(), codec.getRecordDirInfoList()[0]);
    expectDisk(ZT_RecordDirInfo(), codec.getRecordDirInfoList()[1]);
}

TEST(ZT_RecordDirInfoXml, ReadsNodeTextsAsWell)
{
    ZT_RecordDirInfoXml codec;
    ASSERT_TRUE(reads(codec, golden("record/ZT_RecordDirInfoXml.list.xml")));
    ASSERT_EQ(2U, codec.getRecordDirInfoList().size());
    expectDisk(sampleDisk(), codec.getRecordDirInfoList()[0]);
}

TEST(ZT_RecordDirInfoXml, GivesFreshValuesForWhatIsMissing)
{
    ZT_RecordDirInfoXml codec;
    ASSERT_TRUE(reads(codec, "<ZT_RecordDirInfoList><ZT_RecordDirInfo /></ZT_RecordDirInfoList>"));
    ASSERT_EQ(1U, codec.getRecordDirInfoList().size());
    expectDisk(ZT_RecordDirInfo(), codec.getRecordDirInfoList()[0]);
}

TEST(ZT_RecordDirInfoXml, AppendsWhenItReadsTwice)
{
    TiXmlDocument document;
    document.Parse(golden("record/ZT_RecordDirInfoXml.document.xml").c_str());
    ZT_RecordDirInfoXml codec;
    codec.setXmlNode(document.RootElement());
    ASSERT_TRUE(codec.parseXmlNode());
    ASSERT_TRUE(codec.parseXmlNode());
    ASSERT_EQ(4U, codec.getRecordDirInfoList().size());
    expectDisk(sampleDisk(), codec.getRecordDirInfoList()[0]);
    expectDisk(sampleDisk(), codec.getRecordDirInfoList()[2]);
}

TEST(ZT_RecordDirInfoXml, ReadsOnPastBadValues)
{
    ZT_RecordDirInfoXml codec;
    ASSERT_TRUE(reads(codec,
                      "<ZT_RecordDirInfoList><ZT_RecordDirInfo ZT_DiskType='x' ZT_Status='x' ZT_EnableFlag='yes' "
                      "ZT_GroupId='5' /><!-- --><Other ZT_GroupId='6' /></ZT_RecordDirInfoList>"));
    ASSERT_EQ(2U, codec.getRecordDirInfoList().size());
    ZT_RecordDirInfo expected;
    expected.setGroupId(5);
    expectDisk(expected, codec.getRecordDirInfoList()[0]);
    expected.setGroupId(6);
    expectDisk(expected, codec.getRecordDirInfoList()[1]);
}

TEST(ZT_RecordDirInfoXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(ZT_RecordDirInfoXml().createXmlString({sampleDisk(), ZT_RecordDirInfo()}, text));
    EXPECT_TRUE(matchesGolden(text, "record/ZT_RecordDirInfoXml.list.xml"));
}

TEST(ZT_RecordDirInfoXml, WritesAnEmptyList)
{
    ZT_RecordDirInfoXml codec;
    EXPECT_EQ("<ZT_RecordDirInfoList />\n", written(codec));
    std::string text;
    ASSERT_TRUE(ZT_RecordDirInfoXml().createXmlString(Disks(), text));
    EXPECT_EQ("<ZT_RecordDirInfoList />\n", text);
}

TEST(ZT_RecordDirInfoXml, ReadsListsBehindWhatTheyHold)
{
    Disks list(1, nodeDefaults());
    ASSERT_TRUE(ZT_RecordDirInfoXml().parseXmlString(golden("record/ZT_RecordDirInfoXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectDisk(nodeDefaults(), list[0]);
    expectDisk(sampleDisk(), list[1]);
    expectDisk(ZT_RecordDirInfo(), list[2]);
}

TEST(ZT_RecordDirInfoXml, GivesTheDefaultsOfWhatANodeLacks)
{
    Disks list;
    ASSERT_TRUE(ZT_RecordDirInfoXml().parseXmlString(
        "<ZT_RecordDirInfoList>text<Other ZT_DiskType='9' /><ZT_RecordDirInfo /></ZT_RecordDirInfoList>", list));
    ASSERT_EQ(1U, list.size());
    expectDisk(nodeDefaults(), list[0]);

    ASSERT_TRUE(ZT_RecordDirInfoXml().parseXmlString("<ZT_RecordDirInfoList />", list));
    EXPECT_EQ(1U, list.size());
}

TEST(ZT_RecordDirInfoXml, RefusesBadValuesInNodes)
{
    for (const char* bad :
         {"ZT_DiskType='x'", "ZT_GroupId=''", "ZT_UsableSpace='x'", "ZT_FreeSpace='x'", "ZT_Attribute='x'",
          "ZT_EnableFlag='yes'", "ZT_AlarmThreshold='x'", "ZT_Status='x'", "ZT_FileSystem='x'"})
    {
        Disks list;
        const std::string text =
            std::string("<ZT_RecordDirInfoList><ZT_RecordDirInfo ZT_GroupId='5' /><ZT_RecordDirInfo ") + bad +
            " /><ZT_RecordDirInfo /></ZT_RecordDirInfoList>";
        EXPECT_FALSE(ZT_RecordDirInfoXml().parseXmlString(text, list)) << bad;
        ASSERT_EQ(1U, list.size()) << bad;
        EXPECT_EQ(5, list[0].getGroupId());
    }
}

TEST(ZT_RecordDirInfoXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    Disks list(1, sampleDisk());
    EXPECT_FALSE(ZT_RecordDirInfoXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(ZT_RecordDirInfoXml().parseDomainXmlNode(empty, list));

    SafePointer<DomainXmlNode> hollow(new DomainXmlNode(static_cast<TiXmlElement*>(nullptr)));
    EXPECT_FALSE(ZT_RecordDirInfoXml().parseDomainXmlNode(hollow, list));
    EXPECT_EQ(1U, list.size());
}

TEST(ZT_RecordDirInfoXml, PassesOverTheOtherGeneration)
{
    ZT_RecordDirInfoXml codec;
    EXPECT_FALSE(reads(codec, golden("record/RecordDirInfoXml.document.xml")));
    EXPECT_TRUE(codec.getRecordDirInfoList().empty());
}
