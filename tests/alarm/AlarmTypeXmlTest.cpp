#include "alarm/AlarmTypeXml.h"

#include "tests/support/Documents.h"

namespace
{

AlarmType sample()
{
    AlarmType type;
    type.setAlarmTypeId(5);
    type.setAlarmTypeName("Motion & noise");
    return type;
}

void expectType(const AlarmType& expected, const AlarmType& type)
{
    EXPECT_EQ(expected.getAlarmTypeId(), type.getAlarmTypeId());
    EXPECT_EQ(expected.getAlarmTypeName(), type.getAlarmTypeName());
}

} // namespace

TEST(AlarmTypeXml, Writes)
{
    AlarmTypeXml codec;
    codec.setAlarmType(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmTypeXml.document.xml"));
}

TEST(AlarmTypeXml, Reads)
{
    AlarmTypeXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmTypeXml.document.xml")));
    expectType(sample(), codec.getAlarmType());
}

TEST(AlarmTypeXml, ResetsWhatIsMissing)
{
    CapturedOutput output;
    AlarmTypeXml codec;
    codec.setAlarmType(sample());
    ASSERT_TRUE(reads(codec, "<AlarmType />"));
    expectType(AlarmType(), codec.getAlarmType());
    EXPECT_EQ("", output.text());
}

TEST(AlarmTypeXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(AlarmTypeXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "alarm/AlarmTypeXml.node.xml"));
}

TEST(AlarmTypeXml, ReadsNodes)
{
    AlarmType read;
    ASSERT_TRUE(AlarmTypeXml().parseXmlString(golden("alarm/AlarmTypeXml.node.xml"), read));
    expectType(sample(), read);
}

TEST(AlarmTypeXml, PrintsALineForEachMissingProperty)
{
    CapturedOutput output;
    AlarmType read = sample();
    ASSERT_TRUE(AlarmTypeXml().parseXmlString("<AlarmType />", read));
    expectType(AlarmType(), read);
    EXPECT_EQ("AlarmTypeXml::parseDomainXmlNode get AlarmTypeId failed \n"
              "AlarmTypeXml::parseDomainXmlNode get AlarmTypeName failed \n",
              output.text());
}

TEST(AlarmTypeXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(AlarmTypeXml().createXmlString({sample(), AlarmType()}, text));
    EXPECT_TRUE(matchesGolden(text, "alarm/AlarmTypeXml.list.xml"));
    ASSERT_TRUE(AlarmTypeXml().createXmlString(std::vector<AlarmType>(), text));
    EXPECT_EQ("<AlarmTypeList />\n", text);
}

TEST(AlarmTypeXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<AlarmType> list(1, sample());
    ASSERT_TRUE(AlarmTypeXml().parseXmlString(golden("alarm/AlarmTypeXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectType(sample(), list[0]);
    expectType(sample(), list[1]);
    expectType(AlarmType(), list[2]);
}

TEST(AlarmTypeXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    AlarmType read = sample();
    std::vector<AlarmType> list(1, sample());
    EXPECT_FALSE(AlarmTypeXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(AlarmTypeXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(AlarmTypeXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(AlarmTypeXml().parseDomainXmlNode(empty, list));
    expectType(sample(), read);
    EXPECT_EQ(1U, list.size());
}
