// <AlarmRecordPolicy AlarmPreRecordTime="5" AlarmDelayRecordTime="10" AlarmFileLockFlag="true"
//                    AlarmFileOpenFlag="true">
//     <AlarmEventList>
//         <AlarmEvent MajorAlarmType="1" AlarmType="2" AlarmId="3" />
//     </AlarmEventList>
// </AlarmRecordPolicy>
//
// In the node form the peers put "AlarmId" first.

#include "record/AlarmRecordPolicyXml.h"

#include "alarm/AlarmEventXml.h"
#include "core/Frame.h"

#include <utility>
#include <vector>

AlarmRecordPolicyXml::AlarmRecordPolicyXml() = default;

AlarmRecordPolicyXml::~AlarmRecordPolicyXml() = default;

void AlarmRecordPolicyXml::createXmlNode()
{
    writeElement(document_, policy_);
}

bool AlarmRecordPolicyXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmRecordPolicyXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmRecordPolicy", document_, node_) && parseXmlNode();
}

bool AlarmRecordPolicyXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, policy_);
}

TiXmlElement& AlarmRecordPolicyXml::writeElement(TiXmlNode& parent, const AlarmRecordPolicy& policy)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmRecordPolicy");
    frame::setInt(element, "AlarmPreRecordTime", policy.getAlarmPreRecordTime());
    frame::setInt(element, "AlarmDelayRecordTime", policy.getAlarmDelayRecordTime());
    frame::setFlag(element, "AlarmFileLockFlag", policy.isAlarmRecordFileLocked());
    frame::setFlag(element, "AlarmFileOpenFlag", policy.isAlarmRecordOpened());

    TiXmlElement& events = frame::appendElement(element, "AlarmEventList");
    for (const AlarmEvent& event : policy.getAlarmEventList())
    {
        TiXmlElement& item = frame::appendElement(events, "AlarmEvent");
        frame::setInt(item, "MajorAlarmType", event.getMajorAlarmType());
        frame::setInt(item, "AlarmType", event.getAlarmType());
        frame::setInt(item, "AlarmId", event.getAlarmId());
    }
    return element;
}

bool AlarmRecordPolicyXml::readElement(const TiXmlElement& element, AlarmRecordPolicy& policy)
{
    policy.setAlarmRecordTime(frame::intOf(element, "AlarmPreRecordTime", 0),
                              frame::intOf(element, "AlarmDelayRecordTime", 0));
    policy.setAlarmRecordFileLockedState(frame::flagOf(element, "AlarmFileLockFlag", policy.isAlarmRecordFileLocked()));
    policy.setAlarmRecordOpenState(frame::flagOf(element, "AlarmFileOpenFlag", policy.isAlarmRecordOpened()));

    const TiXmlElement* item = frame::firstItem(element, "AlarmEventList", "AlarmEvent");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AlarmEvent event;
        event.setMajorAlarmType(frame::intOf(*item, "MajorAlarmType", 0));
        event.setAlarmType(frame::intOf(*item, "AlarmType", 0));
        event.setAlarmId(frame::intOf(*item, "AlarmId", 0));
        policy.getAlarmEventList().push_back(event);
    }
    return true;
}

bool AlarmRecordPolicyXml::createDomainXmlNode(const AlarmRecordPolicy& policy, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("AlarmPreRecordTime", policy.getAlarmPreRecordTime());
    node->setProperty("AlarmDelayRecordTime", policy.getAlarmDelayRecordTime());
    node->setProperty("AlarmFileLockFlag", policy.isAlarmRecordFileLocked());
    node->setProperty("AlarmFileOpenFlag", policy.isAlarmRecordOpened());

    SafePointer<DomainXmlNode> events = frame::appendNode(node, "AlarmEventList");
    return AlarmEventXml().createDomainXmlNode(policy.getAlarmEventList(), events);
}

bool AlarmRecordPolicyXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmRecordPolicy& policy) const
{
    if (!node) return false;

    // The peers watch for the first value only; the others go missing in silence.
    const int preRecordTime = frame::intProperty(
        node, "AlarmPreRecordTime", 0, "AlarmRecordPolicyXml::parseDomainXmlNode node = nAlarmPreRecordTime failed ");
    const int delayRecordTime = frame::intProperty(node, "AlarmDelayRecordTime", 0);
    policy.setAlarmRecordTime(preRecordTime, delayRecordTime);
    policy.setAlarmRecordFileLockedState(frame::flagProperty(node, "AlarmFileLockFlag", false));
    policy.setAlarmRecordOpenState(frame::flagProperty(node, "AlarmFileOpenFlag", false));

    SafePointer<DomainXmlNode> list;
    if (node->getConfigNode("AlarmEventList", list))
    {
        std::vector<AlarmEvent> events;
        if (!AlarmEventXml().parseDomainXmlNode(list, events)) return false;
        policy.getAlarmEventList() = std::move(events);
    }
    return true;
}

bool AlarmRecordPolicyXml::createXmlString(const AlarmRecordPolicy& policy, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AlarmRecordPolicy");
    return createDomainXmlNode(policy, node) && DomainXmlNode::toString(node, text);
}

bool AlarmRecordPolicyXml::parseXmlString(const std::string& text, AlarmRecordPolicy& policy) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AlarmRecordPolicy", node) && parseDomainXmlNode(node, policy);
}
