// <OcclusionDetectionParam Sensitivity="50">
//     <DetectionAreaList>
//         <DetectionArea TopX="0" TopY="0" Width="64" High="32" />
//     </DetectionAreaList>
// </OcclusionDetectionParam>

#include "alarm/OcclusionDetectionParamXml.h"

#include "alarm/DetectionAreaXml.h"
#include "core/Frame.h"

#include <utility>
#include <vector>

OcclusionDetectionParamXml::OcclusionDetectionParamXml() = default;

OcclusionDetectionParamXml::~OcclusionDetectionParamXml() = default;

void OcclusionDetectionParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool OcclusionDetectionParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool OcclusionDetectionParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "OcclusionDetectionParam", document_, node_) && parseXmlNode();
}

bool OcclusionDetectionParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& OcclusionDetectionParamXml::writeElement(TiXmlNode& parent, const OcclusionDetectionParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "OcclusionDetectionParam");
    frame::setInt(element, "Sensitivity", param.getSensitivity());

    TiXmlElement& areas = frame::appendElement(element, "DetectionAreaList");
    for (const DetectionArea& area : param.getDetectionArea())
        DetectionAreaXml::writeElement(areas, area);
    return element;
}

bool OcclusionDetectionParamXml::readElement(const TiXmlElement& element, OcclusionDetectionParam& param)
{
    param.setSensitivity(frame::intOf(element, "Sensitivity", 0));

    const TiXmlElement* item = frame::firstItem(element, "DetectionAreaList", "DetectionArea");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        DetectionArea area;
        if (!DetectionAreaXml::readElement(*item, area)) return false;
        param.getDetectionArea().push_back(area);
    }
    return true;
}

bool OcclusionDetectionParamXml::createDomainXmlNode(const OcclusionDetectionParam& param,
                                                     SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("Sensitivity", param.getSensitivity());

    SafePointer<DomainXmlNode> list = frame::appendNode(node, "DetectionAreaList");
    return DetectionAreaXml().createDomainXmlNode(param.getDetectionArea(), list);
}

bool OcclusionDetectionParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                    OcclusionDetectionParam& param) const
{
    if (!node) return false;

    param.setSensitivity(frame::intProperty(node, "Sensitivity", 0));

    SafePointer<DomainXmlNode> list;
    std::vector<DetectionArea> areas;
    if (node->getConfigNode("DetectionAreaList", list)) DetectionAreaXml().parseDomainXmlNode(list, areas);
    param.getDetectionArea() = std::move(areas);
    return true;
}

bool OcclusionDetectionParamXml::createXmlString(const OcclusionDetectionParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("OcclusionDetectionParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool OcclusionDetectionParamXml::parseXmlString(const std::string& text, OcclusionDetectionParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "OcclusionDetectionParam", node) && parseDomainXmlNode(node, param);
}
