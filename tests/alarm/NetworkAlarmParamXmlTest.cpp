#include "alarm/NetworkAlarmParamXml.h"

#include "tests/alarm/ActionSample.h"
#include "tests/alarm/NetworkAlarmEventSample.h"
#include "tests/support/Documents.h"

#include <cstddef>

namespace
{

NetworkAlarmParam sample()
{
    NetworkAlarmParam param;
    param.setInterval(53);
    param.getNetworkAlarmEvent().push_back(sampleNetworkAlarmEvent());
    return param;
}

void expectParam(const NetworkAlarmParam& expected, const NetworkAlarmParam& param)
{
    EXPECT_EQ(expected.getInterval(), param.getInterval());
    ASSERT_EQ(expected.getNetworkAlarmEvent().size(), param.getNetworkAlarmEvent().size());
    for (std::size_t number = 0; number < param.getNetworkAlarmEvent().size(); ++number)
        expectNetworkAlarmEvent(expected.getNetworkAlarmEvent()[number], param.getNetworkAlarmEvent()[number]);
}

} // namespace

TEST(NetworkAlarmParamXml, Writes)
{
    NetworkAlarmParamXml codec;
    codec.setNetworkAlarmParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/NetworkAlarmParamXml.document.xml"));
}

TEST(NetworkAlarmParamXml, ReadsAndPrintsALineForEachEvent)
{
    CapturedOutput output;
    NetworkAlarmParamXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/NetworkAlarmParamXml.document.xml")));
    expectParam(sample(), codec.getNetworkAlarmParam());
    EXPECT_EQ("NetworkAlarmEventXml::parseXmlNode() NetworkCardId=52,AlarmEnableFlag=1  1111111111111111\n",
              output.text());
}

TEST(NetworkAlarmParamXml, ResetsTheIntervalAndLeavesTheEventsThatAreMissing)
{
    NetworkAlarmParamXml codec;
    codec.setNetworkAlarmParam(sample());
    ASSERT_TRUE(reads(codec, "<NetworkAlarmParam />"));
    NetworkAlarmParam expected = sample();
    expected.setInterval(0);
    expectParam(expected, codec.getNetworkAlarmParam());
}

TEST(NetworkAlarmParamXml, AddsEventsBehindThoseThatAreThere)
{
    CapturedOutput output;
    NetworkAlarmParamXml codec;
    codec.getNetworkAlarmParam().getNetworkAlarmEvent().resize(1);
    ASSERT_TRUE(reads(codec, golden("alarm/NetworkAlarmParamXml.document.xml")));
    NetworkAlarmParam expected = sample();
    expected.setNetworkAlarmEvent({NetworkAlarmEvent(), sampleNetworkAlarmEvent()});
    expectParam(expected, codec.getNetworkAlarmParam());
}

TEST(NetworkAlarmParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(NetworkAlarmParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "alarm/NetworkAlarmParamXml.node.xml"));
}

TEST(NetworkAlarmParamXml, ReadsNodesInSilenceButNeitherTheirCommandsNorReserves)
{
    CapturedOutput output;
    NetworkAlarmParam read = sample();
    ASSERT_TRUE(NetworkAlarmParamXml().parseXmlString(golden("alarm/NetworkAlarmParamXml.document.xml"), read));
    NetworkAlarmParam expected = sample();
    AlarmPTZAction& ptz = expected.getNetworkAlarmEvent()[0].getAlarmPTZAction()[0];
    ptz.setPtzOperationCmd("", 0);
    ptz.setReserve(0);
    expectParam(expected, read);
    EXPECT_EQ("", output.text());
}

TEST(NetworkAlarmParamXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    NetworkAlarmParam read = sample();
    ASSERT_TRUE(NetworkAlarmParamXml().parseXmlString("<NetworkAlarmParam />", read));
    expectParam(NetworkAlarmParam(), read);

    ASSERT_TRUE(NetworkAlarmParamXml().parseXmlString(
        "<NetworkAlarmParam><NetworkAlarmEventList>text<!-- --><NetworkAlarmEvent />"
        "<Other><AlarmOutActionList><Other /></AlarmOutActionList>"
        "<AlarmPTZActionList><Other /></AlarmPTZActionList></Other></NetworkAlarmEventList></NetworkAlarmParam>",
        read));
    NetworkAlarmParam expected;
    expected.getNetworkAlarmEvent().resize(2);
    expected.getNetworkAlarmEvent()[1].getAlarmOutAction().resize(1);
    expected.getNetworkAlarmEvent()[1].getAlarmPTZAction().resize(1);
    expectParam(expected, read);
    EXPECT_EQ("", output.text());
}

TEST(NetworkAlarmParamXml, EmptiesTheNodeThatItWritesTo)
{
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse("<NetworkAlarmParam Old='1'><Child /></NetworkAlarmParam>", node));
    ASSERT_TRUE(NetworkAlarmParamXml().createDomainXmlNode(NetworkAlarmParam(), node));
    std::string text;
    ASSERT_TRUE(DomainXmlNode::toString(node, text));
    EXPECT_EQ("<NetworkAlarmParam Old=\"1\" Interval=\"0\">\n\t<NetworkAlarmEventList />\n</NetworkAlarmParam>\n",
              text);
}

TEST(NetworkAlarmParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    NetworkAlarmParam read = sample();
    EXPECT_FALSE(NetworkAlarmParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(NetworkAlarmParamXml().parseDomainXmlNode(empty, read));
    expectParam(sample(), read);
}
