// <TimeStruct TimeZone="8" DaylightSavingTime="0" Year="2015" Month="3" Day="2" DayOfWeek="1" Hour="8" Minute="9"
//             Second="7" Milliseconds="0" />

#include "core/TimeStructXml.h"

#include "core/Frame.h"

TimeStructXml::TimeStructXml() = default;

TimeStructXml::~TimeStructXml() = default;

bool TimeStructXml::createTimeStruct(const TimeStruct& time, const std::string& name, TiXmlNode* parent) const
{
    if (parent == nullptr) return false;
    writeElement(*parent, name.c_str(), time);
    return true;
}

bool TimeStructXml::parseTimeStruct(const TiXmlElement* parent, const std::string& name, TimeStruct& time) const
{
    const TiXmlElement* element = parent != nullptr ? parent->FirstChildElement(name.c_str()) : nullptr;
    return element != nullptr && readElement(*element, time);
}

TiXmlElement& TimeStructXml::writeElement(TiXmlNode& parent, const char* name, const TimeStruct& time)
{
    TiXmlElement& element = frame::appendElement(parent, name);
    frame::setInt(element, "TimeZone", time.getTimeZone());
    frame::setInt(element, "DaylightSavingTime", time.getDaylightSavingTime());
    frame::setInt(element, "Year", time.getYear());
    frame::setInt(element, "Month", time.getMonth());
    frame::setInt(element, "Day", time.getDay());
    frame::setInt(element, "DayOfWeek", time.getDayOfWeek());
    frame::setInt(element, "Hour", time.getHour());
    frame::setInt(element, "Minute", time.getMinute());
    frame::setInt(element, "Second", time.getSecond());
    frame::setInt(element, "Milliseconds", time.getMilliseconds());
    return element;
}

bool TimeStructXml::readElement(const TiXmlElement& element, TimeStruct& time)
{
    time.setTimeZone(frame::intOf(element, "TimeZone", time.getTimeZone()));
    time.setDaylightSavingTime(frame::uint16Of(element, "DaylightSavingTime", time.getDaylightSavingTime()));
    time.setYear(frame::uint16Of(element, "Year", time.getYear()));
    time.setMonth(frame::uint16Of(element, "Month", time.getMonth()));
    time.setDay(frame::uint16Of(element, "Day", time.getDay()));
    time.setDayOfWeek(frame::uint16Of(element, "DayOfWeek", time.getDayOfWeek()));
    time.setHour(frame::uint16Of(element, "Hour", time.getHour()));
    time.setMinute(frame::uint16Of(element, "Minute", time.getMinute()));
    time.setSecond(frame::uint16Of(element, "Second", time.getSecond()));
    time.setMilliseconds(frame::intOf(element, "Milliseconds", time.getMilliseconds()));
    return true;
}

bool TimeStructXml::createTimeStruct(const TimeStruct& time, const std::string& name,
                                     SafePointer<DomainXmlNode>& parent) const
{
    if (!parent) return false;
    SafePointer<DomainXmlNode> node(new DomainXmlNode(name));
    writeNode(time, node);
    return parent->addConfigNode(node);
}

bool TimeStructXml::parseTimeStruct(const SafePointer<DomainXmlNode>& parent, const std::string& name,
                                    TimeStruct& time) const
{
    SafePointer<DomainXmlNode> node;
    if (!parent || !parent->getConfigNode(name, node)) return false;
    readNode(node, time);
    return true;
}

bool TimeStructXml::createXmlString(const TimeStruct& time, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("TimeStruct");
    writeNode(time, node);
    return DomainXmlNode::toString(node, text);
}

bool TimeStructXml::parseXmlString(const std::string& text, TimeStruct& time) const
{
    SafePointer<DomainXmlNode> node;
    if (!DomainXmlNode::parse(text, "TimeStruct", node)) return false;
    readNode(node, time);
    return true;
}

void TimeStructXml::writeNode(const TimeStruct& time, SafePointer<DomainXmlNode>& node)
{
    node->setProperty("TimeZone", time.getTimeZone());
    node->setProperty("DaylightSavingTime", time.getDaylightSavingTime());
    node->setProperty("Year", time.getYear());
    node->setProperty("Month", time.getMonth());
    node->setProperty("Day", time.getDay());
    node->setProperty("DayOfWeek", time.getDayOfWeek());
    node->setProperty("Hour", time.getHour());
    node->setProperty("Minute", time.getMinute());
    node->setProperty("Second", time.getSecond());
    node->setProperty("Milliseconds", time.getMilliseconds());
}

void TimeStructXml::readNode(const SafePointer<DomainXmlNode>& node, TimeStruct& time)
{
    time.setTimeZone(frame::intProperty(node, "TimeZone", 0));
    time.setDaylightSavingTime(frame::uint16Property(node, "DaylightSavingTime", 0));
    time.setYear(frame::uint16Property(node, "Year", 0));
    time.setMonth(frame::uint16Property(node, "Month", 0));
    time.setDay(frame::uint16Property(node, "Day", 0));
    time.setDayOfWeek(frame::uint16Property(node, "DayOfWeek", 0));
    time.setHour(frame::uint16Property(node, "Hour", 0));
    time.setMinute(frame::uint16Property(node, "Minute", 0));
    time.setSecond(frame::uint16Property(node, "Second", 0));
    time.setMilliseconds(frame::intProperty(node, "Milliseconds", 0));
}
