// <AreaParam TopX="1" TopY="2" Width="30" Height="40" />

#include "media/AreaParamXml.h"

#include "core/Frame.h"

AreaParamXml::AreaParamXml() = default;

AreaParamXml::~AreaParamXml() = default;

void AreaParamXml::createXmlNode()
{
    writeElement(document_, area_);
}

bool AreaParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AreaParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "AreaParam", document_, node_) && parseXmlNode();
}

bool AreaParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, area_);
}

TiXmlElement& AreaParamXml::writeElement(TiXmlNode& parent, const AreaParam& area)
{
    TiXmlElement& element = frame::appendElement(parent, "AreaParam");
    frame::setInt(element, "TopX", area.getTopX());
    frame::setInt(element, "TopY", area.getTopY());
    frame::setInt(element, "Width", area.getWidth());
    frame::setInt(element, "Height", area.getHeight());
    return element;
}

bool AreaParamXml::readElement(const TiXmlElement& element, AreaParam& area)
{
    area.setTopX(frame::intOf(element, "TopX", 0));
    area.setTopY(frame::intOf(element, "TopY", 0));
    area.setWidth(frame::intOf(element, "Width", 0));
    area.setHeight(frame::intOf(element, "Height", 0));
    return true;
}

bool AreaParamXml::createDomainXmlNode(const AreaParam& area, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("TopX", area.getTopX());
    node->setProperty("TopY", area.getTopY());
    node->setProperty("Width", area.getWidth());
    node->setProperty("Height", area.getHeight());
    return true;
}

bool AreaParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AreaParam& area) const
{
    if (!node) return false;

    area.setTopX(frame::intProperty(node, "TopX", 0, "AreaParamXml::parseDomainXmlNode get TopX failed "));
    area.setTopY(frame::intProperty(node, "TopY", 0, "AreaParamXml::parseDomainXmlNode get TopY failed "));
    area.setWidth(frame::intProperty(node, "Width", 0, "AreaParamXml::parseDomainXmlNode get Width failed "));
    area.setHeight(frame::intProperty(node, "Height", 0, "AreaParamXml::parseDomainXmlNode get Height failed "));
    return true;
}

bool AreaParamXml::createXmlString(const AreaParam& area, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AreaParam");
    return createDomainXmlNode(area, node) && DomainXmlNode::toString(node, text);
}

bool AreaParamXml::parseXmlString(const std::string& text, AreaParam& area) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AreaParam", node) && parseDomainXmlNode(node, area);
}
