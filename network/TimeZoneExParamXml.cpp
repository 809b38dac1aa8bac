// <TimeZoneParam TimeZone="8" DSTOpenFlag="true" DSTOffset="60" ... EndTime="10800" />

#include "network/TimeZoneExParamXml.h"

#include "core/Frame.h"

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
    frame::setInt(element, "TimeZone", param.getTimeZone());
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

bool TimeZoneExParamXml::readElement(const TiXmlElement& element, TimeZoneExParam& param)
{
    param.setTimeZone(frame::intOf(element, "TimeZone", param.getTimeZone()));
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

bool TimeZoneExParamXml::createDomainXmlNode(const TimeZoneExParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("TimeZone", param.getTimeZone());
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

bool TimeZoneExParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, TimeZoneExParam& param) const
{
    if (!node) return false;

    // A node that lacks a property is refused; the record keeps what was read before it.
    int number = 0;
    bool flag = false;
    unsigned long long time = 0;
    if (!node->getProperty("TimeZone", number)) return false;
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
