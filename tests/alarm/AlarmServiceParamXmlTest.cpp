#include "alarm/AlarmServiceParamXml.h"

#include "tests/support/Documents.h"

namespace
{

AlarmServiceParam sample()
{
    AlarmServiceParam param;
    param.setAlarmCenterEnableFlag(true);
    param.setAlarmCenterServerIP("192.0.2.9");
    param.setAlarmCenterServerPort(65535);
    param.setAlarmEmailEnableFlag(true);
    param.setAlarmEmailAddress("guard@example.org");
    param.setIPProtoVer(4);
    return param;
}

void expectParam(const AlarmServiceParam& expected, const AlarmServiceParam& param)
{
    EXPECT_EQ(expected.getAlarmCenterEnableFlag(), param.getAlarmCenterEnableFlag());
    EXPECT_EQ(expected.getAlarmCenterServerIP(), param.getAlarmCenterServerIP());
    EXPECT_EQ(expected.getAlarmCenterServerPort(), param.getAlarmCenterServerPort());
    EXPECT_EQ(expected.getAlarmEmailEnableFlag(), param.getAlarmEmailEnableFlag());
    EXPECT_EQ(expected.getAlarmEmailAddress(), param.getAlarmEmailAddress());
    EXPECT_EQ(expected.getIPProtoVer(), param.getIPProtoVer());
}

} // namespace

TEST(AlarmServiceParamXml, Writes)
{
    AlarmServiceParamXml codec;
    codec.setAlarmServiceParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmServiceParamXml.document.xml"));
}

TEST(AlarmServiceParamXml, Reads)
{
    AlarmServiceParamXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmServiceParamXml.document.xml")));
    expectParam(sample(), codec.getAlarmServiceParam());
}

TEST(AlarmServiceParamXml, ResetsWhatIsMissing)
{
    CapturedOutput output;
    AlarmServiceParamXml codec;
    codec.setAlarmServiceParam(sample());
    ASSERT_TRUE(reads(codec, "<AlarmServiceParam />"));
    expectParam(AlarmServiceParam(), codec.getAlarmServiceParam());
    EXPECT_EQ("", output.text());
}

TEST(AlarmServiceParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(AlarmServiceParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "alarm/AlarmServiceParamXml.node.xml"));
}

TEST(AlarmServiceParamXml, ReadsNodes)
{
    AlarmServiceParam read;
    ASSERT_TRUE(AlarmServiceParamXml().parseXmlString(golden("alarm/AlarmServiceParamXml.node.xml"), read));
    expectParam(sample(), read);
}

TEST(AlarmServiceParamXml, TellsItsFlagsApart)
{
    const std::string expected = "<AlarmServiceParam AlarmCenterEnableFlag=\"false\" AlarmCenterServerIP=\"\""
                                 " AlarmCenterServerPort=\"0\" AlarmEmailEnableFlag=\"true\" AlarmEmailAddress=\"\""
                                 " IPProtoVer=\"0\" />\n";
    AlarmServiceParamXml codec;
    codec.getAlarmServiceParam().setAlarmEmailEnableFlag(true);
    EXPECT_EQ(expected, written(codec));
    AlarmServiceParamXml reader;
    ASSERT_TRUE(reads(reader, expected));
    expectParam(codec.getAlarmServiceParam(), reader.getAlarmServiceParam());

    std::string text;
    ASSERT_TRUE(AlarmServiceParamXml().createXmlString(codec.getAlarmServiceParam(), text));
    EXPECT_EQ(expected, text);
    AlarmServiceParam read;
    ASSERT_TRUE(AlarmServiceParamXml().parseXmlString(text, read));
    expectParam(codec.getAlarmServiceParam(), read);
}

TEST(AlarmServiceParamXml, PrintsALineForEachMissingProperty)
{
    CapturedOutput output;
    AlarmServiceParam read = sample();
    ASSERT_TRUE(AlarmServiceParamXml().parseXmlString("<AlarmServiceParam />", read));
    expectParam(AlarmServiceParam(), read);
    EXPECT_EQ("AlarmServiceParamXml::parseDomainXmlNode get AlarmCenterEnableFlag failed \n"
              "AlarmServiceParamXml::parseDomainXmlNode get AlarmCenterServerIP failed \n"
              "AlarmServiceParamXml::parseDomainXmlNode get AlarmCenterServerPort failed \n"
              "AlarmServiceParamXml::parseDomainXmlNode get AlarmEmailEnableFlag failed \n"
              "AlarmServiceParamXml::parseDomainXmlNode get AlarmEmailAddress failed \n"
              "AlarmServiceParamXml::parseDomainXmlNode get IPProtoVer failed \n",
              output.text());
}

TEST(AlarmServiceParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    AlarmServiceParam read = sample();
    EXPECT_FALSE(AlarmServiceParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(AlarmServiceParamXml().parseDomainXmlNode(empty, read));
    expectParam(sample(), read);
}
