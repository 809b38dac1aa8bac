#include "device/ROIAbilityXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/support/Documents.h"

namespace
{

/// The last of two entries of one level counts.
constexpr char entries[] = "<ROIAbility>text<LevelQPMap Level='2' QP='6' /><!--LevelQPMap--><Other Level='2' QP='7' />"
                           "<LevelQPMap Level='3' /><LevelQPMap QP='4' /></ROIAbility>";

} // namespace

TEST(ROIAbilityXml, Writes)
{
    ROIAbilityXml codec;
    codec.setROIAbility(sampleROIAbility());
    EXPECT_TRUE(matchesGolden(written(codec), "device/ROIAbilityXml.document.xml"));
}

TEST(ROIAbilityXml, Reads)
{
    ROIAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/ROIAbilityXml.document.xml")));
    expectROIAbility(sampleROIAbility(), codec.getROIAbility());
}

TEST(ROIAbilityXml, LeavesWhatIsMissing)
{
    ROIAbilityXml codec;
    codec.setROIAbility(sampleROIAbility());
    ASSERT_TRUE(reads(codec, "<ROIAbility />"));
    expectROIAbility(sampleROIAbility(), codec.getROIAbility());
}

TEST(ROIAbilityXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ROIAbilityXml().createXmlString(sampleROIAbility(), text));
    EXPECT_TRUE(matchesGolden(text, "device/ROIAbilityXml.node.xml"));
}

TEST(ROIAbilityXml, ReadsNodes)
{
    CapturedOutput output;
    ROIAbility read;
    ASSERT_TRUE(ROIAbilityXml().parseXmlString(golden("device/ROIAbilityXml.node.xml"), read));
    expectROIAbility(sampleROIAbility(), read);
    EXPECT_EQ("", output.text());
}

TEST(ROIAbilityXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    ROIAbility read = sampleROIAbility();
    ASSERT_TRUE(ROIAbilityXml().parseXmlString("<ROIAbility />", read));
    expectROIAbility(ROIAbility(), read);
    EXPECT_EQ("", output.text());
}

TEST(ROIAbilityXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    ROIAbility read = sampleROIAbility();
    EXPECT_FALSE(ROIAbilityXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(ROIAbilityXml().parseDomainXmlNode(empty, read));
    expectROIAbility(sampleROIAbility(), read);
}

TEST(ROIAbilityXml, WritesTheMapInTheOrderOfItsLevels)
{
    ROIAbilityXml codec;
    codec.getROIAbility().setLevelQPMap({{3, 1}, {-1, 2}, {2, 3}});
    EXPECT_EQ(
        "<ROIAbility ROIMaxNum=\"0\" ROIMaxScale=\"0\" ROIMaxLevel=\"0\">\n\t<LevelQPMap Level=\"-1\" QP=\"2\" />\n"
        "\t<LevelQPMap Level=\"2\" QP=\"3\" />\n\t<LevelQPMap Level=\"3\" QP=\"1\" />\n</ROIAbility>\n",
        written(codec));
}

TEST(ROIAbilityXml, AddsEntriesOfAnyNameInDocuments)
{
    ROIAbilityXml codec;
    codec.setROIAbility(sampleROIAbility());
    ASSERT_TRUE(reads(codec, entries));
    ROIAbility expected = sampleROIAbility();
    expected.setLevelQPMap({{0, 4}, {1, -5}, {2, 7}, {3, 0}});
    expectROIAbility(expected, codec.getROIAbility());
}

TEST(ROIAbilityXml, ReplacesEntriesByThoseOfAnyNameInNodes)
{
    ROIAbility read = sampleROIAbility();
    ASSERT_TRUE(ROIAbilityXml().parseXmlString(entries, read));
    ROIAbility expected;
    expected.setLevelQPMap({{0, 4}, {2, 7}, {3, 0}});
    expectROIAbility(expected, read);
}
