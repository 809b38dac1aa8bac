// <PTZProtocolList>
//     <PTZProtocol ProtocolId="1" ProtocolName="P" />
// </PTZProtocolList>

#include "ptz/PTZProtocolXml.h"

#include "core/Frame.h"

#include <utility>

PTZProtocolXml::PTZProtocolXml() = default;

PTZProtocolXml::~PTZProtocolXml() = default;

void PTZProtocolXml::createXmlNode()
{
    writeElement(document_, protocol_);
}

bool PTZProtocolXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool PTZProtocolXml::parseXmlString()
{
    return frame::parseRoot(text_, "PTZProtocol", document_, node_) && parseXmlNode();
}

bool PTZProtocolXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, protocol_);
}

TiXmlElement& PTZProtocolXml::writeElement(TiXmlNode& parent, const PTZProtocol& protocol)
{
    TiXmlElement& element = frame::appendElement(parent, "PTZProtocol");
    frame::setInt(element, "ProtocolId", protocol.getProtocolId());
    frame::setText(element, "ProtocolName", protocol.getProtocolName());
    return element;
}

bool PTZProtocolXml::readElement(const TiXmlElement& element, PTZProtocol& protocol)
{
    protocol.setProtocolId(frame::intOf(element, "ProtocolId", 0));
    protocol.setProtocolName(frame::textOf(element, "ProtocolName", ""));
    return true;
}

bool PTZProtocolXml::createDomainXmlNode(const std::vector<PTZProtocol>& protocols,
                                         SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->cleanChildren();
    for (const PTZProtocol& protocol : protocols)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "PTZProtocol");
        item->setProperty("ProtocolId", protocol.getProtocolId());
        item->setProperty("ProtocolName", protocol.getProtocolName());
    }
    return true;
}

bool PTZProtocolXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                        std::vector<PTZProtocol>& protocols) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        const SafePointer<DomainXmlNode> child = frame::nodeOf(*item);
        PTZProtocol protocol;
        protocol.setProtocolId(frame::intProperty(
            child, "ProtocolId", 0, "PTZProtocolXml::parseDomainXmlNode node = ATTR_PROTOCOL_ID failed "));
        protocol.setProtocolName(frame::textProperty(
            child, "ProtocolName", "", "PTZProtocolXml::parseDomainXmlNode node = ATTR_PROTOCOL_NAME failed "));
        protocols.push_back(std::move(protocol));
    }
    return true;
}

bool PTZProtocolXml::createXmlString(const std::vector<PTZProtocol>& protocols, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("PTZProtocolList");
    return createDomainXmlNode(protocols, node) && DomainXmlNode::toString(node, text);
}

bool PTZProtocolXml::parseXmlString(const std::string& text, std::vector<PTZProtocol>& protocols) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "PTZProtocolList", node) && parseDomainXmlNode(node, protocols);
}
