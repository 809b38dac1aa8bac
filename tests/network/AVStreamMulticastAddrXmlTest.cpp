#include "network/AVStreamMulticastAddrXml.h"

#include "tests/support/Documents.h"

namespace
{

AVStreamMulticastAddr sample()
{
    AVStreamMulticastAddr address;
    address.setDeviceId("D-17");
    address.setCameraId(3);
    address.setMulticastIP("239.192.0.17");
    address.setMulticastProt(5004);
    return address;
}

void expectAddress(const AVStreamMulticastAddr& expected, const AVStreamMulticastAddr& address)
{
    EXPECT_EQ(expected.getDeviceId(), address.getDeviceId());
    EXPECT_EQ(expected.getCameraId(), address.getCameraId());
    EXPECT_EQ(expected.getMulticastIP(), address.getMulticastIP());
    EXPECT_EQ(expected.getMuticastProt(), address.getMuticastProt());
}

std::string announced(const std::string& text)
{
    return "AVStreamMulticastAddrXml::parseXmlString  XmlString=" + text + " \n";
}

constexpr char items[] = "<AVStreamMulticastAddrList>text<Other CameraId='1' /><!--AVStreamMulticastAddr-->"
                         "<AVStreamMulticastAddr CameraId='2' /><Other CameraId='3' />"
                         "<AVStreamMulticastAddr DeviceId='4' /></AVStreamMulticastAddrList>";

} // namespace

TEST(AVStreamMulticastAddrXml, Writes)
{
    AVStreamMulticastAddrXml codec;
    codec.setAVStreamMulticastAddrList({sample(), AVStreamMulticastAddr()});
    EXPECT_TRUE(matchesGolden(written(codec), "network/AVStreamMulticastAddrXml.document.xml"));
}

TEST(AVStreamMulticastAddrXml, ReadsBehindWhatTheListHolds)
{
    CapturedOutput output;
    AVStreamMulticastAddr before;
    before.setDeviceId("before");
    AVStreamMulticastAddrXml codec;
    codec.setAVStreamMulticastAddrList({before});
    ASSERT_TRUE(reads(codec, golden("network/AVStreamMulticastAddrXml.document.xml")));
    const std::vector<AVStreamMulticastAddr>& list = codec.getAVStreamMulticastAddrList();
    ASSERT_EQ(3U, list.size());
    expectAddress(before, list[0]);
    expectAddress(sample(), list[1]);
    expectAddress(AVStreamMulticastAddr(), list[2]);
    EXPECT_EQ("", output.text());
}

TEST(AVStreamMulticastAddrXml, WalksOnFromTheFirstAddressOverElementsOfAnyName)
{
    AVStreamMulticastAddrXml codec;
    ASSERT_TRUE(reads(codec, items));
    const std::vector<AVStreamMulticastAddr>& list = codec.getAVStreamMulticastAddrList();
    ASSERT_EQ(3U, list.size());
    AVStreamMulticastAddr expected;
    expected.setCameraId(2);
    expectAddress(expected, list[0]);
    expected.setCameraId(3);
    expectAddress(expected, list[1]);
    expected.setCameraId(0);
    expected.setDeviceId("4");
    expectAddress(expected, list[2]);
}

TEST(AVStreamMulticastAddrXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(AVStreamMulticastAddrXml().createXmlString({sample(), AVStreamMulticastAddr()}, text));
    EXPECT_TRUE(matchesGolden(text, "network/AVStreamMulticastAddrXml.list.xml"));
}

TEST(AVStreamMulticastAddrXml, WritesAndReadsAnEmptyList)
{
    std::string text;
    ASSERT_TRUE(AVStreamMulticastAddrXml().createXmlString(std::vector<AVStreamMulticastAddr>(), text));
    EXPECT_EQ("<AVStreamMulticastAddrList />\n", text);

    CapturedOutput output;
    std::vector<AVStreamMulticastAddr> list;
    EXPECT_TRUE(AVStreamMulticastAddrXml().parseXmlString(text, list));
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(announced(text), output.text());
}

TEST(AVStreamMulticastAddrXml, ReadsListsBehindWhatTheyHold)
{
    const std::string text = golden("network/AVStreamMulticastAddrXml.list.xml");
    CapturedOutput output;
    AVStreamMulticastAddr before;
    before.setDeviceId("before");
    std::vector<AVStreamMulticastAddr> list = {before};
    ASSERT_TRUE(AVStreamMulticastAddrXml().parseXmlString(text, list));
    ASSERT_EQ(3U, list.size());
    expectAddress(before, list[0]);
    expectAddress(sample(), list[1]);
    expectAddress(AVStreamMulticastAddr(), list[2]);
    EXPECT_EQ(announced(text), output.text());
}

TEST(AVStreamMulticastAddrXml, TakesNodesByTheirNameAndPrintsALineForAMissingCamera)
{
    CapturedOutput output;
    std::vector<AVStreamMulticastAddr> list;
    ASSERT_TRUE(AVStreamMulticastAddrXml().parseXmlString(items, list));
    ASSERT_EQ(2U, list.size());
    AVStreamMulticastAddr expected;
    expected.setCameraId(2);
    expectAddress(expected, list[0]);
    expected.setCameraId(1);
    expected.setDeviceId("4");
    expectAddress(expected, list[1]);
    EXPECT_EQ(announced(items) + "AVStreamMulticastAddrXml::parseDomainXmlNode node = ATTR_CAMERA_ID failed \n",
              output.text());
}

TEST(AVStreamMulticastAddrXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    SafePointer<DomainXmlNode> hollow(new DomainXmlNode(static_cast<TiXmlElement*>(nullptr)));
    std::vector<AVStreamMulticastAddr> list(1, sample());
    EXPECT_FALSE(AVStreamMulticastAddrXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(AVStreamMulticastAddrXml().parseDomainXmlNode(empty, list));
    EXPECT_FALSE(AVStreamMulticastAddrXml().parseDomainXmlNode(hollow, list));
    EXPECT_EQ(1U, list.size());
}

TEST(AVStreamMulticastAddrXml, PrintsATextThatItRefuses)
{
    CapturedOutput output;
    std::vector<AVStreamMulticastAddr> list(1, sample());
    EXPECT_FALSE(AVStreamMulticastAddrXml().parseXmlString("<Other>%s</Other>", list));
    EXPECT_FALSE(AVStreamMulticastAddrXml().parseXmlString("", list));
    EXPECT_EQ(1U, list.size());
    EXPECT_EQ(announced("<Other>%s</Other>") + announced(""), output.text());
}
