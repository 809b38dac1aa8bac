#include "device/MotionDetectionAbilityConfigureXml.h"

#include "tests/support/Documents.h"

namespace
{

MotionDetectionAbilityConfigure sample()
{
    MotionDetectionAbilityConfigure ability;
    ability.setMinSensitivity(1);
    ability.setMaxSensitivity(9);
    ability.setMaxWidthCellNumber(44);
    ability.setMaxHeightCellNumber(36);
    ability.setDefaultSensitivity(5);
    ability.setDefaultWidthCellNumber(22);
    ability.setDefaultHeightCellNumber(18);
    return ability;
}

void expectMotionDetectionAbilityConfigure(const MotionDetectionAbilityConfigure& expected,
                                           const MotionDetectionAbilityConfigure& read)
{
    EXPECT_EQ(expected.getMinSensitivity(), read.getMinSensitivity());
    EXPECT_EQ(expected.getMaxSensitivity(), read.getMaxSensitivity());
    EXPECT_EQ(expected.getMaxWidthCellNumber(), read.getMaxWidthCellNumber());
    EXPECT_EQ(expected.getMaxHeightCellNumber(), read.getMaxHeightCellNumber());
    EXPECT_EQ(expected.getDefaultSensitivity(), read.getDefaultSensitivity());
    EXPECT_EQ(expected.getDefaultWidthCellNumber(), read.getDefaultWidthCellNumber());
    EXPECT_EQ(expected.getDefaultHeightCellNumber(), read.getDefaultHeightCellNumber());
}

} // namespace

TEST(MotionDetectionAbilityConfigureXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(MotionDetectionAbilityConfigureXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "device/MotionDetectionAbilityConfigureXml.node.xml"));
}

TEST(MotionDetectionAbilityConfigureXml, ReadsNodes)
{
    CapturedOutput output;
    MotionDetectionAbilityConfigure read;
    ASSERT_TRUE(MotionDetectionAbilityConfigureXml().parseXmlString(
        golden("device/MotionDetectionAbilityConfigureXml.node.xml"), read));
    expectMotionDetectionAbilityConfigure(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(MotionDetectionAbilityConfigureXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    MotionDetectionAbilityConfigure read = sample();
    ASSERT_TRUE(MotionDetectionAbilityConfigureXml().parseXmlString("<MotionDetectionAbility />", read));
    expectMotionDetectionAbilityConfigure(MotionDetectionAbilityConfigure(), read);
    EXPECT_EQ("", output.text());
}

TEST(MotionDetectionAbilityConfigureXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    MotionDetectionAbilityConfigure read = sample();
    EXPECT_FALSE(MotionDetectionAbilityConfigureXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(MotionDetectionAbilityConfigureXml().parseDomainXmlNode(empty, read));
    expectMotionDetectionAbilityConfigure(sample(), read);
}
