// <ScheduleTimeSegment BeginTime="1425254400" EndTime="1425340800" />
//
// The start is "BeginTime" here and "StartTime" in a ScheduleTime; the two documents cannot stand for each other.

#include "alarm/ScheduleTimeSegmentXml.h"

#include "core/Frame.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace
{

/// A time as the peers read it, into a signed number of 32 bits: what lies beyond gives the nearest end of that range.
unsigned long timeOf(const TiXmlElement& element, const char* name)
{
    constexpr long long lowest = std::numeric_limits<std::int32_t>::min();
    constexpr long long highest = std::numeric_limits<std::int32_t>::max();
    return static_cast<unsigned long>(std::clamp(frame::int64Of(element, name, 0), lowest, highest));
}

} // namespace

ScheduleTimeSegmentXml::ScheduleTimeSegmentXml() = default;

ScheduleTimeSegmentXml::~ScheduleTimeSegmentXml() = default;

void ScheduleTimeSegmentXml::createXmlNode()
{
    writeElement(document_, segment_);
}

bool ScheduleTimeSegmentXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ScheduleTimeSegmentXml::parseXmlString()
{
    return frame::parseRoot(text_, "ScheduleTimeSegment", document_, node_) && parseXmlNode();
}

bool ScheduleTimeSegmentXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, segment_);
}

TiXmlElement& ScheduleTimeSegmentXml::writeElement(TiXmlNode& parent, const ScheduleTimeSegment& segment)
{
    TiXmlElement& element = frame::appendElement(parent, "ScheduleTimeSegment");
    frame::setUnsigned(element, "BeginTime", segment.getBeginTime());
    frame::setUnsigned(element, "EndTime", segment.getEndTime());
    return element;
}

bool ScheduleTimeSegmentXml::readElement(const TiXmlElement& element, ScheduleTimeSegment& segment)
{
    segment.setBeginTime(timeOf(element, "BeginTime"));
    segment.setEndTime(timeOf(element, "EndTime"));
    return true;
}

bool ScheduleTimeSegmentXml::createDomainXmlNode(const ScheduleTimeSegment& segment,
                                                 SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("BeginTime", static_cast<unsigned long long>(segment.getBeginTime()));
    node->setProperty("EndTime", static_cast<unsigned long long>(segment.getEndTime()));
    return true;
}

bool ScheduleTimeSegmentXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                ScheduleTimeSegment& segment) const
{
    if (!node) return false;

    segment.setBeginTime(static_cast<unsigned long>(frame::unsignedProperty(
        node, "BeginTime", 0, "ScheduleTimeSegmentXml::parseDomainXmlNode get BeginTime failed ")));
    segment.setEndTime(static_cast<unsigned long>(
        frame::unsignedProperty(node, "EndTime", 0, "ScheduleTimeSegmentXml::parseDomainXmlNode get EndTime failed ")));
    return true;
}

bool ScheduleTimeSegmentXml::createXmlString(const ScheduleTimeSegment& segment, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ScheduleTimeSegment");
    return createDomainXmlNode(segment, node) && DomainXmlNode::toString(node, text);
}

bool ScheduleTimeSegmentXml::parseXmlString(const std::string& text, ScheduleTimeSegment& segment) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ScheduleTimeSegment", node) && parseDomainXmlNode(node, segment);
}
