// <SnapshotTriggerParameter CameraId="1" Quality="2" PicNumber="3" SparkFlag="true" TriggerDelay="4" ExposalDelay="5"
//                           SparkIOId="6" SparkReloadTime="7" SnapshotInterval="8" SparkDuration="9" SparkType="10">
//     <AlarmInId ID="11" />
//     <AlarmInId ID="12" />
// </SnapshotTriggerParameter>
//
// "ExposalDelay" is how the peers spell it. The item of the same name in a TrafficSnapshotPolicy has four attributes
// more.

#include "snapshot/SnapshotTriggerParameterXml.h"

#include "core/Frame.h"

#include <utility>
#include <vector>

SnapshotTriggerParameterXml::SnapshotTriggerParameterXml() = default;

SnapshotTriggerParameterXml::~SnapshotTriggerParameterXml() = default;

TiXmlElement& SnapshotTriggerParameterXml::writeElement(TiXmlNode& parent, const SnapshotTriggerParameter& trigger)
{
    TiXmlElement& element = frame::appendElement(parent, "SnapshotTriggerParameter");
    fillElement(element, trigger);
    return element;
}

bool SnapshotTriggerParameterXml::readElement(const TiXmlElement& element, SnapshotTriggerParameter& trigger)
{
    trigger.setCameraId(frame::intOf(element, "CameraId", 0));
    trigger.setQuality(frame::intOf(element, "Quality", 0));
    trigger.setPicNumber(frame::intOf(element, "PicNumber", 0));
    trigger.setSparkFlag(frame::flagOf(element, "SparkFlag", false));
    trigger.setTriggerDelay(frame::intOf(element, "TriggerDelay", 0));
    trigger.setExposalDelay(frame::intOf(element, "ExposalDelay", 0));
    trigger.setSparkIOId(frame::intOf(element, "SparkIOId", 0));
    trigger.setSparkReloadTime(frame::intOf(element, "SparkReloadTime", 0));
    trigger.setSnapshotInterval(frame::intOf(element, "SnapshotInterval", 0));
    trigger.setSparkDuration(frame::intOf(element, "SparkDuration", 0));
    trigger.setSparkType(frame::intOf(element, "SparkType", 0));

    std::vector<int> inputs;
    const TiXmlElement* item = frame::firstItem(element, "AlarmInId");
    for (; item != nullptr; item = item->NextSiblingElement("AlarmInId"))
        inputs.push_back(frame::intOf(*item, "ID", 0));
    trigger.getAlarmInIdList() = std::move(inputs);
    return true;
}

void SnapshotTriggerParameterXml::fillElement(TiXmlElement& element, const SnapshotTriggerParameter& trigger)
{
    frame::setInt(element, "CameraId", trigger.getCameraId());
    frame::setInt(element, "Quality", trigger.getQuality());
    frame::setInt(element, "PicNumber", trigger.getPicNumber());
    frame::setFlag(element, "SparkFlag", trigger.getSparkFlag());
    frame::setInt(element, "TriggerDelay", trigger.getTriggerDelay());
    frame::setInt(element, "ExposalDelay", trigger.getExposalDelay());
    frame::setInt(element, "SparkIOId", trigger.getSparkIOId());
    frame::setInt(element, "SparkReloadTime", trigger.getSparkReloadTime());
    frame::setInt(element, "SnapshotInterval", trigger.getSnapshotInterval());
    frame::setInt(element, "SparkDuration", trigger.getSparkDuration());
    frame::setInt(element, "SparkType", trigger.getSparkType());

    for (const int input : trigger.getAlarmInIdList())
        frame::setInt(frame::appendElement(element, "AlarmInId"), "ID", input);
}

bool SnapshotTriggerParameterXml::createXmlString(const SnapshotTriggerParameter& trigger, std::string& text) const
{
    TiXmlDocument document;
    frame::print(writeElement(document, trigger), text);
    return true;
}

bool SnapshotTriggerParameterXml::parseXmlString(const std::string& text, SnapshotTriggerParameter& trigger) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "SnapshotTriggerParameter", node) && readElement(*node->getXmlNode(), trigger);
}
