#include "alarm/AlarmParamXml.h"

#include "tests/support/Documents.h"

namespace
{

AlarmParam sample()
{
    AlarmParam param;
    param.setAlarmInterval(58);
    return param;
}

void expectParam(const AlarmParam& expected, const AlarmParam& param)
{
    EXPECT_EQ(expected.getAlarmInterval(), param.getAlarmInterval());
}

} // namespace

TEST(AlarmParamXml, Writes)
{
    AlarmParamXml codec;
    codec.setAlarmParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmParamXml.document.xml"));
}

TEST(AlarmParamXml, Reads)
{
    AlarmParamXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmParamXml.document.xml")));
    expectParam(sample(), codec.getAlarmParam());
}

TEST(AlarmParamXml, ResetsWhatIsMissing)
{
    AlarmParamXml codec;
    codec.setAlarmParam(sample());
    ASSERT_TRUE(reads(codec, "<AlarmParam />"));
    expectParam(AlarmParam(), codec.getAlarmParam());
}

TEST(AlarmParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(AlarmParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "alarm/AlarmParamXml.node.xml"));
}

TEST(AlarmParamXml, ReadsNodes)
{
    CapturedOutput output;
    AlarmParam read;
    ASSERT_TRUE(AlarmParamXml().parseXmlString(golden("alarm/AlarmParamXml.node.xml"), read));
    expectParam(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(AlarmParamXml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    AlarmParam read = sample();
    ASSERT_TRUE(AlarmParamXml().parseXmlString("<AlarmParam />", read));
    expectParam(AlarmParam(), read);
    EXPECT_EQ("AlarmParamXml::parseDomainXmlNode node = ATTR_ALARM_INTERVAL failed \n", output.text());
}

TEST(AlarmParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    AlarmParam read = sample();
    EXPECT_FALSE(AlarmParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(AlarmParamXml().parseDomainXmlNode(empty, read));
    expectParam(sample(), read);
}
