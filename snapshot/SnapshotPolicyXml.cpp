// <SnapshotPolicyList>
//     <SnapshotPolicy CameraId="1" SaveDays="30" CycleWriteFlag="true" IsRedundancy="false">
//         <AlarmSnapshotPolicy ... />
//         <ScheduleSnapshotPolicy ... />
//         <UploadPolicy ... />
//     </SnapshotPolicy>
// </SnapshotPolicyList>
//
// In the node form an item begins with "DeviceId". Peers of the document form neither write nor read it.

#include "snapshot/SnapshotPolicyXml.h"

#include "core/Frame.h"
#include "network/UploadPolicyXml.h"
#include "snapshot/AlarmSnapshotPolicyXml.h"
#include "snapshot/ScheduleSnapshotPolicyXml.h"

#include <utility>

namespace
{

void writePolicy(TiXmlNode& list, const SnapshotPolicy& policy)
{
    TiXmlElement& element = frame::appendElement(list, "SnapshotPolicy");
    frame::setInt(element, "CameraId", policy.getCameraId());
    frame::setInt(element, "SaveDays", policy.getSaveDays());
    frame::setFlag(element, "CycleWriteFlag", policy.getCycleWriteFlag());
    frame::setFlag(element, "IsRedundancy", policy.getIsRedundancy());

    AlarmSnapshotPolicyXml::writeElement(element, policy.getAlarmSnapshotPolicy());
    ScheduleSnapshotPolicyXml::writeElement(element, policy.getScheduleSnapshotPolicy());
    UploadPolicyXml::writeElement(element, policy.getUploadPolicy());
}

bool readPolicy(const TiXmlElement& element, SnapshotPolicy& policy)
{
    policy.setCameraId(frame::intOf(element, "CameraId", 0));
    policy.setSaveDays(frame::intOf(element, "SaveDays", 0));
    policy.setCycleWriteFlag(frame::flagOf(element, "CycleWriteFlag", policy.getCycleWriteFlag()));
    policy.setIsRedundancy(frame::flagOf(element, "IsRedundancy", policy.getIsRedundancy()));

    const TiXmlElement* child = element.FirstChildElement("AlarmSnapshotPolicy");
    if (child != nullptr)
    {
        AlarmSnapshotPolicy alarm;
        if (!AlarmSnapshotPolicyXml::readElement(*child, alarm)) return false;
        policy.getAlarmSnapshotPolicy() = std::move(alarm);
    }

    child = element.FirstChildElement("ScheduleSnapshotPolicy");
    if (child != nullptr)
    {
        ScheduleSnapshotPolicy schedule;
        if (!ScheduleSnapshotPolicyXml::readElement(*child, schedule)) return false;
        policy.getScheduleSnapshotPolicy() = std::move(schedule);
    }

    child = element.FirstChildElement("UploadPolicy");
    if (child != nullptr)
    {
        UploadPolicy upload;
        if (!UploadPolicyXml::readElement(*child, upload)) return false;
        policy.getUploadPolicy() = std::move(upload);
    }
    return true;
}

bool writePolicy(SafePointer<DomainXmlNode>& node, const SnapshotPolicy& policy)
{
    node->setProperty("DeviceId", policy.getDeviceId());
    node->setProperty("CameraId", policy.getCameraId());
    node->setProperty("SaveDays", policy.getSaveDays());
    node->setProperty("CycleWriteFlag", policy.getCycleWriteFlag());
    node->setProperty("IsRedundancy", policy.getIsRedundancy());

    SafePointer<DomainXmlNode> alarm = frame::appendNode(node, "AlarmSnapshotPolicy");
    if (!AlarmSnapshotPolicyXml().createDomainXmlNode(policy.getAlarmSnapshotPolicy(), alarm)) return false;
    SafePointer<DomainXmlNode> schedule = frame::appendNode(node, "ScheduleSnapshotPolicy");
    if (!ScheduleSnapshotPolicyXml().createDomainXmlNode(policy.getScheduleSnapshotPolicy(), schedule)) return false;
    SafePointer<DomainXmlNode> upload = frame::appendNode(node, "UploadPolicy");
    return UploadPolicyXml().createDomainXmlNode(policy.getUploadPolicy(), upload);
}

void readPolicy(const SafePointer<DomainXmlNode>& node, SnapshotPolicy& policy)
{
    policy.setDeviceId(frame::textProperty(node, "DeviceId", ""));
    policy.setCameraId(frame::intProperty(node, "CameraId", 0));
    policy.setSaveDays(frame::intProperty(node, "SaveDays", 0));
    policy.setCycleWriteFlag(frame::flagProperty(node, "CycleWriteFlag", false));
    policy.setIsRedundancy(frame::flagProperty(node, "IsRedundancy", false));

    SafePointer<DomainXmlNode> alarmNode;
    node->getConfigNode("AlarmSnapshotPolicy", alarmNode);
    AlarmSnapshotPolicy alarm;
    AlarmSnapshotPolicyXml().parseDomainXmlNode(alarmNode, alarm);
    policy.getAlarmSnapshotPolicy() = std::move(alarm);

    SafePointer<DomainXmlNode> scheduleNode;
    node->getConfigNode("ScheduleSnapshotPolicy", scheduleNode);
    ScheduleSnapshotPolicy schedule;
    ScheduleSnapshotPolicyXml().parseDomainXmlNode(scheduleNode, schedule);
    policy.getScheduleSnapshotPolicy() = std::move(schedule);

    SafePointer<DomainXmlNode> uploadNode;
    node->getConfigNode("UploadPolicy", uploadNode);
    UploadPolicy upload;
    UploadPolicyXml().parseDomainXmlNode(uploadNode, upload);
    policy.getUploadPolicy() = std::move(upload);
}

} // namespace

SnapshotPolicyXml::SnapshotPolicyXml() = default;

SnapshotPolicyXml::~SnapshotPolicyXml() = default;

void SnapshotPolicyXml::createXmlNode()
{
    writeElement(document_, policies_);
}

bool SnapshotPolicyXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool SnapshotPolicyXml::parseXmlString()
{
    return frame::parseRoot(text_, "SnapshotPolicyList", document_, node_) && parseXmlNode();
}

bool SnapshotPolicyXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, policies_);
}

TiXmlElement& SnapshotPolicyXml::writeElement(TiXmlNode& parent, const std::vector<SnapshotPolicy>& policies)
{
    TiXmlElement& element = frame::appendElement(parent, "SnapshotPolicyList");
    for (const SnapshotPolicy& policy : policies)
        writePolicy(element, policy);
    return element;
}

bool SnapshotPolicyXml::readElement(const TiXmlElement& element, std::vector<SnapshotPolicy>& policies)
{
    const TiXmlElement* item = frame::firstItem(element, "SnapshotPolicy");
    for (; item != nullptr; item = item->NextSiblingElement("SnapshotPolicy"))
    {
        SnapshotPolicy policy;
        if (!readPolicy(*item, policy)) return false;
        policies.push_back(std::move(policy));
    }
    return true;
}

bool SnapshotPolicyXml::createDomainXmlNode(const std::vector<SnapshotPolicy>& policies,
                                            SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const SnapshotPolicy& policy : policies)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "SnapshotPolicy");
        if (!writePolicy(item, policy)) return false;
    }
    return true;
}

bool SnapshotPolicyXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                           std::vector<SnapshotPolicy>& policies) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        SnapshotPolicy policy;
        readPolicy(frame::nodeOf(*item), policy);
        policies.push_back(std::move(policy));
    }
    return true;
}

bool SnapshotPolicyXml::createXmlString(const std::vector<SnapshotPolicy>& policies, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("SnapshotPolicyList");
    return createDomainXmlNode(policies, node) && DomainXmlNode::toString(node, text);
}

bool SnapshotPolicyXml::parseXmlString(const std::string& text, std::vector<SnapshotPolicy>& policies) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "SnapshotPolicyList", node) && parseDomainXmlNode(node, policies);
}
