#include "device/MotionDetectionExAbilityXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/support/Documents.h"

TEST(MotionDetectionExAbilityXml, Writes)
{
    MotionDetectionExAbilityXml codec;
    codec.setMotionDetectionExAbility(sampleMotionDetectionExAbility());
    EXPECT_TRUE(matchesGolden(written(codec), "device/MotionDetectionExAbilityXml.document.xml"));
}

TEST(MotionDetectionExAbilityXml, Reads)
{
    MotionDetectionExAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/MotionDetectionExAbilityXml.document.xml")));
    expectMotionDetectionExAbility(sampleMotionDetectionExAbility(), codec.getMotionDetectionExAbility());
}

TEST(MotionDetectionExAbilityXml, ResetsWhatIsMissing)
{
    MotionDetectionExAbilityXml codec;
    codec.setMotionDetectionExAbility(sampleMotionDetectionExAbility());
    ASSERT_TRUE(reads(codec, "<MotionDetectionExAbility />"));
    expectMotionDetectionExAbility(MotionDetectionExAbility(), codec.getMotionDetectionExAbility());
}
