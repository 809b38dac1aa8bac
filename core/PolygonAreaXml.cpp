// <PolygonArealist>
//     <ZTPoint AttrXval="0.25" AttrYval="0.5" />
// </PolygonArealist>

#include "core/PolygonAreaXml.h"

#include "core/Frame.h"

bool PolygonAreaXml::createXmlString(const PolygonArea& area, std::string& text) const
{
    SafePointer<DomainXmlNode> root = frame::makeNode("PolygonArealist");
    for (const ZTPoint& point : area.getVecPoints())
    {
        SafePointer<DomainXmlNode> node = frame::appendNode(root, "ZTPoint");
        node->setProperty("AttrXval", point.getX());
        node->setProperty("AttrYval", point.getY());
    }
    return DomainXmlNode::toString(root, text);
}

bool PolygonAreaXml::parseXmlString(const std::string& text, PolygonArea& area) const
{
    SafePointer<DomainXmlNode> root;
    if (!DomainXmlNode::parse(text, "PolygonArealist", root)) return false;

    TiXmlElement* item = frame::firstChild(root);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        const SafePointer<DomainXmlNode> point = frame::nodeOf(*item);
        area.addPoint(frame::floatProperty(point, "AttrXval", 0), frame::floatProperty(point, "AttrYval", 0));
    }
    return true;
}
