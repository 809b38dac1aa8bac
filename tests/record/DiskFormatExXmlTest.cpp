#include "record/DiskFormatExXml.h"

#include "tests/support/Documents.h"

TEST(DiskFormatExXml, Writes)
{
    DiskFormatExXml codec;
    codec.setDiskName("hda1");
    codec.setFileSystemType(2);
    EXPECT_TRUE(matchesGolden(written(codec), "record/DiskFormatExXml.document.xml"));
}

TEST(DiskFormatExXml, Reads)
{
    DiskFormatExXml codec;
    ASSERT_TRUE(reads(codec, golden("record/DiskFormatExXml.document.xml")));
    EXPECT_EQ("hda1", codec.getDiskName());
    EXPECT_EQ(2, codec.getFileSystemType());
}

TEST(DiskFormatExXml, IsEmptyWhenNewAndLeavesWhatIsMissing)
{
    DiskFormatExXml codec;
    ASSERT_TRUE(reads(codec, "<DiskFormatCommand />"));
    EXPECT_EQ("", codec.getDiskName());
    EXPECT_EQ(0, codec.getFileSystemType());

    DiskFormatExXml used;
    used.setDiskName("sdb");
    used.setFileSystemType(9);
    ASSERT_TRUE(reads(used, "<DiskFormatCommand />"));
    EXPECT_EQ("sdb", used.getDiskName());
    EXPECT_EQ(9, used.getFileSystemType());
}

TEST(DiskFormatExXml, RefusesTheOtherCommands)
{
    DiskFormatExXml codec;
    EXPECT_FALSE(reads(codec, "<DiskLoadCommand DiskName='hda1' />"));
    EXPECT_EQ("", codec.getDiskName());
}
