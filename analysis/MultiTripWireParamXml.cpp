// <MultiTripWireParam IsGetDetail="true">
//     <IntelligeBaseParam ... />
//     <RegionList>
//         <Region TargetTypeConstrain="true" TargetType="1" TargetSizeConstrain="true" MinTargetSize="1000"
//                 MaxTargetSize="100000" TimeInterval="3" TriggerDirection1="90" TriggerDirection2="90">
//             <LineList>
//                 <LineCross LineCrossStartX="0.1" LineCrossStartY="0.2" LineCrossEndX="0.8" LineCrossEndY="0.9" />
//                 ...
//             </LineList>
//         </Region>
//     </RegionList>
// </MultiTripWireParam>

#include "analysis/MultiTripWireParamXml.h"

#include "analysis/RuleSteps.h"
#include "core/Conversions.h"
#include "core/Frame.h"
#include "core/LineCrossXml.h"

#include <utility>

namespace
{

void writeProperties(SafePointer<DomainXmlNode>& node, const MultiTripWireRegionParam& region)
{
    frame::setTarget(node, region);
    node->setProperty("TimeInterval", region.getTimeInterval());
    node->setProperty("TriggerDirection1", region.getTriggerDirection1());
    node->setProperty("TriggerDirection2", region.getTriggerDirection2());
}

// A direction is written whole and read with a fraction: some peers write one.
void readProperties(const SafePointer<DomainXmlNode>& node, MultiTripWireRegionParam& region)
{
    frame::readTarget(node, region);
    region.setTimeInterval(frame::intProperty(node, "TimeInterval", 0));
    region.setTriggerDirection1(frame::intFrom(frame::floatProperty(node, "TriggerDirection1", 0)));
    region.setTriggerDirection2(frame::intFrom(frame::floatProperty(node, "TriggerDirection2", 0)));
}

} // namespace

MultiTripWireParamXml::MultiTripWireParamXml() = default;

MultiTripWireParamXml::~MultiTripWireParamXml() = default;

bool MultiTripWireParamXml::createDomainXmlNode(const MultiTripWireParam& param, SafePointer<DomainXmlNode>& node)
{
    if (!frame::appendBasePart(node, param)) return false;

    node->setProperty("IsGetDetail", param.getIsGetDetail());
    return createMultiTripWireRegionParamListToDomainXmlNode(param.getMultiTripWireRegionParamList(), node);
}

bool MultiTripWireParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, MultiTripWireParam& param)
{
    if (!node) return false;

    MultiTripWireParam read;
    frame::readBasePart(node, read);
    read.setIsGetDetail(frame::flagProperty(node, "IsGetDetail", false));

    TiXmlElement* child = frame::firstRegion(node);
    for (; child != nullptr; child = child->NextSiblingElement("Region"))
    {
        const SafePointer<DomainXmlNode> item = frame::nodeOf(*child);
        MultiTripWireRegionParam region;
        readProperties(item, region);
        std::vector<LineCross> lines;
        if (!parseLineCrossToDomainXmlNode(item, lines) || lines.size() < 2) return false;
        region.setTripWireLine1(lines[0]);
        region.setTripWireLine2(lines[1]);
        read.getMultiTripWireRegionParamList().push_back(region);
    }
    param = std::move(read);
    return true;
}

bool MultiTripWireParamXml::createXmlString(const MultiTripWireParam& param, std::string& text)
{
    SafePointer<DomainXmlNode> node = frame::makeNode("MultiTripWireParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool MultiTripWireParamXml::parseXmlString(const std::string& text, MultiTripWireParam& param)
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "MultiTripWireParam", node) && parseDomainXmlNode(node, param);
}

bool MultiTripWireParamXml::createMultiTripWireRegionParamListToDomainXmlNode(
    const std::vector<MultiTripWireRegionParam>& regions, SafePointer<DomainXmlNode>& node)
{
    if (!node) return false;

    SafePointer<DomainXmlNode> list = frame::appendNode(node, "RegionList");
    for (const MultiTripWireRegionParam& region : regions)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(list, "Region");
        writeProperties(item, region);
        if (!createLineCrossToDomainXmlNode(region.getTripWireLine1(), region.getTripWireLine2(), item)) return false;
    }
    return true;
}

bool MultiTripWireParamXml::createLineCrossToDomainXmlNode(const LineCross& first, const LineCross& second,
                                                           SafePointer<DomainXmlNode>& node)
{
    if (!node) return false;

    SafePointer<DomainXmlNode> list = frame::appendNode(node, "LineList");
    return frame::appendLineCross(list, first) && frame::appendLineCross(list, second);
}

bool MultiTripWireParamXml::parseLineCrossToDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                          std::vector<LineCross>& lines)
{
    SafePointer<DomainXmlNode> list;
    if (!node || !node->getConfigNode("LineList", list)) return false;

    const TiXmlElement* item = frame::firstChild(list);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        LineCross line;
        if (item->ValueStr() != "LineCross" || !LineCrossXml::readElement(*item, line)) return false;
        lines.push_back(line);
    }
    return true;
}
