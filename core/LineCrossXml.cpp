// <LineCross LineCrossStartX="0.1" LineCrossStartY="0.2" LineCrossEndX="0.8" LineCrossEndY="0.9" />

#include "core/LineCrossXml.h"

#include "core/Frame.h"

LineCrossXml::LineCrossXml() = default;

LineCrossXml::~LineCrossXml() = default;

bool LineCrossXml::createXmlString(const LineCross& line, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("LineCross");
    node->setProperty("LineCrossStartX", line.getLineCrossStartX());
    node->setProperty("LineCrossStartY", line.getLineCrossStartY());
    node->setProperty("LineCrossEndX", line.getLineCrossEndX());
    node->setProperty("LineCrossEndY", line.getLineCrossEndY());
    return DomainXmlNode::toString(node, text);
}

bool LineCrossXml::parseXmlString(const std::string& text, LineCross& line) const
{
    SafePointer<DomainXmlNode> node;
    if (!DomainXmlNode::parse(text, "LineCross", node)) return false;

    line.setLineCrossStartX(frame::floatProperty(node, "LineCrossStartX", line.getLineCrossStartX()));
    line.setLineCrossStartY(frame::floatProperty(node, "LineCrossStartY", line.getLineCrossStartY()));
    line.setLineCrossEndX(frame::floatProperty(node, "LineCrossEndX", line.getLineCrossEndX()));
    line.setLineCrossEndY(frame::floatProperty(node, "LineCrossEndY", line.getLineCrossEndY()));
    return true;
}
