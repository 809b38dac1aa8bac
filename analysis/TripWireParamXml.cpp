// <TripWireParam IsGetDetail="true">
//     <IntelligeBaseParam ... />
//     <RegionList>
//         <Region TargetTypeConstrain="true" TargetType="1" TargetSizeConstrain="true" MinTargetSize="1000"
//                 MaxTargetSize="100000" IsBidirection="true" TriggerDirection="90">
//             <LineCross LineCrossStartX="0.1" LineCrossStartY="0.2" LineCrossEndX="0.8" LineCrossEndY="0.9" />
//         </Region>
//     </RegionList>
// </TripWireParam>

#include "analysis/TripWireParamXml.h"

#include "analysis/RuleSteps.h"
#include "core/Conversions.h"
#include "core/Frame.h"

#include <utility>

namespace
{

void writeProperties(SafePointer<DomainXmlNode>& node, const TripWireRegionParam& region)
{
    frame::setTarget(node, region);
    node->setProperty("IsBidirection", region.getIsBidirection());
    node->setProperty("TriggerDirection", region.getTriggerDirection());
}

// A direction is written whole and read with a fraction: some peers write one.
void readProperties(const SafePointer<DomainXmlNode>& node, TripWireRegionParam& region)
{
    frame::readTarget(node, region);
    region.setIsBidirection(frame::flagProperty(node, "IsBidirection", false));
    region.setTriggerDirection(frame::intFrom(frame::floatProperty(node, "TriggerDirection", 0)));
}

} // namespace

TripWireParamXml::TripWireParamXml() = default;

TripWireParamXml::~TripWireParamXml() = default;

bool TripWireParamXml::createDomainXmlNode(const TripWireParam& param, SafePointer<DomainXmlNode>& node)
{
    if (!frame::appendBasePart(node, param)) return false;

    node->setProperty("IsGetDetail", param.getIsGetDetail());
    return createTripWireRegionParamListToDomainXmlNode(param.getTripWireRegionParamList(), node);
}

bool TripWireParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, TripWireParam& param)
{
    if (!node) return false;

    TripWireParam read;
    frame::readBasePart(node, read);
    read.setIsGetDetail(frame::flagProperty(node, "IsGetDetail", false));

    TiXmlElement* child = frame::firstRegion(node);
    for (; child != nullptr; child = child->NextSiblingElement("Region"))
    {
        const SafePointer<DomainXmlNode> item = frame::nodeOf(*child);
        TripWireRegionParam region;
        readProperties(item, region);
        LineCross line;
        if (!parseLineCrossToDomainXmlNode(item, line)) return false;
        region.setLineCross(line);
        read.getTripWireRegionParamList().push_back(region);
    }
    param = std::move(read);
    return true;
}

bool TripWireParamXml::createXmlString(const TripWireParam& param, std::string& text)
{
    SafePointer<DomainXmlNode> node = frame::makeNode("TripWireParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool TripWireParamXml::parseXmlString(const std::string& text, TripWireParam& param)
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "TripWireParam", node) && parseDomainXmlNode(node, param);
}

bool TripWireParamXml::createTripWireRegionParamListToDomainXmlNode(const std::vector<TripWireRegionParam>& regions,
                                                                    SafePointer<DomainXmlNode>& node)
{
    if (!node) return false;

    SafePointer<DomainXmlNode> list = frame::appendNode(node, "RegionList");
    for (const TripWireRegionParam& region : regions)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(list, "Region");
        writeProperties(item, region);
        if (!createLineCrossToDomainXmlNode(region.getLineCross(), item)) return false;
    }
    return true;
}

bool TripWireParamXml::createLineCrossToDomainXmlNode(const LineCross& line, SafePointer<DomainXmlNode>& node)
{
    return frame::appendLineCross(node, line);
}

bool TripWireParamXml::parseLineCrossToDomainXmlNode(const SafePointer<DomainXmlNode>& node, LineCross& line)
{
    return frame::readLineCross(node, line);
}
