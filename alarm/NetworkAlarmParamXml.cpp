// <NetworkAlarmParam Interval="60">
//     <NetworkAlarmEventList>
//         <NetworkAlarmEvent NetworkCardId="1" AlarmEnableFlag="true">
//             <AlarmOutActionList>
//                 <AlarmOutAction DeviceId="D1" AlarmOutId="1" AlarmOutFlag="1" EventTypeId="2" />
//             </AlarmOutActionList>
//             <AlarmPTZActionList>
//                 <AlarmPTZAction EventTypeId="2" DeviceId="D1" CameraId="1" ... />
//             </AlarmPTZActionList>
//         </NetworkAlarmEvent>
//     </NetworkAlarmEventList>
// </NetworkAlarmParam>
//
// The node form has items of its own: they print no lines.

#include "alarm/NetworkAlarmParamXml.h"

#include "alarm/NetworkAlarmEventXml.h"
#include "core/Frame.h"

#include <utility>
#include <vector>

namespace
{

void writeOuts(const std::vector<AlarmOutAction>& actions, SafePointer<DomainXmlNode>& list)
{
    for (const AlarmOutAction& action : actions)
    {
        SafePointer<DomainXmlNode> node = frame::appendNode(list, "AlarmOutAction");
        node->setProperty("DeviceId", action.getDeviceId());
        node->setProperty("AlarmOutId", action.getAlarmOutId());
        node->setProperty("AlarmOutFlag", action.getAlarmOutFlag());
        node->setProperty("EventTypeId", action.getEventTypeId());
    }
}

void writePtzs(const std::vector<AlarmPTZAction>& actions, SafePointer<DomainXmlNode>& list)
{
    for (const AlarmPTZAction& action : actions)
    {
        SafePointer<DomainXmlNode> node = frame::appendNode(list, "AlarmPTZAction");
        node->setProperty("EventTypeId", action.getEventTypeId());
        node->setProperty("DeviceId", action.getDeviceId());
        node->setProperty("CameraId", action.getCameraId());
        node->setProperty("ComId", action.getComId());
        node->setProperty("PtzId", action.getPtzId());
        node->setProperty("PtzOperationCmd", action.getPtzOperationCmd());
        node->setProperty("PtzOperationCmdLen", action.getPtzOperationCmdLen());
        // Without "Reserve", unlike every other document: peers of this form do not know it.
    }
}

void readOuts(const SafePointer<DomainXmlNode>& list, std::vector<AlarmOutAction>& actions)
{
    TiXmlElement* item = frame::firstChild(list);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        const SafePointer<DomainXmlNode> node = frame::nodeOf(*item);
        AlarmOutAction action;
        action.setDeviceId(frame::textProperty(node, "DeviceId", ""));
        action.setAlarmOutId(frame::intProperty(node, "AlarmOutId", 0));
        action.setAlarmOutFlag(frame::intProperty(node, "AlarmOutFlag", 0));
        action.setEventTypeId(frame::intProperty(node, "EventTypeId", 0));
        actions.push_back(std::move(action));
    }
}

void readPtzs(const SafePointer<DomainXmlNode>& list, std::vector<AlarmPTZAction>& actions)
{
    TiXmlElement* item = frame::firstChild(list);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        const SafePointer<DomainXmlNode> node = frame::nodeOf(*item);
        AlarmPTZAction action;
        action.setEventTypeId(frame::intProperty(node, "EventTypeId", 0));
        action.setDeviceId(frame::textProperty(node, "DeviceId", ""));
        action.setCameraId(frame::intProperty(node, "CameraId", 0));
        action.setComId(frame::intProperty(node, "ComId", 0));
        action.setPtzId(frame::intProperty(node, "PtzId", 0));
        // The command and its length are written, but the peers do not take them from here.
        actions.push_back(std::move(action));
    }
}

void writeEvent(const NetworkAlarmEvent& event, SafePointer<DomainXmlNode>& node)
{
    node->setProperty("NetworkCardId", event.getNetworkCardId());
    node->setProperty("AlarmEnableFlag", event.getAlarmEnableFlag());

    SafePointer<DomainXmlNode> outs = frame::appendNode(node, "AlarmOutActionList");
    writeOuts(event.getAlarmOutAction(), outs);

    SafePointer<DomainXmlNode> ptzs = frame::appendNode(node, "AlarmPTZActionList");
    writePtzs(event.getAlarmPTZAction(), ptzs);
}

void readEvent(const SafePointer<DomainXmlNode>& node, NetworkAlarmEvent& event)
{
    event.setNetworkCardId(frame::intProperty(node, "NetworkCardId", 0));
    event.setAlarmEnableFlag(frame::flagProperty(node, "AlarmEnableFlag", false));

    SafePointer<DomainXmlNode> outs;
    if (node->getConfigNode("AlarmOutActionList", outs)) readOuts(outs, event.getAlarmOutAction());

    SafePointer<DomainXmlNode> ptzs;
    if (node->getConfigNode("AlarmPTZActionList", ptzs)) readPtzs(ptzs, event.getAlarmPTZAction());
}

} // namespace

NetworkAlarmParamXml::NetworkAlarmParamXml() = default;

NetworkAlarmParamXml::~NetworkAlarmParamXml() = default;

void NetworkAlarmParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool NetworkAlarmParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool NetworkAlarmParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "NetworkAlarmParam", document_, node_) && parseXmlNode();
}

bool NetworkAlarmParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& NetworkAlarmParamXml::writeElement(TiXmlNode& parent, const NetworkAlarmParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "NetworkAlarmParam");
    frame::setInt(element, "Interval", param.getInterval());

    TiXmlElement& events = frame::appendElement(element, "NetworkAlarmEventList");
    for (const NetworkAlarmEvent& event : param.getNetworkAlarmEvent())
        NetworkAlarmEventXml::writeElement(events, event);
    return element;
}

bool NetworkAlarmParamXml::readElement(const TiXmlElement& element, NetworkAlarmParam& param)
{
    param.setInterval(frame::intOf(element, "Interval", 0));

    const TiXmlElement* item = frame::firstItem(element, "NetworkAlarmEventList", "NetworkAlarmEvent");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        NetworkAlarmEvent event;
        if (!NetworkAlarmEventXml::readElement(*item, event)) return false;
        param.getNetworkAlarmEvent().push_back(std::move(event));
    }
    return true;
}

bool NetworkAlarmParamXml::createDomainXmlNode(const NetworkAlarmParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->cleanChildren();
    node->setProperty("Interval", param.getInterval());

    SafePointer<DomainXmlNode> list = frame::appendNode(node, "NetworkAlarmEventList");
    for (const NetworkAlarmEvent& event : param.getNetworkAlarmEvent())
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(list, "NetworkAlarmEvent");
        writeEvent(event, item);
    }
    return true;
}

bool NetworkAlarmParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, NetworkAlarmParam& param) const
{
    if (!node) return false;

    param.setInterval(frame::intProperty(node, "Interval", 0));

    SafePointer<DomainXmlNode> list;
    std::vector<NetworkAlarmEvent> events;
    if (node->getConfigNode("NetworkAlarmEventList", list))
    {
        TiXmlElement* item = frame::firstChild(list);
        for (; item != nullptr; item = item->NextSiblingElement())
        {
            NetworkAlarmEvent event;
            readEvent(frame::nodeOf(*item), event);
            events.push_back(std::move(event));
        }
    }
    param.getNetworkAlarmEvent() = std::move(events);
    return true;
}

bool NetworkAlarmParamXml::createXmlString(const NetworkAlarmParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("NetworkAlarmParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool NetworkAlarmParamXml::parseXmlString(const std::string& text, NetworkAlarmParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "NetworkAlarmParam", node) && parseDomainXmlNode(node, param);
}
