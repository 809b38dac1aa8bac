// <ScheduleRecordPolicy ScheduleRecordOpenFlag="true" ScheduleReocrdType="1">
//     <ScheduleRecordTimeParam ... />
// </ScheduleRecordPolicy>
//
// "ScheduleReocrdType" and, in a line, "SHCEDULE" are how the peers spell them.

#include "record/ScheduleRecordPolicyXml.h"

#include "core/Frame.h"
#include "record/ScheduleRecordTimeParamXml.h"

#include <cstdio>
#include <utility>

ScheduleRecordPolicyXml::ScheduleRecordPolicyXml() = default;

ScheduleRecordPolicyXml::~ScheduleRecordPolicyXml() = default;

void ScheduleRecordPolicyXml::createXmlNode()
{
    writeElement(document_, policy_);
}

bool ScheduleRecordPolicyXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ScheduleRecordPolicyXml::parseXmlString()
{
    return frame::parseRoot(text_, "ScheduleRecordPolicy", document_, node_) && parseXmlNode();
}

bool ScheduleRecordPolicyXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, policy_);
}

TiXmlElement& ScheduleRecordPolicyXml::writeElement(TiXmlNode& parent, const ScheduleRecordPolicy& policy)
{
    TiXmlElement& element = frame::appendElement(parent, "ScheduleRecordPolicy");
    frame::setFlag(element, "ScheduleRecordOpenFlag", policy.isScheduleRecordOpened());
    frame::setInt(element, "ScheduleReocrdType", policy.getScheduleRecordType());

    ScheduleRecordTimeParamXml::writeElement(element, policy.getScheduleTimeParam());
    return element;
}

bool ScheduleRecordPolicyXml::readElement(const TiXmlElement& element, ScheduleRecordPolicy& policy)
{
    policy.setScheduleRecordOpenState(
        frame::flagOf(element, "ScheduleRecordOpenFlag", policy.isScheduleRecordOpened()));
    policy.setScheduleRecordType(frame::intOf(element, "ScheduleReocrdType", 0));

    const TiXmlElement* child = element.FirstChildElement("ScheduleRecordTimeParam");
    if (child != nullptr)
    {
        ScheduleTimeParam schedule;
        if (!ScheduleRecordTimeParamXml::readElement(*child, schedule)) return false;
        policy.getScheduleTimeParam() = std::move(schedule);
    }
    return true;
}

bool ScheduleRecordPolicyXml::createDomainXmlNode(const ScheduleRecordPolicy& policy,
                                                  SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    // Here, and not in the document form, the peers put the type before the flag.
    node->setProperty("ScheduleReocrdType", policy.getScheduleRecordType());
    node->setProperty("ScheduleRecordOpenFlag", policy.isScheduleRecordOpened());

    SafePointer<DomainXmlNode> schedule = frame::appendNode(node, "ScheduleRecordTimeParam");
    return ScheduleRecordTimeParamXml().createDomainXmlNode(policy.getScheduleTimeParam(), schedule);
}

bool ScheduleRecordPolicyXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                 ScheduleRecordPolicy& policy) const
{
    if (!node) return false;

    policy.setScheduleRecordType(
        frame::intProperty(node, "ScheduleReocrdType", 0,
                           "ScheduleRecordPolicyXml::parseDomainXmlNode  node = NODE_SCHEDULE_RECORD_TYPE  failed"));
    policy.setScheduleRecordOpenState(frame::flagProperty(
        node, "ScheduleRecordOpenFlag", false,
        "ScheduleRecordPolicyXml::parseDomainXmlNode  node = NODE_SCHEDULE_RECORD_OPEN_FLAG failed"));

    SafePointer<DomainXmlNode> scheduleNode;
    if (!node->getConfigNode("ScheduleRecordTimeParam", scheduleNode))
        std::puts("ScheduleRecordPolicyXml::parseDomainXmlNode  node = NODE_SHCEDULE_TIME_PARAM failed");
    ScheduleTimeParam schedule;
    if (!ScheduleRecordTimeParamXml().parseDomainXmlNode(scheduleNode, schedule))
        std::puts("ScheduleRecordPolicyXml::parseDomainXmlNode  node = ScheduleTimeParam failed");
    policy.getScheduleTimeParam() = std::move(schedule);
    return true;
}

bool ScheduleRecordPolicyXml::createXmlString(const ScheduleRecordPolicy& policy, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ScheduleRecordPolicy");
    return createDomainXmlNode(policy, node) && DomainXmlNode::toString(node, text);
}

bool ScheduleRecordPolicyXml::parseXmlString(const std::string& text, ScheduleRecordPolicy& policy) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ScheduleRecordPolicy", node) && parseDomainXmlNode(node, policy);
}
