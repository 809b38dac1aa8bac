// <ManualRecordParameter CameraId="1" Duration="1970-01-01 00:01:00" StreamId="2" />
//
// "Duration" is a span, and yet the peers write it as a point in time: a minute is the first of 1970.

#include "record/ManualRecordParameterXml.h"

#include "core/Frame.h"
#include "record/RecordSteps.h"

ManualRecordParameterXml::ManualRecordParameterXml() = default;

ManualRecordParameterXml::~ManualRecordParameterXml() = default;

void ManualRecordParameterXml::createXmlNode()
{
    writeElement(document_, parameter_);
}

bool ManualRecordParameterXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ManualRecordParameterXml::parseXmlString()
{
    return frame::parseRoot(text_, "ManualRecordParameter", document_, node_) && parseXmlNode();
}

bool ManualRecordParameterXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, parameter_);
}

TiXmlElement& ManualRecordParameterXml::writeElement(TiXmlNode& parent, const ManualRecordParameter& parameter)
{
    TiXmlElement& element = frame::appendElement(parent, "ManualRecordParameter");
    frame::setInt(element, "CameraId", parameter.getCameraId());
    frame::setTime(element, "Duration", parameter.getRecordDuration());
    frame::setInt(element, "StreamId", parameter.getStreamId());
    return element;
}

bool ManualRecordParameterXml::readElement(const TiXmlElement& element, ManualRecordParameter& parameter)
{
    parameter.setCameraId(frame::intOf(element, "CameraId", parameter.getCameraId()));
    parameter.setStreamId(frame::intOf(element, "StreamId", parameter.getStreamId()));
    parameter.setRecordDuration(frame::timeOf(element, "Duration", parameter.getRecordDuration()));
    return true;
}
