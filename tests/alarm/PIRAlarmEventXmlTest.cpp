#include "alarm/PIRAlarmEventXml.h"

#include "tests/alarm/ActionSample.h"
#include "tests/alarm/ScheduleSample.h"
#include "tests/support/Documents.h"

#include <cstddef>
#include <utility>

namespace
{

PIRAlarmEvent sample()
{
    PIRAlarmEvent event;
    event.setEventId(38);
    event.setPolicyId(39);
    event.setDeviceId("D-9");
    event.setCameraId(40);
    event.setPIRAlarmInterval(41);
    event.setPIRAlarmEnableFlag(true);
    event.setScheduleTimeParam(sampleScheduleTimeParam());
    event.getAlarmOutAction().push_back(sampleAlarmOutAction());
    event.getAlarmRecordAction().push_back(sampleAlarmRecordAction());
    event.getAlarmPTZAction().push_back(sampleAlarmPTZAction());
    event.getAlarmOverlayAction().push_back(sampleAlarmOverlayAction());
    return event;
}

void expectEvent(const PIRAlarmEvent& expected, const PIRAlarmEvent& event)
{
    EXPECT_EQ(expected.getEventId(), event.getEventId());
    EXPECT_EQ(expected.getPolicyId(), event.getPolicyId());
    EXPECT_EQ(expected.getDeviceId(), event.getDeviceId());
    EXPECT_EQ(expected.getCameraId(), event.getCameraId());
    EXPECT_EQ(expected.getPIRAlarmInterval(), event.getPIRAlarmInterval());
    EXPECT_EQ(expected.getPIRAlarmEnableFlag(), event.getPIRAlarmEnableFlag());
    expectScheduleTimeParam(expected.getScheduleTimeParam(), event.getScheduleTimeParam());
    expectAlarmOutActions(expected.getAlarmOutAction(), event.getAlarmOutAction());
    expectAlarmRecordActions(expected.getAlarmRecordAction(), event.getAlarmRecordAction());
    expectAlarmPTZActions(expected.getAlarmPTZAction(), event.getAlarmPTZAction());
    expectAlarmOverlayActions(expected.getAlarmOverlayAction(), event.getAlarmOverlayAction());
}

} // namespace

TEST(PIRAlarmEventXml, Writes)
{
    PIRAlarmEventXml codec;
    codec.setPIRAlarmEvent({sample()});
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/PIRAlarmEventXml.document.xml"));
}

TEST(PIRAlarmEventXml, Reads)
{
    PIRAlarmEventXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/PIRAlarmEventXml.document.xml")));
    ASSERT_EQ(1U, codec.getPIRAlarmEvent().size());
    expectEvent(sample(), codec.getPIRAlarmEvent()[0]);
}

TEST(PIRAlarmEventXml, ResetsWhatIsMissingButTheInterval)
{
    PIRAlarmEventXml codec;
    ASSERT_TRUE(reads(codec, "<PIRAlarmEvent />"));
    ASSERT_EQ(1U, codec.getPIRAlarmEvent().size());
    PIRAlarmEvent expected;
    expected.setPIRAlarmInterval(10);
    expectEvent(expected, codec.getPIRAlarmEvent()[0]);
}

TEST(PIRAlarmEventXml, CarriesTheLongestInterval)
{
    PIRAlarmEvent event;
    event.setPIRAlarmInterval(4294967295U);
    PIRAlarmEventXml codec;
    codec.setPIRAlarmEvent({event});
    EXPECT_NE(std::string::npos, written(codec).find(" AlarmInterval=\"4294967295\" "));
    PIRAlarmEventXml reader;
    ASSERT_TRUE(reads(reader, codec.getXmlString()));
    EXPECT_EQ(4294967295U, reader.getPIRAlarmEvent()[0].getPIRAlarmInterval());

    std::string text;
    ASSERT_TRUE(PIRAlarmEventXml().createXmlString(event, text));
    EXPECT_NE(std::string::npos, text.find(" AlarmInterval=\"4294967295\""));
    PIRAlarmEvent read;
    ASSERT_TRUE(PIRAlarmEventXml().parseXmlString(text, read));
    EXPECT_EQ(4294967295U, read.getPIRAlarmInterval());
}

TEST(PIRAlarmEventXml, ReadsTheFlagAsANumber)
{
    const std::pair<const char*, bool> flags[] = {{"1", true}, {"2", true}, {"0", false}, {"true", false}, {"", false}};
    for (const auto& flag : flags)
    {
        PIRAlarmEventXml codec;
        ASSERT_TRUE(reads(codec, std::string("<PIRAlarmEvent PIRAlarmEnableFlag='") + flag.first + "' />"));
        EXPECT_EQ(flag.second, codec.getPIRAlarmEvent()[0].getPIRAlarmEnableFlag()) << flag.first;
    }
}

TEST(PIRAlarmEventXml, WritesEventsSideBySide)
{
    PIRAlarmEventXml codec;
    PIRAlarmEvent second;
    second.setEventId(9);
    codec.setPIRAlarmEvent({sample(), second});
    const std::string text = written(codec);
    EXPECT_EQ(0U, text.find("<PIRAlarmEvent PIRAlarmEventLEN=\"2\" EventId=\"")) << text;
    EXPECT_NE(std::string::npos, text.find("</PIRAlarmEvent>\n<PIRAlarmEvent PIRAlarmEventLEN=\"2\" EventId=\"9\""))
        << text;

    PIRAlarmEventXml reader;
    ASSERT_TRUE(reads(reader, text));
    ASSERT_EQ(2U, reader.getPIRAlarmEvent().size());
    expectEvent(sample(), reader.getPIRAlarmEvent()[0]);
    expectEvent(second, reader.getPIRAlarmEvent()[1]);
}

TEST(PIRAlarmEventXml, WritesNothingForAnEmptyList)
{
    PIRAlarmEventXml codec;
    EXPECT_EQ("", written(codec));
}

TEST(PIRAlarmEventXml, ReadsTheSecondEventInPlaceOfAllBehindIt)
{
    const std::string text =
        "<PIRAlarmEvent PIRAlarmEventLEN='3' EventId='1' /><PIRAlarmEvent PIRAlarmEventLEN='3' EventId='2' />"
        "<PIRAlarmEvent PIRAlarmEventLEN='3' EventId='3' />";
    PIRAlarmEventXml codec;
    ASSERT_TRUE(reads(codec, text));
    ASSERT_EQ(3U, codec.getPIRAlarmEvent().size());
    EXPECT_EQ(1, codec.getPIRAlarmEvent()[0].getEventId());
    EXPECT_EQ(2, codec.getPIRAlarmEvent()[1].getEventId());
    EXPECT_EQ(2, codec.getPIRAlarmEvent()[2].getEventId());
}

TEST(PIRAlarmEventXml, ReadsAsManyEventsAsTheLengthSays)
{
    const std::pair<const char*, std::size_t> texts[] = {
        {"<PIRAlarmEvent />", 1},
        {"<PIRAlarmEvent /><PIRAlarmEvent />", 1},
        {"<PIRAlarmEvent PIRAlarmEventLEN='2' /><PIRAlarmEvent PIRAlarmEventLEN='2' />", 2},
        {"<PIRAlarmEvent PIRAlarmEventLEN='2' /><!-- --><Other PIRAlarmEventLEN='2' />", 2},
        {"<PIRAlarmEvent PIRAlarmEventLEN='2' /><PIRAlarmEvent PIRAlarmEventLEN='4' />", 4},
        {"<PIRAlarmEvent PIRAlarmEventLEN='2' />", 1},
        {"<PIRAlarmEvent PIRAlarmEventLEN='0' />", 1},
        {"<PIRAlarmEvent PIRAlarmEventLEN='1' /><PIRAlarmEvent PIRAlarmEventLEN='1' />", 1},
    };
    for (const auto& text : texts)
    {
        PIRAlarmEventXml codec;
        ASSERT_TRUE(reads(codec, text.first)) << text.first;
        EXPECT_EQ(text.second, codec.getPIRAlarmEvent().size()) << text.first;
    }
}

TEST(PIRAlarmEventXml, EndsAListWhoseLengthIsNeverReached)
{
    for (const char* length : {"0", "-1", "2147483647", "none"})
    {
        const std::string event = std::string("<PIRAlarmEvent PIRAlarmEventLEN='") + length + "' />";
        PIRAlarmEventXml codec;
        ASSERT_TRUE(reads(codec, event + event + event));
        EXPECT_EQ(64U, codec.getPIRAlarmEvent().size()) << length;
    }

    std::string text;
    for (int number = 0; number < 70; ++number)
        text += "<PIRAlarmEvent PIRAlarmEventLEN='0' />";
    PIRAlarmEventXml codec;
    ASSERT_TRUE(reads(codec, text));
    EXPECT_EQ(70U, codec.getPIRAlarmEvent().size());
}

// A short text must not ask for a large event a thousand times.
TEST(PIRAlarmEventXml, EndsAListThatWouldGrowFarBeyondItsText)
{
    const std::string event = "<PIRAlarmEvent PIRAlarmEventLEN='1000' />";
    std::string actions;
    std::string events;
    for (int number = 0; number < 998; ++number)
    {
        actions += "<AlarmOutAction DeviceId='D' />";
        events += event;
    }
    const std::string large = "<PIRAlarmEvent PIRAlarmEventLEN='1000'><AlarmOutActionList>" + actions +
                              "</AlarmOutActionList></PIRAlarmEvent>";
    PIRAlarmEventXml codec;
    ASSERT_TRUE(reads(codec, event + large + events));
    EXPECT_LE(64U, codec.getPIRAlarmEvent().size());
    EXPECT_GE(300U, codec.getPIRAlarmEvent().size());

    PIRAlarmEventXml even;
    ASSERT_TRUE(reads(even, event + event + events));
    EXPECT_EQ(1000U, even.getPIRAlarmEvent().size());

    PIRAlarmEventXml first;
    ASSERT_TRUE(reads(first, large + event + events));
    EXPECT_EQ(1000U, first.getPIRAlarmEvent().size());
}

TEST(PIRAlarmEventXml, ReadsBehindWhatTheListHolds)
{
    PIRAlarmEventXml codec;
    codec.getPIRAlarmEvent().resize(1);
    ASSERT_TRUE(reads(codec, golden("alarm/PIRAlarmEventXml.document.xml")));
    ASSERT_EQ(2U, codec.getPIRAlarmEvent().size());
    expectEvent(PIRAlarmEvent(), codec.getPIRAlarmEvent()[0]);
    expectEvent(sample(), codec.getPIRAlarmEvent()[1]);
}

TEST(PIRAlarmEventXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(PIRAlarmEventXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "alarm/PIRAlarmEventXml.node.xml"));
}

TEST(PIRAlarmEventXml, ReadsNodes)
{
    CapturedOutput output;
    PIRAlarmEvent read;
    ASSERT_TRUE(PIRAlarmEventXml().parseXmlString(golden("alarm/PIRAlarmEventXml.node.xml"), read));
    expectEvent(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(PIRAlarmEventXml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    PIRAlarmEvent read = sample();
    ASSERT_TRUE(PIRAlarmEventXml().parseXmlString("<PIRAlarmEvent />", read));
    expectEvent(PIRAlarmEvent(), read);
    EXPECT_EQ("PIRAlarmEventXml::parseDomainXmlNode get EventId failed \n"
              "PIRAlarmEventXml::parseDomainXmlNode get PolicyId failed \n"
              "PIRAlarmEventXml::parseDomainXmlNode get DeviceId failed \n"
              "PIRAlarmEventXml::parseDomainXmlNode get CameraId failed \n"
              "PIRAlarmEventXml::parseDomainXmlNode get PIRAlarmEnableFlag failed \n"
              "PIRAlarmEventXml::parseDomainXmlNode get AlarmInterval failed \n",
              output.text());
}

TEST(PIRAlarmEventXml, PutsTheListsOfANodeInPlaceOfOthers)
{
    PIRAlarmEvent read = sample();
    ASSERT_TRUE(PIRAlarmEventXml().parseXmlString(golden("alarm/PIRAlarmEventXml.node.xml"), read));
    expectEvent(sample(), read);
}

TEST(PIRAlarmEventXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(PIRAlarmEventXml().createXmlString(std::vector<PIRAlarmEvent>{sample(), PIRAlarmEvent()}, text));
    EXPECT_TRUE(matchesGolden(text, "alarm/PIRAlarmEventXml.list.xml"));
    ASSERT_TRUE(PIRAlarmEventXml().createXmlString(std::vector<PIRAlarmEvent>(), text));
    EXPECT_EQ("<PIRAlarmEventList />\n", text);
}

TEST(PIRAlarmEventXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<PIRAlarmEvent> list(1, PIRAlarmEvent());
    ASSERT_TRUE(PIRAlarmEventXml().parseXmlString(golden("alarm/PIRAlarmEventXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectEvent(PIRAlarmEvent(), list[0]);
    expectEvent(sample(), list[1]);
    expectEvent(PIRAlarmEvent(), list[2]);
}

TEST(PIRAlarmEventXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    PIRAlarmEvent read = sample();
    std::vector<PIRAlarmEvent> list(1, sample());
    EXPECT_FALSE(PIRAlarmEventXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(PIRAlarmEventXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(PIRAlarmEventXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(PIRAlarmEventXml().parseDomainXmlNode(empty, list));
    expectEvent(sample(), read);
    EXPECT_EQ(1U, list.size());
}
