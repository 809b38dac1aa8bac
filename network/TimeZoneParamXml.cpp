// <WebParam WebServerPort="8" DSTOpenFlag="true" DSTOffset="60" ... EndTime="10800" />
//
// The peers send the time zone under the names of the web server's document, which WebParamXml carries as well. The
// command that brings a text tells which of the two it is.

#include "network/TimeZoneParamXml.h"

#include "core/Frame.h"

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
    frame::setInt(element, "WebServerPort", param.getTimeZone());
    frame::setFlag(element, "DSTOpenFlag", param.getDSTOpenFlag());
    frame::setInt(element, "DSTOffset", param.getDSTOffset());
    frame::setInt(element, "BeginMonth", param.getBeginMonth());
    frame::setInt(element, "BeginWeekly", param.getBeginWeekly());
    frame::setInt(element, "BeginWeekDays", param.getBeginWeekDays());
    frame::setUnsigned(element, "BeginTime", param.getBeginTime());
    frame::setInt(element, "EndMonth", param.getEndMonth());
    frame::setInt(element, "EndWeekly", param.getEndWeekly());
    frame::setInt(element, "EndWeekDays", param.getEndWeekDays());
    frame::setUnsigned(element, "EndTime", param.getEndTime());
    return element;
}

bool TimeZoneParamXml::readElement(const TiXmlElement& element, TimeZoneParam& param)
{
    param.setTimeZone(frame::intOf(element, "WebServerPort", param.getTimeZone()));
    param.setDSTOpenFlag(frame::flagOf(element, "DSTOpenFlag", param.getDSTOpenFlag()));
    param.setDSTOffset(frame::intOf(element, "DSTOffset", param.getDSTOffset()));
    param.setBeginMonth(frame::intOf(element, "BeginMonth", param.getBeginMonth()));
    param.setBeginWeekly(frame::intOf(element, "BeginWeekly", param.getBeginWeekly()));
    param.setBeginWeekDays(frame::intOf(element, "BeginWeekDays", param.getBeginWeekDays()));
    param.setBeginTime(frame::uint32Of(element, "BeginTime", param.getBeginTime()));
    param.setEndMonth(frame::intOf(element, "EndMonth", param.getEndMonth()));
    param.setEndWeekly(frame::intOf(element, "EndWeekly", param.getEndWeekly()));
    param.setEndWeekDays(frame::intOf(element, "EndWeekDays", param.getEndWeekDays()));
    param.setEndTime(frame::uint32Of(element, "EndTime", param.getEndTime()));
    return true;
}

bool TimeZoneParamXml::createDomainXmlNode(const TimeZoneParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("WebServerPort", param.getTimeZone());
    node->setProperty("DSTOpenFlag", param.getDSTOpenFlag());
    node->setProperty("DSTOffset", param.getDSTOffset());
    node->setProperty("BeginMonth", param.getBeginMonth());
    node->setProperty("BeginWeekly", param.getBeginWeekly());
    node->setProperty("BeginWeekDays", param.getBeginWeekDays());
    node->setProperty("BeginTime", static_cast<unsigned long long>(param.getBeginTime()));
    node->setProperty("EndMonth", param.getEndMonth());
    node->setProperty("EndWeekly", param.getEndWeekly());
    node->setProperty("EndWeekDays", param.getEndWeekDays());
    node->setProperty("EndTime", static_cast<unsigned long long>(param.getEndTime()));
    return true;
}

bool TimeZoneParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, TimeZoneParam& param) const
{
    if (!node) return false;

    // A node that lacks a property is refused; the record keeps what was read before it.
    int number = 0;
    bool flag = false;
    unsigned long long time = 0;
    if (!node->getProperty("WebServerPort", number)) return false;
    param.setTimeZone(number);
    if (!node->getProperty("DSTOpenFlag", flag)) return false;
    param.setDSTOpenFlag(flag);
    if (!node->getProperty("DSTOffset", number)) return false;
    param.setDSTOffset(number);
    if (!node->getProperty("BeginMonth", number)) return false;
    param.setBeginMonth(number);
    if (!node->getProperty("BeginWeekly", number)) return false;
    param.setBeginWeekly(number);
    if (!node->getProperty("BeginWeekDays", number)) return false;
    param.setBeginWeekDays(number);
    if (!node->getProperty("BeginTime", time)) return false;
    param.setBeginTime(static_cast<std::uint32_t>(time));
    if (!node->getProperty("EndMonth", number)) return false;
    param.setEndMonth(number);
    if (!node->getProperty("EndWeekly", number)) return false;
    param.setEndWeekly(number);
    if (!node->getProperty("EndWeekDays", number)) return false;
    param.setEndWeekDays(number);
    if (!node->getProperty("EndTime", time)) return false;
    param.setEndTime(static_cast<std::uint32_t>(time));
    return true;
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
