// <PTZTimerTimeSegment BeginTime="3600" EndTime="7200" PTZOperation="tour 2" />

#include "ptz/PTZTimerTimeSegmentXml.h"

#include "core/Frame.h"

PTZTimerTimeSegmentXml::PTZTimerTimeSegmentXml() = default;

PTZTimerTimeSegmentXml::~PTZTimerTimeSegmentXml() = default;

bool PTZTimerTimeSegmentXml::createDomainXmlNode(const PTZTimerTimeSegment& segment,
                                                 SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->cleanChildren();
    node->setProperty("BeginTime", static_cast<unsigned long long>(segment.getBeginTime()));
    node->setProperty("EndTime", static_cast<unsigned long long>(segment.getEndTime()));
    node->setProperty("PTZOperation", segment.getPTZOperation());
    return true;
}

bool PTZTimerTimeSegmentXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                PTZTimerTimeSegment& segment) const
{
    if (!node) return false;

    segment.setBeginTime(static_cast<unsigned long>(frame::intProperty(node, "BeginTime", 0)));
    segment.setEndTime(static_cast<unsigned long>(frame::intProperty(node, "EndTime", 0)));
    segment.setPTZOperation(frame::textProperty(node, "PTZOperation", ""));
    return true;
}

bool PTZTimerTimeSegmentXml::createXmlString(const PTZTimerTimeSegment& segment, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("PTZTimerTimeSegment");
    return createDomainXmlNode(segment, node) && DomainXmlNode::toString(node, text);
}

bool PTZTimerTimeSegmentXml::parseXmlString(const std::string& text, PTZTimerTimeSegment& segment) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "PTZTimerTimeSegment", node) && parseDomainXmlNode(node, segment);
}
