// <TimeZoneParam TimeZone="8" DSTOpenFlag="true" DSTOffset="60" ... EndTime="10800" />

#include "network/TimeZoneExParamXml.h"

#include "core/Frame.h"
#include "network/TimeZoneSteps.h"

TimeZoneExParamXml::TimeZoneExParamXml() = default;

TimeZoneExParamXml::~TimeZoneExParamXml() = default;

void TimeZoneExParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool TimeZoneExParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool TimeZoneExParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "TimeZoneParam", document_, node_) && parseXmlNode();
}

bool TimeZoneExParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& TimeZoneExParamXml::writeElement(TiXmlNode& parent, const TimeZoneExParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "TimeZoneParam");
    frame::writeTimeZone(element, "TimeZone", param);
    return element;
}

bool TimeZoneExParamXml::readElement(const TiXmlElement& element, TimeZoneExParam& param)
{
    frame::readTimeZone(element, "TimeZone", param);
    return true;
}

bool TimeZoneExParamXml::createDomainXmlNode(const TimeZoneExParam& param, SafePointer<DomainXmlNode>& node) const
{
    return frame::writeTimeZone(node, "TimeZone", param);
}

bool TimeZoneExParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, TimeZoneExParam& param) const
{
    return frame::readTimeZone(node, "TimeZone", param);
}

bool TimeZoneExParamXml::createXmlString(const TimeZoneExParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("TimeZoneParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool TimeZoneExParamXml::parseXmlString(const std::string& text, TimeZoneExParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "TimeZoneParam", node) && parseDomainXmlNode(node, param);
}
