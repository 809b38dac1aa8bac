// <AbnormalSpeedParam IsGetDetail="true">
//     <IntelligeBaseParam ... />
//     <RegionList>
//         <Region TargetTypeConstrain="true" TargetType="1" TargetSizeConstrain="true" MinTargetSize="1000"
//                 MaxTargetSize="100000" RateLimitingType="3" MinRate="3" MaxRate="3">
//             <PolygonArealist>
//                 <ZTPoint AttrXval="0.25" AttrYval="0.5" />
//             </PolygonArealist>
//         </Region>
//     </RegionList>
// </AbnormalSpeedParam>

#include "analysis/AbnormalSpeedParamXml.h"

#include "analysis/RuleSteps.h"
#include "core/Frame.h"

#include <utility>

namespace
{

void writeProperties(SafePointer<DomainXmlNode>& node, const AbnormalSpeedRegionParam& region)
{
    frame::setTarget(node, region);
    node->setProperty("RateLimitingType", region.getRateLimitingType());
    node->setProperty("MinRate", region.getMinRate());
    node->setProperty("MaxRate", region.getMaxRate());
}

void readProperties(const SafePointer<DomainXmlNode>& node, AbnormalSpeedRegionParam& region)
{
    frame::readTarget(node, region);
    region.setRateLimitingType(frame::intProperty(node, "RateLimitingType", 0));
    region.setMinRate(frame::intProperty(node, "MinRate", 0));
    region.setMaxRate(frame::intProperty(node, "MaxRate", 0));
}

} // namespace

AbnormalSpeedParamXml::AbnormalSpeedParamXml() = default;

AbnormalSpeedParamXml::~AbnormalSpeedParamXml() = default;

bool AbnormalSpeedParamXml::createDomainXmlNode(const AbnormalSpeedParam& param, SafePointer<DomainXmlNode>& node)
{
    if (!frame::appendBasePart(node, param)) return false;

    node->setProperty("IsGetDetail", param.getIsGetDetail());
    return createAbnormalSpeedRegionParamListToDomainXmlNode(param.getAbnormalSpeedRegionParamList(), node);
}

bool AbnormalSpeedParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AbnormalSpeedParam& param)
{
    if (!node) return false;

    AbnormalSpeedParam read;
    frame::readBasePart(node, read);
    read.setIsGetDetail(frame::flagProperty(node, "IsGetDetail", false));

    TiXmlElement* child = frame::firstRegion(node);
    for (; child != nullptr; child = child->NextSiblingElement("Region"))
    {
        const SafePointer<DomainXmlNode> item = frame::nodeOf(*child);
        AbnormalSpeedRegionParam region;
        readProperties(item, region);
        if (!parsePolygonAreaToDomainXmlNode(item, region.getRegion())) return false;
        read.getAbnormalSpeedRegionParamList().push_back(std::move(region));
    }
    param = std::move(read);
    return true;
}

bool AbnormalSpeedParamXml::createXmlString(const AbnormalSpeedParam& param, std::string& text)
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AbnormalSpeedParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool AbnormalSpeedParamXml::parseXmlString(const std::string& text, AbnormalSpeedParam& param)
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AbnormalSpeedParam", node) && parseDomainXmlNode(node, param);
}

bool AbnormalSpeedParamXml::createAbnormalSpeedRegionParamListToDomainXmlNode(
    const std::vector<AbnormalSpeedRegionParam>& regions, SafePointer<DomainXmlNode>& node)
{
    if (!node) return false;

    SafePointer<DomainXmlNode> list = frame::appendNode(node, "RegionList");
    for (const AbnormalSpeedRegionParam& region : regions)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(list, "Region");
        writeProperties(item, region);
        if (!createPolygonAreaToDomainXmlNode(region.getRegion(), item)) return false;
    }
    return true;
}

bool AbnormalSpeedParamXml::createPolygonAreaToDomainXmlNode(const PolygonArea& area, SafePointer<DomainXmlNode>& node)
{
    return frame::appendPolygonArea(node, area);
}

bool AbnormalSpeedParamXml::parsePolygonAreaToDomainXmlNode(const SafePointer<DomainXmlNode>& node, PolygonArea& area)
{
    return frame::readPolygonArea(node, area);
}
