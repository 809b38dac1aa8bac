#include "network/TimeZoneParamXml.h"

#include "tests/support/Documents.h"

#include <vector>

namespace
{

TimeZoneParam sample()
{
    TimeZoneParam param;
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

void expectParam(const TimeZoneParam& expected, const TimeZoneParam& param)
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

TEST(TimeZoneParamXml, Writes)
{
    TimeZoneParamXml codec;
    codec.setTimeZoneParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "network/TimeZoneParamXml.document.xml"));
}

TEST(TimeZoneParamXml, Reads)
{
    TimeZoneParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/TimeZoneParamXml.document.xml")));
    expectParam(sample(), codec.getTimeZoneParam());
}

TEST(TimeZoneParamXml, LeavesWhatIsMissing)
{
    TimeZoneParamXml codec;
    codec.setTimeZoneParam(sample());
    ASSERT_TRUE(reads(codec, "<WebParam />"));
    expectParam(sample(), codec.getTimeZoneParam());
}

TEST(TimeZoneParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(TimeZoneParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "network/TimeZoneParamXml.node.xml"));
}

TEST(TimeZoneParamXml, ReadsNodes)
{
    CapturedOutput output;
    TimeZoneParam read;
    ASSERT_TRUE(TimeZoneParamXml().parseXmlString(golden("network/TimeZoneParamXml.node.xml"), read));
    expectParam(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(TimeZoneParamXml, WantsItsOwnRoot)
{
    TimeZoneParamXml codec;
    EXPECT_FALSE(reads(codec, "<TimeZoneParam DSTOffset='9' />"));
    TimeZoneParam read = sample();
    EXPECT_FALSE(TimeZoneParamXml().parseXmlString("<TimeZoneParam DSTOffset='9' />", read));
    expectParam(TimeZoneParam(), codec.getTimeZoneParam());
    expectParam(sample(), read);
}

TEST(TimeZoneParamXml, RefusesANodeThatLacksAnyProperty)
{
    const std::vector<std::string> names = {"WebServerPort", "DSTOpenFlag",   "DSTOffset", "BeginMonth",
                                            "BeginWeekly",   "BeginWeekDays", "BeginTime", "EndMonth",
                                            "EndWeekly",     "EndWeekDays",   "EndTime"};
    for (const std::string& name : names)
    {
        CapturedOutput output;
        std::string text = golden("network/TimeZoneParamXml.node.xml");
        text.replace(text.find(" " + name + "="), 1 + name.size(), " Other");
        TimeZoneParam read;
        EXPECT_FALSE(TimeZoneParamXml().parseXmlString(text, read)) << name;
        EXPECT_EQ("", output.text());
    }
}

TEST(TimeZoneParamXml, KeepsWhatStandsBeforeAMissingProperty)
{
    TimeZoneParam read = sample();
    EXPECT_FALSE(
        TimeZoneParamXml().parseXmlString("<WebParam WebServerPort='9' DSTOpenFlag='0' BeginMonth='9' />", read));
    TimeZoneParam expected = sample();
    expected.setTimeZone(9);
    expected.setDSTOpenFlag(false);
    expectParam(expected, read);
}

TEST(TimeZoneParamXml, CarriesTheHighestTimesWhole)
{
    TimeZoneParam param;
    param.setBeginTime(4294967295U);
    param.setEndTime(2147483648U);
    TimeZoneParamXml codec;
    codec.setTimeZoneParam(param);
    std::string text;
    ASSERT_TRUE(TimeZoneParamXml().createXmlString(param, text));
    EXPECT_EQ(text, written(codec));
    EXPECT_NE(std::string::npos, text.find(" BeginTime=\"4294967295\""));
    EXPECT_NE(std::string::npos, text.find(" EndTime=\"2147483648\""));

    TimeZoneParamXml reader;
    ASSERT_TRUE(reads(reader, text));
    expectParam(param, reader.getTimeZoneParam());
    TimeZoneParam read;
    ASSERT_TRUE(TimeZoneParamXml().parseXmlString(text, read));
    expectParam(param, read);
}

TEST(TimeZoneParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    TimeZoneParam read = sample();
    EXPECT_FALSE(TimeZoneParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(TimeZoneParamXml().parseDomainXmlNode(empty, read));
    expectParam(sample(), read);
}
