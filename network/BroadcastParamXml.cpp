// <BroadcastParam>
//     <BroadcastParam BroadcastEnableFlag="true" BroadcastPort="5007" BroadcastInterval="30" ... ReserveValue3="0" />
// </BroadcastParam>
//
// An item of a list is such a pair as well.

#include "network/BroadcastParamXml.h"

#include "core/Frame.h"

BroadcastParamXml::BroadcastParamXml() = default;

BroadcastParamXml::~BroadcastParamXml() = default;

bool BroadcastParamXml::createDomainXmlNode(const BroadcastParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->cleanChildren();
    SafePointer<DomainXmlNode> child = frame::appendNode(node, "BroadcastParam");
    child->setProperty("BroadcastEnableFlag", param.getBroadcastEnableFlag());
    child->setProperty("BroadcastPort", param.getBroadcastPort());
    child->setProperty("BroadcastInterval", param.getBroadcastInterval());
    child->setProperty("ReserveValue1", param.getReserveValue1());
    child->setProperty("ReserveValue2", param.getReserveValue2());
    child->setProperty("ReserveValue3", param.getReserveValue3());
    return true;
}

bool BroadcastParamXml::createDomainXmlNode(const std::vector<BroadcastParam>& params,
                                            SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const BroadcastParam& param : params)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "BroadcastParam");
        if (!createDomainXmlNode(param, item)) return false;
    }
    return true;
}

bool BroadcastParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, BroadcastParam& param) const
{
    SafePointer<DomainXmlNode> child;
    if (!node || !node->getConfigNode("BroadcastParam", child)) return false;

    param.setBroadcastEnableFlag(frame::flagProperty(child, "BroadcastEnableFlag", false));
    param.setBroadcastPort(frame::uint16Property(child, "BroadcastPort", 0));
    param.setBroadcastInterval(frame::intProperty(child, "BroadcastInterval", 0));
    param.setReserveValue1(frame::intProperty(child, "ReserveValue1", 0));
    param.setReserveValue2(frame::intProperty(child, "ReserveValue2", 0));
    param.setReserveValue3(frame::intProperty(child, "ReserveValue3", 0));
    return true;
}

bool BroadcastParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                           std::vector<BroadcastParam>& params) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        BroadcastParam param;
        if (!parseDomainXmlNode(frame::nodeOf(*item), param)) return false;
        params.push_back(param);
    }
    return true;
}

bool BroadcastParamXml::createXmlString(const BroadcastParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("BroadcastParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool BroadcastParamXml::parseXmlString(const std::string& text, BroadcastParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "BroadcastParam", node) && parseDomainXmlNode(node, param);
}
