// <OSDInfo OSDType="1" OSDEnableFlag="true" X="12.5" Y="0.25" Info="North gate" />
//
// The peers print a position as the `double` that it widens to.

#include "media/OSDInfoExXml.h"

#include "core/Conversions.h"
#include "core/Frame.h"

OSDInfoExXml::OSDInfoExXml() = default;

OSDInfoExXml::~OSDInfoExXml() = default;

void OSDInfoExXml::createXmlNode()
{
    writeElement(document_, info_);
}

bool OSDInfoExXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool OSDInfoExXml::parseXmlString()
{
    return frame::parseRoot(text_, "OSDInfo", document_, node_) && parseXmlNode();
}

bool OSDInfoExXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, info_);
}

TiXmlElement& OSDInfoExXml::writeElement(TiXmlNode& parent, const OSDInfoEx& info)
{
    TiXmlElement& element = frame::appendElement(parent, "OSDInfo");
    frame::setInt(element, "OSDType", info.getOSDType());
    frame::setFlag(element, "OSDEnableFlag", info.getOSDEnableFlag());
    frame::setDouble(element, "X", info.getX());
    frame::setDouble(element, "Y", info.getY());
    frame::setText(element, "Info", info.getInfo());
    return element;
}

bool OSDInfoExXml::readElement(const TiXmlElement& element, OSDInfoEx& info)
{
    info.setOSDType(frame::intOf(element, "OSDType", 0));
    info.setOSDEnableFlag(frame::flagOf(element, "OSDEnableFlag", false));
    info.setX(frame::floatOf(element, "X", 0.0F));
    info.setY(frame::floatOf(element, "Y", 0.0F));
    info.setInfo(frame::textOf(element, "Info", ""));
    return true;
}

bool OSDInfoExXml::createDomainXmlNode(const OSDInfoEx& info, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("OSDType", info.getOSDType());
    node->setProperty("OSDEnableFlag", info.getOSDEnableFlag());
    node->setProperty("X", frame::doubleText(info.getX()).characters);
    node->setProperty("Y", frame::doubleText(info.getY()).characters);
    node->setProperty("Info", info.getInfo());
    return true;
}

bool OSDInfoExXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, OSDInfoEx& info) const
{
    if (!node) return false;

    info.setOSDType(frame::intProperty(node, "OSDType", 0));
    info.setOSDEnableFlag(frame::flagProperty(node, "OSDEnableFlag", false));
    info.setX(frame::floatProperty(node, "X", 0.0F));
    info.setY(frame::floatProperty(node, "Y", 0.0F));
    info.setInfo(frame::textProperty(node, "Info", ""));
    return true;
}

bool OSDInfoExXml::createXmlString(const OSDInfoEx& info, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("OSDInfo");
    return createDomainXmlNode(info, node) && DomainXmlNode::toString(node, text);
}

bool OSDInfoExXml::parseXmlString(const std::string& text, OSDInfoEx& info) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "OSDInfo", node) && parseDomainXmlNode(node, info);
}
