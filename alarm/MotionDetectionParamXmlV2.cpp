// <MotionDetectionParamV2 CheckBlockNum="1" Sensitivity="50">
//     <DetectionAreaV2 WidthCellNumber="4" HighCellNumber="2" Data="8A==" DataLength="1" />
// </MotionDetectionParamV2>

#include "alarm/MotionDetectionParamXmlV2.h"

#include "alarm/DetectionAreaXmlV2.h"
#include "core/Frame.h"

#include <cstdio>
#include <utility>

MotionDetectionParamXmlV2::MotionDetectionParamXmlV2() = default;

MotionDetectionParamXmlV2::~MotionDetectionParamXmlV2() = default;

void MotionDetectionParamXmlV2::createXmlNode()
{
    writeElement(document_, param_);
}

bool MotionDetectionParamXmlV2::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool MotionDetectionParamXmlV2::parseXmlString()
{
    return frame::parseRoot(text_, "MotionDetectionParamV2", document_, node_) && parseXmlNode();
}

bool MotionDetectionParamXmlV2::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& MotionDetectionParamXmlV2::writeElement(TiXmlNode& parent, const MotionDetectionParamV2& param)
{
    TiXmlElement& element = frame::appendElement(parent, "MotionDetectionParamV2");
    frame::setInt(element, "CheckBlockNum", param.getCheckBlockNum());
    frame::setInt(element, "Sensitivity", param.getSensitivity());

    DetectionAreaXmlV2::writeElement(element, param.getDetectionArea());
    return element;
}

bool MotionDetectionParamXmlV2::readElement(const TiXmlElement& element, MotionDetectionParamV2& param)
{
    param.setCheckBlockNum(frame::intOf(element, "CheckBlockNum", 0));
    param.setSensitivity(frame::intOf(element, "Sensitivity", 0));

    const TiXmlElement* child = element.FirstChildElement("DetectionAreaV2");
    if (child != nullptr)
    {
        DetectionAreaV2 area;
        if (!DetectionAreaXmlV2::readElement(*child, area)) return false;
        param.getDetectionArea() = std::move(area);
    }
    return true;
}

bool MotionDetectionParamXmlV2::createDomainXmlNode(const MotionDetectionParamV2& param,
                                                    SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("CheckBlockNum", param.getCheckBlockNum());
    node->setProperty("Sensitivity", param.getSensitivity());

    SafePointer<DomainXmlNode> child = frame::appendNode(node, "DetectionAreaV2");
    return DetectionAreaXmlV2().createDomainXmlNode(param.getDetectionArea(), child);
}

bool MotionDetectionParamXmlV2::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                   MotionDetectionParamV2& param) const
{
    if (!node) return false;

    param.setCheckBlockNum(frame::intProperty(node, "CheckBlockNum", 0));
    param.setSensitivity(frame::intProperty(node, "Sensitivity", 0));

    SafePointer<DomainXmlNode> child;
    DetectionAreaV2 area;
    if (!node->getConfigNode("DetectionAreaV2", child))
        std::puts(" MotionDetectionParamXmlV2::parseDomainXmlNode node = NODE_DETECTION_AREA failed ");
    else if (!DetectionAreaXmlV2().parseDomainXmlNode(child, area))
        std::puts("MotionDetectionParamXmlV2   DetectionAreaV2::parseDomainXmlNode  failed ");
    param.getDetectionArea() = std::move(area);
    return true;
}

bool MotionDetectionParamXmlV2::createXmlString(const MotionDetectionParamV2& param, std::string& text) const
{
    // Texts of this form bear the child's name: the peers write it so, and look for no other.
    SafePointer<DomainXmlNode> node = frame::makeNode("DetectionAreaV2");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool MotionDetectionParamXmlV2::parseXmlString(const std::string& text, MotionDetectionParamV2& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "DetectionAreaV2", node) && parseDomainXmlNode(node, param);
}
