#include "alarm/AlarmIOEventXml.h"

#include "tests/alarm/ActionSample.h"
#include "tests/alarm/ScheduleSample.h"
#include "tests/support/Documents.h"

namespace
{

AlarmIOEvent sample()
{
    AlarmIOEvent event;
    event.setEventId(42);
    event.setPolicyId(43);
    event.setAlarmInId(44);
    event.setAlarmIOEnableFlag(true);
    event.setDeviceId("D-10");
    event.setScheduleTimeParam(sampleScheduleTimeParam());
    event.getAlarmOutAction().push_back(sampleAlarmOutAction());
    event.getAlarmRecordAction().push_back(sampleAlarmRecordAction());
    event.getAlarmPTZAction().push_back(sampleAlarmPTZAction());
    event.getAlarmOverlayAction().push_back(sampleAlarmOverlayAction());
    return event;
}

void expectEvent(const AlarmIOEvent& expected, const AlarmIOEvent& event)
{
    EXPECT_EQ(expected.getEventId(), event.getEventId());
    EXPECT_EQ(expected.getPolicyId(), event.getPolicyId());
    EXPECT_EQ(expected.getAlarmInId(), event.getAlarmInId());
    EXPECT_EQ(expected.getAlarmIOEnableFlag(), event.getAlarmIOEnableFlag());
    EXPECT_EQ(expected.getDeviceId(), event.getDeviceId());
    expectScheduleTimeParam(expected.getScheduleTimeParam(), event.getScheduleTimeParam());
    expectAlarmOutActions(expected.getAlarmOutAction(), event.getAlarmOutAction());
    expectAlarmRecordActions(expected.getAlarmRecordAction(), event.getAlarmRecordAction());
    expectAlarmPTZActions(expected.getAlarmPTZAction(), event.getAlarmPTZAction());
    expectAlarmOverlayActions(expected.getAlarmOverlayAction(), event.getAlarmOverlayAction());
}

} // namespace

TEST(AlarmIOEventXml, Writes)
{
    AlarmIOEventXml codec;
    codec.setAlarmIOEvent(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmIOEventXml.document.xml"));
}

TEST(AlarmIOEventXml, ReadsAllButTheSchedule)
{
    AlarmIOEventXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmIOEventXml.document.xml")));
    AlarmIOEvent expected = sample();
    expected.setScheduleTimeParam(ScheduleTimeParam());
    expectEvent(expected, codec.getAlarmIOEvent());
}

TEST(AlarmIOEventXml, KeepsItsScheduleWhateverADocumentSays)
{
    AlarmIOEventXml codec;
    codec.getAlarmIOEvent().setScheduleTimeParam(sampleScheduleTimeParam());
    ASSERT_TRUE(reads(codec, "<AlarmIOEvent><ScheduleTimeParam CameraId='1' /></AlarmIOEvent>"));
    expectScheduleTimeParam(sampleScheduleTimeParam(), codec.getAlarmIOEvent().getScheduleTimeParam());
}

TEST(AlarmIOEventXml, ResetsAttributesAndLeavesListsThatAreMissing)
{
    AlarmIOEventXml codec;
    codec.setAlarmIOEvent(sample());
    ASSERT_TRUE(reads(codec, "<AlarmIOEvent />"));
    AlarmIOEvent expected = sample();
    expected.setEventId(0);
    expected.setPolicyId(0);
    expected.setAlarmInId(0);
    expected.setAlarmIOEnableFlag(false);
    expected.setDeviceId("");
    expectEvent(expected, codec.getAlarmIOEvent());
}

TEST(AlarmIOEventXml, AddsActionsBehindThoseThatAreThere)
{
    AlarmIOEventXml codec;
    codec.getAlarmIOEvent().getAlarmOutAction().resize(1);
    codec.getAlarmIOEvent().getAlarmRecordAction().resize(1);
    codec.getAlarmIOEvent().getAlarmPTZAction().resize(1);
    codec.getAlarmIOEvent().getAlarmOverlayAction().resize(1);
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmIOEventXml.document.xml")));
    expectAlarmOutActions({AlarmOutAction(), sampleAlarmOutAction()}, codec.getAlarmIOEvent().getAlarmOutAction());
    expectAlarmRecordActions({AlarmRecordAction(), sampleAlarmRecordAction()},
                             codec.getAlarmIOEvent().getAlarmRecordAction());
    expectAlarmPTZActions({AlarmPTZAction(), sampleAlarmPTZAction()}, codec.getAlarmIOEvent().getAlarmPTZAction());
    expectAlarmOverlayActions({AlarmOverlayAction(), sampleAlarmOverlayAction()},
                              codec.getAlarmIOEvent().getAlarmOverlayAction());
}

TEST(AlarmIOEventXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(AlarmIOEventXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "alarm/AlarmIOEventXml.node.xml"));
}

TEST(AlarmIOEventXml, ReadsNodes)
{
    CapturedOutput output;
    AlarmIOEvent read;
    ASSERT_TRUE(AlarmIOEventXml().parseXmlString(golden("alarm/AlarmIOEventXml.node.xml"), read));
    expectEvent(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(AlarmIOEventXml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    AlarmIOEvent read = sample();
    ASSERT_TRUE(AlarmIOEventXml().parseXmlString("<AlarmIOEvent />", read));
    expectEvent(AlarmIOEvent(), read);
    EXPECT_EQ("AlarmIOEventXml::parseDomainXmlNode get EventId failed \n"
              "AlarmIOEventXml::parseDomainXmlNode get PolicyId failed \n"
              "AlarmIOEventXml::parseDomainXmlNode get AlarmInId failed \n"
              "AlarmIOEventXml::parseDomainXmlNode get AlarmIOEnableFlag failed \n"
              "AlarmIOEventXml::parseDomainXmlNode get DeviceId failed \n"
              "AlarmIOEventXml::parseDomainXmlNode get AlarmOutActionListNode failed \n"
              "AlarmIOEventXml::parseDomainXmlNode get AlarmOutActionNode failed \n"
              "AlarmIOEventXml::parseDomainXmlNode get AlarmRecordActionListNode failed \n"
              "AlarmIOEventXml::parseDomainXmlNode get AlarmRecordActionNode failed \n"
              "AlarmIOEventXml::parseDomainXmlNode get AlarmPTZActionListNode failed \n"
              "AlarmIOEventXml::parseDomainXmlNode get AlarmPTZActionNode failed \n"
              "AlarmIOEventXml::parseDomainXmlNode get AlarmOverlayActionListNode failed \n"
              "AlarmIOEventXml::parseDomainXmlNode get ScheduleTimeParamNode failed \n"
              "AlarmIOEventXml::parseDomainXmlNode parse ScheduleTimeParamNode failed \n",
              output.text());
}

TEST(AlarmIOEventXml, PutsTheListsOfANodeInPlaceOfOthers)
{
    AlarmIOEvent read = sample();
    ASSERT_TRUE(AlarmIOEventXml().parseXmlString(golden("alarm/AlarmIOEventXml.node.xml"), read));
    expectEvent(sample(), read);
}

TEST(AlarmIOEventXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(AlarmIOEventXml().createXmlString(std::vector<AlarmIOEvent>{sample(), AlarmIOEvent()}, text));
    EXPECT_TRUE(matchesGolden(text, "alarm/AlarmIOEventXml.list.xml"));
    ASSERT_TRUE(AlarmIOEventXml().createXmlString(std::vector<AlarmIOEvent>(), text));
    EXPECT_EQ("<AlarmIOEventList />\n", text);
}

TEST(AlarmIOEventXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<AlarmIOEvent> list(1, AlarmIOEvent());
    ASSERT_TRUE(AlarmIOEventXml().parseXmlString(golden("alarm/AlarmIOEventXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectEvent(AlarmIOEvent(), list[0]);
    expectEvent(sample(), list[1]);
    expectEvent(AlarmIOEvent(), list[2]);
}

TEST(AlarmIOEventXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    AlarmIOEvent read = sample();
    std::vector<AlarmIOEvent> list(1, sample());
    EXPECT_FALSE(AlarmIOEventXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(AlarmIOEventXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(AlarmIOEventXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(AlarmIOEventXml().parseDomainXmlNode(empty, list));
    expectEvent(sample(), read);
    EXPECT_EQ(1U, list.size());
}
