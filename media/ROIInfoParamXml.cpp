// <ROIInfoParamList>
//     <ROIInfoParam Name="Till" StreamID="1" IndexID="2" ROIEnableFlag="true" ROILevel="3">
//         <AreaParam TopX="1" TopY="2" Width="30" Height="40" />
//     </ROIInfoParam>
// </ROIInfoParamList>

#include "media/ROIInfoParamXml.h"

#include "core/Frame.h"
#include "media/AreaParamXml.h"

#include <utility>

ROIInfoParamXml::ROIInfoParamXml() = default;

ROIInfoParamXml::~ROIInfoParamXml() = default;

bool ROIInfoParamXml::createDomainXmlNode(const ROIInfoParam& region, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("Name", region.getName());
    node->setProperty("StreamID", region.getStreamID());
    node->setProperty("IndexID", region.getIndexID());
    node->setProperty("ROIEnableFlag", region.getEnableFlag());
    node->setProperty("ROILevel", region.getROILevel());

    SafePointer<DomainXmlNode> area = frame::appendNode(node, "AreaParam");
    return AreaParamXml().createDomainXmlNode(region.getAreaParam(), area);
}

bool ROIInfoParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ROIInfoParam& region) const
{
    if (!node) return false;

    region.setName(frame::textProperty(node, "Name", "", "ROIInfoParamXml::parseDomainXmlNode get Name failed "));
    region.setStreamID(
        frame::intProperty(node, "StreamID", 0, "ROIInfoParamXml::parseDomainXmlNode get StreamID failed "));
    region.setIndexID(
        frame::intProperty(node, "IndexID", 0, "ROIInfoParamXml::parseDomainXmlNode get IndexID failed "));
    region.setEnableFlag(frame::flagProperty(node, "ROIEnableFlag", false,
                                             "ROIInfoParamXml::parseDomainXmlNode get ROIEnableFlag failed "));
    region.setROILevel(
        frame::intProperty(node, "ROILevel", 0, "ROIInfoParamXml::parseDomainXmlNode get ROILevel failed "));

    SafePointer<DomainXmlNode> child;
    AreaParam area;
    if (node->getConfigNode("AreaParam", child)) AreaParamXml().parseDomainXmlNode(child, area);
    region.setAreaParam(area);
    return true;
}

bool ROIInfoParamXml::createXmlString(const ROIInfoParam& region, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ROIInfoParam");
    return createDomainXmlNode(region, node) && DomainXmlNode::toString(node, text);
}

bool ROIInfoParamXml::createXmlString(const std::vector<ROIInfoParam>& regions, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ROIInfoParamList");
    for (const ROIInfoParam& region : regions)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "ROIInfoParam");
        if (!createDomainXmlNode(region, item)) return false;
    }
    return DomainXmlNode::toString(node, text);
}

bool ROIInfoParamXml::parseXmlString(const std::string& text, ROIInfoParam& region) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ROIInfoParam", node) && parseDomainXmlNode(node, region);
}

bool ROIInfoParamXml::parseXmlString(const std::string& text, std::vector<ROIInfoParam>& regions) const
{
    SafePointer<DomainXmlNode> node;
    if (!DomainXmlNode::parse(text, "ROIInfoParamList", node)) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        ROIInfoParam region;
        if (!parseDomainXmlNode(frame::nodeOf(*item), region)) return false;
        regions.push_back(std::move(region));
    }
    return true;
}
