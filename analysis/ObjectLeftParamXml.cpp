// <ObjectLeftParam IsGetDetail="true">
//     <IntelligeBaseParam ... />
//     <RegionList>
//         <Region MinTargetSize="10" MaxTargetSize="500" MinTime="30">
//             <PolygonArealist>
//                 <ZTPoint AttrXval="0.25" AttrYval="0.5" />
//             </PolygonArealist>
//         </Region>
//     </RegionList>
// </ObjectLeftParam>

#include "analysis/ObjectLeftParamXml.h"

#include "analysis/RuleSteps.h"
#include "core/Frame.h"

#include <utility>

namespace
{

void writeProperties(SafePointer<DomainXmlNode>& node, const ObjectLeftRegionParam& region)
{
    frame::setLinger(node, region);
}

void readProperties(const SafePointer<DomainXmlNode>& node, ObjectLeftRegionParam& region)
{
    frame::readLinger(node, region);
}

} // namespace

ObjectLeftParamXml::ObjectLeftParamXml() = default;

ObjectLeftParamXml::~ObjectLeftParamXml() = default;

bool ObjectLeftParamXml::createDomainXmlNode(const ObjectLeftParam& param, SafePointer<DomainXmlNode>& node)
{
    if (!frame::appendBasePart(node, param)) return false;

    node->setProperty("IsGetDetail", param.getIsGetDetail());
    return createObjectLeftRegionParamListToDomainXmlNode(param.getObjectLeftRegionParamList(), node);
}

bool ObjectLeftParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ObjectLeftParam& param)
{
    if (!node) return false;

    ObjectLeftParam read;
    frame::readBasePart(node, read);
    read.setIsGetDetail(frame::flagProperty(node, "IsGetDetail", false));

    TiXmlElement* child = frame::firstRegion(node);
    for (; child != nullptr; child = child->NextSiblingElement("Region"))
    {
        const SafePointer<DomainXmlNode> item = frame::nodeOf(*child);
        ObjectLeftRegionParam region;
        readProperties(item, region);
        if (!parsePolygonAreaToDomainXmlNode(item, region.getRegion())) return false;
        read.getObjectLeftRegionParamList().push_back(std::move(region));
    }
    param = std::move(read);
    return true;
}

bool ObjectLeftParamXml::createXmlString(const ObjectLeftParam& param, std::string& text)
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ObjectLeftParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool ObjectLeftParamXml::parseXmlString(const std::string& text, ObjectLeftParam& param)
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ObjectLeftParam", node) && parseDomainXmlNode(node, param);
}

bool ObjectLeftParamXml::createObjectLeftRegionParamListToDomainXmlNode(
    const std::vector<ObjectLeftRegionParam>& regions, SafePointer<DomainXmlNode>& node)
{
    if (!node) return false;

    SafePointer<DomainXmlNode> list = frame::appendNode(node, "RegionList");
    for (const ObjectLeftRegionParam& region : regions)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(list, "Region");
        writeProperties(item, region);
        if (!createPolygonAreaToDomainXmlNode(region.getRegion(), item)) return false;
    }
    return true;
}

bool ObjectLeftParamXml::createPolygonAreaToDomainXmlNode(const PolygonArea& area, SafePointer<DomainXmlNode>& node)
{
    return frame::appendPolygonArea(node, area);
}

bool ObjectLeftParamXml::parsePolygonAreaToDomainXmlNode(const SafePointer<DomainXmlNode>& node, PolygonArea& area)
{
    return frame::readPolygonArea(node, area);
}
