// <MultiLoiterParam IsGetDetail="true">
//     <IntelligeBaseParam ... />
//     <RegionList>
//         <Region TargetSizeConstrain="true" MinTargetSize="3" MaxTargetSize="3" MinTime="3"
//                 IsAnalysisPath="true" ForbiddenType="true" Minimum="3" Maximum="3">
//             <PolygonArealist>
//                 <ZTPoint AttrXval="0.25" AttrYval="0.5" />
//             </PolygonArealist>
//         </Region>
//     </RegionList>
// </MultiLoiterParam>

#include "analysis/MultiLoiterParamXml.h"

#include "analysis/RuleSteps.h"
#include "core/Frame.h"

#include <utility>

namespace
{

void writeProperties(SafePointer<DomainXmlNode>& node, const MultiLoiterRegionParam& region)
{
    node->setProperty("TargetSizeConstrain", region.getTargetSizeConstrain());
    node->setProperty("MinTargetSize", region.getMinTargetSize());
    node->setProperty("MaxTargetSize", region.getMaxTargetSize());
    node->setProperty("MinTime", region.getMinTime());
    node->setProperty("IsAnalysisPath", region.getAnalysisPath());
    node->setProperty("ForbiddenType", region.getForbiddenType());
    node->setProperty("Minimum", region.getMinimum());
    node->setProperty("Maximum", region.getMaximum());
}

void readProperties(const SafePointer<DomainXmlNode>& node, MultiLoiterRegionParam& region)
{
    region.setTargetSizeConstrain(frame::flagProperty(node, "TargetSizeConstrain", false));
    region.setMinTargetSize(frame::intProperty(node, "MinTargetSize", 1000));
    region.setMaxTargetSize(frame::intProperty(node, "MaxTargetSize", 100000));
    region.setMinTime(frame::intProperty(node, "MinTime", 0));
    region.setAnalysisPath(frame::flagProperty(node, "IsAnalysisPath", false));
    region.setForbiddenType(frame::flagProperty(node, "ForbiddenType", false));
    region.setMinimum(frame::intProperty(node, "Minimum", 0));
    region.setMaximum(frame::intProperty(node, "Maximum", 0));
}

} // namespace

MultiLoiterParamXml::MultiLoiterParamXml() = default;

MultiLoiterParamXml::~MultiLoiterParamXml() = default;

bool MultiLoiterParamXml::createDomainXmlNode(const MultiLoiterParam& param, SafePointer<DomainXmlNode>& node)
{
    if (!frame::appendBasePart(node, param)) return false;

    node->setProperty("IsGetDetail", param.getIsGetDetail());
    return createMultiLoiterRegionParamListToDomainXmlNode(param.getMultiLoiterRegionParamList(), node);
}

bool MultiLoiterParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, MultiLoiterParam& param)
{
    if (!node) return false;

    MultiLoiterParam read;
    frame::readBasePart(node, read);
    read.setIsGetDetail(frame::flagProperty(node, "IsGetDetail", false));

    TiXmlElement* child = frame::firstRegion(node);
    for (; child != nullptr; child = child->NextSiblingElement("Region"))
    {
        const SafePointer<DomainXmlNode> item = frame::nodeOf(*child);
        MultiLoiterRegionParam region;
        readProperties(item, region);
        if (!parsePolygonAreaToDomainXmlNode(item, region.getRegion())) return false;
        read.getMultiLoiterRegionParamList().push_back(std::move(region));
    }
    param = std::move(read);
    return true;
}

bool MultiLoiterParamXml::createXmlString(const MultiLoiterParam& param, std::string& text)
{
    SafePointer<DomainXmlNode> node = frame::makeNode("MultiLoiterParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool MultiLoiterParamXml::parseXmlString(const std::string& text, MultiLoiterParam& param)
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "MultiLoiterParam", node) && parseDomainXmlNode(node, param);
}

bool MultiLoiterParamXml::createMultiLoiterRegionParamListToDomainXmlNode(
    const std::vector<MultiLoiterRegionParam>& regions, SafePointer<DomainXmlNode>& node)
{
    if (!node) return false;

    SafePointer<DomainXmlNode> list = frame::appendNode(node, "RegionList");
    for (const MultiLoiterRegionParam& region : regions)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(list, "Region");
        writeProperties(item, region);
        if (!createPolygonAreaToDomainXmlNode(region.getRegion(), item)) return false;
    }
    return true;
}

bool MultiLoiterParamXml::createPolygonAreaToDomainXmlNode(const PolygonArea& area, SafePointer<DomainXmlNode>& node)
{
    return frame::appendPolygonArea(node, area);
}

bool MultiLoiterParamXml::parsePolygonAreaToDomainXmlNode(const SafePointer<DomainXmlNode>& node, PolygonArea& area)
{
    return frame::readPolygonArea(node, area);
}
