#include "analysis/IntelligeBaseParamXml.h"

#include "alarm/AlarmOutActionXml.h"
#include "alarm/AlarmOverlayActionXml.h"
#include "alarm/AlarmPTZActionXml.h"
#include "alarm/AlarmRecordActionXml.h"
#include "alarm/ScheduleTimeParamXml.h"
#include "tests/alarm/ActionSample.h"
#include "tests/alarm/ScheduleSample.h"
#include "tests/analysis/RuleSample.h"
#include "tests/support/Documents.h"

namespace
{

IntelligeBaseParam sample()
{
    IntelligeBaseParam param;
    setBasePart(param);
    return param;
}

SafePointer<DomainXmlNode> parsed(const std::string& text)
{
    SafePointer<DomainXmlNode> node;
    EXPECT_TRUE(DomainXmlNode::parse(text, node));
    return node;
}

/// A node with one child, embedded as the peers do it: its document is printed, and the tree of that text added.
template <class Codec>
SafePointer<DomainXmlNode> embedded(Codec& codec)
{
    SafePointer<DomainXmlNode> node(new DomainXmlNode("Parent"));
    EXPECT_TRUE(codec.createXmlString());
    addText(codec.getXmlString(), node);
    return node;
}

SafePointer<DomainXmlNode> parent()
{
    return SafePointer<DomainXmlNode>(new DomainXmlNode("Parent"));
}

/// The first child of @p node.
SafePointer<DomainXmlNode> childOf(const SafePointer<DomainXmlNode>& node)
{
    std::vector<SafePointer<DomainXmlNode>> children;
    EXPECT_TRUE(node->getAllConfigNodeList(children));
    return children.at(0);
}

/// Counts the calls that reach it.
class CountingXml : public IntelligeBaseParamXml
{
public:
    bool parseXmlString(const std::string& text, IntelligeBaseParam& param) override
    {
        ++calls;
        return IntelligeBaseParamXml::parseXmlString(text, param);
    }
    bool createXmlString(const IntelligeBaseParam& param, std::string& text) override
    {
        ++calls;
        return IntelligeBaseParamXml::createXmlString(param, text);
    }
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, IntelligeBaseParam& param) override
    {
        ++calls;
        return IntelligeBaseParamXml::parseDomainXmlNode(node, param);
    }
    bool createDomainXmlNode(const IntelligeBaseParam& param, SafePointer<DomainXmlNode>& node) override
    {
        ++calls;
        return IntelligeBaseParamXml::createDomainXmlNode(param, node);
    }

    int calls = 0;
};

} // namespace

TEST(IntelligeBaseParamXml, LetsAUserOverrideItsFourOperations)
{
    CountingXml codec;
    IntelligeBaseParamXml& base = codec;

    std::string text;
    EXPECT_TRUE(base.createXmlString(sample(), text));
    EXPECT_EQ(1, codec.calls);
    IntelligeBaseParam read;
    EXPECT_TRUE(base.parseXmlString(text, read));
    EXPECT_EQ(2, codec.calls);
    SafePointer<DomainXmlNode> node = parent();
    EXPECT_TRUE(base.createDomainXmlNode(sample(), node));
    EXPECT_EQ(3, codec.calls);
    EXPECT_TRUE(base.parseDomainXmlNode(node, read));
    EXPECT_EQ(4, codec.calls);
}

TEST(IntelligeBaseParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(IntelligeBaseParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/IntelligeBaseParamXml.node.xml"));

    SafePointer<DomainXmlNode> node(new DomainXmlNode("IntelligeBaseParam"));
    ASSERT_TRUE(IntelligeBaseParamXml().createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/IntelligeBaseParamXml.node.xml"));
}

TEST(IntelligeBaseParamXml, WritesEmptyContainers)
{
    std::string text;
    ASSERT_TRUE(IntelligeBaseParamXml().createXmlString(IntelligeBaseParam(), text));
    EXPECT_EQ("<IntelligeBaseParam DeviceId=\"\" CameraId=\"0\" Enable=\"false\" AlarmInterval=\"0\">\n"
              "\t<AlarmOutActionList />\n"
              "\t<AlarmPTZActionList />\n"
              "\t<AlarmRecordActionList />\n"
              "\t<AlarmOverlayActionList />\n"
              "\t<ScheduleTimeParam DeviceId=\"\" CameraId=\"0\">\n"
              "\t\t<ScheduleWeekList />\n"
              "\t\t<ScheduleTimeSegmentList />\n"
              "\t</ScheduleTimeParam>\n"
              "</IntelligeBaseParam>\n",
              text);
}

TEST(IntelligeBaseParamXml, ReadsNodes)
{
    CapturedOutput output;
    IntelligeBaseParam read;
    ASSERT_TRUE(IntelligeBaseParamXml().parseXmlString(golden("analysis/IntelligeBaseParamXml.node.xml"), read));
    expectBasePart(sample(), read);
    ASSERT_TRUE(
        IntelligeBaseParamXml().parseDomainXmlNode(parsed(golden("analysis/IntelligeBaseParamXml.node.xml")), read));
    expectBasePart(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(IntelligeBaseParamXml, ResetsWhatANodeLacksInSilence)
{
    CapturedOutput output;
    IntelligeBaseParam read = sample();
    ASSERT_TRUE(IntelligeBaseParamXml().parseXmlString("<IntelligeBaseParam />", read));
    expectBasePart(IntelligeBaseParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(IntelligeBaseParamXml, PassesOverOtherChildrenOfLists)
{
    IntelligeBaseParam read;
    ASSERT_TRUE(IntelligeBaseParamXml().parseXmlString(
        "<IntelligeBaseParam><AlarmOutActionList><!-- --><Other />text<AlarmOutAction AlarmOutId='7' /><Other />"
        "<AlarmOutAction AlarmOutId='8' /></AlarmOutActionList><AlarmPTZActionList /></IntelligeBaseParam>",
        read));
    ASSERT_EQ(2U, read.getAlarmOutActionList().size());
    EXPECT_EQ(7, read.getAlarmOutActionList()[0].getAlarmOutId());
    EXPECT_EQ(8, read.getAlarmOutActionList()[1].getAlarmOutId());
    EXPECT_TRUE(read.getAlarmPTZActionList().empty());
}

TEST(IntelligeBaseParamXml, EmbedsAlarmOutActionAsAPassageThroughTextDoes)
{
    AlarmOutActionXml codec;
    codec.setAlarmOutAction(sampleAlarmOutAction());
    const SafePointer<DomainXmlNode> expected = embedded(codec);
    SafePointer<DomainXmlNode> node = parent();
    ASSERT_TRUE(IntelligeBaseParamXml().createAlarmOutActionToDomainXmlNode(sampleAlarmOutAction(), node));
    EXPECT_EQ(textOf(expected), textOf(node));

    AlarmOutAction action;
    ASSERT_TRUE(IntelligeBaseParamXml().parseAlarmOutActionFromDomainXmlNode(childOf(node), action));
    expectAlarmOutAction(sampleAlarmOutAction(), action);
    EXPECT_FALSE(IntelligeBaseParamXml().parseAlarmOutActionFromDomainXmlNode(node, action));
    expectAlarmOutAction(sampleAlarmOutAction(), action);
}

TEST(IntelligeBaseParamXml, WritesAndReadsAlarmOutActionLists)
{
    SafePointer<DomainXmlNode> node = parent();
    ASSERT_TRUE(IntelligeBaseParamXml().createAlarmOutActionListToDomainXmlNode(
        {sampleAlarmOutAction(), AlarmOutAction()}, node));
    SafePointer<DomainXmlNode> list;
    ASSERT_TRUE(node->getConfigNode("AlarmOutActionList", list));
    std::vector<AlarmOutAction> actions(1, sampleAlarmOutAction());
    ASSERT_TRUE(IntelligeBaseParamXml().parseAlarmOutActionListFromDomainXmlNode(list, actions));
    expectAlarmOutActions({sampleAlarmOutAction(), sampleAlarmOutAction(), AlarmOutAction()}, actions);
}

TEST(IntelligeBaseParamXml, EmbedsAlarmPTZActionAsAPassageThroughTextDoes)
{
    AlarmPTZActionXml codec;
    codec.setAlarmPTZAction(sampleAlarmPTZAction());
    const SafePointer<DomainXmlNode> expected = embedded(codec);
    SafePointer<DomainXmlNode> node = parent();
    ASSERT_TRUE(IntelligeBaseParamXml().createAlarmPTZActionToDomainXmlNode(sampleAlarmPTZAction(), node));
    EXPECT_EQ(textOf(expected), textOf(node));

    AlarmPTZAction action;
    ASSERT_TRUE(IntelligeBaseParamXml().parseAlarmPTZActionFromDomainXmlNode(childOf(node), action));
    expectAlarmPTZAction(sampleAlarmPTZAction(), action);
    EXPECT_FALSE(IntelligeBaseParamXml().parseAlarmPTZActionFromDomainXmlNode(node, action));
    expectAlarmPTZAction(sampleAlarmPTZAction(), action);
}

TEST(IntelligeBaseParamXml, WritesAndReadsAlarmPTZActionLists)
{
    SafePointer<DomainXmlNode> node = parent();
    ASSERT_TRUE(IntelligeBaseParamXml().createAlarmPTZActionListToDomainXmlNode(
        {sampleAlarmPTZAction(), AlarmPTZAction()}, node));
    SafePointer<DomainXmlNode> list;
    ASSERT_TRUE(node->getConfigNode("AlarmPTZActionList", list));
    std::vector<AlarmPTZAction> actions(1, sampleAlarmPTZAction());
    ASSERT_TRUE(IntelligeBaseParamXml().parseAlarmPTZActionListFromDomainXmlNode(list, actions));
    expectAlarmPTZActions({sampleAlarmPTZAction(), sampleAlarmPTZAction(), AlarmPTZAction()}, actions);
}

TEST(IntelligeBaseParamXml, EmbedsAlarmRecordActionAsAPassageThroughTextDoes)
{
    AlarmRecordActionXml codec;
    codec.setAlarmRecordAction(sampleAlarmRecordAction());
    const SafePointer<DomainXmlNode> expected = embedded(codec);
    SafePointer<DomainXmlNode> node = parent();
    ASSERT_TRUE(IntelligeBaseParamXml().createAlarmRecordActionToDomainXmlNode(sampleAlarmRecordAction(), node));
    EXPECT_EQ(textOf(expected), textOf(node));

    AlarmRecordAction action;
    ASSERT_TRUE(IntelligeBaseParamXml().parseAlarmRecordActionFromDomainXmlNode(childOf(node), action));
    expectAlarmRecordAction(sampleAlarmRecordAction(), action);
    EXPECT_FALSE(IntelligeBaseParamXml().parseAlarmRecordActionFromDomainXmlNode(node, action));
    expectAlarmRecordAction(sampleAlarmRecordAction(), action);
}

TEST(IntelligeBaseParamXml, WritesAndReadsAlarmRecordActionLists)
{
    SafePointer<DomainXmlNode> node = parent();
    ASSERT_TRUE(IntelligeBaseParamXml().createAlarmRecordActionListToDomainXmlNode(
        {sampleAlarmRecordAction(), AlarmRecordAction()}, node));
    SafePointer<DomainXmlNode> list;
    ASSERT_TRUE(node->getConfigNode("AlarmRecordActionList", list));
    std::vector<AlarmRecordAction> actions(1, sampleAlarmRecordAction());
    ASSERT_TRUE(IntelligeBaseParamXml().parseAlarmRecordActionListFromDomainXmlNode(list, actions));
    expectAlarmRecordActions({sampleAlarmRecordAction(), sampleAlarmRecordAction(), AlarmRecordAction()}, actions);
}

TEST(IntelligeBaseParamXml, EmbedsAlarmOverlayActionAsAPassageThroughTextDoes)
{
    AlarmOverlayActionXml codec;
    codec.setAlarmOverlayAction(sampleAlarmOverlayAction());
    const SafePointer<DomainXmlNode> expected = embedded(codec);
    SafePointer<DomainXmlNode> node = parent();
    ASSERT_TRUE(IntelligeBaseParamXml().createAlarmOverlayActionToDomainXmlNode(sampleAlarmOverlayAction(), node));
    EXPECT_EQ(textOf(expected), textOf(node));

    AlarmOverlayAction action;
    ASSERT_TRUE(IntelligeBaseParamXml().parseAlarmOverlayActionFromDomainXmlNode(childOf(node), action));
    expectAlarmOverlayAction(sampleAlarmOverlayAction(), action);
    EXPECT_FALSE(IntelligeBaseParamXml().parseAlarmOverlayActionFromDomainXmlNode(node, action));
    expectAlarmOverlayAction(sampleAlarmOverlayAction(), action);
}

TEST(IntelligeBaseParamXml, WritesAndReadsAlarmOverlayActionLists)
{
    SafePointer<DomainXmlNode> node = parent();
    ASSERT_TRUE(IntelligeBaseParamXml().createAlarmOverlayActionListToDomainXmlNode(
        {sampleAlarmOverlayAction(), AlarmOverlayAction()}, node));
    SafePointer<DomainXmlNode> list;
    ASSERT_TRUE(node->getConfigNode("AlarmOverlayActionList", list));
    std::vector<AlarmOverlayAction> actions(1, sampleAlarmOverlayAction());
    ASSERT_TRUE(IntelligeBaseParamXml().parseAlarmOverlayActionListFromDomainXmlNode(list, actions));
    expectAlarmOverlayActions({sampleAlarmOverlayAction(), sampleAlarmOverlayAction(), AlarmOverlayAction()}, actions);
}

TEST(IntelligeBaseParamXml, EmbedsTheScheduleAsAPassageThroughTextDoes)
{
    ScheduleTimeParamXml codec;
    codec.setScheduleTimeParam(sampleScheduleTimeParam());
    const SafePointer<DomainXmlNode> expected = embedded(codec);
    SafePointer<DomainXmlNode> node = parent();
    ASSERT_TRUE(IntelligeBaseParamXml().createScheduleTimeParamFromDomainXmlNode(sampleScheduleTimeParam(), node));
    EXPECT_EQ(textOf(expected), textOf(node));

    ScheduleTimeParam schedule = sampleScheduleTimeParam();
    ASSERT_TRUE(IntelligeBaseParamXml().parseScheduleTimeParamFromDomainXmlNode(childOf(node), schedule));
    expectScheduleTimeParam(sampleScheduleTimeParam(), schedule);
    EXPECT_FALSE(IntelligeBaseParamXml().parseScheduleTimeParamFromDomainXmlNode(node, schedule));
    expectScheduleTimeParam(sampleScheduleTimeParam(), schedule);
}

TEST(IntelligeBaseParamXml, RefusesAnEmptyPointer)
{
    IntelligeBaseParamXml codec;
    SafePointer<DomainXmlNode> empty;
    IntelligeBaseParam read = sample();
    EXPECT_FALSE(codec.createDomainXmlNode(read, empty));
    EXPECT_FALSE(codec.parseDomainXmlNode(empty, read));
    expectBasePart(sample(), read);
    EXPECT_FALSE(codec.createAlarmOutActionToDomainXmlNode(sampleAlarmOutAction(), empty));
    EXPECT_FALSE(codec.createAlarmOutActionListToDomainXmlNode(read.getAlarmOutActionList(), empty));
    EXPECT_FALSE(codec.parseAlarmOutActionFromDomainXmlNode(empty, read.getAlarmOutActionList()[0]));
    EXPECT_FALSE(codec.parseAlarmOutActionListFromDomainXmlNode(empty, read.getAlarmOutActionList()));
    EXPECT_FALSE(codec.createAlarmPTZActionToDomainXmlNode(sampleAlarmPTZAction(), empty));
    EXPECT_FALSE(codec.createAlarmPTZActionListToDomainXmlNode(read.getAlarmPTZActionList(), empty));
    EXPECT_FALSE(codec.parseAlarmPTZActionFromDomainXmlNode(empty, read.getAlarmPTZActionList()[0]));
    EXPECT_FALSE(codec.parseAlarmPTZActionListFromDomainXmlNode(empty, read.getAlarmPTZActionList()));
    EXPECT_FALSE(codec.createAlarmRecordActionToDomainXmlNode(sampleAlarmRecordAction(), empty));
    EXPECT_FALSE(codec.createAlarmRecordActionListToDomainXmlNode(read.getAlarmRecordActionList(), empty));
    EXPECT_FALSE(codec.parseAlarmRecordActionFromDomainXmlNode(empty, read.getAlarmRecordActionList()[0]));
    EXPECT_FALSE(codec.parseAlarmRecordActionListFromDomainXmlNode(empty, read.getAlarmRecordActionList()));
    EXPECT_FALSE(codec.createAlarmOverlayActionToDomainXmlNode(sampleAlarmOverlayAction(), empty));
    EXPECT_FALSE(codec.createAlarmOverlayActionListToDomainXmlNode(read.getAlarmOverlayActionList(), empty));
    EXPECT_FALSE(codec.parseAlarmOverlayActionFromDomainXmlNode(empty, read.getAlarmOverlayActionList()[0]));
    EXPECT_FALSE(codec.parseAlarmOverlayActionListFromDomainXmlNode(empty, read.getAlarmOverlayActionList()));
    EXPECT_FALSE(codec.createScheduleTimeParamFromDomainXmlNode(read.getScheduleTimeParam(), empty));
    EXPECT_FALSE(codec.parseScheduleTimeParamFromDomainXmlNode(empty, read.getScheduleTimeParam()));
    expectBasePart(sample(), read);
}
