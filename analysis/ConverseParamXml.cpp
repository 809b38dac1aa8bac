// <ConverseParam IsGetDetail="true">
//     <IntelligeBaseParam ... />
//     <RegionList>
//         <Region TargetTypeConstrain="true" TargetType="1" TargetSizeConstrain="true" MinTargetSize="1000"
//                 MaxTargetSize="100000" ConverseAngle="45.5">
//             <PolygonArealist>
//                 <ZTPoint AttrXval="0.25" AttrYval="0.5" />
//             </PolygonArealist>
//         </Region>
//     </RegionList>
// </ConverseParam>

#include "analysis/ConverseParamXml.h"

#include "analysis/RuleSteps.h"
#include "core/Frame.h"

#include <utility>

namespace
{

void writeProperties(SafePointer<DomainXmlNode>& node, const ConverseRegionParam& region)
{
    frame::setTarget(node, region);
    node->setProperty("ConverseAngle", region.getConverseAngle());
}

void readProperties(const SafePointer<DomainXmlNode>& node, ConverseRegionParam& region)
{
    frame::readTarget(node, region);
    region.setConverseAngle(frame::floatProperty(node, "ConverseAngle", 0));
}

} // namespace

ConverseParamXml::ConverseParamXml() = default;

ConverseParamXml::~ConverseParamXml() = default;

bool ConverseParamXml::createDomainXmlNode(const ConverseParam& param, SafePointer<DomainXmlNode>& node)
{
    if (!frame::appendBasePart(node, param)) return false;

    node->setProperty("IsGetDetail", param.getIsGetDetail());
    return createConverseRegionParamListToDomainXmlNode(param.getConverseRegionParamList(), node);
}

bool ConverseParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ConverseParam& param)
{
    if (!node) return false;

    ConverseParam read;
    frame::readBasePart(node, read);
    read.setIsGetDetail(frame::flagProperty(node, "IsGetDetail", false));

    TiXmlElement* child = frame::firstRegion(node);
    for (; child != nullptr; child = child->NextSiblingElement("Region"))
    {
        const SafePointer<DomainXmlNode> item = frame::nodeOf(*child);
        ConverseRegionParam region;
        readProperties(item, region);
        if (!parsePolygonAreaToDomainXmlNode(item, region.getRegion())) return false;
        read.getConverseRegionParamList().push_back(std::move(region));
    }
    param = std::move(read);
    return true;
}

bool ConverseParamXml::createXmlString(const ConverseParam& param, std::string& text)
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ConverseParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool ConverseParamXml::parseXmlString(const std::string& text, ConverseParam& param)
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ConverseParam", node) && parseDomainXmlNode(node, param);
}

bool ConverseParamXml::createConverseRegionParamListToDomainXmlNode(const std::vector<ConverseRegionParam>& regions,
                                                                    SafePointer<DomainXmlNode>& node)
{
    if (!node) return false;

    SafePointer<DomainXmlNode> list = frame::appendNode(node, "RegionList");
    for (const ConverseRegionParam& region : regions)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(list, "Region");
        writeProperties(item, region);
        if (!createPolygonAreaToDomainXmlNode(region.getRegion(), item)) return false;
    }
    return true;
}

bool ConverseParamXml::createPolygonAreaToDomainXmlNode(const PolygonArea& area, SafePointer<DomainXmlNode>& node)
{
    return frame::appendPolygonArea(node, area);
}

bool ConverseParamXml::parsePolygonAreaToDomainXmlNode(const SafePointer<DomainXmlNode>& node, PolygonArea& area)
{
    return frame::readPolygonArea(node, area);
}
