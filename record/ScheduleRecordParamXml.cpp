// <ScheduleRecordParam DeviceId="D1" CameraId="1" IsEnableRecord="true" ScheduleRecordType="2"
//                      IsEnableRecordAudio="true">
//     <ScheduleRecordTimeParam ... />
// </ScheduleRecordParam>
//
// "ScheduleRecordType" is spelt as it should be, unlike that of a ScheduleRecordPolicy.

#include "record/ScheduleRecordParamXml.h"

#include "core/Frame.h"
#include "record/ScheduleRecordTimeParamXml.h"

#include <utility>

ScheduleRecordParamXml::ScheduleRecordParamXml() = default;

ScheduleRecordParamXml::~ScheduleRecordParamXml() = default;

void ScheduleRecordParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool ScheduleRecordParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ScheduleRecordParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "ScheduleRecordParam", document_, node_) && parseXmlNode();
}

bool ScheduleRecordParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& ScheduleRecordParamXml::writeElement(TiXmlNode& parent, const ScheduleRecordParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "ScheduleRecordParam");
    frame::setText(element, "DeviceId", param.getDeviceId());
    frame::setInt(element, "CameraId", param.getCameraId());
    frame::setFlag(element, "IsEnableRecord", param.getEnableRecord());
    frame::setInt(element, "ScheduleRecordType", param.getScheduleRecordType());
    frame::setFlag(element, "IsEnableRecordAudio", param.getEnableRecordAudio());

    ScheduleRecordTimeParamXml::writeElement(element, param.getScheduleTimeParam());
    return element;
}

bool ScheduleRecordParamXml::readElement(const TiXmlElement& element, ScheduleRecordParam& param)
{
    param.setDeviceId(frame::textOf(element, "DeviceId", ""));
    param.setCameraId(frame::intOf(element, "CameraId", 0));
    param.setEnableRecord(frame::flagOf(element, "IsEnableRecord", false));
    param.setScheduleRecordType(frame::intOf(element, "ScheduleRecordType", 0));
    param.setEnableRecordAudio(frame::flagOf(element, "IsEnableRecordAudio", false));

    const TiXmlElement* child = element.FirstChildElement("ScheduleRecordTimeParam");
    if (child != nullptr)
    {
        ScheduleTimeParam schedule;
        if (!ScheduleRecordTimeParamXml::readElement(*child, schedule)) return false;
        param.getScheduleTimeParam() = std::move(schedule);
    }
    return true;
}
