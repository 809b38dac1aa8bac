// <IntelligeBaseParam DeviceId="d" CameraId="1" Enable="true" AlarmInterval="10">
//     <AlarmOutActionList>
//         <AlarmOutAction DeviceId="d" AlarmOutId="1" AlarmOutFlag="1" EventTypeId="1" />
//     </AlarmOutActionList>
//     <AlarmPTZActionList />
//     <AlarmRecordActionList />
//     <AlarmOverlayActionList />
//     <ScheduleTimeParam DeviceId="d" CameraId="1">
//         <ScheduleWeekList />
//         <ScheduleTimeSegmentList />
//     </ScheduleTimeParam>
// </IntelligeBaseParam>
//
// Peers print each child in document form and parse that text again, in both directions: actions and schedule are read
// as their document forms read them. Here the elements are written and read in place, with the same result.

#include "analysis/IntelligeBaseParamXml.h"

#include "alarm/AlarmOutActionXml.h"
#include "alarm/AlarmOverlayActionXml.h"
#include "alarm/AlarmPTZActionXml.h"
#include "alarm/AlarmRecordActionXml.h"
#include "alarm/PolicySteps.h"
#include "alarm/ScheduleTimeParamXml.h"
#include "core/Frame.h"

#include <utility>

namespace
{

/// The element of @p node; null if that is empty.
TiXmlElement* elementOf(const SafePointer<DomainXmlNode>& node)
{
    return node ? node->getXmlNode() : nullptr;
}

/// The same; null too if it is not called @p name.
const TiXmlElement* elementOf(const SafePointer<DomainXmlNode>& node, const char* name)
{
    const TiXmlElement* element = elementOf(node);
    return element != nullptr && element->ValueStr() == name ? element : nullptr;
}

/// The first child of the container @p node named @p item; false if the container is empty itself.
bool firstItem(const SafePointer<DomainXmlNode>& node, const char* item, const TiXmlElement*& first)
{
    const TiXmlElement* container = elementOf(node);
    if (container == nullptr) return false;
    first = frame::firstItem(*container, item);
    return true;
}

} // namespace

IntelligeBaseParamXml::IntelligeBaseParamXml() = default;

IntelligeBaseParamXml::~IntelligeBaseParamXml() = default;

bool IntelligeBaseParamXml::parseXmlString(const std::string& text, IntelligeBaseParam& param)
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "IntelligeBaseParam", node) &&
           IntelligeBaseParamXml::parseDomainXmlNode(node, param);
}

bool IntelligeBaseParamXml::createXmlString(const IntelligeBaseParam& param, std::string& text)
{
    SafePointer<DomainXmlNode> node = frame::makeNode("IntelligeBaseParam");
    return IntelligeBaseParamXml::createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool IntelligeBaseParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, IntelligeBaseParam& param)
{
    if (!node) return false;

    IntelligeBaseParam read;
    read.setDeviceID(frame::textProperty(node, "DeviceId", ""));
    read.setCameraID(frame::intProperty(node, "CameraId", 0));
    read.setEnable(frame::flagProperty(node, "Enable", false));
    read.setAlarmInterval(frame::intProperty(node, "AlarmInterval", 0));

    SafePointer<DomainXmlNode> child;
    if (node->getConfigNode("AlarmOutActionList", child) &&
        !parseAlarmOutActionListFromDomainXmlNode(child, read.getAlarmOutActionList()))
        return false;
    if (node->getConfigNode("AlarmPTZActionList", child) &&
        !parseAlarmPTZActionListFromDomainXmlNode(child, read.getAlarmPTZActionList()))
        return false;
    if (node->getConfigNode("AlarmRecordActionList", child) &&
        !parseAlarmRecordActionListFromDomainXmlNode(child, read.getAlarmRecordActionList()))
        return false;
    if (node->getConfigNode("AlarmOverlayActionList", child) &&
        !parseAlarmOverlayActionListFromDomainXmlNode(child, read.getAlarmOverlayActionList()))
        return false;
    if (node->getConfigNode("ScheduleTimeParam", child) &&
        !parseScheduleTimeParamFromDomainXmlNode(child, read.getScheduleTimeParam()))
        return false;
    param = std::move(read);
    return true;
}

// The lists stand in an order of their own: peers of the event policies have the records before the PTZ.
bool IntelligeBaseParamXml::createDomainXmlNode(const IntelligeBaseParam& param, SafePointer<DomainXmlNode>& node)
{
    if (!node) return false;

    node->setProperty("DeviceId", param.getDeviceID());
    node->setProperty("CameraId", param.getCameraID());
    node->setProperty("Enable", param.getEnable());
    node->setProperty("AlarmInterval", param.getAlarmInterval());
    return createAlarmOutActionListToDomainXmlNode(param.getAlarmOutActionList(), node) &&
           createAlarmPTZActionListToDomainXmlNode(param.getAlarmPTZActionList(), node) &&
           createAlarmRecordActionListToDomainXmlNode(param.getAlarmRecordActionList(), node) &&
           createAlarmOverlayActionListToDomainXmlNode(param.getAlarmOverlayActionList(), node) &&
           createScheduleTimeParamFromDomainXmlNode(param.getScheduleTimeParam(), node);
}

bool IntelligeBaseParamXml::createAlarmOutActionToDomainXmlNode(const AlarmOutAction& action,
                                                                SafePointer<DomainXmlNode>& node)
{
    TiXmlElement* parent = elementOf(node);
    if (parent == nullptr) return false;

    AlarmOutActionXml::writeElement(*parent, action);
    return true;
}

bool IntelligeBaseParamXml::createAlarmPTZActionToDomainXmlNode(const AlarmPTZAction& action,
                                                                SafePointer<DomainXmlNode>& node)
{
    TiXmlElement* parent = elementOf(node);
    if (parent == nullptr) return false;

    AlarmPTZActionXml::writeElement(*parent, action);
    return true;
}

bool IntelligeBaseParamXml::createAlarmRecordActionToDomainXmlNode(const AlarmRecordAction& action,
                                                                   SafePointer<DomainXmlNode>& node)
{
    TiXmlElement* parent = elementOf(node);
    if (parent == nullptr) return false;

    AlarmRecordActionXml::writeElement(*parent, action);
    return true;
}

bool IntelligeBaseParamXml::createAlarmOverlayActionToDomainXmlNode(const AlarmOverlayAction& action,
                                                                    SafePointer<DomainXmlNode>& node)
{
    TiXmlElement* parent = elementOf(node);
    if (parent == nullptr) return false;

    AlarmOverlayActionXml::writeElement(*parent, action);
    return true;
}

bool IntelligeBaseParamXml::createScheduleTimeParamFromDomainXmlNode(const ScheduleTimeParam& schedule,
                                                                     SafePointer<DomainXmlNode>& node)
{
    TiXmlElement* parent = elementOf(node);
    if (parent == nullptr) return false;

    ScheduleTimeParamXml::writeElement(*parent, schedule);
    return true;
}

bool IntelligeBaseParamXml::createAlarmOutActionListToDomainXmlNode(const std::vector<AlarmOutAction>& actions,
                                                                    SafePointer<DomainXmlNode>& node)
{
    TiXmlElement* parent = elementOf(node);
    if (parent == nullptr) return false;

    frame::writeActions(*parent, "AlarmOutActionList", actions);
    return true;
}

bool IntelligeBaseParamXml::createAlarmPTZActionListToDomainXmlNode(const std::vector<AlarmPTZAction>& actions,
                                                                    SafePointer<DomainXmlNode>& node)
{
    TiXmlElement* parent = elementOf(node);
    if (parent == nullptr) return false;

    frame::writeActions(*parent, "AlarmPTZActionList", actions);
    return true;
}

bool IntelligeBaseParamXml::createAlarmRecordActionListToDomainXmlNode(const std::vector<AlarmRecordAction>& actions,
                                                                       SafePointer<DomainXmlNode>& node)
{
    TiXmlElement* parent = elementOf(node);
    if (parent == nullptr) return false;

    frame::writeActions(*parent, "AlarmRecordActionList", actions);
    return true;
}

bool IntelligeBaseParamXml::createAlarmOverlayActionListToDomainXmlNode(const std::vector<AlarmOverlayAction>& actions,
                                                                        SafePointer<DomainXmlNode>& node)
{
    TiXmlElement* parent = elementOf(node);
    if (parent == nullptr) return false;

    frame::writeActions(*parent, "AlarmOverlayActionList", actions);
    return true;
}

bool IntelligeBaseParamXml::parseAlarmOutActionFromDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                                 AlarmOutAction& action)
{
    const TiXmlElement* element = elementOf(node, "AlarmOutAction");
    AlarmOutAction read;
    if (element == nullptr || !AlarmOutActionXml::readElement(*element, read)) return false;

    action = std::move(read);
    return true;
}

bool IntelligeBaseParamXml::parseAlarmPTZActionFromDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                                 AlarmPTZAction& action)
{
    const TiXmlElement* element = elementOf(node, "AlarmPTZAction");
    AlarmPTZAction read;
    if (element == nullptr || !AlarmPTZActionXml::readElement(*element, read)) return false;

    action = std::move(read);
    return true;
}

bool IntelligeBaseParamXml::parseAlarmRecordActionFromDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                                    AlarmRecordAction& action)
{
    const TiXmlElement* element = elementOf(node, "AlarmRecordAction");
    AlarmRecordAction read;
    if (element == nullptr || !AlarmRecordActionXml::readElement(*element, read)) return false;

    action = std::move(read);
    return true;
}

bool IntelligeBaseParamXml::parseAlarmOverlayActionFromDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                                     AlarmOverlayAction& action)
{
    const TiXmlElement* element = elementOf(node, "AlarmOverlayAction");
    AlarmOverlayAction read;
    if (element == nullptr || !AlarmOverlayActionXml::readElement(*element, read)) return false;

    action = std::move(read);
    return true;
}

bool IntelligeBaseParamXml::parseScheduleTimeParamFromDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                                    ScheduleTimeParam& schedule)
{
    const TiXmlElement* element = elementOf(node, "ScheduleTimeParam");
    ScheduleTimeParam read;
    if (element == nullptr || !ScheduleTimeParamXml::readElement(*element, read)) return false;

    schedule = std::move(read);
    return true;
}

bool IntelligeBaseParamXml::parseAlarmOutActionListFromDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                                     std::vector<AlarmOutAction>& actions)
{
    const TiXmlElement* item = nullptr;
    if (!firstItem(node, "AlarmOutAction", item)) return false;

    for (; item != nullptr; item = item->NextSiblingElement("AlarmOutAction"))
    {
        AlarmOutAction action;
        if (!AlarmOutActionXml::readElement(*item, action)) return false;
        actions.push_back(std::move(action));
    }
    return true;
}

bool IntelligeBaseParamXml::parseAlarmPTZActionListFromDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                                     std::vector<AlarmPTZAction>& actions)
{
    const TiXmlElement* item = nullptr;
    if (!firstItem(node, "AlarmPTZAction", item)) return false;

    for (; item != nullptr; item = item->NextSiblingElement("AlarmPTZAction"))
    {
        AlarmPTZAction action;
        if (!AlarmPTZActionXml::readElement(*item, action)) return false;
        actions.push_back(std::move(action));
    }
    return true;
}

bool IntelligeBaseParamXml::parseAlarmRecordActionListFromDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                                        std::vector<AlarmRecordAction>& actions)
{
    const TiXmlElement* item = nullptr;
    if (!firstItem(node, "AlarmRecordAction", item)) return false;

    for (; item != nullptr; item = item->NextSiblingElement("AlarmRecordAction"))
    {
        AlarmRecordAction action;
        if (!AlarmRecordActionXml::readElement(*item, action)) return false;
        actions.push_back(std::move(action));
    }
    return true;
}

bool IntelligeBaseParamXml::parseAlarmOverlayActionListFromDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                                         std::vector<AlarmOverlayAction>& actions)
{
    const TiXmlElement* item = nullptr;
    if (!firstItem(node, "AlarmOverlayAction", item)) return false;

    for (; item != nullptr; item = item->NextSiblingElement("AlarmOverlayAction"))
    {
        AlarmOverlayAction action;
        if (!AlarmOverlayActionXml::readElement(*item, action)) return false;
        actions.push_back(std::move(action));
    }
    return true;
}
