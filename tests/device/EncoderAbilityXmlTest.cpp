#include "device/EncoderAbilityXml.h"

#include "tests/device/VideoAbilitySample.h"
#include "tests/support/Documents.h"

TEST(EncoderAbilityXml, Writes)
{
    EncoderAbilityXml codec;
    codec.setEncoderAbility(sampleEncoderAbility());
    EXPECT_TRUE(matchesGolden(written(codec), "device/EncoderAbilityXml.document.xml"));
}

TEST(EncoderAbilityXml, Reads)
{
    EncoderAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/EncoderAbilityXml.document.xml")));
    expectEncoderAbility(sampleEncoderAbility(), codec.getEncoderAbility());
}

TEST(EncoderAbilityXml, GivesItsDefaultsForMissingAttributes)
{
    EncoderAbilityXml codec;
    codec.setEncoderAbility(sampleEncoderAbility());
    ASSERT_TRUE(reads(codec, "<EncoderAbility />"));
    EncoderAbility expected;
    expected.setMaxFrameRate(25);
    expected.setMinFrameRate(1);
    expected.setMaxBitRate(2048);
    expected.setMinBitRate(1024);
    expected.setMaxQuality(7);
    expected.setMinQuality(1);
    expected.setBitRateTypeList(sampleEncoderAbility().getBitRateTypeList());
    expectEncoderAbility(expected, codec.getEncoderAbility());
}

TEST(EncoderAbilityXml, AddsItemsOfAnyNameToItsList)
{
    EncoderAbilityXml codec;
    codec.setEncoderAbility(sampleEncoderAbility());
    ASSERT_TRUE(reads(codec, "<EncoderAbility><Other value='1' /><BitRateTypeList>text<Other value='2' /><!-- -->"
                             "<BitRateType /><BitRateType value='3' /></BitRateTypeList></EncoderAbility>"));
    EXPECT_EQ(std::vector<int>({7, 8, 2, 0, 3}), codec.getEncoderAbility().getBitRateTypeList());
}
