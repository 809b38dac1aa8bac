#include "alarm/AlarmInDeviceXml.h"

#include "tests/support/Documents.h"

namespace
{

AlarmInDevice sample()
{
    AlarmInDevice device;
    device.setAlarmInId(3);
    device.setAlarmInName("Door & gate");
    device.setAlarmInValidLevel(1);
    return device;
}

void expectDevice(const AlarmInDevice& expected, const AlarmInDevice& device)
{
    EXPECT_EQ(expected.getAlarmInId(), device.getAlarmInId());
    EXPECT_EQ(expected.getAlarmInName(), device.getAlarmInName());
    EXPECT_EQ(expected.getAlarmInValidLevel(), device.getAlarmInValidLevel());
}

} // namespace

TEST(AlarmInDeviceXml, Writes)
{
    AlarmInDeviceXml codec;
    codec.setAlarmInDevice(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmInDeviceXml.document.xml"));
}

TEST(AlarmInDeviceXml, Reads)
{
    AlarmInDeviceXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmInDeviceXml.document.xml")));
    expectDevice(sample(), codec.getAlarmInDevice());
}

TEST(AlarmInDeviceXml, ResetsWhatIsMissing)
{
    CapturedOutput output;
    AlarmInDeviceXml codec;
    codec.setAlarmInDevice(sample());
    ASSERT_TRUE(reads(codec, "<AlarmInDevice />"));
    expectDevice(AlarmInDevice(), codec.getAlarmInDevice());
    EXPECT_EQ("", output.text());
}

TEST(AlarmInDeviceXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(AlarmInDeviceXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "alarm/AlarmInDeviceXml.node.xml"));
}

TEST(AlarmInDeviceXml, ReadsNodes)
{
    AlarmInDevice read;
    ASSERT_TRUE(AlarmInDeviceXml().parseXmlString(golden("alarm/AlarmInDeviceXml.node.xml"), read));
    expectDevice(sample(), read);
}

TEST(AlarmInDeviceXml, PrintsALineForEachMissingProperty)
{
    CapturedOutput output;
    AlarmInDevice read = sample();
    ASSERT_TRUE(AlarmInDeviceXml().parseXmlString("<AlarmInDevice />", read));
    expectDevice(AlarmInDevice(), read);
    EXPECT_EQ("AlarmInDeviceXml::parseDomainXmlNode get AlarmInId failed \n"
              "AlarmInDeviceXml::parseDomainXmlNode get AlarmInName failed \n"
              "AlarmInDeviceXml::parseDomainXmlNode get AlarmInValidLevel failed \n",
              output.text());
}

TEST(AlarmInDeviceXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    AlarmInDevice read = sample();
    EXPECT_FALSE(AlarmInDeviceXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(AlarmInDeviceXml().parseDomainXmlNode(empty, read));
    expectDevice(sample(), read);
}
