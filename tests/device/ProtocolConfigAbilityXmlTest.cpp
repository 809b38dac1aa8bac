#include "device/ProtocolConfigAbilityXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/support/Documents.h"

namespace
{

ProtocolType protocolType(const std::string& name, const std::vector<std::string>& versions)
{
    ProtocolType type;
    type.setProtocolName(name);
    for (const std::string& version : versions)
    {
        ProtocolInfo info;
        info.setProtocolVersion(version);
        type.getProtocolInfoList().push_back(info);
    }
    return type;
}

ProtocolConfigAbility sample()
{
    ProtocolConfigAbility ability;
    ability.setProtocolTypeList({protocolType("RTSP", {"2.1", "2.2"}), protocolType("HTTP", {})});
    return ability;
}

void expectProtocolInfo(const ProtocolInfo& expected, const ProtocolInfo& read)
{
    EXPECT_EQ(expected.getProtocolVersion(), read.getProtocolVersion());
}

void expectProtocolType(const ProtocolType& expected, const ProtocolType& read)
{
    EXPECT_EQ(expected.getProtocolName(), read.getProtocolName());
    expectList(expected.getProtocolInfoList(), read.getProtocolInfoList(), expectProtocolInfo);
}

void expectProtocolConfigAbility(const ProtocolConfigAbility& expected, const ProtocolConfigAbility& read)
{
    expectList(expected.getProtocolTypeList(), read.getProtocolTypeList(), expectProtocolType);
}

} // namespace

TEST(ProtocolConfigAbilityXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ProtocolConfigAbilityXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "device/ProtocolConfigAbilityXml.node.xml"));
}

TEST(ProtocolConfigAbilityXml, ReadsNodes)
{
    CapturedOutput output;
    ProtocolConfigAbility read;
    ASSERT_TRUE(ProtocolConfigAbilityXml().parseXmlString(golden("device/ProtocolConfigAbilityXml.node.xml"), read));
    expectProtocolConfigAbility(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(ProtocolConfigAbilityXml, ReplacesTheList)
{
    ProtocolConfigAbility read = sample();
    ASSERT_TRUE(ProtocolConfigAbilityXml().parseXmlString(golden("device/ProtocolConfigAbilityXml.node.xml"), read));
    expectProtocolConfigAbility(sample(), read);
    ASSERT_TRUE(ProtocolConfigAbilityXml().parseXmlString("<ProtocolConfigAbility />", read));
    EXPECT_TRUE(read.getProtocolTypeList().empty());
}

TEST(ProtocolConfigAbilityXml, TakesItemsOfAnyNameAndGivesEmptyTextsForMissingProperties)
{
    CapturedOutput output;
    ProtocolConfigAbility read;
    ASSERT_TRUE(ProtocolConfigAbilityXml().parseXmlString(
        "<ProtocolConfigAbility>text<!--ProtocolType--><Other><ProtocolInfo /><Other ProtocolVersion='3' /></Other>"
        "</ProtocolConfigAbility>",
        read));
    ProtocolConfigAbility expected;
    expected.setProtocolTypeList({protocolType("", {"", "3"})});
    expectProtocolConfigAbility(expected, read);
    EXPECT_EQ("", output.text());
}
