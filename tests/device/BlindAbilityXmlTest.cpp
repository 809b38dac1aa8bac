#include "device/BlindAbilityXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/support/Documents.h"

TEST(BlindAbilityXml, Writes)
{
    BlindAbilityXml codec;
    codec.setBlindAbility(sampleBlindAbility());
    EXPECT_TRUE(matchesGolden(written(codec), "device/BlindAbilityXml.document.xml"));
}

TEST(BlindAbilityXml, Reads)
{
    BlindAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/BlindAbilityXml.document.xml")));
    expectBlindAbility(sampleBlindAbility(), codec.getBlindAbility());
}

TEST(BlindAbilityXml, LeavesWhatIsMissing)
{
    BlindAbilityXml codec;
    codec.setBlindAbility(sampleBlindAbility());
    ASSERT_TRUE(reads(codec, "<BlindAbility />"));
    expectBlindAbility(sampleBlindAbility(), codec.getBlindAbility());
}
