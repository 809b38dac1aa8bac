#include "device/PTZAbilityXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/support/Documents.h"

namespace
{

std::string textOf(const PTZAbility& ability)
{
    PTZAbilityXml codec;
    codec.setPTZAbility(ability);
    return written(codec);
}

} // namespace

TEST(PTZAbilityXml, Writes)
{
    PTZAbilityXml codec;
    codec.setPTZAbility(samplePTZAbility());
    EXPECT_TRUE(matchesGolden(written(codec), "device/PTZAbilityXml.document.xml"));
}

TEST(PTZAbilityXml, Reads)
{
    PTZAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/PTZAbilityXml.document.xml")));
    expectPTZAbility(samplePTZAbility(), codec.getPTZAbility());
}

TEST(PTZAbilityXml, LeavesWhatIsMissing)
{
    PTZAbilityXml codec;
    codec.setPTZAbility(samplePTZAbility());
    ASSERT_TRUE(reads(codec, "<PTZAbility />"));
    expectPTZAbility(samplePTZAbility(), codec.getPTZAbility());
}

TEST(PTZAbilityXml, KeepsItsFlagsApart)
{
    for (const char* flag :
         {"InternalPTZFlag", "ThreeDimensionalPositioningFlag", "BrushFlag", "LightFlag", "InfraredFlag"})
    {
        PTZAbilityXml codec;
        ASSERT_TRUE(reads(codec, std::string("<PTZAbility ") + flag + "='true' />"));
        const PTZAbility& ability = codec.getPTZAbility();
        EXPECT_EQ(flag == std::string("InternalPTZFlag"), ability.getInternalPTZFlag());
        EXPECT_EQ(flag == std::string("ThreeDimensionalPositioningFlag"), ability.getThreeDimensionalPositioningFlag());
        EXPECT_EQ(flag == std::string("BrushFlag"), ability.getBrushFlag());
        EXPECT_EQ(flag == std::string("LightFlag"), ability.getLightFlag());
        EXPECT_EQ(flag == std::string("InfraredFlag"), ability.getInfraredFlag());
        EXPECT_NE(std::string::npos, textOf(codec.getPTZAbility()).find(std::string(" ") + flag + "=\"true\""));
    }
}

TEST(PTZAbilityXml, AddsProtocolsBehindThoseThatAreThere)
{
    PTZAbilityXml codec;
    codec.setPTZAbility(samplePTZAbility());
    ASSERT_TRUE(reads(codec, "<PTZAbility><PTZProtocolList>text<PTZProtocol ProtocolId='8' /><!-- -->"
                             "<Other ProtocolName='Any' /></PTZProtocolList></PTZAbility>"));
    PTZAbility expected = samplePTZAbility();
    PTZProtocol protocol;
    protocol.setProtocolId(8);
    expected.getPTZProtocolList().push_back(protocol);
    protocol.setProtocolId(0);
    protocol.setProtocolName("Any");
    expected.getPTZProtocolList().push_back(protocol);
    expectPTZAbility(expected, codec.getPTZAbility());
}
