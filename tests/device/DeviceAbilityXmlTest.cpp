#include "device/DeviceAbilityXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/device/VideoAbilitySample.h"
#include "tests/support/Documents.h"

namespace
{

DeviceAbility sample()
{
    DeviceAbility ability;
    ability.getVideoAbility() = sampleVideoAbility();
    ability.getAudioAbility() = sampleAudioAbility();
    return ability;
}

void expectDeviceAbility(const DeviceAbility& expected, const DeviceAbility& read)
{
    expectVideoAbility(expected.getVideoAbility(), read.getVideoAbility());
    expectAudioAbility(expected.getAudioAbility(), read.getAudioAbility());
}

} // namespace

TEST(DeviceAbilityXml, Writes)
{
    DeviceAbilityXml codec;
    codec.setDeviceAbility(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/DeviceAbilityXml.document.xml"));
}

TEST(DeviceAbilityXml, RefusesATextWithOneOfItsChildren)
{
    for (const char* child : {"<VideoAbility />", "<AudioAbility />"})
    {
        DeviceAbilityXml codec;
        codec.setDeviceAbility(sample());
        EXPECT_FALSE(reads(codec, std::string("<DeviceAbility>") + child + "</DeviceAbility>")) << child;
        expectDeviceAbility(sample(), codec.getDeviceAbility());
    }
    DeviceAbilityXml codec;
    EXPECT_FALSE(reads(codec, golden("device/DeviceAbilityXml.document.xml")));
    expectDeviceAbility(DeviceAbility(), codec.getDeviceAbility());
}

TEST(DeviceAbilityXml, ReadsATextWithoutItsChildrenAndLeavesTheRecord)
{
    DeviceAbilityXml codec;
    codec.setDeviceAbility(sample());
    ASSERT_TRUE(reads(codec, "<DeviceAbility><!--VideoAbility--><Other /></DeviceAbility>"));
    expectDeviceAbility(sample(), codec.getDeviceAbility());
}
