#include "alarm/VideoLoseDetectionEventListXml.h"

#include "tests/alarm/ActionSample.h"
#include "tests/support/Documents.h"

#include <utility>

namespace
{

VideoLoseDetectionEvent sample()
{
    VideoLoseDetectionEvent event;
    event.setDeviceId("D-13");
    event.setCameraId(51);
    event.setVideoLoseDetectionEnableFlag(true);
    event.getAlarmOutAction().push_back(sampleAlarmOutAction());
    event.getAlarmPTZAction().push_back(sampleAlarmPTZAction());
    return event;
}

void expectEvent(const VideoLoseDetectionEvent& expected, const VideoLoseDetectionEvent& event)
{
    EXPECT_EQ(expected.getDeviceId(), event.getDeviceId());
    EXPECT_EQ(expected.getCameraId(), event.getCameraId());
    EXPECT_EQ(expected.getVideoLoseDetectionEnableFlag(), event.getVideoLoseDetectionEnableFlag());
    expectAlarmOutActions(expected.getAlarmOutAction(), event.getAlarmOutAction());
    expectAlarmPTZActions(expected.getAlarmPTZAction(), event.getAlarmPTZAction());
}

} // namespace

TEST(VideoLoseDetectionEventListXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(VideoLoseDetectionEventListXml().createXmlString(
        std::vector<VideoLoseDetectionEvent>{sample(), VideoLoseDetectionEvent()}, text));
    EXPECT_TRUE(matchesGolden(text, "alarm/VideoLoseDetectionEventListXml.list.xml"));
    ASSERT_TRUE(VideoLoseDetectionEventListXml().createXmlString(std::vector<VideoLoseDetectionEvent>(), text));
    EXPECT_EQ("<VideoLoseDetectionEventList />\n", text);
}

TEST(VideoLoseDetectionEventListXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<VideoLoseDetectionEvent> list(1, VideoLoseDetectionEvent());
    ASSERT_TRUE(
        VideoLoseDetectionEventListXml().parseXmlString(golden("alarm/VideoLoseDetectionEventListXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectEvent(VideoLoseDetectionEvent(), list[0]);
    expectEvent(sample(), list[1]);
    expectEvent(VideoLoseDetectionEvent(), list[2]);
}

TEST(VideoLoseDetectionEventListXml, ResetsWhatAnItemLacksInSilence)
{
    CapturedOutput output;
    std::vector<VideoLoseDetectionEvent> list;
    ASSERT_TRUE(VideoLoseDetectionEventListXml().parseXmlString(
        "<VideoLoseDetectionEventList>text<!-- --><Other /></VideoLoseDetectionEventList>", list));
    ASSERT_EQ(1U, list.size());
    expectEvent(VideoLoseDetectionEvent(), list[0]);

    SafePointer<DomainXmlNode> node(new DomainXmlNode("VideoLoseDetectionEvent"));
    AlarmOutAction out = sampleAlarmOutAction();
    AlarmPTZAction ptz = sampleAlarmPTZAction();
    VideoLoseDetectionEvent event = sample();
    ASSERT_TRUE(VideoLoseDetectionEventListXml().parseAlarmOutActionFromDomainXmlNode(node, out));
    ASSERT_TRUE(VideoLoseDetectionEventListXml().parseAlarmPTZActionFromDomainXmlNode(node, ptz));
    ASSERT_TRUE(VideoLoseDetectionEventListXml().parseVideoLoseDetectionEventFromDomainXmlNode(node, event));
    expectAlarmOutAction(AlarmOutAction(), out);
    expectAlarmPTZAction(AlarmPTZAction(), ptz);
    expectEvent(VideoLoseDetectionEvent(), event);
    EXPECT_EQ("", output.text());
}

TEST(VideoLoseDetectionEventListXml, KnowsTheKindOfEventByItsOwnNameOnly)
{
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse("<AlarmOutAction EventTypeId='5' AlarmOutTypeId='6' />", node));
    AlarmOutAction action;
    ASSERT_TRUE(VideoLoseDetectionEventListXml().parseAlarmOutActionFromDomainXmlNode(node, action));
    EXPECT_EQ(6, action.getEventTypeId());
}

TEST(VideoLoseDetectionEventListXml, TakesNoMoreOfACommandThanThereIs)
{
    const std::pair<const char*, const char*> commands[] = {{"0", ""}, {"-1", ""}, {"2", "le"}, {"400", "left"}};
    for (const auto& command : commands)
    {
        SafePointer<DomainXmlNode> node;
        ASSERT_TRUE(DomainXmlNode::parse(
            std::string("<AlarmPTZAction PtzOperationCmd='left' PtzOperationCmdLen='") + command.first + "' />", node));
        AlarmPTZAction action = sampleAlarmPTZAction();
        ASSERT_TRUE(VideoLoseDetectionEventListXml().parseAlarmPTZActionFromDomainXmlNode(node, action));
        EXPECT_EQ(command.second, action.getPtzOperationCmd()) << command.first;
    }
}

TEST(VideoLoseDetectionEventListXml, AddsTheContainersOfItsListsToTheNodeItIsGiven)
{
    SafePointer<DomainXmlNode> node(new DomainXmlNode("x"));
    ASSERT_TRUE(VideoLoseDetectionEventListXml().createAlarmOutActionListToDomainXmlNode({}, node));
    ASSERT_TRUE(VideoLoseDetectionEventListXml().createAlarmPTZActionListToDomainXmlNode({}, node));
    std::string text;
    ASSERT_TRUE(DomainXmlNode::toString(node, text));
    EXPECT_EQ("<x>\n\t<AlarmOutActionList />\n\t<AlarmPTZActionList />\n</x>\n", text);
}

TEST(VideoLoseDetectionEventListXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    const VideoLoseDetectionEventListXml codec;
    VideoLoseDetectionEvent event = sample();
    AlarmOutAction out = sampleAlarmOutAction();
    AlarmPTZAction ptz = sampleAlarmPTZAction();
    std::vector<VideoLoseDetectionEvent> list(1, event);
    EXPECT_FALSE(codec.createDomainXmlNode(list, empty));
    EXPECT_FALSE(codec.parseDomainXmlNode(empty, list));
    EXPECT_FALSE(codec.createAlarmOutActionToDomainXmlNode(out, empty));
    EXPECT_FALSE(codec.createAlarmOutActionListToDomainXmlNode(event.getAlarmOutAction(), empty));
    EXPECT_FALSE(codec.createAlarmPTZActionToDomainXmlNode(ptz, empty));
    EXPECT_FALSE(codec.createAlarmPTZActionListToDomainXmlNode(event.getAlarmPTZAction(), empty));
    EXPECT_FALSE(codec.createVideoLoseDetectionEventToDomainXmlNode(event, empty));
    EXPECT_FALSE(codec.parseAlarmOutActionFromDomainXmlNode(empty, out));
    EXPECT_FALSE(codec.parseAlarmOutActionListFromDomainXmlNode(empty, event.getAlarmOutAction()));
    EXPECT_FALSE(codec.parseAlarmPTZActionFromDomainXmlNode(empty, ptz));
    EXPECT_FALSE(codec.parseAlarmPTZActionListFromDomainXmlNode(empty, event.getAlarmPTZAction()));
    EXPECT_FALSE(codec.parseVideoLoseDetectionEventFromDomainXmlNode(empty, event));
    expectEvent(sample(), event);
    EXPECT_EQ(1U, list.size());
}
