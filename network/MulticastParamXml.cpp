// <MulticastParamConfig>
//     <MulticastParam EnableFlag="true" Port="5006" Interval="30" IP="239.192.0.18" IPProtoVer="4" />
// </MulticastParamConfig>

#include "network/MulticastParamXml.h"

#include "core/Frame.h"

#include <utility>

MulticastParamXml::MulticastParamXml() = default;

MulticastParamXml::~MulticastParamXml() = default;

bool MulticastParamXml::createDomainXmlNode(const std::vector<MulticastParam>& params,
                                            SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const MulticastParam& param : params)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "MulticastParam");
        item->setProperty("EnableFlag", param.getMulticastEnableFlag());
        item->setProperty("Port", param.getMulticastPort());
        item->setProperty("Interval", param.getMulticastInterval());
        item->setProperty("IP", param.getMulticastHostIP());
        item->setProperty("IPProtoVer", param.getMulticastIPProtoVer());
    }
    return true;
}

bool MulticastParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                           std::vector<MulticastParam>& params) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        const SafePointer<DomainXmlNode> child = frame::nodeOf(*item);
        MulticastParam param;
        param.setMulticastEnableFlag(frame::flagProperty(child, "EnableFlag", param.getMulticastEnableFlag()));
        param.setMulticastPort(frame::uint16Property(child, "Port", param.getMulticastPort()));
        param.setMulticastInterval(frame::intProperty(child, "Interval", param.getMulticastInterval()));
        param.setMulticastHostIP(frame::textProperty(child, "IP", param.getMulticastHostIP()));
        param.setMulticastIPProtoVer(frame::intProperty(child, "IPProtoVer", param.getMulticastIPProtoVer()));
        params.push_back(std::move(param));
    }
    return true;
}

bool MulticastParamXml::createXmlString(const std::vector<MulticastParam>& params, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("MulticastParamConfig");
    return createDomainXmlNode(params, node) && DomainXmlNode::toString(node, text);
}

// Stricter than the reader of nodes: callers that hand over a text rely on whole items.
bool MulticastParamXml::parseXmlString(const std::string& text, std::vector<MulticastParam>& params) const
{
    SafePointer<DomainXmlNode> node;
    if (!DomainXmlNode::parse(text, "MulticastParamConfig", node)) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        const SafePointer<DomainXmlNode> child = frame::nodeOf(*item);
        bool enableFlag = false;
        int port = 0;
        int interval = 0;
        std::string hostIP;
        int ipProtoVer = 0;
        if (!child->getProperty("EnableFlag", enableFlag) || !child->getProperty("Port", port) ||
            !child->getProperty("Interval", interval) || !child->getProperty("IP", hostIP) ||
            !child->getProperty("IPProtoVer", ipProtoVer))
            return false;

        MulticastParam param;
        param.setMulticastEnableFlag(enableFlag);
        param.setMulticastPort(static_cast<std::uint16_t>(port));
        param.setMulticastInterval(interval);
        param.setMulticastHostIP(hostIP);
        param.setMulticastIPProtoVer(ipProtoVer);
        params.push_back(std::move(param));
    }
    return true;
}
