#include "record/RecordDirInfoXml.h"

#include "tests/record/RecordSample.h"
#include "tests/support/Documents.h"

namespace
{

using Disks = std::vector<RecordDirInfo>;

RecordDirInfo nodeDefaults()
{
    RecordDirInfo info;
    info.setDiskType(2);
    info.setDiskName("SDCard");
    info.setGroupId(1);
    info.setAttribute(1);
    info.setStatus(3);
    info.setFileSystemFormat(3);
    return info;
}

} // namespace

TEST(RecordDirInfoXml, Writes)
{
    RecordDirInfoXml codec;
    codec.setRecordDirInfoList({sampleDisk(), RecordDirInfo()});
    EXPECT_TRUE(matchesGolden(written(codec), "record/RecordDirInfoXml.document.xml"));
}

TEST(RecordDirInfoXml, Reads)
{
    RecordDirInfoXml codec;
    ASSERT_TRUE(reads(codec, golden("record/RecordDirInfoXml.document.xml")));
    ASSERT_EQ(2U, codec.getRecordDirInfoList().size());
    expectDisk(sampleDisk(), codec.getRecordDirInfoList()[0]);
    expectDisk(RecordDirInfo(), codec.getRecordDirInfoList()[1]);
}

TEST(RecordDirInfoXml, ReadsNodeTextsAsWell)
{
    RecordDirInfoXml codec;
    ASSERT_TRUE(reads(codec, golden("record/RecordDirInfoXml.list.xml")));
    ASSERT_EQ(2U, codec.getRecordDirInfoList().size());
    expectDisk(sampleDisk(), codec.getRecordDirInfoList()[0]);
}

TEST(RecordDirInfoXml, GivesFreshValuesForWhatIsMissing)
{
    RecordDirInfoXml codec;
    ASSERT_TRUE(reads(codec, "<RecordDirInfoList><RecordDirInfo /></RecordDirInfoList>"));
    ASSERT_EQ(1U, codec.getRecordDirInfoList().size());
    expectDisk(RecordDirInfo(), codec.getRecordDirInfoList()[0]);
}

TEST(RecordDirInfoXml, AppendsWhenItReadsTwice)
{
    TiXmlDocument document;
    document.Parse(golden("record/RecordDirInfoXml.document.xml").c_str());
    RecordDirInfoXml codec;
    codec.setXmlNode(document.RootElement());
    ASSERT_TRUE(codec.parseXmlNode());
    ASSERT_TRUE(codec.parseXmlNode());
    ASSERT_EQ(4U, codec.getRecordDirInfoList().size());
    expectDisk(sampleDisk(), codec.getRecordDirInfoList()[0]);
    expectDisk(sampleDisk(), codec.getRecordDirInfoList()[2]);
}

TEST(RecordDirInfoXml, ReadsOnPastBadValues)
{
    RecordDirInfoXml codec;
    ASSERT_TRUE(reads(codec, "<RecordDirInfoList><RecordDirInfo DiskType='x' Status='x' EnableFlag='yes' "
                             "GroupId='5' /><!-- --><Other GroupId='6' /></RecordDirInfoList>"));
    ASSERT_EQ(2U, codec.getRecordDirInfoList().size());
    RecordDirInfo expected;
    expected.setGroupId(5);
    expectDisk(expected, codec.getRecordDirInfoList()[0]);
    expected.setGroupId(6);
    expectDisk(expected, codec.getRecordDirInfoList()[1]);
}

TEST(RecordDirInfoXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(RecordDirInfoXml().createXmlString({sampleDisk(), RecordDirInfo()}, text));
    EXPECT_TRUE(matchesGolden(text, "record/RecordDirInfoXml.list.xml"));
}

TEST(RecordDirInfoXml, WritesAnEmptyList)
{
    RecordDirInfoXml codec;
    EXPECT_EQ("<RecordDirInfoList />\n", written(codec));
    std::string text;
    ASSERT_TRUE(RecordDirInfoXml().createXmlString(Disks(), text));
    EXPECT_EQ("<RecordDirInfoList />\n", text);
}

TEST(RecordDirInfoXml, ReadsListsBehindWhatTheyHold)
{
    Disks list(1, nodeDefaults());
    ASSERT_TRUE(RecordDirInfoXml().parseXmlString(golden("record/RecordDirInfoXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectDisk(nodeDefaults(), list[0]);
    expectDisk(sampleDisk(), list[1]);
    expectDisk(RecordDirInfo(), list[2]);
}

TEST(RecordDirInfoXml, GivesTheDefaultsOfWhatANodeLacks)
{
    Disks list;
    ASSERT_TRUE(RecordDirInfoXml().parseXmlString(
        "<RecordDirInfoList>text<Other DiskType='9' /><RecordDirInfo /></RecordDirInfoList>", list));
    ASSERT_EQ(1U, list.size());
    expectDisk(nodeDefaults(), list[0]);

    ASSERT_TRUE(RecordDirInfoXml().parseXmlString("<RecordDirInfoList />", list));
    EXPECT_EQ(1U, list.size());
}

TEST(RecordDirInfoXml, RefusesBadValuesInNodes)
{
    for (const char* bad : {"DiskType='x'", "GroupId=''", "UsableSpace='x'", "FreeSpace='x'", "Attribute='x'",
                            "EnableFlag='yes'", "AlarmThreshold='x'", "Status='x'", "FileSystem='x'"})
    {
        Disks list;
        const std::string text = std::string("<RecordDirInfoList><RecordDirInfo GroupId='5' /><RecordDirInfo ") + bad +
                                 " /><RecordDirInfo /></RecordDirInfoList>";
        EXPECT_FALSE(RecordDirInfoXml().parseXmlString(text, list)) << bad;
        ASSERT_EQ(1U, list.size()) << bad;
        EXPECT_EQ(5, list[0].getGroupId());
    }
}

TEST(RecordDirInfoXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    Disks list(1, sampleDisk());
    EXPECT_FALSE(RecordDirInfoXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(RecordDirInfoXml().parseDomainXmlNode(empty, list));

    SafePointer<DomainXmlNode> hollow(new DomainXmlNode(static_cast<TiXmlElement*>(nullptr)));
    EXPECT_FALSE(RecordDirInfoXml().parseDomainXmlNode(hollow, list));
    EXPECT_EQ(1U, list.size());
}

TEST(RecordDirInfoXml, PassesOverTheOtherGeneration)
{
    RecordDirInfoXml codec;
    EXPECT_FALSE(reads(codec, golden("record/ZT_RecordDirInfoXml.document.xml")));
    EXPECT_TRUE(codec.getRecordDirInfoList().empty());
}

TEST(RecordDirInfo, TakesNullForAnEmptyName)
{
    RecordDirInfo info = sampleDisk();
    info.setDiskName(nullptr);
    EXPECT_EQ("", info.getDiskName());
}
