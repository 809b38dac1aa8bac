// <PolygonArealist>
//     <ZTPoint AttrXval="0.25" AttrYval="0.5" />
// </PolygonArealist>

#include "core/PolygonAreaXml.h"

#include "core/Frame.h"

TiXmlElement& PolygonAreaXml::writeElement(TiXmlNode& parent, const PolygonArea& area)
{
    TiXmlElement& element = frame::appendElement(parent, "PolygonArealist");
    for (const ZTPoint& point : area.getVecPoints())
    {
        TiXmlElement& item = frame::appendElement(element, "ZTPoint");
        frame::setFloat(item, "AttrXval", point.getX());
        frame::setFloat(item, "AttrYval", point.getY());
    }
    return element;
}

bool PolygonAreaXml::readElement(const TiXmlElement& element, PolygonArea& area)
{
    const TiXmlElement* item = element.FirstChildElement();
    for (; item != nullptr; item = item->NextSiblingElement())
        area.addPoint(frame::floatOf(*item, "AttrXval", 0), frame::floatOf(*item, "AttrYval", 0));
    return true;
}

bool PolygonAreaXml::createXmlString(const PolygonArea& area, std::string& text) const
{
    TiXmlDocument document;
    frame::print(writeElement(document, area), text);
    return true;
}

bool PolygonAreaXml::parseXmlString(const std::string& text, PolygonArea& area) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "PolygonArealist", node) && readElement(*node->getXmlNode(), area);
}
