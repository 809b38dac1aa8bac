// <ColorParam Red="255" Green="128" Blue="0" Alpha="64" />
//
// The peers write the four as signed numbers: 4294967295 goes out as -1, and comes back whole.

#include "core/ColorParamXml.h"

#include "core/Frame.h"

ColorParamXml::ColorParamXml() = default;

ColorParamXml::~ColorParamXml() = default;

void ColorParamXml::createXmlNode()
{
    writeElement(document_, color_);
}

bool ColorParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ColorParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "ColorParam", document_, node_) && parseXmlNode();
}

bool ColorParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, color_);
}

TiXmlElement& ColorParamXml::writeElement(TiXmlNode& parent, const ColorParam& color)
{
    TiXmlElement& element = frame::appendElement(parent, "ColorParam");
    frame::setInt(element, "Red", static_cast<int>(color.getRed()));
    frame::setInt(element, "Green", static_cast<int>(color.getGreen()));
    frame::setInt(element, "Blue", static_cast<int>(color.getBlue()));
    frame::setInt(element, "Alpha", static_cast<int>(color.getAlpha()));
    return element;
}

bool ColorParamXml::readElement(const TiXmlElement& element, ColorParam& color)
{
    color.setRed(frame::uint32Of(element, "Red", color.getRed()));
    color.setGreen(frame::uint32Of(element, "Green", color.getGreen()));
    color.setBlue(frame::uint32Of(element, "Blue", color.getBlue()));
    color.setAlpha(frame::uint32Of(element, "Alpha", color.getAlpha()));
    return true;
}

bool ColorParamXml::createDomainXmlNode(const ColorParam& color, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->cleanChildren();
    node->setProperty("Red", static_cast<int>(color.getRed()));
    node->setProperty("Green", static_cast<int>(color.getGreen()));
    node->setProperty("Blue", static_cast<int>(color.getBlue()));
    node->setProperty("Alpha", static_cast<int>(color.getAlpha()));
    return true;
}

bool ColorParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ColorParam& color) const
{
    if (!node) return false;

    color.setRed(frame::uint32Property(node, "Red", 0));
    color.setGreen(frame::uint32Property(node, "Green", 0));
    color.setBlue(frame::uint32Property(node, "Blue", 0));
    color.setAlpha(frame::uint32Property(node, "Alpha", 0));
    return true;
}

bool ColorParamXml::createXmlString(const ColorParam& color, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ColorParam");
    return createDomainXmlNode(color, node) && DomainXmlNode::toString(node, text);
}

bool ColorParamXml::parseXmlString(const std::string& text, ColorParam& color) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ColorParam", node) && parseDomainXmlNode(node, color);
}
