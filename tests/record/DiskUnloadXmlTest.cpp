#include "record/DiskUnloadXml.h"

#include "tests/support/Documents.h"

TEST(DiskUnloadXml, Writes)
{
    DiskUnloadXml codec;
    codec.setDiskName("hda1");
    codec.setFileSystemType(2);
    EXPECT_TRUE(matchesGolden(written(codec), "record/DiskUnloadXml.document.xml"));
}

TEST(DiskUnloadXml, Reads)
{
    DiskUnloadXml codec;
    ASSERT_TRUE(reads(codec, golden("record/DiskUnloadXml.document.xml")));
    EXPECT_EQ("hda1", codec.getDiskName());
    EXPECT_EQ(2, codec.getFileSystemType());
}

TEST(DiskUnloadXml, IsEmptyWhenNewAndLeavesWhatIsMissing)
{
    DiskUnloadXml codec;
    ASSERT_TRUE(reads(codec, "<DiskUnloadCommand />"));
    EXPECT_EQ("", codec.getDiskName());
    EXPECT_EQ(0, codec.getFileSystemType());

    DiskUnloadXml used;
    used.setDiskName("sdb");
    used.setFileSystemType(9);
    ASSERT_TRUE(reads(used, "<DiskUnloadCommand />"));
    EXPECT_EQ("sdb", used.getDiskName());
    EXPECT_EQ(9, used.getFileSystemType());
}

TEST(DiskUnloadXml, RefusesTheOtherCommands)
{
    DiskUnloadXml codec;
    EXPECT_FALSE(reads(codec, "<DiskFormatCommand DiskName='hda1' />"));
    EXPECT_EQ("", codec.getDiskName());
}
