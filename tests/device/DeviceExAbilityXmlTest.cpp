#include "device/DeviceExAbilityXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/device/VideoAbilitySample.h"
#include "tests/support/Documents.h"

namespace
{

DeviceExAbility sample()
{
    DeviceExAbility ability;
    ability.setPTZAbility(samplePTZAbility());
    ability.setVideoExAbility(sampleVideoExAbility());
    ability.setAudioExAbility(sampleAudioExAbility());
    ability.getFileSystemAbilityList().push_back(sampleFileSystemAbility());
    ability.setWorkingModeAbility({sampleWorkingMode()});
    ability.setLanguageAbility({sampleLanguageType()});
    ability.setNetworkAbility({sampleIPCNetworkCardAbility()});
    ability.getPIRAlarmAbility().setPIRAlarmSupportFlag(true);
    ability.setWifiAbilityParam(sampleWifiAbilityParam());
    return ability;
}

void expectPIRAlarmAbility(const PIRAlarmAbility& expected, const PIRAlarmAbility& read)
{
    EXPECT_EQ(expected.getPIRAlarmSupportFlag(), read.getPIRAlarmSupportFlag());
}

void expectDeviceExAbility(const DeviceExAbility& expected, const DeviceExAbility& read)
{
    expectPTZAbility(expected.getPTZAbility(), read.getPTZAbility());
    expectVideoExAbility(expected.getVideoExAbility(), read.getVideoExAbility());
    expectAudioExAbility(expected.getAudioExAbility(), read.getAudioExAbility());
    expectList(expected.getFileSystemAbilityList(), read.getFileSystemAbilityList(), expectFileSystemAbility);
    expectList(expected.getWorkingModeAbility(), read.getWorkingModeAbility(), expectWorkingMode);
    expectList(expected.getLanguageAbility(), read.getLanguageAbility(), expectLanguageType);
    expectList(expected.getNetworkAbility(), read.getNetworkAbility(), expectIPCNetworkCardAbility);
    expectPIRAlarmAbility(expected.getPIRAlarmAbility(), read.getPIRAlarmAbility());
    expectWifiAbilityParam(expected.getWifiAbilityParam(), read.getWifiAbilityParam());
}

} // namespace

TEST(DeviceExAbilityXml, Writes)
{
    DeviceExAbilityXml codec;
    codec.setDeviceExAbility(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/DeviceExAbilityXml.document.xml"));
}

TEST(DeviceExAbilityXml, Reads)
{
    DeviceExAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/DeviceExAbilityXml.document.xml")));
    expectDeviceExAbility(sample(), codec.getDeviceExAbility());
}

TEST(DeviceExAbilityXml, LeavesWhatIsMissing)
{
    DeviceExAbilityXml codec;
    codec.setDeviceExAbility(sample());
    ASSERT_TRUE(reads(codec, "<DeviceExAbility />"));
    expectDeviceExAbility(sample(), codec.getDeviceExAbility());
}

TEST(DeviceExAbilityXml, ReplacesWhatIsThere)
{
    DeviceExAbilityXml codec;
    codec.setDeviceExAbility(sample());
    ASSERT_TRUE(reads(codec, golden("device/DeviceExAbilityXml.document.xml")));
    expectDeviceExAbility(sample(), codec.getDeviceExAbility());

    DeviceExAbilityXml reader;
    reader.setDeviceExAbility(sample());
    ASSERT_TRUE(reads(reader,
                      "<DeviceExAbility><PTZAbility /><VideoExAbility /><AudioExAbility /><FileSystemAbilityList />"
                      "<WorkingModeAbility><WorkingModeList /></WorkingModeAbility><LanguageAbility>"
                      "<LanguageTypeList /></LanguageAbility><NetworkAbility><NetworkAbilityList />"
                      "</NetworkAbility><PIRAlarmAbility><PIRAlarmAbilityItem /></PIRAlarmAbility>"
                      "<WifiAbilityParam><WifiAbilityParamItem /></WifiAbilityParam></DeviceExAbility>"));
    expectDeviceExAbility(DeviceExAbility(), reader.getDeviceExAbility());
}

TEST(DeviceExAbilityXml, GivesOneModeForModesThatCannotBeRead)
{
    DeviceExAbilityXml codec;
    codec.setDeviceExAbility(sample());
    ASSERT_TRUE(reads(codec, "<DeviceExAbility><WorkingModeAbility /></DeviceExAbility>"));
    DeviceExAbility expected = sample();
    WorkingMode mode;
    mode.setModeID(1);
    mode.setModeName("VedioMode");
    expected.setWorkingModeAbility({mode});
    expectDeviceExAbility(expected, codec.getDeviceExAbility());
}

TEST(DeviceExAbilityXml, GivesEnglishForLanguagesThatCannotBeRead)
{
    DeviceExAbilityXml codec;
    codec.setDeviceExAbility(sample());
    ASSERT_TRUE(reads(codec, "<DeviceExAbility><LanguageAbility><Other /></LanguageAbility></DeviceExAbility>"));
    DeviceExAbility expected = sample();
    LanguageType language;
    language.setLanguageID(1);
    language.setLanguageName("English");
    expected.setLanguageAbility({language});
    expectDeviceExAbility(expected, codec.getDeviceExAbility());
}

TEST(DeviceExAbilityXml, EndsWithFalseAtAnyOtherChildThatCannotBeRead)
{
    for (const char* child : {"<NetworkAbility />", "<PIRAlarmAbility />", "<WifiAbilityParam />"})
    {
        CapturedOutput output;
        DeviceExAbilityXml codec;
        codec.setDeviceExAbility(sample());
        EXPECT_FALSE(reads(codec, std::string("<DeviceExAbility>") + child +
                                      "<PTZAbility MaxPresetCount='1' /></DeviceExAbility>"))
            << child;
        DeviceExAbility expected = sample();
        expected.setPTZAbility(PTZAbility());
        expected.getPTZAbility().setMaxPresetCount(1);
        expectDeviceExAbility(expected, codec.getDeviceExAbility());
        EXPECT_EQ(child == std::string("<PIRAlarmAbility />")
                      ? "m_pobjPIRAlarmAbilityNode->getConfigNode-------Failed\n"
                      : "",
                  output.text());
    }
}

TEST(DeviceExAbilityXml, FindsItsChildrenByTheirNamesOnly)
{
    DeviceExAbilityXml codec;
    codec.setDeviceExAbility(sample());
    ASSERT_TRUE(reads(codec, "<DeviceExAbility>text<!--NetworkAbility--><Other><LanguageAbility /></Other>"
                             "</DeviceExAbility>"));
    expectDeviceExAbility(sample(), codec.getDeviceExAbility());
}
