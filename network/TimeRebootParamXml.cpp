// <EnableTimeReboot EnableTimeReboot="true">
//     <RebootTimeList>
//         <RebootTime Month="4" Day="15" Weekday="6" Second="10800" />
//     </RebootTimeList>
// </EnableTimeReboot>
//
// The root bears the name of its attribute.

#include "network/TimeRebootParamXml.h"

#include "core/Frame.h"
#include "network/RebootTimeXml.h"

#include <utility>
#include <vector>

TimeRebootParamXml::TimeRebootParamXml() = default;

TimeRebootParamXml::~TimeRebootParamXml() = default;

bool TimeRebootParamXml::createDomainXmlNode(const TimeRebootParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("EnableTimeReboot", param.getTimeRebootEnableFlag());

    SafePointer<DomainXmlNode> list = frame::appendNode(node, "RebootTimeList");
    return RebootTimeXml().createDomainXmlNode(param.getRebootTimeList(), list);
}

bool TimeRebootParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, TimeRebootParam& param) const
{
    if (!node) return false;

    param.setTimeRebootEnableFlag(frame::flagProperty(node, "EnableTimeReboot", false));

    SafePointer<DomainXmlNode> list;
    std::vector<RebootTime> times;
    if (node->getConfigNode("RebootTimeList", list)) RebootTimeXml().parseDomainXmlNode(list, times);
    param.getRebootTimeList() = std::move(times);
    return true;
}

bool TimeRebootParamXml::createXmlString(const TimeRebootParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("EnableTimeReboot");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool TimeRebootParamXml::parseXmlString(const std::string& text, TimeRebootParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "EnableTimeReboot", node) && parseDomainXmlNode(node, param);
}
