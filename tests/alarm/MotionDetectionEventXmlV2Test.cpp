#include "alarm/MotionDetectionEventXmlV2.h"

#include "tests/alarm/ActionSample.h"
#include "tests/alarm/MotionDetectionParamSample.h"
#include "tests/alarm/ScheduleSample.h"
#include "tests/support/Documents.h"

#include <cstddef>
#include <utility>

namespace
{

MotionDetectionEventV2 sample()
{
    MotionDetectionEventV2 event;
    event.setEventId(35);
    event.setPolicyId(36);
    event.setDeviceId("D-8");
    event.setCameraId(37);
    event.setMotionDetectionEnableFlag(true);
    event.setMotionDetectionParam(sampleMotionDetectionParamV2());
    event.setScheduleTimeParam(sampleScheduleTimeParam());
    event.getAlarmOutAction().push_back(sampleAlarmOutAction());
    event.getAlarmRecordAction().push_back(sampleAlarmRecordAction());
    event.getAlarmPTZAction().push_back(sampleAlarmPTZAction());
    event.getAlarmOverlayAction().push_back(sampleAlarmOverlayAction());
    return event;
}

void expectEvent(const MotionDetectionEventV2& expected, const MotionDetectionEventV2& event)
{
    EXPECT_EQ(expected.getEventId(), event.getEventId());
    EXPECT_EQ(expected.getPolicyId(), event.getPolicyId());
    EXPECT_EQ(expected.getDeviceId(), event.getDeviceId());
    EXPECT_EQ(expected.getCameraId(), event.getCameraId());
    EXPECT_EQ(expected.getMotionDetectionEnableFlag(), event.getMotionDetectionEnableFlag());
    expectMotionDetectionParamV2(expected.getMotionDetectionParam(), event.getMotionDetectionParam());
    expectScheduleTimeParam(expected.getScheduleTimeParam(), event.getScheduleTimeParam());
    expectAlarmOutActions(expected.getAlarmOutAction(), event.getAlarmOutAction());
    expectAlarmRecordActions(expected.getAlarmRecordAction(), event.getAlarmRecordAction());
    expectAlarmPTZActions(expected.getAlarmPTZAction(), event.getAlarmPTZAction());
    expectAlarmOverlayActions(expected.getAlarmOverlayAction(), event.getAlarmOverlayAction());
}

/// The lines that tell how the lists went.
std::string listLines(int result)
{
    std::string lines;
    for (const char* list : {"AlarmOut", "AlarmRecord", "AlarmPTZ", "AlarmOverlay"})
    {
        lines += std::string("MotionDetectionEventXmlV2::parseDomain") + list +
                 "ActionListXmlNode boolRet = " + std::to_string(result) + " \n";
    }
    return lines;
}

/// A node that has a property and a child.
SafePointer<DomainXmlNode> usedNode()
{
    SafePointer<DomainXmlNode> node;
    EXPECT_TRUE(DomainXmlNode::parse("<x old='1'><Old /></x>", node));
    return node;
}

std::string textOf(const SafePointer<DomainXmlNode>& node)
{
    std::string text;
    EXPECT_TRUE(DomainXmlNode::toString(node, text));
    return text;
}

} // namespace

TEST(MotionDetectionEventXmlV2, Writes)
{
    MotionDetectionEventXmlV2 codec;
    codec.setMotionDetectionEventList({sample()});
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/MotionDetectionEventXmlV2.document.xml"));
}

TEST(MotionDetectionEventXmlV2, Reads)
{
    MotionDetectionEventXmlV2 codec;
    ASSERT_TRUE(reads(codec, golden("alarm/MotionDetectionEventXmlV2.document.xml")));
    ASSERT_EQ(1U, codec.getMotionDetectionEventList().size());
    expectEvent(sample(), codec.getMotionDetectionEventList()[0]);
}

TEST(MotionDetectionEventXmlV2, ResetsWhatIsMissing)
{
    MotionDetectionEventXmlV2 codec;
    ASSERT_TRUE(reads(codec, "<MotionDetectionEventV2 />"));
    ASSERT_EQ(1U, codec.getMotionDetectionEventList().size());
    expectEvent(MotionDetectionEventV2(), codec.getMotionDetectionEventList()[0]);
}

TEST(MotionDetectionEventXmlV2, ReadsTheFlagAsANumber)
{
    const std::pair<const char*, bool> flags[] = {{"1", true}, {"2", true}, {"0", false}, {"true", false}, {"", false}};
    for (const auto& flag : flags)
    {
        MotionDetectionEventXmlV2 codec;
        ASSERT_TRUE(
            reads(codec, std::string("<MotionDetectionEventV2 MotionDetectionEnableFlag='") + flag.first + "' />"));
        EXPECT_EQ(flag.second, codec.getMotionDetectionEventList()[0].getMotionDetectionEnableFlag()) << flag.first;
    }
}

TEST(MotionDetectionEventXmlV2, WritesEventsSideBySide)
{
    MotionDetectionEventXmlV2 codec;
    MotionDetectionEventV2 second;
    second.setEventId(9);
    codec.setMotionDetectionEventList({sample(), second});
    const std::string text = written(codec);
    EXPECT_EQ(0U, text.find("<MotionDetectionEventV2 MotionDetectionEventV2LEN=\"2\" EventId=\"")) << text;
    EXPECT_NE(
        std::string::npos,
        text.find("</MotionDetectionEventV2>\n<MotionDetectionEventV2 MotionDetectionEventV2LEN=\"2\" EventId=\"9\""))
        << text;

    MotionDetectionEventXmlV2 reader;
    ASSERT_TRUE(reads(reader, text));
    ASSERT_EQ(2U, reader.getMotionDetectionEventList().size());
    expectEvent(sample(), reader.getMotionDetectionEventList()[0]);
    expectEvent(second, reader.getMotionDetectionEventList()[1]);
}

TEST(MotionDetectionEventXmlV2, WritesNothingForAnEmptyList)
{
    MotionDetectionEventXmlV2 codec;
    EXPECT_EQ("", written(codec));
}

TEST(MotionDetectionEventXmlV2, ReadsTheSecondEventInPlaceOfAllBehindIt)
{
    const std::string text = "<MotionDetectionEventV2 MotionDetectionEventV2LEN='3' EventId='1' "
                             "/><MotionDetectionEventV2 MotionDetectionEventV2LEN='3' EventId='2' />"
                             "<MotionDetectionEventV2 MotionDetectionEventV2LEN='3' EventId='3' />";
    MotionDetectionEventXmlV2 codec;
    ASSERT_TRUE(reads(codec, text));
    ASSERT_EQ(3U, codec.getMotionDetectionEventList().size());
    EXPECT_EQ(1, codec.getMotionDetectionEventList()[0].getEventId());
    EXPECT_EQ(2, codec.getMotionDetectionEventList()[1].getEventId());
    EXPECT_EQ(2, codec.getMotionDetectionEventList()[2].getEventId());
}

TEST(MotionDetectionEventXmlV2, ReadsAsManyEventsAsTheLengthSays)
{
    const std::pair<const char*, std::size_t> texts[] = {
        {"<MotionDetectionEventV2 />", 1},
        {"<MotionDetectionEventV2 /><MotionDetectionEventV2 />", 1},
        {"<MotionDetectionEventV2 MotionDetectionEventV2LEN='2' /><MotionDetectionEventV2 "
         "MotionDetectionEventV2LEN='2' />",
         2},
        {"<MotionDetectionEventV2 MotionDetectionEventV2LEN='2' /><!-- --><Other MotionDetectionEventV2LEN='2' />", 2},
        {"<MotionDetectionEventV2 MotionDetectionEventV2LEN='2' /><MotionDetectionEventV2 "
         "MotionDetectionEventV2LEN='4' />",
         4},
        {"<MotionDetectionEventV2 MotionDetectionEventV2LEN='2' />", 1},
        {"<MotionDetectionEventV2 MotionDetectionEventV2LEN='0' />", 1},
        {"<MotionDetectionEventV2 MotionDetectionEventV2LEN='1' /><MotionDetectionEventV2 "
         "MotionDetectionEventV2LEN='1' />",
         1},
    };
    for (const auto& text : texts)
    {
        MotionDetectionEventXmlV2 codec;
        ASSERT_TRUE(reads(codec, text.first)) << text.first;
        EXPECT_EQ(text.second, codec.getMotionDetectionEventList().size()) << text.first;
    }
}

TEST(MotionDetectionEventXmlV2, EndsAListWhoseLengthIsNeverReached)
{
    for (const char* length : {"0", "-1", "2147483647", "none"})
    {
        const std::string event = std::string("<MotionDetectionEventV2 MotionDetectionEventV2LEN='") + length + "' />";
        MotionDetectionEventXmlV2 codec;
        ASSERT_TRUE(reads(codec, event + event + event));
        EXPECT_EQ(64U, codec.getMotionDetectionEventList().size()) << length;
    }

    std::string text;
    for (int number = 0; number < 70; ++number)
        text += "<MotionDetectionEventV2 MotionDetectionEventV2LEN='0' />";
    MotionDetectionEventXmlV2 codec;
    ASSERT_TRUE(reads(codec, text));
    EXPECT_EQ(70U, codec.getMotionDetectionEventList().size());
}

TEST(MotionDetectionEventXmlV2, ReadsBehindWhatTheListHolds)
{
    MotionDetectionEventXmlV2 codec;
    codec.getMotionDetectionEventList().resize(1);
    ASSERT_TRUE(reads(codec, golden("alarm/MotionDetectionEventXmlV2.document.xml")));
    ASSERT_EQ(2U, codec.getMotionDetectionEventList().size());
    expectEvent(MotionDetectionEventV2(), codec.getMotionDetectionEventList()[0]);
    expectEvent(sample(), codec.getMotionDetectionEventList()[1]);
}

TEST(MotionDetectionEventXmlV2, WritesLists)
{
    std::string text;
    ASSERT_TRUE(MotionDetectionEventXmlV2().createXmlString({sample(), MotionDetectionEventV2()}, text));
    EXPECT_TRUE(matchesGolden(text, "alarm/MotionDetectionEventXmlV2.list.xml"));
    ASSERT_TRUE(MotionDetectionEventXmlV2().createXmlString(std::vector<MotionDetectionEventV2>(), text));
    EXPECT_EQ("<MotionDetectionEventV2 />\n", text);
}

TEST(MotionDetectionEventXmlV2, ReadsListsBehindWhatTheyHoldButNotTheirCameras)
{
    CapturedOutput output;
    std::vector<MotionDetectionEventV2> list(1, sample());
    ASSERT_TRUE(MotionDetectionEventXmlV2().parseXmlString(golden("alarm/MotionDetectionEventXmlV2.list.xml"), list));
    MotionDetectionEventV2 first = sample();
    MotionDetectionEventV2 second;
    first.setCameraId(1);
    second.setCameraId(1);
    ASSERT_EQ(3U, list.size());
    expectEvent(sample(), list[0]);
    expectEvent(first, list[1]);
    expectEvent(second, list[2]);

    const std::string lines =
        "MotionDetectionEventXmlV2::parseDomainXmlNode node = ATTR_CAMERA_ID failed \n" + listLines(1);
    EXPECT_EQ(lines + lines, output.text());
}

TEST(MotionDetectionEventXmlV2, ReadsEveryCameraOfANodeAsTheFirst)
{
    const std::string text = "<MotionDetectionEventV2 CameraId='7' />";
    MotionDetectionEventXmlV2 codec;
    ASSERT_TRUE(reads(codec, text));
    EXPECT_EQ(7, codec.getMotionDetectionEventList()[0].getCameraId());

    CapturedOutput output;
    std::vector<MotionDetectionEventV2> list;
    ASSERT_TRUE(codec.parseXmlString("<MotionDetectionEventV2>" + text + "</MotionDetectionEventV2>", list));
    ASSERT_EQ(1U, list.size());
    EXPECT_EQ(1, list[0].getCameraId());
    EXPECT_EQ(0U, output.text().find("MotionDetectionEventXmlV2::parseDomainXmlNode node = ATTR_CAMERA_ID failed \n"));
}

TEST(MotionDetectionEventXmlV2, PrintsALineForEachChildThatANodeLacks)
{
    CapturedOutput output;
    SafePointer<DomainXmlNode> node(new DomainXmlNode("MotionDetectionEventV2"));
    MotionDetectionEventV2 read = sample();
    ASSERT_TRUE(MotionDetectionEventXmlV2().parseDomainXmlNode(node, read));
    expectEvent(MotionDetectionEventV2(), read);
    EXPECT_EQ("MotionDetectionEventXmlV2  parseDomainMotionDetectionParamV2XmlNode failed \n"
              "MotionDetectionEventXmlV2  parseDomainScheduleTimeParamXmlNode failed \n" +
                  listLines(0),
              output.text());
}

TEST(MotionDetectionEventXmlV2, EmptiesTheNodesThatItsStepsFill)
{
    const MotionDetectionEventXmlV2 codec;
    SafePointer<DomainXmlNode> node = usedNode();
    ASSERT_TRUE(codec.createDomainMotionDetectionParamV2XmlNode(MotionDetectionParamV2(), node));
    EXPECT_EQ("<x old=\"1\" CheckBlockNum=\"0\" Sensitivity=\"0\">\n"
              "\t<DetectionAreaV2 WidthCellNumber=\"0\" HighCellNumber=\"0\" Data=\"\" DataLength=\"0\" />\n"
              "</x>\n",
              textOf(node));

    node = usedNode();
    ASSERT_TRUE(codec.createDomainScheduleTimeParamXmlNode(ScheduleTimeParam(), node));
    EXPECT_EQ(
        "<x old=\"1\" DeviceId=\"\" CameraId=\"0\">\n\t<ScheduleWeekList />\n\t<ScheduleTimeSegmentList />\n</x>\n",
        textOf(node));

    node = usedNode();
    ASSERT_TRUE(codec.createDomainAlarmOutActionListXmlNode({}, node));
    EXPECT_EQ("<x old=\"1\" />\n", textOf(node));
    node = usedNode();
    ASSERT_TRUE(codec.createDomainAlarmRecordActionListXmlNode({}, node));
    EXPECT_EQ("<x old=\"1\" />\n", textOf(node));
    node = usedNode();
    ASSERT_TRUE(codec.createDomainAlarmPTZActionListXmlNode({}, node));
    EXPECT_EQ("<x old=\"1\" />\n", textOf(node));
    node = usedNode();
    ASSERT_TRUE(codec.createDomainAlarmOverlayActionListXmlNode({}, node));
    EXPECT_EQ("<x old=\"1\" />\n", textOf(node));
}

TEST(MotionDetectionEventXmlV2, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    const MotionDetectionEventXmlV2 codec;
    MotionDetectionEventV2 read = sample();
    std::vector<MotionDetectionEventV2> list(1, sample());
    EXPECT_FALSE(codec.createDomainXmlNode(list, empty));
    EXPECT_FALSE(codec.parseDomainXmlNode(empty, read));
    EXPECT_FALSE(codec.parseDomainXmlNode(empty, list));
    EXPECT_FALSE(codec.createDomainMotionDetectionParamV2XmlNode(read.getMotionDetectionParam(), empty));
    EXPECT_FALSE(codec.createDomainScheduleTimeParamXmlNode(read.getScheduleTimeParam(), empty));
    EXPECT_FALSE(codec.createDomainAlarmOutActionListXmlNode(read.getAlarmOutAction(), empty));
    EXPECT_FALSE(codec.createDomainAlarmRecordActionListXmlNode(read.getAlarmRecordAction(), empty));
    EXPECT_FALSE(codec.createDomainAlarmPTZActionListXmlNode(read.getAlarmPTZAction(), empty));
    EXPECT_FALSE(codec.createDomainAlarmOverlayActionListXmlNode(read.getAlarmOverlayAction(), empty));
    EXPECT_FALSE(codec.parseDomainMotionDetectionParamV2XmlNode(empty, read.getMotionDetectionParam()));
    EXPECT_FALSE(codec.parseDomainScheduleTimeParamXmlNode(empty, read.getScheduleTimeParam()));
    EXPECT_FALSE(codec.parseDomainAlarmOutActionListXmlNode(empty, read.getAlarmOutAction()));
    EXPECT_FALSE(codec.parseDomainAlarmRecordActionListXmlNode(empty, read.getAlarmRecordAction()));
    EXPECT_FALSE(codec.parseDomainAlarmPTZActionListXmlNode(empty, read.getAlarmPTZAction()));
    EXPECT_FALSE(codec.parseDomainAlarmOverlayActionListXmlNode(empty, read.getAlarmOverlayAction()));
    expectEvent(sample(), read);
    EXPECT_EQ(1U, list.size());
}
