// <LoiterParam IsGetDetail="true">
//     <IntelligeBaseParam ... />
//     <RegionList>
//         <Region TargetTypeConstrain="true" TargetType="1" TargetSizeConstrain="true" MinTargetSize="1000"
//                 MaxTargetSize="100000" MinTime="3" IsAnalysisPath="true">
//             <PolygonArealist>
//                 <ZTPoint AttrXval="0.25" AttrYval="0.5" />
//             </PolygonArealist>
//         </Region>
//     </RegionList>
// </LoiterParam>

#include "analysis/LoiterParamXml.h"

#include "analysis/RuleSteps.h"
#include "core/Frame.h"

#include <utility>

namespace
{

void writeProperties(SafePointer<DomainXmlNode>& node, const LoiterRegionParam& region)
{
    frame::setTarget(node, region);
    node->setProperty("MinTime", region.getMinTime());
    node->setProperty("IsAnalysisPath", region.getAnalysisPath());
}

void readProperties(const SafePointer<DomainXmlNode>& node, LoiterRegionParam& region)
{
    frame::readTarget(node, region);
    region.setMinTime(frame::intProperty(node, "MinTime", 0));
    region.setAnalysisPath(frame::flagProperty(node, "IsAnalysisPath", false));
}

} // namespace

LoiterParamXml::LoiterParamXml() = default;

LoiterParamXml::~LoiterParamXml() = default;

bool LoiterParamXml::createDomainXmlNode(const LoiterParam& param, SafePointer<DomainXmlNode>& node)
{
    if (!frame::appendBasePart(node, param)) return false;

    node->setProperty("IsGetDetail", param.getIsGetDetail());
    return createLoiterRegionParamListToDomainXmlNode(param.getLoiterRegionParamList(), node);
}

bool LoiterParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, LoiterParam& param)
{
    if (!node) return false;

    LoiterParam read;
    frame::readBasePart(node, read);
    read.setIsGetDetail(frame::flagProperty(node, "IsGetDetail", false));

    TiXmlElement* child = frame::firstRegion(node);
    for (; child != nullptr; child = child->NextSiblingElement("Region"))
    {
        const SafePointer<DomainXmlNode> item = frame::nodeOf(*child);
        LoiterRegionParam region;
        readProperties(item, region);
        if (!parsePolygonAreaToDomainXmlNode(item, region.getRegion())) return false;
        read.getLoiterRegionParamList().push_back(std::move(region));
    }
    param = std::move(read);
    return true;
}

bool LoiterParamXml::createXmlString(const LoiterParam& param, std::string& text)
{
    SafePointer<DomainXmlNode> node = frame::makeNode("LoiterParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool LoiterParamXml::parseXmlString(const std::string& text, LoiterParam& param)
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "LoiterParam", node) && parseDomainXmlNode(node, param);
}

bool LoiterParamXml::createLoiterRegionParamListToDomainXmlNode(const std::vector<LoiterRegionParam>& regions,
                                                                SafePointer<DomainXmlNode>& node)
{
    if (!node) return false;

    SafePointer<DomainXmlNode> list = frame::appendNode(node, "RegionList");
    for (const LoiterRegionParam& region : regions)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(list, "Region");
        writeProperties(item, region);
        if (!createPolygonAreaToDomainXmlNode(region.getRegion(), item)) return false;
    }
    return true;
}

bool LoiterParamXml::createPolygonAreaToDomainXmlNode(const PolygonArea& area, SafePointer<DomainXmlNode>& node)
{
    return frame::appendPolygonArea(node, area);
}

bool LoiterParamXml::parsePolygonAreaToDomainXmlNode(const SafePointer<DomainXmlNode>& node, PolygonArea& area)
{
    return frame::readPolygonArea(node, area);
}
