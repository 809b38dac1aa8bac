// <ScheduleSnapshotPolicy OpenFlag="true" ScheduleSnapshotType="1">
//     <SnapshotParameter ... />
//     <ScheduleRecordTimeParam ... />
// </ScheduleSnapshotPolicy>
//
// The schedule bears the name of that of recordings.

#include "snapshot/ScheduleSnapshotPolicyXml.h"

#include "core/Frame.h"
#include "record/ScheduleRecordTimeParamXml.h"
#include "snapshot/SnapshotParameterXml.h"

#include <utility>

ScheduleSnapshotPolicyXml::ScheduleSnapshotPolicyXml() = default;

ScheduleSnapshotPolicyXml::~ScheduleSnapshotPolicyXml() = default;

void ScheduleSnapshotPolicyXml::createXmlNode()
{
    writeElement(document_, policy_);
}

bool ScheduleSnapshotPolicyXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ScheduleSnapshotPolicyXml::parseXmlString()
{
    return frame::parseRoot(text_, "ScheduleSnapshotPolicy", document_, node_) && parseXmlNode();
}

bool ScheduleSnapshotPolicyXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, policy_);
}

TiXmlElement& ScheduleSnapshotPolicyXml::writeElement(TiXmlNode& parent, const ScheduleSnapshotPolicy& policy)
{
    TiXmlElement& element = frame::appendElement(parent, "ScheduleSnapshotPolicy");
    frame::setFlag(element, "OpenFlag", policy.isScheduleSnapshotOpened());
    frame::setInt(element, "ScheduleSnapshotType", policy.getScheduleType());

    SnapshotParameterXml::writeElement(element, policy.getSnapshotParameter());
    ScheduleRecordTimeParamXml::writeElement(element, policy.getScheduleTimeParam());
    return element;
}

bool ScheduleSnapshotPolicyXml::readElement(const TiXmlElement& element, ScheduleSnapshotPolicy& policy)
{
    policy.setScheduleSnapshotOpenState(frame::flagOf(element, "OpenFlag", policy.isScheduleSnapshotOpened()));
    policy.setScheduleType(frame::intOf(element, "ScheduleSnapshotType", 0));

    const TiXmlElement* child = element.FirstChildElement("SnapshotParameter");
    if (child != nullptr)
    {
        SnapshotParameter parameter;
        if (!SnapshotParameterXml::readElement(*child, parameter)) return false;
        policy.getSnapshotParameter() = std::move(parameter);
    }

    child = element.FirstChildElement("ScheduleRecordTimeParam");
    if (child != nullptr)
    {
        ScheduleTimeParam schedule;
        if (!ScheduleRecordTimeParamXml::readElement(*child, schedule)) return false;
        policy.getScheduleTimeParam() = std::move(schedule);
    }
    return true;
}

bool ScheduleSnapshotPolicyXml::createDomainXmlNode(const ScheduleSnapshotPolicy& policy,
                                                    SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("OpenFlag", policy.isScheduleSnapshotOpened());
    node->setProperty("ScheduleSnapshotType", policy.getScheduleType());

    SafePointer<DomainXmlNode> parameter = frame::appendNode(node, "SnapshotParameter");
    if (!SnapshotParameterXml().createDomainXmlNode(policy.getSnapshotParameter(), parameter)) return false;
    SafePointer<DomainXmlNode> schedule = frame::appendNode(node, "ScheduleRecordTimeParam");
    return ScheduleRecordTimeParamXml().createDomainXmlNode(policy.getScheduleTimeParam(), schedule);
}

bool ScheduleSnapshotPolicyXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                   ScheduleSnapshotPolicy& policy) const
{
    if (!node) return false;

    policy.setScheduleSnapshotOpenState(frame::flagProperty(node, "OpenFlag", false));
    policy.setScheduleType(frame::intProperty(node, "ScheduleSnapshotType", 1));

    SafePointer<DomainXmlNode> parameterNode;
    node->getConfigNode("SnapshotParameter", parameterNode);
    SnapshotParameter parameter;
    SnapshotParameterXml().parseDomainXmlNode(parameterNode, parameter);
    policy.getSnapshotParameter() = std::move(parameter);

    SafePointer<DomainXmlNode> scheduleNode;
    node->getConfigNode("ScheduleRecordTimeParam", scheduleNode);
    ScheduleTimeParam schedule;
    ScheduleRecordTimeParamXml().parseDomainXmlNode(scheduleNode, schedule);
    policy.getScheduleTimeParam() = std::move(schedule);
    return true;
}

bool ScheduleSnapshotPolicyXml::createXmlString(const ScheduleSnapshotPolicy& policy, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ScheduleSnapshotPolicy");
    return createDomainXmlNode(policy, node) && DomainXmlNode::toString(node, text);
}

bool ScheduleSnapshotPolicyXml::parseXmlString(const std::string& text, ScheduleSnapshotPolicy& policy) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ScheduleSnapshotPolicy", node) && parseDomainXmlNode(node, policy);
}
