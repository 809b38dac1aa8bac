// <IPAddrSegment IPProtoVer="4" BeginIP="192.0.2.1" EndIP="192.0.2.99" />

#include "core/IPAddrSegmentXml.h"

#include "core/Frame.h"

#include <string>

IPAddrSegmentXml::IPAddrSegmentXml() = default;

IPAddrSegmentXml::~IPAddrSegmentXml() = default;

bool IPAddrSegmentXml::createXmlString(const IPAddrSegment& segment, SafePointer<DomainXmlNode>& parent) const
{
    if (!parent) return false;

    SafePointer<DomainXmlNode> node = frame::makeNode("IPAddrSegment");
    node->setProperty("IPProtoVer", segment.getIPProVer());
    node->setProperty("BeginIP", segment.getBeginIP());
    node->setProperty("EndIP", segment.getEndIP());
    return parent->addConfigNode(node);
}

bool IPAddrSegmentXml::parseXmlString(const SafePointer<DomainXmlNode>& node, IPAddrSegment& segment) const
{
    if (!node) return false;

    int ipProtoVer = 0;
    if (!node->getProperty("IPProtoVer", ipProtoVer)) return false;
    segment.setIPProVer(ipProtoVer);

    std::string address;
    if (!node->getProperty("BeginIP", address)) return false;
    segment.setBeginIP(address);
    if (!node->getProperty("EndIP", address)) return false;
    segment.setEndIP(address);
    return true;
}
