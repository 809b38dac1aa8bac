// <LineCross LineCrossStartX="0.1" LineCrossStartY="0.2" LineCrossEndX="0.8" LineCrossEndY="0.9" />

#include "core/LineCrossXml.h"

#include "core/Frame.h"

LineCrossXml::LineCrossXml() = default;

LineCrossXml::~LineCrossXml() = default;

TiXmlElement& LineCrossXml::writeElement(TiXmlNode& parent, const LineCross& line)
{
    TiXmlElement& element = frame::appendElement(parent, "LineCross");
    frame::setFloat(element, "LineCrossStartX", line.getLineCrossStartX());
    frame::setFloat(element, "LineCrossStartY", line.getLineCrossStartY());
    frame::setFloat(element, "LineCrossEndX", line.getLineCrossEndX());
    frame::setFloat(element, "LineCrossEndY", line.getLineCrossEndY());
    return element;
}

bool LineCrossXml::readElement(const TiXmlElement& element, LineCross& line)
{
    line.setLineCrossStartX(frame::floatOf(element, "LineCrossStartX", line.getLineCrossStartX()));
    line.setLineCrossStartY(frame::floatOf(element, "LineCrossStartY", line.getLineCrossStartY()));
    line.setLineCrossEndX(frame::floatOf(element, "LineCrossEndX", line.getLineCrossEndX()));
    line.setLineCrossEndY(frame::floatOf(element, "LineCrossEndY", line.getLineCrossEndY()));
    return true;
}

bool LineCrossXml::createXmlString(const LineCross& line, std::string& text) const
{
    TiXmlDocument document;
    frame::print(writeElement(document, line), text);
    return true;
}

bool LineCrossXml::parseXmlString(const std::string& text, LineCross& line) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "LineCross", node) && readElement(*node->getXmlNode(), line);
}
