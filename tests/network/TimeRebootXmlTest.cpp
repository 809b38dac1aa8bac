#include "network/TimeRebootXml.h"

#include "tests/network/RebootTimeSample.h"
#include "tests/support/Documents.h"

TEST(TimeRebootXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(TimeRebootXml().createXmlString(sampleReboot(), text));
    EXPECT_TRUE(matchesGolden(text, "network/TimeRebootXml.node.xml"));
}

TEST(TimeRebootXml, ReadsNodes)
{
    CapturedOutput output;
    TimeRebootParam read;
    read.setRebootTimeList({rebootTime(1, 2, 3, 4)});
    ASSERT_TRUE(TimeRebootXml().parseXmlString(golden("network/TimeRebootXml.node.xml"), read));
    expectReboot(sampleReboot(), read);
    EXPECT_EQ("", output.text());
}

TEST(TimeRebootXml, ResetsWhatIsMissing)
{
    CapturedOutput output;
    TimeRebootParam read = sampleReboot();
    ASSERT_TRUE(TimeRebootXml().parseXmlString("<TimeRebootParam />", read));
    expectReboot(TimeRebootParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(TimeRebootXml, TakesItemsByTheirNameAndGivesZeroForWhatTheyLack)
{
    CapturedOutput output;
    TimeRebootParam read;
    ASSERT_TRUE(TimeRebootXml().parseXmlString(
        "<TimeRebootParam>text<Other Month='1' /><!--RebootTime--><RebootTime Month='2' /><Other Month='3' />"
        "<RebootTime Second='4' /></TimeRebootParam>",
        read));
    expectTimes({rebootTime(2, 0, 0, 0), rebootTime(0, 0, 0, 4)}, read.getRebootTimeList());
    EXPECT_EQ("", output.text());
}

TEST(TimeRebootXml, ReadsOnlyItsOwnShape)
{
    TimeRebootParam read = sampleReboot();
    EXPECT_FALSE(TimeRebootXml().parseXmlString(golden("network/TimeRebootParamXml.node.xml"), read));
    EXPECT_FALSE(TimeRebootXml().parseXmlString("<TimeRebootParam", read));
    expectReboot(sampleReboot(), read);

    ASSERT_TRUE(TimeRebootXml().parseXmlString(
        "<TimeRebootParam EnableTimeReboot='1'><RebootTimeList><RebootTime /></RebootTimeList></TimeRebootParam>",
        read));
    expectReboot(TimeRebootParam(), read);
}
