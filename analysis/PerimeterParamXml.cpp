// <PerimeterParam IsGetDetail="true">
//     <IntelligeBaseParam ... />
//     <RegionList>
//         <Region TargetTypeConstrain="true" TargetType="1" TargetSizeConstrain="true" MinTargetSize="1000"
//                 MaxTargetSize="100000" Sensitivity="3">
//             <PolygonArealist>
//                 <ZTPoint AttrXval="0.25" AttrYval="0.5" />
//             </PolygonArealist>
//             <DetectionAreaV2 WidthCellNumber="2" HighCellNumber="2" Data="AQID" DataLength="3" />
//         </Region>
//     </RegionList>
// </PerimeterParam>

#include "analysis/PerimeterParamXml.h"

#include "analysis/RuleSteps.h"
#include "core/Frame.h"

#include <cstdio>
#include <utility>

namespace
{

void writeProperties(SafePointer<DomainXmlNode>& node, const PerimeterRegionParam& region)
{
    frame::setTarget(node, region);
    node->setProperty("Sensitivity", region.getSensitivity());
}

void readProperties(const SafePointer<DomainXmlNode>& node, PerimeterRegionParam& region)
{
    frame::readTarget(node, region);
    region.setSensitivity(frame::intProperty(node, "Sensitivity", 0));
}

} // namespace

PerimeterParamXml::PerimeterParamXml() = default;

PerimeterParamXml::~PerimeterParamXml() = default;

bool PerimeterParamXml::createDomainXmlNode(const PerimeterParam& param, SafePointer<DomainXmlNode>& node)
{
    if (!frame::appendBasePart(node, param)) return false;

    node->setProperty("IsGetDetail", param.getIsGetDetail());
    return createPerimeterRegionParamListToDomainXmlNode(param.getPerimeterRegionParamList(), node);
}

bool PerimeterParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, PerimeterParam& param)
{
    if (!node) return false;

    SafePointer<DomainXmlNode> base;
    PerimeterParam read;
    if (!node->getConfigNode("IntelligeBaseParam", base)) std::puts("perimeter get IntelligeBaseParam node failed");
    if (!IntelligeBaseParamXml::parseDomainXmlNode(base, read))
        std::puts("objIntelligeBaseParamXml.parseDomainXmlNode failed");
    if (!parseRule(node, read)) return false;
    param = std::move(read);
    return true;
}

bool PerimeterParamXml::createXmlString(const PerimeterParam& param, std::string& text)
{
    SafePointer<DomainXmlNode> node = frame::makeNode("PerimeterParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool PerimeterParamXml::parseXmlString(const std::string& text, PerimeterParam& param)
{
    SafePointer<DomainXmlNode> node;
    if (!DomainXmlNode::parse(text, "PerimeterParam", node)) return false;

    // Unlike the other reader this one says nothing of a missing base part.
    PerimeterParam read;
    frame::readBasePart(node, read);
    if (!parseRule(node, read)) return false;
    param = std::move(read);
    return true;
}

bool PerimeterParamXml::parseRule(const SafePointer<DomainXmlNode>& node, PerimeterParam& rule)
{
    rule.setIsGetDetail(frame::flagProperty(node, "IsGetDetail", false));

    TiXmlElement* child = frame::firstRegion(node);
    for (; child != nullptr; child = child->NextSiblingElement("Region"))
    {
        const SafePointer<DomainXmlNode> item = frame::nodeOf(*child);
        PerimeterRegionParam region;
        readProperties(item, region);
        DetectionAreaV2 cells;
        if (!parsePolygonAreaToDomainXmlNode(item, region.getRegion()) ||
            !parseDetectionAreaV2ToDomainXmlNode(item, cells))
            return false;
        region.setDetectionAreaV2(cells);
        rule.getPerimeterRegionParamList().push_back(std::move(region));
        // Peers' logs have this line behind the cells of each region.
        std::puts("**************************************");
    }
    return true;
}

bool PerimeterParamXml::createPerimeterRegionParamListToDomainXmlNode(const std::vector<PerimeterRegionParam>& regions,
                                                                      SafePointer<DomainXmlNode>& node)
{
    if (!node) return false;

    SafePointer<DomainXmlNode> list = frame::appendNode(node, "RegionList");
    for (const PerimeterRegionParam& region : regions)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(list, "Region");
        writeProperties(item, region);
        if (!createPolygonAreaToDomainXmlNode(region.getRegion(), item) ||
            !createDetectionAreaV2ToDomainXmlNode(region.getDetectionAreaV2(), item))
            return false;
    }
    return true;
}

bool PerimeterParamXml::createPolygonAreaToDomainXmlNode(const PolygonArea& area, SafePointer<DomainXmlNode>& node)
{
    return frame::appendPolygonArea(node, area);
}

bool PerimeterParamXml::parsePolygonAreaToDomainXmlNode(const SafePointer<DomainXmlNode>& node, PolygonArea& area)
{
    return frame::readPolygonArea(node, area);
}

bool PerimeterParamXml::createDetectionAreaV2ToDomainXmlNode(const DetectionAreaV2& area,
                                                             SafePointer<DomainXmlNode>& node)
{
    return frame::appendDetectionAreaV2(node, area);
}

bool PerimeterParamXml::parseDetectionAreaV2ToDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                            DetectionAreaV2& area)
{
    return frame::readDetectionAreaV2(node, area);
}
