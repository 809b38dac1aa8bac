// <ObjectMovedParam IsGetDetail="true">
//     <IntelligeBaseParam ... />
//     <RegionList>
//         <Region MinTargetSize="10" MaxTargetSize="500" MinTime="30">
//             <PolygonArealist>
//                 <ZTPoint AttrXval="0.25" AttrYval="0.5" />
//             </PolygonArealist>
//         </Region>
//     </RegionList>
// </ObjectMovedParam>

#include "analysis/ObjectMovedParamXml.h"

#include "analysis/RuleSteps.h"
#include "core/Frame.h"

#include <utility>

namespace
{

void writeProperties(SafePointer<DomainXmlNode>& node, const ObjectMovedRegionParam& region)
{
    frame::setLinger(node, region);
}

void readProperties(const SafePointer<DomainXmlNode>& node, ObjectMovedRegionParam& region)
{
    frame::readLinger(node, region);
}

} // namespace

ObjectMovedParamXml::ObjectMovedParamXml() = default;

ObjectMovedParamXml::~ObjectMovedParamXml() = default;

bool ObjectMovedParamXml::createDomainXmlNode(const ObjectMovedParam& param, SafePointer<DomainXmlNode>& node)
{
    if (!frame::appendBasePart(node, param)) return false;

    node->setProperty("IsGetDetail", param.getIsGetDetail());
    return createObjectMovedRegionParamListToDomainXmlNode(param.getObjectMovedRegionParamList(), node);
}

bool ObjectMovedParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ObjectMovedParam& param)
{
    if (!node) return false;

    ObjectMovedParam read;
    frame::readBasePart(node, read);
    read.setIsGetDetail(frame::flagProperty(node, "IsGetDetail", false));

    TiXmlElement* child = frame::firstRegion(node);
    for (; child != nullptr; child = child->NextSiblingElement("Region"))
    {
        const SafePointer<DomainXmlNode> item = frame::nodeOf(*child);
        ObjectMovedRegionParam region;
        readProperties(item, region);
        if (!parsePolygonAreaToDomainXmlNode(item, region.getRegion())) return false;
        read.getObjectMovedRegionParamList().push_back(std::move(region));
    }
    param = std::move(read);
    return true;
}

bool ObjectMovedParamXml::createXmlString(const ObjectMovedParam& param, std::string& text)
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ObjectMovedParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool ObjectMovedParamXml::parseXmlString(const std::string& text, ObjectMovedParam& param)
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ObjectMovedParam", node) && parseDomainXmlNode(node, param);
}

bool ObjectMovedParamXml::createObjectMovedRegionParamListToDomainXmlNode(
    const std::vector<ObjectMovedRegionParam>& regions, SafePointer<DomainXmlNode>& node)
{
    if (!node) return false;

    SafePointer<DomainXmlNode> list = frame::appendNode(node, "RegionList");
    for (const ObjectMovedRegionParam& region : regions)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(list, "Region");
        writeProperties(item, region);
        if (!createPolygonAreaToDomainXmlNode(region.getRegion(), item)) return false;
    }
    return true;
}

bool ObjectMovedParamXml::createPolygonAreaToDomainXmlNode(const PolygonArea& area, SafePointer<DomainXmlNode>& node)
{
    return frame::appendPolygonArea(node, area);
}

bool ObjectMovedParamXml::parsePolygonAreaToDomainXmlNode(const SafePointer<DomainXmlNode>& node, PolygonArea& area)
{
    return frame::readPolygonArea(node, area);
}
