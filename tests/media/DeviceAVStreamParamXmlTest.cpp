#include "media/DeviceAVStreamParamXml.h"

#include "tests/media/StreamSamples.h"
#include "tests/support/Documents.h"

#include <tinyxml.h>

namespace
{

DeviceAVStreamParam sample(int first)
{
    DeviceAVStreamParam device;
    device.setDeviceId("D" + std::to_string(first));
    device.setAVStreamParamList({sampleStream(first + 10), sampleStream(first + 30)});
    return device;
}

void expectDevice(const DeviceAVStreamParam& expected, const DeviceAVStreamParam& device)
{
    EXPECT_EQ(expected.getDeviceId(), device.getDeviceId());
    ASSERT_EQ(expected.getAVStreamParamList().size(), device.getAVStreamParamList().size());
    for (std::size_t number = 0; number < device.getAVStreamParamList().size(); ++number)
        expectStream(expected.getAVStreamParamList()[number], device.getAVStreamParamList()[number]);
}

/// An item that lacks one attribute.
std::string itemWithout(const std::string& attribute)
{
    SafePointer<DomainXmlNode> item(new DomainXmlNode("AVStreamParam"));
    DeviceAVStreamParamXml().createAVStreamParamNode(sampleStream(11), item);
    item->getXmlNode()->RemoveAttribute(attribute.c_str());
    std::string text;
    DomainXmlNode::toString(item, text);
    return text;
}

} // namespace

TEST(DeviceAVStreamParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(DeviceAVStreamParamXml().createXmlString(sample(1), text));
    EXPECT_TRUE(matchesGolden(text, "media/DeviceAVStreamParamXml.node.xml"));
}

TEST(DeviceAVStreamParamXml, ReadsNodes)
{
    CapturedOutput output;
    DeviceAVStreamParam read;
    ASSERT_TRUE(DeviceAVStreamParamXml().parseXmlString(golden("media/DeviceAVStreamParamXml.node.xml"), read));
    expectDevice(sample(1), read);
    EXPECT_EQ("", output.text());
}

TEST(DeviceAVStreamParamXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(DeviceAVStreamParamXml().createXmlString({sample(1), sample(51)}, text));
    EXPECT_TRUE(matchesGolden(text, "media/DeviceAVStreamParamXml.list.xml"));
    ASSERT_TRUE(DeviceAVStreamParamXml().createXmlString(std::vector<DeviceAVStreamParam>(), text));
    EXPECT_EQ("<DeviceAVStreamParamList />\n", text);
}

TEST(DeviceAVStreamParamXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<DeviceAVStreamParam> list(1, sample(71));
    ASSERT_TRUE(DeviceAVStreamParamXml().parseXmlString(golden("media/DeviceAVStreamParamXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectDevice(sample(71), list[0]);
    expectDevice(sample(1), list[1]);
    expectDevice(sample(51), list[2]);
}

TEST(DeviceAVStreamParamXml, WritesTheContainerOfNoStreams)
{
    std::string text;
    ASSERT_TRUE(DeviceAVStreamParamXml().createXmlString(DeviceAVStreamParam(), text));
    EXPECT_EQ("<DeviceAVStreamParam DeviceId=\"\">\n\t<AVStreamParamList />\n</DeviceAVStreamParam>\n", text);
}

TEST(DeviceAVStreamParamXml, StopsAtTheFirstPropertyThatAStreamLacks)
{
    static const char* const attributes[] = {
        "CameraId",           "StreamId",         "StreamName",      "VideoHeight", "VideoWidth",
        "FrameRate",          "BitRateType",      "BitRate",         "Quality",     "IFrameInterval",
        "IFrameIntervalUnit", "VideoEncoderType", "AudioEncoderType"};
    for (const char* attribute : attributes)
    {
        CapturedOutput output;
        AVStreamParam stream;
        SafePointer<DomainXmlNode> node;
        ASSERT_TRUE(DomainXmlNode::parse(itemWithout(attribute), node));
        EXPECT_FALSE(DeviceAVStreamParamXml().parseAVStreamParam(node, stream)) << attribute;
        EXPECT_EQ("", output.text());
    }
}

TEST(DeviceAVStreamParamXml, KeepsWhatItReadOfAStreamBeforeTheMissingProperty)
{
    AVStreamParam stream = sampleStream(71);
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse(itemWithout("VideoHeight"), node));
    EXPECT_FALSE(DeviceAVStreamParamXml().parseAVStreamParam(node, stream));
    AVStreamParam expected = sampleStream(71);
    expected.setCameraId(11);
    expected.setStreamId(12);
    expected.setStreamName("stream 13");
    expectStream(expected, stream);
}

TEST(DeviceAVStreamParamXml, RefusesAStreamWithoutAUnit)
{
    DeviceAVStreamParam device;
    EXPECT_FALSE(DeviceAVStreamParamXml().parseXmlString("<DeviceAVStreamParam DeviceId='D'><AVStreamParamList>" +
                                                             itemWithout("IFrameIntervalUnit") +
                                                             "</AVStreamParamList></DeviceAVStreamParam>",
                                                         device));
}

TEST(DeviceAVStreamParamXml, LeavesTheStreamsOfADeviceThatFails)
{
    DeviceAVStreamParam device = sample(1);
    EXPECT_FALSE(DeviceAVStreamParamXml().parseXmlString("<DeviceAVStreamParam />", device));
    expectDevice(sample(1), device);

    EXPECT_FALSE(DeviceAVStreamParamXml().parseXmlString("<DeviceAVStreamParam DeviceId='new' />", device));
    EXPECT_EQ("new", device.getDeviceId());
    EXPECT_EQ(2U, device.getAVStreamParamList().size());

    EXPECT_FALSE(DeviceAVStreamParamXml().parseXmlString(
        "<DeviceAVStreamParam DeviceId='newer'><AVStreamParamList><AVStreamParam /></AVStreamParamList>"
        "</DeviceAVStreamParam>",
        device));
    EXPECT_EQ("newer", device.getDeviceId());
    EXPECT_EQ(2U, device.getAVStreamParamList().size());
}

TEST(DeviceAVStreamParamXml, ReplacesTheStreamsThatAreThere)
{
    DeviceAVStreamParam device = sample(1);
    ASSERT_TRUE(DeviceAVStreamParamXml().parseXmlString(
        "<DeviceAVStreamParam DeviceId='D'><AVStreamParamList>text<!-- --><Other /></AVStreamParamList>"
        "</DeviceAVStreamParam>",
        device));
    EXPECT_TRUE(device.getAVStreamParamList().empty());
}

TEST(DeviceAVStreamParamXml, KeepsTheItemsBeforeAFailedOne)
{
    std::vector<DeviceAVStreamParam> devices;
    EXPECT_FALSE(DeviceAVStreamParamXml().parseXmlString(
        "<DeviceAVStreamParamList><Other /><DeviceAVStreamParam DeviceId='D1'><AVStreamParamList />"
        "</DeviceAVStreamParam><DeviceAVStreamParam /></DeviceAVStreamParamList>",
        devices));
    ASSERT_EQ(1U, devices.size());
    EXPECT_EQ("D1", devices[0].getDeviceId());

    std::vector<AVStreamParam> streams(1, sampleStream(71));
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse("<L>" + itemWithout("-") + itemWithout("StreamId") + "</L>", node));
    EXPECT_FALSE(DeviceAVStreamParamXml().parseAVStreamParamList(node, streams));
    ASSERT_EQ(2U, streams.size());
    expectStream(sampleStream(71), streams[0]);
    expectStream(sampleStream(11), streams[1]);
}

TEST(DeviceAVStreamParamXml, RefusesAnEmptyPointer)
{
    const DeviceAVStreamParamXml codec;
    SafePointer<DomainXmlNode> empty;
    AVStreamParam stream;
    std::vector<AVStreamParam> streams;
    DeviceAVStreamParam device;
    std::vector<DeviceAVStreamParam> devices;
    EXPECT_FALSE(codec.createAVStreamParamNode(stream, empty));
    EXPECT_FALSE(codec.createAVStreamParamListNode(streams, empty));
    EXPECT_FALSE(codec.createDeviceAVStreamParamNode(device, empty));
    EXPECT_FALSE(codec.createDeviceAVStreamParamListNode(devices, empty));
    EXPECT_FALSE(codec.parseAVStreamParam(empty, stream));
    EXPECT_FALSE(codec.parseAVStreamParamList(empty, streams));
    EXPECT_FALSE(codec.parseDeviceAVStreamParam(empty, device));
    EXPECT_FALSE(codec.parseDeviceAVStreamParamList(empty, devices));
}

TEST(DeviceAVStreamParamXml, RefusesTheRootOfTheOtherKind)
{
    DeviceAVStreamParam read;
    std::vector<DeviceAVStreamParam> list;
    EXPECT_FALSE(DeviceAVStreamParamXml().parseXmlString(golden("media/DeviceAVStreamParamXml.list.xml"), read));
    EXPECT_FALSE(DeviceAVStreamParamXml().parseXmlString(golden("media/DeviceAVStreamParamXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}
