#include "network/TimeRebootParamXml.h"

#include "tests/network/RebootTimeSample.h"
#include "tests/support/Documents.h"

TEST(TimeRebootParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(TimeRebootParamXml().createXmlString(sampleReboot(), text));
    EXPECT_TRUE(matchesGolden(text, "network/TimeRebootParamXml.node.xml"));
}

TEST(TimeRebootParamXml, ReadsNodes)
{
    CapturedOutput output;
    TimeRebootParam read;
    read.setRebootTimeList({rebootTime(1, 2, 3, 4)});
    ASSERT_TRUE(TimeRebootParamXml().parseXmlString(golden("network/TimeRebootParamXml.node.xml"), read));
    expectReboot(sampleReboot(), read);
    EXPECT_EQ("", output.text());
}

TEST(TimeRebootParamXml, WritesAndReadsAnEmptyList)
{
    std::string text;
    ASSERT_TRUE(TimeRebootParamXml().createXmlString(TimeRebootParam(), text));
    EXPECT_EQ("<EnableTimeReboot EnableTimeReboot=\"false\">\n\t<RebootTimeList />\n</EnableTimeReboot>\n", text);

    TimeRebootParam read = sampleReboot();
    ASSERT_TRUE(TimeRebootParamXml().parseXmlString(text, read));
    expectReboot(TimeRebootParam(), read);
}

TEST(TimeRebootParamXml, ResetsWhatIsMissing)
{
    CapturedOutput output;
    TimeRebootParam read = sampleReboot();
    ASSERT_TRUE(TimeRebootParamXml().parseXmlString("<EnableTimeReboot />", read));
    expectReboot(TimeRebootParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(TimeRebootParamXml, ReadsOnlyItsOwnShape)
{
    TimeRebootParam read = sampleReboot();
    EXPECT_FALSE(TimeRebootParamXml().parseXmlString(golden("network/TimeRebootXml.node.xml"), read));
    EXPECT_FALSE(TimeRebootParamXml().parseXmlString("<EnableTimeReboot", read));
    expectReboot(sampleReboot(), read);

    ASSERT_TRUE(TimeRebootParamXml().parseXmlString(
        "<EnableTimeReboot TimeRebootEnableFlag='1'><RebootTime Month='1' /></EnableTimeReboot>", read));
    expectReboot(TimeRebootParam(), read);
}

TEST(TimeRebootParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    TimeRebootParam read = sampleReboot();
    EXPECT_FALSE(TimeRebootParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(TimeRebootParamXml().parseDomainXmlNode(empty, read));
    expectReboot(sampleReboot(), read);
}
