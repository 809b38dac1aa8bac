// <OSDInfo OSDType="1" OSDEnableFlag="true" TopX="16" TopY="8" Info="North gate" />
//
// The node form puts "Info" and the flag first: each form keeps the order that its own peers write.

#include "media/OSDInfoXml.h"

#include "core/Frame.h"

OSDInfoXml::OSDInfoXml() = default;

OSDInfoXml::~OSDInfoXml() = default;

void OSDInfoXml::createXmlNode()
{
    writeElement(document_, info_);
}

bool OSDInfoXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool OSDInfoXml::parseXmlString()
{
    return frame::parseRoot(text_, "OSDInfo", document_, node_) && parseXmlNode();
}

bool OSDInfoXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, info_);
}

TiXmlElement& OSDInfoXml::writeElement(TiXmlNode& parent, const OSDInfo& info)
{
    TiXmlElement& element = frame::appendElement(parent, "OSDInfo");
    frame::setInt(element, "OSDType", info.getOSDType());
    frame::setFlag(element, "OSDEnableFlag", info.getOSDEnableFlag());
    frame::setInt(element, "TopX", info.getTopX());
    frame::setInt(element, "TopY", info.getTopY());
    frame::setText(element, "Info", info.getInfo());
    return element;
}

bool OSDInfoXml::readElement(const TiXmlElement& element, OSDInfo& info)
{
    info.setOSDType(frame::intOf(element, "OSDType", 0));
    info.setOSDEnableFlag(frame::flagOf(element, "OSDEnableFlag", false));
    info.setTopX(frame::intOf(element, "TopX", 0));
    info.setTopY(frame::intOf(element, "TopY", 0));
    info.setInfo(frame::textOf(element, "Info", ""));
    return true;
}

bool OSDInfoXml::createDomainXmlNode(const OSDInfo& info, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("Info", info.getInfo());
    node->setProperty("OSDEnableFlag", info.getOSDEnableFlag());
    node->setProperty("OSDType", info.getOSDType());
    node->setProperty("TopX", info.getTopX());
    node->setProperty("TopY", info.getTopY());
    return true;
}

bool OSDInfoXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, OSDInfo& info) const
{
    if (!node) return false;

    info.setInfo(frame::textProperty(node, "Info", "", "OSDInfoXml::parseDomainXmlNode get Info failed"));
    info.setOSDEnableFlag(
        frame::flagProperty(node, "OSDEnableFlag", false, "OSDInfoXml::parseDomainXmlNode get OSDEnableFlag failed"));
    info.setOSDType(frame::intProperty(node, "OSDType", 0, "OSDInfoXml::parseDomainXmlNode get OSDType failed"));
    info.setTopX(frame::intProperty(node, "TopX", 0, "OSDInfoXml::parseDomainXmlNode get TopX failed"));
    info.setTopY(frame::intProperty(node, "TopY", 0, "OSDInfoXml::parseDomainXmlNode get TopY failed"));
    return true;
}

bool OSDInfoXml::createXmlString(const OSDInfo& info, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("OSDInfo");
    return createDomainXmlNode(info, node) && DomainXmlNode::toString(node, text);
}

bool OSDInfoXml::parseXmlString(const std::string& text, OSDInfo& info) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "OSDInfo", node) && parseDomainXmlNode(node, info);
}
