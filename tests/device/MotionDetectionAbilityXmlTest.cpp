#include "device/MotionDetectionAbilityXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/support/Documents.h"

TEST(MotionDetectionAbilityXml, Writes)
{
    MotionDetectionAbilityXml codec;
    codec.setMotionDetectionAbility(sampleMotionDetectionAbility());
    EXPECT_TRUE(matchesGolden(written(codec), "device/MotionDetectionAbilityXml.document.xml"));
}

TEST(MotionDetectionAbilityXml, Reads)
{
    MotionDetectionAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/MotionDetectionAbilityXml.document.xml")));
    expectMotionDetectionAbility(sampleMotionDetectionAbility(), codec.getMotionDetectionAbility());
}

TEST(MotionDetectionAbilityXml, ResetsWhatIsMissing)
{
    MotionDetectionAbilityXml codec;
    codec.setMotionDetectionAbility(sampleMotionDetectionAbility());
    ASSERT_TRUE(reads(codec, "<MotionDetectionAbility />"));
    expectMotionDetectionAbility(MotionDetectionAbility(), codec.getMotionDetectionAbility());
}
