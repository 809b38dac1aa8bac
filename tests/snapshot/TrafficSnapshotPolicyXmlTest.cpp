#include "snapshot/TrafficSnapshotPolicyXml.h"

#include "snapshot/SnapshotTriggerParameterXml.h"
#include "tests/snapshot/TriggerSample.h"
#include "tests/support/Documents.h"

#include <cstddef>

namespace
{

TrafficSnapshotPolicy sample()
{
    TrafficSnapshotPolicy policy;
    policy.setSnapshotTriggerParameterList({sampleTrigger(), SnapshotTriggerParameter()});
    return policy;
}

void expectTriggers(const std::vector<SnapshotTriggerParameter>& expected, const TrafficSnapshotPolicy& policy)
{
    ASSERT_EQ(expected.size(), policy.getSnapshotTriggerParameterList().size());
    for (std::size_t number = 0; number < expected.size(); ++number)
        expectTrigger(expected[number], policy.getSnapshotTriggerParameterList()[number]);
}

} // namespace

TEST(TrafficSnapshotPolicyXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(TrafficSnapshotPolicyXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "snapshot/TrafficSnapshotPolicyXml.node.xml"));
    ASSERT_TRUE(TrafficSnapshotPolicyXml().createXmlString(TrafficSnapshotPolicy(), text));
    EXPECT_EQ("<TrafficSnapshotPolicy />\n", text);
}

TEST(TrafficSnapshotPolicyXml, ReadsNodes)
{
    TrafficSnapshotPolicy read;
    ASSERT_TRUE(TrafficSnapshotPolicyXml().parseXmlString(golden("snapshot/TrafficSnapshotPolicyXml.node.xml"), read));
    expectTriggers({sampleTrigger(), SnapshotTriggerParameter()}, read);
}

TEST(TrafficSnapshotPolicyXml, ReplacesTheTriggersByThoseThatAreThere)
{
    CapturedOutput output;
    TrafficSnapshotPolicy read = sample();
    ASSERT_TRUE(TrafficSnapshotPolicyXml().parseXmlString(
        "<TrafficSnapshotPolicy><Other Gain='1' />text<SnapshotTriggerParameter Gain='2' /><!-- "
        "--></TrafficSnapshotPolicy>",
        read));
    SnapshotTriggerParameter expected;
    expected.setGain(2);
    expectTriggers({expected}, read);
    ASSERT_TRUE(TrafficSnapshotPolicyXml().parseXmlString("<TrafficSnapshotPolicy />", read));
    expectTriggers({}, read);
    EXPECT_EQ("", output.text());
}

TEST(TrafficSnapshotPolicyXml, WritesATriggerByItselfAsTheDocumentOfItsOwn)
{
    SafePointer<DomainXmlNode> node(new DomainXmlNode("SnapshotTriggerParameter"));
    ASSERT_TRUE(TrafficSnapshotPolicyXml().createSnapshotTriggerParameter(sampleTrigger(), node));
    std::string text;
    ASSERT_TRUE(DomainXmlNode::toString(node, text));
    EXPECT_EQ(golden("snapshot/SnapshotTriggerParameterXml.node.xml"), text);
}

TEST(TrafficSnapshotPolicyXml, ResetsTheValuesThatTheDocumentOfATriggerLacks)
{
    std::string text;
    ASSERT_TRUE(SnapshotTriggerParameterXml().createXmlString(sampleTrigger(), text));
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse(text, node));
    SnapshotTriggerParameter read = sampleTrigger();
    ASSERT_TRUE(TrafficSnapshotPolicyXml().parseSnapshotTriggerParameter(node, read));
    expectTrigger(samplePlainTrigger(), read);
}

TEST(TrafficSnapshotPolicyXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    TrafficSnapshotPolicy read = sample();
    SnapshotTriggerParameter trigger = sampleTrigger();
    EXPECT_FALSE(TrafficSnapshotPolicyXml().create(read, empty));
    EXPECT_FALSE(TrafficSnapshotPolicyXml().parse(empty, read));
    EXPECT_FALSE(TrafficSnapshotPolicyXml().createSnapshotTriggerParameter(trigger, empty));
    EXPECT_FALSE(TrafficSnapshotPolicyXml().parseSnapshotTriggerParameter(empty, trigger));
    expectTriggers({sampleTrigger(), SnapshotTriggerParameter()}, read);
    expectTrigger(sampleTrigger(), trigger);
}
