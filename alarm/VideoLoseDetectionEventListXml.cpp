// <VideoLoseDetectionEventList>
//     <VideoLoseDetectionEvent DeviceId="D1" CameraId="1" EnableFlag="true">
//         <AlarmOutActionList>
//             <AlarmOutAction DeviceId="D1" AlarmOutId="1" AlarmOutFlag="1" AlarmOutTypeId="2" />
//         </AlarmOutActionList>
//         <AlarmPTZActionList>
//             <AlarmPTZAction EventTypeId="2" DeviceId="D1" CameraId="1" ... Reserve="0" />
//         </AlarmPTZActionList>
//     </VideoLoseDetectionEvent>
// </VideoLoseDetectionEventList>
//
// The kind of event of an "AlarmOutAction" is called "AlarmOutTypeId" here and "EventTypeId" in all other documents:
// the peers write these items by themselves, and read no other name.

#include "alarm/VideoLoseDetectionEventListXml.h"

#include "alarm/AlarmPTZActionXml.h"
#include "core/Frame.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

VideoLoseDetectionEventListXml::VideoLoseDetectionEventListXml() = default;

VideoLoseDetectionEventListXml::~VideoLoseDetectionEventListXml() = default;

bool VideoLoseDetectionEventListXml::createDomainXmlNode(const std::vector<VideoLoseDetectionEvent>& events,
                                                         SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const VideoLoseDetectionEvent& event : events)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "VideoLoseDetectionEvent");
        if (!createVideoLoseDetectionEventToDomainXmlNode(event, item)) return false;
    }
    return true;
}

bool VideoLoseDetectionEventListXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                        std::vector<VideoLoseDetectionEvent>& events) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        VideoLoseDetectionEvent event;
        if (!parseVideoLoseDetectionEventFromDomainXmlNode(frame::nodeOf(*item), event)) return false;
        events.push_back(std::move(event));
    }
    return true;
}

bool VideoLoseDetectionEventListXml::createXmlString(const std::vector<VideoLoseDetectionEvent>& events,
                                                     std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("VideoLoseDetectionEventList");
    return createDomainXmlNode(events, node) && DomainXmlNode::toString(node, text);
}

bool VideoLoseDetectionEventListXml::parseXmlString(const std::string& text,
                                                    std::vector<VideoLoseDetectionEvent>& events) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "VideoLoseDetectionEventList", node) && parseDomainXmlNode(node, events);
}

bool VideoLoseDetectionEventListXml::createAlarmOutActionToDomainXmlNode(const AlarmOutAction& action,
                                                                         SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("DeviceId", action.getDeviceId());
    node->setProperty("AlarmOutId", action.getAlarmOutId());
    node->setProperty("AlarmOutFlag", action.getAlarmOutFlag());
    node->setProperty("AlarmOutTypeId", action.getEventTypeId());
    return true;
}

bool VideoLoseDetectionEventListXml::createAlarmOutActionListToDomainXmlNode(const std::vector<AlarmOutAction>& actions,
                                                                             SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    SafePointer<DomainXmlNode> list = frame::appendNode(node, "AlarmOutActionList");
    for (const AlarmOutAction& action : actions)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(list, "AlarmOutAction");
        if (!createAlarmOutActionToDomainXmlNode(action, item)) return false;
    }
    return true;
}

bool VideoLoseDetectionEventListXml::createAlarmPTZActionToDomainXmlNode(const AlarmPTZAction& action,
                                                                         SafePointer<DomainXmlNode>& node) const
{
    return AlarmPTZActionXml().createDomainXmlNode(action, node);
}

bool VideoLoseDetectionEventListXml::createAlarmPTZActionListToDomainXmlNode(const std::vector<AlarmPTZAction>& actions,
                                                                             SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    SafePointer<DomainXmlNode> list = frame::appendNode(node, "AlarmPTZActionList");
    for (const AlarmPTZAction& action : actions)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(list, "AlarmPTZAction");
        if (!createAlarmPTZActionToDomainXmlNode(action, item)) return false;
    }
    return true;
}

bool VideoLoseDetectionEventListXml::createVideoLoseDetectionEventToDomainXmlNode(
    const VideoLoseDetectionEvent& event, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("DeviceId", event.getDeviceId());
    node->setProperty("CameraId", event.getCameraId());
    node->setProperty("EnableFlag", event.getVideoLoseDetectionEnableFlag());
    return createAlarmOutActionListToDomainXmlNode(event.getAlarmOutAction(), node) &&
           createAlarmPTZActionListToDomainXmlNode(event.getAlarmPTZAction(), node);
}

bool VideoLoseDetectionEventListXml::parseAlarmOutActionFromDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                                          AlarmOutAction& action) const
{
    if (!node) return false;

    action.setDeviceId(frame::textProperty(node, "DeviceId", ""));
    action.setAlarmOutId(frame::intProperty(node, "AlarmOutId", 0));
    action.setAlarmOutFlag(frame::intProperty(node, "AlarmOutFlag", 0));
    action.setEventTypeId(frame::intProperty(node, "AlarmOutTypeId", 0));
    return true;
}

bool VideoLoseDetectionEventListXml::parseAlarmOutActionListFromDomainXmlNode(
    const SafePointer<DomainXmlNode>& node, std::vector<AlarmOutAction>& actions) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AlarmOutAction action;
        if (!parseAlarmOutActionFromDomainXmlNode(frame::nodeOf(*item), action)) return false;
        actions.push_back(std::move(action));
    }
    return true;
}

bool VideoLoseDetectionEventListXml::parseAlarmPTZActionFromDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                                          AlarmPTZAction& action) const
{
    if (!node) return false;

    action.setEventTypeId(frame::intProperty(node, "EventTypeId", 0));
    action.setDeviceId(frame::textProperty(node, "DeviceId", ""));
    action.setCameraId(frame::intProperty(node, "CameraId", 0));
    action.setComId(frame::intProperty(node, "ComId", 0));
    action.setPtzId(frame::intProperty(node, "PtzId", 0));

    const std::string command = frame::textProperty(node, "PtzOperationCmd", "");
    const int length = frame::intProperty(node, "PtzOperationCmdLen", 0);
    action.setPtzOperationCmd(command.c_str(), std::clamp(length, 0, static_cast<int>(command.size())));

    action.setReserve(frame::intProperty(node, "Reserve", 0));
    return true;
}

bool VideoLoseDetectionEventListXml::parseAlarmPTZActionListFromDomainXmlNode(
    const SafePointer<DomainXmlNode>& node, std::vector<AlarmPTZAction>& actions) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AlarmPTZAction action;
        if (!parseAlarmPTZActionFromDomainXmlNode(frame::nodeOf(*item), action)) return false;
        actions.push_back(std::move(action));
    }
    return true;
}

bool VideoLoseDetectionEventListXml::parseVideoLoseDetectionEventFromDomainXmlNode(
    const SafePointer<DomainXmlNode>& node, VideoLoseDetectionEvent& event) const
{
    if (!node) return false;

    event.setDeviceId(frame::textProperty(node, "DeviceId", ""));
    event.setCameraId(frame::intProperty(node, "CameraId", 0));
    event.setVideoLoseDetectionEnableFlag(frame::flagProperty(node, "EnableFlag", false));

    SafePointer<DomainXmlNode> outList;
    std::vector<AlarmOutAction> outs;
    if (node->getConfigNode("AlarmOutActionList", outList)) parseAlarmOutActionListFromDomainXmlNode(outList, outs);
    event.getAlarmOutAction() = std::move(outs);

    SafePointer<DomainXmlNode> ptzList;
    std::vector<AlarmPTZAction> ptzs;
    if (node->getConfigNode("AlarmPTZActionList", ptzList)) parseAlarmPTZActionListFromDomainXmlNode(ptzList, ptzs);
    event.getAlarmPTZAction() = std::move(ptzs);
    return true;
}
