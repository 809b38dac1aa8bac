// <RecordPolicyList>
//     <RecordPolicy DeviceId="D1" CameraId="1" SaveDays="30" AudioOpenFlag="true" CycleWriteFlag="true"
//                   IsRedundancy="false" DiskGroupId="2" StreamId="3">
//         <AlarmRecordPolicy ... />
//         <ScheduleRecordPolicy ... />
//     </RecordPolicy>
// </RecordPolicyList>
//
// The lines of the node form name other codecs and other values than those that are missing, and "SHEDULE" is how the
// peers spell it: whoever watches the output of a device knows them so.

#include "record/RecordPolicyXml.h"

#include "core/Frame.h"
#include "record/AlarmRecordPolicyXml.h"
#include "record/ScheduleRecordPolicyXml.h"

#include <cstdio>
#include <utility>

namespace
{

void writePolicy(TiXmlNode& list, const RecordPolicy& policy)
{
    TiXmlElement& element = frame::appendElement(list, "RecordPolicy");
    frame::setText(element, "DeviceId", policy.getDeviceId());
    frame::setInt(element, "CameraId", policy.getCameraId());
    frame::setInt(element, "SaveDays", policy.getSaveDays());
    frame::setFlag(element, "AudioOpenFlag", policy.isRecordAudioOpened());
    frame::setFlag(element, "CycleWriteFlag", policy.getCycleWriteFlag());
    frame::setFlag(element, "IsRedundancy", policy.getIsRedundancy());
    frame::setInt(element, "DiskGroupId", policy.getDiskGroupId());
    frame::setInt(element, "StreamId", policy.getStreamId());

    AlarmRecordPolicyXml::writeElement(element, policy.getAlarmRecordPolicy());
    ScheduleRecordPolicyXml::writeElement(element, policy.getScheduleRecordPolicy());
}

bool readPolicy(const TiXmlElement& element, RecordPolicy& policy)
{
    policy.setDeviceId(frame::textOf(element, "DeviceId", policy.getDeviceId()));
    policy.setCameraId(frame::intOf(element, "CameraId", 0));
    policy.setSaveDays(frame::intOf(element, "SaveDays", 0));
    policy.enableRecordAudio(frame::flagOf(element, "AudioOpenFlag", policy.isRecordAudioOpened()));
    policy.setCycleWriteFlag(frame::flagOf(element, "CycleWriteFlag", policy.getCycleWriteFlag()));
    policy.setIsRedundancy(frame::flagOf(element, "IsRedundancy", policy.getIsRedundancy()));
    policy.setDiskGroupId(frame::intOf(element, "DiskGroupId", 0));
    policy.setStreamId(frame::intOf(element, "StreamId", 0));

    const TiXmlElement* child = element.FirstChildElement("AlarmRecordPolicy");
    if (child != nullptr)
    {
        AlarmRecordPolicy alarm;
        if (!AlarmRecordPolicyXml::readElement(*child, alarm)) return false;
        policy.getAlarmRecordPolicy() = std::move(alarm);
    }

    child = element.FirstChildElement("ScheduleRecordPolicy");
    if (child != nullptr)
    {
        ScheduleRecordPolicy schedule;
        if (!ScheduleRecordPolicyXml::readElement(*child, schedule)) return false;
        policy.getScheduleRecordPolicy() = std::move(schedule);
    }
    return true;
}

} // namespace

RecordPolicyXml::RecordPolicyXml() = default;

RecordPolicyXml::~RecordPolicyXml() = default;

void RecordPolicyXml::createXmlNode()
{
    writeElement(document_, policies_);
}

bool RecordPolicyXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RecordPolicyXml::parseXmlString()
{
    return frame::parseRoot(text_, "RecordPolicyList", document_, node_) && parseXmlNode();
}

bool RecordPolicyXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, policies_);
}

TiXmlElement& RecordPolicyXml::writeElement(TiXmlNode& parent, const std::vector<RecordPolicy>& policies)
{
    TiXmlElement& element = frame::appendElement(parent, "RecordPolicyList");
    for (const RecordPolicy& policy : policies)
        writePolicy(element, policy);
    return element;
}

bool RecordPolicyXml::readElement(const TiXmlElement& element, std::vector<RecordPolicy>& policies)
{
    const TiXmlElement* item = frame::firstItem(element, "RecordPolicy");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        RecordPolicy policy;
        if (!readPolicy(*item, policy)) return false;
        policies.push_back(std::move(policy));
    }
    return true;
}

bool RecordPolicyXml::createDomainXmlNode(const std::vector<RecordPolicy>& policies,
                                          SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const RecordPolicy& policy : policies)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "RecordPolicy");
        if (!createDomainRecordPolicyXmlNode(policy, item)) return false;
    }
    return true;
}

bool RecordPolicyXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                         std::vector<RecordPolicy>& policies) const
{
    if (!node) return false;

    TiXmlElement* list = node->getXmlNode();
    if (list == nullptr)
    {
        std::puts("RecordPolicyXml::parseDomainXmlNode  node = NODE_RECORD_POLICY ");
        return false;
    }

    TiXmlElement* item = list->FirstChildElement("RecordPolicy");
    for (; item != nullptr; item = item->NextSiblingElement("RecordPolicy"))
    {
        RecordPolicy policy;
        if (!parseDomainRecordPolicyXmlNode(frame::nodeOf(*item), policy)) return false;
        policies.push_back(std::move(policy));
    }
    return true;
}

bool RecordPolicyXml::createXmlString(const std::vector<RecordPolicy>& policies, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("RecordPolicyList");
    return createDomainXmlNode(policies, node) && DomainXmlNode::toString(node, text);
}

bool RecordPolicyXml::parseXmlString(const std::string& text, std::vector<RecordPolicy>& policies) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "RecordPolicyList", node) && parseDomainXmlNode(node, policies);
}

bool RecordPolicyXml::createDomainRecordPolicyXmlNode(const RecordPolicy& policy,
                                                      SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("DeviceId", policy.getDeviceId());
    node->setProperty("CameraId", policy.getCameraId());
    node->setProperty("SaveDays", policy.getSaveDays());
    node->setProperty("AudioOpenFlag", policy.isRecordAudioOpened());
    node->setProperty("CycleWriteFlag", policy.getCycleWriteFlag());
    node->setProperty("IsRedundancy", policy.getIsRedundancy());
    node->setProperty("DiskGroupId", policy.getDiskGroupId());
    node->setProperty("StreamId", policy.getStreamId());

    SafePointer<DomainXmlNode> alarm = frame::appendNode(node, "AlarmRecordPolicy");
    if (!AlarmRecordPolicyXml().createDomainXmlNode(policy.getAlarmRecordPolicy(), alarm)) return false;
    SafePointer<DomainXmlNode> schedule = frame::appendNode(node, "ScheduleRecordPolicy");
    return ScheduleRecordPolicyXml().createDomainXmlNode(policy.getScheduleRecordPolicy(), schedule);
}

bool RecordPolicyXml::parseDomainRecordPolicyXmlNode(const SafePointer<DomainXmlNode>& node, RecordPolicy& policy) const
{
    static constexpr char missing[] = "RecordPolicyXml::parseDomainXmlNode node = nAlarmPreRecordTime failed ";
    if (!node) return false;

    SafePointer<DomainXmlNode> alarmNode;
    if (!node->getConfigNode("AlarmRecordPolicy", alarmNode))
        std::puts("AlarmRecordPolicyXml::parseDomainXmlNode node = NODE_RECORD_POLICY_ALARM_RECORD_POLICY failed ");
    SafePointer<DomainXmlNode> scheduleNode;
    if (!node->getConfigNode("ScheduleRecordPolicy", scheduleNode))
        std::puts("AlarmRecordPolicyXml::parseDomainXmlNode node = NODE_RECORD_POLICY_SHEDULE_RECORD_POLICY failed ");

    policy.setDeviceId(frame::textProperty(node, "DeviceId", "", missing));
    policy.setCameraId(frame::intProperty(node, "CameraId", 1, missing));
    policy.setSaveDays(frame::intProperty(node, "SaveDays", 0, missing));
    policy.enableRecordAudio(frame::flagProperty(node, "AudioOpenFlag", false, missing));
    policy.setCycleWriteFlag(frame::flagProperty(node, "CycleWriteFlag", false, missing));
    policy.setIsRedundancy(frame::flagProperty(node, "IsRedundancy", false, missing));
    policy.setDiskGroupId(frame::intProperty(node, "DiskGroupId", 0, missing));
    policy.setStreamId(frame::intProperty(node, "StreamId", 1, missing));

    AlarmRecordPolicy alarm;
    if (!AlarmRecordPolicyXml().parseDomainXmlNode(alarmNode, alarm))
        std::puts("AlarmRecordPolicyXml::parseDomainXmlNode node = AlarmRecordPolicy failed ");
    policy.getAlarmRecordPolicy() = std::move(alarm);

    ScheduleRecordPolicy schedule;
    if (!ScheduleRecordPolicyXml().parseDomainXmlNode(scheduleNode, schedule))
        std::puts("AlarmRecordPolicyXml::parseDomainXmlNode node = ScheduleRecordPolicy failed ");
    policy.getScheduleRecordPolicy() = std::move(schedule);
    return true;
}
