#include "network/TimeZoneExParamXml.h"

#include "tests/support/Documents.h"

#include <vector>

namespace
{

TimeZoneExParam sample()
{
    TimeZoneExParam param;
    param.setTimeZone(8);
    param.setDSTOpenFlag(true);
    param.setDSTOffset(60);
    param.setBeginMonth(3);
    param.setBeginWeekly(4);
    param.setBeginWeekDays(5);
    param.setBeginTime(7200);
    param.setEndMonth(10);
    param.setEndWeekly(2);
    param.setEndWeekDays(6);
    param.setEndTime(10800);
    return param;
}

void expectParam(const TimeZoneExParam& expected, const TimeZoneExParam& param)
{
    EXPECT_EQ(expected.getTimeZone(), param.getTimeZone());
    EXPECT_EQ(expected.getDSTOpenFlag(), param.getDSTOpenFlag());
    EXPECT_EQ(expected.getDSTOffset(), param.getDSTOffset());
    EXPECT_EQ(expected.getBeginMonth(), param.getBeginMonth());
    EXPECT_EQ(expected.getBeginWeekly(), param.getBeginWeekly());
    EXPECT_EQ(expected.getBeginWeekDays(), param.getBeginWeekDays());
    EXPECT_EQ(expected.getBeginTime(), param.getBeginTime());
    EXPECT_EQ(expected.getEndMonth(), param.getEndMonth());
    EXPECT_EQ(expected.getEndWeekly(), param.getEndWeekly());
    EXPECT_EQ(expected.getEndWeekDays(), param.getEndWeekDays());
    EXPECT_EQ(expected.getEndTime(), param.getEndTime());
}

} // namespace

TEST(TimeZoneExParamXml, Writes)
{
    TimeZoneExParamXml codec;
    codec.setTimeZoneExParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "network/TimeZoneExParamXml.document.xml"));
}

TEST(TimeZoneExParamXml, Reads)
{
    TimeZoneExParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/TimeZoneExParamXml.document.xml")));
    expectParam(sample(), codec.getTimeZoneExParam());
}

TEST(TimeZoneExParamXml, LeavesWhatIsMissing)
{
    TimeZoneExParamXml codec;
    codec.setTimeZoneExParam(sample());
    ASSERT_TRUE(reads(codec, "<TimeZoneParam />"));
    expectParam(sample(), codec.getTimeZoneExParam());
}

TEST(TimeZoneExParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(TimeZoneExParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "network/TimeZoneExParamXml.node.xml"));
}

TEST(TimeZoneExParamXml, ReadsNodes)
{
    CapturedOutput output;
    TimeZoneExParam read;
    ASSERT_TRUE(TimeZoneExParamXml().parseXmlString(golden("network/TimeZoneExParamXml.node.xml"), read));
    expectParam(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(TimeZoneExParamXml, WantsItsOwnRoot)
{
    TimeZoneExParamXml codec;
    EXPECT_FALSE(reads(codec, "<WebParam DSTOffset='9' />"));
    TimeZoneExParam read = sample();
    EXPECT_FALSE(TimeZoneExParamXml().parseXmlString("<WebParam DSTOffset='9' />", read));
    expectParam(TimeZoneExParam(), codec.getTimeZoneExParam());
    expectParam(sample(), read);
}

TEST(TimeZoneExParamXml, RefusesANodeThatLacksAnyProperty)
{
    const std::vector<std::string> names = {"TimeZone",    "DSTOpenFlag",   "DSTOffset", "BeginMonth",
                                            "BeginWeekly", "BeginWeekDays", "BeginTime", "EndMonth",
                                            "EndWeekly",   "EndWeekDays",   "EndTime"};
    for (const std::string& name : names)
    {
        CapturedOutput output;
        std::string text = golden("network/TimeZoneExParamXml.node.xml");
        text.replace(text.find(" " + name + "="), 1 + name.size(), " Other");
        TimeZoneExParam read;
        EXPECT_FALSE(TimeZoneExParamXml().parseXmlString(text, read)) << name;
        EXPECT_EQ("", output.text());
    }
}

TEST(TimeZoneExParamXml, KeepsWhatStandsBeforeAMissingProperty)
{
    TimeZoneExParam read = sample();
    EXPECT_FALSE(
        TimeZoneExParamXml().parseXmlString("<TimeZoneParam TimeZone='9' DSTOpenFlag='0' BeginMonth='9' />", read));
    TimeZoneExParam expected = sample();
    expected.setTimeZone(9);
    expected.setDSTOpenFlag(false);
    expectParam(expected, read);
}

TEST(TimeZoneExParamXml, CarriesTheHighestTimesWhole)
{
    TimeZoneExParam param;
    param.setBeginTime(4294967295U);
    param.setEndTime(2147483648U);
    TimeZoneExParamXml codec;
    codec.setTimeZoneExParam(param);
    std::string text;
    ASSERT_TRUE(TimeZoneExParamXml().createXmlString(param, text));
    EXPECT_EQ(text, written(codec));
    EXPECT_NE(std::string::npos, text.find(" BeginTime=\"4294967295\""));
    EXPECT_NE(std::string::npos, text.find(" EndTime=\"2147483648\""));

    TimeZoneExParamXml reader;
    ASSERT_TRUE(reads(reader, text));
    expectParam(param, reader.getTimeZoneExParam());
    TimeZoneExParam read;
    ASSERT_TRUE(TimeZoneExParamXml().parseXmlString(text, read));
    expectParam(param, read);
}

TEST(TimeZoneExParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    TimeZoneExParam read = sample();
    EXPECT_FALSE(TimeZoneExParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(TimeZoneExParamXml().parseDomainXmlNode(empty, read));
    expectParam(sample(), read);
}
