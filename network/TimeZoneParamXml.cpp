// <WebParam WebServerPort="8" DSTOpenFlag="true" DSTOffset="60" ... EndTime="10800" />
//
// The peers send the time zone under the names of the web server's document, which WebParamXml carries as well. The
// command that brings a text tells which of the two it is.

#include "network/TimeZoneParamXml.h"

#include "core/Frame.h"
#include "network/TimeZoneSteps.h"

TimeZoneParamXml::TimeZoneParamXml() = default;

TimeZoneParamXml::~TimeZoneParamXml() = default;

void TimeZoneParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool TimeZoneParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool TimeZoneParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "WebParam", document_, node_) && parseXmlNode();
}

bool TimeZoneParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& TimeZoneParamXml::writeElement(TiXmlNode& parent, const TimeZoneParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "WebParam");
    frame::writeTimeZone(element, "WebServerPort", param);
    return element;
}

bool TimeZoneParamXml::readElement(const TiXmlElement& element, TimeZoneParam& param)
{
    frame::readTimeZone(element, "WebServerPort", param);
    return true;
}

bool TimeZoneParamXml::createDomainXmlNode(const TimeZoneParam& param, SafePointer<DomainXmlNode>& node) const
{
    return frame::writeTimeZone(node, "WebServerPort", param);
}

bool TimeZoneParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, TimeZoneParam& param) const
{
    return frame::readTimeZone(node, "WebServerPort", param);
}

bool TimeZoneParamXml::createXmlString(const TimeZoneParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("WebParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool TimeZoneParamXml::parseXmlString(const std::string& text, TimeZoneParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "WebParam", node) && parseDomainXmlNode(node, param);
}
