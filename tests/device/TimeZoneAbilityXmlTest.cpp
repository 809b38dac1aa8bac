#include "device/TimeZoneAbilityXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/support/Documents.h"

namespace
{

TimeZoneAbility sample()
{
    TimeZoneType type;
    type.setTimeZoneID(12);
    type.setTimeZoneName("Middle Europe");
    type.setSTDTimeZoneAbbreviation("CET");
    type.setDSTTimeZoneAbbreviation("CEST");
    TimeZoneAbility ability;
    ability.setTimeZoneTypeList({type, TimeZoneType()});
    return ability;
}

void expectTimeZoneType(const TimeZoneType& expected, const TimeZoneType& read)
{
    EXPECT_EQ(expected.getTimeZoneID(), read.getTimeZoneID());
    EXPECT_EQ(expected.getTimeZoneName(), read.getTimeZoneName());
    EXPECT_EQ(expected.getSTDTimeZoneAbbreviation(), read.getSTDTimeZoneAbbreviation());
    EXPECT_EQ(expected.getDSTTimeZoneAbbreviation(), read.getDSTTimeZoneAbbreviation());
}

void expectTimeZoneAbility(const TimeZoneAbility& expected, const TimeZoneAbility& read)
{
    expectList(expected.getTimeZoneTypeList(), read.getTimeZoneTypeList(), expectTimeZoneType);
}

} // namespace

TEST(TimeZoneAbilityXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(TimeZoneAbilityXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "device/TimeZoneAbilityXml.node.xml"));
}

TEST(TimeZoneAbilityXml, ReadsNodes)
{
    CapturedOutput output;
    TimeZoneAbility read;
    ASSERT_TRUE(TimeZoneAbilityXml().parseXmlString(golden("device/TimeZoneAbilityXml.node.xml"), read));
    expectTimeZoneAbility(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(TimeZoneAbilityXml, ReplacesTheList)
{
    TimeZoneAbility read = sample();
    ASSERT_TRUE(TimeZoneAbilityXml().parseXmlString(golden("device/TimeZoneAbilityXml.node.xml"), read));
    expectTimeZoneAbility(sample(), read);
    ASSERT_TRUE(TimeZoneAbilityXml().parseXmlString("<TimeZoneAbility />", read));
    EXPECT_TRUE(read.getTimeZoneTypeList().empty());
}

TEST(TimeZoneAbilityXml, TakesItemsOfAnyNameAndGivesZeroAndEmptyForMissingProperties)
{
    CapturedOutput output;
    TimeZoneAbility read;
    ASSERT_TRUE(TimeZoneAbilityXml().parseXmlString(
        "<TimeZoneAbility>text<!--TimeZoneType--><TimeZoneType /><Other TimeZoneId='4' /></TimeZoneAbility>", read));
    TimeZoneAbility expected;
    expected.getTimeZoneTypeList().resize(2);
    expected.getTimeZoneTypeList()[1].setTimeZoneID(4);
    expectTimeZoneAbility(expected, read);
    EXPECT_EQ("", output.text());
}
