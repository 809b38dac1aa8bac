// <TimeRebootParam TimeRebootEnableFlag="true">
//     <RebootTime Month="4" Day="15" Weekday="6" Second="10800" />
// </TimeRebootParam>

#include "network/TimeRebootXml.h"

#include "core/Frame.h"
#include "network/RebootTimeXml.h"

#include <utility>
#include <vector>

bool TimeRebootXml::createXmlString(const TimeRebootParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> root = frame::makeNode("TimeRebootParam");
    root->setProperty("TimeRebootEnableFlag", param.getTimeRebootEnableFlag());
    return RebootTimeXml().createDomainXmlNode(param.getRebootTimeList(), root) && DomainXmlNode::toString(root, text);
}

bool TimeRebootXml::parseXmlString(const std::string& text, TimeRebootParam& param) const
{
    SafePointer<DomainXmlNode> root;
    if (!DomainXmlNode::parse(text, "TimeRebootParam", root)) return false;

    param.setTimeRebootEnableFlag(frame::flagProperty(root, "TimeRebootEnableFlag", false));

    std::vector<RebootTime> times;
    const TiXmlElement* item = frame::firstItem(*root->getXmlNode(), "RebootTime");
    for (; item != nullptr; item = item->NextSiblingElement("RebootTime"))
    {
        RebootTime time;
        if (!RebootTimeXml::readElement(*item, time)) return false;
        times.push_back(time);
    }
    param.getRebootTimeList() = std::move(times);
    return true;
}
