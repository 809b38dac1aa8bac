#include "alarm/AlarmOutDeviceXml.h"

#include "tests/support/Documents.h"

#include <limits>

namespace
{

AlarmOutDevice sample()
{
    AlarmOutDevice device;
    device.setAlarmOutId(4);
    device.setAlarmOutName("Siren & lamp");
    device.setAlarmValidSignal(1);
    device.setAlarmMode(2);
    device.setAlarmOutFrequency(0.1F);
    device.setAlarmTime(30);
    device.setActivatedStartTime(-5);
    device.setActivatedEndTime(86400);
    return device;
}

void expectDevice(const AlarmOutDevice& expected, const AlarmOutDevice& device)
{
    EXPECT_EQ(expected.getAlarmOutId(), device.getAlarmOutId());
    EXPECT_EQ(expected.getAlarmOutName(), device.getAlarmOutName());
    EXPECT_EQ(expected.getAlarmValidSignal(), device.getAlarmValidSignal());
    EXPECT_EQ(expected.getAlarmMode(), device.getAlarmMode());
    EXPECT_EQ(expected.getAlarmOutFrequency(), device.getAlarmOutFrequency());
    EXPECT_EQ(expected.getAlarmTime(), device.getAlarmTime());
    EXPECT_EQ(expected.getActivatedStartTime(), device.getActivatedStartTime());
    EXPECT_EQ(expected.getActivatedEndTime(), device.getActivatedEndTime());
}

} // namespace

TEST(AlarmOutDeviceXml, Writes)
{
    AlarmOutDeviceXml codec;
    codec.setAlarmOutDevice(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmOutDeviceXml.document.xml"));
}

TEST(AlarmOutDeviceXml, Reads)
{
    AlarmOutDeviceXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmOutDeviceXml.document.xml")));
    expectDevice(sample(), codec.getAlarmOutDevice());
}

TEST(AlarmOutDeviceXml, ResetsWhatIsMissing)
{
    CapturedOutput output;
    AlarmOutDeviceXml codec;
    codec.setAlarmOutDevice(sample());
    ASSERT_TRUE(reads(codec, "<AlarmOutDevice />"));
    expectDevice(AlarmOutDevice(), codec.getAlarmOutDevice());
    EXPECT_EQ("", output.text());
}

TEST(AlarmOutDeviceXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(AlarmOutDeviceXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "alarm/AlarmOutDeviceXml.node.xml"));
}

TEST(AlarmOutDeviceXml, ReadsNodes)
{
    AlarmOutDevice read;
    ASSERT_TRUE(AlarmOutDeviceXml().parseXmlString(golden("alarm/AlarmOutDeviceXml.node.xml"), read));
    expectDevice(sample(), read);
}

TEST(AlarmOutDeviceXml, PrintsALineForEachMissingProperty)
{
    CapturedOutput output;
    AlarmOutDevice read = sample();
    ASSERT_TRUE(AlarmOutDeviceXml().parseXmlString("<AlarmOutDevice />", read));
    expectDevice(AlarmOutDevice(), read);
    EXPECT_EQ("AlarmOutDeviceXml::parseDomainXmlNode get AlarmOutId failed \n"
              "AlarmOutDeviceXml::parseDomainXmlNode get AlarmOutName failed \n"
              "AlarmOutDeviceXml::parseDomainXmlNode get AlarmValidSignal failed \n"
              "AlarmOutDeviceXml::parseDomainXmlNode get AlarmMode failed \n"
              "AlarmOutDeviceXml::parseDomainXmlNode get AlarmOutFrequency failed \n"
              "AlarmOutDeviceXml::parseDomainXmlNode get AlarmTime failed \n"
              "AlarmOutDeviceXml::parseDomainXmlNode get ActivatedStartTime failed \n"
              "AlarmOutDeviceXml::parseDomainXmlNode get ActivatedEndTime failed \n",
              output.text());
}

TEST(AlarmOutDeviceXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(AlarmOutDeviceXml().createXmlString({sample(), AlarmOutDevice()}, text));
    EXPECT_TRUE(matchesGolden(text, "alarm/AlarmOutDeviceXml.list.xml"));
    ASSERT_TRUE(AlarmOutDeviceXml().createXmlString(std::vector<AlarmOutDevice>(), text));
    EXPECT_EQ("<AlarmOutDeviceList />\n", text);
}

TEST(AlarmOutDeviceXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<AlarmOutDevice> list(1, sample());
    ASSERT_TRUE(AlarmOutDeviceXml().parseXmlString(golden("alarm/AlarmOutDeviceXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectDevice(sample(), list[0]);
    expectDevice(sample(), list[1]);
    expectDevice(AlarmOutDevice(), list[2]);
}

TEST(AlarmOutDeviceXml, CarriesTimesOfAnySize)
{
    AlarmOutDeviceXml codec;
    codec.getAlarmOutDevice().setActivatedStartTime(std::numeric_limits<long>::min());
    codec.getAlarmOutDevice().setActivatedEndTime(std::numeric_limits<long>::max());
    const std::string document = written(codec);
    std::string node;
    ASSERT_TRUE(AlarmOutDeviceXml().createXmlString(codec.getAlarmOutDevice(), node));
    EXPECT_EQ(document, node);

    AlarmOutDeviceXml reader;
    ASSERT_TRUE(reads(reader, document));
    expectDevice(codec.getAlarmOutDevice(), reader.getAlarmOutDevice());
    AlarmOutDevice read;
    ASSERT_TRUE(AlarmOutDeviceXml().parseXmlString(node, read));
    expectDevice(codec.getAlarmOutDevice(), read);
}

TEST(AlarmOutDeviceXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    AlarmOutDevice read = sample();
    std::vector<AlarmOutDevice> list(1, sample());
    EXPECT_FALSE(AlarmOutDeviceXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(AlarmOutDeviceXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(AlarmOutDeviceXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(AlarmOutDeviceXml().parseDomainXmlNode(empty, list));
    expectDevice(sample(), read);
    EXPECT_EQ(1U, list.size());
}
