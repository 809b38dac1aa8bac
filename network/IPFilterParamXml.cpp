// <IPFilterParam EnableFlag="true" FilterType="2">
//     <IPAddrSegmentList>
//         <IPAddrSegment IPProtoVer="4" BeginIP="192.0.2.1" EndIP="192.0.2.99" />
//     </IPAddrSegmentList>
// </IPFilterParam>

#include "network/IPFilterParamXml.h"

#include "core/Frame.h"
#include "core/IPAddrSegmentXml.h"

#include <utility>

IPFilterParamXml::IPFilterParamXml() = default;

IPFilterParamXml::~IPFilterParamXml() = default;

bool IPFilterParamXml::createXmlString(const IPFilterParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> root = frame::makeNode("IPFilterParam");
    root->setProperty("EnableFlag", param.getEnableFlag());
    root->setProperty("FilterType", param.getFilterType());

    SafePointer<DomainXmlNode> list = frame::appendNode(root, "IPAddrSegmentList");
    for (const IPAddrSegment& segment : param.getIPAddrList())
    {
        if (!IPAddrSegmentXml().createXmlString(segment, list)) return false;
    }
    return DomainXmlNode::toString(root, text);
}

bool IPFilterParamXml::parseXmlString(const std::string& text, IPFilterParam& param) const
{
    SafePointer<DomainXmlNode> root;
    if (!DomainXmlNode::parse(text, "IPFilterParam", root)) return false;

    bool enableFlag = false;
    if (!root->getProperty("EnableFlag", enableFlag)) return false;
    param.setEnableFlag(enableFlag);

    int filterType = 0;
    if (!root->getProperty("FilterType", filterType)) return false;
    param.setFilterType(filterType);

    SafePointer<DomainXmlNode> list;
    std::vector<IPAddrSegment> segments;
    if (!root->getConfigNode("IPAddrSegmentList", list) || !parseIPAddrList(list, segments)) return false;
    param.getIPAddrList() = std::move(segments);
    return true;
}

bool IPFilterParamXml::parseIPAddrList(const SafePointer<DomainXmlNode>& node,
                                       std::vector<IPAddrSegment>& segments) const
{
    if (!node || node->getXmlNode() == nullptr) return false;

    TiXmlElement* item = node->getXmlNode()->FirstChildElement("IPAddrSegment");
    for (; item != nullptr; item = item->NextSiblingElement("IPAddrSegment"))
    {
        IPAddrSegment segment;
        if (parseIPAddr(frame::nodeOf(*item), segment)) segments.push_back(std::move(segment));
    }
    return true;
}

bool IPFilterParamXml::parseIPAddr(const SafePointer<DomainXmlNode>& node, IPAddrSegment& segment) const
{
    return IPAddrSegmentXml().parseXmlString(node, segment);
}
