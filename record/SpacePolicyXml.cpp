// <SpacePolicy CameraId="1" MaxDiskSize="1024" ScheduleRecordDiskSizePercent="87.5"
//              AlarmRecordDiskSizePercent="12.5" />
//
// The peers write the percentages as numbers of double precision: 0.1 of single precision goes out as
// 0.10000000149011612, and comes back as it was.

#include "record/SpacePolicyXml.h"

#include "core/Frame.h"

SpacePolicyXml::SpacePolicyXml() = default;

SpacePolicyXml::~SpacePolicyXml() = default;

void SpacePolicyXml::createXmlNode()
{
    writeElement(document_, policy_);
}

bool SpacePolicyXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool SpacePolicyXml::parseXmlString()
{
    return frame::parseRoot(text_, "SpacePolicy", document_, node_) && parseXmlNode();
}

bool SpacePolicyXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, policy_);
}

TiXmlElement& SpacePolicyXml::writeElement(TiXmlNode& parent, const SpacePolicy& policy)
{
    TiXmlElement& element = frame::appendElement(parent, "SpacePolicy");
    frame::setInt(element, "CameraId", policy.getCameraId());
    frame::setInt(element, "MaxDiskSize", policy.getMaxDiskSize());
    frame::setDouble(element, "ScheduleRecordDiskSizePercent", policy.getScheduleRecordDiskSizePercent());
    frame::setDouble(element, "AlarmRecordDiskSizePercent", policy.getAlarmRecordDiskSizePercent());
    return element;
}

bool SpacePolicyXml::readElement(const TiXmlElement& element, SpacePolicy& policy)
{
    policy.setCameraId(frame::intOf(element, "CameraId", 0));
    policy.setMaxDiskSize(frame::intOf(element, "MaxDiskSize", 0));
    policy.setScheduleRecordDiskSizePercent(frame::floatOf(element, "ScheduleRecordDiskSizePercent", 0));
    policy.setAlarmRecordDiskSizePercent(frame::floatOf(element, "AlarmRecordDiskSizePercent", 0));
    return true;
}
