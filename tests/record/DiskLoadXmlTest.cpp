#include "record/DiskLoadXml.h"

#include "tests/support/Documents.h"

TEST(DiskLoadXml, Writes)
{
    DiskLoadXml codec;
    codec.setDiskName("hda1");
    codec.setFileSystemType(2);
    EXPECT_TRUE(matchesGolden(written(codec), "record/DiskLoadXml.document.xml"));
}

TEST(DiskLoadXml, Reads)
{
    DiskLoadXml codec;
    ASSERT_TRUE(reads(codec, golden("record/DiskLoadXml.document.xml")));
    EXPECT_EQ("hda1", codec.getDiskName());
    EXPECT_EQ(2, codec.getFileSystemType());
}

TEST(DiskLoadXml, IsEmptyWhenNewAndLeavesWhatIsMissing)
{
    DiskLoadXml codec;
    ASSERT_TRUE(reads(codec, "<DiskLoadCommand />"));
    EXPECT_EQ("", codec.getDiskName());
    EXPECT_EQ(0, codec.getFileSystemType());

    DiskLoadXml used;
    used.setDiskName("sdb");
    used.setFileSystemType(9);
    ASSERT_TRUE(reads(used, "<DiskLoadCommand />"));
    EXPECT_EQ("sdb", used.getDiskName());
    EXPECT_EQ(9, used.getFileSystemType());
}

TEST(DiskLoadXml, RefusesTheOtherCommands)
{
    DiskLoadXml codec;
    EXPECT_FALSE(reads(codec, "<DiskUnloadCommand DiskName='hda1' />"));
    EXPECT_EQ("", codec.getDiskName());
}
