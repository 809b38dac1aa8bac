#include "device/FileSystemAbilityXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/support/Documents.h"

namespace
{

std::vector<FileSystemAbility> sample()
{
    return {sampleFileSystemAbility(), FileSystemAbility()};
}

void expectAbilities(const std::vector<FileSystemAbility>& expected, const std::vector<FileSystemAbility>& read)
{
    expectList(expected, read, expectFileSystemAbility);
}

} // namespace

TEST(FileSystemAbilityXml, Writes)
{
    FileSystemAbilityXml codec;
    codec.setFileSystemAbilityList(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/FileSystemAbilityXml.document.xml"));
}

TEST(FileSystemAbilityXml, Reads)
{
    FileSystemAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/FileSystemAbilityXml.document.xml")));
    expectAbilities(sample(), codec.getFileSystemAbilityList());
}

TEST(FileSystemAbilityXml, AddsToTheList)
{
    FileSystemAbilityXml codec;
    codec.setFileSystemAbilityList({sampleFileSystemAbility()});
    ASSERT_TRUE(reads(codec, golden("device/FileSystemAbilityXml.document.xml")));
    expectAbilities({sampleFileSystemAbility(), sampleFileSystemAbility(), FileSystemAbility()},
                    codec.getFileSystemAbilityList());
}

TEST(FileSystemAbilityXml, GivesZeroAndEmptyForMissingAttributes)
{
    FileSystemAbilityXml codec;
    ASSERT_TRUE(reads(codec,
                      "<FileSystemAbilityList><FileSystemAbility><FileSystem /><DiskAttribute /></FileSystemAbility>"
                      "</FileSystemAbilityList>"));
    FileSystemAbility expected;
    expected.getFileSystemList().resize(1);
    expected.getDiskAttributeList().resize(1);
    expectAbilities({expected}, codec.getFileSystemAbilityList());
}

TEST(FileSystemAbilityXml, PassesOverElementsOfOtherNames)
{
    FileSystemAbilityXml codec;
    ASSERT_TRUE(reads(codec, "<FileSystemAbilityList><Other DiskType='9' />text<FileSystemAbility DiskType='6'>"
                             "<DiskAttribute DiskAttributeType='8' DiskAttributeName='Backup' /><!--FileSystem-->"
                             "<FileSystem FileSystemType='7' FileSystemName='ext3' /><Other FileSystemType='9' />"
                             "</FileSystemAbility><Other DiskType='9' /></FileSystemAbilityList>"));
    expectAbilities({sampleFileSystemAbility()}, codec.getFileSystemAbilityList());
}

TEST(FileSystemAbilityXml, GivesZeroForATypeThatIsNoNumber)
{
    FileSystemAbilityXml codec;
    ASSERT_TRUE(reads(codec, "<FileSystemAbilityList><FileSystemAbility DiskType='x'><FileSystem FileSystemType='x' />"
                             "<DiskAttribute DiskAttributeType='x' /></FileSystemAbility></FileSystemAbilityList>"));
    FileSystemAbility expected;
    expected.getFileSystemList().resize(1);
    expected.getDiskAttributeList().resize(1);
    expectAbilities({expected}, codec.getFileSystemAbilityList());
}
