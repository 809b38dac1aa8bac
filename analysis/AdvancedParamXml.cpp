// <AdvancedParam Scene="1" Hight="4" Angle="45.5" FOV="60" CameraShake="1" HighNoise="1" LowContrast="1"
//                PeriodMotion="1" PeriodMotionTime="1">
//     <PixelToRealSizeList>
//         <PixelToRealSize RealSize="10" SegmentLayType="1">
//             <LineCross LineCrossStartX="0.1" LineCrossStartY="0.2" LineCrossEndX="0.8" LineCrossEndY="0.9" />
//         </PixelToRealSize>
//     </PixelToRealSizeList>
// </AdvancedParam>
//
// "Hight" is how peers spell the height.

#include "analysis/AdvancedParamXml.h"

#include "analysis/RuleSteps.h"
#include "core/Frame.h"

#include <utility>

AdvancedParamXml::AdvancedParamXml() = default;

AdvancedParamXml::~AdvancedParamXml() = default;

bool AdvancedParamXml::createDomainXmlNode(const AdvancedParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("Scene", param.getScene());
    node->setProperty("Hight", param.getHight());
    node->setProperty("Angle", param.getAngle());
    node->setProperty("FOV", param.getFOV());
    node->setProperty("CameraShake", param.getCameraShake());
    node->setProperty("HighNoise", param.getHighNoise());
    node->setProperty("LowContrast", param.getLowContrast());
    node->setProperty("PeriodMotion", param.getPeriodMotion());
    node->setProperty("PeriodMotionTime", param.getPeriodMotionTime());
    return createAdvancedRegionParamListToDomainXmlNode(param.getPixelToRealSizeList(), node);
}

bool AdvancedParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AdvancedParam& param) const
{
    if (!node) return false;

    AdvancedParam read;
    read.setScene(frame::intProperty(node, "Scene", 0));
    read.setHight(frame::intProperty(node, "Hight", 0));
    read.setAngle(frame::floatProperty(node, "Angle", 0));
    read.setFOV(frame::floatProperty(node, "FOV", 0));
    read.setCameraShake(frame::intProperty(node, "CameraShake", 0));
    read.setHighNoise(frame::intProperty(node, "HighNoise", 0));
    read.setLowContrast(frame::intProperty(node, "LowContrast", 0));
    read.setPeriodMotion(frame::intProperty(node, "PeriodMotion", 0));
    read.setPeriodMotionTime(frame::intProperty(node, "PeriodMotionTime", 0));

    SafePointer<DomainXmlNode> list;
    TiXmlElement* child = nullptr;
    if (node->getConfigNode("PixelToRealSizeList", list))
        child = list->getXmlNode()->FirstChildElement("PixelToRealSize");
    for (; child != nullptr; child = child->NextSiblingElement("PixelToRealSize"))
    {
        const SafePointer<DomainXmlNode> item = frame::nodeOf(*child);
        PixelToRealSize size;
        size.setRealSize(frame::intProperty(item, "RealSize", 0));
        size.setSegmentLayType(frame::intProperty(item, "SegmentLayType", 0));
        LineCross segment;
        if (!parseLineCrossToDomainXmlNode(item, segment)) return false;
        size.setSegment(segment);
        read.getPixelToRealSizeList().push_back(size);
    }
    param = std::move(read);
    return true;
}

bool AdvancedParamXml::createXmlString(const AdvancedParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AdvancedParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool AdvancedParamXml::parseXmlString(const std::string& text, AdvancedParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AdvancedParam", node) && parseDomainXmlNode(node, param);
}

bool AdvancedParamXml::createAdvancedRegionParamListToDomainXmlNode(const std::vector<PixelToRealSize>& sizes,
                                                                    SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    SafePointer<DomainXmlNode> list = frame::appendNode(node, "PixelToRealSizeList");
    for (const PixelToRealSize& size : sizes)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(list, "PixelToRealSize");
        item->setProperty("RealSize", size.getRealSize());
        item->setProperty("SegmentLayType", size.getSegmentLayType());
        if (!createLineCrossToDomainXmlNode(size.getSegment(), item)) return false;
    }
    return true;
}

bool AdvancedParamXml::createLineCrossToDomainXmlNode(const LineCross& line, SafePointer<DomainXmlNode>& node) const
{
    return frame::appendLineCross(node, line);
}

bool AdvancedParamXml::parseLineCrossToDomainXmlNode(const SafePointer<DomainXmlNode>& node, LineCross& line) const
{
    return frame::readLineCross(node, line);
}
