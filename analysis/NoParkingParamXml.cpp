// <NoParkingParam IsGetDetail="true">
//     <IntelligeBaseParam ... />
//     <RegionList>
//         <Region MinTargetSize="10" MaxTargetSize="500" MinTime="30">
//             <PolygonArealist>
//                 <ZTPoint AttrXval="0.25" AttrYval="0.5" />
//             </PolygonArealist>
//         </Region>
//     </RegionList>
// </NoParkingParam>

#include "analysis/NoParkingParamXml.h"

#include "analysis/RuleSteps.h"
#include "core/Frame.h"

#include <utility>

namespace
{

void writeProperties(SafePointer<DomainXmlNode>& node, const NoParkingRegionParam& region)
{
    frame::setLinger(node, region);
}

void readProperties(const SafePointer<DomainXmlNode>& node, NoParkingRegionParam& region)
{
    frame::readLinger(node, region);
}

} // namespace

NoParkingParamXml::NoParkingParamXml() = default;

NoParkingParamXml::~NoParkingParamXml() = default;

bool NoParkingParamXml::createDomainXmlNode(const NoParkingParam& param, SafePointer<DomainXmlNode>& node)
{
    if (!frame::appendBasePart(node, param)) return false;

    node->setProperty("IsGetDetail", param.getIsGetDetail());
    return createNoParkingRegionParamListToDomainXmlNode(param.getNoParkingRegionParamList(), node);
}

bool NoParkingParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, NoParkingParam& param)
{
    if (!node) return false;

    NoParkingParam read;
    frame::readBasePart(node, read);
    read.setIsGetDetail(frame::flagProperty(node, "IsGetDetail", false));

    TiXmlElement* child = frame::firstRegion(node);
    for (; child != nullptr; child = child->NextSiblingElement("Region"))
    {
        const SafePointer<DomainXmlNode> item = frame::nodeOf(*child);
        NoParkingRegionParam region;
        readProperties(item, region);
        if (!parsePolygonAreaToDomainXmlNode(item, region.getRegion())) return false;
        read.getNoParkingRegionParamList().push_back(std::move(region));
    }
    param = std::move(read);
    return true;
}

bool NoParkingParamXml::createXmlString(const NoParkingParam& param, std::string& text)
{
    SafePointer<DomainXmlNode> node = frame::makeNode("NoParkingParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool NoParkingParamXml::parseXmlString(const std::string& text, NoParkingParam& param)
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "NoParkingParam", node) && parseDomainXmlNode(node, param);
}

bool NoParkingParamXml::createNoParkingRegionParamListToDomainXmlNode(const std::vector<NoParkingRegionParam>& regions,
                                                                      SafePointer<DomainXmlNode>& node)
{
    if (!node) return false;

    SafePointer<DomainXmlNode> list = frame::appendNode(node, "RegionList");
    for (const NoParkingRegionParam& region : regions)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(list, "Region");
        writeProperties(item, region);
        if (!createPolygonAreaToDomainXmlNode(region.getRegion(), item)) return false;
    }
    return true;
}

bool NoParkingParamXml::createPolygonAreaToDomainXmlNode(const PolygonArea& area, SafePointer<DomainXmlNode>& node)
{
    return frame::appendPolygonArea(node, area);
}

bool NoParkingParamXml::parsePolygonAreaToDomainXmlNode(const SafePointer<DomainXmlNode>& node, PolygonArea& area)
{
    return frame::readPolygonArea(node, area);
}
