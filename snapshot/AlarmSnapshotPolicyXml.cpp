// <AlarmSnapshotPolicy PreSnapshotTime="5" DelaySnapshotTime="10" FileLockFlag="true" OpenFlag="true">
//     <SnapshotParameter ... />
//     <AlarmEventList>
//         <AlarmEvent AlarmType="1" MajorAlarmType="2" AlarmId="3" />
//     </AlarmEventList>
// </AlarmSnapshotPolicy>
//
// In the node form the peers put "OpenFlag" and "AlarmId" first.

#include "snapshot/AlarmSnapshotPolicyXml.h"

#include "alarm/AlarmEventXml.h"
#include "core/Frame.h"
#include "snapshot/SnapshotParameterXml.h"

#include <utility>
#include <vector>

AlarmSnapshotPolicyXml::AlarmSnapshotPolicyXml() = default;

AlarmSnapshotPolicyXml::~AlarmSnapshotPolicyXml() = default;

void AlarmSnapshotPolicyXml::createXmlNode()
{
    writeElement(document_, policy_);
}

bool AlarmSnapshotPolicyXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmSnapshotPolicyXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmSnapshotPolicy", document_, node_) && parseXmlNode();
}

bool AlarmSnapshotPolicyXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, policy_);
}

TiXmlElement& AlarmSnapshotPolicyXml::writeElement(TiXmlNode& parent, const AlarmSnapshotPolicy& policy)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmSnapshotPolicy");
    frame::setInt(element, "PreSnapshotTime", policy.getAlarmPreSnapshotTime());
    frame::setInt(element, "DelaySnapshotTime", policy.getAlarmDelaySnapshotTime());
    frame::setFlag(element, "FileLockFlag", policy.isAlarmSnapshotFileLocked());
    frame::setFlag(element, "OpenFlag", policy.isAlarmSnapshotOpened());

    SnapshotParameterXml::writeElement(element, policy.getSnapshotParameter());

    TiXmlElement& events = frame::appendElement(element, "AlarmEventList");
    for (const AlarmEvent& event : policy.getAlarmEventList())
    {
        TiXmlElement& item = frame::appendElement(events, "AlarmEvent");
        frame::setInt(item, "AlarmType", event.getAlarmType());
        frame::setInt(item, "MajorAlarmType", event.getMajorAlarmType());
        frame::setInt(item, "AlarmId", event.getAlarmId());
    }
    return element;
}

bool AlarmSnapshotPolicyXml::readElement(const TiXmlElement& element, AlarmSnapshotPolicy& policy)
{
    policy.setAlarmSnapshotTime(frame::intOf(element, "PreSnapshotTime", 0),
                                frame::intOf(element, "DelaySnapshotTime", 0));
    policy.setAlarmSnapshotFileLockedState(frame::flagOf(element, "FileLockFlag", policy.isAlarmSnapshotFileLocked()));
    policy.setAlarmSnapshotOpenState(frame::flagOf(element, "OpenFlag", policy.isAlarmSnapshotOpened()));

    const TiXmlElement* child = element.FirstChildElement("SnapshotParameter");
    if (child != nullptr)
    {
        SnapshotParameter parameter;
        if (!SnapshotParameterXml::readElement(*child, parameter)) return false;
        policy.getSnapshotParameter() = std::move(parameter);
    }

    const TiXmlElement* item = frame::firstItem(element, "AlarmEventList", "AlarmEvent");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AlarmEvent event;
        event.setAlarmType(frame::intOf(*item, "AlarmType", 0));
        event.setMajorAlarmType(frame::intOf(*item, "MajorAlarmType", 0));
        event.setAlarmId(frame::intOf(*item, "AlarmId", 0));
        policy.getAlarmEventList().push_back(event);
    }
    return true;
}

bool AlarmSnapshotPolicyXml::createDomainXmlNode(const AlarmSnapshotPolicy& policy,
                                                 SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("OpenFlag", policy.isAlarmSnapshotOpened());
    node->setProperty("PreSnapshotTime", policy.getAlarmPreSnapshotTime());
    node->setProperty("DelaySnapshotTime", policy.getAlarmDelaySnapshotTime());
    node->setProperty("FileLockFlag", policy.isAlarmSnapshotFileLocked());

    SafePointer<DomainXmlNode> parameter = frame::appendNode(node, "SnapshotParameter");
    if (!SnapshotParameterXml().createDomainXmlNode(policy.getSnapshotParameter(), parameter)) return false;
    SafePointer<DomainXmlNode> events = frame::appendNode(node, "AlarmEventList");
    return AlarmEventXml().createDomainXmlNode(policy.getAlarmEventList(), events);
}

bool AlarmSnapshotPolicyXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                AlarmSnapshotPolicy& policy) const
{
    if (!node) return false;

    policy.setAlarmSnapshotOpenState(frame::flagProperty(node, "OpenFlag", false));
    policy.setAlarmSnapshotTime(frame::intProperty(node, "PreSnapshotTime", 0),
                                frame::intProperty(node, "DelaySnapshotTime", 0));
    policy.setAlarmSnapshotFileLockedState(frame::flagProperty(node, "FileLockFlag", false));

    SafePointer<DomainXmlNode> parameterNode;
    node->getConfigNode("SnapshotParameter", parameterNode);
    SnapshotParameter parameter;
    SnapshotParameterXml().parseDomainXmlNode(parameterNode, parameter);
    policy.getSnapshotParameter() = std::move(parameter);

    SafePointer<DomainXmlNode> list;
    if (node->getConfigNode("AlarmEventList", list))
    {
        std::vector<AlarmEvent> events;
        AlarmEventXml().parseDomainXmlNode(list, events);
        policy.getAlarmEventList() = std::move(events);
    }
    return true;
}

bool AlarmSnapshotPolicyXml::createXmlString(const AlarmSnapshotPolicy& policy, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AlarmSnapshotPolicy");
    return createDomainXmlNode(policy, node) && DomainXmlNode::toString(node, text);
}

bool AlarmSnapshotPolicyXml::parseXmlString(const std::string& text, AlarmSnapshotPolicy& policy) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AlarmSnapshotPolicy", node) && parseDomainXmlNode(node, policy);
}
