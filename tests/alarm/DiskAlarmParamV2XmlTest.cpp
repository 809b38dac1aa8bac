#include "alarm/DiskAlarmParamV2Xml.h"

#include "tests/alarm/ActionSample.h"
#include "tests/support/Documents.h"

namespace
{

DiskAlarmParamV2 sample()
{
    DiskAlarmParamV2 param;
    param.setAlarmEnableFlag(true);
    param.setInterval(56);
    param.setAlarmThreshold(57);
    param.getAlarmOutAction().push_back(sampleAlarmOutAction());
    param.getAlarmPTZAction().push_back(sampleAlarmPTZAction());
    return param;
}

void expectParam(const DiskAlarmParamV2& expected, const DiskAlarmParamV2& param)
{
    EXPECT_EQ(expected.getAlarmEnableFlag(), param.getAlarmEnableFlag());
    EXPECT_EQ(expected.getInterval(), param.getInterval());
    EXPECT_EQ(expected.getAlarmThreshold(), param.getAlarmThreshold());
    expectAlarmOutActions(expected.getAlarmOutAction(), param.getAlarmOutAction());
    expectAlarmPTZActions(expected.getAlarmPTZAction(), param.getAlarmPTZAction());
}

} // namespace

TEST(DiskAlarmParamV2Xml, Writes)
{
    DiskAlarmParamV2Xml codec;
    codec.setDiskAlarmParamV2(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/DiskAlarmParamV2Xml.document.xml"));
}

TEST(DiskAlarmParamV2Xml, ReadsAndPrintsThreeLines)
{
    CapturedOutput output;
    DiskAlarmParamV2Xml codec;
    const std::string text = golden("alarm/DiskAlarmParamV2Xml.document.xml");
    ASSERT_TRUE(reads(codec, text));
    expectParam(sample(), codec.getDiskAlarmParamV2());
    EXPECT_EQ("3333333333333333333 m_strDiskAlarmParamV2XmlString= " + text +
                  "\n"
                  "4444444444444444 strInterval= 56\n"
                  "bool DiskAlarmParamV2Xml::parseXmlNode() Interval=56,AlarmEnableFlag=1   1111111111111111\n",
              output.text());
}

TEST(DiskAlarmParamV2Xml, GivesTheDefaultsOfWhatIsMissingAndPrintsThreeLines)
{
    CapturedOutput output;
    DiskAlarmParamV2Xml codec;
    codec.setDiskAlarmParamV2(sample());
    const std::string text = "<DiskAlarmParamV2 />";
    ASSERT_TRUE(reads(codec, text));
    DiskAlarmParamV2 expected = sample();
    expected.setAlarmEnableFlag(false);
    expected.setInterval(0);
    expected.setAlarmThreshold(95);
    expectParam(expected, codec.getDiskAlarmParamV2());
    EXPECT_EQ("3333333333333333333 m_strDiskAlarmParamV2XmlString= " + text +
                  "\n"
                  "222222222222222222222222 ATTR_INTERVAL= Interval\n"
                  "bool DiskAlarmParamV2Xml::parseXmlNode() Interval=0,AlarmEnableFlag=0   1111111111111111\n",
              output.text());
}

TEST(DiskAlarmParamV2Xml, PrintsNoTextWhenItIsGivenAnElement)
{
    TiXmlDocument document;
    document.Parse("<DiskAlarmParamV2 Interval='7' />");
    CapturedOutput output;
    DiskAlarmParamV2Xml codec;
    codec.setXmlNode(document.FirstChild());
    ASSERT_TRUE(codec.parseXmlNode());
    const std::string lines =
        "3333333333333333333 m_strDiskAlarmParamV2XmlString= \n"
        "4444444444444444 strInterval= 7\n"
        "bool DiskAlarmParamV2Xml::parseXmlNode() Interval=7,AlarmEnableFlag=0   1111111111111111\n";

    DiskAlarmParamV2 read;
    ASSERT_TRUE(DiskAlarmParamV2Xml::readElement(*document.FirstChildElement(), read));
    EXPECT_EQ(lines + lines, output.text());
}

TEST(DiskAlarmParamV2Xml, PrintsTextsThatLookLikeFormatsAsTheyStand)
{
    CapturedOutput output;
    DiskAlarmParamV2Xml codec;
    const std::string text = "<DiskAlarmParamV2 Interval='%s%n%d' />";
    ASSERT_TRUE(reads(codec, text));
    EXPECT_EQ("3333333333333333333 m_strDiskAlarmParamV2XmlString= " + text +
                  "\n"
                  "4444444444444444 strInterval= %s%n%d\n"
                  "bool DiskAlarmParamV2Xml::parseXmlNode() Interval=0,AlarmEnableFlag=0   1111111111111111\n",
              output.text());
}

TEST(DiskAlarmParamV2Xml, FindsTheContainerInCapitalsOnly)
{
    CapturedOutput output;
    const std::string text =
        "<DiskAlarmParamV2><AlarmOutActionList><AlarmOutAction /></AlarmOutActionList></DiskAlarmParamV2>";
    DiskAlarmParamV2Xml codec;
    ASSERT_TRUE(reads(codec, text));
    EXPECT_TRUE(codec.getDiskAlarmParamV2().getAlarmOutAction().empty());
    DiskAlarmParamV2 read;
    ASSERT_TRUE(DiskAlarmParamV2Xml().parseXmlString(text, read));
    EXPECT_TRUE(read.getAlarmOutAction().empty());
}

TEST(DiskAlarmParamV2Xml, AddsActionsBehindThoseThatAreThere)
{
    CapturedOutput output;
    DiskAlarmParamV2Xml codec;
    codec.getDiskAlarmParamV2().getAlarmOutAction().resize(1);
    codec.getDiskAlarmParamV2().getAlarmPTZAction().resize(1);
    ASSERT_TRUE(reads(codec, golden("alarm/DiskAlarmParamV2Xml.document.xml")));
    expectAlarmOutActions({AlarmOutAction(), sampleAlarmOutAction()}, codec.getDiskAlarmParamV2().getAlarmOutAction());
    expectAlarmPTZActions({AlarmPTZAction(), sampleAlarmPTZAction()}, codec.getDiskAlarmParamV2().getAlarmPTZAction());
}

TEST(DiskAlarmParamV2Xml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(DiskAlarmParamV2Xml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "alarm/DiskAlarmParamV2Xml.node.xml"));
}

TEST(DiskAlarmParamV2Xml, ReadsNodes)
{
    CapturedOutput output;
    DiskAlarmParamV2 read;
    ASSERT_TRUE(DiskAlarmParamV2Xml().parseXmlString(golden("alarm/DiskAlarmParamV2Xml.node.xml"), read));
    expectParam(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(DiskAlarmParamV2Xml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    DiskAlarmParamV2 read = sample();
    ASSERT_TRUE(DiskAlarmParamV2Xml().parseXmlString("<DiskAlarmParamV2 />", read));
    expectParam(DiskAlarmParamV2(), read);
    EXPECT_EQ("DiskAlarmParamV2Xml::parseDomainXmlNode get AlarmEnableFlag failed \n"
              "DiskAlarmParamV2Xml::parseDomainXmlNode get Interval failed \n"
              "DiskAlarmParamV2Xml::parseDomainXmlNode get AlarmThreshold failed \n",
              output.text());
}

TEST(DiskAlarmParamV2Xml, PutsTheListsOfANodeInPlaceOfOthers)
{
    DiskAlarmParamV2 read = sample();
    ASSERT_TRUE(DiskAlarmParamV2Xml().parseXmlString(golden("alarm/DiskAlarmParamV2Xml.node.xml"), read));
    expectParam(sample(), read);
}

TEST(DiskAlarmParamV2Xml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(
        DiskAlarmParamV2Xml().createXmlString(std::vector<DiskAlarmParamV2>{sample(), DiskAlarmParamV2()}, text));
    EXPECT_TRUE(matchesGolden(text, "alarm/DiskAlarmParamV2Xml.list.xml"));
    ASSERT_TRUE(DiskAlarmParamV2Xml().createXmlString(std::vector<DiskAlarmParamV2>(), text));
    EXPECT_EQ("<DiskAlarmParamV2List />\n", text);
}

TEST(DiskAlarmParamV2Xml, ReadsListsBehindWhatTheyHold)
{
    std::vector<DiskAlarmParamV2> list(1, DiskAlarmParamV2());
    ASSERT_TRUE(DiskAlarmParamV2Xml().parseXmlString(golden("alarm/DiskAlarmParamV2Xml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectParam(DiskAlarmParamV2(), list[0]);
    expectParam(sample(), list[1]);
    expectParam(DiskAlarmParamV2(), list[2]);
}

TEST(DiskAlarmParamV2Xml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    DiskAlarmParamV2 read = sample();
    std::vector<DiskAlarmParamV2> list(1, sample());
    EXPECT_FALSE(DiskAlarmParamV2Xml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(DiskAlarmParamV2Xml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(DiskAlarmParamV2Xml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(DiskAlarmParamV2Xml().parseDomainXmlNode(empty, list));
    expectParam(sample(), read);
    EXPECT_EQ(1U, list.size());
}
