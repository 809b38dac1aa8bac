#include "alarm/AlarmInfoXml.h"

#include "tests/alarm/AlarmRecordSample.h"
#include "tests/support/Documents.h"

namespace
{

AlarmInfo sample()
{
    AlarmInfo info;
    info.setDeviceId("D-17");
    info.setDeviceType(2);
    info.setDeviceIp("192.0.2.17");
    info.setAlarmData(sampleAlarmData());
    return info;
}

void expectInfo(const AlarmInfo& expected, const AlarmInfo& info)
{
    EXPECT_EQ(expected.getDeviceId(), info.getDeviceId());
    EXPECT_EQ(expected.getDeviceType(), info.getDeviceType());
    EXPECT_EQ(expected.getDeviceIp(), info.getDeviceIp());
    expectAlarmData(expected.getAlarmData(), info.getAlarmData());
}

} // namespace

TEST(AlarmInfoXml, Writes)
{
    AlarmInfoXml codec;
    codec.setAlarmInfo(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmInfoXml.document.xml"));
}

TEST(AlarmInfoXml, Reads)
{
    AlarmInfoXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmInfoXml.document.xml")));
    expectInfo(sample(), codec.getAlarmInfo());
}

TEST(AlarmInfoXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(AlarmInfoXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "alarm/AlarmInfoXml.node.xml"));
}

TEST(AlarmInfoXml, ReadsNodes)
{
    AlarmInfo read;
    ASSERT_TRUE(AlarmInfoXml().parseXmlString(golden("alarm/AlarmInfoXml.node.xml"), read));
    expectInfo(sample(), read);
}

TEST(AlarmInfoXml, ResetsWhatIsMissingButTheAlarm)
{
    CapturedOutput output;
    AlarmInfo expected;
    expected.setAlarmData(sampleAlarmData());
    AlarmInfoXml codec;
    codec.setAlarmInfo(sample());
    ASSERT_TRUE(reads(codec, "<AlarmInfo />"));
    expectInfo(expected, codec.getAlarmInfo());
    EXPECT_EQ("", output.text());
}

TEST(AlarmInfoXml, PrintsALineForEachMissingPropertyAndTwoForTheAlarm)
{
    CapturedOutput output;
    AlarmInfo read = sample();
    ASSERT_TRUE(AlarmInfoXml().parseXmlString("<AlarmInfo />", read));
    expectInfo(AlarmInfo(), read);
    EXPECT_EQ("AlarmInfoXml::parseDomainXmlNode get DeviceId failed \n"
              "AlarmInfoXml::parseDomainXmlNode get DeviceType failed \n"
              "AlarmInfoXml::parseDomainXmlNode get DeviceIp failed \n"
              "AlarmInfoXml::parseDomainXmlNode get AlarmDataNode failed \n"
              "AlarmInfoXml::parseDomainXmlNode parse AlarmDataNode failed \n",
              output.text());
}

TEST(AlarmInfoXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    AlarmInfo read = sample();
    EXPECT_FALSE(AlarmInfoXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(AlarmInfoXml().parseDomainXmlNode(empty, read));
    expectInfo(sample(), read);
}
