// <DetectionAreaList>
//     <DetectionArea TopX="0" TopY="0" Width="64" High="32" />
// </DetectionAreaList>

#include "alarm/DetectionAreaXml.h"

#include "core/Frame.h"

namespace
{

void writeItem(const DetectionArea& area, SafePointer<DomainXmlNode>& node)
{
    node->setProperty("TopX", area.getTopX());
    node->setProperty("TopY", area.getTopY());
    node->setProperty("Width", area.getWidth());
    node->setProperty("High", area.getHigh());
}

void readItem(const SafePointer<DomainXmlNode>& node, DetectionArea& area)
{
    area.setTopX(frame::intProperty(node, "TopX", 0));
    area.setTopY(frame::intProperty(node, "TopY", 0));
    area.setWidth(frame::intProperty(node, "Width", 0));
    area.setHigh(frame::intProperty(node, "High", 0));
}

} // namespace

DetectionAreaXml::DetectionAreaXml() = default;

DetectionAreaXml::~DetectionAreaXml() = default;

void DetectionAreaXml::createXmlNode()
{
    writeElement(document_, area_);
}

bool DetectionAreaXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DetectionAreaXml::parseXmlString()
{
    return frame::parseRoot(text_, "DetectionArea", document_, node_) && parseXmlNode();
}

bool DetectionAreaXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, area_);
}

TiXmlElement& DetectionAreaXml::writeElement(TiXmlNode& parent, const DetectionArea& area)
{
    TiXmlElement& element = frame::appendElement(parent, "DetectionArea");
    frame::setInt(element, "TopX", area.getTopX());
    frame::setInt(element, "TopY", area.getTopY());
    frame::setInt(element, "Width", area.getWidth());
    frame::setInt(element, "High", area.getHigh());
    return element;
}

bool DetectionAreaXml::readElement(const TiXmlElement& element, DetectionArea& area)
{
    area.setTopX(frame::intOf(element, "TopX", 0));
    area.setTopY(frame::intOf(element, "TopY", 0));
    area.setWidth(frame::intOf(element, "Width", 0));
    area.setHigh(frame::intOf(element, "High", 0));
    return true;
}

bool DetectionAreaXml::createDomainXmlNode(const std::vector<DetectionArea>& areas,
                                           SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const DetectionArea& area : areas)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "DetectionArea");
        writeItem(area, item);
    }
    return true;
}

bool DetectionAreaXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                          std::vector<DetectionArea>& areas) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        DetectionArea area;
        readItem(frame::nodeOf(*item), area);
        areas.push_back(area);
    }
    return true;
}

bool DetectionAreaXml::createXmlString(const std::vector<DetectionArea>& areas, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("DetectionAreaList");
    return createDomainXmlNode(areas, node) && DomainXmlNode::toString(node, text);
}

bool DetectionAreaXml::parseXmlString(const std::string& text, std::vector<DetectionArea>& areas) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "DetectionAreaList", node) && parseDomainXmlNode(node, areas);
}
